#pragma once
// What every filler of the report tables does with its work database.

#include <QString>

class Conexion;

// Opens a work database (Trabajo.mdb, Proyecto.mdb...); false with the reason.
bool AbrirTrabajo(Conexion& c, const QString& ruta, QString& error);
// The refusal of a work database that could not be written: the message in
// `error`, and false.
bool FalloTrabajo(Conexion& c, QString& error);
