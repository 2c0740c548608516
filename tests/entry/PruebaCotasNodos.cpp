// "Cotas de Piso de los Nodos": the node list from the branch ends, the
// elevated tank's row, typed levels, the block fill and the closing.

#include "RamalesDePrueba.h"
#include "entry/CotasNodos.h"
#include "support/Apoyo.h"

namespace {

const QString TextoBloque =
    QStringLiteral("Entre la Cota de Piso de los Nodos Seleccionados:     \n\n\n\n\n(Cota con 2 Decimales)");

struct Cotas : ::testing::Test {
    SesionPrueba sp;
    ProyectoEdificio p;
    DialogosFalsos d;
    CotasNodos c{p, sp.s, d};
    void SetUp() override {
        // A tree: N1 feeds N2 and N3, N2 feeds N4.
        PonerRamales(p, {{"TANQUE", "N1"}, {"N1", "N2"}, {"N1", "N3"}, {"N2", "N4"}});
        p.NumeroNodos = 5;
        p.DimensionarNodos(5);
        for (int i = 1; i <= 5; ++i) p.CotaPiso[i] = i * 1.5;
    }
};

}  // namespace

TEST_F(Cotas, UnNodoPorExtremoDeRamalEnOrdenDeRamal) {
    p.NodoNombre[1] = QStringLiteral("viejo");
    p.NumeroNodos = 2;  // what the file said; the branches decide
    c.Cargar();
    EXPECT_EQ(int(p.NumeroNodos), 5);
    ASSERT_EQ(c.Spread1.Filas(), 5);
    const QStringList nodos = {"TANQUE", "N1", "N2", "N3", "N4"};
    for (int f = 1; f <= 5; ++f) {
        EXPECT_EQ(p.NodoNombre[f], nodos[f - 1]);
        EXPECT_EQ(c.Spread1.Texto(f, 1), nodos[f - 1]);
        EXPECT_DOUBLE_EQ(c.Spread1.Valor(f, 2), f * 1.5);
    }
    EXPECT_EQ(c.Spread1.Encabezado(1, 2), QStringLiteral("Cotas de"));
    EXPECT_EQ(c.Spread1.Encabezado(2, 2), QStringLiteral("Piso (m)"));
    EXPECT_EQ(c.Spread1.FilaActiva(), 1);
    EXPECT_EQ(c.Spread1.ColumnaActiva(), 2);
    EXPECT_EQ(c.FilaPermitida(1), 1);
}

TEST_F(Cotas, ConTanqueElevadoLaFila1MuestraSuCotaBloqueadaYElCursorLaEvita) {
    p.OpcionPresionInicial = 2;
    c.Cargar();
    EXPECT_EQ(c.Spread1.Texto(1, 2), QStringLiteral("1.50"));  // the figure, not "H. Tanque"
    EXPECT_TRUE(c.Spread1.EstaBloqueada(1, 2));
    EXPECT_NE(c.Spread1.Cel(1, 2).colorFondo, c.Spread1.Cel(2, 2).colorFondo);
    EXPECT_EQ(c.Spread1.FilaActiva(), 2);
    EXPECT_EQ(c.FilaPermitida(1), 2);
    EXPECT_EQ(c.FilaPermitida(3), 3);
    EXPECT_FALSE(c.EditarCelda(1, 2, QStringLiteral("9")));
    // A block from row 1 writes row 1 as well.
    d.textos = {QStringLiteral("7.25")};
    EXPECT_TRUE(c.LlenarBloque(1, 3, 2, 2));
    for (int f = 1; f <= 3; ++f) EXPECT_DOUBLE_EQ(c.Spread1.Valor(f, 2), 7.25) << f;
    EXPECT_DOUBLE_EQ(c.Spread1.Valor(4, 2), 6.0);
}

TEST_F(Cotas, CeldasTecleadasConLasMarcasDelLugar) {
    MarcasPrueba marcas("es_ES");
    c.Cargar();
    EXPECT_TRUE(c.EditarCelda(2, 2, QStringLiteral("12,5")));
    EXPECT_DOUBLE_EQ(c.Spread1.Valor(2, 2), 12.5);
    EXPECT_TRUE(c.EditarCelda(3, 2, QStringLiteral("-9.999.999.999,99")));
    EXPECT_TRUE(c.Modificado());
    // Letters and what passes the range are refused, the cell as it was.
    EXPECT_FALSE(c.EditarCelda(4, 2, QStringLiteral("abc")));
    EXPECT_FALSE(c.EditarCelda(4, 2, QStringLiteral("10.000.000.000")));
    EXPECT_DOUBLE_EQ(c.Spread1.Valor(4, 2), 6.0);
    ASSERT_EQ(d.mensajes.size(), 2u);
    EXPECT_EQ(d.mensajes[1].texto, QStringLiteral("¡Debe Entrar un Número entre -9.999.999.999,99 y 9.999.999.999,99!"));
    EXPECT_FALSE(c.EditarCelda(4, 1, QStringLiteral("N9")));  // the names are read-only
}

TEST_F(Cotas, BloqueDeLaColumna2PreguntaYRepiteHastaUnNumero) {
    c.Cargar();
    d.textos = {QStringLiteral("diez"), QStringLiteral("3.5")};
    EXPECT_TRUE(c.LlenarBloque(4, 2, 2, 2));
    ASSERT_EQ(d.preguntas.size(), 2u);
    EXPECT_EQ(d.preguntas[0], TextoBloque + QStringLiteral("|Cota de Piso de losa Nodos|"));
    ASSERT_EQ(d.mensajes.size(), 1u);
    MensajeEs(d.mensajes[0], QStringLiteral("Debe entrar un Número..."), QStringLiteral("Error en Cotas de Piso..."));
    for (int f = 2; f <= 4; ++f) EXPECT_DOUBLE_EQ(c.Spread1.Valor(f, 2), 3.5) << f;
    EXPECT_DOUBLE_EQ(c.Spread1.Valor(5, 2), 7.5);
    // The box reads the country's marks.
    const MarcasPrueba marcas("es_AR");
    d.textos = {QStringLiteral("1.250,75")};
    EXPECT_TRUE(c.LlenarBloque(2, 2, 2, 2));
    EXPECT_DOUBLE_EQ(c.Spread1.Valor(2, 2), 1250.75);
}

TEST_F(Cotas, BloqueQueNoCambiaNada) {
    c.Cargar();
    struct {
        int c1, c2;
        std::optional<QString> respuesta;
    } casos[] = {{1, 2, QStringLiteral("4")}, {1, 1, QStringLiteral("4")}, {2, 2, QString()}, {2, 2, std::nullopt}};
    for (const auto& k : casos) {
        d.textos = {k.respuesta};
        c.LlenarBloque(1, 5, k.c1, k.c2);
        for (int f = 1; f <= 5; ++f) EXPECT_DOUBLE_EQ(c.Spread1.Valor(f, 2), f * 1.5);
    }
    EXPECT_EQ(d.preguntas.size(), 2u);  // only the blocks of column 2 asked
    EXPECT_FALSE(c.Modificado());
}

TEST_F(Cotas, FijarYCancelar) {
    const QString pregunta =
        QStringLiteral("Las Cotas de Piso han Sido Modificadas...\n¿Desea Salvar los Cambios Realizados?");
    struct {
        int respuesta;
        bool cierra;
        double cota2;
    } casos[] = {{Respuesta::Si, true, 20.0}, {Respuesta::No, true, 3.0}, {Respuesta::Cancelar, false, 3.0}};
    for (const auto& k : casos) {
        d.mensajes.clear();
        sp.s.ProyectoModificado = false;
        c.Cargar();
        EXPECT_TRUE(c.Cancelar());  // unchanged: closes without a word
        EXPECT_TRUE(d.mensajes.empty());
        c.EditarCelda(2, 2, QStringLiteral("20"));
        d.respuestas = {k.respuesta};
        EXPECT_EQ(c.Cancelar(), k.cierra);
        ASSERT_EQ(d.mensajes.size(), 1u);
        MensajeEs(d.Ultimo(), pregunta, QStringLiteral("Salvar las Cotas de Piso..."));
        EXPECT_EQ(d.Ultimo().botones, Botones::SiNoCancelar);
        EXPECT_DOUBLE_EQ(p.CotaPiso[2], k.cota2);
        // A level fixed in the model must reach the file with the next save.
        EXPECT_EQ(sp.s.ProyectoModificado, k.respuesta == Respuesta::Si);
        p.CotaPiso[2] = 3.0;
    }
    c.Cargar();
    c.EditarCelda(5, 2, QString());
    c.Fijar();
    EXPECT_DOUBLE_EQ(p.CotaPiso[5], 0.0);  // an empty level is 0
    EXPECT_FALSE(c.Modificado());
    EXPECT_TRUE(sp.s.ProyectoModificado);
}
