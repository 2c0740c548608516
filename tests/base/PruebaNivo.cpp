#include "base/Arreglo.h"
#include "base/Entero16.h"
#include "base/ErrorEjecucion.h"
#include "base/Grid.h"
#include "base/Nivo.h"
#include "support/Apoyo.h"

#include <QLocale>
#include <gtest/gtest.h>

TEST(RoundNivo, MitadSeAlejaDeCero) {
    EXPECT_DOUBLE_EQ(RoundNivo(0.125, 2), 0.13);
    EXPECT_DOUBLE_EQ(RoundNivo(-0.125, 2), -0.13);
    EXPECT_DOUBLE_EQ(RoundNivo(2.5, 0), 3.0);
    EXPECT_DOUBLE_EQ(RoundNivo(-2.5, 0), -3.0);
    // 2.675 and 1.005 are stored a hair below the half: typed values still round up.
    EXPECT_DOUBLE_EQ(RoundNivo(2.675, 2), 2.68);
    EXPECT_DOUBLE_EQ(RoundNivo(1.005, 2), 1.01);
    // The flow of an empty branch under the raised tank curve: 0.294068 -> 0.29.
    EXPECT_DOUBLE_EQ(RoundNivo(0.294068, 2), 0.29);
    EXPECT_DOUBLE_EQ(RoundNivo(0.12344999, 4), 0.1234);
    EXPECT_DOUBLE_EQ(RoundNivo(1e-9, 8), 0.0);
    EXPECT_DOUBLE_EQ(RoundNivo(5e-9, 8), 1e-8);
}

TEST(Texto, TrimQuitaSoloBlancosYUCaseEsUnicode) {
    EXPECT_EQ(Trim(QStringLiteral("  A B  ")), QStringLiteral("A B"));
    EXPECT_EQ(Trim(QStringLiteral("\tA\n")), QStringLiteral("\tA\n"));
    EXPECT_EQ(LTrim(QStringLiteral("  A ")), QStringLiteral("A "));
    EXPECT_EQ(RTrim(QStringLiteral("  A ")), QStringLiteral("  A"));
    EXPECT_EQ(UCase(QStringLiteral("válvula reducción ñandú")), QStringLiteral("VÁLVULA REDUCCIÓN ÑANDÚ"));
}

TEST(Formato, MascarasConSeparadoresDeLaSesion) {
    const Separadores punto;  // '.' decimal, ',' thousands
    const Separadores coma = SeparadoresDelSistema(QLocale(QStringLiteral("es_AR")));
    // Plain pictures ("0", "0.00") take a short road of their own: both roads
    // are in the table; the other locales' marks are the table below.
    const struct {
        double valor;
        const char* mascara;
        const Separadores& sep;
        const char* texto;
    } casos[] = {
        {1234.56, "#,##0.00", punto, "1,234.56"},  {1234567.891, "#,##0.00", punto, "1,234,567.89"},
        {0.0, "#,##0.00", punto, "0.00"},          {999.999, "#,##0.00", punto, "1,000.00"},
        {-0.004, "0.00", punto, "0.00"},           {-0.005, "0.00", punto, "-0.01"},
        {-12.345, "0.00", punto, "-12.35"},        {2.675, "0.00", punto, "2.68"},
        {2.5, "0.00  ", punto, "2.50  "},          {42.0, "0", punto, "42"},
        {1234.5, "0", punto, "1235"},              {1.5, "0.00%", coma, "1,50%"},
        {1234.5678, "0.0000", coma, "1234,5678"},
    };
    for (const auto& c : casos)
        EXPECT_EQ(Formato(c.valor, QString::fromLatin1(c.mascara), c.sep), QString::fromLatin1(c.texto))
            << c.valor << " " << c.mascara;
    // A grid's number goes through the plain pictures.
    Grid g(1);
    g.PonerFilas(1);
    g.PonerNumero(1, 1, 0.12345, 4);
    EXPECT_EQ(g.Texto(1, 1), QStringLiteral("0.1235"));
    g.PonerNumero(1, 1, 7.5, 0);
    EXPECT_EQ(g.Texto(1, 1), QStringLiteral("8"));
}

TEST(Formato, LasMarcasSonLasDelLocale) {
    // Spain writes 1234.56 as "1234,56": its thousands mark shows only from
    // five digits on, yet it is '.'.  Mexico writes "1,234.56"; Venezuela,
    // Argentina and Colombia "1.234,56"; C "1234.56" with ',' for groups.
    const struct {
        const char* locale;
        char decimal, miles;
        const char* miles2, *fraccion3, *flujo;  // 1234.56 "#,##0.00", 0.0617 "0.0000", 23 "0.00"
    } casos[] = {
        {"es_ES", ',', '.', "1.234,56", "0,0617", "23,00"}, {"es_MX", '.', ',', "1,234.56", "0.0617", "23.00"},
        {"es_VE", ',', '.', "1.234,56", "0,0617", "23,00"}, {"es_AR", ',', '.', "1.234,56", "0,0617", "23,00"},
        {"es_CO", ',', '.', "1.234,56", "0,0617", "23,00"}, {"C", '.', ',', "1,234.56", "0.0617", "23.00"},
    };
    for (const auto& c : casos) {
        const Separadores sep = SeparadoresDelSistema(QLocale(QString::fromLatin1(c.locale)));
        EXPECT_EQ(sep.decimal, QLatin1Char(c.decimal)) << c.locale;
        EXPECT_EQ(sep.miles, QLatin1Char(c.miles)) << c.locale;
        EXPECT_EQ(Formato(1234.56, QStringLiteral("#,##0.00"), sep), QString::fromLatin1(c.miles2)) << c.locale;
        EXPECT_EQ(Formato(0.0617, QStringLiteral("0.0000"), sep), QString::fromLatin1(c.fraccion3)) << c.locale;
        EXPECT_EQ(Formato(23.0, QStringLiteral("0.00"), sep), QString::fromLatin1(c.flujo)) << c.locale;
        // What is shown, grouped or not, reads back to the shown value.
        for (double v : {0.0617, -7.25, 1234.56, 1234567.5})
            for (const char* mascara : {"0.0000", "#,##0.00"}) {
                const QString texto = Formato(v, QString::fromLatin1(mascara), sep);
                const NumeroLeido r = LeerNumeroTecleado(texto, sep);
                EXPECT_TRUE(r.valido) << texto.toStdString() << " en " << c.locale;
                EXPECT_DOUBLE_EQ(r.valor, RoundNivo(v, mascara[0] == '0' ? 4 : 2)) << texto.toStdString();
            }
    }
}

namespace {
enum class Lectura { Valor, Ambigua, NoNumero };
const char* const SeisLocales = "es_ES es_MX es_VE es_AR es_CO C";
const char* const ComaDecimal = "es_ES es_VE es_AR es_CO";
const char* const PuntoDecimal = "es_MX C";
}  // namespace

TEST(LeerNumeroTecleado, TablaDeCasosEnSeisLocales) {
    // Read by hand: a mark followed by other than three digits is the
    // decimal; a lone mark of the locale's decimal kind is the decimal;
    // groups are 1-3 digits not led by 0, then threes, one mark for all.
    const struct {
        const char* locales;
        const char* texto;
        Lectura lectura;
        double valor;
    } casos[] = {
        {SeisLocales, "1,5", Lectura::Valor, 1.5},
        {SeisLocales, "1.5", Lectura::Valor, 1.5},
        {SeisLocales, "0,125", Lectura::Valor, 0.125},
        {SeisLocales, "0.125", Lectura::Valor, 0.125},
        {SeisLocales, "4,5", Lectura::Valor, 4.5},
        {SeisLocales, "12,34", Lectura::Valor, 12.34},
        {SeisLocales, "1234,567", Lectura::Valor, 1234.567},  // four digits lead no group
        {SeisLocales, ",5", Lectura::Valor, 0.5},
        {SeisLocales, "7.", Lectura::Valor, 7.0},
        {SeisLocales, "1.234.567,5", Lectura::Valor, 1234567.5},
        {SeisLocales, "1,234.5", Lectura::Valor, 1234.5},
        {SeisLocales, "1,234,567", Lectura::Valor, 1234567.0},
        {SeisLocales, "1.234.567", Lectura::Valor, 1234567.0},
        {SeisLocales, " -2,5 ", Lectura::Valor, -2.5},
        {SeisLocales, "+3", Lectura::Valor, 3.0},
        {SeisLocales, "-0", Lectura::Valor, 0.0},
        {SeisLocales, "1e3", Lectura::Valor, 1000.0},
        {SeisLocales, "2,5E-2", Lectura::Valor, 0.025},
        {PuntoDecimal, "1.234", Lectura::Valor, 1.234},
        {PuntoDecimal, "1,234", Lectura::Ambigua, 0},
        {PuntoDecimal, "-12,500", Lectura::Ambigua, 0},
        {ComaDecimal, "1,234", Lectura::Valor, 1.234},
        {ComaDecimal, "1.234", Lectura::Ambigua, 0},
        {ComaDecimal, "999.000", Lectura::Ambigua, 0},
        {SeisLocales, "", Lectura::NoNumero, 0},
        {SeisLocales, "   ", Lectura::NoNumero, 0},
        {SeisLocales, "-", Lectura::NoNumero, 0},
        {SeisLocales, "abc", Lectura::NoNumero, 0},
        {SeisLocales, "12 m", Lectura::NoNumero, 0},
        {SeisLocales, "1 234", Lectura::NoNumero, 0},
        {SeisLocales, "1,,5", Lectura::NoNumero, 0},
        {SeisLocales, "1,2,3", Lectura::NoNumero, 0},
        {SeisLocales, "12,34.5", Lectura::NoNumero, 0},   // a group of two
        {SeisLocales, "0.234,5", Lectura::NoNumero, 0},   // 0 leads no group
        {SeisLocales, "1.234.5", Lectura::NoNumero, 0},
        {SeisLocales, "1,234.5,6", Lectura::NoNumero, 0},
        {SeisLocales, "1e", Lectura::NoNumero, 0},
        {SeisLocales, "1e400", Lectura::NoNumero, 0},
        {SeisLocales, "inf", Lectura::NoNumero, 0},
        {SeisLocales, "--1", Lectura::NoNumero, 0},
    };
    int vistos = 0;
    for (const auto& c : casos) {
        for (const QString& nombre : QString::fromLatin1(c.locales).split(QLatin1Char(' '))) {
            const NumeroLeido r = LeerNumeroTecleado(QString::fromUtf8(c.texto), SeparadoresDelSistema(QLocale(nombre)));
            const std::string donde = std::string("\"") + c.texto + "\" en " + nombre.toStdString();
            ++vistos;
            EXPECT_EQ(r.valido, c.lectura == Lectura::Valor) << donde;
            EXPECT_EQ(r.motivo.isEmpty(), r.valido) << donde;
            if (c.lectura == Lectura::Valor) EXPECT_DOUBLE_EQ(r.valor, c.valor) << donde;
            EXPECT_EQ(r.ambiguo, c.lectura == Lectura::Ambigua) << donde;
        }
    }
    EXPECT_GT(vistos, 200);
}

TEST(LeerNumeroTecleado, ElMensajeNombraElTextoYDiceComoEscribirlo) {
    const Separadores punto = SeparadoresDelSistema(QLocale::c());
    const Separadores coma = SeparadoresDelSistema(QLocale(QStringLiteral("es_ES")));
    EXPECT_EQ(LeerNumeroTecleado(QStringLiteral("1,234"), punto).motivo,
              QStringLiteral("El número \"1,234\" puede leerse como 1234 o como 1.234: escríbalo sin separador de "
                             "miles (1234) o con \".\" como separador decimal (1.234)."));
    EXPECT_EQ(LeerNumeroTecleado(QStringLiteral(" 1.234 "), coma).motivo,
              QStringLiteral("El número \"1.234\" puede leerse como 1234 o como 1,234: escríbalo sin separador de "
                             "miles (1234) o con \",\" como separador decimal (1,234)."));
    EXPECT_EQ(LeerNumeroTecleado(QStringLiteral("dos"), coma).motivo,
              QStringLiteral("\"dos\" no es un número: escríbalo con \",\" como separador decimal, por ejemplo 1234,5."));
    EXPECT_EQ(LeerNumeroTecleado(QString(), punto).motivo,
              QStringLiteral("Falta el número: escríbalo con \".\" como separador decimal, por ejemplo 1234.5."));
}

TEST(LeerNumero, LaSesionLeeTecleadoYLosArchivosLaFormaC) {
    const MarcasPrueba espana("es_ES");
    double v = 0;
    EXPECT_TRUE(LeerNumero(QStringLiteral("1,5"), v));
    EXPECT_DOUBLE_EQ(v, 1.5);
    EXPECT_FALSE(LeerNumero(QStringLiteral("1.234"), v));
    // A stored "1.234" is the decimal, whatever the locale.
    EXPECT_TRUE(LeerNumeroGuardado(QStringLiteral("1.234"), v));
    EXPECT_DOUBLE_EQ(v, 1.234);
    EXPECT_TRUE(LeerNumeroGuardado(QStringLiteral(" -2.5e3 "), v));
    EXPECT_DOUBLE_EQ(v, -2500.0);
    EXPECT_FALSE(LeerNumeroGuardado(QStringLiteral("1,5"), v));
    EXPECT_FALSE(LeerNumeroGuardado(QStringLiteral(""), v));
    EXPECT_DOUBLE_EQ(Val(QStringLiteral("12.5 m")), 12.5);
    EXPECT_DOUBLE_EQ(Val(QStringLiteral("m 12")), 0.0);
}

TEST(Fechas, TextoDdMmAaaaIdaYVuelta) {
    const QDate d(2024, 3, 7);
    EXPECT_EQ(FechaTexto(d), QStringLiteral("07/03/2024"));
    EXPECT_EQ(LeerFecha(QStringLiteral("07/03/2024")), d);
    EXPECT_EQ(LeerFecha(QStringLiteral("2024-03-07")), d);
    EXPECT_FALSE(LeerFecha(QStringLiteral("31/02/2024")).isValid());
}

TEST(Entero16, DesbordaEnElBordeDe32767) {
    Entero16 n = 32766;
    EXPECT_EQ(int(n + 1), 32767);
    n = 32767;
    EXPECT_EQ(NumeroDeError([&] { Entero16 m = n + 1; (void)m; }), Error::Desbordamiento);
    EXPECT_EQ(NumeroDeError([&] { ++n; }), Error::Desbordamiento);
    EXPECT_EQ(int(n), 32767);  // a failed step leaves the counter as it was
    EXPECT_EQ(NumeroDeError([] { Entero16 m = -32769; (void)m; }), Error::Desbordamiento);
    EXPECT_EQ(NumeroDeError([] { Entero16 m = 200; m = m * 200; }), Error::Desbordamiento);
}

TEST(Arreglo, RanuraCeroYSubindiceFuera) {
    Arreglo<double> a(3);
    EXPECT_EQ(a.Ubound(), 3);
    EXPECT_DOUBLE_EQ(a[0], 0.0);
    a[3] = 2.5;
    EXPECT_EQ(NumeroDeError([&] { a[4] = 1; }), Error::SubindiceFuera);
    EXPECT_EQ(NumeroDeError([&] { a[-1] = 1; }), Error::SubindiceFuera);
    a.RedimPreserve(5);
    EXPECT_DOUBLE_EQ(a[3], 2.5);
    a.Redim(5);
    EXPECT_DOUBLE_EQ(a[3], 0.0);
    EXPECT_DOUBLE_EQ(a.Leer(99), 0.0);
    a.Erase();
    EXPECT_EQ(a.Ubound(), -1);

    Arreglo2<bool> b;
    b.Redim(2, 30);
    b(2, 30) = true;
    EXPECT_TRUE(b(2, 30));
    EXPECT_EQ(NumeroDeError([&] { b(2, 31) = true; }), Error::SubindiceFuera);
    b.RedimPreserve(4, 30);
    EXPECT_TRUE(b(2, 30));
    EXPECT_FALSE(b(4, 30));
}

TEST(ErrorEjecucion, DivisionYPotenciaComoElTiempoDeEjecucion) {
    EXPECT_EQ(NumeroDeError([] { Dividir(1.0, 0.0); }), Error::DivisionPorCero);
    EXPECT_EQ(NumeroDeError([] { Dividir(0.0, 0.0); }), Error::Desbordamiento);
    EXPECT_EQ(NumeroDeError([] { Potencia(-8.0, 0.5); }), Error::LlamadaNoValida);
    EXPECT_EQ(NumeroDeError([] { Potencia(0.0, -1.0); }), Error::DivisionPorCero);
    EXPECT_EQ(NumeroDeError([] { Potencia(1e300, 10.0); }), Error::Desbordamiento);
    EXPECT_DOUBLE_EQ(Potencia(-2.0, 3.0), -8.0);
    EXPECT_EQ(ErrorEjecucion(9).descripcion(), QStringLiteral("Subíndice fuera del intervalo"));
    EXPECT_EQ(ErrorEjecucion(6).descripcion(), QStringLiteral("Desbordamiento"));
}

TEST(Grid, CeldasUnionesYOrden) {
    Grid g(3);
    g.PonerFilas(3);
    g.PonerTexto(1, 1, QStringLiteral("b"));
    g.PonerTexto(2, 1, QStringLiteral("a"));
    g.PonerTexto(3, 1, QStringLiteral("C"));
    g.PonerNumero(1, 2, 3.14159, 2);
    EXPECT_EQ(g.Texto(1, 2), QStringLiteral("3.14"));
    EXPECT_DOUBLE_EQ(g.Valor(1, 2), 3.14159);
    g.Unir(1, 3, 2, 1);
    g.InsertarFila(1);  // spans below move with their rows
    ASSERT_NE(g.UnionEn(2, 3), nullptr);
    EXPECT_EQ(g.UnionEn(2, 3)->filas, 2);
    g.EliminarFila(1);
    // Sorted as text by character codes: capitals first.
    g.OrdenarPorTexto(1);
    EXPECT_EQ(g.Texto(1, 1), QStringLiteral("C"));
    EXPECT_EQ(g.Texto(2, 1), QStringLiteral("a"));
    EXPECT_EQ(g.Texto(3, 1), QStringLiteral("b"));
    EXPECT_EQ(g.Texto(3, 2), QStringLiteral("3.14"));  // the row moves whole
    g.PonerFilas(1);
    EXPECT_EQ(g.Filas(), 1);
    EXPECT_THROW(g.Texto(2, 1), ErrorEjecucion);
}

TEST(Grid, LasImagenesSiguenASusFilas) {
    Grid g(2);
    g.PonerFilas(3);
    QImage roja(4, 4, QImage::Format_RGB32), azul(4, 4, QImage::Format_RGB32);
    roja.fill(Qt::red);
    azul.fill(Qt::blue);
    g.PonerImagen(1, 2, roja);
    g.PonerImagen(3, 2, azul);
    g.InsertarFila(1);  // the pictures move down with their rows
    EXPECT_FALSE(g.TieneImagen(1, 2));
    EXPECT_EQ(g.Imagen(2, 2).pixelColor(0, 0), QColor(Qt::red));
    EXPECT_EQ(g.Imagen(4, 2).pixelColor(0, 0), QColor(Qt::blue));
    g.EliminarFila(2);
    EXPECT_EQ(g.Imagen(3, 2).pixelColor(0, 0), QColor(Qt::blue));
    g.PonerFilas(2);  // the row that goes takes its picture along
    g.PonerFilas(3);
    EXPECT_FALSE(g.TieneImagen(3, 2));
    EXPECT_THROW(g.Imagen(4, 1), ErrorEjecucion);
    g.Vaciar();
    g.PonerFilas(1);
    EXPECT_FALSE(g.TieneImagen(1, 2));
}
