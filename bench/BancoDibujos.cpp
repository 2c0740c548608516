// The pictures of large networks: the building schematic of a 5,000-branch
// riser project (layout, a whole-picture frame, a frame at 100 % as the
// engineer pans) and the plan of a 30,000-section town (built from its
// coordinates, a whole-town frame, frames zoomed eight and twenty times, the
// nearer one placing the labels of a few hundred nodes, and the layout from
// the section lengths alone for a town without coordinates).
// Frames are painted into a 1600 x 1000 image, the size of the screen's view.
//
//   cmake -S . -B build-bench -G Ninja -DCMAKE_BUILD_TYPE=Release -DFONTARIA_BENCH=ON
//   ninja -C build-bench BancoDibujos
//   build-bench/bench/BancoDibujos

#include "BancoConVentanas.h"
#include "ProyectoGenerado.h"
#include "RedesPueblo.h"
#include "analysis/DatosEsquema.h"
#include "aqueduct/DatosPlano.h"
#include "pictures/DisposicionTension.h"
#include "pictures/EsquemaEdificio.h"
#include "pictures/PlanoAcueducto.h"

#include <QImage>
#include <QPainter>
#include <benchmark/benchmark.h>

namespace {

const QRectF Vista(0, 0, 1600, 1000);

// The generated riser with its floors 3 m apart (apartments on their
// floor) and the texts of an analysed project.
DatosEsquema EsquemaGenerado(int n) {
    ProyectoEdificio p;
    Generar(p, n);
    p.Gasto.Redim(n);
    for (int i = 1; i <= n; ++i) {
        p.CotaPiso[i + 1] = 3.0 * ((i - 1) / 3 + 1);
        p.Predimensionado[i] = QStringLiteral("1 1/4");
        p.Gasto[i] = 0.96;
    }
    DatosEsquema e = EsquemaDeProyecto(p, nullptr);
    for (NodoEsquema& x : e.nodos) x.textoPresion = QStringLiteral("12.34 m");
    e.nodos.back().desfavorable = true;
    return e;
}

// The town with its coordinates, each section at a velocity of its own.
DatosPlano PlanoGenerado(int secciones, bool conCoordenadas) {
    const RedGenerada r = Pueblo(secciones, 3, 7);
    DatosPlano d;
    d.titulo = QStringLiteral("Pueblo");
    for (const NodoRed& n : r.nodos) {
        NodoPlano x;
        x.nombre = n.nombre;
        if (conCoordenadas) x.posicion = QPointF(n.x, n.y);
        x.presion = 10.0 + std::fmod(n.x * 0.01 + n.y * 0.02, 50.0);
        x.textoPresion = QString::number(x.presion, 'f', 2) + QStringLiteral(" m");
        x.fijo = n.cotaFija != 0;
        d.nodos.push_back(x);
    }
    int t = 0;
    for (const TramoRed& s : r.tramos)
        d.tramos.push_back({++t, s.i, s.j, s.longitud, 1.0, 0.1 + 0.15 * (t % 17), 2.0});
    return d;
}

double Escala(const QTransform& t) { return std::sqrt(std::abs(t.determinant())); }

void Pintar(const Dibujo& d, const QTransform& t, benchmark::State& state) {
    QImage imagen(Vista.size().toSize(), QImage::Format_ARGB32_Premultiplied);
    for (auto _ : state) {
        imagen.fill(Qt::white);
        QPainter p(&imagen);
        d.Pintar(p, t, Vista, false);
    }
}

void BM_EsquemaDisposicion(benchmark::State& state) {
    const DatosEsquema e = EsquemaGenerado(int(state.range(0)));
    for (auto _ : state) {
        EsquemaEdificio dibujo(e);
        benchmark::DoNotOptimize(dibujo.Limites());
    }
}

void BM_EsquemaCompleto(benchmark::State& state) {
    const EsquemaEdificio dibujo(EsquemaGenerado(int(state.range(0))));
    Pintar(dibujo, EncuadreDibujo(dibujo, Vista), state);
}

// At 100 %, looking at the middle of the riser: a frame while panning.
void BM_EsquemaAl100(benchmark::State& state) {
    const EsquemaEdificio dibujo(EsquemaGenerado(int(state.range(0))));
    const QPointF centro = dibujo.Limites().center();
    Pintar(dibujo, QTransform::fromTranslate(Vista.center().x() - centro.x(), Vista.center().y() - centro.y()), state);
}

void BM_PlanoConCoordenadas(benchmark::State& state) {
    const DatosPlano d = PlanoGenerado(int(state.range(0)), true);
    for (auto _ : state) {
        PlanoAcueducto plano(d);
        benchmark::DoNotOptimize(plano.Limites());
    }
}

void BM_PlanoCompleto(benchmark::State& state) {
    const PlanoAcueducto plano(PlanoGenerado(int(state.range(0)), true));
    Pintar(plano, EncuadreDibujo(plano, Vista), state);
}

// Zoomed `veces` times about the middle of the view.
QTransform Acercado(const Dibujo& d, double veces) {
    return EncuadreDibujo(d, Vista) * QTransform::fromTranslate(-800, -500) * QTransform::fromScale(veces, veces) *
           QTransform::fromTranslate(800, 500);
}

void BM_PlanoAcercado(benchmark::State& state) {
    const PlanoAcueducto plano(PlanoGenerado(int(state.range(0)), true));
    const QTransform t = Acercado(plano, double(state.range(1)));
    state.counters["px_por_m"] = Escala(t);
    state.counters["etiquetas"] = double(plano.Etiquetas(t, Vista, false).size());
    Pintar(plano, t, state);
}

// How far the laid-out sections are from their lengths: the median of
// |drawn - length| / length.
double ErrorLongitudes(const PlanoAcueducto& plano) {
    std::vector<double> e;
    for (const TramoPlano& t : plano.Datos().tramos) {
        if (t.nodoI < 0 || t.nodoJ < 0 || t.longitud <= 0) continue;
        const QPointF d = plano.PosicionNodo(t.nodoI) - plano.PosicionNodo(t.nodoJ);
        e.push_back(std::abs(std::hypot(d.x(), d.y()) - t.longitud) / t.longitud);
    }
    if (e.empty()) return 0.0;
    std::nth_element(e.begin(), e.begin() + long(e.size() / 2), e.end());
    return e[e.size() / 2];
}

void BM_PlanoSinCoordenadas(benchmark::State& state) {
    const DatosPlano d = PlanoGenerado(int(state.range(0)), false);
    double error = 0.0;
    for (auto _ : state) {
        PlanoAcueducto plano(d);
        benchmark::DoNotOptimize(plano.Limites());
        error = ErrorLongitudes(plano);
    }
    state.counters["error_longitud"] = error;
}

}  // namespace

BENCHMARK(BM_EsquemaDisposicion)->Arg(5000)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_EsquemaCompleto)->Arg(5000)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_EsquemaAl100)->Arg(5000)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_PlanoConCoordenadas)->Arg(30000)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_PlanoCompleto)->Arg(30000)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_PlanoAcercado)->Args({30000, 8})->Args({30000, 20})->Unit(benchmark::kMillisecond);
BENCHMARK(BM_PlanoSinCoordenadas)->Arg(3000)->Arg(30000)->Unit(benchmark::kMillisecond)->Iterations(1);

int main(int argc, char** argv) { return CorrerBancosConVentanas(argc, argv); }
