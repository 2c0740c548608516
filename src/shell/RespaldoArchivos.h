#pragma once
// "Respaldar Archivos": the user's folders opened with the desktop's file
// manager, from where the engineer copies what to keep.

#include <QString>

class Dialogos;
struct Sesion;

// The folder of an option: 1 the projects (Redes/ in aqueduct mode,
// Proyectos/ otherwise), 7 the exported reports.
QString CarpetaRespaldo(const Sesion& s, int opcion);
// Opens it (made first when missing); a Spanish message when it cannot.
bool AbrirCarpetaRespaldo(const Sesion& s, Dialogos& d, int opcion);
