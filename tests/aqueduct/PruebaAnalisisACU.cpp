// The logic of the aqueduct results screen: the grids, the case list, the
// failure messages, the correction of directions and the round trips.

#include "RedPrueba.h"

#include "aqueduct/AnalisisACU.h"
#include "aqueduct/ArchivoAcueducto.h"

#include <QDateTime>
#include <QFileInfo>
#include <gtest/gtest.h>

namespace {

const QString TituloDatos = QStringLiteral("Datos del Proyecto de Acueductos");

// A tank T feeding a loop A-B-C; B draws most, so section 3, typed from B
// to C, carries its flow from C to B: against its (I)-(J).
ProyectoAcueducto Malla(const Sesion& s) {
    return Red({{"T", "A", 300, 0.2}, {"A", "B", 200, 0.15}, {"B", "C", 200, 0.1}, {"A", "C", 150, 0.15}},
               {{"T", 0, 80, 100}, {"A", 2, 60}, {"B", 5, 55}, {"C", 1, 58}}, s);
}

struct Pantalla {
    SesionPrueba sp;
    DialogosFalsos d;
    ProyectoAcueducto p;
    AnalisisACU a{p, sp.s, d};

    explicit Pantalla(const ProyectoAcueducto& red) { Abrir(red); }
    Pantalla() { Abrir(Malla(sp.s)); }
    void Abrir(const ProyectoAcueducto& red) {
        p = EnArchivo(red, sp);
        a.Cargar();
    }
};

}  // namespace

TEST(AnalisisACU, GrillasDeResultados) {
    Pantalla t;
    EXPECT_FALSE(t.a.PrimeraActivacion());
    EXPECT_TRUE(t.d.mensajes.empty());
    EXPECT_EQ(t.p.CasoDemanda, 1);
    const Grid& r = t.a.Spread1;
    ASSERT_EQ(r.Filas(), 4);
    EXPECT_EQ(r.Encabezado(1, 3), "Longitud");
    EXPECT_EQ(r.Encabezado(2, 4), "Cálculo m");
    EXPECT_EQ(r.Encabezado(2, 5), "");  // metres: the unit cell stays empty
    EXPECT_EQ(r.Encabezado(1, 7), "Caudal ");
    EXPECT_EQ(r.Texto(1, 7), "8.000");  // the whole demand through the first pipe
    EXPECT_EQ(r.Texto(1, 4), "300.00");
    EXPECT_LT(r.Valor(3, 7), 0.0);
    EXPECT_DOUBLE_EQ(r.Valor(2, 10), PerdidaUnitaria(t.p, 2));

    const Grid& n = t.a.Spread2;
    ASSERT_EQ(n.Filas(), 4);
    EXPECT_EQ(n.Encabezado(1, 6), "Presión en\nel Nodo m");
    EXPECT_EQ(n.Texto(3, 3), "5.000");
    EXPECT_NEAR(n.Valor(3, 4), 5.0, 1e-4);
    EXPECT_EQ(n.Texto(1, 5), "100.00");
    // The free nodes of lowest and highest pressure carry the two fixed
    // backgrounds, the others white.
    int bajo = 2, alto = 2;
    for (int k = 3; k <= 4; ++k) {
        if (n.Valor(k, 6) < n.Valor(bajo, 6)) bajo = k;
        if (n.Valor(k, 6) > n.Valor(alto, 6)) alto = k;
    }
    EXPECT_EQ(t.p.NodoMinimo, bajo);
    EXPECT_EQ(t.p.NodoMaximo, alto);
    for (int k = 1; k <= 4; ++k)
        EXPECT_EQ(n.Cel(k, 6).colorFondo,
                  k == bajo ? ColorPresionMinima : k == alto ? ColorPresionMaxima : ColorBlanco);
    EXPECT_EQ(n.Cel(bajo, 6).colorTexto, ColorRojo);
    EXPECT_EQ(n.Texto(2, 8), "A-T,  A-B,  A-C");
}

TEST(AnalisisACU, UnidadesYCaudalNuloEnBlanco) {
    SesionPrueba sp;
    // Two tanks at one level and nothing drawn between them: no flow.
    ProyectoAcueducto red =
        Red({{"T1", "T2", 300, 150}, {"T1", "N", 100, 100}}, {{"T1", 0, 50, 90}, {"T2", 0, 50, 90}, {"N", 1, 40}}, sp.s);
    red.OpcionDiametro = 2;
    Pantalla t(red);
    EXPECT_EQ(t.a.Spread1.Encabezado(2, 5), "mm");
    EXPECT_EQ(t.a.Spread1.Texto(1, 7), "");
    EXPECT_EQ(t.a.Spread1.Texto(2, 7), "1.000");
}

TEST(AnalisisACU, CambioDeCasoRepetido) {
    Pantalla t;
    std::vector<std::vector<double>> cotas(3);
    std::vector<int> minimos;
    for (int vuelta = 0; vuelta < 2; ++vuelta)
        for (int fila = 0; fila < 3; ++fila) {
            t.a.CambiarCaso(fila);
            EXPECT_EQ(t.p.CasoDemanda, fila + 1);
            std::vector<double> v;
            for (int k = 1; k <= t.a.Spread2.Filas(); ++k) v.push_back(t.a.Spread2.Valor(k, 5));
            if (vuelta == 0)
                cotas[size_t(fila)] = v;
            else
                EXPECT_EQ(cotas[size_t(fila)], v);
        }
    // The maximum case draws 2.5 times the mean: B falls lower.
    EXPECT_LT(cotas[1][2], cotas[0][2]);
    double real = 0;  // 1.8 times the 8 l/s of the mean, and the fire flow
    for (int k = 1; k <= 4; ++k) real += t.a.Spread2.Valor(k, 3);
    EXPECT_NEAR(real, 1.8 * 8 + 16, 1e-9);
}

TEST(AnalisisACU, SinTanqueOConFallaSeCierra) {
    SesionPrueba sp;
    ProyectoAcueducto sin = Malla(sp.s);
    sin.CotaBombaEstanque[1] = 0;
    Pantalla t(sin);
    EXPECT_TRUE(t.a.PrimeraActivacion());
    EXPECT_TRUE(t.a.cerrar);
    EXPECT_EQ(t.a.Spread1.Filas(), 0);
    MensajeEs(
        t.d.Ultimo(),
        "Proyecto: red.acu\n¡No se Puede Calcular la Malla sin la Existencia\nde al menos una Bomba ó un Estanque!",
        "Error en Datos del Proyecto...", TituloDatos);

    ProyectoAcueducto rota = Malla(sp.s);
    rota.Longitud[2] = 0;
    Pantalla f(rota);
    EXPECT_TRUE(f.a.PrimeraActivacion());
    EXPECT_EQ(f.a.Spread2.Filas(), 0);
    MensajeEs(
        f.d.Ultimo(),
        "Proyecto: red.acu\n¡Existe un Error al Realizar el Análisis de la Red!\nRevise los Datos del Proyecto...\n"
        "Error 11: División por cero en el ramal 2 (A - B).",  // 1 over a resistance of no length
        "Error al Realizar el Cálculo...", TituloDatos);

    // A negative level passes the check (the solver then fixes nothing).
    ProyectoAcueducto negativo = Malla(sp.s);
    negativo.CotaBombaEstanque[1] = -100;
    Pantalla g(negativo);
    EXPECT_TRUE(g.a.VerificaTanque());
}

TEST(AnalisisACU, CorregirDireccion) {
    Pantalla t;
    ASSERT_LT(t.p.Caudal[3], 0.0);
    t.a.Pestana = 1;
    t.d.respuestas = {Respuesta::No};
    t.a.CorregirDireccion();
    EXPECT_EQ(t.a.Pestana, 0);
    MensajeEs(t.d.Ultimo(),
              "Invertir la Dirección (I)<->(J) en los Ramales de los \nCaudales Negativos de la Red en el Proyecto!\n"
              "(En los Ramales Negativos el Flujo va en Sentido Contrario)",
              "Cambiar (I)-(J) de los Ramales...", TituloDatos);
    EXPECT_EQ(t.d.Ultimo().botones, Botones::SiNo);
    EXPECT_EQ(t.p.Inicio[3], "B");

    t.d.respuestas = {Respuesta::Si};
    const double antes = t.p.Caudal[3];
    t.a.CorregirDireccion();
    EXPECT_EQ(t.p.Inicio[3], "C");
    EXPECT_EQ(t.p.Final[3], "B");
    EXPECT_NEAR(t.p.Caudal[3], -antes, 1e-6);
    for (int s = 1; s <= t.p.NumeroTramos; ++s) EXPECT_GE(t.p.Caudal[s], 0.0);
    EXPECT_EQ(t.a.Spread1.Texto(3, 1), "C");
    ProyectoAcueducto archivo;
    QString error;
    ASSERT_TRUE(LeerProyectoACU(archivo, t.sp.s, error));
    EXPECT_EQ(archivo.Inicio[3], "C");
    EXPECT_EQ(archivo.Final[3], "B");
    EXPECT_EQ(archivo.Inicio[2], "A");

    // Nothing negative now: the message, and the file is not touched.
    const QDateTime escrito = QFileInfo(t.sp.s.ArchivoProyectoACU).lastModified();
    t.a.CorregirDireccion();
    EXPECT_EQ(t.d.Ultimo().texto, "¡No Existe Ningún Caudal Negativo!");
    EXPECT_EQ(QFileInfo(t.sp.s.ArchivoProyectoACU).lastModified(), escrito);
}

TEST(AnalisisACU, LosRamalesSalvadosSinEstanqueCierranLaPantalla) {
    // A save with the tank still there solves again: see the screen's test.
    Pantalla t;
    t.a.AntesDeEditarRamales();
    EXPECT_EQ(t.sp.s.EdicionDesdeAnalisis, 1);
    t.p.CotaBombaEstanque[1] = 0;
    t.a.DespuesDeEditarRamales(true);
    EXPECT_EQ(t.sp.s.EdicionDesdeAnalisis, 0);
    EXPECT_TRUE(t.a.cerrar);
    EXPECT_EQ(t.d.Ultimo().encabezado, "Error en Datos del Proyecto...");
}

// A pass that reached the iteration limit, as the solver leaves it, shows a
// line per pass that did not end; the grids stay filled.  Three significant
// figures of the imbalance and the iterations with the locale's marks.
TEST(AnalisisACU, AvisoDeUnPasoSinConvergencia) {
    struct Caso {
        const char* locale;
        std::vector<bool> convergio;
        std::vector<int> iteraciones;
        std::vector<double> desbalance;
        QString aviso;
    };
    const Caso casos[] = {
        {"es_ES", {false}, {100}, {1.23e-5},
         "El cálculo no convergió: 100 iteraciones, desbalance medio 0,0000123 m³/s"},
        {"C", {false}, {100}, {1.23e-5}, "El cálculo no convergió: 100 iteraciones, desbalance medio 0.0000123 m³/s"},
        // The fire case: which of its two passes, 1000 grouped, 0.04564 to three figures.
        {"es_AR", {true, false}, {12, 1000}, {1e-9, 0.04564},
         "El cálculo con el caudal de incendio no convergió: 1.000 iteraciones, desbalance medio 0,0456 m³/s"},
        {"es_MX", {false, false}, {5, 5}, {2.5, 1234.5},
         "El cálculo sin el caudal de incendio no convergió: 5 iteraciones, desbalance medio 2.50 m³/s\n"
         "El cálculo con el caudal de incendio no convergió: 5 iteraciones, desbalance medio 1,235 m³/s"},
        {"es_CO", {true, true}, {3, 4}, {1e-9, 1e-9}, ""},
    };
    Pantalla t;
    EXPECT_EQ(t.a.AvisoConvergencia, "");
    for (const Caso& c : casos) {
        const MarcasPrueba marcas(c.locale);
        t.p.Convergio = c.convergio;
        t.p.Iteraciones = c.iteraciones;
        t.p.Desbalance = c.desbalance;
        t.a.ColoquePantalla();
        EXPECT_EQ(t.a.AvisoConvergencia, c.aviso) << c.locale;
        EXPECT_EQ(t.a.Spread1.Filas(), 4);
    }
    EXPECT_TRUE(t.d.mensajes.empty());
}
