#pragma once
// Positions for the nodes of a network whose coordinates are missing, from
// the lengths of its pipes: stress majorisation by stochastic gradient
// descent (each term pulls two nodes toward their distance along the
// network, weighted by its inverse square), started from a pivot MDS.  Up
// to a thousand nodes a component uses every pair; beyond, the pipes, the
// pairs two pipes apart and the distances to forty pivots, so that the work
// grows with the network rather than its square; such a network with
// hardly a loop starts instead as a tree drawn from its centre, whose long
// chains that sparse descent alone would fold onto each other.  Nodes with
// a position stay where they are and the rest are fitted around them;
// components without any are set side by side.  The result is the same on
// every run.

#include <QPointF>
#include <optional>
#include <vector>

struct AristaDisposicion {
    int a = 0, b = 0;
    double largo = 1.0;  // a length not above 0 counts as 1
};

std::vector<QPointF> DisponerPorTension(int nodos, const std::vector<AristaDisposicion>& aristas,
                                        const std::vector<std::optional<QPointF>>& fijos);
