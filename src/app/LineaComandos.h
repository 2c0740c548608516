#pragma once
// The command line: `fontaria VERB ...`.  Each verb is a function of its own
// file; errors go to stderr in Spanish with a non-zero status.

#include "base/Dialogos.h"

#include <QJsonObject>
#include <QStringList>
#include <string>

struct Sesion;

// Exit statuses shared by the verbs.
namespace Salida {
constexpr int Bien = 0;
constexpr int Falla = 1;         // bad arguments, unreadable or foreign file
constexpr int DatosInvalidos = 2;  // the project's data are refused (numbering, no tank)
constexpr int ErrorCalculo = 3;  // a run-time fault of a calculation
constexpr int SinConvergencia = 4;  // results given, but a pass reached the iteration limit
}  // namespace Salida

// Runs the verb in args[1] (args[0] is the program); returns the status.
int EjecutarLineaComandos(const QStringList& args);

// A session for a verb: program folder, separators and user name, without
// touching the user's folders.
void PrepararSesion(Sesion& s);

// An executable in this program's folder, found from the running image
// itself rather than from argv[0], which a shell may give bare.
std::string ProgramaVecino(const char* nombre);
// Runs that program with the arguments, waits for it and returns its exit
// status; it says on the shared stderr what went wrong.
int EjecutarVecino(const char* nombre, const QStringList& argumentos);

// Output helpers.
void Imprimir(const QString& texto);
void ImprimirJson(const QJsonObject& o);
int Fallar(const QString& mensaje, int estado = Salida::Falla);

struct ProyectoAcueducto;
struct Sesion;
// An aqueduct file loaded for a verb; false, with the message and the exit
// status, when it does not open or has no section.
bool CargarRedVerbo(ProyectoAcueducto& p, Sesion& s, const QString& archivo, QString& mensaje, int& estado);

// The questions of the logic answered on a console: messages go to stderr
// and every question takes its default button.
class DialogosConsola : public Dialogos {
public:
    int MostrarMensaje(const QString& texto, const QString& encabezado, const QString& titulo, int botones,
                       int defecto, int icono, const QImage* imagen) override;
    std::optional<QString> AbrirArchivo(const QString&, const QString&, const QString&) override { return {}; }
    std::optional<QString> GuardarArchivo(const QString&, const QString&, const QString&) override { return {}; }
    std::optional<QString> PedirTexto(const QString&, const QString&, const QString&) override { return {}; }
    std::optional<int> ElegirColor(int) override { return {}; }
    bool AbrirConSistema(const QString&) override { return false; }
    void CursorOcupado(bool) override {}

    // The last message shown, for verbs that report it.
    QString ultimoTexto;
    bool silencioso = false;
};

// The verbs.
int VerboIniciar(const QStringList& args);
int VerboProyecto(const QStringList& args);
int VerboAnalizar(const QStringList& args);
int VerboTanque(const QStringList& args);
int VerboComputos(const QStringList& args);
int VerboAcueducto(const QStringList& args);
int VerboReporte(const QStringList& args);
int VerboLibro(const QStringList& args);
