#include "tank/Peerlees.h"

#include "base/ErrorEjecucion.h"
#include "base/Nivo.h"

Grid TablaPeerlees() {
    static const char* clases[6] = {
        "Edificios de Apartamentos, Hoteles Residenciales y Viviendas",
        "Hoteles Comerciales, Clubs",
        "Hospitales",
        "Edificios de Oficinas",
        "Escuelas",
        "Edificios Comerciales, Tiendas",
    };
    static const char* rangos[7] = {"Hasta 30 Piezas",     "De 31 a 75 Piezas",    "De 76 a 150 Piezas",
                                    "De 151 a 300 Piezas", "De 301 a 600 Piezas",  "De 601 a 1000 Piezas",
                                    "Más de 1000 Piezas"};
    static const double factores[6][7] = {
        {2.08, 1.55, 1.25, 1.06, 0.95, 0.91, 0.87}, {3.03, 2.27, 1.82, 1.59, 1.36, 1.32, 1.29},
        {3.41, 2.88, 2.38, 2.04, 1.70, 1.51, 1.44}, {3.79, 3.03, 2.46, 2.08, 1.70, 1.32, 1.02},
        {4.54, 3.41, 2.84, 2.38, 1.97, 1.57, 1.38}, {4.54, 3.63, 2.95, 2.50, 2.04, 1.82, 1.74},
    };
    Grid g(7);
    g.PonerEncabezados(0, QStringLiteral("Clase de Edificio"));
    for (int c = 1; c <= 7; ++c) {
        g.PonerEncabezados(c, QString::fromUtf8(rangos[c - 1]));
        g.Col(c).tipo = TipoCelda::Numero;
        g.Col(c).decimales = 2;
        g.Col(c).ancho = 11;
    }
    g.Col(0).ancho = 40;
    g.PonerFilas(6);
    for (int f = 1; f <= 6; ++f) {
        g.PonerTexto(f, 0, QString::fromUtf8(clases[f - 1]));
        for (int c = 1; c <= 7; ++c) g.PonerNumero(f, c, factores[f - 1][c - 1], 2);
    }
    return g;
}

QString CapturarFactorPeerlees(const Grid& tabla, int fila, int columna) {
    double v = 0.0;
    if (fila < 1 || fila > tabla.Filas() || columna < 1 || columna > tabla.Columnas() ||
        !LeerNumero(tabla.Texto(fila, columna), v))
        throw ErrorEjecucion(Error::TiposNoCoinciden);
    QString texto = QString::number(v);
    return texto.replace(QLatin1Char('.'), SeparadoresActuales().decimal);
}
