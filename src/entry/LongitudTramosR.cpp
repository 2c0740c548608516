#include "entry/LongitudTramosR.h"

#include "base/Dialogos.h"
#include "base/Nivo.h"
#include "entry/EditorRamales.h"
#include "model/ProyectoEdificio.h"
#include "shell/Sesion.h"
#include "shell/Titulos.h"

#include <algorithm>
#include <cmath>

namespace {
constexpr int ColumnaLongitud = 3;  // of the editor's branch grid
}

LongitudTramosR::LongitudTramosR(ProyectoEdificio& p, Sesion& s, Dialogos& d, EditorRamales& editor)
    : Spread1(4), p_(p), s_(s), d_(d), editor_(editor) {
    Spread1.PonerEncabezados(1, QStringLiteral("Ramal"));
    Spread1.PonerEncabezados(2, QStringLiteral("Nodo ( I )"));
    Spread1.PonerEncabezados(3, QStringLiteral("Nodo ( J )"));
    Spread1.PonerEncabezados(4, QStringLiteral("Longitud (m)"));
    const int anchos[] = {0, 6, 12, 12, 12};
    for (int c = 1; c <= 4; ++c) {
        Spread1.Col(c).tipo = TipoCelda::Texto;
        Spread1.Col(c).ancho = anchos[c];
    }
    Spread1.PonerFilas(1);
    ramal_ = std::clamp(s_.RamalActual, 1, MaximoScroll());
    ColoquePantalla();
}

QString LongitudTramosR::Titulo() { return QStringLiteral("Calcular la Longitud de los Ramales"); }

int LongitudTramosR::MaximoScroll() const { return std::max<int>(p_.NumeroRamales, 1); }

void LongitudTramosR::ColoquePantalla() {
    Spread1.PonerEntero(1, 1, ramal_);
    Spread1.PonerTexto(1, 2, editor_.TextoRamal(ramal_, 1));
    Spread1.PonerTexto(1, 3, editor_.TextoRamal(ramal_, 2));
    // The length as the editor shows it, aligned as a number.
    const QString longitud = editor_.TextoRamal(ramal_, ColumnaLongitud);
    const NumeroLeido n = LeerNumeroTecleado(longitud);
    if (n.valido)
        Spread1.PonerNumero(1, 4, n.valor, 2);
    else
        Spread1.PonerTexto(1, 4, longitud);
}

void LongitudTramosR::CambiarRamal(int ramal) {
    ramal_ = std::clamp(ramal, 1, MaximoScroll());
    editor_.IrARamal(ramal_, ColumnaLongitud);
    ColoquePantalla();
}

bool LongitudTramosR::FijarLongitud() {
    const double l = puntos_.Calcular();
    if (d_.MostrarMensaje(QStringLiteral("Longitud = ") + puntos_.TextoLongitud() +
                              QStringLiteral(" m.\n¿Fijar la Longitud del Tramo Seleccionado?"),
                          QStringLiteral("Longitud de los Tramos..."), TituloProyectoFontaria(), Botones::SiNo,
                          1) != Respuesta::Si)
        return false;
    // The length as asked, to the hundredth the branch grid shows.
    const double fijada = std::round(l * 100.0) / 100.0;
    editor_.FijarLongitud(ramal_, fijada);
    ColoquePantalla();
    puntos_.PasarJaI();
    s_.ProyectoModificado = true;
    return true;
}

bool LongitudTramosR::Limpiar() {
    if (d_.MostrarMensaje(QStringLiteral("¡Limpiar los Valores de las Coordenadas!"),
                          QStringLiteral("Coordenadas de los Nodos..."), TituloProyectoFontaria(), Botones::SiNo,
                          1) != Respuesta::Si)
        return false;
    puntos_.Limpiar();
    return true;
}
