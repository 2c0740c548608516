#include "store/Valor.h"

#include "base/Nivo.h"

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
