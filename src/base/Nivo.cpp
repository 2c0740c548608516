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

namespace {

bool EsCifra(QChar c) { return c >= QLatin1Char('0') && c <= QLatin1Char('9'); }
bool PuedeSerDecimal(QChar c, const Separadores& sep) {
    return c == QLatin1Char('.') || c == QLatin1Char(',') || c == sep.decimal;
}
bool PuedeSerMiles(QChar c, const Separadores& sep) {
    return c == QLatin1Char('.') || c == QLatin1Char(',') || c == sep.miles;
}
// A first group of thousands: one to three digits, not led by a zero.
bool GrupoInicial(const QString& g) { return g.size() >= 1 && g.size() <= 3 && g[0] != QLatin1Char('0'); }

// How a number is written under the session's marks, the tail of every refusal.
QString ComoEscribirlo(const Separadores& sep) {
    return QStringLiteral("escríbalo con \"%1\" como separador decimal, por ejemplo 1234").arg(sep.decimal) +
           sep.decimal + QStringLiteral("5.");
}

NumeroLeido Rechazo(const QString& motivo) {
    NumeroLeido r;
    r.motivo = motivo;
    return r;
}

NumeroLeido NoEsNumero(const QString& texto, const Separadores& sep) {
    return Rechazo(QStringLiteral("\"%1\" no es un número: ").arg(texto) + ComoEscribirlo(sep));
}

}  // namespace

NumeroLeido LeerNumeroTecleado(const QString& texto, const Separadores& sep) {
    const QString t = texto.trimmed();
    if (t.isEmpty()) return Rechazo(QStringLiteral("Falta el número: ") + ComoEscribirlo(sep));
    int i = 0;
    const bool negativo = t[0] == QLatin1Char('-');
    if (negativo || t[0] == QLatin1Char('+')) ++i;
    // Digit runs between single marks, then an exponent to the end.
    QStringList grupos{QString()};
    QString marcas;
    for (; i < t.size(); ++i) {
        const QChar c = t[i];
        if (EsCifra(c)) {
            grupos.last() += c;
        } else if (PuedeSerDecimal(c, sep) || PuedeSerMiles(c, sep)) {
            marcas += c;
            grupos << QString();
        } else {
            break;
        }
    }
    QString exponente = t.mid(i);
    static const QRegularExpression formaExponente(QStringLiteral("^[eE][-+]?[0-9]+$"));
    if (!exponente.isEmpty() && !formaExponente.match(exponente).hasMatch()) return NoEsNumero(t, sep);
    if (grupos.join(QString()).isEmpty()) return NoEsNumero(t, sep);
    for (int g = 1; g + 1 < grupos.size(); ++g)
        if (grupos[g].isEmpty()) return NoEsNumero(t, sep);  // two marks in a row

    QString entero, fraccion;
    const int k = marcas.size();
    if (k == 0) {
        entero = grupos[0];
    } else if (k == 1) {
        const QChar m = marcas[0];
        const bool miles = PuedeSerMiles(m, sep) && GrupoInicial(grupos[0]) && grupos[1].size() == 3;
        const bool decimal = PuedeSerDecimal(m, sep) && (!miles || m == sep.decimal);
        if (miles && !decimal && PuedeSerDecimal(m, sep)) {
            // "1,234" under '.' decimals: a thousand or a decimal alike.
            const QString signo = negativo ? QStringLiteral("-") : QString();
            const QString comoMiles = signo + grupos[0] + grupos[1] + exponente;
            const QString comoDecimal = signo + grupos[0] + sep.decimal + grupos[1] + exponente;
            NumeroLeido r = Rechazo(QStringLiteral("El número \"%1\" puede leerse como %2 o como %3: escríbalo sin "
                                                   "separador de miles (%2) o con \"%4\" como separador decimal (%3).")
                                        .arg(t, comoMiles, comoDecimal, QString(sep.decimal)));
            r.ambiguo = true;
            return r;
        }
        if (decimal) {
            entero = grupos[0];
            fraccion = grupos[1];
        } else if (miles) {
            entero = grupos[0] + grupos[1];
        } else {
            return NoEsNumero(t, sep);
        }
    } else {
        // Groups of three after a first of one to three, all with one mark,
        // and perhaps a decimal mark of the other kind after them.
        const QChar m = marcas[0];
        const bool conDecimal = marcas[k - 1] != m;
        const int separadores = conDecimal ? k - 1 : k;
        bool bien = PuedeSerMiles(m, sep) && GrupoInicial(grupos[0]) &&
                    (!conDecimal || PuedeSerDecimal(marcas[k - 1], sep));
        for (int g = 1; bien && g <= separadores; ++g) bien = marcas[g - 1] == m && grupos[g].size() == 3;
        if (!bien) return NoEsNumero(t, sep);
        for (int g = 0; g <= separadores; ++g) entero += grupos[g];
        if (conDecimal) fraccion = grupos[k];
    }
    QString forma = (negativo ? QStringLiteral("-") : QString()) + (entero.isEmpty() ? QStringLiteral("0") : entero);
    if (!fraccion.isEmpty()) forma += QLatin1Char('.') + fraccion;
    forma += exponente;
    bool ok = false;
    const double v = forma.toDouble(&ok);
    if (!ok || !std::isfinite(v)) return NoEsNumero(t, sep);
    NumeroLeido r;
    r.valido = true;
    r.valor = v;
    return r;
}

NumeroLeido LeerNumeroTecleado(const QString& texto) { return LeerNumeroTecleado(texto, SeparadoresActuales()); }

bool LeerNumero(const QString& texto, double& valor) {
    const NumeroLeido r = LeerNumeroTecleado(texto);
    if (r.valido) valor = r.valor;
    return r.valido;
}

bool LeerNumeroGuardado(const QString& texto, double& valor) {
    bool ok = false;
    const double v = texto.trimmed().toDouble(&ok);
    if (!ok || !std::isfinite(v)) return false;
    valor = v;
    return true;
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
