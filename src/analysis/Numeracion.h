#pragma once
// Network verification: node numbers of the branch list and the refusal of
// a list that the sweeps of the chain cannot follow.

#include "shell/Titulos.h"

#include <QString>

struct ProyectoEdificio;
class Dialogos;

// Numbers the two ends of every branch (NumeroNodoI, NumeroNodoJ) and checks
// the list: a branch whose two ends have the same name, and a branch that
// starts from a node no earlier branch ends at, are shown through `d` and set
// ErrorNumeracion to 1.  A run-time fault inside (the counter of a project
// at the 16-bit limit, a project with no branch) ends it without a message.
void VerificarNumeracion(ProyectoEdificio& p, Dialogos& d);

// The texts of the two faults, and the head line and title they are shown with.
QString MensajeErrorNumeracion(int ramal, const QString& nodoI, const QString& nodoJ);
QString MensajeNodoDesconectado(int ramal, const QString& nodoI);
QString EncabezadoErrorNumeracion();

// Where a fault of the calculation of branch `ramal` arose, by its nodes.
QString LugarDeRamal(const ProyectoEdificio& p, int ramal);

// Shows the disconnection of the node NodoI of `ramal` and raises the flag;
// a network whose flag is already up has had its message.
void ReportarNodoDesconectado(ProyectoEdificio& p, Dialogos& d, int ramal);
