// The fixture screen on a blank project: a quick button and a typed key
// reach the logic, and its messages show in the real message box.

#include "ApoyoPantallas.h"
#include "entry/ApoyoRamalesFilas.h"
#include "entry/screens/PanelFilasRamal.h"
#include "entry/screens/VentanaPiezasRamales.h"
#include "widgets/VistaGrid.h"

#include <QToolButton>

using PantallaPiezasRamales = RamalesFilasPrueba;

TEST_F(PantallaPiezasRamales, BotonYClaveTecleada) {
    DialogosPantalla dq;
    int refrescos = 0;
    VentanaPiezasRamales v(p, s, dq, editor, [&] { ++refrescos; });
    v.show();
    PanelFilasRamal* panel = v.Panel();
    EXPECT_EQ(v.windowTitle(), QStringLiteral("NIVO-FONTARIA 2024   PROYECTO: [CASA.PLM ]"));

    MensajeVisto visto;
    Contestar(visto, 0);
    qobject_cast<QToolButton*>(panel->BotonRapido(4))->click();
    MensajeEs(visto, QStringLiteral("¡Debe Insertar el Espacio de la Pieza Sanitaria!"),
              QStringLiteral("Fijar la Pieza Sanitaria..."));

    TeclearEnVista(panel->Spread1(), QStringLiteral("2\n"));
    ASSERT_EQ(p.NPiezas[1], 2);
    // Enter stays on the branch, so its reserved rows are at hand.
    EXPECT_EQ(s.RamalActual, 1);
    ASSERT_EQ(panel->Spread2()->model()->rowCount(), 2);
    qobject_cast<QToolButton*>(panel->BotonRapido(4))->click();
    EXPECT_EQ(p.PiezaNombre(1, 1), QStringLiteral("DUCHA"));
    EXPECT_EQ(panel->Spread2()->currentIndex().row(), 1);  // one row down

    panel->Spread2()->setCurrentIndex(panel->Spread2()->model()->index(1, 0));
    Contestar(visto, 0);
    TeclearEnVista(panel->Spread2(), QStringLiteral("77\n"));
    MensajeEs(visto, QStringLiteral("Esta Clave no Existe en la Base de Datos...\nClave de la Pieza : ( 77 )\n"),
              QStringLiteral("Base de Datos de Piezas..."));
    TeclearEnVista(panel->Spread2(), QStringLiteral("10\n"));
    EXPECT_EQ(p.PiezaClave(1, 2), 10);
    TeclearEnVista(panel->Spread2(), QStringLiteral("x\n"));  // a letter never reaches the key
    EXPECT_EQ(p.PiezaClave(1, 2), 10);
    EXPECT_GT(refrescos, 0);
    const ImpreVista impre = ImpreAbierta(panel->findChild<QPushButton*>(QStringLiteral("Reporte")));
    EXPECT_EQ(impre.origen, 6);
    EXPECT_EQ(impre.titulo, QStringLiteral("PIEZAS SANITARIAS EN LOS RAMALES"));
    EXPECT_TRUE(impre.fotos);
    v.reject();
    EXPECT_FALSE(s.CatalogoDesdeProyecto);
}
