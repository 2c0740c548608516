#pragma once
// The analysis writes single columns of DatosRamales straight into the open
// project file (Predimensionado, Reduccion, ValvulaR).  Each pass reads the
// column once and writes only the rows that change, all in one transaction
// begun at the first write, so a file that needs no write is never locked and
// a fault part-way leaves the file as it was.

#include "store/Conexion.h"

#include <optional>
#include <utility>
#include <vector>

// A write to the project file that did not happen: raised with the store's
// message after the transaction has been undone.
constexpr int ErrorEscrituraArchivo = 3027;

// (rowid, value) of a column for every row in branch order; empty when the
// connection is closed.
std::vector<std::pair<long long, Valor>> LeerColumnaRamales(Conexion& c, const char* columna);

// The row a "SELECT * FROM DatosRamales Where Numero=" n record set stands
// on: the first with that number; -1 when there is none.
long long FilaDeRamal(Conexion& c, int numero);

// Several passes written as one: their writes join one transaction that
// locks the file only at the first of them and is undone unless confirmed,
// so the assumed sizes never reach the file without their reductions.
class EscrituraConjunta {
public:
    explicit EscrituraConjunta(Conexion& c) : c_(c), t_(c, true) {}
    // Raises ErrorEjecucion when the file does not take the writes.
    void Confirmar();

private:
    Conexion& c_;
    Transaccion t_;
};

class EscrituraRamales {
public:
    EscrituraRamales(Conexion& c, const char* columna);
    // Writes the value into the row; raises ErrorEjecucion on failure.
    void Escribir(long long rowid, const Valor& v);
    // Confirms what was written, if anything.
    void Confirmar();

private:
    Conexion& c_;
    QString sql_;
    std::optional<Transaccion> t_;
    std::optional<Consulta> q_;
};
