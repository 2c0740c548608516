// The height of the elevated tank on the analysis screen: fixed by hand in
// the box, or computed again.  Pressures only; nothing reaches the file.

#include "analysis/AnalisisRed.h"

#include "analysis/Presiones.h"
#include "base/Nivo.h"
#include "model/ProyectoEdificio.h"

void AnalisisRed::LSButton6_Click() {
    if (!cadenaCompleta_) return;
    const double h = Double1;
    const int n = p_.NumeroRamales;
    p_.NodoNumI[n + 1] = 0;
    p_.PresionNodo[p_.NodoNumI[1]] = 0.0;
    p_.PerdidaRamal[1] = RoundNivo((h + p_.LongitudEquivalenteRamal[1]) * p_.PerdidaUnitaria[1], 2);
    p_.longitudReal[1] = h;
    p_.CotaRelativa[p_.NodoNumI[1]] = h;
    p_.CargaOrigen = 0.0;
    BarridoPresiones(p_, 0.0, 2);
    SumaTrayecto(p_, RamalDesfavorable(p_));
    ColoquePerdidasPresiones();
}

void AnalisisRed::LSButton7_Click() {
    if (!cadenaCompleta_) return;
    // The second run starts from the height of the first.
    for (int vez = 0; vez < 2; ++vez) {
        CalcularPresiones(p_);
        ColoquePerdidasPresiones();
    }
    Double1 = p_.longitudReal[1];
}
