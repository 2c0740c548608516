#include "ApoyoAnalisis.h"
#include "analysis/Numeracion.h"

namespace {

struct Numeracion : ::testing::Test {
    SesionPrueba sp;
    ProyectoEdificio p;
    DialogosFalsos d;
};

}  // namespace

TEST_F(Numeracion, ListaEnProfundidadNumeraLosNodosDeSalida) {
    // B and A are left twice: branches 4 and 6 take the numbers of the
    // starts of branches 3 and 2.
    ProyectoDeRamales(p, sp.s, {{"O", "A"}, {"A", "B"}, {"B", "C"}, {"B", "D"}, {"D", "E"}, {"A", "F"}});
    VerificarNumeracion(p, d);
    EXPECT_EQ(p.ErrorNumeracion, 0);
    EXPECT_TRUE(d.mensajes.empty());
    const int esperadoI[] = {0, 1, 2, 3, 3, 5, 2};
    for (int i = 1; i <= 6; ++i) {
        EXPECT_EQ(p.NumeroNodoI[i], esperadoI[i]) << i;
        EXPECT_EQ(p.NumeroNodoJ[i], i + 1) << i;
    }
}

TEST_F(Numeracion, RamalConLosDosNodosIgualesSeRechazaConSuMensaje) {
    ProyectoDeRamales(p, sp.s, {{"O", "A"}, {"A", "B"}, {"B", "B"}});
    VerificarNumeracion(p, d);
    EXPECT_EQ(p.ErrorNumeracion, 1);
    ASSERT_EQ(d.mensajes.size(), 1u);
    MensajeEs(d.Ultimo(),
              QStringLiteral("Existe un Error en la Numeración de los Ramales...\n"
                             "Ramal-> 3   ( I ) = B  ó   ( J ) = B\n"
                             "¡Debe Corregir el Error para realizar el Análisis!"),
              QStringLiteral("Error en la Numeración..."));
}

TEST_F(Numeracion, NodoQueNadieTerminaEsDesconectado) {
    ProyectoDeRamales(p, sp.s, {{"O", "A"}, {"A", "B"}, {"B", "C"}, {"Q", "D"}});
    VerificarNumeracion(p, d);
    EXPECT_EQ(p.ErrorNumeracion, 1);
    ASSERT_EQ(d.mensajes.size(), 1u);
    MensajeEs(d.Ultimo(),
              QStringLiteral("El Nodo-> ( Q  del Ramal: 4 )\n"
                             "¡Este Nodo está Desconectado!\n"
                             "Debe Corregir el Error para Realizar el Análisis..."),
              QStringLiteral("Error en la Numeración..."));
}

TEST_F(Numeracion, SoloElRamalDosPuedeSalirDelOrigen) {
    ProyectoDeRamales(p, sp.s, {{"O", "A"}, {"O", "B"}});
    VerificarNumeracion(p, d);
    EXPECT_EQ(p.ErrorNumeracion, 0);
    EXPECT_EQ(p.NumeroNodoI[2], 1);

    ProyectoDeRamales(p, sp.s, {{"O", "A"}, {"A", "B"}, {"O", "C"}});
    VerificarNumeracion(p, d);
    EXPECT_EQ(p.ErrorNumeracion, 1);
    EXPECT_TRUE(d.Ultimo().texto.startsWith(QStringLiteral("El Nodo-> ( O  del Ramal: 3 )")));
}

TEST_F(Numeracion, CasosSinPrueba) {
    // One branch: nothing is tested, not even equal names.
    ProyectoDeRamales(p, sp.s, {{"A", "A"}});
    VerificarNumeracion(p, d);
    EXPECT_EQ(p.ErrorNumeracion, 0);
    // Branch 1 is never tested for equal ends.
    ProyectoDeRamales(p, sp.s, {{"A", "A"}, {"A", "B"}});
    VerificarNumeracion(p, d);
    EXPECT_EQ(p.ErrorNumeracion, 0);
    // No branch: the fault inside is trapped, no message.
    ProyectoDeRamales(p, sp.s, {});
    VerificarNumeracion(p, d);
    EXPECT_EQ(p.ErrorNumeracion, 0);
    EXPECT_TRUE(d.mensajes.empty());
}

TEST_F(Numeracion, LosNombresSeComparanConMayusculas) {
    ProyectoDeRamales(p, sp.s, {{"O", "A"}, {"A", "B"}, {"a", "C"}});
    VerificarNumeracion(p, d);
    EXPECT_EQ(p.ErrorNumeracion, 1);
}
