// The mesh solver on generated town networks: a grid of blocks of streets
// fed by one tank at a corner, or by two at opposite corners, of about 100,
// 1,000, 10,000 and 32,767 sections.  Each run solves one demand case
// (AnalizarMalla, renumbering and all) and reports the iterations of its
// passes, the time per iteration and the band the equations were solved in.
//
// Listing "filas" types the sections street by street, as an engineer walks
// the town: the entered numbering then has a band of one street.  Listing
// "revuelto" types them in a scattered order: the entered band is as wide as
// the town, and only the internal numbering keeps the solve small; the
// entered numbering is run there only at the two smaller sizes.
//
//   build/bench/BancoMalla --benchmark_counters_tabular=true

#include "aqueduct/ProyectoAcueducto.h"
#include "aqueduct/NumeracionNodos.h"
#include "aqueduct/SolverMalla.h"
#include "shell/Sesion.h"

#include <QTemporaryDir>
#include <benchmark/benchmark.h>
#include <algorithm>
#include <cmath>
#include <map>
#include <numeric>
#include <random>
#include <tuple>

namespace {

enum Listado { Filas = 0, Revuelto = 1 };

const Sesion& SesionBanco() {
    static QTemporaryDir dir;
    static Sesion s = [] {
        Sesion x;
        x.DirectorioDatos = dir.path();
        return x;
    }();
    return s;
}

QString Nombre(int fila, int columna) { return QStringLiteral("F%1C%2").arg(fila).arg(columna); }

struct Tramo {
    QString i, j;
    double diametro;
};

// A grid of `secciones` sections in all (tanks included), as square as it
// comes; the last street is cut short to hit the count, and the second tank
// stands at its far end.
ProyectoAcueducto Pueblo(int secciones, int tanques, Listado listado) {
    const int lado = int(std::ceil((1.0 + std::sqrt(1.0 + 2.0 * secciones)) / 2.0));
    // The second tank's line is typed last, where the walk reaches it.
    std::vector<Tramo> tramos;
    tramos.push_back({QStringLiteral("T1"), Nombre(0, 0), 0.4});
    if (tanques == 2) --secciones;
    for (int f = 0; f < lado && int(tramos.size()) < secciones; ++f) {
        for (int c = 0; c + 1 < lado && int(tramos.size()) < secciones; ++c)
            tramos.push_back({Nombre(f, c), Nombre(f, c + 1), c % 4 == 0 ? 0.2 : 0.15});
        for (int c = 0; f + 1 < lado && c < lado && int(tramos.size()) < secciones; ++c)
            tramos.push_back({Nombre(f, c), Nombre(f + 1, c), f % 4 == 0 ? 0.2 : 0.15});
    }
    if (tanques == 2) tramos.push_back({QStringLiteral("T2"), tramos.back().j, 0.4});
    if (listado == Revuelto) {
        std::mt19937 azar(20240515);
        std::shuffle(tramos.begin(), tramos.end(), azar);
    }
    ProyectoAcueducto p;
    p.OpcionConsumo = 2;
    p.NumeroTramos = int(tramos.size());
    p.DimensionarTramos(p.NumeroTramos);
    for (int t = 1; t <= p.NumeroTramos; ++t) {
        const Tramo& x = tramos[size_t(t) - 1];
        p.Inicio[t] = x.i;
        p.Final[t] = x.j;
        p.Longitud[t] = 100.0;
        p.Diametro[t] = x.diametro;
        p.CoeficienteC[t] = 130;
    }
    NumerarNodos(p, SesionBanco());
    const int nodos = p.NumeroNodosACU;
    std::vector<int> fijos;
    for (int n = 1; n <= nodos; ++n)
        if (p.Nodos[n].startsWith(QLatin1Char('T'))) fijos.push_back(n);
    p.DimensionarNodos(nodos);
    // 60 l/s for the whole town, spread evenly; the ground falls gently.
    for (int n = 1; n <= nodos; ++n) {
        p.ConsumoMedio[n] = 60.0 / nodos;
        p.CotaTerreno[n] = 50.0 + 5.0 * std::sin(n * 0.01);
    }
    for (int n : fijos) p.CotaBombaEstanque[n] = 110.0;
    return p;
}

const ProyectoAcueducto& PuebloGuardado(int secciones, int tanques, Listado listado) {
    static std::map<std::tuple<int, int, int>, ProyectoAcueducto> hechos;
    const auto clave = std::make_tuple(secciones, tanques, int(listado));
    auto it = hechos.find(clave);
    if (it == hechos.end()) it = hechos.emplace(clave, Pueblo(secciones, tanques, listado)).first;
    return it->second;
}

// Arguments: sections, tanks, listing, numbering (0 entered, 1 internal), case.
void BM_AnalizarMalla(benchmark::State& state) {
    ProyectoAcueducto p = PuebloGuardado(int(state.range(0)), int(state.range(1)), Listado(state.range(2)));
    p.Orden = state.range(3) == 0 ? OrdenSolucion::Entrada : OrdenSolucion::Interno;
    p.CasoDemanda = uint8_t(state.range(4));
    int iteraciones = 0;
    for (auto _ : state) {
        p.ErrorAnalisis = 0;
        AnalizarMalla(p, SesionBanco());
        iteraciones = std::accumulate(p.Iteraciones.begin(), p.Iteraciones.end(), 0);
    }
    if (p.ErrorAnalisis == 1) state.SkipWithError(p.DetalleError.toUtf8().constData());
    state.counters["tramos"] = int(p.NumeroTramos);
    state.counters["nodos"] = int(p.NumeroNodosACU);
    state.counters["ancho_entrada"] = int(p.AnchoBanda);
    state.counters["ancho_solucion"] = p.AnchoBandaSolucion;
    state.counters["iter_paso1"] = p.Iteraciones.empty() ? 0 : p.Iteraciones[0];
    state.counters["iter_paso2"] = p.Iteraciones.size() > 1 ? p.Iteraciones[1] : 0;
    // Seconds per iteration of the solver, the renumbering and results included.
    state.counters["s_por_iter"] =
        benchmark::Counter(iteraciones, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

void Casos(benchmark::internal::Benchmark* b) {
    for (int secciones : {100, 1000, 10000, 32767})
        for (int tanques : {1, 2})
            for (int listado : {Filas, Revuelto})
                for (int orden : {0, 1}) {
                    // The entered numbering of a scattered town is a band as wide as the town.
                    if (listado == Revuelto && orden == 0 && secciones > 1000) continue;
                    for (int caso : {1, 2, 3}) b->Args({secciones, tanques, listado, orden, caso});
                }
}

}  // namespace

BENCHMARK(BM_AnalizarMalla)
    ->ArgNames({"secciones", "tanques", "revuelto", "interna", "caso"})
    ->Apply(Casos)
    ->Unit(benchmark::kMillisecond)
    ->MinTime(0.2);
