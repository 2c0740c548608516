#pragma once
// The logic of the main window: the state of every tool (shown, enabled),
// the caption, the two-mode tab strip, the exit by Esc, and the project
// commands every tool runs.  The Qt window draws this state and forwards its
// events here; the tests drive it with a scripted Dialogos.

#include "shell/Pantallas.h"
#include "shell/Titulos.h"

#include <QHash>
#include <QString>
#include <functional>

class Dialogos;
class ErrorEjecucion;
struct Sesion;
struct ProyectoAcueducto;
struct ProyectoEdificio;

class MenuPrincipal {
public:
    // Both project models belong to the program: the commands load them and
    // the screens read and write them.
    MenuPrincipal(Sesion& s, ProyectoEdificio& p, ProyectoAcueducto& acu, Dialogos& d, Pantallas& pantallas);

    // The network verification run before the analysis and the take-off;
    // it raises ProyectoEdificio::ErrorNumeracion on a broken list.  Empty
    // while the program has no analysis.
    std::function<void()> VerificarNumeracion;
    // Called when the caption or a tool's state changes, so the window shows
    // a project chosen by a command before that command opens its screen.
    std::function<void()> AlCambiar;

    // --- State drawn by the window.
    const QString& Titulo() const { return titulo_; }
    bool Visible(const QString& id) const { return visibles_.value(id, true); }
    bool Habilitada(const QString& id) const { return habilitadas_.value(id, true); }
    int TabActual() const { return tab_; }
    // The banner strip: "Revisión: " and the program's version.
    static QString TextoRevision();

    // --- Start and window events.
    // Caption with no project; every tool's state from the screens at hand.
    void Preparar();
    // First tab selected, the aqueduct menus and tools hidden.
    void InicioMenu();
    // A click on tab 1 (building) or 2 (aqueduct).
    void ClickTab(int tab);
    // Clears the flags the editors raise and a busy pointer left behind.
    void Activacion();
    // A key in the window: Esc asks for the closing (true), others clear it.
    bool TeclaPulsada(bool escape);
    // While closing: only after Esc, ask; false cancels the closing.
    bool PuedeCerrar();
    bool SalidaConEscape() const { return salidaConEscape_; }

    // Runs the command of a tool; a run-time fault of a calculation is shown
    // and the window goes on with the project intact.  Returns false for the
    // exit tool, whose window must close.
    bool Ejecutar(const QString& id);

    // --- The project commands.
    void NuevoProyecto();
    void AbrirProyecto();
    void ModificarProyecto();
    void SalvarComo();
    void EliminarProyectos();
    void TanqueHidroneumatico();
    void ResultadosAnalisis();
    void ComputosRed();
    void ImprimirDatos();
    void ACUNuevoProyecto();
    void ACUAbrirProyecto();
    void ACUModificarProyecto();
    void ACUResultados();
    void SalvarComoACU();
    // The network exchange format: the imported network becomes the open one.
    void ACUImportarInp();
    void ACUExportarInp();
    void ManualPrograma();
    void VerEjemplos();
    void TemasAyuda();
    void ExploradorWindows();
    void ConfigurarPrograma();
    void RepararArchivos();

private:
    void Habilitar(const QString& id, bool si) {
        habilitadas_[id] = si;
        Avisar();
    }
    void Avisar() {
        if (AlCambiar) AlCambiar();
    }
    void Mostrar(const QString& id, bool si) { visibles_[id] = si; }
    void Ocupado(bool si);
    void TituloEdificio();
    void TituloAcueducto();
    // Loads ArchivoProyecto into the model; false, with the message shown,
    // when the file is not a project.
    bool CargarProyecto();
    // The message of a project file that could not be loaded.
    void MostrarFallaLectura(const QString& error);
    bool PedirProyectoSiFalta();
    // The common road of the result commands: a project (asked for when
    // none is chosen), the busy pointer, the load.
    bool CargarConProyecto();
    // Shows a result screen and closes the project's connection after it.
    void MostrarResultado(Pantalla p);
    void SalvarComoModo(bool acueducto);
    void AbrirDocumento(const QString& ruta, const QString& mensaje, const QString& encabezado);
    void MostrarSiHay(Pantalla p);
    // The aqueduct commands' road: a network (asked for when none is
    // chosen), then the load; false, with the message shown, when the file
    // cannot be read.
    bool PedirAcueductoSiFalta();
    // A new project: the blank template Imagen/`plantilla` copied to `ruta`;
    // false, with the message shown, when the copy failed.
    bool CopiarPlantilla(const QString& plantilla, const QString& ruta);
    bool CargarAcueducto();

    Sesion& s_;
    ProyectoEdificio& p_;
    ProyectoAcueducto& acu_;
    Dialogos& d_;
    Pantallas& pantallas_;
    QString titulo_;
    QHash<QString, bool> visibles_;
    QHash<QString, bool> habilitadas_;
    int tab_ = 1;
    bool salidaConEscape_ = false;
    bool ocupado_ = false;
};

// Texts shared by the commands: TituloProyectoFontaria() is in shell/Titulos.h.
