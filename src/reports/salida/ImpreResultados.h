#pragma once
// "EXPORTAR RESULTADOS": the result reports of the analysis screen.  One
// pass fills every work table from the grids as shown, opens the template
// of the option chosen on the work database, and hands the report to the
// output stage.  The cover's two titles can be edited only while the
// cover is the option chosen.

#include "reports/TablasResultados.h"

#include <QString>
#include <vector>

class AnalisisRed;
class Dialogos;
class PantallasSalida;
struct ProyectoEdificio;
struct Sesion;

class ImpreResultados {
public:
    ImpreResultados(const AnalisisRed& a, const ProyectoEdificio& p, Sesion& s, Dialogos& d, PantallasSalida& ps);

    static QString Titulo();  // "EXPORTAR RESULTADOS"
    static QString TipDirectorio();  // LSButton4's

    struct OpcionReporte {
        QString control, texto, plantilla;
    };
    // Option1 to Option6, in that order; Option4 is the cover.
    static const std::vector<OpcionReporte>& Opciones();

    // The option selected, 1..6; the first at start.
    int Opcion() const { return opcion_; }
    void ElegirOpcion(int n);
    // Text1 and Text2 take typing only with the cover selected.
    bool TitulosEditables() const { return opcion_ == 4; }

    // Check1, Text1 and Text2 (stored trimmed).
    OpcionesResultados Valores;

    // Command2: tables, template, output stage.  True when the report was
    // shown or written and the screen is to close; a cancel, a missing
    // template or a file that could not be written keep it open.
    bool Aceptar();
    // LSButton4: the folder of exported reports.
    void AbrirDirectorio();

private:
    bool Falla(const QString& texto);

    const AnalisisRed& a_;
    const ProyectoEdificio& p_;
    Sesion& s_;
    Dialogos& d_;
    PantallasSalida& ps_;
    int opcion_ = 1;
};
