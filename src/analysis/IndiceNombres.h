#pragma once
// The first branch at which a node name appears, for the searches of the
// chain that look for "the first earlier branch whose node is this one".
// Names are added in branch order, so a look-up made before branch k is
// added answers over branches 1..k-1 only, exactly as the linear search.

#include <QHash>
#include <QString>

class IndiceNombres {
public:
    explicit IndiceNombres(int previstos = 0) { primero_.reserve(previstos); }
    // Keeps the first branch of a name; later ones are ignored.
    void Agregar(const QString& nombre, int ramal) {
        if (!primero_.contains(nombre)) primero_.insert(nombre, ramal);
    }
    // The first branch added with that name, 0 when none.
    int Primero(const QString& nombre) const { return primero_.value(nombre, 0); }

private:
    QHash<QString, int> primero_;
};
