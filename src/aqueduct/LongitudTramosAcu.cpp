#include "aqueduct/LongitudTramosAcu.h"

#include "aqueduct/DatosAcueducto.h"
#include "aqueduct/FormatoGrid.h"
#include "aqueduct/ProyectoAcueducto.h"
#include "base/Dialogos.h"
#include "base/Nivo.h"

#include <algorithm>

namespace {
constexpr int ColumnaLongitud = 3;  // of the data screen's section grid
const QString TituloFontaria = QStringLiteral("Proyecto de Fontaria");
}  // namespace

LongitudTramosAcu::LongitudTramosAcu(DatosAcueducto& datos) : Spread1(4), datos_(datos) {
    Spread1.PonerEncabezados(1, QStringLiteral("Ramal"));
    Spread1.PonerEncabezados(2, QStringLiteral("( I )"));
    Spread1.PonerEncabezados(3, QStringLiteral("( J )"));
    Spread1.PonerEncabezados(4, QStringLiteral("Longitud"));
    FormatoColumna(Spread1, 1, TipoCelda::Entero, 0, 6);
    FormatoColumna(Spread1, 2, TipoCelda::Texto, 0, 12);
    FormatoColumna(Spread1, 3, TipoCelda::Texto, 0, 12);
    FormatoColumna(Spread1, 4, TipoCelda::Numero, 2, 10);
    Spread1.PonerFilas(1);
    ColoquePantalla(datos_.Spread1.FilaActiva());
}

int LongitudTramosAcu::MaximoScroll() const { return std::max(datos_.Spread1.Filas(), 1); }

void LongitudTramosAcu::ColoquePantalla(int fila) {
    const Grid& g = datos_.Spread1;
    if (g.Filas() == 0) return;
    fila_ = std::clamp(fila, 1, g.Filas());
    datos_.Spread1.PonerActiva(fila_, ColumnaLongitud);
    Spread1.PonerEntero(1, 1, fila_);
    Spread1.PonerTexto(1, 2, g.Texto(fila_, 1));
    Spread1.PonerTexto(1, 3, g.Texto(fila_, 2));
    Spread1.PonerNumero(1, 4, g.Valor(fila_, ColumnaLongitud), 2);
}

void LongitudTramosAcu::FijarLongitud() {
    if (datos_.Spread1.Filas() == 0) return;
    const double l = CalcularLongitud();
    if (datos_.Dialogos_().MostrarMensaje(QStringLiteral("Longitud = ") + TextoLongitud() +
                                              QStringLiteral(" m.\nFijar la Longitud del Tramo Seleccionado?"),
                                          QStringLiteral("Longitud de los Tramos..."), TituloFontaria, Botones::SiNo,
                                          1) != Respuesta::Si)
        return;
    Spread1.PonerNumero(1, 4, l, 2);
    datos_.EditarRamal(fila_, ColumnaLongitud, l);
}

void LongitudTramosAcu::Limpiar() {
    if (datos_.Dialogos_().MostrarMensaje(QStringLiteral("¡Limpiar los Valores de las Coordenadas!"),
                                          QStringLiteral("Coordenadas de los Nodos..."), TituloFontaria, Botones::SiNo,
                                          1) != Respuesta::Si)
        return;
    puntos_.Limpiar();
}

int LongitudTramosAcu::NodoExtremo(int columna) const {
    const Grid& g = datos_.Spread1;
    if (fila_ < 1 || fila_ > g.Filas()) return 0;
    const QString nombre = Trim(g.Texto(fila_, columna));
    const ProyectoAcueducto& p = datos_.Proyecto();
    for (int n = 1; n <= p.NumeroNodosACU; ++n)
        if (p.Nodos.Leer(n) == nombre) return n;
    return 0;
}

bool LongitudTramosAcu::NodosConCoordenadas() const {
    const ProyectoAcueducto& p = datos_.Proyecto();
    for (const int columna : {1, 2}) {
        const int n = NodoExtremo(columna);
        if (n == 0 || !p.X.Leer(n) || !p.Y.Leer(n)) return false;
    }
    return true;
}

bool LongitudTramosAcu::TomarDeLosNodos() {
    const ProyectoAcueducto& p = datos_.Proyecto();
    for (const int columna : {1, 2}) {
        const int n = NodoExtremo(columna);
        if (n == 0 || !p.X.Leer(n) || !p.Y.Leer(n)) {
            datos_.Dialogos_().MostrarMensaje(
                QStringLiteral("¡El Nodo ( ") + Trim(datos_.Spread1.Texto(fila_, columna)) +
                    QStringLiteral(" ) no tiene Coordenadas!\nEntre X e Y en la página de los Nodos."),
                QStringLiteral("Coordenadas de los Nodos..."), TituloFontaria);
            return false;
        }
    }
    const int i = NodoExtremo(1), j = NodoExtremo(2);
    const double valores[6] = {*p.X[i], *p.Y[i], p.CotaTerreno.Leer(i), *p.X[j], *p.Y[j], p.CotaTerreno.Leer(j)};
    for (int caja = 1; caja <= 6; ++caja) puntos_.Cambiar(caja, valores[caja - 1]);
    return true;
}
