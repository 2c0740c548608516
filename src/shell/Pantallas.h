#pragma once
// The screens the commands of the main window show modally.  The desktop
// shows its Qt screens; the tests record which screen was asked for.  A
// screen not built yet reports itself unavailable, and the tools that lead
// to it stay visible and disabled.

enum class Pantalla {
    DatosRamales,       // branch editor
    AnalisisRed,        // analysis results
    Hidroneumatico,     // hydropneumatic tank
    Computos,           // material take-off
    ImpreGeneral,       // data reports
    BDPiezas,           // fixture catalogue editor
    BDConexiones,       // fitting catalogue editor
    ImpreHojas,         // work sheets
    Compactar,          // repair and compact files
    RespaldoArchivos,   // backups
    DatosAcueducto,     // aqueduct data
    AnalisisACU,        // aqueduct results
    ConfigurarPrograma, // settings
    Sobre,              // about box
};

class Pantallas {
public:
    virtual ~Pantallas() = default;
    virtual bool Disponible(Pantalla p) const = 0;
    // Shows the screen modally and returns when it closes.
    virtual void Mostrar(Pantalla p) = 0;
};
