#pragma once
// CaminoImagen.nivo, directly under the data folder: fixed records of 128
// bytes, of which record 3 holds the last folder of the capture screen as a
// counted text (16-bit little-endian length, then its UTF-8 bytes).

#include <QString>

constexpr int LongitudRegistroCamino = 128;
constexpr int RegistroUltimaCarpeta = 3;

QString RutaCaminoImagen(const QString& directorioDatos);

// The folder of record 3; empty when the file or the record is missing or
// the record's length does not fit it.
QString LeerUltimaCarpeta(const QString& directorioDatos);

// Writes record 3, keeping the file's other bytes.  A folder whose text does
// not fit the record is not written (false), and the record keeps the
// folder it held.
bool EscribirUltimaCarpeta(const QString& directorioDatos, const QString& carpeta);
