#pragma once
// The main window: the menus and the tool bar of both modes, the tab strip,
// the wallpaper and the banner strip.  It draws the state of MenuPrincipal
// and forwards each tool, tab and key to it.

#include "shell/MenuPrincipal.h"

#include <QHash>
#include <QMainWindow>

class QAction;
class QLabel;
class QMenu;
class QToolBar;
class NivoTab;
class NivoToolTip;
class PanelTapiz;
class Dialogos;

class VentanaPrincipal : public QMainWindow {
    Q_OBJECT
public:
    VentanaPrincipal(Sesion& s, ProyectoEdificio& p, ProyectoAcueducto& acu, Dialogos& d, Pantallas& pantallas,
                     QWidget* padre = nullptr);

    // The start wound around the session's: tips and caption, the session's
    // start, the menus of the first mode, the banner, the wallpaper, the size.
    void Arrancar(const QString& rutaPrograma = QString());

    MenuPrincipal& Logica() { return logica_; }
    QAction* Accion(const QString& id) const { return acciones_.value(id); }
    QMenu* Menu(const QString& id) const { return menus_.value(id); }
    NivoTab* Tabs() const { return tab_; }
    PanelTapiz* Tapiz() const { return tapiz_; }
    NivoToolTip* Tip() const { return tip_; }
    QToolBar* Barra() const { return barra_; }
    QString TextoBanner() const;

    // Runs a tool as a click would.
    void EjecutarHerramienta(const QString& id);
    // Draws the logic's state: shown and enabled tools, caption, wallpaper.
    void Refrescar();
    // Caption and tools only, as a command changes them.
    void RefrescarEstado();

protected:
    void keyPressEvent(QKeyEvent* e) override;
    void closeEvent(QCloseEvent* e) override;
    bool event(QEvent* e) override;

private:
    void CrearAcciones();
    void CrearMenus();
    void CrearBarra();
    void Desbloquear();

    Sesion& s_;
    MenuPrincipal logica_;
    QHash<QString, QAction*> acciones_;
    QHash<QString, QMenu*> menus_;
    QToolBar* barra_ = nullptr;
    NivoTab* tab_ = nullptr;
    PanelTapiz* tapiz_ = nullptr;
    NivoToolTip* tip_ = nullptr;
    QLabel* banner_ = nullptr;
    bool activada_ = false;
};
