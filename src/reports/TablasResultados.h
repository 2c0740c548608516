#pragma once
// The result reports' work tables: what the analysis screen shows, copied
// cell by cell into DatosGenerales and the Impre* tables of the work
// database (Trabajo/Trabajo.mdb), where the report templates read it.
//
// The source is each cell's text as shown, with its display rounding; a
// blank numeric cell prints as 0 where a blank may stand.

#include <QString>

class AnalisisRed;
class Conexion;
class Grid;
struct ProyectoEdificio;
struct Sesion;

// The choices of the printing screen that reach the tables.
struct OpcionesResultados {
    bool FormatoColor = true;
    QString Titulo1 = QStringLiteral("ANÁLISIS Y DISEÑO DE LA RED DE FONTARIA");
    QString Titulo2;
};

// Empties and refills the four tables in one transaction on the work
// database at `ruta`.  False, with a Spanish message in `error` and the
// tables as they were, when the file cannot be opened or written or a cell
// that must hold a number does not.
bool LleneTablasResultados(const QString& ruta, const AnalisisRed& a, const ProyectoEdificio& p,
                           const Sesion& s, const OpcionesResultados& o, QString& error);
// The same on the session's work database.
bool LleneTablasResultados(const AnalisisRed& a, const ProyectoEdificio& p, const Sesion& s,
                           const OpcionesResultados& o, QString& error);

// A cell's shown text read as the number it shows, with the session's
// decimal mark; a blank is 0 when `blancoEsCero`.  False when the text is
// not a number (a blank otherwise included).
bool NumeroMostrado(const Grid& g, int fila, int columna, bool blancoEsCero, double& valor);
