#pragma once
// The window of either catalogue screen (T is BDPiezas or BDConexiones, N
// its record editor NewPieza or NewConexion, R the branch screen that may
// be behind): the shared panel over the logic, the record editor on
// "Editar", the photograph screens of the desktop.  Closing it (Retorno,
// Esc, the close box, a capture done) closes the record set if it opened it.

#include "catalogue/screens/PanelBDCatalogo.h"
#include "catalogue/screens/VentanaEditorCatalogo.h"
#include "images/screens/PantallasFotoEscritorio.h"
#include "widgets/Ventanas.h"

#include <QDialog>
#include <QVBoxLayout>

template <class T, class N, class R>
class VentanaBDCatalogo : public QDialog {
public:
    VentanaBDCatalogo(const QString& nombre, Sesion& s, Dialogos& d, R* destino, QWidget* padre)
        : QDialog(padre), s_(s), d_(d), fotos_(s, d, this), logica_(s, d, destino) {
        setObjectName(nombre);
        setWindowTitle(logica_.Logica().Tipo().titulo);
        setWindowFlag(Qt::WindowMaximizeButtonHint, true);
        SinFallaDeCalculo(d, [this] { logica_.Cargar(); });
        panel_ = new PanelBDCatalogo(
            logica_.Logica(), s, d, [this] { return logica_.Capturar(); }, [this](int fila) { Editar(fila); }, this);
        auto* capa = new QVBoxLayout(this);
        capa->addWidget(panel_);
        QObject::connect(panel_, &PanelBDCatalogo::Retorno, this, &QDialog::reject);
        QObject::connect(panel_, &PanelBDCatalogo::Capturado, this, &QDialog::accept);
        DimensionarVentana(this, 60, 80);
    }

    T& Logica() { return logica_; }
    PanelBDCatalogo* Panel() const { return panel_; }

    void done(int r) override {
        // Errors while closing are ignored: every change is in the file.
        try {
            logica_.Cerrar();
        } catch (...) {
        }
        QDialog::done(r);
    }

private:
    void Editar(int fila) {
        N editor(logica_, s_, d_, fotos_);
        VentanaEditorCatalogo ventana(editor.Logica(), logica_.Logica().Tipo(), s_, d_, fila, this);
        ventana.exec();
    }

    Sesion& s_;
    Dialogos& d_;
    PantallasFotoEscritorio fotos_;
    T logica_;
    PanelBDCatalogo* panel_ = nullptr;
};
