// fontaria-dibujo ENTRADA.json SALIDA.png|.svg|.pdf: draws the schematic or
// the plan that the command line wrote to ENTRADA.json (it computes, this
// only paints).  Kept apart so that the command line never loads the
// painting libraries; it runs without a display.

#include "pictures/Dibujo.h"
#include "pictures/DibujoDeJson.h"
#include "pictures/ExportarDibujo.h"

#include <QFile>
#include <QGuiApplication>
#include <QJsonDocument>
#include <QJsonObject>
#include <cstdio>
#include <memory>

namespace {

// The toolkit's notes about the desktop session (a missing runtime folder
// and the like) mean nothing to a drawing without a display.
void Mensajes(QtMsgType tipo, const QMessageLogContext&, const QString& texto) {
    if (tipo == QtDebugMsg || tipo == QtInfoMsg || texto.startsWith(QLatin1String("QStandardPaths:"))) return;
    fprintf(stderr, "%s\n", texto.toLocal8Bit().constData());
}

int Fallar(const QString& mensaje) {
    fprintf(stderr, "%s\n", mensaje.toLocal8Bit().constData());
    return 1;
}

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler(Mensajes);
    QGuiApplication app(argc, argv);
    const QStringList args = app.arguments();
    if (args.size() != 3) return Fallar(QStringLiteral("Uso: fontaria-dibujo datos.json dibujo.png|.svg|.pdf"));
    QFile f(args[1]);
    if (!f.open(QIODevice::ReadOnly))
        return Fallar(QStringLiteral("No se puede leer el archivo \"%1\".").arg(args[1]));
    QJsonParseError e;
    const QJsonObject o = QJsonDocument::fromJson(f.readAll(), &e).object();
    if (e.error != QJsonParseError::NoError)
        return Fallar(QStringLiteral("El archivo \"%1\" no es un JSON válido: %2").arg(args[1], e.errorString()));

    QString error;
    const std::unique_ptr<Dibujo> dibujo = DibujoDeJson(o, error);
    if (!dibujo) return Fallar(error);
    if (!ExportarDibujo(*dibujo, args[2], error)) return Fallar(error);
    return 0;
}
