// "Buscar un Ramal": where a grid goes with the answer of the dialog.

#include "entry/BuscarPartida.h"

#include <gtest/gtest.h>

namespace {
std::optional<int> Buscar(int numero, bool aceptado, int activa, int filas) {
    BuscarPartida b(activa);
    if (aceptado) b.Aceptar(numero);
    return FilaBuscada(b, activa, filas);
}
}  // namespace

TEST(BuscarPartida, ElDialogoEmpiezaEnElRamalActivoYSinAceptar) {
    const BuscarPartida b(7);
    EXPECT_EQ(b.Numero, 7);
    EXPECT_FALSE(b.Aceptado);
    EXPECT_EQ(TituloBuscarPartida(), QStringLiteral("Buscar un Ramal"));
    EXPECT_EQ(EtiquetaBuscarPartida(), QStringLiteral("Ramal Número:"));
}

TEST(BuscarPartida, SinAceptarOEnLaFilaActivaNoSeMueve) {
    EXPECT_FALSE(Buscar(4, false, 2, 10));  // " Cancelar " only closes
    EXPECT_FALSE(Buscar(2, true, 2, 10));   // the number of the active row
    EXPECT_FALSE(Buscar(3, true, 1, 0));    // a grid without rows
}

TEST(BuscarPartida, ElCeroEsLaPrimeraFilaYLoQueSobraLaUltima) {
    EXPECT_EQ(Buscar(5, true, 1, 10), 5);
    EXPECT_EQ(Buscar(0, true, 4, 10), 1);
    EXPECT_EQ(Buscar(-3, true, 4, 10), 1);
    EXPECT_EQ(Buscar(11, true, 4, 10), 10);
    EXPECT_EQ(Buscar(32767, true, 4, 10), 10);
    // Beyond the last row while standing on it: the clamp lands where it was.
    EXPECT_EQ(Buscar(99, true, 10, 10), 10);
}
