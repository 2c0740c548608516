#pragma once
// "VISTA PREVIA DE LOS REPORTES DEL PROGRAMA": the pages of a report on the
// screen, under a strip of buttons to print, export, open the folder of
// exported reports, zoom and turn pages.  The pages are laid out once,
// before the window shows, with the progress in view; the preview only
// draws them, and a zoom draws them again from what it recorded.

#include "reports/motor/ComposicionReporte.h"
#include "reports/screens/PantallasSalidaEscritorio.h"

#include <QDialog>
#include <QPrinter>

class Dialogos;
class NivoToolTip;
class QLabel;
class QPrintPreviewWidget;
class QPushButton;
class Reporte;
struct Sesion;

class VentanaVerResultados : public QDialog {
    Q_OBJECT
public:
    VentanaVerResultados(Reporte& r, Sesion& s, Dialogos& d, QWidget* padre = nullptr);

    static QString Titulo();  // "VISTA PREVIA DE LOS REPORTES DEL PROGRAMA"

    // Lays the pages out under a progress window.  False when the
    // engineer stopped it: the preview is then not to be shown.
    bool Componer();
    int Paginas() const { return int(paginas_.size()); }

    QPrintPreviewWidget* Vista() const { return vista_; }
    QPushButton* Boton(const QString& nombre) const;

private:
    QWidget* Botonera();
    void Imprimir();
    void MostrarPagina();

    Reporte& r_;
    Sesion& s_;
    Dialogos& d_;
    PantallasSalidaEscritorio pantallas_;  // the export's choice, over this window
    QPrinter impresora_;  // the preview's, on which the pages are measured
    std::vector<PaginaReporte> paginas_;
    QPrintPreviewWidget* vista_;
    QLabel* pagina_;
    NivoToolTip* tip_;
};
