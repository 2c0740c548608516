#include "store/Registros.h"

#include "base/Nivo.h"

#include <QRegularExpression>
#include <sqlite3.h>
#include <algorithm>

namespace {

QString Citado(const QString& nombre) {
    QString n = nombre;
    n.replace(QLatin1Char('"'), QStringLiteral("\"\""));
    return QLatin1Char('"') + n + QLatin1Char('"');
}

}  // namespace

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
        for (int i = desde; i < n; ++i) fila.push_back(q.Columna(i));
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

int AbrirTabla(Conexion& conexion, Registros& registros, const QString& fuente) {
    if (!registros.Abrir(conexion, fuente)) return 3001;
    if (registros.RecordCount() > 0) registros.MoveFirst();
    return 0;
}

int BuscarClave(Registros& registros, const QString& criterio) {
    return registros.BuscarClave(criterio) ? 1 : 0;
}
