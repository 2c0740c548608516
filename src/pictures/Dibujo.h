#pragma once
// A picture of a network that can be painted on any paint device: the
// screen's view, a PNG, an SVG, a PDF page or a rectangle of a report page.
// Its geometry is worked out once, in world units (a picture's own), and
// each paint maps the world to the device through a transform, drawing only
// what falls inside the device's rectangle.

#include <QRectF>
#include <QSizeF>
#include <QTransform>

class QPainter;

// What lies under a point of the picture: a node or a pipe (a branch of the
// building, a section of the aqueduct), by its index in the picture's data.
struct ElementoDibujo {
    enum Tipo { Ninguno, Nodo, Tubo } tipo = Ninguno;
    int indice = -1;
};

class Dibujo {
public:
    virtual ~Dibujo() = default;
    // The world rectangle the picture covers, margins included.
    virtual QRectF Limites() const = 0;
    // The size in pixels of a picture file of it.
    virtual QSizeF TamanoNatural() const = 0;
    // Paints through `mundo` (world to device) inside `destino` (device).
    // Without `todasLasEtiquetas` labels too small to read are left out.
    virtual void Pintar(QPainter& p, const QTransform& mundo, const QRectF& destino,
                        bool todasLasEtiquetas) const = 0;
    // The element within `radio` world units of `punto`, the nearest one.
    virtual ElementoDibujo ElementoEn(const QPointF& punto, double radio) const = 0;
    // The part of a device rectangle the network itself is fitted into (the
    // rest holds what is drawn at a fixed size, like a legend).
    virtual QRectF AreaRed(const QRectF& destino) const { return destino; }

    // Black and white: every colour painted as a grey, with what a colour
    // alone told (a class, the unfavourable node) told by a shape or a dash
    // as well; for the reports printed without colour.
    void PonerBlancoNegro(bool b) { blancoNegro_ = b; }
    bool BlancoNegro() const { return blancoNegro_; }

protected:
    bool blancoNegro_ = false;
};

// The transform that fits the whole picture into a device rectangle.
QTransform EncuadreDibujo(const Dibujo& d, const QRectF& destino);

// The transform that shows `mundo` whole and centred in `destino`.
QTransform Encuadre(const QRectF& mundo, const QRectF& destino);

// Paints the whole picture scaled into a rectangle of a page, all labels
// drawn: what a report band calls.
void PintarEnRectangulo(QPainter& p, const QRectF& destino, const Dibujo& d);
