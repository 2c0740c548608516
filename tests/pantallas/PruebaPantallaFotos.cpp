// The desktop's photograph screens opened through PantallasFotoEscritorio:
// what the buttons hand back to the caller.
#include "ApoyoPantallas.h"
#include "images/screens/PantallasFotoEscritorio.h"
#include "images/screens/VentanaCapturaFotoF2.h"
#include "images/screens/VentanaVisualizarImagen.h"

namespace {
QPushButton* Boton(QWidget* w, const char* nombre) { return w->findChild<QPushButton*>(QLatin1String(nombre)); }
}  // namespace

TEST(PantallaFotos, ElVisorSinAreaAvisaYSigueYConAreaLaDevuelve) {
    SesionPrueba sp;
    DialogosPantalla d;
    PantallasFotoEscritorio fotos(sp.s, d, nullptr);
    QImage imagen(4, 3, QImage::Format_RGB32);
    for (int y = 0; y < 3; ++y)
        for (int x = 0; x < 4; ++x) imagen.setPixel(x, y, qRgb(10 * x, 10 * y, 0));

    MensajeVisto visto;
    bool abiertaTrasElMensaje = false;
    CuandoAbra<VentanaVisualizarImagen>([&](VentanaVisualizarImagen* v) {
        Contestar(visto, 0);
        Boton(v, "Command2")->click();  // no area yet: the message, the screen stays
        abiertaTrasElMensaje = v->isVisible();
        v->Logica().Seleccionar(QRect(2, 1, 2, 2));
        Boton(v, "Command2")->click();
    });
    ASSERT_TRUE(fotos.VisualizarImagen(imagen));
    EXPECT_EQ(visto.texto, QStringLiteral("No ha Selecionado Ninguna Área en la Imagen!"));
    EXPECT_TRUE(abiertaTrasElMensaje);
    ASSERT_EQ(imagen.size(), QSize(2, 2));
    EXPECT_EQ(imagen.pixel(0, 0), qRgb(20, 10, 0));

    CuandoAbra<VentanaVisualizarImagen>([](VentanaVisualizarImagen* v) { Boton(v, "Command1")->click(); });
    EXPECT_FALSE(fotos.VisualizarImagen(imagen));
    EXPECT_EQ(imagen.size(), QSize(2, 2));
}

TEST(PantallaFotos, LaCapturaDevuelveLaImagenDelArchivo) {
    SesionPrueba sp;
    DialogosPantalla d;
    PantallasFotoEscritorio fotos(sp.s, d, nullptr);
    QImage roja(8, 6, QImage::Format_RGB32);
    roja.fill(Qt::red);
    const QString ruta = sp.Datos(QStringLiteral("roja.png"));
    ASSERT_TRUE(roja.save(ruta));

    CuandoAbra<VentanaCapturaFotoF2>([&](VentanaCapturaFotoF2* v) {
        v->Logica().SeleccionarArchivo(ruta);
        Boton(v, "Command2")->click();
    });
    QImage imagen;
    ASSERT_TRUE(fotos.CapturarImagen(imagen, false));
    EXPECT_EQ(imagen.size(), QSize(8, 6));
    EXPECT_EQ(sp.s.HayImagenNueva, -1);
    EXPECT_EQ(sp.s.RutaImagenCapturada, ruta);
}
