#pragma once
// The logic of the screen Peerlees.

#include "base/Grid.h"

#include <QString>

// Its table: six building classes by seven ranges of fixtures, factors in
// litres per minute per fixture; read-only.
Grid TablaPeerlees();
// "Capturar Factor Consumo": the active cell's text as a number and back to
// text ("2.50" gives "2.5").  A header or a text that is not a number is a
// type mismatch (error 13).
QString CapturarFactorPeerlees(const Grid& tabla, int fila, int columna);
