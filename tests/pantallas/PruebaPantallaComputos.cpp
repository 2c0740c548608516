// The take-off screen on the sample "Vivienda con Tanque Elevado", before
// and after its analysis.  The lists are worked by hand from the sample's
// data and the sizes of its pre-sizing (1 1/4" for the two first branches,
// 1" for N2-N3 and N2-N5, 3/4" for the three branches beyond, 1/2" for the
// hose): see the analysis screen's test for how those sizes come.

#include "ApoyoPantallas.h"
#include "takeoff/screens/VentanaComputos.h"
#include "widgets/NivoTab.h"
#include "widgets/NivoToolTip.h"
#include "widgets/VistaGrid.h"

#include <QPushButton>

namespace {

struct PantallaComputos : ::testing::Test {
    SesionPrueba sp;
    ProyectoEdificio p;
    DialogosPantalla d;
    QString archivo;
    // The main window behind the screen.
    std::unique_ptr<QWidget> principal = std::make_unique<QWidget>();
    std::unique_ptr<VentanaComputos> v;

    void Abrir(bool desdeAnalisis = false) {
        archivo = CargarEjemplo(sp, p, d, QStringLiteral("Vivienda con Tanque Elevado"));
        v = std::make_unique<VentanaComputos>(p, sp.s, d, desdeAnalisis, principal.get());
        ASSERT_TRUE(v->Cargar());
        v->show();
    }
    QStringList Filas(int pagina) {
        const Grid& g = *v->Vista(pagina)->grid();
        QStringList l;
        for (int f = 1; f <= g.Filas(); ++f) l << g.Texto(f, 1) + QLatin1Char('|') + g.Texto(f, 2);
        return l;
    }
};

}  // namespace

TEST_F(PantallaComputos, AbreConLasPiezasDelProyectoSinAnalizar) {
    Abrir();
    EXPECT_EQ(v->windowTitle(), QStringLiteral("LISTADO DE MATERIALES"));
    ASSERT_EQ(v->Tabs()->count(), 4);
    EXPECT_EQ(v->Tabs()->tabText(2).trimmed(), QStringLiteral("Reducciones"));
    EXPECT_EQ(v->Tabs()->Tab(), 1);
    // The fixtures by name, in the order of their names.
    EXPECT_EQ(Filas(1), (QStringList{QStringLiteral("BATEA|1"), QStringLiteral("CONEXIÓN MANGUERA|1"),
                                     QStringLiteral("DUCHA|2"), QStringLiteral("EXCUSADO DE TANQUE|2"),
                                     QStringLiteral("FREGADERO|1"), QStringLiteral("LAVADORA AUTOMÁTICA|1"),
                                     QStringLiteral("LAVAMANOS|2")}));
    // Never analysed: no size in the file, so no sized fitting and no pipe.
    EXPECT_TRUE(Filas(2).isEmpty());
    EXPECT_TRUE(Filas(3).isEmpty());
    EXPECT_TRUE(Filas(4).isEmpty());
    EXPECT_TRUE(v->Boton(QStringLiteral("Abrir"))->isVisible());
    EXPECT_EQ(v->Tip()->Texto(v->Boton(QStringLiteral("Abrir"))), QStringLiteral("Abrir un proyecto existente. "));
    const ImpreVista impre = ImpreAbierta(v->Boton(QStringLiteral("Imprimir")));
    EXPECT_EQ(impre.origen, 1);
    EXPECT_EQ(impre.titulo, QStringLiteral("COMPUTOS DE MATERIALES"));
    EXPECT_FALSE(impre.fotos);
}

TEST_F(PantallaComputos, AbrirAnalizaYLlenaLasCuatroPaginas) {
    Abrir();
    d.archivos = {archivo};
    v->Boton(QStringLiteral("Abrir"))->click();
    EXPECT_EQ(v->windowTitle(), QStringLiteral("CÓMPUTOS   PROYECTO: [ VIVIENDA CON TANQUE ELEVADO.PLM ] "));
    EXPECT_EQ(principal->windowTitle(), QStringLiteral("NIVO-FONTARIA 2024    PROYECTO: [ VIVIENDA CON TANQUE ELEVADO.PLM ]"));
    // The analysis wrote the sizes to the file.
    EXPECT_EQ(ComoTexto(CampoDelArchivo(archivo, "Predimensionado", 8)), QStringLiteral("1/2"));
    // Sorted on the text: a blank, then the inch mark, then the slash.
    EXPECT_EQ(Filas(2), (QStringList{
                            QStringLiteral("CODO DE 45 GRADOS DE  1/2\"|2"),
                            QStringLiteral("CODO DE 90 GRADOS DE  1 1/4\"|4"),
                            QStringLiteral("CODO DE 90 GRADOS DE  1\"|3"),
                            QStringLiteral("CODO DE 90 GRADOS DE  1/2\"|2"),
                            QStringLiteral("CODO DE 90 GRADOS DE  3/4\"|9"),
                            QStringLiteral("LLAVE DE COMPUERTA ABIERTA DE  1 1/4\"|1"),
                            QStringLiteral("LLAVE DE PASO ABIERTA DE  1\"|1"),
                            QStringLiteral("LLAVE DE PASO ABIERTA DE  3/4\"|2"),
                            QStringLiteral("TEE NORMAL DE  1 1/4\"|1"),
                            QStringLiteral("TEE NORMAL DE  1\"|1"),
                            QStringLiteral("TEE NORMAL DE  3/4\"|2"),
                        }));
    EXPECT_EQ(Filas(3), (QStringList{QStringLiteral("REDUCCIÓN DE  1 1/4\"  A  1\"|2"),
                                     QStringLiteral("REDUCCIÓN DE  1 1/4\"  A  1/2\"|1"),
                                     QStringLiteral("REDUCCIÓN DE  1\"  A  3/4\"|3")}));
    // Lengths of the file (the tank's own pipe counts with its stored 6 m).
    EXPECT_EQ(Filas(4), (QStringList{QStringLiteral("TUBERIA DE DIAMETRO = 1\"|10.00"),
                                     QStringLiteral("TUBERIA DE DIAMETRO = 1 1/4\"|14.00"),
                                     QStringLiteral("TUBERIA DE DIAMETRO = 1/2\"|10.00"),
                                     QStringLiteral("TUBERIA DE DIAMETRO = 3/4\"|11.00")}));
}

TEST_F(PantallaComputos, AbrirCanceladoNoCambiaNada) {
    Abrir();
    d.archivos = {std::nullopt};
    v->Boton(QStringLiteral("Abrir"))->click();
    EXPECT_EQ(v->windowTitle(), QStringLiteral("LISTADO DE MATERIALES"));
    EXPECT_EQ(Filas(1).size(), 7);
    ASSERT_EQ(d.dialogosArchivo.size(), 1);
    EXPECT_EQ(d.dialogosArchivo[0],
              QStringLiteral("Abrir un Proyecto Existente|*.plm|*.plm|") + sp.Datos(QStringLiteral("Proyectos")));
}

TEST_F(PantallaComputos, DesdeElAnalisisNoHayAbrir) {
    Abrir(true);
    EXPECT_FALSE(v->Boton(QStringLiteral("Abrir"))->isVisible());
    EXPECT_TRUE(v->Boton(QStringLiteral("Retorno"))->isVisible());
}

TEST_F(PantallaComputos, LasPestanasCambianDePaginaYEscCierra) {
    Abrir();
    v->Tabs()->PonerTab(4);
    EXPECT_EQ(v->Logica().Pagina, 4);
    Tecla(v.get(), Qt::Key_Escape);
    EXPECT_FALSE(v->isVisible());
}

TEST_F(PantallaComputos, UnaFallaDelAnalisisAlAbrirSeMuestraYCierra) {
    Abrir();
    const QString otro = sp.CopiaDeEjemplo(QStringLiteral("Edificio_MontantePH.nivo"), QStringLiteral("ph.plm"));
    // Hazen-Williams with C of 0 divides by zero.
    ASSERT_TRUE(EjecutarSql(otro, QStringLiteral("UPDATE DatosGenerales SET CoeficienteC=0")));
    d.archivos = {otro};
    MensajeVisto visto;
    Contestar(visto, 0);
    v->Boton(QStringLiteral("Abrir"))->click();
    EXPECT_TRUE(visto.texto.startsWith(QStringLiteral("Error 11: División por cero"))) << visto.texto.toStdString();
    EXPECT_EQ(visto.encabezado, QStringLiteral("Error en el Cálculo..."));
    EXPECT_FALSE(v->isVisible());
}
