#include "Apoyo.h"

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <gtest/gtest.h>

TEST(LineaComandos, IniciarPreparaLaCarpetaYLaMuestra) {
    QTemporaryDir dir;
    const QString datos = dir.path() + QStringLiteral("/datos");
    QString salida, errores;
    ASSERT_EQ(EjecutarPrograma({QStringLiteral("iniciar")}, &salida, &errores,
                               {QStringLiteral("FONTARIA_DATOS=") + datos}),
              0)
        << errores.toStdString();
    EXPECT_EQ(salida.trimmed(), datos);
    EXPECT_TRUE(QFileInfo::exists(datos + QStringLiteral("/Trabajo/Trabajo.mdb")));
}

TEST(LineaComandos, ImportarYExportarIdaYVuelta) {
    SesionPrueba sp;
    // Each field's round trip is checked with the JSON import and export.
    const QString json = EscribirArchivo(sp.Datos(QStringLiteral("p.json")),
                                         R"({"DatosGenerales":{"Proyecto":"Casa","Fecha":"01/02/2023","Velocidad":1.4},
               "Ramales":[{"NodoI":"A","Nodoj":"B","longitudReal":4.2,
                           "Piezas":[{"Clave":10,"Pieza":"LAVAMANOS","UnidadesGasto":1,"Cantidad":2}]}],
               "Nodos":[{"CotaPiso":1.5},{"CotaPiso":4.5}]})");
    const QString plm = sp.Datos(QStringLiteral("p.plm"));
    QString salida, errores;
    ASSERT_EQ(EjecutarPrograma({QStringLiteral("proyecto"), QStringLiteral("importar"), json, plm}, &salida, &errores),
              0)
        << errores.toStdString();
    ASSERT_EQ(EjecutarPrograma({QStringLiteral("proyecto"), QStringLiteral("exportar"), plm}, &salida, &errores), 0);
    const QJsonObject o = QJsonDocument::fromJson(salida.toUtf8()).object();
    EXPECT_EQ(o[QStringLiteral("DatosGenerales")][QStringLiteral("Proyecto")].toString(), QStringLiteral("Casa"));
    const QJsonObject r = o[QStringLiteral("Ramales")].toArray()[0].toObject();
    EXPECT_EQ(r[QStringLiteral("Piezas")].toArray()[0].toObject()[QStringLiteral("Cantidad")].toInt(), 2);
    EXPECT_EQ(o[QStringLiteral("Nodos")].toArray()[1].toObject()[QStringLiteral("Nodo")].toString(), QStringLiteral("B"));
    EXPECT_DOUBLE_EQ(o[QStringLiteral("Nodos")].toArray()[1].toObject()[QStringLiteral("CotaRelativa")].toDouble(), 3.0);
}

TEST(LineaComandos, ErroresEnEspanolConEstadoDistintoDeCero) {
    SesionPrueba sp;
    QString salida, errores;
    EXPECT_EQ(EjecutarPrograma({QStringLiteral("proyecto"), QStringLiteral("exportar"),
                                sp.Datos(QStringLiteral("no-existe.plm"))},
                               &salida, &errores),
              1);
    EXPECT_TRUE(errores.contains(QStringLiteral("No se encuentra el archivo")));
    EXPECT_TRUE(salida.isEmpty());
    EXPECT_EQ(EjecutarPrograma({QStringLiteral("volar")}, &salida, &errores), 1);
    EXPECT_TRUE(errores.startsWith(QStringLiteral("Verbo desconocido: volar")));
    EXPECT_EQ(EjecutarPrograma({QStringLiteral("proyecto"), QStringLiteral("importar"),
                                sp.Datos(QStringLiteral("falta.json")), sp.Datos(QStringLiteral("x.plm"))},
                               &salida, &errores),
              1);
    EXPECT_TRUE(errores.contains(QStringLiteral("No se puede leer el archivo")));
    EXPECT_FALSE(QFileInfo::exists(sp.Datos(QStringLiteral("x.plm"))));
}
