#include "app/Escritorio.h"

#include "analysis/Numeracion.h"
#include "model/ProyectoEdificio.h"
#include "shell/Sesion.h"
#include "shell/screens/DialogosQt.h"
#include "shell/screens/PantallasEscritorio.h"
#include "shell/screens/VentanaPrincipal.h"
#include "shell/screens/VentanaMsgBox.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QTranslator>

int EjecutarEscritorio(int argc, char** argv) {
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Nivo-Fontaria 2024"));
    QApplication::setWindowIcon(IconoPrograma());
    // The toolkit's own dialogs (files, colours) speak Spanish too.
    QTranslator traduccion;
    if (traduccion.load(QLocale(QLocale::Spanish), QStringLiteral("qtbase"), QStringLiteral("_"),
                        QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QApplication::installTranslator(&traduccion);
    Sesion s;
    ProyectoEdificio p;
    DialogosQt d;
    PantallasEscritorio pantallas(s, p, d);
    VentanaPrincipal ventana(s, p, d, pantallas);
    ventana.Logica().VerificarNumeracion = [&p, &d] { VerificarNumeracion(p, d); };
    pantallas.PonerVentana(&ventana);
    pantallas.PonerAcueducto(&ventana.Logica().Acueducto());
    ventana.Arrancar();
    ventana.showMaximized();
    return app.exec();
}
