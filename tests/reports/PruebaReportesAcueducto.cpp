// The aqueduct reports: the result tables from the last solve, the data
// report from the file as saved, the work sheets of both modes, and every
// template read back from its PDF.

#include "ApoyoReportes.h"
#include "aqueduct/AnalisisACU.h"
#include "aqueduct/ArchivoAcueducto.h"
#include "aqueduct/ProyectoAcueducto.h"
#include "aqueduct/SolverMalla.h"
#include "reports/TablasAcueducto.h"
#include "reports/motor/Reporte.h"
#include "reports/salida/ImpreAcueducto.h"
#include "reports/salida/ImpreHojas.h"
#include "support/PantallasSalidaFalsas.h"

#include <QImage>
#include <cmath>

namespace {

// EjemploRedA opened and solved as the results screen does, in case 1.
struct RedResuelta {
    SesionPrueba sp;
    MarcasPrueba marcas;
    ProyectoAcueducto p;
    ProyectoEdificio edificio;
    DialogosFalsos d;
    PantallasSalidaFalsas salida;
    std::unique_ptr<AnalisisACU> a;

    explicit RedResuelta(const char* locale = "C") : marcas(locale) {
        sp.s.SeparadorDecimal = SeparadoresActuales().decimal;
        sp.s.SeparadorMiles = SeparadoresActuales().miles;
        sp.s.TipoRed = 1;
        sp.s.NombreUsuario = QStringLiteral("Oficina Técnica");
        QDir().mkpath(sp.Datos(QStringLiteral("Trabajo")));
        QDir().mkpath(sp.Datos(QStringLiteral("Redes")));
        CopiarBasesTrabajo(sp.s);
        const QString ruta =
            sp.CopiaDeEjemplo(QStringLiteral("EjemploRedA.nivo"), QStringLiteral("Redes/EjemploRedA.acu"));
        QString error;
        EXPECT_TRUE(CargarProyectoACU(p, sp.s, ruta, error)) << error.toStdString();
        a = std::make_unique<AnalisisACU>(p, sp.s, d);
        a->Cargar();
    }
    QString Base(const char* archivo) const { return sp.Datos(QStringLiteral("Trabajo/") + QString::fromLatin1(archivo)); }
    // A table's rows by Numero, as the templates read them.
    std::vector<std::vector<Valor>> Filas(const char* archivo, const QString& sql) const {
        Conexion c;
        EXPECT_TRUE(c.Abrir(Base(archivo)));
        Consulta q(c, sql);
        std::vector<std::vector<Valor>> filas;
        while (q.Siguiente()) {
            std::vector<Valor> f;
            for (int i = 0; i < 12; ++i) f.push_back(q.Columna(i));
            filas.push_back(f);
        }
        return filas;
    }
    // A sheet of option `opcion` printed to a PDF; its text.
    QString Hoja(ImpreHojas& h, int opcion) {
        h.Opcion = opcion;
        const QString pdf = sp.Datos(QStringLiteral("hoja%1.pdf").arg(opcion));
        salida.elecciones.push_back(EleccionSalida{FormatoSalida::Pdf, pdf});
        EXPECT_TRUE(h.Aceptar());
        return TextoPdf(pdf);
    }
    QString Pdf(const QString& plantilla, const char* base = "Resultados.mdb") const {
        Reporte r;
        EXPECT_TRUE(r.Abrir(RutaProgramaPruebas(), plantilla, true)) << r.Error().toStdString();
        EXPECT_TRUE(r.Vincular(Base(base))) << r.Error().toStdString();
        const QString archivo = sp.Datos(plantilla + QStringLiteral(".pdf"));
        EXPECT_TRUE(r.ExportarPdf(archivo)) << r.Error().toStdString();
        return TextoPdf(archivo);
    }
};

// Minimo and Maximo agree with the lowest and highest Presion of the
// written nodes, the tank (node 1 of the sample) left aside.
void ExtremosDePresion(const std::vector<std::vector<Valor>>& nodos, int& minimo, int& maximo) {
    double bajo = 1e9, alto = -1e9;
    for (const auto& n : nodos) {
        if (ComoTexto(n[1]) == QLatin1String("Tanque")) continue;
        const double presion = ComoDoble(n[2]);
        if (presion < bajo) bajo = presion, minimo = int(ComoEntero(n[0]));
        if (presion > alto) alto = presion, maximo = int(ComoEntero(n[0]));
    }
}

}  // namespace

TEST(ReportesAcueducto, LasTablasDeResultadosSiguenElCasoActivo) {
    RedResuelta r("es_ES");
    QString error;
    ASSERT_TRUE(LleneTablasAcueducto(r.p, r.sp.s, true, error)) << error.toStdString();
    const auto tramos = r.Filas("Resultados.mdb", QStringLiteral("SELECT Numero, NodoInicial, NodoFinal, longitudReal, "
                                                                 "LongitudCalculo, Perdidas, HF FROM Tramos ORDER BY Numero"));
    ASSERT_EQ(tramos.size(), 26u);
    // Section 1 shows 1,547 m of loss over 441,00 m (420 m + 5 %): 3,508 m/km;
    // section 2 0,644 m over 189,00 m: 3,407 m/km (the shown losses are rounded).
    EXPECT_EQ(ComoTexto(tramos[0][1]), QStringLiteral("Tanque"));
    EXPECT_NEAR(ComoDoble(tramos[0][4]), 441.0, 1e-9);
    EXPECT_NEAR(ComoDoble(tramos[0][6]), 3.508, 0.002);
    EXPECT_NEAR(ComoDoble(tramos[1][6]), 3.407, 0.002);
    const auto nodos = r.Filas("Resultados.mdb", QStringLiteral("SELECT Numero, Nodo, Presion, DemandaReal, "
                                                                "CotaPiezometrica, CotaTerreno FROM Nodos ORDER BY Numero"));
    ASSERT_EQ(nodos.size(), 18u);
    // Entrada: 125,45 - 96,00 = 29,45 m; Paez-1: 124,60 - 82,00 = 42,60 m.
    // Entrada's demand is half of section 2's 0,4 l/s.
    EXPECT_EQ(ComoTexto(nodos[1][1]), QStringLiteral("Entrada"));
    EXPECT_NEAR(ComoDoble(nodos[1][2]), 29.45, 0.006);
    EXPECT_NEAR(ComoDoble(nodos[17][2]), 42.60, 0.006);
    EXPECT_NEAR(ComoDoble(nodos[1][3]), 0.2, 1e-9);
    int minimo = 0, maximo = 0;
    ExtremosDePresion(nodos, minimo, maximo);
    auto generales = r.Filas("Resultados.mdb", QStringLiteral("SELECT Caso, Minimo, Maximo, Usuario, Color, NumeroTramos "
                                                              "FROM Generales"));
    ASSERT_EQ(generales.size(), 1u);
    EXPECT_EQ(ComoTexto(generales[0][0]), QStringLiteral("Caso: ConsumoMedio"));
    EXPECT_EQ(ComoEntero(generales[0][1]), minimo);
    EXPECT_EQ(ComoEntero(generales[0][2]), maximo);
    EXPECT_EQ(ComoTexto(generales[0][3]), QStringLiteral("Oficina Técnica"));
    EXPECT_EQ(ComoEntero(generales[0][4]), -1);
    EXPECT_EQ(ComoEntero(generales[0][5]), 26);

    // The fire case: 1,80 x 0,2 l/s at Entrada, the text with its numbers.
    r.a->CambiarCaso(2);
    ASSERT_TRUE(LleneTablasAcueducto(r.p, r.sp.s, false, error)) << error.toStdString();
    const auto incendio = r.Filas("Resultados.mdb", QStringLiteral("SELECT Numero, Nodo, Presion, DemandaReal "
                                                                   "FROM Nodos ORDER BY Numero"));
    EXPECT_NEAR(ComoDoble(incendio[1][3]), 0.36, 1e-9);
    ExtremosDePresion(incendio, minimo, maximo);
    generales = r.Filas("Resultados.mdb", QStringLiteral("SELECT Caso, Minimo, Maximo, Color FROM Generales"));
    ASSERT_EQ(generales.size(), 1u);
    EXPECT_EQ(ComoTexto(generales[0][0]), QStringLiteral("Caso: Q Incendio = 1,80 Consumo Medio +  16,00  Litros"));
    EXPECT_EQ(ComoEntero(generales[0][1]), minimo);
    EXPECT_EQ(ComoEntero(generales[0][2]), maximo);
    EXPECT_EQ(ComoEntero(generales[0][3]), 0);
}

TEST(ReportesAcueducto, CadaPlantillaDeResultadosMuestraLosValoresDeLaPantalla) {
    for (const char* locale : {"es_ES", "C"}) {
        RedResuelta r(locale);
        const bool coma = QString::fromLatin1(locale) == QLatin1String("es_ES");
        const auto n = [&](const char* t) { return coma ? QString::fromLatin1(t).replace(QLatin1Char('.'), QLatin1Char(',')) : QString::fromLatin1(t); };
        // Section 2 typed against its flow: Boli-4 to Entrada carries the flow backwards.
        std::swap(r.p.Inicio[2], r.p.Final[2]);
        AnalizarMalla(r.p, r.sp.s);
        QString error;
        ASSERT_TRUE(LleneTablasAcueducto(r.p, r.sp.s, true, error)) << error.toStdString();
        const QString todo = r.Pdf(QStringLiteral("ResultadosTodo"));
        EXPECT_TRUE(todo.contains(QStringLiteral("Resultados del Análisis"))) << locale;
        EXPECT_TRUE(todo.contains(QStringLiteral("Acueducto de San Rafael"))) << locale;
        EXPECT_TRUE(todo.contains(QStringLiteral("2 Boli-4 Entrada ") + n("180.00 189.00"))) << locale;
        EXPECT_TRUE(todo.contains(n("96.00 0.200"))) << locale;  // Entrada's terrain and demand
        EXPECT_TRUE(todo.contains(n("-12.350"))) << locale;      // the flow against the section
        EXPECT_TRUE(todo.contains(QStringLiteral("Presión (m.c.a.)"))) << locale;
        EXPECT_TRUE(r.Pdf(QStringLiteral("ResultadosTramos")).contains(n("441.00"))) << locale;
        EXPECT_TRUE(r.Pdf(QStringLiteral("ResultadosNodos")).contains(QStringLiteral("Entrada-Tanque, Entrada-Boli-4")))
            << locale;
        // With the direction the ends read in the flow's sense and no loss is negative.
        for (const char* d : {"ResultadosTramosD", "ResultadosTodoD"}) {
            const QString t = r.Pdf(QString::fromLatin1(d));
            EXPECT_TRUE(t.contains(QStringLiteral("2 Entrada Boli-4 ") + n("180.00 189.00"))) << d << locale;
            EXPECT_TRUE(t.contains(n("12.350"))) << d << locale;
            EXPECT_FALSE(t.contains(n("-12.350"))) << d << locale;
        }
        // The page as HTML: the company read from Usuario, the ends in the flow's sense.
        Reporte html;
        ASSERT_TRUE(html.Abrir(RutaProgramaPruebas(), QStringLiteral("ResultadosTramosD"), true));
        ASSERT_TRUE(html.Vincular(r.Base("Resultados.mdb")));
        const QString h = HtmlReporte(html.PlantillaActual(), html.Datos());
        EXPECT_TRUE(h.contains(QStringLiteral("Oficina Técnica"))) << locale;
        EXPECT_TRUE(h.contains(QStringLiteral("<td>Entrada</td><td>Boli-4</td>"))) << locale;
        const QString portada = r.Pdf(QStringLiteral("Portada"));
        EXPECT_TRUE(portada.contains(QStringLiteral("REDES DE ACUEDUCTOS"))) << locale;
        EXPECT_TRUE(portada.contains(QStringLiteral("Caso: ConsumoMedio"))) << locale;
    }
}

TEST(ReportesAcueducto, ElReporteDeDatosLeeElArchivoSalvadoYNoLoQueNoSeSalvo) {
    RedResuelta r("es_ES");
    r.p.Proyecto = QStringLiteral("Cambiado sin salvar");
    r.p.Longitud[1] = 999.0;
    r.salida.elecciones.push_back(EleccionSalida{FormatoSalida::Pdf, r.sp.Datos(QStringLiteral("datos.pdf"))});
    ASSERT_TRUE(ImprimirDatosProyecto(r.sp.s, r.d, r.salida));
    const QString t = TextoPdf(r.sp.Datos(QStringLiteral("datos.pdf")));
    EXPECT_TRUE(t.contains(QStringLiteral("Acueducto de San Rafael")));
    EXPECT_FALSE(t.contains(QStringLiteral("Cambiado")));
    EXPECT_TRUE(t.contains(QStringLiteral("1 Tanque Entrada 420,00")));
    EXPECT_FALSE(t.contains(QStringLiteral("999")));
    EXPECT_TRUE(t.contains(QStringLiteral("16,00 l/s")));  // the fire flow as saved
    EXPECT_TRUE(t.contains(QStringLiteral("Oficina Técnica")));
    MensajeEs(r.d.Ultimo(), QStringLiteral("¿Desea Abrir el Archivo datos.pdf?"),
              QStringLiteral("Abrir el Archivo Exportado..."));
    EXPECT_EQ(r.d.abiertos, QStringList{r.sp.Datos(QStringLiteral("datos.pdf"))});
    EXPECT_EQ(r.Filas("Datos.mdb", QStringLiteral("SELECT Numero FROM Tramos")).size(), 26u);

    // A project of an older form, without the Usuario column, still prints.
    {
        Conexion c;
        ASSERT_TRUE(c.Abrir(r.sp.s.ArchivoProyectoACU));
        ASSERT_TRUE(c.Ejecutar(QStringLiteral("ALTER TABLE Generales DROP COLUMN Usuario")));
    }
    QString error;
    ASSERT_TRUE(CopieDatosProyectoACU(r.sp.s, error)) << error.toStdString();
    EXPECT_EQ(ComoTexto(r.Filas("Datos.mdb", QStringLiteral("SELECT Usuario, Proyecto FROM Generales"))[0][1]),
              QStringLiteral("Acueducto de San Rafael - red mallada con un estanque"));

    // A file that is not a project says so and prints nothing.
    r.sp.s.ArchivoProyectoACU = r.Base("Trabajo.mdb");
    EXPECT_FALSE(ImprimirDatosProyecto(r.sp.s, r.d, r.salida));
    EXPECT_TRUE(r.d.Ultimo().texto.contains(QStringLiteral("no es un proyecto de acueductos")));
    EXPECT_EQ(r.salida.opciones, 1);
    EXPECT_EQ(r.Filas("Datos.mdb", QStringLiteral("SELECT Numero FROM Tramos")).size(), 26u);
}

TEST(ReportesAcueducto, ElPlanoSaleEnSuPlantillaEnTodasLasTablasYEnCadaFormato) {
    RedResuelta r("es_AR");
    QString error;
    ASSERT_TRUE(LleneTablasAcueducto(r.p, r.sp.s, true, error)) << error.toStdString();
    // Every node named on the plan page, with the legend, the case in the header.
    const QString plano = r.Pdf(QStringLiteral("Plano"));
    for (int k = 1; k <= r.p.NumeroNodosACU; ++k)
        for (const QString& palabra : r.p.Nodos[k].simplified().split(QLatin1Char(' ')))
            EXPECT_TRUE(plano.contains(palabra)) << palabra.toStdString();
    EXPECT_TRUE(plano.contains(QStringLiteral("Velocidad (m/s)")));
    EXPECT_TRUE(plano.contains(QStringLiteral("0,3 a 0,6")));  // the second class, with es_AR's comma
    EXPECT_TRUE(plano.contains(QStringLiteral("Caso: ConsumoMedio")));
    for (const char* todas : {"ResultadosTodo", "ResultadosTodoD"})
        EXPECT_TRUE(r.Pdf(QString::fromLatin1(todas)).contains(QStringLiteral("Plano de la red"))) << todas;

    // The outputs that are not pages carry it as a picture.
    Reporte rep;
    ASSERT_TRUE(rep.Abrir(RutaProgramaPruebas(), QStringLiteral("Plano"), true));
    ASSERT_TRUE(rep.Vincular(r.Base("Resultados.mdb"))) << rep.Error().toStdString();
    const QString html = HtmlReporte(rep.PlantillaActual(), rep.Datos());
    const int png = html.indexOf(QStringLiteral("class=\"dibujo\""));
    ASSERT_GE(png, 0);
    const int base64 = html.indexOf(QStringLiteral("base64,"), png) + 7;
    const QImage imagen = QImage::fromData(QByteArray::fromBase64(html.mid(base64, html.indexOf(QLatin1Char('"'), base64) - base64).toLatin1()));
    EXPECT_GT(imagen.width(), 300);
    EXPECT_TRUE(RtfReporte(rep.PlantillaActual(), rep.Datos()).contains("\\pngblip"));

    // A picture that cannot be read, or is missing, stops the report with a message.
    for (const char* sql : {"UPDATE Dibujos SET Datos = '{\"tipo\": \"plano\", \"nodos\": 3}'", "DELETE FROM Dibujos"}) {
        {
            Conexion c;
            ASSERT_TRUE(c.Abrir(r.Base("Resultados.mdb")));
            ASSERT_TRUE(c.Ejecutar(QString::fromLatin1(sql)));
        }
        Reporte malo;
        ASSERT_TRUE(malo.Abrir(RutaProgramaPruebas(), QStringLiteral("Plano"), true));
        EXPECT_FALSE(malo.Vincular(r.Base("Resultados.mdb")));
        EXPECT_TRUE(malo.Error().contains(QStringLiteral("plano"))) << malo.Error().toStdString();
    }
}

TEST(ReportesAcueducto, ImpreAcueductoLlenaYAbreLaPlantillaDeLaOpcion) {
    RedResuelta r;
    ImpreAcueducto impre(r.p, r.sp.s, r.d, r.salida);
    EXPECT_EQ(ImpreAcueducto::Opciones().size(), 6);
    impre.Opcion = 5;
    r.salida.elecciones.push_back(EleccionSalida{FormatoSalida::Vista, QString()});
    EXPECT_TRUE(impre.Exportar());
    EXPECT_EQ(r.salida.vistas, 1);
    EXPECT_EQ(r.Filas("Resultados.mdb", QStringLiteral("SELECT Numero FROM Tramos")).size(), 26u);
    // Cancelling the choice prints nothing.
    EXPECT_FALSE(impre.Exportar());
    EXPECT_EQ(r.salida.vistas, 1);
}

TEST(ReportesAcueducto, LasHojasDeTrabajoImprimenLasFilasPedidas) {
    RedResuelta r;
    ImpreHojas h(r.edificio, r.p, r.sp.s, r.d, r.salida);
    h.Cargar();
    EXPECT_EQ(h.Long1(), 26);
    EXPECT_EQ(h.TextoOpcion1(), QStringLiteral("Imprimir Tabla de los Ramales..."));
    EXPECT_EQ(h.Spread1.Texto(2, 3), QStringLiteral("Boli-4"));
    // Long1 at 0 prints nothing and leaves the tables alone.
    QString error;
    ASSERT_TRUE(LleneTablasAcueducto(r.p, r.sp.s, true, error));
    h.CambiarLong1(0);
    EXPECT_FALSE(h.Aceptar());
    EXPECT_EQ(r.salida.opciones, 0);
    EXPECT_EQ(r.Filas("Resultados.mdb", QStringLiteral("SELECT Numero FROM Tramos")).size(), 26u);

    h.CambiarLong1(3);
    EXPECT_EQ(h.Spread1.Texto(3, 1), QStringLiteral("3"));
    h.Spread1.PonerTexto(3, 2, QStringLiteral("Pozo-7"));
    for (int opcion : {1, 2}) {
        const QString t = r.Hoja(h, opcion);
        EXPECT_TRUE(t.contains(opcion == 1 ? QStringLiteral("Material y Observaciones")
                                           : QStringLiteral("Ubicación y Observaciones")));
        EXPECT_EQ(t.contains(QStringLiteral("3 Pozo-7")), opcion == 1);
        EXPECT_FALSE(t.contains(QStringLiteral("San Rafael")));  // the earlier report's header is gone
    }
    EXPECT_EQ(r.Filas("Resultados.mdb", QStringLiteral("SELECT Numero FROM Tramos")).size(), 3u);
    EXPECT_EQ(r.Filas("Resultados.mdb", QStringLiteral("SELECT Numero FROM Nodos")).size(), 3u);
    h.BorrarNodos();
    EXPECT_EQ(h.Spread1.Texto(1, 2), QString());
    EXPECT_EQ(h.Spread1.Texto(1, 1), QStringLiteral("1"));
}

TEST(ReportesAcueducto, LasHojasDelEdificioLlenanSusFilasYElCheck) {
    RedResuelta r;
    r.sp.s.TipoRed = 0;
    ImpreHojas h(r.edificio, r.p, r.sp.s, r.d, r.salida);
    h.Cargar();
    EXPECT_EQ(h.Long1(), 0);  // no branches in the open building
    h.CambiarLong1(4);
    h.Spread1.PonerTexto(2, 2, QStringLiteral("B"));
    h.Spread1.PonerTexto(2, 3, QStringLiteral("C"));
    h.Check1 = true;
    for (int opcion : {1, 2}) {
        const QString t = r.Hoja(h, opcion);
        EXPECT_TRUE(t.contains(QStringLiteral("2 B C"))) << opcion;
        EXPECT_TRUE(t.contains(opcion == 1 ? QStringLiteral("Piezas Sanitarias") : QStringLiteral("Cota del Nodo I (m)")));
    }
    const auto filas = r.Filas("Trabajo.mdb", QStringLiteral("SELECT Numero, NodoI, Nodoj FROM ImpreUnidadesGasto"));
    EXPECT_EQ(filas.size(), 4u);
    EXPECT_EQ(ComoEntero(r.Filas("Trabajo.mdb", QStringLiteral("SELECT Opcion1 FROM DatosGenerales"))[0][0]), -1);
}
