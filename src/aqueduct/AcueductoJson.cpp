#include "aqueduct/AcueductoJson.h"

#include "aqueduct/ArchivoAcueducto.h"
#include "aqueduct/NumeracionNodos.h"
#include "aqueduct/ProyectoAcueducto.h"
#include "model/EscritorJson.h"
#include "model/LectorJson.h"
#include "shell/Sesion.h"
#include "store/Archivos.h"

#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QtNumeric>

namespace {

QJsonObject Generales(const ProyectoAcueducto& p) {
    QJsonObject g;
    g[QStringLiteral("Proyecto")] = p.Proyecto;
    g[QStringLiteral("Ubicacion")] = p.Ubicacion;
    g[QStringLiteral("Calculista")] = p.Calculista;
    g[QStringLiteral("Fecha")] = FechaTexto(p.Fecha);
    g[QStringLiteral("Comentario")] = p.Comentario;
    g[QStringLiteral("OpcionConsumo")] = p.OpcionConsumo;
    g[QStringLiteral("OpcionDiametro")] = p.OpcionDiametro;
    g[QStringLiteral("C")] = int(p.C);
    g[QStringLiteral("CasoPorcentaje")] = p.CasoPorcentaje;
    g[QStringLiteral("DeltaPorcentaje")] = p.DeltaPorcentaje;
    g[QStringLiteral("FactorQMax")] = p.FactorQMax;
    g[QStringLiteral("FactorIncendio")] = p.FactorIncendio;
    g[QStringLiteral("LitrosIncendio")] = p.LitrosIncendio;
    return g;
}

bool LeerGenerales(const QJsonObject& o, ProyectoAcueducto& p, QString& error) {
    LectorJson l(o.value(QStringLiteral("Generales")).toObject(), QStringLiteral("en los datos generales"), error);
    l.Texto("Proyecto", p.Proyecto);
    l.Texto("Ubicacion", p.Ubicacion);
    l.Texto("Calculista", p.Calculista);
    l.Fecha("Fecha", p.Fecha);
    l.Texto("Comentario", p.Comentario);
    l.Entero("OpcionConsumo", p.OpcionConsumo, 1, 2);
    l.Entero("OpcionDiametro", p.OpcionDiametro, 1, 3);
    int c = p.C;
    l.Entero("C", c, 0, 32767);
    p.C = c;
    l.Entero("CasoPorcentaje", p.CasoPorcentaje, 1, 2);
    l.Doble("DeltaPorcentaje", p.DeltaPorcentaje);
    l.Doble("FactorQMax", p.FactorQMax);
    l.Doble("FactorIncendio", p.FactorIncendio);
    l.Doble("LitrosIncendio", p.LitrosIncendio);
    return l.Bien();
}

// A node name of a section end: trimmed, not empty, within the 20
// characters of a node record.
bool NombreExtremo(QString& nombre, int tramo, const char* extremo, QString& error) {
    nombre = Trim(nombre);
    if (nombre.isEmpty())
        error = QStringLiteral("El tramo %1 no tiene nombre de nodo en \"%2\".").arg(tramo).arg(QLatin1String(extremo));
    else if (nombre.size() > LargoNombreNodo)
        error = QStringLiteral("El nombre \"%1\" del tramo %2 tiene más de %3 caracteres.")
                    .arg(nombre)
                    .arg(tramo)
                    .arg(LargoNombreNodo);
    return error.isEmpty();
}

bool LeerTramos(const QJsonArray& tramos, ProyectoAcueducto& p, QString& error) {
    if (!ObjetosDeLista(tramos, 32767, "tramo", "tramos", error)) return false;
    p.NumeroTramos = int(tramos.size());
    p.DimensionarTramos(p.NumeroTramos);
    for (int t = 1; t <= p.NumeroTramos; ++t) {
        LectorJson l(tramos[t - 1].toObject(), QStringLiteral("en el tramo %1").arg(t), error);
        l.Texto("Inicio", p.Inicio[t]);
        l.Texto("Final", p.Final[t]);
        l.Doble("Longitud", p.Longitud[t]);
        l.Doble("Diametro", p.Diametro[t]);
        int c = p.C;
        l.Entero("CoeficienteC", c, 0, 32767);
        p.CoeficienteC[t] = c;
        l.Doble("Demanda", p.Demanda[t]);
        if (!l.Bien() || !NombreExtremo(p.Inicio[t], t, "Inicio", error) ||
            !NombreExtremo(p.Final[t], t, "Final", error))
            return false;
    }
    return true;
}

// An optional coordinate: absent or null is none.
void LeerCoordenada(LectorJson& l, const char* clave, std::optional<double>& destino) {
    double v = qQNaN();
    l.Doble(clave, v);
    if (!qIsNaN(v)) destino = v;
}

// Node data by name onto the nodes the numbering found.
bool LeerNodos(const QJsonArray& nodos, ProyectoAcueducto& p, QString& error) {
    if (!ObjetosDeLista(nodos, 32767, "nodo", "nodos", error)) return false;
    // The numbering dimensions the names wider; the node arrays agree again.
    Arreglo<QString> nombres = p.Nodos;
    p.DimensionarNodos(p.NumeroNodosACU);
    QHash<QString, int> numero;
    for (int n = 1; n <= p.NumeroNodosACU; ++n) {
        p.Nodos[n] = nombres[n];
        numero.insert(p.Nodos[n], n);
    }
    QHash<QString, int> vistos;
    for (int k = 1; k <= nodos.size(); ++k) {
        const QString donde = QStringLiteral("en el nodo %1").arg(k);
        LectorJson l(nodos[k - 1].toObject(), donde, error);
        QString nombre;
        l.Texto("Nodos", nombre);
        if (!l.Bien()) return false;
        nombre = Trim(nombre);
        const int n = numero.value(nombre, 0);
        if (n == 0) {
            error = QStringLiteral("El nodo \"%1\" (%2 de la lista) no es extremo de ningún tramo.").arg(nombre).arg(k);
            return false;
        }
        if (vistos.contains(nombre)) {
            error = QStringLiteral("El nodo \"%1\" aparece dos veces en la lista de nodos.").arg(nombre);
            return false;
        }
        vistos.insert(nombre, k);
        l.Doble("ConsumoMedio", p.ConsumoMedio[n]);
        l.Doble("CotaTerreno", p.CotaTerreno[n]);
        l.Doble("CotaBombaEstanque", p.CotaBombaEstanque[n]);
        LeerCoordenada(l, "X", p.X[n]);
        LeerCoordenada(l, "Y", p.Y[n]);
        if (!l.Bien()) return false;
    }
    return true;
}

QJsonObject TramoJson(const ProyectoAcueducto& p, int t) {
    QJsonObject r;
    r[QStringLiteral("Numero")] = t;
    r[QStringLiteral("Inicio")] = p.Inicio[t];
    r[QStringLiteral("Final")] = p.Final[t];
    r[QStringLiteral("Longitud")] = p.Longitud[t];
    r[QStringLiteral("Diametro")] = p.Diametro[t];
    r[QStringLiteral("CoeficienteC")] = int(p.CoeficienteC[t]);
    return r;
}

QJsonObject NodoJson(const ProyectoAcueducto& p, int n) {
    QJsonObject r;
    r[QStringLiteral("Numero")] = n;
    r[QStringLiteral("Nodos")] = p.Nodos.Leer(n);
    r[QStringLiteral("ConsumoMedio")] = p.ConsumoMedio.Leer(n);
    r[QStringLiteral("CotaTerreno")] = p.CotaTerreno.Leer(n);
    r[QStringLiteral("CotaBombaEstanque")] = p.CotaBombaEstanque.Leer(n);
    if (const auto x = p.X.Leer(n)) r[QStringLiteral("X")] = *x;
    if (const auto y = p.Y.Leer(n)) r[QStringLiteral("Y")] = *y;
    return r;
}

}  // namespace

QJsonObject AcueductoComoJson(const ProyectoAcueducto& p) {
    QJsonObject o;
    o[QStringLiteral("Generales")] = Generales(p);
    o[QStringLiteral("NumeroTramos")] = int(p.NumeroTramos);
    o[QStringLiteral("NumeroNodosACU")] = int(p.NumeroNodosACU);
    QJsonArray tramos, nodos;
    for (int t = 1; t <= p.NumeroTramos; ++t) {
        QJsonObject r = TramoJson(p, t);
        r[QStringLiteral("Demanda")] = p.Demanda[t];
        tramos.append(r);
    }
    for (int n = 1; n <= p.NumeroNodosACU; ++n) nodos.append(NodoJson(p, n));
    o[QStringLiteral("Tramos")] = tramos;
    o[QStringLiteral("Nodos")] = nodos;
    return o;
}

bool AcueductoDesdeJson(const QJsonObject& o, ProyectoAcueducto& p, const Sesion& s, QString& error) {
    error.clear();
    if (!LeerGenerales(o, p, error)) return false;
    const QJsonValue tramos = o.value(QStringLiteral("Tramos"));
    const QJsonValue nodos = o.value(QStringLiteral("Nodos"));
    if (!(tramos.isArray() || tramos.isUndefined()) || !(nodos.isArray() || nodos.isUndefined())) {
        error = QStringLiteral("\"Tramos\" y \"Nodos\" deben ser listas.");
        return false;
    }
    if (!LeerTramos(tramos.toArray(), p, error)) return false;
    try {
        NumerarNodos(p, s);
    } catch (const ErrorEjecucion& e) {
        error = QStringLiteral("Los tramos nombran más nodos distintos de los que admite la red (tramos + 10): ") +
                QString::fromUtf8(e.what());
        return false;
    }
    return LeerNodos(nodos.toArray(), p, error);
}

void EscribirResultadosJson(EscritorJson& j, const ProyectoAcueducto& p, const QString& mensaje) {
    // Members in the order of the project's other JSON output: by name.
    auto pasos = [&](const char* clave, const auto& valores) {
        j.AbrirLista(clave);
        for (const auto v : valores) j.Numero(nullptr, v);
        j.CerrarLista();
    };
    j.AbrirObjeto();
    j.Entero("AnchoBanda", p.AnchoBanda);
    j.Entero("CasoDemanda", p.CasoDemanda);
    // Whether every pass reached the tolerance, and where each one ended.
    j.AbrirObjeto("Convergencia");
    j.Logico("Convergio", !p.SinConvergencia());
    pasos("Desbalance", p.Desbalance);
    pasos("Iteraciones", p.Iteraciones);
    j.CerrarObjeto();
    j.Numero("CotaReferencia", p.CotaReferencia);
    j.Entero("ErrorAnalisis", p.ErrorAnalisis);
    j.Entero("NodoMaximo", p.NodoMaximo);
    j.Entero("NodoMinimo", p.NodoMinimo);
    j.Entero("NumeroNodosACU", p.NumeroNodosACU);
    j.Entero("NumeroTramos", p.NumeroTramos);
    pasos("iteraciones", p.Iteraciones);
    j.Texto("mensaje", mensaje);
    j.AbrirLista("nodos");
    for (int n = 1; n <= p.NumeroNodosACU; ++n) {
        j.AbrirObjeto();
        j.Numero("ConsumoMedio", p.ConsumoMedio.Leer(n));
        j.Numero("CotaBombaEstanque", p.CotaBombaEstanque.Leer(n));
        j.Numero("CotaPiezometrica", p.CotaPiezometrica.Leer(n));
        j.Numero("CotaTerreno", p.CotaTerreno.Leer(n));
        j.Numero("DemandaCalculo", p.DemandaCalculo.Leer(n));
        j.Numero("DemandaReal", p.DemandaReal.Leer(n) * 1000.0);
        j.Texto("Nodos", p.Nodos.Leer(n));
        j.Texto("NombreTramos", p.NombreTramos.Leer(n));
        j.Entero("Numero", n);
        j.Numero("Presion", PresionNodo(p, n));
        j.Entero("TramosConectados", p.TramosConectados.Leer(n));
        j.CerrarObjeto();
    }
    j.CerrarLista();
    j.AbrirLista("tramos");
    for (int t = 1; t <= p.NumeroTramos; ++t) {
        j.AbrirObjeto();
        j.Numero("Caudal", p.Caudal.Leer(t));
        j.Entero("CoeficienteC", p.CoeficienteC[t]);
        j.Numero("Diametro", p.Diametro[t]);
        j.Texto("Final", p.Final[t]);
        j.Numero("HF", PerdidaUnitaria(p, t));
        j.Texto("Inicio", p.Inicio[t]);
        j.Numero("Longitud", p.Longitud[t]);
        j.Numero("LongitudCalculo", p.LongitudCalculo.Leer(t));
        j.AbrirLista("NodosTramo");
        j.Entero(nullptr, p.NodosTramo.Leer(1, t));
        j.Entero(nullptr, p.NodosTramo.Leer(2, t));
        j.CerrarLista();
        j.Entero("Numero", t);
        j.Numero("Perdidas", p.Perdidas.Leer(t));
        j.Numero("Velocidad", p.Velocidad.Leer(t));
        j.CerrarObjeto();
    }
    j.CerrarLista();
    j.CerrarObjeto();
}

bool ExportarAcueducto(const QString& archivo, Sesion& s, QJsonObject& salida, QString& error) {
    ProyectoAcueducto p;
    ValoresInicialesACU(p, s);
    if (!CargarProyectoACU(p, s, archivo, error)) return false;
    salida = AcueductoComoJson(p);
    return true;
}

bool ImportarAcueducto(const QString& json, const QString& destino, Sesion& s, QString& error) {
    if (!DestinoReemplazable(destino, json, error)) return false;
    QJsonObject o;
    if (!LeerObjetoJson(json, o, error)) return false;
    ProyectoAcueducto p;
    ValoresInicialesACU(p, s);
    if (!AcueductoDesdeJson(o, p, s, error)) return false;
    return EscribirDesdePlantilla(s.RutaImagen(QStringLiteral("Malla.nivo")), destino, error,
                                  [&](const QString& temporal, QString& e) {
                                      s.ArchivoProyectoACU = temporal;
                                      const bool ok = SalvarProyectoACU(p, s, e);
                                      s.ArchivoProyectoACU = destino;
                                      return ok;
                                  });
}
