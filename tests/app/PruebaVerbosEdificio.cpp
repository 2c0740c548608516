#include "support/Apoyo.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <gtest/gtest.h>

namespace {

const char* const Ejemplos[] = {"Vivienda con Tanque Hidroneumatico", "Vivienda con Tanque Elevado",
                                "Edificio_MontantePH", "Edificio_GeneralesConserjeria",
                                "Edificio_ApartamentoTipo"};

struct Verbos : ::testing::Test {
    SesionPrueba sp;
    QString salida, errores;
    int Correr(const QStringList& args) {
        return EjecutarPrograma(args, &salida, &errores, {QStringLiteral("FONTARIA_DATOS=") + sp.s.DirectorioDatos});
    }
    QJsonObject Json() const { return QJsonDocument::fromJson(salida.toUtf8()).object(); }
    QString Copia(const char* ejemplo, const char* destino = "x.plm") {
        return sp.CopiaDeEjemplo(QString::fromUtf8(ejemplo) + QStringLiteral(".nivo"), QString::fromUtf8(destino));
    }
};

}  // namespace

TEST_F(Verbos, LosCincoEjemplosSeAnalizanConResultadosRazonables) {
    for (const char* ejemplo : Ejemplos) {
        const QString archivo = Copia(ejemplo);
        ASSERT_EQ(Correr({QStringLiteral("analizar"), archivo, QStringLiteral("--json")}), 0)
            << ejemplo << errores.toStdString();
        const QJsonObject o = Json();
        const int n = o[QStringLiteral("NumeroRamales")].toInt();
        EXPECT_GT(n, 4) << ejemplo;
        EXPECT_EQ(o[QStringLiteral("ErrorNumeracion")].toInt(), 0);
        EXPECT_TRUE(o[QStringLiteral("mensaje")].isNull());
        // Per-node arrays carry slot 0.
        EXPECT_EQ(o[QStringLiteral("PresionNodo")].toArray().size(), n + 2);
        EXPECT_EQ(o[QStringLiteral("ValvulaAcumulada")].toArray().size(), n + 2);
        EXPECT_EQ(o[QStringLiteral("CotaRelativa")].toArray().size(), n + 2);
        EXPECT_GT(o[QStringLiteral("PresionDesfaborable")].toDouble(), 0.0) << ejemplo;
        int dentro = 0;
        const QJsonArray ramales = o[QStringLiteral("ramales")].toArray();
        ASSERT_EQ(ramales.size(), n);
        for (const QJsonValue& r : ramales) {
            const double v = r[QStringLiteral("VelocidadAsumida")].toDouble();
            if (v >= 0.6 && v <= 3.5) ++dentro;
            EXPECT_FALSE(r[QStringLiteral("Predimensionado")].toString().isEmpty());
        }
        EXPECT_GE(dentro, n * 9 / 10) << ejemplo;
    }
}

TEST_F(Verbos, EjemplosMuestranLoQueDebenMostrar) {
    // A reducing valve, a sub-branch and reductions in the riser building.
    ASSERT_EQ(Correr({QStringLiteral("analizar"), Copia("Edificio_MontantePH"), QStringLiteral("--json")}), 0);
    QJsonObject o = Json();
    bool valvula = false, reduccion = false;
    for (const QJsonValue& r : o[QStringLiteral("ramales")].toArray()) {
        valvula |= r[QStringLiteral("ValvulaR")].toDouble() > 0;
        reduccion |= r[QStringLiteral("LongitudReduccion")].toDouble() > 0;
    }
    EXPECT_TRUE(valvula);
    EXPECT_TRUE(reduccion);
    // The elevated tank: branch 1 is the riser and its length the height found.
    ASSERT_EQ(Correr({QStringLiteral("analizar"), Copia("Vivienda con Tanque Elevado"), QStringLiteral("--json")}), 0);
    o = Json();
    const QJsonObject primero = o[QStringLiteral("ramales")].toArray()[0].toObject();
    EXPECT_NEAR(o[QStringLiteral("CotaRelativa")].toArray()[1].toDouble(), primero[QStringLiteral("longitudReal")].toDouble(),
                1e-9);
    EXPECT_NEAR(o[QStringLiteral("PresionDesfaborable")].toDouble(), 3.0, 0.005);
}

TEST_F(Verbos, TextoYGrids) {
    const QString archivo = Copia("Edificio_ApartamentoTipo");
    ASSERT_EQ(Correr({QStringLiteral("analizar"), archivo}), 0);
    EXPECT_TRUE(salida.contains(QStringLiteral("Nodo desfavorable: ")));
    ASSERT_EQ(Correr({QStringLiteral("analizar"), archivo, QStringLiteral("--grids")}), 0);
    for (const char* t : {"== PREDIMENSIONADO ==", "== UNIDADES DE GASTO ==", "== LONGITUDES EQUIVALENTES ==",
                          "== PERDIDAS Y PRESIONES ==", "|Presion (m)\nen el Nodo J"})
        EXPECT_TRUE(salida.contains(QString::fromUtf8(t))) << t;
}

TEST_F(Verbos, LosGridsSiguenLasMarcasDelLocaleYElJsonLaFormaC) {
    // Branch 1 of the elevated-tank house carries 23 units, 1.03 l/s (worked
    // in the analysis screen's test); Spain writes them "23,00" and "1,03".
    const QString archivo = Copia("Vivienda con Tanque Elevado");
    const QStringList entorno = {QStringLiteral("FONTARIA_DATOS=") + sp.s.DirectorioDatos,
                                 QStringLiteral("LC_ALL=es_ES.UTF-8"), QStringLiteral("LANG=es_ES.UTF-8")};
    ASSERT_EQ(EjecutarPrograma({QStringLiteral("analizar"), archivo, QStringLiteral("--grids")}, &salida, &errores, entorno), 0);
    EXPECT_TRUE(salida.contains(QStringLiteral("\n1|TANQUE|N1|23,00|1,03|"))) << salida.left(600).toStdString();
    ASSERT_EQ(EjecutarPrograma({QStringLiteral("analizar"), archivo, QStringLiteral("--json")}, &salida, &errores, entorno), 0);
    const QJsonObject primero = Json()[QStringLiteral("ramales")].toArray()[0].toObject();
    EXPECT_DOUBLE_EQ(primero[QStringLiteral("UnidadesAcumuladas")].toDouble(), 23.0);
    EXPECT_FALSE(salida.contains(QStringLiteral("1,03")));
}

TEST_F(Verbos, NodosConPresionNegativa) {
    // A valve of 100 m on N2-N5 of the tank house takes N5 and the two nodes
    // it feeds below zero (the other counts are the screen's test).
    const QString archivo = Copia("Vivienda con Tanque Elevado");
    EjecutarSql(archivo, QStringLiteral("UPDATE DatosRamales SET ValvulaR=100 WHERE Numero=5"));
    ASSERT_EQ(Correr({QStringLiteral("analizar"), archivo, QStringLiteral("--json")}), 0);
    EXPECT_EQ(Json()[QStringLiteral("NodosPresionNegativa")].toInt(), 3);
    // The plain results and the grids, whose status line is the screen's.
    for (const QStringList& forma : {QStringList(), QStringList{QStringLiteral("--grids")}}) {
        ASSERT_EQ(Correr(QStringList{QStringLiteral("analizar"), archivo} + forma), 0);
        EXPECT_TRUE(salida.contains(QStringLiteral("\nNodos con presión negativa: 3\n"))) << forma.join(' ').toStdString();
    }
}

TEST_F(Verbos, ErrorDeNumeracionSaleConDos) {
    const QString archivo = Copia("Edificio_ApartamentoTipo");
    EjecutarSql(archivo, QStringLiteral("UPDATE DatosRamales SET Nodoj=NodoI WHERE Numero=3"));
    EXPECT_EQ(Correr({QStringLiteral("analizar"), archivo, QStringLiteral("--json")}), 2);
    const QJsonObject o = Json();
    // The message is the numbering's own (checked to the letter with it).
    EXPECT_EQ(o[QStringLiteral("ErrorNumeracion")].toInt(), 1);
    EXPECT_TRUE(o[QStringLiteral("mensaje")].toString().contains(QStringLiteral("Ramal-> 3   ( I ) = PASILLO")));
    EXPECT_EQ(Correr({QStringLiteral("analizar"), archivo}), 2);
    EXPECT_TRUE(errores.contains(QStringLiteral("¡Debe Corregir el Error para realizar el Análisis!")));
}

TEST_F(Verbos, ErrorDeEjecucionSaleConTres) {
    const QString archivo = Copia("Edificio_ApartamentoTipo");
    EjecutarSql(archivo, QStringLiteral("UPDATE DatosGenerales SET Velocidad=0"));
    EXPECT_EQ(Correr({QStringLiteral("analizar"), archivo, QStringLiteral("--json")}), 3);
    const QJsonObject e = Json()[QStringLiteral("error")].toObject();
    EXPECT_EQ(e[QStringLiteral("numero")].toInt(), 11);
    EXPECT_EQ(e[QStringLiteral("descripcion")].toString(), QStringLiteral("División por cero"));
    // The first branch's flow over a design velocity of 0.
    EXPECT_EQ(e[QStringLiteral("lugar")].toString(), QStringLiteral("el ramal 1 (MONTANTE - ENTRADA)"));
    EXPECT_EQ(Correr({QStringLiteral("analizar"), archivo}), 3);
    EXPECT_TRUE(errores.contains(QStringLiteral("Error 11: División por cero en el ramal 1 (MONTANTE - ENTRADA).")))
        << errores.toStdString();
    // Nothing was written: the sizes stay blank.
    Conexion c;
    ASSERT_TRUE(c.Abrir(archivo));
    EXPECT_EQ(ComoEntero(c.Escalar(QStringLiteral("SELECT count(*) FROM DatosRamales WHERE Predimensionado<>''"))), 1);
}

// The assumed sizes written by a first analysis and the reductions that
// follow from them reach the file together: a reduction that cannot be
// written (here refused by a trigger, as by a kill) leaves no size behind.
TEST_F(Verbos, LosDiametrosYLasReduccionesSeEscribenJuntos) {
    const QString archivo = Copia("Edificio_MontantePH");
    EjecutarSql(archivo, QStringLiteral("UPDATE DatosRamales SET Predimensionado=NULL, Reduccion=NULL"));
    EjecutarSql(archivo, QStringLiteral("CREATE TRIGGER Corte BEFORE UPDATE OF Reduccion ON DatosRamales "
                                        "BEGIN SELECT RAISE(ABORT, 'corte'); END"));
    EXPECT_EQ(Correr({QStringLiteral("analizar"), archivo}), 3);
    Conexion c;
    ASSERT_TRUE(c.Abrir(archivo));
    EXPECT_EQ(ComoEntero(c.Escalar(
                  QStringLiteral("SELECT count(*) FROM DatosRamales WHERE Predimensionado IS NOT NULL"))),
              0);
}

// The building verbs write the assumed sizes and the reductions into the
// project: a read-only project (by its mode, which the superuser ignores
// otherwise) is refused before anything runs, and is still exported.
TEST_F(Verbos, UnProyectoDeSoloLecturaSeRechazaSinTocarlo) {
    const QString archivo = Copia("Edificio_MontantePH");
    EjecutarSql(archivo, QStringLiteral("UPDATE DatosRamales SET Predimensionado=NULL, Reduccion=NULL"));
    QFile(archivo).setPermissions(QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther);
    const QByteArray antes = LeerArchivo(archivo);
    // The verbs load through one routine: the analysis stands for all.
    EXPECT_EQ(Correr({QStringLiteral("analizar"), archivo}), 1);
    EXPECT_EQ(errores.trimmed(), QStringLiteral("El proyecto es de sólo lectura: ") + archivo +
                                     QStringLiteral("\nEl cálculo guarda en él los diámetros asumidos y las "
                                                    "reducciones."));
    EXPECT_EQ(LeerArchivo(archivo), antes);
    EXPECT_EQ(Correr({QStringLiteral("proyecto"), QStringLiteral("exportar"), archivo}), 0) << errores.toStdString();
}

TEST_F(Verbos, ArchivosQueNoSonProyectos) {
    EXPECT_EQ(Correr({QStringLiteral("analizar"), sp.Datos(QStringLiteral("no-existe.plm"))}), 1);
    EXPECT_FALSE(errores.isEmpty());
    EXPECT_EQ(Correr({QStringLiteral("analizar"), sp.AcueductoEnBlanco(), QStringLiteral("--json")}), 1);
    EXPECT_TRUE(errores.contains(QStringLiteral("no es un proyecto de Fontaria")));
    EXPECT_EQ(Correr({QStringLiteral("analizar")}), 1);
}

TEST_F(Verbos, TanqueSinProyecto) {
    ASSERT_EQ(Correr({QStringLiteral("tanque"), QStringLiteral("--metodo"), QStringLiteral("1"), QStringLiteral("--caudal"),
                      QStringLiteral("10"), QStringLiteral("--pmin"), QStringLiteral("20"), QStringLiteral("--pmax"),
                      QStringLiteral("34"), QStringLiteral("--json")}),
              0)
        << errores.toStdString();
    // The figures of the formulas are checked with the tank's sizing.
    const QJsonObject o = Json();
    EXPECT_EQ(o[QStringLiteral("textos")][QStringLiteral("VolumenTotal")].toString(), QStringLiteral("2,619.05"));
    EXPECT_EQ(o[QStringLiteral("porcentajes")][QStringLiteral("VolumenUtil")].toString(), QStringLiteral("28.64%"));
    EXPECT_EQ(Correr({QStringLiteral("tanque"), QStringLiteral("--metodo"), QStringLiteral("4")}), 1);
    EXPECT_EQ(Correr({QStringLiteral("tanque"), QStringLiteral("--metodo"), QStringLiteral("1"), QStringLiteral("--caudal"),
                      QStringLiteral("diez")}),
              1);
    EXPECT_TRUE(errores.contains(QStringLiteral("--caudal: \"diez\" no es un número")));
    EXPECT_EQ(Correr({QStringLiteral("tanque"), QStringLiteral("--metodo"), QStringLiteral("2"), QStringLiteral("--pmin"),
                      QStringLiteral("-20"), QStringLiteral("--pmax"), QStringLiteral("-10"), QStringLiteral("--json")}),
              3);
    // A maximum not above the minimum is refused as data.
    EXPECT_EQ(Correr({QStringLiteral("tanque"), QStringLiteral("--metodo"), QStringLiteral("1"), QStringLiteral("--pmin"),
                      QStringLiteral("20"), QStringLiteral("--pmax"), QStringLiteral("20")}),
              2);
    EXPECT_EQ(errores.trimmed(), QStringLiteral("La presión máxima debe ser mayor que la mínima."));
    EXPECT_TRUE(salida.isEmpty());
}

TEST_F(Verbos, TanqueConElProyectoHidroneumatico) {
    const QString archivo = Copia("Vivienda con Tanque Hidroneumatico");
    ASSERT_EQ(Correr({QStringLiteral("tanque"), archivo, QStringLiteral("--metodo"), QStringLiteral("3"),
                      QStringLiteral("--factor"), QStringLiteral("2.08"), QStringLiteral("--json")}),
              0)
        << errores.toStdString();
    EXPECT_EQ(Json()[QStringLiteral("entradas")][QStringLiteral("NumeroPiezas")].toInt(), 17);
    EXPECT_NEAR(Json()[QStringLiteral("resultados")][QStringLiteral("QB")].toDouble(), 17 * 2.08 / 60.0, 1e-12);
}

TEST_F(Verbos, ComputosDeUnEjemploAnalizado) {
    // What the lists hold before an analysis is checked with the take-off screen.
    const QString archivo = Copia("Vivienda con Tanque Hidroneumatico");
    ASSERT_EQ(Correr({QStringLiteral("analizar"), archivo}), 0);
    ASSERT_EQ(Correr({QStringLiteral("computos"), archivo, QStringLiteral("--json")}), 0);
    const QJsonObject o = Json();
    EXPECT_FALSE(o[QStringLiteral("Tuberias")].toArray().isEmpty());
    EXPECT_FALSE(o[QStringLiteral("Reducciones")].toArray().isEmpty());
    bool filtro = false;
    for (const QJsonValue& f : o[QStringLiteral("Conexiones")].toArray())
        filtro |= f[QStringLiteral("Descripcion")].toString() == QStringLiteral("FILTRO DE SEDIMENTOS");
    EXPECT_TRUE(filtro);
    ASSERT_EQ(Correr({QStringLiteral("computos"), archivo}), 0);
    EXPECT_TRUE(salida.contains(QStringLiteral("== Tuberías ==")));
}
