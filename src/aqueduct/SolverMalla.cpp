#include "aqueduct/SolverMalla.h"

#include "aqueduct/CasosDemanda.h"
#include "aqueduct/NumeracionNodos.h"
#include "aqueduct/ProyectoAcueducto.h"
#include "base/ErrorEjecucion.h"
#include "base/Nivo.h"

#include <Eigen/SparseCholesky>
#include <Eigen/SparseCore>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <new>

using namespace ConstantesMalla;

namespace {

constexpr int MemoriaInsuficiente = 7;
// The largest band matrix a solve may take: 1 GB of doubles.
constexpr size_t LimiteMatriz = size_t(1) << 27;
// The entered numbering is kept up to this band whatever another order
// would give: below it the elimination costs nothing worth saving.
constexpr int AnchoSinRenumerar = 16;
// The smallest head difference a section's conductance is taken at.  At
// equal heads K d^(e-1) would be 0, and a dead-end chain without demand,
// whose heads all agree after the first iteration, would be cut off and
// drop to the datum.  1e-14 m is the last digit of a head of some tens of
// metres: the floor only catches ties and differences of rounding, never a
// loss an engineer reads, so it changes no conductance the iteration takes
// from a real difference.  There g = K x 2.6e6, finite, the size the
// iteration already met for heads one unit in the last place apart, and
// far below the 1e10 that holds a fixed head.  What the floor leaves out of
// the balance, at most K d_min^e = K x 3.6e-8 m³/s on such a section, is
// below the tolerance for mains up to 300 mm; a floor of 1e-6 m, by
// contrast, left a grid of 10,000 sections 2e-7 m³/s short after 100
// iterations.  Flows still follow the actual difference, so equal heads
// still carry exactly nothing.
constexpr double DiferenciaMinima = 1e-14;

double Finito(double x) {
    if (!std::isfinite(x)) throw ErrorEjecucion(Error::Desbordamiento);
    return x;
}

// hi - hj, or 0 when the two heads differ only by the rounding of the solve
// (a few units in the last place): a fixed head held by a penalty and the
// free nodes behind it come out equal to that rounding, not exactly, and a
// dead end would otherwise show a flow of 1e-7 l/s where nothing moves.
double Diferencia(double hi, double hj) {
    const double h = hi - hj;
    const double redondeo = 8 * std::numeric_limits<double>::epsilon() * std::max(std::fabs(hi), std::fabs(hj));
    return std::fabs(h) <= redondeo ? 0.0 : h;
}

// The order the equations are numbered in: the entered one, or the internal
// one when it is clearly narrower (or asked for).  The factorisation orders
// them again for itself; this one stays as the numbering NumeracionInterna
// and AnchoBandaSolucion report.
OrdenNodos ElegirOrden(ProyectoAcueducto& p) {
    OrdenNodos entrada;
    entrada.ancho = p.AnchoBanda;
    if (p.Orden != OrdenSolucion::Entrada) {
        OrdenNodos interna = OrdenCuthillMcKee(p);
        const bool angosta = p.AnchoBanda > AnchoSinRenumerar && 4 * interna.ancho <= 3 * int(p.AnchoBanda);
        if (p.Orden == OrdenSolucion::Interno || angosta) {
            p.NumeracionInterna = true;
            return interna;
        }
    }
    entrada.orden.resize(size_t(p.NumeroNodosACU) + 1);
    for (size_t n = 0; n < entrada.orden.size(); ++n) entrada.orden[n] = int(n);
    p.NumeracionInterna = false;
    return entrada;
}

// The sections' ends and conductance factors, read once per run.
struct Tramos {
    std::vector<int> i, j;
    std::vector<double> k;
};

// The nodal system in sparse storage, its lower triangle: one equation per
// node 1..nodos in the order chosen (node 0, the ends no name matched, stays
// at head 0 and only adds to the diagonal of the other end).  Its pattern
// depends on the sections and the fixed nodes alone, so the ordering and the
// symbolic factorisation are done once per analysis and each iteration only
// writes the values in place and factorises them.
struct Sistema {
    Eigen::SparseMatrix<double> a;
    // Per section the value slots of a(i, i), a(j, j) and a(i, j); -1 where
    // the end is node 0.  A section with both ends at one node has its
    // third slot on that diagonal, as in the band.
    std::vector<int> ii, jj, ij;
    Eigen::SimplicialLDLT<Eigen::SparseMatrix<double>, Eigen::Lower, Eigen::AMDOrdering<int>> ldlt;
    Eigen::VectorXd b;
};

// The slot of (fila, columna), fila >= columna, in the compressed matrix.
int Ranura(const Eigen::SparseMatrix<double>& a, int fila, int columna) {
    const int* inicio = a.innerIndexPtr() + a.outerIndexPtr()[columna];
    const int* fin = a.innerIndexPtr() + a.outerIndexPtr()[columna + 1];
    return int(std::lower_bound(inicio, fin, fila) - a.innerIndexPtr());
}

void PrepararSistema(Sistema& x, const ProyectoAcueducto& p, const Tramos& t, const std::vector<int>& orden) {
    const int nodos = p.NumeroNodosACU;
    const int tramos = p.NumeroTramos;
    std::vector<Eigen::Triplet<double>> celdas;
    celdas.reserve(size_t(nodos) + size_t(tramos));
    for (int n = 0; n < nodos; ++n) celdas.emplace_back(n, n, 0.0);
    for (int s = 1; s <= tramos; ++s) {
        const int oi = orden[size_t(t.i[size_t(s)])], oj = orden[size_t(t.j[size_t(s)])];
        if (oi > 0 && oj > 0 && oi != oj) celdas.emplace_back(std::max(oi, oj) - 1, std::min(oi, oj) - 1, 0.0);
    }
    x.a.resize(nodos, nodos);
    x.a.setFromTriplets(celdas.begin(), celdas.end());
    x.a.makeCompressed();
    x.ii.assign(size_t(tramos) + 1, -1);
    x.jj.assign(size_t(tramos) + 1, -1);
    x.ij.assign(size_t(tramos) + 1, -1);
    for (int s = 1; s <= tramos; ++s) {
        const int oi = orden[size_t(t.i[size_t(s)])], oj = orden[size_t(t.j[size_t(s)])];
        if (oi > 0) x.ii[size_t(s)] = Ranura(x.a, oi - 1, oi - 1);
        if (oj > 0) x.jj[size_t(s)] = Ranura(x.a, oj - 1, oj - 1);
        if (oi > 0 && oj > 0) x.ij[size_t(s)] = Ranura(x.a, std::max(oi, oj) - 1, std::min(oi, oj) - 1);
    }
    x.b.resize(nodos);
    x.ldlt.analyzePattern(x.a);
}

// A system the factorisation finds singular (a part of the network no fixed
// head reaches) is eliminated in band storage instead, where the substitute
// pivot carries the run through as it always has.
void ResolverEnBanda(Sistema& x) {
    const int nodos = int(x.b.size());
    int ancho = 1;
    for (int c = 0; c < nodos; ++c)
        for (Eigen::SparseMatrix<double>::InnerIterator k(x.a, c); k; ++k) ancho = std::max(ancho, int(k.row()) - c + 1);
    MatrizBanda a;
    a.Redim(ancho, nodos);
    for (int c = 0; c < nodos; ++c)
        for (Eigen::SparseMatrix<double>::InnerIterator k(x.a, c); k; ++k)
            a(int(k.row()) - c + 1, c + 1) = k.value();
    std::vector<double> b(size_t(nodos) + 1);
    for (int n = 0; n < nodos; ++n) b[size_t(n) + 1] = x.b[n];
    ResolverBanda(a, b, nodos, 1.0);
    for (int n = 0; n < nodos; ++n) x.b[n] = b[size_t(n) + 1];
}

// Factorises the values written and solves for the right-hand side; a
// number beyond the double range is the overflow it would be.
void ResolverSistema(Sistema& x) {
    double* v = x.a.valuePtr();
    for (Eigen::Index k = 0; k < x.a.nonZeros(); ++k) Finito(v[k]);
    x.ldlt.factorize(x.a);
    if (x.ldlt.info() == Eigen::Success)
        x.b = x.ldlt.solve(x.b);
    else
        ResolverEnBanda(x);
    for (Eigen::Index n = 0; n < x.b.size(); ++n) Finito(x.b[n]);
}

// The datum (the lowest ground) and the fixed-head nodes.
void NodosFijos(ProyectoAcueducto& p) {
    const int nodos = p.NumeroNodosACU;
    p.CotaReferencia = InicioReferencia;
    for (int n = 1; n <= nodos; ++n)
        if (p.CotaTerreno[n] < p.CotaReferencia) p.CotaReferencia = p.CotaTerreno[n];
    Entero16 fijos;
    for (int n = 1; n <= nodos; ++n)
        if (p.CotaBombaEstanque[n] > 0) ++fijos;
    p.NumeroFijos = fijos;
    p.NodoFijo.Redim(fijos);
    p.CotaFija.Redim(fijos);
    int f = 0;
    for (int n = 1; n <= nodos; ++n)
        if (p.CotaBombaEstanque[n] > 0) {
            ++f;
            p.NodoFijo[f] = n;
            p.CotaFija[f] = p.CotaBombaEstanque[n];
        }
}

// K of each section, Q = K h^e.  Written through the pipe's
// resistance 10.675 L / D^4.8704, so that a pipe of no length or no bore is
// the division by zero it is rather than a silent K of 0.
Tramos CoeficientesTramos(ProyectoAcueducto& p, double e) {
    const int tramos = p.NumeroTramos;
    Tramos t;
    t.i.resize(size_t(tramos) + 1);
    t.j.resize(size_t(tramos) + 1);
    t.k.resize(size_t(tramos) + 1);
    p.CoeficienteK.Redim(tramos);
    for (int s = 1; s <= tramos; ++s) {
        EnLugar(
            [&] {
                const double d = DiametroMetros(p, s);
                const double resistencia = Dividir(FactorHazen * p.LongitudCalculo[s], Potencia(d, ExponenteDiametro));
                p.CoeficienteK[s] = Finito(int(p.CoeficienteC[s]) * Potencia(Dividir(1.0, resistencia), e));
            },
            [&] { return LugarRamal(s, p.Inicio[s], p.Final[s]); });
        t.i[size_t(s)] = p.NodosTramo(1, s);
        t.j[size_t(s)] = p.NodosTramo(2, s);
        t.k[size_t(s)] = p.CoeficienteK[s];
    }
    return t;
}

// How a pass of the iteration ended.
struct FinPaso {
    int iteraciones = 0;
    double desbalance = 0.0;  // mean imbalance of the free nodes, m³/s
    bool convergio = false;
};

// One pass of the iteration.
FinPaso Iterar(ProyectoAcueducto& p, const Tramos& t, const std::vector<int>& orden, Sistema& x,
               std::vector<double>& flujo, double e) {
    const int nodos = p.NumeroNodosACU;
    const int tramos = p.NumeroTramos;
    const int limite = std::max(p.LimiteIteraciones, 1);
    double* v = x.a.valuePtr();
    // K d^(e-1) is K d^e / d: the flow of the last iterate divided by its
    // head difference gives the conductance without a second power.
    std::vector<double> caudal(size_t(tramos) + 1), caida(size_t(tramos) + 1);
    const double piso = Potencia(DiferenciaMinima, e - 1.0);
    FinPaso fin;
    for (int it = 1; it <= limite; ++it) {
        fin.iteraciones = it;
        for (int n = 1; n <= nodos; ++n) x.b[orden[size_t(n)] - 1] = -p.DemandaReal[n];
        std::fill(v, v + x.a.nonZeros(), 0.0);
        for (int s = 1; s <= tramos; ++s) {
            double g = t.k[size_t(s)];
            if (it > 1) {
                const double d = caida[size_t(s)];
                g = d >= DiferenciaMinima ? caudal[size_t(s)] / d : g * piso;
            }
            if (x.ii[size_t(s)] >= 0) v[x.ii[size_t(s)]] += g;
            if (x.jj[size_t(s)] >= 0) v[x.jj[size_t(s)]] += g;
            if (x.ij[size_t(s)] >= 0) v[x.ij[size_t(s)]] -= g;
        }
        // A fixed head by penalty: the node's demand plays no part.
        for (int f = 1; f <= p.NumeroFijos; ++f) {
            const int n = orden[size_t(p.NodoFijo[f])] - 1;
            v[Ranura(x.a, n, n)] += Penalidad;
            x.b[n] = Penalidad * (p.CotaFija[f] - p.CotaReferencia);
        }
        ResolverSistema(x);

        // The new heads replace the old ones whole: no relaxation.
        p.Alturas[0] = -p.DemandaReal[0];
        for (int n = 1; n <= nodos; ++n) p.Alturas[n] = x.b[orden[size_t(n)] - 1];
        std::fill(flujo.begin(), flujo.end(), 0.0);
        for (int s = 1; s <= tramos; ++s) {
            const int i = t.i[size_t(s)], j = t.j[size_t(s)];
            const double h = Diferencia(p.Alturas[i], p.Alturas[j]);
            const double q = Finito(t.k[size_t(s)] * Potencia(std::fabs(h), e));
            caudal[size_t(s)] = q;
            caida[size_t(s)] = std::fabs(h);
            if (h > 0) {
                flujo[size_t(i)] -= q;
                flujo[size_t(j)] += q;
            } else {
                flujo[size_t(i)] += q;
                flujo[size_t(j)] -= q;
            }
        }
        for (int f = 1; f <= p.NumeroFijos; ++f) flujo[size_t(p.NodoFijo[f])] = p.DemandaReal[p.NodoFijo[f]];
        double error = 0.0;
        for (int n = 1; n <= nodos; ++n) error += std::fabs(flujo[size_t(n)] - p.DemandaReal[n]);
        error = Dividir(error, double(p.NumeroNodosACU - p.NumeroFijos));
        // The rounded error is computed and dropped: the test takes the
        // unrounded one.
        (void)RoundNivo(error, 8);
        fin.desbalance = error;
        fin.convergio = error < Tolerancia;
        if (fin.convergio) break;
    }
    return fin;
}

// Heads, calculated demands and the extreme pressures of a pass.
void ResultadosNodos(ProyectoAcueducto& p, const std::vector<double>& flujo) {
    const int nodos = p.NumeroNodosACU;
    p.CotaPiezometrica.Redim(nodos);
    double alta = InicioPresionAlta, baja = InicioPresionBaja;
    p.NodoMinimo = p.NodoMaximo = 0;
    for (int n = 1; n <= nodos; ++n) {
        p.DemandaCalculo[n] = flujo[size_t(n)] * 1000.0;
        p.CotaPiezometrica[n] = p.CotaReferencia + p.Alturas[n];
        if (p.CotaBombaEstanque[n] != 0) continue;
        const double presion = p.CotaPiezometrica[n] - p.CotaTerreno[n];
        if (presion > alta) {
            alta = presion;
            p.NodoMaximo = n;
        }
        if (presion < baja) {
            baja = presion;
            p.NodoMinimo = n;
        }
    }
}

// Losses, flows and velocities of a pass.
void ResultadosTramos(ProyectoAcueducto& p, const Tramos& t, double e) {
    const int tramos = p.NumeroTramos;
    p.Velocidad.Redim(tramos);
    p.Perdidas.Redim(tramos);
    for (int s = 1; s <= tramos; ++s) {
        const double h = Diferencia(p.Alturas[t.i[size_t(s)]], p.Alturas[t.j[size_t(s)]]);
        p.Perdidas[s] = h;
        const double signo = h > 0 ? 1.0 : h < 0 ? -1.0 : 0.0;
        const double q = t.k[size_t(s)] * Potencia(std::fabs(h), e) * signo;
        p.Caudal[s] = Finito(q * 1000.0);
        const double d = DiametroMetros(p, s);
        const double area = d * d * Pi / 4.0;
        p.Velocidad[s] = area > 0 ? Dividir(q, area) : 0.0;
    }
}

void Analizar(ProyectoAcueducto& p, const Sesion& s) {
    p.DemandaReal.Redim(p.NumeroNodosACU);
    p.DemandaCalculo.Redim(p.NumeroNodosACU);
    p.Caudal.Redim(p.NumeroTramos);
    p.Iteraciones.clear();
    p.Desbalance.clear();
    p.Convergio.clear();
    RenumerarNodos(p, s);
    FormarDemandaReal(p);
    const int pasos = PasosDelCaso(p);
    NodosFijos(p);
    LongitudesCalculo(p);
    const double e = 1.0 / ExponenteCaudal;
    const Tramos t = CoeficientesTramos(p, e);

    const OrdenNodos o = ElegirOrden(p);
    p.AnchoBandaSolucion = o.ancho;
    const int nodos = p.NumeroNodosACU;
    Sistema x;
    PrepararSistema(x, p, t, o.orden);
    std::vector<double> flujo(size_t(nodos) + 1);
    p.Alturas.Redim(nodos);
    for (int paso = 1; paso <= pasos; ++paso) {
        // The fire flow goes to the node of lowest pressure of the first pass.
        if (paso == 2) p.DemandaReal[p.NodoMinimo] += p.LitrosIncendio / 1000.0;
        const FinPaso fin = Iterar(p, t, o.orden, x, flujo, e);
        p.Iteraciones.push_back(fin.iteraciones);
        p.Desbalance.push_back(fin.desbalance);
        p.Convergio.push_back(fin.convergio);
        ResultadosNodos(p, flujo);
        ResultadosTramos(p, t, e);
    }
}

}  // namespace

void MatrizBanda::Redim(int ancho, int nodos) {
    const size_t celdas = size_t(std::max(ancho, 1)) * (size_t(std::max(nodos, 0)) + 1);
    if (celdas > LimiteMatriz)
        throw ErrorEjecucion(MemoriaInsuficiente, QStringLiteral("matriz de banda %1 x %2").arg(ancho).arg(nodos));
    ancho_ = std::max(ancho, 1);
    nodos_ = std::max(nodos, 0);
    d_.assign(celdas, 0.0);
}

void MatrizBanda::Limpiar() { std::fill(d_.begin(), d_.end(), 0.0); }

bool MatrizBanda::Finita() const {
    for (double x : d_)
        if (!std::isfinite(x)) return false;
    return true;
}

void ResolverBanda(MatrizBanda& a, std::vector<double>& b, int n, double bandera) {
    const int ancho = a.Ancho();
    for (int fila = 1; fila <= n - 1; ++fila) {
        const int largo = std::min(n - fila + 1, ancho);
        double* an = &a(1, fila);
        for (int l = 2; l <= largo; ++l) {
            const int i = fila + l - 1;
            if (bandera != 0) {
                if (an[0] == 0.0) an[0] = PivoteNulo;
                const double c = an[l - 1] / an[0];
                double* ai = &a(1, i);
                // A(j, i) -= c A(k, n) for k = l..largo, j = k - l + 1.
                const double* fuente = an + (l - 1);
                const int cuenta = largo - l + 1;
                for (int k = 0; k < cuenta; ++k) ai[k] -= c * fuente[k];
                an[l - 1] = c;
            }
            b[size_t(i)] -= an[l - 1] * b[size_t(fila)];
        }
    }
    if (a(1, n) == 0.0) a(1, n) = PivoteNulo;
    b[size_t(n)] = Dividir(b[size_t(n)], a(1, n));
    for (int m = 1; m <= n - 1; ++m) {
        const int fila = n - m;
        b[size_t(fila)] = Dividir(b[size_t(fila)], a(1, fila));
        const int largo = std::min(n - fila + 1, ancho);
        const double* an = &a(1, fila);
        double x = b[size_t(fila)];
        for (int l = 2; l <= largo; ++l) x -= an[l - 1] * b[size_t(fila + l - 1)];
        b[size_t(fila)] = x;
    }
    // The older runtime stopped at the first operation that left the double
    // range; an infinity or NaN anywhere in the elimination is that fault.
    if (!a.Finita()) throw ErrorEjecucion(Error::Desbordamiento);
    for (int i = 1; i <= n; ++i) Finito(b[size_t(i)]);
}

void CalcularAnchoBanda(ProyectoAcueducto& p) {
    int mayor = 0;
    for (int s = 1; s <= p.NumeroTramos; ++s)
        mayor = std::max(mayor, std::abs(int(p.NodosTramo(1, s)) - int(p.NodosTramo(2, s))));
    p.AnchoBanda = mayor + 1;
}

void LongitudesCalculo(ProyectoAcueducto& p) {
    p.LongitudCalculo.Redim(p.NumeroTramos);
    for (int s = 1; s <= p.NumeroTramos; ++s) {
        const double l = p.Longitud[s];
        p.LongitudCalculo[s] =
            p.CasoPorcentaje == 1 ? RoundNivo(l + p.DeltaPorcentaje * l / 100.0, 2) : RoundNivo(l, 2);
    }
}

void RenumerarNodos(ProyectoAcueducto& p, const Sesion& s) {
    NumerarYConectar(p, s);
    CalcularAnchoBanda(p);
}

void AnalizarMalla(ProyectoAcueducto& p, const Sesion& s) {
    p.DetalleError.clear();
    try {
        Analizar(p, s);
    } catch (const ErrorEjecucion& e) {
        p.ErrorAnalisis = 1;
        p.DetalleError = QString::fromUtf8(e.what());
    } catch (const std::bad_alloc&) {
        p.ErrorAnalisis = 1;
        p.DetalleError = QStringLiteral("Error 7: Memoria insuficiente");
    }
}
