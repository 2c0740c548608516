#include "analysis/EscrituraRamales.h"

#include "base/ErrorEjecucion.h"

std::vector<std::pair<long long, Valor>> LeerColumnaRamales(Conexion& c, const char* columna) {
    std::vector<std::pair<long long, Valor>> filas;
    if (!c.Abierta()) return filas;
    Consulta q(c, QStringLiteral("SELECT rowid, %1 FROM DatosRamales ORDER BY Numero, rowid")
                      .arg(QString::fromLatin1(columna)));
    while (q.Siguiente()) filas.emplace_back(ComoEntero(q.Columna(0)), q.Columna(1));
    return filas;
}

long long FilaDeRamal(Conexion& c, int numero) {
    if (!c.Abierta()) return -1;
    const Valor v = c.Escalar(QStringLiteral("SELECT rowid FROM DatosRamales WHERE Numero=%1 ORDER BY rowid LIMIT 1")
                                  .arg(numero));
    return v.isNull() ? -1 : ComoEntero(v);
}

EscrituraRamales::EscrituraRamales(Conexion& c, const char* columna)
    : c_(c), sql_(QStringLiteral("UPDATE DatosRamales SET %1=? WHERE rowid=?").arg(QString::fromLatin1(columna))) {}

void EscrituraRamales::Escribir(long long rowid, const Valor& v) {
    if (!t_) {
        t_.emplace(c_);
        q_.emplace(c_, sql_);
    }
    if (!q_->Ejecutar({v, rowid})) {
        const QString error = q_->Error().isEmpty() ? c_.UltimoError() : q_->Error();
        q_.reset();
        t_.reset();
        throw ErrorEjecucion(ErrorEscrituraArchivo, error);
    }
}

void EscrituraConjunta::Confirmar() {
    if (c_.Abierta() && !t_.Confirmar()) throw ErrorEjecucion(ErrorEscrituraArchivo, c_.UltimoError());
}

void EscrituraRamales::Confirmar() {
    if (!t_) return;
    q_.reset();
    const bool bien = t_->Confirmar();
    t_.reset();
    if (!bien) throw ErrorEjecucion(ErrorEscrituraArchivo, c_.UltimoError());
}
