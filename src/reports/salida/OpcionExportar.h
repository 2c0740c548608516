#pragma once
// "Exportar los Reportes": where a report goes, to the preview or to a file
// of one of four formats.  A click on an option acts at once as Aceptar; a
// file format asks for the file's name, and a cancelled file dialog leaves
// the screen open for another choice.

#include "reports/salida/SalidaReporte.h"

#include <vector>

class OpcionExportar {
public:
    OpcionExportar(const Sesion& s, Dialogos& d);

    static QString Titulo();  // "Exportar los Reportes"

    struct Opcion {
        QString control, texto, tip;
        FormatoSalida formato;
    };
    // LSOption1 (the preview), then Option1 to Option4.
    static const std::vector<Opcion>& Opciones();

    // The option selected; the preview at first.
    FormatoSalida Seleccion() const { return seleccion_; }
    // A click on an option: selects it and accepts.  True when the choice
    // is made and the screen is to close.
    bool Elegir(FormatoSalida f);
    // LSButton8: accepts the option selected.
    bool Aceptar() { return Elegir(seleccion_); }

    // The choice made; nothing while none was accepted (or on cancel).
    const std::optional<EleccionSalida>& Eleccion() const { return eleccion_; }

private:
    const Sesion& s_;
    Dialogos& d_;
    FormatoSalida seleccion_ = FormatoSalida::Vista;
    std::optional<EleccionSalida> eleccion_;
};
