#include "analysis/ApoyoAnalisis.h"
#include "model/ArchivoEdificio.h"
#include "tank/Hidroneumatico.h"
#include "tank/Peerlees.h"
#include "tank/ResultadosHidro.h"

#include <cmath>

// Cases worked by hand from the sizing formulas.

TEST(Tanque, MetodoUnoConLosValoresPorDefecto) {
    DatosTanque t;
    t.Caudal = 10.0;
    t.PresionMinima = 20.0;
    t.PresionMaxima = 34.0;
    const ResultadoTanque r = CalcularTanque(t);
    EXPECT_DOUBLE_EQ(r.QB, 5.0);  // 50 % of 10 l/s
    EXPECT_DOUBLE_EQ(r.VolumenUtil, 750.0);  // 5 x 0.25 x 3600 / 6
    // R = 30/44, K = 0.1: 750 / ((14/44) x 0.9) = 2619.047...
    EXPECT_NEAR(r.VolumenTotal, 2619.047619, 1e-6);
    EXPECT_NEAR(r.VolumenMinimo, 261.9047619, 1e-6);
    EXPECT_NEAR(r.VolumenMaximo, 1011.9047619, 1e-6);
    EXPECT_NEAR(r.PotenciaBomba, 37.0 * 5.0 / 45.0, 1e-12);
    EXPECT_NEAR(r.PotenciaMotor, 37.0 * 5.0 / 45.0 * 1.44, 1e-12);
    EXPECT_EQ(r.Titulo, QStringLiteral("Cálculo por el Método ( 1 )"));
}

TEST(Tanque, MetodosDosYTresYTanqueHorizontal) {
    DatosTanque t;
    t.NumeroMetodo = 2;
    t.Dotacion = 86400.0;
    t.PresionMaxima = 14.0;
    EXPECT_DOUBLE_EQ(CalcularTanque(t).QB, 10.0);
    t.NumeroMetodo = 3;
    t.NumeroPiezas = 60;
    t.FactorPeerlees = 1.55;
    t.OpcionK = 2;
    const ResultadoTanque r = CalcularTanque(t);
    EXPECT_NEAR(r.QB, 1.55, 1e-12);  // 60 x 1.55 / 60
    // R = 10/24, K = 0.054.
    EXPECT_NEAR(r.VolumenTotal, r.VolumenUtil / ((1.0 - 10.0 / 24.0) * (1.0 - 0.054)), 1e-9);
    EXPECT_EQ(r.Titulo, QStringLiteral("Cálculo por el Método ( 3 )"));
}

TEST(Tanque, CasosLimite) {
    DatosTanque t;
    t.Caudal = 10.0;
    t.PresionMinima = t.PresionMaxima = 25.0;  // R of 1
    ResultadosHidro r(t);
    EXPECT_EQ(r.Resultado.VolumenTotal, 0.0);
    EXPECT_EQ(r.Resultado.VolumenMaximo, r.Resultado.VolumenUtil);
    EXPECT_EQ(r.PorcentajeUtil, QStringLiteral("0.00%"));
    EXPECT_EQ(r.PorcentajeMaximo, QStringLiteral("0.00%"));
    EXPECT_EQ(r.PorcentajeMinimo, QStringLiteral("10%"));
    EXPECT_EQ(ResultadosHidro::Etiquetas()[1], QStringLiteral("Voumen Total del Tanque (lts):"));

    t.Arranques = 0.0;  // no starts: no volumes
    EXPECT_EQ(CalcularTanque(t).VolumenUtil, 0.0);

    t.Arranques = 6.0;
    t.PresionMinima = -20.0;
    t.PresionMaxima = -10.0;
    EXPECT_EQ(NumeroDeError([&] { CalcularTanque(t); }), Error::DivisionPorCero);
}

TEST(Tanque, CalcularRechazaUnaPresionMaximaQueNoSuperaLaMinima) {
    // Not above the minimum, R = (Pmin + 10) / (Pmax + 10) is 1 or more: no
    // tank, or a negative one.
    const struct {
        double minima, maxima;
        bool calcula;
    } casos[] = {{20.0, 20.0, false}, {0.0, 0.0, false},      {20.0, 19.99, false},
                 {20.0, 5.0, false},  {20.0, 20.01, true},    {-20.0, -15.0, true}};
    SesionPrueba sp;
    ProyectoEdificio p;
    for (const auto& c : casos) {
        DialogosFalsos d;
        Hidroneumatico pantalla(p, sp.s, d);
        pantalla.Datos.PresionMinima = c.minima;
        pantalla.Datos.PresionMaxima = c.maxima;
        EXPECT_EQ(pantalla.Calcular(), c.calcula) << c.minima << " " << c.maxima;
        ASSERT_EQ(d.mensajes.size(), c.calcula ? 0u : 1u);
        if (!c.calcula)
            MensajeEs(d.Ultimo(), QStringLiteral("La presión máxima debe ser mayor que la mínima."),
                      QStringLiteral("Error en Datos del Sistema..."));
    }
}

TEST(Tanque, TablaDePeerlessYCaptura) {
    // The screen's test captures 2.50 of commercial buildings, 151 to 300.
    const Grid g = TablaPeerlees();
    EXPECT_EQ(g.Encabezado(1, 7), QStringLiteral("Más de 1000 Piezas"));
    EXPECT_EQ(g.Texto(3, 0), QStringLiteral("Hospitales"));
    EXPECT_EQ(CapturarFactorPeerlees(g, 1, 1), QStringLiteral("2.08"));
    EXPECT_EQ(NumeroDeError([&] { CapturarFactorPeerlees(g, 0, 2); }), Error::TiposNoCoinciden);
}

TEST(Tanque, SinProyectoOConOtraOpcionLasCajasQuedan) {
    SesionPrueba sp;
    DialogosFalsos d;
    ProyectoEdificio p;
    Hidroneumatico sin(p, sp.s, d);
    sin.Datos.Caudal = 4.0;
    sin.Cargar();
    EXPECT_EQ(sin.Datos.Caudal, 4.0);

    const QString ruta = sp.CopiaDeEjemplo(QStringLiteral("Vivienda con Tanque Elevado.nivo"), QStringLiteral("t.plm"));
    QString error;
    ASSERT_TRUE(CargarProyectoEdificio(p, sp.s, ruta, error));
    Hidroneumatico otra(p, sp.s, d);
    otra.Cargar();
    EXPECT_EQ(otra.Datos.Caudal, 0.0);
    EXPECT_EQ(otra.Datos.PresionMinima, 0.0);
}

TEST(Tanque, AbrirOtroProyecto) {
    SesionPrueba sp;
    DialogosFalsos d;
    ProyectoEdificio p;
    Hidroneumatico pantalla(p, sp.s, d);
    EXPECT_FALSE(pantalla.Abrir());
    d.archivos = {sp.CopiaDeEjemplo(QStringLiteral("Edificio_MontantePH.nivo"), QStringLiteral("ph.plm"))};
    pantalla.Datos.NumeroMetodo = 3;
    EXPECT_TRUE(pantalla.Abrir());
    EXPECT_EQ(pantalla.Caption, QStringLiteral("RESULTADO DEL ANÁLISIS     PROYECTO: [ PH.PLM ]"));
    EXPECT_EQ(pantalla.Datos.NumeroMetodo, 1);
    EXPECT_GT(pantalla.Datos.Caudal, 0.0);
    EXPECT_EQ(pantalla.Datos.NumeroPiezas, 16);  // one sub-branch row per apartment
    EXPECT_EQ(d.ocupado, 0);
}

TEST(Tanque, UnaFallaAlAbrirDejaElProyectoNuevoConLosValoresPorDefecto) {
    SesionPrueba sp;
    DialogosFalsos d;
    ProyectoEdificio p;
    Hidroneumatico pantalla(p, sp.s, d);
    // The sample computes its losses by Hazen-Williams: a C of 0 divides by zero.
    const QString ruta = sp.CopiaDeEjemplo(QStringLiteral("Edificio_MontantePH.nivo"), QStringLiteral("ph.plm"));
    ASSERT_TRUE(EjecutarSql(ruta, QStringLiteral("UPDATE DatosGenerales SET CoeficienteC=0")));
    d.archivos = {ruta};
    EXPECT_EQ(NumeroDeError([&] { pantalla.Abrir(); }), Error::DivisionPorCero);
    EXPECT_EQ(sp.s.NombreProyecto, QStringLiteral("ph.plm"));
    EXPECT_EQ(pantalla.Datos.Porcentaje, 50.0);
    EXPECT_EQ(pantalla.Datos.Arranques, 6.0);
    EXPECT_EQ(d.ocupado, 0);
}
