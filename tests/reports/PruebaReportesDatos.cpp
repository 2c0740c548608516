#include "support/Apoyo.h"
#include "support/PantallasSalidaFalsas.h"
#include "model/ArchivoEdificio.h"
#include "model/ProyectoEdificio.h"
#include "reports/TablasDatos.h"
#include "reports/motor/Reporte.h"
#include "reports/salida/ImpreGeneral.h"
#include "shell/Inicio.h"
#include "store/Conexion.h"
#include "takeoff/Computos.h"
#include "tank/ResultadosHidro.h"

#include <QBuffer>
#include <QDir>
#include <QImage>
#include <QProcess>

namespace {

// The apartment sample chosen and loaded, with the work databases and the
// catalogue of a fresh start; the session's marks those of `locale`.
struct Apartamento {
    SesionPrueba sp;
    MarcasPrueba marcas;
    ProyectoEdificio p;
    DialogosFalsos d;
    PantallasSalidaFalsas salida;

    explicit Apartamento(const char* locale = "C") : marcas(locale) {
        sp.s.SeparadorDecimal = SeparadoresActuales().decimal;
        sp.s.SeparadorMiles = SeparadoresActuales().miles;
        QDir().mkpath(sp.Datos(QStringLiteral("Trabajo")));
        QDir().mkpath(sp.Datos(QStringLiteral("BDatos")));
        CopiarBasesTrabajo(sp.s);
        sp.CopiaDeEjemplo(QStringLiteral("BDPiezasConexiones.nivo"), QStringLiteral("BDatos/BD_Piezas_Conexiones.mdb"));
        sp.s.NombreProyecto = QStringLiteral("apartamento.plm");
        sp.s.ArchivoProyecto = sp.CopiaDeEjemplo(QStringLiteral("Edificio_ApartamentoTipo.nivo"), sp.s.NombreProyecto);
        sp.s.NombreUsuario = QStringLiteral("Oficina Técnica");
        EXPECT_EQ(AbrirConexionProyecto(sp.s), 0);
        EXPECT_TRUE(LeerProyecto(p, sp.s));
    }
    QString Trabajo() const { return RutaTrabajoReportes(sp.s); }
    QString Copia() const { return RutaProyectoReportes(sp.s); }
};

// The rows of a query, its columns (counted from the select list) joined by '|'.
QStringList Filas(const QString& base, const QString& sql) {
    Conexion c;
    EXPECT_TRUE(c.Abrir(base));
    QStringList r;
    Consulta q(c, sql);
    const int n = sql.section(QStringLiteral(" FROM "), 0, 0).count(QLatin1Char(',')) + 1;
    while (q.Siguiente()) {
        QStringList f;
        for (int i = 0; i < n; ++i) f << (q.Columna(i).isNull() ? QStringLiteral("NULL") : q.Texto(i));
        r << f.join(QLatin1Char('|'));
    }
    return r;
}

QByteArray Bmp(Qt::GlobalColor color) {
    QImage img(8, 8, QImage::Format_RGB32);
    img.fill(color);
    QByteArray b;
    QBuffer buf(&b);
    buf.open(QIODevice::WriteOnly);
    img.save(&buf, "BMP");
    return b;
}

QString TextoPdf(const QString& pdf) {
    QProcess p;
    p.start(QStringLiteral("pdftotext"), {pdf, QStringLiteral("-")});
    EXPECT_TRUE(p.waitForFinished(30000));
    return QString::fromUtf8(p.readAllStandardOutput()).simplified();
}

// The tank of the worked case: method 1, 10 l/s at 50 %, 20 to 34 m, six
// starts, a vertical tank.
DatosTanque TanqueMetodo1() {
    DatosTanque t;
    t.Caudal = 10.0;
    t.PresionMinima = 20.0;
    t.PresionMaxima = 34.0;
    return t;
}

}  // namespace

TEST(ReportesDatos, ComputosDelApartamentoSeCopianComoLosMuestraLaPantalla) {
    for (const char* locale : {"es_ES", "C"}) {
        Apartamento a(locale);
        // Branch 2 is the only one with a size (1"); its length made 4.75 m
        // so that a decimal mark read as a thousands mark would show.
        ASSERT_TRUE(EjecutarSql(a.sp.s.ArchivoProyecto, QStringLiteral("UPDATE DatosRamales SET longitudReal = 4.75 WHERE Numero = 2")));
        PaginasComputos c;
        CalcularComputos(c, a.sp.s.ConexionProyecto);
        QString error;
        ASSERT_TRUE(LleneTablasComputos(a.Trabajo(), c, a.p, a.sp.s, {true, QStringLiteral("  COMPUTOS  ")}, error))
            << error.toStdString();
        // By hand from the sample's fixtures: eight names, the washbasins 2 + 1.
        const QStringList piezas = Filas(a.Trabajo(), QStringLiteral("SELECT Descripcion, Cantidad FROM ImpreComputosPiezas"));
        EXPECT_EQ(piezas.size(), 8) << locale;
        EXPECT_TRUE(piezas.contains(QStringLiteral("LAVAMANOS|3"))) << locale;
        EXPECT_TRUE(piezas.contains(QStringLiteral("EXCUSADO DE TANQUE|2"))) << locale;
        // Branch 2: two 90° elbows and one tee of 1"; the meter has no size.
        EXPECT_EQ(Filas(a.Trabajo(), QStringLiteral("SELECT Descripcion, Cantidad FROM ImpreComputosConexiones")),
                  (QStringList{QStringLiteral("CODO DE 90 GRADOS DE  1\"|2"), QStringLiteral("MEDIDOR DE AGUA|1"),
                               QStringLiteral("TEE NORMAL DE  1\"|1")}))
            << locale;
        EXPECT_TRUE(Filas(a.Trabajo(), QStringLiteral("SELECT Descripcion FROM ImpreComputosReducciones")).isEmpty());
        EXPECT_EQ(Filas(a.Trabajo(), QStringLiteral("SELECT Descripcion, Cantidad FROM ImpreComputosTuberias")),
                  QStringList{QStringLiteral("TUBERIA DE DIAMETRO = 1\"|4.75")})
            << locale;
        EXPECT_EQ(Filas(a.Trabajo(), QStringLiteral("SELECT Proyecto, Empresa, FormatoColor, Titulo1 FROM DatosGenerales")),
                  QStringList{QStringLiteral("Apartamento tipo|Oficina Técnica|-1|COMPUTOS")});
    }
}

TEST(ReportesDatos, TanqueConLosValoresMostradosYElTextoDelMetodo) {
    for (const char* locale : {"es_ES", "C"}) {
        Apartamento a(locale);
        // Method 1, worked by hand: Q = 5 l/s, useful 750 l, R = 30/44,
        // total 750 / ((1 - R) 0.9) = 2619.05 l, maximum 261.90 + 750 = 1011.90 l.
        const DatosTanque t = TanqueMetodo1();
        const QStringList mostrados = ResultadosHidro(t).Valores;
        QString error;
        ASSERT_TRUE(LleneTablaTanque(a.Trabajo(), t, mostrados, a.p, a.sp.s, {false, QStringLiteral("TANQUE")}, error))
            << error.toStdString();
        EXPECT_EQ(Filas(a.Trabajo(), QStringLiteral("SELECT Metodo, NumeroMetodo, Caudal, Porcentaje, Dotacion, NumeroPiezas, "
                                                    "OpcionK, QB, VolumenTotal, VolumenUtil, VolumenMaximo "
                                                    "FROM TanqueHidroneumatico")),
                  QStringList{QStringLiteral("El Caudal de Bombeo se asume como un Porcentaje del Caudal Máximo probable.|1|"
                                             "10|50|NULL|NULL|0.1|5|2619.05|750|1011.9")})
            << locale;
    }
    // Method 3 with a horizontal tank: the Peerless text with its doubled
    // blank, K itself and not the option, the fixtures and the factor only.
    Apartamento a;
    DatosTanque t = TanqueMetodo1();
    t.NumeroMetodo = 3;
    t.NumeroPiezas = 11;
    t.FactorPeerlees = 2.08;
    t.OpcionK = 2;
    QString error;
    ASSERT_TRUE(LleneTablaTanque(a.Trabajo(), t, ResultadosHidro(t).Valores, a.p, a.sp.s, {}, error));
    EXPECT_EQ(Filas(a.Trabajo(), QStringLiteral("SELECT Metodo, NumeroPiezas, FactorPeerlees, Caudal, OpcionK FROM TanqueHidroneumatico")),
              QStringList{QStringLiteral("El Caudal de Bombeo se calcula en función del Número de Piezas  Sanitarias y un "
                                         "Factor de Consumo en Litros/Minuto (Método de Peerless)|11|2.08|NULL|0.054")});
    // A shown value that is not a number leaves the table as it was.
    EXPECT_FALSE(LleneTablaTanque(a.Trabajo(), TanqueMetodo1(), {QStringLiteral("5,00,0")}, a.p, a.sp.s, {}, error));
    EXPECT_EQ(Filas(a.Trabajo(), QStringLiteral("SELECT NumeroMetodo FROM TanqueHidroneumatico")), QStringList{QStringLiteral("3")});
}

TEST(ReportesDatos, ElReporteDelProyectoLeeElArchivoSalvadoNoLaMemoria) {
    Apartamento a;
    a.p.NodoI[1] = QStringLiteral("EDITADO SIN SALVAR");
    a.sp.s.ProyectoModificado = true;
    QString error;
    ASSERT_TRUE(CopieProyectoReporte(a.Copia(), a.sp.s.ArchivoProyecto, a.sp.s, {true, QStringLiteral(" DATOS ")}, error))
        << error.toStdString();
    EXPECT_EQ(Filas(a.Copia(), QStringLiteral("SELECT NodoI FROM DatosRamales WHERE Numero = 1")),
              QStringList{QStringLiteral("MONTANTE")});
    EXPECT_EQ(Filas(a.Copia(), QStringLiteral("SELECT COUNT(*) FROM DatosPiezas")), QStringList{QStringLiteral("10")});
    EXPECT_EQ(Filas(a.Copia(), QStringLiteral("SELECT Proyecto, FormatoColor, Empresa, Titulo FROM DatosGenerales")),
              QStringList{QStringLiteral("Apartamento tipo|-1|Oficina Técnica|DATOS")});
    // Once the file changes, a second run replaces the first copy whole.
    ASSERT_TRUE(EjecutarSql(a.sp.s.ArchivoProyecto, QStringLiteral("DELETE FROM DatosPiezas WHERE Ramal <> 3")));
    ASSERT_TRUE(CopieProyectoReporte(a.Copia(), a.sp.s.ArchivoProyecto, a.sp.s, {}, error));
    EXPECT_EQ(Filas(a.Copia(), QStringLiteral("SELECT COUNT(*) FROM DatosPiezas")), QStringList{QStringLiteral("2")});
    EXPECT_EQ(Filas(a.Copia(), QStringLiteral("SELECT COUNT(*) FROM DatosGenerales")), QStringList{QStringLiteral("1")});

    // A file of an older form (a column less, one more) is copied by name.
    ASSERT_TRUE(EjecutarSql(a.sp.s.ArchivoProyecto, QStringLiteral("ALTER TABLE DatosRamales DROP COLUMN Comentario")));
    ASSERT_TRUE(EjecutarSql(a.sp.s.ArchivoProyecto, QStringLiteral("ALTER TABLE DatosNodos ADD COLUMN Extra TEXT")));
    ASSERT_TRUE(CopieProyectoReporte(a.Copia(), a.sp.s.ArchivoProyecto, a.sp.s, {}, error)) << error.toStdString();
    EXPECT_EQ(Filas(a.Copia(), QStringLiteral("SELECT Nodoj, Comentario FROM DatosRamales WHERE Numero = 6")),
              QStringList{QStringLiteral("BAÑO 2|NULL")});

    // No file, or a file that is no project: refused, the copy as it was.
    EXPECT_FALSE(CopieProyectoReporte(a.Copia(), a.sp.Datos(QStringLiteral("nunca.plm")), a.sp.s, {}, error));
    EXPECT_TRUE(error.contains(QStringLiteral("Salve el proyecto")));
    ASSERT_TRUE(EjecutarSql(a.sp.s.ArchivoProyecto, QStringLiteral("DROP TABLE DatosNodos")));
    EXPECT_FALSE(CopieProyectoReporte(a.Copia(), a.sp.s.ArchivoProyecto, a.sp.s, {}, error));
    EXPECT_TRUE(error.contains(QStringLiteral("DatosNodos")));
    EXPECT_EQ(Filas(a.Copia(), QStringLiteral("SELECT COUNT(*) FROM DatosPiezas")), QStringList{QStringLiteral("2")});
}

TEST(ReportesDatos, LasPlantillasConFotosLlevanLaImagenDeCadaFila) {
    Apartamento a;
    // The washbasin (10) has a picture in the project, the shower (4) none.
    const QByteArray foto = Bmp(Qt::red);
    {
        Conexion c;
        ASSERT_TRUE(c.Abrir(a.sp.s.ArchivoProyecto));
        ASSERT_TRUE(c.Ejecutar(QStringLiteral("INSERT INTO ImgPiezas (Clave, ExisteFoto, Foto) VALUES (?, -1, ?)"), {10, foto}));
    }
    QString error;
    ASSERT_TRUE(CopieProyectoReporte(a.Copia(), a.sp.s.ArchivoProyecto, a.sp.s, {}, error));
    Reporte r;
    ASSERT_TRUE(r.Abrir(a.sp.s.RutaPrograma, QStringLiteral("PiezasRamalesFoto")));
    ASSERT_TRUE(r.Vincular(a.Copia())) << r.Error().toStdString();
    const TablaReporte& t = r.Datos().Tabla(QStringLiteral("DatosPiezas"));
    ASSERT_EQ(t.filas.size(), 10u);
    int conFoto = 0;
    for (int f = 0; f < 10; ++f) {
        const int clave = t.Dato(f, QStringLiteral("Clave")).toInt();
        const QByteArray b = t.Dato(f, QStringLiteral("Foto")).toByteArray();
        EXPECT_EQ(b, clave == 10 ? foto : QByteArray()) << clave;
        conFoto += clave == 10;
    }
    EXPECT_EQ(conFoto, 2);  // the two washbasin rows, branches 5 and 6
    // Sorted by branch, then position: the first row is branch 3's sink.
    EXPECT_EQ(t.Dato(0, QStringLiteral("Pieza")).toString(), QStringLiteral("FREGADERO"));
    // The page carries the two pictures and blank cells for the rest.
    const QString html = a.sp.Datos(QStringLiteral("fotos.htm"));
    ASSERT_TRUE(r.ExportarHtml(html));
    EXPECT_EQ(QString::fromUtf8(LeerArchivo(html)).count(QStringLiteral("<img")), 2);

    // The catalogue's photograph, with the general data of the work database.
    ASSERT_TRUE(LleneGeneralesCatalogo(a.Trabajo(), {true, QStringLiteral("CATÁLOGO")}, error));
    Reporte cat;
    ASSERT_TRUE(cat.Abrir(a.sp.s.RutaPrograma, QStringLiteral("BDPiezasFoto")));
    ASSERT_TRUE(cat.Vincular(RutaCatalogoReportes(a.sp.s), a.Trabajo())) << cat.Error().toStdString();
    EXPECT_EQ(cat.Datos().General(QStringLiteral("Titulo1")), QStringLiteral("CATÁLOGO"));
    EXPECT_EQ(cat.Datos().Tabla(QStringLiteral("Piezas")).Dato(0, QStringLiteral("Foto")).toByteArray().left(2), QByteArray("BM"));
}

TEST(ReportesDatos, CadaOrigenImprimeSuPlantillaEnPdf) {
    Apartamento a("es_ES");
    PaginasComputos c;
    CalcularComputos(c, a.sp.s.ConexionProyecto);
    const DatosTanque t = TanqueMetodo1();
    FuenteDatos fuente;
    fuente.Proyecto = &a.p;
    fuente.Computos = &c;
    fuente.Tanque = &t;
    fuente.ValoresTanque = ResultadosHidro(t).Valores;
    // Values picked by hand: the apartment's eight fixture names, the
    // tank's 2.619,05 l, the catalogue's rows, the sample's branches.
    const struct {
        int origen;
        bool fotos;
        const char* plantilla;
        const char* texto;
    } casos[] = {
        {1, true, "Computos", "LAVAPLATOS AUTOMÁTICO"},  // no photograph template: Check3 ignored
        {2, false, "Hidroneumatico", "2.619,05 l"},
        {3, false, "BDPiezas", "URINARIO DE VÁLVULA"},
        {3, true, "BDPiezasFoto", "SUB-RAMAL"},
        {4, false, "BDConexiones", "VÁLVULA DE RETENCIÓN"},
        {4, true, "BDConexionesFoto", "Automática"},
        {5, true, "DatosProyecto", "LAVANDERIA"},
        {6, false, "PiezasRamales", "EXCUSADO DE TANQUE"},
        {6, true, "PiezasRamalesFoto", "LAVADORA AUTOMÁTICA"},
        {7, false, "ConexionesRamales", "MEDIDOR DE AGUA"},
        {7, true, "ConexionesRamalesFoto", "TEE NORMAL (FLUJO INVERTIDO)"},
    };
    for (const auto& k : casos) {
        const QString plantilla = QString::fromLatin1(k.plantilla);
        EXPECT_EQ(PlantillaOrigen(k.origen, k.fotos), plantilla);
        ImpreGeneral impre(k.origen, a.sp.s, a.d, a.salida, fuente);
        impre.Check3 = k.fotos;
        const QString pdf = a.sp.Datos(plantilla + QStringLiteral(".pdf"));
        a.salida.elecciones.push_back(EleccionSalida{FormatoSalida::Pdf, pdf});
        a.d.respuestas.push_back(Respuesta::No);
        ASSERT_TRUE(impre.Aceptar()) << k.plantilla << ": " << (a.d.mensajes.empty() ? "" : a.d.Ultimo().texto.toStdString());
        EXPECT_EQ(a.d.Ultimo().encabezado, QStringLiteral("Abrir el Archivo Exportado...")) << k.plantilla;
        const QString texto = TextoPdf(pdf);
        EXPECT_TRUE(texto.contains(TituloOrigen(k.origen))) << k.plantilla;
        EXPECT_TRUE(texto.contains(QString::fromUtf8(k.texto))) << k.plantilla << ": " << k.texto;
        // Every foot names the program's version, a project's copy too.
        EXPECT_TRUE(texto.contains(QStringLiteral("Nivo-Fontaria 2024"))) << k.plantilla;
    }
    EXPECT_FALSE(ImpreGeneral(5, a.sp.s, a.d, a.salida).Check3Visible());
    EXPECT_TRUE(ImpreGeneral(7, a.sp.s, a.d, a.salida).Check3Visible());
}

TEST(ReportesDatos, UnErrorDelMotorSeMuestraConSuNumeroYLaPantallaSigue) {
    Apartamento a;
    a.sp.s.RutaPrograma = a.sp.Datos(QStringLiteral("sin_plantillas"));
    ImpreGeneral impre(3, a.sp.s, a.d, a.salida);
    EXPECT_FALSE(impre.Aceptar());
    EXPECT_TRUE(a.d.Ultimo().texto.startsWith(QStringLiteral("Error Número: 20525\nNo se encontró la plantilla del reporte «BDPiezas»")));
    EXPECT_EQ(a.salida.opciones, 0);
    // Cancelling the output choice leaves the screen open, no file written.
    a.sp.s.RutaPrograma = RutaProgramaPruebas();
    EXPECT_FALSE(impre.Aceptar());
    EXPECT_EQ(a.salida.opciones, 1);
}
