#pragma once
// The aqueduct results screen, "Análisis de la Malla de Acueductos": the
// case list, the search button LRamal and the caption LNodo above two tabs
// with the section and node grids, a red status line when a pass did not
// converge, and the buttons below.  It solves the
// network as it opens; on its first activation a missing tank or a failed
// solve is reported and the screen closes.

#include "aqueduct/AnalisisACU.h"

#include <QDialog>
#include <QPointF>
#include <functional>
#include <memory>
#include <vector>

class QComboBox;
class QLabel;
class QPushButton;
class QTabWidget;
class NivoToolTip;
class VistaGrid;
class PanelDibujo;
class PlanoAcueducto;

class VentanaAnalisisACU : public QDialog {
    Q_OBJECT
public:
    VentanaAnalisisACU(ProyectoAcueducto& p, Sesion& s, Dialogos& d, QWidget* padre = nullptr);
    // The views let go of the logic's grids before the logic goes.
    ~VentanaAnalisisACU() override;

    AnalisisACU& Logica() { return logica_; }
    VistaGrid* Vista1() const { return spread1_; }
    VistaGrid* Vista2() const { return spread2_; }
    QComboBox* Combo() const { return combo1_; }
    QTabWidget* Tabs() const { return tab1_; }
    QPushButton* LRamal() const { return lramal_; }
    QLabel* LNodo() const { return lnodo_; }
    QLabel* Aviso() const { return aviso_; }
    QPushButton* Boton(const QString& nombre) const;
    NivoToolTip* Tip() const { return tip_; }
    // The third tab: the plan of the case shown, coloured by ColorPlano.
    PanelDibujo* Plano() const { return plano_; }
    QComboBox* ColorPlano() const { return colorPlano_; }
    const PlanoAcueducto* Dibujo() const { return dibujo_.get(); }

    // Draws the logic's state: title, cases, tab, captions, grids.
    void Refrescar();

    // "Editar los Ramales" shows the data screen through this, so that a
    // test can act on it; by default it opens the screen modally and
    // returns whether the screen saved.
    std::function<bool()> editarRamales;

protected:
    void showEvent(QShowEvent* e) override;

private:
    void Accion(const std::function<void()>& accion);
    void CerrarSiHaceFalta();
    void BuscarRamal();
    void EditarRamales();
    void EnfocarGrid();
    void DibujarPlano();
    QString AyudaPlano(int tipo, int indice) const;

    AnalisisACU logica_;
    ProyectoAcueducto& p_;
    Sesion& s_;
    Dialogos& d_;
    NivoToolTip* tip_;
    QComboBox* combo1_;
    QPushButton* lramal_;
    QLabel* lnodo_;
    QLabel* aviso_;
    QTabWidget* tab1_;
    VistaGrid* spread1_;
    VistaGrid* spread2_;
    bool mostrando_ = false;
    bool activada_ = false;
    PanelDibujo* plano_;
    QComboBox* colorPlano_;
    std::unique_ptr<PlanoAcueducto> dibujo_;
    bool planoVigente_ = false;
    // The layout of the network last drawn, kept across the cases.
    QStringList redDibujada_;
};
