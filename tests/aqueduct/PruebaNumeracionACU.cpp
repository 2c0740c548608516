// The numbering of the nodes, the scratch node file, the connections and
// the lumping of section demand.

#include "RedPrueba.h"
#include "support/Apoyo.h"

#include "aqueduct/NumeracionNodos.h"
#include "aqueduct/SolverMalla.h"

#include <QFile>
#include <gtest/gtest.h>

namespace {

ProyectoAcueducto Tramos(const std::vector<std::pair<QString, QString>>& extremos) {
    ProyectoAcueducto p;
    p.NumeroTramos = int(extremos.size());
    p.DimensionarTramos(p.NumeroTramos);
    for (int t = 1; t <= p.NumeroTramos; ++t) {
        p.Inicio[t] = extremos[size_t(t) - 1].first;
        p.Final[t] = extremos[size_t(t) - 1].second;
    }
    return p;
}

}  // namespace

TEST(NumerarNodos, OrdenDePrimeraAparicion) {
    SesionPrueba sp;
    ProyectoAcueducto p = Tramos({{"B", "A"}, {"A", "C"}, {"C", "B"}, {"C", "D"}});
    NumerarNodos(p, sp.s);
    ASSERT_EQ(p.NumeroNodosACU, 4);
    EXPECT_EQ(p.Nodos[1], "B");
    EXPECT_EQ(p.Nodos[2], "A");
    EXPECT_EQ(p.Nodos[3], "C");
    EXPECT_EQ(p.Nodos[4], "D");
    EXPECT_EQ(p.NodosTramo(1, 3), 3);
    EXPECT_EQ(p.NodosTramo(2, 3), 1);
    EXPECT_EQ(p.ExtremosTramo(2, 4), "D");
    CalcularAnchoBanda(p);
    EXPECT_EQ(p.AnchoBanda, 3);  // |3 - 1| + 1 on the third section
}

TEST(NumerarNodos, ArchivoDeNodosDeVeinticuatroBytes) {
    SesionPrueba sp;
    ProyectoAcueducto p = Tramos({{"Tanque", "Ñandú"}, {"Ñandú", "UnNombreDeMasDeVeinteLetras"}});
    NumerarNodos(p, sp.s);
    const QByteArray b = LeerArchivo(RutaNodosDat(sp.s));
    ASSERT_EQ(b.size(), 3 * 24);
    // Record 2: "Ñandú" in one byte per character, blank-padded, number 2.
    EXPECT_EQ(b.mid(24, 20), QByteArray("\xD1" "and\xFA" "               "));
    EXPECT_EQ(uint8_t(b[44]), 2);
    EXPECT_EQ(uint8_t(b[45]), 0);
    EXPECT_EQ(b.mid(46, 2), QByteArray(2, '\0'));
    // Record 3 holds the long name cut to 20, which no end then matches.
    EXPECT_EQ(b.mid(48, 20), QByteArray("UnNombreDeMasDeVeint"));
    EXPECT_EQ(p.NumeroNodosACU, 3);
    EXPECT_EQ(p.NodosTramo(2, 2), 0);
    EXPECT_EQ(p.NodosTramo(1, 2), 2);
}

TEST(NumerarNodos, BlancosFinalesDosNodosYElUltimoRegistro) {
    // "A" and "A " are two names in the first phase; in the second both ends
    // match both records once trimmed, and the last one wins.
    SesionPrueba sp;
    ProyectoAcueducto p = Tramos({{"A", "B"}, {"A ", "C"}});
    NumerarNodos(p, sp.s);
    EXPECT_EQ(p.NumeroNodosACU, 4);
    EXPECT_EQ(p.NodosTramo(1, 1), 3);
    EXPECT_EQ(p.NodosTramo(1, 2), 3);
}

TEST(NumerarNodos, MasNombresQueTramosMasDiezParanConElArchivoHastaAhi) {
    // The node file is emptied before the first name is listed and takes a
    // record per node as it goes, so a numbering that stops leaves the
    // records written up to there, never those of the network before.
    SesionPrueba sp;
    ProyectoAcueducto antes = Tramos({{"A", "B"}, {"B", "C"}});
    NumerarNodos(antes, sp.s);
    QFile f(RutaNodosDat(sp.s));
    ASSERT_EQ(f.size(), 3 * 24);

    // 11 separate sections: 22 names, room for 11 + 10 = 21.
    std::vector<std::pair<QString, QString>> islas;
    for (int k = 0; k < 11; ++k) islas.push_back({QStringLiteral("I%1").arg(k), QStringLiteral("J%1").arg(k)});
    ProyectoAcueducto p = Tramos(islas);
    EXPECT_EQ(NumeroDeError([&] { NumerarNodos(p, sp.s); }), Error::SubindiceFuera);
    const QByteArray b = LeerArchivo(f.fileName());
    ASSERT_EQ(b.size(), 21 * 24);
    EXPECT_EQ(b.mid(20 * 24, 20), QByteArray("I10                 "));
    EXPECT_EQ(uint8_t(b[20 * 24 + 20]), 21);
    islas.pop_back();  // 20 names for 10 + 10
    ProyectoAcueducto q = Tramos(islas);
    NumerarNodos(q, sp.s);
    EXPECT_EQ(q.NumeroNodosACU, 20);

    // The solver's renumbering of a network without sections stops at the
    // first section, with the file already opened anew and empty.
    ProyectoAcueducto vacia;
    EXPECT_THROW(RenumerarNodos(vacia, sp.s), ErrorEjecucion);
    EXPECT_TRUE(f.exists());
    EXPECT_EQ(f.size(), 0);
}

TEST(NumerarNodos, SinTramosNoHaceNada) {
    SesionPrueba sp;
    ProyectoAcueducto p;
    p.NumeroNodosACU = 3;
    NumerarNodos(p, sp.s);
    EXPECT_EQ(p.NumeroNodosACU, 3);
    EXPECT_FALSE(QFile::exists(RutaNodosDat(sp.s)));
}

TEST(ConectarNodos, EtiquetasConElNombreDelNodoPrimero) {
    SesionPrueba sp;
    ProyectoAcueducto p = Tramos({{"A", "B"}, {" C", "A"}, {"D", "D"}, {"B", "D"}});
    NumerarNodos(p, sp.s);
    const int a = 1, b = 2, c = 3, d = 4;
    EXPECT_EQ(p.TramosConectados[a], 2);
    EXPECT_EQ(p.NombreTramos[a], "A-B,  A-C");
    EXPECT_EQ(p.NombreTramos[b], "B-A,  B-D");
    EXPECT_EQ(p.NombreTramos[c], "C-A");
    // A section with equal ends counts twice.
    EXPECT_EQ(p.TramosConectados[d], 3);
    EXPECT_EQ(p.NombreTramos[d], "D-D,  D-D,  D-B");
}

TEST(AcumularConsumos, RedondeoTrasCadaSuma) {
    // Halves of 0.001 are 0.0005, which round up to 0.001 at each addition:
    // A, on two sections, gets 0.002 where the exact sum is 0.001.
    SesionPrueba sp;
    ProyectoAcueducto p = Tramos({{"A", "B"}, {"A", "C"}});
    p.Demanda[1] = 0.001;
    p.Demanda[2] = 0.001;
    p.OpcionConsumo = 1;
    NumerarNodos(p, sp.s);
    EXPECT_EQ(p.ConsumoMedio[1], 0.002);
    EXPECT_EQ(p.ConsumoMedio[2], 0.001);
    EXPECT_EQ(p.ConsumoMedio[3], 0.001);

    // By node, typed demands stay; another option clears them.
    p.OpcionConsumo = 2;
    p.ConsumoMedio[1] = 7;
    AcumularConsumos(p);
    EXPECT_EQ(p.ConsumoMedio[1], 7.0);
    p.OpcionConsumo = 0;
    AcumularConsumos(p);
    EXPECT_EQ(p.ConsumoMedio[1], 0.0);
}

TEST(OrdenCuthillMcKee, BandaAngostaEnUnaCadenaRevuelta) {
    // The chain a-z-y-d-c-b typed out of order is numbered a 1, z 2, b 3,
    // c 4, y 5, d 6: band |2 - 5| + 1 = 4.  Along the chain it is 2.
    SesionPrueba sp;
    ProyectoAcueducto p = Tramos({{"a", "z"}, {"b", "c"}, {"z", "y"}, {"c", "d"}, {"y", "d"}});
    RenumerarNodos(p, sp.s);
    EXPECT_EQ(p.AnchoBanda, 4);
    const OrdenNodos o = OrdenCuthillMcKee(p);
    EXPECT_EQ(o.ancho, 2);
    std::vector<int> vistos(o.orden.begin() + 1, o.orden.end());
    std::sort(vistos.begin(), vistos.end());
    for (int k = 0; k < int(vistos.size()); ++k) EXPECT_EQ(vistos[size_t(k)], k + 1);
}
