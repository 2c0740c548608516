// The wallpaper panel wears the effect of record 5 of Tapiz.nivo.

#include "widgets/PanelTapiz.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

TEST(PanelTapiz, ElEfectoDelRegistroCincoSeAplicaYElCeroLoQuita) {
    QTemporaryDir dir;
    QImage foto(30, 20, QImage::Format_RGB32);
    foto.fill(qRgb(200, 100, 50));
    ConfiguracionTapiz c;
    c.RutaTapiz = dir.filePath("tapiz.png");
    ASSERT_TRUE(foto.save(c.RutaTapiz));
    PanelTapiz panel;
    ASSERT_TRUE(panel.Aplicar(c));
    EXPECT_EQ(panel.Imagen().pixel(5, 5), qRgb(200, 100, 50));
    c.EfectoTapiz = 1;  // grey by the luminance weights: 124.2
    panel.Aplicar(c);
    EXPECT_EQ(panel.Imagen().pixel(5, 5), qRgb(124, 124, 124));
    c.EfectoTapiz = 0;
    panel.Aplicar(c);
    EXPECT_EQ(panel.Imagen().pixel(5, 5), qRgb(200, 100, 50));
}
