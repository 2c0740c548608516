#include "RedPrueba.h"

#include "aqueduct/ArchivoAcueducto.h"
#include "aqueduct/NumeracionNodos.h"
#include "support/Apoyo.h"

#include <gtest/gtest.h>

#include <cmath>

ProyectoAcueducto Red(const std::vector<TramoPrueba>& tramos, const std::vector<NodoPrueba>& nodos,
                      const Sesion& s) {
    ProyectoAcueducto p;
    p.OpcionConsumo = 2;
    p.CasoPorcentaje = 2;
    p.NumeroTramos = int(tramos.size());
    p.DimensionarTramos(p.NumeroTramos);
    for (int t = 1; t <= p.NumeroTramos; ++t) {
        const TramoPrueba& x = tramos[size_t(t) - 1];
        p.Inicio[t] = x.i;
        p.Final[t] = x.j;
        p.Longitud[t] = x.longitud;
        p.Diametro[t] = x.diametro;
        p.CoeficienteC[t] = x.c;
        p.Demanda[t] = x.demanda;
    }
    NumerarNodos(p, s);
    const int n = p.NumeroNodosACU;
    p.ConsumoMedio.RedimPreserve(n);
    p.CotaTerreno.Redim(n);
    p.CotaBombaEstanque.Redim(n);
    p.X.Redim(n);
    p.Y.Redim(n);
    for (const NodoPrueba& x : nodos) {
        const int k = Nodo(p, x.nombre);
        p.ConsumoMedio[k] = x.consumo;
        p.CotaTerreno[k] = x.terreno;
        p.CotaBombaEstanque[k] = x.tanque;
    }
    return p;
}

int Nodo(const ProyectoAcueducto& p, const QString& nombre) {
    for (int n = 1; n <= p.NumeroNodosACU; ++n)
        if (p.Nodos[n] == nombre) return n;
    return 0;
}

double Hf(double litros, double longitud, double diametro, double c) {
    return 10.675 * longitud * std::pow(litros / 1000.0, 1.852) / (std::pow(c, 1.852) * std::pow(diametro, 4.8704));
}

ProyectoAcueducto EnArchivo(const ProyectoAcueducto& red, SesionPrueba& sp, const QString& nombre) {
    ProyectoAcueducto p = red;
    sp.s.ArchivoProyectoACU = sp.AcueductoEnBlanco(nombre);
    QString error;
    if (!SalvarProyectoACU(p, sp.s, error)) ADD_FAILURE() << error.toStdString();
    ProyectoAcueducto q;
    if (!CargarProyectoACU(q, sp.s, sp.s.ArchivoProyectoACU, error)) ADD_FAILURE() << error.toStdString();
    return q;
}
