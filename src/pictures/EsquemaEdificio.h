#pragma once
// The schematic of a building network: floors as horizontal bands, one per
// distinct floor level, highest on top and each labelled with its level;
// the riser vertical; branches laid out left to right in the order of the
// list.  A branch on the floor of its start node goes one column to the
// right, on the start node's track or, when that is taken, on a track below
// it (a drop from the node then a run); a branch to another floor goes
// straight up or down, or jogs right in the gap between floors when the
// column is taken there.  Every node has a cell (column, floor, track) of
// its own, so no two node labels meet.
//
// Nodes carry their name and pressure; the unfavourable node and those
// above the maximum pressure are filled with the colours of the pressure
// grid (in black and white the first is a target, the others grey
// squares); the origin shows an elevated tank, a pump or the supply.  World
// units are pixels at 100 %.

#include "analysis/DatosEsquema.h"
#include "pictures/Dibujo.h"

#include <QFont>
#include <QPolygonF>
#include <vector>

class EsquemaEdificio : public Dibujo {
public:
    explicit EsquemaEdificio(DatosEsquema datos);

    QRectF Limites() const override { return limites_; }
    QSizeF TamanoNatural() const override;
    void Pintar(QPainter& p, const QTransform& mundo, const QRectF& destino, bool todasLasEtiquetas) const override;
    ElementoDibujo ElementoEn(const QPointF& punto, double radio) const override;

    const DatosEsquema& Datos() const { return datos_; }
    // Where node k is drawn, and the rectangle of its name and pressure.
    QPointF PosicionNodo(int k) const { return nodos_[size_t(k)].posicion; }
    QRectF EtiquetaNodo(int k) const { return nodos_[size_t(k)].etiqueta; }
    // Radius of a node's marker, world units.
    static constexpr double RadioNodo = 6.0;

private:
    struct Nodo {
        QPointF posicion;
        QRectF etiqueta;
    };
    struct Ramal {
        QPolygonF trazo;
        QRectF caja;       // of the stroke, for culling
        QPointF textoEn;   // left end of the label's base line
        QString texto;
    };
    struct Piso {
        double y = 0.0;
        QString texto;
    };
    void Disponer();
    void PintarOrigen(QPainter& p) const;
    // A node's marker; `color` that of the pressure grid's mark, -1 none.
    void PintarMarca(QPainter& p, const QPointF& c, int color) const;

    DatosEsquema datos_;
    std::vector<Nodo> nodos_;
    std::vector<Ramal> ramales_;
    std::vector<Piso> pisos_;
    QRectF limites_;
    QFont fuenteNombre_, fuentePresion_, fuenteRamal_, fuenteTitulo_;
    double anchoColumna_ = 180.0;
};
