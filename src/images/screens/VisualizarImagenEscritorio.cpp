#include "images/screens/PantallasFotoEscritorio.h"

#include "images/screens/VentanaExportarFoto1.h"
#include "images/screens/VentanaVisualizarImagen.h"

#include <QImage>

bool PantallasFotoEscritorio::VisualizarImagen(QImage& imagen) {
    VentanaVisualizarImagen ventana(s_, d_, imagen, padre_);
    if (ventana.exec() != QDialog::Accepted) return false;
    imagen = ventana.Logica().Imagen();
    return true;
}

void PantallasFotoEscritorio::ExportarImagen(const QImage& imagen) {
    VentanaExportarFoto1 ventana(s_, d_, imagen, padre_);
    ventana.exec();
}
