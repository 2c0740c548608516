#include "store/Conexion.h"

#include "base/Nivo.h"
#include "store/Colacion.h"

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSaveFile>
#include <sqlite3.h>
#include <cstdio>

namespace {

QString TextoSqlite(sqlite3* db) { return QString::fromUtf8(sqlite3_errmsg(db)); }

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

QString Citado(const QString& nombre) {
    QString n = nombre;
    n.replace(QLatin1Char('"'), QStringLiteral("\"\""));
    return QLatin1Char('"') + n + QLatin1Char('"');
}

}  // namespace

QString ComoTexto(const Valor& v) {
    if (!v.isValid() || v.isNull()) return QString(QLatin1String(""));
    if (v.typeId() == QMetaType::Double) {
        // A number read where a text was expected shows as the runtime shows it.
        return QString::number(v.toDouble(), 'g', 15);
    }
    return v.toString();
}

double ComoDoble(const Valor& v) {
    if (!v.isValid() || v.isNull()) return 0.0;
    if (v.typeId() == QMetaType::QString) {
        double d = 0.0;
        if (LeerNumeroGuardado(v.toString(), d)) return d;
        return 0.0;
    }
    return v.toDouble();
}

long long ComoEntero(const Valor& v) {
    if (!v.isValid() || v.isNull()) return 0;
    if (v.typeId() == QMetaType::Double) return static_cast<long long>(RoundNivo(v.toDouble(), 0));
    if (v.typeId() == QMetaType::QString) return static_cast<long long>(RoundNivo(ComoDoble(v), 0));
    return v.toLongLong();
}

bool ComoLogico(const Valor& v) {
    if (!v.isValid() || v.isNull()) return false;
    if (v.typeId() == QMetaType::QString) {
        const QString t = UCase(Trim(v.toString()));
        return t == QLatin1String("TRUE") || t == QLatin1String("VERDADERO") ||
               t == QLatin1String("-1") || t == QLatin1String("1");
    }
    return v.toDouble() != 0.0;
}

// ---------------------------------------------------------------- Conexion

Conexion::~Conexion() { Cerrar(); }

Conexion::Conexion(Conexion&& o) noexcept
    : db_(o.db_), ruta_(std::move(o.ruta_)), error_(std::move(o.error_)), transacciones_(o.transacciones_) {
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
        o.db_ = nullptr;
        o.transacciones_ = 0;
    }
    return *this;
}

bool Conexion::Abrir(const QString& ruta) {
    Cerrar();
    error_.clear();
    const QFileInfo info(ruta);
    if (!info.exists() || !info.isFile()) {
        error_ = QStringLiteral("No se encuentra el archivo: ") + ruta;
        return false;
    }
    sqlite3* db = nullptr;
    const int rc = sqlite3_open_v2(QFile::encodeName(ruta).constData(), &db,
                                   SQLITE_OPEN_READWRITE, nullptr);
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
    return true;
}

bool Conexion::Crear(const QString& ruta) {
    Cerrar();
    QFile::remove(ruta);
    sqlite3* db = nullptr;
    if (sqlite3_open_v2(QFile::encodeName(ruta).constData(), &db,
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

bool Conexion::Comenzar() {
    if (!db_) return false;
    const char* sql = transacciones_ == 0 ? "BEGIN IMMEDIATE" : nullptr;
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

Transaccion::Transaccion(Conexion& c) : c_(c) { activa_ = c_.Comenzar(); }

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

int Consulta::IndiceColumna(const QString& nombre) const {
    if (!st_) return -1;
    const int n = sqlite3_column_count(st_);
    for (int i = 0; i < n; ++i)
        if (nombre.compare(QString::fromUtf8(sqlite3_column_name(st_, i)), Qt::CaseInsensitive) == 0) return i;
    return -1;
}

Valor Consulta::Columna(const QString& nombre) const { return Columna(IndiceColumna(nombre)); }

// --------------------------------------------------------------- Registros

bool Registros::Abrir(Conexion& c, const QString& fuente, const std::vector<Valor>& parametros) {
    Close();
    c_ = &c;
    error_.clear();
    const QString f = Trim(fuente);
    QString sql;
    static const QRegularExpression nombreSolo(QStringLiteral("^[A-Za-z_\\x{C0}-\\x{FF}][\\w\\x{C0}-\\x{FF}]*$"));
    static const QRegularExpression selectTodo(
        QStringLiteral("^SELECT\\s+\\*\\s+FROM\\s+([A-Za-z_\\x{C0}-\\x{FF}][\\w\\x{C0}-\\x{FF}]*)\\b(.*)$"),
        QRegularExpression::CaseInsensitiveOption | QRegularExpression::DotMatchesEverythingOption);
    if (nombreSolo.match(f).hasMatch()) {
        tabla_ = f;
        sql = QStringLiteral("SELECT rowid AS \"__rowid\", * FROM ") + Citado(f);
    } else if (const auto m = selectTodo.match(f); m.hasMatch()) {
        tabla_ = m.captured(1);
        sql = QStringLiteral("SELECT rowid AS \"__rowid\", * FROM ") + Citado(tabla_) + m.captured(2);
    } else {
        sql = f;
    }
    Consulta q(c, sql);
    if (!q.Valida()) {
        error_ = q.Error();
        return false;
    }
    q.Enlazar(parametros);
    sqlite3_stmt* st = q.st_;
    const int n = sqlite3_column_count(st);
    const int desde = tabla_.isEmpty() ? 0 : 1;
    for (int i = desde; i < n; ++i) nombres_ << QString::fromUtf8(sqlite3_column_name(st, i));
    while (q.Siguiente()) {
        std::vector<Valor> fila;
        fila.reserve(size_t(n - desde));
        for (int i = desde; i < n; ++i) fila.push_back(LeerColumna(st, i));
        filas_.push_back(std::move(fila));
        if (desde) rowids_.push_back(sqlite3_column_int64(st, 0));
    }
    if (!q.Error().isEmpty()) {
        error_ = q.Error();
        filas_.clear();
        rowids_.clear();
        return false;
    }
    abierto_ = true;
    pos_ = 0;
    return true;
}

void Registros::Close() {
    c_ = nullptr;
    tabla_.clear();
    nombres_.clear();
    filas_.clear();
    rowids_.clear();
    pos_ = 0;
    abierto_ = false;
    agregando_ = false;
    nueva_.clear();
    cambiados_.clear();
}

void Registros::MoveFirst() { pos_ = 0; }
void Registros::MoveLast() { pos_ = int(filas_.size()) - 1; }
void Registros::MoveNext() {
    if (pos_ < int(filas_.size())) ++pos_;
}
void Registros::MovePrevious() {
    if (pos_ >= 0) --pos_;
}

int Registros::IndiceCampo(const QString& nombre) const {
    for (int i = 0; i < nombres_.size(); ++i)
        if (nombres_[i].compare(nombre, Qt::CaseInsensitive) == 0) return i;
    return -1;
}

bool Registros::TieneCampo(const QString& nombre) const { return IndiceCampo(nombre) >= 0; }

Valor Registros::Campo(const QString& nombre) const {
    const int i = IndiceCampo(nombre);
    if (i < 0) return Valor();
    if (agregando_) return nueva_[size_t(i)];
    if (pos_ < 0 || pos_ >= int(filas_.size())) return Valor();
    return filas_[size_t(pos_)][size_t(i)];
}

void Registros::Poner(const QString& nombre, const Valor& v) {
    const int i = IndiceCampo(nombre);
    if (i < 0) {
        error_ = QStringLiteral("No existe el campo ") + nombre;
        return;
    }
    if (cambiados_.size() != size_t(nombres_.size())) cambiados_.assign(size_t(nombres_.size()), false);
    cambiados_[size_t(i)] = true;
    if (agregando_) {
        nueva_[size_t(i)] = v;
    } else if (pos_ >= 0 && pos_ < int(filas_.size())) {
        filas_[size_t(pos_)][size_t(i)] = v;
    }
}

void Registros::AddNew() {
    agregando_ = true;
    nueva_.assign(size_t(nombres_.size()), Valor());
    cambiados_.assign(size_t(nombres_.size()), false);
}

bool Registros::Update() {
    if (!c_ || tabla_.isEmpty()) {
        error_ = QStringLiteral("El conjunto de registros no se puede actualizar.");
        return false;
    }
    QStringList cols;
    std::vector<Valor> vals;
    const std::vector<Valor>& fila = agregando_ ? nueva_ : filas_[size_t(std::clamp(pos_, 0, int(filas_.size()) - 1))];
    for (int i = 0; i < nombres_.size(); ++i) {
        if (i < int(cambiados_.size()) && cambiados_[size_t(i)]) {
            cols << Citado(nombres_[i]);
            vals.push_back(fila[size_t(i)]);
        }
    }
    bool ok = true;
    if (agregando_) {
        QString sql;
        if (cols.isEmpty()) {
            sql = QStringLiteral("INSERT INTO ") + Citado(tabla_) + QStringLiteral(" DEFAULT VALUES");
        } else {
            QStringList marcas;
            for (int i = 0; i < cols.size(); ++i) marcas << QStringLiteral("?");
            sql = QStringLiteral("INSERT INTO ") + Citado(tabla_) + QStringLiteral(" (") +
                  cols.join(QLatin1Char(',')) + QStringLiteral(") VALUES (") + marcas.join(QLatin1Char(',')) +
                  QLatin1Char(')');
        }
        ok = c_->Ejecutar(sql, vals);
        if (ok) {
            filas_.push_back(nueva_);
            rowids_.push_back(sqlite3_last_insert_rowid(c_->db_));
            pos_ = int(filas_.size()) - 1;
        }
        agregando_ = false;
    } else if (!cols.isEmpty()) {
        if (pos_ < 0 || pos_ >= int(filas_.size())) {
            error_ = QStringLiteral("No hay registro actual.");
            return false;
        }
        QStringList asignaciones;
        for (const QString& c : cols) asignaciones << c + QStringLiteral("=?");
        vals.push_back(Valor(static_cast<qlonglong>(rowids_[size_t(pos_)])));
        ok = c_->Ejecutar(QStringLiteral("UPDATE ") + Citado(tabla_) + QStringLiteral(" SET ") +
                              asignaciones.join(QLatin1Char(',')) + QStringLiteral(" WHERE rowid=?"),
                          vals);
    }
    if (!ok) error_ = c_->UltimoError();
    cambiados_.assign(size_t(nombres_.size()), false);
    return ok;
}

bool Registros::BuscarClave(const QString& criterio) {
    const int igual = criterio.indexOf(QLatin1Char('='));
    if (igual < 0) return false;
    const int col = IndiceCampo(Trim(criterio.left(igual)));
    if (col < 0) return false;
    QString buscado = Trim(criterio.mid(igual + 1));
    if (buscado.size() >= 2 && (buscado.startsWith(QLatin1Char('\'')) || buscado.startsWith(QLatin1Char('"'))))
        buscado = buscado.mid(1, buscado.size() - 2);
    double numero = 0.0;
    const bool esNumero = LeerNumeroGuardado(buscado, numero);
    auto coincide = [&](int fila) {
        const Valor& v = filas_[size_t(fila)][size_t(col)];
        if (!v.isValid() || v.isNull()) return false;
        if (esNumero && v.typeId() != QMetaType::QString) return ComoDoble(v) == numero;
        return ComoTexto(v).compare(buscado, Qt::CaseInsensitive) == 0;
    };
    const int n = int(filas_.size());
    for (int i = std::max(pos_, 0); i < n; ++i)
        if (coincide(i)) {
            pos_ = i;
            return true;
        }
    for (int i = std::min(pos_, n - 1); i >= 0; --i)
        if (coincide(i)) {
            pos_ = i;
            return true;
        }
    pos_ = -1;
    return false;
}

// ------------------------------------------------------ the shared routines

int AbrirConexion(Conexion& conexion, const QString& ruta) {
    if (conexion.State() == 1) conexion.Cerrar();
    return conexion.Abrir(ruta) ? 0 : -1;
}

int AbrirTabla(Conexion& conexion, Registros& registros, const QString& fuente) {
    if (!registros.Abrir(conexion, fuente)) return 3001;
    if (registros.RecordCount() > 0) registros.MoveFirst();
    return 0;
}

int BuscarClave(Registros& registros, const QString& criterio) {
    return registros.BuscarClave(criterio) ? 1 : 0;
}

bool CopiarArchivo(const QString& origen, const QString& destino, QString* error) {
    QFile in(origen);
    if (!in.open(QIODevice::ReadOnly)) {
        if (error) *error = QStringLiteral("No se puede leer el archivo: ") + origen;
        return false;
    }
    QSaveFile out(destino);
    if (!out.open(QIODevice::WriteOnly)) {
        if (error) *error = QStringLiteral("No se puede escribir el archivo: ") + destino;
        return false;
    }
    while (!in.atEnd()) {
        const QByteArray bloque = in.read(1 << 20);
        if (bloque.isEmpty() && in.error() != QFileDevice::NoError) break;
        if (out.write(bloque) != bloque.size()) {
            out.cancelWriting();
            if (error) *error = QStringLiteral("No se puede escribir el archivo: ") + destino;
            return false;
        }
    }
    if (!out.commit()) {
        if (error) *error = QStringLiteral("No se puede escribir el archivo: ") + destino;
        return false;
    }
    return true;
}

bool ReemplazarArchivo(const QString& nuevo, const QString& destino) {
    return std::rename(QFile::encodeName(nuevo).constData(), QFile::encodeName(destino).constData()) == 0;
}

bool EscribirDesdePlantilla(const QString& plantilla, const QString& destino, QString& error,
                            const std::function<bool(const QString& temporal, QString& error)>& escribir) {
    const QFileInfo info(destino);
    const QString temporal = info.absolutePath() + QStringLiteral("/.") + info.fileName() + QStringLiteral(".tmp");
    if (!CopiarArchivo(plantilla, temporal, &error)) return false;
    bool ok = escribir(temporal, error);
    if (ok) {
        ok = ReemplazarArchivo(temporal, destino);
        if (!ok) error = QStringLiteral("No se puede escribir el archivo: ") + destino;
    }
    if (!ok) QFile::remove(temporal);
    return ok;
}
