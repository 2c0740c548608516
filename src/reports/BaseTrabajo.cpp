#include "reports/BaseTrabajo.h"

#include "store/Conexion.h"

bool AbrirTrabajo(Conexion& c, const QString& ruta, QString& error) {
    if (c.Abrir(ruta)) return true;
    error = c.UltimoError();
    return false;
}

bool FalloTrabajo(Conexion& c, QString& error) {
    error = QStringLiteral("No se pudo escribir la base de datos de trabajo de los reportes: ") + c.UltimoError();
    return false;
}
