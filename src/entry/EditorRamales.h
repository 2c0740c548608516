#pragma once
// What the screens opened from the branch editor ask of it: the fixture and
// fitting screens, the lengths from coordinates and the design option walk
// the editor's branch grid with them.  DatosRamales answers it; a screen's
// tests can answer it with a grid of their own.

#include <QString>

class EditorRamales {
public:
    virtual ~EditorRamales() = default;

    // The editor's cursor to a branch (its row) and a column; its label
    // "Ramal ( n )" and its review panel follow the cursor.
    virtual void IrARamal(int ramal, int columna) = 0;
    // The text the editor's grid shows in a cell of a branch (1 "Nodo ( I )",
    // 2 "Nodo ( J )", 3 "Longitud Real").
    virtual QString TextoRamal(int ramal, int columna) const = 0;
    // A length put into column 3 of a branch, as if the engineer had typed
    // it there: it reaches longitudReal and marks the project changed.
    virtual void FijarLongitud(int ramal, double longitud) = 0;
    // The editor's grid filled again from the model (after a change of the
    // design option of many branches).
    virtual void ColoqueRamales() = 0;
};
