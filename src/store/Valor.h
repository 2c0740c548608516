#pragma once
// Field values as the store hands them over, and their reading as the older
// program read them.

#include <QString>
#include <QVariant>

// A field value: null, integer, double, text or bytes.
using Valor = QVariant;

// Reads a field as the older program did: null texts as "" (concatenated
// with the empty text), null numbers as 0.
QString ComoTexto(const Valor& v);
double ComoDoble(const Valor& v);
long long ComoEntero(const Valor& v);
// Booleans are stored as -1 (true) and 0.
bool ComoLogico(const Valor& v);
inline Valor Logico(bool b) { return Valor(b ? -1 : 0); }
inline Valor Nulo() { return Valor(); }
