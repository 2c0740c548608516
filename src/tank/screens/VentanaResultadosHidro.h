#pragma once
// The screen "RESULTADOS DE CÁLCULO DEL TANQUE HIDRONEUMÁTICO": it sizes the
// tank at its load and shows the seven results under the method's title, the
// volumes in percent and a sketch of the tank.

#include "tank/ResultadosHidro.h"

#include <QDialog>
#include <optional>

class QGroupBox;
class QLabel;
class NivoToolTip;

class VentanaResultadosHidro : public QDialog {
    Q_OBJECT
public:
    VentanaResultadosHidro(const DatosTanque& datos, const ProyectoEdificio& p, Sesion& s, Dialogos& d,
                           QWidget* padre = nullptr);

    // The sizing; a fault of it (ErrorEjecucion) leaves the screen unshown.
    void Cargar();

    // The seven values in their order, the percentages and the method's frame.
    QLabel* Valor(int i) const { return valores_[i]; }
    QLabel* PorcentajeMinimo() const { return porcentajes_[0]; }
    QLabel* PorcentajeUtil() const { return porcentajes_[1]; }
    QLabel* PorcentajeMaximo() const { return porcentajes_[2]; }
    QGroupBox* Marco() const { return marco_; }
    NivoToolTip* Tip() const { return tip_; }

    // "Imprimir": the tank report (origin 2) of the values shown.
    void Imprimir();

private:
    DatosTanque datos_;
    const ProyectoEdificio& p_;
    Sesion& s_;
    Dialogos& d_;
    QGroupBox* marco_;
    QLabel* valores_[7];
    QLabel* porcentajes_[3];
    NivoToolTip* tip_;
};
