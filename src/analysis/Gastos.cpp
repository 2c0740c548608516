#include "analysis/Gastos.h"

#include "base/Nivo.h"
#include "model/ProyectoEdificio.h"

#include <cmath>

namespace {

// Coefficients a0..a6 of the pieces of both curves.
const double FilaA[7] = {0.2549759, 0.02542225, 0.0006287856, -1.77858e-05, 1.915336e-07, -9.413808e-10, 1.744999e-12};
const double FilaB[7] = {3.5536, -0.009594256, 9.145135e-05, -1.750728e-07, 1.602355e-10, -6.409502e-14, 6.860526e-18};
const double FilaC[7] = {307.295040162, -1.572254,    0.003383075, -3.807095e-06,
                         2.378549e-09,  -7.834881e-13, 1.063943e-16};
const double FilaD[7] = {52.6541133882, -0.07953178,   6.232776e-05, -2.104892e-08,
                         3.071441e-12,  -6.234648e-17, -1.777275e-20};
const double FilaE[7] = {1.2563880983,   0.05403809561,   -0.00036134135627, 1.011045232e-06,
                         5.882365365e-09, -4.442255626e-11, 7.404361841e-14};
const double FilaF[7] = {-0.662751136481,    0.05293935505,      -0.000153833126538, 2.7338020724e-07,
                         -2.58904012321e-10, 1.22957244186e-13, -2.2762776791e-17};
const double FilaG[7] = {-15.9858451549,   0.066321014968,    -6.4123178437e-05, 3.6262313945e-08,
                         -1.126777693e-11, 1.81787714982e-15, -1.1884308756e-19};

double Lineal(double x) { return (515.0 + 0.3 * x) / 50.0; }

double CurvaTanque(double x, bool diametroMinimo) {
    if (x < 3.0) x = 3.0;
    if (diametroMinimo && x < 4.34) x = 4.34;
    if (x <= 5.0) return 0.38 - 0.15 * x + 0.03 * std::pow(x, 2.0);
    if (x <= 170.0) return Polinomio6(FilaA, x) + 0.03;
    if (x <= 800.0) return Polinomio6(FilaB, x);  // this piece alone adds nothing
    if (x <= 1650.0) return Polinomio6(FilaC, x) + 0.03;
    if (x < 4100.0) return Polinomio6(FilaD, x) + 0.03;
    return Lineal(x);
}

double CurvaValvula(double x) {
    if (x < 5.0) x = 5.0;
    if (x <= 200.0) return Polinomio6(FilaE, x) + 0.01;
    if (x <= 1200.0) return Polinomio6(FilaF, x) + 0.02;
    if (x < 4100.0) return Polinomio6(FilaG, x) + 0.02;
    return Lineal(x);
}

}  // namespace

double Polinomio6(const double a[7], double x) {
    double suma = a[0];
    for (int k = 1; k <= 6; ++k) suma += a[k] * std::pow(x, double(k));
    return suma;
}

double GastoProbable(int tipoCurva, double unidades, bool diametroMinimo) {
    return tipoCurva == 2 ? CurvaValvula(unidades) : CurvaTanque(unidades, diametroMinimo);
}

void ColoqueGastos(ProyectoEdificio& p) {
    const int n = p.NumeroRamales;
    const int ultimo = p.NumeroRamales + 1;
    p.UnidadesAcumuladas.Redim(n);
    Arreglo<double> UnidadesNodo(ultimo);
    p.UnidadesRamal.Redim(ultimo);
    p.TipoCurva.Redim(n);

    for (int i = 1; i <= n; ++i)
        for (int k = 1; k <= p.NPiezas[i]; ++k)
            if (p.PiezaClave(i, k) > 0) p.UnidadesRamal[i] += p.PiezaCantidad(i, k) * p.PiezaUnidades(i, k);

    // One reverse pass: in a depth-first list the far end of a branch is
    // complete when the sweep reaches it.
    for (int i = n; i >= 1; --i) {
        const int ni = p.NumeroNodoI[i];
        UnidadesNodo[ni] = p.UnidadesRamal[i] + UnidadesNodo[ni] + UnidadesNodo[p.NumeroNodoJ[i]];
    }
    for (int i = 1; i <= n; ++i) {
        p.UnidadesAcumuladas[i] = p.UnidadesRamal[i] + UnidadesNodo[p.NumeroNodoJ[i]];
        p.TipoCurva[i] = p.OpcionDiseño[i] != 0 ? 2 : 1;
    }

    p.UnidadesRamal.Erase();
    p.Gasto.Redim(n);
    for (int i = 1; i <= n; ++i)
        p.Gasto[i] = RoundNivo(GastoProbable(p.TipoCurva[i], p.UnidadesAcumuladas[i], p.DiametroMinimo), 2);
}
