// The catalogue screens as the desktop opens them: from the main menu a
// maintenance screen without "Capturar"; from the fixtures of a branch, the
// chosen row captured onto it.

#include "ApoyoPantallas.h"
#include "catalogue/screens/VentanaBDConexiones.h"
#include "catalogue/screens/VentanaBDPiezas.h"
#include "entry/ApoyoRamalesFilas.h"
#include "entry/screens/VentanaPiezasRamales.h"
#include "widgets/NivoToolTip.h"
#include "widgets/VistaGrid.h"

#include <QPushButton>

namespace {

struct PantallaBD : EscritorioPrueba {};
using PantallaBDRamal = RamalesFilasPrueba;

}  // namespace

TEST_F(PantallaBD, DesdeElMenuSinCapturarYConsusTips) {
    sp.s.CatalogoDesdeProyecto = true;  // left over: the tool clears it
    bool visto = false;
    MensajeVisto mensaje;
    CuandoAbra<VentanaBDPiezas>([&](VentanaBDPiezas* w) {
        visto = true;
        PanelBDCatalogo* panel = w->Panel();
        EXPECT_EQ(w->windowTitle(), QStringLiteral("Base de Datos de Piezas Sanitarias"));
        EXPECT_TRUE(panel->Boton(QStringLiteral("Capturar"))->isHidden());
        const ImpreVista impre = ImpreAbierta(panel->Boton(QStringLiteral("Reporte")));
        EXPECT_EQ(impre.origen, 3);
        EXPECT_EQ(impre.titulo, QStringLiteral("BASE DE DATOS DE PIEZAS SANITARIAS"));
        EXPECT_TRUE(impre.fotos);
        const auto* tip = panel->findChild<NivoToolTip*>();
        ASSERT_NE(tip, nullptr);
        EXPECT_EQ(tip->Texto(panel->Boton(QStringLiteral("Editar"))), QStringLiteral("Editar o crear piezas sanitarias. "));
        EXPECT_EQ(tip->Texto(panel->Boton(QStringLiteral("Reporte"))),
                  QStringLiteral("Imprimir la base de datos de piezas sanitarias. "));
        EXPECT_EQ(panel->findChild<QLabel*>(QStringLiteral("Cuenta"))->text(), QStringLiteral("21"));
        panel->Spread1()->setCurrentIndex(panel->Spread1()->model()->index(4, 2));
        Contestar(mensaje, 0);
        panel->Boton(QStringLiteral("Eliminar"))->click();
        // A double click edits the row: a reserved fixture keeps key and name.
        bool editado = false;
        CuandoAbra<VentanaEditorCatalogo>([&editado](VentanaEditorCatalogo* e) {
            editado = true;
            EXPECT_EQ(e->windowTitle(), QStringLiteral("Crear o Modificar Piezas Sanitarias"));
            EXPECT_EQ(e->findChild<QLineEdit*>(QStringLiteral("Clave"))->text(), QStringLiteral("5"));
            EXPECT_FALSE(e->findChild<QLineEdit*>(QStringLiteral("Nombre"))->isEnabled());
            e->reject();
        });
        Q_EMIT panel->Spread1()->doubleClicked(panel->Spread1()->model()->index(4, 2));
        EXPECT_TRUE(editado);
        w->reject();
    });
    v->EjecutarHerramienta(QStringLiteral("ID_M3_Piezas"));
    EXPECT_TRUE(visto);
    EXPECT_FALSE(sp.s.CatalogoDesdeProyecto);
    MensajeEs(mensaje,
              QStringLiteral("Clave de la Pieza = ( 5 )EXCUSADO DE TANQUE¡Las Claves del (1) al (21) No se Pueden "
                             "Eliminar!"),
              QStringLiteral("Eliminar Piezas Sanitarias..."));
    EXPECT_FALSE(sp.s.RsPiezas.Abierto());
}

TEST_F(PantallaBDRamal, PiezasAbreElCatalogoYCapturaLaFila) {
    DialogosPantalla dq;
    VentanaPiezasRamales v(p, s, dq, editor, [] {});
    v.show();
    PanelFilasRamal* panel = v.Panel();
    TeclearEnVista(panel->Spread1(), QStringLiteral("2\n"));
    ASSERT_EQ(p.NPiezas[1], 2);
    panel->Spread2()->setCurrentIndex(panel->Spread2()->model()->index(0, 0));
    auto* piezas = panel->findChild<QPushButton*>(QStringLiteral("BaseDatos"));
    ASSERT_TRUE(piezas->isEnabled());
    CuandoAbra<VentanaBDPiezas>([](VentanaBDPiezas* w) {
        PanelBDCatalogo* bd = w->Panel();
        ASSERT_FALSE(bd->Boton(QStringLiteral("Capturar"))->isHidden());
        bd->Spread1()->setCurrentIndex(bd->Spread1()->model()->index(6, 2));
        bd->Boton(QStringLiteral("Capturar"))->click();
    });
    piezas->click();
    EXPECT_EQ(p.PiezaClave(1, 1), 7);
    EXPECT_EQ(p.PiezaCantidad(1, 1), 3);
    EXPECT_EQ(panel->Spread2()->currentIndex().row(), 1);
    // The branch screen's record set stays open for it.
    EXPECT_TRUE(s.RsPiezas.Abierto());
    EXPECT_TRUE(s.CatalogoDesdeProyecto);
    v.reject();
}
