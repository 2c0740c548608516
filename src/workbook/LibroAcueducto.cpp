#include "workbook/LibroAcueducto.h"

#include "aqueduct/AnalisisACU.h"
#include "aqueduct/ProyectoAcueducto.h"
#include "base/Nivo.h"
#include "shell/Sesion.h"
#include "shell/Titulos.h"
#include "workbook/EscrituraLibro.h"

namespace {

using E = EstiloLibro;

struct HojaAcueducto {
    const char* nombre;
    const char* tituloIndice;
    const char* destino;
    const char* titulo;
    CeldasMarco celdas;
    const char* caso;
    const char* retorno;
};

const HojaAcueducto kHojas[2] = {
    {"RESULTADOS RAMALES", "RESULTADO DEL ANÁLIIS DE LOS TRAMOS", "'RESULTADOS RAMALES'!C12",
     "RESULTADOS DEL ANÁLISIS DE LOS RAMALES", {"K2:L2", "B2:G2", "B4:K4", "B6:F6", "B8:L8"}, "H6:J6", "L6"},
    {"RESULTADOS NODOS", "RESULTADO DEL ANÁLISIS DE LOS NODOS", "'RESULTADOS NODOS'!C11",
     "RESULTADOS DEL ANÁLISIS DE LOS NODOS", {"J2:J2", "B2:G2", "B4:K4", "B6:F6", "B8:J8"}, "G6:I6", "J6"},
};

std::function<void(E&)> ConFormato(const char* formato, char alineacion = 0) {
    return [formato, alineacion](E& e) {
        e.formato = QString::fromLatin1(formato);
        if (alineacion) e.horizontal = alineacion;
    };
}
std::function<void(E&)> Fondo(int color) {
    return [color](E& e) { e.fondo = color; };
}

// The joined header cells of the grid itself, on the sheet.
void UnionesDelGrid(HojaLibro& h, const Grid& g, int filaEncabezado, int columnaAncla) {
    for (const Union& u : g.UnionesEncabezado())
        h.Unir({filaEncabezado + u.fila - 1, columnaAncla + u.columna, filaEncabezado + u.fila + u.filas - 2,
                columnaAncla + u.columna + u.columnas - 1});
}

void HojaRamales(HojaLibro& h, const Grid& g, const OpcionesLibro& o, int u) {
    h.Anchos({6, 7, 11, 11, 13, 13, 13, 13, 13, 13, 13, 13});
    h.Formato("B10:L11", [](E& e) {
        e.horizontal = 'C';
        e.fondo = ColoresLibro::Encabezado;
    });
    h.Unir(Rg("B10:B11"));
    h.Unir(Rg("C10:D10"));
    UnionesDelGrid(h, g, 10, 2);
    Formatos(h, u,
             {{"B12:D", ConFormato("@", 'C')},
              {"E12:F", ConFormato("#,##0.00")},
              {"G12:G", ConFormato("#,##0.000")},
              {"H12:H", ConFormato("#,##0")},
              {"I12:I", ConFormato("#,##0.000")},
              {"J12:J", ConFormato("#,##0.00")},
              {"K12:L", ConFormato("#,##0.000")}});
    // A section whose flow runs against its direction.
    for (int f = 12; f <= u; ++f) {
        const CeldaLibro& caudal = h.Celda(f, 9);
        if (caudal.tipo == CeldaLibro::Numero && caudal.numero < 0)
            h.Formato(Rango{f, 9, f, 12}, [](E& e) { e.letra = ColoresLibro::Rojo; });
    }
    if (o.color) {
        h.Formato(Rg("C12:C", u), Fondo(41));
        h.Formato(Rg("D12:D", u), Fondo(41));
    }
    h.TodosLosBordes(Rg("B12:L", u));
    h.TodosLosBordes(Rg("C10:L10"));
    h.TodosLosBordes(Rg("B11:L11"));
    if (o.inmovilizar) {
        h.Inmovilizar("C12");
    }
    h.Seleccionar("C12");
}

void HojaNodos(HojaLibro& h, const Grid& g, const OpcionesLibro& o, int u) {
    h.Anchos({6, 7, 13, 13, 13, 13, 13, 13, 13, 43});
    // The headers of two lines need the room of two.
    h.AltoFila(10, 26);
    h.Formato("B10:J10", [](E& e) {
        e.horizontal = 'C';
        e.ajustar = true;
        e.fondo = ColoresLibro::Encabezado;
    });
    h.Formato(Rg("B11:B", u), [](E& e) { e.horizontal = 'C'; });
    Formatos(h, u,
             {{"C11:C", ConFormato("#,##0", 'C')},
              {"D11:D", ConFormato("#,##0.00")},
              {"E11:F", ConFormato("#,##0.000")},
              {"G11:H", ConFormato("#,##0.00")},
              {"I11:I", ConFormato("#,##0")},
              {"J11:J", ConFormato("@", 'I')}});
    // The lowest and the highest pressure, as the screen marks them.
    for (int f = 1; f <= g.Filas(); ++f) {
        const int marca = g.Cel(f, 6).colorFondo;
        if (marca == ColorPresionMinima) h.Formato(Rango{f + 10, 8, f + 10, 8}, Fondo(42));
        if (marca == ColorPresionMaxima) h.Formato(Rango{f + 10, 8, f + 10, 8}, Fondo(43));
    }
    if (o.color) {
        h.Formato(Rg("C11:C", u), Fondo(41));
        h.Formato(Rg("I11:I", u), Fondo(44));
        h.Formato(Rg("J11:J", u), Fondo(41));
    }
    h.TodosLosBordes(Rg("B11:J", u));
    h.TodosLosBordes(Rg("B10:J10"));
    if (o.inmovilizar) {
        h.Inmovilizar("C11");
    }
    h.Seleccionar("C11");
}

}  // namespace

std::vector<HojaLibro> HojasLibroAcueducto(const AnalisisACU& a, const ProyectoAcueducto& p, const Sesion& s,
                                           const OpcionesLibro& o, const ProgresoLibro& progreso) {
    CabeceraLibro cab{s.NombreUsuario, p.Proyecto, p.Calculista, QString()};
    cab.etiqueta = o.conFecha ? QStringLiteral("Nivo-Fontaria ") + EtiquetaVersion() + QStringLiteral("\nFecha: ") + o.fecha
                              : QStringLiteral("Nivo-Redes ") + EtiquetaVersion();
    const QString caso = QStringLiteral("Demanda: ( ") + a.Combo1.value(p.CasoDemanda - 1) + QStringLiteral(" )");

    std::vector<HojaLibro> hojas;
    if (progreso && o.indice) progreso(25, QStringLiteral("CREANDO EL ÍNDICE GENERAL"));
    if (o.indice)
        hojas.push_back(HojaIndice({"C2:E2", "B2:B2", "B4:E4", "B6:B6", "B8:D8"}, cab,
                                   QStringLiteral("ÍNDICE GENERAL DEL ANÁLISIS DE LA RED DE ACUEDUCTOS"), o.color,
                                   {2, 48, 14, 14, 14}));
    const Grid* grids[2] = {&a.Spread1, &a.Spread2};
    int lineaIndice = 8;
    for (int k = 0; k < 2; ++k) {
        if (!o.hojas[k]) continue;
        const HojaAcueducto& d = kHojas[k];
        if (progreso) progreso(k == 0 ? 50 : 100, QString::fromUtf8(d.titulo));
        HojaLibro h(QString::fromUtf8(d.nombre));
        PonerMarco(h, d.celdas, cab, QString::fromUtf8(d.titulo), k == 0 ? 11 : 10);
        const Rango rc = Rg(d.caso);
        h.PonerTexto(rc.fila1, rc.columna1, caso);
        h.Formato(rc, [](E& e) { e.horizontal = 'C'; });
        h.Unir(rc);
        ++lineaIndice;
        if (o.indice) {
            PonerRetorno(h, d.retorno, lineaIndice);
            PonerEntradaIndice(hojas.front(), lineaIndice, QString::fromUtf8(d.tituloIndice),
                               QString::fromUtf8(d.destino));
        }
        const int u = EscribirBloque(h, *grids[k], "B9", k == 0 ? 2 : 1);
        if (k == 0)
            HojaRamales(h, *grids[k], o, u);
        else
            HojaNodos(h, *grids[k], o, u);
        hojas.push_back(std::move(h));
    }
    return hojas;
}

bool ExportarPantallaExcel(const AnalisisACU& a, const ProyectoAcueducto& p, const Sesion& s,
                           const OpcionesLibro& o, const QString& archivo, QString& error,
                           const ProgresoLibro& progreso) {
    return EscribirLibro(HojasLibroAcueducto(a, p, s, o, progreso), archivo, error);
}
