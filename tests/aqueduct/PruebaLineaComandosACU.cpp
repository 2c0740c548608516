// `fontaria acueducto`: the sample networks, the exit statuses of refused
// and failed runs, JSON import and export, and the correction of directions.

#include "support/Apoyo.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <gtest/gtest.h>

namespace {

struct Consola {
    SesionPrueba sp;
    QStringList entorno{QStringLiteral("FONTARIA_DATOS=") + sp.s.DirectorioDatos};
    QString salida, errores;

    int Correr(const QStringList& args) {
        return EjecutarPrograma(QStringList{QStringLiteral("acueducto")} + args, &salida, &errores, entorno);
    }
    QJsonObject Json() const { return QJsonDocument::fromJson(salida.toUtf8()).object(); }
    QString Escribir(const QString& nombre, const QByteArray& texto) {
        return EscribirArchivo(sp.Datos(nombre), texto);
    }
    // A project made from JSON text through the command line.
    QString Proyecto(const QByteArray& json, const QString& nombre = QStringLiteral("red.acu")) {
        const QString destino = sp.Datos(nombre);
        EXPECT_EQ(Correr({QStringLiteral("importar"), Escribir(nombre + ".json", json), destino}), 0)
            << errores.toStdString();
        return destino;
    }
};

const QByteArray UnTubo = R"({"Generales": {"CasoPorcentaje": 2, "OpcionConsumo": 2},
  "Tramos": [{"Inicio": "T", "Final": "N", "Longitud": %L, "Diametro": 0.2, "CoeficienteC": 100}],
  "Nodos": [{"Nodos": "T", "CotaTerreno": 50, "CotaBombaEstanque": %T}, {"Nodos": "N", "ConsumoMedio": 10, "CotaTerreno": 40, "CotaBombaEstanque": %N}]})";

QByteArray Tubo(const char* longitud, const char* tanque, const char* nodo = "0") {
    return QByteArray(UnTubo).replace("%L", longitud).replace("%T", tanque).replace("%N", nodo);
}

}  // namespace

TEST(LineaComandosACU, LosEjemplosSeResuelvenConPresionesRazonables) {
    for (const char* nombre : {"EjemploRedA", "EjemploRedB"}) {
        Consola c;
        const QString acu = c.sp.CopiaDeEjemplo(QStringLiteral("%1.nivo").arg(nombre), QStringLiteral("ejemplo.acu"));
        for (int caso = 1; caso <= 3; ++caso) {
            ASSERT_EQ(c.Correr({acu, QStringLiteral("--caso"), QString::number(caso), QStringLiteral("--json")}), 0)
                << nombre << c.errores.toStdString();
            const QJsonObject o = c.Json();
            EXPECT_EQ(o["ErrorAnalisis"].toInt(), 0);
            EXPECT_EQ(o["CasoDemanda"].toInt(), caso);
            EXPECT_EQ(o["iteraciones"].toArray().size(), caso == 3 ? 2 : 1);
            // Always present; a sample converges in every pass.
            const QJsonObject conv = o["Convergencia"].toObject();
            EXPECT_TRUE(conv["Convergio"].toBool());
            EXPECT_EQ(conv["Iteraciones"].toArray(), o["iteraciones"].toArray());
            EXPECT_TRUE(conv["Desbalance"].isArray());
            const QJsonArray nodos = o["nodos"].toArray();
            ASSERT_EQ(nodos.size(), o["NumeroNodosACU"].toInt());
            for (const QJsonValue& v : nodos) {
                const QJsonObject n = v.toObject();
                if (n["CotaBombaEstanque"].toDouble() != 0) continue;
                EXPECT_GE(n["Presion"].toDouble(), 10.0) << nombre << " caso " << caso;
                EXPECT_LE(n["Presion"].toDouble(), 60.0) << nombre << " caso " << caso;
                EXPECT_NEAR(n["DemandaCalculo"].toDouble(), n["DemandaReal"].toDouble(), 1e-3);
            }
            const QJsonObject t = o["tramos"].toArray()[0].toObject();
            EXPECT_EQ(t["NodosTramo"].toArray().size(), 2);
            for (const char* clave : {"LongitudCalculo", "Caudal", "Velocidad", "Perdidas", "HF", "CoeficienteC"})
                EXPECT_TRUE(t.contains(QLatin1String(clave))) << clave;
        }
        // Text: the case and the two grids.
        ASSERT_EQ(c.Correr({acu}), 0);
        EXPECT_TRUE(c.salida.contains("Qm = Consumo Medio"));
        EXPECT_TRUE(c.salida.contains("Ramal||"));
    }
}

TEST(LineaComandosACU, RedesRechazadasYFallasDelCalculo) {
    Consola c;
    // No tank: the check of the results screen, status 2.
    const QString sinTanque = c.Proyecto(Tubo("100", "0"), "sin.acu");
    EXPECT_EQ(c.Correr({sinTanque}), 2);
    EXPECT_TRUE(c.errores.contains("Proyecto: sin.acu\n¡No se Puede Calcular la Malla sin la Existencia\n"
                                   "de al menos una Bomba ó un Estanque!"))
        << c.errores.toStdString();
    EXPECT_EQ(c.Correr({sinTanque, QStringLiteral("--json")}), 2);
    EXPECT_TRUE(c.Json()["mensaje"].toString().contains("Bomba ó un Estanque"));

    // A zero length: the trapped fault, status 3 (the solver's test has the other faults).
    const QString falla = c.Proyecto(Tubo("0", "90"), "falla.acu");
    EXPECT_EQ(c.Correr({falla, QStringLiteral("--json")}), 3);
    EXPECT_EQ(c.Json()["ErrorAnalisis"].toInt(), 1);
    EXPECT_TRUE(c.errores.contains("Proyecto: falla.acu\n¡Existe un Error al Realizar el Análisis de la Red!\n"
                                   "Revise los Datos del Proyecto..."))
        << c.errores.toStdString();

    // No sections at all, as the results command refuses it.
    const QString vacio = c.Proyecto(R"({"Generales": {"Proyecto": "nada"}})", "vacio.acu");
    EXPECT_EQ(c.Correr({vacio}), 2);
    EXPECT_TRUE(c.errores.contains("vacio.acu\nNúmero de Ramales = 0\nRevise el Archivo de Datos..."));

    EXPECT_EQ(c.Correr({sinTanque, QStringLiteral("--caso"), QStringLiteral("4")}), 1);
    EXPECT_EQ(c.Correr({c.Escribir("x.acu", "no soy una base de datos, sólo unas letras de relleno para el archivo")}), 1);
    EXPECT_TRUE(c.errores.contains("no es una base de datos"));
}

TEST(LineaComandosACU, ImportarNombraElCampoYNoDejaArchivo) {
    Consola c;
    const QString destino = c.sp.Datos("nueva.acu");
    const std::pair<QByteArray, QString> casos[] = {
        {Tubo("\"cien\"", "90"), "El valor de \"Longitud\" en el tramo 1 no es un número."},
        {R"({"Generales": {"OpcionDiametro": 4}})", "El valor de \"OpcionDiametro\" en los datos generales está fuera del intervalo 1 a 3."},
        {R"({"Tramos": [{"Inicio": "A", "Final": "Un nombre de nodo muy largo"}]})", "tiene más de 20 caracteres"},
        {R"({"Tramos": [{"Inicio": "A", "Final": " "}]})", "El tramo 1 no tiene nombre de nodo en \"Final\"."},
        {R"({"Tramos": [{"Inicio": "A", "Final": "B"}], "Nodos": [{"Nodos": "C"}]})", "El nodo \"C\" (1 de la lista) no es extremo de ningún tramo."},
        {"{ no es json", "no es un proyecto en JSON válido"},
    };
    for (const auto& [json, mensaje] : casos) {
        EXPECT_EQ(c.Correr({QStringLiteral("importar"), c.Escribir("m.json", json), destino}), 1);
        EXPECT_TRUE(c.errores.contains(mensaje)) << c.errores.toStdString();
        EXPECT_FALSE(QFile::exists(destino));
    }
    // An existing target stays as it was when the import fails.
    const QString existente = c.Proyecto(Tubo("100", "90"), "existente.acu");
    EXPECT_EQ(c.Correr({QStringLiteral("importar"), c.Escribir("m.json", Tubo("[]", "90")), existente}), 1);
    ASSERT_EQ(c.Correr({QStringLiteral("exportar"), existente}), 0);
    EXPECT_EQ(c.Json()["Tramos"].toArray()[0].toObject()["Longitud"].toDouble(), 100.0);
}

TEST(LineaComandosACU, ExportarEImportarIdaYVuelta) {
    Consola c;
    const QString b = c.sp.CopiaDeEjemplo("EjemploRedB.nivo", "b.acu");
    ASSERT_EQ(c.Correr({QStringLiteral("exportar"), b}), 0);
    const QString primero = c.salida;
    const QString copia = c.Proyecto(primero.toUtf8(), "copia.acu");
    ASSERT_EQ(c.Correr({QStringLiteral("exportar"), copia}), 0);
    EXPECT_EQ(c.salida, primero);
}

TEST(LineaComandosACU, CorregirDireccionSinPreguntas) {
    Consola c;
    const QString b = c.sp.CopiaDeEjemplo("EjemploRedB.nivo", "b.acu");
    ASSERT_EQ(c.Correr({b, QStringLiteral("--json")}), 0);
    int negativos = 0;
    for (const QJsonValue& v : c.Json()["tramos"].toArray()) negativos += v.toObject()["Caudal"].toDouble() < 0;
    ASSERT_GT(negativos, 0);

    ASSERT_EQ(c.Correr({b, QStringLiteral("--corregir-direccion"), QStringLiteral("--json")}), 0);
    EXPECT_EQ(c.Json()["mensaje"].toString(), QStringLiteral("Ramales invertidos: %1").arg(negativos));
    for (const QJsonValue& v : c.Json()["tramos"].toArray()) EXPECT_GE(v.toObject()["Caudal"].toDouble(), 0.0);
    // The file itself was turned: a fresh run finds nothing negative.
    ASSERT_EQ(c.Correr({b, QStringLiteral("--corregir-direccion"), QStringLiteral("--json")}), 0);
    EXPECT_EQ(c.Json()["mensaje"].toString(), "¡No Existe Ningún Caudal Negativo!");
}

// A pass held to 2 iterations cannot reach the tolerance on a loop (the
// first iteration takes every conductance as linear): results given, the
// warning on stderr, status 4.  The solver must honour LimiteIteraciones.
TEST(LineaComandosACU, UnPasoSinConvergenciaSaleCon4) {
    Consola c;
    const QString b = c.sp.CopiaDeEjemplo("EjemploRedB.nivo", "b.acu");
    const QStringList limite{QStringLiteral("--limite-iteraciones"), QStringLiteral("2")};
    for (int caso : {1, 3}) {
        const QStringList caso_{QStringLiteral("--caso"), QString::number(caso)};
        ASSERT_EQ(c.Correr(QStringList{b, QStringLiteral("--json")} + caso_ + limite), 4) << c.errores.toStdString();
        const QJsonObject conv = c.Json()["Convergencia"].toObject();
        EXPECT_FALSE(conv["Convergio"].toBool());
        EXPECT_EQ(conv["Iteraciones"].toArray(), (caso == 3 ? QJsonArray{2, 2} : QJsonArray{2}));
        ASSERT_EQ(conv["Desbalance"].toArray().size(), caso == 3 ? 2 : 1);
        for (const QJsonValue& d : conv["Desbalance"].toArray()) EXPECT_GT(d.toDouble(), 1e-8);
        EXPECT_FALSE(c.Json()["nodos"].toArray().isEmpty());
        EXPECT_TRUE(c.errores.startsWith(caso == 3 ? "Aviso: El cálculo sin el caudal de incendio no convergió: 2 iteraciones"
                                                   : "Aviso: El cálculo no convergió: 2 iteraciones"))
            << c.errores.toStdString();
    }
    // Plain output too.
    EXPECT_EQ(c.Correr(QStringList{b} + limite), 4);
    EXPECT_TRUE(c.salida.contains("Ramal||"));
    EXPECT_TRUE(c.errores.contains("no convergió"));
}

TEST(LineaComandosACU, LimiteDeIteracionesMalEscrito) {
    Consola c;
    const QString b = c.sp.CopiaDeEjemplo("EjemploRedB.nivo", "b.acu");
    for (const char* mal : {"0", "-3", "diez"}) {
        EXPECT_EQ(c.Correr({b, QStringLiteral("--limite-iteraciones"), QString::fromLatin1(mal)}), 1);
        EXPECT_TRUE(c.errores.contains("El límite de iteraciones debe ser un entero positivo.")) << mal;
    }
    // A limit well above what the sample needs changes nothing.
    EXPECT_EQ(c.Correr({b, QStringLiteral("--limite-iteraciones"), QStringLiteral("500")}), 0);
}
