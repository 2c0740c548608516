#pragma once
// What the two result workbooks share: the options of their option screens,
// the page frame of every sheet and the block of cells read from a grid as
// the screen shows it.

#include "workbook/HojaLibro.h"

#include <QString>
#include <functional>

class Grid;

// The choices of the option screen.  `hojas` are the sheets in the order of
// the workbook (building: pre-sizing, fixture units, equivalent lengths,
// losses and pressures; aqueduct: sections, nodes).
struct OpcionesLibro {
    bool hojas[4] = {true, true, true, true};
    bool indice = true;       // ExcelIndice: the index sheet and the return links
    bool inmovilizar = true;  // ExcelInmovilizar
    bool color = true;        // ExcelColor: interior colours
    bool conFecha = true;     // ExcelConFecha
    QString fecha;            // ExcelFecha, "dd/MM/yyyy"
};

// Progress of an export: a value 0..100 and the text of the step.
using ProgresoLibro = std::function<void(int valor, const QString& texto)>;

// The head of every sheet: the engineer's office, project and engineer.
struct CabeceraLibro {
    QString empresa, proyecto, calculista;
    QString etiqueta;  // the text of the date cell
};

// Where a sheet's frame puts its texts.
struct CeldasMarco {
    const char* etiqueta;
    const char* empresa;
    const char* proyecto;
    const char* calculista;
    const char* titulo;
};

namespace ColoresLibro {
constexpr int Rojo = 3;
constexpr int AzulOscuro = 25;    // titles and links
constexpr int Encabezado = 40;
constexpr int Subencabezado = 55;
}  // namespace ColoresLibro

// Normal style, row heights of rows 1 to `filasMarco`, the four texts and the
// sheet's title.
void PonerMarco(HojaLibro& h, const CeldasMarco& c, const CabeceraLibro& cab, const QString& titulo,
                int filasMarco = 11);
// Formats of the data columns, each "B12:D" range down to the row `ultima`.
struct FormatoRango {
    const char* rango;
    std::function<void(EstiloLibro&)> cambio;
};
void Formatos(HojaLibro& h, int ultima, std::initializer_list<FormatoRango> formatos);

// The head of the sheet "INDICE GENERAL" with its title; the lines start at
// row 9.
HojaLibro HojaIndice(const CeldasMarco& c, const CabeceraLibro& cab, const QString& titulo, bool color,
                     std::initializer_list<double> anchos);

// "Retorno", linked to row `filaIndice` of the index sheet.
void PonerRetorno(HojaLibro& h, const char* celda, int filaIndice);
// The link of the index to a sheet, over B:D of row `fila`.
void PonerEntradaIndice(HojaLibro& h, int fila, const QString& texto, const QString& destino);

// The grid below the anchor: its header rows (`encabezados`, 1 or 2) on the
// rows after the anchor's, then its rows; grid column 0 on the anchor's
// column.  A body cell that reads as a number with the session's marks is
// stored as one, any other as its trimmed text.  Returns the last row written.
int EscribirBloque(HojaLibro& h, const Grid& g, const char* ancla, int encabezados);
