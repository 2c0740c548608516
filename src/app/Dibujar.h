#pragma once
// The command line's pictures: the verb computes, writes what the picture
// needs to a temporary JSON file and runs the drawing executable
// (fontaria-dibujo, beside this one) on it, so that the command line itself
// never loads the painting libraries.

#include <QJsonObject>
#include <QString>
#include <QStringList>

// False, with the Spanish message, when `ruta` has not one of the picture
// extensions (.png, .svg, .pdf): checked before any work is done.
bool ExtensionDibujoValida(const QString& ruta, QString& error);

// Draws `datos` to `ruta` ("color" and "blancoNegro" in it say how).
// Returns an exit status of the command line, the message already shown.
int Dibujar(const QJsonObject& datos, const QString& ruta);
