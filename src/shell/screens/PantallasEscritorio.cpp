#include "shell/screens/PantallasEscritorio.h"

#include "aqueduct/screens/VentanaAnalisisACU.h"
#include "aqueduct/screens/VentanaDatosAcueducto.h"
#include "shell/screens/ConfigurarPrograma.h"
#include "shell/screens/DialogosQt.h"
#include "shell/screens/Sobre.h"

bool PantallasEscritorio::Disponible(Pantalla p) const {
    return p == Pantalla::ConfigurarPrograma || p == Pantalla::Sobre || p == Pantalla::DatosAcueducto ||
           p == Pantalla::AnalisisACU;
}

void PantallasEscritorio::Mostrar(Pantalla p) {
    // The screen waits for the engineer with the ordinary pointer.
    PunteroEnPausa pausa;
    switch (p) {
    case Pantalla::ConfigurarPrograma: {
        ConfigurarPrograma pantalla(s_, d_, ventana_);
        pantalla.exec();
        break;
    }
    case Pantalla::Sobre: {
        Sobre pantalla(ventana_);
        pantalla.exec();
        break;
    }
    case Pantalla::DatosAcueducto:
        if (acu_) {
            VentanaDatosAcueducto pantalla(*acu_, s_, d_, ventana_);
            pantalla.exec();
        }
        break;
    case Pantalla::AnalisisACU:
        if (acu_) {
            VentanaAnalisisACU pantalla(*acu_, s_, d_, ventana_);
            pantalla.exec();
        }
        break;
    default:
        break;
    }
    (void)p_;
}
