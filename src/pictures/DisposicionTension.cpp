#include "pictures/DisposicionTension.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>
#include <queue>
#include <random>

namespace {

constexpr int LimitePares = 1000;
constexpr int Pivotes = 40;
constexpr double PesoTubo = 7.0;  // added to a pipe's own term
constexpr double Infinito = std::numeric_limits<double>::infinity();

struct Vecino {
    int nodo;
    double largo;
};
using Vecinos = std::vector<std::vector<Vecino>>;

struct Termino {
    int i, j;
    double d, w;
};

// Distances from `origen` along the network and the node each is reached from.
std::vector<double> Dijkstra(const Vecinos& g, int origen, std::vector<int>& previo) {
    std::vector<double> d(g.size(), Infinito);
    previo.assign(g.size(), -1);
    using Par = std::pair<double, int>;
    std::priority_queue<Par, std::vector<Par>, std::greater<Par>> cola;
    d[size_t(origen)] = 0;
    cola.push({0.0, origen});
    while (!cola.empty()) {
        const auto [dist, u] = cola.top();
        cola.pop();
        if (dist > d[size_t(u)]) continue;
        for (const Vecino& v : g[size_t(u)])
            if (dist + v.largo < d[size_t(v.nodo)]) {
                d[size_t(v.nodo)] = dist + v.largo;
                previo[size_t(v.nodo)] = u;
                cola.push({d[size_t(v.nodo)], v.nodo});
            }
    }
    return d;
}

std::vector<double> Dijkstra(const Vecinos& g, int origen) {
    std::vector<int> previo;
    return Dijkstra(g, origen, previo);
}

// A branched network laid out as a tree from its centre: each node at its
// distance along the network from the centre, each branch in a wedge as
// wide as its share of the dead ends, so that the branches keep apart.
std::vector<QPointF> Radial(const Vecinos& g) {
    const int m = int(g.size());
    auto masLejano = [](const std::vector<double>& d) { return int(std::max_element(d.begin(), d.end()) - d.begin()); };
    // The centre: the node midway along the longest path (two sweeps).
    const int a = masLejano(Dijkstra(g, 0));
    const std::vector<double> da = Dijkstra(g, a);
    const std::vector<double> db = Dijkstra(g, masLejano(da));
    int centro = 0;
    for (int i = 1; i < m; ++i)
        if (std::max(da[size_t(i)], db[size_t(i)]) < std::max(da[size_t(centro)], db[size_t(centro)])) centro = i;
    std::vector<int> previo;
    const std::vector<double> d = Dijkstra(g, centro, previo);
    std::vector<int> orden(static_cast<size_t>(m));
    std::iota(orden.begin(), orden.end(), 0);
    std::stable_sort(orden.begin(), orden.end(), [&](int i, int j) { return d[size_t(i)] < d[size_t(j)]; });
    std::vector<std::vector<int>> hijos(static_cast<size_t>(m));
    for (int i : orden)
        if (previo[size_t(i)] >= 0) hijos[size_t(previo[size_t(i)])].push_back(i);
    std::vector<double> hojas(static_cast<size_t>(m), 0.0);
    for (auto it = orden.rbegin(); it != orden.rend(); ++it) {
        const size_t i = size_t(*it);
        hojas[i] = std::max(hojas[i], 1.0);
        if (previo[i] >= 0) hojas[size_t(previo[i])] += hojas[i];
    }
    std::vector<double> desde(static_cast<size_t>(m), 0.0), ancho(static_cast<size_t>(m), 2 * M_PI);
    std::vector<QPointF> x(static_cast<size_t>(m));
    for (int i : orden) {
        const double angulo = desde[size_t(i)] + ancho[size_t(i)] / 2;
        x[size_t(i)] = QPointF(d[size_t(i)] * std::cos(angulo), d[size_t(i)] * std::sin(angulo));
        double inicio = desde[size_t(i)];
        for (int h : hijos[size_t(i)]) {
            desde[size_t(h)] = inicio;
            ancho[size_t(h)] = ancho[size_t(i)] * hojas[size_t(h)] / hojas[size_t(i)];
            inicio += ancho[size_t(h)];
        }
    }
    return x;
}

// Pivot MDS: the two leading directions of the double-centred squared
// distances to the pivots.
std::vector<QPointF> PivotMDS(const std::vector<std::vector<double>>& dp, int m) {
    const int k = int(dp.size());
    std::vector<double> c(static_cast<size_t>(m) * size_t(k));
    std::vector<double> mediaCol(static_cast<size_t>(k), 0.0), mediaFila(size_t(m), 0.0);
    double total = 0;
    for (int j = 0; j < k; ++j)
        for (int i = 0; i < m; ++i) {
            const double v = dp[size_t(j)][size_t(i)] * dp[size_t(j)][size_t(i)];
            c[size_t(i) * size_t(k) + size_t(j)] = v;
            mediaCol[size_t(j)] += v / m;
            mediaFila[size_t(i)] += v / k;
            total += v;
        }
    total /= double(m) * k;
    for (int i = 0; i < m; ++i)
        for (int j = 0; j < k; ++j) {
            double& v = c[size_t(i) * size_t(k) + size_t(j)];
            v = -0.5 * (v - mediaCol[size_t(j)] - mediaFila[size_t(i)] + total);
        }
    // C^T C, k by k, and its two leading eigenvectors by power iteration.
    std::vector<double> b(static_cast<size_t>(k) * size_t(k), 0.0);
    for (int i = 0; i < m; ++i)
        for (int p = 0; p < k; ++p)
            for (int q = 0; q < k; ++q) b[size_t(p) * k + q] += c[size_t(i) * k + p] * c[size_t(i) * k + q];
    std::vector<std::vector<double>> v(2, std::vector<double>(size_t(k)));
    std::mt19937 azar(7);
    std::uniform_real_distribution<double> u(-1, 1);
    for (int e = 0; e < 2; ++e) {
        for (double& x : v[size_t(e)]) x = u(azar);
        for (int it = 0; it < 100; ++it) {
            std::vector<double> w(static_cast<size_t>(k), 0.0);
            for (int p = 0; p < k; ++p)
                for (int q = 0; q < k; ++q) w[size_t(p)] += b[size_t(p) * k + q] * v[size_t(e)][size_t(q)];
            if (e == 1) {
                const double pr = std::inner_product(w.begin(), w.end(), v[0].begin(), 0.0);
                for (int p = 0; p < k; ++p) w[size_t(p)] -= pr * v[0][size_t(p)];
            }
            const double norma = std::sqrt(std::inner_product(w.begin(), w.end(), w.begin(), 0.0));
            if (norma <= 0) break;
            for (int p = 0; p < k; ++p) v[size_t(e)][size_t(p)] = w[size_t(p)] / norma;
        }
    }
    std::vector<QPointF> x(static_cast<size_t>(m));
    for (int i = 0; i < m; ++i) {
        double a = 0, bb = 0;
        for (int p = 0; p < k; ++p) {
            a += c[size_t(i) * k + p] * v[0][size_t(p)];
            bb += c[size_t(i) * k + p] * v[1][size_t(p)];
        }
        // A small jitter parts nodes the projection puts on one point.
        x[size_t(i)] = QPointF(a + 1e-3 * u(azar), bb + 1e-3 * u(azar));
    }
    return x;
}

// The similarity (with reflection when it fits better) that takes the
// computed positions of the fixed nodes closest to their given ones.
void AjustarAFijos(std::vector<QPointF>& x, const std::vector<int>& fijos, const std::vector<QPointF>& destino) {
    const size_t n = fijos.size();
    if (n == 0) return;
    QPointF mx(0, 0), my(0, 0);
    for (size_t f = 0; f < n; ++f) {
        mx += x[size_t(fijos[f])] / double(n);
        my += destino[f] / double(n);
    }
    auto probar = [&](bool espejo, double& ar, double& ai, double& residuo) {
        double sr = 0, si = 0, ss = 0;
        for (size_t f = 0; f < n; ++f) {
            QPointF p = x[size_t(fijos[f])] - mx;
            if (espejo) p.setY(-p.y());
            const QPointF q = destino[f] - my;
            sr += p.x() * q.x() + p.y() * q.y();
            si += p.x() * q.y() - p.y() * q.x();
            ss += p.x() * p.x() + p.y() * p.y();
        }
        ar = ss > 0 ? sr / ss : 1.0;
        ai = ss > 0 ? si / ss : 0.0;
        residuo = 0;
        for (size_t f = 0; f < n; ++f) {
            QPointF p = x[size_t(fijos[f])] - mx;
            if (espejo) p.setY(-p.y());
            const QPointF r(ar * p.x() - ai * p.y(), ar * p.y() + ai * p.x());
            const QPointF e = r - (destino[f] - my);
            residuo += e.x() * e.x() + e.y() * e.y();
        }
    };
    double ar, ai, res, br, bi, resEspejo;
    probar(false, ar, ai, res);
    probar(true, br, bi, resEspejo);
    const bool espejo = n >= 2 && resEspejo < res;
    if (espejo) {
        ar = br;
        ai = bi;
    }
    if (n == 1) {
        ar = 1;
        ai = 0;
    }
    for (QPointF& p : x) {
        QPointF q = p - mx;
        if (espejo) q.setY(-q.y());
        p = QPointF(ar * q.x() - ai * q.y(), ar * q.y() + ai * q.x()) + my;
    }
}

// One connected component, in its own numbering.
std::vector<QPointF> DisponerComponente(const Vecinos& g, const std::vector<std::optional<QPointF>>& fijos) {
    const int m = int(g.size());
    if (m == 1) return {fijos[0].value_or(QPointF(0, 0))};
    std::vector<Termino> terminos;
    std::vector<std::vector<double>> dp;
    // Pivots: each the farthest from those chosen before.
    std::vector<double> minimo(static_cast<size_t>(m), Infinito);
    int pivote = 0;
    for (int p = 0; p < std::min(Pivotes, m); ++p) {
        dp.push_back(Dijkstra(g, pivote));
        for (int i = 0; i < m; ++i) minimo[size_t(i)] = std::min(minimo[size_t(i)], dp.back()[size_t(i)]);
        pivote = int(std::max_element(minimo.begin(), minimo.end()) - minimo.begin());
    }
    auto agregar = [&](int i, int j, double d) {
        if (i != j && d > 0 && d < Infinito) terminos.push_back({i, j, d, 1.0 / (d * d)});
    };
    if (m <= LimitePares) {
        for (int i = 0; i < m; ++i) {
            const std::vector<double> d = Dijkstra(g, i);
            for (int j = i + 1; j < m; ++j) agregar(i, j, d[size_t(j)]);
        }
    } else {
        std::vector<int> pivotes;
        for (const auto& d : dp) pivotes.push_back(int(std::find(d.begin(), d.end(), 0.0) - d.begin()));
        // A pivot stands for the nodes nearest to it: its terms weigh as
        // many (the sparse stress model), so that parts far apart along the
        // network keep apart on the page too.
        std::vector<double> region(dp.size(), 0.0);
        for (int i = 0; i < m; ++i) {
            size_t mejor = 0;
            for (size_t p = 1; p < dp.size(); ++p)
                if (dp[p][size_t(i)] < dp[mejor][size_t(i)]) mejor = p;
            region[mejor] += 1.0;
        }
        for (int i = 0; i < m; ++i) {
            for (const Vecino& v : g[size_t(i)]) {
                if (v.nodo > i) agregar(i, v.nodo, v.largo);
                for (const Vecino& w : g[size_t(v.nodo)])
                    if (w.nodo > i) agregar(i, w.nodo, v.largo + w.largo);
            }
            for (size_t p = 0; p < dp.size(); ++p) {
                const double d = dp[p][size_t(i)];
                if (i != pivotes[p] && d > 0 && d < Infinito) terminos.push_back({i, pivotes[p], d, region[p] / (d * d)});
            }
        }
    }
    // The pipes themselves weigh more than the other pairs, so that a
    // section is drawn near its length even where the network's paths are
    // longer than the straight line (a street grid).
    for (int i = 0; i < m; ++i)
        for (const Vecino& v : g[size_t(i)])
            if (v.nodo > i) terminos.push_back({i, v.nodo, v.largo, PesoTubo / (v.largo * v.largo)});
    // A large branched network (a loop or none per five hundred nodes)
    // starts as a tree from its centre: a projection folds its long chains
    // onto each other, and so does a descent that sees few of its pairs.
    size_t tubos = 0;
    for (const auto& v : g) tubos += v.size();
    const bool ramificada = m > LimitePares && tubos / 2 + 1 <= size_t(m) + size_t(m) / 500;
    std::vector<QPointF> x = ramificada ? Radial(g) : PivotMDS(dp, m);
    // The scale that fits the distances best, before the descent.
    double num = 0, den = 0;
    for (const Termino& t : terminos) {
        const QPointF e = x[size_t(t.i)] - x[size_t(t.j)];
        const double l = std::hypot(e.x(), e.y());
        num += t.w * t.d * l;
        den += t.w * l * l;
    }
    if (den > 0)
        for (QPointF& p : x) p *= num / den;
    std::vector<int> indicesFijos;
    std::vector<QPointF> posicionesFijas;
    for (int i = 0; i < m; ++i)
        if (fijos[size_t(i)]) {
            indicesFijos.push_back(i);
            posicionesFijas.push_back(*fijos[size_t(i)]);
        }
    AjustarAFijos(x, indicesFijos, posicionesFijas);
    for (size_t f = 0; f < indicesFijos.size(); ++f) x[size_t(indicesFijos[f])] = posicionesFijas[f];
    if (terminos.empty()) return x;

    double wMin = Infinito, wMax = 0;
    for (const Termino& t : terminos) {
        wMin = std::min(wMin, t.w);
        wMax = std::max(wMax, t.w);
    }
    const int iteraciones = m <= LimitePares ? 30 : 20;
    const double etaMin = 0.1 / wMax;
    // From the tree the descent starts halfway down its steps, so that it
    // straightens the sections and keeps the branches where the tree put them.
    const double etaMax = ramificada ? std::sqrt(etaMin / wMin) : 1.0 / wMin;
    const double lambda = std::log(etaMax / etaMin) / (iteraciones - 1);
    // Terms between two placed nodes move nothing.
    std::vector<char> fijo(static_cast<size_t>(m));
    for (int i = 0; i < m; ++i) fijo[size_t(i)] = fijos[size_t(i)].has_value();
    terminos.erase(std::remove_if(terminos.begin(), terminos.end(),
                                  [&](const Termino& t) { return fijo[size_t(t.i)] && fijo[size_t(t.j)]; }),
                   terminos.end());
    // The terms shuffled once, then each pass takes their blocks in an
    // order of its own: as good a descent as shuffling them all anew, which
    // cost more than the descent itself on a large town.
    std::mt19937 azar(11);
    std::shuffle(terminos.begin(), terminos.end(), azar);
    const size_t bloque = std::max<size_t>(64, terminos.size() / 4096 + 1);
    std::vector<size_t> bloques((terminos.size() + bloque - 1) / bloque);
    std::iota(bloques.begin(), bloques.end(), size_t(0));
    // One step of the descent: the two ends of a term moved toward its distance.
    const auto acercar = [&](const Termino& t, double eta) {
        QPointF& xi = x[size_t(t.i)];
        QPointF& xj = x[size_t(t.j)];
        QPointF e = xi - xj;
        double l2 = e.x() * e.x() + e.y() * e.y();
        if (l2 < 1e-18) {
            e = QPointF(1e-6 * (t.i - t.j), 1e-6);
            l2 = e.x() * e.x() + e.y() * e.y();
        }
        const double l = std::sqrt(l2);
        const QPointF r = e * ((l - t.d) / l * std::min(t.w * eta, 1.0));
        if (fijo[size_t(t.i)]) xj += r;
        else if (fijo[size_t(t.j)]) xi -= r;
        else {
            xi -= r / 2.0;
            xj += r / 2.0;
        }
    };
    for (int it = 0; it < iteraciones; ++it) {
        const double eta = etaMax * std::exp(-lambda * it);
        std::shuffle(bloques.begin(), bloques.end(), azar);
        for (size_t b : bloques) {
            const size_t fin = std::min((b + 1) * bloque, terminos.size());
            for (size_t k = b * bloque; k < fin; ++k) acercar(terminos[k], eta);
        }
    }
    return x;
}

}  // namespace

std::vector<QPointF> DisponerPorTension(int nodos, const std::vector<AristaDisposicion>& aristas,
                                        const std::vector<std::optional<QPointF>>& fijos) {
    std::vector<QPointF> x(size_t(std::max(nodos, 0)));
    Vecinos g(x.size());
    for (const AristaDisposicion& a : aristas) {
        if (a.a < 0 || a.b < 0 || a.a >= nodos || a.b >= nodos || a.a == a.b) continue;
        const double l = a.largo > 0 ? a.largo : 1.0;
        g[size_t(a.a)].push_back({a.b, l});
        g[size_t(a.b)].push_back({a.a, l});
    }
    auto fijo = [&](int i) { return size_t(i) < fijos.size() ? fijos[size_t(i)] : std::optional<QPointF>(); };
    std::vector<int> componente(x.size(), -1);
    double derecha = 0;  // where the next free component goes
    bool primeraLibre = true;
    for (int s = 0; s < nodos; ++s) {
        if (componente[size_t(s)] >= 0) continue;
        std::vector<int> miembros{s};
        componente[size_t(s)] = s;
        for (size_t q = 0; q < miembros.size(); ++q)
            for (const Vecino& v : g[size_t(miembros[q])])
                if (componente[size_t(v.nodo)] < 0) {
                    componente[size_t(v.nodo)] = s;
                    miembros.push_back(v.nodo);
                }
        std::vector<int> local(x.size(), -1);
        for (size_t i = 0; i < miembros.size(); ++i) local[size_t(miembros[i])] = int(i);
        Vecinos h(miembros.size());
        std::vector<std::optional<QPointF>> f(miembros.size());
        bool conFijos = false;
        for (size_t i = 0; i < miembros.size(); ++i) {
            for (const Vecino& v : g[size_t(miembros[i])]) h[i].push_back({local[size_t(v.nodo)], v.largo});
            f[i] = fijo(miembros[i]);
            conFijos = conFijos || f[i].has_value();
        }
        std::vector<QPointF> y = DisponerComponente(h, f);
        if (!conFijos) {
            double izq = Infinito, der = -Infinito, abajo = Infinito;
            for (const QPointF& p : y) {
                izq = std::min(izq, p.x());
                der = std::max(der, p.x());
                abajo = std::min(abajo, p.y());
            }
            const double hueco = primeraLibre ? 0.0 : std::max(10.0, 0.1 * (der - izq));
            for (QPointF& p : y) p += QPointF(derecha + hueco - izq, -abajo);
            derecha += hueco + (der - izq);
            primeraLibre = false;
        }
        for (size_t i = 0; i < miembros.size(); ++i) x[size_t(miembros[i])] = y[i];
    }
    return x;
}
