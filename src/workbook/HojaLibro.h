#pragma once
// A worksheet held in memory while the exporters lay it out: cells, their
// styles, joined ranges, links, column widths, row heights and the frozen
// pane.  The exporters work as one works on a spreadsheet, by ranges ("B12:D"
// down to the last row), and EscribirLibro turns the finished sheets into an
// .xlsx file.  Rows and columns count from 1 (A = 1), as a spreadsheet's do.

#include <QString>
#include <functional>
#include <initializer_list>
#include <vector>

// Colours are the spreadsheet's colour indices (1..56) resolved through the
// workbook palette (ColorPaleta); 0 is none / automatic.
struct EstiloLibro {
    double tamano = 9;
    bool negrita = false;
    bool subrayado = false;
    bool ajustar = false;       // wrap text
    char horizontal = 0;        // 0 general, 'I' left, 'C' centre, 'D' right
    char vertical = 'C';        // 'C' centre, 'A' bottom
    int fondo = 0;
    int letra = 0;
    QString formato;            // number format; empty is General
    unsigned char bordes = 0;   // Borde* bits
    bool operator==(const EstiloLibro& o) const;
};

namespace Borde {
constexpr unsigned char Izquierdo = 1, Superior = 2, Derecho = 4, Inferior = 8;
}

// The 24-bit RGB (0xRRGGBB) of a colour index: the workbook palette where
// it sets one, the spreadsheet's default palette otherwise.
unsigned ColorPaleta(int indice);

struct Rango {
    int fila1 = 0, columna1 = 0, fila2 = 0, columna2 = 0;
    bool Vacio() const { return fila2 < fila1 || columna2 < columna1; }
};
// "B10:K10", "K2", or "B12:D" whose end takes the row `ultima`.
Rango Rg(const char* a1, int ultima = 0);
// "C12" from a row and column.
QString Referencia(int fila, int columna);

struct CeldaLibro {
    enum Tipo : unsigned char { Vacia, Numero, Texto };
    QString texto;
    double numero = 0.0;
    int estilo = 0;
    Tipo tipo = Vacia;
};

struct VinculoLibro {
    int fila = 0, columna = 0;
    QString destino;  // a place in the workbook: "'INDICE GENERAL'!B9"
    QString texto;
};

class HojaLibro {
public:
    explicit HojaLibro(const QString& nombre);

    QString Nombre() const { return nombre_; }
    int UltimaFila() const { return int(filas_.size()) - 1; }
    int UltimaColumna() const { return columnas_; }

    void PonerNumero(int fila, int columna, double valor);
    void PonerTexto(int fila, int columna, const QString& texto);
    const CeldaLibro& Celda(int fila, int columna) const;
    const EstiloLibro& Estilo(int fila, int columna) const;
    const EstiloLibro& EstiloNumero(int indice) const { return estilos_[size_t(indice)]; }
    int Estilos() const { return int(estilos_.size()); }

    // Changes the style of every cell of the range.
    void Formato(const Rango& r, const std::function<void(EstiloLibro&)>& cambio);
    void Formato(const char* a1, const std::function<void(EstiloLibro&)>& cambio) { Formato(Rg(a1), cambio); }
    // Borders drawn with one thin line: the four sides of the range, and the
    // lines between its rows and between its columns, each when asked.
    void Bordes(const Rango& r, bool izquierdo, bool superior, bool derecho, bool inferior, bool horizontales,
                bool verticales);
    void TodosLosBordes(const Rango& r) { Bordes(r, true, true, true, true, true, true); }
    // Joins a range; only its first cell keeps a value.  A single cell is
    // left alone.
    void Unir(const Rango& r);
    const std::vector<Rango>& Uniones() const { return uniones_; }

    void PonerVinculo(int fila, int columna, const QString& destino, const QString& texto);
    const std::vector<VinculoLibro>& Vinculos() const { return vinculos_; }

    // Widths in characters, heights in points.
    void AnchoColumnas(int desde, int hasta, double ancho);
    // The widths of the columns from A on.
    void Anchos(std::initializer_list<double> anchos);
    double AnchoColumna(int columna) const;
    void AltoFila(int fila, double alto);
    double AltoFilaFijado(int fila) const;  // 0 when the sheet's default
    double altoPorDefecto = 20;

    // Rows above and columns left of (fila, columna) stay in place; 0, 0 none.
    int inmovilizarFila = 0, inmovilizarColumna = 0;
    int seleccionFila = 1, seleccionColumna = 1;
    void Inmovilizar(const char* celda);
    void Seleccionar(const char* celda);

private:
    CeldaLibro& Asegurar(int fila, int columna);
    int Internar(const EstiloLibro& e);

    QString nombre_;
    std::vector<std::vector<CeldaLibro>> filas_;  // row 0 unused
    int columnas_ = 0;
    std::vector<EstiloLibro> estilos_;  // 0 is the sheet's normal style
    std::vector<Rango> uniones_;
    std::vector<VinculoLibro> vinculos_;
    std::vector<double> anchos_;        // by column, 0 default
    std::vector<double> altos_;         // by row, 0 default
};
