#include "ApoyoReportes.h"
#include "reports/TablasResultados.h"
#include "reports/motor/Reporte.h"

#include <QFile>
#include <QImage>
#include <QProcess>

namespace {

QString Renderizar(const EjemploAnalizado& e, const QString& nombre, const QString& formato = QStringLiteral("pdf")) {
    Reporte r;
    EXPECT_TRUE(r.Abrir(RutaProgramaPruebas(), nombre)) << r.Error().toStdString();
    EXPECT_TRUE(r.Vincular(e.Trabajo())) << r.Error().toStdString();
    const QString archivo = e.sp.Datos(nombre + QLatin1Char('.') + formato);
    const bool ok = formato == QLatin1String("pdf") ? r.ExportarPdf(archivo) : r.ExportarHtml(archivo);
    EXPECT_TRUE(ok) << r.Error().toStdString();
    return archivo;
}

// The pages of a PDF, as pdfinfo counts them.
int Paginas(const QString& pdf) {
    QProcess p;
    p.start(QStringLiteral("pdfinfo"), {pdf});
    EXPECT_TRUE(p.waitForFinished(30000));
    const QString info = QString::fromUtf8(p.readAllStandardOutput());
    const int i = info.indexOf(QStringLiteral("Pages:"));
    return i < 0 ? 0 : info.mid(i + 6).section(QLatin1Char('\n'), 0, 0).trimmed().toInt();
}

const char* const ResultadosEdificio[] = {"UnidadesGasto", "LongitudesEquivalentes", "PerdidasPresiones",
                                          "Predimensionado", "Resultado", "Portada"};

}  // namespace

TEST(ReportesResultados, ElApartamentoSeImprimeConLosValoresQueMuestraLaPantalla) {
    // Hand-worked from the sample: 24 fixture units in all, 11 on the
    // kitchen branch; the meter's 5 m; the given 20 m at the origin; the
    // 4.5 m of bathroom 2's branch; its assumed 1" on branch 2.
    const struct {
        const char* plantilla;
        std::vector<const char*> textos;
    } casos[] = {
        {"UnidadesGasto", {"LAVAPLATOS AUTOMÁTICO", "24,00", "11,00", "Piezas Sanitarias", "Gasto Probable (l/s)"}},
        {"LongitudesEquivalentes", {"MEDIDOR DE AGUA", "5,00", "L. Equivalente Total (m)"}},
        {"PerdidasPresiones", {"20,00", "4,50", "BAÑO 2", "Presión en el Nodo J (m)"}},
        {"Predimensionado", {"4,50", "1\"", "LAVANDERIA"}},
        {"Resultado", {"20,00", "Nodo desfavorable", "Presiones en los nodos"}},
        {"Portada", {"ANÁLISIS Y DISEÑO DE LA RED DE FONTARIA", "15/01/2024", "Nivo Software"}},
    };
    EjemploAnalizado e("es_ES");
    QString error;
    ASSERT_TRUE(LleneTablasResultados(*e.a, e.p, e.sp.s, OpcionesResultados{}, error)) << error.toStdString();
    for (const auto& c : casos) {
        const QString plantilla = QString::fromLatin1(c.plantilla);
        const QString texto = TextoPdf(Renderizar(e, plantilla));
        EXPECT_TRUE(texto.contains(QStringLiteral("Apartamento tipo"))) << c.plantilla;
        for (const char* t : c.textos) EXPECT_TRUE(texto.contains(QString::fromUtf8(t))) << c.plantilla << ": " << t;
        if (plantilla != QLatin1String("Portada")) {
            EXPECT_TRUE(texto.contains(QStringLiteral("Página 1 de 1"))) << c.plantilla;
        }
        const QString html = QString::fromUtf8(LeerArchivo(Renderizar(e, plantilla, QStringLiteral("html"))));
        EXPECT_TRUE(html.contains(QStringLiteral("Apartamento tipo"))) << c.plantilla;
        for (const char* t : c.textos)
            EXPECT_TRUE(html.contains(QString::fromUtf8(t).toHtmlEscaped())) << c.plantilla << ": " << t;
    }
}

TEST(ReportesResultados, CadaEjemploImprimeTodasSusFilas) {
    // Every sample, each row's J node printed, with the C marks.
    for (const char* ejemplo : {"Edificio_ApartamentoTipo", "Edificio_GeneralesConserjeria", "Edificio_MontantePH",
                                "Vivienda con Tanque Elevado", "Vivienda con Tanque Hidroneumatico"}) {
        SCOPED_TRACE(ejemplo);
        EjemploAnalizado e("C", QString::fromUtf8(ejemplo) + QStringLiteral(".nivo"));
        QString error;
        ASSERT_TRUE(LleneTablasResultados(*e.a, e.p, e.sp.s, OpcionesResultados{}, error)) << error.toStdString();
        for (const char* plantilla : ResultadosEdificio) {
            const QString texto = TextoPdf(Renderizar(e, QString::fromLatin1(plantilla)));
            EXPECT_TRUE(texto.contains(e.p.Proyecto.simplified())) << plantilla;
        }
        const QString presiones = TextoPdf(Renderizar(e, QStringLiteral("PerdidasPresiones")));
        for (int i = 1; i <= e.p.NumeroRamales; ++i)
            EXPECT_TRUE(presiones.contains(e.p.Nodoj[i].simplified())) << i;
    }
}

TEST(ReportesResultados, UnaTablaLargaRepiteLosEncabezadosEnCadaPagina) {
    // 120 branches at about fifty rows a page: three pages, each with the
    // column headers, and the last row on the last page.
    EjemploAnalizado e;
    e.AlargarPresiones(120);
    const QString pdf = Renderizar(e, QStringLiteral("Predimensionado"));
    const int paginas = Paginas(pdf);
    ASSERT_GE(paginas, 2);
    for (int n = 1; n <= paginas; ++n) {
        const QString pagina = TextoPdf(pdf, n, n);
        EXPECT_TRUE(pagina.contains(QStringLiteral("Diámetro Asumido"))) << n;
        EXPECT_TRUE(pagina.contains(QStringLiteral("Página %1 de %2").arg(n).arg(paginas))) << n;
    }
    EXPECT_TRUE(TextoPdf(pdf, paginas, paginas).contains(QStringLiteral("N120")));
}

TEST(ReportesResultados, UnDestinoQueNoSePuedeEscribirNoDejaArchivo) {
    EjemploAnalizado e;
    QString error;
    ASSERT_TRUE(LleneTablasResultados(*e.a, e.p, e.sp.s, OpcionesResultados{}, error));
    Reporte r;
    ASSERT_TRUE(r.Abrir(RutaProgramaPruebas(), QStringLiteral("Resultado")));
    ASSERT_TRUE(r.Vincular(e.Trabajo()));
    // Each format, into a missing folder, and onto a folder: nothing is
    // written, the folder stays, and no passing file is left beside it.
    const QString carpeta = e.sp.Datos(QStringLiteral("Carpeta"));
    QDir().mkpath(carpeta);
    const std::pair<const char*, bool (Reporte::*)(const QString&)> formatos[] = {
        {"pdf", &Reporte::ExportarPdf}, {"html", &Reporte::ExportarHtml}, {"xlsx", &Reporte::ExportarXlsx},
        {"rtf", &Reporte::ExportarRtf}};
    for (const auto& [extension, exportar] : formatos) {
        const QString archivo = e.sp.Datos(QStringLiteral("NoExiste/Resultado.") + QLatin1String(extension));
        EXPECT_FALSE((r.*exportar)(archivo));
        EXPECT_TRUE(r.Error().startsWith(QStringLiteral("No se pudo escribir el reporte"))) << r.Error().toStdString();
        EXPECT_FALSE(QFileInfo::exists(archivo));
        EXPECT_FALSE((r.*exportar)(carpeta)) << extension;
        EXPECT_TRUE(QFileInfo(carpeta).isDir());
        EXPECT_EQ(QDir(e.sp.s.DirectorioDatos).entryList({QStringLiteral("*Carpeta?*")}, QDir::Files | QDir::Hidden),
                  QStringList());
    }
    // A template that does not exist, and one that is not a template.
    EXPECT_FALSE(r.Abrir(RutaProgramaPruebas(), QStringLiteral("NoHay")));
    EXPECT_TRUE(r.Error().startsWith(QStringLiteral("No se encontró la plantilla del reporte «NoHay»")));
    QDir().mkpath(e.sp.Datos(QStringLiteral("Reportes")));
    EscribirArchivo(e.sp.Datos(QStringLiteral("Reportes/Falsa.json")), "[1, 2");
    EXPECT_FALSE(r.Abrir(e.sp.s.DirectorioDatos, QStringLiteral("Falsa")));
    EXPECT_TRUE(r.Error().contains(QStringLiteral("no es una plantilla de reporte válida"))) << r.Error().toStdString();
}

TEST(ReportesResultados, ElResumenTraeElEsquemaLegibleDentroDeSuMarcoYEnBlancoYNegroSiSePide) {
    EjemploAnalizado e("es_ES");
    QString error;
    ASSERT_TRUE(LleneTablasResultados(*e.a, e.p, e.sp.s, OpcionesResultados{}, error)) << error.toStdString();
    const std::vector<PalabraPdf> palabras = PalabrasPdf(Renderizar(e, QStringLiteral("Resultado")));
    const auto titulo = std::find_if(palabras.begin(), palabras.end(),
                                     [](const PalabraPdf& w) { return w.texto == QLatin1String("Esquema"); });
    ASSERT_NE(titulo, palabras.end());
    // The picture's words: below its title, on its page, above the foot.
    QStringList dibujo;
    for (auto w = palabras.begin(); w != palabras.end(); ++w) {
        if (w->pagina != titulo->pagina || w->caja.top() <= titulo->caja.bottom() || w->caja.top() > 792 - 36 - 18)
            continue;
        dibujo << w->texto;
        // Drawn at a readable size (at least 5 points) and inside the
        // frame of the band, half an inch from the letter page's edges.
        EXPECT_GE(w->caja.height(), 5.0) << w->texto.toStdString();
        EXPECT_GE(w->caja.left(), 36.0) << w->texto.toStdString();
        EXPECT_LE(w->caja.right(), 612.0 - 36.0) << w->texto.toStdString();
    }
    // Every node of the project by its name, and the origin with the 20 m
    // the project gives it.
    QStringList nombres = e.p.NodoI[1].simplified().split(QLatin1Char(' '));
    for (int i = 1; i <= e.p.NumeroRamales; ++i) nombres << e.p.Nodoj[i].simplified().split(QLatin1Char(' '));
    for (const QString& n : std::as_const(nombres)) EXPECT_TRUE(dibujo.contains(n)) << n.toStdString();
    EXPECT_TRUE(dibujo.join(QLatin1Char(' ')).contains(QStringLiteral("20,00 m")));

    // Without colour the page holds greys only: the picture follows the report.
    OpcionesResultados gris;
    gris.FormatoColor = false;
    ASSERT_TRUE(LleneTablasResultados(*e.a, e.p, e.sp.s, gris, error)) << error.toStdString();
    const QString pdf = Renderizar(e, QStringLiteral("Resultado"));
    const QString pagina = QString::number(titulo->pagina);
    const QString png = e.sp.Datos(QStringLiteral("gris"));
    ASSERT_EQ(QProcess::execute(QStringLiteral("pdftoppm"), {QStringLiteral("-r"), QStringLiteral("50"), QStringLiteral("-png"),
                                                             QStringLiteral("-f"), pagina, QStringLiteral("-l"), pagina,
                                                             QStringLiteral("-singlefile"), pdf, png}),
              0);
    const QImage imagen(png + QStringLiteral(".png"));
    ASSERT_FALSE(imagen.isNull());
    int coloreados = 0;
    for (int y = 0; y < imagen.height(); ++y)
        for (int x = 0; x < imagen.width(); ++x) {
            const QColor c = imagen.pixelColor(x, y);
            coloreados += std::max({c.red(), c.green(), c.blue()}) - std::min({c.red(), c.green(), c.blue()}) > 24;
        }
    EXPECT_EQ(coloreados, 0);
}

TEST(ReportesResultados, LaHojaDelEsquemaSeVuelveSegunLaFormaDelDibujo) {
    // One floor of six branches left to right lies; eight floors stand.
    for (const auto& [ejemplo, horizontal] : {std::pair{"Edificio_ApartamentoTipo", true}, std::pair{"Edificio_MontantePH", false}}) {
        EjemploAnalizado e("C", QString::fromLatin1(ejemplo) + QStringLiteral(".nivo"));
        QString error;
        ASSERT_TRUE(LleneTablasResultados(*e.a, e.p, e.sp.s, OpcionesResultados{}, error)) << error.toStdString();
        Reporte r;
        ASSERT_TRUE(r.Abrir(RutaProgramaPruebas(), QStringLiteral("Esquema")));
        ASSERT_TRUE(r.Vincular(e.Trabajo())) << r.Error().toStdString();
        EXPECT_EQ(r.PlantillaActual().horizontal, horizontal) << ejemplo;
    }
}
