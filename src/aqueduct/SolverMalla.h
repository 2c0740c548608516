#pragma once
// The mesh network solver: heads at the nodes and flows in the sections of a
// looped network by a nodal Hazen-Williams iteration.  Each section becomes a
// conductance from the head difference of the previous iterate (never below
// that of a 1e-14 m difference, so no node is cut off), fixed-head nodes
// (tanks, pumps) carry a penalty on the diagonal, and the iteration stops
// when the mean flow imbalance of the free nodes is below 1e-8 m³/s or at
// the project's iteration limit.  Units inside are metres and cubic metres
// per second.
//
// The symmetric system is kept sparse and solved by an LDLᵀ factorisation
// (Eigen's SimplicialLDLT) in an approximate minimum degree order: the order
// and the symbolic factorisation once per analysis, only the numbers per
// iteration, so a star or a long branched main costs what its sections do.
// The band of the numbering (AnchoBanda) is still worked out and shown to
// the engineer, and the reverse Cuthill-McKee order may still number the
// equations, but neither decides the cost of the solve any more.

#include <cstddef>
#include <vector>

struct ProyectoAcueducto;
struct Sesion;

namespace ConstantesMalla {
constexpr double ExponenteCaudal = 1.852;
constexpr double ExponenteDiametro = 4.8704;
constexpr double FactorHazen = 10.675;
constexpr double Tolerancia = 1e-8;
constexpr double Penalidad = 1e10;
constexpr double PivoteNulo = 1e-20;
constexpr double Pi = 3.14159265358979;
constexpr double InicioReferencia = 100000.0;
constexpr double InicioPresionAlta = -1000000.0;
constexpr double InicioPresionBaja = 1000000.0;
}  // namespace ConstantesMalla

// The upper half of the symmetric nodal matrix in band storage: (1, n) is
// the diagonal of row n, (b, n) the element of row n and column n + b - 1.
// Rows 0..nodos exist (row 0 collects the ends no name matched); bands
// 1..ancho.  Access is unchecked: the callers stay inside the band.
class MatrizBanda {
public:
    // Sizes and clears; a size beyond memory is error 7.
    void Redim(int ancho, int nodos);
    void Limpiar();
    int Ancho() const { return ancho_; }
    int Nodos() const { return nodos_; }
    double& operator()(int b, int n) { return d_[std::size_t(n) * std::size_t(ancho_) + std::size_t(b - 1)]; }
    double operator()(int b, int n) const { return d_[std::size_t(n) * std::size_t(ancho_) + std::size_t(b - 1)]; }
    // Every entry is a finite number.
    bool Finita() const;

private:
    int ancho_ = 0;
    int nodos_ = 0;
    std::vector<double> d_;
};

// Solves A x = b in place for the first `n` rows: b (slots 1..n) becomes x.
// With `bandera` not 0 the matrix is eliminated first (its multipliers are
// kept in it); with 0 only the right-hand side is processed, with the
// multipliers of an earlier elimination.  A zero pivot is replaced by 1e-20.
// A division by zero or a number beyond the double range is an
// ErrorEjecucion, as in the older runtime.  AnalizarMalla no longer uses it.
void ResolverBanda(MatrizBanda& a, std::vector<double>& b, int n, double bandera);

// AnchoBanda: the largest |I - J| of NodosTramo plus 1; 1 without sections.
void CalcularAnchoBanda(ProyectoAcueducto& p);

// LongitudCalculo: Longitud rounded to 2 decimals, or with the percentage
// DeltaPorcentaje added when CasoPorcentaje is 1.
void LongitudesCalculo(ProyectoAcueducto& p);

// The numbering of the nodes as NumerarNodos does it (without lumping
// demands, and even without sections), then ConectarNodos and
// CalcularAnchoBanda.
void RenumerarNodos(ProyectoAcueducto& p, const Sesion& s);

// The reverse Cuthill-McKee order of the nodes: orden[n] is the equation of
// node n (orden[0] = 0), and the band it gives.
struct OrdenNodos {
    std::vector<int> orden;
    int ancho = 1;
};
OrdenNodos OrdenCuthillMcKee(const ProyectoAcueducto& p);

// The whole run for CasoDemanda: renumbering, demands of the case, design
// lengths, the passes of the iteration and the results.  A run-time fault
// (a zero length or diameter, every node fixed, a subscript, an overflow, a
// number beyond the double range, a part of the network no fixed head
// reaches) sets ErrorAnalisis to 1 and ends the run,
// leaving the arrays as they were at that moment.  ErrorAnalisis is never
// cleared here.  A pass that reaches LimiteIteraciones keeps its last
// iterate; Desbalance and Convergio say how each pass ended.  The caller checks first that a tank exists (VerificaTanque).
void AnalizarMalla(ProyectoAcueducto& p, const Sesion& s);
