#pragma once
// The aqueduct reports' work tables.  The result reports read Generales,
// Tramos and Nodos of Trabajo/Resultados.mdb, written from the arrays of the
// last solve, so a report always shows the case on the screen.  The data
// report reads Trabajo/Datos.mdb, a copy of the project's three tables taken
// from the .acu file as last saved (what was not saved is not printed).
// The work sheets of both modes write the blank rows of their forms.
//
// Each filler runs in one transaction: false, with a Spanish message in
// `error` and the tables as they were, when a file cannot be opened or
// written.

#include <QString>
#include <vector>

struct ProyectoAcueducto;
struct Sesion;

// Empties and refills Generales, Tramos and Nodos of the database at `ruta`
// from the last solve of `p` (DemandaReal in l/s, Presion and HF derived,
// Caso the text of CasoDemanda, Minimo and Maximo the node numbers).
bool LleneTablasAcueducto(const QString& ruta, const ProyectoAcueducto& p, const Sesion& s, bool formatoColor,
                          QString& error);
// The same on the session's Trabajo/Resultados.mdb.
bool LleneTablasAcueducto(const ProyectoAcueducto& p, const Sesion& s, bool formatoColor, QString& error);

// ImprimirDatosProyecto's copy: Generales, Nodos and Tramos of the file
// `archivoProyecto` into the database at `ruta`, then `usuario` into
// Generales.Usuario.
bool CopieDatosProyectoACU(const QString& ruta, const QString& archivoProyecto, const QString& usuario,
                           QString& error);
// The same from the session's ArchivoProyectoACU into Trabajo/Datos.mdb.
bool CopieDatosProyectoACU(const Sesion& s, QString& error);

// One row of a work sheet: its number and the two node names, blank for a
// form filled in the field.
struct FilaHoja {
    int Numero = 0;
    QString NodoI, NodoJ;
};

// The building sheets: DatosGenerales of the work database at `ruta` with
// Opcion1 (and the colour) from the screen's check box, and one row of
// ImpreUnidadesGasto (Numero, NodoI, Nodoj) per sheet row.
bool LleneHojasEdificio(const QString& ruta, const std::vector<FilaHoja>& filas, bool opcion1, QString& error);
// The aqueduct sheets: Tramos of Resultados.mdb at `ruta` with Numero,
// NodoInicial, NodoFinal per row, Nodos with the rows' numbers, and Generales
// holding the version only.
bool LleneHojasAcueducto(const QString& ruta, const std::vector<FilaHoja>& filas, QString& error);
