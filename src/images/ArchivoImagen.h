#pragma once
// Pictures taken in by the photograph screens, from a file or the
// clipboard: what the program refuses to hold, and the scale that fits one
// into a box.

#include <QImage>
#include <QSize>
#include <QString>

// The largest picture taken in: 50 million points, no side over 32,767.
constexpr qint64 MaximoPuntosImagen = 50'000'000;
constexpr int MaximoLadoImagen = 32767;

// Why a picture of this size is refused; empty when it is taken.
QString MotivoTamanoImagen(const QSize& tamano);

// Reads a picture file in any raster format the toolkit knows.  A file that
// is not a picture, an empty one or one too large (its size is read from
// the header, before decoding) gives false and the reason, in Spanish.
bool LeerArchivoImagen(const QString& ruta, QImage& imagen, QString& motivo);

// The scale that fits `imagen` into `caja` keeping its proportions: the
// smaller of the two ratios; 0 for an empty picture or box.
double EscalaAjuste(const QSize& imagen, const QSize& caja);
