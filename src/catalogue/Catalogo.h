#pragma once
// The catalogue of fixtures (Piezas) and fittings (Conexiones) shared by all
// projects, and the mirror of its photographs in each project file.

#include <QString>

struct Sesion;

// Keys the program gives a meaning.
constexpr int ClaveSubRamal = 21;
constexpr int ClaveLongitudEspecial = 12;

// Opens the session record sets over the catalogue, ordered by key, on the
// first row when there is one.  False when the catalogue can't be read.
bool LeerCatalogoPiezas(Sesion& s);
bool LeerCatalogoConexiones(Sesion& s);

// The catalogue column of fixture units for an OpcionUsoPiezas (0..3).
QString ColumnaUnidades(int opcionUsoPiezas);

enum class TablaImagenes { Piezas, Conexiones };

// The automatic mirror: when the project's image table is empty, copies
// every catalogue row's key and photograph into it.  Returns true when it
// copied.  The project does not count as modified.
bool VerifiqueImagenesProyecto(Sesion& s, TablaImagenes tabla);
// The mirror on request ("Actualizar Imágenes"): replaces the project's
// image table with the catalogue's rows.  An empty catalogue leaves the
// table as it was.  Returns true when it copied.
bool ActualizarImagenesProyecto(Sesion& s, TablaImagenes tabla);
