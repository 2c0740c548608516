#pragma once
// ImpreHojas ("Imprimir Hojas de Trabajo"): blank forms on which the
// engineer notes a network's data in the field.  Spread1 lists the rows to
// print (number, node (I), node (J)), taken from the open project when it
// has rows; Long1 is how many.  In building mode Option1 and Option2 choose
// TablaDatos1 (fixtures and fittings per branch) or TablaDatos2 (lengths and
// levels); in aqueduct mode the sections' or the nodes' table.

#include "base/Grid.h"

#include <QString>

class Dialogos;
class PantallasSalida;
struct ProyectoAcueducto;
struct ProyectoEdificio;
struct Sesion;

class ImpreHojas {
public:
    ImpreHojas(const ProyectoEdificio& edificio, const ProyectoAcueducto& acueducto, Sesion& s, Dialogos& d,
               PantallasSalida& salida);

    bool Acueducto() const;
    // The captions of Option1 and Option2 by mode.
    QString TextoOpcion1() const;
    QString TextoOpcion2() const;
    // The template of the chosen option.
    QString Plantilla() const;

    Grid Spread1;           // 1 "Ramal", 2 "( I )", 3 "( J )"
    int Opcion = 1;         // 1 or 2
    bool Check1 = true;     // "Formato a Color"
    int Long1() const { return Spread1.Filas(); }

    // On load: the grid's columns and the open project's rows.
    void Cargar();
    // A new Long1: rows added blank or taken away at the end; below 0 is 0.
    void CambiarLong1(int filas);
    // LSButton1: the node columns emptied, the numbers kept.
    void BorrarNodos();
    // Command2 "Aceptar": with Long1 above 0 the rows written and the
    // template passed to the output stage; nothing at 0.  True when printed.
    bool Aceptar();

private:
    const ProyectoEdificio& edificio_;
    const ProyectoAcueducto& acueducto_;
    Sesion& s_;
    Dialogos& d_;
    PantallasSalida& salida_;
};
