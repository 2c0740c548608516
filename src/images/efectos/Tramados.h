#pragma once
// Two-colour renderings of a photograph ("Dithering"): error diffusion,
// half-tone dots, line screens and ordered (Bayer) patterns.  Each pixel of
// the result is `claro` or `oscuro` (0x00BBGGRR); the grey that decides is
// the luminance 0.299 R + 0.587 G + 0.114 B.

#include "images/Pixeles.h"

#include <QStringList>

constexpr int NumeroMetodosDithering = 13;

// Error diffusion.  `metodo`: 1 Floyd-Steinberg, 2 Floyd-Steinberg along a
// serpentine path (every other row right to left), 3 Stucki, 4 Burkes,
// 5 Sierra, 6 Jarvis, Judice and Ninke, 7 Atkinson.  Rows run from the top
// of the picture down, each left to right unless serpentine.
void DitheringP1(Pixeles& destino, const Pixeles& origen, int W, int H, int metodo, int claro = 0xFFFFFF,
                 int oscuro = 0);
// Half-tone dots on an 8-pixel screen: `tipo` 1 square at 0°, 2 at 45°.
void HTHalfToneP1(Pixeles& destino, const Pixeles& origen, int W, int H, int tipo, int claro = 0xFFFFFF,
                  int oscuro = 0);
// Line screen of period 6: `tipo` 1 horizontal lines, 2 diagonal ones.
void HTLineP1(Pixeles& destino, const Pixeles& origen, int W, int H, int tipo, int claro = 0xFFFFFF, int oscuro = 0);
// Ordered dithering with the Bayer matrices of 4 x 4 and 8 x 8.
void OrderedPC1(Pixeles& destino, const Pixeles& origen, int W, int H, int claro, int oscuro);
void OrderedPC2(Pixeles& destino, const Pixeles& origen, int W, int H, int claro, int oscuro);

// The names of the list's rows, in order, and the method of a row (1..13).
const QStringList& NombresDithering();
void AplicarDithering(Pixeles& destino, const Pixeles& origen, int W, int H, int fila);
