#pragma once
// Line drawings of the catalogue's fixtures and fittings, and the default
// wallpaper, drawn by the build into the installed data.

#include <QImage>
#include <QString>

QImage DibujoPieza(int clave, const QString& nombre);
QImage DibujoConexion(int clave, const QString& nombre);
QImage DibujoTapiz(int ancho, int alto);
