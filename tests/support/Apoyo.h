#pragma once
// Shared test support: a scripted Dialogos, a session in a temporary data
// folder, and blank project files from the installed templates.

#include "base/Dialogos.h"
#include "base/Nivo.h"
#include "shell/Sesion.h"

#include <QStringList>
#include <QTemporaryDir>
#include <atomic>
#include <deque>
#include <functional>
#include <gtest/gtest.h>
#include <ostream>
#include <thread>
#include <vector>

// Texts in test failures read as text.
inline void PrintTo(const QString& s, std::ostream* os) { *os << '"' << s.toStdString() << '"'; }

// The program folder of the build, holding the generated Imagen/.
QString RutaProgramaPruebas();
// The built executable, for command-line tests.
QString EjecutablePruebas();

// Records every question and answers from a script, in turn; with the
// script empty it answers the question's default.  A message is recorded
// as the program's message box lays it out.
class DialogosFalsos : public Dialogos {
public:
    struct Mensaje {
        QString texto, encabezado, titulo;
        int botones = 0, defecto = 0, icono = 0;
    };
    std::vector<Mensaje> mensajes;
    std::deque<int> respuestas;                       // for MostrarMensaje
    std::deque<std::optional<QString>> archivos;      // for AbrirArchivo / GuardarArchivo
    std::deque<std::optional<QString>> textos;        // for PedirTexto
    std::deque<std::optional<int>> colores;
    QStringList dialogosArchivo;  // "titulo|filtro|carpeta" of each file dialog
    QStringList preguntas;        // "texto|titulo|inicial" of each input box
    QStringList abiertos;         // paths opened with the system
    bool abrirConSistemaResulta = true;
    int ocupado = 0;

    int MostrarMensaje(const QString& texto, const QString& encabezado, const QString& titulo, int botones,
                       int defecto, int icono, const QImage* imagen) override;
    std::optional<QString> AbrirArchivo(const QString& titulo, const QString& filtro, const QString& carpeta) override;
    std::optional<QString> GuardarArchivo(const QString& titulo, const QString& filtro,
                                          const QString& carpeta) override;
    std::optional<QString> PedirTexto(const QString& texto, const QString& titulo, const QString& inicial) override;
    std::optional<int> ElegirColor(int inicial) override;
    bool AbrirConSistema(const QString& ruta) override;
    void CursorOcupado(bool o) override { ocupado += o ? 1 : -1; }
    int pitidos = 0;
    void Pitido() override { ++pitidos; }

    const Mensaje& Ultimo() const { return mensajes.back(); }
};

// A message's body, heading and title, each checked to the letter: a
// DialogosFalsos::Mensaje or what the real box showed.
template <class M>
void MensajeEs(const M& m, const QString& texto, const QString& encabezado,
               const QString& titulo = QStringLiteral("Proyecto de Fontaria")) {
    EXPECT_EQ(m.texto, texto);
    EXPECT_EQ(m.encabezado, encabezado);
    EXPECT_EQ(m.titulo, titulo);
}

// The session's number marks set to a locale's ("es_ES", "C"...) for one
// scope, and set back when it ends, failed or not.
class MarcasPrueba {
public:
    explicit MarcasPrueba(const char* locale);
    ~MarcasPrueba() { SeparadoresActuales() = antes_; }

private:
    Separadores antes_ = SeparadoresActuales();
};

// A session whose data folder is a fresh temporary folder and whose program
// folder is the build's; separators fixed to '.' and ','.
class SesionPrueba {
public:
    SesionPrueba();
    Sesion s;
    QString Datos(const QString& relativa) const { return s.RutaDatos(relativa); }
    // A blank building project (a copy of Proyecto.nivo) at DirectorioDatos/nombre.
    QString ProyectoEnBlanco(const QString& nombre = QStringLiteral("prueba.plm"));
    // A blank aqueduct project (a copy of Malla.nivo).
    QString AcueductoEnBlanco(const QString& nombre = QStringLiteral("prueba.acu"));
    // Copies an installed sample (Imagen/NAME.nivo) to DirectorioDatos/destino.
    QString CopiaDeEjemplo(const QString& nivo, const QString& destino);

private:
    QTemporaryDir dir_;
};

// The number of the run-time error that `f` raises; 0 when it raises none.
int NumeroDeError(const std::function<void()>& f);

// Writes `bytes` as the whole file (a foreign or broken file for a test);
// returns the path.
QString EscribirArchivo(const QString& ruta, const QByteArray& bytes);
QByteArray LeerArchivo(const QString& ruta);
// Runs one statement on a database file through a connection of its own,
// as another program would change the file; false with a test failure when
// it cannot.
bool EjecutarSql(const QString& ruta, const QString& sql);

// Runs the built executable with arguments; returns the exit status and
// fills the outputs.
int EjecutarPrograma(const QStringList& args, QString* salida = nullptr, QString* errores = nullptr,
                     const QStringList& entorno = {});

// A named pipe at `ruta`, standing for any file that is not a regular one.
// While it lives, a writer keeps opening and closing its other end, so that
// a reader that waits on it sees an end of file instead of hanging the test.
class TuberiaPrueba {
public:
    explicit TuberiaPrueba(const QString& ruta);
    ~TuberiaPrueba();
    const QString ruta;

private:
    std::atomic<bool> fin_{false};
    std::thread escritor_;
};
