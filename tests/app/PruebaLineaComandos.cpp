#include "Apoyo.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <cstdio>
#include <gtest/gtest.h>
#include <sys/stat.h>

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

// An import writes a new file in place of the target only when the target is
// an ordinary writable file other than its own input; otherwise the target is
// left exactly as it was.
TEST(LineaComandos, ImportarNoReemplazaLoQueNoEsUnArchivoPropio) {
    SesionPrueba sp;
    const struct {
        const char* verbo;
        const char* extension;
        QByteArray json;
    } verbos[] = {
        {"proyecto", "plm", R"({"Ramales":[{"NodoI":"A","Nodoj":"B","longitudReal":3}]})"},
        {"acueducto", "acu", R"({"Tramos":[{"Inicio":"A","Final":"B","Longitud":10}]})"},
    };
    for (const auto& v : verbos) {
        const QString json = EscribirArchivo(sp.Datos(QStringLiteral("red.json")), v.json);
        const QString soloLectura =
            EscribirArchivo(sp.Datos(QStringLiteral("leer.") + QString::fromLatin1(v.extension)), "original");
        QFile(soloLectura).setPermissions(QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther);
        const TuberiaPrueba tuberia(sp.Datos(QStringLiteral("tubo.") + QString::fromLatin1(v.extension)));
        const QString apuntado = EscribirArchivo(sp.Datos(QStringLiteral("apuntado.txt")), "apuntado");
        const QString enlace = sp.Datos(QStringLiteral("enlace.") + QString::fromLatin1(v.extension));
        QFile::remove(enlace);
        ASSERT_TRUE(QFile::link(apuntado, enlace));
        const struct {
            QString destino, motivo;
        } casos[] = {
            {soloLectura, QStringLiteral("es de sólo lectura")},
            {tuberia.ruta, QStringLiteral("no es un archivo común")},
            {json, QStringLiteral("es el mismo archivo de entrada")},
            {enlace, QStringLiteral("es un enlace simbólico")},
        };
        for (const auto& c : casos) {
            const QByteArray antes = QFileInfo(c.destino).isFile() ? LeerArchivo(c.destino) : QByteArray();
            QString salida, errores;
            EXPECT_EQ(EjecutarPrograma({QString::fromLatin1(v.verbo), QStringLiteral("importar"), json, c.destino},
                                       &salida, &errores),
                      1)
                << v.verbo << " " << c.motivo.toStdString();
            EXPECT_EQ(errores.trimmed(),
                      QStringLiteral("No se puede escribir el archivo: ") + c.destino + QStringLiteral(" (") +
                          c.motivo + QLatin1Char(')'));
            if (QFileInfo(c.destino).isFile()) EXPECT_EQ(LeerArchivo(c.destino), antes);
        }
        EXPECT_TRUE(QFileInfo(tuberia.ruta).exists() && !QFileInfo(tuberia.ruta).isFile());
        EXPECT_TRUE(QFileInfo(enlace).isSymLink());
        EXPECT_EQ(LeerArchivo(apuntado), QByteArray("apuntado"));
        EXPECT_EQ(LeerArchivo(json), v.json);
    }
}

// A name from an old archive written in Latin-1 ("Diseño.plm" with the byte
// 0xF1) is not UTF-8: it is reached by its own bytes, to read and to write.
TEST(LineaComandos, UnNombreQueNoEsUtf8SeAbreYSeEscribe) {
    SesionPrueba sp;
    const QByteArray diseno = QFile::encodeName(sp.s.DirectorioDatos) + "/Dise\xf1o.plm";
    const QByteArray muestra = LeerArchivo(sp.s.RutaImagen(QStringLiteral("Edificio_MontantePH.nivo")));
    ASSERT_FALSE(muestra.isEmpty());
    FILE* f = fopen(diseno.constData(), "wb");
    ASSERT_NE(f, nullptr);
    fwrite(muestra.constData(), 1, size_t(muestra.size()), f);
    fclose(f);
    // The shell hands the bytes over as they are (\361 is 0xF1).
    const auto Correr = [&](const QString& orden, QString* salida) {
        QProcess p;
        p.setWorkingDirectory(sp.s.DirectorioDatos);
        p.start(QStringLiteral("/bin/sh"),
                {QStringLiteral("-c"), QStringLiteral("exec \"$0\" ") + orden, EjecutablePruebas()});
        p.waitForFinished(120000);
        *salida = QString::fromUtf8(p.readAllStandardOutput());
        return p.exitCode();
    };
    QString salida;
    EXPECT_EQ(Correr(QStringLiteral("analizar \"$(printf 'Dise\\361o.plm')\" --json"), &salida), 0);
    EXPECT_GT(QJsonDocument::fromJson(salida.toUtf8())[QStringLiteral("NumeroRamales")].toInt(), 0);
    ASSERT_EQ(Correr(QStringLiteral("proyecto exportar \"$(printf 'Dise\\361o.plm')\""), &salida), 0);
    EscribirArchivo(sp.Datos(QStringLiteral("p.json")), salida.toUtf8());
    EXPECT_EQ(Correr(QStringLiteral("proyecto importar p.json \"$(printf 'Nuevo\\361.plm')\""), &salida), 0);
    struct stat st {};
    EXPECT_EQ(stat((QFile::encodeName(sp.s.DirectorioDatos) + "/Nuevo\xf1.plm").constData(), &st), 0);
    EXPECT_EQ(QDir(sp.s.DirectorioDatos).entryList({QStringLiteral(".*tmp*")}, QDir::Hidden | QDir::Files).size(), 0);
}
