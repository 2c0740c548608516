#pragma once
// Record sets that behave like the older static, client-side record sets:
// a snapshot with a current row, AddNew and Update.

#include "store/Conexion.h"

#include <QStringList>
#include <vector>

// A static, client-side record set: the rows of a table or query read at
// opening, a current row, EOF/BOF, field access by name, AddNew/Update that
// write back to the table.  Updates need the source to be one table, as the
// program's sources are ("Tabla" or "SELECT * FROM Tabla ...").
class Registros {
public:
    Registros() = default;

    // AbrirTabla: opens `fuente` (a table name or an SQL text) on the
    // connection and moves to the first row when there is one.  False, with
    // the error kept in Error(), when the source cannot be read.
    bool Abrir(Conexion& c, const QString& fuente, const std::vector<Valor>& parametros = {});
    void Close();
    bool Abierto() const { return abierto_; }

    int RecordCount() const { return int(filas_.size()); }
    bool EOF_() const { return pos_ >= int(filas_.size()); }
    bool BOF() const { return pos_ < 0; }
    void MoveFirst();
    void MoveLast();
    void MoveNext();
    void MovePrevious();
    int Posicion() const { return pos_; }
    void Mover(int posicion) { pos_ = posicion; }

    // The value of a field of the current row; error 3021 semantics are
    // replaced by a null outside the rows.
    Valor Campo(const QString& nombre) const;
    bool TieneCampo(const QString& nombre) const;
    const QStringList& Campos() const { return nombres_; }
    // Sets a field of the current row (or of the row being added).
    void Poner(const QString& nombre, const Valor& v);
    // Starts a new row; Update() inserts it and makes it the current row.
    void AddNew();
    // Writes the changed fields of the current row (or inserts the new one).
    bool Update();

    // BuscarClave: searches forward from the current row for a criterion
    // "Campo=valor" (texts may be quoted), then backward at end of file.
    // Returns Encontrado: true when a row was found and made current.
    bool BuscarClave(const QString& criterio);

    const QString& Error() const { return error_; }

private:
    int IndiceCampo(const QString& nombre) const;
    Conexion* c_ = nullptr;
    QString tabla_;  // the single table behind the rows, empty when none
    QStringList nombres_;
    std::vector<std::vector<Valor>> filas_;
    std::vector<long long> rowids_;
    int pos_ = 0;
    bool abierto_ = false;
    bool agregando_ = false;
    std::vector<Valor> nueva_;
    std::vector<bool> cambiados_;
    QString error_;
};

// AbrirTabla: see Registros::Abrir.  Returns 0 or an error number.
int AbrirTabla(Conexion& conexion, Registros& registros, const QString& fuente);
// BuscarClave: see Registros::BuscarClave.  Returns Encontrado (1 or 0).
int BuscarClave(Registros& registros, const QString& criterio);
