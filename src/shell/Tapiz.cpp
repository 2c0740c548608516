#include "shell/Tapiz.h"

#include "store/Archivos.h"

#include <QFile>
#include <QSaveFile>
#include <QtEndian>

namespace {

constexpr int NumeroRegistros = 11;

char* Registro(QByteArray& datos, int n) {
    const int inicio = (n - 1) * LongitudRegistroTapiz;
    if (datos.size() < inicio + LongitudRegistroTapiz) datos.resize(inicio + LongitudRegistroTapiz, '\0');
    return datos.data() + inicio;
}

const uchar* RegistroLeido(const QByteArray& datos, int n) {
    static const QByteArray ceros(LongitudRegistroTapiz, '\0');
    const int inicio = (n - 1) * LongitudRegistroTapiz;
    if (datos.size() < inicio + LongitudRegistroTapiz) {
        // A record cut short reads its present bytes and zeros after them.
        static QByteArray parcial;
        parcial = datos.mid(inicio);
        parcial.resize(LongitudRegistroTapiz, '\0');
        return reinterpret_cast<const uchar*>(inicio < datos.size() ? parcial.constData() : ceros.constData());
    }
    return reinterpret_cast<const uchar*>(datos.constData() + inicio);
}

void PonerTexto(QByteArray& datos, int n, const QString& texto) {
    // A counted text: 16-bit length, then the bytes.  A text that does not
    // fit the record is stored empty (the record can't hold it).
    QByteArray b = texto.toUtf8();
    if (b.size() > LongitudRegistroTapiz - 2) b.clear();
    char* r = Registro(datos, n);
    qToLittleEndian<quint16>(quint16(b.size()), r);
    memcpy(r + 2, b.constData(), size_t(b.size()));
}

void Poner16(QByteArray& datos, int n, int16_t v) { qToLittleEndian<qint16>(v, Registro(datos, n)); }
void Poner32(QByteArray& datos, int n, int32_t v) { qToLittleEndian<qint32>(v, Registro(datos, n)); }
void Poner8(QByteArray& datos, int n, uint8_t v) { Registro(datos, n)[0] = char(v); }

bool Guardar(const QString& ruta, const QByteArray& datos) {
    QSaveFile f(ruta);
    if (!f.open(QIODevice::WriteOnly)) return false;
    f.write(datos);
    return f.commit();
}

}  // namespace

ConfiguracionTapiz TapizPorDefecto(const QString& directorioDatos) {
    ConfiguracionTapiz c;
    c.RutaTapiz = directorioDatos + QStringLiteral("/Tapices/TapizNivo.jpg");
    return c;
}

ConfiguracionTapiz LeerTapiz(const QString& ruta, bool* existe) {
    ConfiguracionTapiz c;
    // Eleven records of 128 bytes: anything much larger, or that is not a
    // regular file, is not the settings file and reads as absent.
    QByteArray datos;
    QString error;
    const bool abierto = LeerArchivoRegular(ruta, 64 * 1024, datos, error);
    if (existe) *existe = abierto;

    const uchar* r1 = RegistroLeido(datos, 1);
    const int largo = std::min<int>(qFromLittleEndian<quint16>(r1), LongitudRegistroTapiz - 2);
    c.RutaTapiz = QString::fromUtf8(reinterpret_cast<const char*>(r1 + 2), largo);
    c.PosicionVertical = qFromLittleEndian<qint16>(RegistroLeido(datos, 2));
    c.PosicionHorizontal = qFromLittleEndian<qint16>(RegistroLeido(datos, 3));
    c.AjustarTapiz = qFromLittleEndian<qint16>(RegistroLeido(datos, 4)) != 0;
    c.EfectoTapiz = RegistroLeido(datos, 5)[0];
    if (c.EfectoTapiz > 27) c.EfectoTapiz = 0;
    c.ProporcionTapiz = qFromLittleEndian<qint16>(RegistroLeido(datos, 6)) != 0;
    c.TamanoLetraTip = RegistroLeido(datos, 7)[0];
    if (c.TamanoLetraTip > 4) c.TamanoLetraTip = 0;
    c.ColorFondoTip = qFromLittleEndian<qint32>(RegistroLeido(datos, 8));
    c.ColorTextoTip = qFromLittleEndian<qint32>(RegistroLeido(datos, 9));
    c.Check3 = qFromLittleEndian<qint16>(RegistroLeido(datos, 10));
    c.Check4 = qFromLittleEndian<qint16>(RegistroLeido(datos, 11));
    return c;
}

bool EscribirTapizPorDefecto(const QString& ruta, const ConfiguracionTapiz& c) {
    QByteArray datos(NumeroRegistros * LongitudRegistroTapiz, '\0');
    PonerTexto(datos, 1, c.RutaTapiz);
    Poner16(datos, 2, c.PosicionVertical);
    Poner16(datos, 3, c.PosicionHorizontal);
    Poner16(datos, 4, c.AjustarTapiz ? -1 : 0);
    Poner16(datos, 5, c.EfectoTapiz);
    Poner16(datos, 6, c.ProporcionTapiz ? -1 : 0);
    Poner16(datos, 7, c.TamanoLetraTip);
    Poner32(datos, 8, c.ColorFondoTip);
    Poner16(datos, 9, int16_t(c.ColorTextoTip));
    Poner16(datos, 10, c.Check3);
    Poner16(datos, 11, c.Check4);
    return Guardar(ruta, datos);
}

bool EscribirTapizConfiguracion(const QString& ruta, const ConfiguracionTapiz& c) {
    QByteArray datos;
    QString error;
    if (!LeerArchivoRegular(ruta, 64 * 1024, datos, error)) datos.clear();
    Registro(datos, NumeroRegistros);
    // Record 1 is rewritten whole, as a counted text always is.
    memset(Registro(datos, 1), 0, LongitudRegistroTapiz);
    PonerTexto(datos, 1, c.RutaTapiz);
    Poner8(datos, 2, uint8_t(c.PosicionVertical));
    Poner8(datos, 3, uint8_t(c.PosicionHorizontal));
    Poner16(datos, 4, c.AjustarTapiz ? -1 : 0);
    Poner8(datos, 5, c.EfectoTapiz);
    Poner16(datos, 6, c.ProporcionTapiz ? -1 : 0);
    Poner8(datos, 7, c.TamanoLetraTip);
    Poner32(datos, 8, c.ColorFondoTip);
    Poner32(datos, 9, c.ColorTextoTip);
    Poner16(datos, 10, c.Check3);
    Poner16(datos, 11, c.Check4);
    return Guardar(ruta, datos);
}
