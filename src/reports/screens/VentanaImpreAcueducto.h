#pragma once
// "Redes de Acueductos": the choice of an aqueduct result report, over the
// logic of ImpreAcueducto.

#include "reports/salida/ImpreAcueducto.h"
#include "reports/screens/PantallasSalidaEscritorio.h"

#include <QDialog>

class QPushButton;

class VentanaImpreAcueducto : public QDialog {
    Q_OBJECT
public:
    VentanaImpreAcueducto(const ProyectoAcueducto& p, Sesion& s, Dialogos& d, QWidget* padre = nullptr);
    ImpreAcueducto& Logica() { return logica_; }
    QPushButton* Boton(const QString& nombre) const;

private:
    PantallasSalidaEscritorio salida_;
    ImpreAcueducto logica_;
};
