#include "images/efectos/EfectosRGB.h"
#include "images/efectos/MatPixeles.h"

#include <opencv2/imgproc.hpp>

#include <algorithm>
#include <array>
#include <cmath>
#include <initializer_list>

const QStringList& NombresEfectosRGB() {
    static const QStringList nombres = [] {
        QStringList n = {
            "Dark Green", "Dark Blue", "Dark Red", "Lava", "Flame", "Atmosphere", "Alien", "Neon", "Radiactive",
            "Thermograph", "Steel", "Nocturne", "Metalic", "Freeze", "Shadow Red", "Shadow Green", "Shadow Blue",
            "Aqua", "Dream", "Dream-Blue", "Dream-Yellow", "Dream-Red", "Synthesize", "Ocean", "Rainbow", "Sepia",
            "Sepia Antique", "No Red", "No Green", "No Blue", "Only Blue", "Only Green", "Only Red",
            "Swap RGB (G, R, B)", "Swap RGB (G, B, R)", "Swap RGB (R, B, G)", "Swap RGB (B, R, G)",
            "Swap RGB (B, G, R)", "Inverse Blue", "Inverse Green", "Inverse Red", "Inverse Blue-Red",
            "Inverse Red-Green", "Inverse Blue-Green", "Swap Blue and Red", "Swap Blue and Green",
            "Swap Red and Green", "Afrika", "Invert RGB", "Invert CYMK", "Invert HUE", "Compound Invert", "Aquarel",
            "Charcoal", "Dark Moon", "High Flame", "Liquid", "Dark Neon", "Purple Rain", "Spooky", "Total Eclipse",
            "Unreal", "Yellow", "Solid Greys", "Red X-Ray", "Green X-Ray", "Blue X-Ray", "Night Red", "Night Green",
            "Night Blue", "Night Brown", "Deep Green", "Deep Blue", "Deep Red", "Carnival"};
        for (int i = 1; i <= 37; ++i)
            if (i != 10) n << QStringLiteral("Lumen Effect (%1)").arg(i);
        return n;
    }();
    return nombres;
}

namespace {

// One pixel as the per-pixel effects see it, channels 0..255 (or beyond,
// clamped on the way out).
struct Rgb {
    double r, g, b;
};

double Lum(const Rgb& p) { return 0.299 * p.r + 0.587 * p.g + 0.114 * p.b; }

template <class F>
void PorPixel(Pixeles& destino, const Pixeles& origen, F f) {
    const uint8_t* o = origen.datos.data();
    uint8_t* d = destino.datos.data();
    const size_t n = origen.datos.size();
    for (size_t i = 0; i < n; i += 4) {
        const Rgb p = f(Rgb{double(o[i + 2]), double(o[i + 1]), double(o[i])});
        d[i] = Saturar(p.b);
        d[i + 1] = Saturar(p.g);
        d[i + 2] = Saturar(p.r);
        d[i + 3] = o[i + 3];
    }
}

// The same with a table of 256 values for each channel.
void PorTabla(Pixeles& destino, const Pixeles& origen, double (*f)(double, double), double parametro) {
    uint8_t t[256];
    for (int v = 0; v < 256; ++v) t[v] = Saturar(f(v, parametro));
    const uint8_t* o = origen.datos.data();
    uint8_t* d = destino.datos.data();
    const size_t n = origen.datos.size();
    for (size_t i = 0; i < n; i += 4) {
        d[i] = t[o[i]];
        d[i + 1] = t[o[i + 1]];
        d[i + 2] = t[o[i + 2]];
        d[i + 3] = o[i + 3];
    }
}

// Gradient map: the luminance picks a colour along stops (luminance, 0xRRGGBB).
struct Parada {
    int l;
    int rgb;
};
void Degradado(Pixeles& destino, const Pixeles& origen, std::initializer_list<Parada> paradas) {
    std::array<Rgb, 256> tabla;
    const Parada* p = paradas.begin();
    for (int v = 0; v < 256; ++v) {
        while (p + 1 != paradas.end() && (p + 1)->l < v) ++p;
        const Parada& a = *p;
        const Parada& b = p + 1 != paradas.end() ? *(p + 1) : *p;
        const double t = b.l > a.l ? std::clamp(double(v - a.l) / (b.l - a.l), 0.0, 1.0) : 0.0;
        auto canal = [&](int desplazamiento) {
            return ((a.rgb >> desplazamiento) & 0xff) * (1 - t) + ((b.rgb >> desplazamiento) & 0xff) * t;
        };
        tabla[size_t(v)] = Rgb{canal(16), canal(8), canal(0)};
    }
    PorPixel(destino, origen, [&](Rgb c) { return tabla[size_t(std::clamp(int(Lum(c) + 0.5), 0, 255))]; });
}

// A colour of hue 0..360, saturation and value 0..1.
Rgb DeHsv(double h, double s, double v) {
    h = std::fmod(std::fmod(h, 360) + 360, 360) / 60;
    const int i = int(h);
    const double f = h - i, p = v * (1 - s), q = v * (1 - s * f), t = v * (1 - s * (1 - f));
    const double r[6] = {v, q, p, p, t, v}, g[6] = {t, v, v, q, p, p}, b[6] = {p, p, t, v, v, q};
    return Rgb{255 * r[i], 255 * g[i], 255 * b[i]};
}

// Hue turned by `grados` in the YIQ plane, luminance kept.
void GirarTono(Pixeles& destino, const Pixeles& origen, double grados) {
    const double c = std::cos(grados * M_PI / 180), s = std::sin(grados * M_PI / 180);
    PorPixel(destino, origen, [&](Rgb p) {
        const double y = Lum(p), i = 0.596 * p.r - 0.274 * p.g - 0.322 * p.b, q = 0.211 * p.r - 0.523 * p.g + 0.312 * p.b;
        const double i2 = i * c - q * s, q2 = i * s + q * c;
        return Rgb{y + 0.956 * i2 + 0.621 * q2, y - 0.272 * i2 - 0.647 * q2, y - 1.106 * i2 + 1.703 * q2};
    });
}

Rgb Saturacion(Rgb p, double k) {
    const double l = Lum(p);
    return Rgb{l + (p.r - l) * k, l + (p.g - l) * k, l + (p.b - l) * k};
}

double Posterizar(double v, int niveles) {
    const double paso = 255.0 / (niveles - 1);
    return std::round(v / paso) * paso;
}


// Tint of a grey level: the channel `dominante` (0 red, 1 green, 2 blue)
// takes `fuerte` of it, the others `debil`.
Rgb Tinte(double v, int dominante, double fuerte, double debil) {
    Rgb p{v * debil, v * debil, v * debil};
    (dominante == 0 ? p.r : dominante == 1 ? p.g : p.b) = v * fuerte;
    return p;
}

double& CanalDe(Rgb& p, int c) { return c == 0 ? p.r : c == 1 ? p.g : p.b; }
double CanalDe(const Rgb& p, int c) { return c == 0 ? p.r : c == 1 ? p.g : p.b; }

// "Swap A and B": the colours led by A or B exchange those two channels,
// with the brightness the exchange changed put back; colours led by the
// third channel stay as they are, with a soft border between the two.
Rgb CambiarColores(const Rgb& p, int a, int b) {
    Rgb q = p;
    std::swap(CanalDe(q, a), CanalDe(q, b));
    const double d = Lum(p) - Lum(q);
    const double w =
        std::clamp((std::max(CanalDe(q, a), CanalDe(q, b)) - CanalDe(p, 3 - a - b)) / 32 + 0.5, 0.0, 1.0);
    return Rgb{p.r + w * (q.r + d - p.r), p.g + w * (q.g + d - p.g), p.b + w * (q.b + d - p.b)};
}

// Neighbourhood effects through OpenCV.
cv::Mat Borroso(const Pixeles& o, double sigma) {
    cv::Mat b;
    cv::GaussianBlur(MatDe(o), b, cv::Size(0, 0), sigma);
    return b;
}
cv::Mat BordesColor(const Pixeles& o) {
    cv::Mat gx, gy, m;
    cv::Sobel(MatDe(o), gx, CV_16S, 1, 0);
    cv::Sobel(MatDe(o), gy, CV_16S, 0, 1);
    cv::convertScaleAbs(gx, gx);
    cv::convertScaleAbs(gy, gy);
    cv::add(gx, gy, m);
    return m;
}
// The pixel `i` of a BGRA matrix as Rgb.
Rgb En(const cv::Mat& m, size_t i) {
    const uint8_t* p = m.data + i * 4;
    return Rgb{double(p[2]), double(p[1]), double(p[0])};
}
// A per-pixel effect that also reads a companion picture of the same size.
template <class F>
void ConApoyo(Pixeles& destino, const Pixeles& origen, const cv::Mat& apoyo, F f) {
    size_t i = 0;
    PorPixel(destino, origen, [&](Rgb p) { return f(p, En(apoyo, i++)); });
}
void CopiarMat(Pixeles& destino, const Pixeles& origen, const cv::Mat& m) {
    cv::Mat d = MatDe(destino);
    m.copyTo(d);
    for (size_t i = 3; i < destino.datos.size(); i += 4) destino.datos[i] = origen.datos[i];
}

Rgb Pantalla(Rgb a, Rgb b) {  // "screen" blend: lighter, soft
    return Rgb{255 - (255 - a.r) * (255 - b.r) / 255, 255 - (255 - a.g) * (255 - b.g) / 255,
               255 - (255 - a.b) * (255 - b.b) / 255};
}

void Sueno(Pixeles& destino, const Pixeles& origen, Rgb suma, Rgb factor) {
    const cv::Mat b = Borroso(origen, 6);
    ConApoyo(destino, origen, b, [&](Rgb p, Rgb q) {
        const Rgb s = Pantalla(p, q);
        return Rgb{s.r * factor.r + suma.r, s.g * factor.g + suma.g, s.b * factor.b + suma.b};
    });
}

void EfectoColores(Pixeles& destino, const Pixeles& origen, int W, int H, int fila);
void EfectoLumen(Pixeles& destino, const Pixeles& origen, int W, int H, int n);

}  // namespace

void RGBEffectsCALC(Pixeles& destino, const Pixeles& origen, int W, int H, int fila) {
    PrepararDestino(destino, W, H);
    if (fila < 1 || fila > NumeroEfectosRGB) {
        destino = origen;
        return;
    }
    if (fila <= 75) EfectoColores(destino, origen, W, H, fila);
    else {
        // Rows 76.. are "Lumen Effect (1)" on, without number 10.
        const int n = fila - 75;
        EfectoLumen(destino, origen, W, H, n >= 10 ? n + 1 : n);
    }
}

namespace {

void EfectoColores(Pixeles& d, const Pixeles& o, int W, int H, int fila) {
    // Families by colour: 0 red, 1 green, 2 blue.
    switch (fila) {
    case 1: case 2: case 3: {  // Dark Green, Dark Blue, Dark Red: a dim tint of the grey
        const int c = fila == 1 ? 1 : fila == 2 ? 2 : 0;
        return PorPixel(d, o, [c](Rgb p) { return Tinte(Lum(p), c, 0.8, 0.25); });
    }
    case 4: return Degradado(d, o, {{0, 0x000000}, {70, 0x400000}, {140, 0xC00000}, {200, 0xFF6000}, {255, 0xFFD040}});
    case 5: return Degradado(d, o, {{0, 0x000000}, {60, 0x800000}, {130, 0xFF4000}, {200, 0xFFC000}, {255, 0xFFFFFF}});
    case 6: return Degradado(d, o, {{0, 0x000020}, {90, 0x1040A0}, {180, 0x60A0E0}, {255, 0xE0F0FF}});
    case 7: return PorPixel(d, o, [](Rgb p) { return Rgb{255 - p.g, p.r, (p.b + 255 - p.r) / 2}; });
    case 8: {  // Neon: the colour edges glowing on black
        const cv::Mat m = BordesColor(o);
        return ConApoyo(d, o, m, [](Rgb, Rgb e) { return Rgb{e.r * 1.5, e.g * 1.5, e.b * 1.5}; });
    }
    case 9: return Degradado(d, o, {{0, 0x000000}, {110, 0x20FF00}, {200, 0xE0FF40}, {255, 0xFFFFFF}});
    case 10:
        return Degradado(d, o, {{0, 0x000000}, {51, 0x2000A0}, {102, 0xA000A0}, {153, 0xFF2000}, {204, 0xFFD000},
                                {255, 0xFFFFFF}});
    case 11: return Degradado(d, o, {{0, 0x101820}, {100, 0x607080}, {190, 0xC0D0E0}, {255, 0xFFFFFF}});
    case 12:  // night blue, the brightest lights still white
        return Degradado(d, o, {{0, 0x000010}, {90, 0x101850}, {180, 0x4060A0}, {255, 0xE0E8FF}});
    case 13: return PorPixel(d, o, [](Rgb p) {
            const double v = 255 * std::fabs(std::sin(Lum(p) / 255 * M_PI * 1.5));
            return Rgb{v, v, v + 15};
        });
    case 14: return PorPixel(d, o, [](Rgb p) {  // frosted: pale, cold, little contrast
            const double l = Lum(p);
            return Rgb{l * 0.6 + 90, l * 0.65 + 105, l * 0.45 + 140};
        });
    case 15: case 16: case 17: {  // Shadow Red, Green, Blue: the other two halved
        const int c = fila - 15;
        return PorPixel(d, o, [c](Rgb p) {
            Rgb q{p.r * 0.5, p.g * 0.5, p.b * 0.5};
            CanalDe(q, c) = CanalDe(p, c);
            return q;
        });
    }
    case 18: return PorPixel(d, o, [](Rgb p) { return Rgb{p.r * 0.3, p.g * 0.6 + p.b * 0.4 + 20, p.b * 0.8 + 60}; });
    case 19: return Sueno(d, o, {0, 0, 0}, {1, 1, 1});
    case 20: return Sueno(d, o, {0, 0, 40}, {0.85, 0.95, 1});
    case 21: return Sueno(d, o, {30, 30, 0}, {1, 1, 0.8});
    case 22: return Sueno(d, o, {40, 0, 0}, {1, 0.85, 0.85});
    case 23: return PorPixel(d, o, [](Rgb p) { return Rgb{2 * p.r - p.b, 2 * p.g - p.r, 2 * p.b - p.g}; });
    case 24:
        return Degradado(d, o, {{0, 0x000818}, {60, 0x003060}, {130, 0x0080A0}, {200, 0x40D0E0}, {255, 0xE0FFFF}});
    case 25: return PorPixel(d, o, [](Rgb p) {
            const double l = Lum(p);
            return DeHsv(l / 255 * 300, 1, 0.5 + 0.5 * l / 255);
        });
    case 26: return PorPixel(d, o, [](Rgb p) {
            return Rgb{0.393 * p.r + 0.769 * p.g + 0.189 * p.b, 0.349 * p.r + 0.686 * p.g + 0.168 * p.b,
                       0.272 * p.r + 0.534 * p.g + 0.131 * p.b};
        });
    case 27: return PorPixel(d, o, [](Rgb p) {  // faded sepia print
            const double r = 0.393 * p.r + 0.769 * p.g + 0.189 * p.b, g = 0.349 * p.r + 0.686 * p.g + 0.168 * p.b,
                         b = 0.272 * p.r + 0.534 * p.g + 0.131 * p.b;
            return Rgb{std::min(r, 255.0) * 0.7 + 45, std::min(g, 255.0) * 0.7 + 35, std::min(b, 255.0) * 0.65 + 20};
        });
    case 28: return PorPixel(d, o, [](Rgb p) { return Rgb{0, p.g, p.b}; });
    case 29: return PorPixel(d, o, [](Rgb p) { return Rgb{p.r, 0, p.b}; });
    case 30: return PorPixel(d, o, [](Rgb p) { return Rgb{p.r, p.g, 0}; });
    case 31: return PorPixel(d, o, [](Rgb p) { return Rgb{0, 0, p.b}; });
    case 32: return PorPixel(d, o, [](Rgb p) { return Rgb{0, p.g, 0}; });
    case 33: return PorPixel(d, o, [](Rgb p) { return Rgb{p.r, 0, 0}; });
    // Swap RGB (X, Y, Z): the new red, green and blue are the old X, Y, Z.
    case 34: return PorPixel(d, o, [](Rgb p) { return Rgb{p.g, p.r, p.b}; });
    case 35: return PorPixel(d, o, [](Rgb p) { return Rgb{p.g, p.b, p.r}; });
    case 36: return PorPixel(d, o, [](Rgb p) { return Rgb{p.r, p.b, p.g}; });
    case 37: return PorPixel(d, o, [](Rgb p) { return Rgb{p.b, p.r, p.g}; });
    case 38: return PorPixel(d, o, [](Rgb p) { return Rgb{p.b, p.g, p.r}; });
    case 39: return PorPixel(d, o, [](Rgb p) { return Rgb{p.r, p.g, 255 - p.b}; });
    case 40: return PorPixel(d, o, [](Rgb p) { return Rgb{p.r, 255 - p.g, p.b}; });
    case 41: return PorPixel(d, o, [](Rgb p) { return Rgb{255 - p.r, p.g, p.b}; });
    case 42: return PorPixel(d, o, [](Rgb p) { return Rgb{255 - p.r, p.g, 255 - p.b}; });
    case 43: return PorPixel(d, o, [](Rgb p) { return Rgb{255 - p.r, 255 - p.g, p.b}; });
    case 44: return PorPixel(d, o, [](Rgb p) { return Rgb{p.r, 255 - p.g, 255 - p.b}; });
    // Swap ... and ...: those two colours exchanged, the others left.
    case 45: return PorPixel(d, o, [](Rgb p) { return CambiarColores(p, 2, 0); });
    case 46: return PorPixel(d, o, [](Rgb p) { return CambiarColores(p, 2, 1); });
    case 47: return PorPixel(d, o, [](Rgb p) { return CambiarColores(p, 0, 1); });
    case 48: return Degradado(d, o, {{0, 0x100400}, {80, 0x6A2A00}, {170, 0xD07010}, {255, 0xFFD070}});
    case 49: return PorPixel(d, o, [](Rgb p) { return Rgb{255 - p.r, 255 - p.g, 255 - p.b}; });
    case 50: return PorPixel(d, o, [](Rgb p) {  // C, M, Y inverted, K kept: each channel max - itself
            const double m = std::max({p.r, p.g, p.b});
            return Rgb{m - p.r, m - p.g, m - p.b};
        });
    case 51: return PorPixel(d, o, [](Rgb p) {  // the hue turned half round, lightness and saturation kept
            const double s = std::max({p.r, p.g, p.b}) + std::min({p.r, p.g, p.b});
            return Rgb{s - p.r, s - p.g, s - p.b};
        });
    case 52: return PorPixel(d, o, [](Rgb p) {  // the lightness inverted, the hue kept
            const double s = std::max({p.r, p.g, p.b}) + std::min({p.r, p.g, p.b});
            return Rgb{255 + p.r - s, 255 + p.g - s, 255 + p.b - s};
        });
    case 53: {  // Aquarel: washes of flat, pale colour
        cv::Mat m;
        cv::medianBlur(BgrDe(o), m, 7);
        cv::cvtColor(m, m, cv::COLOR_BGR2BGRA);
        return ConApoyo(d, o, m, [](Rgb, Rgb q) {
            return Rgb{Posterizar(q.r, 6) * 0.8 + 50, Posterizar(q.g, 6) * 0.8 + 50, Posterizar(q.b, 6) * 0.8 + 50};
        });
    }
    case 54: {  // Charcoal: dark strokes on the edges
        const cv::Mat m = BordesColor(o);
        return ConApoyo(d, o, m, [](Rgb, Rgb e) {
            const double v = 255 - 1.5 * Lum(e);
            return Rgb{v, v, v};
        });
    }
    case 55: return PorPixel(d, o, [](Rgb p) {
            const double v = Lum(p) * Lum(p) / 255;
            return Rgb{v * 0.8, v * 0.85, v};
        });
    case 56: return Degradado(d, o, {{0, 0x000000}, {64, 0xFF0000}, {128, 0xFFFF00}, {192, 0xFFFFFF}, {255, 0xFFFFFF}});
    case 57: {  // Liquid: the picture seen through rippling water
        cv::Mat mx(H, W, CV_32F), my(H, W, CV_32F);
        for (int y = 0; y < H; ++y)
            for (int x = 0; x < W; ++x) {
                mx.at<float>(y, x) = float(x + 6 * std::sin(2 * M_PI * y / 40));
                my.at<float>(y, x) = float(y + 6 * std::sin(2 * M_PI * x / 40));
            }
        cv::Mat m;
        cv::remap(MatDe(o), m, mx, my, cv::INTER_LINEAR, cv::BORDER_REFLECT);
        return CopiarMat(d, o, m);
    }
    case 58: {  // Dark Neon: glowing edges over a darkened picture
        const cv::Mat m = BordesColor(o);
        return ConApoyo(d, o, m, [](Rgb p, Rgb e) {
            return Rgb{p.r * 0.25 + e.r * 2, p.g * 0.25 + e.g * 2, p.b * 0.25 + e.b * 2};
        });
    }
    case 59: return PorPixel(d, o, [](Rgb p) {
            const double l = Lum(p);
            return Rgb{l * 0.75 + 30, l * 0.35, l * 0.95 + 20};
        });
    case 60: return PorPixel(d, o, [](Rgb p) {
            const double v = 127.5 + (Lum(p) - 127.5) * 1.6 - 30;
            return Rgb{v * 0.7, v * 0.9, v * 0.75};
        });
    case 61: return PorPixel(d, o, [](Rgb p) {  // only the brightest light stays
            const double k = std::pow(Lum(p) / 255, 3);
            return Rgb{p.r * k, p.g * k, p.b * k};
        });
    case 62: return PorTabla(d, o, [](double v, double) { return v < 128 ? 2 * v : 2 * (255 - v); }, 0);
    case 63: return PorPixel(d, o, [](Rgb p) {
            const double l = Lum(p);
            return Rgb{l * 1.1 + 30, l + 20, l * 0.25};
        });
    case 64: return PorPixel(d, o, [](Rgb p) {
            const double v = Posterizar(Lum(p), 4);
            return Rgb{v, v, v};
        });
    case 65: case 66: case 67: {  // X-Ray: the negative of the grey, tinted
        const int c = fila - 65;
        return PorPixel(d, o, [c](Rgb p) { return Tinte(255 - Lum(p), c, 1.0, 0.55); });
    }
    case 68: case 69: case 70: {  // Night Red, Green, Blue: a bright monochrome glow
        const int c = fila - 68;
        return PorPixel(d, o, [c](Rgb p) { return Tinte(255 * std::pow(Lum(p) / 255, 0.6), c, 1.0, 0.12); });
    }
    case 71: return PorPixel(d, o, [](Rgb p) {
            const double v = 255 * std::pow(Lum(p) / 255, 0.6);
            return Rgb{v, v * 0.6, v * 0.3};
        });
    case 72: case 73: case 74: {  // Deep Green, Blue, Red: that channel driven up, the others down
        const int c = fila == 72 ? 1 : fila == 73 ? 2 : 0;
        return PorPixel(d, o, [c](Rgb p) {
            Rgb q{p.r * 0.6, p.g * 0.6, p.b * 0.6};
            CanalDe(q, c) = CanalDe(p, c) * 1.4 + 20;
            return q;
        });
    }
    case 75: return PorPixel(d, o, [](Rgb p) {  // few loud colours
            return Saturacion(Rgb{Posterizar(p.r, 3), Posterizar(p.g, 3), Posterizar(p.b, 3)}, 1.6);
        });
    }
}

void EfectoLumen(Pixeles& d, const Pixeles& o, int W, int H, int n) {
    switch (n) {
    case 1: case 2: case 3: {  // solarised above 128, 64, 192
        const double umbral = n == 1 ? 128 : n == 2 ? 64 : 192;
        return PorTabla(d, o, [](double v, double u) { return v > u ? 255 - v : v; }, umbral);
    }
    case 4: case 5: case 6:  // posterised to 2, 3, 5 levels
        return PorTabla(d, o, [](double v, double k) { return Posterizar(v, int(k)); }, n == 4 ? 2 : n == 5 ? 3 : 5);
    case 7: case 8:  // gamma 0.5 and 2
        return PorTabla(d, o, [](double v, double g) { return 255 * std::pow(v / 255, g); }, n == 7 ? 0.5 : 2.0);
    case 9: return PorPixel(d, o, [](Rgb p) {
            const double v = Lum(p) >= 128 ? 255 : 0;
            return Rgb{v, v, v};
        });
    case 11: return GirarTono(d, o, 60);
    case 12: return GirarTono(d, o, 150);
    case 13: return GirarTono(d, o, 210);
    case 14: return GirarTono(d, o, 300);
    case 15: return PorPixel(d, o, [](Rgb p) { return Saturacion(p, 2.0); });
    case 16: return PorPixel(d, o, [](Rgb p) { return Saturacion(p, 0.5); });
    case 17: case 18:  // waves in every channel: dark middle tones, or three bands
        return PorTabla(d, o, [](double v, double k) { return 127.5 * (1 + std::cos(v / 255 * M_PI * k)); },
                        n == 17 ? 2.0 : 3.0);
    case 19: return Degradado(d, o, {{0, 0x400010}, {255, 0xA0FFF0}});
    case 20: return Degradado(d, o, {{0, 0x004020}, {255, 0xFFB0D0}});
    case 21: return Degradado(d, o, {{0, 0x300050}, {255, 0xFFFF60}});
    case 22: return Degradado(d, o, {{0, 0x200040}, {128, 0xE03060}, {255, 0xFFE0A0}});
    case 23: return PorPixel(d, o, [](Rgb p) { return Rgb{(p.r + p.g) / 2, (p.g + p.b) / 2, (p.b + p.r) / 2}; });
    case 24: return PorPixel(d, o, [](Rgb p) {
            const double n = 255 - Lum(p);
            return Rgb{(p.r + n) / 2, (p.g + n) / 2, (p.b + n) / 2};
        });
    case 25: return PorTabla(d, o, [](double v, double) { return double(int(v) ^ 0x80); }, 0);
    case 26: {  // colour relief
        const cv::Mat nucleo = (cv::Mat_<float>(3, 3) << 0, 1, 1, -1, 0, 1, -1, -1, 0);
        cv::Mat m;
        cv::filter2D(MatDe(o), m, CV_8U, nucleo, cv::Point(-1, -1), 0, cv::BORDER_REPLICATE);
        return ConApoyo(d, o, m, [](Rgb p, Rgb e) { return Rgb{p.r * 0.6 + e.r, p.g * 0.6 + e.g, p.b * 0.6 + e.b}; });
    }
    case 27: return CopiarMat(d, o, Borroso(o, 3));
    case 28: {  // mosaic of 12-pixel tiles
        cv::Mat pequena, m;
        cv::resize(MatDe(o), pequena, cv::Size(std::max(1, W / 12), std::max(1, H / 12)), 0, 0, cv::INTER_AREA);
        cv::resize(pequena, m, cv::Size(W, H), 0, 0, cv::INTER_NEAREST);
        return CopiarMat(d, o, m);
    }
    case 29: {
        const cv::Mat m = BordesColor(o);
        return ConApoyo(d, o, m, [](Rgb, Rgb e) { return Rgb{255 - e.r, 255 - e.g, 255 - e.b}; });
    }
    case 30: return PorTabla(d, o, [](double v, double) { return 255 * std::log1p(v) / std::log(256.0); }, 0);
    case 31: {  // scan lines: every third row of the picture dimmed
        PorPixel(d, o, [](Rgb p) { return Rgb{p.r * 1.1, p.g * 1.1, p.b * 1.1}; });
        for (int y = 0; y < H; y += 3)
            for (uint8_t *q = d.Fila(y), *fin = q + 4 * size_t(W); q < fin; q += 4)
                for (int c = 0; c < 3; ++c) q[c] = uint8_t(q[c] * 35 / 100);
        return;
    }
    case 32: return PorTabla(d, o, [](double v, double) { return (v - 127.5) * 2 + 127.5; }, 0);
    case 33: return PorTabla(d, o, [](double v, double) { return v * 0.5 + 64; }, 0);
    case 34: return PorPixel(d, o, [](Rgb p) { return Rgb{p.r + 30, p.g + 5, p.b - 30}; });
    case 35: return PorPixel(d, o, [](Rgb p) { return Rgb{p.r - 30, p.g + 5, p.b + 30}; });
    case 36: return PorPixel(d, o, [](Rgb p) { return DeHsv(Lum(p) / 255 * 720, 0.9, 1); });
    case 37: {
        cv::Mat m;
        cv::flip(MatDe(o), m, 1);
        return CopiarMat(d, o, m);
    }
    }
}

}  // namespace
