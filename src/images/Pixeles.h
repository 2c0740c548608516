#pragma once
// The pixel buffer that every image effect reads and writes: channel,
// column, row, all from 0; four channels (blue, green, red, reserved); the
// rows run from the bottom of the picture to its top, as a bottom-up 32-bit
// device-independent bitmap keeps them.

#include "images/ArchivoImagen.h"

#include <QImage>
#include <cstdint>
#include <vector>

// The largest picture the effects take: every picture the program takes
// in, and no more, for beyond it the two buffers of a screen would not fit
// in memory.
constexpr long long MaximoPixelesEfecto = MaximoPuntosImagen;

struct Pixeles {
    int W = 0, H = 0;
    std::vector<uint8_t> datos;  // 4 * W * H bytes

    Pixeles() = default;
    Pixeles(int ancho, int alto) : W(ancho), H(alto), datos(size_t(4) * size_t(ancho) * size_t(alto)) {}

    uint8_t& operator()(int canal, int columna, int fila) { return datos[Indice(canal, columna, fila)]; }
    uint8_t operator()(int canal, int columna, int fila) const { return datos[Indice(canal, columna, fila)]; }
    uint8_t* Fila(int fila) { return datos.data() + size_t(4) * size_t(W) * size_t(fila); }
    const uint8_t* Fila(int fila) const { return datos.data() + size_t(4) * size_t(W) * size_t(fila); }
    bool operator==(const Pixeles& o) const { return W == o.W && H == o.H && datos == o.datos; }
    bool operator!=(const Pixeles& o) const { return !(*this == o); }

private:
    size_t Indice(int canal, int columna, int fila) const {
        return (size_t(fila) * size_t(W) + size_t(columna)) * 4 + size_t(canal);
    }
};

namespace Canal {
constexpr int Azul = 0, Verde = 1, Rojo = 2, Reservado = 3;
}

// LeerPixeles: the picture into a buffer of its size.  A picture without
// width or height, or larger than the effects take, raises the overflow
// error 6 ("Desbordamiento") with a Spanish detail.
Pixeles LeerPixeles(const QImage& imagen);
// The sizing check alone, for a screen that refuses a picture before it
// reads it.
void ComprobarTamanoPixeles(int ancho, int alto);
// PintarPixeles: the buffer as an opaque picture.
QImage PintarPixeles(const Pixeles& p);
