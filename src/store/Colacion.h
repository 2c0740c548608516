#pragma once
// Texts compared as the older database compared them: without regard to case
// or accents, in Spanish order, where "ñ" is a letter of its own after "n".
// SQL asks for it with COLLATE ESPANOL, on every connection the store opens;
// the files keep no trace of it, so any SQLite tool still reads them.

#include <QString>

struct sqlite3;

// <0, 0 or >0 as `a` comes before, equals or comes after `b`.
int CompararTexto(const QString& a, const QString& b);
inline bool MenorTexto(const QString& a, const QString& b) { return CompararTexto(a, b) < 0; }

// Makes COLLATE ESPANOL known to a connection; false when SQLite refuses it.
bool RegistrarColacion(sqlite3* db);
