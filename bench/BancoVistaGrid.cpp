// The grid view at the size of the largest project: showing a grid of
// 32,767 branch rows with joined cells, repainting it after an edit that
// changes only values, and after one that changes the joined cells.
//
//   cmake -S . -B build -DFONTARIA_BENCH=ON && ninja -C build BancoVistaGrid
//   QT_QPA_PLATFORM=offscreen build/bench/BancoVistaGrid

#include "BancoConVentanas.h"
#include "base/Grid.h"
#include "widgets/VistaGrid.h"

#include <QApplication>
#include <benchmark/benchmark.h>

namespace {

// Like the equivalent-lengths grid: 9 columns, each branch over two rows
// with columns 1, 2 and 4 joined.
Grid GridRamales(int ramales) {
    Grid g(9);
    g.PonerEncabezados(1, QStringLiteral("Ramal"), QStringLiteral("Nodo I"));
    g.PonerEncabezados(2, QStringLiteral("Ramal"), QStringLiteral("Nodo J"));
    g.UnirEncabezado(1, 1, 1, 2);
    for (int c = 3; c <= 9; ++c) g.PonerEncabezados(c, QStringLiteral("Columna %1").arg(c));
    g.PonerFilas(2 * ramales);
    for (int r = 1; r <= ramales; ++r) {
        const int f = 2 * r - 1;
        g.PonerEntero(f, 0, r);
        g.PonerTexto(f, 1, QStringLiteral("N%1").arg(r));
        g.PonerTexto(f, 2, QStringLiteral("N%1").arg(r + 1));
        g.PonerTexto(f, 3, QStringLiteral("CODO 90°"));
        g.PonerTexto(f + 1, 3, QStringLiteral("TEE PASO DIRECTO"));
        for (int c = 5; c <= 9; ++c) g.PonerNumero(f, c, 0.01 * r * c, 2);
        for (int c : {1, 2, 4}) g.Unir(f, c, 2, 1);
    }
    return g;
}

void MostrarGrid(benchmark::State& estado) {
    Grid g = GridRamales(int(estado.range(0)));
    VistaGrid v;
    v.resize(1200, 700);
    for (auto _ : estado) {
        v.MostrarGrid(&g);
        QApplication::processEvents();
    }
    estado.SetLabel(QStringLiteral("%1 filas").arg(g.Filas()).toStdString());
}

void RefrescarValores(benchmark::State& estado) {
    Grid g = GridRamales(int(estado.range(0)));
    VistaGrid v;
    v.resize(1200, 700);
    v.MostrarGrid(&g);
    int i = 0;
    for (auto _ : estado) {
        g.PonerNumero(1, 5, ++i, 2);
        v.Refrescar();
        v.grab();  // paints the visible rows
    }
}

void RefrescarUniones(benchmark::State& estado) {
    Grid g = GridRamales(int(estado.range(0)));
    VistaGrid v;
    v.resize(1200, 700);
    v.MostrarGrid(&g);
    bool alterna = false;
    for (auto _ : estado) {
        // A reduction row appears or goes: the joins below it move.
        if ((alterna = !alterna)) {
            g.InsertarFila(3);
            g.Unir(1, 1, 3, 1);
        } else {
            g.EliminarFila(3);
            g.Unir(1, 1, 2, 1);
        }
        v.Refrescar();
        v.grab();
    }
}

}  // namespace

BENCHMARK(MostrarGrid)->Arg(1000)->Arg(5000)->Arg(16383)->Unit(benchmark::kMillisecond);
BENCHMARK(RefrescarValores)->Arg(5000)->Arg(16383)->Unit(benchmark::kMillisecond);
BENCHMARK(RefrescarUniones)->Arg(5000)->Arg(16383)->Unit(benchmark::kMillisecond);

int main(int argc, char** argv) { return CorrerBancosConVentanas(argc, argv); }
