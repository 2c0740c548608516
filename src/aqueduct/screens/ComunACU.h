#pragma once
// What the aqueduct screens share: buttons named as the screens name them,
// the tips of a screen from its list, and the guard around every action of
// the logic, which shows a run-time fault and keeps the screen open with its
// data.

#include "aqueduct/AyudasACU.h"

#include <functional>

class Dialogos;
class NivoToolTip;
class QPushButton;
class QWidget;
struct ConfiguracionTapiz;

// A push button that never fires on Enter typed elsewhere in the screen.
QPushButton* BotonACU(const QString& nombre, const QString& texto, QWidget* padre);

// Gives every control named in `ayudas` its short tip, moves the tips to the
// program's tip control, then sets the long forms (those with a title).
void InstalarAyudas(QWidget* pantalla, NivoToolTip* tip, const ConfiguracionTapiz& c, const QList<Ayuda>& ayudas);

// Runs an action of the logic.  A run-time fault is shown as the main window
// shows one, and false is returned; the screen stays as it is.
bool Proteger(Dialogos& d, const std::function<void()>& accion);
