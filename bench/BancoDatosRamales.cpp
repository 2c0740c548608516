// The branch editor on the largest project (32,766 branches, the most the
// file takes): the load of the file, the filling of the branch table,
// the desktop screen opened on it, and one branch inserted at row 1 (every
// branch, its slots and the floor levels move by one).
//
//   cmake -S . -B build-bench -DFONTARIA_BENCH=ON && ninja -C build-bench BancoDatosRamales
//   QT_QPA_PLATFORM=offscreen build-bench/bench/BancoDatosRamales

#include "BancoConVentanas.h"
#include "ProyectoGenerado.h"
#include "entry/DatosRamales.h"
#include "entry/screens/VentanaDatosRamales.h"

#include <QApplication>
#include <QPushButton>
#include <benchmark/benchmark.h>

namespace {

constexpr int Ramales = 32766;

struct Editor {
    Sesion s;
    ProyectoEdificio p;
    DialogosMudos d;
    Editor() {
        s.RutaPrograma = QStringLiteral(FONTARIA_RUTA_PROGRAMA);
        QString error;
        if (!CargarProyectoEdificio(p, s, LosArchivos().Plantilla(Ramales), error)) qFatal("%s", qPrintable(error));
    }
};

// The load of the file alone, as the commands run it before the editor.
void LeerElArchivo(benchmark::State& estado) {
    Editor e;
    for (auto _ : estado) {
        QString error;
        CargarProyectoEdificio(e.p, e.s, LosArchivos().Plantilla(Ramales), error);
        benchmark::DoNotOptimize(int(e.p.NumeroRamales));
    }
}

// The editor's own opening on the loaded model: both pages and the table.
void AbrirElEditor(benchmark::State& estado) {
    Editor e;
    for (auto _ : estado) {
        DatosRamales editor(e.p, e.s, e.d);
        editor.Cargar();
        benchmark::DoNotOptimize(editor.Spread1.Filas());
    }
}

void AbrirLaPantalla(benchmark::State& estado) {
    Editor e;
    for (auto _ : estado) {
        VentanaDatosRamales v(e.p, e.s, e.d);
        v.show();
        v.Boton(QStringLiteral("Siguiente"))->click();
        QApplication::processEvents();
    }
}

void InsertarEnLaFila1(benchmark::State& estado) {
    Editor e;
    DatosRamales editor(e.p, e.s, e.d);
    editor.Cargar();
    for (auto _ : estado) {
        estado.PauseTiming();
        // Back to the largest count the counters leave room to insert into.
        e.p.NumeroRamales = Ramales - 1;
        editor.RedimensioneVariables();
        editor.ColoqueRamales();
        estado.ResumeTiming();
        editor.InsertarRamal(1);  // the muted dialogs answer "Sí", the default
    }
    if (int(e.p.NumeroRamales) != Ramales) estado.SkipWithError("no se insertó el ramal");
}

}  // namespace

BENCHMARK(LeerElArchivo)->Unit(benchmark::kMillisecond)->Iterations(3);
BENCHMARK(AbrirElEditor)->Unit(benchmark::kMillisecond)->Iterations(3);
BENCHMARK(AbrirLaPantalla)->Unit(benchmark::kMillisecond)->Iterations(3);
BENCHMARK(InsertarEnLaFila1)->Unit(benchmark::kMillisecond)->Iterations(5);

int main(int argc, char** argv) { return CorrerBancosConVentanas(argc, argv); }
