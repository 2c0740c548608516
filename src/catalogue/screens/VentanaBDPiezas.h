#pragma once
// The window of BDPiezas, opened from the main menu (no destination) or
// from the fixtures of a branch, onto which "Capturar" writes.

#include "catalogue/BDPiezas.h"
#include "catalogue/NewPieza.h"
#include "catalogue/screens/VentanaBDCatalogo.h"

class VentanaBDPiezas : public VentanaBDCatalogo<BDPiezas, NewPieza, PiezasRamales> {
    Q_OBJECT
public:
    VentanaBDPiezas(Sesion& s, Dialogos& d, PiezasRamales* destino = nullptr, QWidget* padre = nullptr)
        : VentanaBDCatalogo(QStringLiteral("BDPiezas"), s, d, destino, padre) {}
};
