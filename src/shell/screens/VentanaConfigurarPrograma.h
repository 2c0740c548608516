#pragma once
// The settings screen "Configuración": wallpaper and tool-tip settings,
// written to Tapiz.nivo on " Aceptar ".

#include "shell/ConfigurarPrograma.h"

#include <QDialog>
#include <array>

class QCheckBox;
class QGroupBox;
class QComboBox;
class QLabel;
class QPushButton;
class QRadioButton;
class QTabWidget;
class Dialogos;
class NivoToolTip;
class PanelTapiz;
struct Sesion;

class VentanaConfigurarPrograma : public QDialog {
    Q_OBJECT
public:
    VentanaConfigurarPrograma(Sesion& s, Dialogos& d, QWidget* padre = nullptr);

    ConfigurarPrograma& Logica() { return logica_; }
    // Shows the values of the logic in the controls.
    void Mostrar();

protected:
    void keyPressEvent(QKeyEvent* e) override;

private:
    QWidget* PaginaTapiz();
    QWidget* PaginaTip();
    // A frame of three options that give a setting the values 0, 1, 2.
    QGroupBox* GrupoOpciones(const QString& titulo, std::array<const char*, 3> nombres, std::array<const char*, 3> textos,
                             QRadioButton* (&botones)[3], void (ConfigurarPrograma::*poner)(int));
    Sesion& s_;
    Dialogos& d_;
    ConfigurarPrograma logica_;
    NivoToolTip* tip_;
    QTabWidget* tabs_;
    PanelTapiz* image1_;
    QLabel* ruta_;
    QRadioButton* vertical_[3];
    QRadioButton* horizontal_[3];
    QCheckBox* check1_;
    QCheckBox* check2_;
    QComboBox* combo1_;
    QLabel* lsLabel1_;
    QLabel* lsLabel2_;
    QCheckBox* check3_;
    QCheckBox* check4_;
    bool mostrando_ = false;
};
