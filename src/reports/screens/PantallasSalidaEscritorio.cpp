#include "reports/screens/PantallasSalidaEscritorio.h"

// Placeholders until the output screens are built.
std::optional<EleccionSalida> PantallasSalidaEscritorio::OpcionExportar() { return std::nullopt; }

void PantallasSalidaEscritorio::VerResultados(Reporte&) {}
