#pragma once
// frmRGBColors and frmDithering: the list of effects in Spread1, the
// preview of the row clicked, Button2 to accept and Button1 to cancel;
// frmDithering adds Check1, the reduced preview.

#include "images/efectos/ListaEfectos.h"

#include <QDialog>
#include <optional>

class QLabel;
class VistaGrid;
class NivoToolTip;
struct ConfiguracionTapiz;

class VentanaListaEfectos : public QDialog {
    Q_OBJECT
public:
    VentanaListaEfectos(ListaEfectos& logica, const QString& nombre, const ConfiguracionTapiz& tapiz,
                        QWidget* padre = nullptr);
    ~VentanaListaEfectos() override;

    // frmRGBColors and frmDithering over `imagen`: the row accepted.
    static std::optional<int> ElegirEfectoRGB(const QImage& imagen, const ConfiguracionTapiz& tapiz, QWidget* padre);
    static std::optional<int> ElegirDithering(const QImage& imagen, const ConfiguracionTapiz& tapiz, QWidget* padre);

protected:
    void resizeEvent(QResizeEvent* e) override;

private:
    void MostrarVista();
    ListaEfectos& logica_;
    VistaGrid* spread1_;
    QLabel* picture1_;
    NivoToolTip* tip_;
};
