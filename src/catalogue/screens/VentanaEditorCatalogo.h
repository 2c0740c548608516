#pragma once
// "Crear o Modificar Piezas Sanitarias" and "Crear o Modificar Conexiones":
// the boxes of one record, its picture (a click attaches one), the scroll
// bar over the records and the buttons.  Esc and the close box are
// "Retorno", which asks about unsaved changes.

#include "catalogue/EditorCatalogo.h"

#include <QDialog>
#include <vector>

class Dialogos;
class NivoToolTip;
class QLabel;
class QLineEdit;
class QScrollBar;
struct Sesion;

class VentanaEditorCatalogo : public QDialog {
    Q_OBJECT
public:
    // Opens on the record of the catalogue grid's row `fila`.
    VentanaEditorCatalogo(EditorCatalogo& logica, const TipoCatalogo& t, Sesion& s, Dialogos& d, int fila,
                          QWidget* padre = nullptr);

    EditorCatalogo& Logica() { return logica_; }

public Q_SLOTS:
    void reject() override;

protected:
    bool eventFilter(QObject* o, QEvent* e) override;

private:
    QWidget* CrearFiguras(const TipoCatalogo& t);
    QWidget* CrearImagen();
    void Accion(const std::function<void()>& f);
    void Mostrar();
    void Enfocar();

    EditorCatalogo& logica_;
    Dialogos& d_;
    QLineEdit* clave_ = nullptr;
    QLineEdit* nombre_ = nullptr;
    std::vector<QLineEdit*> figuras_;
    QLabel* automatico_ = nullptr;
    QLabel* foto_ = nullptr;
    QScrollBar* barra_ = nullptr;
    QLabel* posicion_ = nullptr;
    NivoToolTip* tip_ = nullptr;
};
