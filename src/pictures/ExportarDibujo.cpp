#include "pictures/ExportarDibujo.h"

#include "pictures/Dibujo.h"

#include <QFileInfo>
#include <QImage>
#include <QPageLayout>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QSaveFile>
#include <QSvgGenerator>
#include <algorithm>
#include <cmath>

namespace {

void PintarEntero(QPainter& p, const Dibujo& d, const QRectF& pagina) {
    p.fillRect(pagina, Qt::white);
    const QRectF area = pagina.adjusted(12, 12, -12, -12);
    d.Pintar(p, EncuadreDibujo(d, area), area, true);
}

}  // namespace

QImage ImagenDibujo(const Dibujo& d, int lado) {
    const QSizeF natural = d.TamanoNatural();
    const double mayor = std::max({natural.width(), natural.height(), 1.0});
    const double escala = std::min(2.0, lado / mayor);
    QImage imagen(std::max(1, int(std::ceil(natural.width() * escala))), std::max(1, int(std::ceil(natural.height() * escala))),
                  QImage::Format_RGB32);
    imagen.fill(Qt::white);
    QPainter p(&imagen);
    p.scale(escala, escala);
    PintarEntero(p, d, QRectF(QPointF(0, 0), natural));
    return imagen;
}

bool ExportarDibujo(const Dibujo& d, const QString& ruta, QString& error) {
    const QString ext = QFileInfo(ruta).suffix().toLower();
    if (ext != QLatin1String("png") && ext != QLatin1String("svg") && ext != QLatin1String("pdf")) {
        error = QStringLiteral("El dibujo se guarda como PNG, SVG o PDF: la extensión de \"%1\" no es ninguna de ellas.")
                    .arg(QFileInfo(ruta).fileName());
        return false;
    }
    QSaveFile archivo(ruta);
    if (!archivo.open(QIODevice::WriteOnly)) {
        error = QStringLiteral("No se puede escribir el archivo \"%1\": la carpeta no existe o no admite escritura.")
                    .arg(ruta);
        return false;
    }
    const QSizeF tamano = d.TamanoNatural();
    const QSize pixeles(int(std::ceil(tamano.width())), int(std::ceil(tamano.height())));
    bool bien = true;
    if (ext == QLatin1String("png")) {
        QImage imagen(pixeles, QImage::Format_RGB32);
        imagen.fill(Qt::white);
        {
            QPainter p(&imagen);
            PintarEntero(p, d, QRectF(QPointF(0, 0), tamano));
        }
        bien = imagen.save(&archivo, "PNG");
    } else if (ext == QLatin1String("svg")) {
        QSvgGenerator svg;
        svg.setOutputDevice(&archivo);
        svg.setSize(pixeles);
        svg.setViewBox(QRect(QPoint(0, 0), pixeles));
        svg.setTitle(QFileInfo(ruta).completeBaseName());
        QPainter p;
        bien = p.begin(&svg);
        if (bien) {
            PintarEntero(p, d, QRectF(QPointF(0, 0), tamano));
            p.end();
        }
    } else {
        // Letter, turned to the picture's shape.
        QPdfWriter pdf(&archivo);
        pdf.setPageSize(QPageSize(QPageSize::Letter));
        pdf.setPageOrientation(tamano.width() >= tamano.height() ? QPageLayout::Landscape : QPageLayout::Portrait);
        pdf.setPageMargins(QMarginsF(10, 10, 10, 10), QPageLayout::Millimeter);
        pdf.setResolution(150);
        pdf.setTitle(QFileInfo(ruta).completeBaseName());
        pdf.setCreator(QStringLiteral("Fontaria"));
        QPainter p;
        bien = p.begin(&pdf);
        if (bien) {
            const QRect area = pdf.pageLayout().paintRectPixels(pdf.resolution());
            // The picture is drawn at its own pixel size, scaled to the page.
            const double escala = std::min(area.width() / tamano.width(), area.height() / tamano.height());
            p.scale(escala, escala);
            PintarEntero(p, d, QRectF(QPointF(0, 0), QSizeF(area.width() / escala, area.height() / escala)));
            p.end();
        }
    }
    if (!bien || !archivo.commit()) {
        archivo.cancelWriting();
        error = QStringLiteral("No se pudo escribir el dibujo en \"%1\".").arg(ruta);
        return false;
    }
    return true;
}
