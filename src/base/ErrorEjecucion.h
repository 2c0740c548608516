#pragma once
// Run-time faults of a calculation, numbered as the older program numbered
// them, so that the message the engineer sees carries the same number.

#include <QString>
#include <exception>
#include <string>

namespace Error {
constexpr int LlamadaNoValida = 5;
constexpr int Desbordamiento = 6;
constexpr int SubindiceFuera = 9;
constexpr int DivisionPorCero = 11;
constexpr int TiposNoCoinciden = 13;
constexpr int CancelarDialogo = 32755;
}  // namespace Error

class ErrorEjecucion : public std::exception {
public:
    explicit ErrorEjecucion(int numero, QString detalle = QString());

    int numero() const { return numero_; }
    // The standard text of the number ("Desbordamiento"...).
    QString descripcion() const;
    // What the raiser knew of the fault; may be empty.
    const QString& detalle() const { return detalle_; }
    // The branch or section where the calculation met the fault ("el ramal 7
    // (N3 - N4)"); may be empty.  The first place given, the innermost, stays.
    const QString& lugar() const { return lugar_; }
    void PonerLugar(const QString& lugar);
    // "Error 11: División por cero", and " en " the place "." when known.
    QString Mensaje() const;
    // The message with the detail in brackets, for the console.
    const char* what() const noexcept override { return texto_.c_str(); }

    static QString DescripcionDe(int numero);

private:
    int numero_;
    QString detalle_;
    QString lugar_;
    std::string texto_;
};

// How a fault names a branch or a section: "el ramal 7 (N3 - N4)".
QString LugarRamal(int numero, const QString& nodoI, const QString& nodoJ);

// Runs `f`; a fault inside it that has no place yet takes the one `lugar()`
// names, so that the engineer learns which branch to look at.
template <typename F, typename L>
void EnLugar(F&& f, L&& lugar) {
    try {
        f();
    } catch (ErrorEjecucion& e) {
        if (e.lugar().isEmpty()) e.PonerLugar(lugar());
        throw;
    }
}

// Floating-point helpers that fault where the older runtime faulted instead of
// yielding an infinity or a NaN that would travel silently into the results.
double Dividir(double a, double b);
double Potencia(double base, double exponente);
double RaizCuadrada(double x);
