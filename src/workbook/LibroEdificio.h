#pragma once
// The building results workbook: the four grids of the analysis screen as
// sheets "PREDIMENSIONADO", "UNIDADES DE GASTO", "LONGITUDES EQUIVALENTES"
// and "PERDIDAS Y PRESIONES", with the sheet "INDICE GENERAL" first, linked
// to each of them and back.  The sheets show what the screen shows: each
// cell is read as its text.

#include "workbook/MarcoLibro.h"

#include <vector>

class AnalisisRed;
struct ProyectoEdificio;
struct Sesion;

// The sheets, in their order, as the options ask.
std::vector<HojaLibro> HojasLibroEdificio(const AnalisisRed& a, const ProyectoEdificio& p, const Sesion& s,
                                          const OpcionesLibro& o, const ProgresoLibro& progreso = {});

// ExportarPantallaExcel: the sheets written to `archivo`.  False, with a
// Spanish message, when the file cannot be written (an existing one stays).
bool ExportarPantallaExcel(const AnalisisRed& a, const ProyectoEdificio& p, const Sesion& s,
                           const OpcionesLibro& o, const QString& archivo, QString& error,
                           const ProgresoLibro& progreso = {});
