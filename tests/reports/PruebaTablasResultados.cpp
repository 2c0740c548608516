#include "ApoyoReportes.h"
#include "reports/TablasResultados.h"

namespace {

// One field of a work table, by the row's Numero (DatosGenerales: its row).
Valor Campo(const QString& ruta, const char* tabla, const char* columna, int numero = 0) {
    Conexion c;
    EXPECT_TRUE(c.Abrir(ruta));
    const QString sql = QStringLiteral("SELECT %1 FROM %2").arg(QLatin1String(columna), QLatin1String(tabla));
    if (numero == 0) return c.Escalar(sql);
    return c.Escalar(sql + QStringLiteral(" WHERE Numero=?"), {numero});
}

long long Filas(const QString& ruta, const char* tabla) {
    Conexion c;
    EXPECT_TRUE(c.Abrir(ruta));
    return ComoEntero(c.Escalar(QStringLiteral("SELECT COUNT(*) FROM %1").arg(QLatin1String(tabla))));
}

bool Llenar(EjemploAnalizado& e, QString& error, const OpcionesResultados& o = {}) {
    return LleneTablasResultados(*e.a, e.p, e.sp.s, o, error);
}

}  // namespace

// The apartment sample: six branches, MONTANTE-ENTRADA-PASILLO, then the
// kitchen (FREGADERO 2 + LAVAPLATOS 2) with the laundry (BATEA 3 + LAVADORA 4)
// after it, and bathroom 1 (BAÑERA 2, EXCUSADO 3, LAVAMANOS 2 x 1) with
// bathroom 2 (DUCHA 2, EXCUSADO 3, LAVAMANOS 1) after it; all floors at 0.
TEST(TablasResultados, ElEjemploDelApartamentoPasaALasTablasComoLoMuestranLosGrids) {
    for (const char* locale : {"es_ES", "C", "es_AR"}) {
        SCOPED_TRACE(locale);
        EjemploAnalizado e(locale);
        // The grid shows bathroom 2's 4.5 m with the locale's mark.
        EXPECT_EQ(e.a->Spread3.Texto(6, 5), QStringLiteral("4") + SeparadoresActuales().decimal + QStringLiteral("50"));
        QString error;
        OpcionesResultados o;
        o.FormatoColor = false;
        o.Titulo1 = QStringLiteral("  MEMORIA DE CÁLCULO ");
        ASSERT_TRUE(Llenar(e, error, o)) << error.toStdString();
        const QString t = e.Trabajo();

        // Header: the project's data, the trimmed title, and the origin's
        // pressure (the given 20 m) as the first node's.
        EXPECT_EQ(ComoTexto(Campo(t, "DatosGenerales", "Proyecto")), QStringLiteral("Apartamento tipo"));
        EXPECT_EQ(ComoTexto(Campo(t, "DatosGenerales", "Fecha")), QStringLiteral("15/01/2024"));
        EXPECT_EQ(ComoTexto(Campo(t, "DatosGenerales", "Empresa")), QStringLiteral("Oficina Técnica"));
        EXPECT_EQ(ComoTexto(Campo(t, "DatosGenerales", "Titulo1")), QStringLiteral("MEMORIA DE CÁLCULO"));
        EXPECT_FALSE(ComoLogico(Campo(t, "DatosGenerales", "FormatoColor")));
        EXPECT_EQ(ComoEntero(Campo(t, "DatosGenerales", "OpcionPresionInicial")), 1);
        EXPECT_DOUBLE_EQ(ComoDoble(Campo(t, "DatosGenerales", "PresionMinima")), 20.0);
        // The unfavourable node's pressure is the one its row shows (no valves).
        const QString nodo = ComoTexto(Campo(t, "DatosGenerales", "NodoDesfaborable"));
        int fila = 0;
        for (int f = 1; f <= e.a->Spread3.Filas(); ++f)
            if (e.a->Spread3.Texto(f, 2) == nodo) fila = f;
        ASSERT_GT(fila, 0) << nodo.toStdString();
        EXPECT_NEAR(ComoDoble(Campo(t, "DatosGenerales", "Monto1")),
                    ComoDoble(Campo(t, "ImprePresiones", "CargaDisponible", fila)), 0.005);

        // Fixture units, one row per fixture (twelve): the J node first.
        EXPECT_EQ(Filas(t, "ImpreUnidadesGasto"), 12);
        EXPECT_EQ(ComoTexto(Campo(t, "ImpreUnidadesGasto", "Nodoj", 1)), QStringLiteral("ENTRADA"));
        EXPECT_EQ(ComoTexto(Campo(t, "ImpreUnidadesGasto", "NodoI", 1)), QStringLiteral("MONTANTE"));
        // The whole network's 24 units on the first row; the kitchen's 4 and
        // the laundry's 7 on branch 3's first row, its second row blank: 0.
        EXPECT_DOUBLE_EQ(ComoDoble(Campo(t, "ImpreUnidadesGasto", "Total", 1)), 24.0);
        EXPECT_DOUBLE_EQ(ComoDoble(Campo(t, "ImpreUnidadesGasto", "Total", 3)), 11.0);
        EXPECT_DOUBLE_EQ(ComoDoble(Campo(t, "ImpreUnidadesGasto", "Total", 4)), 0.0);
        // A branch without fixtures: blank quantity.  Two LAVAMANOS of 1 unit.
        EXPECT_EQ(ComoEntero(Campo(t, "ImpreUnidadesGasto", "Cantidad", 1)), 0);
        EXPECT_EQ(ComoEntero(Campo(t, "ImpreUnidadesGasto", "Cantidad", 9)), 2);
        EXPECT_DOUBLE_EQ(ComoDoble(Campo(t, "ImpreUnidadesGasto", "SubTotal", 9)), 2.0);
        // Final: branch number 1 no, 2 yes, a blank no, 5 yes.
        const struct {
            int fila;
            bool final;
        } finales[] = {{1, false}, {2, true}, {4, false}, {7, true}};
        for (const auto& f : finales)
            EXPECT_EQ(ComoLogico(Campo(t, "ImpreUnidadesGasto", "Final", f.fila)), f.final) << f.fila;

        // Equivalent lengths: the meter of 5 m on the first row; branch 2
        // (assumed 1") starts on row 4 with two elbows.
        EXPECT_EQ(ComoTexto(Campo(t, "ImpreLongitudesEquivalentes", "NodoI", 1)), QStringLiteral("MONTANTE"));
        EXPECT_EQ(ComoTexto(Campo(t, "ImpreLongitudesEquivalentes", "Descripcion", 1)), QStringLiteral("MEDIDOR DE AGUA"));
        EXPECT_DOUBLE_EQ(ComoDoble(Campo(t, "ImpreLongitudesEquivalentes", "PorPieza", 1)), 5.0);
        EXPECT_DOUBLE_EQ(ComoDoble(Campo(t, "ImpreLongitudesEquivalentes", "Total", 1)), 0.0);
        EXPECT_EQ(ComoTexto(Campo(t, "ImpreLongitudesEquivalentes", "Diametro", 4)), QStringLiteral("1\""));
        EXPECT_DOUBLE_EQ(ComoDoble(Campo(t, "ImpreLongitudesEquivalentes", "Cantidad", 4)), 2.0);

        // Pressures, one row per branch: the origin's 20 m behind branch 1,
        // bathroom 2's 4.5 m, level floors and no valves read as 0.
        EXPECT_EQ(Filas(t, "ImprePresiones"), 6);
        EXPECT_DOUBLE_EQ(ComoDoble(Campo(t, "ImprePresiones", "CotaP_Atras", 1)), 20.0);
        EXPECT_DOUBLE_EQ(ComoDoble(Campo(t, "ImprePresiones", "longitudReal", 6)), 4.5);
        EXPECT_EQ(ComoTexto(Campo(t, "ImprePresiones", "Diametro", 2)), QStringLiteral("1\""));
        EXPECT_DOUBLE_EQ(ComoDoble(Campo(t, "ImprePresiones", "RestaCotas", 3)), 0.0);
        EXPECT_DOUBLE_EQ(ComoDoble(Campo(t, "ImprePresiones", "ValvulaR", 3)), 0.0);
    }
}

TEST(TablasResultados, UnaCeldaSeLeeConLaComaDelLugarYNuncaComoMiles) {
    // "1,25" is a metre and a quarter where the comma is the decimal mark,
    // and no number where it is not: never 125.
    const struct {
        const char* locale;
        const char* texto;
        bool valido;
        double valor;
    } casos[] = {{"es_ES", "1,25", true, 1.25}, {"es_MX", "1.25", true, 1.25}, {"C", "1.25", true, 1.25},
                 {"C", "1,25", false, 0.0},     {"es_ES", "1.25", false, 0.0},  {"es_VE", "", true, 0.0},
                 {"es_CO", "-0,5", true, -0.5}, {"C", "uno", false, 0.0}};
    for (const auto& c : casos) {
        const MarcasPrueba marcas(c.locale);
        Grid g(1);
        g.PonerFilas(1);
        g.PonerTexto(1, 1, QString::fromLatin1(c.texto));
        double v = -1.0;
        EXPECT_EQ(NumeroMostrado(g, 1, 1, true, v), c.valido) << c.locale << " " << c.texto;
        if (c.valido) EXPECT_DOUBLE_EQ(v, c.valor) << c.locale << " " << c.texto;
    }
}

TEST(TablasResultados, UnaCeldaQueDebeTenerNumeroYNoLoTieneNoTocaLasTablas) {
    EjemploAnalizado e;
    QString error;
    ASSERT_TRUE(Llenar(e, error));
    // A blank flow, then a pressure with the other mark: refused whole.
    const struct {
        int columna;
        const char* texto;
    } casos[] = {{3, ""}, {15, "12,5"}};
    for (const auto& c : casos) {
        const QString antes = e.a->Spread3.Texto(2, c.columna);
        e.a->Spread3.PonerTexto(2, c.columna, QString::fromLatin1(c.texto));
        e.a->Spread1.PonerFilas(1);
        EXPECT_FALSE(Llenar(e, error));
        e.a->Spread3.PonerTexto(2, c.columna, antes);
        EXPECT_TRUE(error.contains(QStringLiteral("fila 2, columna %1").arg(c.columna))) << error.toStdString();
        EXPECT_EQ(Filas(e.Trabajo(), "ImpreUnidadesGasto"), 12);
        EXPECT_EQ(Filas(e.Trabajo(), "ImprePresiones"), 6);
    }
    // A missing work database is said, not created.
    QFile::remove(e.Trabajo());
    EXPECT_FALSE(Llenar(e, error));
    EXPECT_FALSE(error.isEmpty());
    EXPECT_FALSE(QFileInfo::exists(e.Trabajo()));
}
