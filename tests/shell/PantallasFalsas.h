#pragma once
// Screens for the command tests: every screen is at hand unless marked
// missing, each showing is recorded, and a screen can run a check or fault;
// and the main window's logic over them with the scripted dialogs.

#include "aqueduct/ProyectoAcueducto.h"
#include "model/ProyectoEdificio.h"
#include "shell/MenuPrincipal.h"
#include "shell/Pantallas.h"
#include "support/Apoyo.h"

#include <QSet>
#include <functional>
#include <vector>

class PantallasFalsas : public Pantallas {
public:
    std::vector<Pantalla> mostradas;
    QSet<int> faltan;
    std::function<void(Pantalla)> alMostrar;

    bool Disponible(Pantalla p) const override { return !faltan.contains(int(p)); }
    void Mostrar(Pantalla p) override {
        mostradas.push_back(p);
        if (alMostrar) alMostrar(p);
    }
};

struct MenuPrueba : ::testing::Test {
    SesionPrueba sp;
    Sesion& s = sp.s;
    ProyectoEdificio p;
    ProyectoAcueducto acu;
    DialogosFalsos d;
    PantallasFalsas pantallas;
    MenuPrincipal menu{s, p, acu, d, pantallas};
};
