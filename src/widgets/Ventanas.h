#pragma once
// Small pieces every result screen shares: its buttons, its first size, the
// busy pointer around long work, and the way a run-time fault of the
// calculation leaves it.

#include "base/ErrorEjecucion.h"
#include "shell/ErrorCalculo.h"

#include <QDate>
#include <QString>
#include <QStyle>
#include <optional>

class QLabel;
class QLayout;
class QPushButton;
class QWidget;
class Dialogos;

// A button of a screen, known by its control name, with the style's icon
// and a tip.  It never takes Enter for itself: Enter belongs to the grids
// and the number boxes.
QPushButton* BotonNivo(const QString& nombre, const QString& texto, QWidget* padre,
                       std::optional<QStyle::StandardPixmap> icono = std::nullopt, const QString& tip = QString());
// "Retorno", which closes a screen.
QPushButton* BotonRetorno(QWidget* padre);
// The bold title line at the top of a screen ("Titulo").
QLabel* TituloPantalla(const QString& texto, QWidget* padre);

// The calendar of a date box ("Calendario"): the day chosen, none when the
// calendar was closed without one.
std::optional<QDate> PedirFecha(QWidget* padre, const QDate& inicial);

// The first size of a screen, a share of the available screen, centred.
void DimensionarVentana(QWidget* w, int porcientoAncho, int porcientoAlto);

// Lays a small screen's controls out at their natural size, centred in the
// window when it is larger (maximised).
void PonerCentrado(QWidget* ventana, QLayout* contenido);

// The busy pointer for the duration of a block.
class CursorEspera {
public:
    CursorEspera();
    ~CursorEspera();
    CursorEspera(const CursorEspera&) = delete;
    CursorEspera& operator=(const CursorEspera&) = delete;
};

// Runs an event of a screen.  A run-time fault of the calculation is shown
// as the main window shows it and the function returns false, for the
// screen to decide whether it can go on.
template <class F>
bool SinFallaDeCalculo(Dialogos& d, F&& f) {
    try {
        f();
        return true;
    } catch (const ErrorEjecucion& e) {
        MostrarErrorCalculo(d, e);
        return false;
    }
}
