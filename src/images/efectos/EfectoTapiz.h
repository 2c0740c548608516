#pragma once
// The wallpaper's picture effect (record 5 of Tapiz.nivo, 0..27): 0 shows
// the picture as it is; 1..27 are effects of the photograph screens.

#include <QImage>
#include <QString>

constexpr int NumeroEfectosTapiz = 27;

// The picture with effect `efecto`; 0, an unknown number or a picture the
// effects refuse come back unchanged.
QImage AplicarEfectoTapiz(const QImage& imagen, int efecto);
// The name of an effect, for the settings and the documentation.
QString NombreEfectoTapiz(int efecto);
