// "Calcular la Longitud de los Ramales": lengths worked by hand from the
// coordinates, fixed into the editor, and the run of branches.

#include "RamalesDePrueba.h"
#include "entry/LongitudTramosR.h"
#include "support/Apoyo.h"

#include <cmath>

namespace {

const QString PreguntaFijar = QStringLiteral(" m.\n¿Fijar la Longitud del Tramo Seleccionado?");

struct Longitudes : ::testing::Test {
    SesionPrueba sp;
    ProyectoEdificio p;
    DialogosFalsos d;
    EditorDePrueba editor{p};
    void SetUp() override {
        PonerRamales(p, {{"T", "N1"}, {"N1", "N2"}, {"", ""}});
        sp.s.RamalActual = 2;
    }
    void Puntos(LongitudTramosR& l, std::initializer_list<double> xyz) {
        int caja = 1;
        for (double v : xyz) l.Puntos().Cambiar(caja++, v);
    }
};

}  // namespace

TEST_F(Longitudes, LongitudesHechasAMano) {
    LongitudTramosR l(p, sp.s, d, editor);
    const struct {
        std::initializer_list<double> xyz;
        double longitud;
        const char* texto;
    } casos[] = {
        {{0, 0, 0, 3, 4, 12}, 13.0, "13.00"},        // 9 + 16 + 144 = 169
        {{1, 1, 1, 1, 1, 1}, 0.0, "0.00"},           // equal points
        {{3, 4, 12, 0, 0, 0}, 13.0, "13.00"},        // the order does not matter
        {{0, 0, 0, 1200, 500, 0}, 1300.0, "1,300.00"},  // 5-12-13 times 100
        {{0, 0, 0, 1, 1, 0}, std::sqrt(2.0), "1.41"},
    };
    for (const auto& c : casos) {
        Puntos(l, c.xyz);
        EXPECT_DOUBLE_EQ(l.Puntos().Longitud(), c.longitud);
        EXPECT_EQ(l.Puntos().TextoLongitud(), QString::fromUtf8(c.texto));
    }
    MarcasPrueba marcas("es_ES");
    EXPECT_EQ(l.Puntos().TextoLongitud(), QStringLiteral("1,41"));
}

TEST_F(Longitudes, FijarPasaJaIYLaEtiquetaEsLaDistanciaAlOrigen) {
    LongitudTramosR l(p, sp.s, d, editor);
    EXPECT_EQ(l.Ramal(), 2);
    EXPECT_EQ(l.Spread1.Texto(1, 2), QStringLiteral("N1"));
    Puntos(l, {0, 0, 0, 3, 4, 12});
    d.respuestas = {Respuesta::No};
    EXPECT_FALSE(l.FijarLongitud());
    MensajeEs(d.Ultimo(), QStringLiteral("Longitud = 13.00") + PreguntaFijar,
              QStringLiteral("Longitud de los Tramos..."));
    EXPECT_DOUBLE_EQ(p.longitudReal[2], 0.0);
    EXPECT_FALSE(sp.s.ProyectoModificado);

    d.respuestas = {Respuesta::Si};
    EXPECT_TRUE(l.FijarLongitud());
    EXPECT_DOUBLE_EQ(p.longitudReal[2], 13.0);
    EXPECT_EQ(l.Spread1.Texto(1, 4), QStringLiteral("13.00"));
    EXPECT_TRUE(sp.s.ProyectoModificado);
    const double esperado[] = {3, 4, 12, 0, 0, 0};
    for (int caja = 1; caja <= 6; ++caja) EXPECT_DOUBLE_EQ(l.Puntos().Valor(caja), esperado[caja - 1]) << caja;
    EXPECT_EQ(l.Puntos().TextoLongitud(), QStringLiteral("13.00"));  // |(3, 4, 12)| until new values are typed
}

TEST_F(Longitudes, PuntosIgualesFijanCeroEnUnRamalSinNodos) {
    p.longitudReal[3] = 8.0;
    LongitudTramosR l(p, sp.s, d, editor);
    l.CambiarRamal(3);
    EXPECT_EQ(editor.llamadas.last(), QStringLiteral("IrARamal 3 3"));
    EXPECT_EQ(l.Spread1.Texto(1, 1), QStringLiteral("3"));
    EXPECT_EQ(l.Spread1.Texto(1, 4), QStringLiteral("8.00"));
    d.respuestas = {Respuesta::Si};
    EXPECT_TRUE(l.FijarLongitud());
    EXPECT_EQ(d.Ultimo().texto, QStringLiteral("Longitud = 0.00") + PreguntaFijar);
    EXPECT_EQ(l.Spread1.Texto(1, 4), QStringLiteral("0.00"));
    EXPECT_DOUBLE_EQ(p.longitudReal[3], 0.0);
}

TEST_F(Longitudes, LimpiarYLaBarra) {
    LongitudTramosR l(p, sp.s, d, editor);
    EXPECT_TRUE(l.ScrollDisponible());
    EXPECT_EQ(l.MaximoScroll(), 3);
    Puntos(l, {1, 2, 3, 4, 6, 3});
    d.respuestas = {Respuesta::No, Respuesta::Si};
    EXPECT_FALSE(l.Limpiar());
    EXPECT_EQ(l.Puntos().TextoLongitud(), QStringLiteral("5.00"));
    EXPECT_TRUE(l.Limpiar());
    MensajeEs(d.Ultimo(), QStringLiteral("¡Limpiar los Valores de las Coordenadas!"),
              QStringLiteral("Coordenadas de los Nodos..."));
    for (int caja = 1; caja <= 6; ++caja) EXPECT_DOUBLE_EQ(l.Puntos().Valor(caja), 0.0);
    EXPECT_EQ(l.Puntos().TextoLongitud(), QStringLiteral("0.00"));

    PonerRamales(p, {{"T", "N1"}});
    sp.s.RamalActual = 5;  // beyond the only branch
    LongitudTramosR una(p, sp.s, d, editor);
    EXPECT_FALSE(una.ScrollDisponible());
    EXPECT_EQ(una.Ramal(), 1);
}
