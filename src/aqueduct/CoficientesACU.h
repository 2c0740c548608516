#pragma once
// The small dialog "Coeficientes para las Pérdidas": Hazen-Williams
// coefficients by pipe material, read-only, whose "Aceptar" sets the
// coefficient box of the data screen.

#include "base/Grid.h"

class DatosAcueducto;

class CoficientesACU {
public:
    explicit CoficientesACU(DatosAcueducto& datos);

    // Columns 1 "Tipo de Tubería", 2 "Coeficiente" over "C"; six rows.
    Grid Spread1;

    // Writes the coefficient of the row into Long1 of the data screen (and so
    // into C) and marks the data as changed.  "Cancelar" and Esc need nothing.
    void Aceptar(int fila);

private:
    DatosAcueducto& datos_;
};
