#pragma once
// A small building project written to a file through the project save:
// a main branch and two branches off its end node.  The session's chosen
// project stays as it was.

#include "analysis/ApoyoAnalisis.h"

inline QString ProyectoMuestra(SesionPrueba& sp, const QString& relativa) {
    const QString archivo = sp.s.ArchivoProyecto, nombre = sp.s.NombreProyecto;
    ProyectoEdificio p;
    ProyectoDeRamales(p, sp.s, {{"A", "B"}, {"B", "C"}, {"B", "D"}});
    GuardarYAbrir(p, sp, relativa);
    sp.s.ConexionProyecto.Cerrar();
    sp.s.ArchivoProyecto = archivo;
    sp.s.NombreProyecto = nombre;
    return sp.Datos(relativa);
}
