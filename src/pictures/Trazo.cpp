#include "pictures/Trazo.h"

#include <QPainter>
#include <algorithm>
#include <cmath>
#include <limits>

void MarcaNodo(QPainter& p, const QPointF& centro, double radio, const QColor& relleno, bool destacado) {
    QPen borde(destacado ? QColor(150, 20, 20) : QColor(40, 40, 40), destacado ? 2.0 : 1.2);
    p.setPen(borde);
    p.setBrush(relleno);
    p.drawEllipse(centro, radio, radio);
}

double DistanciaSegmento(const QPointF& a, const QPointF& b, const QPointF& punto) {
    const QPointF ab = b - a;
    const double largo = QPointF::dotProduct(ab, ab);
    const double t = largo > 0 ? std::clamp(QPointF::dotProduct(punto - a, ab) / largo, 0.0, 1.0) : 0.0;
    const QPointF q = a + t * ab - punto;
    return std::hypot(q.x(), q.y());
}

double DistanciaTrazo(const QPolygonF& trazo, const QPointF& punto) {
    double d = std::numeric_limits<double>::infinity();
    for (int i = 1; i < trazo.size(); ++i) d = std::min(d, DistanciaSegmento(trazo[i - 1], trazo[i], punto));
    return d;
}

QColor Gris(const QColor& c) {
    const int g = qGray(c.rgb());
    return QColor(g, g, g, c.alpha());
}

void DibujarForma(QPainter& p, const QPointF& centro, double radio, FormaMarca forma) {
    switch (forma) {
    case FormaMarca::DobleAnillo:
        p.drawEllipse(centro, radio, radio);
        p.drawEllipse(centro, radio - 3.0, radio - 3.0);
        break;
    case FormaMarca::Cuadrado:
        p.drawRect(QRectF(centro - QPointF(radio, radio), centro + QPointF(radio, radio)));
        break;
    case FormaMarca::Rombo:
        p.drawPolygon(QPolygonF{centro + QPointF(0, -radio), centro + QPointF(radio, 0), centro + QPointF(0, radio),
                                centro + QPointF(-radio, 0)});
        break;
    }
}
