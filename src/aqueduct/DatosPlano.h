#pragma once
// What the plan of an aqueduct network needs from the project and its last
// solve: the nodes with their pressure and, when known, their position, the
// sections with their ends, flow, velocity and unit loss, and the demand
// case.  The JSON form carries the same to the drawing executable of the
// command line, with the session's marks for the numbers it writes.

#include <QJsonObject>
#include <QPointF>
#include <QString>
#include <optional>
#include <vector>

struct ProyectoAcueducto;

struct NodoPlano {
    QString nombre;
    std::optional<QPointF> posicion;  // m, x east and y north
    double presion = 0.0;             // m
    QString textoPresion;             // "23,45 m"
    bool fijo = false;                // a tank or a pump
    bool minimo = false, maximo = false;  // lowest and highest pressure of the case
};

struct TramoPlano {
    int numero = 0;
    int nodoI = -1, nodoJ = -1;  // indices into nodos; -1 when the name matched none
    double longitud = 0.0;       // m
    double caudal = 0.0;         // l/s, positive from (I) to (J)
    double velocidad = 0.0;      // m/s, signed
    double perdidaUnitaria = 0.0;  // HF / 1000, m per km
};

struct DatosPlano {
    QString titulo;
    QString caso;  // the row of the case list
    QChar decimal = QLatin1Char('.'), miles = QLatin1Char(',');
    std::vector<NodoPlano> nodos;  // node k+1 of the project at index k
    std::vector<TramoPlano> tramos;
};

// The positions the project gives its nodes, in metres, one slot per node
// (none while the model carries no coordinates): what every plan is drawn
// from, on screen and from the command line.
std::vector<std::optional<QPointF>> CoordenadasNodos(const ProyectoAcueducto& p);

// The plan of the last solve.  `coordenadas[k]`, when given, is the
// position of node k+1 in metres; nodes without one are laid out from the
// section lengths.
DatosPlano PlanoDeProyecto(const ProyectoAcueducto& p,
                           const std::vector<std::optional<QPointF>>& coordenadas = {});

QJsonObject PlanoComoJson(const DatosPlano& d);
// False, with the reason in Spanish, when the object is not a plan.
bool PlanoDeJson(const QJsonObject& o, DatosPlano& d, QString& error);
