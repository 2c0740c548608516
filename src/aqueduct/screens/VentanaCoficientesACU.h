#pragma once
// "Coeficientes para las Pérdidas": the Hazen-Williams coefficients by pipe
// material; "Aceptar" puts the coefficient of the chosen row into the data
// screen's box "Coeficiente  C =".

#include "aqueduct/CoficientesACU.h"

#include <QDialog>

class VistaGrid;

class VentanaCoficientesACU : public QDialog {
    Q_OBJECT
public:
    VentanaCoficientesACU(DatosAcueducto& datos, QWidget* padre = nullptr);
    // The views let go of the logic's grids before the logic goes.
    ~VentanaCoficientesACU() override;
    CoficientesACU& Logica() { return logica_; }
    VistaGrid* Vista() const { return spread1_; }

private:
    void Aceptar();
    CoficientesACU logica_;
    VistaGrid* spread1_;
};
