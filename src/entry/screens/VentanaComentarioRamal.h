#pragma once
// "Comentario del Ramal": the branch number, its comment and a scroll bar
// that walks the branches; "Fijar", "Quitar" and "Retorno" (also Esc).

#include "entry/ComentarioRamal.h"

#include <QDialog>
#include <functional>

class NivoToolTip;
class QLabel;
class QLineEdit;
class QScrollBar;

class VentanaComentarioRamal : public QDialog {
    Q_OBJECT
public:
    // `refrescarAnalisis` redraws the analysis grid behind: its comment
    // column and its cursor.
    VentanaComentarioRamal(ProyectoEdificio& p, Sesion& s, Dialogos& d, AnalisisRed& analisis,
                           std::function<void()> refrescarAnalisis, QWidget* padre = nullptr);

    ComentarioRamal& Logica() { return logica_; }
    QLineEdit* Text1() const { return texto_; }
    QScrollBar* VScroll1() const { return vscroll1_; }
    QLabel* Panel() const { return panel_; }
    // "Retorno", Esc and the close box keep what was typed.
    void reject() override;

private:
    void Accion(const std::function<void()>& f);
    void Mostrar();
    Dialogos& d_;
    ComentarioRamal logica_;
    std::function<void()> refrescarAnalisis_;
    QLabel* panel_;
    QLineEdit* texto_;
    QScrollBar* vscroll1_;
    NivoToolTip* tip_;
};
