// A fixture of the engineer's own, from a photograph file to a branch of a
// project: the record editor, the capture screen, the viewer and the effects
// screen run through their own logic, as the desktop chains them.

#include "catalogue/BDPiezas.h"
#include "catalogue/NewPieza.h"
#include "entry/ApoyoRamalesFilas.h"
#include "entry/PiezasRamales.h"
#include "images/CapturaFotoF2.h"
#include "images/Imagen.h"
#include "images/PantallasFoto.h"
#include "images/VisualizarImagen.h"
#include "images/efectos/EfectoImagenNivo.h"

#include <QImage>
#include <QTemporaryDir>

namespace {

// The photograph screens as an engineer uses them here: the file picked in
// the capture screen, its red quarter cut out in the viewer, made grey in the
// effects screen, accepted.
struct PantallasDeLogica : PantallasFoto, ListasEfectos {
    Sesion& s;
    Dialogos& d;
    QString archivo;
    QRect recorte;
    PantallasDeLogica(Sesion& s, Dialogos& d) : s(s), d(d) {}

    bool CapturarImagen(QImage& imagen, bool registroConImagen) override {
        CapturaFotoF2 c(s, d, *this, registroConImagen);
        if (!c.SeleccionarArchivo(archivo)) return false;
        c.Visualizar();  // Button3
        c.Efectos();     // Button2
        if (!c.Aceptar()) return false;
        imagen = c.Imagen();
        return true;
    }
    bool VisualizarImagen(QImage& imagen) override {
        ::VisualizarImagen v(d, imagen);
        v.Seleccionar(recorte);
        if (!v.Capturar()) return false;
        imagen = v.Imagen();
        return true;
    }
    bool EfectosImagen(QImage& imagen) override {
        EfectoImagenNivo e(d, *this, *this);
        if (!e.Cargar(imagen)) return false;
        e.EscalaGrises();  // NivoButton7
        imagen = e.FijarEfecto();
        return true;
    }
    void ExportarImagen(const QImage&) override {}
    std::optional<int> ElegirEfectoRGB(const QImage&) override { return std::nullopt; }
    std::optional<int> ElegirDithering(const QImage&) override { return std::nullopt; }
};

// Every pixel of `img` is (r, g, b).
bool DeUnColor(const QImage& img, int r, int g, int b) {
    for (int y = 0; y < img.height(); ++y)
        for (int x = 0; x < img.width(); ++x)
            if (img.pixelColor(x, y) != QColor(r, g, b)) return false;
    return true;
}

}  // namespace

TEST_F(RamalesFilasPrueba, PiezaPropiaConFotoDelArchivoHastaElRamal) {
    // A 40 x 30 PNG: red, green, blue and white quarters.
    QTemporaryDir carpeta;
    QImage foto(40, 30, QImage::Format_RGB32);
    foto.fill(Qt::white);
    for (int y = 0; y < 30; ++y)
        for (int x = 0; x < 40; ++x)
            if (y < 15) foto.setPixelColor(x, y, x < 20 ? QColor(Qt::red) : QColor(Qt::green));
            else if (x < 20) foto.setPixelColor(x, y, Qt::blue);
    const QString png = carpeta.filePath(QStringLiteral("lavadero.png"));
    ASSERT_TRUE(foto.save(png));

    PantallasDeLogica fotos(s, d);
    fotos.archivo = png;
    fotos.recorte = QRect(0, 0, 20, 15);  // the red quarter
    BDPiezas bd(s, d);
    bd.Cargar();
    NewPieza np(bd, s, d, fotos);
    EditorCatalogo& e = np.Logica();
    e.Cargar(1);
    e.Crear();
    EXPECT_EQ(e.TextoClave(), QStringLiteral("22"));  // the count plus 1
    e.CambiarNombre(QStringLiteral("LAVADERO"));
    e.CambiarFigura(0, QStringLiteral("3"));
    e.CambiarFigura(2, QStringLiteral("4"));
    e.AnexarImagen();
    // Red in grey by the luminance weights: 0.299 x 255 = 76.2.
    ASSERT_EQ(e.Foto().size(), QSize(20, 15));
    EXPECT_TRUE(DeUnColor(e.Foto(), 76, 76, 76));
    ASSERT_TRUE(e.Salvar());

    // The catalogue file holds the row and the picture as bitmap bytes.
    Conexion otra;
    ASSERT_EQ(AbrirConexion(otra, s.ConexionCatalogo.Ruta()), 0);
    Consulta q(otra, QStringLiteral("SELECT NombrePieza, PrivadoTotal, PublicoTotal, ExisteFoto, Foto FROM Piezas "
                                    "WHERE ClavePieza = 22"));
    ASSERT_TRUE(q.Siguiente());
    EXPECT_EQ(ComoTexto(q.Columna(0)), QStringLiteral("LAVADERO"));
    EXPECT_DOUBLE_EQ(ComoDoble(q.Columna(1)), 3.0);
    EXPECT_DOUBLE_EQ(ComoDoble(q.Columna(2)), 4.0);
    EXPECT_TRUE(ComoLogico(q.Columna(3)));
    const QByteArray bytes = q.Columna(4).toByteArray();
    EXPECT_TRUE(bytes.startsWith("BM"));
    EXPECT_TRUE(DeUnColor(ImagenDeBytes(bytes), 76, 76, 76));
    bd.Cerrar();

    // On branch 1 of a project whose fixtures take PrivadoTotal, through the
    // catalogue opened from the branch screen.
    p.OpcionUsoPiezas = 0;
    PiezasRamales pr(p, s, d, editor);
    pr.Cargar();
    pr.EditarRamales(1, 3, QStringLiteral("1"));
    pr.Spread2.PonerActiva(1, 1);
    s.CatalogoDesdeProyecto = true;
    BDPiezas desdeRamal(s, d, &pr);
    desdeRamal.Cargar();
    ASSERT_TRUE(desdeRamal.Logica().CapturarVisible());
    desdeRamal.Logica().PonerActiva(22);
    ASSERT_TRUE(desdeRamal.Capturar());
    EXPECT_EQ(p.PiezaClave(1, 1), 22);
    EXPECT_EQ(p.PiezaNombre(1, 1), QStringLiteral("LAVADERO"));
    EXPECT_DOUBLE_EQ(p.PiezaUnidades(1, 1), 3.0);
    EXPECT_EQ(p.PiezaCantidad(1, 1), 3);
    EXPECT_TRUE(DeUnColor(pr.Spread2.Imagen(1, 2), 76, 76, 76));

    // The project's mirror takes it on "Imagen".
    d.respuestas = {Respuesta::Si};
    pr.ActualizarImagenes();
    Consulta img(s.ConexionProyecto, QStringLiteral("SELECT Foto FROM ImgPiezas WHERE Clave = 22"));
    ASSERT_TRUE(img.Siguiente());
    EXPECT_TRUE(DeUnColor(ImagenDeBytes(img.Columna(0).toByteArray()), 76, 76, 76));

    // A reserved key stays, whatever the answer.
    desdeRamal.Logica().PonerActiva(5);
    d.respuestas = {Respuesta::Si};
    desdeRamal.Eliminar();
    EXPECT_EQ(d.Ultimo().encabezado, QStringLiteral("Eliminar Piezas Sanitarias..."));
    EXPECT_TRUE(d.Ultimo().texto.endsWith(QStringLiteral("¡Las Claves del (1) al (21) No se Pueden Eliminar!")));
    EXPECT_EQ(ComoEntero(s.ConexionCatalogo.Escalar(QStringLiteral("SELECT count(*) FROM Piezas WHERE ClavePieza = 5"))),
              1);
}
