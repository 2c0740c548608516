#include "workbook/LibroEdificio.h"

#include "analysis/AnalisisRed.h"
#include "base/Nivo.h"
#include "model/ProyectoEdificio.h"
#include "shell/Sesion.h"
#include "shell/Titulos.h"
#include "workbook/EscrituraLibro.h"

namespace {

using E = EstiloLibro;

struct HojaEdificio {
    const char* nombre;
    const char* tituloIndice;
    const char* destino;     // where the index's link lands
    const char* progreso;
    int valor;
    CeldasMarco celdas;
    const char* altura;      // the tank height text
    const char* retorno;
    const char* ancla;
};

const HojaEdificio kHojas[4] = {
    {"PREDIMENSIONADO", "PREDIMENSIONADO DE LOS RAMALES", "'PREDIMENSIONADO'!C12",
     "PRESIMENSIONADO DE LA RED DE FONTARIA", 25, {"K2", "B2:G2", "B4:K4", "B6:F6", "B8:K8"}, "K6", "K6", "B9"},
    {"UNIDADES DE GASTO", "TABLA DE UNIDADES DE GASTO Y GASTO PROBABLE", "'UNIDADES DE GASTO'!D12",
     "TABLA DE UNIDADES DE GASTO Y GASTO PROBABLE", 50, {"H2:J2", "B2:G2", "B4:K4", "B6:F6", "B8:J8"}, "H6:J6",
     "J6", "A9"},
    {"LONGITUDES EQUIVALENTES", "LONGITUDES EQUIVALENTES POR CONEXIONES Y REDUCCIONES",
     "'LONGITUDES EQUIVALENTES'!D12", "TABLA DE LONGITUDES EQUIVALENTES", 75,
     {"H2:J2", "B2:G2", "B4:K4", "B6:F6", "B8:J8"}, "H6:J6", "J6", "A9"},
    {"PERDIDAS Y PRESIONES", "PÉRDIDAS EN LOS RAMALES Y PRESIONES DISPONIBLES EN LOS NODOS",
     "'PERDIDAS Y PRESIONES'!E12", "TABLA PERDIDAS Y PRESIONES DISPONIBLES", 100,
     {"P2:Q2", "B2:G2", "B4:K4", "B6:F6", "B8:Q8"}, "O6:Q6", "L6", "B9"},
};

void Centrado(E& e) { e.horizontal = 'C'; }
void Izquierda(E& e) { e.horizontal = 'I'; }
std::function<void(E&)> Derecha(const char* formato) {
    return [formato](E& e) {
        e.horizontal = 'D';
        e.formato = QString::fromLatin1(formato);
    };
}
std::function<void(E&)> CentradoCon(const char* formato) {
    return [formato](E& e) {
        e.horizontal = 'C';
        e.formato = QString::fromLatin1(formato);
    };
}
std::function<void(E&)> Fondo(int color) {
    return [color](E& e) { e.fondo = color; };
}
std::function<void(E&)> Letra(int color) {
    return [color](E& e) { e.letra = color; };
}

// The two header rows: alignment, colours and joined groups.
void Encabezados(HojaLibro& h, const char* fila10, const char* fila11, bool color10, bool color11,
                 std::initializer_list<const char*> uniones, std::initializer_list<const char*> bordes,
                 bool ajustar10 = false) {
    h.Formato(fila10, [&](E& e) {
        e.horizontal = 'C';
        e.ajustar = e.ajustar || ajustar10;
        if (color10) e.fondo = ColoresLibro::Encabezado;
    });
    h.Formato(fila11, [&](E& e) {
        e.horizontal = 'C';
        if (color11) e.fondo = ColoresLibro::Subencabezado;
    });
    for (const char* u : uniones) h.Unir(Rg(u));
    for (const char* b : bordes) h.TodosLosBordes(Rg(b));
}

// The rows of each branch in the sheets of several rows per branch: a new
// block starts where column B holds a value.  B and C are joined over the
// block, whose outline and columns get lines.
void BloquesRamales(HojaLibro& h, int ultima) {
    int inicio = 12;
    auto cerrar = [&](int fin) {
        if (fin < inicio) return;
        if (fin > inicio) {
            h.Unir({inicio, 2, fin, 2});
            h.Unir({inicio, 3, fin, 3});
        }
        h.Bordes({inicio, 2, fin, 10}, true, true, true, true, false, true);
    };
    for (int f = 13; f <= ultima; ++f)
        if (h.Celda(f, 2).tipo != CeldaLibro::Vacia) {
            cerrar(f - 1);
            inicio = f;
        }
    cerrar(ultima);
}

bool Distintas(const CeldaLibro& a, const CeldaLibro& b) {
    return a.tipo != b.tipo || (a.tipo == CeldaLibro::Numero ? a.numero != b.numero : a.texto != b.texto);
}

void HojaPredimensionado(HojaLibro& h, const OpcionesLibro& o, int u) {
    h.Anchos({6, 7, 11, 11, 13, 13, 13, 13, 13, 13, 40});
    Encabezados(h, "B10:K10", "C11:J11", true, true,
                {"B10:B11", "C10:D10", "E10:E11", "F10:F11", "G10:H10", "I10:J10", "K10:K11"}, {});
    h.Formato("E10:E11", [](E& e) { e.ajustar = true; });
    Formatos(h, u,
             {{"B12:D", Centrado},
              {"E12:F", Derecha("#,##0.00")},
              {"G12:G", Centrado},
              {"H12:H", Derecha("#,##0.00")},
              {"I12:I", Centrado},
              {"J12:J", Derecha("#,##0.00")},
              {"K12:K", Izquierda}});
    // The assumed size (I) differs from the computed one (G).
    for (int f = 12; f <= u; ++f)
        if (Distintas(h.Celda(f, 7), h.Celda(f, 9))) h.Formato(Rango{f, 9, f, 9}, Fondo(43));
    if (o.color) {
        h.Formato(Rg("C12:D", u), Fondo(41));
        h.Formato(Rg("G12:G", u), Fondo(42));
    }
    h.TodosLosBordes(Rg("B12:K", u));
    for (const char* b : {"C10:D10", "G10:J10", "B11:K11"}) h.TodosLosBordes(Rg(b));
    h.Inmovilizar("A12");
    h.Seleccionar("C12");
}

void HojaUnidades(HojaLibro& h, const OpcionesLibro& o, int u) {
    h.Anchos({6, 11, 11, 42, 10, 13, 13, 13, 13, 10});
    Encabezados(h, "B10:J10", "B11:H11", true, true, {"B10:C10", "D10:D11", "E10:H10", "I10:I11", "J10:J11"},
                {"B10:C10", "E10:H10", "B11:J11"});
    Formatos(h, u,
             {{"B12:C", Centrado},
              {"D12:D", Izquierda},
              {"E12:E", CentradoCon("#,##0")},
              {"F12:I", Derecha("#,##0.00")},
              {"J12:J", CentradoCon("#,##0")}});
    BloquesRamales(h, u);
    if (o.color) {
        for (const char* c : {"B12:B", "C12:C", "J12:J"}) h.Formato(Rg(c, u), Fondo(41));
        h.Formato(Rg("I12:I", u), Fondo(42));
    }
    h.Inmovilizar("A12");
    h.Seleccionar("D12");
}

void HojaLongitudes(HojaLibro& h, const Grid& g, const OpcionesLibro& o, int u) {
    h.Anchos({6, 11, 11, 42, 13, 8, 13, 13, 13, 10});
    Encabezados(h, "B10:J10", "B11:I11", true, true,
                {"B10:C10", "D10:D11", "E10:E11", "F10:F11", "G10:I10", "J10:J11"},
                {"B10:C10", "G10:I10", "B11:J11"}, true);
    Formatos(h, u,
             {{"B12:C", Centrado},
              {"D12:D", Izquierda},
              {"E12:E", Centrado},
              {"F12:F", CentradoCon("#,##0")},
              {"G12:I", CentradoCon("#,##0.00")},
              {"J12:J", CentradoCon("#,##0")}});
    BloquesRamales(h, u);
    // A row the grid shows in red keeps its description and length in red.
    for (int f = 1; f <= g.Filas(); ++f)
        for (int c = 0; c <= g.Columnas(); ++c)
            if (g.Cel(f, c).colorTexto == ColorRojo) {
                h.Formato(Rango{f + 11, 4, f + 11, 4}, Letra(ColoresLibro::Rojo));
                h.Formato(Rango{f + 11, 8, f + 11, 8}, Letra(ColoresLibro::Rojo));
                break;
            }
    if (o.color) {
        for (const char* c : {"B12:B", "C12:C", "J12:J"}) h.Formato(Rg(c, u), Fondo(41));
        h.Formato(Rg("E12:E", u), Fondo(42));
        h.Formato(Rg("I12:I", u), Fondo(43));
    }
    h.Inmovilizar("A12");
    h.Seleccionar("D12");
}

void HojaPerdidas(HojaLibro& h, const Grid& g, const OpcionesLibro& o, int u) {
    h.Anchos({6, 8, 11, 11, 13, 13, 13, 13, 13, 13, 13, 13, 13, 13, 13, 13, 14});
    Encabezados(h, "B10:Q10", "C11:N11", o.color, o.color,
                {"B10:B11", "C10:D10", "E10:E11", "F10:F11", "G10:I10", "J10:J11", "K10:L10", "M10:N10",
                 "O10:O11", "P10:P11", "Q10:Q11"},
                {}, true);
    Formatos(h, u,
             {{"B12:D", Centrado},
              {"E12:E", Derecha("#,##0.00")},
              {"F12:F", Centrado},
              {"G12:J", Derecha("#,##0.00")},
              {"K12:K", Derecha("#,##0.0000")},
              {"L12:Q", Derecha("#,##0.00")},
              {"Q12:Q", Letra(ColoresLibro::Rojo)}});
    if (o.color) {
        for (const char* c : {"C12:D", "Q12:Q"}) h.Formato(Rg(c, u), Fondo(41));
        h.Formato(Rg("F12:F", u), Fondo(42));
        for (int f = 12; f <= u; ++f) {
            if (h.Celda(f, 15).tipo != CeldaLibro::Vacia) h.Formato(Rango{f, 15, f, 15}, Fondo(42));
            if (h.Celda(f, 16).tipo != CeldaLibro::Vacia) h.Formato(Rango{f, 16, f, 16}, Fondo(44));
            // The pressure column as the screen marks it: above the most
            // allowed, and the unfavourable node over that.
            const int marca = g.Cel(f - 11, 15).colorFondo;
            if (marca == ColoresAnalisis::PresionMaxima) h.Formato(Rango{f, 17, f, 17}, Fondo(46));
            if (marca == ColoresAnalisis::NodoDesfavorable) h.Formato(Rango{f, 17, f, 17}, Fondo(43));
        }
    }
    h.TodosLosBordes(Rg("B12:Q", u));
    for (const char* b : {"C10:D10", "G10:I10", "K10:N10", "B11:Q11"}) h.TodosLosBordes(Rg(b));
    if (o.inmovilizar) {
        h.Inmovilizar("G12");
    }
    h.Seleccionar("E12");
}

CabeceraLibro Cabecera(const ProyectoEdificio& p, const Sesion& s, const OpcionesLibro& o) {
    CabeceraLibro c{s.NombreUsuario, p.Proyecto, p.Calculista,
                    QStringLiteral("Nivo-Fontaria ") + EtiquetaVersion()};
    if (o.conFecha) c.etiqueta += QStringLiteral("\nFecha: ") + o.fecha;
    return c;
}

// ColoqueIndiceExcel: the four lines are written whichever sheets go, so
// that each sheet's line stays on its row.
HojaLibro IndiceEdificio(const CabeceraLibro& cab, const OpcionesLibro& o) {
    HojaLibro h = HojaIndice({"C2:D2", "B2", "B4:K4", "B6:F6", "B8:D8"}, cab,
                             QStringLiteral("ÍNDICE GENERAL DEL ANÁLISIS Y DISEÑO DE LA RED DE FONTARIA"), o.color,
                             {6, 62, 14, 14});
    for (int k = 0; k < 4; ++k)
        PonerEntradaIndice(h, 9 + k, QString::fromUtf8(kHojas[k].tituloIndice), QString::fromUtf8(kHojas[k].destino));
    return h;
}

}  // namespace

std::vector<HojaLibro> HojasLibroEdificio(const AnalisisRed& a, const ProyectoEdificio& p, const Sesion& s,
                                          const OpcionesLibro& o, const ProgresoLibro& progreso) {
    const CabeceraLibro cab = Cabecera(p, s, o);
    std::vector<HojaLibro> hojas;
    if (progreso) progreso(25, QStringLiteral("CREANDO EL ÍNDICE GENERAL"));
    if (o.indice) hojas.push_back(IndiceEdificio(cab, o));
    const Grid* grids[4] = {&a.Spread4, &a.Spread1, &a.Spread2, &a.Spread3};
    int hojasExcel = int(hojas.size());
    for (int k = 0; k < 4; ++k) {
        if (!o.hojas[k]) continue;
        const HojaEdificio& d = kHojas[k];
        if (progreso) progreso(d.valor, QString::fromUtf8(d.progreso));
        ++hojasExcel;
        HojaLibro h(QString::fromUtf8(d.nombre));
        PonerMarco(h, d.celdas, cab, QString::fromUtf8(d.tituloIndice));
        if (p.OpcionPresionInicial == 2) {
            Rango r = Rg(d.altura);
            // The link's cell stays out of the joined text (the first sheet's
            // single cell takes the link over the text).
            if (o.indice && r.columna2 > r.columna1 && Rg(d.retorno).columna1 == r.columna2) --r.columna2;
            h.PonerTexto(r.fila1, r.columna1,
                         QStringLiteral("Altura del Tanque Elevado = ") + Formato(a.Double1, QStringLiteral("#,##0.00")) +
                             QStringLiteral(" m"));
            h.Formato(r, [](E& e) { e.horizontal = 'D'; });
            h.Unir(r);
        }
        // The return leads to the index's line of the sheet counted so far,
        // which is that sheet's own when every earlier one was chosen.
        if (o.indice) PonerRetorno(h, d.retorno, hojasExcel + 7);
        const int u = EscribirBloque(h, *grids[k], d.ancla, 2);
        switch (k) {
        case 0: HojaPredimensionado(h, o, u); break;
        case 1: HojaUnidades(h, o, u); break;
        case 2: HojaLongitudes(h, *grids[k], o, u); break;
        default: HojaPerdidas(h, *grids[k], o, u); break;
        }
        hojas.push_back(std::move(h));
    }
    return hojas;
}

bool ExportarPantallaExcel(const AnalisisRed& a, const ProyectoEdificio& p, const Sesion& s,
                           const OpcionesLibro& o, const QString& archivo, QString& error,
                           const ProgresoLibro& progreso) {
    return EscribirLibro(HojasLibroEdificio(a, p, s, o, progreso), archivo, error);
}
