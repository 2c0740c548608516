#pragma once
// Head losses and the available pressure at every node, by the option of
// the pressure at the origin: derived from the worst node (0), given (1), or
// the height of an elevated tank on branch 1 (2).

struct ProyectoEdificio;

// The whole routine: VelocidadAsumida, PerdidaUnitaria, PerdidaRamal,
// NodoNumI/NodoNumJ, PresionNodo, PresionRamal, CargaOrigen, SumaPerdidas,
// NodoDesfaborable; with option 2 also longitudReal of branch 1 (the tank
// height), PerdidaRamal of branch 1 and CotaRelativa of the first node.
void CalcularPresiones(ProyectoEdificio& p);

// The unit head loss (m/m, four decimals) of `gasto` l/s in the size
// `numero` by OpcionPerdidas 0, 1 or 2; 0 for any other option.
double PerdidaUnitariaDe(const ProyectoEdificio& p, double gasto, double numero);

// One pass of the sweep from the head `h` at the origin, with the rule of
// `opcion` (0: levels in the node pressures; 1 or 2: only in PresionRamal).
void BarridoPresiones(ProyectoEdificio& p, double h, int opcion);
// The branch with the lowest PresionRamal, the first of equal minima.
int RamalDesfavorable(const ProyectoEdificio& p);
// The losses from the origin to the far end of branch `w`.  `sinPrimero`
// receives the same sum before branch 1 is looked at (0 when `w` is 1).
double SumaTrayecto(const ProyectoEdificio& p, int w, double* sinPrimero = nullptr);

// The pressures with the elevated tank at the height `h` fixed by hand: the
// riser (branch 1) takes that length and its loss, the first node that level,
// and one sweep from 0 m by the rule of option 2 follows.  Needs the losses of
// a run of CalcularPresiones.
void PresionesConAlturaFija(ProyectoEdificio& p, double h);
