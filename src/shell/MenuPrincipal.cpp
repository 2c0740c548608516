#include "shell/MenuPrincipal.h"

#include "base/Dialogos.h"
#include "base/ErrorEjecucion.h"
#include "shell/ErrorCalculo.h"
#include "shell/Herramientas.h"
#include "shell/Sesion.h"
#include "shell/Titulos.h"

MenuPrincipal::MenuPrincipal(Sesion& s, ProyectoEdificio& p, ProyectoAcueducto& acu, Dialogos& d,
                             Pantallas& pantallas)
    : s_(s), p_(p), acu_(acu), d_(d), pantallas_(pantallas) {
    Preparar();
}

QString MenuPrincipal::TextoRevision() {
    return QStringLiteral("Revisión: ") + QStringLiteral(FONTARIA_VERSION);
}

void MenuPrincipal::Preparar() {
    for (const Herramienta& h : TablaHerramientas()) {
        Mostrar(h.id, !h.sinAccion);
        Habilitar(h.id, !h.sinAccion && (!h.requiere || pantallas_.Disponible(*h.requiere)));
    }
    // Save-as needs a chosen project.
    Habilitar(QStringLiteral("ID_M1_SalvarComo"), false);
    Habilitar(QStringLiteral("ID_A_Salvar"), false);
    TituloEdificio();
}

void MenuPrincipal::InicioMenu() {
    tab_ = 1;
    for (const QString& id : IdsModoAcueducto()) Mostrar(id, false);
}

void MenuPrincipal::ClickTab(int tab) {
    if (tab != 1 && tab != 2) return;
    tab_ = tab;
    s_.TipoRed = tab == 1 ? 0 : 1;
    for (const QString& id : IdsModoEdificio()) Mostrar(id, tab == 1);
    for (const QString& id : IdsModoAcueducto()) Mostrar(id, tab == 2);
    // Both tabs set the building form: the aqueduct form comes only from an
    // aqueduct command.
    TituloEdificio();
}

void MenuPrincipal::Activacion() {
    s_.CatalogoDesdeProyecto = false;
    s_.ProyectoModificado = false;
    Ocupado(false);
}

bool MenuPrincipal::TeclaPulsada(bool escape) {
    salidaConEscape_ = escape;
    return escape;
}

bool MenuPrincipal::PuedeCerrar() {
    if (!salidaConEscape_) return true;
    // Once answered, the flag is spent: the close box never asks.
    salidaConEscape_ = false;
    return d_.MostrarMensaje(QStringLiteral("¿Desea Salir de Nivo-Fontaria y Acueductos 2024?"),
                             QStringLiteral("Salir de Nivo-Fontaria..."),
                             QStringLiteral("Nivo-Fontaria y Acueductos 2024"), Botones::SiNo, 0) == Respuesta::Si;
}

void MenuPrincipal::Ocupado(bool si) {
    if (si == ocupado_) return;
    ocupado_ = si;
    d_.CursorOcupado(si);
}

void MenuPrincipal::TituloEdificio() {
    titulo_ = ::TituloEdificio(s_);
    Avisar();
}

void MenuPrincipal::TituloAcueducto() {
    titulo_ = ::TituloAcueducto(s_);
    Avisar();
}

void MenuPrincipal::MostrarSiHay(Pantalla p) {
    if (pantallas_.Disponible(p)) pantallas_.Mostrar(p);
}

bool MenuPrincipal::Ejecutar(const QString& id) {
    const Herramienta* h = BuscarHerramienta(id);
    if (!h || !Habilitada(id) || !Visible(id)) return true;
    if (id == QLatin1String("ID_M1_Salida")) return false;
    static const QHash<QString, void (MenuPrincipal::*)()> comandos = {
        {QStringLiteral("ID_M1_Nuevo"), &MenuPrincipal::NuevoProyecto},
        {QStringLiteral("ID_M1_Abrir"), &MenuPrincipal::AbrirProyecto},
        {QStringLiteral("ID_M1_Modificar"), &MenuPrincipal::ModificarProyecto},
        {QStringLiteral("ID_M1_SalvarComo"), &MenuPrincipal::SalvarComo},
        {QStringLiteral("ID_M1_ImprimirDatos"), &MenuPrincipal::ImprimirDatos},
        {QStringLiteral("ID_M1_Eliminar"), &MenuPrincipal::EliminarProyectos},
        {QStringLiteral("ID_A_Eliminar"), &MenuPrincipal::EliminarProyectos},
        {QStringLiteral("ID_M4_Configurar"), &MenuPrincipal::ConfigurarPrograma},
        {QStringLiteral("ID_M2_AnalisisRed"), &MenuPrincipal::ResultadosAnalisis},
        {QStringLiteral("ID_M2_TanqueH"), &MenuPrincipal::TanqueHidroneumatico},
        {QStringLiteral("ID_M2_Computos"), &MenuPrincipal::ComputosRed},
        {QStringLiteral("ID_A_Nuevo"), &MenuPrincipal::ACUNuevoProyecto},
        {QStringLiteral("ID_A_Abrir"), &MenuPrincipal::ACUAbrirProyecto},
        {QStringLiteral("ID_A_Modificar"), &MenuPrincipal::ACUModificarProyecto},
        {QStringLiteral("ID_A_Analisis"), &MenuPrincipal::ACUResultados},
        {QStringLiteral("ID_A_Salvar"), &MenuPrincipal::SalvarComoACU},
        {QStringLiteral("ID_A_ImportarInp"), &MenuPrincipal::ACUImportarInp},
        {QStringLiteral("ID_A_ExportarInp"), &MenuPrincipal::ACUExportarInp},
        {QStringLiteral("ID_Explorador"), &MenuPrincipal::ExploradorWindows},
        {QStringLiteral("ID_TemasAyuda"), &MenuPrincipal::TemasAyuda},
        {QStringLiteral("ID_Manual"), &MenuPrincipal::ManualPrograma},
        {QStringLiteral("ID_Ejemplos"), &MenuPrincipal::VerEjemplos},
        {QStringLiteral("ID_M5_Reparar"), &MenuPrincipal::RepararArchivos},
    };
    try {
        if (auto c = comandos.value(id, nullptr)) {
            (this->*c)();
        } else if (h->requiere) {
            // A tool that only shows its screen.
            if (id == QLatin1String("ID_M3_Piezas") || id == QLatin1String("ID_M3_Conexiones"))
                s_.CatalogoDesdeProyecto = false;
            Ocupado(true);
            MostrarSiHay(*h->requiere);
            Ocupado(false);
        }
    } catch (const ErrorEjecucion& e) {
        Ocupado(false);
        MostrarErrorCalculo(d_, e);
    }
    return true;
}

