#include "pictures/EsquemaEdificio.h"

#include "analysis/AnalisisRed.h"
#include "pictures/Trazo.h"
#include "widgets/Colores.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>
#include <map>

namespace {

// Sizes of the layout, world units (pixels at 100 %).
constexpr double AltoPista = 64.0;        // between tracks of a floor
constexpr double EspacioEtiqueta = 46.0;  // below a floor's last track, for its labels
constexpr double Hueco = 60.0;            // between floors: risers' labels and jogs
constexpr double AltoTitulo = 84.0;
constexpr double MargenIzquierdo = 130.0; // the floor levels
constexpr double Margen = 24.0;

const QColor ColorTubo(29, 79, 145);
const QColor ColorPiso(170, 170, 170);

struct CeldaEsquema {
    int col = 0, banda = 0, pista = 0;
};

// Columns taken, per floor and track: the rightmost column used, -1 none.
class Ocupacion {
public:
    explicit Ocupacion(int bandas) : fin_(size_t(bandas)), barrera_(size_t(bandas), -1), bajadas_(size_t(bandas)) {}
    int Pistas(int b) const { return int(fin_[size_t(b)].size()); }
    // A riser leaving track t downward crosses every track under it, those
    // made later too.
    int Fin(int b, int t) const {
        int f = t < Pistas(b) ? fin_[size_t(b)][size_t(t)] : -1;
        for (const auto& [pista, col] : bajadas_[size_t(b)])
            if (pista < t) f = std::max(f, col);
        return f;
    }
    void Bajar(int b, int t, int col) { bajadas_[size_t(b)].push_back({t, col}); }
    void Tomar(int b, int t, int col) {
        auto& f = fin_[size_t(b)];
        if (t >= int(f.size())) f.resize(size_t(t) + 1, -1);
        f[size_t(t)] = std::max(f[size_t(t)], col);
    }
    // A riser passing through the whole floor at `col`.
    void Cruzar(int b, int col) { barrera_[size_t(b)] = std::max(barrera_[size_t(b)], col); }
    int Barrera(int b) const { return barrera_[size_t(b)]; }
    int FinTotal(int b) const {
        int m = barrera_[size_t(b)];
        for (int f : fin_[size_t(b)]) m = std::max(m, f);
        for (const auto& bajada : bajadas_[size_t(b)]) m = std::max(m, bajada.second);
        return m;
    }

private:
    std::vector<std::vector<int>> fin_;
    std::vector<int> barrera_;
    std::vector<std::vector<std::pair<int, int>>> bajadas_;
};

}  // namespace

EsquemaEdificio::EsquemaEdificio(DatosEsquema datos) : datos_(std::move(datos)) {
    fuenteNombre_ = QFont(QStringLiteral("DejaVu Sans"));
    fuenteNombre_.setPixelSize(11);
    fuenteNombre_.setBold(true);
    fuentePresion_ = QFont(QStringLiteral("DejaVu Sans"));
    fuentePresion_.setPixelSize(10);
    fuenteRamal_ = fuentePresion_;
    fuenteTitulo_ = QFont(QStringLiteral("DejaVu Sans"));
    fuenteTitulo_.setPixelSize(13);
    fuenteTitulo_.setBold(true);
    Disponer();
}

QSizeF EsquemaEdificio::TamanoNatural() const {
    // A file of a large project stays within what viewers open.
    const double escala = std::min(1.0, 12000.0 / std::max(limites_.width(), limites_.height()));
    return limites_.size() * escala;
}

void EsquemaEdificio::Disponer() {
    const int n = int(datos_.nodos.size());
    nodos_.assign(size_t(n), Nodo());
    ramales_.clear();
    pisos_.clear();
    const QFontMetricsF mNombre(fuenteNombre_), mPresion(fuentePresion_), mRamal(fuenteRamal_);

    // Floors: one band per level (to the centimetre), highest first.
    std::map<long long, int, std::greater<long long>> niveles;
    for (const NodoEsquema& x : datos_.nodos) niveles.emplace(std::llround(x.cota * 100.0), 0);
    int b = 0;
    for (auto& [nivel, banda] : niveles) banda = b++;
    const int bandas = std::max(b, 1);
    std::vector<CeldaEsquema> celda(static_cast<size_t>(n));
    std::vector<bool> puesto(static_cast<size_t>(n), false);
    for (int k = 0; k < n; ++k) celda[size_t(k)].banda = niveles[std::llround(datos_.nodos[size_t(k)].cota * 100.0)];

    std::vector<std::vector<int>> hijos(static_cast<size_t>(n));
    std::vector<int> raices;
    if (n > 0) raices.push_back(0);
    for (int r = 0; r < int(datos_.ramales.size()); ++r) {
        const RamalEsquema& x = datos_.ramales[size_t(r)];
        if (x.nodoI >= 0) hijos[size_t(x.nodoI)].push_back(r);
        else raices.push_back(x.nodoJ);
    }

    Ocupacion ocupa(bandas);
    // The track of a node on the floor of its parent, one column to its right.
    auto pistaLibre = [&](int banda, int desde, int col) {
        int t = desde;
        for (int p = ocupa.Pistas(banda) - 1; p >= 0; --p)
            if (ocupa.Fin(banda, p) >= col) {
                t = std::max(t, p + 1);
                break;
            }
        return t;
    };
    enum Forma { Recto, Bajada, Vertical, Quiebre };
    std::vector<Forma> forma(datos_.ramales.size(), Recto);
    int colMaxima = 0;

    auto colocar = [&](int k, CeldaEsquema c) {
        celda[size_t(k)] = c;
        puesto[size_t(k)] = true;
        ocupa.Tomar(c.banda, c.pista, c.col);
        colMaxima = std::max(colMaxima, c.col);
    };
    auto colocarHijo = [&](int r) {
        const RamalEsquema& x = datos_.ramales[size_t(r)];
        const CeldaEsquema p = celda[size_t(x.nodoI)];
        CeldaEsquema c;
        c.banda = celda[size_t(x.nodoJ)].banda;
        if (c.banda == p.banda) {
            c.col = p.col + 1;
            c.pista = pistaLibre(c.banda, p.pista, c.col);
            for (int t = p.pista + 1; t < c.pista; ++t) ocupa.Tomar(c.banda, t, p.col);
            forma[size_t(r)] = c.pista == p.pista ? Recto : Bajada;
            colocar(x.nodoJ, c);
            return;
        }
        const bool sube = c.banda < p.banda;
        int base = p.col;
        for (int m = std::min(c.banda, p.banda) + 1; m < std::max(c.banda, p.banda); ++m)
            base = std::max(base, ocupa.FinTotal(m) + 1);
        base = std::max(base, ocupa.Barrera(c.banda) + 1);
        // The track of the far floor that the riser reaches at the smallest
        // column: from below it crosses the tracks under it, from above those over it.
        const int pistas = ocupa.Pistas(c.banda);
        int mejorCol = -1, mejorPista = 0;
        for (int t = 0; t <= pistas; ++t) {
            int col = base;
            const int desde = sube ? t : 0, hasta = sube ? std::max(t, pistas - 1) : t;
            for (int q = desde; q <= hasta; ++q) col = std::max(col, ocupa.Fin(c.banda, q) + 1);
            if (mejorCol < 0 || col < mejorCol) {
                mejorCol = col;
                mejorPista = t;
            }
        }
        c.col = mejorCol;
        c.pista = mejorPista;
        const int desde = sube ? c.pista : 0, hasta = sube ? pistas - 1 : c.pista - 1;
        for (int q = desde; q <= hasta; ++q) ocupa.Tomar(c.banda, q, c.col);
        for (int m = std::min(c.banda, p.banda) + 1; m < std::max(c.banda, p.banda); ++m) ocupa.Cruzar(m, c.col);
        // Leaving its own floor the riser crosses the tracks beyond the node.
        if (sube)
            for (int q = 0; q < p.pista; ++q) ocupa.Tomar(p.banda, q, p.col);
        else
            ocupa.Bajar(p.banda, p.pista, p.col);
        forma[size_t(r)] = c.col == p.col ? Vertical : Quiebre;
        colocar(x.nodoJ, c);
    };

    // Depth first in the order of the list, without recursion (a riser of
    // thousands of branches is a chain that deep).
    for (size_t ri = 0; ri < raices.size(); ++ri) {
        const int raiz = raices[ri];
        if (puesto[size_t(raiz)]) continue;
        CeldaEsquema c;
        c.banda = celda[size_t(raiz)].banda;
        c.col = ri == 0 ? 0 : colMaxima + 2;
        c.pista = pistaLibre(c.banda, 0, c.col);
        colocar(raiz, c);
        std::vector<std::pair<int, size_t>> pila{{raiz, 0}};
        while (!pila.empty()) {
            auto& [k, siguiente] = pila.back();
            if (siguiente >= hijos[size_t(k)].size()) {
                pila.pop_back();
                continue;
            }
            const int r = hijos[size_t(k)][siguiente++];
            colocarHijo(r);
            pila.push_back({datos_.ramales[size_t(r)].nodoJ, 0});
        }
    }

    // Column width: the widest node label or branch label fits in it.
    const double desplazaOrigen = datos_.origen == OrigenEsquema::Tanque ? 28.0 : 18.0;
    double ancho = 150.0;
    for (int k = 0; k < n; ++k) {
        const NodoEsquema& x = datos_.nodos[size_t(k)];
        const double w = std::max(mNombre.horizontalAdvance(x.nombre), mPresion.horizontalAdvance(x.textoPresion));
        ancho = std::max(ancho, w + (k == 0 ? desplazaOrigen : 9.0) + 22.0);
    }
    std::vector<QString> textos(datos_.ramales.size());
    for (size_t r = 0; r < datos_.ramales.size(); ++r) {
        const RamalEsquema& x = datos_.ramales[r];
        QStringList partes{QString::number(x.numero)};
        if (!x.diametro.isEmpty()) partes << x.diametro;
        if (!x.gasto.isEmpty()) partes << x.gasto;
        textos[r] = partes.join(QStringLiteral(" · "));
        ancho = std::max(ancho, mRamal.horizontalAdvance(textos[r]) + 20.0);
    }
    anchoColumna_ = std::ceil(ancho);

    // Floors from the top: each as tall as its tracks and their labels.
    std::vector<int> pistas(static_cast<size_t>(bandas), 1);
    for (const CeldaEsquema& c : celda) pistas[size_t(c.banda)] = std::max(pistas[size_t(c.banda)], c.pista + 1);
    std::vector<double> arriba(static_cast<size_t>(bandas) + 1);
    arriba[0] = AltoTitulo + (datos_.origen == OrigenEsquema::Tanque ? 30.0 : 0.0);
    for (int m = 0; m < bandas; ++m)
        arriba[size_t(m) + 1] = arriba[size_t(m)] + (pistas[size_t(m)] - 1) * AltoPista + EspacioEtiqueta + Hueco;
    for (auto& [nivel, banda] : niveles) {
        Piso piso;
        piso.y = arriba[size_t(banda)];
        for (int k = 0; k < n; ++k)
            if (celda[size_t(k)].banda == banda) {
                piso.texto = datos_.nodos[size_t(k)].textoCota;
                break;
            }
        pisos_.push_back(piso);
    }

    const double altoLineas = mNombre.height() + mPresion.height();
    for (int k = 0; k < n; ++k) {
        const CeldaEsquema& c = celda[size_t(k)];
        Nodo& x = nodos_[size_t(k)];
        x.posicion = QPointF(c.col * anchoColumna_, arriba[size_t(c.banda)] + c.pista * AltoPista);
        const NodoEsquema& d = datos_.nodos[size_t(k)];
        const double w = std::max(mNombre.horizontalAdvance(d.nombre), mPresion.horizontalAdvance(d.textoPresion));
        x.etiqueta = QRectF(x.posicion.x() + (k == 0 ? desplazaOrigen : 9.0), x.posicion.y() + 5.0, w + 4.0, altoLineas);
    }

    for (size_t r = 0; r < datos_.ramales.size(); ++r) {
        const RamalEsquema& d = datos_.ramales[r];
        if (d.nodoI < 0) continue;
        const QPointF a = nodos_[size_t(d.nodoI)].posicion, z = nodos_[size_t(d.nodoJ)].posicion;
        const CeldaEsquema ca = celda[size_t(d.nodoI)], cz = celda[size_t(d.nodoJ)];
        Ramal x;
        x.texto = textos[r];
        const double w = mRamal.horizontalAdvance(x.texto);
        switch (forma[r]) {
        case Recto:
        case Bajada:
            x.trazo = forma[r] == Recto ? QPolygonF{a, z} : QPolygonF{a, QPointF(a.x(), z.y()), z};
            x.textoEn = QPointF((a.x() + z.x() - w) / 2.0, z.y() - 5.0);
            break;
        case Vertical:
        case Quiebre: {
            // The gap above the lower of the two floors holds the label and the jog.
            const int inferior = std::max(ca.banda, cz.banda);
            const double yHueco = arriba[size_t(inferior)] - Hueco / 2.0;
            x.trazo = forma[r] == Vertical ? QPolygonF{a, z}
                                           : QPolygonF{a, QPointF(a.x(), yHueco), QPointF(z.x(), yHueco), z};
            x.textoEn = QPointF(z.x() - 6.0 - w, yHueco - 6.0);
            break;
        }
        }
        x.caja = x.trazo.boundingRect().adjusted(-2, -2, 2, 2);
        ramales_.push_back(x);
    }

    QRectF l(-MargenIzquierdo, 0.0, MargenIzquierdo + anchoColumna_, AltoTitulo);
    for (const Nodo& x : nodos_) l |= x.etiqueta | QRectF(x.posicion - QPointF(24, 32), QSizeF(48, 40));
    for (const Ramal& x : ramales_) l |= x.caja | QRectF(x.textoEn - QPointF(0, 12), QSizeF(mRamal.horizontalAdvance(x.texto), 14));
    const QFontMetricsF mTitulo(fuenteTitulo_);
    l |= QRectF(-MargenIzquierdo, 0, mTitulo.horizontalAdvance(datos_.titulo) + 260, AltoTitulo);
    limites_ = l.adjusted(-Margen, -Margen, Margen, Margen);
}

void EsquemaEdificio::PintarMarca(QPainter& p, const QPointF& c, int color) const {
    if (!blancoNegro_ || color < 0) {
        MarcaNodo(p, c, RadioNodo, color >= 0 ? ColorNivo(color) : QColor(Qt::white), color >= 0);
        return;
    }
    // Without colour the unfavourable node is a target and a node above the
    // maximum pressure a grey square.
    p.setPen(QPen(Qt::black, 1.6));
    if (color == ColoresAnalisis::NodoDesfavorable) {
        p.setBrush(Qt::white);
        DibujarForma(p, c, RadioNodo + 3, FormaMarca::DobleAnillo);
        p.setBrush(Qt::black);
        p.drawEllipse(c, 2.5, 2.5);
    } else {
        p.setBrush(QColor(150, 150, 150));
        DibujarForma(p, c, RadioNodo, FormaMarca::Cuadrado);
    }
}

void EsquemaEdificio::PintarOrigen(QPainter& p) const {
    if (nodos_.empty()) return;
    const QPointF c = nodos_[0].posicion;
    const QColor tubo = Tono(ColorTubo, blancoNegro_);
    p.setPen(QPen(tubo, 1.5));
    switch (datos_.origen) {
    case OrigenEsquema::Tanque: {
        const QRectF tanque(c.x() - 20, c.y() - 30, 40, 30);
        p.setBrush(Qt::white);
        p.drawRect(tanque);
        p.setBrush(Tono(QColor(160, 200, 240), blancoNegro_));
        p.drawRect(QRectF(tanque.left(), tanque.top() + 9, tanque.width(), tanque.height() - 9));
        break;
    }
    case OrigenEsquema::Bomba: {
        p.setBrush(Qt::white);
        p.drawEllipse(c, 12, 12);
        p.setBrush(tubo);
        p.drawPolygon(QPolygonF{c + QPointF(-5, -7), c + QPointF(8, 0), c + QPointF(-5, 7)});
        break;
    }
    case OrigenEsquema::Suministro: {
        p.setBrush(tubo);
        p.drawPolygon(QPolygonF{c + QPointF(-11, -7), c + QPointF(0, 0), c + QPointF(-11, 7)});
        p.drawPolygon(QPolygonF{c + QPointF(11, -7), c + QPointF(0, 0), c + QPointF(11, 7)});
        break;
    }
    }
}

void EsquemaEdificio::Pintar(QPainter& p, const QTransform& mundo, const QRectF& destino,
                             bool todasLasEtiquetas) const {
    p.save();
    p.setRenderHint(QPainter::Antialiasing);
    p.setRenderHint(QPainter::TextAntialiasing);
    p.setTransform(mundo, true);
    const QRectF visible = mundo.inverted().mapRect(destino);
    const double escala = std::sqrt(std::abs(mundo.determinant()));
    const bool etiquetas = todasLasEtiquetas || escala >= 0.45;

    // Title and legend.
    p.setPen(Qt::black);
    p.setFont(fuenteTitulo_);
    p.drawText(QPointF(-MargenIzquierdo, 28), QStringLiteral("Esquema de la red: ") + datos_.titulo);
    p.setFont(fuentePresion_);
    double x = -MargenIzquierdo;
    auto muestra = [&](int color, const QString& texto) {
        // Without colour the target is wider than a marker: the text keeps clear of it.
        const double r = blancoNegro_ ? RadioNodo + 3 : RadioNodo;
        PintarMarca(p, QPointF(x + r, 52), color);
        p.setPen(Qt::black);
        p.drawText(QPointF(x + 2 * r + 4, 56), texto);
        x += 30 + 2 * (r - RadioNodo) + QFontMetricsF(fuentePresion_).horizontalAdvance(texto);
    };
    muestra(ColoresAnalisis::NodoDesfavorable, QStringLiteral("Nodo desfavorable"));
    if (!datos_.textoMaxima.isEmpty())
        muestra(ColoresAnalisis::PresionMaxima, QStringLiteral("Presión mayor que ") + datos_.textoMaxima);

    // Floors.
    QPen piso(ColorPiso, 0, Qt::DashLine);
    piso.setCosmetic(true);
    for (const Piso& f : pisos_) {
        if (f.y < visible.top() - 20 || f.y > visible.bottom() + 20) continue;
        p.setPen(piso);
        p.drawLine(QPointF(limites_.left() + 10, f.y), QPointF(limites_.right() - 10, f.y));
        if (etiquetas) {
            p.setPen(Qt::darkGray);
            p.drawText(QPointF(-MargenIzquierdo, f.y - 4), f.texto);
        }
    }

    QPen tubo(Tono(ColorTubo, blancoNegro_), 2.0);
    tubo.setCosmetic(true);
    p.setPen(tubo);
    p.setBrush(Qt::NoBrush);
    for (const Ramal& r : ramales_)
        if (r.caja.intersects(visible)) p.drawPolyline(r.trazo);
    PintarOrigen(p);
    if (etiquetas) {
        p.setFont(fuenteRamal_);
        p.setPen(QColor(60, 60, 60));
        for (const Ramal& r : ramales_)
            if (r.caja.intersects(visible) || visible.contains(r.textoEn)) p.drawText(r.textoEn, r.texto);
    }

    const QFontMetricsF mNombre(fuenteNombre_);
    for (size_t k = 0; k < nodos_.size(); ++k) {
        const Nodo& nodo = nodos_[k];
        if (!visible.intersects(nodo.etiqueta | QRectF(nodo.posicion - QPointF(8, 8), QSizeF(16, 16)))) continue;
        const NodoEsquema& d = datos_.nodos[k];
        const int color = d.desfavorable ? ColoresAnalisis::NodoDesfavorable
                          : d.sobreMaxima ? ColoresAnalisis::PresionMaxima
                                          : -1;
        if (k > 0 || datos_.origen == OrigenEsquema::Tanque)
            PintarMarca(p, nodo.posicion, color);
        if (!etiquetas) continue;
        if (color >= 0) p.fillRect(nodo.etiqueta, Tono(ColorNivo(color), blancoNegro_));
        p.setPen(Qt::black);
        p.setFont(fuenteNombre_);
        p.drawText(QPointF(nodo.etiqueta.left() + 2, nodo.etiqueta.top() + mNombre.ascent()), d.nombre);
        if (!d.textoPresion.isEmpty()) {
            p.setFont(fuentePresion_);
            p.drawText(QPointF(nodo.etiqueta.left() + 2, nodo.etiqueta.top() + mNombre.height() +
                                                             QFontMetricsF(fuentePresion_).ascent()),
                       d.textoPresion);
        }
    }
    p.restore();
}

ElementoDibujo EsquemaEdificio::ElementoEn(const QPointF& punto, double radio) const {
    ElementoDibujo e;
    double mejor = radio;
    for (size_t k = 0; k < nodos_.size(); ++k) {
        const double d = std::hypot(nodos_[k].posicion.x() - punto.x(), nodos_[k].posicion.y() - punto.y());
        if (d <= mejor || nodos_[k].etiqueta.contains(punto)) {
            mejor = std::min(d, mejor);
            e = {ElementoDibujo::Nodo, int(k)};
        }
    }
    if (e.tipo != ElementoDibujo::Ninguno) return e;
    mejor = radio;
    for (size_t r = 0, i = 0; r < datos_.ramales.size(); ++r) {
        if (datos_.ramales[r].nodoI < 0) continue;
        const double d = DistanciaTrazo(ramales_[i++].trazo, punto);
        if (d <= mejor) {
            mejor = d;
            e = {ElementoDibujo::Tubo, int(r)};
        }
    }
    return e;
}
