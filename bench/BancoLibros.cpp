// The building results workbook of generated projects up to 32,766 branches:
// the sheets laid out from the four grids, and the .xlsx file written.  The
// counters split the two, and give the file's size.
//
//   cmake -S . -B build-bench -G Ninja -DCMAKE_BUILD_TYPE=Release -DFONTARIA_BENCH=ON
//   ninja -C build-bench BancoLibros && ./build-bench/bench/BancoLibros

#include "analysis/AnalisisRed.h"
#include "analysis/Numeracion.h"
#include "ProyectoGenerado.h"
#include "workbook/EscrituraLibro.h"
#include "workbook/LibroEdificio.h"

#include <QFileInfo>
#include <benchmark/benchmark.h>
#include <chrono>

namespace {

void BM_LibroEdificio(benchmark::State& state) {
    const int n = int(state.range(0));
    Sesion s;
    DialogosMudos d;
    ProyectoEdificio p;
    AnalisisRed a{p, s, d};
    s.ArchivoProyecto = LosArchivos().Copia(n, QStringLiteral("libro.plm"));
    ValoresIniciales(p, s);
    AbrirConexionProyecto(s);
    LeerProyecto(p, s);
    VerificarNumeracion(p, d);
    a.Cargar();
    OpcionesLibro o;
    o.fecha = QStringLiteral("15/01/2024");
    QTemporaryDir dir;
    const QString archivo = dir.filePath(QStringLiteral("libro.xlsx"));
    double hojas = 0.0, escritura = 0.0;
    for (auto _ : state) {
        const auto t0 = std::chrono::steady_clock::now();
        const std::vector<HojaLibro> libro = HojasLibroEdificio(a, p, s, o);
        const auto t1 = std::chrono::steady_clock::now();
        QString error;
        if (!EscribirLibro(libro, archivo, error)) state.SkipWithError(error.toUtf8().constData());
        const auto t2 = std::chrono::steady_clock::now();
        hojas += std::chrono::duration<double, std::milli>(t1 - t0).count();
        escritura += std::chrono::duration<double, std::milli>(t2 - t1).count();
    }
    state.counters["ramales"] = n;
    state.counters["filas_grids"] = a.Spread4.Filas() + a.Spread1.Filas() + a.Spread2.Filas() + a.Spread3.Filas();
    state.counters["hojas_ms"] = benchmark::Counter(hojas, benchmark::Counter::kAvgIterations);
    state.counters["escritura_ms"] = benchmark::Counter(escritura, benchmark::Counter::kAvgIterations);
    state.counters["archivo_MB"] = double(QFileInfo(archivo).size()) / 1e6;
}

}  // namespace

BENCHMARK(BM_LibroEdificio)->Arg(100)->Arg(5000)->Arg(32766)->Unit(benchmark::kMillisecond);
