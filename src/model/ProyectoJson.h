#pragma once
// The building project as JSON text, so that a project can be written by
// hand or by another program and turned into a .plm file.

#include <QJsonObject>
#include <QString>

struct ProyectoEdificio;
struct Sesion;

// The whole model (general data, branches with their fixtures and fittings,
// nodes) as one object; the names of the keys are those of the file.
QJsonObject ProyectoComoJson(const ProyectoEdificio& p);

// Fills the model (already brought to its defaults) from such an object.
// False, with a Spanish message naming the field, when a value has the wrong
// kind or a limit is exceeded.  Keys that are absent keep the defaults.
bool ProyectoDesdeJson(const QJsonObject& o, ProyectoEdificio& p, QString& error);

// Exports a .plm file; false with a message when it is not a project.
bool ExportarProyecto(const QString& archivo, Sesion& s, QJsonObject& salida, QString& error);
// Makes `destino` from a JSON file: a copy of the blank template and a save
// of the model, written under a temporary name and renamed at the end, so a
// failure leaves no file behind and an existing target untouched.
bool ImportarProyecto(const QString& json, const QString& destino, Sesion& s, QString& error);
