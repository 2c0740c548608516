#pragma once
// Small networks built in memory for the aqueduct tests, and the
// Hazen-Williams law worked directly, against which the solver is checked.

#include "aqueduct/ProyectoAcueducto.h"
#include "support/Apoyo.h"

#include <QString>
#include <vector>

struct Sesion;

struct TramoPrueba {
    QString i, j;
    double longitud = 100.0;
    double diametro = 0.2;
    int c = 100;
    double demanda = 0.0;
};

struct NodoPrueba {
    QString nombre;
    double consumo = 0.0;
    double terreno = 0.0;
    double tanque = 0.0;
};

// The sections in order, numbered, then the node data put by name.  Demand by
// node, diameters in metres and no added length, unless changed after.
ProyectoAcueducto Red(const std::vector<TramoPrueba>& tramos, const std::vector<NodoPrueba>& nodos,
                      const Sesion& s);

// The node number of a name after the numbering (0 when absent).
int Nodo(const ProyectoAcueducto& p, const QString& nombre);

// Head loss in m of a flow in l/s through a pipe (length m, diameter m),
// h = 10.675 L Q^1.852 / (C^1.852 D^4.8704).
double Hf(double litros, double longitud, double diametro, double c = 100.0);

// Saves the network to a blank .acu in the session's data folder and loads it
// back as the commands do (the open project of the session).
ProyectoAcueducto EnArchivo(const ProyectoAcueducto& red, SesionPrueba& sp,
                            const QString& nombre = QStringLiteral("red.acu"));
