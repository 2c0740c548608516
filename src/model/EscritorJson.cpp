#include "model/EscritorJson.h"

#include <charconv>
#include <cmath>
#include <cstring>

namespace {
// What is kept before a write to the output: large enough that the writes
// are few, small enough to stay in the cache.
constexpr size_t Tanda = 1 << 16;
// The most one value can add before the next check: a key, an indent and a
// number, or one character of text escaped.
constexpr size_t Holgura = 256;
}  // namespace

// The buffer grows in place; every piece is copied with memcpy, as the many
// small appends of a large document are most of its cost.
void EscritorJson::Reservar(size_t n) {
    if (b_.size() - usado_ >= n) return;
    if (salida_ && usado_ > 0) Vaciar();
    if (b_.size() - usado_ < n) b_.resize(std::max(b_.size() * 2, usado_ + n + Tanda));
}

void EscritorJson::Poner(const char* texto, size_t n) {
    Reservar(n);
    std::memcpy(&b_[usado_], texto, n);
    usado_ += n;
}

void EscritorJson::Sangria() {
    const size_t n = 4 * vacio_.size();
    Reservar(n);
    std::memset(&b_[usado_], ' ', n);
    usado_ += n;
}

void EscritorJson::Antes(const char* clave) {
    if (!vacio_.empty()) {
        if (vacio_.back())
            Poner("\n", 1);
        else
            Poner(",\n", 2);
        vacio_.back() = false;
        Sangria();
    }
    if (clave) {
        const size_t n = std::strlen(clave);
        Reservar(n + 4);
        char* c = &b_[usado_];
        *c++ = '"';
        std::memcpy(c, clave, n);
        c += n;
        std::memcpy(c, "\": ", 3);
        usado_ += n + 4;
    }
}

void EscritorJson::Abrir(const char* clave, char signo) {
    Antes(clave);
    Poner(&signo, 1);
    vacio_.push_back(true);
}

void EscritorJson::Cerrar(char signo) {
    vacio_.pop_back();
    Poner("\n", 1);
    Sangria();
    Poner(&signo, 1);
    if (salida_ && usado_ >= Tanda) Vaciar();
}

// The text std::to_chars gives for the values an engineer types (at most
// three decimals: lengths, levels, diameters, demands), found without its
// general search, which is most of the cost of a results document.  Such a
// value is the double nearest to n / 1000 for a whole n; below 1e12 no other
// decimal of 15 digits or fewer is nearer, so n / 1000 with its trailing
// zeros dropped is the shortest text that reads back, and the fixed form is
// never longer than the exponent form (nor, for whole numbers below 1e5).
// Returns the end of the text, or nullptr for any other value.
char* DecimalCorto(char* c, double valor) {
    if (!(std::fabs(valor) < 1e12)) return nullptr;
    const double milesimas = std::nearbyint(valor * 1000.0);
    if (milesimas / 1000.0 != valor) return nullptr;
    long long n = static_cast<long long>(milesimas);
    if (n % 1000 == 0 && std::fabs(valor) >= 1e5) return nullptr;
    if (n < 0) {
        *c++ = '-';
        n = -n;
    }
    c = std::to_chars(c, c + 24, n / 1000).ptr;
    int fraccion = int(n % 1000), cifras = 3;
    if (fraccion == 0) return c;
    while (fraccion % 10 == 0) {
        fraccion /= 10;
        --cifras;
    }
    *c++ = '.';
    for (int k = cifras - 1; k >= 0; --k) {
        c[k] = char('0' + fraccion % 10);
        fraccion /= 10;
    }
    return c + cifras;
}

void EscritorJson::Numero(const char* clave, double valor) {
    Antes(clave);
    if (!std::isfinite(valor)) return Poner("null", 4);
    // -0 reads as 0 to an engineer, and is written so.
    if (valor == 0.0) return Poner("0", 1);
    Reservar(32);
    char* c = &b_[usado_];
    char* fin = DecimalCorto(c, valor);
    if (!fin) fin = std::to_chars(c, c + 32, valor).ptr;
    usado_ = size_t(fin - b_.data());
}

void EscritorJson::Entero(const char* clave, long long valor) {
    Antes(clave);
    Reservar(24);
    const auto r = std::to_chars(&b_[usado_], &b_[usado_] + 24, valor);
    usado_ = size_t(r.ptr - b_.data());
}

void EscritorJson::Logico(const char* clave, bool valor) {
    Antes(clave);
    if (valor)
        Poner("true", 4);
    else
        Poner("false", 5);
}

// UTF-8 written from the UTF-16 units directly; a unit of a broken pair is
// written as the replacement character, as the toolkit's own conversion does.
void EscritorJson::Texto(const char* clave, const QString& valor) {
    Antes(clave);
    Poner("\"", 1);
    const char16_t* u = reinterpret_cast<const char16_t*>(valor.constData());
    const char16_t* fin = u + valor.size();
    while (u < fin) {
        Reservar(Holgura);
        char* c = &b_[usado_];
        char* tope = c + Holgura - 8;
        for (; u < fin && c < tope; ++u) {
            char32_t p = *u;
            if (p < 0x80) {
                if (p >= 0x20 && p != '"' && p != '\\') {
                    *c++ = char(p);
                    continue;
                }
                *c++ = '\\';
                switch (p) {
                case '"': *c++ = '"'; break;
                case '\\': *c++ = '\\'; break;
                case '\b': *c++ = 'b'; break;
                case '\f': *c++ = 'f'; break;
                case '\n': *c++ = 'n'; break;
                case '\r': *c++ = 'r'; break;
                case '\t': *c++ = 't'; break;
                default: {
                    static const char hex[] = "0123456789abcdef";
                    *c++ = 'u';
                    *c++ = '0';
                    *c++ = '0';
                    *c++ = hex[p >> 4];
                    *c++ = hex[p & 0xf];
                }
                }
                continue;
            }
            if (p >= 0xD800 && p <= 0xDFFF) {
                if (p <= 0xDBFF && u + 1 < fin && u[1] >= 0xDC00 && u[1] <= 0xDFFF) {
                    p = 0x10000 + ((p - 0xD800) << 10) + (u[1] - 0xDC00);
                    ++u;
                } else {
                    p = 0xFFFD;
                }
            }
            if (p < 0x800) {
                *c++ = char(0xC0 | (p >> 6));
            } else if (p < 0x10000) {
                *c++ = char(0xE0 | (p >> 12));
                *c++ = char(0x80 | ((p >> 6) & 0x3F));
            } else {
                *c++ = char(0xF0 | (p >> 18));
                *c++ = char(0x80 | ((p >> 12) & 0x3F));
                *c++ = char(0x80 | ((p >> 6) & 0x3F));
            }
            *c++ = char(0x80 | (p & 0x3F));
        }
        usado_ = size_t(c - b_.data());
    }
    Poner("\"", 1);
}

void EscritorJson::Terminar() {
    Poner("\n", 1);
    Vaciar();
    if (salida_) fflush(salida_);
}

void EscritorJson::Vaciar() {
    if (!salida_ || usado_ == 0) return;
    fwrite(b_.data(), 1, usado_, salida_);
    usado_ = 0;
}
