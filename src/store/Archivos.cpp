#include "store/Archivos.h"

#include <QFileInfo>
#include <cerrno>
#include <cstdlib>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

QString RutaDesdeNativa(const QByteArray& bytes) {
    QString ruta;
    for (qsizetype i = 0; i < bytes.size();) {
        const uchar b = uchar(bytes[i]);
        const int largo = b < 0x80 ? 1 : b >= 0xF0 ? 4 : b >= 0xE0 ? 3 : 2;
        // A sequence is taken when it decodes to one character and back to
        // the same bytes; any other byte is kept as itself.
        const QByteArray secuencia = bytes.mid(i, largo);
        const QString c = QString::fromUtf8(secuencia);
        if (secuencia.size() == largo && !c.contains(QChar::ReplacementCharacter) && c.toUtf8() == secuencia) {
            ruta += c;
            i += largo;
        } else {
            ruta += QChar(ushort(0xDC00 + b));
            ++i;
        }
    }
    return ruta;
}

QByteArray RutaNativa(const QString& ruta) {
    QByteArray bytes;
    qsizetype desde = 0;
    for (qsizetype i = 0; i < ruta.size(); ++i) {
        const ushort u = ruta[i].unicode();
        const bool suelto = u >= 0xDC80 && u <= 0xDCFF && (i == 0 || !ruta[i - 1].isHighSurrogate());
        if (!suelto) continue;
        bytes += ruta.mid(desde, i - desde).toUtf8();
        bytes += char(u - 0xDC00);
        desde = i + 1;
    }
    return bytes + ruta.mid(desde).toUtf8();
}

bool LeerArchivoRegular(const QString& ruta, qint64 maximo, QByteArray& datos, QString& error) {
    const QString noSeLee = QStringLiteral("No se puede leer el archivo: ") + ruta;
    // Without waiting: a pipe with no writer would hold the open for ever.
    const int fd = open(RutaNativa(ruta).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (fd < 0) {
        error = noSeLee;
        return false;
    }
    struct stat st {};
    bool ok = fstat(fd, &st) == 0;
    if (ok && !S_ISREG(st.st_mode)) {
        error = noSeLee + QStringLiteral(" (no es un archivo común)");
        ok = false;
    } else if (ok && st.st_size > maximo) {
        error = noSeLee + QStringLiteral(" (pasa de %1 MB)").arg(maximo / (1024 * 1024));
        ok = false;
    }
    if (ok) {
        datos.resize(qsizetype(st.st_size));
        qsizetype leido = 0;
        while (leido < datos.size()) {
            const ssize_t n = read(fd, datos.data() + leido, size_t(datos.size() - leido));
            if (n < 0 && errno == EINTR) continue;
            if (n <= 0) break;
            leido += n;
        }
        datos.truncate(leido);
        if (leido != st.st_size) {
            error = noSeLee;
            ok = false;
        }
    }
    close(fd);
    return ok;
}

bool DestinoReemplazable(const QString& destino, const QString& origen, QString& error) {
    struct stat d {};
    if (lstat(RutaNativa(destino).constData(), &d) != 0) return errno == ENOENT || errno == ENOTDIR;
    struct stat o {};
    QString motivo;
    if (S_ISLNK(d.st_mode))
        motivo = QStringLiteral("es un enlace simbólico");
    else if (!S_ISREG(d.st_mode))
        motivo = QStringLiteral("no es un archivo común");
    else if (stat(RutaNativa(origen).constData(), &o) == 0 && o.st_dev == d.st_dev && o.st_ino == d.st_ino)
        motivo = QStringLiteral("es el mismo archivo de entrada");
    else if (ArchivoSoloLectura(destino))
        motivo = QStringLiteral("es de sólo lectura");
    if (motivo.isEmpty()) return true;
    error = QStringLiteral("No se puede escribir el archivo: %1 (%2)").arg(destino, motivo);
    return false;
}

bool ArchivoSoloLectura(const QString& ruta) {
    const QByteArray nativa = RutaNativa(ruta);
    struct stat st {};
    if (stat(nativa.constData(), &st) != 0) return false;
    return (st.st_mode & (S_IWUSR | S_IWGRP | S_IWOTH)) == 0 || access(nativa.constData(), W_OK) != 0;
}

bool CopiarArchivo(const QString& origen, const QString& destino, QString* error) {
    const auto Falla = [&](const QString& texto) {
        if (error) *error = texto;
        return false;
    };
    const int entrada = open(RutaNativa(origen).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    struct stat st {};
    if (entrada < 0 || fstat(entrada, &st) != 0 || !S_ISREG(st.st_mode)) {
        if (entrada >= 0) close(entrada);
        return Falla(QStringLiteral("No se puede leer el archivo: ") + origen);
    }
    // Written whole under a temporary name beside the target, then put in
    // its place in one step.
    const QFileInfo info(destino);
    QByteArray temporal = RutaNativa(info.absolutePath() + QStringLiteral("/.") + info.fileName()) + ".XXXXXX";
    const int salida = mkostemp(temporal.data(), O_CLOEXEC);
    bool ok = salida >= 0;
    char bloque[1 << 16];
    while (ok) {
        const ssize_t n = read(entrada, bloque, sizeof bloque);
        if (n < 0 && errno == EINTR) continue;
        if (n <= 0) {
            ok = n == 0;
            break;
        }
        for (ssize_t hecho = 0; ok && hecho < n;) {
            const ssize_t w = write(salida, bloque + hecho, size_t(n - hecho));
            if (w < 0 && errno == EINTR) continue;
            ok = w > 0;
            hecho += w;
        }
    }
    close(entrada);
    if (salida >= 0) {
        // The replaced file's mode, or the one a new file gets.
        const mode_t mascara = umask(0);
        umask(mascara);
        struct stat previo {};
        const mode_t modo = stat(RutaNativa(destino).constData(), &previo) == 0 ? previo.st_mode & 07777
                                                                                : 0666 & ~mascara;
        ok = fchmod(salida, modo) == 0 && fsync(salida) == 0 && close(salida) == 0 && ok;
        if (ok) ok = rename(temporal.constData(), RutaNativa(destino).constData()) == 0;
        if (!ok) unlink(temporal.constData());
    }
    return ok || Falla(QStringLiteral("No se puede escribir el archivo: ") + destino);
}

bool ReemplazarArchivo(const QString& nuevo, const QString& destino) {
    return std::rename(RutaNativa(nuevo).constData(), RutaNativa(destino).constData()) == 0;
}

bool EscribirDesdePlantilla(const QString& plantilla, const QString& destino, QString& error,
                            const std::function<bool(const QString& temporal, QString& error)>& escribir) {
    const QFileInfo info(destino);
    const QString temporal = info.absolutePath() + QStringLiteral("/.") + info.fileName() + QStringLiteral(".tmp");
    // What a write killed half way left: a live journal would be played
    // back into the fresh copy.
    const auto BorrarRestos = [&] {
        for (const char* resto : {"", "-journal", "-wal", "-shm"})
            unlink(RutaNativa(temporal + QString::fromLatin1(resto)).constData());
    };
    BorrarRestos();
    if (!CopiarArchivo(plantilla, temporal, &error)) return false;
    bool ok = escribir(temporal, error);
    if (ok) {
        ok = ReemplazarArchivo(temporal, destino);
        if (!ok) error = QStringLiteral("No se puede escribir el archivo: ") + destino;
    }
    if (!ok) BorrarRestos();
    return ok;
}
