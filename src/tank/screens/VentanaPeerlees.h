#pragma once
// The screen "Tabla de Peerlees": the consumption factors by class of
// building and number of fixtures, read-only; "Capturar Factor Consumo"
// hands the factor of the active cell back to the tank screen.

#include "base/Grid.h"

#include <QDialog>

class Dialogos;
class NivoToolTip;
class VistaGrid;
struct Sesion;

class VentanaPeerlees : public QDialog {
    Q_OBJECT
public:
    VentanaPeerlees(Sesion& s, Dialogos& d, QWidget* padre = nullptr);
    // The views let go of the grids before the logic that owns them goes.
    ~VentanaPeerlees() override;

    VistaGrid* Vista() const { return vista_; }
    Grid& Tabla() { return tabla_; }
    NivoToolTip* Tip() const { return tip_; }
    // The factor captured, as text ("2.5"); empty until then.
    const QString& Capturado() const { return capturado_; }
    // "Capturar Factor Consumo": the active cell's factor, and the screen
    // closes accepted; a cell that holds no number shows the fault and stays.
    void Capturar();

private:
    Dialogos& d_;
    Grid tabla_;
    VistaGrid* vista_;
    NivoToolTip* tip_;
    QString capturado_;
};
