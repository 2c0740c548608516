// The capture screen's logic, the last folder of CaminoImagen.nivo and the
// pictures it refuses.
#include "Apoyo.h"
#include "PantallasFotoFalsas.h"
#include "images/ArchivoImagen.h"
#include "images/CaminoImagen.h"
#include "images/CapturaFotoF2.h"

#include <QDir>
#include <QFile>
#include <QtEndian>

namespace {

const QString Insumos = QStringLiteral("Imágenes de los Insumos...");
const QString Capturar = QStringLiteral("Capturar Imágenes");

QString EscribirImagen(const QString& ruta, const QColor& color, const char* formato = "PNG") {
    QImage img(6, 4, QImage::Format_RGB32);
    img.fill(color);
    EXPECT_TRUE(img.save(ruta, formato));
    return ruta;
}

struct Captura {
    SesionPrueba sp;
    DialogosFalsos d;
    PantallasFotoFalsas fotos;
    CapturaFotoF2 c{sp.s, d, fotos, false};
};

}  // namespace

TEST(CaminoImagen, Registro3IdaYVueltaSinTocarLosDemas) {
    SesionPrueba sp;
    const QString dir = sp.s.DirectorioDatos;
    // Record 1 holds someone else's bytes: they survive the write.
    EscribirArchivo(RutaCaminoImagen(dir), QByteArray(128, 'A'));
    const QString carpeta = QStringLiteral("/home/ingeniera/Fotos de Piezas/Válvulas");
    ASSERT_TRUE(EscribirUltimaCarpeta(dir, carpeta));
    EXPECT_EQ(LeerUltimaCarpeta(dir), carpeta);
    const QByteArray datos = LeerArchivo(RutaCaminoImagen(dir));
    ASSERT_EQ(datos.size(), 3 * 128);
    EXPECT_EQ(datos.left(128), QByteArray(128, 'A'));
    // Counted text at byte 256: the UTF-8 length ("á" takes two bytes).
    EXPECT_EQ(qFromLittleEndian<quint16>(datos.constData() + 256), carpeta.toUtf8().size());
    EXPECT_EQ(datos.mid(258, carpeta.toUtf8().size()), carpeta.toUtf8());

    // A folder that does not fit 126 bytes is not written; the old one stays.
    EXPECT_FALSE(EscribirUltimaCarpeta(dir, QStringLiteral("/x").repeated(64)));
    EXPECT_EQ(LeerUltimaCarpeta(dir), carpeta);
}

TEST(CaminoImagen, ArchivoFaltanteCortoOCorruptoSeLeeVacio) {
    SesionPrueba sp;
    const QString dir = sp.s.DirectorioDatos;
    EXPECT_EQ(LeerUltimaCarpeta(dir), QString());
    EscribirArchivo(RutaCaminoImagen(dir), QByteArray(200, '\0'));  // ends inside record 2
    EXPECT_EQ(LeerUltimaCarpeta(dir), QString());
    QByteArray largo(3 * 128, '\0');
    qToLittleEndian<quint16>(500, largo.data() + 256);  // a length beyond the record
    EscribirArchivo(RutaCaminoImagen(dir), largo);
    EXPECT_EQ(LeerUltimaCarpeta(dir), QString());
    QByteArray corto(256 + 2 + 3, '\0');
    qToLittleEndian<quint16>(10, corto.data() + 256);  // a length beyond the file's end
    EscribirArchivo(RutaCaminoImagen(dir), corto);
    EXPECT_EQ(LeerUltimaCarpeta(dir), QString());
}

TEST(CapturaFotoF2, ImagenesRechazadasConSuMotivo) {
    Captura t;
    // A GIF header of 0 × 0, a PPM header of 20,000 × 20,000 (no pixels
    // follow: it must be refused from its header) and text named .png.
    QByteArray gif("GIF89a\0\0\0\0\0\0\0,\0\0\0\0\0\0\0\0\0\x02\0;", 25);
    const QString vacia = EscribirArchivo(t.sp.Datos(QStringLiteral("vacia.gif")), gif);
    const QString enorme = EscribirArchivo(t.sp.Datos(QStringLiteral("enorme.ppm")), "P6\n20000 20000\n255\n");
    const QString texto = EscribirArchivo(t.sp.Datos(QStringLiteral("nota.png")), "esto no es una imagen");
    const QString buena = EscribirImagen(t.sp.Datos(QStringLiteral("buena.png")), Qt::red);

    struct Caso {
        QString ruta, mensaje;
    } casos[] = {
        {vacia, QStringLiteral("¡La Imagen está Vacía: su Tamaño es 0 × 0 Píxeles!")},
        {enorme, QStringLiteral("¡La Imagen es Demasiado Grande: 20,000 × 20,000 Píxeles!\nEl Máximo es de 50,000,000 "
                                "Píxeles en Total y de 32,767 por Lado.")},
        {texto, QStringLiteral("¡El Archivo no Contiene una Imagen que se Pueda Leer!\nnota.png")},
    };
    for (const Caso& c : casos) {
        ASSERT_TRUE(t.c.SeleccionarArchivo(buena));
        EXPECT_FALSE(t.c.SeleccionarArchivo(c.ruta)) << c.ruta.toStdString();
        MensajeEs(t.d.Ultimo(), c.mensaje, Insumos, Capturar);
        // Nothing of the refused file, nor of the one before, is taken.
        EXPECT_TRUE(t.c.Imagen().isNull());
        EXPECT_FALSE(t.c.Aceptar());
    }
    // The sizes follow the locale's marks.
    MarcasPrueba es("es_ES");
    EXPECT_TRUE(MotivoTamanoImagen(QSize(20000, 20000)).startsWith(QStringLiteral("¡La Imagen es Demasiado Grande: 20.000 × 20.000")));
    EXPECT_TRUE(MotivoTamanoImagen(QSize(7000, 7000)).isEmpty());  // 49 million points
    EXPECT_FALSE(MotivoTamanoImagen(QSize(40000, 10)).isEmpty());  // a side over 32,767
}

TEST(CapturaFotoF2, AceptarSinImagenConImagenYLaPreguntaDeReemplazo) {
    SesionPrueba sp;
    DialogosFalsos d;
    PantallasFotoFalsas fotos;
    QDir().mkpath(sp.Datos(QStringLiteral("fotos")));
    const QString ruta = EscribirImagen(sp.Datos(QStringLiteral("fotos/llave.jpg")), Qt::blue, "JPG");

    CapturaFotoF2 nueva(sp.s, d, fotos, false);
    EXPECT_FALSE(nueva.Aceptar());
    MensajeEs(d.Ultimo(), QStringLiteral("¡No ha Seleccionado Ninguna Imagen!"), Insumos, Capturar);
    EXPECT_EQ(sp.s.HayImagenNueva, 0);

    // The row has a picture: "No" goes back to the list and keeps the old one.
    CapturaFotoF2 reemplazo(sp.s, d, fotos, true);
    ASSERT_TRUE(reemplazo.SeleccionarArchivo(ruta));
    d.respuestas = {Respuesta::No};
    EXPECT_FALSE(reemplazo.Aceptar());
    MensajeEs(d.Ultimo(), QStringLiteral("El Registro Seleccionado Contiene una Imagen...\n¿Desea Reemplazar la Imagen?"),
              QStringLiteral("Reemplazar la Imagen..."), Capturar);
    EXPECT_EQ(d.Ultimo().botones, Botones::SiNo);
    EXPECT_EQ(sp.s.HayImagenNueva, 0);
    EXPECT_EQ(LeerUltimaCarpeta(sp.s.DirectorioDatos), QString());

    d.respuestas = {Respuesta::Si};
    const size_t mensajes = d.mensajes.size();
    EXPECT_TRUE(reemplazo.Aceptar());
    EXPECT_EQ(d.mensajes.size(), mensajes + 1);
    EXPECT_EQ(sp.s.HayImagenNueva, -1);
    EXPECT_EQ(sp.s.RutaImagenCapturada, ruta);
    EXPECT_EQ(LeerUltimaCarpeta(sp.s.DirectorioDatos), sp.Datos(QStringLiteral("fotos")));
    EXPECT_EQ(reemplazo.Imagen().size(), QSize(6, 4));

    // The next capture opens in that folder, and ButtonD6 goes back to it.
    CapturaFotoF2 otra(sp.s, d, fotos, false);
    EXPECT_EQ(otra.Carpeta(), sp.Datos(QStringLiteral("fotos")));
    otra.IrAMiPC();
    EXPECT_EQ(otra.Carpeta(), QStringLiteral("/"));
    EXPECT_TRUE(otra.IrAUltimaCarpeta());
    EXPECT_EQ(otra.Carpeta(), sp.Datos(QStringLiteral("fotos")));
    QDir(sp.Datos(QStringLiteral("fotos"))).removeRecursively();
    EXPECT_FALSE(otra.IrAUltimaCarpeta());
    MensajeEs(d.Ultimo(), QStringLiteral("¡El Último Directorio Abierto ya no Existe!\n") + sp.Datos(QStringLiteral("fotos")),
              QStringLiteral("Abrir el Último Directorio Abierto..."), Capturar);
}

TEST(CapturaFotoF2, EfectosVisorYRestablecer) {
    Captura t;
    const QString ruta = EscribirImagen(t.sp.Datos(QStringLiteral("roja.bmp")), Qt::red, "BMP");
    t.c.Efectos();  // no picture yet: the message, no screen
    EXPECT_TRUE(t.fotos.llamadas.isEmpty());
    ASSERT_TRUE(t.c.SeleccionarArchivo(ruta));

    QImage verde(2, 2, QImage::Format_RGB32);
    verde.fill(Qt::green);
    t.fotos.efectos = {verde};
    t.fotos.vistas = {QImage()};  // the viewer cancelled
    t.c.Efectos();
    t.c.Visualizar();
    EXPECT_EQ(t.fotos.llamadas, (QStringList{QStringLiteral("Efectos"), QStringLiteral("Visualizar")}));
    EXPECT_EQ(t.c.Imagen().pixel(0, 0), verde.pixel(0, 0));
    t.c.Restablecer();
    EXPECT_EQ(t.c.Imagen().size(), QSize(6, 4));
    EXPECT_EQ(t.c.Imagen().pixel(0, 0), QColor(Qt::red).rgb());

    t.d.abrirConSistemaResulta = true;
    t.c.AbrirExplorador();
    EXPECT_EQ(t.d.abiertos.last(), t.c.Carpeta());
}

TEST(CapturaFotoF2, EscalaDelPreviewGuardaLaProporcion) {
    // 400 × 100 into 200 × 200: the width rules, 0.5; 100 × 400 the height.
    EXPECT_DOUBLE_EQ(EscalaAjuste(QSize(400, 100), QSize(200, 200)), 0.5);
    EXPECT_DOUBLE_EQ(EscalaAjuste(QSize(100, 400), QSize(300, 200)), 0.5);
    EXPECT_DOUBLE_EQ(EscalaAjuste(QSize(0, 0), QSize(300, 200)), 0.0);
}
