// The height of the elevated tank on the analysis screen: fixed by hand in
// the box, or computed again.  Pressures only; nothing reaches the file.

#include "analysis/AnalisisRed.h"

#include "analysis/Presiones.h"
#include "model/ProyectoEdificio.h"

void AnalisisRed::LSButton6_Click() {
    if (!PresionesCalculadas()) return;
    PresionesConAlturaFija(p_, Double1);
    ColoquePerdidasPresiones();
}

void AnalisisRed::LSButton7_Click() {
    if (!PresionesCalculadas()) return;
    // The second run starts from the height of the first.
    for (int vez = 0; vez < 2; ++vez) {
        CalcularPresiones(p_);
        ColoquePerdidasPresiones();
    }
    Double1 = p_.longitudReal[1];
}
