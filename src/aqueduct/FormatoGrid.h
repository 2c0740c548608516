#pragma once
// The type, decimals, width and lock of a grid column, set in one call by
// the screens of the aqueduct side.

#include "base/Grid.h"

inline void FormatoColumna(Grid& g, int columna, TipoCelda tipo, int decimales, int ancho, bool bloqueada = true) {
    Columna& c = g.Col(columna);
    c.tipo = tipo;
    c.decimales = decimales;
    c.ancho = ancho;
    c.bloqueada = bloqueada;
}
