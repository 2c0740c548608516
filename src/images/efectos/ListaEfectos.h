#pragma once
// What frmRGBColors and frmDithering share: a one-column list of named
// effects in Spread1, a click that previews the row's effect on a reduced
// copy of the picture, and Button2 that accepts the row.

#include "base/Grid.h"
#include "images/Pixeles.h"

#include <QImage>

class ListaEfectos {
public:
    using Funcion = void (*)(Pixeles&, const Pixeles&, int, int, int);
    // `conCheck1`: the list offers Check1, the choice of a reduced preview.
    ListaEfectos(const QStringList& nombres, Funcion efecto, const QString& encabezado, const QString& titulo,
                 bool conCheck1);

    Grid Spread1;
    const QString& Titulo() const { return titulo_; }

    // The picture the previews stand for; `reducida` previews on a copy of
    // at most ImagenReducida's size, else on the whole picture.
    void Cargar(const QImage& imagen, bool reducida = true);
    // A click on a row: that row's effect on the preview picture.
    void ElegirFila(int fila);
    int Fila() const { return fila_; }
    const QImage& Vista() const { return vista_; }
    // Button2: the row chosen.
    int Aceptar() const { return fila_; }

    // Check1, where the list has it: the preview reduced or whole.
    bool TieneCheck1() const { return conCheck1_; }
    bool Check1() const { return check1_; }
    void PonerCheck1(bool si);

private:
    void PonerReducida(bool reducida);

    Funcion efecto_;
    QString titulo_;
    bool conCheck1_ = false, check1_ = true;
    QImage imagen_, muestra_, vista_;
    Pixeles origen_;
    int fila_ = 1;
};

// frmRGBColors: the 111 colour effects.
ListaEfectos RGBColors();
// frmDithering: the 13 two-colour methods, with Check1 (reduced preview).
ListaEfectos Dithering();
