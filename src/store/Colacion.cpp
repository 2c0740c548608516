#include "store/Colacion.h"

#include <QCollator>
#include <QLocale>
#include <cstring>
#include <sqlite3.h>

namespace {

// The letters of a text without their accents and in small letters; the
// tilde of "ñ" stays, since it makes another letter.  QCollator ignores case
// but not accents, and only with ICU behind it.
QString Letras(const QString& texto) {
    const QString d = texto.normalized(QString::NormalizationForm_D);
    QString r;
    r.reserve(d.size());
    for (const QChar c : d) {
        if (c.category() == QChar::Mark_NonSpacing) {
            const bool enie = c.unicode() == 0x0303 && !r.isEmpty() && (r.back() == u'n' || r.back() == u'N');
            if (!enie) continue;
        }
        r.append(c);
    }
    return r.normalized(QString::NormalizationForm_C).toCaseFolded();
}

const QCollator& Orden() {
    static const QCollator orden = [] {
        QCollator c{QLocale(QLocale::Spanish)};
        c.setCaseSensitivity(Qt::CaseInsensitive);
        return c;
    }();
    return orden;
}

int CompararSql(void*, int largoA, const void* a, int largoB, const void* b) {
    if (largoA == largoB && std::memcmp(a, b, size_t(largoA)) == 0) return 0;
    return CompararTexto(QString::fromUtf8(static_cast<const char*>(a), largoA),
                         QString::fromUtf8(static_cast<const char*>(b), largoB));
}

}  // namespace

int CompararTexto(const QString& a, const QString& b) {
    const int c = Orden().compare(Letras(a), Letras(b));
    return c < 0 ? -1 : c > 0 ? 1 : 0;
}

bool RegistrarColacion(sqlite3* db) {
    return sqlite3_create_collation_v2(db, "ESPANOL", SQLITE_UTF8, nullptr, CompararSql, nullptr) == SQLITE_OK;
}
