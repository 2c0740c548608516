#pragma once
// Arrays indexed like the project's arrays: slots 0..n, slot 0 holding the
// zero of its type, and a subscript outside the bounds is error 9.

#include "base/ErrorEjecucion.h"

#include <algorithm>
#include <vector>

namespace detalle {
// std::vector<bool> hands out no references; booleans are kept in a box.
struct CajaLogica {
    bool v = false;
};
template <typename T>
struct Almacen {
    using Tipo = T;
    static T& Ref(T& x) { return x; }
    static const T& Ref(const T& x) { return x; }
};
template <>
struct Almacen<bool> {
    using Tipo = CajaLogica;
    static bool& Ref(CajaLogica& x) { return x.v; }
    static const bool& Ref(const CajaLogica& x) { return x.v; }
};
}  // namespace detalle

template <typename T>
class Arreglo {
public:
    Arreglo() = default;
    explicit Arreglo(int ultimo) { Redim(ultimo); }

    // Slots 0..ultimo, all cleared; a negative bound empties the array.
    void Redim(int ultimo) {
        v_.assign(ultimo >= 0 ? size_t(ultimo) + 1 : 0, S{});
    }
    // Slots 0..ultimo keeping what the common slots held.
    void RedimPreserve(int ultimo) { v_.resize(ultimo >= 0 ? size_t(ultimo) + 1 : 0, S{}); }
    void Erase() { v_.clear(); }

    // Highest index, -1 when the array holds nothing.
    int Ubound() const { return int(v_.size()) - 1; }
    bool Vacio() const { return v_.empty(); }

    T& operator[](int i) {
        if (i < 0 || size_t(i) >= v_.size()) throw ErrorEjecucion(Error::SubindiceFuera);
        return A::Ref(v_[size_t(i)]);
    }
    const T& operator[](int i) const {
        if (i < 0 || size_t(i) >= v_.size()) throw ErrorEjecucion(Error::SubindiceFuera);
        return A::Ref(v_[size_t(i)]);
    }
    // Reads slot i, or the zero of the type outside the bounds: for displays
    // of results that may not have been computed yet.
    T Leer(int i) const { return i >= 0 && size_t(i) < v_.size() ? A::Ref(v_[size_t(i)]) : T{}; }

private:
    using A = detalle::Almacen<T>;
    using S = typename A::Tipo;
    std::vector<S> v_;
};

// Two-dimensional array (1..filas) by (1..columnas), with slot 0 on both axes.
template <typename T>
class Arreglo2 {
public:
    void Redim(int filas, int columnas) {
        filas_ = filas >= 0 ? filas + 1 : 0;
        columnas_ = columnas >= 0 ? columnas + 1 : 0;
        v_.assign(size_t(filas_) * size_t(columnas_), S{});
    }
    // Keeps the values of common cells (the older runtime keeps only along
    // the last axis; the callers here only grow the first one).
    void RedimPreserve(int filas, int columnas) {
        Arreglo2 nuevo;
        nuevo.Redim(filas, columnas);
        for (int i = 0; i < std::min(filas_, nuevo.filas_); ++i)
            for (int j = 0; j < std::min(columnas_, nuevo.columnas_); ++j)
                nuevo.v_[size_t(i) * nuevo.columnas_ + j] = v_[size_t(i) * columnas_ + j];
        *this = std::move(nuevo);
    }
    void Erase() { v_.clear(); filas_ = columnas_ = 0; }
    int UboundFilas() const { return filas_ - 1; }
    int UboundColumnas() const { return columnas_ - 1; }

    T& operator()(int i, int j) { return A::Ref(v_[Indice(i, j)]); }
    const T& operator()(int i, int j) const { return A::Ref(v_[Indice(i, j)]); }
    T Leer(int i, int j) const {
        return i >= 0 && i < filas_ && j >= 0 && j < columnas_ ? A::Ref(v_[size_t(i) * columnas_ + j]) : T{};
    }

private:
    size_t Indice(int i, int j) const {
        if (i < 0 || i >= filas_ || j < 0 || j >= columnas_) throw ErrorEjecucion(Error::SubindiceFuera);
        return size_t(i) * size_t(columnas_) + size_t(j);
    }
    using A = detalle::Almacen<T>;
    using S = typename A::Tipo;
    std::vector<S> v_;
    int filas_ = 0;
    int columnas_ = 0;
};
