#pragma once
// Where the wallpaper goes in its panel, from the picture's natural size,
// the panel's size and the settings of Tapiz.nivo.

#include "shell/Tapiz.h"

#include <QRect>
#include <QSize>

struct ColocacionImagen {
    QRect rect;            // in the panel's coordinates
    bool estirar = false;  // the picture is drawn stretched to rect
};

ColocacionImagen ColoqueImagen(const QSize& imagen, const QSize& panel, const ConfiguracionTapiz& c);
