#pragma once
// "Calcular la Longitud de los Ramales": a branch's length from the
// coordinates of its two ends, fixed into the branch editor as a typed
// length.  The end of one branch is carried as the start of the next, so a
// run of branches is fed point by point.

#include "base/Coordenadas.h"
#include "base/Grid.h"

#include <QString>

struct ProyectoEdificio;
struct Sesion;
class Dialogos;
class EditorRamales;

class LongitudTramosR {
public:
    // Opens on the editor's active branch (Sesion::RamalActual).
    LongitudTramosR(ProyectoEdificio& p, Sesion& s, Dialogos& d, EditorRamales& editor);

    static QString Titulo();  // "Calcular la Longitud de los Ramales"

    // The six boxes and the length beside "L (m):".
    Coordenadas& Puntos() { return puntos_; }

    // The branch shown: 1 number, 2 (I), 3 (J), 4 length, as the editor shows them.
    Grid Spread1;
    int MinimoScroll() const { return 1; }
    int MaximoScroll() const;
    bool ScrollDisponible() const { return MaximoScroll() > 1; }
    int Ramal() const { return ramal_; }
    // The scroll bar moved: the editor's cursor goes to the branch's length.
    void CambiarRamal(int ramal);

    // "Fijar la Longitud": asks, then the length goes to the branch and J
    // becomes the next I.  True when fixed.
    bool FijarLongitud();
    // "Limpiar": asks, then every box and the label to 0.  True when cleared.
    bool Limpiar();

private:
    void ColoquePantalla();
    ProyectoEdificio& p_;
    Sesion& s_;
    Dialogos& d_;
    EditorRamales& editor_;
    Coordenadas puntos_;
    int ramal_ = 1;
};
