#pragma once
// Primitives shared by every subsystem, with the behaviour of the older
// runtime: rounding, blank trimming, upper case, number and date formats.

#include <QChar>
#include <QDate>
#include <QString>

class QLocale;

// Rounds half away from zero to `decimales` places.  A scaled value that lies
// within a few units of the last place of a half is taken as the half, so
// that 2.675 (2.67499999... in binary) rounds to 2.68 as typed.
double RoundNivo(double valor, int decimales);

// Removes blanks (U+0020) at both ends, and only blanks.
QString Trim(const QString& s);
QString LTrim(const QString& s);
QString RTrim(const QString& s);
// Unicode upper case: "válvula" -> "VÁLVULA".
QString UCase(const QString& s);

// The separators of the session; the start-up learns them from the locale.
struct Separadores {
    QChar decimal = QLatin1Char('.');
    QChar miles = QLatin1Char(',');
};
// Separators in force for the formats below (set once by the start-up).
Separadores& SeparadoresActuales();
// The marks a locale writes 1234.56 with, and those of the system locale.
Separadores SeparadoresDelSistema(const QLocale& locale);
Separadores SeparadoresDelSistema();

// Number formats of the older runtime: "#,##0.00", "0.00", "0.000", "0",
// "#,##0" (a picture of digits, an optional thousands comma and decimals).
QString Formato(double valor, const QString& mascara);
QString Formato(double valor, const QString& mascara, const Separadores& sep);
// Reads a number typed with the session's separators (or plain C form);
// false when the text is not a number.
bool LeerNumero(const QString& texto, double& valor);
// Val(): the leading number of a text, 0 when none.
double Val(const QString& texto);

// Dates travel as "dd/MM/yyyy" text.
QString FechaTexto(const QDate& d);
// Reads "dd/MM/yyyy" (also "d/M/yyyy" and ISO "yyyy-MM-dd"); invalid date when neither.
QDate LeerFecha(const QString& texto);
// Today through "dd/MM/yyyy" and back, so it carries no time of day.
QDate Hoy();

// The inch mark that follows a diameter name on screen, character 34.
inline QString MarcaPulgada() { return QStringLiteral("\""); }
