#include "Apoyo.h"
#include "model/ArchivoEdificio.h"
#include "model/ProyectoEdificio.h"
#include "model/ProyectoJson.h"

#include <QFile>
#include <gtest/gtest.h>

namespace {

// A three-branch tree: A-B, B-C, B-D (branch 3 restarts from B).
void LlenarEjemplo(ProyectoEdificio& p) {
    p.Proyecto = QStringLiteral("Casa López");
    p.Ubicacion = QStringLiteral("Mérida");
    p.Cliente = QStringLiteral("Ana Pérez");
    p.Fecha = QDate(2024, 5, 17);
    p.OpcionPresionInicial = 1;
    p.DiametroMinimo = true;
    p.NumeroRamales = 3;
    p.DimensionarRamales(3);
    const char* nodos[][2] = {{"A", "B"}, {"B", "C"}, {"B", "D"}};
    for (int i = 1; i <= 3; ++i) {
        p.NodoI[i] = QString::fromLatin1(nodos[i - 1][0]);
        p.Nodoj[i] = QString::fromLatin1(nodos[i - 1][1]);
        p.longitudReal[i] = 2.5 * i;
    }
    p.Reduccion[2] = QStringLiteral("REDUCCIÓN DE  1 1/4\"  a  1\"");
    p.NPiezas[2] = 2;
    p.PiezaClave(2, 1) = 5;
    p.PiezaNombre(2, 1) = QStringLiteral("EXCUSADO DE TANQUE");
    p.PiezaUnidades(2, 1) = 5;
    p.PiezaCantidad(2, 1) = 1;
    p.PiezaClave(2, 2) = 0;  // a row with key 0 stays in the file
    p.PiezaNombre(2, 2) = QStringLiteral("NOTA");
    p.PiezaUnidades(2, 2) = 0.75;
    p.PiezaCantidad(2, 2) = 2;
    p.NConexiones[1] = 1;
    p.ConexionClave(1, 1) = 13;
    p.ConexionNombre(1, 1) = QStringLiteral("MEDIDOR DE AGUA");
    p.ConexionLongitud(1, 1) = 5;
    p.ConexionCantidad(1, 1) = 1;
    p.ConexionAutomatica(1, 1) = false;
    p.NumeroNodos = 4;
    p.DimensionarNodos(4);
    const double cotas[] = {10.0, 10.5, 13.0, 13.25};
    for (int i = 1; i <= 4; ++i) p.CotaPiso[i] = cotas[i - 1];
}

struct ProyectoPrueba : ::testing::Test {
    SesionPrueba sp;
    ProyectoEdificio p;
    QString error;
    void SetUp() override {
        sp.s.NombreUsuario = QStringLiteral("Ing. Ríos");
        ValoresIniciales(p, sp.s);
        sp.s.ArchivoProyecto = sp.ProyectoEnBlanco();
    }
    ProyectoEdificio Releer() {
        ProyectoEdificio q;
        ValoresIniciales(q, sp.s);
        EXPECT_EQ(AbrirConexionProyecto(sp.s), 0);
        LeerProyecto(q, sp.s);
        return q;
    }
};

}  // namespace

TEST_F(ProyectoPrueba, ValoresInicialesDaLosDefectosYConservaCliente) {
    p.Cliente = QStringLiteral("Cliente anterior");
    p.Valor1 = 99;
    p.NumeroRamales = 5;
    p.DimensionarRamales(5);
    ASSERT_EQ(AbrirConexionProyecto(sp.s), 0);
    ValoresIniciales(p, sp.s);
    EXPECT_DOUBLE_EQ(p.Valor1, 7.0);
    EXPECT_DOUBLE_EQ(p.Valor2, 0.0);
    EXPECT_DOUBLE_EQ(p.Valor3, 3.0);
    EXPECT_DOUBLE_EQ(p.Velocidad, 1.2);
    EXPECT_DOUBLE_EQ(p.CoeficienteC, 140.0);
    EXPECT_EQ(p.OpcionUsoPiezas + p.OpcionPresionInicial + p.OpcionDiametro + p.OpcionPerdidas, 0);
    EXPECT_FALSE(p.DiametroMinimo);
    EXPECT_FALSE(p.OpcionPresionM);
    EXPECT_EQ(int(p.NumeroRamales), 0);
    EXPECT_EQ(p.NodoI.Ubound(), -1);
    EXPECT_EQ(p.Cliente, QStringLiteral("Cliente anterior"));
    EXPECT_EQ(p.Calculista, QStringLiteral("Ing. Ríos"));
    EXPECT_EQ(p.Fecha, QDate::currentDate());
    EXPECT_EQ(sp.s.ConexionProyecto.State(), 0);
}

TEST_F(ProyectoPrueba, SalvarYLeerGuardanLasFilasYLasCotas) {
    // Each field's round trip, and the Ubicacion and Cliente that one way
    // skips, go through the JSON import and export: see their test.
    LlenarEjemplo(p);
    ASSERT_TRUE(SalvarProyecto(p, sp.s, error)) << error.toStdString();
    const ProyectoEdificio q = Releer();
    ASSERT_EQ(int(q.NumeroRamales), 3);
    EXPECT_EQ(q.Nodoj[3], QStringLiteral("D"));
    EXPECT_EQ(q.NPiezas[2], 2);
    EXPECT_EQ(q.PiezaClave(2, 2), 0);  // a row with key 0 stays
    EXPECT_EQ(q.PiezaNombre(2, 2), QStringLiteral("NOTA"));
    EXPECT_DOUBLE_EQ(q.PiezaUnidades(2, 2), 0.75);
    EXPECT_EQ(q.PiezaCantidad(2, 2), 2);
    EXPECT_DOUBLE_EQ(q.ConexionLongitud(1, 1), 5.0);
    EXPECT_FALSE(q.ConexionAutomatica(1, 1));
    // Nodes: names rebuilt from the branches, levels by position; with
    // option 1 node 1 is the reference of levels.
    ASSERT_EQ(int(q.NumeroNodos), 4);
    EXPECT_EQ(q.NodoNombre[1], QStringLiteral("A"));
    EXPECT_EQ(q.NodoNombre[4], QStringLiteral("D"));
    EXPECT_DOUBLE_EQ(q.CotaRelativa[1], 0.0);
    EXPECT_DOUBLE_EQ(q.CotaRelativa[3], 3.0);
    EXPECT_DOUBLE_EQ(q.CotaRelativa[4], 3.25);
}

TEST_F(ProyectoPrueba, ReduccionVaciaSeGuardaNulaYLosNombresDeNodoSiguenALosRamales) {
    LlenarEjemplo(p);
    p.NodoNombre[3] = QStringLiteral("nombre viejo");
    ASSERT_TRUE(SalvarProyecto(p, sp.s, error));
    Conexion& c = sp.s.ConexionProyecto;
    EXPECT_TRUE(c.Escalar(QStringLiteral("SELECT Reduccion FROM DatosRamales WHERE Numero=1")).isNull());
    EXPECT_FALSE(c.Escalar(QStringLiteral("SELECT Reduccion FROM DatosRamales WHERE Numero=2")).isNull());
    EXPECT_EQ(ComoTexto(c.Escalar(QStringLiteral("SELECT Nodo FROM DatosNodos WHERE Numero=3"))), QStringLiteral("C"));
    EXPECT_TRUE(c.Escalar(QStringLiteral("SELECT Ubicacion FROM DatosGenerales")).isNull());
    EXPECT_EQ(ComoTexto(c.Escalar(QStringLiteral("SELECT Cliente FROM DatosGenerales"))), QStringLiteral("Ana Pérez"));
    EXPECT_EQ(ComoTexto(c.Escalar(QStringLiteral("SELECT Fecha FROM DatosGenerales"))), QStringLiteral("17/05/2024"));
    EXPECT_EQ(ComoEntero(c.Escalar(QStringLiteral("SELECT DiametroMinimo FROM DatosGenerales"))), -1);
    EXPECT_EQ(ComoEntero(c.Escalar(QStringLiteral("SELECT Posicion FROM DatosPiezas WHERE Pieza='NOTA'"))), 2);
}

TEST_F(ProyectoPrueba, SinRamalesNoSeSalvaNadaYElArchivoQuedaComoEstaba) {
    LlenarEjemplo(p);
    ASSERT_TRUE(SalvarProyecto(p, sp.s, error));
    ProyectoEdificio vacio;
    ValoresIniciales(vacio, sp.s);
    EXPECT_FALSE(SalvarProyecto(vacio, sp.s, error));
    EXPECT_EQ(error, MensajeProyectoSinRamales());
    EXPECT_EQ(int(Releer().NumeroRamales), 3);
}

TEST_F(ProyectoPrueba, UnFalloAMitadDeshaceTodoElSalvado) {
    LlenarEjemplo(p);
    ASSERT_TRUE(SalvarProyecto(p, sp.s, error));
    // 31 fixture rows on a branch: a subscript fault after rows were written.
    p.NPiezas[3] = 31;
    p.Proyecto = QStringLiteral("cambiado");
    EXPECT_THROW(SalvarProyecto(p, sp.s, error), ErrorEjecucion);
    const ProyectoEdificio q = Releer();
    EXPECT_EQ(q.Proyecto, QStringLiteral("Casa López"));
    EXPECT_EQ(q.NPiezas[2], 2);
}

TEST_F(ProyectoPrueba, LeerRespetaTreintaFilasYNulos) {
    LlenarEjemplo(p);
    ASSERT_TRUE(SalvarProyecto(p, sp.s, error));
    Conexion& c = sp.s.ConexionProyecto;
    // 32 more fittings on branch 3 by hand: only thirty are read.
    for (int k = 1; k <= 32; ++k)
        c.Ejecutar(QStringLiteral("INSERT INTO DatosConexiones (Ramal, Clave, Conexion, Cantidad, Posicion) "
                                  "VALUES (3, 5, 'CODO', 1, ?)"),
                   {k});
    c.Ejecutar(QStringLiteral("UPDATE DatosRamales SET Predimensionado=NULL, NodoI=NULL WHERE Numero=1"));
    c.Ejecutar(QStringLiteral("UPDATE DatosGenerales SET Valor2=NULL, Proyecto=NULL"));
    const ProyectoEdificio q = Releer();
    EXPECT_EQ(q.ConexionClave(3, 30), 5);
    EXPECT_EQ(q.Predimensionado[1], QString());
    EXPECT_EQ(q.NodoI[1], QString());
    EXPECT_EQ(q.Proyecto, QString());
    EXPECT_DOUBLE_EQ(q.Valor2, 0.0);  // a null number keeps the default
}

TEST_F(ProyectoPrueba, ConexionCerradaDejaElModeloEnSusDefectos) {
    sp.s.ArchivoProyecto = sp.Datos(QStringLiteral("no-existe.plm"));
    EXPECT_EQ(AbrirConexionProyecto(sp.s), -1);
    LeerProyecto(p, sp.s);
    EXPECT_EQ(int(p.NumeroRamales), 0);
    EXPECT_DOUBLE_EQ(p.Valor1, 7.0);
}

TEST(TablaDiametros, LasTresBusquedas) {
    QString nombre = QStringLiteral("sin cambio");
    double numero = -1, interior = -1;
    EXPECT_TRUE(DiametroNombre(1.25, nombre));
    EXPECT_EQ(nombre, QStringLiteral("1 1/4"));
    EXPECT_TRUE(DiametroNumero(QStringLiteral("2 1/2"), numero));
    EXPECT_DOUBLE_EQ(numero, 2.5);
    EXPECT_TRUE(DiametroInterior(0.75, interior));
    EXPECT_DOUBLE_EQ(interior, 2.093);
    // Outside the table the caller keeps what it had ("7" has no size).
    EXPECT_FALSE(DiametroNumero(QStringLiteral("7"), numero));
    EXPECT_DOUBLE_EQ(numero, 2.5);
    EXPECT_FALSE(DiametroNombre(7.0, nombre));
    EXPECT_EQ(nombre, QStringLiteral("1 1/4"));
    EXPECT_FALSE(DiametroInterior(0.0, interior));
}

// Nodes are one more than branches and both counters are 16-bit: 32,766
// branches is the largest project; a file beyond that is refused whole,
// never read as an empty project that a save would write back.
TEST_F(ProyectoPrueba, UnArchivoMayorQueLosContadoresSeRechaza) {
    const auto Archivo = [&](int ramales, int nodos) {
        const QString ruta = sp.ProyectoEnBlanco(QStringLiteral("grande%1-%2.plm").arg(ramales).arg(nodos));
        EjecutarSql(ruta, QStringLiteral("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i+1 FROM n WHERE i<%1) "
                                         "INSERT INTO DatosRamales (Numero, NodoI, Nodoj) "
                                         "SELECT i, 'N'||(i-1), 'N'||i FROM n")
                              .arg(ramales));
        EjecutarSql(ruta, QStringLiteral("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i+1 FROM n WHERE i<%1) "
                                         "INSERT INTO DatosNodos (Numero, CotaPiso) SELECT i, i FROM n")
                              .arg(nodos));
        return ruta;
    };
    const struct {
        int ramales, nodos;
        QString error;
    } casos[] = {
        {32767, 32768, QStringLiteral("El proyecto tiene 32767 ramales; el máximo es 32766.")},
        {40000, 40001, QStringLiteral("El proyecto tiene 40000 ramales; el máximo es 32766.")},
        {3, 32768, QStringLiteral("El proyecto tiene 32768 nodos; el máximo es 32767.")},
    };
    for (const auto& c : casos) {
        LlenarEjemplo(p);
        const QString ruta = Archivo(c.ramales, c.nodos);
        EXPECT_FALSE(CargarProyectoEdificio(p, sp.s, ruta, error)) << c.ramales;
        EXPECT_EQ(error, c.error);
        EXPECT_EQ(int(p.NumeroRamales), 3);  // the open project stays as it was
        EXPECT_EQ(p.Proyecto, QStringLiteral("Casa López"));
        // Read on an open connection, the file is refused the same way.
        sp.s.ArchivoProyecto = ruta;
        ASSERT_EQ(AbrirConexionProyecto(sp.s), 0);
        EXPECT_FALSE(LeerProyecto(p, sp.s, &error));
        EXPECT_EQ(error, c.error);
        EXPECT_EQ(int(p.NumeroRamales), 3);
    }
    // The largest project loads whole: its last node is named by its last branch.
    ASSERT_TRUE(CargarProyectoEdificio(p, sp.s, Archivo(32766, 32767), error)) << error.toStdString();
    EXPECT_EQ(int(p.NumeroRamales), 32766);
    EXPECT_EQ(int(p.NumeroNodos), 32767);
    EXPECT_EQ(p.NodoNombre[32767], QStringLiteral("N32766"));
    EXPECT_DOUBLE_EQ(p.CotaPiso[32767], 32767.0);
}
