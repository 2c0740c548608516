#include "ApoyoAnalisis.h"
#include "analysis/Longitudes.h"
#include "analysis/Predimensionado.h"

namespace {

// Reduction lengths worked by hand from the coefficient table: c0 + c1 D +
// ... + c5 D^5, each c a quadratic in r.
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
    EXPECT_DOUBLE_EQ(p.LongitudReduccion[2], 0.17);  // r = 0.8 at D = 1: 0.1726
    EXPECT_DOUBLE_EQ(p.LongitudReduccion[3], 0.15);  // r = 0.75 at D = 0.75: 0.1460
    EXPECT_DOUBLE_EQ(p.LongitudEquivalenteRamal[3], 0.15);
    EXPECT_EQ(p.LongitudReduccion[4], 0.0);

    EXPECT_TRUE(CampoRamal(sp.s, "Reduccion", 1).isNull());
    EXPECT_EQ(ComoTexto(CampoRamal(sp.s, "Reduccion", 2)), QStringLiteral("REDUCCIÓN DE  1 1/4\"  a  1\""));
    EXPECT_EQ(ComoTexto(CampoRamal(sp.s, "Reduccion", 3)), QStringLiteral("REDUCCIÓN DE  1\"  a  3/4\""));
    EXPECT_TRUE(CampoRamal(sp.s, "Reduccion", 4).isNull());  // the old text is cleared
    EXPECT_EQ(p.Reduccion[4], QStringLiteral("texto viejo"));  // memory keeps what was loaded
}

TEST_F(Longitudes, AmpliacionTambienCuentaYPuedeSerNegativa) {
    // 8" -> 12": r = 1.5 at D = 12 gives -87.6765 m, added as it is.
    ProyectoDeRamales(p, sp.s, {{"O", "A"}, {"A", "B"}});
    PonerConexiones(p, 2, {{1, 1, 0.0}});
    Tamanos({"8", "12"});
    GuardarYAbrir(p, sp);
    ASSERT_TRUE(CalcularLongitudes(p, sp.s, d));
    EXPECT_DOUBLE_EQ(p.LongitudReduccion[2], -87.68);
    EXPECT_NEAR(p.LongitudEquivalenteRamal[2], 100.0 - 87.68, 1e-9);
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
