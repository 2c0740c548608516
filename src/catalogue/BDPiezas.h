#pragma once
// "Base de Datos de Piezas Sanitarias": the fixture catalogue in a grid.
// From the main menu a maintenance screen; from the fixtures of a branch
// (PiezasRamales) it also captures the chosen row onto that branch.

#include "catalogue/BDCatalogo.h"

class Dialogos;
class PiezasRamales;
struct Sesion;

class BDPiezas {
public:
    // `destino`: the branch screen behind, or nullptr from the menu.
    BDPiezas(Sesion& s, Dialogos& d, PiezasRamales* destino = nullptr);

    BDCatalogo& Logica() { return logica_; }
    Grid& Spread1() { return logica_.Spread1; }

    void Cargar() { logica_.Cargar(); }
    void Eliminar() { logica_.Eliminar(); }
    // "Capturar": the active row onto the branch's active row (quantity 3).
    // True when it was written and the catalogue closes.
    bool Capturar();
    void Cerrar() { logica_.Cerrar(); }

private:
    Sesion& s_;
    PiezasRamales* destino_;
    BDCatalogo logica_;
};
