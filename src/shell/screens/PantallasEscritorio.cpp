#include "shell/screens/PantallasEscritorio.h"

#include "analysis/screens/VentanaAnalisisRed.h"
#include "aqueduct/screens/VentanaAnalisisACU.h"
#include "aqueduct/screens/VentanaDatosAcueducto.h"
#include "catalogue/screens/VentanaBDConexiones.h"
#include "catalogue/screens/VentanaBDPiezas.h"
#include "entry/screens/VentanaDatosRamales.h"
#include "reports/screens/VentanaImpreGeneral.h"
#include "reports/screens/VentanaImpreHojas.h"
#include "shell/screens/VentanaCompactar1.h"
#include "shell/screens/VentanaConfigurarPrograma.h"
#include "shell/screens/VentanaRespaldoArchivos.h"
#include "shell/screens/DialogosQt.h"
#include "shell/screens/VentanaSobre.h"
#include "takeoff/screens/VentanaComputos.h"
#include "tank/screens/VentanaHidroneumatico.h"

bool PantallasEscritorio::Disponible(Pantalla p) const {
    switch (p) {
    case Pantalla::AnalisisRed:
    case Pantalla::Hidroneumatico:
    case Pantalla::Computos:
    case Pantalla::DatosRamales:
    case Pantalla::DatosAcueducto:
    case Pantalla::AnalisisACU:
    case Pantalla::ConfigurarPrograma:
    case Pantalla::Sobre:
    case Pantalla::BDPiezas:
    case Pantalla::BDConexiones:
    case Pantalla::ImpreGeneral:
    case Pantalla::Compactar:
    case Pantalla::RespaldoArchivos:
    case Pantalla::ImpreHojas:
        return true;
    default:
        return false;
    }
}

void PantallasEscritorio::Mostrar(Pantalla p) {
    // The screen waits for the engineer with the ordinary pointer.
    PunteroEnPausa pausa;
    switch (p) {
    case Pantalla::AnalisisRed: {
        VentanaAnalisisRed pantalla(p_, s_, d_, ventana_);
        if (pantalla.Cargar()) pantalla.exec();
        break;
    }
    case Pantalla::Hidroneumatico: {
        VentanaHidroneumatico pantalla(p_, s_, d_, ventana_);
        // A fault in the pre-filling has been shown; the boxes can be typed.
        pantalla.Cargar();
        pantalla.exec();
        break;
    }
    case Pantalla::Computos: {
        VentanaComputos pantalla(p_, s_, d_, false, ventana_);
        if (pantalla.Cargar()) pantalla.exec();
        break;
    }
    case Pantalla::ConfigurarPrograma: {
        VentanaConfigurarPrograma pantalla(s_, d_, ventana_);
        pantalla.exec();
        break;
    }
    case Pantalla::Compactar: {
        VentanaCompactar1 pantalla(s_, d_, ventana_);
        pantalla.exec();
        break;
    }
    case Pantalla::RespaldoArchivos: {
        VentanaRespaldoArchivos pantalla(s_, d_, ventana_);
        pantalla.exec();
        break;
    }
    case Pantalla::Sobre: {
        VentanaSobre pantalla(ventana_);
        pantalla.exec();
        break;
    }
    case Pantalla::DatosRamales: {
        VentanaDatosRamales pantalla(p_, s_, d_, ventana_);
        pantalla.exec();
        break;
    }
    case Pantalla::DatosAcueducto: {
        VentanaDatosAcueducto pantalla(acu_, s_, d_, ventana_);
        pantalla.exec();
        break;
    }
    case Pantalla::BDPiezas: {
        VentanaBDPiezas pantalla(s_, d_, nullptr, ventana_);
        pantalla.exec();
        break;
    }
    case Pantalla::BDConexiones: {
        VentanaBDConexiones pantalla(s_, d_, nullptr, ventana_);
        pantalla.exec();
        break;
    }
    case Pantalla::ImpreGeneral: {
        // The project's data report, the one the menu asks for.
        VentanaImpreGeneral pantalla(5, s_, d_, ventana_);
        pantalla.exec();
        break;
    }
    case Pantalla::AnalisisACU: {
        VentanaAnalisisACU pantalla(acu_, s_, d_, ventana_);
        pantalla.exec();
        break;
    }
    case Pantalla::ImpreHojas: {
        VentanaImpreHojas pantalla(p_, acu_, s_, d_, ventana_);
        pantalla.exec();
        break;
    }
    default:
        break;
    }
}
