// The picture tabs of the two analysis screens and the command line's
// drawing options, end to end.

#include "ApoyoDibujos.h"
#include "analysis/screens/VentanaAnalisisRed.h"
#include "aqueduct/screens/VentanaAnalisisACU.h"
#include "pictures/EsquemaEdificio.h"
#include "pictures/PlanoAcueducto.h"
#include "pictures/screens/VistaDibujo.h"
#include "widgets/NivoTab.h"
#include "widgets/VistaGrid.h"

#include <QApplication>
#include <QComboBox>
#include <QFileInfo>
#include <QImage>
#include <QPushButton>
#include <QTabWidget>

TEST(PestanaEsquema, SeRedibujaTrasCadaEdicionYSeExporta) {
    SesionPrueba sp;
    ProyectoEdificio p;
    DialogosFalsos d;
    QDir().mkpath(sp.Datos(QStringLiteral("Proyectos")));
    const QString ruta = sp.CopiaDeEjemplo(QStringLiteral("Vivienda con Tanque Elevado.nivo"),
                                           QStringLiteral("Proyectos/Vivienda con Tanque Elevado.plm"));
    QString error;
    ASSERT_TRUE(CargarProyectoEdificio(p, sp.s, ruta, error));
    VerificarNumeracion(p, d);
    VentanaAnalisisRed v(p, sp.s, d);
    ASSERT_TRUE(v.Cargar());
    v.show();
    ASSERT_EQ(v.Tabs()->count(), 5);
    EXPECT_EQ(v.Tabs()->tabText(4).trimmed(), QStringLiteral("ESQUEMA"));
    v.Tabs()->setCurrentIndex(4);
    QApplication::processEvents();
    ASSERT_NE(v.Dibujo(), nullptr);
    EXPECT_TRUE(v.Esquema()->isVisible());
    EXPECT_EQ(v.Dibujo()->Datos().ramales[7].diametro, p.Predimensionado[8] + QStringLiteral("\""));

    // Branch 8 made 3/4" in the pre-sizing grid: the picture shows the new size.
    ModeloGrid& m = v.Vista(1)->Modelo();
    ASSERT_TRUE(m.setData(m.index(7, 6), QStringLiteral("3/4\""), Qt::EditRole));
    QApplication::processEvents();
    ASSERT_NE(v.Dibujo(), nullptr);
    EXPECT_EQ(v.Dibujo()->Datos().ramales[7].diametro, QStringLiteral("3/4\""));

    // "Exportar SVG": the save dialog, the extension added to a bare name.
    d.archivos.push_back(sp.Datos(QStringLiteral("esquema")));
    v.Esquema()->Boton(QStringLiteral("svg"))->click();
    EXPECT_TRUE(QFileInfo::exists(sp.Datos(QStringLiteral("esquema.svg"))));
    d.archivos.push_back(sp.Datos(QStringLiteral("esquema.doc")));
    v.Esquema()->Boton(QStringLiteral("png"))->click();
    ASSERT_FALSE(d.mensajes.empty());
    EXPECT_TRUE(d.Ultimo().texto.contains(QStringLiteral("PNG, SVG o PDF")));
    EXPECT_FALSE(QFileInfo::exists(sp.Datos(QStringLiteral("esquema.doc"))));
}

TEST(PestanaPlano, SigueAlCasoConservaLaDisposicionYMuestraLaFila) {
    SesionPrueba sp;
    ProyectoAcueducto p;
    DialogosFalsos d;
    QDir().mkpath(sp.Datos(QStringLiteral("Redes")));
    const QString ruta =
        sp.CopiaDeEjemplo(QStringLiteral("EjemploRedA.nivo"), QStringLiteral("Redes/EjemploRedA.acu"));
    QString error;
    ASSERT_TRUE(CargarProyectoACU(p, sp.s, ruta, error));
    VentanaAnalisisACU v(p, sp.s, d);
    v.show();
    QApplication::processEvents();
    ASSERT_EQ(v.Tabs()->count(), 3);
    EXPECT_EQ(v.Tabs()->tabText(2), QStringLiteral("PLANO"));
    v.Tabs()->setCurrentIndex(2);
    QApplication::processEvents();
    const PlanoAcueducto* caso1 = v.Dibujo();
    ASSERT_NE(caso1, nullptr);
    const std::vector<QPointF> posiciones = caso1->Posiciones();
    const double velocidad1 = caso1->Datos().tramos[0].velocidad;

    v.Combo()->setCurrentIndex(2);  // fire case: more flow
    QApplication::processEvents();
    ASSERT_NE(v.Dibujo(), nullptr);
    EXPECT_EQ(v.Dibujo()->Datos().caso, v.Combo()->itemText(2));
    EXPECT_GT(std::abs(v.Dibujo()->Datos().tramos[0].velocidad), std::abs(velocidad1));
    EXPECT_EQ(v.Dibujo()->Posiciones(), posiciones);

    v.ColorPlano()->setCurrentIndex(1);
    EXPECT_EQ(v.Dibujo()->Modo(), ColorPlano::PerdidaUnitaria);

    // The tool-tip of a section is its row of the sections grid.
    const QString fila = FilaComoTexto(v.Logica().Spread1, 1);
    EXPECT_TRUE(fila.contains(v.Logica().Spread1.Texto(1, 8)));
    EXPECT_TRUE(v.Plano()->Vista()->textoElemento);
    EXPECT_EQ(v.Plano()->Vista()->textoElemento({ElementoDibujo::Tubo, 0}), fila);
}

TEST(LineaDibujos, AnalizarYAcueductoDibujanYRechazanOtraExtension) {
    SesionPrueba sp;
    const QString plm = sp.CopiaDeEjemplo(QStringLiteral("Edificio_MontantePH.nivo"), QStringLiteral("m.plm"));
    const QString acu = sp.CopiaDeEjemplo(QStringLiteral("EjemploRedB.nivo"), QStringLiteral("b.acu"));
    QString errores;
    EXPECT_EQ(EjecutarPrograma({QStringLiteral("analizar"), plm, QStringLiteral("--esquema"), sp.Datos(QStringLiteral("e.svg"))}, nullptr, &errores), 0)
        << errores.toStdString();
    const QString svg = QString::fromUtf8(LeerArchivo(sp.Datos(QStringLiteral("e.svg"))));
    EXPECT_TRUE(svg.contains(QStringLiteral(">B8<")));
    EXPECT_EQ(EjecutarPrograma({QStringLiteral("acueducto"), acu, QStringLiteral("--caso"), QStringLiteral("2"),
                                QStringLiteral("--plano"), sp.Datos(QStringLiteral("p.pdf"))}, nullptr, &errores), 0)
        << errores.toStdString();
    EXPECT_TRUE(LeerArchivo(sp.Datos(QStringLiteral("p.pdf"))).startsWith("%PDF"));
    // Asked in black and white, the PNG holds greys only.
    EXPECT_EQ(EjecutarPrograma({QStringLiteral("acueducto"), acu, QStringLiteral("--plano"), sp.Datos(QStringLiteral("p.png")),
                                QStringLiteral("--blanco-y-negro")}, nullptr, &errores), 0)
        << errores.toStdString();
    const QImage gris(sp.Datos(QStringLiteral("p.png")));
    ASSERT_FALSE(gris.isNull());
    bool soloGris = true;
    for (int y = 0; y < gris.height(); ++y)
        for (int x = 0; x < gris.width(); ++x) {
            const QColor c = gris.pixelColor(x, y);
            soloGris = soloGris && std::abs(c.red() - c.green()) <= 2 && std::abs(c.green() - c.blue()) <= 2;
        }
    EXPECT_TRUE(soloGris);

    for (const QStringList& args : {QStringList{QStringLiteral("analizar"), plm, QStringLiteral("--esquema"), sp.Datos(QStringLiteral("e.jpg"))},
                                    QStringList{QStringLiteral("acueducto"), acu, QStringLiteral("--plano"), sp.Datos(QStringLiteral("e.jpg"))}}) {
        EXPECT_NE(EjecutarPrograma(args, nullptr, &errores), 0);
        EXPECT_TRUE(errores.contains(QStringLiteral("El dibujo se guarda como PNG, SVG o PDF"))) << errores.toStdString();
        EXPECT_FALSE(QFileInfo::exists(sp.Datos(QStringLiteral("e.jpg"))));
    }
}
