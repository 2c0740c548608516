#include "aqueduct/CoficientesACU.h"

#include "aqueduct/DatosAcueducto.h"
#include "aqueduct/FormatoGrid.h"

#include <iterator>

namespace {
struct Tuberia {
    const char* tipo;
    int c;
};
constexpr Tuberia Tuberias[] = {{"PVC", 140},      {"TERMOFUSION", 140},       {"HIERRO FUNDIDO", 100},
                                {"ACERO", 120},    {"ASBESTO - CEMENTO", 120}, {"CONCRETO", 100}};
}  // namespace

CoficientesACU::CoficientesACU(DatosAcueducto& datos) : Spread1(2), datos_(datos) {
    Spread1.PonerEncabezados(1, QStringLiteral("Tipo de Tubería"));
    Spread1.PonerEncabezado(1, 2, QStringLiteral("Coeficiente"));
    Spread1.PonerEncabezado(2, 2, QStringLiteral("C"));
    FormatoColumna(Spread1, 1, TipoCelda::Texto, 0, 24);
    FormatoColumna(Spread1, 2, TipoCelda::Entero, 0, 10);
    Spread1.PonerFilas(int(std::size(Tuberias)));
    int fila = 0;
    for (const Tuberia& t : Tuberias) {
        ++fila;
        Spread1.PonerTexto(fila, 1, QString::fromUtf8(t.tipo));
        Spread1.PonerEntero(fila, 2, t.c);
    }
}

void CoficientesACU::Aceptar(int fila) {
    if (fila < 1 || fila > Spread1.Filas()) return;
    datos_.CambiarLong1(int(Spread1.Valor(fila, 2)));
}
