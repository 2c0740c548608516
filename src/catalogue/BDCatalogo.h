#pragma once
// The logic that the catalogue screens "Base de Datos de Piezas Sanitarias"
// and "Base de Datos de Conexiones" share: one grid row per catalogue row
// (1 "Clave", 2 "Imagen", 3 "Descripción", then the figures), the count,
// sorting and search, "Eliminar" with the reserved keys kept, the preview
// of a row's photograph.  A grid row knows its record, so a sorted grid
// still acts on the row the engineer sees.

#include "base/Grid.h"
#include "catalogue/TipoCatalogo.h"

#include <QImage>
#include <QString>
#include <vector>

class Dialogos;
struct Sesion;

class BDCatalogo {
public:
    // `captura`: opened from a branch screen, whose record set is in use.
    BDCatalogo(const TipoCatalogo& t, Sesion& s, Dialogos& d, bool captura);

    Grid Spread1;

    const TipoCatalogo& Tipo() const { return t_; }
    // Load: the record set opened when no branch screen opened it, the grid
    // filled, the cursor on column 3 of row 1.
    void Cargar();
    // "Capturar" is there only when a branch screen opened the catalogue.
    bool CapturarVisible() const { return captura_; }
    // The row count of the panel.
    QString Cuenta() const;
    int Filas() const { return Spread1.Filas(); }
    int FilaActiva() const;
    void PonerActiva(int fila);

    // The record set on the row's record; its position (1..count), or 0.
    int Registro(int fila);
    // The grid row that shows a record (1..count), or 0.
    int FilaDeRegistro(int registro) const;
    // Writes a grid row from the current record.
    void ColoqueLinea(int fila);
    // Every record again, in key order, the cursor on the row of `registro`.
    void ColoquePantalla(int registro = 1);

    // "Eliminar": a reserved key is refused, another asked for and deleted.
    void Eliminar();
    // A header clicked: the rows in the order of that column (key, name or a
    // figure; the picture has none).  The same column again reverses it.
    void Ordenar(int columna);
    // The next row after the active one whose name holds `texto` (any case);
    // false, with a beep, when none does.
    bool Buscar(const QString& texto);
    // The photograph of the row's own record, for the preview.
    QImage ImagenFila(int fila);

    Registros& Rs();
    // The record set closed if this screen opened it.
    void Cerrar();

    // A write refused by the file, said with its reason; `accion` is
    // "guardar"/"eliminar".
    void AvisarFalla(const QString& accion, const QString& motivo);

private:
    void ConfigurarSpread();
    Sesion& s_;
    Dialogos& d_;
    const TipoCatalogo& t_;
    bool captura_;
    bool abiertoAqui_ = false;
    std::vector<int> orden_;  // the record (0-based) of each grid row
    int columnaOrden_ = 1;
    bool descendente_ = false;
};
