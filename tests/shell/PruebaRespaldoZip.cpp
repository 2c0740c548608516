// Dated zip backups: a round trip, newer files kept on restore, the open
// project never replaced, and a backup whose names would leave the data
// folder refused whole.

#include "Apoyo.h"

#include "shell/RespaldoArchivos.h"
#include "shell/RespaldoZip.h"

#include <QDir>
#include <QFileInfo>
#include <gtest/gtest.h>
#include <zip.h>

namespace {

void Fechar(const QString& ruta, const QDateTime& t) {
    QFile f(ruta);
    ASSERT_TRUE(f.open(QIODevice::ReadWrite));
    ASSERT_TRUE(f.setFileTime(t, QFileDevice::FileModificationTime));
}

}  // namespace

TEST(RespaldoZip, IdaYVueltaConservaLoMasRecienteYElProyectoAbierto) {
    SesionPrueba p;
    DialogosFalsos d;
    for (const char* c : {"Proyectos/sub", "Redes", "BDatos"}) QDir().mkpath(p.Datos(QString::fromLatin1(c)));
    const QString casa = EscribirArchivo(p.Datos(QStringLiteral("Proyectos/sub/casa ñ.plm")), "casa v1");
    const QString edificio = EscribirArchivo(p.Datos(QStringLiteral("Proyectos/edificio.plm")), "edificio v1");
    const QString red = EscribirArchivo(p.Datos(QStringLiteral("Redes/red.acu")), "red v1");
    const QString abierto = EscribirArchivo(p.Datos(QStringLiteral("Proyectos/abierto.plm")), "abierto v1");
    const QDateTime ayer = QDateTime::currentDateTime().addDays(-1);
    for (const QString& f : {casa, edificio, red, abierto}) Fechar(f, ayer);

    double ultimo = 0;
    ASSERT_TRUE(CrearRespaldoZip(p.s, d, [&](double f) { ultimo = f; }));
    EXPECT_DOUBLE_EQ(ultimo, 1.0);
    const QStringList zips = QDir(p.Datos(QStringLiteral("RespaldoZIP"))).entryList({QStringLiteral("Respaldo_*.zip")});
    ASSERT_EQ(zips.size(), 1);
    EXPECT_TRUE(d.Ultimo().texto.startsWith(QStringLiteral("¡Se Respaldaron ( 4 ) Archivos en:")));

    // After the backup: one file edited today, one deleted, one rewritten
    // with yesterday's date, and one held open.
    EscribirArchivo(edificio, "edificio v2");
    QFile::remove(red);
    EscribirArchivo(casa, "casa estropeada");
    Fechar(casa, ayer);
    EscribirArchivo(abierto, "abierto v2");
    Fechar(abierto, ayer);
    p.s.ArchivoProyecto = abierto;

    d.archivos.push_back(p.Datos(QStringLiteral("RespaldoZIP/")) + zips.front());
    d.respuestas.push_back(Respuesta::Si);
    ASSERT_TRUE(RestaurarRespaldo(p.s, d, {}));
    EXPECT_EQ(LeerArchivo(red), QByteArray("red v1"));        // deleted: back
    EXPECT_EQ(LeerArchivo(casa), QByteArray("casa v1"));      // not newer: replaced
    EXPECT_EQ(LeerArchivo(edificio), QByteArray("edificio v2"));  // newer: kept
    EXPECT_EQ(LeerArchivo(abierto), QByteArray("abierto v2"));    // open: kept
    EXPECT_TRUE(d.Ultimo().texto.startsWith(QStringLiteral("¡Se Restauraron ( 2 ) Archivos!")));
    EXPECT_TRUE(d.Ultimo().texto.contains(QStringLiteral("Proyectos/edificio.plm")));
    EXPECT_TRUE(d.Ultimo().texto.contains(QStringLiteral("Proyectos/abierto.plm")));
}

TEST(RespaldoZip, UnNombreQueSaleDeLaCarpetaRechazaTodoElRespaldo) {
    SesionPrueba p;
    const QString ruta = p.Datos(QStringLiteral("malo.zip"));
    int codigo = 0;
    zip_t* z = zip_open(QFile::encodeName(ruta).constData(), ZIP_CREATE, &codigo);
    ASSERT_NE(z, nullptr);
    for (const char* nombre : {"Proyectos/bueno.plm", "../fuera.txt"}) {
        static const char datos[] = "x";
        zip_file_add(z, nombre, zip_source_buffer(z, datos, 1, 0), 0);
    }
    ASSERT_EQ(zip_close(z), 0);

    ResultadoRestauracion r;
    QString error;
    EXPECT_FALSE(RestaurarRespaldoZip(p.s, ruta, {}, {}, r, error));
    EXPECT_TRUE(error.contains(QStringLiteral("../fuera.txt")));
    EXPECT_FALSE(QFileInfo::exists(p.Datos(QStringLiteral("Proyectos/bueno.plm"))));
    EXPECT_FALSE(QFileInfo::exists(p.Datos(QStringLiteral("../fuera.txt"))));

    // Not a zip at all.
    EscribirArchivo(ruta, "no soy un zip");
    EXPECT_FALSE(RestaurarRespaldoZip(p.s, ruta, {}, {}, r, error));
    EXPECT_TRUE(error.startsWith(QStringLiteral("El archivo no es un respaldo")));
}
