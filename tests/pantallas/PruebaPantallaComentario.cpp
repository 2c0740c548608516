// The comment of a branch opened from the analysis screen (LSButton9) on the
// sample "Vivienda con Tanque Elevado", and Esc on the floor levels, through
// the real message box.

#include "ApoyoPantallas.h"
#include "analysis/screens/VentanaAnalisisRed.h"
#include "entry/screens/VentanaComentarioRamal.h"
#include "entry/RamalesDePrueba.h"
#include "entry/screens/VentanaCambiarOpcionDiseno.h"
#include "entry/screens/VentanaCotasNodos.h"
#include "entry/screens/VentanaLongitudTramosR.h"
#include "widgets/VistaGrid.h"

#include <QScrollBar>

namespace {

struct PantallaComentario : ::testing::Test {
    SesionPrueba sp;
    ProyectoEdificio p;
    DialogosPantalla d;
    QString archivo;
    void SetUp() override { archivo = CargarEjemplo(sp, p, d, QStringLiteral("Vivienda con Tanque Elevado")); }
};

}  // namespace

TEST_F(PantallaComentario, CadaPantallaLlevaSuTitulo) {
    VentanaAnalisisRed a(p, sp.s, d);
    ASSERT_TRUE(a.Cargar());
    EditorDePrueba editor(p);
    const std::pair<std::unique_ptr<QDialog>, const char*> casos[] = {
        {std::make_unique<VentanaCotasNodos>(p, sp.s, d), "Cotas de Piso de los Nodos"},
        {std::make_unique<VentanaCambiarOpcionDiseno>(p, sp.s, d, editor, nullptr), "Opción de Diseño en los Ramales"},
        {std::make_unique<VentanaLongitudTramosR>(p, sp.s, d, editor, nullptr), "Calcular la Longitud de los Ramales"},
        {std::make_unique<VentanaComentarioRamal>(p, sp.s, d, a.Logica(), nullptr), "Comentario del Ramal"},
    };
    for (const auto& [ventana, titulo] : casos) EXPECT_EQ(ventana->windowTitle(), QString::fromUtf8(titulo));
}

TEST_F(PantallaComentario, ElBotonDelAnalisisAbreElComentarioDeLaFilaActiva) {
    VentanaAnalisisRed v(p, sp.s, d);
    ASSERT_TRUE(v.Cargar());
    v.show();
    VistaGrid* spread4 = v.Vista(1);
    spread4->setCurrentIndex(spread4->model()->index(7, 0));
    MensajeVisto visto;
    QString panel, texto;
    CuandoAbra<VentanaComentarioRamal>([&](VentanaComentarioRamal* c) {
        panel = c->Panel()->text();
        texto = c->Text1()->text();
        Escribir(c->Text1(), QStringLiteral("Grifo del patio"));
        Contestar(visto, 1);  // "Sí"
        c->findChild<QPushButton*>(QStringLiteral("Fijar"))->click();
        c->VScroll1()->setValue(3);
        Tecla(c, Qt::Key_Escape);
    });
    v.Boton(QStringLiteral("LSButton9"))->click();
    EXPECT_EQ(panel, QStringLiteral("8"));
    EXPECT_EQ(texto, QStringLiteral("Manguera del patio"));
    MensajeEs(visto, QStringLiteral("¿Fijar el Comentario Seleccionado del Ramal?"),
              QStringLiteral("Fijar Comentario al Ramal..."), QStringLiteral("Datos del Proyecto de Acueductos"));
    EXPECT_EQ(spread4->grid()->Texto(8, 9), QStringLiteral("Grifo del patio"));
    EXPECT_EQ(ComoTexto(CampoDelArchivo(archivo, "Comentario", 8)), QStringLiteral("Grifo del patio"));
    // The scroll bar took the analysis cursor to the comment of branch 3.
    EXPECT_EQ(spread4->currentIndex().row(), 2);
    EXPECT_EQ(spread4->currentIndex().column(), 8);
}

// A comment typed and not fixed lasts through every way out, as leaving its
// branch with the scroll bar keeps it.
TEST_F(PantallaComentario, LoTecleadoNoSePierdeAlCerrar) {
    VentanaAnalisisRed v(p, sp.s, d);
    ASSERT_TRUE(v.Cargar());
    v.show();
    const std::function<void(VentanaComentarioRamal*)> salidas[] = {
        [](VentanaComentarioRamal* c) { c->findChild<QPushButton*>(QStringLiteral("Retorno"))->click(); },
        [](VentanaComentarioRamal* c) { Tecla(c, Qt::Key_Escape); },
        [](VentanaComentarioRamal* c) { c->close(); },
    };
    int n = 0;
    for (const auto& salir : salidas) {
        const QString texto = QStringLiteral("Salida %1").arg(++n);
        CuandoAbra<VentanaComentarioRamal>([&](VentanaComentarioRamal* c) {
            Escribir(c->Text1(), texto);
            salir(c);
        });
        v.Boton(QStringLiteral("LSButton9"))->click();
        EXPECT_EQ(p.RamalComentario[1], texto);
        EXPECT_EQ(ComoTexto(CampoDelArchivo(archivo, "Comentario", 1)), texto);
    }
}

TEST_F(PantallaComentario, EscEnLasCotasPreguntaAntesDePerderLoTecleado) {
    VentanaCotasNodos v(p, sp.s, d);
    v.show();
    // The elevated tank's row is not the cursor's.
    EXPECT_EQ(v.Spread1()->currentIndex().row(), 1);
    ModeloGrid& m = v.Spread1()->Modelo();
    ASSERT_TRUE(m.setData(m.index(2, 1), QStringLiteral("4.5"), Qt::EditRole));
    QApplication::processEvents();
    MensajeVisto visto;
    Contestar(visto, 0);  // "Cancelar": stays
    Tecla(&v, Qt::Key_Escape);
    EXPECT_TRUE(v.isVisible());
    MensajeEs(visto, QStringLiteral("Las Cotas de Piso han Sido Modificadas...\n¿Desea Salvar los Cambios Realizados?"),
              QStringLiteral("Salvar las Cotas de Piso..."));
    Contestar(visto, 2);  // "Sí"
    Tecla(&v, Qt::Key_Escape);
    EXPECT_FALSE(v.isVisible());
    EXPECT_DOUBLE_EQ(p.CotaPiso[3], 4.5);
}
