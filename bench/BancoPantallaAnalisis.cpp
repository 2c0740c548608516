// The analysis screen as the engineer uses it, on generated projects of 100
// to 32,766 branches: its load (the chain and the four grid views), and one
// edit typed into a cell with everything that follows until the screen is
// painted again: the assumed diameter of a riser segment (file write,
// lengths, pressures, three grids refreshed) and a reducing valve (file
// write, pressures, one grid).
//
//   cmake -S . -B build -G Ninja -DCMAKE_BUILD_TYPE=Release -DFONTARIA_BENCH=ON
//   ninja -C build BancoPantallaAnalisis
//   QT_QPA_PLATFORM=offscreen build/bench/BancoPantallaAnalisis

#include "BancoConVentanas.h"
#include "ProyectoGenerado.h"
#include "analysis/Numeracion.h"
#include "analysis/screens/VentanaAnalisisRed.h"
#include "widgets/NivoTab.h"
#include "widgets/VistaGrid.h"

#include <QApplication>
#include <benchmark/benchmark.h>
#include <functional>

namespace {

// A generated project loaded and verified as the command does.
struct Proyecto {
    Sesion s;
    DialogosMudos d;
    ProyectoEdificio p;

    Proyecto(int n, const char* nombre) {
        s.RutaPrograma = QStringLiteral(FONTARIA_RUTA_PROGRAMA);
        s.ArchivoProyecto = LosArchivos().Copia(n, QString::fromLatin1(nombre));
        s.NombreProyecto = QString::fromLatin1(nombre);
        ValoresIniciales(p, s);
        AbrirConexionProyecto(s);
        LeerProyecto(p, s);
        VerificarNumeracion(p, d);
        if (p.ErrorNumeracion != 0) qFatal("numeración");
    }
};

// The screen at the size it opens with, on a tab.
void Mostrar(VentanaAnalisisRed& v, int tab) {
    v.resize(1470, 860);
    v.show();
    v.Tabs()->PonerTab(tab);
    QApplication::processEvents();
}

// A value typed into a cell, its handler run and the view painted.
void Teclear(VentanaAnalisisRed& v, int tab, int fila, int columna, const QString& texto) {
    ModeloGrid& m = v.Vista(tab)->Modelo();
    m.setData(m.index(fila - 1, columna - 1), texto, Qt::EditRole);
    QApplication::processEvents();
    v.Vista(tab)->viewport()->repaint();
}

void BM_CargaPantalla(benchmark::State& state) {
    const int n = int(state.range(0));
    Proyecto pr(n, "carga.plm");
    for (auto _ : state) {
        VentanaAnalisisRed v(pr.p, pr.s, pr.d);
        if (!v.Cargar()) state.SkipWithError("falla del cálculo");
        Mostrar(v, 1);
        v.Vista(1)->viewport()->repaint();
    }
    state.counters["ramales"] = n;
}

// The same cell of a riser segment half-way up, typed again and again with
// two values in turn: each edit writes the file and reruns.
void Ediciones(benchmark::State& state, const char* archivo, int tab, int columna,
               const std::function<std::pair<QString, QString>(const QString& original)>& valores) {
    const int n = int(state.range(0));
    Proyecto pr(n, archivo);
    VentanaAnalisisRed v(pr.p, pr.s, pr.d);
    v.Cargar();
    Mostrar(v, tab);
    const int fila = ((n / 2) / 3) * 3 + 1;
    VistaGrid* vista = v.Vista(tab);
    vista->scrollTo(vista->Modelo().index(fila - 1, columna - 1));
    const auto [a, b] = valores(vista->grid()->Texto(fila, columna));
    QString ultimo = a;
    for (auto _ : state) {
        ultimo = ultimo == a ? b : a;
        Teclear(v, tab, fila, columna, ultimo);
    }
    if (vista->grid()->Texto(fila, columna) != ultimo) state.SkipWithError("la edición no llegó a la rejilla");
    state.counters["ramales"] = n;
}

// One size up and back: the reductions around the segment change too.
void BM_EdicionDiametroPantalla(benchmark::State& state) {
    Ediciones(state, "diametro.plm", 1, 7, [](const QString& original) {
        return std::make_pair(original, original == QStringLiteral("12\"") ? QStringLiteral("10\"") : QStringLiteral("12\""));
    });
}

void BM_EdicionValvulaPantalla(benchmark::State& state) {
    Ediciones(state, "valvula.plm", 4, 14, [](const QString&) {
        return std::make_pair(QStringLiteral("0.50"), QStringLiteral("2.00"));
    });
}

}  // namespace

BENCHMARK(BM_CargaPantalla)->Arg(100)->Arg(5000)->Arg(32766)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_EdicionDiametroPantalla)->Arg(100)->Arg(1000)->Arg(5000)->Arg(32766)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_EdicionValvulaPantalla)->Arg(100)->Arg(1000)->Arg(5000)->Arg(32766)->Unit(benchmark::kMillisecond);

int main(int argc, char** argv) { return CorrerBancosConVentanas(argc, argv); }
