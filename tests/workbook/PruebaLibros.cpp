// The result workbooks of both modes, read back by openpyxl: sheets and
// their order, values worked by hand, joined headers, number formats, the
// index's links and the return links, frozen panes and colours, under
// several locales and every kind of option.

#include "LectorLibro.h"
#include "reports/ApoyoReportes.h"
#include "support/Apoyo.h"

#include "aqueduct/AnalisisACU.h"
#include "aqueduct/ArchivoAcueducto.h"
#include "aqueduct/ProyectoAcueducto.h"
#include "workbook/LibroAcueducto.h"
#include "workbook/LibroEdificio.h"
#include "workbook/OpcionExcel.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <cmath>
#include <map>

namespace {

const QString kIndice = QStringLiteral("INDICE GENERAL");
const QString kPredim = QStringLiteral("PREDIMENSIONADO");
const QString kUnidades = QStringLiteral("UNIDADES DE GASTO");
const QString kLongitudes = QStringLiteral("LONGITUDES EQUIVALENTES");
const QString kPerdidas = QStringLiteral("PERDIDAS Y PRESIONES");
const QString kRamales = QStringLiteral("RESULTADOS RAMALES");
const QString kNodos = QStringLiteral("RESULTADOS NODOS");
const QString kColor41 = QStringLiteral("FFFFEEBF");  // the palette's 0xBFEEFF, blue in the high byte

struct Caso {
    const char* nombre;
    OpcionesLibro o;
};

// All on; the index off; the colours off; one sheet alone (the last).
std::vector<Caso> Casos(int reportes) {
    std::vector<Caso> c(4);
    c[0].nombre = "todo";
    c[1].nombre = "sin indice";
    c[1].o.indice = false;
    c[2].nombre = "sin color";
    c[2].o.color = false;
    c[3].nombre = "una hoja";
    for (int k = 0; k < reportes - 1; ++k) c[3].o.hojas[k] = false;
    for (Caso& x : c) x.o.fecha = QStringLiteral("15/01/2024");
    return c;
}

QString Ref(const char* columna, int fila) { return QString::fromLatin1(columna) + QString::number(fila); }

void SinRetorno(const LibroLeido& l) {
    for (const QString& h : l.hojas) EXPECT_TRUE(l.Buscar(h, QStringLiteral("Retorno")).isEmpty()) << h.toStdString();
}

void Retorno(const LibroLeido& l, const QString& hoja, const QString& celda, int fila) {
    const CeldaLeida c = l.Celda(hoja, celda);
    EXPECT_EQ(c.Texto(), QStringLiteral("Retorno")) << hoja.toStdString();
    EXPECT_EQ(c.vinculo, QStringLiteral("'INDICE GENERAL'!B%1").arg(fila)) << hoja.toStdString();
}

// ---- Building ------------------------------------------------------------

void HojasEdificio(const LibroLeido& l, const OpcionesLibro& o, bool tanque) {
    QStringList esperadas;
    if (o.indice) esperadas << kIndice;
    const QString nombres[4] = {kPredim, kUnidades, kLongitudes, kPerdidas};
    for (int k = 0; k < 4; ++k)
        if (o.hojas[k]) esperadas << nombres[k];
    EXPECT_EQ(l.hojas, esperadas);

    if (o.indice) {
        EXPECT_TRUE(l.Uniones(kIndice).contains(QStringLiteral("B8:D8")));
        // All four lines, whichever sheets were chosen.
        EXPECT_EQ(l.Celda(kIndice, QStringLiteral("B10")).vinculo, QStringLiteral("'UNIDADES DE GASTO'!D12"));
        EXPECT_EQ(l.Celda(kIndice, QStringLiteral("B12")).vinculo, QStringLiteral("'PERDIDAS Y PRESIONES'!E12"));
        EXPECT_EQ(l.Celda(kIndice, QStringLiteral("B2")).Texto(), QStringLiteral("Oficina Técnica"));
    } else {
        SinRetorno(l);
    }

    if (o.hojas[0]) {
        EXPECT_TRUE(l.Uniones(kPredim).contains(QStringLiteral("C10:D10")));
        EXPECT_EQ(l.Celda(kPredim, QStringLiteral("E12")).formato, QStringLiteral("#,##0.00"));
        EXPECT_EQ(l.Inmovilizado(kPredim), QStringLiteral("A12"));
        EXPECT_EQ(l.Celda(kPredim, QStringLiteral("C12")).fondo, o.color ? kColor41 : QString());
        // The link takes the cell of the tank's height.
        if (o.indice) Retorno(l, kPredim, QStringLiteral("K6"), 9);
        if (tanque && !o.indice)
            EXPECT_TRUE(l.Celda(kPredim, QStringLiteral("K6")).Texto().startsWith(QStringLiteral("Altura del Tanque Elevado = ")));
        // The branch's units are those of its first row of fixture units
        // (by branch number), and the first branch carries them all.
        double todas = 0.0;
        std::map<int, double> unidades;
        for (int f = 12; f <= l.UltimaFila(kUnidades); ++f) {
            todas += l.Celda(kUnidades, Ref("G", f)).Numero();
            const CeldaLeida ramal = l.Celda(kUnidades, Ref("J", f));
            if (ramal.EsNumero()) unidades[int(ramal.Numero())] = l.Celda(kUnidades, Ref("H", f)).Numero();
        }
        if (o.hojas[1]) {
            EXPECT_NEAR(l.Celda(kPredim, QStringLiteral("E12")).Numero(), todas, 1e-9);
            for (int f = 12; f <= l.UltimaFila(kPredim); ++f)
                EXPECT_EQ(l.Celda(kPredim, Ref("E", f)).Numero(), unidades[int(l.Celda(kPredim, Ref("B", f)).Numero())]);
        }
    }
    if (o.hojas[1]) {
        EXPECT_TRUE(l.Uniones(kUnidades).contains(QStringLiteral("E10:H10")));
        EXPECT_EQ(l.Celda(kUnidades, QStringLiteral("H12")).formato, QStringLiteral("#,##0.00"));
        EXPECT_EQ(l.Inmovilizado(kUnidades), QStringLiteral("A12"));
        if (o.indice) Retorno(l, kUnidades, QStringLiteral("J6"), 10);
        if (tanque) {
            EXPECT_TRUE(l.Celda(kUnidades, QStringLiteral("H6")).Texto().startsWith(QStringLiteral("Altura del Tanque")));
            EXPECT_TRUE(l.Uniones(kUnidades).contains(o.indice ? QStringLiteral("H6:I6") : QStringLiteral("H6:J6")));
        } else {
            EXPECT_TRUE(l.Celda(kUnidades, QStringLiteral("H6")).Vacia());
        }
        // Sub-total = quantity x units per fixture.
        for (int f = 12; f <= l.UltimaFila(kUnidades); ++f)
            if (l.Celda(kUnidades, Ref("E", f)).EsNumero())
                EXPECT_NEAR(l.Celda(kUnidades, Ref("G", f)).Numero(),
                            l.Celda(kUnidades, Ref("E", f)).Numero() * l.Celda(kUnidades, Ref("F", f)).Numero(), 0.006);
    }
    if (o.hojas[2]) {
        EXPECT_TRUE(l.Uniones(kLongitudes).contains(QStringLiteral("G10:I10")));
        EXPECT_EQ(l.Celda(kLongitudes, QStringLiteral("G12")).formato, QStringLiteral("#,##0.00"));
        EXPECT_EQ(l.Inmovilizado(kLongitudes), QStringLiteral("A12"));
        // Per fitting: quantity x length; a branch's total (on its last row)
        // is the sum of its sub-totals.
        double suma = 0.0;
        for (int f = 12; f <= l.UltimaFila(kLongitudes); ++f) {
            const CeldaLeida cantidad = l.Celda(kLongitudes, Ref("F", f));
            if (cantidad.EsNumero())
                EXPECT_NEAR(l.Celda(kLongitudes, Ref("H", f)).Numero(),
                            cantidad.Numero() * l.Celda(kLongitudes, Ref("G", f)).Numero(), 0.006);
            suma += l.Celda(kLongitudes, Ref("H", f)).Numero();
            const CeldaLeida total = l.Celda(kLongitudes, Ref("I", f));
            if (total.EsNumero()) {
                EXPECT_NEAR(total.Numero(), suma, 0.011) << f;
                suma = 0.0;
            }
        }
    }
    if (o.hojas[3]) {
        EXPECT_TRUE(l.Uniones(kPerdidas).contains(QStringLiteral("K10:L10")));
        EXPECT_EQ(l.Celda(kPerdidas, QStringLiteral("K12")).formato, QStringLiteral("#,##0.0000"));
        EXPECT_EQ(l.Inmovilizado(kPerdidas), QStringLiteral("G12"));
        EXPECT_EQ(l.Celda(kPerdidas, QStringLiteral("B10")).fondo.isEmpty(), !o.color);
        // Alone, its return leads to the index's first line.
        if (o.indice) Retorno(l, kPerdidas, QStringLiteral("L6"), o.hojas[0] ? 12 : 9);
        // Total length = real + equivalent; loss = total x unit loss.
        for (int f = 12; f <= l.UltimaFila(kPerdidas); ++f) {
            const double total = l.Celda(kPerdidas, Ref("I", f)).Numero();
            EXPECT_NEAR(total, l.Celda(kPerdidas, Ref("G", f)).Numero() + l.Celda(kPerdidas, Ref("H", f)).Numero(), 0.011);
            EXPECT_NEAR(l.Celda(kPerdidas, Ref("L", f)).Numero(), total * l.Celda(kPerdidas, Ref("K", f)).Numero(),
                        0.006 + total * 0.00005);
        }
    }
}

// The apartment, worked by hand from the fixture units: 24 units in all,
// the kitchen's 4 with the laundry's 7 on branch 3; branch 1 has a meter
// (5.00 m), a gate valve (0.24 m) and two elbows of 1.16 m, and 3 m of pipe.
void Apartamento(const LibroLeido& l, const OpcionesLibro& o) {
    if (o.hojas[0]) {
        EXPECT_EQ(l.Celda(kPredim, QStringLiteral("E12")).Numero(), 24.0);
        EXPECT_EQ(l.Celda(kPredim, QStringLiteral("E14")).Numero(), 11.0);
        EXPECT_EQ(l.Celda(kPredim, QStringLiteral("C12")).Texto(), QStringLiteral("MONTANTE"));
        // A size is text, not a fraction.
        EXPECT_EQ(l.Celda(kPredim, QStringLiteral("G12")).Texto(), QStringLiteral("1 1/4\""));
    }
    if (o.hojas[1]) {
        EXPECT_EQ(l.Celda(kUnidades, QStringLiteral("H12")).Numero(), 24.0);
        EXPECT_EQ(l.Celda(kUnidades, QStringLiteral("D14")).Texto(), QStringLiteral("FREGADERO"));
        // The kitchen's two rows under its nodes, joined.
        EXPECT_EQ(l.Celda(kUnidades, QStringLiteral("B14")).Texto(), QStringLiteral("COCINA"));
        EXPECT_EQ(l.Celda(kUnidades, QStringLiteral("C14")).Texto(), QStringLiteral("PASILLO"));
        EXPECT_TRUE(l.Uniones(kUnidades).contains(QStringLiteral("B14:B15")));
        EXPECT_EQ(l.Celda(kUnidades, QStringLiteral("H14")).Numero(), 11.0);
    }
    if (o.hojas[2]) {
        EXPECT_DOUBLE_EQ(l.Celda(kLongitudes, QStringLiteral("H14")).Numero(), 2.32);
        EXPECT_DOUBLE_EQ(l.Celda(kLongitudes, QStringLiteral("I14")).Numero(), 7.56);
    }
    if (o.hojas[3]) {
        EXPECT_DOUBLE_EQ(l.Celda(kPerdidas, QStringLiteral("I12")).Numero(), 10.56);
        // 20 m given at the origin, all floors at 0: 20 - 10.56 x 0.0968.
        EXPECT_NEAR(l.Celda(kPerdidas, QStringLiteral("Q12")).Numero(), 20.0 - 1.02, 0.006);
    }
}

}  // namespace

TEST(LibroEdificio, CadaEjemploConCadaOpcionSeLeeComoLoMuestraLaPantalla) {
    const char* ejemplos[] = {"Edificio_ApartamentoTipo", "Edificio_GeneralesConserjeria", "Edificio_MontantePH",
                              "Vivienda con Tanque Elevado", "Vivienda con Tanque Hidroneumatico"};
    for (const char* ejemplo : ejemplos)
        for (const char* locale : {"es_ES", "C"}) {
            EjemploAnalizado e(locale, QString::fromUtf8(ejemplo) + QStringLiteral(".nivo"));
            const bool tanque = e.p.OpcionPresionInicial == 2;
            const std::vector<Caso> casos = Casos(4);
            // Under C one case is enough: the marks only change the reading.
            for (size_t k = 0; k < (QLatin1String(locale) == QLatin1String("C") ? 1 : casos.size()); ++k) {
                SCOPED_TRACE(std::string(ejemplo) + " " + locale + " " + casos[k].nombre);
                const QString archivo = e.sp.Datos(QStringLiteral("libro.xlsx"));
                QString error;
                int pasos = 0;
                ASSERT_TRUE(ExportarPantallaExcel(*e.a, e.p, e.sp.s, casos[k].o, archivo, error,
                                                  [&](int, const QString&) { ++pasos; }))
                    << error.toStdString();
                EXPECT_GT(pasos, 0);
                LibroLeido l;
                ASSERT_TRUE(l.Leer(archivo));
                HojasEdificio(l, casos[k].o, tanque);
                if (QLatin1String(ejemplo) == QLatin1String("Edificio_ApartamentoTipo")) Apartamento(l, casos[k].o);
            }
        }
}

TEST(LibroEdificio, ElIndiceSoloEsUnLibroYNadaNoLoEs) {
    EjemploAnalizado e;
    DialogosFalsos d;
    OpcionExcel v(e.sp.s, d, false);
    for (bool& h : v.opciones.hojas) h = false;
    v.Command2_Click();
    EXPECT_TRUE(v.ExcelAceptado);
    QString error;
    const QString archivo = e.sp.Datos(QStringLiteral("indice.xlsx"));
    ASSERT_TRUE(ExportarPantallaExcel(*e.a, e.p, e.sp.s, v.opciones, archivo, error));
    LibroLeido l;
    ASSERT_TRUE(l.Leer(archivo));
    EXPECT_EQ(l.hojas, QStringList{kIndice});

    OpcionExcel nada(e.sp.s, d, false);
    for (bool& h : nada.opciones.hojas) h = false;
    nada.opciones.indice = false;
    nada.Command2_Click();
    EXPECT_FALSE(nada.ExcelAceptado);
    MensajeEs(d.Ultimo(), QStringLiteral("¡Debe Seleccionar los Reportes!"), QStringLiteral("Exportar a Excel..."));
}

// ---- Aqueduct ------------------------------------------------------------

namespace {

struct RedAnalizada {
    SesionPrueba sp;
    MarcasPrueba marcas;
    DialogosFalsos d;
    ProyectoAcueducto p;
    std::unique_ptr<AnalisisACU> a;
    RedAnalizada(const char* locale, const QString& nivo) : marcas(locale) {
        sp.s.NombreUsuario = QStringLiteral("Oficina Técnica");
        sp.s.NombreProyectoACU = QStringLiteral("red.acu");
        sp.s.ArchivoProyectoACU = sp.CopiaDeEjemplo(nivo, sp.s.NombreProyectoACU);
        QDir().mkpath(sp.Datos(QStringLiteral("Trabajo")));
        ValoresInicialesACU(p, sp.s);
        QString error;
        EXPECT_TRUE(CargarProyectoACU(p, sp.s, sp.s.ArchivoProyectoACU, error)) << error.toStdString();
        a = std::make_unique<AnalisisACU>(p, sp.s, d);
        a->Cargar();
        EXPECT_FALSE(a->PrimeraActivacion());
    }
};

// Read from the samples' data: the first section's length, the share added
// for the calculation length, the tank's name, ground and water levels.
struct DatosRed {
    const char* nivo;
    double longitud, extra;
    const char* tanque;
    double terreno, nivel;
    const char* unidad;  // of the diameters, by OpcionDiametro
};

void HojasAcueducto(const LibroLeido& l, const OpcionesLibro& o, const DatosRed& r) {
    QStringList esperadas;
    if (o.indice) esperadas << kIndice;
    if (o.hojas[0]) esperadas << kRamales;
    if (o.hojas[1]) esperadas << kNodos;
    EXPECT_EQ(l.hojas, esperadas);
    if (!o.indice) SinRetorno(l);
    int linea = 9;
    if (o.hojas[0]) {
        if (o.indice) {
            EXPECT_EQ(l.Celda(kIndice, QStringLiteral("B9")).vinculo, QStringLiteral("'RESULTADOS RAMALES'!C12"));
            Retorno(l, kRamales, QStringLiteral("L6"), linea);
        }
        ++linea;
        EXPECT_TRUE(l.Uniones(kRamales).contains(QStringLiteral("C10:D10")));
        EXPECT_EQ(l.Celda(kRamales, QStringLiteral("E12")).formato, QStringLiteral("#,##0.00"));
        EXPECT_EQ(l.Inmovilizado(kRamales), QStringLiteral("C12"));
        EXPECT_EQ(l.Celda(kRamales, QStringLiteral("C12")).fondo, o.color ? kColor41 : QString());
        EXPECT_EQ(l.Celda(kRamales, QStringLiteral("E12")).Numero(), r.longitud);
        EXPECT_EQ(l.Celda(kRamales, QStringLiteral("G11")).Texto(), QLatin1String(r.unidad));
        // Calculation length = real length plus the project's share.
        for (int f = 12; f <= l.UltimaFila(kRamales); ++f) {
            const double real = l.Celda(kRamales, Ref("E", f)).Numero();
            EXPECT_NEAR(l.Celda(kRamales, Ref("F", f)).Numero(), real * (1 + r.extra / 100), 0.006) << f;
            // A flow against the section's direction shows in red.
            const CeldaLeida q = l.Celda(kRamales, Ref("I", f));
            if (q.EsNumero()) EXPECT_EQ(q.letra == QStringLiteral("FFFF0000"), q.Numero() < 0) << f;
        }
    }
    if (o.hojas[1]) {
        if (o.indice) {
            EXPECT_EQ(l.Celda(kIndice, Ref("B", linea)).vinculo, QStringLiteral("'RESULTADOS NODOS'!C11"));
            Retorno(l, kNodos, QStringLiteral("J6"), linea);
        }
        EXPECT_TRUE(l.Uniones(kNodos).contains(QStringLiteral("B8:J8")));
        EXPECT_EQ(l.Celda(kNodos, QStringLiteral("D11")).formato, QStringLiteral("#,##0.00"));
        EXPECT_EQ(l.Inmovilizado(kNodos), QStringLiteral("C11"));
        // Pressure = piezometric level - ground level.
        int filaTanque = 0;
        for (int f = 11; f <= l.UltimaFila(kNodos); ++f) {
            const CeldaLeida cota = l.Celda(kNodos, Ref("G", f));
            if (cota.EsNumero())
                EXPECT_NEAR(l.Celda(kNodos, Ref("H", f)).Numero(), cota.Numero() - l.Celda(kNodos, Ref("D", f)).Numero(),
                            0.011);
            if (l.Celda(kNodos, Ref("C", f)).Texto() == QLatin1String(r.tanque)) filaTanque = f;
        }
        ASSERT_GT(filaTanque, 0);
        EXPECT_EQ(l.Celda(kNodos, Ref("D", filaTanque)).Numero(), r.terreno);
        EXPECT_NEAR(l.Celda(kNodos, Ref("H", filaTanque)).Numero(), r.nivel - r.terreno, 0.006);
    }
}

}  // namespace

TEST(LibroAcueducto, AmbosEjemplosConCadaOpcion) {
    const DatosRed redes[] = {{"EjemploRedA.nivo", 420, 5, "Tanque", 121.5, 127, "mm"},
                              {"EjemploRedB.nivo", 520, 10, "Estanque", 98, 102.5, "plg"}};
    for (const DatosRed& r : redes)
        for (const char* locale : {"es_ES", "C"}) {
            RedAnalizada red(locale, QString::fromLatin1(r.nivo));
            const std::vector<Caso> casos = Casos(2);
            for (size_t k = 0; k < (QLatin1String(locale) == QLatin1String("C") ? 1 : casos.size()); ++k) {
                SCOPED_TRACE(std::string(r.nivo) + " " + locale + " " + casos[k].nombre);
                const QString archivo = red.sp.Datos(QStringLiteral("libro.xlsx"));
                QString error;
                ASSERT_TRUE(ExportarPantallaExcel(*red.a, red.p, red.sp.s, casos[k].o, archivo, error))
                    << error.toStdString();
                LibroLeido l;
                ASSERT_TRUE(l.Leer(archivo));
                HojasAcueducto(l, casos[k].o, r);
            }
        }
}

TEST(LibroAcueducto, SinReportesNoSeExportaYLosProcesosNoExisten) {
    SesionPrueba sp;
    DialogosFalsos d;
    OpcionExcel v(sp.s, d, true);
    v.opciones.hojas[0] = v.opciones.hojas[1] = false;
    v.Command2_Click();
    EXPECT_FALSE(v.ExcelAceptado);
    EXPECT_FALSE(v.cerrar);
    MensajeEs(d.Ultimo(), QStringLiteral("¡Debe Seleccionar los Reportes!"), QStringLiteral("Exportar a Excel..."),
              QStringLiteral("Datos del Proyecto de Acueductos"));
    // No spreadsheet program is started: never a process to close.
    v.Command3_Click();
    MensajeEs(d.Ultimo(), QStringLiteral("NO EXISTEN PROCESOS ABIERTOS DE EXCEL EN MEMORIA..."),
              QStringLiteral("Liberar Memoria (Excel) en el Computador..."), QStringLiteral("Liberar Espacio en Memoria"));
    EXPECT_EQ(d.Ultimo().botones, Botones::Aceptar);
}

// ---- The file ------------------------------------------------------------

TEST(LibroExcel, ElArchivoSePideSeEscribeYSeOfreceAbrir) {
    EjemploAnalizado e;
    DialogosFalsos& d = e.d;
    const QString carpeta = e.sp.Datos(QStringLiteral("ReportesExportados"));
    d.archivos.push_back(carpeta + QStringLiteral("/memoria"));
    d.respuestas.push_back(Respuesta::Si);
    OpcionesLibro o;
    const size_t antes = d.mensajes.size();
    EXPECT_TRUE(GuardarLibroExcel(e.sp.s, d, false, [&](const QString& archivo, QString& error) {
        return ExportarPantallaExcel(*e.a, e.p, e.sp.s, o, archivo, error);
    }));
    EXPECT_EQ(d.dialogosArchivo.back(),
              QStringLiteral("Exportar Pantalla Actual a EXCEL|Archivos Excel (*.xlsx)|*.xlsx;|") + carpeta);
    ASSERT_EQ(d.mensajes.size(), antes + 1);
    MensajeEs(d.Ultimo(), QStringLiteral("¿Desea Abrir el Archivo Creado de Excel?"),
              QStringLiteral("Abrir el Archivo con Excel"));
    EXPECT_EQ(d.abiertos, QStringList{carpeta + QStringLiteral("/memoria.xlsx")});
    EXPECT_EQ(d.ocupado, 0);
    // Only the finished file is left in the folder.
    EXPECT_EQ(QDir(carpeta).entryList(QDir::Files | QDir::Hidden), QStringList{QStringLiteral("memoria.xlsx")});

    // A cancelled dialog writes nothing.
    d.archivos.push_back(std::nullopt);
    EXPECT_FALSE(GuardarLibroExcel(e.sp.s, d, false, [](const QString&, QString&) {
        ADD_FAILURE();
        return false;
    }));
}

TEST(LibroExcel, UnDestinoQueNoSePuedeEscribirQuedaIntacto) {
    EjemploAnalizado e;
    const QString carpeta = e.sp.Datos(QStringLiteral("ReportesExportados"));
    QDir().mkpath(carpeta);
    const QString archivo = carpeta + QStringLiteral("/viejo.xlsx");
    EscribirArchivo(archivo, "el libro de ayer");
    QFile::setPermissions(archivo, QFileDevice::ReadOwner | QFileDevice::ReadGroup | QFileDevice::ReadOther);
    DialogosFalsos& d = e.d;
    d.archivos.push_back(archivo);
    OpcionesLibro o;
    EXPECT_FALSE(GuardarLibroExcel(e.sp.s, d, false, [&](const QString& destino, QString& error) {
        return ExportarPantallaExcel(*e.a, e.p, e.sp.s, o, destino, error);
    }));
    EXPECT_TRUE(d.Ultimo().texto.startsWith(QStringLiteral("No se puede escribir el archivo: ") + archivo));
    EXPECT_EQ(d.Ultimo().encabezado, QStringLiteral("Exportar a Excel..."));
    EXPECT_TRUE(d.abiertos.isEmpty());
    EXPECT_EQ(LeerArchivo(archivo), QByteArray("el libro de ayer"));
    EXPECT_EQ(QDir(carpeta).entryList(QDir::Files | QDir::Hidden), QStringList{QStringLiteral("viejo.xlsx")});

    // A folder that is not there.
    QString error;
    EXPECT_FALSE(ExportarPantallaExcel(*e.a, e.p, e.sp.s, o, e.sp.Datos(QStringLiteral("no/hay/libro.xlsx")), error));
    EXPECT_FALSE(error.isEmpty());
    EXPECT_FALSE(QFileInfo::exists(e.sp.Datos(QStringLiteral("no"))));
}

// ---- The command line ----------------------------------------------------

TEST(LibroExcel, ElVerboEscribeElLibroDeCadaModo) {
    SesionPrueba sp;
    const struct {
        const char* nivo;
        const char* destino;
        QStringList extra;
        QStringList hojas;
    } casos[] = {
        {"Edificio_ApartamentoTipo.nivo", "apto.plm", {QStringLiteral("--sin-indice")},
         {kPredim, kUnidades, kLongitudes, kPerdidas}},
        {"EjemploRedA.nivo", "red.acu", {QStringLiteral("--caso"), QStringLiteral("2")}, {kIndice, kRamales, kNodos}},
    };
    for (const auto& c : casos) {
        const QString proyecto = sp.CopiaDeEjemplo(QString::fromLatin1(c.nivo), QString::fromLatin1(c.destino));
        const QString salida = sp.Datos(QStringLiteral("salida.xlsx"));
        QString texto, errores;
        ASSERT_EQ(EjecutarPrograma(QStringList{QStringLiteral("libro"), proyecto, QStringLiteral("--salida"), salida} + c.extra,
                                   &texto, &errores),
                  0)
            << errores.toStdString();
        EXPECT_TRUE(errores.contains(QStringLiteral("100%")));  // the progress, step by step
        LibroLeido l;
        ASSERT_TRUE(l.Leer(salida));
        EXPECT_EQ(l.hojas, c.hojas);
        if (c.extra.contains(QStringLiteral("--caso")))
            EXPECT_TRUE(l.Celda(kRamales, QStringLiteral("H6")).Texto().startsWith(QStringLiteral("Demanda: ( Q M")));
        else
            SinRetorno(l);
    }
    QString errores;
    EXPECT_NE(EjecutarPrograma({QStringLiteral("libro"), sp.Datos(QStringLiteral("x.plm"))}, nullptr, &errores), 0);
    EXPECT_TRUE(errores.contains(QStringLiteral("--salida")));
}

// Another spreadsheet program opens the file: LibreOffice, when installed,
// turns every sheet into text as it shows it.
TEST(LibroExcel, LibreOfficeLoAbreYMuestraLasCifras) {
    const QString soffice = QStandardPaths::findExecutable(QStringLiteral("soffice"));
    if (soffice.isEmpty()) GTEST_SKIP() << "LibreOffice no está instalado";
    EjemploAnalizado e;
    const QString carpeta = e.sp.Datos(QStringLiteral("csv"));
    const QString archivo = e.sp.Datos(QStringLiteral("apto.xlsx"));
    QString error;
    ASSERT_TRUE(ExportarPantallaExcel(*e.a, e.p, e.sp.s, OpcionesLibro{}, archivo, error)) << error.toStdString();
    QProcess p;
    p.start(soffice, {QStringLiteral("-env:UserInstallation=file://") + e.sp.Datos(QStringLiteral("perfil")),
                      QStringLiteral("--headless"), QStringLiteral("--convert-to"),
                      QStringLiteral("csv:Text - txt - csv (StarCalc):44,34,76,1,,0,false,true,true,false,false,-1"),
                      QStringLiteral("--outdir"), carpeta, archivo});
    ASSERT_TRUE(p.waitForFinished(120000));
    const QString texto =
        QString::fromUtf8(LeerArchivo(carpeta + QStringLiteral("/apto-PERDIDAS Y PRESIONES.csv")));
    // Branch 1 of the apartment as the sheet shows it: 3 m + 7.56 m, and the
    // 18.98 m left of the 20 m at the origin.
    EXPECT_TRUE(texto.contains(QStringLiteral(",1,MONTANTE,ENTRADA,1.07,\"1 1/4\"\"\",3.00,7.56,10.56,"))) << texto.toStdString();
    EXPECT_TRUE(texto.contains(QStringLiteral(",18.98\n")));
}
