#pragma once
// The captions of the main window, rebuilt wherever the project changes.

#include <QString>

struct Sesion;

// The title of the program's message boxes: "Proyecto de Fontaria".
QString TituloProyectoFontaria();

// The short version label of the captions.
QString EtiquetaVersion();
// Building mode: "NIVO-FONTARIA 2024    PROYECTO: [ name ]".
QString TituloEdificio(const Sesion& s);
// Aqueduct mode: "NIVO-FONTARIA 2024 (REDES)    PROYECTO: [ name ]".
QString TituloAcueducto(const Sesion& s);
// The caption of the active mode.
QString TituloPrincipal(const Sesion& s);
