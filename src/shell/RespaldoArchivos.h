#pragma once
// "Respaldar Archivos": the user's folders opened with the desktop's file
// manager, from where the engineer copies what to keep.

#include <QString>
#include <functional>

class Dialogos;
struct Sesion;

// The folder of an option: 1 the projects (Redes/ in aqueduct mode,
// Proyectos/ otherwise), 7 the exported reports.
QString CarpetaRespaldo(const Sesion& s, int opcion);
// Opens it (made first when missing); a Spanish message when it cannot.
bool AbrirCarpetaRespaldo(const Sesion& s, Dialogos& d, int opcion);

// "Crear Respaldo ZIP": the dated backup written with its advance, and the
// count or the fault said.  False when nothing was written.
bool CrearRespaldoZip(const Sesion& s, Dialogos& d, const std::function<void(double)>& avance);
// "Restaurar Respaldo ZIP": a backup chosen under RespaldoZIP/, confirmed,
// and put back; the catalogue is closed around it and the open project is
// never replaced.  False when cancelled or failed.
bool RestaurarRespaldo(Sesion& s, Dialogos& d, const std::function<void(double)>& avance);
