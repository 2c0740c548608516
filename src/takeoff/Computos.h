#pragma once
// The bill of materials of a building project, read from the project file
// (not the model in memory): fixtures, fittings by type and size,
// reductions, and metres of pipe by size; and the logic of the screen
// Computos ("LISTADO DE MATERIALES") with its four pages.

#include "base/Grid.h"

#include <QString>

struct ProyectoEdificio;
struct Sesion;
class Conexion;
class Dialogos;

// The ten fitting types of the take-off by number 1..10 (type 10 counts keys 10 and 11).
QString NombreTipoConexion(int tipo);

struct PaginasComputos {
    Grid Piezas;       // page 1 "Piezas Sanitarias"
    Grid Conexiones;   // page 2 "Conexiones"
    Grid Reducciones;  // page 3 "Reducciones"
    Grid Tuberias;     // page 4 "Tuberías"
    PaginasComputos();
    static QString TituloPagina(int pagina);
};

// Headers and formats of the four grids.
void ConfigurarSpread(PaginasComputos& c);

// Each fills one page from the project file.  A file that lacks the tables
// leaves the page empty.  A fitting total beyond 32,767 overflows (error 6).
void CalculeComputosPiezas(Grid& g, Conexion& c);
void CalculeComputosConexiones(Grid& g, Conexion& c);
void CalculeComputosReducciones(Grid& g, Conexion& c);
void CalculeComputosTuberias(Grid& g, Conexion& c);
// The four, in that order.
void CalcularComputos(PaginasComputos& computos, Conexion& c);

// The screen.
class Computos {
public:
    Computos(ProyectoEdificio& p, Sesion& s, Dialogos& d) : p_(p), s_(s), d_(d) {}
    PaginasComputos Paginas;
    QString Caption = QStringLiteral("LISTADO DE MATERIALES");
    int Pagina = 1;
    // Hidden when the analysis screen opened this one.
    bool AbrirVisible = true;

    void Cargar();
    // "Abrir": another project, its analysis (which writes the sizes to the
    // file) and the four lists again.  A cancel or a refused file changes nothing.
    bool Abrir();

private:
    ProyectoEdificio& p_;
    Sesion& s_;
    Dialogos& d_;
};
