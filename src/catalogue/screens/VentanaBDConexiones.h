#pragma once
// The window of BDConexiones, opened from the main menu (no destination) or
// from the fittings of a branch, onto which "Capturar" writes.

#include "catalogue/BDConexiones.h"
#include "catalogue/NewConexion.h"
#include "catalogue/screens/VentanaBDCatalogo.h"

class VentanaBDConexiones : public VentanaBDCatalogo<BDConexiones, NewConexion, ConexionesRamales> {
    Q_OBJECT
public:
    VentanaBDConexiones(Sesion& s, Dialogos& d, ConexionesRamales* destino = nullptr, QWidget* padre = nullptr)
        : VentanaBDCatalogo(QStringLiteral("BDConexiones"), s, d, destino, padre) {}
};
