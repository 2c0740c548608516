#include "analysis/ApoyoAnalisis.h"
#include "takeoff/Computos.h"

namespace {

struct Computo : ::testing::Test {
    SesionPrueba sp;
    ProyectoEdificio p;
    // Four branches with stored sizes; fittings of several keys.
    void Proyecto() {
        ProyectoDeRamales(p, sp.s, {{"O", "A"}, {"A", "B"}, {"B", "C"}, {"A", "D"}});
        const char* tamanos[] = {"", "", "2", "1", "10"};  // branch 1 never analysed
        for (int i = 1; i <= 4; ++i) p.Predimensionado[i] = QString::fromLatin1(tamanos[i]);
        p.longitudReal[1] = 3.0;
        p.longitudReal[2] = 4.5;
        p.longitudReal[3] = 2.25;
        p.longitudReal[4] = 10.0;
        p.Reduccion[2] = QStringLiteral("reducción de  2\"  a  1\"");
        p.Reduccion[3] = QStringLiteral("   ");
        PonerPiezas(p, 2, {{10, 2, 1.0, "LAVAMANOS"}, {21, 1, 20.0, "APARTAMENTO"}});
        PonerPiezas(p, 3, {{10, 1, 1.0, "LAVAMANOS"}, {99, 3, 1.0, "LAVAMANOS"}, {0, 5, 1.0, "BORRADA"}});
        PonerConexiones(p, 1, {{5, 2, 0.0, "CODO DE 90 GRADOS"}, {10, 1, 0.0, "TEE NORMAL (FLUJO NORMAL)"}});
        PonerConexiones(p, 2, {{5, 1, 0.0, "CODO DE 90 GRADOS"}, {11, 2, 0.0, "TEE NORMAL (FLUJO INVERTIDO)"},
                               {12, 1, 2.0, "FILTRO"}});
        PonerConexiones(p, 3, {{10, 1, 0.0, "TEE NORMAL (FLUJO NORMAL)"}, {13, 1, 5.0, "MEDIDOR DE AGUA"}});
        PonerConexiones(p, 4, {{5, 4, 0.0, "CODO DE 90 GRADOS"}, {12, 2, 1.0, "FILTRO"}});
        GuardarYAbrir(p, sp);
    }
    static std::string Filas(const Grid& g) {
        QStringList l;
        for (int f = 1; f <= g.Filas(); ++f) l << g.Texto(f, 1) + QLatin1Char('|') + g.Texto(f, 2);
        return l.join(QLatin1Char('\n')).toStdString();
    }
    static std::string Lineas(const QStringList& l) { return l.join(QLatin1Char('\n')).toStdString(); }
};

}  // namespace

TEST_F(Computo, EncabezadosDeLasCuatroPaginas) {
    PaginasComputos c;
    EXPECT_EQ(c.Piezas.Encabezado(1, 1), QStringLiteral("Piezas Sanitarias"));
    EXPECT_EQ(c.Piezas.Encabezado(1, 2), QStringLiteral("Cantidad"));
    EXPECT_EQ(c.Piezas.Encabezado(2, 2), QStringLiteral("Piezas"));
    EXPECT_EQ(c.Conexiones.Encabezado(1, 1), QStringLiteral("Conexiones en Tuberías"));
    EXPECT_EQ(c.Reducciones.Encabezado(2, 2), QStringLiteral("Reduciones"));
    EXPECT_EQ(c.Tuberias.Encabezado(1, 1), QStringLiteral("Tuberías en el Proyecto"));
    EXPECT_EQ(c.Tuberias.Encabezado(2, 2), QStringLiteral("Long. (m)"));
    EXPECT_EQ(PaginasComputos::TituloPagina(4), QStringLiteral("Tuberías"));
}

TEST_F(Computo, LasCuatroListas) {
    Proyecto();
    PaginasComputos c;
    CalcularComputos(c, sp.s.ConexionProyecto);
    // Fixtures by name: the sub-branch and key 0 are left out; keys 10 and 99 share a name.
    EXPECT_EQ(Filas(c.Piezas), "LAVAMANOS|6");
    // Fittings by type and size (branch 1 has no size), then the fixed ones, sorted on the text.
    EXPECT_EQ(Filas(c.Conexiones), Lineas({
                                       QStringLiteral("CODO DE 90 GRADOS DE  10\"|4"),
                                       QStringLiteral("CODO DE 90 GRADOS DE  2\"|1"),
                                       QStringLiteral("FILTRO|3"),
                                       QStringLiteral("MEDIDOR DE AGUA|1"),
                                       QStringLiteral("TEE NORMAL DE  1\"|1"),
                                       QStringLiteral("TEE NORMAL DE  2\"|2"),
                                   }));
    // Reductions in capitals; a text of blanks does not count.
    EXPECT_EQ(Filas(c.Reducciones), "REDUCCIÓN DE  2\"  A  1\"|1");
    // Pipes by the text of the size: "10" before "2".
    EXPECT_EQ(Filas(c.Tuberias), Lineas({QStringLiteral("TUBERIA DE DIAMETRO = 1\"|2.25"),
                                              QStringLiteral("TUBERIA DE DIAMETRO = 10\"|10.00"),
                                              QStringLiteral("TUBERIA DE DIAMETRO = 2\"|4.50")}));
}

TEST_F(Computo, SinPiezasNiTamanosLasListasQuedanVacias) {
    ProyectoDeRamales(p, sp.s, {{"O", "A"}});
    PonerConexiones(p, 1, {{5, 1, 0.0, "CODO DE 90 GRADOS"}});
    GuardarYAbrir(p, sp);
    PaginasComputos c;
    CalcularComputos(c, sp.s.ConexionProyecto);
    EXPECT_EQ(c.Piezas.Filas() + c.Conexiones.Filas() + c.Tuberias.Filas(), 0);
}

TEST_F(Computo, TotalMayorQueElEnteroDesborda) {
    ProyectoDeRamales(p, sp.s, {{"O", "A"}});
    p.Predimensionado[1] = QStringLiteral("1");
    PonerConexiones(p, 1, {{5, 30000, 0.0, "CODO"}, {5, 3000, 0.0, "CODO"}});
    GuardarYAbrir(p, sp);
    Grid g;
    EXPECT_EQ(NumeroDeError([&] { CalculeComputosConexiones(g, sp.s.ConexionProyecto); }), Error::Desbordamiento);
}

TEST_F(Computo, LosNombresSeAgrupanSinMayusculasNiAcentosEnOrdenEspanol) {
    // One row per name whatever its case or accents, under its spelling first
    // written; "Á" sorts with "A", before "Z".
    ProyectoDeRamales(p, sp.s, {{"O", "A"}, {"A", "B"}});
    p.Predimensionado[1] = p.Predimensionado[2] = QStringLiteral("1");
    p.Reduccion[1] = QStringLiteral("reducción de 1\" a 3/4\"");
    p.Reduccion[2] = QStringLiteral("REDUCCION DE 1\" A 3/4\"");
    PonerPiezas(p, 1, {{10, 1, 1.0, "Lavamanos"}, {10, 1, 1.0, "Zanja"}, {10, 2, 1.0, "LAVAMANOS"}});
    PonerPiezas(p, 2, {{10, 3, 1.0, "lavamanos"}, {10, 1, 1.0, "Ázotea"}});
    PonerConexiones(p, 1, {{12, 1, 1.0, "Ángulo especial"}, {5, 1, 0.0, "CODO DE 90 GRADOS"}});
    PonerConexiones(p, 2, {{12, 2, 1.0, "ANGULO ESPECIAL"}});
    GuardarYAbrir(p, sp);
    PaginasComputos c;
    CalcularComputos(c, sp.s.ConexionProyecto);
    EXPECT_EQ(Filas(c.Piezas), Lineas({QStringLiteral("Ázotea|1"), QStringLiteral("Lavamanos|6"),
                                       QStringLiteral("Zanja|1")}));
    EXPECT_EQ(Filas(c.Conexiones), Lineas({QStringLiteral("Ángulo especial|3"),
                                           QStringLiteral("CODO DE 90 GRADOS DE  1\"|1")}));
    EXPECT_EQ(Filas(c.Reducciones), "REDUCCIÓN DE 1\" A 3/4\"|2");
}
