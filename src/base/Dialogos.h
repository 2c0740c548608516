#pragma once
// Every question the program asks the engineer goes through this interface:
// the desktop answers it with its dialogs, the tests with a scripted fake, the
// command line with the console.

#include <QString>
#include <optional>

class QImage;

namespace Botones {
constexpr int Aceptar = 0;   // one button, result 0
constexpr int SiNo = 1;      // "Sí" 1, "No" 0
constexpr int SiNoCancelar = 2;  // "Sí" 1, "No" 0, "Cancelar" 2
}  // namespace Botones

namespace Respuesta {
constexpr int No = 0;
constexpr int Aceptar = 0;
constexpr int Si = 1;
constexpr int Cancelar = 2;
}  // namespace Respuesta

class Dialogos {
public:
    virtual ~Dialogos() = default;

    // The system's message box: body, head line, window title, button form
    // (Botones), default button and icon 0..5 (5 = `imagen`).  Returns
    // 1 for "Sí", 0 for "No" or "Aceptar", 2 for "Cancelar".
    virtual int MostrarMensaje(const QString& texto, const QString& encabezado,
                               const QString& titulo, int botones = Botones::Aceptar,
                               int defecto = 0, int icono = 0,
                               const QImage* imagen = nullptr) = 0;

    // File dialogs.  `filtro` is written as the older program wrote it
    // ("Fontaria (*.plm)|*.plm").  An empty optional is a cancel.
    virtual std::optional<QString> AbrirArchivo(const QString& titulo, const QString& filtro,
                                                const QString& carpeta) = 0;
    virtual std::optional<QString> GuardarArchivo(const QString& titulo, const QString& filtro,
                                                  const QString& carpeta) = 0;

    // Input box: prompt, title, initial text.  Empty optional is a cancel.
    virtual std::optional<QString> PedirTexto(const QString& texto, const QString& titulo,
                                              const QString& inicial = QString()) = 0;
    // Colour dialog, colours as 0x00BBGGRR.  Empty optional is a cancel.
    virtual std::optional<int> ElegirColor(int inicial) = 0;
    // Opens a document or folder with the system's "open" verb; false on failure.
    virtual bool AbrirConSistema(const QString& ruta) = 0;
    // Busy pointer on and off.
    virtual void CursorOcupado(bool ocupado) = 0;
    virtual void Pitido() {}
};

// File-dialog filters "Texto|*.a;*.b|..." as pairs of (caption, patterns).
QStringList FiltroComoPatrones(const QString& filtro);

// A typed number that was refused: the reader's reason, under the heading
// of the program's number errors.
void MostrarNumeroRechazado(Dialogos& d, const QString& motivo);
// Reads a typed number with the session's marks; a refused text shows its
// reason through `d` and leaves `valor` as it was.
bool LeerNumeroOAvisar(Dialogos& d, const QString& texto, double& valor);
