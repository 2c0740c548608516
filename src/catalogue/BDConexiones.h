#pragma once
// "Base de Datos de Conexiones": the fitting catalogue in a grid, the twin
// of BDPiezas; column 4 shows "Automático" on a tint for an automatic row.

#include "catalogue/BDCatalogo.h"

class ConexionesRamales;
class Dialogos;
struct Sesion;

class BDConexiones {
public:
    BDConexiones(Sesion& s, Dialogos& d, ConexionesRamales* destino = nullptr);

    BDCatalogo& Logica() { return logica_; }
    Grid& Spread1() { return logica_.Spread1; }

    void Cargar() { logica_.Cargar(); }
    void Eliminar() { logica_.Eliminar(); }
    // "Capturar": the active row onto the branch (quantity 1); the branch
    // decides "Automático" by the key.  True when the catalogue closes.
    bool Capturar();
    void Cerrar() { logica_.Cerrar(); }

private:
    Sesion& s_;
    ConexionesRamales* destino_;
    BDCatalogo logica_;
};
