#pragma once
// frmEfectoImagenNivo: the effect buttons down the left, the preview, the
// four sliders with their reset buttons, and "Fijar el Efecto" / Cancel.

#include "images/efectos/EfectoImagenNivo.h"

#include <QDialog>

class QLabel;
class QSlider;
class NivoToolTip;
class Dialogos;
struct ConfiguracionTapiz;

class VentanaEfectoImagenNivo : public QDialog {
    Q_OBJECT
public:
    VentanaEfectoImagenNivo(EfectoImagenNivo& logica, Dialogos& d, const ConfiguracionTapiz& tapiz,
                            QWidget* padre = nullptr);

    QSlider* Deslizadera(Deslizador s) const { return sliders_[int(s)]; }

protected:
    void resizeEvent(QResizeEvent* e) override;

private:
    void Accion(void (EfectoImagenNivo::*evento)());
    void MostrarVista();
    void MostrarDeslizadores();
    EfectoImagenNivo& logica_;
    Dialogos& d_;
    QLabel* picture1_;
    QSlider* sliders_[4];
    QLabel* etiquetas_[4];
    NivoToolTip* tip_;
};
