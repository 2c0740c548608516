// The main window's logic: tools per mode, captions, availability of the
// tools whose screens are missing, the exit by Esc; and the wallpaper's
// placement.

#include "PantallasFalsas.h"
#include "model/ProyectoEdificio.h"
#include "shell/ColoqueImagen.h"
#include "shell/Herramientas.h"
#include "shell/MenuPrincipal.h"
#include "support/Apoyo.h"

#include <gtest/gtest.h>

namespace {

struct Menu : ::testing::Test {
    SesionPrueba sp;
    ProyectoEdificio p;
    ProyectoAcueducto acu;
    DialogosFalsos d;
    PantallasFalsas pantallas;
};

}  // namespace

TEST_F(Menu, LasHerramientasLlevanSuTituloYSuTip) {
    const Herramienta* h = BuscarHerramienta(QStringLiteral("ID_M4_Configurar"));
    ASSERT_NE(h, nullptr);
    EXPECT_EQ(h->titulo, QStringLiteral("CONFIGURACIÓN DEL PROGRAMA.."));
    EXPECT_EQ(h->tip, QStringLiteral(" CONFIGURACIÓN DEL PROGRAMA "));
    EXPECT_EQ(BuscarHerramienta(QStringLiteral("ID_M1_Modificar"))->tip, QStringLiteral(" Modificar los Datos del Proyecto "));
    EXPECT_EQ(BuscarHerramienta(QStringLiteral("ID_A_Abrir"))->tip, QStringLiteral(" &ABRIR UN PROYECTO EXISTENTE "));
    // A tool with no caption shows its tip in a menu, without the accelerator.
    EXPECT_EQ(TextoMenu(*BuscarHerramienta(QStringLiteral("ID_A_Abrir"))), QStringLiteral("ABRIR UN PROYECTO EXISTENTE"));
    // Every tool of the tool bar and of the menus is in the table.
    for (const QString& id : BarraHerramientas()) EXPECT_NE(BuscarHerramienta(id), nullptr) << id.toStdString();
    for (const MenuBarra& m : MenusPrincipales())
        for (const QString& id : m.herramientas)
            if (id != QLatin1String("-")) EXPECT_NE(BuscarHerramienta(id), nullptr) << id.toStdString();
    EXPECT_EQ(BarraHerramientas().size(), 18);
    EXPECT_EQ(BarraHerramientas().first(), QStringLiteral("ID_M1_Abrir"));
    EXPECT_EQ(BarraHerramientas().last(), QStringLiteral("ID_Explorador"));
}

TEST_F(Menu, LasPestanasMuestranLasHerramientasDeCadaModo) {
    MenuPrincipal m(sp.s, p, acu, d, pantallas);
    m.InicioMenu();
    for (const QString& id : IdsModoAcueducto()) EXPECT_FALSE(m.Visible(id)) << id.toStdString();
    for (const QString& id : IdsModoEdificio()) EXPECT_TRUE(m.Visible(id)) << id.toStdString();
    EXPECT_EQ(IdsModoAcueducto().size(), 9);

    sp.s.NombreProyecto = QStringLiteral("casa.plm");
    sp.s.NombreProyectoACU = QStringLiteral("red.acu");
    m.ClickTab(2);
    EXPECT_EQ(sp.s.TipoRed, 1);
    for (const QString& id : IdsModoAcueducto()) EXPECT_TRUE(m.Visible(id)) << id.toStdString();
    for (const QString& id : IdsModoEdificio()) EXPECT_FALSE(m.Visible(id)) << id.toStdString();
    // Tools of neither list stay in both modes.
    EXPECT_TRUE(m.Visible(QStringLiteral("ID_M5_Reparar")));
    EXPECT_TRUE(m.Visible(QStringLiteral("ID_Explorador")));
    // The tab sets the building form of the caption.
    EXPECT_EQ(m.Titulo(), QStringLiteral("NIVO-FONTARIA 2024    PROYECTO: [ CASA.PLM ]"));

    m.ClickTab(1);
    EXPECT_EQ(sp.s.TipoRed, 0);
    EXPECT_TRUE(m.Visible(QStringLiteral("ID_M2_AnalisisRed")));
    EXPECT_FALSE(m.Visible(QStringLiteral("ID_A_Analisis")));
}

TEST_F(Menu, LasHerramientasSinPantallaQuedanVisiblesYDesactivadas) {
    pantallas.faltan = {int(Pantalla::AnalisisRed), int(Pantalla::DatosRamales)};
    MenuPrincipal m(sp.s, p, acu, d, pantallas);
    m.InicioMenu();
    EXPECT_TRUE(m.Visible(QStringLiteral("ID_M2_AnalisisRed")));
    EXPECT_FALSE(m.Habilitada(QStringLiteral("ID_M2_AnalisisRed")));
    EXPECT_FALSE(m.Habilitada(QStringLiteral("ID_M1_Modificar")));
    EXPECT_TRUE(m.Habilitada(QStringLiteral("ID_M2_Computos")));
    EXPECT_TRUE(m.Habilitada(QStringLiteral("ID_M1_Nuevo")));
    // Save-as waits for a project; the design-only tools never show.
    EXPECT_FALSE(m.Habilitada(QStringLiteral("ID_M1_SalvarComo")));
    EXPECT_FALSE(m.Visible(QStringLiteral("ID_M1_Visualizar")));
    EXPECT_FALSE(m.Visible(QStringLiteral("ID_Soporte")));
    // The aqueduct tools follow their screens as the others do.
    EXPECT_TRUE(m.Habilitada(QStringLiteral("ID_A_Analisis")));
    EXPECT_TRUE(m.Habilitada(QStringLiteral("ID_A_Nuevo")));
    EXPECT_TRUE(m.Habilitada(QStringLiteral("ID_A_Abrir")));
    // A disabled tool runs nothing.
    EXPECT_TRUE(m.Ejecutar(QStringLiteral("ID_M2_AnalisisRed")));
    EXPECT_TRUE(d.dialogosArchivo.isEmpty());
    EXPECT_EQ(m.Titulo(), QStringLiteral("NIVO-FONTARIA 2024    PROYECTO: [  ]"));
}

TEST_F(Menu, EscPreguntaYLaCajaDeCierreNo) {
    MenuPrincipal m(sp.s, p, acu, d, pantallas);
    EXPECT_TRUE(m.TeclaPulsada(true));
    d.respuestas = {Respuesta::No};
    EXPECT_FALSE(m.PuedeCerrar());
    ASSERT_EQ(d.mensajes.size(), 1u);
    MensajeEs(d.Ultimo(), QStringLiteral("¿Desea Salir de Nivo-Fontaria y Acueductos 2024?"),
              QStringLiteral("Salir de Nivo-Fontaria..."), QStringLiteral("Nivo-Fontaria y Acueductos 2024"));
    EXPECT_EQ(d.Ultimo().botones, Botones::SiNo);
    // The close box afterwards closes without a question.
    EXPECT_TRUE(m.PuedeCerrar());
    EXPECT_EQ(d.mensajes.size(), 1u);
    // Another key after Esc clears the flag.
    m.TeclaPulsada(true);
    EXPECT_FALSE(m.TeclaPulsada(false));
    EXPECT_TRUE(m.PuedeCerrar());
    m.TeclaPulsada(true);
    d.respuestas = {Respuesta::Si};
    EXPECT_TRUE(m.PuedeCerrar());
}

TEST_F(Menu, LaActivacionLimpiaLasBanderasDeLosEditores) {
    MenuPrincipal m(sp.s, p, acu, d, pantallas);
    sp.s.ProyectoModificado = true;
    sp.s.CatalogoDesdeProyecto = true;
    m.Activacion();
    EXPECT_FALSE(sp.s.ProyectoModificado);
    EXPECT_FALSE(sp.s.CatalogoDesdeProyecto);
}

// ------------------------------------------------------------- wallpaper

namespace {

ConfiguracionTapiz Tapiz(int vertical, int horizontal, bool ajustar = false, bool proporcion = false) {
    ConfiguracionTapiz c;
    c.PosicionVertical = int16_t(vertical);
    c.PosicionHorizontal = int16_t(horizontal);
    c.AjustarTapiz = ajustar;
    c.ProporcionTapiz = proporcion;
    return c;
}

}  // namespace

TEST(ColoqueImagen, PosicionAjusteYProporcion) {
    const QSize img(200, 100), panel(1000, 600);
    const struct {
        QSize imagen, panel;
        ConfiguracionTapiz tapiz;
        QRect rect;
        bool estirar;
    } casos[] = {
        // Record 2: 0 centre, 1 top, 2 bottom; record 3: 0 left, 1 centre, 2 right.
        {img, panel, Tapiz(0, 0), QRect(0, 250, 200, 100), false},
        {img, panel, Tapiz(1, 1), QRect(400, 0, 200, 100), false},
        {img, panel, Tapiz(2, 2), QRect(800, 500, 200, 100), false},
        // A picture larger than the panel goes off its edges the same way.
        {QSize(1600, 1000), panel, Tapiz(0, 1), QRect(-300, -200, 1600, 1000), false},
        // Fitted without proportion it fills the panel.
        {img, panel, Tapiz(2, 2, true, false), QRect(0, 0, 1000, 600), true},
        // Ratios 1000/800 = 1.25 and 1600/800 = 2: divided by 2 -> 800 x 500, centred.
        {QSize(1600, 1000), QSize(800, 800), Tapiz(1, 2, true, true), QRect(0, 150, 800, 500), true},
        // 1000 x 333 in 300 x 300: ratio 3.333..., 333 / 3.333... = 99.9 drops to 99.
        {QSize(1000, 333), QSize(300, 300), Tapiz(0, 0, true, true), QRect(0, 100, 300, 99), true},
        // A smaller picture keeps its size, centred.
        {img, panel, Tapiz(1, 0, true, true), QRect(400, 250, 200, 100), true},
    };
    for (const auto& c : casos) {
        const auto r = ColoqueImagen(c.imagen, c.panel, c.tapiz);
        EXPECT_EQ(r.rect, c.rect) << c.rect.x() << "," << c.rect.y();
        EXPECT_EQ(r.estirar, c.estirar) << c.rect.x() << "," << c.rect.y();
    }
}
