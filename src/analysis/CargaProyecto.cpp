#include "analysis/CargaProyecto.h"

#include "analysis/Numeracion.h"
#include "base/Dialogos.h"
#include "model/ArchivoEdificio.h"
#include "model/ProyectoEdificio.h"
#include "model/ProyectoJson.h"
#include "shell/Sesion.h"

#include <QFileInfo>

bool CargarProyectoEdificio(ProyectoEdificio& p, Sesion& s, const QString& archivo, QString& error) {
    {
        Conexion prueba;
        if (!prueba.Abrir(archivo)) {
            error = prueba.UltimoError();
            return false;
        }
        if (!EsArchivoProyecto(prueba)) {
            error = QStringLiteral("El archivo no es un proyecto de Fontaria: ") + archivo;
            return false;
        }
    }
    s.ArchivoProyecto = archivo;
    s.NombreProyecto = QFileInfo(archivo).fileName();
    ValoresIniciales(p, s);
    if (AbrirConexionProyecto(s) != 0) {
        error = s.ConexionProyecto.UltimoError();
        return false;
    }
    LeerProyecto(p, s);
    return true;
}

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
