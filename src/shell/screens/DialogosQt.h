#pragma once
// The desktop's answers to the questions of the logic: the program's
// message box, the file dialogs with the filters written as the older
// program wrote them, the input box, the colour dialog, the system's "open"
// and the busy pointer.

#include "base/Dialogos.h"

class QWidget;

class DialogosQt : public Dialogos {
public:
    int MostrarMensaje(const QString& texto, const QString& encabezado, const QString& titulo, int botones,
                       int defecto, int icono, const QImage* imagen) override;
    std::optional<QString> AbrirArchivo(const QString& titulo, const QString& filtro, const QString& carpeta) override;
    std::optional<QString> GuardarArchivo(const QString& titulo, const QString& filtro,
                                          const QString& carpeta) override;
    std::optional<QString> PedirTexto(const QString& texto, const QString& titulo, const QString& inicial) override;
    std::optional<int> ElegirColor(int inicial) override;
    bool AbrirConSistema(const QString& ruta) override;
    void CursorOcupado(bool ocupado) override;
    void Pitido() override;

    bool Ocupado() const { return ocupado_; }

private:
    bool ocupado_ = false;
};

// While a modal window waits for the engineer, the busy pointer is put
// aside and comes back when it closes.
class PunteroEnPausa {
public:
    PunteroEnPausa();
    ~PunteroEnPausa();
    PunteroEnPausa(const PunteroEnPausa&) = delete;
    PunteroEnPausa& operator=(const PunteroEnPausa&) = delete;

private:
    int guardados_ = 0;
};
