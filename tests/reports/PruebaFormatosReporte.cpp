// The workbook and word-processor forms of the result reports, read back:
// the workbook with openpyxl (the Debian python3-openpyxl, hence the system
// interpreter), the RTF by its structure.

#include "ApoyoReportes.h"
#include "reports/TablasAcueducto.h"
#include "reports/TablasResultados.h"
#include "reports/motor/Reporte.h"

#include <QBuffer>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRegularExpression>

namespace {

// Every sheet of a workbook: its name, frozen cell and cells as [row,
// column, "n"|"s", value, number format], rows and columns from 1.
QJsonArray HojasXlsx(const QString& archivo) {
    static const char* lector = R"(
import json, sys, openpyxl
libro = openpyxl.load_workbook(sys.argv[1])
hojas = []
for h in libro:
    celdas = [[c.row, c.column, 'n' if isinstance(c.value, (int, float)) else 's', c.value, c.number_format]
              for fila in h.iter_rows() for c in fila if c.value is not None]
    hojas.append({'nombre': h.title, 'congelado': h.freeze_panes, 'celdas': celdas})
# openpyxl drops pictures without Pillow: the book's are counted in its
# package and given with the first sheet.
import zipfile
medios = [n for n in zipfile.ZipFile(sys.argv[1]).namelist() if n.startswith('xl/media/')]
hojas[0]['medios'] = len(medios)
print(json.dumps(hojas))
)";
    QProcess p;
    p.start(QStringLiteral("/usr/bin/python3"), {QStringLiteral("-c"), QString::fromUtf8(lector), archivo});
    EXPECT_TRUE(p.waitForFinished(60000));
    EXPECT_EQ(p.exitCode(), 0) << p.readAllStandardError().toStdString();
    return QJsonDocument::fromJson(p.readAllStandardOutput()).array();
}

QJsonArray Celdas(const QJsonArray& hojas, const QString& nombre) {
    for (const QJsonValue& h : hojas)
        if (h[QStringLiteral("nombre")].toString() == nombre) return h[QStringLiteral("celdas")].toArray();
    ADD_FAILURE() << "no hay la hoja " << nombre.toStdString();
    return {};
}

// The cell in `columna` of the row that has `texto` somewhere.
QJsonArray CeldaEnFila(const QJsonArray& celdas, const QString& texto, int columna) {
    int fila = 0;
    for (const QJsonValue& c : celdas)
        if (c[3].toString() == texto) fila = c[0].toInt();
    for (const QJsonValue& c : celdas)
        if (c[0].toInt() == fila && c[1].toInt() == columna) return c.toArray();
    ADD_FAILURE() << "no hay celda en la fila de " << texto.toStdString();
    return {};
}

QString Exportar(const EjemploAnalizado& e, const QString& nombre, const QString& extension) {
    Reporte r;
    EXPECT_TRUE(r.Abrir(RutaProgramaPruebas(), nombre)) << r.Error().toStdString();
    EXPECT_TRUE(r.Vincular(e.Trabajo())) << r.Error().toStdString();
    const QString archivo = e.sp.Datos(nombre + QLatin1Char('.') + extension);
    EXPECT_TRUE(extension == QLatin1String("xlsx") ? r.ExportarXlsx(archivo) : r.ExportarRtf(archivo))
        << r.Error().toStdString();
    return archivo;
}

}  // namespace

TEST(FormatosReporte, ElLibroTieneUnaHojaPorTablaYSusNumerosSonNumeros) {
    // Written under Spanish marks: the number formats keep the workbook's
    // own notation and the values stay numbers, not "4,50" texts.
    EjemploAnalizado e("es_ES");
    QString error;
    ASSERT_TRUE(LleneTablasResultados(*e.a, e.p, e.sp.s, OpcionesResultados{}, error)) << error.toStdString();

    // The apartment: 24 fixture units in all (the totals row of the
    // sub-totals), 11 from the kitchen on (2 + 2 + 3 + 4) on PASILLO-COCINA.
    const QJsonArray ug = HojasXlsx(Exportar(e, QStringLiteral("UnidadesGasto"), QStringLiteral("xlsx")));
    ASSERT_EQ(ug.size(), 1);
    EXPECT_EQ(ug[0][QStringLiteral("nombre")].toString(), QStringLiteral("UNIDADES DE GASTO Y GASTO"));
    const QJsonArray celdas = ug[0][QStringLiteral("celdas")].toArray();
    const QJsonArray total = CeldaEnFila(celdas, QStringLiteral("TOTAL DE UNIDADES DE GASTO"), 6);
    EXPECT_EQ(total[2].toString(), QStringLiteral("n"));
    EXPECT_DOUBLE_EQ(total[3].toDouble(), 24.0);
    EXPECT_EQ(total[4].toString(), QStringLiteral("0.00"));
    const QJsonArray cocina = CeldaEnFila(celdas, QStringLiteral("FREGADERO"), 7);
    EXPECT_EQ(cocina[2].toString(), QStringLiteral("n"));
    EXPECT_DOUBLE_EQ(cocina[3].toDouble(), 11.0);
    // The headers, with units, on the row above the frozen pane.
    const QJsonArray encabezado = CeldaEnFila(celdas, QStringLiteral("Gasto Probable (l/s)"), 1);
    EXPECT_EQ(encabezado[3].toString(), QStringLiteral("Nodo I"));
    EXPECT_EQ(ug[0][QStringLiteral("congelado")].toString(), QStringLiteral("A%1").arg(encabezado[0].toInt() + 1));

    // The summary: its label and value band on one sheet, the table on
    // another, the schematic's picture on a third; the given 20 m at the
    // origin, and bathroom 2's 4.5 m.
    const QJsonArray r = HojasXlsx(Exportar(e, QStringLiteral("Resultado"), QStringLiteral("xlsx")));
    ASSERT_EQ(r.size(), 3);
    EXPECT_EQ(r[2][QStringLiteral("nombre")].toString(), QStringLiteral("Esquema de la red"));
    EXPECT_EQ(r[0][QStringLiteral("medios")].toInt(), 1);
    const QJsonArray origen =
        CeldaEnFila(Celdas(r, QStringLiteral("Resultados generales de la red")), QStringLiteral("Presión en el origen de la red"), 2);
    EXPECT_EQ(origen[2].toString(), QStringLiteral("n"));
    EXPECT_DOUBLE_EQ(origen[3].toDouble(), 20.0);
    const QJsonArray presiones = HojasXlsx(Exportar(e, QStringLiteral("PerdidasPresiones"), QStringLiteral("xlsx")));
    const QJsonArray bano = CeldaEnFila(presiones[0][QStringLiteral("celdas")].toArray(), QStringLiteral("BAÑO 2"), 6);
    EXPECT_EQ(bano[2].toString(), QStringLiteral("n"));
    EXPECT_DOUBLE_EQ(bano[3].toDouble(), 4.5);
}

TEST(FormatosReporte, ElRtfLlevaTablasConSuEncabezadoRepetido) {
    EjemploAnalizado e;
    QString error;
    OpcionesResultados o;
    o.FormatoColor = false;
    ASSERT_TRUE(LleneTablasResultados(*e.a, e.p, e.sp.s, o, error));
    const QByteArray rtf = LeerArchivo(Exportar(e, QStringLiteral("UnidadesGasto"), QStringLiteral("rtf")));
    ASSERT_TRUE(rtf.startsWith("{\\rtf1\\ansi"));
    // Plain ASCII, and its groups balanced once the escaped braces are out.
    int nivel = 0, cierre = -1;
    for (int i = 0; i < rtf.size(); ++i) {
        ASSERT_LT(uchar(rtf[i]), 0x80) << i;
        if (rtf[i] == '\\') ++i;
        else if (rtf[i] == '{') ++nivel;
        else if (rtf[i] == '}' && --nivel == 0 && cierre < 0) cierre = i;
    }
    EXPECT_EQ(nivel, 0);
    EXPECT_EQ(cierre, rtf.lastIndexOf('}'));  // one outer group, closed at the end only
    // One table: its header row marked to repeat, a row per record (the
    // apartment's first two branches without pieces one each, then the
    // 2 + 2 + 3 + 3 pieces of the others) and the totals row.
    EXPECT_EQ(rtf.count("\\trhdr"), 1);
    EXPECT_EQ(rtf.count("\\row"), 1 + 2 + 10 + 1);
    // Every row closes as many cells as it defines.
    const QRegularExpression filas(QStringLiteral("\\\\trowd(.*?)\\\\row"), QRegularExpression::DotMatchesEverythingOption);
    for (auto it = filas.globalMatch(QString::fromLatin1(rtf)); it.hasNext();) {
        const QString f = it.next().captured(1);
        EXPECT_EQ(f.count(QStringLiteral("\\cellx")), 8);
        EXPECT_EQ(f.count(QStringLiteral("\\cell\n")), 8);
    }
    // Á is U+00C1 (193), Ñ U+00D1 (209).
    EXPECT_TRUE(rtf.contains("AN\\u193?LISIS Y DISE\\u209?O DE LA RED DE FONTARIA"));
    EXPECT_TRUE(rtf.contains("LAVAPLATOS AUTOM\\u193?TICO\\cell"));
    // Black and white: no colour but greys in the colour table.
    EXPECT_FALSE(rtf.contains("\\red31\\green78\\blue121"));
    // The landscape template turns the paper.
    const QByteArray apaisado = LeerArchivo(Exportar(e, QStringLiteral("PerdidasPresiones"), QStringLiteral("rtf")));
    EXPECT_TRUE(apaisado.contains("\\paperw15840\\paperh12240"));
    EXPECT_TRUE(apaisado.contains("\\landscape"));
}

TEST(FormatosReporte, LasFotosVanEnElLibroYEnElRtf) {
    // A table of two rows, one with a 4 x 2 red picture and one without.
    SesionPrueba sp;
    const QString base = sp.Datos(QStringLiteral("fotos.db"));
    QImage roja(4, 2, QImage::Format_RGB32);
    roja.fill(Qt::red);
    QByteArray png;
    QBuffer b(&png);
    b.open(QIODevice::WriteOnly);
    roja.save(&b, "PNG");
    ASSERT_TRUE(QFile::copy(sp.s.RutaImagen(QStringLiteral("Trabajo.nivo")), base));
    {
        Conexion c;
        ASSERT_TRUE(c.Abrir(base));
        ASSERT_TRUE(c.Ejecutar(QStringLiteral("INSERT INTO DatosGenerales (Proyecto, FormatoColor) VALUES ('Casa', 1)")));
        ASSERT_TRUE(c.Ejecutar(QStringLiteral("CREATE TABLE Fotos (Nombre TEXT, Foto BLOB)")));
        ASSERT_TRUE(c.Ejecutar(QStringLiteral("INSERT INTO Fotos VALUES (?, ?)"), {QStringLiteral("DUCHA"), png}));
        ASSERT_TRUE(c.Ejecutar(QStringLiteral("INSERT INTO Fotos VALUES (?, NULL)"), {QStringLiteral("BIDET")}));
    }
    QDir().mkpath(sp.Datos(QStringLiteral("Reportes")));
    EscribirArchivo(sp.Datos(QStringLiteral("Reportes/Fotos.json")),
                    R"({"titulo": "PIEZAS", "secciones": [{"tabla": "Fotos", "altoImagen": 40, "columnas": [
                        {"campo": "Nombre", "titulo": "Pieza"}, {"campo": "Foto", "titulo": "Foto", "imagen": true}]}]})");
    Reporte r;
    ASSERT_TRUE(r.Abrir(sp.s.DirectorioDatos, QStringLiteral("Fotos"))) << r.Error().toStdString();
    ASSERT_TRUE(r.Vincular(base)) << r.Error().toStdString();
    ASSERT_TRUE(r.ExportarXlsx(sp.Datos(QStringLiteral("f.xlsx")))) << r.Error().toStdString();
    const QJsonArray hojas = HojasXlsx(sp.Datos(QStringLiteral("f.xlsx")));
    ASSERT_EQ(hojas.size(), 1);
    EXPECT_EQ(hojas[0][QStringLiteral("medios")].toInt(), 1);
    ASSERT_TRUE(r.ExportarRtf(sp.Datos(QStringLiteral("f.rtf"))));
    const QByteArray rtf = LeerArchivo(sp.Datos(QStringLiteral("f.rtf")));
    EXPECT_EQ(rtf.count("{\\pict\\pngblip\\picw4\\pich2"), 1);
    EXPECT_TRUE(rtf.contains(png.toHex()));
}

TEST(FormatosReporte, UnaHojaDeCampoSaleRayadaYConSuAltoDeFila) {
    // Three blank rows of the aqueduct's sections sheet (rows 20 points
    // tall, 400 twips): in the RTF each ruled in ink and at least that tall;
    // in the workbook a number in each row under the headers.
    SesionPrueba sp;
    QDir().mkpath(sp.Datos(QStringLiteral("Trabajo")));
    CopiarBasesTrabajo(sp.s);
    const QString base = sp.Datos(QStringLiteral("Trabajo/Resultados.mdb"));
    QString error;
    ASSERT_TRUE(LleneHojasAcueducto(base, {{1, {}, {}}, {2, {}, {}}, {3, {}, {}}}, error)) << error.toStdString();
    Reporte r;
    ASSERT_TRUE(r.Abrir(RutaProgramaPruebas(), QStringLiteral("TablaTramos"), true)) << r.Error().toStdString();
    ASSERT_TRUE(r.Vincular(base)) << r.Error().toStdString();
    ASSERT_TRUE(r.ExportarRtf(sp.Datos(QStringLiteral("h.rtf"))));
    const QByteArray rtf = LeerArchivo(sp.Datos(QStringLiteral("h.rtf")));
    EXPECT_EQ(rtf.count("\\trrh400"), 3);
    EXPECT_EQ(rtf.count("\\row"), 1 + 3);
    ASSERT_TRUE(r.ExportarXlsx(sp.Datos(QStringLiteral("h.xlsx"))));
    const QJsonArray celdas = HojasXlsx(sp.Datos(QStringLiteral("h.xlsx")))[0][QStringLiteral("celdas")].toArray();
    const QJsonArray encabezado = CeldaEnFila(celdas, QStringLiteral("Ramal No"), 1);
    int numeros = 0;
    for (const QJsonValue& c : celdas)
        if (c[0].toInt() > encabezado[0].toInt() && c[1].toInt() == 1 && c[2].toString() == QLatin1String("n")) ++numeros;
    EXPECT_EQ(numeros, 3);
}
