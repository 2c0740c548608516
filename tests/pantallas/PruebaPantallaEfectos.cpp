// The effects screen as the desktop shows it: cancel leaves the caller's
// picture, "Fijar el Efecto" hands the preview over; the lists open from it.

#include "images/screens/PantallasFotoEscritorio.h"
#include "images/screens/VentanaEfectoImagenNivo.h"
#include "images/screens/VentanaListaEfectos.h"
#include "support/Apoyo.h"
#include "support/Modales.h"
#include "widgets/NivoToolTip.h"
#include "widgets/VistaGrid.h"

#include <QSlider>

namespace {

QImage Foto() {
    QImage img(60, 40, QImage::Format_RGB32);
    for (int y = 0; y < 40; ++y)
        for (int x = 0; x < 60; ++x) img.setPixel(x, y, qRgb(4 * x, 6 * y, 200 - 3 * x));
    return img;
}

void Pulsar(QWidget* w, const char* nombre) {
    auto* b = w->findChild<QPushButton*>(QString::fromLatin1(nombre));
    ASSERT_NE(b, nullptr) << nombre;
    b->click();
}

}  // namespace

TEST(PantallaEfectos, CancelarDejaLaImagenYFijarLaCambia) {
    SesionPrueba sp;
    DialogosFalsos d;
    PantallasFotoEscritorio fotos(sp.s, d, nullptr);
    const QImage original = Foto();
    QImage imagen = original;
    CuandoAbra<VentanaEfectoImagenNivo>([](VentanaEfectoImagenNivo* v) {
        Pulsar(v, "NivoButton7");
        v->Deslizadera(Deslizador::Brillo)->setValue(40);
        Pulsar(v, "Button2");
    });
    EXPECT_FALSE(fotos.EfectosImagen(imagen));
    EXPECT_EQ(imagen, original);

    CuandoAbra<VentanaEfectoImagenNivo>([](VentanaEfectoImagenNivo* v) {
        // The head lines and tips of the table, the reset tips plain.
        auto* tip = v->findChild<NivoToolTip*>();
        auto* b1 = v->findChild<QPushButton*>("NivoButton1");
        EXPECT_EQ(tip->TituloDe(b1), "Bilateral Filtro");
        EXPECT_EQ(tip->Texto(b1), "Este efecto mejora la calidad de \nla imagen. ");
        EXPECT_EQ(tip->Texto(v->findChild<QPushButton*>("ButtonRSH")), " Reestablece el Afililamiento ");
        Pulsar(v, "NivoButton7");
        Pulsar(v, "Command2");
    });
    EXPECT_TRUE(fotos.EfectosImagen(imagen));
    const QRgb p = imagen.pixel(10, 10);
    EXPECT_EQ(qRed(p), qGreen(p));
    EXPECT_EQ(qGreen(p), qBlue(p));
    EXPECT_EQ(d.ocupado, 0);
}

TEST(PantallaEfectos, LaListaRgbDevuelveLaFilaElegida) {
    SesionPrueba sp;
    CuandoAbra<VentanaListaEfectos>([](VentanaListaEfectos* v) {
        auto* g = v->findChild<VistaGrid*>("Spread1");
        g->setCurrentIndex(g->model()->index(48, 0));
        Pulsar(v, "Button2");
    });
    EXPECT_EQ(VentanaListaEfectos::ElegirEfectoRGB(Foto(), sp.s.Tapiz, nullptr), 49);
    CuandoAbra<VentanaListaEfectos>([](VentanaListaEfectos* v) { Pulsar(v, "Button1"); });
    EXPECT_EQ(VentanaListaEfectos::ElegirDithering(Foto(), sp.s.Tapiz, nullptr), std::nullopt);
}
