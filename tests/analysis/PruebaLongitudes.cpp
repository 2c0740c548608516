#include "ApoyoAnalisis.h"
#include "analysis/Longitudes.h"
#include "analysis/Predimensionado.h"

namespace {

// The reduction polynomial written out from its coefficient table.
double Reduccion(double r, double d) {
    const double c[6][3] = {{0.172907881085, -0.633983576791, 0.580668102042},
                            {0.586197900747, -0.12732723395, -0.571485635639},
                            {0.242118385204, -1.27250199236, 1.24006065024},
                            {-0.0949825638004, 0.454171129018, -0.420660415301},
                            {0.0173943183546, -0.0753113326054, 0.0666100551386},
                            {-0.00108454200173, 0.00440203623193, -0.00377943828668}};
    double s = 0.0, potencia = 1.0;
    for (int k = 0; k < 6; ++k, potencia *= d) s += (c[k][0] + c[k][1] * r + c[k][2] * r * r) * potencia;
    return s;
}

struct Longitudes : ::testing::Test {
    SesionPrueba sp;
    ProyectoEdificio p;
    DialogosFalsos d;
    // Assumed sizes by branch, names and numbers.
    void Tamanos(std::initializer_list<const char*> nombres) {
        p.DiametroAsumido.Redim(p.NumeroRamales);
        p.Predimensionado.Redim(p.NumeroRamales);
        int i = 0;
        for (const char* n : nombres) {
            ++i;
            p.Predimensionado[i] = QString::fromUtf8(n);
            DiametroNumero(p.Predimensionado[i], p.DiametroAsumido[i]);
        }
    }
};

}  // namespace

TEST_F(Longitudes, TablaPorClaveYTamano) {
    double l = 0.0;
    EXPECT_TRUE(LongitudTabla(1, 0.5, l));
    EXPECT_EQ(l, 4.9);
    EXPECT_TRUE(LongitudTabla(9, 12.0, l));
    EXPECT_EQ(l, 22.8);
    double a = 0.0, b = 0.0;
    EXPECT_TRUE(LongitudTabla(7, 2.5, a));
    EXPECT_TRUE(LongitudTabla(10, 2.5, b));
    EXPECT_EQ(a, b);
    EXPECT_EQ(a, 1.31);
    EXPECT_TRUE(LongitudTabla(11, 1.0, a));
    EXPECT_EQ(a, 1.77);
    EXPECT_FALSE(LongitudTabla(12, 1.0, a));
    EXPECT_FALSE(LongitudTabla(5, 0.6, a));
}

TEST_F(Longitudes, SumaDeConexionesDeUnRamal) {
    ProyectoDeRamales(p, sp.s, {{"O", "A"}});
    // Key 1 ignores the stored length, key 12 takes it, quantity 0 and key 0 add nothing.
    PonerConexiones(p, 1, {{1, 2, 99.0}, {12, 3, 1.25}, {5, 0, 0.0}, {0, 4, 7.0}, {10, 1, 0.0}});
    Tamanos({"1"});
    GuardarYAbrir(p, sp);
    ASSERT_TRUE(CalcularLongitudes(p, sp.s, d));
    EXPECT_EQ(p.LongitudConexion(1, 1), 8.8);
    EXPECT_EQ(p.LongitudConexion(1, 2), 1.25);
    EXPECT_EQ(p.LongitudConexion(1, 4), 0.0);
    EXPECT_NEAR(p.LongitudEquivalenteRamal[1], 2 * 8.8 + 3 * 1.25 + 0.52, 1e-12);
    EXPECT_EQ(p.RamalAnterior.Ubound(), 1);
}

TEST_F(Longitudes, ReduccionAlCambiarDeDiametro) {
    // 1 1/4" -> 1" -> 3/4", and from the end of branch 1 again a 1 1/4" (no change).
    ProyectoDeRamales(p, sp.s, {{"O", "A"}, {"A", "B"}, {"B", "C"}, {"A", "D"}});
    Tamanos({"1 1/4", "1", "3/4", "1 1/4"});
    p.Reduccion[4] = QStringLiteral("texto viejo");
    GuardarYAbrir(p, sp);
    ASSERT_TRUE(CalcularLongitudes(p, sp.s, d));
    EXPECT_EQ(p.RamalAnterior[2], 1);
    EXPECT_EQ(p.RamalAnterior[3], 2);
    EXPECT_EQ(p.RamalAnterior[4], 1);
    EXPECT_DOUBLE_EQ(p.LongitudReduccion[2], RoundNivo(Reduccion(1.0 / 1.25, 1.0), 2));  // 0.1726
    EXPECT_DOUBLE_EQ(p.LongitudReduccion[2], 0.17);
    EXPECT_DOUBLE_EQ(p.LongitudReduccion[3], 0.15);  // 0.1460
    EXPECT_DOUBLE_EQ(p.LongitudEquivalenteRamal[3], 0.15);
    EXPECT_EQ(p.LongitudReduccion[4], 0.0);

    EXPECT_TRUE(CampoRamal(sp.s, "Reduccion", 1).isNull());
    EXPECT_EQ(ComoTexto(CampoRamal(sp.s, "Reduccion", 2)), QStringLiteral("REDUCCIÓN DE  1 1/4\"  a  1\""));
    EXPECT_EQ(ComoTexto(CampoRamal(sp.s, "Reduccion", 3)), QStringLiteral("REDUCCIÓN DE  1\"  a  3/4\""));
    EXPECT_TRUE(CampoRamal(sp.s, "Reduccion", 4).isNull());  // the old text is cleared
    EXPECT_EQ(p.Reduccion[4], QStringLiteral("texto viejo"));  // memory keeps what was loaded
}

TEST_F(Longitudes, AmpliacionTambienCuentaYPuedeSerNegativa) {
    // 8" -> 12": r = 1.5 at D = 12 gives about -87.68 m, added as it is.
    ProyectoDeRamales(p, sp.s, {{"O", "A"}, {"A", "B"}});
    PonerConexiones(p, 2, {{1, 1, 0.0}});
    Tamanos({"8", "12"});
    GuardarYAbrir(p, sp);
    ASSERT_TRUE(CalcularLongitudes(p, sp.s, d));
    EXPECT_DOUBLE_EQ(p.LongitudReduccion[2], RoundNivo(Reduccion(1.5, 12.0), 2));
    EXPECT_LT(p.LongitudReduccion[2], 0.0);
    EXPECT_NEAR(p.LongitudEquivalenteRamal[2], 100.0 + p.LongitudReduccion[2], 1e-9);
    EXPECT_EQ(ComoTexto(CampoRamal(sp.s, "Reduccion", 2)), QStringLiteral("REDUCCIÓN DE  8\"  a  12\""));
}

TEST_F(Longitudes, RamalDosDesdeElOrigenSeInformaComoDesconectado) {
    ProyectoDeRamales(p, sp.s, {{"O", "A"}, {"O", "B"}});
    Tamanos({"1", "3/4"});
    p.Reduccion[2] = QStringLiteral("queda");
    GuardarYAbrir(p, sp);
    EXPECT_FALSE(CalcularLongitudes(p, sp.s, d));
    EXPECT_EQ(p.ErrorNumeracion, 1);
    ASSERT_EQ(d.mensajes.size(), 1u);
    EXPECT_EQ(d.Ultimo().texto, QStringLiteral("El Nodo-> ( O  del Ramal: 2 )\n"
                                               "¡Este Nodo está Desconectado!\n"
                                               "Debe Corregir el Error para Realizar el Análisis..."));
    EXPECT_EQ(ComoTexto(CampoRamal(sp.s, "Reduccion", 2)), QStringLiteral("queda"));
}

TEST_F(Longitudes, UnaEscrituraFallidaNoDejaMedioArchivo) {
    ProyectoDeRamales(p, sp.s, {{"O", "A"}, {"A", "B"}, {"B", "C"}});
    Tamanos({"2", "1", "3/4"});
    GuardarYAbrir(p, sp);
    // A size of 0 on the branch before branch 3 makes its ratio a division by zero.
    p.DiametroAsumido[2] = 0.0;
    EXPECT_THROW(CalcularLongitudes(p, sp.s, d), ErrorEjecucion);
    EXPECT_TRUE(CampoRamal(sp.s, "Reduccion", 2).isNull());
    EXPECT_TRUE(CampoRamal(sp.s, "Reduccion", 3).isNull());
}
