#include "ApoyoReportes.h"
#include "reports/motor/ComposicionReporte.h"
#include "reports/motor/Reporte.h"
#include "reports/salida/ImpreResultados.h"
#include "reports/salida/OpcionExportar.h"
#include "reports/screens/VentanaImpreResultados.h"
#include "support/PantallasSalidaFalsas.h"

#include <QBuffer>
#include <QFile>
#include <QPdfWriter>
#include <QLineEdit>
#include <QRadioButton>
#include <unistd.h>

namespace {

// The fake output screens, also keeping the template each preview showed.
struct PantallasQueAnotan : PantallasSalidaFalsas {
    QStringList plantillas;
    void VerResultados(Reporte& r) override {
        PantallasSalidaFalsas::VerResultados(r);
        plantillas << r.PlantillaActual().nombre;
    }
};

EleccionSalida Eleccion(FormatoSalida f, const QString& archivo = QString()) { return EleccionSalida{f, archivo}; }

QStringList Exportados(const Sesion& s) {
    return QDir(CarpetaReportesExportados(s)).entryList(QDir::Files | QDir::NoDotAndDotDot);
}

}  // namespace

TEST(OpcionExportar, CadaFormatoPideSuArchivoYUnCancelarDejaLaPantallaAbierta) {
    // Title and filter of each format as the save dialog shows them; the
    // workbook is .xlsx.
    const struct {
        FormatoSalida f;
        const char *titulo, *filtro, *extension;
    } casos[] = {
        {FormatoSalida::Pdf, "Exportar el Reporte a formato: Adobe Acrobat(PDF)", "*.pdf|*.pdf", ".pdf"},
        {FormatoSalida::Html, "Exportar el Reporte a formato: HTLM 4.0", "*.htm|*.htm", ".htm"},
        {FormatoSalida::Excel, "Exportar el Reporte a formato: Microsoft Excel 97-2000 (XLS)", "*.xlsx|*.xlsx", ".xlsx"},
        {FormatoSalida::Word, "Exportar el Reporte a formato: Microsoft Word (RTF)", "*.rtf|*.rtf", ".rtf"},
    };
    SesionPrueba sp;
    const QString carpeta = sp.Datos(QStringLiteral("ReportesExportados"));
    for (const auto& c : casos) {
        SCOPED_TRACE(c.titulo);
        DialogosFalsos d;
        OpcionExportar o(sp.s, d);
        // Cancelled: no choice, the screen stays for another; the folder is made.
        d.archivos = {std::nullopt, carpeta + QStringLiteral("/informe"), carpeta + QStringLiteral("/Otro") + c.extension};
        EXPECT_FALSE(o.Elegir(c.f));
        EXPECT_FALSE(o.Eleccion());
        EXPECT_TRUE(QFileInfo(carpeta).isDir());
        ASSERT_EQ(d.dialogosArchivo.size(), 1);
        EXPECT_EQ(d.dialogosArchivo[0], QString::fromUtf8(c.titulo) + QLatin1Char('|') + QString::fromUtf8(c.filtro) +
                                            QLatin1Char('|') + carpeta);
        // A name typed bare takes the extension; one that has it keeps it.
        ASSERT_TRUE(o.Elegir(c.f));
        EXPECT_EQ(o.Eleccion()->formato, c.f);
        EXPECT_EQ(o.Eleccion()->archivo, carpeta + QStringLiteral("/informe") + c.extension);
        ASSERT_TRUE(o.Aceptar());
        EXPECT_EQ(o.Eleccion()->archivo, carpeta + QStringLiteral("/Otro") + c.extension);
    }
    // The preview asks for no file.
    DialogosFalsos d;
    OpcionExportar o(sp.s, d);
    EXPECT_EQ(o.Seleccion(), FormatoSalida::Vista);
    ASSERT_TRUE(o.Aceptar());
    EXPECT_EQ(o.Eleccion()->formato, FormatoSalida::Vista);
    EXPECT_TRUE(d.dialogosArchivo.isEmpty());
}

TEST(ImpreResultados, CadaOpcionAbreSuPlantillaYSoloLaPortadaEditaLosTitulos) {
    EjemploAnalizado e;
    PantallasQueAnotan ps;
    ImpreResultados impre(*e.a, e.p, e.sp.s, e.d, ps);
    impre.Valores.Titulo1 = QStringLiteral("   MEMORIA DESCRIPTIVA  ");
    impre.Valores.Titulo2 = QStringLiteral("  Edificio Norte ");
    const char* plantillas[] = {"UnidadesGasto", "LongitudesEquivalentes", "PerdidasPresiones",
                                "Portada",       "Predimensionado",        "Resultado"};
    for (int n = 1; n <= 6; ++n) {
        impre.ElegirOpcion(n);
        EXPECT_EQ(impre.TitulosEditables(), n == 4) << n;
        ps.elecciones.push_back(Eleccion(FormatoSalida::Vista));
        EXPECT_TRUE(impre.Aceptar()) << n;
    }
    EXPECT_EQ(ps.plantillas.join(QLatin1Char(',')),
              QStringList({plantillas[0], plantillas[1], plantillas[2], plantillas[3], plantillas[4], plantillas[5]})
                  .join(QLatin1Char(',')));
    EXPECT_TRUE(e.d.mensajes.empty());
    Conexion c;
    ASSERT_TRUE(c.Abrir(e.Trabajo()));
    EXPECT_EQ(ComoTexto(c.Escalar(QStringLiteral("SELECT Titulo1 FROM DatosGenerales"))),
              QStringLiteral("MEMORIA DESCRIPTIVA"));
    EXPECT_EQ(ComoTexto(c.Escalar(QStringLiteral("SELECT Titulo2 FROM DatosGenerales"))), QStringLiteral("Edificio Norte"));

    // The window: the titles take typing only on the cover's option.
    VentanaImpreResultados v(*e.a, e.p, e.sp.s, e.d);
    EXPECT_TRUE(v.Text1()->text().startsWith(QStringLiteral("ANÁLISIS Y DISEÑO DE LA RED DE FONTARIA")));
    EXPECT_FALSE(v.Text1()->isEnabled());
    v.Opcion(4)->click();
    EXPECT_TRUE(v.Text1()->isEnabled());
    EXPECT_TRUE(v.Text2()->isEnabled());
    v.Opcion(6)->click();
    EXPECT_FALSE(v.Text2()->isEnabled());
    EXPECT_EQ(v.Logica().Opcion(), 6);
}

TEST(ImpreResultados, UnPdfExportadoSeOfreceAbrirYUnCancelarNoDejaArchivo) {
    for (const char* locale : {"es_ES", "C"}) {
        SCOPED_TRACE(locale);
        EjemploAnalizado e(locale);
        PantallasQueAnotan ps;
        ImpreResultados impre(*e.a, e.p, e.sp.s, e.d, ps);
        impre.ElegirOpcion(3);

        // OpcionExportar cancelled: no file, no question, the screen stays.
        EXPECT_FALSE(impre.Aceptar());
        EXPECT_EQ(ps.opciones, 1);
        EXPECT_TRUE(Exportados(e.sp.s).isEmpty());
        EXPECT_TRUE(e.d.mensajes.empty());

        // The folder OpcionExportar makes.
        QDir().mkpath(CarpetaReportesExportados(e.sp.s));
        const QString pdf = CarpetaReportesExportados(e.sp.s) + QStringLiteral("/Presiones.pdf");
        ps.elecciones.push_back(Eleccion(FormatoSalida::Pdf, pdf));
        ASSERT_TRUE(impre.Aceptar()) << (e.d.mensajes.empty() ? "" : e.d.Ultimo().texto.toStdString());
        EXPECT_TRUE(LeerArchivo(pdf).startsWith("%PDF"));
        ASSERT_EQ(e.d.mensajes.size(), 1u);
        MensajeEs(e.d.Ultimo(), QStringLiteral("¿Desea Abrir el Archivo Presiones.pdf?"),
                  QStringLiteral("Abrir el Reporte Exportado..."));
        EXPECT_EQ(e.d.abiertos, QStringList{pdf});
        // Bathroom 2's 4.5 m, read from the grid with the locale's mark.
        Conexion c;
        ASSERT_TRUE(c.Abrir(e.Trabajo()));
        EXPECT_DOUBLE_EQ(ComoDoble(c.Escalar(QStringLiteral("SELECT longitudReal FROM ImprePresiones WHERE Numero=6"))),
                         4.5);
        c.Cerrar();

        // From the preview: the file written, the preview not shown again.
        Reporte r;
        ASSERT_TRUE(r.Abrir(RutaProgramaPruebas(), QStringLiteral("Resultado")));
        ASSERT_TRUE(r.Vincular(e.Trabajo()));
        const QString htm = CarpetaReportesExportados(e.sp.s) + QStringLiteral("/Resumen.htm");
        ps.elecciones = {Eleccion(FormatoSalida::Vista), Eleccion(FormatoSalida::Html, htm)};
        e.d.respuestas = {Respuesta::No};
        EXPECT_FALSE(ExportarDesdeVista(r, e.d, ps));
        EXPECT_TRUE(ExportarDesdeVista(r, e.d, ps));
        EXPECT_TRUE(QFileInfo::exists(htm));
        EXPECT_EQ(e.d.abiertos.size(), 1);
        EXPECT_EQ(ps.vistas, 0);
    }
}

TEST(ImpreResultados, UnaCarpetaQueNoSePuedeEscribirOUnaPlantillaQueFaltaDejanLaPantallaSinArchivo) {
    EjemploAnalizado e;
    PantallasQueAnotan ps;
    ImpreResultados impre(*e.a, e.p, e.sp.s, e.d, ps);
    // A folder without write permission; the superuser writes anywhere, so
    // for it the folder's place is taken by a file.
    const QString carpeta = e.sp.Datos(QStringLiteral("Bloqueada"));
    if (::geteuid() == 0) {
        EscribirArchivo(carpeta, "no es una carpeta");
    } else {
        QDir().mkpath(carpeta);
        QFile::setPermissions(carpeta, QFile::ReadOwner | QFile::ExeOwner);
    }
    const QString pdf = carpeta + QStringLiteral("/Resultado.pdf");
    ps.elecciones.push_back(Eleccion(FormatoSalida::Pdf, pdf));
    EXPECT_FALSE(impre.Aceptar());
    EXPECT_FALSE(QFileInfo::exists(pdf));
    ASSERT_EQ(e.d.mensajes.size(), 1u);
    EXPECT_TRUE(e.d.Ultimo().texto.startsWith(QStringLiteral("No se pudo escribir el reporte en «") + pdf))
        << e.d.Ultimo().texto.toStdString();
    QFile::setPermissions(carpeta, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);

    // The templates missing from the program folder.
    e.sp.s.RutaPrograma = e.sp.Datos(QStringLiteral("SinPlantillas"));
    ps.elecciones.push_back(Eleccion(FormatoSalida::Vista));
    EXPECT_FALSE(impre.Aceptar());
    EXPECT_EQ(ps.opciones, 1);
    EXPECT_TRUE(e.d.Ultimo().texto.startsWith(QStringLiteral("No se encontró la plantilla del reporte «UnidadesGasto»")))
        << e.d.Ultimo().texto.toStdString();
    EXPECT_EQ(e.d.ocupado, 0);
}

TEST(ImpreResultados, LaVistaSeComponeUnaVezConSuAvanceYSePuedeDetener) {
    // The apartment's six branches plus 194 more: 200 rows in the one table.
    EjemploAnalizado e;
    e.AlargarPresiones(200);
    Reporte r;
    ASSERT_TRUE(r.Abrir(RutaProgramaPruebas(), QStringLiteral("PerdidasPresiones")));
    ASSERT_TRUE(r.Vincular(e.Trabajo()));
    QBuffer b;
    b.open(QIODevice::WriteOnly);
    QPdfWriter pdf(&b);
    PrepararDispositivo(pdf, r.PlantillaActual());
    std::vector<std::pair<int, int>> avisos;
    const auto paginas = ComponerReporte(r.PlantillaActual(), r.Datos(), pdf, [&avisos](int hechas, int total) {
        avisos.emplace_back(hechas, total);
        return true;
    });
    EXPECT_GE(paginas.size(), 2u);
    ASSERT_FALSE(avisos.empty());
    EXPECT_EQ(avisos.front(), std::make_pair(0, 200));
    EXPECT_LT(avisos.back().first, 200);
    // Stopped at the first word: no pages.
    EXPECT_TRUE(ComponerReporte(r.PlantillaActual(), r.Datos(), pdf, [](int, int) { return false; }).empty());
}
