#include "images/efectos/EfectoTapiz.h"

#include "base/ErrorEjecucion.h"
#include "images/efectos/Efectos.h"
#include "images/efectos/EfectosRGB.h"
#include "images/efectos/Tramados.h"

namespace {

// Effects that a wallpaper wears well: quiet tones behind the tools first,
// then drawings, then the louder colour maps.  `fila` is the row of the
// RGB list (1..111) or of the dithering list (1..13).
enum Clase { Gris, Bilateral, Caricatura, Lapiz, Noir, Relieve, Rgb, Tramado };
struct EfectoDeTapiz {
    Clase clase;
    int fila;
};
constexpr EfectoDeTapiz Efectos[NumeroEfectosTapiz + 1] = {
    {Rgb, 0},        // 0: none
    {Gris, 0},       // 1 Escala de Grises
    {Rgb, 26},       // 2 Sepia
    {Rgb, 27},       // 3 Sepia Antique
    {Noir, 0},       // 4 Film Noir
    {Lapiz, 0},      // 5 Pencil Drawing
    {Caricatura, 0}, // 6 Cartonize
    {Relieve, 0},    // 7 Imagen en 3D
    {Bilateral, 0},  // 8 Bilateral Filtro
    {Rgb, 19},       // 9 Dream
    {Rgb, 20},       // 10 Dream-Blue
    {Rgb, 12},       // 11 Nocturne
    {Rgb, 11},       // 12 Steel
    {Rgb, 6},        // 13 Atmosphere
    {Rgb, 24},       // 14 Ocean
    {Rgb, 14},       // 15 Freeze
    {Rgb, 53},       // 16 Aquarel
    {Rgb, 54},       // 17 Charcoal
    {Rgb, 55},       // 18 Dark Moon
    {Rgb, 64},       // 19 Solid Greys
    {Rgb, 48},       // 20 Afrika
    {Rgb, 10},       // 21 Thermograph
    {Rgb, 4},        // 22 Lava
    {Rgb, 59},       // 23 Purple Rain
    {Rgb, 49},       // 24 Invert RGB
    {Tramado, 13},   // 25 Ordered (Bayer 8x8)
    {Tramado, 1},    // 26 Floyd-SteinbergA
    {Tramado, 8},    // 27 Half tone 1
};

}  // namespace

QString NombreEfectoTapiz(int efecto) {
    if (efecto < 1 || efecto > NumeroEfectosTapiz) return QStringLiteral("Ninguno");
    const EfectoDeTapiz& e = Efectos[efecto];
    switch (e.clase) {
    case Gris: return QStringLiteral("Escala de Grises");
    case Bilateral: return QStringLiteral("Bilateral Filtro");
    case Caricatura: return QStringLiteral("Cartonize");
    case Lapiz: return QStringLiteral("Pencil Drawing");
    case Noir: return QStringLiteral("Film Noir");
    case Relieve: return QStringLiteral("Imagen en 3D");
    case Rgb: return NombresEfectosRGB()[e.fila - 1];
    case Tramado: return NombresDithering()[e.fila - 1];
    }
    return QString();
}

QImage AplicarEfectoTapiz(const QImage& imagen, int efecto) {
    if (efecto < 1 || efecto > NumeroEfectosTapiz || imagen.isNull()) return imagen;
    Pixeles o;
    try {
        o = LeerPixeles(imagen);
    } catch (const ErrorEjecucion&) {
        return imagen;  // the wallpaper then shows without its effect
    }
    Pixeles d;
    const EfectoDeTapiz& e = Efectos[efecto];
    switch (e.clase) {
    case Gris: GrayscaleCAL(d, o, o.W, o.H, 1, 0.5, 0xFFFFFF); break;
    case Bilateral: FiltroBilateral(d, o, o.W, o.H); break;
    case Caricatura: DrawCartoonizerP(d, o, o.W, o.H); break;
    case Lapiz: PencilPlusCALC(d, o, o.W, o.H); break;
    case Noir: FilmNoirCALC(d, o, o.W, o.H); break;
    case Relieve: ModernArtSculture(d, o, o.W, o.H); break;
    case Rgb: RGBEffectsCALC(d, o, o.W, o.H, e.fila); break;
    case Tramado: AplicarDithering(d, o, o.W, o.H, e.fila); break;
    }
    return PintarPixeles(d);
}
