#include "reports/BaseTrabajo.h"

#include "store/Conexion.h"

#include <QJsonDocument>

bool AbrirTrabajo(Conexion& c, const QString& ruta, QString& error) {
    if (c.Abrir(ruta)) return true;
    error = c.UltimoError();
    return false;
}

bool FalloTrabajo(Conexion& c, QString& error) {
    error = QStringLiteral("No se pudo escribir la base de datos de trabajo de los reportes: ") + c.UltimoError();
    return false;
}

bool GuardeDibujo(Conexion& c, const QString& nombre, const QJsonObject& datos) {
    return c.Ejecutar(QStringLiteral("CREATE TABLE IF NOT EXISTS Dibujos (Nombre TEXT PRIMARY KEY, Datos TEXT)")) &&
           c.Ejecutar(QStringLiteral("INSERT OR REPLACE INTO Dibujos (Nombre, Datos) VALUES (?, ?)"),
                      {nombre, QString::fromUtf8(QJsonDocument(datos).toJson(QJsonDocument::Compact))});
}
