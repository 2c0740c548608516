#pragma once
// The exchange-format commands of the aqueduct menu: "IMPORTAR RED EPANET
// (.inp)..." and "EXPORTAR RED EPANET (.inp)...", with their file dialogs,
// the questions the file raises and the report in a message box.

struct ProyectoAcueducto;
struct Sesion;
class Dialogos;

// Chooses the .inp, reads it (a malformed file is shown and nothing more
// happens), asks about pumps drawing from reservoirs and about another
// friction formula when the file has them, chooses the .acu to write, writes
// it whole and shows the report.  The new network becomes the open project
// (ArchivoProyectoACU, NombreProyectoACU); true when one was written.
bool ImportarRedInpMenu(ProyectoAcueducto& acu, Sesion& s, Dialogos& d);

// Writes the open project, as its file holds it, to a chosen .inp; the
// identifiers changed and the warnings are shown.  True when written.
bool ExportarRedInpMenu(Sesion& s, Dialogos& d);
