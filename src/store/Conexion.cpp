#include "store/Conexion.h"

#include "base/Nivo.h"
#include "store/Archivos.h"
#include "store/Colacion.h"

#include <sqlite3.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

// The faults a file or its disk can cause, said in Spanish; a fault of the
// SQL itself keeps SQLite's text, which only a developer needs.
QString TextoSqlite(sqlite3* db) {
    switch (sqlite3_errcode(db) & 0xFF) {
    case SQLITE_READONLY: return QStringLiteral("El archivo es de sólo lectura: no se puede escribir en él.");
    case SQLITE_BUSY:
    case SQLITE_LOCKED: return QStringLiteral("El archivo está en uso por otro programa: inténtelo de nuevo.");
    case SQLITE_FULL: return QStringLiteral("El disco está lleno: no se puede escribir en el archivo.");
    case SQLITE_IOERR: return QStringLiteral("Falla de lectura o escritura en el disco.");
    case SQLITE_CORRUPT:
    case SQLITE_NOTADB: return QStringLiteral("El archivo está dañado o no es una base de datos del programa.");
    case SQLITE_CANTOPEN:
    case SQLITE_PERM: return QStringLiteral("No se puede abrir el archivo.");
    default: return QString::fromUtf8(sqlite3_errmsg(db));
    }
}

void EnlazarValor(sqlite3_stmt* st, int i, const Valor& v) {
    if (!v.isValid() || v.isNull()) {
        sqlite3_bind_null(st, i);
        return;
    }
    switch (v.typeId()) {
    case QMetaType::Bool: sqlite3_bind_int(st, i, v.toBool() ? -1 : 0); break;
    case QMetaType::Int:
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::UChar:
    case QMetaType::SChar:
    case QMetaType::Char:
    case QMetaType::UInt:
    case QMetaType::Long:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::ULong: sqlite3_bind_int64(st, i, v.toLongLong()); break;
    case QMetaType::Double:
    case QMetaType::Float: sqlite3_bind_double(st, i, v.toDouble()); break;
    case QMetaType::QByteArray: {
        const QByteArray b = v.toByteArray();
        sqlite3_bind_blob(st, i, b.constData(), int(b.size()), SQLITE_TRANSIENT);
        break;
    }
    case QMetaType::QDate: {
        const QByteArray t = FechaTexto(v.toDate()).toUtf8();
        sqlite3_bind_text(st, i, t.constData(), int(t.size()), SQLITE_TRANSIENT);
        break;
    }
    default: {
        const QByteArray t = v.toString().toUtf8();
        sqlite3_bind_text(st, i, t.constData(), int(t.size()), SQLITE_TRANSIENT);
    }
    }
}

Valor LeerColumna(sqlite3_stmt* st, int i) {
    switch (sqlite3_column_type(st, i)) {
    case SQLITE_INTEGER: return Valor(static_cast<qlonglong>(sqlite3_column_int64(st, i)));
    case SQLITE_FLOAT: return Valor(sqlite3_column_double(st, i));
    case SQLITE_TEXT:
        return Valor(QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(st, i)),
                                       sqlite3_column_bytes(st, i)));
    case SQLITE_BLOB:
        return Valor(QByteArray(static_cast<const char*>(sqlite3_column_blob(st, i)),
                                sqlite3_column_bytes(st, i)));
    default: return Valor();
    }
}

}  // namespace

// ---------------------------------------------------------------- Conexion

Conexion::~Conexion() { Cerrar(); }

Conexion::Conexion(Conexion&& o) noexcept
    : db_(o.db_), ruta_(std::move(o.ruta_)), error_(std::move(o.error_)), transacciones_(o.transacciones_),
      soloLectura_(o.soloLectura_) {
    o.db_ = nullptr;
    o.transacciones_ = 0;
}

Conexion& Conexion::operator=(Conexion&& o) noexcept {
    if (this != &o) {
        Cerrar();
        db_ = o.db_;
        ruta_ = std::move(o.ruta_);
        error_ = std::move(o.error_);
        transacciones_ = o.transacciones_;
        soloLectura_ = o.soloLectura_;
        o.db_ = nullptr;
        o.transacciones_ = 0;
    }
    return *this;
}

bool Conexion::Abrir(const QString& ruta) {
    Cerrar();
    error_.clear();
    const QByteArray nativa = RutaNativa(ruta);
    struct stat st {};
    if (stat(nativa.constData(), &st) != 0 || !S_ISREG(st.st_mode)) {
        error_ = QStringLiteral("No se encuentra el archivo: ") + ruta;
        return false;
    }
    const bool soloLectura = ArchivoSoloLectura(ruta);
    sqlite3* db = nullptr;
    const int rc = sqlite3_open_v2(nativa.constData(), &db, soloLectura ? SQLITE_OPEN_READONLY : SQLITE_OPEN_READWRITE,
                                   nullptr);
    if (rc != SQLITE_OK) {
        error_ = QStringLiteral("No se puede abrir el archivo: ") + ruta;
        if (db) sqlite3_close(db);
        return false;
    }
    sqlite3_busy_timeout(db, 2000);
    RegistrarColacion(db);
    // A file of another kind only shows itself at the first read.
    char* msg = nullptr;
    if (sqlite3_exec(db, "SELECT count(*) FROM sqlite_master", nullptr, nullptr, &msg) != SQLITE_OK) {
        error_ = QStringLiteral("El archivo no es una base de datos del programa: ") + ruta;
        sqlite3_free(msg);
        sqlite3_close(db);
        return false;
    }
    db_ = db;
    ruta_ = ruta;
    soloLectura_ = soloLectura;
    return true;
}

bool Conexion::Crear(const QString& ruta) {
    Cerrar();
    unlink(RutaNativa(ruta).constData());
    sqlite3* db = nullptr;
    if (sqlite3_open_v2(RutaNativa(ruta).constData(), &db,
                        SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr) != SQLITE_OK) {
        error_ = QStringLiteral("No se puede crear el archivo: ") + ruta;
        if (db) sqlite3_close(db);
        return false;
    }
    RegistrarColacion(db);
    db_ = db;
    ruta_ = ruta;
    return true;
}

void Conexion::Cerrar() {
    if (db_) {
        if (transacciones_ > 0) sqlite3_exec(db_, "ROLLBACK", nullptr, nullptr, nullptr);
        sqlite3_close_v2(db_);
    }
    db_ = nullptr;
    transacciones_ = 0;
    soloLectura_ = false;
}

bool Conexion::Ejecutar(const QString& sql, const std::vector<Valor>& parametros) {
    Consulta q(*this, sql);
    if (!q.Valida()) return false;
    if (!q.Ejecutar(parametros)) {
        error_ = q.Error();
        return false;
    }
    return true;
}

bool Conexion::EjecutarGuion(const QString& sql) {
    if (!db_) {
        error_ = QStringLiteral("La conexión está cerrada.");
        return false;
    }
    char* msg = nullptr;
    if (sqlite3_exec(db_, sql.toUtf8().constData(), nullptr, nullptr, &msg) != SQLITE_OK) {
        error_ = QString::fromUtf8(msg ? msg : "");
        sqlite3_free(msg);
        return false;
    }
    return true;
}

Valor Conexion::Escalar(const QString& sql, const std::vector<Valor>& parametros) {
    Consulta q(*this, sql);
    if (!q.Valida()) return Valor();
    q.Enlazar(parametros);
    return q.Siguiente() ? q.Columna(0) : Valor();
}

bool Conexion::ExisteTabla(const QString& tabla) {
    return ComoEntero(Escalar(QStringLiteral("SELECT count(*) FROM sqlite_master WHERE type='table' AND name=?"),
                              {tabla})) > 0;
}

QStringList Conexion::ColumnasDe(const QString& tabla) {
    QStringList res;
    Consulta q(*this, QStringLiteral("SELECT name FROM pragma_table_info(?) ORDER BY cid"));
    if (!q.Valida()) return res;
    q.Enlazar({tabla});
    while (q.Siguiente()) res << q.Columna(0).toString();
    return res;
}

bool Conexion::Comenzar(bool diferida) {
    if (!db_) return false;
    const char* sql = transacciones_ > 0 ? nullptr : diferida ? "BEGIN" : "BEGIN IMMEDIATE";
    if (sql && sqlite3_exec(db_, sql, nullptr, nullptr, nullptr) != SQLITE_OK) {
        error_ = TextoSqlite(db_);
        return false;
    }
    ++transacciones_;
    return true;
}

bool Conexion::Confirmar() {
    if (!db_ || transacciones_ == 0) return false;
    if (transacciones_ == 1 && sqlite3_exec(db_, "COMMIT", nullptr, nullptr, nullptr) != SQLITE_OK) {
        error_ = TextoSqlite(db_);
        return false;
    }
    --transacciones_;
    return true;
}

void Conexion::Deshacer() {
    if (!db_ || transacciones_ == 0) return;
    // An inner failure rolls the whole outer transaction back.
    sqlite3_exec(db_, "ROLLBACK", nullptr, nullptr, nullptr);
    transacciones_ = 0;
}

Transaccion::Transaccion(Conexion& c, bool diferida) : c_(c) { activa_ = c_.Comenzar(diferida); }

Transaccion::~Transaccion() {
    if (activa_) c_.Deshacer();
}

bool Transaccion::Confirmar() {
    if (!activa_) return false;
    activa_ = false;
    return c_.Confirmar();
}

// ---------------------------------------------------------------- Consulta

Consulta::Consulta(Conexion& c, const QString& sql) : c_(c) {
    if (!c.db_) {
        error_ = QStringLiteral("La conexión está cerrada.");
        c.error_ = error_;
        return;
    }
    const QByteArray s = sql.toUtf8();
    if (sqlite3_prepare_v2(c.db_, s.constData(), int(s.size()), &st_, nullptr) != SQLITE_OK) {
        error_ = TextoSqlite(c.db_);
        c.error_ = error_;
        st_ = nullptr;
    }
}

Consulta::~Consulta() {
    if (st_) sqlite3_finalize(st_);
}

void Consulta::Enlazar(const std::vector<Valor>& parametros) {
    if (!st_) return;
    sqlite3_reset(st_);
    sqlite3_clear_bindings(st_);
    for (size_t i = 0; i < parametros.size(); ++i) EnlazarValor(st_, int(i) + 1, parametros[i]);
}

bool Consulta::Siguiente() {
    if (!st_) return false;
    const int rc = sqlite3_step(st_);
    if (rc == SQLITE_ROW) return true;
    if (rc != SQLITE_DONE) {
        error_ = TextoSqlite(c_.db_);
        c_.error_ = error_;
    }
    return false;
}

bool Consulta::Ejecutar(const std::vector<Valor>& parametros) {
    if (!st_) return false;
    Enlazar(parametros);
    const int rc = sqlite3_step(st_);
    if (rc == SQLITE_DONE || rc == SQLITE_ROW) return true;
    error_ = TextoSqlite(c_.db_);
    c_.error_ = error_;
    return false;
}

Valor Consulta::Columna(int i) const { return st_ && i >= 0 ? LeerColumna(st_, i) : Valor(); }

QString Consulta::Texto(int i) const {
    if (st_ && i >= 0 && sqlite3_column_type(st_, i) == SQLITE_TEXT)
        return QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(st_, i)),
                                 sqlite3_column_bytes(st_, i));
    return ComoTexto(Columna(i));
}

double Consulta::Doble(int i) const {
    if (st_ && i >= 0) {
        const int tipo = sqlite3_column_type(st_, i);
        if (tipo == SQLITE_FLOAT) return sqlite3_column_double(st_, i);
        if (tipo == SQLITE_INTEGER) return double(sqlite3_column_int64(st_, i));
    }
    return ComoDoble(Columna(i));
}

long long Consulta::Entero(int i) const {
    if (st_ && i >= 0 && sqlite3_column_type(st_, i) == SQLITE_INTEGER) return sqlite3_column_int64(st_, i);
    return ComoEntero(Columna(i));
}

int Consulta::IndiceColumna(const QString& nombre) const {
    if (!st_) return -1;
    const int n = sqlite3_column_count(st_);
    for (int i = 0; i < n; ++i)
        if (nombre.compare(QString::fromUtf8(sqlite3_column_name(st_, i)), Qt::CaseInsensitive) == 0) return i;
    return -1;
}

Valor Consulta::Columna(const QString& nombre) const { return Columna(IndiceColumna(nombre)); }

int AbrirConexion(Conexion& conexion, const QString& ruta) {
    if (conexion.State() == 1) conexion.Cerrar();
    return conexion.Abrir(ruta) ? 0 : -1;
}
