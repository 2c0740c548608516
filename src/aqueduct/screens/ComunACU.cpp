#include "aqueduct/screens/ComunACU.h"

#include "base/Dialogos.h"
#include "base/ErrorEjecucion.h"
#include "shell/ErrorCalculo.h"
#include "shell/MenuPrincipal.h"
#include "shell/Sesion.h"
#include "widgets/NivoToolTip.h"

#include <QPushButton>

QPushButton* BotonACU(const QString& nombre, const QString& texto, QWidget* padre) {
    auto* b = new QPushButton(texto, padre);
    b->setObjectName(nombre);
    b->setAutoDefault(false);
    return b;
}

void InstalarAyudas(QWidget* pantalla, NivoToolTip* tip, const ConfiguracionTapiz& c, const QList<Ayuda>& ayudas) {
    for (const Ayuda& a : ayudas)
        if (a.titulo.isEmpty())
            if (auto* w = pantalla->findChild<QWidget*>(a.control)) w->setToolTip(a.texto);
    ConfigurarToolTips(pantalla, tip, c);
    for (const Ayuda& a : ayudas)
        if (!a.titulo.isEmpty())
            if (auto* w = pantalla->findChild<QWidget*>(a.control)) tip->Registrar(w, a.texto, a.titulo);
}

bool Proteger(Dialogos& d, const std::function<void()>& accion) {
    try {
        accion();
        return true;
    } catch (const ErrorEjecucion& e) {
        d.CursorOcupado(false);
        MostrarErrorCalculo(d, e);
        return false;
    }
}
