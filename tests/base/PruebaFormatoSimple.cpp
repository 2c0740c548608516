#include "base/Grid.h"
#include "base/Nivo.h"

#include <gtest/gtest.h>

// The plain pictures of the grids take a short road; it must give what the
// general one gives.
TEST(FormatoSimple, IgualQueLaPicturaGeneral) {
    const Separadores punto;
    Separadores coma;
    coma.decimal = QLatin1Char(',');
    coma.miles = QLatin1Char('.');
    EXPECT_EQ(Formato(2.675, QStringLiteral("0.00"), punto), QStringLiteral("2.68"));
    EXPECT_EQ(Formato(-0.004, QStringLiteral("0.00"), punto), QStringLiteral("0.00"));
    EXPECT_EQ(Formato(-0.005, QStringLiteral("0.00"), punto), QStringLiteral("-0.01"));
    EXPECT_EQ(Formato(1234.5, QStringLiteral("0"), punto), QStringLiteral("1235"));
    EXPECT_EQ(Formato(1234.5678, QStringLiteral("0.0000"), coma), QStringLiteral("1234,5678"));
    EXPECT_EQ(Formato(1.5, QStringLiteral("0.00%"), coma), QStringLiteral("1,50%"));
    EXPECT_EQ(Formato(1234.5, QStringLiteral("#,##0.00"), coma), QStringLiteral("1.234,50"));
    Grid g(1);
    g.PonerFilas(1);
    g.PonerNumero(1, 1, 0.12345, 4);
    EXPECT_EQ(g.Texto(1, 1), QStringLiteral("0.1235"));
    g.PonerNumero(1, 1, 7.5, 0);
    EXPECT_EQ(g.Texto(1, 1), QStringLiteral("8"));
}
