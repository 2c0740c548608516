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
// A typed number, or why the text was refused.
struct NumeroLeido {
    bool valido = false;
    bool ambiguo = false;  // a number, but read two ways
    double valor = 0.0;
    QString motivo;  // names the text and says how to write it
};
// Reads what the engineer meant, whichever mark was typed: a mark followed
// by other than exactly three digits is the decimal; thousands groups are
// taken only when well formed; a lone mark of the locale's decimal kind is
// the decimal; a text still ambiguous ("1,234" with '.' decimals) is
// refused.  Signs, blanks at the ends and an exponent are taken.
NumeroLeido LeerNumeroTecleado(const QString& texto, const Separadores& sep);
// The same with the session's marks, for every number box and cell.
NumeroLeido LeerNumeroTecleado(const QString& texto);
bool LeerNumero(const QString& texto, double& valor);
// A number stored in a file or database, always in plain C form, whatever
// the locale; false when the text is not one.
bool LeerNumeroGuardado(const QString& texto, double& valor);
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
