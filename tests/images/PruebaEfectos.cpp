// The pixel buffer and the photograph effects: values worked by hand where
// the formula is short, properties where it is not.

#include "Apoyo.h"
#include "base/ErrorEjecucion.h"
#include "images/Pixeles.h"
#include "images/efectos/Efectos.h"
#include "images/efectos/EfectosRGB.h"
#include "images/efectos/Tramados.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <set>

namespace {

Pixeles Uniforme(int W, int H, int r, int g, int b) {
    Pixeles p(W, H);
    for (int y = 0; y < H; ++y)
        for (int x = 0; x < W; ++x) {
            p(Canal::Azul, x, y) = uint8_t(b);
            p(Canal::Verde, x, y) = uint8_t(g);
            p(Canal::Rojo, x, y) = uint8_t(r);
            p(Canal::Reservado, x, y) = 255;
        }
    return p;
}

// A small "photograph": hues across, light down, with fine texture and a
// sharp edge, so that every kind of effect has something to change.
Pixeles Muestra(int W = 48, int H = 36) {
    Pixeles p(W, H);
    for (int y = 0; y < H; ++y)
        for (int x = 0; x < W; ++x) {
            const double h = 6.0 * x / W, l = double(y) / (H - 1);
            const double r = std::clamp(std::fabs(h - 3) - 1, 0.0, 1.0), g = std::clamp(2 - std::fabs(h - 2), 0.0, 1.0),
                         b = std::clamp(2 - std::fabs(h - 4), 0.0, 1.0);
            const int textura = ((x * 7 + y * 13) % 5) * 6 + (x == W / 3 ? 60 : 0);
            p(Canal::Rojo, x, y) = uint8_t(std::clamp(int(40 + 180 * l * r) + textura, 0, 255));
            p(Canal::Verde, x, y) = uint8_t(std::clamp(int(30 + 190 * l * g) + textura, 0, 255));
            p(Canal::Azul, x, y) = uint8_t(std::clamp(int(20 + 200 * l * b) + textura, 0, 255));
            p(Canal::Reservado, x, y) = 255;
        }
    return p;
}

double Media(const Pixeles& p) {
    double s = 0;
    for (int y = 0; y < p.H; ++y)
        for (int x = 0; x < p.W; ++x)
            s += 0.299 * p(Canal::Rojo, x, y) + 0.587 * p(Canal::Verde, x, y) + 0.114 * p(Canal::Azul, x, y);
    return s / (p.W * p.H);
}

double Varianza(const Pixeles& p, int canal) {
    double s = 0, s2 = 0;
    const int n = p.W * p.H;
    for (int y = 0; y < p.H; ++y)
        for (int x = 0; x < p.W; ++x) {
            s += p(canal, x, y);
            s2 += double(p(canal, x, y)) * p(canal, x, y);
        }
    return s2 / n - (s / n) * (s / n);
}

bool Blanco(const Pixeles& p, int x, int y) {
    return p(0, x, y) == 255 && p(1, x, y) == 255 && p(2, x, y) == 255;
}
bool Negro(const Pixeles& p, int x, int y) { return p(0, x, y) == 0 && p(1, x, y) == 0 && p(2, x, y) == 0; }

}  // namespace

TEST(Pixeles, IdaYVueltaConLasFilasDeAbajoArriba) {
    QImage img(3, 2, QImage::Format_RGB32);
    img.fill(Qt::black);
    img.setPixel(0, 0, qRgb(10, 20, 30));  // top left of the picture
    img.setPixel(2, 1, qRgb(200, 100, 50));  // bottom right
    const Pixeles p = LeerPixeles(img);
    ASSERT_EQ(p.W, 3);
    ASSERT_EQ(p.H, 2);
    // Row 0 of the buffer is the picture's bottom row; channels B, G, R.
    EXPECT_EQ(p(Canal::Azul, 2, 0), 50);
    EXPECT_EQ(p(Canal::Verde, 2, 0), 100);
    EXPECT_EQ(p(Canal::Rojo, 2, 0), 200);
    EXPECT_EQ(p(Canal::Rojo, 0, 1), 10);
    EXPECT_EQ(p(Canal::Azul, 0, 1), 30);
    EXPECT_EQ(PintarPixeles(p), img);
}

TEST(Pixeles, UnaImagenSinAnchoOAltoOEnormeEsUnDesbordamiento) {
    for (const QSize& s : {QSize(0, 0), QSize(0, 5), QSize(5, 0), QSize(20000, 20000)}) {
        try {
            ComprobarTamanoPixeles(s.width(), s.height());
            ADD_FAILURE() << s.width() << "x" << s.height();
        } catch (const ErrorEjecucion& e) {
            EXPECT_EQ(e.numero(), Error::Desbordamiento);
            EXPECT_FALSE(e.detalle().isEmpty());
        }
    }
    EXPECT_THROW(LeerPixeles(QImage()), ErrorEjecucion);
    // The sizes carry the locale's thousands mark.
    for (const auto& [locale, lado] : {std::pair{"es_ES", "20.000"}, {"es_MX", "20,000"}}) {
        const MarcasPrueba marcas(locale);
        try {
            ComprobarTamanoPixeles(20000, 20000);
        } catch (const ErrorEjecucion& e) {
            EXPECT_TRUE(e.detalle().startsWith(QStringLiteral("La imagen de %1 × %1 píxeles").arg(QLatin1String(lado))))
                << e.detalle().toStdString();
        }
    }
}

TEST(Efectos, EscalaDeGrisesConLosPesosDeLuminancia) {
    // 0.299*200 + 0.587*100 + 0.114*50 = 124.2; the mean is 350/3 = 116.7;
    // the lightness (200 + 50) / 2 = 125.
    const Pixeles o = Uniforme(2, 1, 200, 100, 50);
    Pixeles d;
    for (auto [modo, gris] : {std::pair{1, 124}, {0, 117}, {2, 125}}) {
        GrayscaleCAL(d, o, 2, 1, modo, 0.5, 0xFFFFFF);
        for (int c = 0; c < 3; ++c) EXPECT_EQ(d(c, 1, 0), gris) << "modo " << modo << " canal " << c;
    }
    // A red tint (0x0000FF) at 0.5: red keeps the grey, blue and green half.
    GrayscaleCAL(d, o, 2, 1, 1, 0.5, 0x0000FF);
    EXPECT_EQ(d(Canal::Rojo, 0, 0), 124);
    EXPECT_EQ(d(Canal::Verde, 0, 0), 62);
}

TEST(Efectos, FilasRgbDeFormulaCorta) {
    // (R, G, B) = (200, 100, 50), rows worked by hand.
    const Pixeles o = Uniforme(1, 1, 200, 100, 50);
    struct Caso {
        const char* nombre;
        int r, g, b;
    };
    const Caso casos[] = {
        {"Invert RGB", 55, 155, 205},
        {"Invert CYMK", 0, 100, 150},        // max - c
        {"Invert HUE", 50, 150, 200},        // max + min - c
        {"Compound Invert", 205, 105, 55},   // 255 + c - max - min
        {"Swap RGB (G, R, B)", 100, 200, 50},
        {"Swap RGB (G, B, R)", 100, 50, 200},
        {"Swap RGB (B, R, G)", 50, 200, 100},
        {"Inverse Blue-Red", 55, 100, 205},
        {"No Green", 200, 0, 50},
        {"Only Red", 200, 0, 0},
        // Red leads: red and blue swap, (50, 100, 200) has the grey 96.45
        // against 124.2, so 27.75 is added to each.
        {"Swap Blue and Red", 78, 128, 228},
        // Sepia: 0.393*200 + 0.769*100 + 0.189*50 = 164.95, 0.349*200 +
        // 0.686*100 + 0.168*50 = 146.8, 0.272*200 + 0.534*100 + 0.131*50 = 114.35.
        {"Sepia", 165, 147, 114},
    };
    for (const Caso& c : casos) {
        const int fila = int(NombresEfectosRGB().indexOf(QString::fromLatin1(c.nombre))) + 1;
        ASSERT_GT(fila, 0) << c.nombre;
        Pixeles d;
        RGBEffectsCALC(d, o, 1, 1, fila);
        EXPECT_EQ(d(Canal::Rojo, 0, 0), c.r) << c.nombre;
        EXPECT_EQ(d(Canal::Verde, 0, 0), c.g) << c.nombre;
        EXPECT_EQ(d(Canal::Azul, 0, 0), c.b) << c.nombre;
    }
}

TEST(Efectos, CambiarDosColoresDejaLosQueLlevaElTercero) {
    // (60, 160, 90) is led by green: "Swap Blue and Red" leaves it, while
    // "Swap RGB (B, G, R)" gives (90, 160, 60).
    const Pixeles o = Uniforme(1, 1, 60, 160, 90);
    Pixeles d;
    RGBEffectsCALC(d, o, 1, 1, int(NombresEfectosRGB().indexOf("Swap Blue and Red")) + 1);
    EXPECT_EQ(d, o);
    RGBEffectsCALC(d, o, 1, 1, int(NombresEfectosRGB().indexOf("Swap RGB (B, G, R)")) + 1);
    EXPECT_EQ(d(Canal::Rojo, 0, 0), 90);
    EXPECT_EQ(d(Canal::Azul, 0, 0), 60);
}

TEST(Efectos, LasCientoOnceFilasRgbSonEfectosDistintos) {
    ASSERT_EQ(NombresEfectosRGB().size(), NumeroEfectosRGB);
    EXPECT_EQ(NombresEfectosRGB()[74], "Carnival");
    EXPECT_EQ(NombresEfectosRGB()[75], "Lumen Effect (1)");
    EXPECT_EQ(NombresEfectosRGB()[84], "Lumen Effect (11)");  // 10 is absent
    EXPECT_EQ(NombresEfectosRGB()[110], "Lumen Effect (37)");
    const Pixeles o = Muestra();
    std::vector<Pixeles> r(NumeroEfectosRGB + 1);
    for (int f = 1; f <= NumeroEfectosRGB; ++f) {
        RGBEffectsCALC(r[size_t(f)], o, o.W, o.H, f);
        EXPECT_NE(r[size_t(f)], o) << NombresEfectosRGB()[f - 1].toStdString() << " leaves the picture";
    }
    for (int a = 1; a <= NumeroEfectosRGB; ++a)
        for (int b = a + 1; b <= NumeroEfectosRGB; ++b)
            EXPECT_NE(r[size_t(a)], r[size_t(b)])
                << NombresEfectosRGB()[a - 1].toStdString() << " = " << NombresEfectosRGB()[b - 1].toStdString();
}

TEST(Efectos, UnPasoDeFloydSteinberg) {
    // Three greys of 100 in a row: 100 -> black, 7/16 of 100 = 43.75 to the
    // next, 143.75 -> white, error -111.25, 7/16 of it leaves 51.3 -> black.
    Pixeles d;
    DitheringP1(d, Uniforme(3, 1, 100, 100, 100), 3, 1, 1);
    EXPECT_TRUE(Negro(d, 0, 0));
    EXPECT_TRUE(Blanco(d, 1, 0));
    EXPECT_TRUE(Negro(d, 2, 0));
    // 2 x 2 of 100 (buffer row 1 is the top): top left black; top right
    // 143.75 white; bottom left 100 + 5/16*100 - 3/16*111.25 = 110.4 black;
    // bottom right 100 + 6.25 - 34.77 + 7/16*110.4 = 119.8 black.
    DitheringP1(d, Uniforme(2, 2, 100, 100, 100), 2, 2, 1);
    EXPECT_TRUE(Negro(d, 0, 1));
    EXPECT_TRUE(Blanco(d, 1, 1));
    EXPECT_TRUE(Negro(d, 0, 0));
    EXPECT_TRUE(Negro(d, 1, 0));
}

TEST(Efectos, UmbralDeBayer) {
    // A grey of 128 passes the thresholds (m + 0.5) * 255/16 of m = 0..7
    // (119.5 at m = 7) and not m = 8 (135.5): the 4 x 4 matrix
    // 0 8 2 10 / 12 4 14 6 / 3 11 1 9 / 15 7 13 5, top row first.
    const int m[4][4] = {{0, 8, 2, 10}, {12, 4, 14, 6}, {3, 11, 1, 9}, {15, 7, 13, 5}};
    Pixeles d;
    OrderedPC1(d, Uniforme(4, 4, 128, 128, 128), 4, 4, 0xFFFFFF, 0);
    for (int fila = 0; fila < 4; ++fila)
        for (int x = 0; x < 4; ++x)
            EXPECT_EQ(Blanco(d, x, 3 - fila), m[fila][x] < 8) << fila << "," << x;
    // The colours given are the two drawn: 0x0000FF is red.
    OrderedPC2(d, Uniforme(8, 8, 128, 128, 128), 8, 8, 0x0000FF, 0xFF0000);
    std::set<std::tuple<int, int, int>> colores;
    for (int y = 0; y < 8; ++y)
        for (int x = 0; x < 8; ++x) colores.insert({d(2, x, y), d(1, x, y), d(0, x, y)});
    EXPECT_EQ(colores, (std::set<std::tuple<int, int, int>>{{255, 0, 0}, {0, 0, 255}}));
}

TEST(Efectos, CadaTramadoTieneDosColoresYConservaLaLuz) {
    // A grey ramp, left to right, 96 x 64.  Diffusion keeps the mean within
    // 2 of 255 (Atkinson, which drops a quarter of the error, within 8); the
    // patterns within 3.
    Pixeles o(96, 64);
    for (int y = 0; y < 64; ++y)
        for (int x = 0; x < 96; ++x)
            for (int c = 0; c < 4; ++c) o(c, x, y) = uint8_t(c == 3 ? 255 : 30 + x * 2);
    ASSERT_EQ(NombresDithering().size(), NumeroMetodosDithering);
    std::vector<Pixeles> r(NumeroMetodosDithering + 1);
    for (int fila = 1; fila <= NumeroMetodosDithering; ++fila) {
        const QString nombre = NombresDithering()[fila - 1];
        AplicarDithering(r[size_t(fila)], o, o.W, o.H, fila);
        const Pixeles& d = r[size_t(fila)];
        int otros = 0;
        for (int y = 0; y < d.H; ++y)
            for (int x = 0; x < d.W; ++x) otros += !Blanco(d, x, y) && !Negro(d, x, y);
        EXPECT_EQ(otros, 0) << nombre.toStdString();
        const double margen = nombre == "Atkinson" ? 8 : fila <= 7 ? 2 : 3;
        EXPECT_NEAR(Media(d), Media(o), margen) << nombre.toStdString();
        for (int antes = 1; antes < fila; ++antes) EXPECT_NE(r[size_t(antes)], d) << nombre.toStdString();
    }
}

TEST(Efectos, LosSuavizadosBajanLaVarianza) {
    const Pixeles o = Muestra(64, 48);
    Pixeles d;
    BetterImage(d, o, o.W, o.H);
    EXPECT_LT(Varianza(d, Canal::Verde), Varianza(o, Canal::Verde));
    zInitSpatialDomainC(d, o, o.W, o.H);
    EXPECT_LT(Varianza(d, Canal::Verde), Varianza(o, Canal::Verde));
    RGBEffectsCALC(d, o, o.W, o.H, int(NombresEfectosRGB().indexOf("Lumen Effect (27)")) + 1);
    EXPECT_LT(Varianza(d, Canal::Verde), Varianza(o, Canal::Verde));
    // The unsharp mask raises it.
    SharpenFilter(d, o, o.W, o.H, 100);
    EXPECT_GT(Varianza(d, Canal::Verde), Varianza(o, Canal::Verde));
}

TEST(Efectos, AjustesDeColor) {
    // Brightness 50 adds 64; contrast 50 doubles the distance from 127.5;
    // saturation -100 leaves the grey 124 of (200, 100, 50).
    const Pixeles o = Uniforme(1, 1, 200, 100, 50);
    Pixeles d;
    ColorAdjustments(d, o, 1, 1, 50, 0, 0);
    EXPECT_EQ(d(Canal::Rojo, 0, 0), 255);
    EXPECT_EQ(d(Canal::Verde, 0, 0), 164);
    ColorAdjustments(d, o, 1, 1, 0, 50, 0);
    EXPECT_EQ(d(Canal::Azul, 0, 0), 0);  // 127.5 - 2 * 77.5 < 0
    EXPECT_EQ(d(Canal::Verde, 0, 0), 73);  // 127.5 - 2 * 27.5 = 72.5, rounded up
    ColorAdjustments(d, o, 1, 1, 0, 0, -100);
    for (int c = 0; c < 3; ++c) EXPECT_EQ(d(c, 0, 0), 124);
    AjustarColor(d, o, 1, 1, 0, 0, 0, 0);
    EXPECT_EQ(d, o);
}

TEST(Efectos, LosEfectosConNombreDanImagenesDelTamanoYDistintas) {
    const Pixeles o = Muestra(64, 48);
    std::vector<Pixeles> r(8);
    FiltroBilateral(r[0], o, o.W, o.H);
    DrawCartoonizerP(r[1], o, o.W, o.H);
    PencilPlusCALC(r[2], o, o.W, o.H);
    FilmNoirCALC(r[3], o, o.W, o.H);
    ModernArtSculture(r[4], o, o.W, o.H);
    GrayscaleCAL(r[5], o, o.W, o.H, 1, 0.5, 0xFFFFFF);
    for (size_t i = 0; i < 6; ++i) {
        EXPECT_EQ(r[i].W, o.W);
        EXPECT_EQ(r[i].H, o.H);
        EXPECT_NE(r[i], o) << i;
        for (size_t j = 0; j < i; ++j) EXPECT_NE(r[i], r[j]) << i << " " << j;
    }
    // The relief of a flat picture is the middle grey.
    ModernArtSculture(r[6], Uniforme(5, 5, 90, 90, 90), 5, 5);
    EXPECT_EQ(r[6](Canal::Verde, 2, 2), 128);
}

// A picture of one pixel, one row or one column is a picture: every effect
// gives one of its size.
TEST(Efectos, LasImagenesDeUnPixelDeAnchoOAltoNoRompenNingunEfecto) {
    for (const QSize& s : {QSize(1, 1), QSize(7, 1), QSize(1, 5), QSize(2, 3)}) {
        const Pixeles o = Uniforme(s.width(), s.height(), 200, 100, 50);
        const int W = o.W, H = o.H;
        std::vector<std::function<void(Pixeles&)>> efectos = {
            [&](Pixeles& d) { FiltroBilateral(d, o, W, H); },
            [&](Pixeles& d) { DrawCartoonizerP(d, o, W, H); },
            [&](Pixeles& d) { PencilPlusCALC(d, o, W, H); },
            [&](Pixeles& d) { FilmNoirCALC(d, o, W, H); },
            [&](Pixeles& d) { ModernArtSculture(d, o, W, H); },
            [&](Pixeles& d) { AjustarColor(d, o, W, H, 30, 30, 30, 60); },
        };
        for (int f = 1; f <= NumeroEfectosRGB; ++f) efectos.push_back([&, f](Pixeles& d) { RGBEffectsCALC(d, o, W, H, f); });
        for (int f = 1; f <= NumeroMetodosDithering; ++f)
            efectos.push_back([&, f](Pixeles& d) { AplicarDithering(d, o, W, H, f); });
        for (size_t i = 0; i < efectos.size(); ++i) {
            Pixeles d;
            try {
                efectos[i](d);
            } catch (const std::exception& e) {
                ADD_FAILURE() << s.width() << "x" << s.height() << " effect " << i << ": " << e.what();
                continue;
            }
            EXPECT_EQ(d.W, W) << i;
            EXPECT_EQ(d.H, H) << i;
        }
    }
}
