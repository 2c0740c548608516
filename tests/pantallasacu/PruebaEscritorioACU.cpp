// The road of the desktop: a tool of the main window loads the network and
// shows the real aqueduct screen on the main window's model.

#include "ApoyoACU.h"
#include "aqueduct/screens/VentanaAnalisisACU.h"
#include "aqueduct/screens/VentanaDatosAcueducto.h"
#include "model/ProyectoEdificio.h"
#include "shell/MenuPrincipal.h"
#include "shell/screens/PantallasEscritorio.h"

namespace {
struct Escritorio : PantallaACU {
    ProyectoEdificio edificio;
    PantallasEscritorio pantallas{s, edificio, p, falsos};
    MenuPrincipal menu{s, edificio, p, falsos, pantallas};
};
}  // namespace

TEST_F(Escritorio, LasHerramientasDeAcueductosAbrenSusPantallas) {
    for (const char* id : {"ID_A_Nuevo", "ID_A_Modificar", "ID_A_Analisis"})
        EXPECT_TRUE(menu.Habilitada(QString::fromLatin1(id))) << id;
    ruta = sp.CopiaDeEjemplo(QStringLiteral("EjemploRedA.nivo"), QStringLiteral("Redes/EjemploRedA.acu"));
    falsos.archivos.push_back(ruta);
    int filas = -1;
    CuandoAbra<VentanaAnalisisACU>([&](VentanaAnalisisACU* a) {
        filas = a->Vista1()->model()->rowCount();
        a->Boton(QStringLiteral("LSButton3"))->click();  // "Retorno"
    });
    EXPECT_TRUE(menu.Ejecutar(QStringLiteral("ID_A_Analisis")));
    EXPECT_EQ(filas, 26);

    QString pagina;
    CuandoAbra<VentanaDatosAcueducto>([&](VentanaDatosAcueducto* d) {
        pagina = d->windowTitle();
        d->reject();
    });
    EXPECT_TRUE(menu.Ejecutar(QStringLiteral("ID_A_Modificar")));
    EXPECT_EQ(pagina, QStringLiteral("Redes de Acueductos   Proyecto: [ EJEMPLOREDA.ACU ]"));
    EXPECT_EQ(p.NumeroTramos, 26);
}
