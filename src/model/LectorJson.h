#pragma once
// Typed fields of one JSON object, for the project files written as text:
// each read leaves the target as it was when the key is absent or null, and
// the first fault found becomes a Spanish message naming the key and where.

#include "base/Nivo.h"

#include <QDate>
#include <QJsonDocument>
#include <QJsonArray>
#include <QJsonObject>
#include <QString>
#include <cmath>

class LectorJson {
public:
    LectorJson(const QJsonObject& o, QString donde, QString& error) : o_(o), donde_(std::move(donde)), error_(error) {}

    void Texto(const char* clave, QString& destino) {
        const QJsonValue v = o_.value(QString::fromUtf8(clave));
        if (v.isUndefined() || v.isNull()) return;
        if (!v.isString()) return Falla(clave, QStringLiteral("no es un texto"));
        destino = v.toString();
    }
    void Doble(const char* clave, double& destino) {
        const QJsonValue v = o_.value(QString::fromUtf8(clave));
        if (v.isUndefined() || v.isNull()) return;
        if (!v.isDouble()) return Falla(clave, QStringLiteral("no es un número"));
        destino = v.toDouble();
    }
    template <typename T>
    void Entero(const char* clave, T& destino, long long minimo, long long maximo) {
        const QJsonValue v = o_.value(QString::fromUtf8(clave));
        if (v.isUndefined() || v.isNull()) return;
        if (!v.isDouble() || v.toDouble() != std::floor(v.toDouble()))
            return Falla(clave, QStringLiteral("no es un número entero"));
        const double d = v.toDouble();
        if (d < double(minimo) || d > double(maximo))
            return Falla(clave, QStringLiteral("está fuera del intervalo %1 a %2").arg(minimo).arg(maximo));
        destino = static_cast<T>(d);
    }
    void Logico(const char* clave, bool& destino) {
        const QJsonValue v = o_.value(QString::fromUtf8(clave));
        if (v.isUndefined() || v.isNull()) return;
        if (v.isBool()) destino = v.toBool();
        else if (v.isDouble()) destino = v.toDouble() != 0.0;
        else Falla(clave, QStringLiteral("no es un valor lógico"));
    }
    void Fecha(const char* clave, QDate& destino) {
        QString t;
        Texto(clave, t);
        if (t.isEmpty()) return;
        const QDate d = LeerFecha(t);
        if (!d.isValid()) return Falla(clave, QStringLiteral("no es una fecha dd/MM/yyyy"));
        destino = d;
    }
    QJsonArray Lista(const char* clave) {
        const QJsonValue v = o_.value(QString::fromUtf8(clave));
        if (v.isUndefined() || v.isNull()) return {};
        if (!v.isArray()) Falla(clave, QStringLiteral("no es una lista"));
        return v.toArray();
    }
    bool Bien() const { return error_.isEmpty(); }

private:
    void Falla(const char* clave, const QString& que) {
        if (!error_.isEmpty()) return;
        error_ = QStringLiteral("El valor de \"%1\" %2 %3.").arg(QString::fromUtf8(clave), donde_, que);
    }
    const QJsonObject o_;  // a copy (shared data): callers pass temporaries
    QString donde_;
    QString& error_;
};

// Reads a JSON file holding one object; false with a Spanish message when
// the file cannot be read or is not such an object.
bool LeerObjetoJson(const QString& ruta, QJsonObject& objeto, QString& error);

// What is wrong with a JSON text of `longitud` bytes, in Spanish, with the
// place where it was found.
QString TextoErrorJson(const QJsonParseError& e, qsizetype longitud);

// The objects of a list of rows ("Tramos", "Ramales"...): false with a
// message when there are more than `maximo` or one is not an object.
inline bool ObjetosDeLista(const QJsonArray& lista, int maximo, const char* fila, const char* filas,
                           QString& error) {
    if (lista.size() > maximo) {
        error = QStringLiteral("El proyecto tiene %1 %2; el máximo es %3.")
                    .arg(lista.size())
                    .arg(QString::fromUtf8(filas))
                    .arg(maximo);
        return false;
    }
    for (int i = 0; i < lista.size(); ++i)
        if (!lista[i].isObject()) {
            error = QStringLiteral("El %1 %2 no es un objeto.").arg(QString::fromUtf8(fila)).arg(i + 1);
            return false;
        }
    return true;
}
