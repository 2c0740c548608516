#pragma once
// The aqueduct results workbook: the two grids of the results screen as the
// sheets "RESULTADOS RAMALES" and "RESULTADOS NODOS", with the sheet
// "INDICE GENERAL" first, linked to each and back.  The sheets show what the
// screen shows for the case it shows.

#include "workbook/MarcoLibro.h"

#include <vector>

class AnalisisACU;
struct ProyectoAcueducto;
struct Sesion;

// `hojas[0]` the sections, `hojas[1]` the nodes.
std::vector<HojaLibro> HojasLibroAcueducto(const AnalisisACU& a, const ProyectoAcueducto& p, const Sesion& s,
                                           const OpcionesLibro& o, const ProgresoLibro& progreso = {});

bool ExportarPantallaExcel(const AnalisisACU& a, const ProyectoAcueducto& p, const Sesion& s,
                           const OpcionesLibro& o, const QString& archivo, QString& error,
                           const ProgresoLibro& progreso = {});
