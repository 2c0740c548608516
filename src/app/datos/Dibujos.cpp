#include "app/datos/Dibujos.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QRandomGenerator>
#include <cmath>

namespace {

constexpr int Ancho = 200;
constexpr int Alto = 160;
constexpr int AltoDibujo = 124;  // the caption takes the rest

QImage Lienzo() {
    QImage img(Ancho, Alto, QImage::Format_RGB32);
    img.fill(Qt::white);
    return img;
}

void Preparar(QPainter& p) {
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(QPen(QColor(20, 40, 90), 2.2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.setBrush(Qt::NoBrush);
}

void Rotulo(QPainter& p, const QString& texto) {
    p.save();
    p.setPen(QColor(40, 40, 40));
    QFont f(QStringLiteral("DejaVu Sans"));
    f.setPixelSize(11);
    f.setBold(true);
    p.setFont(f);
    p.drawText(QRect(4, AltoDibujo, Ancho - 8, Alto - AltoDibujo - 2), Qt::AlignCenter | Qt::TextWordWrap, texto);
    p.setPen(QPen(QColor(170, 180, 200), 1));
    p.drawRect(QRect(0, 0, Ancho - 1, Alto - 1));
    p.restore();
}

void Grifo(QPainter& p, QPointF base, double escala = 1.0) {
    p.drawLine(base, base + QPointF(0, -14 * escala));
    p.drawLine(base + QPointF(0, -14 * escala), base + QPointF(14 * escala, -14 * escala));
    p.drawLine(base + QPointF(14 * escala, -14 * escala), base + QPointF(14 * escala, -8 * escala));
    p.drawLine(base + QPointF(-5 * escala, -18 * escala), base + QPointF(5 * escala, -18 * escala));
}

void Gotas(QPainter& p, QPointF desde, int n) {
    for (int i = 0; i < n; ++i) {
        const QPointF c = desde + QPointF((i - n / 2) * 9.0, 10.0 + (i % 2) * 8.0);
        p.drawLine(c, c + QPointF(-2, 8));
    }
}

void Inodoro(QPainter& p, QPointF o, bool tanque) {
    if (tanque) {
        p.drawRoundedRect(QRectF(o.x() - 18, o.y() - 62, 36, 30), 3, 3);
    } else {
        // Flush valve: a pipe with a handle over the bowl.
        p.drawLine(o + QPointF(-6, -32), o + QPointF(-6, -70));
        p.drawEllipse(o + QPointF(-6, -52), 6, 6);
        p.drawLine(o + QPointF(-6, -52), o + QPointF(10, -58));
    }
    QPainterPath taza;
    taza.moveTo(o + QPointF(-22, -30));
    taza.lineTo(o + QPointF(26, -30));
    taza.cubicTo(o + QPointF(26, -8), o + QPointF(10, 0), o + QPointF(8, 4));
    taza.lineTo(o + QPointF(10, 20));
    taza.lineTo(o + QPointF(-14, 20));
    taza.lineTo(o + QPointF(-12, 2));
    taza.cubicTo(o + QPointF(-20, -6), o + QPointF(-22, -18), o + QPointF(-22, -30));
    p.drawPath(taza);
}

void Lavamanos(QPainter& p, QPointF o, double s = 1.0) {
    QPainterPath cuenco;
    cuenco.moveTo(o + QPointF(-34 * s, -20 * s));
    cuenco.lineTo(o + QPointF(34 * s, -20 * s));
    cuenco.cubicTo(o + QPointF(34 * s, 2 * s), o + QPointF(14 * s, 8 * s), o + QPointF(0, 8 * s));
    cuenco.cubicTo(o + QPointF(-14 * s, 8 * s), o + QPointF(-34 * s, 2 * s), o + QPointF(-34 * s, -20 * s));
    p.drawPath(cuenco);
    Grifo(p, o + QPointF(-6 * s, -20 * s), s);
}

void Urinario(QPainter& p, QPointF o, bool tanque) {
    QPainterPath u;
    u.moveTo(o + QPointF(-18, -40));
    u.lineTo(o + QPointF(18, -40));
    u.lineTo(o + QPointF(16, 18));
    u.cubicTo(o + QPointF(12, 30), o + QPointF(-12, 30), o + QPointF(-16, 18));
    u.closeSubpath();
    p.drawPath(u);
    p.drawLine(o + QPointF(-10, 0), o + QPointF(10, 0));
    if (tanque)
        p.drawRect(QRectF(o.x() - 14, o.y() - 64, 28, 18));
    else {
        p.drawLine(o + QPointF(0, -40), o + QPointF(0, -68));
        p.drawEllipse(o + QPointF(0, -56), 5, 5);
    }
}

void Fregadero(QPainter& p, QPointF o, int cubetas) {
    p.drawRect(QRectF(o.x() - 70, o.y() - 20, 140, 12));
    const double ancho = 100.0 / cubetas;
    for (int i = 0; i < cubetas; ++i) {
        const double x = o.x() - 50 + i * ancho;
        p.drawRoundedRect(QRectF(x + 4, o.y() - 8, ancho - 8, 30), 4, 4);
    }
    Grifo(p, o + QPointF(0, -20));
}

void Tubo(QPainter& p, QPointF a, QPointF b) {
    // A pipe drawn as two parallel lines.
    const QPointF d = b - a;
    const double l = std::hypot(d.x(), d.y());
    if (l == 0) return;
    const QPointF n(-d.y() / l * 7, d.x() / l * 7);
    p.drawLine(a + n, b + n);
    p.drawLine(a - n, b - n);
}

void Codo(QPainter& p, QPointF c, double angulo) {
    // A bend of `angulo` degrees: an arc of pipe between two straight stubs,
    // with the sockets marked where they meet.
    const double r = 40, largo = 30;
    const QRectF ext(c.x() - r - 7, c.y() - r - 7, 2 * (r + 7), 2 * (r + 7));
    const QRectF in(c.x() - r + 7, c.y() - r + 7, 2 * (r - 7), 2 * (r - 7));
    QPainterPath exterior, interior;
    exterior.arcMoveTo(ext, 180);
    exterior.arcTo(ext, 180, -angulo);
    interior.arcMoveTo(in, 180);
    interior.arcTo(in, 180, -angulo);
    p.drawPath(exterior);
    p.drawPath(interior);
    const double fin = (180.0 - angulo) * M_PI / 180.0;
    const QPointF inicio = c + QPointF(-r, 0);
    const QPointF final = c + QPointF(r * std::cos(fin), -r * std::sin(fin));
    const QPointF sentido(std::sin(fin), std::cos(fin));
    Tubo(p, inicio + QPointF(0, largo), inicio);
    Tubo(p, final, final + sentido * largo);
    for (double a : {180.0, 180.0 - angulo}) {
        const double rad = a * M_PI / 180.0;
        const QPointF u(std::cos(rad), -std::sin(rad));
        p.drawLine(c + u * (r - 11), c + u * (r + 11));
    }
}

void Valvula(QPainter& p, QPointF c, int tipo) {
    // The two triangles of a valve on a pipe, with a stem and a wheel or lever.
    Tubo(p, c + QPointF(-80, 0), c + QPointF(-22, 0));
    Tubo(p, c + QPointF(22, 0), c + QPointF(80, 0));
    QPolygonF a, b;
    a << c + QPointF(-22, -16) << c + QPointF(-22, 16) << c;
    b << c + QPointF(22, -16) << c + QPointF(22, 16) << c;
    p.drawPolygon(a);
    p.drawPolygon(b);
    p.drawLine(c, c + QPointF(0, -32));
    if (tipo == 1) p.drawEllipse(c + QPointF(0, -36), 14, 4);
    if (tipo == 2) {
        p.drawLine(c + QPointF(0, -32), c + QPointF(26, -42));
        p.drawLine(c + QPointF(22, 0), c + QPointF(22, 30));
    }
    if (tipo == 3) p.drawRect(QRectF(c.x() - 12, c.y() - 44, 24, 10));
}

void DibujarPieza(QPainter& p, int clave) {
    const QPointF o(Ancho / 2.0, 76);
    switch (clave) {
    case 1:  // bathtub
        p.drawRoundedRect(QRectF(20, 50, 160, 46), 18, 18);
        p.drawRoundedRect(QRectF(30, 58, 140, 30), 12, 12);
        p.drawLine(QPointF(36, 96), QPointF(32, 108));
        p.drawLine(QPointF(164, 96), QPointF(168, 108));
        Grifo(p, QPointF(40, 50));
        break;
    case 2:  // laundry tub
        p.drawRect(QRectF(50, 40, 100, 44));
        p.drawRect(QRectF(58, 46, 84, 32));
        for (double x : {56.0, 144.0}) p.drawLine(QPointF(x, 84), QPointF(x, 118));
        Grifo(p, QPointF(100, 40));
        break;
    case 3:  // bidet
        p.drawEllipse(o + QPointF(0, 6), 42, 28);
        p.drawEllipse(o + QPointF(0, 6), 28, 16);
        Grifo(p, o + QPointF(-4, -22));
        break;
    case 4:  // shower
        p.drawLine(QPointF(60, 112), QPointF(60, 26));
        p.drawLine(QPointF(60, 26), QPointF(110, 26));
        p.drawLine(QPointF(110, 26), QPointF(110, 36));
        p.drawChord(QRectF(94, 30, 32, 20), 0, -180 * 16);
        Gotas(p, QPointF(110, 46), 5);
        p.drawEllipse(QPointF(60, 80), 6, 6);
        break;
    case 5: Inodoro(p, o + QPointF(0, 20), true); break;
    case 6: Inodoro(p, o + QPointF(0, 20), false); break;
    case 7: Fregadero(p, o, 1); break;
    case 8:  // pantry sink
        p.drawRect(QRectF(50, 56, 100, 10));
        p.drawRoundedRect(QRectF(70, 66, 60, 24), 4, 4);
        Grifo(p, QPointF(96, 56));
        break;
    case 9:  // dishwasher
        p.drawRect(QRectF(50, 20, 100, 96));
        p.drawLine(QPointF(50, 36), QPointF(150, 36));
        p.drawLine(QPointF(90, 28), QPointF(130, 28));
        for (int i = 0; i < 7; ++i) p.drawLine(QPointF(62 + i * 12, 60), QPointF(62 + i * 12, 84));
        p.drawLine(QPointF(58, 84), QPointF(142, 84));
        break;
    case 10:
        Lavamanos(p, o + QPointF(0, -6));
        p.drawRect(QRectF(o.x() - 8, o.y() + 2, 16, 40));
        break;
    case 11:  // mop sink
        p.drawRect(QRectF(40, 76, 120, 36));
        p.drawRect(QRectF(48, 82, 104, 24));
        p.drawLine(QPointF(120, 20), QPointF(100, 96));
        p.drawLine(QPointF(92, 96), QPointF(108, 100));
        Grifo(p, QPointF(60, 76));
        break;
    case 12:  // washing machine
        p.drawRoundedRect(QRectF(56, 16, 88, 100), 6, 6);
        p.drawLine(QPointF(56, 34), QPointF(144, 34));
        p.drawEllipse(QPointF(100, 74), 28, 28);
        p.drawEllipse(QPointF(100, 74), 20, 20);
        p.drawEllipse(QPointF(130, 25), 4, 4);
        break;
    case 13: Urinario(p, o + QPointF(0, 16), true); break;
    case 14: Urinario(p, o + QPointF(0, 16), false); break;
    case 15:  // drinking fountain
        p.drawRect(QRectF(70, 70, 60, 48));
        p.drawChord(QRectF(56, 52, 88, 36), 0, -180 * 16);
        p.drawArc(QRectF(92, 30, 30, 40), 30 * 16, 120 * 16);
        break;
    case 16:
    case 17:  // bathroom: water closet, basin and shower together
        p.save();
        p.scale(0.62, 0.62);
        Inodoro(p, QPointF(60, 150), clave == 16);
        Lavamanos(p, QPointF(160, 130), 0.8);
        p.drawRect(QRectF(144, 136, 32, 46));
        p.drawLine(QPointF(240, 190), QPointF(240, 60));
        p.drawLine(QPointF(240, 60), QPointF(280, 60));
        p.drawChord(QRectF(266, 62, 28, 18), 0, -180 * 16);
        Gotas(p, QPointF(280, 80), 4);
        p.restore();
        break;
    case 18:  // trough basin with several taps
        p.drawRoundedRect(QRectF(24, 60, 152, 30), 10, 10);
        for (int i = 0; i < 4; ++i) Grifo(p, QPointF(40 + i * 36, 60), 0.8);
        break;
    case 19: Fregadero(p, o, 2); break;
    case 20: {  // hose bib and hose
        p.drawLine(QPointF(30, 40), QPointF(70, 40));
        p.drawRect(QRectF(70, 32, 18, 16));
        p.drawLine(QPointF(79, 32), QPointF(79, 20));
        p.drawLine(QPointF(72, 20), QPointF(86, 20));
        QPainterPath m;
        m.moveTo(88, 44);
        m.cubicTo(150, 50, 40, 110, 160, 104);
        p.drawPath(m);
        break;
    }
    case 21:  // sub-branch: a tee with an arrow to what hangs from it
        Tubo(p, QPointF(20, 60), QPointF(180, 60));
        Tubo(p, QPointF(100, 67), QPointF(100, 110));
        p.drawLine(QPointF(100, 112), QPointF(92, 100));
        p.drawLine(QPointF(100, 112), QPointF(108, 100));
        break;
    default:
        p.drawRect(QRectF(50, 30, 100, 80));
        p.drawLine(QPointF(50, 30), QPointF(150, 110));
        p.drawLine(QPointF(150, 30), QPointF(50, 110));
    }
}

void DibujarConexion(QPainter& p, int clave) {
    const QPointF c(Ancho / 2.0, 70);
    switch (clave) {
    case 1: Valvula(p, c, 1); break;  // globe valve
    case 2: Valvula(p, c, 2); break;  // angle valve
    case 3: Valvula(p, c, 3); break;  // gate valve
    case 4: Codo(p, QPointF(120, 84), 45); break;
    case 5: Codo(p, QPointF(100, 84), 90); break;
    case 6:
        Codo(p, QPointF(100, 84), 90);
        p.drawText(QPointF(124, 112), QStringLiteral("R/D 1.5"));
        break;
    case 7:
        Codo(p, QPointF(100, 84), 90);
        p.drawText(QPointF(124, 112), QStringLiteral("R/D 3"));
        break;
    case 8: {  // square bend
        Tubo(p, QPointF(30, 60), QPointF(100, 60));
        Tubo(p, QPointF(100, 53), QPointF(100, 116));
        p.drawLine(QPointF(100, 53), QPointF(107, 53));
        p.drawLine(QPointF(107, 53), QPointF(107, 60));
        break;
    }
    case 9: Codo(p, QPointF(100, 72), 180); break;
    case 10:
    case 11: {  // tee, flow through or into the branch
        Tubo(p, QPointF(20, 56), QPointF(180, 56));
        Tubo(p, QPointF(100, 63), QPointF(100, 114));
        if (clave == 10) {
            p.drawLine(QPointF(130, 42), QPointF(160, 42));
            p.drawLine(QPointF(160, 42), QPointF(152, 37));
        } else {
            p.drawLine(QPointF(114, 78), QPointF(114, 106));
            p.drawLine(QPointF(114, 106), QPointF(109, 98));
        }
        break;
    }
    case 12:  // special equivalent length
        Tubo(p, QPointF(20, 60), QPointF(180, 60));
        p.drawLine(QPointF(30, 86), QPointF(170, 86));
        p.drawLine(QPointF(30, 80), QPointF(30, 92));
        p.drawLine(QPointF(170, 80), QPointF(170, 92));
        p.drawText(QRectF(60, 90, 80, 24), Qt::AlignCenter, QStringLiteral("L eq."));
        break;
    case 13:  // water meter
        Tubo(p, QPointF(20, 66), QPointF(70, 66));
        Tubo(p, QPointF(130, 66), QPointF(180, 66));
        p.drawEllipse(QPointF(100, 66), 30, 30);
        p.drawText(QRectF(70, 36, 60, 60), Qt::AlignCenter, QStringLiteral("M"));
        break;
    case 14:  // check valve
        Tubo(p, QPointF(20, 66), QPointF(70, 66));
        Tubo(p, QPointF(130, 66), QPointF(180, 66));
        p.drawRect(QRectF(70, 46, 60, 40));
        p.drawLine(QPointF(80, 80), QPointF(116, 52));
        p.drawLine(QPointF(116, 52), QPointF(106, 54));
        break;
    default:
        Tubo(p, QPointF(20, 66), QPointF(180, 66));
    }
}

}  // namespace

QImage DibujoPieza(int clave, const QString& nombre) {
    QImage img = Lienzo();
    QPainter p(&img);
    Preparar(p);
    DibujarPieza(p, clave);
    Rotulo(p, nombre);
    return img;
}

QImage DibujoConexion(int clave, const QString& nombre) {
    QImage img = Lienzo();
    QPainter p(&img);
    Preparar(p);
    QFont f(QStringLiteral("DejaVu Sans"));
    f.setPixelSize(16);
    f.setBold(true);
    p.setFont(f);
    DibujarConexion(p, clave);
    Rotulo(p, nombre);
    return img;
}

QImage DibujoTapiz(int ancho, int alto) {
    QImage img(ancho, alto, QImage::Format_RGB32);
    QPainter p(&img);
    p.setRenderHint(QPainter::Antialiasing);
    QLinearGradient g(0, 0, ancho, alto);
    g.setColorAt(0, QColor(12, 52, 96));
    g.setColorAt(1, QColor(40, 120, 170));
    p.fillRect(img.rect(), g);
    // A faint network of pipes and nodes.
    QRandomGenerator azar(2024);
    p.setPen(QPen(QColor(255, 255, 255, 40), 3));
    QList<QPointF> nodos;
    for (int i = 0; i < 28; ++i) nodos << QPointF(azar.bounded(ancho), azar.bounded(alto));
    for (int i = 0; i < nodos.size(); ++i) {
        const QPointF a = nodos[i];
        const QPointF b = nodos[(i * 7 + 3) % nodos.size()];
        p.drawLine(a, QPointF(b.x(), a.y()));
        p.drawLine(QPointF(b.x(), a.y()), b);
    }
    p.setBrush(QColor(255, 255, 255, 60));
    for (const QPointF& n : nodos) p.drawEllipse(n, 6, 6);
    QFont f(QStringLiteral("DejaVu Sans"));
    f.setPixelSize(alto / 9);
    f.setBold(true);
    p.setFont(f);
    p.setPen(QColor(255, 255, 255, 200));
    p.drawText(QRect(0, alto / 2 - alto / 8, ancho, alto / 6), Qt::AlignCenter, QStringLiteral("Nivo-Fontaria 2024"));
    f.setPixelSize(alto / 28);
    f.setBold(false);
    p.setFont(f);
    p.drawText(QRect(0, alto / 2 + alto / 24, ancho, alto / 12), Qt::AlignCenter,
               QStringLiteral("Redes de agua potable · Viviendas, Edificios y Acueductos"));
    return img;
}
