#include "aqueduct/NumeracionNodos.h"

#include "aqueduct/ProyectoAcueducto.h"
#include "base/MapaNombres.h"
#include "base/Nivo.h"
#include "shell/Sesion.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <vector>

namespace {

// One record of Nodos.Dat, appended to `todo`.
void AgregarRegistroNodo(QByteArray& todo, const QString& nombre, int numero) {
    const qsizetype inicio = todo.size();
    todo.resize(inicio + LargoRegistroNodo, '\0');
    char* r = todo.data() + inicio;
    for (int i = 0; i < LargoNombreNodo; ++i) {
        char c = ' ';
        if (i < nombre.size()) {
            const char16_t u = nombre[i].unicode();
            c = u <= 0xFF ? char(u) : '?';
        }
        r[i] = c;
    }
    r[LargoNombreNodo] = char(numero & 0xFF);
    r[LargoNombreNodo + 1] = char((numero >> 8) & 0xFF);
}

// The scratch file is rewritten whole; a folder that cannot be made leaves
// it unwritten, as nothing reads it back but the numbering itself, which
// keeps the same records in memory.
void EscribirNodosDat(const Sesion& s, const std::vector<QString>& registros) {
    const QString ruta = RutaNodosDat(s);
    QDir().mkpath(QFileInfo(ruta).absolutePath());
    QFile::remove(ruta);
    QFile f(ruta);
    if (!f.open(QIODevice::WriteOnly | QIODevice::Truncate)) return;
    QByteArray todo;
    todo.reserve(qsizetype(registros.size()) * LargoRegistroNodo);
    for (size_t i = 1; i < registros.size(); ++i) AgregarRegistroNodo(todo, registros[i], int(i));
    f.write(todo);
}

void AgregarEtiqueta(ProyectoAcueducto& p, int nodo, const QString& etiqueta) {
    p.TramosConectados[nodo] += 1;
    QString& lista = p.NombreTramos[nodo];
    if (p.TramosConectados[nodo] == 1)
        lista = etiqueta;
    else
        lista.append(u",  ").append(etiqueta);
}

}  // namespace

QString RutaNodosDat(const Sesion& s) { return s.RutaDatos(QStringLiteral("Trabajo/Nodos.Dat")); }

namespace {

// The node of each section end by its exact name, (1, t) at 2t and (2, t)
// at 2t + 1, as the listing found it.
using Extremos = std::vector<int>;

// Lists the nodes and numbers the ends; returns the ends' nodes by exact name.
Extremos Numerar(ProyectoAcueducto& p, const Sesion& s) {
    const int tramos = p.NumeroTramos;
    p.ExtremosTramo.Redim(2, tramos);
    for (int t = 1; t <= tramos; ++t) {
        p.ExtremosTramo(1, t) = p.Inicio[t];
        p.ExtremosTramo(2, t) = p.Final[t];
    }

    // First appearance decides the number; the names are compared exactly.
    p.Nodos.Redim(tramos + 10);
    MapaNombres<int> vistos;
    vistos.reserve(size_t(tramos) + 1);
    std::vector<QString> registros(1);  // record i holds node i; slot 0 unused
    Extremos exactos(2 * (size_t(tramos) + 1));
    // Whether every record, trimmed, is its name: then the match of the
    // ends on the records is the match by exact name already made.
    bool limpios = true;
    int cuenta = 0;
    auto listar = [&](const QString& nombre) {
        const auto [it, nuevo] = vistos.try_emplace(nombre, cuenta + 1);
        if (!nuevo) return it->second;
        p.Nodos[cuenta + 1] = nombre;  // beyond NumeroTramos + 10: error 9
        ++cuenta;
        registros.push_back(nombre.left(LargoNombreNodo));
        limpios = limpios && nombre.size() <= LargoNombreNodo && Trim(nombre).size() == nombre.size();
        return cuenta;
    };
    // The file is opened anew before the first name and takes each record as
    // its node is listed: a numbering that stops leaves the records up to
    // there, not those of an earlier network.
    try {
        listar(p.Inicio[1]);
        for (int t = 1; t <= tramos; ++t) {
            exactos[2 * size_t(t)] = listar(p.ExtremosTramo(1, t));
            exactos[2 * size_t(t) + 1] = listar(p.ExtremosTramo(2, t));
        }
    } catch (const ErrorEjecucion&) {
        EscribirNodosDat(s, registros);
        throw;
    }
    p.NumeroNodosACU = cuenta;
    p.NodosTramo.Redim(2, tramos);
    EscribirNodosDat(s, registros);

    // The ends get the number of the last record whose trimmed name equals
    // theirs; an end no record matches keeps 0.
    if (limpios) {
        for (int t = 1; t <= tramos; ++t)
            for (int e = 1; e <= 2; ++e) p.NodosTramo(e, t) = exactos[2 * size_t(t) + size_t(e) - 1];
        return exactos;
    }
    MapaNombres<int> porRegistro;
    porRegistro.reserve(size_t(cuenta));
    for (int i = 1; i <= cuenta; ++i) porRegistro[Trim(registros[size_t(i)])] = i;
    for (int t = 1; t <= tramos; ++t)
        for (int e = 1; e <= 2; ++e) {
            const auto it = porRegistro.find(Trim(p.ExtremosTramo(e, t)));
            if (it != porRegistro.end()) p.NodosTramo(e, t) = it->second;
        }
    return exactos;
}

// The connections from the ends' nodes by exact name: right after the
// listing the node names are the distinct names of the ends, so the node
// of an end is the one its name was listed as.
void Conectar(ProyectoAcueducto& p, const Extremos& exactos) {
    const int nodos = p.NumeroNodosACU;
    p.TramosConectados.Redim(nodos);
    p.NombreTramos.Redim(nodos);
    for (int t = 1; t <= p.NumeroTramos; ++t) {
        const QString i = Trim(p.Inicio[t]), j = Trim(p.Final[t]);
        AgregarEtiqueta(p, exactos[2 * size_t(t)], i + QLatin1Char('-') + j);
        AgregarEtiqueta(p, exactos[2 * size_t(t) + 1], j + QLatin1Char('-') + i);
    }
}

}  // namespace

void NumerarExtremos(ProyectoAcueducto& p, const Sesion& s) { Numerar(p, s); }

void NumerarYConectar(ProyectoAcueducto& p, const Sesion& s) { Conectar(p, Numerar(p, s)); }

void NumerarNodos(ProyectoAcueducto& p, const Sesion& s) {
    if (p.NumeroTramos == 0) return;
    NumerarYConectar(p, s);
    AcumularConsumos(p);
}

void ConectarNodos(ProyectoAcueducto& p) {
    const int nodos = p.NumeroNodosACU;
    p.TramosConectados.Redim(nodos);
    p.NombreTramos.Redim(nodos);
    // Every node of a name, in node order, as the search over all nodes finds them.
    MapaNombres<std::vector<int>> porNombre;
    porNombre.reserve(size_t(nodos));
    for (int n = 1; n <= nodos; ++n) porNombre[p.Nodos[n]].push_back(n);
    for (int t = 1; t <= p.NumeroTramos; ++t) {
        const QString& i = p.Inicio[t];
        const QString& j = p.Final[t];
        if (const auto it = porNombre.find(i); it != porNombre.end())
            for (int n : it->second) AgregarEtiqueta(p, n, Trim(i) + QLatin1Char('-') + Trim(j));
        if (const auto it = porNombre.find(j); it != porNombre.end())
            for (int n : it->second) AgregarEtiqueta(p, n, Trim(j) + QLatin1Char('-') + Trim(i));
    }
}

void AcumularConsumos(ProyectoAcueducto& p) {
    if (p.OpcionConsumo == 2) return;
    p.ConsumoMedio.Redim(p.NumeroNodosACU);
    if (p.OpcionConsumo != 1) return;
    for (int t = 1; t <= p.NumeroTramos; ++t)
        for (int e = 1; e <= 2; ++e) {
            double& q = p.ConsumoMedio[p.NodosTramo(e, t)];
            q = RoundNivo(q + p.Demanda[t] / 2.0, 3);
        }
}
