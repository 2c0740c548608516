#include "widgets/PanelTapiz.h"

#include "images/efectos/EfectoTapiz.h"
#include "shell/ColoqueImagen.h"

#include <QFileInfo>
#include <QImageReader>
#include <QPainter>

PanelTapiz::PanelTapiz(QWidget* padre) : QWidget(padre) {
    setAutoFillBackground(true);
    QPalette p = palette();
    p.setColor(QPalette::Window, QColor(58, 64, 74));
    setPalette(p);
}

bool PanelTapiz::Aplicar(const ConfiguracionTapiz& c) {
    c_ = c;
    const QFileInfo info(c.RutaTapiz);
    const bool otroArchivo = c.RutaTapiz != ruta_ || info.lastModified() != fecha_;
    if (otroArchivo) {
        ruta_ = c.RutaTapiz;
        fecha_ = info.lastModified();
        QImageReader lector(c.RutaTapiz);
        lector.setAutoTransform(true);
        original_ = lector.read();
    }
    // Record 5: the picture wears its effect; 0 shows it as it is.
    if (otroArchivo || c.EfectoTapiz != efecto_) {
        efecto_ = c.EfectoTapiz;
        imagen_ = AplicarEfectoTapiz(original_, efecto_);
    }
    update();
    return !imagen_.isNull();
}

void PanelTapiz::PonerEscala(double escala) {
    escala_ = escala > 0 ? escala : 1.0;
    update();
}

QRect PanelTapiz::RectImagen() const {
    if (imagen_.isNull()) return QRect();
    const QSize natural = (QSizeF(imagen_.size()) * escala_).toSize();
    return ColoqueImagen(natural, size(), c_).rect;
}

void PanelTapiz::paintEvent(QPaintEvent*) {
    if (imagen_.isNull()) return;
    QPainter p(this);
    p.setRenderHint(QPainter::SmoothPixmapTransform);
    p.drawImage(RectImagen(), imagen_);
}
