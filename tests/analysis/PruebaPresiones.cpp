#include "ApoyoAnalisis.h"
#include "analysis/Numeracion.h"
#include "analysis/Presiones.h"

// The three-branch network O-A, A-B, A-C: sizes 1", 3/4", 3/4"; flows 1.0,
// 0.5, 0.4 l/s; real lengths 10, 5, 8 m; equivalent lengths 2, 1, 1 m; B 3 m
// above the rest.  Unit losses with the formula of option 0 (by hand):
// 0.3332, 0.2783, 0.1781 m/m; branch losses 4.00, 1.67, 1.60 m.

namespace {

struct Presiones : ::testing::Test {
    SesionPrueba sp;
    ProyectoEdificio p;
    DialogosFalsos d;

    void Red(double real1, std::initializer_list<double> cotas) {
        ProyectoDeRamales(p, sp.s, {{"O", "A"}, {"A", "B"}, {"A", "C"}});
        VerificarNumeracion(p, d);
        p.Gasto.Redim(3);
        p.DiametroAsumido.Redim(3);
        p.VelocidadAsumida.Redim(3);
        p.LongitudEquivalenteRamal.Redim(3);
        const double q[] = {0, 1.0, 0.5, 0.4}, n[] = {0, 1.0, 0.75, 0.75}, l[] = {0, real1, 5, 8}, le[] = {0, 2, 1, 1};
        for (int i = 1; i <= 3; ++i) {
            p.Gasto[i] = q[i];
            p.DiametroAsumido[i] = n[i];
            p.longitudReal[i] = l[i];
            p.LongitudEquivalenteRamal[i] = le[i];
        }
        int k = 0;
        for (double c : cotas) p.CotaRelativa[++k] = c;
    }
    void PresionesSon(std::initializer_list<double> nodos) {
        int k = 0;
        for (double v : nodos) {
            EXPECT_NEAR(p.PresionNodo[k], v, 1e-9) << "nodo " << k;
            ++k;
        }
    }
};

}  // namespace

TEST_F(Presiones, PerdidaUnitariaPorLasTresFormulas) {
    ProyectoDeRamales(p, sp.s, {{"O", "A"}});
    p.OpcionPerdidas = 0;
    EXPECT_DOUBLE_EQ(PerdidaUnitariaDe(p, 1.0, 1.0), 0.3332);
    p.OpcionPerdidas = 1;
    EXPECT_DOUBLE_EQ(PerdidaUnitariaDe(p, 1.0, 1.0), 0.2248);
    p.OpcionPerdidas = 2;
    EXPECT_DOUBLE_EQ(PerdidaUnitariaDe(p, 1.0, 1.0), 0.147);
    // Hazen-Williams: 2" on its inside diameter, 2 1/2" on 6.35 cm (not 6.271).
    EXPECT_DOUBLE_EQ(PerdidaUnitariaDe(p, 3.0, 2.0), 0.0413);
    EXPECT_DOUBLE_EQ(PerdidaUnitariaDe(p, 3.0, 2.5), 0.0164);
    EXPECT_DOUBLE_EQ(PerdidaUnitariaDe(p, 0.0, 2.5), 0.0);
    p.OpcionPerdidas = 3;
    EXPECT_DOUBLE_EQ(PerdidaUnitariaDe(p, 3.0, 2.5), 0.0);
    p.OpcionPerdidas = 0;
    EXPECT_THROW(PerdidaUnitariaDe(p, 1.0, 7.0), ErrorEjecucion);  // no inside diameter
}

TEST_F(Presiones, OpcionCeroDerivaLaCargaDelNodoMasDesfavorable) {
    Red(10.0, {0, 0, 3, 0});
    CalcularPresiones(p);
    EXPECT_DOUBLE_EQ(p.PerdidaRamal[1], 4.0);
    EXPECT_DOUBLE_EQ(p.PerdidaRamal[2], 1.67);
    EXPECT_DOUBLE_EQ(p.PerdidaRamal[3], 1.6);
    // Pass 1 from 7 m finds B worst (3.00 - 1.67 - 3); its path loses 5.67 m,
    // so the origin needs 5.67 + 3 + 7 = 15.67 m, and pass 2 sweeps from it.
    EXPECT_NEAR(p.CargaOrigen, 15.67, 1e-9);
    EXPECT_NEAR(p.SumaPerdidas, 5.67, 1e-9);
    EXPECT_EQ(p.NodoDesfaborable, 3);
    PresionesSon({0, 15.67, 11.67, 7.0, 10.07});
    EXPECT_NEAR(p.PresionRamal[2], 7.0, 1e-9);
    EXPECT_DOUBLE_EQ(p.VelocidadAsumida[1], 1.79);  // 0.004 / (0.02664^2 pi)
}

TEST_F(Presiones, OpcionCeroConUnSoloRamal) {
    ProyectoDeRamales(p, sp.s, {{"O", "A"}});
    VerificarNumeracion(p, d);
    p.Gasto.Redim(1);
    p.DiametroAsumido.Redim(1);
    p.VelocidadAsumida.Redim(1);
    p.LongitudEquivalenteRamal.Redim(1);
    p.Gasto[1] = 1.0;
    p.DiametroAsumido[1] = 1.0;
    p.longitudReal[1] = 10.0;
    p.CotaRelativa[2] = 2.5;
    CalcularPresiones(p);
    // H = PerdidaRamal 1 + CotaRelativa of node 2 + Valor1 = 3.33 + 2.5 + 7.
    EXPECT_NEAR(p.CargaOrigen, 12.83, 1e-9);
}

TEST_F(Presiones, OpcionUnoPartiendoDeLaPresionDada) {
    Red(10.0, {0, 0, 3, 0});
    p.OpcionPresionInicial = 1;
    p.Valor2 = 20.0;
    CalcularPresiones(p);
    // Levels go only into PresionRamal.
    PresionesSon({0, 20.0, 16.0, 14.33, 14.4});
    EXPECT_NEAR(p.PresionRamal[2], 11.33, 1e-9);
    EXPECT_NEAR(p.CargaOrigen, 5.67 + 3 + 20, 1e-9);
}

TEST_F(Presiones, OpcionDosCalculaLaAlturaDelTanque) {
    // Branch 1 is the riser, 5 m at first; B stands 1.5 m above A.
    Red(5.0, {0, 0, 1.5, 0});
    p.OpcionPresionInicial = 2;
    CalcularPresiones(p);
    // Pass 1: W = 2, S1 = 1.67; the loop settles at T = 8.00 with a riser
    // loss of (8 + 2) x 0.3332 = 3.33; pass 2 from 0 m keeps T.
    EXPECT_NEAR(p.longitudReal[1], 8.0, 1e-9);
    EXPECT_DOUBLE_EQ(p.PerdidaRamal[1], 3.33);
    EXPECT_NEAR(p.CotaRelativa[1], 8.0, 1e-9);
    EXPECT_EQ(p.CargaOrigen, 0.0);
    PresionesSon({0, 0, 4.67, 3.0, 3.07});
    EXPECT_NEAR(p.PresionRamal[2], 1.5, 1e-9);
}

TEST_F(Presiones, UnMontanteQuePierdeUnMetroPorMetroNoTieneAltura) {
    // 1.7323 l/s in 1": (1.7323 / (1.5377 x 1.0488^2.5))^2 = 1.0000 m/m, so
    // each round of the height adds again all that the last one added.
    Red(5.0, {0, 0, 1.5, 0});
    p.OpcionPresionInicial = 2;
    p.Gasto[1] = 1.7323;
    EXPECT_EQ(NumeroDeError([&] { CalcularPresiones(p); }), Error::Desbordamiento);
}

TEST_F(Presiones, SumaTrayectoSinElPrimero) {
    Red(10.0, {0, 0, 3, 0});
    CalcularPresiones(p);
    double s1 = -1;
    EXPECT_NEAR(SumaTrayecto(p, 3, &s1), 1.6 + 4.0, 1e-9);
    EXPECT_NEAR(s1, 1.6, 1e-9);
    EXPECT_NEAR(SumaTrayecto(p, 1, &s1), 4.0, 1e-9);
    EXPECT_EQ(s1, 0.0);  // W = 1: the walk does not run
}

TEST_F(Presiones, DiametroFueraDeTablaEsUnError) {
    Red(10.0, {0, 0, 0, 0});
    p.DiametroAsumido[2] = 0.0;
    try {
        CalcularPresiones(p);
        ADD_FAILURE() << "sin error";
    } catch (const ErrorEjecucion& e) {
        // 0.5 l/s over a bore of 0: the fault names branch 2 by its nodes.
        EXPECT_EQ(e.Mensaje(), QStringLiteral("Error 11: División por cero en el ramal 2 (A - B)."));
        EXPECT_EQ(e.lugar(), QStringLiteral("el ramal 2 (A - B)"));
    }
}

TEST_F(Presiones, AlturaDelTanqueFijadaAMano) {
    // The riser of 2 m equivalent length loses 0.3332 m/m: (h + 2) x 0.3332.
    // From 0 m at the tank, the first node gets h less that loss (the level
    // goes into PresionRamal, carried to node 2); B and C lose 1.67 and 1.60.
    const struct {
        double h, perdida;
        std::initializer_list<double> nodos;
    } casos[] = {
        {8.0, 3.33, {0, 0, 4.67, 3.0, 3.07}},  // the height the option computes: its pressures
        {10.0, 4.0, {0, 0, 6.0, 4.33, 4.4}},
        {0.0, 0.67, {0, 0, -0.67, -2.34, -2.27}},
    };
    for (const auto& c : casos) {
        Red(5.0, {0, 0, 1.5, 0});
        p.OpcionPresionInicial = 2;
        CalcularPresiones(p);
        PresionesConAlturaFija(p, c.h);
        EXPECT_DOUBLE_EQ(p.PerdidaRamal[1], c.perdida) << c.h;
        EXPECT_EQ(p.longitudReal[1], c.h);
        EXPECT_EQ(p.CotaRelativa[1], c.h);
        PresionesSon(c.nodos);
    }
}
