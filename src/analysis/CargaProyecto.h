#pragma once
// The load of a building project as every command does it: the model back
// to its defaults, the connection on the file, the file read.

#include <QString>

struct ProyectoEdificio;
struct Sesion;
class Dialogos;

// Checks that `archivo` is a building project before anything changes; then
// ArchivoProyecto and NombreProyecto (the file name) take it, ValoresIniciales,
// AbrirConexionProyecto and LeerProyecto.  False with a Spanish message, and
// the model, the session and the open connection as they were, when the file
// is missing or is not a project.
bool CargarProyectoEdificio(ProyectoEdificio& p, Sesion& s, const QString& archivo, QString& error);

// The file dialog of the screens that open another project: title
// "Abrir un Proyecto Existente", filter "*.plm|*.plm", folder Proyectos.  On
// a file, CargarProyectoEdificio; a refused file is shown through `d`.  False
// on a cancel or a refusal.
bool AbrirOtroProyecto(ProyectoEdificio& p, Sesion& s, Dialogos& d);
