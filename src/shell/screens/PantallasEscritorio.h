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
    PantallasEscritorio(Sesion& s, ProyectoEdificio& p, Dialogos& d) : s_(s), p_(p), d_(d) {}
    void PonerVentana(QWidget* ventana) { ventana_ = ventana; }
    // The aqueduct network the aqueduct screens work on (the main window's).
    void PonerAcueducto(ProyectoAcueducto* acueducto) { acu_ = acueducto; }

    bool Disponible(Pantalla p) const override;
    void Mostrar(Pantalla p) override;

private:
    Sesion& s_;
    ProyectoEdificio& p_;
    Dialogos& d_;
    QWidget* ventana_ = nullptr;
    ProyectoAcueducto* acu_ = nullptr;
};
