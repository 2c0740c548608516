#include "pictures/Dibujo.h"

#include <QPainter>
#include <algorithm>

QTransform Encuadre(const QRectF& mundo, const QRectF& destino) {
    if (mundo.width() <= 0 || mundo.height() <= 0 || destino.isEmpty()) return QTransform();
    const double escala = std::min(destino.width() / mundo.width(), destino.height() / mundo.height());
    QTransform t;
    t.translate(destino.center().x(), destino.center().y());
    t.scale(escala, escala);
    t.translate(-mundo.center().x(), -mundo.center().y());
    return t;
}

QTransform EncuadreDibujo(const Dibujo& d, const QRectF& destino) { return Encuadre(d.Limites(), d.AreaRed(destino)); }

void PintarEnRectangulo(QPainter& p, const QRectF& destino, const Dibujo& d) {
    p.save();
    p.setClipRect(destino);
    d.Pintar(p, EncuadreDibujo(d, destino), destino, true);
    p.restore();
}
