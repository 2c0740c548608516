#pragma once
// The body that the fixture and fitting screens of a branch share: the
// narrow branch grid, the labels of the branch, the row grid with its
// pictures and the floating preview, the arrows, the quick buttons and the
// button bar, built from the screen's AspectoFilas.  Every event goes to the
// screen's logic through LogicaFilas, inside SinFallaDeCalculo; afterwards
// the panel draws the grids and labels again and tells the branch editor
// behind to redraw.

#include "entry/FilasRamal.h"
#include "widgets/Ventanas.h"

#include <QDialog>
#include <QPointer>
#include <QWidget>
#include <functional>

class Dialogos;
class NivoToolTip;
class QLabel;
class QPushButton;
class VistaGrid;
class VistaPreviaFoto;
struct Sesion;

// The screen's logic as the panel sees it.
struct LogicaFilas {
    FilasRamal* filas = nullptr;
    Grid* spread1 = nullptr;
    Grid* spread2 = nullptr;
    std::function<bool(int fila, int columna, const QString& texto)> editarRamales, editarFilas;
    std::function<void(int clave)> botonRapido;
    std::function<void()> eliminar, eliminarTodas, actualizarImagenes;
    // "Piezas"/"Conexiones": the catalogue screen, which may capture a row.
    std::function<void()> baseDatos;
    // "Reporte": the data report of the screen's rows on the branches.
    int origenReporte = 0;
};

class PanelFilasRamal;

// The LogicaFilas of either screen's logic (PiezasRamales,
// ConexionesRamales), whose events have the same names.
template <class T>
LogicaFilas LogicaDe(T& l) {
    LogicaFilas r;
    r.filas = &l.Filas();
    r.spread1 = &l.Spread1;
    r.spread2 = &l.Spread2;
    r.editarRamales = [&l](int f, int c, const QString& t) { return l.EditarRamales(f, c, t); };
    r.editarFilas = [&l](int f, int c, const QString& t) { return l.EditarFilas(f, c, t); };
    r.botonRapido = [&l](int clave) { l.BotonRapido(clave); };
    r.eliminar = [&l] { l.Eliminar(); };
    r.eliminarTodas = [&l] { l.EliminarTodas(); };
    r.actualizarImagenes = [&l] { l.ActualizarImagenes(); };
    return r;
}


class PanelFilasRamal : public QWidget {
    Q_OBJECT
public:
    PanelFilasRamal(const AspectoFilas& aspecto, LogicaFilas logica, Sesion& s, Dialogos& d,
                    std::function<void()> refrescarEditor, QWidget* padre);
    ~PanelFilasRamal() override;

    VistaGrid* Spread1() const { return spread1_; }
    VistaGrid* Spread2() const { return spread2_; }
    QWidget* BotonRapido(int clave) const;
    QPushButton* Retorno() const { return retorno_; }
    // Closes an open cell editor, its edit delivered.
    void TerminarEdicion();

protected:
    void showEvent(QShowEvent* e) override;

private:
    QWidget* CrearRamales();
    void AjustarRamales();
    QWidget* CrearFilas(const AspectoFilas& a);
    QWidget* CrearRapidos(const AspectoFilas& a);
    QWidget* CrearBotones(const AspectoFilas& a);
    // Runs an event of the logic and redraws.
    void Accion(const std::function<void()>& f);
    // The same for a button, after the open cell editor delivered its edit.
    void Pulsar(const std::function<void()>& f);
    void Mostrar();
    void BuscarRamal();
    void MenuFilas(const QPoint& donde);

    LogicaFilas logica_;
    Sesion& s_;
    Dialogos& d_;
    std::function<void()> refrescarEditor_;
    VistaGrid* spread1_ = nullptr;
    VistaGrid* spread2_ = nullptr;
    QLabel* ramal_ = nullptr;
    QLabel* nodoI_ = nullptr;
    QLabel* nodoJ_ = nullptr;
    VistaPreviaFoto* vistaPrevia_ = nullptr;
    QPushButton* retorno_ = nullptr;
    QString menuBaseDatos_, menuEliminar_;
    std::vector<std::pair<int, QWidget*>> rapidos_;
    NivoToolTip* tip_ = nullptr;
    bool mostrando_ = false;
};

// A screen's window around its panel: caption, first size, Esc as
// "Retorno" (the dialog's reject), the panel's "Retorno" closing it.
void MontarVentanaFilas(QDialog* ventana, PanelFilasRamal* panel, const QString& caption);

// The window of either screen (T is PiezasRamales or ConexionesRamales): the
// panel over its logic.  Closing it (Retorno, Esc, the close box) takes the
// open cell's edit, closes the record sets and clears the "a branch screen
// is open" flag; the caller then has the branch editor rewrite its counts.
template <class T>
class VentanaFilasRamal : public QDialog {
public:
    // `abrirCatalogo` shows the catalogue screen over this window, able to
    // capture onto the screen's logic.
    VentanaFilasRamal(const QString& nombre, ProyectoEdificio& p, Sesion& s, Dialogos& d, EditorRamales& editor,
                      std::function<void()> refrescarEditor, std::function<void(T&, QWidget*)> abrirCatalogo,
                      QWidget* padre)
        : QDialog(padre), logica_(p, s, d, editor) {
        setObjectName(nombre);
        SinFallaDeCalculo(d, [this] { logica_.Cargar(); });
        LogicaFilas l = LogicaDe(logica_);
        l.baseDatos = [this, abrir = std::move(abrirCatalogo)] { abrir(logica_, this); };
        l.origenReporte = nombre == QLatin1String("PiezasRamales") ? 6 : 7;
        panel_ = new PanelFilasRamal(T::Aspecto(), std::move(l), s, d, std::move(refrescarEditor), this);
        MontarVentanaFilas(this, panel_, logica_.Filas().Caption());
    }

    T& Logica() { return logica_; }
    PanelFilasRamal* Panel() const { return panel_; }

    void done(int r) override {
        panel_->TerminarEdicion();
        // Errors while closing are ignored: every edit is already in the model.
        try {
            logica_.Cerrar();
        } catch (...) {
        }
        QDialog::done(r);
    }

private:
    T logica_;
    PanelFilasRamal* panel_ = nullptr;
};
