#pragma once
// Generated aqueduct networks shaped like real towns, written to .acu files
// through the program's own save so that the command line reads them as an
// engineer's project.
//
// A town grows street by street from its tanks: each tank feeds a long main,
// side streets leave the mains at right angles and lesser streets leave
// those, most of them ending blind as real streets do.  A street whose end
// falls next to another street is sometimes joined to it, which gives the
// few loops of a real network.  One lane in ten is not yet supplied
// (no demand on any of its nodes), the dead-end chain that real networks
// carry for hydrants and future blocks.  The pipes are sized for the demand
// they carry downstream, the ground rolls, and the tanks stand at different
// heads above the highest ground.

#include "aqueduct/ArchivoAcueducto.h"
#include "aqueduct/NumeracionNodos.h"
#include "aqueduct/ProyectoAcueducto.h"
#include "shell/Sesion.h"

#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <cmath>
#include <map>
#include <random>
#include <utility>
#include <vector>

struct NodoRed {
    QString nombre;
    double x = 0, y = 0;    // m, for the ground and for finding neighbours
    double consumo = 0;     // l/s
    double cotaFija = 0;    // m; a tank's head, 0 for an ordinary node
};

struct TramoRed {
    int i = 0, j = 0;       // indices into nodos
    double longitud = 0;    // m
    double diametro = 0.1;  // m
    int c = 120;
};

struct RedGenerada {
    std::vector<NodoRed> nodos;
    std::vector<TramoRed> tramos;
};

// Rolling ground between about 20 and 60 m.
inline double CotaSuelo(double x, double y) {
    return 40.0 + 12.0 * std::sin(x / 900.0) + 8.0 * std::cos(y / 700.0) + 3.0 * std::sin((x + y) / 250.0);
}

// The smallest commercial diameter that carries `litros` l/s at no more than
// 0.8 m/s, never below `minimo`.
inline double DiametroComercial(double litros, double minimo) {
    for (double d : {0.075, 0.1, 0.15, 0.2, 0.25, 0.3, 0.35, 0.4, 0.5, 0.6, 0.8})
        if (d >= minimo && litros / 1000.0 <= 0.8 * M_PI * d * d / 4.0) return d;
    return 1.0;
}

// A town of `secciones` sections fed by `tanques` tanks, in the order an
// engineer types it: street after street as they were laid out.
inline RedGenerada Pueblo(int secciones, int tanques, unsigned semilla) {
    std::mt19937 azar(semilla);
    auto uniforme = [&](double a, double b) { return std::uniform_real_distribution<double>(a, b)(azar); };
    auto entero = [&](int a, int b) { return std::uniform_int_distribution<int>(a, b)(azar); };

    RedGenerada r;
    std::vector<int> padre;  // the node each node was reached from, for sizing
    struct Calle {
        std::vector<int> nodos;
        int nivel, dx, dy;
    };
    std::vector<Calle> calles;
    std::map<std::pair<int, int>, std::vector<int>> celdas;  // nodes by 150 m square
    auto celda = [](double x, double y) { return std::make_pair(int(std::floor(x / 150)), int(std::floor(y / 150))); };
    auto nuevoNodo = [&](double x, double y, int de) {
        r.nodos.push_back({QStringLiteral("N%1").arg(r.nodos.size()), x, y, uniforme(0.002, 0.012), 0});
        padre.push_back(de);
        celdas[celda(x, y)].push_back(int(r.nodos.size()) - 1);
        return int(r.nodos.size()) - 1;
    };
    auto nuevoTramo = [&](int i, int j, double longitud, double diametro) {
        r.tramos.push_back({i, j, std::round(longitud * 100) / 100, diametro, 100 + 10 * entero(0, 4)});
    };

    // The tanks stand 3 km apart, each 4 m above the last, and head a main.
    for (int t = 0; t < tanques; ++t) {
        r.nodos.push_back({QStringLiteral("T%1").arg(t + 1), 3000.0 * t, 0, 0, 90.0 + 4.0 * t});
        padre.push_back(-1);
        calles.push_back({{int(r.nodos.size()) - 1}, 0, 0, 1});
    }
    // Sections per street and least diameter by rank: mains, side streets, lanes.
    const int largo[4] = {60, 25, 12, 6};
    const double minimo[4] = {0.15, 0.1, 0.075, 0.075};
    for (size_t k = 0; int(r.tramos.size()) < secciones; ++k) {
        Calle calle = k < calles.size() ? calles[k] : Calle{};
        if (k >= calles.size()) {
            // A side street leaves a random node of a random street at right angles.
            const Calle& de = calles[size_t(entero(0, int(calles.size()) - 1))];
            const int giro = entero(0, 1) ? 1 : -1;
            calle = {{de.nodos[size_t(entero(de.nodos.size() > 1 ? 1 : 0, int(de.nodos.size()) - 1))]},
                     std::min(de.nivel + 1, 3), -de.dy * giro, de.dx * giro};
        }
        const int tramos = std::max(1, int(largo[calle.nivel] * uniforme(0.5, 1.5)));
        const bool seca = calle.nivel >= 2 && entero(0, 9) == 0;
        for (int s = 0; s < tramos && int(r.tramos.size()) < secciones; ++s) {
            const NodoRed& a = r.nodos[size_t(calle.nodos.back())];
            const double l = uniforme(30, 120);
            const int n = nuevoNodo(a.x + calle.dx * l, a.y + calle.dy * l, calle.nodos.back());
            if (seca) r.nodos[size_t(n)].consumo = 0;
            nuevoTramo(calle.nodos.back(), n, l, minimo[calle.nivel]);
            calle.nodos.push_back(n);
        }
        // One blind end in four is joined to a node of another street nearby.
        const int fin = calle.nodos.back();
        const NodoRed& f = r.nodos[size_t(fin)];
        if (int(r.tramos.size()) < secciones && entero(0, 3) == 0)
            for (int otro : celdas[celda(f.x, f.y)])
                if (std::find(calle.nodos.begin(), calle.nodos.end(), otro) == calle.nodos.end()) {
                    const NodoRed& o = r.nodos[size_t(otro)];
                    nuevoTramo(fin, otro, std::max(10.0, std::hypot(o.x - f.x, o.y - f.y)), 0.1);
                    break;
                }
        if (k < calles.size()) calles[k] = calle;
        else calles.push_back(calle);
    }

    // Sized for the demand downstream of each section along the tree it grew
    // as, never below the least of its street's rank; the joining sections
    // keep 100 mm.
    std::vector<double> aguasAbajo(r.nodos.size());
    for (size_t n = r.nodos.size(); n-- > 0;) {
        aguasAbajo[n] += r.nodos[n].consumo;
        if (padre[n] >= 0) aguasAbajo[size_t(padre[n])] += aguasAbajo[n];
    }
    for (TramoRed& t : r.tramos)
        if (padre[size_t(t.j)] == t.i) t.diametro = DiametroComercial(aguasAbajo[size_t(t.j)], t.diametro);
    return r;
}

// Thousands of houses on one tank, each by its own pipe: one node meets
// every section, which no numbering narrows to a band.
inline RedGenerada Estrella(int secciones, unsigned semilla) {
    std::mt19937 azar(semilla);
    std::uniform_real_distribution<double> u(0, 1);
    RedGenerada r;
    r.nodos.push_back({QStringLiteral("T1"), 0, 0, 0, 80.0});
    for (int k = 1; k <= secciones; ++k) {
        const double angulo = 2 * M_PI * k / secciones, l = 50 + 150 * u(azar);
        r.nodos.push_back({QStringLiteral("N%1").arg(k), l * std::cos(angulo), l * std::sin(angulo),
                           0.005 + 0.02 * u(azar), 0});
        r.tramos.push_back({0, k, std::round(l * 100) / 100, 0.1, 100 + 10 * int(u(azar) * 5)});
    }
    return r;
}

// A hamlet of ten sections: one loop of four blocks and its branches, the
// smallest network the command line is timed on.
inline RedGenerada Aldea() {
    RedGenerada r;
    const char* nombres[] = {"T1", "A", "B", "C", "D", "E", "F", "G", "H", "I"};
    for (int k = 0; k < 10; ++k)
        r.nodos.push_back({QString::fromLatin1(nombres[k]), 100.0 * (k % 4), 100.0 * (k / 4), k ? 0.5 : 0.0,
                           k ? 0.0 : 70.0});
    const int pares[10][2] = {{0, 1}, {1, 2}, {2, 3}, {3, 4}, {4, 1}, {2, 5}, {5, 6}, {3, 7}, {7, 8}, {4, 9}};
    for (auto& p : pares) r.tramos.push_back({p[0], p[1], 100.0, p[0] == 0 ? 0.15 : 0.1, 120});
    return r;
}

// The sections in a scattered order, always the same one.
inline RedGenerada Revuelta(RedGenerada r, unsigned semilla) {
    std::mt19937 azar(semilla);
    std::shuffle(r.tramos.begin(), r.tramos.end(), azar);
    return r;
}

// Writes `r` to `archivo` (a copy of the empty project of the program's
// Imagen/ folder) with SalvarProyectoACU, demands per node, diameters in
// metres.  False with the program's message in `error`.
inline bool EscribirRed(const RedGenerada& r, const QString& archivo, Sesion& s, QString& error) {
    ProyectoAcueducto p;
    ValoresInicialesACU(p, s);
    p.Proyecto = QFileInfo(archivo).baseName();
    p.OpcionConsumo = 2;
    p.OpcionDiametro = 1;
    p.NumeroTramos = int(r.tramos.size());
    p.DimensionarTramos(p.NumeroTramos);
    for (int t = 1; t <= p.NumeroTramos; ++t) {
        const TramoRed& x = r.tramos[size_t(t) - 1];
        p.Inicio[t] = r.nodos[size_t(x.i)].nombre;
        p.Final[t] = r.nodos[size_t(x.j)].nombre;
        p.Longitud[t] = x.longitud;
        p.Diametro[t] = x.diametro;
        p.CoeficienteC[t] = x.c;
    }
    NumerarNodos(p, s);
    p.RedimensionarNodos(p.NumeroNodosACU);
    std::map<QString, const NodoRed*> porNombre;
    for (const NodoRed& n : r.nodos) porNombre[n.nombre] = &n;
    for (int n = 1; n <= p.NumeroNodosACU; ++n) {
        const NodoRed& x = *porNombre.at(p.Nodos[n]);
        p.ConsumoMedio[n] = x.consumo;
        p.CotaTerreno[n] = std::round(CotaSuelo(x.x, x.y) * 100) / 100;
        p.CotaBombaEstanque[n] = x.cotaFija;
    }
    QFile::remove(archivo);
    if (!QFile::copy(s.RutaImagen(QStringLiteral("Malla.nivo")), archivo)) {
        error = QStringLiteral("No se pudo copiar Malla.nivo a ") + archivo;
        return false;
    }
    QFile(archivo).setPermissions(QFile::ReadOwner | QFile::WriteOwner);
    s.ArchivoProyectoACU = archivo;
    return SalvarProyectoACU(p, s, error);
}
