#pragma once
// The screen "Imprimir" of the data reports: the title of the report, the
// colour and photograph choices, "Aceptar", the folder of exported reports
// and "Cancelar".  The logic is ImpreGeneral.

#include "reports/salida/ImpreGeneral.h"
#include "reports/screens/PantallasSalidaEscritorio.h"

#include <QDialog>

class QCheckBox;
class QLineEdit;
class QPushButton;
class NivoToolTip;

class VentanaImpreGeneral : public QDialog {
    Q_OBJECT
public:
    VentanaImpreGeneral(int origen, Sesion& s, Dialogos& d, QWidget* padre = nullptr, FuenteDatos fuente = {});

    ImpreGeneral& Logica() { return logica_; }
    QLineEdit* Text1() const { return text1_; }
    QCheckBox* Check1() const { return check1_; }
    QCheckBox* Check3() const { return check3_; }
    QPushButton* Boton(const QString& nombre) const;

    // Command2: the report; the screen closes once it went out.
    void Aceptar();

private:
    PantallasSalidaEscritorio salida_;
    ImpreGeneral logica_;
    QLineEdit* text1_;
    QCheckBox* check1_;
    QCheckBox* check3_;
    NivoToolTip* tip_;
};
