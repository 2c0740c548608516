#include "Apoyo.h"
#include "shell/Inicio.h"
#include "shell/Tapiz.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QtEndian>
#include <gtest/gtest.h>

namespace {

// A start with FONTARIA_DATOS pointing at a fresh temporary folder.
struct Arranque : ::testing::Test {
    QTemporaryDir dir;
    QString datos;
    void SetUp() override {
        datos = dir.path() + QStringLiteral("/Nivo Datos");
        qputenv("FONTARIA_DATOS", datos.toUtf8());
    }
    void TearDown() override { qunsetenv("FONTARIA_DATOS"); }
    QString D(const QString& r) const { return datos + QLatin1Char('/') + r; }
    void Iniciar(Sesion& s) { ::Iniciar(s, RutaProgramaPruebas()); }
    long long Filas(const QString& base, const QString& tabla) {
        Conexion c;
        if (AbrirConexion(c, D(base)) != 0) return -1;
        return ComoEntero(c.Escalar(QStringLiteral("SELECT count(*) FROM ") + tabla));
    }
};

}  // namespace

TEST_F(Arranque, EnUnaCarpetaVaciaConstruyeElArbolYLasBasesDeTrabajo) {
    Sesion s;
    Iniciar(s);
    EXPECT_EQ(s.DirectorioDatos, datos);
    EXPECT_EQ(s.DirectorioTemporal, D(QStringLiteral("Temporales")));
    for (const char* c : {"BDatos", "Proyectos", "Redes", "ReportesExportados", "RespaldoZIP", "Temporales",
                          "Tapices", "Trabajo", "Fotos"})
        EXPECT_TRUE(QFileInfo(D(QString::fromLatin1(c))).isDir()) << c;
    EXPECT_EQ(Filas(QStringLiteral("Trabajo/Trabajo.mdb"), QStringLiteral("ImprePresiones")), 0);
    EXPECT_EQ(Filas(QStringLiteral("Trabajo/Proyecto.mdb"), QStringLiteral("DatosRamales")), 0);
    EXPECT_EQ(Filas(QStringLiteral("Trabajo/Resultados.mdb"), QStringLiteral("Tramos")), 0);
    EXPECT_EQ(Filas(QStringLiteral("Trabajo/Datos.mdb"), QStringLiteral("Tramos")), 0);
    // The factory catalogue: 21 fixtures and 14 fittings, each with a picture.
    EXPECT_EQ(s.ConexionFallida, 0);
    EXPECT_EQ(ComoEntero(s.ConexionCatalogo.Escalar(QStringLiteral("SELECT count(*) FROM Piezas WHERE ExisteFoto=-1 "
                                                                    "AND length(Foto) > 0"))),
              21);
    EXPECT_EQ(ComoEntero(s.ConexionCatalogo.Escalar(QStringLiteral("SELECT count(*) FROM Conexiones"))), 14);
    EXPECT_TRUE(QFileInfo::exists(D(QStringLiteral("BDatos/BDColores.mdb"))));
    EXPECT_TRUE(QFileInfo::exists(D(QStringLiteral("Tapices/TapizNivo.jpg"))));
    // Every installed sample is copied.
    for (const CopiaInicial& c : CopiasSiFaltan())
        EXPECT_EQ(QFileInfo::exists(D(c.destino)), QFileInfo::exists(s.RutaImagen(c.origen))) << c.destino.toStdString();
    // The settings file holds the defaults.
    EXPECT_EQ(s.Tapiz.RutaTapiz, D(QStringLiteral("Tapices/TapizNivo.jpg")));
    EXPECT_EQ(s.Tapiz.ColorFondoTip, 0xD6F4FF);
    EXPECT_EQ(LeerArchivo(D(QStringLiteral("Tapiz.nivo"))).size(), 11 * 128);
}

TEST_F(Arranque, ElSegundoArranqueConservaLoDelUsuarioYRenuevaElTrabajo) {
    {
        Sesion s;
        Iniciar(s);
        s.ConexionCatalogo.Ejecutar(QStringLiteral("INSERT INTO Piezas (ClavePieza, NombrePieza) VALUES (40, ?)"),
                                    {QStringLiteral("PILETA DE PATIO")});
    }
    Conexion trabajo;
    ASSERT_EQ(AbrirConexion(trabajo, D(QStringLiteral("Trabajo/Trabajo.mdb"))), 0);
    trabajo.Ejecutar(QStringLiteral("INSERT INTO ImpreComputosPiezas VALUES ('viejo', 1)"));
    trabajo.Cerrar();
    QFile::remove(D(QStringLiteral("BDatos/BDColores.mdb")));
    for (const char* resto : {"Trabajo/Trabajo.mbd", "Trabajo/Proyecto.mbd", "Trabajo/Redes.mbd"})
        EscribirArchivo(D(QString::fromLatin1(resto)), {});

    Sesion s;
    Iniciar(s);
    EXPECT_EQ(ComoEntero(s.ConexionCatalogo.Escalar(QStringLiteral("SELECT count(*) FROM Piezas"))), 22);
    EXPECT_EQ(Filas(QStringLiteral("Trabajo/Trabajo.mdb"), QStringLiteral("ImpreComputosPiezas")), 0);
    EXPECT_TRUE(QFileInfo::exists(D(QStringLiteral("BDatos/BDColores.mdb"))));  // a deleted copy comes back
    for (const char* resto : {"Trabajo/Trabajo.mbd", "Trabajo/Proyecto.mbd", "Trabajo/Redes.mbd"})
        EXPECT_FALSE(QFileInfo::exists(D(QString::fromLatin1(resto)))) << resto;
}

TEST_F(Arranque, UnTapizDeOtroTamanoSeReponePeroUnoParecidoSeConserva) {
    Sesion s;
    Iniciar(s);
    const qint64 instalado = QFileInfo(s.RutaImagen(QStringLiteral("TapizNivo.jpg"))).size();
    auto reemplazar = [&](qint64 n) {
        EscribirArchivo(D(QStringLiteral("Tapices/TapizNivo.jpg")), QByteArray(int(n), 'x'));
    };
    reemplazar(instalado + 10);  // within the range: kept
    VerificaTapizNivo(s);
    EXPECT_EQ(QFileInfo(D(QStringLiteral("Tapices/TapizNivo.jpg"))).size(), instalado + 10);
    reemplazar(instalado - 11);  // outside: deleted, and the start brings the installed one
    Sesion t;
    Iniciar(t);
    EXPECT_EQ(QFileInfo(D(QStringLiteral("Tapices/TapizNivo.jpg"))).size(), instalado);
}

TEST_F(Arranque, ConfiguracionConRecortesYColorCero) {
    {
        Sesion s;
        Iniciar(s);
    }
    ConfiguracionTapiz c = LeerTapiz(D(QStringLiteral("Tapiz.nivo")));
    c.EfectoTapiz = 28;
    c.TamanoLetraTip = 5;
    c.ColorFondoTip = 0;
    c.PosicionVertical = 2;
    ASSERT_TRUE(EscribirTapizConfiguracion(D(QStringLiteral("Tapiz.nivo")), c));
    Sesion s;
    Iniciar(s);
    EXPECT_EQ(s.Tapiz.EfectoTapiz, 0);       // 28 reads as 0
    EXPECT_EQ(s.Tapiz.TamanoLetraTip, 0);    // index 5 reads as 0
    EXPECT_EQ(s.Tapiz.ColorFondoTip, 0xEAFFFF);
    EXPECT_EQ(s.Tapiz.PosicionVertical, 2);  // the picture exists: settings kept

    // A picture that is gone brings every default back.
    c.RutaTapiz = D(QStringLiteral("Tapices/no-existe.jpg"));
    ASSERT_TRUE(EscribirTapizConfiguracion(D(QStringLiteral("Tapiz.nivo")), c));
    Sesion t;
    Iniciar(t);
    EXPECT_EQ(t.Tapiz.RutaTapiz, D(QStringLiteral("Tapices/TapizNivo.jpg")));
    EXPECT_EQ(t.Tapiz.PosicionVertical, 0);
    EXPECT_EQ(t.Tapiz.ColorFondoTip, 0xD6F4FF);
}

TEST(Tapiz, DisposicionBinariaDeLosRegistros) {
    // The screen's own write (single bytes) is checked with the settings screen.
    QTemporaryDir dir;
    const QString ruta = dir.path() + QStringLiteral("/Tapiz.nivo");
    ConfiguracionTapiz c = TapizPorDefecto(QStringLiteral("/datos"));
    c.ColorTextoTip = 0x123456;
    ASSERT_TRUE(EscribirTapizPorDefecto(ruta, c));
    const QByteArray b = LeerArchivo(ruta);
    ASSERT_EQ(b.size(), 11 * 128);
    const auto u = reinterpret_cast<const uchar*>(b.constData());
    const QByteArray ruta1 = "/datos/Tapices/TapizNivo.jpg";
    EXPECT_EQ(qFromLittleEndian<quint16>(u), ruta1.size());  // counted text
    EXPECT_EQ(b.mid(2, ruta1.size()), ruta1);
    EXPECT_EQ(qFromLittleEndian<qint32>(u + 7 * 128), 0xD6F4FF);  // record 8, 32 bits
    // The default branch writes record 9 as a 16-bit number.
    EXPECT_EQ(qFromLittleEndian<quint16>(u + 8 * 128), 0x3456);
    EXPECT_EQ(u[8 * 128 + 2], 0);
}

TEST(Tapiz, ArchivoCortoOAusenteSeLeeComoCeros) {
    QTemporaryDir dir;
    bool existe = true;
    const ConfiguracionTapiz c = LeerTapiz(dir.path() + QStringLiteral("/no.nivo"), &existe);
    EXPECT_FALSE(existe);
    EXPECT_TRUE(c.RutaTapiz.isEmpty());
    EXPECT_EQ(c.ColorFondoTip, 0);
    const QString corto = EscribirArchivo(dir.path() + QStringLiteral("/corto.nivo"), QByteArray("\x03\x00" "abc", 5));
    EXPECT_EQ(LeerTapiz(corto).RutaTapiz, QStringLiteral("abc"));
}

TEST(Tapiz, UnaTuberiaEnLugarDelArchivoSeLeeComoAusente) {
    QTemporaryDir dir;
    const TuberiaPrueba tuberia(dir.path() + QStringLiteral("/Tapiz.nivo"));
    bool existe = true;
    EXPECT_TRUE(LeerTapiz(tuberia.ruta, &existe).RutaTapiz.isEmpty());
    EXPECT_FALSE(existe);
}
