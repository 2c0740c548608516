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
#include <limits>
#include <numeric>

namespace {

constexpr double AnchoLeyenda = 200.0;  // pixels at the right of the device
constexpr double RadioNodo = 4.0;       // pixels
constexpr int MaximoEtiquetasVisibles = 400;
constexpr double AreaEtiqueta = 60.0 * 26.0;  // pixels, a typical node label

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

QPen PlanoAcueducto::PlumaClase(int clase) const {
    if (!blancoNegro_) return QPen(clases_.colores[size_t(clase)], 3.0, Qt::SolidLine, Qt::RoundCap);
    // Without colour a faster (or steeper) class is darker and wider, and
    // the two slowest are dotted and dashed.
    const double t = double(clase) / std::max<size_t>(clases_.colores.size() - 1, 1);
    const int gris = int(std::lround(100.0 * (1.0 - t)));
    QPen pluma(QColor(gris, gris, gris), std::max(2.0, 1.4 + 4.0 * t), Qt::SolidLine, Qt::RoundCap);
    if (clase == 0) pluma.setDashPattern({0.01, 2.0});
    if (clase == 1) {
        pluma.setCapStyle(Qt::FlatCap);
        pluma.setDashPattern({4.0, 2.0});
    }
    return pluma;
}

QColor PlanoAcueducto::RellenoPresion(int clase) const {
    if (!blancoNegro_) return presiones_.colores[size_t(clase)];
    // From black for a pressure below zero to white for the highest.
    static const int grises[] = {0, 75, 130, 180, 220, 255};
    const int g = grises[std::clamp(clase, 0, 5)];
    return QColor(g, g, g);
}

double PlanoAcueducto::RadioMarca(int k) const {
    const NodoPlano& x = datos_.nodos[size_t(k)];
    if (x.minimo || x.maximo) return blancoNegro_ ? RadioNodo + 9 : RadioNodo + 5;
    return x.fijo ? 6.0 : RadioNodo;
}

void PlanoAcueducto::PintarMarcaNodo(QPainter& p, int k, const QPointF& c, bool todos) const {
    const NodoPlano& x = datos_.nodos[size_t(k)];
    if (x.minimo || x.maximo) {
        if (blancoNegro_) {
            // A double ring for the lowest pressure, a diamond for the highest.
            p.setPen(QPen(Qt::black, 1.4));
            p.setBrush(Qt::white);
            if (x.minimo) DibujarForma(p, c, RadioNodo + 7, FormaMarca::DobleAnillo);
            else DibujarForma(p, c, RadioNodo + 9, FormaMarca::Rombo);
        } else {
            p.setPen(QPen(QColor(80, 80, 80), 1.0));
            p.setBrush(ColorNivo(x.minimo ? ColorPresionMinima : ColorPresionMaxima));
            p.drawEllipse(c, RadioNodo + 5, RadioNodo + 5);
        }
    }
    const QColor relleno = RellenoPresion(claseNodo_[size_t(k)]);
    if (x.fijo) {
        p.setPen(QPen(Qt::black, 1.2));
        p.setBrush(relleno);
        p.drawRect(QRectF(c - QPointF(6, 6), QSizeF(12, 12)));
    } else if (todos || x.minimo || x.maximo) {
        MarcaNodo(p, c, RadioNodo, relleno, false);
    }
}

PlanoAcueducto::Detalle PlanoAcueducto::DetalleDe(const QTransform& mundo, const QRectF& destino,
                                                  bool todasLasEtiquetas) const {
    Detalle d;
    const QRectF visible = mundo.inverted().mapRect(destino);
    for (size_t k = 0; k < posiciones_.size(); ++k)
        if (visible.contains(posiciones_[k])) d.nodos.push_back(int(k));
    // Level of detail by how long a typical section is on the page: node
    // markers from a few pixels, labels once they fit between the nodes.
    const double pixelesTramo = longitudTipica_ * std::sqrt(std::abs(mundo.determinant()));
    const int n = int(d.nodos.size());
    d.marcas = pixelesTramo >= 9.0 || n <= 60;
    d.etiquetas = (pixelesTramo >= 45.0 || n <= 12) && n <= (todasLasEtiquetas ? 3000 : MaximoEtiquetasVisibles);
    // A page or a file names every node of a small network, as long as the
    // labels take no more than a third of it.
    if (todasLasEtiquetas && n * AreaEtiqueta <= destino.width() * destino.height() / 3.0) d.etiquetas = true;
    return d;
}

namespace {

// Whether segment `l` passes through rectangle `r` (Liang-Barsky).
bool Atraviesa(const QLineF& l, const QRectF& r) {
    const double dx = l.dx(), dy = l.dy();
    double t0 = 0, t1 = 1;
    const double p[] = {-dx, dx, -dy, dy};
    const double q[] = {l.x1() - r.left(), r.right() - l.x1(), l.y1() - r.top(), r.bottom() - l.y1()};
    for (int k = 0; k < 4; ++k) {
        if (p[k] == 0) {
            if (q[k] < 0) return false;
            continue;
        }
        const double t = q[k] / p[k];
        if (p[k] < 0) t0 = std::max(t0, t);
        else t1 = std::min(t1, t);
        if (t0 > t1) return false;
    }
    return true;
}

// Rectangles and segments on the page, kept by square cells so that a new
// label is checked against its neighbours alone.
class Rejilla {
public:
    Rejilla(const QRectF& zona, double celda)
        : zona_(zona), celda_(celda), nx_(std::max(1, int(std::ceil(zona.width() / celda)))),
          ny_(std::max(1, int(std::ceil(zona.height() / celda)))), celdas_(size_t(nx_) * size_t(ny_)) {}

    void Agregar(const QRectF& r) { Guardar({r, QLineF(), false}); }
    void Agregar(const QLineF& l) { Guardar({QRectF(l.p1(), l.p2()).normalized(), l, true}); }
    // How many of those kept `r` meets, but the one numbered `salvo` in the
    // order they came, and the area it shares with the rectangles.
    int Cruces(const QRectF& r, double* area = nullptr, int salvo = -1) const {
        ++marca_;
        int n = 0;
        double a = 0;
        Recorrer(r, [&](const std::vector<int>& c) {
            for (int i : c) {
                const Objeto& o = objetos_[size_t(i)];
                if (visto_[size_t(i)] == marca_ || i == salvo) continue;
                visto_[size_t(i)] = marca_;
                if (o.esLinea ? !Atraviesa(o.linea, r) : !o.caja.intersects(r)) continue;
                ++n;
                const QRectF comun = o.esLinea ? QRectF() : o.caja & r;
                a += comun.width() * comun.height();
            }
        });
        if (area) *area = a;
        return n;
    }

private:
    struct Objeto {
        QRectF caja;
        QLineF linea;
        bool esLinea;
    };
    void Guardar(const Objeto& o) {
        objetos_.push_back(o);
        visto_.push_back(0);
        Recorrer(o.caja, [&](std::vector<int>& c) { c.push_back(int(objetos_.size()) - 1); });
    }
    template <typename F>
    void Recorrer(const QRectF& r, F f) const {
        auto indice = [&](double v, double origen, int n) {
            return int(std::clamp(std::floor((v - origen) / celda_), 0.0, double(n - 1)));
        };
        const int x0 = indice(r.left(), zona_.left(), nx_), x1 = indice(r.right(), zona_.left(), nx_);
        const int y0 = indice(r.top(), zona_.top(), ny_), y1 = indice(r.bottom(), zona_.top(), ny_);
        for (int y = y0; y <= y1; ++y)
            for (int x = x0; x <= x1; ++x) f(celdas_[size_t(y) * size_t(nx_) + size_t(x)]);
    }

    QRectF zona_;
    double celda_;
    int nx_, ny_;
    mutable std::vector<std::vector<int>> celdas_;
    std::vector<Objeto> objetos_;
    mutable std::vector<int> visto_;
    mutable int marca_ = 0;
};

// `r` moved the least to lie inside `z`.
QRectF Dentro(QRectF r, const QRectF& z) {
    r.moveLeft(std::clamp(r.left(), z.left(), std::max(z.left(), z.right() - r.width())));
    r.moveTop(std::clamp(r.top(), z.top(), std::max(z.top(), z.bottom() - r.height())));
    return r;
}

}  // namespace

std::vector<EtiquetaPlano> PlanoAcueducto::Etiquetas(const QTransform& mundo, const QRectF& destino,
                                                     bool todasLasEtiquetas) const {
    return EtiquetasDe(DetalleDe(mundo, destino, todasLasEtiquetas), mundo, destino, todasLasEtiquetas);
}

std::vector<EtiquetaPlano> PlanoAcueducto::EtiquetasDe(const Detalle& d, const QTransform& mundo,
                                                       const QRectF& destino, bool todasLasEtiquetas) const {
    std::vector<EtiquetaPlano> puestas;
    if (!d.etiquetas || destino.isEmpty()) return puestas;
    const QFontMetricsF m(fuenteNegrita_), mNormal(fuente_);
    // Cells of a few labels each, never more than some thousands of them.
    const double celda = std::max(48.0, std::sqrt(destino.width() * destino.height() / 4096.0));
    Rejilla etiquetas(destino, celda), marcas(destino, celda), tubos(destino, celda);
    etiquetas.Agregar(CajaLeyenda(destino));
    etiquetas.Agregar(CajaEscala(EscalaDe(mundo, destino)));
    // A marker counts a few pixels wider: a label hard by another node's
    // marker would read as that node's.
    std::vector<QPointF> centros(d.nodos.size());
    for (size_t i = 0; i < d.nodos.size(); ++i) {
        const int k = d.nodos[i];
        const NodoPlano& x = datos_.nodos[size_t(k)];
        centros[i] = mundo.map(posiciones_[size_t(k)]);
        const double r = d.marcas || x.fijo || x.minimo || x.maximo ? RadioMarca(k) + 4.0 : 0.0;
        marcas.Agregar(QRectF(centros[i] - QPointF(r, r), centros[i] + QPointF(r, r)));
    }
    const QRectF visible = mundo.inverted().mapRect(destino);
    for (size_t t = 0; t < lineas_.size(); ++t)
        if (datos_.tramos[t].nodoI >= 0 && datos_.tramos[t].nodoJ >= 0 &&
            QRectF(lineas_[t].p1(), lineas_[t].p2()).normalized().adjusted(-1e-6, -1e-6, 1e-6, 1e-6).intersects(visible))
            tubos.Agregar(mundo.map(lineas_[t]));
    // The marked nodes choose first.
    std::vector<size_t> orden(d.nodos.size());
    std::iota(orden.begin(), orden.end(), size_t(0));
    std::stable_partition(orden.begin(), orden.end(), [&](size_t i) {
        const NodoPlano& x = datos_.nodos[size_t(d.nodos[i])];
        return x.minimo || x.maximo || x.fijo;
    });
    for (size_t i : orden) {
        const int k = d.nodos[i];
        const NodoPlano& x = datos_.nodos[size_t(k)];
        const QSizeF t(std::max(m.horizontalAdvance(x.nombre), mNormal.horizontalAdvance(x.textoPresion)) + 2.0,
                       m.height() + mNormal.height());
        const QPointF c = centros[i];
        const double g = RadioMarca(k) + 2.0, h = g * 0.7;
        // Right, upper right, lower right, left, upper left, lower left, above, below.
        const QPointF esquinas[] = {{c.x() + g, c.y() - t.height() / 2},
                                    {c.x() + h, c.y() - h - t.height()},
                                    {c.x() + h, c.y() + h},
                                    {c.x() - g - t.width(), c.y() - t.height() / 2},
                                    {c.x() - h - t.width(), c.y() - h - t.height()},
                                    {c.x() - h - t.width(), c.y() + h},
                                    {c.x() - t.width() / 2, c.y() - g - t.height()},
                                    {c.x() - t.width() / 2, c.y() + g}};
        // Free of labels, then covering the fewest markers, then the fewest pipes.
        QRectF libre, menosMala;
        int menosTapado = std::numeric_limits<int>::max();
        double menosArea = std::numeric_limits<double>::infinity();
        for (const QPointF& e : esquinas) {
            const QRectF caja = Dentro(QRectF(e, t), destino);
            double area = 0;
            if (etiquetas.Cruces(caja, &area) == 0) {
                const int tapado = 1000 * marcas.Cruces(caja, nullptr, int(i)) + tubos.Cruces(caja);
                if (tapado < menosTapado) {
                    menosTapado = tapado;
                    libre = caja;
                    if (tapado == 0) break;
                }
            } else if (area < menosArea) {
                menosArea = area;
                menosMala = caja;
            }
        }
        if (libre.isNull() && !todasLasEtiquetas) continue;
        const QRectF caja = libre.isNull() ? menosMala : libre;
        etiquetas.Agregar(caja);
        puestas.push_back({k, caja});
    }
    return puestas;
}

void PlanoAcueducto::Pintar(QPainter& p, const QTransform& mundo, const QRectF& destino, bool todasLasEtiquetas) const {
    p.save();
    p.setRenderHint(QPainter::Antialiasing);
    p.setRenderHint(QPainter::TextAntialiasing);
    p.setClipRect(destino);
    const QRectF visible = mundo.inverted().mapRect(destino);

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
        p.setPen(PlumaClase(int(c)));
        p.drawLines(porClase[c].data(), int(porClase[c].size()));
    }
    // Arrows where the section is long enough on the page, at its middle;
    // without colour a white edge parts them from the darkest lines.
    p.setPen(blancoNegro_ ? QPen(Qt::white, 1.0) : QPen(Qt::NoPen));
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
    const Detalle detalle = DetalleDe(mundo, destino, todasLasEtiquetas);
    for (int k : detalle.nodos) PintarMarcaNodo(p, k, mundo.map(posiciones_[size_t(k)]), detalle.marcas);
    if (detalle.etiquetas) {
        const QFontMetricsF m(fuenteNegrita_);
        for (const EtiquetaPlano& e : EtiquetasDe(detalle, mundo, destino, todasLasEtiquetas)) {
            const NodoPlano& x = datos_.nodos[size_t(e.nodo)];
            // A light ground keeps the label readable over the pipes.
            p.fillRect(e.caja, QColor(255, 255, 255, 190));
            const QPointF base(e.caja.left() + 1, e.caja.top() + m.ascent());
            p.setPen(Qt::black);
            p.setFont(fuenteNegrita_);
            p.drawText(base, x.nombre);
            p.setPen(QColor(60, 60, 60));
            p.setFont(fuente_);
            p.drawText(base + QPointF(0, m.height()), x.textoPresion);
        }
    }
    PintarEscala(p, EscalaDe(mundo, destino));
    PintarLeyenda(p, destino);
    p.restore();
}

PlanoAcueducto::Escala PlanoAcueducto::EscalaDe(const QTransform& mundo, const QRectF& destino) const {
    Escala e;
    e.origen = QPointF(destino.left() + 16, destino.bottom() - 18);
    const double escala = std::sqrt(std::abs(mundo.determinant()));  // pixels per metre
    if (escala <= 0) return e;
    // A round length near 120 pixels.
    const double objetivo = 120.0 / escala;
    const double potencia = std::pow(10.0, std::floor(std::log10(objetivo)));
    double largo = potencia;
    for (double f : {1.0, 2.0, 5.0, 10.0})
        if (f * potencia <= objetivo) largo = f * potencia;
    e.pixeles = largo * escala;
    e.texto = largo >= 1000 ? Numero(largo / 1000.0, "#,##0") + QStringLiteral(" km")
                            : Numero(largo, largo >= 1 ? "#,##0" : "0.00") + QStringLiteral(" m");
    return e;
}

QRectF PlanoAcueducto::CajaEscala(const Escala& e) const {
    if (e.pixeles <= 0) return QRectF();
    const QFontMetricsF m(fuente_);
    return QRectF(e.origen.x() - 2, e.origen.y() - std::max(6.0, m.ascent() - 4) - 1,
                  e.pixeles + 8 + m.horizontalAdvance(e.texto), std::max(6.0, m.ascent() - 4) + 7 + m.descent());
}

void PlanoAcueducto::PintarEscala(QPainter& p, const Escala& e) const {
    if (e.pixeles <= 0) return;
    const QPointF o = e.origen;
    p.setPen(QPen(Qt::black, 1.5));
    p.setBrush(Qt::NoBrush);
    p.drawLine(o, o + QPointF(e.pixeles, 0));
    p.drawLine(o + QPointF(0, -5), o + QPointF(0, 5));
    p.drawLine(o + QPointF(e.pixeles, -5), o + QPointF(e.pixeles, 5));
    p.setFont(fuente_);
    p.drawText(o + QPointF(e.pixeles + 6, 4), e.texto);
}

// The network's name in the legend: on two lines when one is too short,
// broken between words, the rest elided.
QStringList PlanoAcueducto::TituloLeyenda() const {
    const QFontMetricsF m(fuenteNegrita_);
    const double ancho = AnchoLeyenda - 30;
    const QString t = datos_.titulo.simplified();
    if (m.horizontalAdvance(t) <= ancho) return {t};
    const QStringList palabras = t.split(QLatin1Char(' '));
    QString primera;
    int k = 0;
    const auto con = [&](int i) { return primera.isEmpty() ? palabras[i] : primera + QLatin1Char(' ') + palabras[i]; };
    while (k < palabras.size() && m.horizontalAdvance(con(k)) <= ancho) primera = con(k++);
    if (primera.isEmpty()) return {m.elidedText(t, Qt::ElideRight, ancho)};
    return {primera, m.elidedText(palabras.mid(k).join(QLatin1Char(' ')), Qt::ElideRight, ancho)};
}

QRectF PlanoAcueducto::CajaLeyenda(const QRectF& destino) const {
    const double linea = QFontMetricsF(fuente_).height() + 3;
    const int filas = 2 + int(TituloLeyenda().size()) + int(clases_.colores.size()) + 1 + int(presiones_.colores.size()) +
                      4 + (dispuesto_ ? 2 : 0);
    const double ancho = AnchoLeyenda - 16;
    return QRectF(destino.right() - ancho - 8, destino.top() + 8, ancho, filas * linea + 10);
}

void PlanoAcueducto::PintarLeyenda(QPainter& p, const QRectF& destino) const {
    const QFontMetricsF m(fuente_);
    const double linea = m.height() + 3;
    auto rango = [&](const ClasesPlano& c, int i, const char* mascara) {
        if (i == 0) return QStringLiteral("menos de ") + Numero(c.limites[0], mascara);
        if (i == int(c.limites.size())) return Numero(c.limites.back(), mascara) + QStringLiteral(" o más");
        return Numero(c.limites[size_t(i) - 1], mascara) + QStringLiteral(" a ") + Numero(c.limites[size_t(i)], mascara);
    };
    const QRectF caja = CajaLeyenda(destino);
    const double ancho = caja.width();
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
    for (const QString& t : TituloLeyenda()) texto(t, true);
    texto(datos_.caso, false);
    texto(clases_.titulo, true);
    const char* mascara = modo_ == ColorPlano::Velocidad ? "0.0" : "0";
    for (int i = 0; i < int(clases_.colores.size()); ++i) {
        p.setPen(blancoNegro_ ? PlumaClase(i) : QPen(clases_.colores[size_t(i)], 4));
        p.drawLine(QPointF(x, y - m.ascent() / 2), QPointF(x + 22, y - m.ascent() / 2));
        p.setPen(Qt::black);
        p.setFont(fuente_);
        p.drawText(QPointF(x + 30, y), rango(clases_, i, mascara));
        y += linea;
    }
    texto(presiones_.titulo, true);
    for (int i = 0; i < int(presiones_.colores.size()); ++i) {
        MarcaNodo(p, QPointF(x + 11, y - m.ascent() / 2), RadioNodo, RellenoPresion(i), false);
        p.setPen(Qt::black);
        p.setFont(fuente_);
        p.drawText(QPointF(x + 30, y), rango(presiones_, i, "0"));
        y += linea;
    }
    for (const bool minimo : {true, false}) {
        const QPointF c(x + 11, y - m.ascent() / 2);
        if (blancoNegro_) {
            p.setPen(QPen(Qt::black, 1.2));
            p.setBrush(Qt::white);
            if (minimo) DibujarForma(p, c, RadioNodo + 3, FormaMarca::DobleAnillo);
            else DibujarForma(p, c, RadioNodo + 4, FormaMarca::Rombo);
        } else {
            p.setPen(QPen(QColor(80, 80, 80), 1.0));
            p.setBrush(ColorNivo(minimo ? ColorPresionMinima : ColorPresionMaxima));
            p.drawEllipse(c, RadioNodo + 4, RadioNodo + 4);
        }
        p.setPen(Qt::black);
        p.drawText(QPointF(x + 30, y), minimo ? QStringLiteral("Presión mínima del caso")
                                              : QStringLiteral("Presión máxima del caso"));
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
