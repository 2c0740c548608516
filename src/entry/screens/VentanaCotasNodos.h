#pragma once
// "Cotas de Piso de los Nodos": the grid of node levels, "Fijar" and
// "Cancelar".  Esc and the close box are "Cancelar".

#include "entry/CotasNodos.h"

#include <QDialog>

class NivoToolTip;
class VistaGrid;

class VentanaCotasNodos : public QDialog {
    Q_OBJECT
public:
    VentanaCotasNodos(ProyectoEdificio& p, Sesion& s, Dialogos& d, QWidget* padre = nullptr);
    ~VentanaCotasNodos() override;

    CotasNodos& Logica() { return logica_; }
    VistaGrid* Spread1() const { return spread1_; }

public Q_SLOTS:
    void reject() override;

private:
    bool Accion(const std::function<void()>& f);
    void CursorMovido();
    Dialogos& d_;
    CotasNodos logica_;
    VistaGrid* spread1_;
    NivoToolTip* tip_;
};
