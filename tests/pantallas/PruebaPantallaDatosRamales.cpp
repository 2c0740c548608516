// The branch editor on the desktop: opened by "New" of the main window,
// typed with the keyboard, closed through the real message box; opened from
// the analysis screen, whose chain runs again after a save.

#include "ApoyoPantallas.h"
#include "analysis/screens/VentanaAnalisisRed.h"
#include "entry/screens/VentanaDatosRamales.h"
#include "widgets/NivoNumero.h"
#include "widgets/VistaGrid.h"

#include <QAction>
#include <QCheckBox>
#include <QGroupBox>
#include <QPushButton>

namespace {

struct EditorEscritorio : EscritorioPrueba {};

// The count typed into its box and confirmed with Enter.
void TeclearCuenta(VentanaDatosRamales* w, const QString& cuenta) {
    Escribir(w->CajaNumeroRamales(), cuenta);
    Tecla(w->CajaNumeroRamales(), Qt::Key_Return);
    QApplication::processEvents();
}

}  // namespace

TEST_F(EditorEscritorio, NuevoAbreElEditorSeTecleaYSeSalvaAlCerrar) {
    const QString ruta = sp.Datos(QStringLiteral("Proyectos/casa.plm"));
    d.guardar = ruta;
    ASSERT_TRUE(v->Accion(QStringLiteral("ID_M1_Nuevo"))->isEnabled());
    ASSERT_TRUE(v->Accion(QStringLiteral("ID_M1_Modificar"))->isEnabled());
    MensajeVisto desborde, cerrar;
    QString titulo;
    QStringList grupos;
    CuandoAbra<VentanaDatosRamales>([&](VentanaDatosRamales* w) {
        titulo = w->windowTitle();
        for (const QGroupBox* g : w->findChildren<QGroupBox*>()) grupos << g->title();
        w->Boton(QStringLiteral("Siguiente"))->click();
        // A count the counters cannot hold: the overflow, the screen kept.
        Contestar(desborde, 0);
        TeclearCuenta(w, QStringLiteral("40000"));
        TeclearCuenta(w, QStringLiteral("2"));
        w->VistaNodos()->setCurrentIndex(w->VistaNodos()->model()->index(0, 0));
        // I, J, I, J: the cursor runs through the node columns.
        TeclearEnVista(w->VistaNodos(), QStringLiteral("A\nB\nB\nC\n"));
        w->Vista1()->setCurrentIndex(w->Vista1()->model()->index(1, 2));
        TeclearEnVista(w->Vista1(), QStringLiteral("12.5\n"));
        Contestar(cerrar, 2);  // "Sí": save
        Tecla(w, Qt::Key_Escape);
    });
    v->EjecutarHerramienta(QStringLiteral("ID_M1_Nuevo"));
    EXPECT_EQ(titulo, QStringLiteral("NIVO-FONTARIA 2024    PROYECTO: [ CASA.PLM ]"));
    EXPECT_TRUE(grupos.contains(QStringLiteral("Datos Generales del Proyecto")));
    EXPECT_TRUE(grupos.contains(QStringLiteral("Datos de los Ramales")));
    MensajeEs(desborde, QStringLiteral("Error 6: Desbordamiento"), QStringLiteral("Error en el Cálculo..."));
    MensajeEs(cerrar,
              QStringLiteral("Los Datos del Proyecto han sido Modificados...\n¿Desea Salvar los Cambios Realizados?"),
              QStringLiteral("Salvar las Modificaciones..."));
    EXPECT_EQ(CampoDelArchivo(ruta, "NodoI", 2).toString(), QStringLiteral("B"));
    EXPECT_EQ(CampoDelArchivo(ruta, "Nodoj", 2).toString(), QStringLiteral("C"));
    EXPECT_DOUBLE_EQ(CampoDelArchivo(ruta, "longitudReal", 2).toDouble(), 12.5);
}

TEST_F(EditorEscritorio, ElEditorDesdeElAnalisisLoCalculaDeNuevoAlSalvar) {
    CargarEjemplo(sp, p, d, QStringLiteral("Vivienda con Tanque Elevado"));
    VentanaAnalisisRed a(p, sp.s, d);
    ASSERT_TRUE(a.Cargar());
    const double antes = p.PerdidaRamal[2];
    bool abrirVisible = true;
    CuandoAbra<VentanaDatosRamales>([&](VentanaDatosRamales* w) {
        abrirVisible = w->Boton(QStringLiteral("Abrir"))->isVisibleTo(w);
        w->Logica().EditarCelda(2, 3, QStringLiteral("40"));
        w->Boton(QStringLiteral("Salvar"))->click();
        w->Boton(QStringLiteral("Retorno"))->click();
    });
    a.Boton(QStringLiteral("LSButton11"))->click();
    EXPECT_FALSE(abrirVisible);
    EXPECT_EQ(sp.s.EdicionDesdeAnalisis, 0);
    EXPECT_DOUBLE_EQ(p.longitudReal[2], 40);
    // A longer branch loses more: the chain ran on the saved data.
    EXPECT_GT(p.PerdidaRamal[2], antes);
}

TEST_F(EditorEscritorio, ElPanelSigueAlCursorEnAmbasVistas) {
    CargarEjemplo(sp, p, d, QStringLiteral("Edificio_ApartamentoTipo"));
    VentanaDatosRamales w(p, sp.s, d);
    w.show();
    w.Boton(QStringLiteral("Siguiente"))->click();
    w.findChild<QCheckBox*>(QStringLiteral("Graficos"))->click();
    for (auto [vista, fila] : {std::pair{w.VistaNodos(), 2}, std::pair{w.Vista1(), 4}}) {
        vista->setCurrentIndex(vista->model()->index(fila, vista == w.Vista1() ? 3 : 0));
        QApplication::processEvents();
        EXPECT_EQ(w.Logica().Spread2.Texto(1, 1), QStringLiteral("PIEZAS SANITARIAS EN EL RAMAL ( %1 )").arg(fila + 1));
        EXPECT_EQ(w.Vista2()->model()->data(w.Vista2()->model()->index(0, 0)).toString(),
                  QStringLiteral("PIEZAS SANITARIAS EN EL RAMAL ( %1 )").arg(fila + 1));
    }
}
