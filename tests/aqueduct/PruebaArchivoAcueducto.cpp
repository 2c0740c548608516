// The .acu file: load, save in one transaction, and refusal of foreign files.

#include "RedPrueba.h"
#include "support/Apoyo.h"

#include "aqueduct/ArchivoAcueducto.h"
#include "aqueduct/NumeracionNodos.h"
#include "store/Conexion.h"

#include <QFile>
#include <gtest/gtest.h>

namespace {

ProyectoAcueducto Ejemplo(const Sesion& s) {
    ProyectoAcueducto p = Red({{"T", "A", 100.456, 0.1234, 120, 1.2345}, {"A", "B", 50, 0.1, 110, 0.5}},
                              {{"T", 0, 50.126, 80.004}, {"A", 1.23456, 40}, {"B", 0, 42}}, s);
    p.Proyecto = "Red de prueba";
    p.Cliente = "Alcaldía";
    return p;
}

}  // namespace

TEST(ArchivoAcueducto, SalvarYLeerConRedondeos) {
    SesionPrueba sp;
    sp.s.ArchivoProyectoACU = sp.AcueductoEnBlanco();
    ProyectoAcueducto p = Ejemplo(sp.s);
    p.Final[2] = "  B ";  // trimmed in the file
    QString error;
    ASSERT_TRUE(SalvarProyectoACU(p, sp.s, error)) << error.toStdString();

    // Each field's round trip is checked with the JSON export and import of
    // a sample; here the roundings, the trims and what is never stored.
    ProyectoAcueducto q;
    ASSERT_TRUE(LeerProyectoACU(q, sp.s, error)) << error.toStdString();
    EXPECT_EQ(q.Proyecto, "Red de prueba");
    EXPECT_EQ(q.Cliente, "");  // the box's text is never stored
    EXPECT_EQ(q.CasoPorcentaje, 2);
    EXPECT_EQ(q.DeltaPorcentaje, 0.0);  // saved as 0 without the percentage option
    ASSERT_EQ(q.NumeroTramos, 2);
    EXPECT_EQ(q.Final[2], "B");
    EXPECT_EQ(q.Longitud[1], 100.46);
    EXPECT_EQ(q.Diametro[1], 0.123);
    EXPECT_EQ(q.Demanda[1], 1.235);  // 1.2345 rounds half away from zero
    ASSERT_EQ(q.NumeroNodosACU, 3);
    EXPECT_EQ(q.ConsumoMedio[2], 1.235);
    EXPECT_EQ(q.CotaTerreno[1], 50.13);
    EXPECT_EQ(q.CotaBombaEstanque[1], 80.0);
    EXPECT_EQ(q.NodosTramo(1, 2), 2);
    EXPECT_EQ(q.NombreTramos[2], "A-T,  A-B");
}

TEST(ArchivoAcueducto, ConsumoPorTramoSeAcumulaAlSalvar) {
    SesionPrueba sp;
    sp.s.ArchivoProyectoACU = sp.AcueductoEnBlanco();
    ProyectoAcueducto p = Ejemplo(sp.s);
    p.OpcionConsumo = 1;
    p.CasoPorcentaje = 1;
    p.DeltaPorcentaje = 7.5;
    sp.s.DatosModificados = -1;
    QString error;
    ASSERT_TRUE(SalvarProyectoACU(p, sp.s, error));
    EXPECT_EQ(sp.s.DatosModificados, 0);
    ProyectoAcueducto q;
    ASSERT_TRUE(LeerProyectoACU(q, sp.s, error));
    EXPECT_EQ(q.DeltaPorcentaje, 7.5);
    // T: 1.2345 / 2; A: that plus 0.5 / 2; B: 0.5 / 2, each rounded to 3.
    EXPECT_EQ(q.ConsumoMedio[1], 0.617);
    EXPECT_EQ(q.ConsumoMedio[2], 0.867);
    EXPECT_EQ(q.ConsumoMedio[3], 0.25);
}

TEST(ArchivoAcueducto, ProyectoSinTramos) {
    SesionPrueba sp;
    sp.s.ArchivoProyectoACU = sp.AcueductoEnBlanco();
    ProyectoAcueducto p;
    p.Proyecto = "Vacío";
    QString error;
    ASSERT_TRUE(SalvarProyectoACU(p, sp.s, error)) << error.toStdString();
    ProyectoAcueducto q;
    ASSERT_TRUE(LeerProyectoACU(q, sp.s, error)) << error.toStdString();
    EXPECT_EQ(q.Proyecto, "Vacío");
    EXPECT_EQ(q.NumeroTramos, 0);
    EXPECT_EQ(q.NumeroNodosACU, 0);
    EXPECT_FALSE(QFile::exists(RutaNodosDat(sp.s)));

    // Node rows without sections load whole: the count is the table's.
    Conexion c;
    ASSERT_EQ(AbrirConexion(c, sp.s.ArchivoProyectoACU), 0);
    ASSERT_TRUE(c.Ejecutar("INSERT INTO Nodos (Numero, Nodos, CotaTerreno) VALUES (1, 'X', 12.5), (2, 'Y', 13)"));
    c.Cerrar();
    ProyectoAcueducto r;
    ASSERT_TRUE(LeerProyectoACU(r, sp.s, error)) << error.toStdString();
    EXPECT_EQ(r.NumeroNodosACU, 2);
    EXPECT_EQ(r.CotaTerreno[2], 13.0);
}

TEST(ArchivoAcueducto, UnaFallaAlSalvarDejaElArchivoComoEstaba) {
    SesionPrueba sp;
    sp.s.ArchivoProyectoACU = sp.AcueductoEnBlanco();
    ProyectoAcueducto p = Ejemplo(sp.s);
    QString error;
    ASSERT_TRUE(SalvarProyectoACU(p, sp.s, error));
    // Eleven separate sections name 22 nodes, one more than 11 + 10.
    p.NumeroTramos = 11;
    p.RedimensionarTramos(11);
    for (int t = 1; t <= 11; ++t) {
        p.Inicio[t] = QStringLiteral("I%1").arg(t);
        p.Final[t] = QStringLiteral("J%1").arg(t);
    }
    sp.s.DatosModificados = -1;
    EXPECT_FALSE(SalvarProyectoACU(p, sp.s, error));
    EXPECT_TRUE(error.contains("Subíndice")) << error.toStdString();
    EXPECT_EQ(sp.s.DatosModificados, -1);
    ProyectoAcueducto q;
    ASSERT_TRUE(LeerProyectoACU(q, sp.s, error));
    EXPECT_EQ(q.NumeroTramos, 2);
    EXPECT_EQ(q.Inicio[1], "T");
}

TEST(ArchivoAcueducto, ArchivosAjenosYDatosRotos) {
    SesionPrueba sp;
    ProyectoAcueducto p;
    p.Proyecto = "sin tocar";
    QString error;

    sp.s.ArchivoProyectoACU = sp.Datos("no-existe.acu");
    EXPECT_FALSE(LeerProyectoACU(p, sp.s, error));
    EXPECT_TRUE(error.startsWith("No se encuentra el archivo")) << error.toStdString();

    sp.s.ArchivoProyectoACU = EscribirArchivo(
        sp.Datos("texto.acu"), "esto no es una base de datos, sino un texto cualquiera que ocupa espacio");
    EXPECT_FALSE(LeerProyectoACU(p, sp.s, error));
    EXPECT_TRUE(error.startsWith("El archivo no es una base de datos")) << error.toStdString();

    sp.s.ArchivoProyectoACU = sp.ProyectoEnBlanco("edificio.acu");
    EXPECT_FALSE(LeerProyectoACU(p, sp.s, error));
    EXPECT_TRUE(error.startsWith("El archivo no es un proyecto de acueductos")) << error.toStdString();

    // A null project name, or more rows than NumeroTramos, stops the load.
    sp.s.ArchivoProyectoACU = sp.AcueductoEnBlanco();
    Conexion c;
    ASSERT_EQ(AbrirConexion(c, sp.s.ArchivoProyectoACU), 0);
    ASSERT_TRUE(c.Ejecutar("INSERT INTO Generales (Proyecto, NumeroTramos) VALUES (NULL, 0)"));
    EXPECT_FALSE(LeerProyectoACU(p, sp.s, error));
    EXPECT_TRUE(error.contains("Null")) << error.toStdString();
    ASSERT_TRUE(c.Ejecutar("UPDATE Generales SET Proyecto = 'x', NumeroTramos = 1"));
    ASSERT_TRUE(c.Ejecutar("INSERT INTO Tramos (Numero, Inicio, Final) VALUES (1, 'A', 'B'), (2, 'B', 'C')"));
    EXPECT_FALSE(LeerProyectoACU(p, sp.s, error));
    EXPECT_TRUE(error.contains("Subíndice")) << error.toStdString();
    // Counts beyond the 16-bit counters are refused, never wrapped or emptied.
    ASSERT_TRUE(c.Ejecutar("UPDATE Generales SET NumeroTramos = 40000"));
    EXPECT_FALSE(LeerProyectoACU(p, sp.s, error));
    EXPECT_TRUE(error.endsWith("Error 6: Desbordamiento (NumeroTramos)")) << error.toStdString();
    ASSERT_TRUE(c.Ejecutar("UPDATE Generales SET NumeroTramos = 2"));
    ASSERT_TRUE(c.Ejecutar("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i+1 FROM n WHERE i<32768) "
                           "INSERT INTO Nodos (Numero, Nodos) SELECT i, 'N'||i FROM n"));
    EXPECT_FALSE(LeerProyectoACU(p, sp.s, error));
    EXPECT_TRUE(error.endsWith("Error 6: Desbordamiento (Nodos)")) << error.toStdString();
    EXPECT_EQ(p.Proyecto, "sin tocar");
}

TEST(ArchivoAcueducto, CoordenadasDeLosNodos) {
    SesionPrueba sp;
    sp.s.ArchivoProyectoACU = sp.AcueductoEnBlanco();
    ProyectoAcueducto p = Ejemplo(sp.s);
    p.X[1] = 1000.12345;  // kept to the millimetre
    p.Y[1] = -250.0;
    p.X[3] = 0.0;  // a coordinate of 0 is one, not none
    QString error;
    ASSERT_TRUE(SalvarProyectoACU(p, sp.s, error)) << error.toStdString();
    ProyectoAcueducto q;
    ASSERT_TRUE(LeerProyectoACU(q, sp.s, error)) << error.toStdString();
    EXPECT_EQ(q.X[1], 1000.123);
    EXPECT_EQ(q.Y[1], -250.0);
    EXPECT_FALSE(q.X[2].has_value());
    EXPECT_EQ(q.X[3], 0.0);
    EXPECT_FALSE(q.Y[3].has_value());

    // A file of an earlier version, without the columns: it opens, a save
    // without coordinates leaves it so, and one with coordinates adds them.
    sp.s.ArchivoProyectoACU = sp.Datos("antiguo.acu");
    {
        Conexion c;
        ASSERT_TRUE(c.Crear(sp.s.ArchivoProyectoACU));
        ASSERT_TRUE(c.EjecutarGuion(
            "CREATE TABLE Generales (Proyecto TEXT, Ubicacion TEXT, Calculista TEXT, Fecha TEXT, Comentario TEXT,"
            " OpcionConsumo INTEGER, OpcionDiametro INTEGER, C INTEGER, CasoPorcentaje INTEGER, DeltaPorcentaje REAL,"
            " FactorQMax REAL, FactorIncendio REAL, LitrosIncendio REAL, NumeroTramos INTEGER, Usuario TEXT);"
            "CREATE TABLE Nodos (Numero INTEGER, Nodos TEXT, ConsumoMedio REAL, CotaTerreno REAL,"
            " CotaBombaEstanque REAL);"
            "CREATE TABLE Tramos (Numero INTEGER, Inicio TEXT, Final TEXT, Longitud REAL, Diametro REAL,"
            " CoeficienteC INTEGER, Demanda REAL);"
            "INSERT INTO Generales (Proyecto, NumeroTramos) VALUES ('viejo', 1);"
            "INSERT INTO Tramos VALUES (1, 'A', 'B', 10, 0.1, 100, 0);"
            "INSERT INTO Nodos VALUES (1, 'A', 0, 5, 20), (2, 'B', 0, 4, 0);"));
    }
    ProyectoAcueducto v;
    ASSERT_TRUE(LeerProyectoACU(v, sp.s, error)) << error.toStdString();
    EXPECT_EQ(v.CotaBombaEstanque[1], 20.0);
    EXPECT_FALSE(v.X[1].has_value());
    auto columnas = [&] {
        Conexion c;
        AbrirConexion(c, sp.s.ArchivoProyectoACU);
        return c.ColumnasDe("Nodos").size();
    };
    ASSERT_TRUE(SalvarProyectoACU(v, sp.s, error)) << error.toStdString();
    EXPECT_EQ(columnas(), 5);
    v.Y[2] = 7.5;
    ASSERT_TRUE(SalvarProyectoACU(v, sp.s, error)) << error.toStdString();
    EXPECT_EQ(columnas(), 7);
    ProyectoAcueducto w;
    ASSERT_TRUE(LeerProyectoACU(w, sp.s, error)) << error.toStdString();
    EXPECT_EQ(w.Y[2], 7.5);
    EXPECT_FALSE(w.X[2].has_value());
}
