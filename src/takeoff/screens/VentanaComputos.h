#pragma once
// The screen "LISTADO DE MATERIALES": four tabs, one grid each (fixtures,
// fittings, reductions, pipes), "Abrir" for another project, the report
// button and "Retorno".  The lists come from the take-off logic
// (Computos), read from the project file.

#include "takeoff/Computos.h"

#include <QDialog>

class QPushButton;
class QStackedWidget;
class NivoTab;
class NivoToolTip;
class VistaGrid;

class VentanaComputos : public QDialog {
    Q_OBJECT
public:
    // `desdeAnalisis`: opened by the analysis screen, which keeps the
    // project; "Abrir" is then hidden.
    VentanaComputos(ProyectoEdificio& p, Sesion& s, Dialogos& d, bool desdeAnalisis = false, QWidget* padre = nullptr);
    // The views let go of the grids before the logic that owns them goes.
    ~VentanaComputos() override;

    // The four lists.  False when a fault of the calculation was shown: the
    // screen is then not to be shown.
    bool Cargar();

    Computos& Logica() { return logica_; }
    NivoTab* Tabs() const { return tab_; }
    VistaGrid* Vista(int pagina) const { return vistas_[pagina - 1]; }
    QPushButton* Boton(const QString& nombre) const;
    NivoToolTip* Tip() const { return tip_; }

    // "Abrir": another project, its analysis and the four lists again.
    void Abrir();
    // "Imprimir": the take-off report (origin 1), focus back to the page's grid.
    void Imprimir();

private:
    void Mostrar();

    const ProyectoEdificio& p_;
    Sesion& s_;
    Dialogos& d_;
    Computos logica_;
    NivoTab* tab_;
    QStackedWidget* pila_;
    VistaGrid* vistas_[4];
    NivoToolTip* tip_;
};
