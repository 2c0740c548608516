#include "shell/RespaldoZip.h"

#include "shell/Sesion.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <zip.h>

#include <memory>

namespace {

struct CerrarZip {
    void operator()(zip_t* z) const { zip_discard(z); }
};
using Zip = std::unique_ptr<zip_t, CerrarZip>;

QString ErrorZip(zip_t* z) { return QString::fromLocal8Bit(zip_strerror(z)); }

void AvanceDeZip(zip_t*, double fraccion, void* ud) {
    const auto* avance = static_cast<const AvanceZip*>(ud);
    if (*avance) (*avance)(fraccion);
}

// A name stored in a backup: relative, with no way out of the data folder.
bool NombreSeguro(const QString& nombre) {
    if (nombre.isEmpty() || nombre.startsWith(QLatin1Char('/')) || nombre.contains(QLatin1Char('\\'))) return false;
    for (const QString& parte : nombre.split(QLatin1Char('/')))
        if (parte == QLatin1String("..")) return false;
    return true;
}

}  // namespace

QStringList CarpetasRespaldo() {
    return {QStringLiteral("Proyectos"), QStringLiteral("Redes"), QStringLiteral("BDatos")};
}

QString ArchivoRespaldoZip(const Sesion& s, const QDateTime& momento) {
    return s.RutaDatos(QStringLiteral("RespaldoZIP/Respaldo_%1.zip").arg(momento.toString(QStringLiteral("yyyyMMdd_HHmmss"))));
}

int EscribirRespaldoZip(const Sesion& s, const QString& destino, const AvanceZip& avance, QString& error) {
    QDir().mkpath(QFileInfo(destino).absolutePath());
    int codigo = 0;
    // libzip writes the archive to a temporary file and renames it on close,
    // so a failed backup leaves no half file.
    Zip z(zip_open(QFile::encodeName(destino).constData(), ZIP_CREATE | ZIP_EXCL, &codigo));
    if (!z) {
        zip_error_t e;
        zip_error_init_with_code(&e, codigo);
        error = QStringLiteral("No se pudo crear el respaldo «%1»:\n%2").arg(destino, QString::fromLocal8Bit(zip_error_strerror(&e)));
        zip_error_fini(&e);
        return -1;
    }
    int archivos = 0;
    const QDir datos(s.DirectorioDatos);
    for (const QString& carpeta : CarpetasRespaldo()) {
        QDirIterator it(datos.filePath(carpeta), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
        while (it.hasNext()) {
            const QString ruta = it.next();
            const QByteArray nombre = datos.relativeFilePath(ruta).toUtf8();
            zip_source_t* fuente = zip_source_file(z.get(), QFile::encodeName(ruta).constData(), 0, -1);
            const zip_int64_t i = fuente ? zip_file_add(z.get(), nombre.constData(), fuente, ZIP_FL_ENC_UTF_8) : -1;
            if (i < 0) {
                if (fuente) zip_source_free(fuente);
                error = QStringLiteral("No se pudo agregar «%1» al respaldo:\n%2").arg(ruta, ErrorZip(z.get()));
                return -1;
            }
            zip_file_set_mtime(z.get(), zip_uint64_t(i), QFileInfo(ruta).lastModified().toSecsSinceEpoch(), 0);
            ++archivos;
        }
    }
    zip_register_progress_callback_with_state(z.get(), 0.01, AvanceDeZip, nullptr, const_cast<AvanceZip*>(&avance));
    if (zip_close(z.get()) != 0) {
        error = QStringLiteral("No se pudo escribir el respaldo «%1»:\n%2").arg(destino, ErrorZip(z.get()));
        return -1;
    }
    z.release();
    return archivos;
}

bool RestaurarRespaldoZip(const Sesion& s, const QString& origen, const QStringList& enUso, const AvanceZip& avance,
                          ResultadoRestauracion& r, QString& error) {
    int codigo = 0;
    Zip z(zip_open(QFile::encodeName(origen).constData(), ZIP_RDONLY | ZIP_CHECKCONS, &codigo));
    if (!z) {
        error = QStringLiteral("El archivo no es un respaldo que se pueda leer:\n") + origen;
        return false;
    }
    const zip_int64_t n = zip_get_num_entries(z.get(), 0);
    std::vector<zip_stat_t> entradas(size_t(std::max<zip_int64_t>(n, 0)));
    for (zip_int64_t i = 0; i < n; ++i) {
        zip_stat_index(z.get(), zip_uint64_t(i), 0, &entradas[size_t(i)]);
        if (!NombreSeguro(QString::fromUtf8(entradas[size_t(i)].name))) {
            error = QStringLiteral("El respaldo tiene un nombre de archivo no permitido: «%1».\nNo se restauró nada.")
                        .arg(QString::fromUtf8(entradas[size_t(i)].name));
            return false;
        }
    }
    const QDir datos(s.DirectorioDatos);
    for (zip_int64_t i = 0; i < n; ++i) {
        const zip_stat_t& st = entradas[size_t(i)];
        const QString nombre = QString::fromUtf8(st.name);
        if (avance) avance(double(i) / double(n));
        if (nombre.endsWith(QLatin1Char('/'))) continue;
        const QString destino = datos.filePath(nombre);
        const QFileInfo actual(destino);
        if (enUso.contains(actual.absoluteFilePath())) {
            r.enUso << nombre;
            continue;
        }
        // A zip keeps times to two seconds: only a file changed after that
        // counts as newer.
        if (actual.exists() && (st.valid & ZIP_STAT_MTIME) && actual.lastModified().toSecsSinceEpoch() > st.mtime + 2) {
            r.conservados << nombre;
            continue;
        }
        QDir().mkpath(actual.absolutePath());
        QByteArray bytes(qsizetype(st.size), Qt::Uninitialized);
        zip_file_t* f = zip_fopen_index(z.get(), zip_uint64_t(i), 0);
        const bool leido = f && zip_fread(f, bytes.data(), st.size) == zip_int64_t(st.size);
        if (f) zip_fclose(f);
        QSaveFile salida(destino);
        if (!leido || !salida.open(QIODevice::WriteOnly) || salida.write(bytes) != bytes.size() || !salida.commit()) {
            error = QStringLiteral("No se pudo restaurar «%1»:\n%2").arg(nombre, leido ? salida.errorString() : ErrorZip(z.get()));
            return false;
        }
        QFile(destino).setFileTime(QDateTime::fromSecsSinceEpoch(st.mtime), QFileDevice::FileModificationTime);
        ++r.restaurados;
    }
    if (avance) avance(1.0);
    return true;
}
