#include "base/Coordenadas.h"

#include "base/Nivo.h"

#include <cmath>

void Coordenadas::Cambiar(int caja, double valor) {
    if (caja < 1 || caja > 6) return;
    xyz_[caja - 1] = valor;
    if (!limpiando_) Calcular();
}

double Coordenadas::Calcular() {
    const double dx = xyz_[3] - xyz_[0], dy = xyz_[4] - xyz_[1], dz = xyz_[5] - xyz_[2];
    longitud_ = std::sqrt(dx * dx + dy * dy + dz * dz);
    return longitud_;
}

QString Coordenadas::TextoLongitud() const { return Formato(longitud_, QStringLiteral("#,##0.00")); }

void Coordenadas::Limpiar() {
    limpiando_ = true;
    for (int caja = 1; caja <= 6; ++caja) Cambiar(caja, 0.0);
    limpiando_ = false;
    longitud_ = 0.0;
}

void Coordenadas::PasarJaI() {
    for (int caja = 1; caja <= 3; ++caja) {
        xyz_[caja - 1] = xyz_[caja + 2];
        xyz_[caja + 2] = 0.0;
    }
    Calcular();
}
