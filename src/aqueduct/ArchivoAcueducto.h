#pragma once
// The aqueduct project file (.acu): a database with the tables Generales,
// Nodos and Tramos.  LeerProyectoACU fills the model from it, and
// SalvarProyectoACU replaces all of its rows in one transaction.

#include <QString>

struct ProyectoAcueducto;
struct Sesion;
class Conexion;
class Dialogos;

// AbrirTablasACU: opens `c` on the file and checks that it holds the three
// tables of an aqueduct project.  False with a Spanish message in `error`
// when the file is missing, is not a database or lacks a table.
bool AbrirTablasACU(Conexion& c, const QString& archivo, QString& error);

// A database that holds the tables of an aqueduct project.
bool EsArchivoAcueducto(Conexion& c);

// Loads ArchivoProyectoACU into the model: general data (when the file has a
// record), sections in file order, the numbering of the nodes, then the node
// data in file order.  False with a message when the file cannot be read;
// the model then is as it was.  A run-time fault of the data (more distinct
// node names than sections + 10, a count beyond 16 bits, a null project name)
// is also reported in `error`, the model again untouched.
bool LeerProyectoACU(ProyectoAcueducto& p, Sesion& s, QString& error);

// Writes the model to ArchivoProyectoACU: every row replaced, sections
// trimmed and rounded, the nodes renumbered from the sections as saved (their
// demands lumped anew with "Consumo por Tramo"), in one transaction.  Clears
// DatosModificados.  False with a message when the save did not happen; the
// file then is as it was.
bool SalvarProyectoACU(ProyectoAcueducto& p, Sesion& s, QString& error);

// What a command does before an aqueduct screen: the chosen file becomes the
// open one (ArchivoProyectoACU, NombreProyectoACU), DatosModificados is
// cleared, every array emptied and the file loaded.
bool CargarProyectoACU(ProyectoAcueducto& p, Sesion& s, const QString& archivo, QString& error);

// "Abrir" of the aqueduct screens: the dialog "Abrir un Proyecto Existente"
// over Redes/, then CargarProyectoACU.  A cancelled dialog changes nothing;
// a file that cannot be read is reported and the open project stays as it
// was.  True when another project was loaded.
bool AbrirOtroProyectoACU(ProyectoAcueducto& p, Sesion& s, Dialogos& d);
