#include "pictures/ExportarConDialogo.h"

#include "base/Dialogos.h"
#include "pictures/ExportarDibujo.h"

#include <QFileInfo>

QString ExportarConDialogo(const Dibujo& d, Dialogos& dialogos, const QString& titulo, const QString& formato,
                           const QString& carpeta) {
    const QString ext = formato.toLower();
    const QString filtro = ext == QLatin1String("png")   ? QStringLiteral("Imagen PNG (*.png)|*.png")
                           : ext == QLatin1String("svg") ? QStringLiteral("Dibujo SVG (*.svg)|*.svg")
                                                         : QStringLiteral("Documento PDF (*.pdf)|*.pdf");
    const std::optional<QString> ruta = dialogos.GuardarArchivo(titulo, filtro, carpeta);
    if (!ruta || ruta->trimmed().isEmpty()) return QString();
    QString destino = *ruta;
    if (QFileInfo(destino).suffix().isEmpty()) destino += QLatin1Char('.') + ext;
    QString error;
    if (!ExportarDibujo(d, destino, error)) {
        dialogos.MostrarMensaje(error, titulo, QStringLiteral("Proyecto de Fontaria"));
        return QString();
    }
    return destino;
}
