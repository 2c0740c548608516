#include "analysis/Presiones.h"

#include "analysis/IndiceNombres.h"
#include "analysis/Numeracion.h"
#include "analysis/Predimensionado.h"
#include "base/Nivo.h"
#include "model/ProyectoEdificio.h"

#include <cmath>

namespace {

void NumerosDelBarrido(ProyectoEdificio& p) {
    const int n = p.NumeroRamales;
    for (int i = 1; i <= n; ++i) {
        p.NodoNumI[i] = i;
        p.NodoNumJ[i] = i + 1;
    }
    // The test against branch k + 1 holds for every branch of a correct
    // list: the search alone decides.
    IndiceNombres inicios(n);
    if (n >= 1) inicios.Agregar(p.NodoI[1], 1);
    for (int k = 2; k <= n; ++k) {
        if (p.NodoI[k] != p.Nodoj[k + 1]) {
            const int j = inicios.Primero(p.NodoI[k]);
            if (j > 0) p.NodoNumI[k] = p.NodoNumI[j];
        }
        inicios.Agregar(p.NodoI[k], k);
    }
}

// The lowest node pressure at the end of a branch and its node number.
void NodoDesfavorableDelBarrido(ProyectoEdificio& p) {
    double minimo = p.PresionNodo[2];
    p.NodoDesfaborable = p.NodoNumJ[1];
    for (int b = 1; b <= p.NumeroRamales; ++b)
        if (p.PresionNodo[p.NodoNumJ[b]] < minimo) {
            minimo = p.PresionNodo[p.NodoNumJ[b]];
            p.NodoDesfaborable = p.NodoNumJ[b];
        }
}

void PerdidasDelRamal(ProyectoEdificio& p, int i) {
    const double q = p.Gasto[i];
    double d = 0.0;
    DiametroInterior(p.DiametroAsumido[i], d);
    p.VelocidadAsumida[i] = d > 0.0 ? VelocidadEn(q, p.DiametroAsumido[i]) : 0.0;
    p.PerdidaUnitaria[i] = PerdidaUnitariaDe(p, q, p.DiametroAsumido[i]);
    p.PerdidaRamal[i] = RoundNivo((p.LongitudEquivalenteRamal[i] + p.longitudReal[i]) * p.PerdidaUnitaria[i], 2);
}

double PerdidaDelMontante(const ProyectoEdificio& p, double altura) {
    return RoundNivo((altura + p.LongitudEquivalenteRamal[1]) * p.PerdidaUnitaria[1], 2);
}

// The riser takes the height as its length, with its loss; the first node
// stands at that level.
void FijarAlturaTanque(ProyectoEdificio& p, double altura) {
    p.longitudReal[1] = altura;
    p.PerdidaRamal[1] = PerdidaDelMontante(p, altura);
    p.CotaRelativa[p.NodoNumI[1]] = altura;
    p.CargaOrigen = 0.0;
}

void TanqueElevado(ProyectoEdificio& p) {
    for (int pase = 1; pase <= 2; ++pase) {
        BarridoPresiones(p, pase == 1 ? p.Valor3 : 0.0, 2);
        const int w = RamalDesfavorable(p);
        double s1 = 0.0;
        const double s = SumaTrayecto(p, w, &s1);
        p.PerdidaRamal[1] = PerdidaDelMontante(p, p.Valor3 + s);
        // The branch number W stands as the node index here, on purpose.
        double t = p.Valor3 + s1 + p.PerdidaRamal[1] + p.CotaRelativa[w];
        for (int vuelta = 1;; ++vuelta) {
            const double antes = p.PerdidaRamal[1];
            const double nueva = PerdidaDelMontante(p, t);
            p.PerdidaRamal[1] = nueva;
            t += nueva - antes;
            // A loss that grows without end overflows, as the older runtime did.
            if (!std::isfinite(t)) throw ErrorEjecucion(Error::Desbordamiento);
            if (RoundNivo(nueva - antes, 2) < 0.01) break;
            // Each round adds the last one's growth times the riser's unit
            // loss: from 1 m/m up it never shrinks, and the height runs away.
            if (vuelta > 1 && p.PerdidaUnitaria[1] >= 1.0)
                throw ErrorEjecucion(Error::Desbordamiento, QStringLiteral("altura del tanque elevado"));
        }
        FijarAlturaTanque(p, t);
    }
}

}  // namespace

double PerdidaUnitariaDe(const ProyectoEdificio& p, double gasto, double numero) {
    double d = 0.0;
    DiametroInterior(numero, d);
    const double pulgadas = d / 2.54;
    switch (p.OpcionPerdidas) {
    case 0: return RoundNivo(Potencia(Dividir(gasto, 1.5377 * Potencia(pulgadas, 2.5)), 2.0), 4);
    case 1: return RoundNivo(Potencia(Dividir(gasto, 1.926 * Potencia(pulgadas, 2.562)), 1.0 / 0.521), 4);
    case 2: {
        // From "2 1/2" up the formula runs on the nominal diameter.
        const double m = numero > 2.0 ? numero * 2.54 / 100.0 : d / 100.0;
        return RoundNivo(Potencia(Dividir(gasto, 278.53 * p.CoeficienteC * Potencia(m, 2.63)), 1.85), 4);
    }
    default: return 0.0;
    }
}

void BarridoPresiones(ProyectoEdificio& p, double h, int opcion) {
    const int n = p.NumeroRamales;
    p.NodoNumI[n + 1] = 0;
    p.PresionNodo[p.NodoNumI[1]] = h;
    for (int i = 1; i <= n; ++i) {
        const int ni = p.NodoNumI[i], nj = p.NodoNumJ[i];
        const double ci = p.CotaRelativa[ni], cj = p.CotaRelativa[nj];
        if (opcion == 0) {
            p.PresionNodo[nj] = p.PresionNodo[ni] - p.PerdidaRamal[i] - (cj - ci);
            p.PresionRamal[i] = p.PresionNodo[nj];
        } else {
            p.PresionNodo[nj] = p.PresionNodo[ni] - p.PerdidaRamal[i];
            p.PresionRamal[i] = p.PresionNodo[nj] - cj + ci;
        }
        if (i < n && p.NodoNumI[i + 1] > p.NodoNumI[i]) p.PresionNodo[p.NodoNumI[i + 1]] = p.PresionRamal[i];
    }
}

int RamalDesfavorable(const ProyectoEdificio& p) {
    int w = 1;
    for (int b = 1; b <= p.NumeroRamales - 1; ++b)
        if (p.PresionRamal[b + 1] < p.PresionRamal[w]) w = b + 1;
    return w;
}

double SumaTrayecto(const ProyectoEdificio& p, int w, double* sinPrimero) {
    // The walk from w down to 1 takes branch b when its end NodoNumJ(b) = b + 1
    // is the start of the current branch; as NodoNumI(c) <= c, the next branch
    // taken is always NodoNumI(c) - 1, so the walk jumps there.
    double s = p.PerdidaRamal[w];
    double antesDelPrimero = 0.0;
    int c = w;
    for (int b = p.NodoNumI[c] - 1; b >= 1; b = p.NodoNumI[c] - 1) {
        if (p.NodoNumJ[b] != p.NodoNumI[c]) break;
        if (b == 1) antesDelPrimero = s;
        s += p.PerdidaRamal[b];
        c = b;
    }
    if (w > 1 && c != 1) antesDelPrimero = s;
    if (sinPrimero) *sinPrimero = antesDelPrimero;
    return s;
}

void PresionesConAlturaFija(ProyectoEdificio& p, double h) {
    FijarAlturaTanque(p, h);
    // The worst branch and its path sum change nothing shown with a tank.
    BarridoPresiones(p, 0.0, 2);
}

void CalcularPresiones(ProyectoEdificio& p) {
    const int n = p.NumeroRamales;
    const int ultimo = p.NumeroRamales + 1;
    p.NodoNumI.Redim(ultimo);
    p.NodoNumJ.Redim(ultimo);
    p.PresionNodo.Redim(ultimo);
    p.PresionRamal.Redim(ultimo);
    p.PerdidaRamal.Redim(n);
    p.PerdidaUnitaria.Redim(n);

    for (int i = 1; i <= n; ++i) EnLugar([&] { PerdidasDelRamal(p, i); }, [&] { return LugarDeRamal(p, i); });
    NumerosDelBarrido(p);

    switch (p.OpcionPresionInicial) {
    case 0: {
        double h = p.Valor1;
        for (int pase = 1; pase <= 2; ++pase) {
            BarridoPresiones(p, h, 0);
            const int w = RamalDesfavorable(p);
            const double s = SumaTrayecto(p, w);
            p.SumaPerdidas = s;
            NodoDesfavorableDelBarrido(p);
            h = s + p.CotaRelativa[p.NodoNumJ[w]] + p.Valor1;
            p.CargaOrigen = h;
        }
        break;
    }
    case 1: {
        BarridoPresiones(p, p.Valor2, 1);
        const int w = RamalDesfavorable(p);
        const double s = SumaTrayecto(p, w);
        p.SumaPerdidas = s;
        p.CargaOrigen = s + p.CotaRelativa[p.NodoNumJ[w]] + p.Valor2;
        break;
    }
    case 2: TanqueElevado(p); break;
    default: break;
    }
}
