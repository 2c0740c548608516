#pragma once
// The branch editor of a building project: page 1 "Datos Generales del
// Proyecto", page 2 "Datos de los Ramales" with the branch table, its
// review panel and the buttons that open the other entry screens.  Every
// event goes to DatosRamales; after it the screen draws itself from the
// logic's state through Refrescar.
//
// The node columns stay in sight as the table scrolls sideways: they are a
// view of their own over the same grid (row numbers and columns 1-2) at the
// left of the view of the other columns, the two scrolling together.

#include "entry/DatosRamales.h"

#include <QDialog>
#include <functional>

class QButtonGroup;
class QCheckBox;
class QDateEdit;
class QLabel;
class QLineEdit;
class QPushButton;
class QStackedWidget;
class NivoDouble;
class NivoLong;
class NivoToolTip;
class VistaGrid;

class VentanaDatosRamales : public QDialog {
    Q_OBJECT
public:
    VentanaDatosRamales(ProyectoEdificio& p, Sesion& s, Dialogos& d, QWidget* padre = nullptr);
    ~VentanaDatosRamales() override;

    DatosRamales& Logica() { return logica_; }
    // The node columns (frozen) and the rest of the branch table.
    VistaGrid* VistaNodos() const { return nodos_; }
    VistaGrid* Vista1() const { return spread1_; }
    VistaGrid* Vista2() const { return spread2_; }
    QPushButton* Boton(const QString& nombre) const;
    NivoLong* CajaNumeroRamales() const { return numero_; }
    NivoToolTip* Tip() const { return tip_; }
    // Whether the project was saved while the screen was open from the analysis.
    bool ProyectoSalvado() const { return logica_.ProyectoSalvado(); }

    void TerminarEdicion();
    void Refrescar();

public Q_SLOTS:
    void reject() override;

protected:
    bool eventFilter(QObject* o, QEvent* e) override;

private:
    QWidget* Pagina1();
    QWidget* Pagina2();
    QWidget* Botonera();
    void Accion(const std::function<void()>& accion);
    void EditarCelda(int fila, int columna, const QString& texto);
    void MenuRamales(VistaGrid* vista, const QPoint& donde);
    void ElegirFecha();
    void MostrarRevision(bool flotante, const QPoint& global = QPoint());
    void AltoFilasRevision(VistaGrid* v);
    void AnchoNodos();
    void CursorMovido(int fila, int columna);
    // The buttons that open a screen: the logic says whether it may.
    void AbrirSi(bool (DatosRamales::*puede)(), void (VentanaDatosRamales::*abrir)());
    void AbrirPiezasRamales();
    void AbrirConexionesRamales();
    void AbrirCotasNodos();
    void AbrirCambiarOpcionDiseno();
    void AbrirLongitudTramosR();
    // "Reportes": the report of the project's data (origin 5).
    void ImprimirDatos();
    void BuscarRamal();

    DatosRamales logica_;
    Dialogos& d_;
    Sesion& s_;
    ProyectoEdificio& p_;
    NivoToolTip* tip_;
    QStackedWidget* paginas_;
    QLineEdit* text_[4];
    QDateEdit* fecha_;
    QButtonGroup* usoPiezas_;
    QButtonGroup* presion_;
    QButtonGroup* diametro_;
    QButtonGroup* perdidas_;
    NivoDouble* valor_[3];
    QLabel* etiquetaValor_[3];
    NivoDouble* velocidad_;
    QCheckBox* diametroMinimo_;
    NivoLong* coeficiente_;
    QCheckBox* opcionPresionM_;
    NivoDouble* presionM_;
    NivoLong* numero_;
    QLabel* ramal_;
    QCheckBox* graficos_;
    VistaGrid* nodos_;
    VistaGrid* spread1_;
    VistaGrid* spread2_;
    QWidget* flotante_;
    VistaGrid* vistaFlotante_;
    bool mostrando_ = false;
};
