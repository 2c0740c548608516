#pragma once
// Equivalent lengths: every fitting counted as straight pipe by its key and
// the assumed size of its branch, plus the change of diameter at the head
// of each branch, whose text is written to the column Reduccion of the file.

#include <QString>

struct ProyectoEdificio;
struct Sesion;
class Dialogos;

// LongitudConexion, LongitudEquivalenteRamal, RamalAnterior and
// LongitudReduccion of every branch; the column Reduccion of the file in one
// transaction (rows whose text is already right are not written).
// A branch 2 that leaves the origin with a size of its own has no branch
// before it to reduce from: it is shown through `d` as the disconnection of
// its node, ErrorNumeracion is raised and false returned, the file untouched.
bool CalcularLongitudes(ProyectoEdificio& p, Sesion& s, Dialogos& d);

// The equivalent length (m) of one piece of the built-in fittings 1..11 at a
// size; false when the key or the size has no entry.
bool LongitudTabla(int clave, double numero, double& longitud);

// The reduction of the ratio `r` at the head of `ramal`: LongitudReduccion of
// the branch (two decimals), also added to its LongitudEquivalenteRamal.
void LongitudPorReduccion(ProyectoEdificio& p, double r, int ramal);

// The text stored in the column Reduccion: "REDUCCIÓN DE  " a"  a  " b".
QString TextoReduccion(const QString& anterior, const QString& actual);
