#pragma once
// The first branch at which a node name appears, for the searches of the
// chain that look for "the first earlier branch whose node is this one".
// Names are added in branch order, so a look-up made before branch k is
// added answers over branches 1..k-1 only, exactly as the linear search.

#include "base/MapaNombres.h"

#include <algorithm>

class IndiceNombres {
public:
    explicit IndiceNombres(int previstos = 0) { primero_.reserve(size_t(std::max(previstos, 0))); }
    // Keeps the first branch of a name; later ones are ignored.
    void Agregar(const QString& nombre, int ramal) { primero_.try_emplace(nombre, ramal); }
    // The first branch added with that name, 0 when none.
    int Primero(const QString& nombre) const {
        const auto it = primero_.find(nombre);
        return it == primero_.end() ? 0 : it->second;
    }

private:
    MapaNombres<int> primero_;
};
