#pragma once
// The tools and menus of the main window: every tool id with its caption,
// tip and the screen its command needs, the menu bar of each mode and the
// order of the tool bar.

#include "shell/Pantallas.h"

#include <QString>
#include <QStringList>
#include <optional>

struct Herramienta {
    QString id;
    QString titulo;   // caption, empty for tool-bar-only tools
    QString tip;      // tool-tip, empty where the tool has none
    // The screen without which the command can do nothing useful.
    std::optional<Pantalla> requiere;
    // Tools kept in the design without an action are never shown.
    bool sinAccion = false;
};

struct MenuBarra {
    QString id;
    QString titulo;
    QStringList herramientas;  // ids, in menu order; "-" is a separator
};

const QList<Herramienta>& TablaHerramientas();
// The tool of an id, nullptr when unknown.
const Herramienta* BuscarHerramienta(const QString& id);
// The text a menu shows for a tool: its caption, else its tip trimmed.
QString TextoMenu(const Herramienta& h);

// The menus of the building mode followed by those of the aqueduct mode.
const QList<MenuBarra>& MenusPrincipales();
// ToolBar1, in order.
const QStringList& BarraHerramientas();

// The ids a click on tab 1 shows (tab 2 hides them) and the aqueduct ids
// the start and tab 1 hide (tab 2 shows them).
const QStringList& IdsModoEdificio();
const QStringList& IdsModoAcueducto();
