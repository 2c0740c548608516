#pragma once
// Photographs of catalogue and project rows: the column Foto holds the bytes
// of a Windows bitmap file.

#include <QByteArray>
#include <QImage>

class Registros;

// Bitmap bytes of a picture, and the picture of stored bytes (any format
// the toolkit reads; a null image when the bytes are not a picture).
QByteArray ImagenComoBmp(const QImage& imagen);
QImage ImagenDeBytes(const QByteArray& bytes);

// LeerImagen: the picture in the field Foto of the current row.  False, and
// the picture untouched, when the field holds no readable picture.
bool LeerImagen(const Registros& registros, QImage& imagen);
// GuardarImagen: stores the picture as bitmap bytes in the field Foto of the
// current row (the caller runs Update and sets ExisteFoto).
bool GuardarImagen(Registros& registros, const QImage& imagen);
