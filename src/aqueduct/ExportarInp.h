#pragma once
// An aqueduct project written as a single-period network of the public
// hydraulic exchange format (.inp): SI units (flows LPS, lengths and heads
// m, diameters mm), Hazen-Williams friction, the mean demand of each node,
// a reservoir at each fixed head (CotaBombaEstanque above 0), the sections
// as pipes at their design length (with the added percentage, when the
// project takes one), and the coordinates the nodes have.
//
// Numbers are written in plain C form, with the shortest digits that read
// back to the same value.  What the format has no place for goes into
// ";Fontaria Campo=valor" comments, so that an import of the file gives back
// the same project.
//
// Heads: the other program's Hazen-Williams law, 10.667 L Q^1.852 /
// (C^1.852 D^4.871) in SI units, differs from this program's 10.675 and
// 4.8704: the head loss of the same pipe and flow differs by +0.10% at
// 50 mm, +0.04% at 150 mm, 0 near 300 mm and -0.08% at 1 m.

#include <QString>
#include <QStringList>

struct ProyectoAcueducto;
struct Sesion;

// Names made valid and unique: an empty name becomes "N" with its position,
// a name is cut to `largo` characters and a repeated one takes "~2", "~3"...
// For identifiers of the format (`identificador`) blanks, ';' and '"' become
// '_' and names that differ only in case count as repeated.  Each name
// changed is reported in `informe` as `que` "«antes» → «después»".
QStringList NombresValidos(const QStringList& nombres, int largo, bool identificador, const QString& que,
                           QStringList& informe);

// The text of the file.  `informe` lists the identifiers changed and what
// the other program would refuse (no fixed head, a zero length...).
QString TextoInp(const ProyectoAcueducto& p, QStringList& informe);

// Loads the .acu and writes the .inp whole (a temporary file renamed at the
// end).  False with a Spanish message when the project cannot be read or
// the file cannot be written.
bool ExportarInp(const QString& acu, const QString& inp, Sesion& s, QStringList& informe, QString& error);
// The same from a project in memory.
bool EscribirInp(const ProyectoAcueducto& p, const QString& inp, QStringList& informe, QString& error);
