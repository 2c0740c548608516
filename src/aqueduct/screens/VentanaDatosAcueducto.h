#pragma once
// The data screen of an aqueduct project, "Datos Generales del Acueducto":
// three pages walked with "Anterior" and "Siguiente" (general data, the
// sections in Spread1, the nodes in Spread2) and the buttons at the bottom.
// Every event goes to the logic of DatosAcueducto; after it the screen
// draws itself whole from the logic's state, through Refrescar alone.

#include "aqueduct/DatosAcueducto.h"

#include <QDialog>
#include <functional>

class QButtonGroup;
class QDateEdit;
class QLineEdit;
class QPushButton;
class QStackedWidget;
class NivoDouble;
class NivoLong;
class NivoToolTip;
class VistaGrid;

class VentanaDatosAcueducto : public QDialog {
    Q_OBJECT
public:
    VentanaDatosAcueducto(ProyectoAcueducto& p, Sesion& s, Dialogos& d, QWidget* padre = nullptr);
    // The views let go of the logic's grids before the logic goes.
    ~VentanaDatosAcueducto() override;

    DatosAcueducto& Logica() { return logica_; }
    VistaGrid* Vista1() const { return spread1_; }
    VistaGrid* Vista2() const { return spread2_; }
    QPushButton* Boton(const QString& nombre) const;
    NivoToolTip* Tip() const { return tip_; }

    // Closes an open cell editor and hands every typed value to the logic.
    void TerminarEdicion();
    // Draws the logic's state: title, page, buttons, every box, grids, focus.
    // A box already showing its value is left as typed.
    void Refrescar();

public Q_SLOTS:
    // "Retorno", Esc and the close box: the save question first.
    void reject() override;

private:
    QWidget* Pagina1();
    QWidget* Pagina2();
    QWidget* Pagina3();
    QWidget* Botonera();
    // Every action: typed cells handed over first, a fault shown, the screen drawn.
    void Accion(const std::function<void()>& accion);
    void EditarCelda(int grid, int fila, int columna, const QString& texto);
    void MenuRamales(const QPoint& donde);
    void ElegirFecha();
    void AbrirCoeficientes();
    void AbrirLongitudes();

    DatosAcueducto logica_;
    Dialogos& d_;
    Sesion& s_;
    NivoToolTip* tip_;
    QStackedWidget* paginas_;
    QLineEdit* text_[4];
    QDateEdit* date1_;
    QButtonGroup* consumo_;
    QButtonGroup* diametro_;
    QButtonGroup* porcentaje_;
    NivoLong* long1_;
    NivoLong* long2_;
    NivoDouble* double_[4];
    VistaGrid* spread1_;
    VistaGrid* spread2_;
    bool mostrando_ = false;
};
