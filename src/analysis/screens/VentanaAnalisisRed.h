#pragma once
// The analysis screen "Resultado del Análisis": the four tabs of grids of the
// analysis logic (AnalisisRed), the frame of the elevated tank's height, the
// panel with the number of branches and the buttons.  Each edit and click
// goes to the logic; the grids it changed are drawn again.

#include "analysis/AnalisisRed.h"

#include <QDialog>
#include <functional>
#include <initializer_list>
#include <memory>

class QGroupBox;
class QLabel;
class QPushButton;
class QStackedWidget;
class NivoDouble;
class NivoTab;
class NivoToolTip;
class VistaGrid;
class EsquemaEdificio;
class PanelDibujo;

class VentanaAnalisisRed : public QDialog {
    Q_OBJECT
public:
    VentanaAnalisisRed(ProyectoEdificio& p, Sesion& s, Dialogos& d, QWidget* padre = nullptr);
    // The views let go of the grids before the logic that owns them goes.
    ~VentanaAnalisisRed() override;

    // The load: caption, grids and the chain.  False when a fault of the
    // calculation was shown: the screen is then not to be shown.
    bool Cargar();

    AnalisisRed& Logica() { return logica_; }
    NivoTab* Tabs() const { return tab_; }
    // The grid view of tab 1..4 (Spread4, Spread1, Spread2, Spread3).
    VistaGrid* Vista(int tab) const { return vistas_[tab - 1]; }
    NivoDouble* Double1() const { return double1_; }
    QGroupBox* Frame3() const { return frame3_; }
    QLabel* SSPanel1() const { return panel_; }
    // The status lines under the grids: nodes with a negative pressure, and
    // the warning of a network with errors (hidden while it is sound).
    QLabel* PresionNegativa() const { return presionNegativa_; }
    QLabel* AvisoErrorRed() const { return avisoRed_; }
    NivoToolTip* Tip() const { return tip_; }
    // A button by its control name ("LSButton1" ...).
    QPushButton* Boton(const QString& nombre) const;
    // Tab 5: the schematic of the network, drawn again after every change.
    PanelDibujo* Esquema() const { return esquema_; }
    const EsquemaEdificio* Dibujo() const { return dibujo_.get(); }

private:
    // Marks the schematic as stale, and draws it now when its tab shows.
    void EsquemaCambiado();
    void DibujarEsquema();
    QString AyudaEsquema(int tipo, int indice) const;
    QWidget* Botonera();
    QWidget* LineaEstado();
    void CambiarTab(int tab);
    void EditarSpread4(int fila, int columna, const QString& texto);
    void EditarSpread3(int fila, int columna, const QString& texto);
    // LSButton9: the comment screen on the active row of tab 1.
    void AbrirComentario();
    // LSButton3: the result reports of what the grids show.
    void ImprimirResultados();
    // LSButton4: the results workbook.
    void ExportarExcel();
    // Runs an event of the logic and draws the grids of the tabs given; a
    // fault of the calculation is shown and the screen closes.
    void Evento(const std::function<void()>& f, std::initializer_list<int> tabs);
    // Draws what the logic holds besides the grids.
    void MostrarEstado();

    // "Editar Red": the branch editor, marked as called from here; a save
    // made there runs the analysis again.
    void EditarRed();

    ProyectoEdificio& p_;
    Sesion& s_;
    Dialogos& d_;
    AnalisisRed logica_;
    NivoTab* tab_;
    QStackedWidget* pila_;
    VistaGrid* vistas_[4];
    QGroupBox* frame3_;
    NivoDouble* double1_;
    QLabel* panel_;
    QLabel* presionNegativa_;
    QLabel* avisoRed_;
    NivoToolTip* tip_;
    PanelDibujo* esquema_;
    std::unique_ptr<EsquemaEdificio> dibujo_;
    bool esquemaVigente_ = false;
};
