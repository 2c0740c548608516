#include "images/screens/MarcoImagen.h"

#include "images/ArchivoImagen.h"

#include <QMouseEvent>
#include <QPainter>
#include <cmath>

MarcoImagen::MarcoImagen(QWidget* padre) : QWidget(padre) {
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::Base);
}

void MarcoImagen::PonerImagen(const QImage& imagen) {
    imagen_ = imagen;
    update();
}

QRect MarcoImagen::Destino() const {
    const double e = EscalaAjuste(imagen_.size(), size());
    if (e <= 0) return QRect();
    const QSize t(std::max(1, int(std::lround(imagen_.width() * e))), std::max(1, int(std::lround(imagen_.height() * e))));
    return QRect(QPoint((width() - t.width()) / 2, (height() - t.height()) / 2), t);
}

void MarcoImagen::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.setPen(palette().color(QPalette::Mid));
    p.drawRect(rect().adjusted(0, 0, -1, -1));
    const QRect destino = Destino();
    if (destino.isEmpty()) return;
    p.setRenderHint(QPainter::SmoothPixmapTransform);
    p.drawImage(destino, imagen_);
    if (!marco) return;
    const QRect r = marco();
    if (r.isEmpty()) return;
    p.setPen(QPen(Qt::red, 2));
    p.setBrush(Qt::NoBrush);
    p.drawRect(r.translated(destino.topLeft()).adjusted(0, 0, -1, -1));
}

void MarcoImagen::mousePressEvent(QMouseEvent* e) {
    if (e->button() == Qt::LeftButton) Q_EMIT Arrastrado(e->position().toPoint() - Destino().topLeft());
}

void MarcoImagen::mouseMoveEvent(QMouseEvent* e) {
    if (e->buttons() & Qt::LeftButton) Q_EMIT Arrastrado(e->position().toPoint() - Destino().topLeft());
}
