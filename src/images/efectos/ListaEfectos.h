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
    ListaEfectos(const QStringList& nombres, Funcion efecto, const QString& encabezado);

    Grid Spread1;

    // The picture the previews stand for; `reducida` previews on a copy of
    // at most ImagenReducida's size, else on the whole picture.
    void Cargar(const QImage& imagen, bool reducida = true);
    // A click on a row: that row's effect on the preview picture.
    void ElegirFila(int fila);
    int Fila() const { return fila_; }
    const QImage& Vista() const { return vista_; }
    // Button2: the row chosen.
    int Aceptar() const { return fila_; }

protected:
    void PonerReducida(bool reducida);

private:
    Funcion efecto_;
    QImage imagen_, muestra_, vista_;
    Pixeles origen_;
    int fila_ = 1;
};

// frmRGBColors: the 111 colour effects.
class RGBColors : public ListaEfectos {
public:
    RGBColors();
    static QString Titulo();
};

// frmDithering: the 13 two-colour methods; Check1 previews reduced.
class Dithering : public ListaEfectos {
public:
    Dithering();
    static QString Titulo();
    bool Check1() const { return check1_; }
    void PonerCheck1(bool si);

private:
    bool check1_ = true;
};
