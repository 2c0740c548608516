#include "shell/Titulos.h"

#include "shell/Sesion.h"

QString TituloProyectoFontaria() { return QStringLiteral("Proyecto de Fontaria"); }

QString EtiquetaVersion() { return QStringLiteral("2024"); }

QString TituloEdificio(const Sesion& s) {
    return UCase(QStringLiteral("Nivo-Fontaria ") + EtiquetaVersion() + QStringLiteral("    Proyecto: [ ") +
                 s.NombreProyecto + QStringLiteral(" ]"));
}

QString TituloAcueducto(const Sesion& s) {
    return UCase(QStringLiteral("Nivo-Fontaria ") + EtiquetaVersion() + QStringLiteral(" (Redes)    Proyecto: [ ") +
                 s.NombreProyectoACU + QStringLiteral(" ]"));
}

QString TituloPrincipal(const Sesion& s) { return s.TipoRed == 1 ? TituloAcueducto(s) : TituloEdificio(s); }
