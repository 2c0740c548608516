#include "shell/RespaldoArchivos.h"

#include "base/Dialogos.h"
#include "shell/Sesion.h"

#include <QDir>

QString CarpetaRespaldo(const Sesion& s, int opcion) {
    if (opcion == 7) return s.RutaDatos(QStringLiteral("ReportesExportados"));
    return s.RutaDatos(s.TipoRed == 1 ? QStringLiteral("Redes") : QStringLiteral("Proyectos"));
}

bool AbrirCarpetaRespaldo(const Sesion& s, Dialogos& d, int opcion) {
    const QString carpeta = CarpetaRespaldo(s, opcion);
    if (QDir().mkpath(carpeta) && d.AbrirConSistema(carpeta)) return true;
    d.MostrarMensaje(QStringLiteral("No se Pudo Abrir el Directorio:\n") + carpeta, QStringLiteral("Respaldar Archivos..."),
                     QStringLiteral("Proyecto de Fontaria"));
    return false;
}
