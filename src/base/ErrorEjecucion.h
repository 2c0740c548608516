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
    // Where the fault was met, when the raiser knew it; may be empty.
    const QString& detalle() const { return detalle_; }
    const char* what() const noexcept override { return texto_.c_str(); }

    static QString DescripcionDe(int numero);

private:
    int numero_;
    QString detalle_;
    std::string texto_;
};

// Floating-point helpers that fault where the older runtime faulted instead of
// yielding an infinity or a NaN that would travel silently into the results.
double Dividir(double a, double b);
double Potencia(double base, double exponente);
double RaizCuadrada(double x);
