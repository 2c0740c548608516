#pragma once
// How a run-time fault of a calculation reaches the engineer, the same from
// the main window and from every screen: its number, its text and where it
// was met, under the head line "Error en el Cálculo...".

class Dialogos;
class ErrorEjecucion;

void MostrarErrorCalculo(Dialogos& d, const ErrorEjecucion& e);
