#pragma once
// The numbering of the nodes from the sections: node names in order of first
// appearance, the node numbers of each section's ends, the sections that meet
// at each node and the lumping of section demand onto nodes.  The node list
// is also written to the scratch file Trabajo/Nodos.Dat.
//
// Nodos.Dat holds one 24-byte record per node: bytes 0-19 the name,
// left-justified and blank-padded, one byte per character (Latin-1, '?' for a
// character outside it), bytes 20-21 the node number as a 16-bit
// little-endian integer, bytes 22-23 zero.  A name longer than 20 characters
// is cut in the record, and no section end then matches it.

#include <QString>

struct ProyectoAcueducto;
struct Sesion;

constexpr int LargoRegistroNodo = 24;
constexpr int LargoNombreNodo = 20;

// DirectorioDatos/Trabajo/Nodos.Dat.
QString RutaNodosDat(const Sesion& s);

// The numbering without the connections and the lumping, shared with the solver's
// renumbering: ExtremosTramo, the node names (array dimensioned NumeroTramos
// + 10, so more distinct names stop with error 9), NumeroNodosACU,
// Nodos.Dat, and NodosTramo from the trimmed names of the records (the last
// matching record wins).  Runs even without sections, where reading the
// first section is a subscript error.  The scratch file is written when its
// folder can be made (a numbering that stops leaves the records listed so
// far); the numbering does not depend on it.
void NumerarExtremos(ProyectoAcueducto& p, const Sesion& s);

// NumerarExtremos followed by ConectarNodos, sharing the listing's look-ups.
void NumerarYConectar(ProyectoAcueducto& p, const Sesion& s);

// NumerarNodos: nothing without sections; otherwise NumerarExtremos,
// ConectarNodos and AcumularConsumos.
void NumerarNodos(ProyectoAcueducto& p, const Sesion& s);

// TramosConectados and NombreTramos: per node the count of section ends
// that meet there and the list "A-B,  A-C" with the node's own name first.
void ConectarNodos(ProyectoAcueducto& p);

// With "Consumo por Tramo" each node's ConsumoMedio is rebuilt as the sum of
// halves of the Demanda of its sections, rounded to 3 decimals after each
// addition.  With "Consumo por Nodo" nothing changes; any other option
// leaves the demands cleared.
void AcumularConsumos(ProyectoAcueducto& p);
