// The viewer's zoom, selection, capture, paste and delete, and the export.
#include "Apoyo.h"
#include "images/ExportarFoto1.h"
#include "images/VisualizarImagen.h"

#include <QClipboard>
#include <QDir>
#include <QGuiApplication>
#include <QMimeData>

namespace {

const QString TituloRegistros = QStringLiteral("Registros Fotográficos");
const QString NingunaArea = QStringLiteral("No ha Selecionado Ninguna Área en la Imagen!");

// Pixel (x, y) is (10x, 10y, 0): any area's origin reads from its colour.
QImage Degradado(int ancho, int alto) {
    QImage img(ancho, alto, QImage::Format_RGB32);
    for (int y = 0; y < alto; ++y)
        for (int x = 0; x < ancho; ++x) img.setPixel(x, y, qRgb(10 * x, 10 * y, 0));
    return img;
}

}  // namespace

TEST(VisualizarImagen, ZoomEnPasosDe002EntreSusLimites) {
    DialogosFalsos d;
    VisualizarImagen v(d, Degradado(20, 10));
    v.PonerContenedor(QSize(10, 10));
    EXPECT_TRUE(v.Ajustar());
    EXPECT_DOUBLE_EQ(v.Escala(), 0.5);  // 10/20 is the smaller ratio
    v.AumentarZoom();                   // leaves the fit from its scale: 0.50 + 0.02
    EXPECT_FALSE(v.Ajustar());
    EXPECT_DOUBLE_EQ(v.Escala(), 0.52);
    for (int i = 0; i < 100; ++i) v.AumentarZoom();  // 0.52 + 2.00 stops at 2.0
    EXPECT_DOUBLE_EQ(v.Escala(), 2.0);
    v.DisminuirZoom();
    EXPECT_DOUBLE_EQ(v.Escala(), 1.98);
    for (int i = 0; i < 100; ++i) v.DisminuirZoom();  // 1.98 - 2.00 stops at 0.1
    EXPECT_DOUBLE_EQ(v.Escala(), 0.1);
    v.RestablecerZoom();
    EXPECT_DOUBLE_EQ(v.Escala(), 1.0);
    EXPECT_EQ(v.TamanoEscalado(), QSize(20, 10));
}

TEST(VisualizarImagen, SeleccionEnPuntosDeLaImagenRecortadaAEllaYMarcoDeLaVista) {
    DialogosFalsos d;
    VisualizarImagen v(d, Degradado(100, 80));
    v.RestablecerZoom();
    for (int i = 0; i < 50; ++i) v.AumentarZoom();  // 1.0 + 50 × 0.02 = 2.0
    ASSERT_DOUBLE_EQ(v.Escala(), 2.0);
    // Points of the drawn picture over 2: (20,30)-(60,50) is (10,15)-(30,25).
    v.EmpezarSeleccion(QPoint(20, 30));
    v.MoverSeleccion(QPoint(60, 50));
    EXPECT_EQ(v.Seleccion(), QRect(10, 15, 20, 10));
    EXPECT_EQ(v.SeleccionEnVista(), QRect(20, 30, 40, 20));
    // Dragged out beyond the right and the top: x 10..100, y 0..15.
    v.MoverSeleccion(QPoint(400, -20));
    EXPECT_EQ(v.Seleccion(), QRect(10, 0, 90, 15));
    // A click without a drag selects nothing.
    v.EmpezarSeleccion(QPoint(20, 30));
    v.MoverSeleccion(QPoint(20, 30));
    EXPECT_FALSE(v.HaySeleccion());

    // Container 50 × 40 at 2.0 shows 25 × 20 picture points; an overview of
    // 200 × 160 draws the picture at 2.0 too, so the frame at scroll (40, 60)
    // is the picture's (20, 30, 25, 20) times 2.
    v.PonerContenedor(QSize(50, 40));
    EXPECT_EQ(v.MarcoVista(QSize(200, 160), QPoint(40, 60)), QRect(40, 60, 50, 40));
    // Centring the view on the overview's (100, 80), picture (50, 40): the
    // scroll is 100 - 25, 80 - 20; a far corner is held to the scroll's end.
    EXPECT_EQ(v.DesplazamientoPorVista(QSize(200, 160), QPoint(100, 80)), QPoint(75, 60));
    EXPECT_EQ(v.DesplazamientoPorVista(QSize(200, 160), QPoint(500, 500)), QPoint(150, 120));
}

TEST(VisualizarImagen, CapturaYBorradoDeUnArea) {
    DialogosFalsos d;
    VisualizarImagen v(d, Degradado(4, 3));
    // Without a selection both refuse with the message under their heads.
    EXPECT_FALSE(v.Capturar());
    MensajeEs(d.Ultimo(), NingunaArea, QStringLiteral("Copiar un Área de la Imagen..."), TituloRegistros);
    EXPECT_FALSE(v.Eliminar());
    MensajeEs(d.Ultimo(), NingunaArea, QStringLiteral("Eliminar un Área de la Imagen..."), TituloRegistros);
    EXPECT_EQ(v.Imagen(), Degradado(4, 3));

    v.Seleccionar(QRect(1, 1, 2, 2));
    ASSERT_TRUE(v.Eliminar());
    EXPECT_EQ(v.Imagen().pixel(1, 1), qRgb(255, 255, 255));
    EXPECT_EQ(v.Imagen().pixel(2, 2), qRgb(255, 255, 255));
    EXPECT_EQ(v.Imagen().pixel(3, 2), qRgb(30, 20, 0));  // outside: untouched
    EXPECT_EQ(v.Imagen().pixel(0, 1), qRgb(0, 10, 0));

    VisualizarImagen w(d, Degradado(4, 3));
    w.Seleccionar(QRect(2, 1, 5, 5));  // clipped to x 2..3, y 1..2
    ASSERT_TRUE(w.Capturar());
    ASSERT_EQ(w.Imagen().size(), QSize(2, 2));
    EXPECT_EQ(w.Imagen().pixel(0, 0), qRgb(20, 10, 0));
    EXPECT_EQ(w.Imagen().pixel(1, 1), qRgb(30, 20, 0));
}

TEST(VisualizarImagen, PegarDelPortapapeles) {
    DialogosFalsos d;
    VisualizarImagen v(d, Degradado(4, 3));
    v.Seleccionar(QRect(0, 0, 2, 2));
    QGuiApplication::clipboard()->setText(QStringLiteral("texto, no imagen"));
    EXPECT_FALSE(v.Pegar());
    MensajeEs(d.Ultimo(), QStringLiteral("¡No Existe una Imagen en el Clipboard!"),
              QStringLiteral("Pegar Imágenes del Clipboard..."), QStringLiteral("Copiar un Área de la Imagen"));
    EXPECT_EQ(v.Imagen(), Degradado(4, 3));

    QMimeData datos;
    datos.setImageData(Degradado(7, 5));
    ASSERT_TRUE(v.Pegar(&datos));
    EXPECT_EQ(v.Imagen().size(), QSize(7, 5));
    EXPECT_EQ(v.Imagen().pixel(6, 4), qRgb(60, 40, 0));
    EXPECT_FALSE(v.HaySeleccion());
}

TEST(ExportarFoto1, BmpYJpgLeidosDeVuelta) {
    SesionPrueba sp;
    DialogosFalsos d;
    ExportarFoto1 e(sp.s, d, Degradado(16, 8));
    const QString fotos = sp.Datos(QStringLiteral("Fotos"));

    e.PonerJpg(false);
    d.archivos = {fotos + QStringLiteral("/llave.bmp")};
    ASSERT_TRUE(e.Exportar());
    EXPECT_EQ(d.dialogosArchivo.last(),
              QStringLiteral("Salvar la Imagen Seleccionada|Image (*.bmp)|*.bmp|") + fotos);
    MensajeEs(d.Ultimo(), QStringLiteral("La Imagen se Exportó con Exito!"), QStringLiteral("Exportar la Imagen..."),
              QStringLiteral("Exportar Imagen de los Insumos"));
    EXPECT_EQ(QImage(fotos + QStringLiteral("/llave.bmp")).convertToFormat(QImage::Format_RGB32), Degradado(16, 8));

    // A JPEG of one flat colour reads back close to it; a name typed
    // without its extension gets ".jpg".
    QImage naranja(32, 32, QImage::Format_RGB32);
    naranja.fill(qRgb(240, 120, 30));
    ExportarFoto1 j(sp.s, d, naranja);
    d.archivos = {fotos + QStringLiteral("/codo")};
    ASSERT_TRUE(j.Exportar());
    EXPECT_TRUE(d.dialogosArchivo.last().contains(QStringLiteral("|Image (*.jpg)|*.jpg|")));
    const QImage leida(fotos + QStringLiteral("/codo.jpg"));
    ASSERT_EQ(leida.size(), QSize(32, 32));
    const QColor c = leida.pixelColor(16, 16);
    EXPECT_NEAR(c.red(), 240, 6);
    EXPECT_NEAR(c.green(), 120, 6);
    EXPECT_NEAR(c.blue(), 30, 6);

    j.AbrirCarpeta();
    EXPECT_EQ(d.abiertos.last(), fotos);
}

TEST(ExportarFoto1, UnDestinoQueNoSePuedeEscribirQuedaComoEstaba) {
    SesionPrueba sp;
    DialogosFalsos d;
    ExportarFoto1 e(sp.s, d, Degradado(4, 4));
    const QString ruta = sp.Datos(QStringLiteral("Fotos/vieja.jpg"));
    QDir().mkpath(sp.Datos(QStringLiteral("Fotos")));
    EscribirArchivo(ruta, "contenido anterior");
    QFile(ruta).setPermissions(QFileDevice::ReadOwner);
    d.archivos = {ruta};
    EXPECT_FALSE(e.Exportar());
    EXPECT_TRUE(d.Ultimo().texto.startsWith(QStringLiteral("¡No se Pudo Exportar la Imagen!\n")));
    EXPECT_EQ(LeerArchivo(ruta), QByteArray("contenido anterior"));
    EXPECT_EQ(QDir(sp.Datos(QStringLiteral("Fotos"))).entryList(QDir::Files), QStringList{QStringLiteral("vieja.jpg")});
}
