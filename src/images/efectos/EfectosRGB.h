#pragma once
// The colour effects of the list "Efectos RGB": 111 rows, each its own
// effect, chosen by its row number (1..111).

#include "images/Pixeles.h"

#include <QStringList>

constexpr int NumeroEfectosRGB = 111;

// The names of the rows, in order.
const QStringList& NombresEfectosRGB();
// The effect of row `fila` on the source.  A row outside 1..111 copies it.
void RGBEffectsCALC(Pixeles& destino, const Pixeles& origen, int W, int H, int fila);
