#include "pictures/PlanoAcueducto.h"

#include "aqueduct/AnalisisACU.h"
#include "base/Nivo.h"
#include "pictures/DisposicionTension.h"
#include "pictures/Trazo.h"
#include "widgets/Colores.h"

#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>
#include <cmath>

namespace {

constexpr double AnchoLeyenda = 200.0;  // pixels at the right of the device
constexpr double RadioNodo = 4.0;       // pixels
constexpr int MaximoEtiquetasVisibles = 400;

const std::vector<QColor>& Paleta() {
    static const std::vector<QColor> p{QColor(33, 102, 172), QColor(103, 169, 207), QColor(26, 152, 80),
                                       QColor(217, 163, 0),  QColor(244, 109, 67),  QColor(215, 48, 39)};
    return p;
}

}  // namespace

int ClasesPlano::Clase(double valor) const {
    int c = 0;
    while (c < int(limites.size()) && valor >= limites[size_t(c)]) ++c;
    return c;
}

ClasesPlano ClasesVelocidad() { return {{0.3, 0.6, 1.0, 1.5, 2.0}, Paleta(), QStringLiteral("Velocidad (m/s)")}; }
ClasesPlano ClasesPerdida() { return {{1, 3, 5, 10, 20}, Paleta(), QStringLiteral("Pérdida unitaria (m/km)")}; }
ClasesPlano ClasesPresion() {
    return {{0, 10, 20, 40, 60},
            {QColor(103, 0, 31), QColor(215, 48, 39), QColor(252, 141, 89), QColor(26, 152, 80), QColor(69, 117, 180),
             QColor(118, 42, 131)},
            QStringLiteral("Presión (m)")};
}

PlanoAcueducto::PlanoAcueducto(DatosPlano datos, ColorPlano modo, const std::vector<QPointF>* previas)
    : datos_(std::move(datos)), modo_(modo) {
    fuente_ = QFont(QStringLiteral("DejaVu Sans"));
    fuente_.setPixelSize(10);
    fuenteNegrita_ = fuente_;
    fuenteNegrita_.setBold(true);
    const int n = int(datos_.nodos.size());
    std::vector<std::optional<QPointF>> fijos(static_cast<size_t>(n));
    for (int k = 0; k < n; ++k) {
        fijos[size_t(k)] = datos_.nodos[size_t(k)].posicion;
        dispuesto_ = dispuesto_ || !fijos[size_t(k)];
    }
    if (previas && previas->size() == size_t(n)) {
        posiciones_ = *previas;
    } else if (dispuesto_) {
        std::vector<AristaDisposicion> aristas;
        aristas.reserve(datos_.tramos.size());
        for (const TramoPlano& t : datos_.tramos)
            if (t.nodoI >= 0 && t.nodoJ >= 0) aristas.push_back({t.nodoI, t.nodoJ, t.longitud});
        posiciones_ = DisponerPorTension(n, aristas, fijos);
        // North up: the page's y runs south.
        for (QPointF& q : posiciones_) q.setY(-q.y());
    } else {
        for (const auto& f : fijos) posiciones_.push_back(QPointF(f->x(), -f->y()));
    }

    QRectF caja;
    for (const QPointF& q : posiciones_) caja |= QRectF(q, QSizeF(1e-9, 1e-9));
    if (caja.isNull()) caja = QRectF(0, 0, 100, 100);
    const double margen = std::max({caja.width(), caja.height(), 20.0}) * 0.06;
    limites_ = caja.adjusted(-margen, -margen, margen, margen);

    lineas_.resize(datos_.tramos.size());
    for (size_t t = 0; t < datos_.tramos.size(); ++t) {
        const TramoPlano& x = datos_.tramos[t];
        if (x.nodoI >= 0 && x.nodoJ >= 0) lineas_[t] = QLineF(posiciones_[size_t(x.nodoI)], posiciones_[size_t(x.nodoJ)]);
    }
    // The median section on the page sets what detail shows.
    std::vector<double> largos;
    for (const QLineF& l : lineas_)
        if (l.length() > 0) largos.push_back(l.length());
    if (!largos.empty()) {
        std::nth_element(largos.begin(), largos.begin() + long(largos.size() / 2), largos.end());
        longitudTipica_ = largos[largos.size() / 2];
    }
    presiones_ = ClasesPresion();
    claseNodo_.resize(size_t(n));
    for (int k = 0; k < n; ++k) claseNodo_[size_t(k)] = presiones_.Clase(datos_.nodos[size_t(k)].presion);
    PonerModo(modo);
}

void PlanoAcueducto::PonerModo(ColorPlano modo) {
    modo_ = modo;
    clases_ = modo == ColorPlano::Velocidad ? ClasesVelocidad() : ClasesPerdida();
    claseTramo_.resize(datos_.tramos.size());
    for (size_t t = 0; t < datos_.tramos.size(); ++t) {
        const TramoPlano& x = datos_.tramos[t];
        claseTramo_[t] = clases_.Clase(std::abs(modo == ColorPlano::Velocidad ? x.velocidad : x.perdidaUnitaria));
    }
}

QColor PlanoAcueducto::ColorTramo(int t) const { return clases_.colores[size_t(claseTramo_[size_t(t)])]; }

QSizeF PlanoAcueducto::TamanoNatural() const {
    const double w = limites_.width(), h = limites_.height();
    const double escala = std::min(1200.0 / w, 900.0 / h);
    return QSizeF(std::max(w * escala, 500.0) + AnchoLeyenda, std::max(h * escala, 420.0));
}

QRectF PlanoAcueducto::AreaRed(const QRectF& destino) const {
    if (destino.width() < 2.5 * AnchoLeyenda) return destino;
    return destino.adjusted(0, 0, -AnchoLeyenda, 0);
}

QString PlanoAcueducto::Numero(double v, const char* mascara) const {
    return Formato(v, QString::fromLatin1(mascara), Separadores{datos_.decimal, datos_.miles});
}

void PlanoAcueducto::Pintar(QPainter& p, const QTransform& mundo, const QRectF& destino, bool todasLasEtiquetas) const {
    p.save();
    p.setRenderHint(QPainter::Antialiasing);
    p.setRenderHint(QPainter::TextAntialiasing);
    p.setClipRect(destino);
    const QRectF visible = mundo.inverted().mapRect(destino);
    const double escala = std::sqrt(std::abs(mundo.determinant()));

    // Sections, one pen per class.
    std::vector<std::vector<QLineF>> porClase(clases_.colores.size());
    std::vector<int> visibles;
    for (size_t t = 0; t < lineas_.size(); ++t) {
        const QLineF& l = lineas_[t];
        if (datos_.tramos[t].nodoI < 0 || datos_.tramos[t].nodoJ < 0) continue;
        const QRectF caja = QRectF(l.p1(), l.p2()).normalized().adjusted(-1e-6, -1e-6, 1e-6, 1e-6);
        if (!caja.intersects(visible)) continue;
        porClase[size_t(claseTramo_[t])].push_back(mundo.map(l));
        visibles.push_back(int(t));
    }
    for (size_t c = 0; c < porClase.size(); ++c) {
        if (porClase[c].empty()) continue;
        p.setPen(QPen(clases_.colores[c], 3.0, Qt::SolidLine, Qt::RoundCap));
        p.drawLines(porClase[c].data(), int(porClase[c].size()));
    }
    // Arrows where the section is long enough on the page, at its middle.
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(50, 50, 50));
    for (int t : visibles) {
        const QLineF l = mundo.map(lineas_[size_t(t)]);
        const double q = datos_.tramos[size_t(t)].caudal;
        if (l.length() < 36.0 || std::abs(q) < 5e-4) continue;
        QLineF d = q > 0 ? l : QLineF(l.p2(), l.p1());
        const QPointF u = (d.p2() - d.p1()) / d.length();
        const QPointF n(-u.y(), u.x());
        const QPointF c = d.pointAt(0.5);
        p.drawPolygon(QPolygonF{c + 6 * u, c - 4 * u + 4 * n, c - 4 * u - 4 * n});
    }

    // Nodes: only the marked ones when too many show.
    std::vector<int> nodos;
    for (size_t k = 0; k < posiciones_.size(); ++k)
        if (visible.contains(posiciones_[k])) nodos.push_back(int(k));
    // Level of detail by how long a typical section is on the page: node
    // markers from a few pixels, labels once they fit between the nodes.
    const double pixelesTramo = longitudTipica_ * escala;
    const bool todos = pixelesTramo >= 9.0 || int(nodos.size()) <= 60;
    for (int k : nodos) {
        const NodoPlano& x = datos_.nodos[size_t(k)];
        const QPointF c = mundo.map(posiciones_[size_t(k)]);
        if (x.minimo || x.maximo) {
            p.setPen(QPen(QColor(80, 80, 80), 1.0));
            p.setBrush(ColorNivo(x.minimo ? ColorPresionMinima : ColorPresionMaxima));
            p.drawEllipse(c, RadioNodo + 5, RadioNodo + 5);
        }
        if (x.fijo) {
            p.setPen(QPen(Qt::black, 1.2));
            p.setBrush(presiones_.colores[size_t(claseNodo_[size_t(k)])]);
            p.drawRect(QRectF(c - QPointF(6, 6), QSizeF(12, 12)));
        } else if (todos || x.minimo || x.maximo) {
            MarcaNodo(p, c, RadioNodo, presiones_.colores[size_t(claseNodo_[size_t(k)])], false);
        }
    }
    const bool etiquetas = (pixelesTramo >= 45.0 || int(nodos.size()) <= 12) &&
                           int(nodos.size()) <= (todasLasEtiquetas ? 3000 : MaximoEtiquetasVisibles);
    if (etiquetas) {
        const QFontMetricsF m(fuenteNegrita_), mNormal(fuente_);
        for (int k : nodos) {
            const NodoPlano& x = datos_.nodos[size_t(k)];
            const QPointF c = mundo.map(posiciones_[size_t(k)]) + QPointF(8, -3);
            // A light ground keeps the label readable over the pipes.
            const double w = std::max(m.horizontalAdvance(x.nombre), mNormal.horizontalAdvance(x.textoPresion));
            p.fillRect(QRectF(c.x() - 1, c.y() - m.ascent(), w + 2, m.height() + mNormal.height()),
                       QColor(255, 255, 255, 190));
            p.setPen(Qt::black);
            p.setFont(fuenteNegrita_);
            p.drawText(c, x.nombre);
            p.setPen(QColor(60, 60, 60));
            p.setFont(fuente_);
            p.drawText(c + QPointF(0, m.height()), x.textoPresion);
        }
    }
    PintarEscala(p, mundo, destino);
    PintarLeyenda(p, destino);
    p.restore();
}

void PlanoAcueducto::PintarEscala(QPainter& p, const QTransform& mundo, const QRectF& destino) const {
    const double escala = std::sqrt(std::abs(mundo.determinant()));  // pixels per metre
    if (escala <= 0) return;
    // A round length near 120 pixels.
    const double objetivo = 120.0 / escala;
    const double potencia = std::pow(10.0, std::floor(std::log10(objetivo)));
    double largo = potencia;
    for (double f : {1.0, 2.0, 5.0, 10.0})
        if (f * potencia <= objetivo) largo = f * potencia;
    const double px = largo * escala;
    const QPointF o(destino.left() + 16, destino.bottom() - 18);
    p.setPen(QPen(Qt::black, 1.5));
    p.setBrush(Qt::NoBrush);
    p.drawLine(o, o + QPointF(px, 0));
    p.drawLine(o + QPointF(0, -5), o + QPointF(0, 5));
    p.drawLine(o + QPointF(px, -5), o + QPointF(px, 5));
    p.setFont(fuente_);
    const QString texto = largo >= 1000 ? Numero(largo / 1000.0, "#,##0") + QStringLiteral(" km")
                                        : Numero(largo, largo >= 1 ? "#,##0" : "0.00") + QStringLiteral(" m");
    p.drawText(o + QPointF(px + 6, 4), texto);
}

void PlanoAcueducto::PintarLeyenda(QPainter& p, const QRectF& destino) const {
    const QFontMetricsF m(fuente_);
    const double linea = m.height() + 3;
    auto rango = [&](const ClasesPlano& c, int i, const char* mascara) {
        if (i == 0) return QStringLiteral("menos de ") + Numero(c.limites[0], mascara);
        if (i == int(c.limites.size())) return Numero(c.limites.back(), mascara) + QStringLiteral(" o más");
        return Numero(c.limites[size_t(i) - 1], mascara) + QStringLiteral(" a ") + Numero(c.limites[size_t(i)], mascara);
    };
    const int filas = 3 + int(clases_.colores.size()) + 1 + int(presiones_.colores.size()) + 4 + (dispuesto_ ? 2 : 0);
    const double ancho = AnchoLeyenda - 16;
    const QRectF caja(destino.right() - ancho - 8, destino.top() + 8, ancho, filas * linea + 10);
    p.setPen(QPen(QColor(120, 120, 120), 1));
    p.setBrush(QColor(255, 255, 255, 235));
    p.drawRect(caja);
    double y = caja.top() + 6 + m.ascent();
    const double x = caja.left() + 8;
    auto texto = [&](const QString& t, bool negrita) {
        p.setPen(Qt::black);
        p.setFont(negrita ? fuenteNegrita_ : fuente_);
        p.drawText(QRectF(x, y - m.ascent(), ancho - 14, linea), Qt::AlignLeft | Qt::TextSingleLine,
                   QFontMetricsF(p.font()).elidedText(t, Qt::ElideRight, ancho - 14));
        y += linea;
    };
    texto(datos_.titulo, true);
    texto(datos_.caso, false);
    texto(clases_.titulo, true);
    const char* mascara = modo_ == ColorPlano::Velocidad ? "0.0" : "0";
    for (int i = 0; i < int(clases_.colores.size()); ++i) {
        p.setPen(QPen(clases_.colores[size_t(i)], 4));
        p.drawLine(QPointF(x, y - m.ascent() / 2), QPointF(x + 22, y - m.ascent() / 2));
        p.setPen(Qt::black);
        p.setFont(fuente_);
        p.drawText(QPointF(x + 30, y), rango(clases_, i, mascara));
        y += linea;
    }
    texto(presiones_.titulo, true);
    for (int i = 0; i < int(presiones_.colores.size()); ++i) {
        MarcaNodo(p, QPointF(x + 11, y - m.ascent() / 2), RadioNodo, presiones_.colores[size_t(i)], false);
        p.setPen(Qt::black);
        p.setFont(fuente_);
        p.drawText(QPointF(x + 30, y), rango(presiones_, i, "0"));
        y += linea;
    }
    for (const auto& [color, texto] : {std::pair{ColorPresionMinima, "Presión mínima del caso"},
                                       std::pair{ColorPresionMaxima, "Presión máxima del caso"}}) {
        p.setPen(QPen(QColor(80, 80, 80), 1.0));
        p.setBrush(ColorNivo(color));
        p.drawEllipse(QPointF(x + 11, y - m.ascent() / 2), RadioNodo + 4, RadioNodo + 4);
        p.setPen(Qt::black);
        p.drawText(QPointF(x + 30, y), QString::fromUtf8(texto));
        y += linea;
    }
    p.setPen(QPen(Qt::black, 1.2));
    p.setBrush(QColor(200, 200, 200));
    p.drawRect(QRectF(x + 6, y - m.ascent() / 2 - 5, 10, 10));
    p.setFont(fuente_);
    p.drawText(QPointF(x + 30, y), QStringLiteral("Tanque o bomba"));
    y += linea;
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(50, 50, 50));
    const QPointF c(x + 11, y - m.ascent() / 2);
    p.drawPolygon(QPolygonF{c + QPointF(6, 0), c + QPointF(-4, 4), c + QPointF(-4, -4)});
    p.setPen(Qt::black);
    p.drawText(QPointF(x + 30, y), QStringLiteral("Sentido del caudal"));
    y += linea;
    if (dispuesto_) {
        texto(QStringLiteral("Nodos sin coordenadas:"), false);
        texto(QStringLiteral("ubicados según las longitudes"), false);
    }
}

ElementoDibujo PlanoAcueducto::ElementoEn(const QPointF& punto, double radio) const {
    ElementoDibujo e;
    double mejor = radio;
    for (size_t k = 0; k < posiciones_.size(); ++k) {
        const double d = std::hypot(posiciones_[k].x() - punto.x(), posiciones_[k].y() - punto.y());
        if (d <= mejor) {
            mejor = d;
            e = {ElementoDibujo::Nodo, int(k)};
        }
    }
    if (e.tipo != ElementoDibujo::Ninguno) return e;
    mejor = radio;
    for (size_t t = 0; t < lineas_.size(); ++t) {
        if (datos_.tramos[t].nodoI < 0 || datos_.tramos[t].nodoJ < 0) continue;
        const double d = DistanciaSegmento(lineas_[t].p1(), lineas_[t].p2(), punto);
        if (d <= mejor) {
            mejor = d;
            e = {ElementoDibujo::Tubo, int(t)};
        }
    }
    return e;
}
