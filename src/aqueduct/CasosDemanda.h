#pragma once
// The three demand cases of a network (mean, maximum, fire), their names on
// the results screen and in the reports, and "Corregir Dirección", which
// turns the sections whose flow came out negative.

#include <QString>
#include <QStringList>

struct ProyectoAcueducto;
struct Sesion;
class Dialogos;

// The rows of the case list: "Qm = Consumo Medio", "Q Máximo = 2.50 x Qm",
// "Q Incendio = 1.80 Qm +  16.00  ".
QStringList FilasCasos(const ProyectoAcueducto& p);

// The case as the reports name it ("Caso: ConsumoMedio"...), by CasoDemanda.
QString TextoCasoReporte(const ProyectoAcueducto& p);

// Passes of the active case: 2 for the fire case, 1 otherwise.
int PasosDelCaso(const ProyectoAcueducto& p);

// DemandaReal (m³/s) of every node from ConsumoMedio (l/s) and the case.
void FormarDemandaReal(ProyectoAcueducto& p);

// Sections whose last flow is below 0.
int ContarNegativos(const ProyectoAcueducto& p);

// Exchanges Inicio and Final of every section with a negative flow, in the
// file (the row whose Numero is the position; a section without a row
// stays as it is) and in memory, in one transaction, then solves again.
// False with a message when the file could not be written: nothing changed.
// `invertidos` receives the count of sections turned.
bool InvertirTramosNegativos(ProyectoAcueducto& p, Sesion& s, QString& error, int* invertidos = nullptr);

// What "Corregir Dirección" answered.
enum class Correccion {
    SinNegativos,  // "¡No Existe Ningún Caudal Negativo!" was shown
    Rechazada,     // the engineer answered no
    Hecha,         // the file and the model were turned and solved again
    Fallida,       // the file could not be written; the message was shown
};

// The button: the message when no flow is negative, the question, then
// InvertirTramosNegativos.  The screen shows its sections tab first and
// refills its grids after.
Correccion CorregirDireccion(ProyectoAcueducto& p, Sesion& s, Dialogos& d);

// The titles of the messages of the aqueduct results.
QString TituloDatosAcueducto();  // "Datos del Proyecto de Acueductos"
