#include "app/LineaComandos.h"
#include "model/ProyectoJson.h"
#include "shell/Sesion.h"

#include <QFileInfo>

// fontaria proyecto exportar X.plm | importar datos.json X.plm
int VerboProyecto(const QStringList& args) {
    Sesion s;
    PrepararSesion(s);
    QString error;
    if (args.size() == 4 && args[2] == QLatin1String("exportar")) {
        QJsonObject o;
        if (!ExportarProyecto(args[3], s, o, error)) return Fallar(error);
        ImprimirJson(o);
        return Salida::Bien;
    }
    if (args.size() == 5 && args[2] == QLatin1String("importar")) {
        if (!ImportarProyecto(args[3], args[4], s, error)) return Fallar(error);
        return Salida::Bien;
    }
    return Fallar(QStringLiteral("Uso: fontaria proyecto exportar X.plm | importar datos.json X.plm"));
}
