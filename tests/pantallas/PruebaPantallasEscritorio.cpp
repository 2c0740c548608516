// The result tools of the main window with the desktop's own screens: they
// are enabled, each runs its screen on a sample chosen through the open
// dialog, and a broken network is refused with its message before the
// analysis screen shows.

#include "ApoyoPantallas.h"
#include "analysis/ApoyoAnalisis.h"
#include "analysis/screens/VentanaAnalisisRed.h"
#include "aqueduct/ProyectoAcueducto.h"
#include "reports/screens/VentanaImpreHojas.h"
#include "shell/screens/PantallasEscritorio.h"
#include "shell/screens/VentanaPrincipal.h"
#include "takeoff/screens/VentanaComputos.h"
#include "tank/screens/VentanaHidroneumatico.h"
#include "widgets/NivoNumero.h"

#include <QAction>

namespace {

struct Escritorio : EscritorioPrueba {};

}  // namespace

TEST_F(Escritorio, LasHerramientasDeResultadosEstanActivas) {
    EXPECT_TRUE(Activa("ID_M2_AnalisisRed"));
    EXPECT_TRUE(Activa("ID_M2_TanqueH"));
    EXPECT_TRUE(Activa("ID_M2_Computos"));
    EXPECT_TRUE(Activa("ID_M1_Modificar"));
    EXPECT_TRUE(Activa("ID_M3_Piezas"));
    EXPECT_TRUE(Activa("ID_M3_Conexiones"));
    EXPECT_TRUE(Activa("ID_M4_ImprimirHojas"));
    EXPECT_TRUE(Activa("ID_M5_Reparar"));
    EXPECT_TRUE(Activa("ID_M5_Respaldar"));
}

TEST_F(Escritorio, LasHojasDeTrabajoDesdeElMenu) {
    QString titulo;
    CuandoAbra<VentanaImpreHojas>([&](VentanaImpreHojas* h) {
        titulo = h->windowTitle();
        Tecla(h, Qt::Key_Escape);
    });
    v->EjecutarHerramienta(QStringLiteral("ID_M4_ImprimirHojas"));
    EXPECT_EQ(titulo, QStringLiteral("Imprimir Hojas de Trabajo"));
}

TEST_F(Escritorio, ElAnalisisDeUnEjemploDesdeLaVentana) {
    d.archivos = {Muestra("Vivienda con Tanque Elevado")};
    QString titulo, panel;
    CuandoAbra<VentanaAnalisisRed>([&](VentanaAnalisisRed* a) {
        titulo = a->windowTitle();
        panel = a->SSPanel1()->text();
        Tecla(a, Qt::Key_Escape);
    });
    v->EjecutarHerramienta(QStringLiteral("ID_M2_AnalisisRed"));
    // What the command does around the screen is checked with the commands.
    EXPECT_EQ(titulo, QStringLiteral("Resultado del Análisis  Proyecto: [ Vivienda con Tanque Elevado.plm ]"));
    EXPECT_EQ(panel, QStringLiteral("8"));
    EXPECT_FALSE(d.Ocupado());
}

TEST_F(Escritorio, UnaRedRotaNoLlegaALaPantalla) {
    // Branch 3 leaves from X, where no branch ends.
    ProyectoDeRamales(p, sp.s, {{"O", "A"}, {"A", "B"}, {"X", "C"}});
    GuardarYAbrir(p, sp, QStringLiteral("Proyectos/rota.plm"));
    sp.s.ConexionProyecto.Cerrar();
    d.archivos = {sp.Datos(QStringLiteral("Proyectos/rota.plm"))};
    sp.s.NombreProyecto.clear();
    bool pantalla = false;
    QTimer::singleShot(0, [&] { pantalla = qobject_cast<VentanaAnalisisRed*>(QApplication::activeModalWidget()); });
    MensajeVisto visto;
    Contestar(visto, 0);
    v->EjecutarHerramienta(QStringLiteral("ID_M2_AnalisisRed"));
    MensajeEs(visto,
              QStringLiteral("El Nodo-> ( X  del Ramal: 3 )\n¡Este Nodo está Desconectado!\n"
                             "Debe Corregir el Error para Realizar el Análisis..."),
              QStringLiteral("Error en la Numeración..."));
    EXPECT_FALSE(pantalla);
}

TEST_F(Escritorio, ElTanqueYLosComputosDesdeLaVentana) {
    d.archivos = {Muestra("Vivienda con Tanque Hidroneumatico")};
    v->EjecutarHerramienta(QStringLiteral("ID_M1_Abrir"));
    QString piezas;
    CuandoAbra<VentanaHidroneumatico>([&](VentanaHidroneumatico* t) {
        piezas = t->Caja(QStringLiteral("NumeroPiezas"))->text();
        t->accept();
    });
    v->EjecutarHerramienta(QStringLiteral("ID_M2_TanqueH"));
    EXPECT_EQ(piezas, QStringLiteral("17"));

    int filas = -1;
    CuandoAbra<VentanaComputos>([&](VentanaComputos* c) {
        filas = c->Logica().Paginas.Piezas.Filas();
        c->accept();
    });
    v->EjecutarHerramienta(QStringLiteral("ID_M2_Computos"));
    EXPECT_GT(filas, 0);
    EXPECT_FALSE(sp.s.ConexionProyecto.Abierta());
}
