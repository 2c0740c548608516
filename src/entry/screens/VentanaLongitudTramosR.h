#pragma once
// "Calcular la Longitud de los Ramales": the six coordinate boxes, the
// length, the branch shown and the scroll bar that walks the branches.

#include "entry/LongitudTramosR.h"
#include "widgets/CajasCoordenadas.h"

#include <QDialog>
#include <functional>

class NivoDouble;
class NivoToolTip;
class QLabel;
class QScrollBar;
class VistaGrid;

class VentanaLongitudTramosR : public QDialog {
    Q_OBJECT
public:
    // `refrescarEditor` redraws the branch editor behind after its cursor or
    // a length changed.
    VentanaLongitudTramosR(ProyectoEdificio& p, Sesion& s, Dialogos& d, EditorRamales& editor,
                           std::function<void()> refrescarEditor, QWidget* padre = nullptr);
    ~VentanaLongitudTramosR() override;

    LongitudTramosR& Logica() { return logica_; }
    NivoDouble* Caja(int i) const { return cajas_->Caja(i); }
    QLabel* EtiquetaLongitud() const { return cajas_->Longitud(); }
    QScrollBar* VScroll1() const { return vscroll1_; }

private:
    void Accion(const std::function<void()>& f);
    void Mostrar();
    Dialogos& d_;
    LongitudTramosR logica_;
    std::function<void()> refrescarEditor_;
    CajasCoordenadas* cajas_;
    VistaGrid* spread1_;
    QScrollBar* vscroll1_;
    NivoToolTip* tip_;
};
