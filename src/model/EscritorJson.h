#pragma once
// JSON written as it is produced, in the layout of the program's other JSON
// output (four-space indent, "clave": valor), without building a document
// first: the results of a large network run to tens of megabytes, and a tree
// of values, then its text, held them twice over.  Numbers are written in
// their shortest form that reads back to the same double; a number that is
// not finite is written as null, as JSON has no other spelling for it.

#include <QString>

#include <cstdio>
#include <string>
#include <vector>

// The shortest text of `valor` when it has at most three decimals (as
// std::to_chars would write it), else nullptr; `c` has room for 32 bytes.
char* DecimalCorto(char* c, double valor);

class EscritorJson {
public:
    // To `salida`, written out as the buffer fills and at Terminar.
    explicit EscritorJson(FILE* salida) : salida_(salida) {}
    // Kept in memory, read by Bytes().
    EscritorJson() = default;
    ~EscritorJson() { Vaciar(); }
    EscritorJson(const EscritorJson&) = delete;
    EscritorJson& operator=(const EscritorJson&) = delete;

    // `clave` names the member inside an object; inside a list, or for the
    // outermost value, it is null.
    void AbrirObjeto(const char* clave = nullptr) { Abrir(clave, '{'); }
    void CerrarObjeto() { Cerrar('}'); }
    void AbrirLista(const char* clave = nullptr) { Abrir(clave, '['); }
    void CerrarLista() { Cerrar(']'); }

    void Numero(const char* clave, double valor);
    void Entero(const char* clave, long long valor);
    void Texto(const char* clave, const QString& valor);
    void Logico(const char* clave, bool valor);

    // The final line end, and the rest written out.
    void Terminar();
    std::string Bytes() const { return b_.substr(0, usado_); }

private:
    void Abrir(const char* clave, char signo);
    void Cerrar(char signo);
    // The separator, indent and key before a value.
    void Antes(const char* clave);
    void Sangria();
    void Poner(const char* texto, size_t n);
    // Room for n more bytes, written out first when it goes to a file.
    void Reservar(size_t n);
    void Vaciar();

    FILE* salida_ = nullptr;
    std::string b_;     // its first usado_ bytes are the text
    size_t usado_ = 0;
    std::vector<bool> vacio_;  // per open container: nothing written in it yet
};
