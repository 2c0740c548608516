#include "workbook/MarcoLibro.h"

#include "base/Grid.h"
#include "base/Nivo.h"
#include "reports/TablasResultados.h"

void PonerMarco(HojaLibro& h, const CeldasMarco& c, const CabeceraLibro& cab, const QString& titulo, int filasMarco) {
    const double altos[] = {0, 20, 28, 5, 20, 5, 20, 5, 20, 5, 20, 20};
    for (int f = 1; f <= filasMarco && f <= 11; ++f) h.AltoFila(f, altos[f]);

    const Rango etiqueta = Rg(c.etiqueta);
    h.PonerTexto(etiqueta.fila1, etiqueta.columna1, cab.etiqueta);
    h.Formato(etiqueta, [](EstiloLibro& e) {
        e.horizontal = 'C';
        e.ajustar = true;
    });
    h.Unir(etiqueta);

    const Rango empresa = Rg(c.empresa);
    h.PonerTexto(empresa.fila1, empresa.columna1, cab.empresa);
    h.Formato(empresa, [](EstiloLibro& e) {
        e.tamano = 13;
        e.negrita = true;
        e.ajustar = true;
    });
    h.Unir(empresa);

    const std::pair<const char*, QString> lineas[] = {{c.proyecto, QStringLiteral("PROYECTO: ") + cab.proyecto},
                                                      {c.calculista, QStringLiteral("CALCULISTA: ") + cab.calculista}};
    for (const auto& [celdas, texto] : lineas) {
        const Rango r = Rg(celdas);
        h.PonerTexto(r.fila1, r.columna1, texto);
        h.Formato(r, [](EstiloLibro& e) {
            e.horizontal = 'I';
            e.tamano = 10;
        });
        h.Unir(r);
    }

    const Rango t = Rg(c.titulo);
    h.PonerTexto(t.fila1, t.columna1, titulo);
    h.Formato(t, [](EstiloLibro& e) {
        e.horizontal = 'I';
        e.tamano = 13;
        e.negrita = true;
        e.letra = ColoresLibro::AzulOscuro;
    });
    h.Unir(t);
}

void Formatos(HojaLibro& h, int ultima, std::initializer_list<FormatoRango> formatos) {
    for (const FormatoRango& f : formatos) h.Formato(Rg(f.rango, ultima), f.cambio);
}

HojaLibro HojaIndice(const CeldasMarco& c, const CabeceraLibro& cab, const QString& titulo, bool color,
                     std::initializer_list<double> anchos) {
    HojaLibro h(QStringLiteral("INDICE GENERAL"));
    h.Anchos(anchos);
    PonerMarco(h, c, cab, titulo);
    h.Formato(c.titulo, [color](EstiloLibro& e) {
        e.horizontal = 'C';
        e.tamano = 12;
        if (color) e.fondo = ColoresLibro::Encabezado;
    });
    // The first line takes the place of the frame's narrow row.
    h.AltoFila(9, 20);
    h.Seleccionar("B9");
    return h;
}

void PonerRetorno(HojaLibro& h, const char* celda, int filaIndice) {
    const Rango r = Rg(celda);
    h.PonerVinculo(r.fila1, r.columna1, QStringLiteral("'INDICE GENERAL'!B%1").arg(filaIndice),
                   QStringLiteral("Retorno"));
    h.Formato(r, [](EstiloLibro& e) {
        e.horizontal = 'C';
        e.subrayado = true;
        e.letra = ColoresLibro::AzulOscuro;
    });
}

void PonerEntradaIndice(HojaLibro& h, int fila, const QString& texto, const QString& destino) {
    h.PonerVinculo(fila, 2, destino, texto);
    const Rango r{fila, 2, fila, 4};
    h.Formato(r, [](EstiloLibro& e) {
        e.horizontal = 'I';
        e.subrayado = true;
        e.letra = ColoresLibro::AzulOscuro;
    });
    h.Unir(r);
}

int EscribirBloque(HojaLibro& h, const Grid& g, const char* ancla, int encabezados) {
    const Rango a = Rg(ancla);
    for (int e = 1; e <= encabezados; ++e)
        for (int c = 0; c <= g.Columnas(); ++c) {
            const QString t = Trim(g.Encabezado(e, c));
            if (!t.isEmpty()) h.PonerTexto(a.fila1 + e, a.columna1 + c, t);
        }
    const int primera = a.fila1 + encabezados + 1;
    for (int f = 1; f <= g.Filas(); ++f)
        for (int c = 0; c <= g.Columnas(); ++c) {
            double v = 0.0;
            if (NumeroMostrado(g, f, c, false, v))
                h.PonerNumero(primera + f - 1, a.columna1 + c, v);
            else
                h.PonerTexto(primera + f - 1, a.columna1 + c, Trim(g.Texto(f, c)));
        }
    return primera + g.Filas() - 1;
}
