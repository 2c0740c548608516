#include "app/Dibujar.h"

#include "app/LineaComandos.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>
#include <QTemporaryFile>
#include <cerrno>
#include <cstring>
#include <spawn.h>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

extern char** environ;

bool ExtensionDibujoValida(const QString& ruta, QString& error) {
    const QString ext = QFileInfo(ruta).suffix().toLower();
    if (ext == QLatin1String("png") || ext == QLatin1String("svg") || ext == QLatin1String("pdf")) return true;
    error = QStringLiteral("El dibujo se guarda como PNG, SVG o PDF: la extensión de \"%1\" no es ninguna de ellas.")
                .arg(QFileInfo(ruta).fileName());
    return false;
}

int Dibujar(const QJsonObject& datos, const QString& ruta, const QStringList& extra) {
    QTemporaryFile temporal(QStringLiteral("%1/fontaria-dibujo-XXXXXX.json").arg(QDir::tempPath()));
    if (!temporal.open() || temporal.write(QJsonDocument(datos).toJson(QJsonDocument::Compact)) < 0 ||
        !temporal.flush())
        return Fallar(QStringLiteral("No se pudo preparar el dibujo en la carpeta temporal."));
    const std::string programa = ProgramaVecino("fontaria-dibujo");
    std::vector<std::string> args{programa, QFile::encodeName(temporal.fileName()).toStdString(),
                                  QFile::encodeName(ruta).toStdString()};
    for (const QString& e : extra) args.push_back(e.toStdString());
    std::vector<char*> argv;
    for (std::string& a : args) argv.push_back(a.data());
    argv.push_back(nullptr);
    pid_t pid = 0;
    const int r = posix_spawn(&pid, programa.c_str(), nullptr, nullptr, argv.data(), environ);
    if (r != 0)
        return Fallar(QStringLiteral("No se puede abrir el programa de dibujo %1: %2")
                          .arg(QString::fromStdString(programa), QString::fromLocal8Bit(strerror(r))));
    int estado = 0;
    while (waitpid(pid, &estado, 0) < 0 && errno == EINTR) {
    }
    // The drawer has said what went wrong on the shared stderr.
    return WIFEXITED(estado) && WEXITSTATUS(estado) == 0 ? Salida::Bien : Salida::Falla;
}
