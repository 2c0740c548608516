#pragma once
// "Exportar los Reportes": the five options (preview, PDF, HTML, Excel,
// Word), Aceptar and Cancelar.  A click on an option accepts at once.

#include "reports/salida/OpcionExportar.h"

#include <QDialog>

class NivoToolTip;
class QRadioButton;

class VentanaOpcionExportar : public QDialog {
    Q_OBJECT
public:
    VentanaOpcionExportar(const Sesion& s, Dialogos& d, QWidget* padre = nullptr);

    OpcionExportar& Logica() { return logica_; }
    // An option by its control name ("LSOption1", "Option1"...).
    QRadioButton* Opcion(const QString& nombre) const;

private:
    void Elegir(FormatoSalida f);

    OpcionExportar logica_;
    NivoToolTip* tip_;
};
