#pragma once
// "Buscar un Ramal": one number box, " Aceptar " and " Cancelar ".  The
// caller reads the answer from Logica() and moves its grid with
// FilaBuscada.

#include "entry/BuscarPartida.h"

#include <QDialog>

class NivoLong;

class VentanaBuscarPartida : public QDialog {
    Q_OBJECT
public:
    // The box starts with the active branch.
    explicit VentanaBuscarPartida(int activo, QWidget* padre = nullptr);

    const BuscarPartida& Logica() const { return logica_; }
    NivoLong* Numero() const { return numero_; }

    // Shows the dialog modally and returns its answer.
    static BuscarPartida Preguntar(int activo, QWidget* padre);

private:
    void Aceptar();
    BuscarPartida logica_;
    NivoLong* numero_;
};
