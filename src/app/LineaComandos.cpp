#include "app/LineaComandos.h"

#include "shell/Inicio.h"
#include "shell/Sesion.h"

#include <QJsonDocument>
#include <QFile>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

extern char** environ;

namespace {

const char* Uso() {
    return "Uso: fontaria [VERBO ...]\n"
           "  (sin verbo)                               el programa de escritorio\n"
           "  iniciar                                   prepara las carpetas y muestra DirectorioDatos\n"
           "  proyecto exportar X.plm                   el proyecto como JSON\n"
           "  proyecto importar datos.json X.plm        crea X.plm desde un JSON\n"
           "  analizar X.plm [--json|--grids]           análisis de la red de un edificio\n"
           "  analizar X.plm --esquema F.png|.svg|.pdf [--blanco-y-negro]\n"
           "                                            el esquema de la red\n"
           "  tanque [X.plm] --metodo N [...] [--json]  tanque hidroneumático\n"
           "  computos X.plm [--json]                   cómputos de materiales\n"
           "  acueducto X.acu [--caso 1|2|3] [--json]   análisis de una red de acueducto\n"
           "  acueducto X.acu --corregir-direccion      invierte los ramales de caudal negativo\n"
           "  acueducto X.acu [--caso N] --plano F.png|.svg|.pdf [--color velocidad|perdida] [--blanco-y-negro]\n"
           "                                            el plano de la red\n"
           "  acueducto exportar X.acu | importar datos.json X.acu\n"
           "  acueducto importar-inp red.inp X.acu [--bomba-como-carga] [--c-por-defecto]\n"
           "  acueducto exportar-inp X.acu red.inp      la red en el formato .inp\n"
           "  reporte X.plm|X.acu --plantilla NOMBRE --salida ARCHIVO.pdf|.html|.xlsx|.rtf [--color] [--caso N]\n"
           "                                            un reporte escrito sin ventana\n"
           "  libro X.plm|X.acu [--caso N] --salida libro.xlsx [--sin-indice] [--sin-color]\n"
           "                                            el libro de Excel de los resultados\n";
}

}  // namespace

void Imprimir(const QString& texto) {
    const QByteArray b = texto.toUtf8();
    fwrite(b.constData(), 1, size_t(b.size()), stdout);
    if (!texto.endsWith(QLatin1Char('\n'))) fputc('\n', stdout);
    fflush(stdout);
}

void ImprimirJson(const QJsonObject& o) {
    // Written as the bytes the document gives: a large network's results run
    // to tens of megabytes, and a round trip through QString would copy and
    // convert them twice more.
    QByteArray b = QJsonDocument(o).toJson(QJsonDocument::Indented);
    if (!b.endsWith('\n')) b.append('\n');
    fwrite(b.constData(), 1, size_t(b.size()), stdout);
    fflush(stdout);
}

int Fallar(const QString& mensaje, int estado) {
    fprintf(stderr, "%s\n", mensaje.toUtf8().constData());
    return estado;
}

int DialogosConsola::MostrarMensaje(const QString& texto, const QString& encabezado, const QString& titulo, int,
                                    int defecto, int, const QImage*) {
    ultimoTexto = texto;
    if (!silencioso)
        fprintf(stderr, "%s\n%s\n%s\n", titulo.toUtf8().constData(), encabezado.toUtf8().constData(),
                texto.toUtf8().constData());
    return defecto;
}

void PrepararSesion(Sesion& s) {
    s.RutaPrograma = CarpetaPrograma();
    SeparadorPrograma(s);
    s.NombreUsuario = NombreUsuarioSistema();
    s.DirectorioDatos = DirectorioDatosPorDefecto();
    s.DirectorioTemporal = s.RutaDatos(QStringLiteral("Temporales"));
}

int EjecutarLineaComandos(const QStringList& args) {
    if (args.size() < 2) return Fallar(QString::fromUtf8(Uso()));
    const QString verbo = args[1];
    if (verbo == QLatin1String("iniciar")) return VerboIniciar(args);
    if (verbo == QLatin1String("proyecto")) return VerboProyecto(args);
    if (verbo == QLatin1String("analizar")) return VerboAnalizar(args);
    if (verbo == QLatin1String("tanque")) return VerboTanque(args);
    if (verbo == QLatin1String("computos")) return VerboComputos(args);
    if (verbo == QLatin1String("acueducto")) return VerboAcueducto(args);
    if (verbo == QLatin1String("reporte")) return VerboReporte(args);
    if (verbo == QLatin1String("libro")) return VerboLibro(args);
    if (verbo == QLatin1String("--help") || verbo == QLatin1String("ayuda")) {
        Imprimir(QString::fromUtf8(Uso()));
        return Salida::Bien;
    }
    return Fallar(QStringLiteral("Verbo desconocido: ") + verbo + QLatin1Char('\n') + QString::fromUtf8(Uso()));
}

std::string ProgramaVecino(const char* nombre) {
    std::string ruta(4096, '\0');
    const ssize_t n = readlink("/proc/self/exe", ruta.data(), ruta.size() - 1);
    ruta = n > 0 ? ruta.substr(0, size_t(n)) : std::string();
    const size_t barra = ruta.rfind('/');
    return (barra == std::string::npos ? std::string() : ruta.substr(0, barra + 1)) + nombre;
}

int EjecutarVecino(const char* nombre, const QStringList& argumentos) {
    const std::string programa = ProgramaVecino(nombre);
    std::vector<QByteArray> bytes{QByteArray::fromStdString(programa)};
    for (const QString& a : argumentos) bytes.push_back(QFile::encodeName(a));
    std::vector<char*> argv;
    for (QByteArray& b : bytes) argv.push_back(b.data());
    argv.push_back(nullptr);
    pid_t hijo = 0;
    if (const int e = posix_spawn(&hijo, programa.c_str(), nullptr, nullptr, argv.data(), environ); e != 0)
        return Fallar(QStringLiteral("No se puede ejecutar %1: %2")
                          .arg(QString::fromStdString(programa), QString::fromLocal8Bit(strerror(e))));
    int estado = 0;
    while (waitpid(hijo, &estado, 0) < 0)
        if (errno != EINTR) return Fallar(QStringLiteral("Se perdió el proceso de %1.").arg(QString::fromLatin1(nombre)));
    if (WIFEXITED(estado)) return WEXITSTATUS(estado);
    return Fallar(QStringLiteral("El proceso de %1 terminó por la señal %2.").arg(QString::fromLatin1(nombre)).arg(WTERMSIG(estado)));
}
