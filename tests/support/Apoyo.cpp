#include "Apoyo.h"

#include "base/ErrorEjecucion.h"
#include "base/Nivo.h"
#include "shell/screens/VentanaMsgBox.h"
#include "store/Conexion.h"

#include <QDir>
#include <QFile>
#include <QLabel>
#include <QProcess>
#include <QProcessEnvironment>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

QString RutaProgramaPruebas() { return QStringLiteral(FONTARIA_RUTA_PROGRAMA); }
QString EjecutablePruebas() { return QStringLiteral(FONTARIA_EJECUTABLE); }

namespace {
// The next scripted answer; none when the script is spent (a cancel).
template <class T>
T Siguiente(std::deque<T>& guion) {
    if (guion.empty()) return T();
    T r = guion.front();
    guion.pop_front();
    return r;
}
}  // namespace

int DialogosFalsos::MostrarMensaje(const QString& texto, const QString& encabezado, const QString& titulo,
                                   int botones, int defecto, int icono, const QImage* imagen) {
    // Every message is laid out by the program's own box, and what the box
    // shows is what is recorded, so each text is checked as the engineer
    // reads it; only the answer comes from the script.
    const VentanaMsgBox caja(texto, encabezado, titulo, botones, defecto, icono, imagen ? *imagen : QImage());
    auto mostrado = [&caja](const char* etiqueta) {
        return caja.findChild<QLabel*>(QLatin1String(etiqueta))->text();
    };
    mensajes.push_back({mostrado("Label2"), mostrado("Label1"), caja.windowTitle(), botones, defecto, icono});
    if (respuestas.empty()) {
        if (botones == Botones::Aceptar) return Respuesta::Aceptar;
        if (botones == Botones::SiNo) return defecto == 0 ? Respuesta::No : Respuesta::Si;
        return defecto == 0 ? Respuesta::Cancelar : defecto == 1 ? Respuesta::No : Respuesta::Si;
    }
    return Siguiente(respuestas);
}

std::optional<QString> DialogosFalsos::AbrirArchivo(const QString& titulo, const QString& filtro,
                                                    const QString& carpeta) {
    dialogosArchivo << titulo + QLatin1Char('|') + filtro + QLatin1Char('|') + carpeta;
    return Siguiente(archivos);
}

std::optional<QString> DialogosFalsos::GuardarArchivo(const QString& titulo, const QString& filtro,
                                                      const QString& carpeta) {
    return AbrirArchivo(titulo, filtro, carpeta);
}

std::optional<QString> DialogosFalsos::PedirTexto(const QString& texto, const QString& titulo,
                                                  const QString& inicial) {
    preguntas << texto + QLatin1Char('|') + titulo + QLatin1Char('|') + inicial;
    return Siguiente(textos);
}

std::optional<int> DialogosFalsos::ElegirColor(int) { return Siguiente(colores); }

bool DialogosFalsos::AbrirConSistema(const QString& ruta) {
    abiertos << ruta;
    return abrirConSistemaResulta;
}

MarcasPrueba::MarcasPrueba(const char* locale) {
    SeparadoresActuales() = SeparadoresDelSistema(QLocale(QString::fromLatin1(locale)));
}

SesionPrueba::SesionPrueba() {
    s.RutaPrograma = RutaProgramaPruebas();
    s.DirectorioDatos = dir_.path();
    s.DirectorioTemporal = dir_.path() + QStringLiteral("/Temporales");
    QDir().mkpath(s.DirectorioTemporal);
    SeparadoresActuales() = Separadores();
    s.SeparadorDecimal = QLatin1Char('.');
    s.SeparadorMiles = QLatin1Char(',');
}

QString SesionPrueba::ProyectoEnBlanco(const QString& nombre) {
    return CopiaDeEjemplo(QStringLiteral("Proyecto.nivo"), nombre);
}

QString SesionPrueba::AcueductoEnBlanco(const QString& nombre) {
    return CopiaDeEjemplo(QStringLiteral("Malla.nivo"), nombre);
}

QString SesionPrueba::CopiaDeEjemplo(const QString& nivo, const QString& destino) {
    const QString ruta = Datos(destino);
    QFile::remove(ruta);
    QFile::copy(s.RutaImagen(nivo), ruta);
    QFile(ruta).setPermissions(QFile::ReadOwner | QFile::WriteOwner);
    return ruta;
}

int EjecutarPrograma(const QStringList& args, QString* salida, QString* errores, const QStringList& entorno) {
    QProcess p;
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    for (const QString& e : entorno) env.insert(e.section(QLatin1Char('='), 0, 0), e.section(QLatin1Char('='), 1));
    p.setProcessEnvironment(env);
    p.start(EjecutablePruebas(), args);
    p.waitForFinished(120000);
    if (salida) *salida = QString::fromUtf8(p.readAllStandardOutput());
    if (errores) *errores = QString::fromUtf8(p.readAllStandardError());
    return p.exitStatus() == QProcess::NormalExit ? p.exitCode() : -1;
}

int NumeroDeError(const std::function<void()>& f) {
    try {
        f();
    } catch (const ErrorEjecucion& e) {
        return e.numero();
    }
    return 0;
}

QString EscribirArchivo(const QString& ruta, const QByteArray& bytes) {
    QFile f(ruta);
    if (!f.open(QIODevice::WriteOnly)) ADD_FAILURE() << "no se puede escribir " << ruta.toStdString();
    f.write(bytes);
    return ruta;
}

QByteArray LeerArchivo(const QString& ruta) {
    QFile f(ruta);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

bool EjecutarSql(const QString& ruta, const QString& sql) {
    Conexion c;
    const bool hecho = c.Abrir(ruta) && c.Ejecutar(sql);
    if (!hecho) ADD_FAILURE() << sql.toStdString() << ": " << c.UltimoError().toStdString();
    return hecho;
}

TuberiaPrueba::TuberiaPrueba(const QString& r) : ruta(r) {
    const QByteArray nativa = QFile::encodeName(ruta);
    if (mkfifo(nativa.constData(), 0600) != 0) ADD_FAILURE() << "no se puede crear la tubería " << nativa.constData();
    escritor_ = std::thread([this, nativa] {
        while (!fin_) {
            // Fails while nobody reads; once a reader waits, it gets its end.
            const int fd = open(nativa.constData(), O_WRONLY | O_NONBLOCK);
            if (fd >= 0) close(fd);
            usleep(20000);
        }
    });
}

TuberiaPrueba::~TuberiaPrueba() {
    fin_ = true;
    escritor_.join();
}
