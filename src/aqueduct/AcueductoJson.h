#pragma once
// The aqueduct project as JSON text, so that a network can be written by hand
// or by another program and turned into an .acu file, and the results of a
// solve for the command line.
//
// A project: "Generales" (the columns of the file's table), "Tramos" (each
// with Inicio, Final, Longitud, Diametro, CoeficienteC, Demanda, in order)
// and "Nodos" (each with the name Nodos and ConsumoMedio, CotaTerreno,
// CotaBombaEstanque, and X, Y in metres when the node has them).  Nodes are matched by name to the nodes the sections
// name; a node the sections do not name is refused, a node not listed keeps
// zeros.

#include <QJsonObject>
#include <QString>

class EscritorJson;
struct ProyectoAcueducto;
struct Sesion;

// The whole model: general data, sections and nodes, with the counts.
QJsonObject AcueductoComoJson(const ProyectoAcueducto& p);

// Fills the model (already at its defaults) from such an object, numbering
// the nodes.  False, with a Spanish message naming the field, when a value
// has the wrong kind, a limit is exceeded, a node name is longer than 20
// characters or a listed node is not an end of any section.
bool AcueductoDesdeJson(const QJsonObject& o, ProyectoAcueducto& p, const Sesion& s, QString& error);

// The results of the last solve as the command line prints them.
void EscribirResultadosJson(EscritorJson& j, const ProyectoAcueducto& p, const QString& mensaje);

// Exports an .acu file; false with a message when it is not a project.
bool ExportarAcueducto(const QString& archivo, Sesion& s, QJsonObject& salida, QString& error);
// Makes `destino` from a JSON file: a copy of the blank template and a save
// of the model under a temporary name, renamed at the end, so a failure
// leaves no file behind and an existing target untouched.
bool ImportarAcueducto(const QString& json, const QString& destino, Sesion& s, QString& error);
