#pragma once
// What the schematic of a building network needs, read from the project
// alone: the nodes with their floor level and pressure, the branches with
// their size and flow, and the kind of origin.  Texts are formatted here with
// the session's marks, so that whoever draws them (the analysis screen, the
// drawing executable of the command line) shows the numbers as the grids do.
// The JSON form carries the same to the drawing executable.

#include <QJsonObject>
#include <QString>
#include <vector>

class Grid;
struct ProyectoEdificio;

enum class OrigenEsquema { Bomba = 0, Suministro = 1, Tanque = 2 };

struct NodoEsquema {
    QString nombre;
    double cota = 0.0;         // floor level, m
    QString textoCota;         // "3,00 m"
    bool conPresion = false;   // the pressures were computed
    double presion = 0.0;      // m, as the pressure grid shows it
    QString textoPresion;      // "12,34 m"; empty without pressures
    bool desfavorable = false;
    bool sobreMaxima = false;  // above PresionM when OpcionPresionM is on
};

struct RamalEsquema {
    int numero = 0;
    int nodoI = -1;  // index into nodos; -1 when NodoI names no earlier node
    int nodoJ = 0;
    QString diametro;  // "1\""; empty before the pre-sizing
    QString gasto;     // "0,45 l/s"
};

struct DatosEsquema {
    QString titulo;  // the project's name
    OrigenEsquema origen = OrigenEsquema::Bomba;
    QString textoMaxima;  // "35,00 m" when OpcionPresionM is on, else empty
    std::vector<NodoEsquema> nodos;  // node k+1 of the project at index k
    std::vector<RamalEsquema> ramales;
};

// The schematic of the project as the last run of the chain left it.  The
// pressures are those of column 15 of the pressure grid (Spread3), one row
// per branch; without that grid, or with it empty, the nodes carry none.
DatosEsquema EsquemaDeProyecto(const ProyectoEdificio& p, const Grid* presiones);

QJsonObject EsquemaComoJson(const DatosEsquema& e);
// False, with the reason in Spanish, when the object is not a schematic.
bool EsquemaDeJson(const QJsonObject& o, DatosEsquema& e, QString& error);
