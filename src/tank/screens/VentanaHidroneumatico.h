#pragma once
// The screen "CÁLCULO DE TANQUE HIDRONUEMÁTICO": the three methods of the
// pump flow with their boxes, the pressures, starts and suction, the kind of
// tank, and the buttons "Abrir", "Calcular" and "Retorno".  Each box writes
// its input as it changes; the logic is Hidroneumatico.

#include "tank/Hidroneumatico.h"

#include <QDialog>

class QPushButton;
class QRadioButton;
class NivoNumero;
class NivoToolTip;

class VentanaHidroneumatico : public QDialog {
    Q_OBJECT
public:
    VentanaHidroneumatico(ProyectoEdificio& p, Sesion& s, Dialogos& d, QWidget* padre = nullptr);

    // The load: the pre-filling from the project and the defaults.  False
    // when a fault of the calculation was shown; the boxes then hold the
    // defaults and the screen can still be used.
    bool Cargar();

    Hidroneumatico& Logica() { return logica_; }
    // A box by the name of its input ("Caudal", "Porcentaje", "Dotacion",
    // "NumeroPiezas", "FactorPeerlees", "PresionMinima", "PresionMaxima",
    // "Arranques", "Succion").
    NivoNumero* Caja(const QString& nombre) const;
    QRadioButton* Metodo(int n) const { return metodo_[n - 1]; }
    QRadioButton* TipoTanque(int opcionK) const { return tanque_[opcionK - 1]; }
    QPushButton* Boton(const QString& texto) const;
    NivoToolTip* Tip() const { return tip_; }

    // "Calcular": the results screen over the inputs, modally; a fault of
    // the sizing is shown instead and the inputs stay.
    void Calcular();
    // "Tabla de Peerles": the table; a captured factor goes into its box.
    void TablaPeerless();
    // "Abrir": another project and the pre-filling again.
    void Abrir();

private:
    QWidget* Metodos();
    QWidget* Sistema();
    NivoNumero* NuevaCaja(const QString& nombre, int decimales, double* variable, QWidget* padre);
    // Shows the inputs and the enabling of the chosen method.
    void Mostrar();

    const ProyectoEdificio& p_;
    Sesion& s_;
    Dialogos& d_;
    Hidroneumatico logica_;
    QRadioButton* metodo_[3];
    QRadioButton* tanque_[2];
    NivoNumero* piezas_ = nullptr;
    NivoToolTip* tip_;
    bool mostrando_ = false;
};
