#include "images/CaminoImagen.h"

#include "store/Archivos.h"

#include <QSaveFile>
#include <QtEndian>

namespace {
constexpr int Inicio = (RegistroUltimaCarpeta - 1) * LongitudRegistroCamino;
constexpr qint64 MaximoArchivo = 64 * 1024;
}  // namespace

QString RutaCaminoImagen(const QString& directorioDatos) {
    return directorioDatos + QStringLiteral("/CaminoImagen.nivo");
}

QString LeerUltimaCarpeta(const QString& directorioDatos) {
    QByteArray datos;
    QString error;
    if (!LeerArchivoRegular(RutaCaminoImagen(directorioDatos), MaximoArchivo, datos, error)) return QString();
    if (datos.size() < Inicio + 2) return QString();
    const int largo = qFromLittleEndian<quint16>(datos.constData() + Inicio);
    if (largo > LongitudRegistroCamino - 2 || Inicio + 2 + largo > datos.size()) return QString();
    return QString::fromUtf8(datos.constData() + Inicio + 2, largo);
}

bool EscribirUltimaCarpeta(const QString& directorioDatos, const QString& carpeta) {
    const QByteArray texto = carpeta.toUtf8();
    if (texto.size() > LongitudRegistroCamino - 2) return false;
    const QString ruta = RutaCaminoImagen(directorioDatos);
    QByteArray datos;
    QString error;
    if (!LeerArchivoRegular(ruta, MaximoArchivo, datos, error)) datos.clear();
    if (datos.size() < Inicio + LongitudRegistroCamino) datos.resize(Inicio + LongitudRegistroCamino, '\0');
    char* r = datos.data() + Inicio;
    memset(r, 0, LongitudRegistroCamino);
    qToLittleEndian<quint16>(quint16(texto.size()), r);
    memcpy(r + 2, texto.constData(), size_t(texto.size()));
    QSaveFile f(ruta);
    if (!f.open(QIODevice::WriteOnly)) return false;
    f.write(datos);
    return f.commit();
}
