// The solver against networks worked by hand with the Hazen-Williams law.

#include "RedPrueba.h"
#include "support/Apoyo.h"

#include "aqueduct/CasosDemanda.h"
#include "aqueduct/SolverMalla.h"

#include <gtest/gtest.h>
#include <cmath>

namespace {

// A mean imbalance below 1e-8 m³/s at one free node leaves the flow within
// 1e-5 l/s and the loss within 1.852 times that relative error; a pipe that
// feeds three free nodes carries their three imbalances.
constexpr double TolCaudal = 1e-5;
constexpr double TolCaudal3 = 3e-5;
constexpr double TolCota = 1e-4;

}  // namespace

TEST(ResolverBanda, TridiagonalResueltaAMano) {
    // [4 -1 0; -1 4 -1; 0 -1 4] x = [2 4 10]: x2 = 2 from the middle row, then
    // x1 = (2 + 2) / 4 = 1 and x3 = (10 + 2) / 4 = 3.
    MatrizBanda a;
    a.Redim(2, 3);
    for (int n = 1; n <= 3; ++n) a(1, n) = 4;
    a(2, 1) = -1;
    a(2, 2) = -1;
    std::vector<double> b{0, 2, 4, 10};
    ResolverBanda(a, b, 3, 1.0);
    EXPECT_NEAR(b[1], 1.0, 1e-14);
    EXPECT_NEAR(b[2], 2.0, 1e-14);
    EXPECT_NEAR(b[3], 3.0, 1e-14);
    // Flag 0 reuses the elimination: A [1 1 1] = [3 2 3].
    std::vector<double> c{0, 3, 2, 3};
    ResolverBanda(a, c, 3, 0.0);
    for (int n = 1; n <= 3; ++n) EXPECT_NEAR(c[size_t(n)], 1.0, 1e-14);
}

TEST(ResolverBanda, PivoteNuloYSuSustituto) {
    // A zero pivot met in the elimination becomes 1e-20; with no band to
    // eliminate (width 1) the back substitution divides by zero.
    MatrizBanda a;
    a.Redim(2, 2);
    a(1, 2) = 2;
    std::vector<double> b{0, 0, 4};
    ResolverBanda(a, b, 2, 1.0);
    EXPECT_EQ(a(1, 1), 1e-20);
    EXPECT_EQ(b[1], 0.0);
    EXPECT_EQ(b[2], 2.0);

    MatrizBanda d;
    d.Redim(1, 2);
    d(1, 2) = 2;
    std::vector<double> e{0, 3, 4};
    EXPECT_EQ(NumeroDeError([&] { ResolverBanda(d, e, 2, 1.0); }), Error::DivisionPorCero);
}

TEST(AnalizarMalla, UnTanqueUnTuboUnNodo) {
    SesionPrueba sp;
    ProyectoAcueducto p = Red({{"T", "N", 1000, 0.2, 100}},
                              {{"T", 0, 50, 100}, {"N", 10, 40, 0}}, sp.s);
    AnalizarMalla(p, sp.s);
    ASSERT_EQ(p.ErrorAnalisis, 0);
    const double h = Hf(10, 1000, 0.2);  // 1.06 m
    EXPECT_EQ(p.CotaReferencia, 40.0);
    EXPECT_NEAR(p.CotaPiezometrica[2], 100.0 - h, TolCota);
    EXPECT_NEAR(PresionNodo(p, 2), 60.0 - h, TolCota);
    EXPECT_NEAR(p.Caudal[1], 10.0, TolCaudal);
    EXPECT_NEAR(p.Perdidas[1], h, TolCota);
    EXPECT_NEAR(p.Velocidad[1], 0.01 / (0.2 * 0.2 * 3.14159265358979 / 4), 1e-6);  // 0.318 m/s
    EXPECT_NEAR(p.DemandaCalculo[2], 10.0, TolCaudal);
    EXPECT_EQ(p.DemandaCalculo[1], 0.0);  // a fixed node shows its own demand
    EXPECT_EQ(p.NodoMinimo, 2);
    EXPECT_EQ(p.NodoMaximo, 2);
    EXPECT_EQ(p.AnchoBanda, 2);
    ASSERT_EQ(p.Iteraciones.size(), 1u);
    EXPECT_GT(p.Iteraciones[0], 1);
    EXPECT_LT(p.Iteraciones[0], 100);
}

TEST(AnalizarMalla, FlujoDeJHaciaIEsNegativo) {
    SesionPrueba sp;
    ProyectoAcueducto p = Red({{"N", "T", 1000, 0.2, 100}},
                              {{"T", 0, 50, 100}, {"N", 10, 40, 0}}, sp.s);
    AnalizarMalla(p, sp.s);
    ASSERT_EQ(p.ErrorAnalisis, 0);
    const double h = Hf(10, 1000, 0.2);
    EXPECT_NEAR(p.Caudal[1], -10.0, TolCaudal);
    EXPECT_LT(p.Velocidad[1], 0.0);
    EXPECT_NEAR(p.Perdidas[1], -h, TolCota);
    EXPECT_NEAR(PerdidaUnitaria(p, 1), RoundNivo(-h, 3), 1e-3);  // per 1000 m of a 1000 m pipe
}

TEST(AnalizarMalla, DosTanquesALaMismaCota) {
    // The demand of N splits in halves between two equal pipes; the pipe
    // between the tanks sees no head difference and carries nothing.
    SesionPrueba sp;
    ProyectoAcueducto p = Red({{"T1", "N", 1000, 0.2}, {"N", "T2", 1000, 0.2}, {"T1", "T2", 500, 0.15}},
                              {{"T1", 0, 60, 100}, {"T2", 0, 60, 100}, {"N", 10, 40, 0}}, sp.s);
    AnalizarMalla(p, sp.s);
    ASSERT_EQ(p.ErrorAnalisis, 0);
    EXPECT_NEAR(p.Caudal[1], 5.0, TolCaudal);
    EXPECT_NEAR(p.Caudal[2], -5.0, TolCaudal);
    EXPECT_NEAR(p.CotaPiezometrica[Nodo(p, "N")], 100.0 - Hf(5, 1000, 0.2), TolCota);
    EXPECT_NEAR(p.Perdidas[3], 0.0, 1e-9);
    EXPECT_NEAR(p.Caudal[3], 0.0, 1e-6);
}

TEST(AnalizarMalla, MallaEntreDosTanques) {
    // T1 at 100 m and T2 at 90 m joined by two paths through A and through B,
    // without demand: along each path the two losses add up to 10 m, so
    // Q = (10 / (r1 + r2))^(1/1.852), found without any loop being named.
    SesionPrueba sp;
    ProyectoAcueducto p =
        Red({{"T1", "A", 800, 0.2}, {"A", "T2", 600, 0.15}, {"T1", "B", 1200, 0.25}, {"B", "T2", 900, 0.2}},
            {{"T1", 0, 50, 100}, {"T2", 0, 45, 90}, {"A", 0, 40, 0}, {"B", 0, 42, 0}}, sp.s);
    AnalizarMalla(p, sp.s);
    ASSERT_EQ(p.ErrorAnalisis, 0);
    auto r = [](double l, double d) { return Hf(1000, l, d); };  // loss at 1 m³/s
    const double qa = 1000 * std::pow(10 / (r(800, 0.2) + r(600, 0.15)), 1 / 1.852);
    const double qb = 1000 * std::pow(10 / (r(1200, 0.25) + r(900, 0.2)), 1 / 1.852);
    EXPECT_NEAR(p.Caudal[1], qa, 1e-3);
    EXPECT_NEAR(p.Caudal[2], qa, 1e-3);
    EXPECT_NEAR(p.Caudal[3], qb, 1e-3);
    EXPECT_NEAR(p.Caudal[4], qb, 1e-3);
    EXPECT_NEAR(p.CotaPiezometrica[Nodo(p, "A")], 100 - Hf(qa, 800, 0.2), 1e-3);
    EXPECT_NEAR(p.CotaPiezometrica[Nodo(p, "B")], 100 - Hf(qb, 1200, 0.25), 1e-3);
}

namespace {

// A tree fed by a tank: T -> A, A -> B, A -> C; C stands highest, so it has
// the lowest pressure.  Flows follow the demands, losses the law.
ProyectoAcueducto Arbol(const Sesion& s) {
    ProyectoAcueducto p = Red({{"T", "A", 800, 0.2}, {"A", "B", 600, 0.15}, {"A", "C", 400, 0.15}},
                              {{"T", 0, 60, 100}, {"A", 4, 50, 0}, {"B", 2, 45, 0}, {"C", 3, 58, 0}}, s);
    return p;
}

struct Cotas {
    double a, b, c;
};
Cotas CotasArbol(double qa, double qb, double qc) {
    const double ha = 100 - Hf(qa + qb + qc, 800, 0.2);
    return {ha, ha - Hf(qb, 600, 0.15), ha - Hf(qc, 400, 0.15)};
}

}  // namespace

TEST(CasosDemanda, LosTresCasosSobreLaMismaRed) {
    SesionPrueba sp;
    ProyectoAcueducto p = Arbol(sp.s);
    const int a = Nodo(p, "A"), b = Nodo(p, "B"), c = Nodo(p, "C");

    p.CasoDemanda = 1;
    AnalizarMalla(p, sp.s);
    Cotas k = CotasArbol(4, 2, 3);
    EXPECT_NEAR(p.Caudal[1], 9.0, TolCaudal3);
    EXPECT_NEAR(p.CotaPiezometrica[b], k.b, TolCota);
    EXPECT_NEAR(p.CotaPiezometrica[c], k.c, TolCota);
    EXPECT_EQ(p.NodoMinimo, c);
    double suma1 = 0;
    for (int n : {a, b, c}) {
        EXPECT_NEAR(p.DemandaCalculo[n], p.DemandaReal[n] * 1000, TolCaudal);
        suma1 += p.DemandaCalculo[n];
    }

    p.CasoDemanda = 2;  // 2.5 x Qm
    AnalizarMalla(p, sp.s);
    k = CotasArbol(10, 5, 7.5);
    EXPECT_NEAR(p.Caudal[1], 22.5, TolCaudal3);
    EXPECT_NEAR(p.CotaPiezometrica[a], k.a, TolCota);
    EXPECT_NEAR(p.CotaPiezometrica[c], k.c, TolCota);

    // 1.8 x Qm, then 16 l/s more at C, the lowest pressure of the first pass.
    p.CasoDemanda = 3;
    AnalizarMalla(p, sp.s);
    ASSERT_EQ(p.Iteraciones.size(), 2u);
    k = CotasArbol(7.2, 3.6, 5.4 + 16);
    EXPECT_NEAR(p.DemandaReal[c] * 1000, 21.4, 1e-12);
    EXPECT_NEAR(p.Caudal[1], 32.2, TolCaudal3);
    EXPECT_NEAR(p.Caudal[3], 21.4, TolCaudal);
    EXPECT_NEAR(p.CotaPiezometrica[b], k.b, TolCota);
    EXPECT_NEAR(p.CotaPiezometrica[c], k.c, TolCota);
    double suma3 = 0;
    for (int n : {a, b, c}) suma3 += p.DemandaCalculo[n];
    EXPECT_NEAR(suma3 - suma1, 0.8 * 9 + 16, 3 * TolCaudal);
}

TEST(CasosDemanda, ElIncendioVaAlNodoDeMenorPresionDelPrimerPaso) {
    // With B the highest now, the fire flow lands on B, not on the last node.
    SesionPrueba sp;
    ProyectoAcueducto p = Arbol(sp.s);
    p.CotaTerreno[Nodo(p, "B")] = 70;
    p.CasoDemanda = 3;
    AnalizarMalla(p, sp.s);
    EXPECT_NEAR(p.DemandaReal[Nodo(p, "B")] * 1000, 1.8 * 2 + 16, 1e-12);
    EXPECT_NEAR(p.DemandaReal[Nodo(p, "C")] * 1000, 1.8 * 3, 1e-12);
    EXPECT_NEAR(p.Caudal[2], 1.8 * 2 + 16, TolCaudal);
}

TEST(CasosDemanda, IncendioSinLitrosEsUnSoloPaso) {
    SesionPrueba sp;
    ProyectoAcueducto p = Arbol(sp.s);
    p.LitrosIncendio = 0;
    p.CasoDemanda = 3;
    AnalizarMalla(p, sp.s);
    ProyectoAcueducto q = Arbol(sp.s);
    q.FactorQMax = 1.8;
    q.CasoDemanda = 2;
    AnalizarMalla(q, sp.s);
    for (int n = 1; n <= p.NumeroNodosACU; ++n) EXPECT_EQ(p.CotaPiezometrica[n], q.CotaPiezometrica[n]);
    for (int s = 1; s <= p.NumeroTramos; ++s) EXPECT_EQ(p.Caudal[s], q.Caudal[s]);
}

TEST(CasosDemanda, NodoFijoConDemandaNiMinimoNiMaximo) {
    SesionPrueba sp;
    ProyectoAcueducto p = Arbol(sp.s);
    p.ConsumoMedio[Nodo(p, "T")] = 7;
    p.CotaTerreno[Nodo(p, "T")] = -500;  // the lowest ground, the highest pressure if it counted
    AnalizarMalla(p, sp.s);
    EXPECT_EQ(p.DemandaCalculo[Nodo(p, "T")], 7.0);
    EXPECT_NE(p.NodoMaximo, Nodo(p, "T"));
    EXPECT_NE(p.NodoMinimo, Nodo(p, "T"));
    EXPECT_NEAR(p.Caudal[1], 9.0, TolCaudal3);  // the tank's own demand is not drawn through the pipes
}

TEST(CasosDemanda, LongitudEquivalenteYDiametroEnMilimetros) {
    // 5 % on 100 m gives 105 m of design length; 200 mm is 0.2 m.
    SesionPrueba sp;
    ProyectoAcueducto p = Red({{"T", "N", 100, 200}}, {{"T", 0, 50, 100}, {"N", 10, 40, 0}}, sp.s);
    p.OpcionDiametro = 2;
    p.CasoPorcentaje = 1;
    p.DeltaPorcentaje = 5;
    AnalizarMalla(p, sp.s);
    EXPECT_EQ(p.LongitudCalculo[1], 105.0);
    EXPECT_NEAR(p.Perdidas[1], Hf(10, 105, 0.2), TolCota);
    EXPECT_NEAR(PerdidaUnitaria(p, 1), RoundNivo(Hf(10, 105, 0.2) * 1000 / 105, 3), 1e-3);
}

TEST(CasosDemanda, TextosDeLosCasos) {
    ProyectoAcueducto p;
    EXPECT_EQ(FilasCasos(p), QStringList({"Qm = Consumo Medio", "Q Máximo = 2.50 x Qm",
                                          "Q Incendio = 1.80 Qm +  16.00  "}));
    p.CasoDemanda = 1;
    EXPECT_EQ(TextoCasoReporte(p), "Caso: ConsumoMedio");
    p.CasoDemanda = 2;
    EXPECT_EQ(TextoCasoReporte(p), "Caso: Q Máximo = 2.50 Consumo Medio ");
    p.CasoDemanda = 3;
    EXPECT_EQ(TextoCasoReporte(p), "Caso: Q Incendio = 1.80 Consumo Medio +  16.00  Litros");
}

TEST(AnalizarMalla, FallasQuedanEnErrorAnalisis) {
    SesionPrueba sp;
    const std::vector<NodoPrueba> nodos{{"T", 0, 50, 100}, {"N", 10, 40, 0}};
    ProyectoAcueducto largo0 = Red({{"T", "N", 0, 0.2}}, nodos, sp.s);
    AnalizarMalla(largo0, sp.s);
    EXPECT_EQ(largo0.ErrorAnalisis, 1);
    EXPECT_TRUE(largo0.DetalleError.contains("11")) << largo0.DetalleError.toStdString();

    ProyectoAcueducto diametro0 = Red({{"T", "N", 100, 0}}, nodos, sp.s);
    AnalizarMalla(diametro0, sp.s);
    EXPECT_EQ(diametro0.ErrorAnalisis, 1);

    // Every node fixed: the mean error divides 0 by 0 nodes.
    ProyectoAcueducto fijos = Red({{"T", "N", 100, 0.2}}, {{"T", 0, 50, 100}, {"N", 0, 40, 90}}, sp.s);
    AnalizarMalla(fijos, sp.s);
    EXPECT_EQ(fijos.ErrorAnalisis, 1);

    // No section: reading the first one is a subscript error.
    ProyectoAcueducto vacio;
    AnalizarMalla(vacio, sp.s);
    EXPECT_EQ(vacio.ErrorAnalisis, 1);

    // A later good run leaves the flag alone: callers clear it.
    ProyectoAcueducto bueno = Red({{"T", "N", 100, 0.2}}, nodos, sp.s);
    bueno.ErrorAnalisis = 1;
    AnalizarMalla(bueno, sp.s);
    EXPECT_EQ(bueno.ErrorAnalisis, 1);
    EXPECT_NEAR(bueno.Caudal[1], 10, TolCaudal);
}

TEST(AnalizarMalla, SinNodoFijoNoSeCae) {
    // A negative level passes the tank check but fixes nothing: the system is
    // singular and only the substitute pivot carries the run.
    SesionPrueba sp;
    ProyectoAcueducto p = Red({{"T", "N", 100, 0.2}}, {{"T", 0, 50, -100}, {"N", 10, 40, 0}}, sp.s);
    AnalizarMalla(p, sp.s);
    EXPECT_EQ(p.NumeroFijos, 0);
    EXPECT_EQ(p.ErrorAnalisis, 0);
    EXPECT_TRUE(p.SinConvergencia());
}

TEST(AnalizarMalla, NumeracionInternaIgualALaDeEntrada) {
    // A grid of 6 x 6 nodes whose sections are typed in a scattered order,
    // with two tanks: both numberings give the same heads.
    SesionPrueba sp;
    std::vector<TramoPrueba> tramos;
    auto nombre = [](int f, int c) { return QStringLiteral("N%1-%2").arg(f).arg(c); };
    for (int f = 0; f < 6; ++f)
        for (int c = 0; c < 6; ++c) {
            if (c < 5) tramos.push_back({nombre(f, c), nombre(f, c + 1), 150.0 + 10 * f, 0.1 + 0.01 * c});
            if (f < 5) tramos.push_back({nombre(f, c), nombre(f + 1, c), 200.0 - 5 * c, 0.15});
        }
    std::vector<TramoPrueba> revuelto;
    for (size_t k = 0; k < tramos.size(); ++k) revuelto.push_back(tramos[(k * 37) % tramos.size()]);
    std::vector<NodoPrueba> nodos;
    for (int f = 0; f < 6; ++f)
        for (int c = 0; c < 6; ++c) nodos.push_back({nombre(f, c), 0.5 + 0.1 * c, 20.0 + f, 0});
    nodos[0].tanque = 70;
    nodos[35].tanque = 65;
    ProyectoAcueducto entrada = Red(revuelto, nodos, sp.s);
    entrada.Orden = OrdenSolucion::Entrada;
    ProyectoAcueducto interna = entrada;
    interna.Orden = OrdenSolucion::Interno;
    for (int caso = 1; caso <= 3; ++caso) {
        entrada.CasoDemanda = interna.CasoDemanda = uint8_t(caso);
        AnalizarMalla(entrada, sp.s);
        AnalizarMalla(interna, sp.s);
        ASSERT_EQ(entrada.ErrorAnalisis, 0);
        ASSERT_EQ(interna.ErrorAnalisis, 0);
        EXPECT_TRUE(interna.NumeracionInterna);
        EXPECT_LT(interna.AnchoBandaSolucion, entrada.AnchoBanda);
        EXPECT_EQ(entrada.Iteraciones, interna.Iteraciones);
        for (int n = 1; n <= entrada.NumeroNodosACU; ++n)
            EXPECT_NEAR(entrada.CotaPiezometrica[n], interna.CotaPiezometrica[n], 1e-9);
        EXPECT_EQ(entrada.NodoMinimo, interna.NodoMinimo);
    }
}

namespace {

// Heads (m) of the named nodes within 1e-6 m of `cota`, and the sections
// among `tramos` (1-based) carrying exactly nothing.
void SinFlujoALaCota(const ProyectoAcueducto& p, const QStringList& nodos, double cota, const std::vector<int>& tramos) {
    for (const QString& n : nodos) EXPECT_NEAR(p.CotaPiezometrica[Nodo(p, n)], cota, 1e-6) << n.toStdString();
    for (int s : tramos) EXPECT_EQ(p.Caudal[s], 0.0) << "tramo " << s;
    ASSERT_EQ(p.Convergio.size(), 1u);
    EXPECT_TRUE(p.Convergio[0]);
    EXPECT_LT(p.Desbalance[0], 1e-8);
}

}  // namespace

TEST(AnalizarMalla, CadenaSinDemandaColgadaDeUnNodo) {
    // T at 50 m feeds Q with 1 l/s through 100 m of 100 mm, C = 100; a chain of
    // 1 to 10 nodes without demand hangs from Q.  Q stands at
    // 50 - 10.675 x 100 x (0.001 / 100)^1.852 / 0.1^4.8704 = 50 - 0.0436 m and
    // every chain node at Q's head, the chain carrying nothing.
    SesionPrueba sp;
    for (int largo = 1; largo <= 10; ++largo) {
        std::vector<TramoPrueba> tramos{{"T", "Q", 100, 100}};
        std::vector<NodoPrueba> nodos{{"T", 0, 40, 50}, {"Q", 1, 40, 0}};
        QStringList cadena;
        std::vector<int> enCadena;
        for (int k = 1; k <= largo; ++k) {
            cadena << QStringLiteral("C%1").arg(k);
            tramos.push_back({k == 1 ? QStringLiteral("Q") : cadena[k - 2], cadena.back(), 100, 100});
            nodos.push_back({cadena.back(), 0, 30, 0});
            enCadena.push_back(k + 1);
        }
        ProyectoAcueducto p = Red(tramos, nodos, sp.s);
        p.OpcionDiametro = 2;
        AnalizarMalla(p, sp.s);
        SCOPED_TRACE(largo);
        ASSERT_EQ(p.ErrorAnalisis, 0);
        const double q = 50 - Hf(1, 100, 0.1);
        EXPECT_NEAR(p.CotaPiezometrica[Nodo(p, "Q")], q, TolCota);
        EXPECT_NEAR(p.Caudal[1], 1.0, (largo + 1) * TolCaudal);  // the imbalance is a mean over 1 + largo nodes
        SinFlujoALaCota(p, cadena, p.CotaPiezometrica[Nodo(p, "Q")], enCadena);
    }
}

TEST(AnalizarMalla, DosTanquesIgualesSinNadaEntreEllos) {
    // T1 and T2 at 60 m joined through A and B without demand: both nodes at
    // 60 m and no flow anywhere.
    SesionPrueba sp;
    ProyectoAcueducto p = Red({{"T1", "A"}, {"A", "B"}, {"B", "T2"}},
                              {{"T1", 0, 40, 60}, {"T2", 0, 40, 60}, {"A", 0, 30, 0}, {"B", 0, 35, 0}}, sp.s);
    AnalizarMalla(p, sp.s);
    ASSERT_EQ(p.ErrorAnalisis, 0);
    SinFlujoALaCota(p, {"A", "B"}, 60.0, {1, 2, 3});
}

TEST(AnalizarMalla, RamalMuertoDeUnaMalla) {
    // A loop L1-L2-L3 fed by T, with a dead-end branch E1..E4 off L2: the
    // branch sits at L2's head and carries nothing.
    SesionPrueba sp;
    ProyectoAcueducto p = Red({{"T", "L1", 300, 0.2},
                               {"L1", "L2", 200, 0.15},
                               {"L2", "L3", 250, 0.1},
                               {"L3", "L1", 200, 0.15},
                               {"L2", "E1", 100, 0.1},
                               {"E1", "E2", 100, 0.1},
                               {"E2", "E3", 100, 0.1},
                               {"E3", "E4", 100, 0.1}},
                              {{"T", 0, 45, 60}, {"L1", 2, 30, 0}, {"L2", 3, 32, 0}, {"L3", 4, 31, 0},
                               {"E1", 0, 25, 0}, {"E2", 0, 26, 0}, {"E3", 0, 27, 0}, {"E4", 0, 28, 0}},
                              sp.s);
    AnalizarMalla(p, sp.s);
    ASSERT_EQ(p.ErrorAnalisis, 0);
    EXPECT_NEAR(p.Caudal[1], 9.0, TolCaudal3);
    SinFlujoALaCota(p, {"E1", "E2", "E3", "E4"}, p.CotaPiezometrica[Nodo(p, "L2")], {5, 6, 7, 8});
}

TEST(AnalizarMalla, PasoQueAgotaElLimiteSeInforma) {
    // One iteration leaves the first, linear guess: not yet balanced.
    SesionPrueba sp;
    ProyectoAcueducto p = Arbol(sp.s);
    p.LimiteIteraciones = 1;
    p.CasoDemanda = 3;
    AnalizarMalla(p, sp.s);
    ASSERT_EQ(p.ErrorAnalisis, 0);
    EXPECT_EQ(p.Iteraciones, std::vector<int>({1, 1}));
    EXPECT_EQ(p.Convergio, std::vector<bool>({false, false}));
    ASSERT_EQ(p.Desbalance.size(), 2u);
    EXPECT_GT(p.Desbalance[0], 1e-8);
    EXPECT_TRUE(p.SinConvergencia());
    p.LimiteIteraciones = 100;
    AnalizarMalla(p, sp.s);
    EXPECT_EQ(p.Convergio, std::vector<bool>({true, true}));
    EXPECT_FALSE(p.SinConvergencia());
}

TEST(AnalizarMalla, CasiEmpateEnUnaMallaConverge) {
    // T feeds A and B by equal pipes and A-B closes the loop; B draws 1e-6 l/s
    // more, so A-B sits at a head difference of about 1e-8 m.  A floor on that
    // difference must stay below it, or the balance stalls above the tolerance.
    SesionPrueba sp;
    ProyectoAcueducto p = Red({{"T", "A", 100, 0.2}, {"T", "B", 100, 0.2}, {"A", "B", 100, 0.1}},
                              {{"T", 0, 45, 60}, {"A", 5, 30, 0}, {"B", 5.000001, 30, 0}}, sp.s);
    AnalizarMalla(p, sp.s);
    ASSERT_EQ(p.ErrorAnalisis, 0);
    EXPECT_EQ(p.Convergio, std::vector<bool>({true}));
    EXPECT_NEAR(p.Caudal[1] + p.Caudal[2], 10.000001, TolCaudal3);
}
