#include "model/EscritorJson.h"

#include <charconv>
#include <cmath>

namespace {
// What is kept before a write to the output: large enough that the writes
// are few, small enough to stay in the cache.
constexpr size_t Tanda = 1 << 16;
}  // namespace

void EscritorJson::Sangria() { b_.append(4 * vacio_.size(), ' '); }

void EscritorJson::Antes(const char* clave) {
    if (!vacio_.empty()) {
        b_ += vacio_.back() ? "\n" : ",\n";
        vacio_.back() = false;
        Sangria();
    }
    if (clave) {
        b_ += '"';
        b_ += clave;
        b_ += "\": ";
    }
}

void EscritorJson::Abrir(const char* clave, char signo) {
    Antes(clave);
    b_ += signo;
    vacio_.push_back(true);
}

void EscritorJson::Cerrar(char signo) {
    vacio_.pop_back();
    b_ += '\n';
    Sangria();
    b_ += signo;
    if (salida_ && b_.size() >= Tanda) Vaciar();
}

void EscritorJson::Numero(const char* clave, double valor) {
    Antes(clave);
    if (!std::isfinite(valor)) {
        b_ += "null";
        return;
    }
    // -0 reads as 0 to an engineer, and is written so.
    char cifras[32];
    const auto r = std::to_chars(cifras, cifras + sizeof cifras, valor == 0.0 ? 0.0 : valor);
    b_.append(cifras, r.ptr);
}

void EscritorJson::Entero(const char* clave, long long valor) {
    Antes(clave);
    char cifras[24];
    const auto r = std::to_chars(cifras, cifras + sizeof cifras, valor);
    b_.append(cifras, r.ptr);
}

void EscritorJson::Logico(const char* clave, bool valor) {
    Antes(clave);
    b_ += valor ? "true" : "false";
}

void EscritorJson::Texto(const char* clave, const QString& valor) {
    Antes(clave);
    b_ += '"';
    const QByteArray u = valor.toUtf8();
    for (const char c : u) {
        const auto b = static_cast<unsigned char>(c);
        if (b >= 0x20 && c != '"' && c != '\\') {
            b_ += c;
            continue;
        }
        b_ += '\\';
        switch (c) {
        case '"': b_ += '"'; break;
        case '\\': b_ += '\\'; break;
        case '\b': b_ += 'b'; break;
        case '\f': b_ += 'f'; break;
        case '\n': b_ += 'n'; break;
        case '\r': b_ += 'r'; break;
        case '\t': b_ += 't'; break;
        default: {
            static const char hex[] = "0123456789abcdef";
            b_ += "u00";
            b_ += hex[b >> 4];
            b_ += hex[b & 0xf];
        }
        }
    }
    b_ += '"';
}

void EscritorJson::Terminar() {
    b_ += '\n';
    Vaciar();
    if (salida_) fflush(salida_);
}

void EscritorJson::Vaciar() {
    if (!salida_ || b_.empty()) return;
    fwrite(b_.data(), 1, b_.size(), salida_);
    b_.clear();
}
