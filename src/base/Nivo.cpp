#include "base/Nivo.h"

#include <QLocale>
#include <QDateTime>
#include <QRegularExpression>
#include <cmath>
#include <limits>

double RoundNivo(double valor, int decimales) {
    if (std::isnan(valor) || std::isinf(valor)) return valor;
    const double escala = std::pow(10.0, decimales);
    const double y = std::fabs(valor) * escala;
    if (y > 9.0e15) return valor;  // beyond the places a double holds
    double entero = std::floor(y);
    const double fraccion = y - entero;
    // Tolerance of a few units in the last place of y.
    const double tolerancia = 4.0 * std::numeric_limits<double>::epsilon() * std::max(1.0, y);
    if (fraccion >= 0.5 - tolerancia) entero += 1.0;
    const double r = entero / escala;
    return valor < 0 ? -r : r;
}

QString LTrim(const QString& s) {
    int i = 0;
    while (i < s.size() && s[i] == QLatin1Char(' ')) ++i;
    return s.mid(i);
}

QString RTrim(const QString& s) {
    int n = s.size();
    while (n > 0 && s[n - 1] == QLatin1Char(' ')) --n;
    return s.left(n);
}

QString Trim(const QString& s) { return LTrim(RTrim(s)); }

QString UCase(const QString& s) { return s.toUpper(); }

Separadores& SeparadoresActuales() {
    static Separadores sep;
    return sep;
}

Separadores SeparadoresDelSistema(const QLocale& locale) {
    // The marks are those the locale writes 1234.56 with, which is why they
    // are learnt at start; they are asked of the locale itself, as many
    // locales leave a four-digit number without a thousands mark.
    Separadores sep;
    const QString decimal = locale.decimalPoint(), miles = locale.groupSeparator();
    if (decimal.size() == 1) sep.decimal = decimal[0];
    if (miles.size() == 1) sep.miles = miles[0];
    else sep.miles = sep.decimal == QLatin1Char(',') ? QLatin1Char('.') : QLatin1Char(',');
    return sep;
}

Separadores SeparadoresDelSistema() { return SeparadoresDelSistema(QLocale::system()); }

QString Formato(double valor, const QString& mascara) {
    return Formato(valor, mascara, SeparadoresActuales());
}

namespace {
// "0", "0.0", "0.00"...: the pictures of the grids, formatted without the
// general parse (a grid of thousands of rows formats millions of cells).
int DecimalesDePicturaSimple(const QString& mascara) {
    if (mascara.isEmpty() || mascara[0] != QLatin1Char('0')) return -1;
    if (mascara.size() == 1) return 0;
    if (mascara.size() < 3 || mascara[1] != QLatin1Char('.')) return -1;
    for (int i = 2; i < mascara.size(); ++i)
        if (mascara[i] != QLatin1Char('0')) return -1;
    return int(mascara.size()) - 2;
}
}  // namespace

QString Formato(double valor, const QString& mascara, const Separadores& sep) {
    if (const int d = DecimalesDePicturaSimple(mascara); d >= 0) {
        const double r = RoundNivo(valor, d);
        QString res = QString::number(std::fabs(r), 'f', d);
        if (d > 0) res[res.size() - d - 1] = sep.decimal;
        bool esCero = true;
        for (QChar c : res)
            if (c.isDigit() && c != QLatin1Char('0')) esCero = false;
        if (r < 0 && !esCero) res.prepend(QLatin1Char('-'));
        return res;
    }
    const int punto = mascara.indexOf(QLatin1Char('.'));
    int decimales = 0;
    if (punto >= 0) {
        for (int i = punto + 1; i < mascara.size() && mascara[i] == QLatin1Char('0'); ++i) ++decimales;
    }
    const QString parteEntera = punto >= 0 ? mascara.left(punto) : mascara;
    const bool miles = parteEntera.contains(QLatin1Char(','));
    // What follows the digits of the picture ("0.00  ", "0.00%") is literal.
    int finDigitos = punto >= 0 ? punto + 1 + decimales : mascara.size();
    if (punto < 0) {
        finDigitos = 0;
        while (finDigitos < mascara.size() &&
               QStringLiteral("#0,").contains(mascara[finDigitos])) ++finDigitos;
    }
    const QString sufijo = mascara.mid(finDigitos);

    const double r = RoundNivo(valor, decimales);
    QString digitos = QString::number(std::fabs(r), 'f', decimales);
    QString ent = digitos, dec;
    const int p = digitos.indexOf(QLatin1Char('.'));
    if (p >= 0) {
        ent = digitos.left(p);
        dec = digitos.mid(p + 1);
    }
    if (miles) {
        for (int i = ent.size() - 3; i > 0; i -= 3) ent.insert(i, sep.miles);
    }
    QString res = ent;
    if (decimales > 0) res += sep.decimal + dec;
    bool esCero = true;
    for (QChar c : digitos)
        if (c.isDigit() && c != QLatin1Char('0')) esCero = false;
    if (r < 0 && !esCero) res.prepend(QLatin1Char('-'));
    return res + sufijo;
}

bool LeerNumero(const QString& texto, double& valor) {
    QString t = Trim(texto);
    if (t.isEmpty()) return false;
    const Separadores& sep = SeparadoresActuales();
    bool ok = false;
    // The session's form first: thousands separators dropped, decimal made a point.
    QString s = t;
    if (sep.miles != sep.decimal) s.remove(sep.miles);
    s.replace(sep.decimal, QLatin1Char('.'));
    valor = s.toDouble(&ok);
    if (ok) return true;
    valor = t.toDouble(&ok);
    return ok;
}

double Val(const QString& texto) {
    static const QRegularExpression re(QStringLiteral("^\\s*([-+]?\\d*\\.?\\d+(?:[eE][-+]?\\d+)?)"));
    const auto m = re.match(texto);
    return m.hasMatch() ? m.captured(1).toDouble() : 0.0;
}

QString FechaTexto(const QDate& d) { return d.toString(QStringLiteral("dd/MM/yyyy")); }

QDate LeerFecha(const QString& texto) {
    const QString t = Trim(texto);
    for (const char* f : {"dd/MM/yyyy", "d/M/yyyy", "yyyy-MM-dd", "yyyy-MM-ddTHH:mm:ss", "yyyy-MM-dd HH:mm:ss"}) {
        const QDate d = f[0] == 'y' && QString::fromLatin1(f).size() > 10
                            ? QDateTime::fromString(t, QString::fromLatin1(f)).date()
                            : QDate::fromString(t, QString::fromLatin1(f));
        if (d.isValid()) return d;
    }
    return QDate();
}

QDate Hoy() { return LeerFecha(FechaTexto(QDate::currentDate())); }
