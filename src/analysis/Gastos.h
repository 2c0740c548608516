#pragma once
// Fixture units accumulated down the tree and the probable flow of each
// branch by the fixed curves of tank fixtures (1) and valve fixtures (2).

struct ProyectoEdificio;

// The whole pass: UnidadesAcumuladas, TipoCurva and Gasto (l/s, two
// decimals) of every branch, from the fixtures and the node numbers of
// VerificarNumeracion.
void ColoqueGastos(ProyectoEdificio& p);

// The probable flow of `unidades` fixture units on curve 1 or 2, not rounded.
// `diametroMinimo` raises the floor of curve 1 to 4.34 units.
double GastoProbable(int tipoCurva, double unidades, bool diametroMinimo);

// a0 + a1 x + ... + a6 x^6.
double Polinomio6(const double a[7], double x);
