#include "images/ArchivoImagen.h"

#include "base/Nivo.h"

#include <QFileInfo>
#include <QImageReader>
#include <algorithm>

QString MotivoTamanoImagen(const QSize& tamano) {
    if (tamano.isEmpty())
        return QStringLiteral("¡La Imagen está Vacía: su Tamaño es %1 × %2 Píxeles!")
            .arg(std::max(0, tamano.width()))
            .arg(std::max(0, tamano.height()));
    const qint64 puntos = qint64(tamano.width()) * tamano.height();
    if (puntos <= MaximoPuntosImagen && tamano.width() <= MaximoLadoImagen && tamano.height() <= MaximoLadoImagen)
        return QString();
    const QString mascara = QStringLiteral("#,##0");
    return QStringLiteral("¡La Imagen es Demasiado Grande: %1 × %2 Píxeles!\nEl Máximo es de %3 Píxeles en Total y "
                          "de %4 por Lado.")
        .arg(Formato(tamano.width(), mascara), Formato(tamano.height(), mascara),
             Formato(double(MaximoPuntosImagen), mascara), Formato(MaximoLadoImagen, mascara));
}

bool LeerArchivoImagen(const QString& ruta, QImage& imagen, QString& motivo) {
    const QString nombre = QFileInfo(ruta).fileName();
    QImageReader lector(ruta);
    lector.setAutoTransform(true);
    // The toolkit's own limit must not refuse what the program takes.
    lector.setAllocationLimit(int(MaximoPuntosImagen * 4 / (1024 * 1024)) + 64);
    // A header that states a size is judged before any pixel is decoded.
    const QSize tamano = lector.size();
    if (tamano.isValid()) {
        motivo = MotivoTamanoImagen(tamano);
        if (!motivo.isEmpty()) return false;
    }
    QImage leida;
    if (!lector.canRead() || !lector.read(&leida) || leida.isNull()) {
        motivo = QStringLiteral("¡El Archivo no Contiene una Imagen que se Pueda Leer!\n") + nombre;
        return false;
    }
    motivo = MotivoTamanoImagen(leida.size());
    if (!motivo.isEmpty()) return false;
    imagen = leida;
    return true;
}

double EscalaAjuste(const QSize& imagen, const QSize& caja) {
    if (imagen.isEmpty() || caja.isEmpty()) return 0.0;
    return std::min(double(caja.width()) / imagen.width(), double(caja.height()) / imagen.height());
}
