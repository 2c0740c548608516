#include "store/Archivos.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <cstdio>

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
