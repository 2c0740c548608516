#include "entry/BuscarPartida.h"

#include <algorithm>

std::optional<int> FilaBuscada(const BuscarPartida& b, int filaActiva, int filas) {
    if (!b.Aceptado || b.Numero == filaActiva || filas < 1) return std::nullopt;
    return std::clamp(b.Numero, 1, filas);
}

QString TituloBuscarPartida() { return QStringLiteral("Buscar un Ramal"); }

QString EtiquetaBuscarPartida() { return QStringLiteral("Ramal Número:"); }
