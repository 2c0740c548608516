// Repair and compaction: smaller files with every row, damaged files left
// as they were, the same-second name never losing a file, and the
// connections closed and reopened around the work.

#include "Apoyo.h"

#include "shell/Compactar1.h"
#include "shell/RespaldoArchivos.h"
#include "store/Conexion.h"

#include <QDir>
#include <QFileInfo>
#include <gtest/gtest.h>

namespace {

// A project with 400 rows of 1 KiB, half of them deleted: free pages.
QString ProyectoConHuecos(SesionPrueba& p, const QString& nombre) {
    const QString ruta = p.ProyectoEnBlanco(nombre);
    EXPECT_TRUE(EjecutarSql(ruta, QStringLiteral("CREATE TABLE Relleno (n INTEGER, b BLOB)")));
    EXPECT_TRUE(EjecutarSql(ruta, QStringLiteral("WITH RECURSIVE c(n) AS (SELECT 1 UNION ALL SELECT n+1 FROM c "
                                                 "WHERE n < 400) INSERT INTO Relleno SELECT n, zeroblob(1024) FROM c")));
    EXPECT_TRUE(EjecutarSql(ruta, QStringLiteral("DELETE FROM Relleno WHERE n % 2 = 0")));
    return ruta;
}

qint64 Filas(const QString& ruta) {
    Conexion c;
    EXPECT_TRUE(c.Abrir(ruta));
    return c.Escalar(QStringLiteral("SELECT count(*) FROM Relleno")).toLongLong();
}

}  // namespace

TEST(Compactar1, DosArchivosQuedanMenoresConTodasSusFilasAunqueCoincidanEnElSegundo) {
    SesionPrueba p;
    DialogosFalsos d;
    const QString a = ProyectoConHuecos(p, QStringLiteral("a.plm"));
    const QString b = ProyectoConHuecos(p, QStringLiteral("b.plm"));
    const qint64 antes = QFileInfo(a).size();
    // A file left in Temporales from a run in this very second.
    EscribirArchivo(p.s.DirectorioTemporal + QStringLiteral("/otro.txt"), "x");

    Compactar1 c(p.s, d);
    QStringList etiquetas;
    c.Avance = [&](int, int, const QString& e) { etiquetas << e; };
    EXPECT_EQ(c.Aceptar({a, b}), 2);

    EXPECT_LT(QFileInfo(a).size(), antes);
    EXPECT_EQ(Filas(a), 200);  // 400 rows, the even ones deleted
    EXPECT_EQ(Filas(b), 200);
    EXPECT_TRUE(etiquetas.contains(QStringLiteral("Archivo: A.PLM")));
    EXPECT_TRUE(QDir(p.s.DirectorioTemporal).isEmpty());  // emptied first, the copies removed
    MensajeEs(d.Ultimo(), QStringLiteral("¡Se Repararon Y Compactaron ( 2 ) Archivos con Exito!"),
              QStringLiteral("Mantenimientos de Archivos..."));
}

TEST(Compactar1, ElNombreDelMismoSegundoNoPisaElArchivoAnterior) {
    SesionPrueba p;
    const QString t = p.s.DirectorioTemporal;
    EXPECT_EQ(NombreCompactado(t, 7, 5), t + QStringLiteral("/DBT_0705.mdb"));
    EscribirArchivo(t + QStringLiteral("/DBT_0705.mdb"), "antes");
    const QString segundo = NombreCompactado(t, 7, 5);
    EXPECT_NE(segundo, t + QStringLiteral("/DBT_0705.mdb"));
    QString error;
    EXPECT_FALSE(CompactarBase(p.ProyectoEnBlanco(), t + QStringLiteral("/DBT_0705.mdb"), error));
    EXPECT_EQ(LeerArchivo(t + QStringLiteral("/DBT_0705.mdb")), QByteArray("antes"));
}

TEST(Compactar1, UnArchivoDanadoSeNombraYQuedaComoEstaba) {
    SesionPrueba p;
    DialogosFalsos d;
    const QString danado = ProyectoConHuecos(p, QStringLiteral("danado.plm"));
    QByteArray bytes = LeerArchivo(danado);
    // Garbage over a page in the middle of the table's pages.
    bytes.replace(bytes.size() / 2, 4096, QByteArray(4096, '\x5a'));
    EscribirArchivo(danado, bytes);
    const QString sano = ProyectoConHuecos(p, QStringLiteral("sano.plm"));
    const QByteArray sanoAntes = LeerArchivo(sano);

    EXPECT_EQ(Compactar1(p.s, d).Aceptar({danado, sano}), 0);
    EXPECT_EQ(LeerArchivo(danado), bytes);
    EXPECT_EQ(LeerArchivo(sano), sanoAntes);  // the loop stops at the fault
    EXPECT_TRUE(d.Ultimo().texto.contains(danado)) << d.Ultimo().texto.toStdString();
    EXPECT_EQ(d.Ultimo().encabezado, QStringLiteral("Reparar Archivos..."));
}

TEST(Compactar1, ElCatalogoYElProyectoSeCierranYSeReabren) {
    SesionPrueba p;
    DialogosFalsos d;
    QDir().mkpath(p.Datos(QStringLiteral("BDatos")));
    const QString catalogo = p.CopiaDeEjemplo(QStringLiteral("BDPiezasConexiones.nivo"),
                                              QStringLiteral("BDatos/BD_Piezas_Conexiones.mdb"));
    ASSERT_TRUE(p.s.ConexionCatalogo.Abrir(catalogo));
    p.s.ArchivoProyecto = ProyectoConHuecos(p, QStringLiteral("abierto.plm"));
    ASSERT_EQ(AbrirConexionProyecto(p.s), 0);

    // Nothing chosen: a message, and both stay open as they were.
    EXPECT_EQ(Compactar1(p.s, d).Aceptar({}), 0);
    MensajeEs(d.Ultimo(), QStringLiteral("No ha Seleccionado ningún Archivo..."), QStringLiteral("Reparar Archivos..."),
              QStringLiteral("Reparar y Compactar Archivos"));
    EXPECT_TRUE(p.s.ConexionCatalogo.Abierta());

    EXPECT_EQ(Compactar1(p.s, d).Aceptar({catalogo, p.s.ArchivoProyecto}), 2);
    ASSERT_TRUE(p.s.ConexionCatalogo.Abierta());
    ASSERT_TRUE(p.s.ConexionProyecto.Abierta());
    EXPECT_GT(p.s.ConexionCatalogo.Escalar(QStringLiteral("SELECT count(*) FROM Piezas")).toInt(), 0);
    EXPECT_EQ(p.s.ConexionProyecto.Escalar(QStringLiteral("SELECT count(*) FROM Relleno")).toInt(), 200);
}

TEST(RespaldoArchivos, CadaOpcionAbreSuCarpetaSegunElModo) {
    SesionPrueba p;
    DialogosFalsos d;
    EXPECT_TRUE(AbrirCarpetaRespaldo(p.s, d, 1));
    p.s.TipoRed = 1;
    EXPECT_TRUE(AbrirCarpetaRespaldo(p.s, d, 1));
    EXPECT_TRUE(AbrirCarpetaRespaldo(p.s, d, 7));
    EXPECT_EQ(d.abiertos, QStringList({p.Datos(QStringLiteral("Proyectos")), p.Datos(QStringLiteral("Redes")),
                                       p.Datos(QStringLiteral("ReportesExportados"))}));
    EXPECT_TRUE(QDir(p.Datos(QStringLiteral("Redes"))).exists());  // made when missing
}
