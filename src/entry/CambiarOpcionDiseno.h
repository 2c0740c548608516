#pragma once
// "Opción de Diseño en los Ramales": the design option (tank or valve
// fixtures) given to many branches at once, marked in a grid.

#include "base/Grid.h"

#include <QString>

struct ProyectoEdificio;
struct Sesion;
class Dialogos;
class EditorRamales;

class CambiarOpcionDiseño {
public:
    CambiarOpcionDiseño(ProyectoEdificio& p, Sesion& s, Dialogos& d, EditorRamales& editor);

    static QString Titulo();  // "Opción de Diseño en los Ramales"
    static QString TextoOpcion(int opcion);  // "Diseñar como Piezas de ..."

    // One row per branch: 0 number, 1 mark "1"/"0", 2 (I), 3 (J), 4 option.
    Grid Spread1;
    // The option to give: 0 tank, 1 valve.
    int Opcion = 0;

    void Cargar();
    void CambiarOpcion(int opcion);
    // A click on the mark column of a row toggles its mark.
    void ClickMarca(int fila);
    bool Marcado(int fila) const;
    int Marcados() const;
    // A block within one of the columns 2, 3 or 4 marks its rows.
    void MarcarBloque(int fila1, int fila2, int columna1, int columna2);
    void MarcarTodo();
    void QuitarMarca();
    // Asks, then gives the option to the marked branches.  True when done.
    bool Fijar();

private:
    void ConfigurarSpread();
    void ColoquePantalla();
    void Marcar(int fila, bool marca);
    void MostrarOpcion(int fila);
    ProyectoEdificio& p_;
    Sesion& s_;
    Dialogos& d_;
    EditorRamales& editor_;
};
