// "Opción de Diseño en los Ramales": marks, blocks and the option given to
// the marked branches.

#include "RamalesDePrueba.h"
#include "entry/CambiarOpcionDiseno.h"
#include "support/Apoyo.h"

namespace {

struct OpcionDiseno : ::testing::Test {
    SesionPrueba sp;
    ProyectoEdificio p;
    DialogosFalsos d;
    EditorDePrueba editor{p};
    CambiarOpcionDiseño o{p, sp.s, d, editor};
    void SetUp() override {
        PonerRamales(p, {{"T", "N1"}, {"N1", "N2"}, {"N2", "N3"}, {"N2", "N4"}});
        p.OpcionDiseño[3] = 1;
        o.Cargar();
    }
    QString Marcas() const {
        QString m;
        for (int f = 1; f <= o.Spread1.Filas(); ++f) m += o.Spread1.Texto(f, 1);
        return m;
    }
};

}  // namespace

TEST_F(OpcionDiseno, LaRejillaMuestraLosRamales) {
    ASSERT_EQ(o.Spread1.Filas(), 4);
    EXPECT_EQ(o.Spread1.Texto(2, 0), QStringLiteral("2"));
    EXPECT_EQ(o.Spread1.Texto(4, 2), QStringLiteral("N2"));
    EXPECT_EQ(o.Spread1.Texto(4, 3), QStringLiteral("N4"));
    EXPECT_EQ(o.Spread1.Texto(1, 4), QStringLiteral("Piezas de Tanque"));
    EXPECT_EQ(o.Spread1.Texto(3, 4), QStringLiteral("Piezas de Válvula"));
    EXPECT_NE(o.Spread1.Cel(3, 4).colorFondo, o.Spread1.Cel(1, 4).colorFondo);
    EXPECT_EQ(Marcas(), QStringLiteral("0000"));
    EXPECT_EQ(o.Spread1.FilaActiva(), 1);
    EXPECT_EQ(o.Spread1.ColumnaActiva(), 2);
    EXPECT_EQ(CambiarOpcionDiseño::TextoOpcion(1), QStringLiteral("Diseñar como Piezas de Válvula"));
}

TEST_F(OpcionDiseno, MarcasConClicBloquesYBotones) {
    o.ClickMarca(2);
    EXPECT_EQ(Marcas(), QStringLiteral("0100"));
    EXPECT_NE(o.Spread1.Cel(2, 2).colorFondo, ColorBlanco);
    o.ClickMarca(2);
    EXPECT_EQ(o.Spread1.Cel(2, 2).colorFondo, ColorBlanco);
    o.MarcarBloque(3, 2, 4, 4);  // within column 4, dragged upwards
    EXPECT_EQ(Marcas(), QStringLiteral("0110"));
    o.MarcarBloque(1, 4, 2, 3);  // across two columns: nothing
    o.MarcarBloque(1, 4, 1, 1);
    EXPECT_EQ(Marcas(), QStringLiteral("0110"));
    o.MarcarTodo();
    EXPECT_EQ(Marcas(), QStringLiteral("1111"));
    o.QuitarMarca();
    EXPECT_EQ(Marcas(), QStringLiteral("0000"));
}

TEST_F(OpcionDiseno, FijarSinMarcasNoCambiaNada) {
    o.CambiarOpcion(1);
    EXPECT_FALSE(o.Fijar());
    ASSERT_EQ(d.mensajes.size(), 1u);
    MensajeEs(d.Ultimo(), QStringLiteral("No ha Seleccionado Ramales..."), QStringLiteral("Opción de Diseño..."));
    EXPECT_EQ(int(p.OpcionDiseño[1]), 0);
    EXPECT_FALSE(sp.s.ProyectoModificado);
    EXPECT_EQ(editor.recargas, 0);
}

TEST_F(OpcionDiseno, FijarPreguntaConLaCuentaYDaLaOpcion) {
    o.ClickMarca(1);
    o.ClickMarca(3);
    o.CambiarOpcion(1);
    d.respuestas = {Respuesta::No, Respuesta::Si};
    EXPECT_FALSE(o.Fijar());
    EXPECT_EQ(int(p.OpcionDiseño[1]), 0);
    MensajeEs(d.Ultimo(), QStringLiteral("¿Fijar la Opción de Piezas de Válvula\na los 2 Ramales seleccionados?"),
              QStringLiteral("Opcion de Diseño en Ramales..."));
    EXPECT_EQ(d.Ultimo().botones, Botones::SiNo);
    EXPECT_TRUE(o.Fijar());
    EXPECT_EQ(int(p.OpcionDiseño[1]), 1);
    EXPECT_EQ(int(p.OpcionDiseño[2]), 0);
    EXPECT_EQ(o.Spread1.Texto(1, 4), QStringLiteral("Piezas de Válvula"));
    EXPECT_TRUE(sp.s.ProyectoModificado);
    EXPECT_EQ(editor.recargas, 1);
    EXPECT_EQ(Marcas(), QStringLiteral("0000"));  // the screen filled again

    o.MarcarTodo();
    o.CambiarOpcion(0);
    d.respuestas = {Respuesta::Si};
    EXPECT_TRUE(o.Fijar());
    EXPECT_EQ(d.Ultimo().texto, QStringLiteral("¿Fijar la Opción de Piezas de Tanque\na los 4 Ramales seleccionados?"));
    for (int i = 1; i <= 4; ++i) EXPECT_EQ(int(p.OpcionDiseño[i]), 0) << i;
}
