#include "ApoyoAnalisis.h"
#include "analysis/Predimensionado.h"

namespace {

// A flow whose theoretical diameter at 1.2 m/s is `d` metres.
double GastoParaDiametro(double d) { return Pi * d * d / 4.0 * 1.2 * 1000.0; }

struct Predimensionado : ::testing::Test {
    SesionPrueba sp;
    ProyectoEdificio p;
    void Uno(double gasto) {
        ProyectoDeRamales(p, sp.s, {{"O", "A"}});
        p.Gasto.Redim(1);
        p.Gasto[1] = gasto;
    }
};

}  // namespace

TEST_F(Predimensionado, ElTramoDeLaTablaPorOpcion) {
    // The first bracket's mean is 0.018365 m; nothing is larger than 12".
    const struct {
        double teorico;  // m
        int opcion;
        bool minimo;
        double esperado;
    } casos[] = {
        {0.0, 0, false, 0.5},   {0.0, 0, true, 0.75},  {0.018, 0, false, 0.5}, {0.0184, 0, false, 0.75},
        {0.02, 0, false, 0.75}, {0.0162, 0, false, 0.5},
        {0.0183, 1, false, 0.75},  // the bracket overrides the small-diameter rule
        {0.05, 2, false, 1.5},
        {0.0157, 0, false, 0.5},  // below every bracket: the rule of the small ones
        {0.4, 0, false, 12.0},
    };
    for (const auto& c : casos) {
        Uno(GastoParaDiametro(c.teorico));
        p.OpcionDiametro = uint8_t(c.opcion);
        p.DiametroMinimo = c.minimo;
        CalcularPredimensionado(p);
        EXPECT_EQ(p.DiametroCalculo[1], c.esperado) << c.teorico << " " << c.opcion;
    }
    Uno(0.0);
    CalcularPredimensionado(p);
    EXPECT_EQ(p.DiametroCalculoTexto[1], QStringLiteral("1/2"));
    EXPECT_EQ(p.VelocidadCalculo[1], 0.0);
}

TEST_F(Predimensionado, UbicarDiametroSubeElMedioConDiametroMinimo) {
    Uno(0.1);
    p.DiametroMinimo = true;
    p.DiametroCalculo.Redim(1);
    bool encontrado = false;
    UbicarDiametro(p, 1, 0.016, 0.5, 0.75, 0.0158, 0.02093, encontrado);
    EXPECT_TRUE(encontrado);
    EXPECT_EQ(p.DiametroCalculo[1], 0.75);
    // Outside the bracket nothing is found, and 0.5 still becomes 0.75.
    p.DiametroCalculo[1] = 0.5;
    encontrado = false;
    UbicarDiametro(p, 1, 0.03, 0.5, 0.75, 0.0158, 0.02093, encontrado);
    EXPECT_FALSE(encontrado);
    EXPECT_EQ(p.DiametroCalculo[1], 0.75);
}

TEST_F(Predimensionado, VelocidadEnElDiametroInterior) {
    // 1.03 l/s in 1 1/4" (3.505 cm): 0.00412 / (0.03505^2 pi) = 1.0675 m/s.
    EXPECT_DOUBLE_EQ(VelocidadEn(1.03, 1.25), 1.07);
    // 0.2 l/s in 1/2" (1.58 cm): 1.0201 m/s.
    EXPECT_DOUBLE_EQ(VelocidadEn(0.2, 0.5), 1.02);
    EXPECT_THROW(VelocidadEn(1.0, 7.0), ErrorEjecucion);
}

TEST_F(Predimensionado, VelocidadCeroEsUnaDivisionPorCero) {
    Uno(1.0);
    p.Velocidad = 0.0;
    EXPECT_EQ(NumeroDeError([&] { CalcularPredimensionado(p); }), Error::DivisionPorCero);
}

TEST_F(Predimensionado, ConvertirUnNombreFueraDeLaTablaTomaElTeorico) {
    Uno(1.0);
    CalcularPredimensionado(p);
    p.DiametroAsumido.Redim(1);
    p.VelocidadAsumida.Redim(1);
    p.Predimensionado[1] = QStringLiteral("7");
    ConvertirDiametro(p, 1, true);
    EXPECT_EQ(p.Predimensionado[1], p.DiametroCalculoTexto[1]);
    EXPECT_EQ(p.DiametroAsumido[1], p.DiametroCalculo[1]);
    p.Predimensionado[1] = QStringLiteral("2 1/2");
    ConvertirDiametro(p, 1, true);
    EXPECT_EQ(p.DiametroAsumido[1], 2.5);
}

TEST_F(Predimensionado, AsumidoSeGuardaSoloCuandoFalta) {
    // Branch 1 has an assumed size in the file, branch 2 none, branch 3 one
    // outside the table.
    ProyectoDeRamales(p, sp.s, {{"O", "A"}, {"A", "B"}, {"B", "C"}});
    p.Predimensionado[1] = QStringLiteral(" 2 ");
    p.Predimensionado[3] = QStringLiteral("7");
    GuardarYAbrir(p, sp);
    p.Gasto.Redim(3);
    p.Gasto[1] = 2.0;
    p.Gasto[2] = 1.0;
    p.Gasto[3] = 0.5;
    CalcularPredimensionado(p);
    Predimensionado_Asumido(p, sp.s);

    EXPECT_EQ(p.Predimensionado[1], QStringLiteral("2"));
    EXPECT_EQ(p.DiametroAsumido[1], 2.0);
    EXPECT_DOUBLE_EQ(p.VelocidadAsumida[1], VelocidadEn(2.0, 2.0));
    EXPECT_EQ(p.Predimensionado[2], p.DiametroCalculoTexto[2]);
    EXPECT_EQ(p.VelocidadAsumida[2], p.VelocidadCalculo[2]);
    EXPECT_EQ(p.Predimensionado[3], p.DiametroCalculoTexto[3]);

    // The file: the blank one written, the others as they were.
    EXPECT_EQ(ComoTexto(CampoRamal(sp.s, "Predimensionado", 1)), QStringLiteral(" 2 "));
    EXPECT_EQ(ComoTexto(CampoRamal(sp.s, "Predimensionado", 2)), p.DiametroCalculoTexto[2]);
    EXPECT_EQ(ComoTexto(CampoRamal(sp.s, "Predimensionado", 3)), QStringLiteral("7"));

    // Once stored, a later change of flow does not change it.
    const QString antes = p.Predimensionado[2];
    p.Gasto[2] = 20.0;
    CalcularPredimensionado(p);
    Predimensionado_Asumido(p, sp.s);
    EXPECT_EQ(p.Predimensionado[2], antes);
}
