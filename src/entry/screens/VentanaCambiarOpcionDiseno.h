#pragma once
// "Opción de Diseño en los Ramales": the two options, the grid of branches
// with their marks, and the buttons that mark and fix.

#include "entry/CambiarOpcionDiseno.h"

#include <QDialog>
#include <functional>

class NivoToolTip;
class QRadioButton;
class VistaGrid;

class VentanaCambiarOpcionDiseno : public QDialog {
    Q_OBJECT
public:
    // `refrescarEditor` redraws the branch editor behind after a change.
    VentanaCambiarOpcionDiseno(ProyectoEdificio& p, Sesion& s, Dialogos& d, EditorRamales& editor,
                               std::function<void()> refrescarEditor, QWidget* padre = nullptr);
    ~VentanaCambiarOpcionDiseno() override;

    CambiarOpcionDiseño& Logica() { return logica_; }
    VistaGrid* Spread1() const { return spread1_; }

private:
    void Accion(const std::function<void()>& f);
    Dialogos& d_;
    CambiarOpcionDiseño logica_;
    std::function<void()> refrescarEditor_;
    VistaGrid* spread1_;
    QRadioButton* opciones_[2];
    NivoToolTip* tip_;
};
