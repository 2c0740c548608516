#include "Apoyo.h"
#include "store/Archivos.h"
#include "store/Registros.h"

#include <QFile>
#include <gtest/gtest.h>

namespace {

QString BaseConTabla(SesionPrueba& sp) {
    const QString ruta = sp.Datos(QStringLiteral("t.db"));
    Conexion c;
    c.Crear(ruta);
    c.EjecutarGuion(QStringLiteral("CREATE TABLE Piezas (ClavePieza INTEGER, NombrePieza TEXT, Foto BLOB);"
                                   "INSERT INTO Piezas VALUES (1,'BAÑERA',NULL);"
                                   "INSERT INTO Piezas VALUES (5,'EXCUSADO DE TANQUE',NULL);"
                                   "INSERT INTO Piezas VALUES (9,'LAVAPLATOS',NULL);"));
    return ruta;
}

}  // namespace

TEST(AbrirConexion, ArchivoAjenoOAusenteDejaConexionFallida) {
    SesionPrueba sp;
    Conexion c;
    EXPECT_EQ(AbrirConexion(c, sp.Datos(QStringLiteral("no-existe.plm"))), -1);
    EXPECT_EQ(c.State(), 0);
    EXPECT_FALSE(QFile::exists(sp.Datos(QStringLiteral("no-existe.plm"))));  // never created

    const QString ajeno = EscribirArchivo(sp.Datos(QStringLiteral("ajeno.plm")), QByteArray(4096, 'x'));
    EXPECT_EQ(AbrirConexion(c, ajeno), -1);
    EXPECT_TRUE(c.UltimoError().contains(QStringLiteral("no es una base de datos")));

    // An open connection is closed and reopened on the new path.
    const QString buena = BaseConTabla(sp);
    EXPECT_EQ(AbrirConexion(c, buena), 0);
    EXPECT_EQ(AbrirConexion(c, buena), 0);
    EXPECT_EQ(c.State(), 1);
}

TEST(Registros, AbrirTablaBuscarClaveAdelanteYAtras) {
    SesionPrueba sp;
    Conexion c;
    ASSERT_EQ(AbrirConexion(c, BaseConTabla(sp)), 0);
    Registros rs;
    ASSERT_EQ(AbrirTabla(c, rs, QStringLiteral("SELECT * FROM Piezas ORDER BY ClavePieza")), 0);
    EXPECT_EQ(rs.RecordCount(), 3);
    EXPECT_EQ(ComoTexto(rs.Campo(QStringLiteral("NombrePieza"))), QStringLiteral("BAÑERA"));
    // Forward from the current row, then backward from the end.
    EXPECT_EQ(BuscarClave(rs, QStringLiteral("ClavePieza=9")), 1);
    EXPECT_EQ(ComoEntero(rs.Campo(QStringLiteral("ClavePieza"))), 9);
    EXPECT_EQ(BuscarClave(rs, QStringLiteral("ClavePieza=5")), 1);
    EXPECT_EQ(ComoTexto(rs.Campo(QStringLiteral("NombrePieza"))), QStringLiteral("EXCUSADO DE TANQUE"));
    EXPECT_EQ(BuscarClave(rs, QStringLiteral("ClavePieza=7")), 0);
    EXPECT_TRUE(rs.BOF());

    // An empty source leaves the set at its end, with no error.
    Registros vacio;
    EXPECT_EQ(AbrirTabla(c, vacio, QStringLiteral("SELECT * FROM Piezas WHERE ClavePieza > 100")), 0);
    EXPECT_TRUE(vacio.EOF_());
    EXPECT_NE(AbrirTabla(c, vacio, QStringLiteral("NoExiste")), 0);
}

TEST(Registros, AddNewYUpdateEscribenEnLaTabla) {
    SesionPrueba sp;
    Conexion c;
    ASSERT_EQ(AbrirConexion(c, BaseConTabla(sp)), 0);
    Registros rs;
    ASSERT_EQ(AbrirTabla(c, rs, QStringLiteral("Piezas")), 0);
    rs.AddNew();
    rs.Poner(QStringLiteral("ClavePieza"), 30);
    rs.Poner(QStringLiteral("NombrePieza"), QStringLiteral("PILETA"));
    ASSERT_TRUE(rs.Update());
    ASSERT_EQ(BuscarClave(rs, QStringLiteral("ClavePieza=1")), 1);
    rs.Poner(QStringLiteral("NombrePieza"), QStringLiteral("BAÑERA GRANDE"));
    ASSERT_TRUE(rs.Update());
    rs.Close();
    EXPECT_EQ(ComoTexto(c.Escalar(QStringLiteral("SELECT NombrePieza FROM Piezas WHERE ClavePieza=?"), {1})),
              QStringLiteral("BAÑERA GRANDE"));
    EXPECT_EQ(ComoEntero(c.Escalar(QStringLiteral("SELECT count(*) FROM Piezas"))), 4);
    // A null text reads as the empty text, a null number as 0.
    EXPECT_EQ(ComoTexto(c.Escalar(QStringLiteral("SELECT NULL"))), QString(QLatin1String("")));
    EXPECT_DOUBLE_EQ(ComoDoble(c.Escalar(QStringLiteral("SELECT NULL"))), 0.0);
}

TEST(Registros, UnNumeroGuardadoComoTextoSeLeeEnFormaCConCualquierLocale) {
    // "1.234" stored is 1.234; under Spain's marks a typed "1.234" would be refused.
    SesionPrueba sp;
    const MarcasPrueba espana("es_ES");
    Conexion c;
    ASSERT_EQ(AbrirConexion(c, BaseConTabla(sp)), 0);
    EXPECT_DOUBLE_EQ(ComoDoble(c.Escalar(QStringLiteral("SELECT '1.234'"))), 1.234);
    c.Ejecutar(QStringLiteral("INSERT INTO Piezas VALUES (2.5,'MEDIA',NULL)"));
    Registros rs;
    ASSERT_EQ(AbrirTabla(c, rs, QStringLiteral("SELECT * FROM Piezas ORDER BY ClavePieza")), 0);
    EXPECT_EQ(BuscarClave(rs, QStringLiteral("ClavePieza=2.5")), 1);
    EXPECT_EQ(ComoTexto(rs.Campo(QStringLiteral("NombrePieza"))), QStringLiteral("MEDIA"));
}

TEST(Transaccion, SinConfirmarNoQuedaNada) {
    SesionPrueba sp;
    Conexion c;
    ASSERT_EQ(AbrirConexion(c, BaseConTabla(sp)), 0);
    {
        Transaccion t(c);
        c.Ejecutar(QStringLiteral("DELETE FROM Piezas"));
        // Going out of scope without Confirmar rolls back.
    }
    EXPECT_EQ(ComoEntero(c.Escalar(QStringLiteral("SELECT count(*) FROM Piezas"))), 3);
    {
        Transaccion t(c);
        c.Ejecutar(QStringLiteral("DELETE FROM Piezas WHERE ClavePieza=?"), {5});
        EXPECT_TRUE(t.Confirmar());
    }
    EXPECT_EQ(ComoEntero(c.Escalar(QStringLiteral("SELECT count(*) FROM Piezas"))), 2);
}

TEST(CopiarArchivo, OrigenAusenteNoTocaElDestino) {
    SesionPrueba sp;
    const QString destino = EscribirArchivo(sp.Datos(QStringLiteral("destino.txt")), "original");
    QString error;
    EXPECT_FALSE(CopiarArchivo(sp.Datos(QStringLiteral("falta.txt")), destino, &error));
    EXPECT_FALSE(error.isEmpty());
    EXPECT_EQ(LeerArchivo(destino), QByteArray("original"));
}

// Any bytes a file name may hold come back unchanged; UTF-8 reads as text.
TEST(RutaNativa, IdaYVueltaDeCualquierNombre) {
    const struct {
        QByteArray bytes;
        QString texto;  // null when the name is not UTF-8
    } casos[] = {
        {"Proyectos/casa.plm", QStringLiteral("Proyectos/casa.plm")},
        {"Dise\xc3\xb1o.plm", QStringLiteral("Diseño.plm")},
        {"r\xf0\x9f\x92\xa7.acu", QStringLiteral("r💧.acu")},
        {"Dise\xf1o.plm", QString()},       // Latin-1
        {"fin\xc3", QString()},             // cut short at the end
        {"\xc0\xaf.plm", QString()},        // an overlong '/'
        {"\xed\xb2\x80.plm", QString()},    // an encoded surrogate
    };
    for (const auto& c : casos) {
        const QString ruta = RutaDesdeNativa(c.bytes);
        EXPECT_EQ(RutaNativa(ruta), c.bytes) << c.bytes.toHex().constData();
        if (!c.texto.isNull()) EXPECT_EQ(ruta, c.texto);
    }
}

// A file damaged after its first page opens, and its first read then says so
// in Spanish instead of passing on the database library's English text.
TEST(Conexion, UnArchivoDanadoSeDiceEnEspanol) {
    SesionPrueba sp;
    const QString ruta = BaseConTabla(sp);
    {
        QFile f(ruta);
        ASSERT_TRUE(f.open(QIODevice::ReadWrite));
        f.seek(4096);  // the table's own page, the second
        f.write(QByteArray(4096, '\xff'));
    }
    Conexion c;
    ASSERT_EQ(AbrirConexion(c, ruta), 0);
    EXPECT_TRUE(c.Escalar(QStringLiteral("SELECT count(*) FROM Piezas WHERE ClavePieza > 0")).isNull());
    EXPECT_EQ(c.UltimoError(), QStringLiteral("El archivo está dañado o no es una base de datos del programa."));
}

// The direct readers of a statement's columns give what the general ones
// give, for every kind a column can hold: text, a number stored as text
// (read in C form whatever the locale), whole and real numbers, null.
TEST(Consulta, LectoresDirectosComoLosGenerales) {
    SesionPrueba sp;
    const MarcasPrueba espana("es_ES");
    Conexion c;
    ASSERT_EQ(AbrirConexion(c, BaseConTabla(sp)), 0);
    Consulta q(c, QStringLiteral("SELECT 'N 1', '2.5', 7, 2.75, NULL, 1e300, '', 3.0"));
    ASSERT_TRUE(q.Siguiente());
    for (int i = 0; i < 8; ++i) {
        EXPECT_EQ(q.Texto(i), ComoTexto(q.Columna(i))) << i;
        EXPECT_EQ(q.Doble(i), ComoDoble(q.Columna(i))) << i;
        EXPECT_EQ(q.Entero(i), ComoEntero(q.Columna(i))) << i;
    }
    EXPECT_EQ(q.Doble(1), 2.5);
    EXPECT_EQ(q.Entero(3), 3);  // 2.75 rounds, as the runtime did
    EXPECT_FALSE(q.Texto(4).isNull());
    EXPECT_EQ(q.Texto(99), ComoTexto(Valor()));
}
