#include "images/Pixeles.h"

#include "base/ErrorEjecucion.h"
#include "base/Nivo.h"

#include <cstring>

void ComprobarTamanoPixeles(int ancho, int alto) {
    const QString mascara = QStringLiteral("#,##0");
    if (ancho <= 0 || alto <= 0)
        throw ErrorEjecucion(Error::Desbordamiento,
                             QStringLiteral("La imagen no tiene ancho o alto: %1 × %2 píxeles.")
                                 .arg(Formato(ancho, mascara), Formato(alto, mascara)));
    if (static_cast<long long>(ancho) * alto > MaximoPixelesEfecto)
        throw ErrorEjecucion(Error::Desbordamiento,
                             QStringLiteral("La imagen de %1 × %2 píxeles es demasiado grande para los efectos "
                                            "(hasta %3 millones de píxeles).")
                                 .arg(Formato(ancho, mascara), Formato(alto, mascara),
                                      Formato(double(MaximoPixelesEfecto / 1'000'000), mascara)));
}

Pixeles LeerPixeles(const QImage& imagen) {
    ComprobarTamanoPixeles(imagen.width(), imagen.height());
    // Format_RGB32 keeps each pixel as 0xffRRGGBB, in memory B, G, R, 255 on
    // this little-endian machine: the buffer's channel order.
    const QImage img = imagen.convertToFormat(QImage::Format_RGB32);
    Pixeles p(img.width(), img.height());
    const size_t bytesFila = size_t(4) * size_t(p.W);
    for (int y = 0; y < p.H; ++y) std::memcpy(p.Fila(p.H - 1 - y), img.constScanLine(y), bytesFila);
    return p;
}

QImage PintarPixeles(const Pixeles& p) {
    if (p.W <= 0 || p.H <= 0) return QImage();
    QImage img(p.W, p.H, QImage::Format_RGB32);
    const size_t bytesFila = size_t(4) * size_t(p.W);
    for (int y = 0; y < p.H; ++y) {
        uchar* linea = img.scanLine(y);
        std::memcpy(linea, p.Fila(p.H - 1 - y), bytesFila);
        // The reserved channel means nothing to the effects; the picture is opaque.
        for (int x = 0; x < p.W; ++x) linea[4 * x + 3] = 0xff;
    }
    return img;
}
