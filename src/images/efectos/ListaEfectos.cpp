#include "images/efectos/ListaEfectos.h"

#include "images/efectos/EfectoImagenNivo.h"
#include "images/efectos/EfectosRGB.h"
#include "images/efectos/Tramados.h"

ListaEfectos::ListaEfectos(const QStringList& nombres, Funcion efecto, const QString& encabezado,
                           const QString& titulo, bool conCheck1)
    : Spread1(1), efecto_(efecto), titulo_(titulo), conCheck1_(conCheck1) {
    // FillSpread: one locked row per effect, its number in the row header.
    Spread1.PonerEncabezados(1, encabezado);
    Spread1.Col(1).ancho = 24;
    Spread1.PonerFilas(int(nombres.size()));
    for (int f = 1; f <= nombres.size(); ++f) {
        Spread1.PonerEntero(f, 0, f);
        Spread1.PonerTexto(f, 1, nombres[f - 1]);
    }
    Spread1.PonerActiva(1, 1);
}

void ListaEfectos::Cargar(const QImage& imagen, bool reducida) {
    imagen_ = imagen;
    PonerReducida(reducida);
}

void ListaEfectos::PonerReducida(bool reducida) {
    muestra_ = reducida ? ImagenReducida(imagen_) : imagen_;
    origen_ = muestra_.isNull() ? Pixeles() : LeerPixeles(muestra_);
    vista_ = muestra_;
}

void ListaEfectos::ElegirFila(int fila) {
    if (fila < 1 || fila > Spread1.Filas()) return;
    fila_ = fila;
    Spread1.PonerActiva(fila, 1);
    if (origen_.W == 0) return;
    Pixeles d;
    efecto_(d, origen_, origen_.W, origen_.H, fila);
    vista_ = PintarPixeles(d);
}

void ListaEfectos::PonerCheck1(bool si) {
    check1_ = si;
    PonerReducida(si);
    ElegirFila(Fila());
}

ListaEfectos RGBColors() {
    return ListaEfectos(NombresEfectosRGB(), RGBEffectsCALC, QStringLiteral("Efectos RGB"),
                        QStringLiteral("Efectos RGB"), false);
}

ListaEfectos Dithering() {
    return ListaEfectos(NombresDithering(), AplicarDithering, QStringLiteral("Método"), QStringLiteral("Dithering"),
                        true);
}
