#pragma once
// "EXPORTAR RESULTADOS": the six result reports of the analysis screen, the
// colour box, the cover's two titles, Aceptar, Cancelar and the folder of
// exported reports.

#include "reports/salida/ImpreResultados.h"
#include "reports/screens/PantallasSalidaEscritorio.h"

#include <QDialog>

class NivoToolTip;
class QCheckBox;
class QLineEdit;
class QRadioButton;

class VentanaImpreResultados : public QDialog {
    Q_OBJECT
public:
    VentanaImpreResultados(const AnalisisRed& a, const ProyectoEdificio& p, Sesion& s, Dialogos& d,
                           QWidget* padre = nullptr);

    ImpreResultados& Logica() { return logica_; }
    QRadioButton* Opcion(int n) const;
    QCheckBox* Check1() const { return check1_; }
    QLineEdit* Text1() const { return text1_; }
    QLineEdit* Text2() const { return text2_; }

private:
    void ElegirOpcion(int n);
    void Aceptar();

    PantallasSalidaEscritorio pantallas_;
    ImpreResultados logica_;
    QCheckBox* check1_;
    QLineEdit* text1_;
    QLineEdit* text2_;
    NivoToolTip* tip_;
};
