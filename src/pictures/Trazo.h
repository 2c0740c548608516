#pragma once
// Small drawing pieces shared by the pictures.

#include <QColor>
#include <QPointF>
#include <QPolygonF>

class QPainter;

// A node's round marker; `destacado` gives it the dark outline of a marked node.
void MarcaNodo(QPainter& p, const QPointF& centro, double radio, const QColor& relleno, bool destacado);
// Distance from a point to a polyline.
double DistanciaTrazo(const QPolygonF& trazo, const QPointF& punto);
double DistanciaSegmento(const QPointF& a, const QPointF& b, const QPointF& punto);

// The grey a colour prints as on a page without colour: its luminance.
QColor Gris(const QColor& c);
// `c` as painted: itself, or its grey in black and white.
inline QColor Tono(const QColor& c, bool blancoNegro) { return blancoNegro ? Gris(c) : c; }

// The shapes that tell a marked node where no colour does.
enum class FormaMarca { DobleAnillo, Cuadrado, Rombo };
// `forma` around `centro` (`radio` its half size) with the painter's pen and brush.
void DibujarForma(QPainter& p, const QPointF& centro, double radio, FormaMarca forma);
