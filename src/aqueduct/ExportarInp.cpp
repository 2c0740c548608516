#include "aqueduct/ExportarInp.h"

#include "aqueduct/ArchivoAcueducto.h"
#include "aqueduct/ProyectoAcueducto.h"
#include "base/Nivo.h"
#include "shell/Sesion.h"

#include <QFileInfo>
#include <QLocale>
#include <QSaveFile>
#include <QSet>
#include <QTextStream>

namespace {

constexpr int LargoIdentificador = 31;

// Plain C form, shortest digits that read back the same; values converted
// here are first rounded to 6 decimals, below any stored precision, so
// that 0.153 m is written 153 mm and not 153.00000000000003.
QString Num(double v) {
    if (v == 0.0) v = 0.0;  // no "-0"
    return QString::number(v, 'f', QLocale::FloatingPointShortest);
}
QString Convertido(double v) { return Num(RoundNivo(v, 6)); }

double DiametroMm(const ProyectoAcueducto& p, int t) { return DiametroMetros(p, t) * 1000.0; }

// The design length the solver takes: the added percentage included.
double LongitudDiseno(const ProyectoAcueducto& p, int t) {
    const double l = p.Longitud[t];
    return p.CasoPorcentaje == 1 ? RoundNivo(l + p.DeltaPorcentaje * l / 100.0, 2) : RoundNivo(l, 2);
}

QString UnaLinea(QString t) { return t.replace(QLatin1Char('\r'), QLatin1Char(' ')).replace(QLatin1Char('\n'), QLatin1Char(' ')); }

void Generales(QTextStream& o, const ProyectoAcueducto& p) {
    o << "[TITLE]\n";
    if (!Trim(p.Proyecto).isEmpty()) o << UnaLinea(p.Proyecto).left(79) << '\n';
    auto campo = [&](const char* n, const QString& v) { o << ";Fontaria " << n << '=' << UnaLinea(v) << '\n'; };
    campo("Proyecto", p.Proyecto);
    campo("Ubicacion", p.Ubicacion);
    campo("Calculista", p.Calculista);
    campo("Fecha", FechaTexto(p.Fecha));
    campo("Comentario", p.Comentario);
    campo("OpcionConsumo", QString::number(p.OpcionConsumo));
    campo("OpcionDiametro", QString::number(p.OpcionDiametro));
    campo("C", QString::number(int(p.C)));
    campo("CasoPorcentaje", QString::number(p.CasoPorcentaje));
    campo("DeltaPorcentaje", Num(p.DeltaPorcentaje));
    campo("FactorQMax", Num(p.FactorQMax));
    campo("FactorIncendio", Num(p.FactorIncendio));
    campo("LitrosIncendio", Num(p.LitrosIncendio));
}

// The comment of a line: the fields the format has no place for, the name
// last since it may hold blanks.
QString Comentario(const QStringList& campos, const QString& nombre, const QString& id) {
    QStringList c = campos;
    if (nombre != id) c << QStringLiteral("Nombre=") + nombre;
    return c.isEmpty() ? QString() : QStringLiteral("\t;Fontaria ") + c.join(QLatin1Char(' '));
}

// A node with X but no Y, or Y but no X, has no line in [COORDINATES].
QStringList CoordenadaSola(const ProyectoAcueducto& p, int n) {
    const auto x = p.X.Leer(n), y = p.Y.Leer(n);
    if (x && !y) return {QStringLiteral("X=") + Num(*x)};
    if (y && !x) return {QStringLiteral("Y=") + Num(*y)};
    return {};
}

}  // namespace

QStringList NombresValidos(const QStringList& nombres, int largo, bool identificador, const QString& que,
                           QStringList& informe) {
    QStringList res;
    QSet<QString> usados;
    auto clave = [&](const QString& n) { return identificador ? n.toUpper() : n; };
    for (int k = 0; k < nombres.size(); ++k) {
        QString n = Trim(nombres[k]);
        if (identificador)
            for (QChar& c : n)
                if (c.isSpace() || c == QLatin1Char(';') || c == QLatin1Char('"')) c = QLatin1Char('_');
        if (n.isEmpty()) n = QStringLiteral("N%1").arg(k + 1);
        n = n.left(largo);
        const QString base = n;
        for (int i = 2; usados.contains(clave(n)); ++i) {
            const QString sufijo = QStringLiteral("~%1").arg(i);
            n = base.left(largo - sufijo.size()) + sufijo;
        }
        usados.insert(clave(n));
        if (n != nombres[k])
            informe << QStringLiteral("%1 «%2» → «%3»").arg(que, nombres[k], n);
        res << n;
    }
    return res;
}

QString TextoInp(const ProyectoAcueducto& p, QStringList& informe) {
    QString texto;
    QTextStream o(&texto);
    Generales(o, p);

    QStringList nombres;
    for (int n = 1; n <= p.NumeroNodosACU; ++n) nombres << p.Nodos.Leer(n);
    const QStringList ids = NombresValidos(nombres, LargoIdentificador, true, QStringLiteral("Nodo"), informe);
    auto id = [&](const QString& nombre) {
        const int k = int(nombres.indexOf(Trim(nombre)));
        return k >= 0 ? ids[k] : nombre;
    };

    int fijos = 0;
    o << "\n[JUNCTIONS]\n;ID\tElev\tDemand\n";
    for (int n = 1; n <= p.NumeroNodosACU; ++n) {
        const double tanque = p.CotaBombaEstanque.Leer(n);
        if (tanque > 0) {
            ++fijos;
            continue;
        }
        QStringList extra = CoordenadaSola(p, n);
        if (tanque != 0) extra << QStringLiteral("CotaBombaEstanque=") + Num(tanque);
        o << ids[n - 1] << '\t' << Num(p.CotaTerreno.Leer(n)) << '\t' << Num(p.ConsumoMedio.Leer(n))
          << Comentario(extra, nombres[n - 1], ids[n - 1]) << '\n';
    }
    // A fixed head is a reservoir; its terrain level and demand, which the
    // format does not give a reservoir, ride in the comment.
    o << "\n[RESERVOIRS]\n;ID\tHead\n";
    for (int n = 1; n <= p.NumeroNodosACU; ++n) {
        if (!(p.CotaBombaEstanque.Leer(n) > 0)) continue;
        const QStringList extra = CoordenadaSola(p, n) + QStringList{
                                      QStringLiteral("CotaTerreno=") + Num(p.CotaTerreno.Leer(n)),
                                      QStringLiteral("ConsumoMedio=") + Num(p.ConsumoMedio.Leer(n))};
        o << ids[n - 1] << '\t' << Num(p.CotaBombaEstanque.Leer(n)) << Comentario(extra, nombres[n - 1], ids[n - 1])
          << '\n';
    }
    if (fijos == 0)
        informe << QStringLiteral("La red no tiene ningún nivel fijo (bomba o estanque): el otro programa no la "
                                  "podrá resolver.");

    o << "\n[PIPES]\n;ID\tNode1\tNode2\tLength\tDiameter\tRoughness\tMinorLoss\tStatus\n";
    for (int t = 1; t <= p.NumeroTramos; ++t) {
        QStringList extra;
        const double diseno = LongitudDiseno(p, t);
        if (diseno != RoundNivo(p.Longitud[t], 2)) extra << QStringLiteral("Longitud=") + Num(RoundNivo(p.Longitud[t], 2));
        if (p.Demanda[t] != 0) extra << QStringLiteral("Demanda=") + Num(RoundNivo(p.Demanda[t], 3));
        o << t << '\t' << id(p.Inicio[t]) << '\t' << id(p.Final[t]) << '\t' << Num(diseno) << '\t'
          << Convertido(DiametroMm(p, t)) << '\t' << int(p.CoeficienteC[t]) << "\t0\tOpen"
          << Comentario(extra, QString(), QString()) << '\n';
        if (!(p.Longitud[t] > 0) || !(p.Diametro[t] > 0) || p.CoeficienteC[t] <= 0)
            informe << QStringLiteral("El tramo %1 tiene longitud, diámetro o coeficiente C no positivo: el otro "
                                      "programa lo rechazará.")
                           .arg(t);
        if (Trim(p.Inicio[t]) == Trim(p.Final[t]))
            informe << QStringLiteral("El tramo %1 une el nodo «%2» consigo mismo: el otro programa lo rechazará.")
                           .arg(t)
                           .arg(Trim(p.Inicio[t]));
    }

    bool coordenadas = false;
    for (int n = 1; n <= p.NumeroNodosACU && !coordenadas; ++n) coordenadas = p.X.Leer(n) && p.Y.Leer(n);
    if (coordenadas) {
        o << "\n[COORDINATES]\n;Node\tX-Coord\tY-Coord\n";
        for (int n = 1; n <= p.NumeroNodosACU; ++n)
            if (p.X.Leer(n) && p.Y.Leer(n)) o << ids[n - 1] << '\t' << Num(*p.X[n]) << '\t' << Num(*p.Y[n]) << '\n';
        o << "\n[BACKDROP]\nUNITS\tMETERS\n";
    }
    // One period: no duration, no patterns.
    o << "\n[TIMES]\nDURATION\t0\n\n[OPTIONS]\nUNITS\tLPS\nHEADLOSS\tH-W\n\n[END]\n";
    return texto;
}

bool EscribirInp(const ProyectoAcueducto& p, const QString& inp, QStringList& informe, QString& error) {
    const QString texto = TextoInp(p, informe);
    QSaveFile f(inp);
    if (!f.open(QIODevice::WriteOnly | QIODevice::Text) || f.write(texto.toUtf8()) < 0 || !f.commit()) {
        error = QStringLiteral("No se pudo escribir el archivo ") + QFileInfo(inp).fileName() + QStringLiteral(": ") +
                f.errorString();
        return false;
    }
    return true;
}

bool ExportarInp(const QString& acu, const QString& inp, Sesion& s, QStringList& informe, QString& error) {
    ProyectoAcueducto p;
    ValoresInicialesACU(p, s);
    if (!CargarProyectoACU(p, s, acu, error)) return false;
    return EscribirInp(p, inp, informe, error);
}
