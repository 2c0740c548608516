#include "shell/Compactar1.h"

#include "base/Dialogos.h"
#include "shell/Sesion.h"
#include "store/Conexion.h"

#include <QDir>
#include <QFileInfo>
#include <QTime>

#include <cstdio>

namespace {

const QString Titulo = QStringLiteral("Reparar y Compactar Archivos");

void VaciarCarpeta(const QString& carpeta) {
    QDir d(carpeta);
    for (const QString& f : d.entryList(QDir::Files | QDir::Hidden)) d.remove(f);
}

}  // namespace

bool CompactarBase(const QString& origen, const QString& destino, QString& error) {
    if (QFileInfo::exists(destino)) {
        error = QStringLiteral("Ya existe el archivo de destino:\n") + destino;
        return false;
    }
    Conexion c;
    if (!c.Abrir(origen)) {
        error = c.UltimoError();
        return false;
    }
    // The store's own check reads every page: a damaged file is refused
    // here, before anything of it is copied or replaced.
    const QString chequeo = c.Escalar(QStringLiteral("PRAGMA integrity_check")).toString();
    if (chequeo != QLatin1String("ok")) {
        error = QStringLiteral("El archivo está dañado y no se puede reparar:\n") + origen +
                (chequeo.isEmpty() ? c.UltimoError() : QStringLiteral("\n") + chequeo);
        return false;
    }
    if (!c.Ejecutar(QStringLiteral("VACUUM INTO ?1"), {Valor(destino)})) {
        error = QStringLiteral("No se pudo compactar el archivo:\n") + origen + QLatin1Char('\n') + c.UltimoError();
        QFile::remove(destino);
        return false;
    }
    return true;
}

QString NombreCompactado(const QString& carpeta, int minuto, int segundo) {
    const QString base = QStringLiteral("%1/DBT_%2%3").arg(carpeta).arg(minuto, 2, 10, QLatin1Char('0'))
                             .arg(segundo, 2, 10, QLatin1Char('0'));
    QString nombre = base + QStringLiteral(".mdb");
    for (int n = 1; QFileInfo::exists(nombre); ++n) nombre = QStringLiteral("%1_%2.mdb").arg(base).arg(n);
    return nombre;
}

bool Compactar1::CompactarUno(const QString& archivo, QString& error) {
    const QString temporales = s_.DirectorioTemporal;
    QFile::remove(temporales + QLatin1Char('/') + QFileInfo(archivo).fileName());
    const QTime ahora = QTime::currentTime();
    const QString compactado = NombreCompactado(temporales, ahora.minute(), ahora.second());
    if (!CompactarBase(archivo, compactado, error)) return false;
    // The copy goes next to the original first and then takes its name in
    // one step: at every moment the file is either the old one or the new.
    const QString junto = archivo + QStringLiteral(".compactado");
    QFile::remove(junto);
    if (!QFile::copy(compactado, junto) || std::rename(QFile::encodeName(junto).constData(),
                                                       QFile::encodeName(archivo).constData()) != 0) {
        QFile::remove(junto);
        error = QStringLiteral("No se pudo reemplazar el archivo:\n") + archivo;
        return false;
    }
    QFile::remove(compactado);
    return true;
}

int Compactar1::Aceptar(const QStringList& archivos) {
    if (archivos.isEmpty()) {
        d_.MostrarMensaje(QStringLiteral("No ha Seleccionado ningún Archivo..."), QStringLiteral("Reparar Archivos..."),
                          Titulo);
        return 0;
    }
    const bool proyectoAbierto = s_.ConexionProyecto.Abierta();
    s_.ConexionCatalogo.Cerrar();
    s_.ConexionProyecto.Cerrar();
    QDir().mkpath(s_.DirectorioTemporal);
    VaciarCarpeta(s_.DirectorioTemporal);

    int hechos = 0;
    QString error;
    for (const QString& archivo : archivos) {
        if (Avance) Avance(hechos, int(archivos.size()), QStringLiteral("Archivo: ") + QFileInfo(archivo).fileName().toUpper());
        if (!CompactarUno(archivo, error)) break;
        ++hechos;
    }
    if (Avance) Avance(hechos, int(archivos.size()), QString());

    AbrirConexion(s_.ConexionCatalogo, s_.RutaDatos(QStringLiteral("BDatos/BD_Piezas_Conexiones.mdb")));
    if (proyectoAbierto) AbrirConexionProyecto(s_);
    if (!error.isEmpty()) {
        d_.MostrarMensaje(error + QStringLiteral("\n\nArchivos compactados antes de éste: %1").arg(hechos),
                          QStringLiteral("Reparar Archivos..."), Titulo, Botones::Aceptar, 0, 3);
        return hechos;
    }
    d_.MostrarMensaje(QStringLiteral("¡Se Repararon Y Compactaron ( %1 ) Archivos con Exito!").arg(hechos),
                      QStringLiteral("Mantenimientos de Archivos..."), QStringLiteral("Proyecto de Fontaria"));
    return hechos;
}
