#pragma once
// The store: SQLite files with the tables of each database of the program
// (projects, catalogue, work databases), reached through a connection, SQL
// with bound parameters, and record sets that behave like the older static,
// client-side record sets (a snapshot with a current row, AddNew and Update).

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <functional>
#include <memory>
#include <vector>

struct sqlite3;
struct sqlite3_stmt;

// A field value: null, integer, double, text or bytes.
using Valor = QVariant;

// Reads a field as the older program did: null texts as "" (concatenated
// with the empty text), null numbers as 0.
QString ComoTexto(const Valor& v);
double ComoDoble(const Valor& v);
long long ComoEntero(const Valor& v);
// Booleans are stored as -1 (true) and 0.
bool ComoLogico(const Valor& v);
inline Valor Logico(bool b) { return Valor(b ? -1 : 0); }
inline Valor Nulo() { return Valor(); }

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
    // database of this program's kind.
    bool Abrir(const QString& ruta);
    // Creates a new empty database file (for the build of the templates).
    bool Crear(const QString& ruta);
    void Cerrar();
    // 1 when open, 0 when closed, as the older State property.
    int State() const { return db_ ? 1 : 0; }
    bool Abierta() const { return db_ != nullptr; }
    const QString& Ruta() const { return ruta_; }

    // Runs a statement with bound parameters; false with UltimoError() set.
    bool Ejecutar(const QString& sql, const std::vector<Valor>& parametros = {});
    // Runs several statements separated by ';' (schemas); no parameters.
    bool EjecutarGuion(const QString& sql);
    // First column of the first row of a query, null when none.
    Valor Escalar(const QString& sql, const std::vector<Valor>& parametros = {});
    bool ExisteTabla(const QString& tabla);
    QStringList ColumnasDe(const QString& tabla);

    bool Comenzar();
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
};

// A transaction that rolls back unless confirmed: every save of a project
// is whole or nothing.
class Transaccion {
public:
    explicit Transaccion(Conexion& c);
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

// The data-access routines under every database of the program.
// AbrirConexion closes the connection if open and opens `ruta`; it never
// raises.  Returns ConexionFallida: 0 on success, -1 on failure.
int AbrirConexion(Conexion& conexion, const QString& ruta);
// AbrirTabla: see Registros::Abrir.  Returns 0 or an error number.
int AbrirTabla(Conexion& conexion, Registros& registros, const QString& fuente);
// BuscarClave: see Registros::BuscarClave.  Returns Encontrado (1 or 0).
int BuscarClave(Registros& registros, const QString& criterio);

// Copies a file over another through a temporary name in the target's folder
// and a rename, so the target is never left half-written.
bool CopiarArchivo(const QString& origen, const QString& destino, QString* error = nullptr);
// Puts a finished file in place of another in one step (a rename).
bool ReemplazarArchivo(const QString& nuevo, const QString& destino);
// Makes `destino` from a blank template: the template is copied under a
// temporary name beside the target, `escribir` fills that copy, and only a
// copy it filled whole replaces the target.  A failure leaves no file behind
// and an existing target untouched.
bool EscribirDesdePlantilla(const QString& plantilla, const QString& destino, QString& error,
                            const std::function<bool(const QString& temporal, QString& error)>& escribir);
