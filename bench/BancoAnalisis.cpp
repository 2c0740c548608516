// The building chain on generated projects of 100 to 32,766 branches: the
// first analysis of a file (which stores every assumed size and reduction),
// a later analysis, and the rerun after one assumed diameter is edited in the
// pre-sizing grid.  A project of 32,767 branches overflows NumeroRamales + 1.
//
//   cmake -S . -B build -G Ninja -DCMAKE_BUILD_TYPE=Release -DFONTARIA_BENCH=ON
//   ninja -C build BancoAnalisis && ./build/bench/BancoAnalisis

#include "analysis/AnalisisRed.h"
#include "analysis/Gastos.h"
#include "analysis/Numeracion.h"
#include "ProyectoGenerado.h"
#include "store/Conexion.h"

#include <benchmark/benchmark.h>
#include <chrono>

namespace {

// The command's road: load and verify, then the screen's load with the whole chain.
struct Banco {
    Sesion s;
    DialogosMudos d;
    ProyectoEdificio p;
    AnalisisRed a{p, s, d};

    void Cargar() {
        ValoresIniciales(p, s);
        AbrirConexionProyecto(s);
        LeerProyecto(p, s);
        VerificarNumeracion(p, d);
        if (p.ErrorNumeracion != 0) qFatal("numeración");
    }
    void Analizar() {
        Cargar();
        a.Cargar();
    }
    // A copy of the generated file, analysed once.
    void Preparar(int n, const char* nombre) {
        s.ArchivoProyecto = LosArchivos().Copia(n, QString::fromLatin1(nombre));
        Analizar();
    }
};

void BM_PrimerAnalisis(benchmark::State& state) {
    const int n = int(state.range(0));
    Banco b;
    for (auto _ : state) {
        state.PauseTiming();
        b.s.ConexionProyecto.Cerrar();
        b.s.ArchivoProyecto = LosArchivos().Copia(n, QStringLiteral("primero.plm"));
        state.ResumeTiming();
        b.Analizar();
    }
    state.counters["ramales"] = n;
}

// A later analysis; the counters split the load of the file (with the
// verification) from the chain and its four grids.
void BM_Reanalisis(benchmark::State& state) {
    const int n = int(state.range(0));
    Banco b;
    b.Preparar(n, "segundo.plm");
    double carga = 0.0, cadena = 0.0;
    for (auto _ : state) {
        const auto t0 = std::chrono::steady_clock::now();
        b.Cargar();
        const auto t1 = std::chrono::steady_clock::now();
        b.a.Cargar();
        const auto t2 = std::chrono::steady_clock::now();
        carga += std::chrono::duration<double, std::milli>(t1 - t0).count();
        cadena += std::chrono::duration<double, std::milli>(t2 - t1).count();
    }
    state.counters["ramales"] = n;
    state.counters["carga_ms"] = benchmark::Counter(carga, benchmark::Counter::kAvgIterations);
    state.counters["cadena_ms"] = benchmark::Counter(cadena, benchmark::Counter::kAvgIterations);
}

void BM_EdicionDiametro(benchmark::State& state) {
    const int n = int(state.range(0));
    Banco b;
    b.Preparar(n, "edicion.plm");
    // A riser segment half-way up, alternately one size up and back, so that
    // every edit writes the file and changes the reductions around it.
    const int fila = ((n / 2) / 3) * 3 + 1;
    const QString original = b.a.Spread4.Texto(fila, 7);
    const QString otro = original == QStringLiteral("12\"") ? QStringLiteral("10\"") : QStringLiteral("12\"");
    bool alterno = false;
    for (auto _ : state) {
        b.a.EditarDiametroAsumido(fila, alterno ? original : otro);
        alterno = !alterno;
    }
    state.counters["ramales"] = n;
}

// The reducing valve of the same branch: pressures and their grid only.
void BM_EdicionValvula(benchmark::State& state) {
    const int n = int(state.range(0));
    Banco b;
    b.Preparar(n, "valvula.plm");
    const int fila = ((n / 2) / 3) * 3 + 1;
    double valor = 0.0;
    for (auto _ : state) b.a.EditarValvulaReductora(fila, valor = valor == 0.0 ? 2.0 : 0.0);
    state.counters["ramales"] = n;
}

// 32,767 branches: NumeroRamales + 1 overflows, as the 16-bit counter must.
void BM_Desborde32767(benchmark::State& state) {
    Sesion s;
    ProyectoEdificio p;
    ValoresIniciales(p, s);
    p.NumeroRamales = 32767;
    p.DimensionarRamales(32767);
    int numero = 0;
    for (auto _ : state) {
        try {
            ColoqueGastos(p);
        } catch (const ErrorEjecucion& e) {
            numero = e.numero();
        }
    }
    if (numero != Error::Desbordamiento) state.SkipWithError("32,767 branches did not overflow");
    state.counters["error"] = numero;
}

}  // namespace

BENCHMARK(BM_PrimerAnalisis)->Arg(100)->Arg(1000)->Arg(5000)->Arg(32766)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_Reanalisis)->Arg(100)->Arg(1000)->Arg(5000)->Arg(32766)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_EdicionDiametro)->Arg(100)->Arg(1000)->Arg(5000)->Arg(32766)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_EdicionValvula)->Arg(100)->Arg(1000)->Arg(5000)->Arg(32766)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_Desborde32767)->Iterations(1)->Unit(benchmark::kMillisecond);
