#include "widgets/PanelTapiz.h"

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
    if (c.RutaTapiz != ruta_ || info.lastModified() != fecha_) {
        ruta_ = c.RutaTapiz;
        fecha_ = info.lastModified();
        QImageReader lector(c.RutaTapiz);
        lector.setAutoTransform(true);
        imagen_ = lector.read();
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
