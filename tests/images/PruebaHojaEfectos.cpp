// The sheet of every RGB effect and every dithering method on one factory
// photograph, each tile named: no two alike, and kept as a PNG where
// FONTARIA_HOJA_EFECTOS names a file, for a person to look at.
// FONTARIA_HOJA_CLAVE chooses the fixture (10, the washbasin, by default);
// FONTARIA_HOJA_IMAGEN takes a picture file instead, for a colour photograph.

#include "images/Imagen.h"
#include "images/efectos/Efectos.h"
#include "images/efectos/EfectosRGB.h"
#include "images/efectos/Tramados.h"
#include "store/Conexion.h"
#include "store/Registros.h"
#include "support/Apoyo.h"

#include <QPainter>

namespace {

QImage FotoDeFabrica(int clave) {
    Conexion c;
    const QString ruta = RutaProgramaPruebas() + QStringLiteral("/Imagen/BDPiezasConexiones.nivo");
    if (AbrirConexion(c, ruta) != 0) return QImage();
    Registros r;
    QImage foto;
    if (r.Abrir(c, QStringLiteral("SELECT Foto FROM Piezas WHERE ClavePieza = ?"), {clave}) && !r.EOF_())
        LeerImagen(r, foto);
    return foto;
}

using Mosaicos = QList<std::pair<QString, QImage>>;

// The photograph, then each effect of it, named.
Mosaicos Efectos(const QImage& foto) {
    const Pixeles o = LeerPixeles(foto);
    Mosaicos mosaicos{{QStringLiteral("Original"), foto}};
    using Efecto = void (*)(Pixeles&, const Pixeles&, int, int);
    const std::pair<const char*, Efecto> botones[] = {
        {"Bilateral Filtro", FiltroBilateral},
        {"Cartonize", [](Pixeles& d, const Pixeles& o, int W, int H) { DrawCartoonizerP(d, o, W, H); }},
        {"Pencil Drawing", [](Pixeles& d, const Pixeles& o, int W, int H) { PencilPlusCALC(d, o, W, H); }},
        {"Film Noir", [](Pixeles& d, const Pixeles& o, int W, int H) { FilmNoirCALC(d, o, W, H); }},
        {"Imagen en 3D", [](Pixeles& d, const Pixeles& o, int W, int H) { ModernArtSculture(d, o, W, H); }},
    };
    for (const auto& [nombre, efecto] : botones) {
        Pixeles d;
        efecto(d, o, o.W, o.H);
        mosaicos.append({QString::fromLatin1(nombre), PintarPixeles(d)});
    }
    for (int f = 1; f <= NumeroEfectosRGB; ++f) {
        Pixeles d;
        RGBEffectsCALC(d, o, o.W, o.H, f);
        mosaicos.append({QStringLiteral("%1 %2").arg(f).arg(NombresEfectosRGB()[f - 1]), PintarPixeles(d)});
    }
    for (int f = 1; f <= NumeroMetodosDithering; ++f) {
        Pixeles d;
        AplicarDithering(d, o, o.W, o.H, f);
        mosaicos.append({QStringLiteral("D%1 %2").arg(f).arg(NombresDithering()[f - 1]), PintarPixeles(d)});
    }
    return mosaicos;
}

// One tile per effect, `columnas` across, the name under each.
QImage Hoja(const QImage& foto, const Mosaicos& mosaicos, int columnas) {
    const int texto = 18, ancho = foto.width() + 8, alto = foto.height() + texto + 8;
    const int filas = (int(mosaicos.size()) + columnas - 1) / columnas;
    QImage hoja(columnas * ancho, filas * alto, QImage::Format_RGB32);
    hoja.fill(Qt::lightGray);
    QPainter p(&hoja);
    QFont letra = p.font();
    letra.setPixelSize(12);
    p.setFont(letra);
    for (int i = 0; i < mosaicos.size(); ++i) {
        const QPoint esquina((i % columnas) * ancho + 4, (i / columnas) * alto + 4);
        p.drawImage(esquina, mosaicos[i].second);
        p.drawText(QRect(esquina.x(), esquina.y() + foto.height(), foto.width(), texto), Qt::AlignCenter,
                   mosaicos[i].first);
    }
    return hoja;
}

}  // namespace

TEST(HojaEfectos, TodosLosEfectosSobreUnaFotoDeFabrica) {
    const int clave = qEnvironmentVariableIntValue("FONTARIA_HOJA_CLAVE");
    const QString archivo = qEnvironmentVariable("FONTARIA_HOJA_IMAGEN");
    const QImage foto = archivo.isEmpty() ? FotoDeFabrica(clave > 0 ? clave : 10) : QImage(archivo);
    ASSERT_FALSE(foto.isNull());
    // On a real photograph no two differently named effects, nor an effect
    // and the photograph, give the same picture.
    const Mosaicos mosaicos = Efectos(foto);
    for (int a = 0; a < mosaicos.size(); ++a)
        for (int b = a + 1; b < mosaicos.size(); ++b)
            EXPECT_NE(mosaicos[a].second, mosaicos[b].second)
                << mosaicos[a].first.toStdString() << " = " << mosaicos[b].first.toStdString();
    const QImage hoja = Hoja(foto, mosaicos, 10);
    const QString destino = qEnvironmentVariable("FONTARIA_HOJA_EFECTOS");
    if (!destino.isEmpty()) EXPECT_TRUE(hoja.save(destino));
}
