#pragma once
// The output stage's screens answered by script: each OpcionExportar takes
// the next choice (nothing = cancelled); the preview only counts.

#include "reports/salida/SalidaReporte.h"

#include <deque>

class PantallasSalidaFalsas : public PantallasSalida {
public:
    std::deque<std::optional<EleccionSalida>> elecciones;
    int opciones = 0;  // times OpcionExportar was shown
    int vistas = 0;    // times VerResultados was shown

    std::optional<EleccionSalida> OpcionExportar() override {
        ++opciones;
        if (elecciones.empty()) return std::nullopt;
        auto e = elecciones.front();
        elecciones.pop_front();
        return e;
    }
    void VerResultados(Reporte&) override { ++vistas; }
};
