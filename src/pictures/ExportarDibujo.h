#pragma once
// A picture written to a file: PNG, SVG or PDF by the file's extension.  The
// file is written whole or not at all.

#include <QString>

class Dibujo;

// False, with the reason in Spanish, for another extension or a file that
// cannot be written.
bool ExportarDibujo(const Dibujo& d, const QString& ruta, QString& error);
