#pragma once
// The window of PiezasRamales: the shared branch-rows panel over its logic.
// Closing it (Retorno, Esc, the close box) closes the record sets and
// clears the "a branch screen is open" flag; the caller then has the branch
// editor rewrite its counts.

#include "entry/PiezasRamales.h"

#include <QDialog>
#include <functional>

class PanelFilasRamal;

class VentanaPiezasRamales : public QDialog {
    Q_OBJECT
public:
    VentanaPiezasRamales(ProyectoEdificio& p, Sesion& s, Dialogos& d, EditorRamales& editor,
                       std::function<void()> refrescarEditor, QWidget* padre = nullptr);

    PiezasRamales& Logica() { return logica_; }
    PanelFilasRamal* Panel() const { return panel_; }

    void done(int r) override;

private:
    PiezasRamales logica_;
    Dialogos& d_;
    PanelFilasRamal* panel_ = nullptr;
};
