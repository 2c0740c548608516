#pragma once
// What every filler of the report tables does with its work database.

#include <QJsonObject>
#include <QString>

class Conexion;

// Opens a work database (Trabajo.mdb, Proyecto.mdb...); false with the reason.
bool AbrirTrabajo(Conexion& c, const QString& ruta, QString& error);
// The refusal of a work database that could not be written: the message in
// `error`, and false.
bool FalloTrabajo(Conexion& c, QString& error);

// Keeps the JSON form of a picture of the network as the row `nombre` of
// the table Dibujos (Nombre, Datos), made when the database has none.
bool GuardeDibujo(Conexion& c, const QString& nombre, const QJsonObject& datos);
