#pragma once
// "Registro Fotográfico": the picture in its container with scroll bars,
// the overview, the zoom buttons (held, they repeat), the selection drawn
// with a moving dashed outline, and the capture, paste and delete buttons.

#include "images/VisualizarImagen.h"

#include <QDialog>
#include <QTimer>

struct Sesion;
class LienzoFoto;
class MarcoImagen;
class NivoToolTip;
class QCheckBox;
class QLabel;
class QScrollArea;

class VentanaVisualizarImagen : public QDialog {
    Q_OBJECT
public:
    VentanaVisualizarImagen(Sesion& s, Dialogos& d, const QImage& imagen, QWidget* padre = nullptr);

    VisualizarImagen& Logica() { return logica_; }

protected:
    void resizeEvent(QResizeEvent* e) override;
    void showEvent(QShowEvent* e) override;

private:
    void Redibujar();
    void MostrarMarco();
    VisualizarImagen logica_;
    QScrollArea* container_;
    LienzoFoto* picMain_;
    MarcoImagen* picView_;
    QCheckBox* chkFit_;
    QLabel* lblZoom_;
    QLabel* lblWidth_;
    QLabel* lblHeight_;
    QTimer timer1_;
    NivoToolTip* tip_;
};
