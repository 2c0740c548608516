#include "images/screens/PantallasFotoEscritorio.h"

#include "images/screens/VentanaCapturaFotoF2.h"

#include <QImage>

bool PantallasFotoEscritorio::CapturarImagen(QImage& imagen, bool registroConImagen) {
    VentanaCapturaFotoF2 ventana(s_, d_, *this, registroConImagen, padre_);
    if (ventana.exec() != QDialog::Accepted) return false;
    imagen = ventana.Logica().Imagen();
    return true;
}
