// `fontaria reporte`: the reports written from the command line, end to end.

#include "support/Apoyo.h"

#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <gtest/gtest.h>
#include <unistd.h>

namespace {

struct VerboReporte : ::testing::Test {
    SesionPrueba sp;
    QString salida, errores;
    int Reporte(const QString& proyecto, const char* plantilla, const QString& destino, bool color = false) {
        QStringList args{QStringLiteral("reporte"), proyecto, QStringLiteral("--plantilla"), QString::fromLatin1(plantilla),
                         QStringLiteral("--salida"), destino};
        if (color) args << QStringLiteral("--color");
        return EjecutarPrograma(args, &salida, &errores, {QStringLiteral("FONTARIA_DATOS=") + sp.s.DirectorioDatos});
    }
    QString Copia(const QString& ejemplo) {
        return sp.CopiaDeEjemplo(ejemplo + QStringLiteral(".nivo"), ejemplo + QStringLiteral(".plm"));
    }
};

QString TextoPdf(const QString& pdf) {
    QProcess p;
    p.start(QStringLiteral("pdftotext"), {pdf, QStringLiteral("-")});
    EXPECT_TRUE(p.waitForFinished(30000));
    return QString::fromUtf8(p.readAllStandardOutput()).simplified();
}

const char* const Resultados[] = {"UnidadesGasto", "LongitudesEquivalentes", "PerdidasPresiones",
                                  "Predimensionado", "Resultado", "Portada"};

}  // namespace

TEST_F(VerboReporte, CadaEjemploImprimeSusSeisReportes) {
    // The project names are the samples' own; each report shows it (the
    // cover in its body, the others in the header and the foot).
    const std::pair<const char*, const char*> ejemplos[] = {
        {"Edificio_ApartamentoTipo", "Apartamento tipo"},
        {"Edificio_GeneralesConserjeria", "Servicios generales y conserjería"},
        {"Edificio_MontantePH", "Edificio residencial en propiedad horizontal, 8 pisos"},
        {"Vivienda con Tanque Elevado", "Vivienda de una planta con tanque elevado"},
        {"Vivienda con Tanque Hidroneumatico", "Vivienda unifamiliar de dos plantas"},
    };
    for (const auto& [ejemplo, proyecto] : ejemplos) {
        const QString plm = Copia(QString::fromUtf8(ejemplo));
        for (const char* plantilla : Resultados) {
            const QString pdf = sp.Datos(QString::fromLatin1(plantilla) + QStringLiteral(".pdf"));
            ASSERT_EQ(Reporte(plm, plantilla, pdf), 0) << ejemplo << " " << plantilla << errores.toStdString();
            EXPECT_TRUE(TextoPdf(pdf).contains(QString::fromUtf8(proyecto))) << ejemplo << " " << plantilla;
        }
    }
    // The apartment's values worked by hand, with the C marks of the test
    // run: 24 fixture units in all, the meter's 5 m, bathroom 2's 4.5 m, the
    // assumed 1" of branch 2, the given 20 m at the origin.
    const std::pair<const char*, const char*> valores[] = {
        {"UnidadesGasto", "24.00"}, {"LongitudesEquivalentes", "5.00"}, {"PerdidasPresiones", "4.50"},
        {"Predimensionado", "1\""}, {"Resultado", "20.00"}, {"Portada", "ANÁLISIS Y DISEÑO DE LA RED DE FONTARIA"}};
    const QString plm = Copia(QStringLiteral("Edificio_ApartamentoTipo"));
    for (const auto& [plantilla, valor] : valores) {
        const QString pdf = sp.Datos(QStringLiteral("apto.pdf"));
        ASSERT_EQ(Reporte(plm, plantilla, pdf), 0) << errores.toStdString();
        EXPECT_TRUE(TextoPdf(pdf).contains(QString::fromUtf8(valor))) << plantilla;
    }
}

TEST_F(VerboReporte, ElAcueductoImprimeElCasoPedido) {
    // Sample A: 26 sections in its file; the maximum-demand case is 2.50
    // times the mean, the factor of its data.
    const QString acu = sp.CopiaDeEjemplo(QStringLiteral("EjemploRedA.nivo"), QStringLiteral("red.acu"));
    const QString pdf = sp.Datos(QStringLiteral("red.pdf"));
    for (const char* plantilla : {"ResultadosTodo", "ResultadosTramos", "ResultadosNodos", "Portada", "ResultadosTramosD",
                                  "ResultadosTodoD", "ArchivoDatos"}) {
        ASSERT_EQ(Reporte(acu, plantilla, pdf), 0) << plantilla << errores.toStdString();
        EXPECT_TRUE(TextoPdf(pdf).contains(QStringLiteral("Acueducto de San Rafael"))) << plantilla;
    }
    ASSERT_EQ(Reporte(acu, "ResultadosTodo", pdf), 0);
    EXPECT_TRUE(TextoPdf(pdf).contains(QStringLiteral("Número de ramales de la red 26")));
    EXPECT_TRUE(TextoPdf(pdf).contains(QStringLiteral("Caso: ConsumoMedio")));
    ASSERT_EQ(EjecutarPrograma({QStringLiteral("reporte"), acu, QStringLiteral("--plantilla"), QStringLiteral("Portada"),
                                QStringLiteral("--salida"), pdf, QStringLiteral("--caso"), QStringLiteral("2")},
                               &salida, &errores, {QStringLiteral("FONTARIA_DATOS=") + sp.s.DirectorioDatos}),
              0);
    EXPECT_TRUE(TextoPdf(pdf).contains(QStringLiteral("Q Máximo = 2.50 Consumo Medio")));
}

TEST_F(VerboReporte, LaExtensionEligeElFormato) {
    const QString plm = Copia(QStringLiteral("Vivienda con Tanque Elevado"));
    const std::pair<const char*, QByteArray> formatos[] = {
        {"r.html", "<!DOCTYPE html>"}, {"r.htm", "<!DOCTYPE html>"}, {"r.xlsx", "PK"}, {"r.rtf", "{\\rtf1"}};
    for (const auto& [nombre, firma] : formatos) {
        const QString archivo = sp.Datos(QString::fromLatin1(nombre));
        ASSERT_EQ(Reporte(plm, "Resultado", archivo), 0) << nombre << errores.toStdString();
        EXPECT_TRUE(LeerArchivo(archivo).startsWith(firma)) << nombre;
    }
    // --color reaches the report: the colour's ink in the RTF's colour table.
    EXPECT_FALSE(LeerArchivo(sp.Datos(QStringLiteral("r.rtf"))).contains("\\red31\\green78\\blue121"));
    ASSERT_EQ(Reporte(plm, "Resultado", sp.Datos(QStringLiteral("r.rtf")), true), 0);
    EXPECT_TRUE(LeerArchivo(sp.Datos(QStringLiteral("r.rtf"))).contains("\\red31\\green78\\blue121"));
    // The user's work tables are left alone: the run had a folder of its
    // own, whose link to the user's catalogue folder went with it, but not
    // the catalogue.
    EXPECT_FALSE(QFileInfo::exists(sp.Datos(QStringLiteral("Trabajo/Trabajo.mdb"))));
    QDir().mkpath(sp.Datos(QStringLiteral("BDatos")));
    EscribirArchivo(sp.Datos(QStringLiteral("BDatos/BD_Piezas_Conexiones.mdb")), "catálogo");
    ASSERT_EQ(Reporte(plm, "Portada", sp.Datos(QStringLiteral("p.pdf"))), 0);
    EXPECT_EQ(LeerArchivo(sp.Datos(QStringLiteral("BDatos/BD_Piezas_Conexiones.mdb"))), QByteArray("catálogo"));
}

TEST_F(VerboReporte, LoQueNoSePuedeHacerSeDiceEnEspanolSinDejarArchivo) {
    const QString plm = Copia(QStringLiteral("Edificio_ApartamentoTipo"));
    const QString pdf = sp.Datos(QStringLiteral("x.pdf"));
    EXPECT_EQ(Reporte(plm, "NoExiste", pdf), 1);
    EXPECT_TRUE(errores.startsWith(QStringLiteral("Plantilla desconocida: «NoExiste»."))) << errores.toStdString();
    EXPECT_TRUE(errores.contains(QStringLiteral("Resultado")));
    // An aqueduct project knows only the aqueduct's templates; one without
    // sections has nothing to solve.
    EXPECT_EQ(Reporte(sp.AcueductoEnBlanco(), "Resultado", pdf), 1);
    EXPECT_TRUE(errores.startsWith(QStringLiteral("Plantilla desconocida"))) << errores.toStdString();
    EXPECT_TRUE(errores.contains(QStringLiteral("ResultadosTodo"))) << errores.toStdString();
    EXPECT_EQ(Reporte(sp.AcueductoEnBlanco(), "ResultadosTodo", pdf), 2);
    EXPECT_TRUE(errores.contains(QStringLiteral("Número de Ramales = 0"))) << errores.toStdString();
    EXPECT_EQ(Reporte(plm, "Resultado", sp.Datos(QStringLiteral("x.doc"))), 1);
    EXPECT_TRUE(errores.startsWith(QStringLiteral("Extensión desconocida del archivo de salida"))) << errores.toStdString();
    EXPECT_EQ(Reporte(sp.Datos(QStringLiteral("falta.plm")), "Resultado", pdf), 1);
    EXPECT_FALSE(errores.isEmpty());
    EXPECT_EQ(Reporte(plm, "Resultado", sp.Datos(QStringLiteral("NoHay/x.pdf"))), 1);
    EXPECT_TRUE(errores.contains(QStringLiteral("la carpeta no existe"))) << errores.toStdString();
    // A folder without write permission; the superuser writes anywhere
    // but in /proc.
    const QString cerrada = sp.Datos(QStringLiteral("Cerrada"));
    QDir().mkpath(cerrada);
    QFile::setPermissions(cerrada, QFile::ReadOwner | QFile::ExeOwner);
    const QString destino = geteuid() == 0 ? QStringLiteral("/proc/x.pdf") : cerrada + QStringLiteral("/x.pdf");
    EXPECT_NE(Reporte(plm, "Resultado", destino), 0);
    EXPECT_TRUE(errores.contains(QStringLiteral("No se pu"))) << errores.toStdString();
    EXPECT_FALSE(QFileInfo::exists(destino));
    QFile::setPermissions(cerrada, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    EXPECT_FALSE(QFileInfo::exists(pdf));
}

TEST(LineaComandos, ElProgramaDeLineaNoCargaLaBibliotecaGraficaDeQt) {
    QProcess p;
    p.start(QStringLiteral("readelf"), {QStringLiteral("-d"), EjecutablePruebas()});
    ASSERT_TRUE(p.waitForFinished(30000));
    const QString dinamicas = QString::fromUtf8(p.readAllStandardOutput());
    EXPECT_TRUE(dinamicas.contains(QStringLiteral("libQt6Core")));
    EXPECT_FALSE(dinamicas.contains(QStringLiteral("libQt6Gui")));
}

TEST_F(VerboReporte, LosReportesDeDatosSalenComoDesdeLaPantalla) {
    // The texts picked by hand from the apartment's file and the factory
    // catalogue; the tank sample opens on method 1 (the screen's default).
    const QString apto = Copia(QStringLiteral("Edificio_ApartamentoTipo"));
    const QString tanque = Copia(QStringLiteral("Vivienda con Tanque Hidroneumatico"));
    QDir().mkpath(sp.Datos(QStringLiteral("BDatos")));  // the user's catalogue, as the first start leaves it
    sp.CopiaDeEjemplo(QStringLiteral("BDPiezasConexiones.nivo"), QStringLiteral("BDatos/BD_Piezas_Conexiones.mdb"));
    const struct {
        const QString& proyecto;
        const char* plantilla;
        const char* titulo;
        const char* texto;
    } casos[] = {
        {apto, "Computos", "COMPUTOS DE MATERIALES", "LAVAPLATOS AUTOMÁTICO"},
        {tanque, "Hidroneumatico", "TANQUE HIDRONEUMÁTICO",
         "El Caudal de Bombeo se asume como un Porcentaje del Caudal Máximo probable."},
        {apto, "BDPiezas", "BASE DE DATOS DE PIEZAS SANITARIAS", "URINARIO DE VÁLVULA"},
        {apto, "BDConexionesFoto", "BASE DE DATOS DE CONEXIONES", "VÁLVULA DE RETENCIÓN"},
        {apto, "DatosProyecto", "DATOS GENERALES DEL PROYECTO", "LAVANDERIA"},
        {apto, "PiezasRamalesFoto", "PIEZAS SANITARIAS EN LOS RAMALES", "LAVADORA AUTOMÁTICA"},
        {apto, "ConexionesRamales", "CONEXIONES EN LOS RAMALES", "MEDIDOR DE AGUA"},
    };
    const QString pdf = sp.Datos(QStringLiteral("datos.pdf"));
    for (const auto& k : casos) {
        ASSERT_EQ(Reporte(k.proyecto, k.plantilla, pdf), 0) << k.plantilla << errores.toStdString();
        const QString texto = TextoPdf(pdf);
        EXPECT_TRUE(texto.contains(QString::fromUtf8(k.titulo))) << k.plantilla;
        EXPECT_TRUE(texto.contains(QString::fromUtf8(k.texto))) << k.plantilla;
    }
}
