#pragma once
// "Imprimir Hojas de Trabajo": the blank forms of both modes, over the
// logic of ImpreHojas.

#include "reports/salida/ImpreHojas.h"
#include "reports/screens/PantallasSalidaEscritorio.h"

#include <QDialog>

class NivoLong;
class QPushButton;
class VistaGrid;

class VentanaImpreHojas : public QDialog {
    Q_OBJECT
public:
    VentanaImpreHojas(const ProyectoEdificio& edificio, const ProyectoAcueducto& acueducto, Sesion& s, Dialogos& d,
                      QWidget* padre = nullptr);
    ~VentanaImpreHojas() override;
    ImpreHojas& Logica() { return logica_; }
    QPushButton* Boton(const QString& nombre) const;

private:

    PantallasSalidaEscritorio salida_;
    ImpreHojas logica_;
    VistaGrid* spread1_ = nullptr;
    NivoLong* long1_ = nullptr;
};
