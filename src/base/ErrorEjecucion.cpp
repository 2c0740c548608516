#include "base/ErrorEjecucion.h"

#include <cmath>

ErrorEjecucion::ErrorEjecucion(int numero, QString detalle)
    : numero_(numero), detalle_(std::move(detalle)) {
    PonerLugar(QString());
}

void ErrorEjecucion::PonerLugar(const QString& lugar) {
    if (lugar_.isEmpty()) lugar_ = lugar;
    QString t = Mensaje();
    if (!detalle_.isEmpty()) t += QStringLiteral(" (") + detalle_ + QStringLiteral(")");
    texto_ = t.toStdString();
}

QString ErrorEjecucion::Mensaje() const {
    QString t = QStringLiteral("Error %1: %2").arg(numero_).arg(descripcion());
    if (!lugar_.isEmpty()) t += QStringLiteral(" en ") + lugar_ + QLatin1Char('.');
    return t;
}

QString LugarRamal(int numero, const QString& nodoI, const QString& nodoJ) {
    return QStringLiteral("el ramal %1 (%2 - %3)").arg(numero).arg(nodoI, nodoJ);
}

QString ErrorEjecucion::descripcion() const { return DescripcionDe(numero_); }

QString ErrorEjecucion::DescripcionDe(int numero) {
    switch (numero) {
    case Error::LlamadaNoValida: return QStringLiteral("Llamada a procedimiento o argumento no válidos");
    case Error::Desbordamiento: return QStringLiteral("Desbordamiento");
    case Error::SubindiceFuera: return QStringLiteral("Subíndice fuera del intervalo");
    case Error::DivisionPorCero: return QStringLiteral("División por cero");
    case Error::TiposNoCoinciden: return QStringLiteral("No coinciden los tipos");
    case Error::CancelarDialogo: return QStringLiteral("Se seleccionó Cancelar");
    default: return QStringLiteral("Error definido por la aplicación o por el objeto");
    }
}

namespace {
double Comprobado(double r) {
    if (std::isinf(r) || std::isnan(r)) throw ErrorEjecucion(Error::Desbordamiento);
    return r;
}
}  // namespace

double Dividir(double a, double b) {
    // 0/0 is an overflow in the older runtime, x/0 a division by zero.
    if (b == 0.0) throw ErrorEjecucion(a == 0.0 ? Error::Desbordamiento : Error::DivisionPorCero);
    return Comprobado(a / b);
}

double Potencia(double base, double exponente) {
    if (base < 0.0 && exponente != std::floor(exponente))
        throw ErrorEjecucion(Error::LlamadaNoValida);
    if (base == 0.0 && exponente < 0.0) throw ErrorEjecucion(Error::DivisionPorCero);
    return Comprobado(std::pow(base, exponente));
}

double RaizCuadrada(double x) {
    if (x < 0.0) throw ErrorEjecucion(Error::LlamadaNoValida);
    return std::sqrt(x);
}
