// The logic of the effects screen and of its two lists, through the fakes.

#include "images/efectos/EfectoImagenNivo.h"
#include "images/efectos/EfectoTapiz.h"
#include "images/efectos/ListaEfectos.h"
#include "support/Apoyo.h"
#include "support/PantallasFotoFalsas.h"

namespace {

class ListasFalsas : public ListasEfectos {
public:
    std::optional<int> rgb, dithering;
    QSize vista;  // the size of the picture the list was given
    std::optional<int> ElegirEfectoRGB(const QImage& i) override {
        vista = i.size();
        return rgb;
    }
    std::optional<int> ElegirDithering(const QImage& i) override {
        vista = i.size();
        return dithering;
    }
};

QImage Foto(int W = 40, int H = 30) {
    QImage img(W, H, QImage::Format_RGB32);
    for (int y = 0; y < H; ++y)
        for (int x = 0; x < W; ++x) img.setPixel(x, y, qRgb(6 * x, 8 * y, (x * y) % 256));
    return img;
}

struct EfectoPrueba : ::testing::Test {
    DialogosFalsos d;
    PantallasFotoFalsas fotos;
    ListasFalsas listas;
    EfectoImagenNivo e{d, fotos, listas};
};

}  // namespace

TEST_F(EfectoPrueba, UnaImagenSinTamanoSeRechazaConElDesbordamiento) {
    EXPECT_FALSE(e.Cargar(QImage()));
    ASSERT_EQ(d.mensajes.size(), 1u);
    EXPECT_TRUE(d.Ultimo().texto.startsWith("Error 6: Desbordamiento\n"));
    EXPECT_EQ(d.Ultimo().encabezado, "Error en el Cálculo...");
}

TEST_F(EfectoPrueba, LosEfectosNoSeAcumulanYReestablecerVuelveAlOriginal) {
    const QImage original = Foto();
    ASSERT_TRUE(e.Cargar(original));
    EXPECT_EQ(e.Vista(), original);
    e.EscalaGrises();
    const QImage gris = e.Vista();
    EXPECT_NE(gris, original);
    EXPECT_EQ(d.ocupado, 0);  // the busy pointer came back
    // The relief of the grey picture would differ from the relief of the
    // original: each press starts from the original.
    e.Imagen3D();
    const QImage relieve = e.Vista();
    e.EscalaGrises();
    e.Imagen3D();
    EXPECT_EQ(e.Vista(), relieve);
    e.ReestablecerImagen();
    EXPECT_EQ(e.Vista(), original);
}

TEST_F(EfectoPrueba, ElDeslizadorReestablecidoRedibujaDesdeElOriginal) {
    const QImage original = Foto();
    ASSERT_TRUE(e.Cargar(original));
    for (Deslizador s : {Deslizador::Brillo, Deslizador::Contraste, Deslizador::Saturacion, Deslizador::Afilado}) {
        e.MoverDeslizador(s, 60);
        EXPECT_NE(e.Vista(), original);
        e.ReestablecerDeslizador(s);
        EXPECT_EQ(e.Valor(s), EfectoImagenNivo::Inicio);
        EXPECT_EQ(e.Vista(), original);
    }
    // Beyond its range a slider stops at its end.
    e.MoverDeslizador(Deslizador::Afilado, -20);
    EXPECT_EQ(e.Valor(Deslizador::Afilado), 0);
    e.MoverDeslizador(Deslizador::Brillo, 300);
    EXPECT_EQ(e.Valor(Deslizador::Brillo), 100);
}

TEST_F(EfectoPrueba, LasListasEligenLaFilaYCancelarNoCambiaNada) {
    const QImage original = Foto();
    ASSERT_TRUE(e.Cargar(original));
    e.EfectosRGB();  // cancelled
    EXPECT_EQ(e.Vista(), original);
    listas.rgb = 49;  // Invert RGB
    e.EfectosRGB();
    EXPECT_EQ(e.Vista().pixel(3, 2), qRgb(255 - 18, 255 - 16, 255 - 6));
    listas.dithering = 12;
    e.Dithering();
    EXPECT_EQ(e.Vista().pixel(0, 0), qRgb(0, 0, 0));  // black stays below every threshold
    e.ExportarImagen();
    ASSERT_EQ(fotos.llamadas, QStringList{"Exportar"});
    EXPECT_EQ(fotos.exportadas[0], e.Vista());
    EXPECT_EQ(e.FijarEfecto(), e.Vista());
}

TEST(ListaEfectos, LasFilasYLaVistaReducida) {
    ListaEfectos rgb = RGBColors();
    ASSERT_EQ(rgb.Spread1.Filas(), 111);
    EXPECT_EQ(rgb.Spread1.Texto(111, 1), "Lumen Effect (37)");
    rgb.Cargar(Foto(600, 300));
    EXPECT_EQ(rgb.Vista().size(), QSize(240, 120));
    rgb.ElegirFila(49);
    EXPECT_EQ(rgb.Aceptar(), 49);
    EXPECT_EQ(rgb.Vista().size(), QSize(240, 120));

    ListaEfectos dit = Dithering();
    ASSERT_EQ(dit.Spread1.Filas(), 13);
    EXPECT_EQ(dit.Spread1.Texto(13, 1), "Ordered (Bayer 8x8)");
    dit.Cargar(Foto(600, 300), dit.Check1());
    dit.ElegirFila(3);
    EXPECT_EQ(dit.Vista().size(), QSize(240, 120));
    dit.PonerCheck1(false);  // the whole picture
    EXPECT_EQ(dit.Vista().size(), QSize(600, 300));
    EXPECT_EQ(dit.Aceptar(), 3);
}

TEST(EfectoTapiz, CadaIndiceEsUnEfectoDistintoYElCeroNinguno) {
    const QImage foto = Foto(64, 48);
    EXPECT_EQ(AplicarEfectoTapiz(foto, 0), foto);
    EXPECT_EQ(AplicarEfectoTapiz(foto, 28), foto);  // read as 0 by the start-up anyway
    EXPECT_EQ(NombreEfectoTapiz(1), "Escala de Grises");
    std::vector<QImage> vistas;
    QStringList nombres;
    for (int i = 1; i <= NumeroEfectosTapiz; ++i) {
        const QImage v = AplicarEfectoTapiz(foto, i).convertToFormat(QImage::Format_RGB32);
        EXPECT_EQ(v.size(), foto.size());
        EXPECT_NE(v, foto) << i;
        for (size_t j = 0; j < vistas.size(); ++j) EXPECT_NE(v, vistas[j]) << i << " " << j + 1;
        vistas.push_back(v);
        nombres << NombreEfectoTapiz(i);
    }
    EXPECT_EQ(nombres.removeDuplicates(), 0);
}
