#include "images/Imagen.h"

#include "store/Registros.h"

#include <QBuffer>

QByteArray ImagenComoBmp(const QImage& imagen) {
    QByteArray bytes;
    if (imagen.isNull()) return bytes;
    QBuffer b(&bytes);
    b.open(QIODevice::WriteOnly);
    // 24-bit bitmaps, as the stored photographs are.
    imagen.convertToFormat(QImage::Format_RGB888).save(&b, "BMP");
    return bytes;
}

QImage ImagenDeBytes(const QByteArray& bytes) {
    QImage img;
    if (!bytes.isEmpty()) img.loadFromData(bytes);
    return img;
}

bool LeerImagen(const Registros& registros, QImage& imagen) {
    const Valor v = registros.Campo(QStringLiteral("Foto"));
    if (!v.isValid() || v.isNull()) return false;
    const QImage img = ImagenDeBytes(v.toByteArray());
    if (img.isNull()) return false;
    imagen = img;
    return true;
}

bool GuardarImagen(Registros& registros, const QImage& imagen) {
    const QByteArray bytes = ImagenComoBmp(imagen);
    if (bytes.isEmpty()) return false;
    registros.Poner(QStringLiteral("Foto"), bytes);
    return true;
}
