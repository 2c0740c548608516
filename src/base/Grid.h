#pragma once
// A table of cells as the screens show it: two header rows, a row header in
// column 0, text or number cells, colours, locks and joined cells.  Screen
// logic fills a Grid; the desktop view draws it, and reports, workbooks and
// the command line read the same cells.

#include <QImage>
#include <QString>
#include <QStringList>
#include <memory>
#include <vector>

// Colours are 0x00BBGGRR numbers (red in the low byte), as the screens give
// them; SinColor leaves the view's default.
constexpr int SinColor = -1;
constexpr int ColorBlanco = 0xFFFFFF;
constexpr int ColorNegro = 0x000000;
constexpr int ColorRojo = 0x0000FF;

enum class TipoCelda : unsigned char {
    Heredado,  // the column's type (cells only)
    Texto,
    Numero,    // a double shown with the column's decimals
    Entero,
    Lista,     // drop-down list of the column's `lista`
    Imagen,    // a picture cell (the view asks the screen for it)
};

struct Celda {
    QString texto;
    double valor = 0.0;
    bool esNumero = false;
    bool bloqueada = false;  // in addition to the column's lock
    bool negrita = false;    // a heading row drawn in bold
    TipoCelda tipo = TipoCelda::Heredado;
    int colorFondo = SinColor;
    int colorTexto = SinColor;
};

struct Columna {
    TipoCelda tipo = TipoCelda::Texto;
    int decimales = 2;
    int ancho = 10;  // in characters
    bool bloqueada = true;
    bool oculta = false;
    QStringList lista;
    double minimo = -1e300, maximo = 1e300;
    int largo = 0;  // most characters a text cell takes when typed; 0 no limit
};

struct Union {
    int fila = 0, columna = 0, filas = 1, columnas = 1;
};

class Grid {
public:
    explicit Grid(int columnas = 0);

    // Columns 1..Columnas(); column 0 is the row header.
    int Columnas() const { return int(columnas_.size()) - 1; }
    void PonerColumnas(int n);
    int Filas() const { return filas_; }
    // Sets the row count (MaxRows), keeping the cells of the rows that stay.
    void PonerFilas(int n);
    // No rows, no body spans.
    void Vaciar();
    void InsertarFila(int fila);
    void EliminarFila(int fila);

    Columna& Col(int c);
    const Columna& Col(int c) const;

    // Header rows 1 and 2 (row 0 of the body is not used).
    QString Encabezado(int fila, int columna) const;
    void PonerEncabezado(int fila, int columna, const QString& texto);
    // Group header over columns, a single header over both rows.
    void PonerEncabezados(int columna, const QString& grupo, const QString& nombre = QString());
    void UnirEncabezado(int fila, int columna, int filas, int columnas);
    const std::vector<Union>& UnionesEncabezado() const { return unionesEncabezado_; }

    // Cells: row 1..Filas(), column 0..Columnas().
    const Celda& Cel(int fila, int columna) const;
    Celda& Cel(int fila, int columna);
    QString Texto(int fila, int columna) const;
    double Valor(int fila, int columna) const;
    bool EsNumero(int fila, int columna) const;
    void PonerTexto(int fila, int columna, const QString& texto);
    // A number shown with `decimales` places ("0.00") and kept as a double.
    void PonerNumero(int fila, int columna, double valor, int decimales);
    void PonerEntero(int fila, int columna, long long valor);
    void PonerVacio(int fila, int columna);
    void PonerColorFondo(int fila, int columna, int color);
    void PonerColorTexto(int fila, int columna, int color);
    void Bloquear(int fila, int columna, bool bloqueada);
    bool EstaBloqueada(int fila, int columna) const;
    TipoCelda Tipo(int fila, int columna) const;

    // Pictures of picture cells (catalogue photographs).  Kept beside the
    // cells, and only once a grid holds one, so that the large grids of the
    // analysis pay nothing for them.  A null image is an empty picture.
    void PonerImagen(int fila, int columna, const QImage& imagen);
    QImage Imagen(int fila, int columna) const;
    bool TieneImagen(int fila, int columna) const;

    // Joined body cells: the top-left cell shows for all.
    void Unir(int fila, int columna, int filas, int columnas);
    // The same for a grid being filled after Vaciar(), whose cell holds no
    // span yet: appended without the search, so a large fill stays linear.
    void AgregarUnion(int fila, int columna, int filas, int columnas);
    const std::vector<Union>& Uniones() const { return uniones_; }
    // The span that starts at (fila, columna), or nullptr.
    const Union* UnionEn(int fila, int columna) const;

    // Active cell.
    int FilaActiva() const { return filaActiva_; }
    int ColumnaActiva() const { return columnaActiva_; }
    void PonerActiva(int fila, int columna);

    // Sorts the body rows on the text of a column, ascending, as the grid
    // sorts text: by character codes, or by `menor` when given.
    void OrdenarPorTexto(int columna, bool (*menor)(const QString&, const QString&) = nullptr);

    // Increments on every change, so a view can tell it must repaint.
    unsigned long Version() const { return version_; }

private:
    size_t Indice(int fila, int columna) const;
    int filas_ = 0;
    std::vector<Columna> columnas_;
    std::vector<Celda> celdas_;  // (filas_ + 1) x columnas_; row 0 unused
    // Empty, or as celdas_; shared, so that moving rows never copies pixels
    // and the cells' code needs nothing of the image type.
    std::vector<std::shared_ptr<const QImage>> imagenes_;
    QStringList encabezados_[2];
    std::vector<Union> uniones_;
    std::vector<Union> unionesEncabezado_;
    int filaActiva_ = 1, columnaActiva_ = 1;
    unsigned long version_ = 0;
};

// The grid as plain text: both header rows, then one line per row, cells
// separated by '|' (joined cells repeat nothing).  For the command line.
QString GridComoTexto(const Grid& g);
