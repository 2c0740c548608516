#include "Apoyo.h"
#include "model/ProyectoJson.h"
#include "store/Conexion.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <gtest/gtest.h>

namespace {

const char* kJson = R"({
  "DatosGenerales": {"Proyecto": "Vivienda Ruiz", "Ubicacion": "Cumaná", "Calculista": "M. Salas",
    "Cliente": "Familia Ruiz", "Fecha": "02/01/2025", "Comentario": "prueba", "OpcionUsoPiezas": 1,
    "OpcionPresionInicial": 2, "Valor1": 8, "Valor2": 12.5, "Valor3": 4, "Velocidad": 1.1,
    "OpcionDiametro": 2, "DiametroMinimo": true, "OpcionPerdidas": 1, "CoeficienteC": 130,
    "OpcionPresionM": false, "PresionM": 35},
  "Ramales": [
    {"NodoI": "T", "Nodoj": "1", "longitudReal": 6, "OpcionDiseño": 0, "ValvulaR": 0, "Comentario": "montante",
     "Predimensionado": "1 1/2", "Reduccion": "", "Piezas": [],
     "Conexiones": [{"Clave": 5, "Conexion": "CODO DE 90 GRADOS", "LongitudEquivalente": 0, "Cantidad": 3,
                     "OpcionAutomatico": true}]},
    {"NodoI": "1", "Nodoj": "2", "longitudReal": 3.75, "OpcionDiseño": 1, "ValvulaR": 2.5, "Comentario": "",
     "Predimensionado": "", "Reduccion": "REDUCCIÓN DE  1 1/2\"  a  1\"",
     "Piezas": [{"Clave": 4, "Pieza": "DUCHA", "UnidadesGasto": 1.5, "Cantidad": 2},
                {"Clave": 21, "Pieza": "APTO 2", "UnidadesGasto": 12.25, "Cantidad": 1}],
     "Conexiones": []}
  ],
  "Nodos": [{"Nodo": "T", "CotaPiso": 9}, {"Nodo": "1", "CotaPiso": 6}, {"Nodo": "2", "CotaPiso": 3}]
})";

QString Escribir(SesionPrueba& sp, const QString& nombre, const QByteArray& texto) {
    return EscribirArchivo(sp.Datos(nombre), texto);
}

}  // namespace

TEST(ProyectoJson, JsonPlmJsonConservaLoQueElArchivoGuarda) {
    SesionPrueba sp;
    const QString json = Escribir(sp, QStringLiteral("p.json"), kJson);
    const QString plm = sp.Datos(QStringLiteral("p.plm"));
    QString error;
    ASSERT_TRUE(ImportarProyecto(json, plm, sp.s, error)) << error.toStdString();
    QJsonObject o;
    ASSERT_TRUE(ExportarProyecto(plm, sp.s, o, error)) << error.toStdString();

    const QJsonObject entrada = QJsonDocument::fromJson(kJson).object();
    const QJsonObject g = o[QStringLiteral("DatosGenerales")].toObject();
    const QJsonObject ge = entrada[QStringLiteral("DatosGenerales")].toObject();
    for (const QString& k : ge.keys()) {
        if (k == QLatin1String("Ubicacion") || k == QLatin1String("Cliente")) continue;
        EXPECT_EQ(g[k], ge[k]) << k.toStdString();
    }
    EXPECT_EQ(g[QStringLiteral("Ubicacion")].toString(), QString());  // not written
    EXPECT_EQ(g[QStringLiteral("Cliente")].toString(), QString());    // not read

    const QJsonArray r = o[QStringLiteral("Ramales")].toArray();
    const QJsonArray re = entrada[QStringLiteral("Ramales")].toArray();
    ASSERT_EQ(r.size(), 2);
    for (int i = 0; i < 2; ++i)
        for (const QString& k : re[i].toObject().keys())
            EXPECT_EQ(r[i].toObject()[k], re[i].toObject()[k]) << i << " " << k.toStdString();
    EXPECT_EQ(r[1].toObject()[QStringLiteral("NPiezas")].toInt(), 2);

    const QJsonArray n = o[QStringLiteral("Nodos")].toArray();
    ASSERT_EQ(n.size(), 3);
    EXPECT_EQ(n[2].toObject()[QStringLiteral("Nodo")].toString(), QStringLiteral("2"));
    // Elevated tank: node 2 is the reference, node 1 keeps its level.
    EXPECT_DOUBLE_EQ(n[2].toObject()[QStringLiteral("CotaRelativa")].toDouble(), -3.0);
    EXPECT_DOUBLE_EQ(n[0].toObject()[QStringLiteral("CotaRelativa")].toDouble(), 9.0);
}

TEST(ProyectoJson, DatosMalosDanUnMensajeYNoDejanArchivo) {
    SesionPrueba sp;
    const QString plm = sp.Datos(QStringLiteral("malo.plm"));
    QString error;
    const QString noNumero = Escribir(sp, QStringLiteral("a.json"),
                                      R"({"Ramales":[{"NodoI":"A","Nodoj":"B","longitudReal":"diez"}]})");
    EXPECT_FALSE(ImportarProyecto(noNumero, plm, sp.s, error));
    EXPECT_EQ(error, QStringLiteral("El valor de \"longitudReal\" en el ramal 1 no es un número."));
    EXPECT_FALSE(QFile::exists(plm));

    const QString opcion = Escribir(sp, QStringLiteral("b.json"),
                                    R"({"DatosGenerales":{"OpcionPerdidas":3},"Ramales":[{"NodoI":"A","Nodoj":"B"}]})");
    EXPECT_FALSE(ImportarProyecto(opcion, plm, sp.s, error));
    EXPECT_TRUE(error.contains(QStringLiteral("OpcionPerdidas")));

    const QString roto = Escribir(sp, QStringLiteral("c.json"), "{\"Ramales\": [");
    EXPECT_FALSE(ImportarProyecto(roto, plm, sp.s, error));
    EXPECT_TRUE(error.startsWith(QStringLiteral("El archivo no es un proyecto en JSON válido")));

    const QString sinRamales = Escribir(sp, QStringLiteral("d.json"), R"({"DatosGenerales":{}})");
    EXPECT_FALSE(ImportarProyecto(sinRamales, plm, sp.s, error));
    EXPECT_FALSE(QFile::exists(plm));

    // An existing project is left untouched by a failed import.
    const QString bueno = Escribir(sp, QStringLiteral("e.json"), kJson);
    ASSERT_TRUE(ImportarProyecto(bueno, plm, sp.s, error));
    const QByteArray antes = LeerArchivo(plm);
    EXPECT_FALSE(ImportarProyecto(noNumero, plm, sp.s, error));
    EXPECT_EQ(LeerArchivo(plm), antes);
}

TEST(ProyectoJson, ExportarUnArchivoAjenoEsUnError) {
    SesionPrueba sp;
    QString error;
    QJsonObject o;
    // A database without the project's tables.
    EXPECT_FALSE(ExportarProyecto(sp.s.RutaImagen(QStringLiteral("Malla.nivo")), sp.s, o, error));
    EXPECT_TRUE(error.startsWith(QStringLiteral("El archivo no es un proyecto de Fontaria")));
    const QString texto = Escribir(sp, QStringLiteral("x.plm"), "hola");
    EXPECT_FALSE(ExportarProyecto(texto, sp.s, o, error));
    EXPECT_FALSE(error.isEmpty());
}

// Each file is refused with its own Spanish message, and no .plm is made.
TEST(ProyectoJson, ArchivosQueNoSonUnProyectoSeRechazanEnEspanol) {
    SesionPrueba sp;
    QByteArray muchosNodos = "{\"Ramales\":[{\"NodoI\":\"A\",\"Nodoj\":\"B\"}],\"Nodos\":[{}";
    for (int i = 1; i < 32768; ++i) muchosNodos += ",{}";
    muchosNodos += "]}";
    const struct {
        QByteArray texto;
        QString error;  // after "El archivo no es un proyecto en JSON válido: <ruta> (" when it ends in ')'
    } casos[] = {
        {"[1, 2]", QStringLiteral("la raíz no es un objeto)")},
        {"{\"Ramales\": [", QStringLiteral("una lista sin cerrar, en la posición 13)")},
        {"{\"DatosGenerales\": {\"Proyecto\": \"Casa", QStringLiteral("un texto sin cerrar, en la posición 37)")},
        {"{\"a\": 1} x", QStringLiteral("texto sobrante tras el final, en la posición 9)")},
        {"", QStringLiteral("un valor no válido, en la posición 0)")},
        {muchosNodos, QStringLiteral("El proyecto tiene 32768 nodos; el máximo es 32767.")},
        {R"({"Ramales":[{"NodoI":"A","Nodoj":"B","NPiezas":2,"Piezas":[]}]})",
         QStringLiteral("El ramal 1 dice NPiezas = 2, pero su lista \"Piezas\" tiene 0 filas.")},
        {R"({"Ramales":[{"NodoI":"A","Nodoj":"B","NConexiones":1,
             "Conexiones":[{"Clave":5,"Cantidad":1},{"Clave":6,"Cantidad":1}]}]})",
         QStringLiteral("El ramal 1 dice NConexiones = 1, pero su lista \"Conexiones\" tiene 2 filas.")},
    };
    const QString plm = sp.Datos(QStringLiteral("x.plm"));
    for (const auto& c : casos) {
        const QString json = Escribir(sp, QStringLiteral("x.json"), c.texto);
        QString error;
        EXPECT_FALSE(ImportarProyecto(json, plm, sp.s, error)) << c.texto.left(60).toStdString();
        const QString esperado = c.error.endsWith(QLatin1Char(')'))
                                     ? QStringLiteral("El archivo no es un proyecto en JSON válido: ") + json +
                                           QStringLiteral(" (") + c.error
                                     : c.error;
        EXPECT_EQ(error, esperado);
        EXPECT_FALSE(QFile::exists(plm));
    }
    // Counts that agree with their lists are taken.
    QString error;
    const QString acorde = Escribir(sp, QStringLiteral("y.json"),
                                    R"({"Ramales":[{"NodoI":"A","Nodoj":"B","NPiezas":1,"NConexiones":0,
                                        "Piezas":[{"Clave":4,"Cantidad":1}]}]})");
    EXPECT_TRUE(ImportarProyecto(acorde, plm, sp.s, error)) << error.toStdString();
}

TEST(ProyectoJson, SoloSeImportaDeUnArchivoComunYDeTamanoAcotado) {
    SesionPrueba sp;
    const TuberiaPrueba tuberia(sp.Datos(QStringLiteral("tuberia.json")));
    QDir().mkpath(sp.Datos(QStringLiteral("carpeta.json")));
    // Sparse: one byte past the bound costs no disk.
    QFile grande(sp.Datos(QStringLiteral("grande.json")));
    ASSERT_TRUE(grande.open(QIODevice::WriteOnly) && grande.resize(qint64(512) * 1024 * 1024 + 1));
    grande.close();
    const struct {
        QString ruta, motivo;
    } casos[] = {
        {tuberia.ruta, QStringLiteral(" (no es un archivo común)")},
        {sp.Datos(QStringLiteral("carpeta.json")), QStringLiteral(" (no es un archivo común)")},
        {grande.fileName(), QStringLiteral(" (pasa de 512 MB)")},
    };
    const QString plm = sp.Datos(QStringLiteral("x.plm"));
    for (const auto& c : casos) {
        QString error;
        EXPECT_FALSE(ImportarProyecto(c.ruta, plm, sp.s, error));
        EXPECT_EQ(error, QStringLiteral("No se puede leer el archivo: ") + c.ruta + c.motivo);
        EXPECT_FALSE(QFile::exists(plm));
    }
}

// An import killed half way leaves its temporary copy and a live journal
// beside the target; here they come from the aqueduct template, as from an
// older program's template.  The next import starts clean and leaves nothing.
TEST(ProyectoJson, LosRestosDeUnaImportacionInterrumpidaNoEntranEnLaSiguiente) {
    SesionPrueba sp;
    const QString base = sp.AcueductoEnBlanco(QStringLiteral("interrumpida.acu"));
    const QString temporal = sp.Datos(QStringLiteral(".x.plm.tmp"));
    {
        Conexion c;
        ASSERT_TRUE(c.Abrir(base));
        // A small cache spills the changes into the file before the commit.
        ASSERT_TRUE(c.EjecutarGuion(QStringLiteral(
            "PRAGMA cache_size=10; BEGIN; DELETE FROM Tramos; CREATE TABLE Relleno(x);"
            "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i+1 FROM n WHERE i<2000) "
            "INSERT INTO Relleno SELECT randomblob(500) FROM n;")));
        ASSERT_TRUE(QFile::exists(base + QStringLiteral("-journal")));
        ASSERT_TRUE(QFile::copy(base, temporal));
        ASSERT_TRUE(QFile::copy(base + QStringLiteral("-journal"), temporal + QStringLiteral("-journal")));
    }
    const QString json = Escribir(sp, QStringLiteral("p.json"), kJson);
    const QString plm = sp.Datos(QStringLiteral("x.plm"));
    QString error;
    ASSERT_TRUE(ImportarProyecto(json, plm, sp.s, error)) << error.toStdString();
    QJsonObject o;
    ASSERT_TRUE(ExportarProyecto(plm, sp.s, o, error)) << error.toStdString();
    EXPECT_EQ(o[QStringLiteral("Ramales")].toArray().size(), 2);
    EXPECT_FALSE(QFile::exists(temporal));
    EXPECT_FALSE(QFile::exists(temporal + QStringLiteral("-journal")));
}
