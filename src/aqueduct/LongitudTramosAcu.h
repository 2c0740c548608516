#pragma once
// The logic of "Longitud de los Ramales": the length of a section from the
// coordinates of its two ends, fixed into the section grid of the data
// screen as a typed value would be.  The six boxes are input only; they
// can also take the plan coordinates and terrain levels of the section's
// end nodes.

#include "base/Coordenadas.h"
#include "base/Grid.h"

#include <QString>

class DatosAcueducto;

class LongitudTramosAcu {
public:
    // Opens on the active row of the data screen's section grid.
    explicit LongitudTramosAcu(DatosAcueducto& datos);

    // The boxes X(I), Y(I), Z(I), X(J), Y(J), Z(J), numbered 1..6.
    void CambiarCoordenada(int caja, double valor) { puntos_.Cambiar(caja, valor); }
    double Coordenada(int caja) const { return puntos_.Valor(caja); }

    // The distance between the two ends, not rounded.
    double CalcularLongitud() { return puntos_.Calcular(); }
    double Longitud() const { return puntos_.Longitud(); }
    // The caption beside "L (m):", "#,##0.00".
    QString TextoLongitud() const { return puntos_.TextoLongitud(); }
    Coordenadas& Puntos() { return puntos_; }

    // The small grid of the current section: 1 number, 2 (I), 3 (J), 4 length.
    Grid Spread1;
    // VScroll1 runs over the rows of the data screen's section grid.
    int MinimoScroll() const { return 1; }
    int MaximoScroll() const;
    int Scroll() const { return fila_; }
    void ColoquePantalla(int fila);

    // "Fijar la Longitud": asks, then writes L into the small grid and into the
    // length cell of the active section.
    void FijarLongitud();
    // "Limpiar": asks, then sets the six boxes to 0 and computes.
    void Limpiar();
    // "Tomar de los Nodos": X and Y of each end from its node, Z its terrain
    // level, then the length computed.  An end without both coordinates is
    // named in a message and the boxes stay as they were.
    bool TomarDeLosNodos();
    // Whether both ends of the current section have X and Y (the button's
    // enabling).
    bool NodosConCoordenadas() const;

private:
    // The node number of an end of the current section, 0 when none.
    int NodoExtremo(int columna) const;
    DatosAcueducto& datos_;
    Coordenadas puntos_;
    int fila_ = 1;
};
