#pragma once
// "Crear o Modificar Piezas Sanitarias": one fixture of the catalogue, its
// key, name, four figures and photograph.  A reserved fixture (key 21 or
// less) changes its figures and photograph only.

#include "catalogue/EditorCatalogo.h"

class BDPiezas;

class NewPieza {
public:
    NewPieza(BDPiezas& bd, Sesion& s, Dialogos& d, PantallasFoto& fotos);
    EditorCatalogo& Logica() { return logica_; }

private:
    EditorCatalogo logica_;
};
