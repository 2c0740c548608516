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

TEST_F(Numeracion, ListasRechazadasYCasosSinPrueba) {
    const QString iguales = QStringLiteral("Existe un Error en la Numeración de los Ramales...\n"
                                           "Ramal-> 3   ( I ) = B  ó   ( J ) = B\n"
                                           "¡Debe Corregir el Error para realizar el Análisis!");
    const auto desconectado = [](const char* nodo, int ramal) {
        return QStringLiteral("El Nodo-> ( %1  del Ramal: %2 )\n¡Este Nodo está Desconectado!\n"
                              "Debe Corregir el Error para Realizar el Análisis...")
            .arg(QLatin1String(nodo))
            .arg(ramal);
    };
    const struct {
        std::vector<std::pair<const char*, const char*>> ramales;
        QString mensaje;  // empty: the list passes
    } casos[] = {
        {{{"O", "A"}, {"A", "B"}, {"B", "B"}}, iguales},
        {{{"O", "A"}, {"A", "B"}, {"B", "C"}, {"Q", "D"}}, desconectado("Q", 4)},
        // Only branch 2 may leave the origin again.
        {{{"O", "A"}, {"O", "B"}}, {}},
        {{{"O", "A"}, {"A", "B"}, {"O", "C"}}, desconectado("O", 3)},
        // Names are compared with case.
        {{{"O", "A"}, {"A", "B"}, {"a", "C"}}, desconectado("a", 3)},
        // One branch: nothing is tested, not even equal names; branch 1 is
        // never tested for equal ends; no branch: the fault inside is trapped.
        {{{"A", "A"}}, {}},
        {{{"A", "A"}, {"A", "B"}}, {}},
        {{}, {}},
    };
    for (const auto& c : casos) {
        d.mensajes.clear();
        ProyectoDeRamales(p, sp.s, c.ramales);
        VerificarNumeracion(p, d);
        EXPECT_EQ(p.ErrorNumeracion, c.mensaje.isEmpty() ? 0 : 1) << c.ramales.size();
        if (c.mensaje.isEmpty()) {
            EXPECT_TRUE(d.mensajes.empty());
            continue;
        }
        ASSERT_EQ(d.mensajes.size(), 1u);
        MensajeEs(d.Ultimo(), c.mensaje, QStringLiteral("Error en la Numeración..."));
    }
    ProyectoDeRamales(p, sp.s, {{"O", "A"}, {"O", "B"}});
    VerificarNumeracion(p, d);
    EXPECT_EQ(p.NumeroNodoI[2], 1);
}
