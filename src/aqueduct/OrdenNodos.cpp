// The reverse Cuthill-McKee order of the nodes of a network, for the band of
// the solve when the numbering the sections give is wide.

#include "aqueduct/ProyectoAcueducto.h"
#include "aqueduct/SolverMalla.h"

#include <algorithm>
#include <cstdlib>

namespace {

// The neighbours of each node in compressed rows, each row by rising degree.
struct Vecinos {
    std::vector<int> inicio;  // row of node n: lista[inicio[n] .. inicio[n+1])
    std::vector<int> lista;
    std::vector<int> grado;
};

Vecinos Adyacencia(const ProyectoAcueducto& p) {
    const int nodos = p.NumeroNodosACU;
    Vecinos v;
    v.grado.assign(size_t(nodos) + 1, 0);
    std::vector<std::pair<int, int>> pares;
    pares.reserve(size_t(p.NumeroTramos) * 2);
    for (int s = 1; s <= p.NumeroTramos; ++s) {
        const int i = p.NodosTramo(1, s), j = p.NodosTramo(2, s);
        if (i < 1 || j < 1 || i == j || i > nodos || j > nodos) continue;
        pares.emplace_back(i, j);
        pares.emplace_back(j, i);
    }
    std::sort(pares.begin(), pares.end());
    pares.erase(std::unique(pares.begin(), pares.end()), pares.end());
    v.inicio.assign(size_t(nodos) + 2, 0);
    for (const auto& [a, b] : pares) ++v.inicio[size_t(a) + 1];
    for (int n = 1; n <= nodos + 1; ++n) v.inicio[size_t(n)] += v.inicio[size_t(n) - 1];
    v.lista.resize(pares.size());
    for (size_t k = 0; k < pares.size(); ++k) v.lista[k] = pares[k].second;
    for (int n = 1; n <= nodos; ++n) v.grado[size_t(n)] = v.inicio[size_t(n) + 1] - v.inicio[size_t(n)];
    for (int n = 1; n <= nodos; ++n)
        std::stable_sort(v.lista.begin() + v.inicio[size_t(n)], v.lista.begin() + v.inicio[size_t(n) + 1],
                         [&](int a, int b) { return v.grado[size_t(a)] < v.grado[size_t(b)]; });
    return v;
}

// Breadth-first levels from `raiz` over the unplaced nodes: the nodes in
// visiting order, and the depth of the last level.
int Niveles(const Vecinos& v, int raiz, const std::vector<char>& colocado, std::vector<int>& marca, int sello,
            std::vector<int>& recorrido, std::vector<int>& nivel) {
    recorrido.clear();
    recorrido.push_back(raiz);
    marca[size_t(raiz)] = sello;
    nivel[size_t(raiz)] = 0;
    for (size_t k = 0; k < recorrido.size(); ++k) {
        const int u = recorrido[k];
        for (int r = v.inicio[size_t(u)]; r < v.inicio[size_t(u) + 1]; ++r) {
            const int w = v.lista[size_t(r)];
            if (colocado[size_t(w)] || marca[size_t(w)] == sello) continue;
            marca[size_t(w)] = sello;
            nivel[size_t(w)] = nivel[size_t(u)] + 1;
            recorrido.push_back(w);
        }
    }
    return nivel[size_t(recorrido.back())];
}

}  // namespace

OrdenNodos OrdenCuthillMcKee(const ProyectoAcueducto& p) {
    const int nodos = p.NumeroNodosACU;
    const Vecinos v = Adyacencia(p);
    std::vector<char> colocado(size_t(nodos) + 1, 0);
    std::vector<int> marca(size_t(nodos) + 1, 0), nivel(size_t(nodos) + 1, 0), recorrido;
    std::vector<int> secuencia;
    secuencia.reserve(size_t(nodos));
    int sello = 0;
    for (int inicio = 1; inicio <= nodos; ++inicio) {
        if (colocado[size_t(inicio)]) continue;
        // A pseudo-peripheral start: walk to the far end of the level
        // structure while it grows deeper.
        int raiz = inicio;
        int profundidad = Niveles(v, raiz, colocado, marca, ++sello, recorrido, nivel);
        for (int intento = 0; intento < 8; ++intento) {
            int candidato = raiz;
            for (auto it = recorrido.rbegin(); it != recorrido.rend() && nivel[size_t(*it)] == profundidad; ++it)
                if (candidato == raiz || v.grado[size_t(*it)] < v.grado[size_t(candidato)]) candidato = *it;
            if (candidato == raiz) break;
            const int nueva = Niveles(v, candidato, colocado, marca, ++sello, recorrido, nivel);
            if (nueva <= profundidad) break;
            raiz = candidato;
            profundidad = nueva;
        }
        // Cuthill-McKee from it: neighbours by rising degree.
        const size_t primero = secuencia.size();
        secuencia.push_back(raiz);
        colocado[size_t(raiz)] = 1;
        for (size_t k = primero; k < secuencia.size(); ++k) {
            const int u = secuencia[k];
            for (int r = v.inicio[size_t(u)]; r < v.inicio[size_t(u) + 1]; ++r) {
                const int w = v.lista[size_t(r)];
                if (colocado[size_t(w)]) continue;
                colocado[size_t(w)] = 1;
                secuencia.push_back(w);
            }
        }
    }
    std::reverse(secuencia.begin(), secuencia.end());

    OrdenNodos o;
    o.orden.assign(size_t(nodos) + 1, 0);
    for (size_t k = 0; k < secuencia.size(); ++k) o.orden[size_t(secuencia[k])] = int(k) + 1;
    int mayor = 0;
    for (int s = 1; s <= p.NumeroTramos; ++s) {
        const int i = p.NodosTramo(1, s), j = p.NodosTramo(2, s);
        const int oi = i >= 0 && i <= nodos ? o.orden[size_t(i)] : i;
        const int oj = j >= 0 && j <= nodos ? o.orden[size_t(j)] : j;
        mayor = std::max(mayor, std::abs(oi - oj));
    }
    o.ancho = mayor + 1;
    return o;
}
