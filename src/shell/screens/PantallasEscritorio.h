#pragma once
// The desktop's screens, shown modally by the commands of the main window.
// A screen appears here as it is built; until then it reports itself
// unavailable and its tools stay disabled.

#include "shell/Pantallas.h"

class Dialogos;
class QWidget;
struct ProyectoAcueducto;
struct ProyectoEdificio;
struct Sesion;

class PantallasEscritorio : public Pantallas {
public:
    PantallasEscritorio(Sesion& s, ProyectoEdificio& p, ProyectoAcueducto& acu, Dialogos& d)
        : s_(s), p_(p), acu_(acu), d_(d) {}
    void PonerVentana(QWidget* ventana) { ventana_ = ventana; }

    bool Disponible(Pantalla p) const override;
    void Mostrar(Pantalla p) override;

private:
    Sesion& s_;
    ProyectoEdificio& p_;
    ProyectoAcueducto& acu_;
    Dialogos& d_;
    QWidget* ventana_ = nullptr;
};
