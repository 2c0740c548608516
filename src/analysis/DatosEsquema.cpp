#include "analysis/DatosEsquema.h"

#include "base/Grid.h"
#include "base/Nivo.h"
#include "model/ProyectoEdificio.h"

#include <QHash>
#include <QJsonArray>

namespace {

QString Metros(double v) { return Formato(v, QStringLiteral("0.00")) + QStringLiteral(" m"); }

}  // namespace

DatosEsquema EsquemaDeProyecto(const ProyectoEdificio& p, const Grid* presiones) {
    DatosEsquema e;
    e.titulo = p.Proyecto;
    e.origen = p.OpcionPresionInicial == 2 ? OrigenEsquema::Tanque
               : p.OpcionPresionInicial == 1 ? OrigenEsquema::Suministro
                                             : OrigenEsquema::Bomba;
    if (p.OpcionPresionM) e.textoMaxima = Metros(p.PresionM);
    const int ramales = p.NumeroRamales;
    if (ramales < 1) return e;

    e.nodos.resize(size_t(ramales) + 1);
    e.nodos[0].nombre = p.NodoI.Leer(1);
    for (int k = 1; k <= ramales; ++k) e.nodos[size_t(k)].nombre = p.Nodoj.Leer(k);
    for (int k = 0; k <= ramales; ++k) e.nodos[size_t(k)].cota = p.CotaPiso.Leer(k + 1);
    // The elevated tank stands on branch 1, its height above the next node.
    if (e.origen == OrigenEsquema::Tanque && ramales >= 1)
        e.nodos[0].cota = p.CotaPiso.Leer(2) + std::max(0.0, p.longitudReal.Leer(1));
    for (NodoEsquema& n : e.nodos) n.textoCota = Metros(n.cota);

    // A branch hangs from the first node of that name before it, as the
    // numbering reads the list.
    QHash<QString, int> indice;
    indice.insert(e.nodos[0].nombre, 0);
    e.ramales.reserve(size_t(ramales));
    for (int k = 1; k <= ramales; ++k) {
        RamalEsquema r;
        r.numero = k;
        r.nodoI = indice.value(p.NodoI.Leer(k), -1);
        r.nodoJ = k;
        if (!p.Predimensionado.Leer(k).trimmed().isEmpty()) r.diametro = p.Predimensionado.Leer(k).trimmed() + MarcaPulgada();
        r.gasto = Formato(p.Gasto.Leer(k), QStringLiteral("0.00")) + QStringLiteral(" l/s");
        e.ramales.push_back(r);
        if (!indice.contains(e.nodos[size_t(k)].nombre)) indice.insert(e.nodos[size_t(k)].nombre, k);
    }

    if (!presiones || presiones->Filas() != ramales || presiones->Columnas() < 15) return e;
    // The origin's pressure is the head the sweep started from.
    NodoEsquema& origen = e.nodos[0];
    origen.conPresion = true;
    origen.presion = p.PresionNodo.Leer(p.NodoNumI.Leer(1));
    origen.textoPresion = Metros(origen.presion);
    for (int k = 1; k <= ramales; ++k) {
        NodoEsquema& n = e.nodos[size_t(k)];
        n.conPresion = true;
        n.presion = presiones->Valor(k, 15);
        n.textoPresion = presiones->Texto(k, 15) + QStringLiteral(" m");
        n.sobreMaxima = p.OpcionPresionM && n.presion > p.PresionM;
        n.desfavorable = p.NodoNumJ.Leer(k) == p.NodoDesfaborable && p.NodoDesfaborable > 0;
    }
    return e;
}

QJsonObject EsquemaComoJson(const DatosEsquema& e) {
    QJsonObject o;
    o[QStringLiteral("tipo")] = QStringLiteral("esquema");
    o[QStringLiteral("titulo")] = e.titulo;
    o[QStringLiteral("origen")] = int(e.origen);
    o[QStringLiteral("textoMaxima")] = e.textoMaxima;
    QJsonArray nodos;
    for (const NodoEsquema& n : e.nodos)
        nodos.append(QJsonObject{{QStringLiteral("nombre"), n.nombre},
                                 {QStringLiteral("cota"), n.cota},
                                 {QStringLiteral("textoCota"), n.textoCota},
                                 {QStringLiteral("conPresion"), n.conPresion},
                                 {QStringLiteral("presion"), n.presion},
                                 {QStringLiteral("textoPresion"), n.textoPresion},
                                 {QStringLiteral("desfavorable"), n.desfavorable},
                                 {QStringLiteral("sobreMaxima"), n.sobreMaxima}});
    o[QStringLiteral("nodos")] = nodos;
    QJsonArray ramales;
    for (const RamalEsquema& r : e.ramales)
        ramales.append(QJsonObject{{QStringLiteral("numero"), r.numero},
                                   {QStringLiteral("nodoI"), r.nodoI},
                                   {QStringLiteral("nodoJ"), r.nodoJ},
                                   {QStringLiteral("diametro"), r.diametro},
                                   {QStringLiteral("gasto"), r.gasto}});
    o[QStringLiteral("ramales")] = ramales;
    return o;
}

bool EsquemaDeJson(const QJsonObject& o, DatosEsquema& e, QString& error) {
    if (o.value(QStringLiteral("tipo")).toString() != QLatin1String("esquema")) {
        error = QStringLiteral("El archivo no contiene el esquema de una red de edificio.");
        return false;
    }
    if (!o.value(QStringLiteral("nodos")).isArray() || !o.value(QStringLiteral("ramales")).isArray()) {
        error = QStringLiteral("El esquema no trae la lista de sus nodos y la de sus ramales.");
        return false;
    }
    e = DatosEsquema();
    e.titulo = o.value(QStringLiteral("titulo")).toString();
    e.origen = OrigenEsquema(std::clamp(o.value(QStringLiteral("origen")).toInt(), 0, 2));
    e.textoMaxima = o.value(QStringLiteral("textoMaxima")).toString();
    for (const QJsonValue& v : o.value(QStringLiteral("nodos")).toArray()) {
        const QJsonObject n = v.toObject();
        NodoEsquema x;
        x.nombre = n.value(QStringLiteral("nombre")).toString();
        x.cota = n.value(QStringLiteral("cota")).toDouble();
        x.textoCota = n.value(QStringLiteral("textoCota")).toString();
        x.conPresion = n.value(QStringLiteral("conPresion")).toBool();
        x.presion = n.value(QStringLiteral("presion")).toDouble();
        x.textoPresion = n.value(QStringLiteral("textoPresion")).toString();
        x.desfavorable = n.value(QStringLiteral("desfavorable")).toBool();
        x.sobreMaxima = n.value(QStringLiteral("sobreMaxima")).toBool();
        e.nodos.push_back(x);
    }
    const int nodos = int(e.nodos.size());
    for (const QJsonValue& v : o.value(QStringLiteral("ramales")).toArray()) {
        const QJsonObject r = v.toObject();
        RamalEsquema x;
        x.numero = r.value(QStringLiteral("numero")).toInt();
        x.nodoI = r.value(QStringLiteral("nodoI")).toInt(-1);
        x.nodoJ = r.value(QStringLiteral("nodoJ")).toInt(-1);
        x.diametro = r.value(QStringLiteral("diametro")).toString();
        x.gasto = r.value(QStringLiteral("gasto")).toString();
        if (x.nodoJ < 0 || x.nodoJ >= nodos || x.nodoI >= nodos) {
            error = QStringLiteral("El esquema nombra un nodo que no existe (ramal %1).").arg(x.numero);
            return false;
        }
        e.ramales.push_back(x);
    }
    return true;
}
