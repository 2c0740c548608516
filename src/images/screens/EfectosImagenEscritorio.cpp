#include "images/screens/PantallasFotoEscritorio.h"

#include <QImage>

// Until the effects screen is built: nothing changes.
bool PantallasFotoEscritorio::EfectosImagen(QImage&) { return false; }
