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
