#pragma once
// "Abrir" of the building result screens: another project chosen and
// loaded through the one load of the model.

struct ProyectoEdificio;
struct Sesion;
class Dialogos;

// The file dialog of the screens that open another project: title
// "Abrir un Proyecto Existente", filter "*.plm|*.plm", folder Proyectos.  On
// a file, CargarProyectoEdificio; a refused file is shown through `d`.  False
// on a cancel or a refusal.
bool AbrirOtroProyecto(ProyectoEdificio& p, Sesion& s, Dialogos& d);
