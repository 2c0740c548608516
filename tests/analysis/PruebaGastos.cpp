#include "ApoyoAnalisis.h"
#include "analysis/Gastos.h"
#include "analysis/Numeracion.h"
#include "base/Nivo.h"

// Expected flows are the curves of the fixture-unit tables evaluated by hand
// (a calculator on the printed coefficients).

TEST(GastoProbable, CurvaDeTanqueEnSusTramos) {
    EXPECT_NEAR(GastoProbable(1, 0.0, false), 0.20, 1e-12);    // 3 units: 0.38 - 0.45 + 0.27
    EXPECT_NEAR(GastoProbable(1, 0.0, true), 0.294068, 1e-12);  // floor raised to 4.34
    EXPECT_NEAR(GastoProbable(1, 5.0, false), 0.38, 1e-12);     // 5 still on the quadratic
    EXPECT_NEAR(GastoProbable(1, 6.0, false), 0.456545, 1e-6);  // row A + 0.03
    EXPECT_NEAR(GastoProbable(1, 170.0, false), 3.825227, 1e-6);  // 170 still row A
    EXPECT_NEAR(GastoProbable(1, 171.0, false), 3.839517, 1e-6);  // row B adds nothing
    EXPECT_NEAR(GastoProbable(1, 800.0, false), 11.198036, 1e-6);
    EXPECT_NEAR(GastoProbable(1, 801.0, false), 10.875047, 1e-6);  // row C + 0.03
    EXPECT_NEAR(GastoProbable(1, 1651.0, false), 18.239849, 1e-6);  // row D + 0.03
    EXPECT_NEAR(GastoProbable(1, 4099.0, false), 34.876809, 1e-6);
    EXPECT_NEAR(GastoProbable(1, 4100.0, false), 34.9, 1e-12);  // (515 + 1230) / 50
}

TEST(GastoProbable, CurvaDeValvulaEnSusTramos) {
    EXPECT_NEAR(GastoProbable(2, 0.0, false), 1.527675, 1e-6);  // floor 5, row E + 0.01
    EXPECT_NEAR(GastoProbable(2, 200.0, false), 5.644073, 1e-6);
    EXPECT_NEAR(GastoProbable(2, 201.0, false), 5.619304, 1e-6);  // row F + 0.02
    EXPECT_NEAR(GastoProbable(2, 1201.0, false), 14.755275, 1e-6);  // row G + 0.02
    EXPECT_NEAR(GastoProbable(2, 5000.0, false), 40.3, 1e-12);
    // DiametroMinimo touches only the tank curve.
    EXPECT_EQ(GastoProbable(2, 0.0, true), GastoProbable(2, 0.0, false));
}

TEST(ColoqueGastos, AcumulaLasUnidadesHaciaElOrigen) {
    SesionPrueba sp;
    DialogosFalsos d;
    ProyectoEdificio p;
    // O-A feeds A-B (4 x 1.5 units) and, from A, A-C (one of 2 units, one of
    // key 0 that counts nothing); C-D holds 35 units.
    ProyectoDeRamales(p, sp.s, {{"O", "A"}, {"A", "B"}, {"A", "C"}, {"C", "D"}});
    PonerPiezas(p, 2, {{10, 4, 1.5}});
    PonerPiezas(p, 3, {{7, 1, 2.0}, {0, 3, 9.0}});
    PonerPiezas(p, 4, {{21, 1, 35.0}});
    p.OpcionDiseño[2] = 1;
    VerificarNumeracion(p, d);
    ColoqueGastos(p);
    EXPECT_DOUBLE_EQ(p.UnidadesAcumuladas[1], 43.0);
    EXPECT_DOUBLE_EQ(p.UnidadesAcumuladas[2], 6.0);
    EXPECT_DOUBLE_EQ(p.UnidadesAcumuladas[3], 37.0);
    EXPECT_DOUBLE_EQ(p.UnidadesAcumuladas[4], 35.0);
    EXPECT_EQ(p.TipoCurva[1], 1);
    EXPECT_EQ(p.TipoCurva[2], 2);
    // Row E at 6 units: 1.57..., two decimals; row A at 35 units: 1.4236.
    EXPECT_DOUBLE_EQ(p.Gasto[2], RoundNivo(GastoProbable(2, 6.0, false), 2));
    EXPECT_DOUBLE_EQ(p.Gasto[4], 1.42);
    EXPECT_TRUE(p.UnidadesRamal.Vacio());
}

TEST(ColoqueGastos, RamalSinPiezasTieneGastoMinimo) {
    SesionPrueba sp;
    DialogosFalsos d;
    ProyectoEdificio p;
    ProyectoDeRamales(p, sp.s, {{"O", "A"}});
    VerificarNumeracion(p, d);
    ColoqueGastos(p);
    EXPECT_DOUBLE_EQ(p.Gasto[1], 0.20);
    p.DiametroMinimo = true;
    ColoqueGastos(p);
    EXPECT_DOUBLE_EQ(p.Gasto[1], 0.29);
}
