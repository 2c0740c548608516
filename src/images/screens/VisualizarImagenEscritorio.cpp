#include "images/screens/PantallasFotoEscritorio.h"

#include <QImage>

// Until the viewer and the export are built: nothing changes.
bool PantallasFotoEscritorio::VisualizarImagen(QImage&) { return false; }
void PantallasFotoEscritorio::ExportarImagen(const QImage&) {}
