#include "analysis/CargaProyecto.h"

#include "base/Dialogos.h"
#include "model/ArchivoEdificio.h"
#include "model/ProyectoEdificio.h"
#include "shell/Sesion.h"
#include "shell/Titulos.h"

bool AbrirOtroProyecto(ProyectoEdificio& p, Sesion& s, Dialogos& d) {
    const auto archivo = d.AbrirArchivo(QStringLiteral("Abrir un Proyecto Existente"), QStringLiteral("*.plm|*.plm"),
                                        s.RutaDatos(QStringLiteral("Proyectos")));
    if (!archivo) return false;
    QString error;
    if (!CargarProyectoEdificio(p, s, *archivo, error)) {
        d.MostrarMensaje(error, QStringLiteral("Abrir un Proyecto Existente"), TituloProyectoFontaria());
        return false;
    }
    return true;
}
