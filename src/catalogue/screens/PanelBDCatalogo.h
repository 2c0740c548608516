#pragma once
// The body of both catalogue screens: title, the grid with its photographs
// (a header click sorts, a double click edits, a held press previews), the
// row count, the search box and the buttons.  Every event goes to the
// logic; the panel then draws the grid and the count again.

#include "catalogue/BDCatalogo.h"

#include <QWidget>
#include <functional>

class Dialogos;
class NivoToolTip;
class QLabel;
class QLineEdit;
class QPushButton;
class VistaGrid;
class VistaPreviaFoto;
struct Sesion;

class PanelBDCatalogo : public QWidget {
    Q_OBJECT
public:
    // `capturar` true closes the screen; `editar` opens the record editor
    // on a grid row.
    PanelBDCatalogo(BDCatalogo& logica, Sesion& s, Dialogos& d, std::function<bool()> capturar,
                    std::function<void(int fila)> editar, QWidget* padre);
    ~PanelBDCatalogo() override;

    VistaGrid* Spread1() const { return spread1_; }
    QPushButton* Boton(const QString& nombre) const;
    void Mostrar();

Q_SIGNALS:
    void Retorno();
    void Capturado();

private:
    void Accion(const std::function<void()>& f);
    void Editar();
    BDCatalogo& logica_;
    Dialogos& d_;
    std::function<bool()> capturar_;
    std::function<void(int)> editar_;
    VistaGrid* spread1_ = nullptr;
    QLabel* cuenta_ = nullptr;
    QLineEdit* buscar_ = nullptr;
    VistaPreviaFoto* vistaPrevia_ = nullptr;
    NivoToolTip* tip_ = nullptr;
};
