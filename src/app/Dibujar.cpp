#include "app/Dibujar.h"

#include "app/LineaComandos.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>
#include <QTemporaryFile>

bool ExtensionDibujoValida(const QString& ruta, QString& error) {
    const QString ext = QFileInfo(ruta).suffix().toLower();
    if (ext == QLatin1String("png") || ext == QLatin1String("svg") || ext == QLatin1String("pdf")) return true;
    error = QStringLiteral("El dibujo se guarda como PNG, SVG o PDF: la extensión de \"%1\" no es ninguna de ellas.")
                .arg(QFileInfo(ruta).fileName());
    return false;
}

int Dibujar(const QJsonObject& datos, const QString& ruta) {
    QTemporaryFile temporal(QStringLiteral("%1/fontaria-dibujo-XXXXXX.json").arg(QDir::tempPath()));
    if (!temporal.open() || temporal.write(QJsonDocument(datos).toJson(QJsonDocument::Compact)) < 0 ||
        !temporal.flush())
        return Fallar(QStringLiteral("No se pudo preparar el dibujo en la carpeta temporal."));
    // The drawer says what went wrong on the shared stderr.
    return EjecutarVecino("fontaria-dibujo", QStringList{temporal.fileName(), ruta}) == 0 ? Salida::Bien
                                                                                                  : Salida::Falla;
}
