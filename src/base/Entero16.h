#pragma once
// A signed 16-bit counter whose arithmetic faults with an overflow (error 6)
// instead of wrapping: project sizes are bounded by it (32,767 branches).

#include "base/ErrorEjecucion.h"

#include <cstdint>

class Entero16 {
public:
    constexpr Entero16() = default;
    // Checked: a value outside -32768..32767 is an overflow.
    Entero16(int v) : v_(Verificar(v)) {}  // NOLINT: reads like the counters it stands for

    constexpr operator int() const { return v_; }
    constexpr int16_t valor() const { return v_; }

    Entero16& operator=(int v) { v_ = Verificar(v); return *this; }
    Entero16& operator+=(int d) { v_ = Verificar(int(v_) + d); return *this; }
    Entero16& operator-=(int d) { v_ = Verificar(int(v_) - d); return *this; }
    Entero16& operator++() { return *this += 1; }
    Entero16& operator--() { return *this -= 1; }

    static int16_t Verificar(long long v) {
        if (v < INT16_MIN || v > INT16_MAX) throw ErrorEjecucion(Error::Desbordamiento);
        return static_cast<int16_t>(v);
    }

private:
    int16_t v_ = 0;
};

// Arithmetic on a counter stays a checked counter.
inline Entero16 operator+(Entero16 a, int b) { return Entero16(int(a) + b); }
inline Entero16 operator+(int a, Entero16 b) { return Entero16(a + int(b)); }
inline Entero16 operator+(Entero16 a, Entero16 b) { return Entero16(int(a) + int(b)); }
inline Entero16 operator-(Entero16 a, int b) { return Entero16(int(a) - b); }
inline Entero16 operator-(Entero16 a, Entero16 b) { return Entero16(int(a) - int(b)); }
inline Entero16 operator*(Entero16 a, int b) { return Entero16(int(a) * b); }
inline Entero16 operator*(Entero16 a, Entero16 b) { return Entero16(int(a) * int(b)); }
