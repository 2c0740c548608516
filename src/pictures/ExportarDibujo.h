#pragma once
// A picture written to a file: PNG, SVG or PDF by the file's extension.  The
// file is written whole or not at all.

#include <QImage>
#include <QString>

class Dibujo;

// False, with the reason in Spanish, for another extension or a file that
// cannot be written.
bool ExportarDibujo(const Dibujo& d, const QString& ruta, QString& error);

// The picture painted on white, scaled so that its longer side is at most
// `lado` pixels (never above twice its natural size): what a report that is
// not a page (a web page, a document, a workbook) shows of it.
QImage ImagenDibujo(const Dibujo& d, int lado);
