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

TEST(BuscarPartida, AdondeVaLaRejilla) {
    const struct {
        int numero;
        bool aceptado;
        int activa, filas;
        std::optional<int> fila;
    } casos[] = {
        {4, false, 2, 10, {}},   // " Cancelar " only closes
        {2, true, 2, 10, {}},    // the number of the active row
        {3, true, 1, 0, {}},     // a grid without rows
        {5, true, 1, 10, 5},     {0, true, 4, 10, 1},  // 0 is the first row, and what is below it
        {-3, true, 4, 10, 1},    {11, true, 4, 10, 10},  // what is beyond the last, the last
        {32767, true, 4, 10, 10},
        {99, true, 10, 10, 10},  // beyond the last while standing on it: the clamp lands where it was
    };
    for (const auto& c : casos) EXPECT_EQ(Buscar(c.numero, c.aceptado, c.activa, c.filas), c.fila) << c.numero;
}
