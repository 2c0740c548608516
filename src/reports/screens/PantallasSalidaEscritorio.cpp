#include "reports/screens/PantallasSalidaEscritorio.h"

#include "reports/screens/VentanaOpcionExportar.h"
#include "reports/screens/VentanaVerResultados.h"

std::optional<EleccionSalida> PantallasSalidaEscritorio::OpcionExportar() {
    VentanaOpcionExportar v(s_, d_, padre_);
    if (v.exec() != QDialog::Accepted) return std::nullopt;
    return v.Logica().Eleccion();
}

void PantallasSalidaEscritorio::VerResultados(Reporte& r) {
    VentanaVerResultados v(r, s_, d_, padre_);
    if (v.Componer()) v.exec();
}
