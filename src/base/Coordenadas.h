#pragma once
// The two ends of a section typed as coordinates, X, Y and Z of I and of J,
// and the straight length between them.  The length screens of buildings and
// of aqueducts share it; coordinates are never stored in a project.

#include <QString>

class Coordenadas {
public:
    // The boxes X(I), Y(I), Z(I), X(J), Y(J), Z(J), numbered 1..6.  A change
    // computes the length again, except while the boxes are being cleared.
    void Cambiar(int caja, double valor);
    double Valor(int caja) const { return xyz_[caja - 1]; }

    // The distance from I to J, not rounded; kept for Longitud().
    double Calcular();
    double Longitud() const { return longitud_; }
    // The length as the screens show it, "#,##0.00" with the locale's marks.
    QString TextoLongitud() const;

    // Every box and the length to 0, without computing.
    void Limpiar();
    // J becomes the next section's I, and J starts again from 0.
    void PasarJaI();

private:
    double xyz_[6] = {0, 0, 0, 0, 0, 0};
    double longitud_ = 0.0;
    bool limpiando_ = false;
};
