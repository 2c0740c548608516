#include "entry/screens/VentanaConexionesRamales.h"

#include "entry/screens/PanelFilasRamal.h"
#include "widgets/Ventanas.h"

VentanaConexionesRamales::VentanaConexionesRamales(ProyectoEdificio& p, Sesion& s, Dialogos& d, EditorRamales& editor,
                                         std::function<void()> refrescarEditor, QWidget* padre)
    : QDialog(padre), logica_(p, s, d, editor), d_(d) {
    setObjectName(QStringLiteral("ConexionesRamales"));
    SinFallaDeCalculo(d, [this] { logica_.Cargar(); });
    panel_ = new PanelFilasRamal(ConexionesRamales::Aspecto(), LogicaDe(logica_), s, d, std::move(refrescarEditor), this);
    MontarVentanaFilas(this, panel_, logica_.Filas().Caption());
}

void VentanaConexionesRamales::done(int r) {
    panel_->TerminarEdicion();
    // Errors while closing are ignored: every edit is already in the model.
    try {
        logica_.Cerrar();
    } catch (...) {
    }
    QDialog::done(r);
}
