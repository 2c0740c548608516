#include "images/efectos/Tramados.h"
#include "images/efectos/MatPixeles.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <vector>

namespace {

// One cell of an error-diffusion kernel: offset right, offset down, weight.
struct Peso {
    int dx, dy, w;
};
struct Nucleo {
    std::vector<Peso> pesos;
    int divisor;
};

// The published kernels (the error is shared among the unvisited neighbours).
const Nucleo& NucleoDe(int metodo) {
    static const Nucleo floyd{{{1, 0, 7}, {-1, 1, 3}, {0, 1, 5}, {1, 1, 1}}, 16};
    static const Nucleo stucki{
        {{1, 0, 8}, {2, 0, 4}, {-2, 1, 2}, {-1, 1, 4}, {0, 1, 8}, {1, 1, 4}, {2, 1, 2},
         {-2, 2, 1}, {-1, 2, 2}, {0, 2, 4}, {1, 2, 2}, {2, 2, 1}},
        42};
    static const Nucleo burkes{{{1, 0, 8}, {2, 0, 4}, {-2, 1, 2}, {-1, 1, 4}, {0, 1, 8}, {1, 1, 4}, {2, 1, 2}}, 32};
    static const Nucleo sierra{
        {{1, 0, 5}, {2, 0, 3}, {-2, 1, 2}, {-1, 1, 4}, {0, 1, 5}, {1, 1, 4}, {2, 1, 2}, {-1, 2, 2}, {0, 2, 3},
         {1, 2, 2}},
        32};
    static const Nucleo jarvis{
        {{1, 0, 7}, {2, 0, 5}, {-2, 1, 3}, {-1, 1, 5}, {0, 1, 7}, {1, 1, 5}, {2, 1, 3},
         {-2, 2, 1}, {-1, 2, 3}, {0, 2, 5}, {1, 2, 3}, {2, 2, 1}},
        48};
    // Atkinson passes on only six eighths of the error, which keeps contrast.
    static const Nucleo atkinson{{{1, 0, 1}, {2, 0, 1}, {-1, 1, 1}, {0, 1, 1}, {1, 1, 1}, {0, 2, 1}}, 8};
    switch (metodo) {
    case 3: return stucki;
    case 4: return burkes;
    case 5: return sierra;
    case 6: return jarvis;
    case 7: return atkinson;
    default: return floyd;
    }
}

// The grey of the picture in reading order: row 0 is the top.
std::vector<float> Grises(const Pixeles& o) {
    std::vector<float> g(size_t(o.W) * size_t(o.H));
    for (int y = 0; y < o.H; ++y) {
        const uint8_t* p = o.Fila(o.H - 1 - y);
        float* f = g.data() + size_t(y) * size_t(o.W);
        for (int x = 0; x < o.W; ++x, p += 4) f[x] = float(Luminancia(p[2], p[1], p[0]));
    }
    return g;
}

void PonerColor(uint8_t* p, int color) {
    p[0] = uint8_t((color >> 16) & 0xff);
    p[1] = uint8_t((color >> 8) & 0xff);
    p[2] = uint8_t(color & 0xff);
}

// The two colours from a mask in reading order (true is light).
void Pintar(Pixeles& destino, const Pixeles& origen, const std::vector<uint8_t>& claros, int claro, int oscuro) {
    PrepararDestino(destino, origen.W, origen.H);
    for (int y = 0; y < origen.H; ++y) {
        uint8_t* d = destino.Fila(origen.H - 1 - y);
        const uint8_t* o = origen.Fila(origen.H - 1 - y);
        const uint8_t* m = claros.data() + size_t(y) * size_t(origen.W);
        for (int x = 0; x < origen.W; ++x, d += 4) {
            PonerColor(d, m[x] ? claro : oscuro);
            d[3] = o[4 * x + 3];
        }
    }
}

// Ordered dithering by a tile of thresholds in 0..1 (`n` columns, `m` rows),
// laid from the top-left corner of the picture.
void PorUmbrales(Pixeles& destino, const Pixeles& origen, const std::vector<double>& umbrales, int n, int m,
                 int claro, int oscuro) {
    const int W = origen.W, H = origen.H;
    std::vector<uint8_t> claros(size_t(W) * size_t(H));
    const std::vector<float> g = Grises(origen);
    for (int y = 0; y < H; ++y)
        for (int x = 0; x < W; ++x) {
            const size_t i = size_t(y) * size_t(W) + size_t(x);
            claros[i] = g[i] > umbrales[size_t((y % m) * n + x % n)] * 255.0;
        }
    Pintar(destino, origen, claros, claro, oscuro);
}

// Thresholds (rank + 0.5) / count from a spot value of each cell of the
// tile: the cells nearest the centre of a dot or a line darken first, so a
// grey of g% darkens g% of the tile.
std::vector<double> UmbralesPorOrden(const std::vector<double>& mancha) {
    std::vector<int> orden(mancha.size());
    std::iota(orden.begin(), orden.end(), 0);
    std::stable_sort(orden.begin(), orden.end(), [&](int a, int b) { return mancha[size_t(a)] > mancha[size_t(b)]; });
    std::vector<double> u(mancha.size());
    for (size_t k = 0; k < orden.size(); ++k) u[size_t(orden[k])] = (k + 0.5) / double(orden.size());
    return u;
}

std::vector<double> Bayer(int n) {
    std::vector<double> m{0};
    for (int lado = 1; lado < n; lado *= 2) {
        std::vector<double> s(size_t(4) * lado * lado);
        for (int y = 0; y < lado; ++y)
            for (int x = 0; x < lado; ++x) {
                const double v = 4 * m[size_t(y * lado + x)];
                const int l2 = 2 * lado;
                s[size_t(y * l2 + x)] = v;
                s[size_t(y * l2 + x + lado)] = v + 2;
                s[size_t((y + lado) * l2 + x)] = v + 3;
                s[size_t((y + lado) * l2 + x + lado)] = v + 1;
            }
        m = std::move(s);
    }
    for (double& v : m) v = (v + 0.5) / (n * n);
    return m;
}

}  // namespace

void DitheringP1(Pixeles& destino, const Pixeles& origen, int W, int H, int metodo, int claro, int oscuro) {
    const Nucleo& k = NucleoDe(metodo);
    const bool serpentina = metodo == 2;
    std::vector<float> g = Grises(origen);
    std::vector<uint8_t> claros(g.size());
    for (int y = 0; y < H; ++y) {
        const bool atras = serpentina && (y % 2 == 1);
        for (int i = 0; i < W; ++i) {
            const int x = atras ? W - 1 - i : i;
            const size_t p = size_t(y) * size_t(W) + size_t(x);
            const bool luz = g[p] >= 128;
            claros[p] = luz;
            const float error = g[p] - (luz ? 255.0f : 0.0f);
            for (const Peso& w : k.pesos) {
                const int nx = x + (atras ? -w.dx : w.dx), ny = y + w.dy;
                if (nx < 0 || nx >= W || ny >= H) continue;
                g[size_t(ny) * size_t(W) + size_t(nx)] += error * float(w.w) / float(k.divisor);
            }
        }
    }
    Pintar(destino, origen, claros, claro, oscuro);
}

void HTHalfToneP1(Pixeles& destino, const Pixeles& origen, int W, int H, int tipo, int claro, int oscuro) {
    // Dot centres in the 8 x 8 tile: one in the middle (0°), or one on the
    // corners and one in the middle (a screen turned 45°).
    constexpr int n = 8;
    std::vector<double> mancha(n * n);
    for (int y = 0; y < n; ++y)
        for (int x = 0; x < n; ++x) {
            const double px = x + 0.5, py = y + 0.5;
            double d = 1e9;
            if (tipo == 2) {
                for (double cx : {0.0, 4.0, 8.0})
                    for (double cy : {0.0, 4.0, 8.0})
                        if ((int(cx) / 4 + int(cy) / 4) % 2 == 0) d = std::min(d, std::hypot(px - cx, py - cy));
            } else {
                d = std::hypot(px - 4.0, py - 4.0);
            }
            mancha[size_t(y * n + x)] = -d;  // nearest a centre darkens first
        }
    // A dark cell is one whose threshold the grey does not pass: the dot
    // grows from the cells with the highest thresholds.
    std::vector<double> u = UmbralesPorOrden(mancha);
    for (double& v : u) v = 1 - v;
    PorUmbrales(destino, origen, u, n, n, claro, oscuro);
    (void)W;
    (void)H;
}

void HTLineP1(Pixeles& destino, const Pixeles& origen, int W, int H, int tipo, int claro, int oscuro) {
    constexpr int periodo = 6;
    std::vector<double> mancha(periodo * periodo);
    for (int y = 0; y < periodo; ++y)
        for (int x = 0; x < periodo; ++x) {
            const int fase = tipo == 2 ? (x + y) % periodo : y;
            // Distance to the line's middle, with a little of the column to
            // break ties so that a line thickens evenly along its length.
            mancha[size_t(y * periodo + x)] = -std::fabs(fase + 0.5 - periodo / 2.0) - 0.01 * ((x * 5) % periodo);
        }
    std::vector<double> u = UmbralesPorOrden(mancha);
    for (double& v : u) v = 1 - v;
    PorUmbrales(destino, origen, u, periodo, periodo, claro, oscuro);
    (void)W;
    (void)H;
}

void OrderedPC1(Pixeles& destino, const Pixeles& origen, int, int, int claro, int oscuro) {
    static const std::vector<double> m = Bayer(4);
    PorUmbrales(destino, origen, m, 4, 4, claro, oscuro);
}

void OrderedPC2(Pixeles& destino, const Pixeles& origen, int, int, int claro, int oscuro) {
    static const std::vector<double> m = Bayer(8);
    PorUmbrales(destino, origen, m, 8, 8, claro, oscuro);
}

const QStringList& NombresDithering() {
    static const QStringList n = {"Floyd-SteinbergA", "Floyd-SteinbergB", "Stucki",  "Burkes", "Sierra",
                                  "Jarvis et al",     "Atkinson",         "Half tone 1", "Half tone 2", "Line 1",
                                  "Line 2",           "Ordered (Bayer 4x4)", "Ordered (Bayer 8x8)"};
    return n;
}

void AplicarDithering(Pixeles& destino, const Pixeles& origen, int W, int H, int fila) {
    if (fila >= 1 && fila <= 7) DitheringP1(destino, origen, W, H, fila);
    else if (fila == 8 || fila == 9) HTHalfToneP1(destino, origen, W, H, fila - 7);
    else if (fila == 10 || fila == 11) HTLineP1(destino, origen, W, H, fila - 9);
    else if (fila == 12) OrderedPC1(destino, origen, W, H, 0xFFFFFF, 0);
    else if (fila == 13) OrderedPC2(destino, origen, W, H, 0xFFFFFF, 0);
    else destino = origen;
}
