#include "aqueduct/DatosPlano.h"

#include "aqueduct/CasosDemanda.h"
#include "aqueduct/ProyectoAcueducto.h"
#include "base/Nivo.h"

#include <QJsonArray>
#include <cmath>

std::vector<std::optional<QPointF>> CoordenadasNodos(const ProyectoAcueducto& p) {
    // A node is placed where the engineer put it only with both X and Y;
    // the others are laid out around the placed ones.
    std::vector<std::optional<QPointF>> c(size_t(std::max(int(p.NumeroNodosACU), 0)));
    for (int n = 1; n <= p.NumeroNodosACU; ++n)
        if (p.X.Leer(n) && p.Y.Leer(n)) c[size_t(n - 1)] = QPointF(*p.X.Leer(n), *p.Y.Leer(n));
    return c;
}

DatosPlano PlanoDeProyecto(const ProyectoAcueducto& p, const std::vector<std::optional<QPointF>>& coordenadas) {
    DatosPlano d;
    d.titulo = p.Proyecto;
    d.caso = FilasCasos(p).value(p.CasoDemanda - 1);
    d.decimal = SeparadoresActuales().decimal;
    d.miles = SeparadoresActuales().miles;
    const int nodos = p.NumeroNodosACU;
    d.nodos.resize(size_t(std::max(nodos, 0)));
    for (int n = 1; n <= nodos; ++n) {
        NodoPlano& x = d.nodos[size_t(n - 1)];
        x.nombre = p.Nodos.Leer(n).trimmed();
        if (size_t(n - 1) < coordenadas.size()) x.posicion = coordenadas[size_t(n - 1)];
        x.presion = p.CotaPiezometrica.Leer(n) - p.CotaTerreno.Leer(n);
        x.textoPresion = Formato(x.presion, QStringLiteral("0.00")) + QStringLiteral(" m");
        x.fijo = p.CotaBombaEstanque.Leer(n) != 0.0;
        x.minimo = n == p.NodoMinimo;
        x.maximo = n == p.NodoMaximo;
    }
    const int tramos = p.NumeroTramos;
    d.tramos.resize(size_t(std::max(tramos, 0)));
    for (int t = 1; t <= tramos; ++t) {
        TramoPlano& x = d.tramos[size_t(t - 1)];
        x.numero = t;
        const int i = int(p.NodosTramo.Leer(1, t));
        const int j = int(p.NodosTramo.Leer(2, t));
        x.nodoI = i >= 1 && i <= nodos ? i - 1 : -1;
        x.nodoJ = j >= 1 && j <= nodos ? j - 1 : -1;
        x.longitud = p.Longitud.Leer(t);
        x.caudal = p.Caudal.Leer(t);
        x.velocidad = p.Velocidad.Leer(t);
        x.perdidaUnitaria = PerdidaUnitaria(p, t);
    }
    return d;
}

QJsonObject PlanoComoJson(const DatosPlano& d) {
    QJsonObject o;
    o[QStringLiteral("tipo")] = QStringLiteral("plano");
    o[QStringLiteral("titulo")] = d.titulo;
    o[QStringLiteral("caso")] = d.caso;
    o[QStringLiteral("decimal")] = QString(d.decimal);
    o[QStringLiteral("miles")] = QString(d.miles);
    QJsonArray nodos;
    for (const NodoPlano& n : d.nodos) {
        QJsonObject x{{QStringLiteral("nombre"), n.nombre},
                      {QStringLiteral("presion"), n.presion},
                      {QStringLiteral("textoPresion"), n.textoPresion},
                      {QStringLiteral("fijo"), n.fijo},
                      {QStringLiteral("minimo"), n.minimo},
                      {QStringLiteral("maximo"), n.maximo}};
        if (n.posicion) {
            x[QStringLiteral("x")] = n.posicion->x();
            x[QStringLiteral("y")] = n.posicion->y();
        }
        nodos.append(x);
    }
    o[QStringLiteral("nodos")] = nodos;
    QJsonArray tramos;
    for (const TramoPlano& t : d.tramos)
        tramos.append(QJsonObject{{QStringLiteral("numero"), t.numero},
                                  {QStringLiteral("nodoI"), t.nodoI},
                                  {QStringLiteral("nodoJ"), t.nodoJ},
                                  {QStringLiteral("longitud"), t.longitud},
                                  {QStringLiteral("caudal"), t.caudal},
                                  {QStringLiteral("velocidad"), t.velocidad},
                                  {QStringLiteral("perdidaUnitaria"), t.perdidaUnitaria}});
    o[QStringLiteral("tramos")] = tramos;
    return o;
}

bool PlanoDeJson(const QJsonObject& o, DatosPlano& d, QString& error) {
    if (o.value(QStringLiteral("tipo")).toString() != QLatin1String("plano")) {
        error = QStringLiteral("El archivo no contiene el plano de una red de acueductos.");
        return false;
    }
    if (!o.value(QStringLiteral("nodos")).isArray() || !o.value(QStringLiteral("tramos")).isArray()) {
        error = QStringLiteral("El plano no trae la lista de sus nodos y la de sus tramos.");
        return false;
    }
    d = DatosPlano();
    d.titulo = o.value(QStringLiteral("titulo")).toString();
    d.caso = o.value(QStringLiteral("caso")).toString();
    const QString decimal = o.value(QStringLiteral("decimal")).toString(QStringLiteral("."));
    const QString miles = o.value(QStringLiteral("miles")).toString(QStringLiteral(","));
    d.decimal = decimal.isEmpty() ? QLatin1Char('.') : decimal[0];
    d.miles = miles.isEmpty() ? QLatin1Char(',') : miles[0];
    for (const QJsonValue& v : o.value(QStringLiteral("nodos")).toArray()) {
        const QJsonObject n = v.toObject();
        NodoPlano x;
        x.nombre = n.value(QStringLiteral("nombre")).toString();
        if (n.contains(QStringLiteral("x")) && n.contains(QStringLiteral("y")))
            x.posicion = QPointF(n.value(QStringLiteral("x")).toDouble(), n.value(QStringLiteral("y")).toDouble());
        x.presion = n.value(QStringLiteral("presion")).toDouble();
        x.textoPresion = n.value(QStringLiteral("textoPresion")).toString();
        x.fijo = n.value(QStringLiteral("fijo")).toBool();
        x.minimo = n.value(QStringLiteral("minimo")).toBool();
        x.maximo = n.value(QStringLiteral("maximo")).toBool();
        d.nodos.push_back(x);
    }
    const int nodos = int(d.nodos.size());
    for (const QJsonValue& v : o.value(QStringLiteral("tramos")).toArray()) {
        const QJsonObject t = v.toObject();
        TramoPlano x;
        x.numero = t.value(QStringLiteral("numero")).toInt();
        x.nodoI = t.value(QStringLiteral("nodoI")).toInt(-1);
        x.nodoJ = t.value(QStringLiteral("nodoJ")).toInt(-1);
        x.longitud = t.value(QStringLiteral("longitud")).toDouble();
        x.caudal = t.value(QStringLiteral("caudal")).toDouble();
        x.velocidad = t.value(QStringLiteral("velocidad")).toDouble();
        x.perdidaUnitaria = t.value(QStringLiteral("perdidaUnitaria")).toDouble();
        if (x.nodoI >= nodos || x.nodoJ >= nodos) {
            error = QStringLiteral("El plano nombra un nodo que no existe (tramo %1).").arg(x.numero);
            return false;
        }
        d.tramos.push_back(x);
    }
    return true;
}
