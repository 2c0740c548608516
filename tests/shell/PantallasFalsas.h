#pragma once
// Screens for the command tests: every screen is at hand unless marked
// missing, each showing is recorded, and a screen can run a check or fault.

#include "shell/Pantallas.h"

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
