#pragma once
// The store: SQLite files with the tables of each database of the program
// (projects, catalogue, work databases), reached through a connection and
// SQL with bound parameters.

#include "store/Valor.h"

#include <QString>
#include <QStringList>
#include <vector>

struct sqlite3;
struct sqlite3_stmt;

class Conexion {
public:
    Conexion() = default;
    ~Conexion();
    Conexion(const Conexion&) = delete;
    Conexion& operator=(const Conexion&) = delete;
    Conexion(Conexion&& o) noexcept;
    Conexion& operator=(Conexion&& o) noexcept;

    // Opens an existing database file (never creates one).  False, with a
    // Spanish message in UltimoError(), when the file is missing or is not a
    // database of this program's kind.  A file whose mode or owner forbids
    // writing is opened for reading only, even by the superuser, so that its
    // first write fails instead of changing it.
    bool Abrir(const QString& ruta);
    // Creates a new empty database file (for the build of the templates).
    bool Crear(const QString& ruta);
    void Cerrar();
    // 1 when open, 0 when closed, as the older State property.
    int State() const { return db_ ? 1 : 0; }
    bool Abierta() const { return db_ != nullptr; }
    bool SoloLectura() const { return soloLectura_; }
    const QString& Ruta() const { return ruta_; }

    // Runs a statement with bound parameters; false with UltimoError() set.
    bool Ejecutar(const QString& sql, const std::vector<Valor>& parametros = {});
    // Runs several statements separated by ';' (schemas); no parameters.
    bool EjecutarGuion(const QString& sql);
    // First column of the first row of a query, null when none.
    Valor Escalar(const QString& sql, const std::vector<Valor>& parametros = {});
    bool ExisteTabla(const QString& tabla);
    QStringList ColumnasDe(const QString& tabla);

    // Begins a transaction, or joins the one under way.  An immediate one
    // locks the file for writing at once; a deferred one only at its first
    // write, so that a pass that writes nothing leaves the file unlocked.
    bool Comenzar(bool diferida = false);
    bool Confirmar();
    void Deshacer();

    const QString& UltimoError() const { return error_; }
    sqlite3* Manejador() const { return db_; }

private:
    friend class Registros;
    friend class Consulta;
    sqlite3* db_ = nullptr;
    QString ruta_;
    QString error_;
    int transacciones_ = 0;
    bool soloLectura_ = false;
};

// A transaction that rolls back unless confirmed: every save of a project
// is whole or nothing.
class Transaccion {
public:
    explicit Transaccion(Conexion& c, bool diferida = false);
    ~Transaccion();
    bool Confirmar();

private:
    Conexion& c_;
    bool activa_ = false;
};

// A prepared statement run row by row, for the loops that write or read many
// rows without building a snapshot.
class Consulta {
public:
    Consulta(Conexion& c, const QString& sql);
    ~Consulta();
    Consulta(const Consulta&) = delete;
    Consulta& operator=(const Consulta&) = delete;

    bool Valida() const { return st_ != nullptr; }
    // Binds parameters 1..n and resets the statement for a new run.
    void Enlazar(const std::vector<Valor>& parametros);
    // Next row of a query (true) or end (false); for a write, runs it.
    bool Siguiente();
    // Runs a write with these parameters; false on failure.
    bool Ejecutar(const std::vector<Valor>& parametros);
    Valor Columna(int i) const;
    // Column i read as ComoTexto, ComoDoble and ComoEntero read it, without
    // the variant in between: the loads of large tables read these.
    QString Texto(int i) const;
    double Doble(int i) const;
    long long Entero(int i) const;
    // Column of the current row by name (case-insensitive); null when absent.
    Valor Columna(const QString& nombre) const;
    int IndiceColumna(const QString& nombre) const;
    const QString& Error() const { return error_; }

private:
    friend class Registros;
    Conexion& c_;
    sqlite3_stmt* st_ = nullptr;
    QString error_;
};

// The data-access routine under every database of the program: closes the
// connection if open and opens `ruta`; it never raises.  Returns
// ConexionFallida: 0 on success, -1 on failure.
int AbrirConexion(Conexion& conexion, const QString& ruta);
