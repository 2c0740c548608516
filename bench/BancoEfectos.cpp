// Every effect of the photograph screens on a 2,000 x 1,500 photograph,
// timed as the engineer waits for it: the effect and the drawing of its
// result (PintarPixeles).  The picture is generated: smooth colour fields,
// edges and sensor-like noise, so the edge-aware filters meet what a real
// photograph gives them.  None may take more than a second.
//
//   build-bench/bench/BancoEfectos --benchmark_min_time=0.5

#include "images/Pixeles.h"
#include "images/efectos/Efectos.h"
#include "images/efectos/EfectosRGB.h"
#include "images/efectos/Tramados.h"

#include <benchmark/benchmark.h>
#include <cmath>
#include <random>

namespace {

const Pixeles& Fotografia() {
    static const Pixeles p = [] {
        constexpr int W = 2000, H = 1500;
        Pixeles f(W, H);
        std::mt19937 azar(7);
        std::normal_distribution<double> ruido(0, 6);
        for (int y = 0; y < H; ++y)
            for (int x = 0; x < W; ++x) {
                const double u = double(x) / W, v = double(y) / H;
                const bool objeto = std::hypot(u - 0.55, v - 0.5) < 0.25;
                const double r = objeto ? 200 - 80 * v : 60 + 120 * u, g = objeto ? 140 + 40 * u : 90 + 60 * v,
                             b = objeto ? 60 : 180 - 90 * u * v;
                const double n = ruido(azar);
                f(Canal::Rojo, x, y) = uint8_t(std::clamp(r + n, 0.0, 255.0));
                f(Canal::Verde, x, y) = uint8_t(std::clamp(g + n, 0.0, 255.0));
                f(Canal::Azul, x, y) = uint8_t(std::clamp(b + n, 0.0, 255.0));
                f(Canal::Reservado, x, y) = 255;
            }
        return f;
    }();
    return p;
}

template <class F>
void Medir(benchmark::State& estado, F efecto) {
    const Pixeles& o = Fotografia();
    Pixeles d;
    for (auto _ : estado) {
        efecto(d, o);
        QImage vista = PintarPixeles(d);
        benchmark::DoNotOptimize(vista.bits());
    }
}

void Registrar() {
    auto uno = [](const std::string& nombre, auto efecto) {
        benchmark::RegisterBenchmark(nombre.c_str(), [efecto](benchmark::State& e) { Medir(e, efecto); })
            ->Unit(benchmark::kMillisecond);
    };
    const int W = 2000, H = 1500;
    uno("Escala de Grises", [=](Pixeles& d, const Pixeles& o) { GrayscaleCAL(d, o, W, H, 1, 0.5, 0xFFFFFF); });
    uno("Bilateral Filtro", [=](Pixeles& d, const Pixeles& o) { FiltroBilateral(d, o, W, H); });
    uno("Cartonize", [=](Pixeles& d, const Pixeles& o) { DrawCartoonizerP(d, o, W, H); });
    uno("Pencil Drawing", [=](Pixeles& d, const Pixeles& o) { PencilPlusCALC(d, o, W, H); });
    uno("Film Noir", [=](Pixeles& d, const Pixeles& o) { FilmNoirCALC(d, o, W, H); });
    uno("Imagen en 3D", [=](Pixeles& d, const Pixeles& o) { ModernArtSculture(d, o, W, H); });
    uno("AjustarColor (los cuatro)", [=](Pixeles& d, const Pixeles& o) { AjustarColor(d, o, W, H, 20, 20, 20, 50); });
    for (int f = 1; f <= NumeroEfectosRGB; ++f)
        uno("RGB " + std::to_string(f) + " " + NombresEfectosRGB()[f - 1].toStdString(),
            [=](Pixeles& d, const Pixeles& o) { RGBEffectsCALC(d, o, W, H, f); });
    for (int f = 1; f <= NumeroMetodosDithering; ++f)
        uno("Dithering " + std::to_string(f) + " " + NombresDithering()[f - 1].toStdString(),
            [=](Pixeles& d, const Pixeles& o) { AplicarDithering(d, o, W, H, f); });
}

}  // namespace

int main(int argc, char** argv) {
    Registrar();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
