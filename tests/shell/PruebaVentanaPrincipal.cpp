// The main window as the engineer sees it: tools per mode, the caption, the
// banner, the tips moved to the program's tip, the wallpaper, and the exit
// question through the real message box.

#include "PantallasFalsas.h"
#include "model/ProyectoEdificio.h"
#include "shell/screens/DialogosQt.h"
#include "shell/screens/VentanaPrincipal.h"
#include "support/Apoyo.h"
#include "support/Modales.h"
#include "widgets/NivoTab.h"
#include "widgets/NivoToolTip.h"
#include "widgets/PanelTapiz.h"

#include <QAction>
#include <QFileInfo>
#include <QMenu>
#include <QToolBar>
#include <QToolButton>

namespace {

struct Ventana : ::testing::Test {
    SesionPrueba sp;
    ProyectoEdificio p;
    ProyectoAcueducto acu;
    DialogosQt d;
    PantallasFalsas pantallas;
    std::unique_ptr<VentanaPrincipal> v;

    void SetUp() override {
        qputenv("FONTARIA_DATOS", sp.s.DirectorioDatos.toUtf8());
        pantallas.faltan = {int(Pantalla::AnalisisRed), int(Pantalla::DatosAcueducto)};
        v = std::make_unique<VentanaPrincipal>(sp.s, p, acu, d, pantallas);
        v->Arrancar(RutaProgramaPruebas());
        v->show();
    }
    void TearDown() override { qunsetenv("FONTARIA_DATOS"); }
    bool Visible(const char* id) const { return v->Accion(QString::fromLatin1(id))->isVisible(); }
    bool Activa(const char* id) const { return v->Accion(QString::fromLatin1(id))->isEnabled(); }
};

}  // namespace

TEST_F(Ventana, ArrancaEnElModoDeEdificios) {
    EXPECT_EQ(v->windowTitle(), QStringLiteral("NIVO-FONTARIA 2024    PROYECTO: [  ]"));
    EXPECT_EQ(v->TextoBanner(), QStringLiteral("Revisión: ") + QStringLiteral(FONTARIA_VERSION));
    EXPECT_EQ(v->findChild<QLabel*>(QStringLiteral("Banner"))->font().family(), QStringLiteral("Verdana"));
    EXPECT_EQ(v->Tabs()->Tab(), 1);
    EXPECT_TRUE(Visible("ID_M1_Nuevo"));
    EXPECT_FALSE(Visible("ID_A_Nuevo"));
    EXPECT_TRUE(v->Menu(QStringLiteral("ID_M1_Proyecto"))->menuAction()->isVisible());
    EXPECT_FALSE(v->Menu(QStringLiteral("ID_A_Proyecto"))->menuAction()->isVisible());
    EXPECT_TRUE(Visible("ID_M2_AnalisisRed"));
    EXPECT_FALSE(Activa("ID_M2_AnalisisRed"));
    EXPECT_TRUE(Activa("ID_M1_Abrir"));
    EXPECT_FALSE(Activa("ID_M1_SalvarComo"));
    EXPECT_EQ(v->Accion(QStringLiteral("ID_M1_Abrir"))->text(), QStringLiteral("ABRIR PROYECTO EXISTENTE..."));
    // The session's start ran in the test's data folder.
    EXPECT_TRUE(QFileInfo::exists(sp.Datos(QStringLiteral("Tapiz.nivo"))));
    EXPECT_FALSE(v->Tapiz()->Imagen().isNull());
}

TEST_F(Ventana, LaPestanaDosMuestraLasHerramientasDeAcueductos) {
    Q_EMIT v->Tabs()->tabBarClicked(1);  // the strip counts its tabs from 1
    EXPECT_EQ(sp.s.TipoRed, 1);
    EXPECT_TRUE(Visible("ID_A_Nuevo"));
    EXPECT_FALSE(Activa("ID_A_Nuevo"));
    EXPECT_FALSE(Visible("ID_M1_Nuevo"));
    EXPECT_TRUE(v->Menu(QStringLiteral("ID_A_Resultados"))->menuAction()->isVisible());
    EXPECT_FALSE(v->Menu(QStringLiteral("ID_M2_Resultados"))->menuAction()->isVisible());
}

TEST_F(Ventana, LosTipsPasanAlTipDelPrograma) {
    auto* boton = qobject_cast<QToolButton*>(v->Barra()->widgetForAction(v->Accion(QStringLiteral("ID_M1_Abrir"))));
    ASSERT_NE(boton, nullptr);
    EXPECT_TRUE(v->Tip()->Registrado(boton));
    EXPECT_EQ(v->Tip()->Texto(boton), QStringLiteral(" ABRIR UN PROYECTO EXISTENTE "));
    EXPECT_EQ(v->Tip()->TamanoLetra(), 10);
}

TEST_F(Ventana, EscPreguntaConLaCajaYNoLaCierra) {
    // The question's texts are those of the window's logic (see its test).
    MensajeVisto visto;
    Contestar(visto, 0);  // "No"
    Tecla(v.get(), Qt::Key_Escape);
    EXPECT_EQ(visto.encabezado, QStringLiteral("Salir de Nivo-Fontaria..."));
    EXPECT_TRUE(v->isVisible());
    // The close box closes with no question (a box would block the test).
    v->close();
    EXPECT_FALSE(v->isVisible());
}

TEST_F(Ventana, LaSalidaCierraSinPreguntar) {
    v->Accion(QStringLiteral("ID_M1_Salida"))->trigger();
    EXPECT_FALSE(v->isVisible());
}

TEST(VentanaConDialogosFalsos, ElTituloMuestraElProyectoElegidoAntesDeSuPantalla) {
    SesionPrueba sp;
    qputenv("FONTARIA_DATOS", sp.s.DirectorioDatos.toUtf8());
    ProyectoEdificio p;
    ProyectoAcueducto acu;
    DialogosFalsos d;
    PantallasFalsas pantallas;
    VentanaPrincipal v(sp.s, p, acu, d, pantallas);
    v.Arrancar(RutaProgramaPruebas());
    const QString plm = sp.CopiaDeEjemplo(QStringLiteral("Edificio_MontantePH.nivo"), QStringLiteral("Montante.plm"));
    d.archivos.push_back(plm);
    QString tituloAlMostrar;
    pantallas.alMostrar = [&](Pantalla) { tituloAlMostrar = v.windowTitle(); };
    v.Accion(QStringLiteral("ID_M2_Computos"))->trigger();
    qunsetenv("FONTARIA_DATOS");
    EXPECT_EQ(tituloAlMostrar, QStringLiteral("NIVO-FONTARIA 2024    PROYECTO: [ MONTANTE.PLM ]"));
}
