#pragma once
// "Longitud de los Ramales": the length of a section from the coordinates
// of its two ends, fixed into the data screen's section grid.  The scroll
// bar walks the rows of that grid; `alMover` redraws the data screen.

#include "aqueduct/LongitudTramosAcu.h"
#include "widgets/CajasCoordenadas.h"

#include <QDialog>
#include <functional>

class QLabel;
class QPushButton;
class QScrollBar;
class NivoDouble;
class NivoToolTip;
class VistaGrid;

class VentanaLongitudTramosAcu : public QDialog {
    Q_OBJECT
public:
    VentanaLongitudTramosAcu(DatosAcueducto& datos, std::function<void()> alMover, QWidget* padre = nullptr);
    // The views let go of the logic's grids before the logic goes.
    ~VentanaLongitudTramosAcu() override;

    LongitudTramosAcu& Logica() { return logica_; }
    NivoDouble* Caja(int i) const { return cajas_->Caja(i); }
    QLabel* Longitud() const { return cajas_->Longitud(); }
    QScrollBar* Scroll() const { return vscroll1_; }
    VistaGrid* Vista() const { return spread1_; }

private:
    void Mostrar();
    DatosAcueducto& datos_;
    LongitudTramosAcu logica_;
    std::function<void()> alMover_;
    NivoToolTip* tip_;
    CajasCoordenadas* cajas_;
    VistaGrid* spread1_;
    QScrollBar* vscroll1_;
    QPushButton* nodos_;
};
