#pragma once
// The window of ConexionesRamales: the shared branch-rows panel over its logic.
// Closing it (Retorno, Esc, the close box) closes the record sets and
// clears the "a branch screen is open" flag; the caller then has the branch
// editor rewrite its counts.

#include "entry/ConexionesRamales.h"

#include <QDialog>
#include <functional>

class PanelFilasRamal;

class VentanaConexionesRamales : public QDialog {
    Q_OBJECT
public:
    VentanaConexionesRamales(ProyectoEdificio& p, Sesion& s, Dialogos& d, EditorRamales& editor,
                        std::function<void()> refrescarEditor, QWidget* padre = nullptr);

    ConexionesRamales& Logica() { return logica_; }
    PanelFilasRamal* Panel() const { return panel_; }

    void done(int r) override;

private:
    ConexionesRamales logica_;
    Dialogos& d_;
    PanelFilasRamal* panel_ = nullptr;
};
