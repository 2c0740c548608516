#include "app/Escritorio.h"

#include "model/ProyectoEdificio.h"
#include "shell/Sesion.h"
#include "shell/screens/DialogosQt.h"
#include "shell/screens/PantallasEscritorio.h"
#include "shell/screens/VentanaPrincipal.h"
#include "shell/screens/frmMsgBox.h"

#include <QApplication>

int EjecutarEscritorio(int argc, char** argv) {
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Nivo-Fontaria 2024"));
    QApplication::setWindowIcon(IconoPrograma());
    Sesion s;
    ProyectoEdificio p;
    DialogosQt d;
    PantallasEscritorio pantallas(s, p, d);
    VentanaPrincipal ventana(s, p, d, pantallas);
    pantallas.PonerVentana(&ventana);
    ventana.Arrancar();
    ventana.showMaximized();
    return app.exec();
}
