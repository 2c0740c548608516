#pragma once
// The logic of the screen ImpreGeneral ("Imprimir"): the data reports.  The
// caller names the origin; Aceptar fills that origin's work tables, opens
// its template (the photograph one when asked and there is one) and hands
// the report to the output stage.
//
// Origins: 1 the take-off, 2 the tank, 3 the fixture catalogue, 4 the
// fitting catalogue, 5 the project's data, 6 the fixtures and 7 the
// fittings on the branches.

#include "reports/TablasDatos.h"

#include <QString>

class Dialogos;
class PantallasSalida;
struct Sesion;

// The number shown with an error of the template or the report engine.
constexpr int ErrorMotorReporte = 20525;

class ImpreGeneral {
public:
    ImpreGeneral(int origen, Sesion& s, Dialogos& d, PantallasSalida& salida, FuenteDatos fuente = {});

    QString Caption = QStringLiteral("Imprimir");
    QString Text1;        // the title, set from the origin at the load
    bool Check1 = true;   // colour
    bool Check3 = false;  // the photograph template
    int Origen() const { return origen_; }
    bool Check3Visible() const { return OrigenConFotos(origen_); }

    // Command2 "Aceptar": true when the report went out (the screen then
    // closes); false when it was cancelled or refused, with the screen usable.
    bool Aceptar();
    // LSButton4 "Directorio de los reportes exportados. ".
    void LSButton4();

private:
    void MostrarError(const QString& descripcion);

    int origen_;
    Sesion& s_;
    Dialogos& d_;
    PantallasSalida& salida_;
    FuenteDatos fuente_;
};
