#pragma once
// "Buscar un Ramal": the branch number asked for and whether it was
// accepted, and the row a grid moves to with that answer.  The branch
// editor, the fixture and fitting screens and the aqueduct results share it.

#include <QString>
#include <optional>

struct BuscarPartida {
    int Numero = 0;         // "Ramal Número:", filled with the active row
    bool Aceptado = false;  // " Aceptar " was pressed

    explicit BuscarPartida(int activo = 0) : Numero(activo) {}
    // " Aceptar ": the number is kept and the answer marked as accepted;
    // " Cancelar " only closes.
    void Aceptar(int numero) {
        Numero = numero;
        Aceptado = true;
    }
};

// The row the caller moves to: none when the answer was not accepted, when
// the number is the active row or when the grid has no rows; 0 (and a
// negative number) is row 1, a number above the last row is the last row.
std::optional<int> FilaBuscada(const BuscarPartida& b, int filaActiva, int filas);

// The dialog's title and the label of its box.
QString TituloBuscarPartida();    // "Buscar un Ramal"
QString EtiquetaBuscarPartida();  // "Ramal Número:"
