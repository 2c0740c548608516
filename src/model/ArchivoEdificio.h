#pragma once
// The building project file (.plm): LeerProyecto fills the model from the
// open project connection, SalvarProyecto writes the whole model back.

#include <QString>

struct ProyectoEdificio;
struct Sesion;

// Reads the file on Sesion::ConexionProyecto into the model.  Every step is
// trapped: a field that cannot be read keeps the value it had.  A closed
// connection, or a file with more branches or nodes than the counters hold,
// leaves the model as it was and returns false with a Spanish message.
bool LeerProyecto(ProyectoEdificio& p, Sesion& s, QString* error = nullptr);

// Opens the project connection on ArchivoProyecto and replaces every row of
// the file with the model, in one transaction.  A project with no branch is
// refused and nothing is written.  False with a Spanish message in `error`
// when the save did not happen; the file then is as it was.  A run-time fault
// of the model (more than 30 rows on a branch, a counter overflow) is raised
// as ErrorEjecucion after the transaction has been undone.
bool SalvarProyecto(ProyectoEdificio& p, Sesion& s, QString& error);

// The one load of a building project, for the commands, the screens and the
// command line: checks that `archivo` is a building project before anything
// changes; then ArchivoProyecto and NombreProyecto (the file name) take it,
// ValoresIniciales, AbrirConexionProyecto and LeerProyecto.  False with a
// Spanish message, and the model, the session and the open connection as
// they were, when the file is missing, is not a project or is too large.
bool CargarProyectoEdificio(ProyectoEdificio& p, Sesion& s, const QString& archivo, QString& error);

// The refusal of a project without branches.
QString MensajeProyectoSinRamales();
