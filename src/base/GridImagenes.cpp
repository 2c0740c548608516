#include "base/Grid.h"

// The pictures of a grid live in a file of their own: a program that never
// puts one (the command line) then never needs the toolkit's image code.

void Grid::PonerImagen(int fila, int columna, const QImage& imagen) {
    const size_t i = Indice(fila, columna);
    if (imagenes_.empty()) {
        if (imagen.isNull()) return;
        imagenes_.resize(celdas_.size());
    }
    imagenes_[i] = imagen.isNull() ? nullptr : std::make_shared<const QImage>(imagen);
    ++version_;
}

QImage Grid::Imagen(int fila, int columna) const {
    const size_t i = Indice(fila, columna);
    return imagenes_.empty() || !imagenes_[i] ? QImage() : *imagenes_[i];
}
