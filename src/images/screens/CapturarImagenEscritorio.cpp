#include "images/screens/PantallasFotoEscritorio.h"

#include <QImage>

// Until the capture screen is built: nothing is chosen.
bool PantallasFotoEscritorio::CapturarImagen(QImage&, bool) { return false; }
