#pragma once
// "Cotas de Piso de los Nodos": the floor level of every end of a branch,
// typed cell by cell or for a block of nodes at once, kept in the model only
// when fixed.

#include "base/Grid.h"

#include <QString>

struct ProyectoEdificio;
struct Sesion;
class Dialogos;

class CotasNodos {
public:
    CotasNodos(ProyectoEdificio& p, Sesion& s, Dialogos& d);

    static QString Titulo();  // "Cotas de Piso de los Nodos"
    static QString TipFijar();

    // One row per node slot: 1 "Nodo" (read-only), 2 the level.
    Grid Spread1;

    // The node list rebuilt from the branch ends, and the grid from it.
    void Cargar();
    // The row the cursor may stand on: with an elevated tank, row 1 is the
    // tank's and the cursor goes on to row 2.
    int FilaPermitida(int fila) const;
    // A level typed into column 2: a number within the column's range, or
    // empty for 0.  False (with the reason) when refused; the cell keeps its value.
    bool EditarCelda(int fila, int columna, const QString& texto);
    // A text the cell refused before any edit: the reason given.
    void NumeroRechazado(const QString& texto);
    // A block selected in the grid: only within column 2 it asks for one
    // level for all its rows.  True when it asked (the caller clears the block).
    bool LlenarBloque(int fila1, int fila2, int columna1, int columna2);

    // "Fijar": the levels into the model; the screen closes.
    void Fijar();
    // "Cancelar", Esc or the close box: true when the screen may close.
    bool Cancelar();
    bool Modificado() const { return modificado_; }

private:
    void SalvarCotas();
    bool TanqueElevado() const;
    ProyectoEdificio& p_;
    Sesion& s_;
    Dialogos& d_;
    bool modificado_ = false;
};
