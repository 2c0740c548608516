#pragma once
// The logic of the aqueduct results screen ("Análisis de la Malla de
// Acueductos"): it solves the network as it opens and shows the active demand
// case in two grids.  The Qt screen shows Spread1 on the tab "Resultados del
// Análisis de los Ramales", Spread2 on "Resultados del Análisis de los
// Nodos", the case list Combo1, the captions LRamal and LNodo, and forwards
// each event here; it closes itself when `cerrar` is set.
//
// Spread1 columns: 0 "Ramal"/"No", 1 "( I )", 2 "( J )", 3 "Longitud"/"Real
// m", 4 "Longitud"/"Cálculo m", 5 "Diámetro"/unit, 6 "Hansen-W", 7 "Caudal
// "/"lps" (empty when it rounds to 0.000), 8 "Velocidad"/"m/s", 9
// "Pérdidas", 10 "HF / 1000".
// Spread2 columns: 0 "No", 1 "Nodo", 2 "Cota del Terreno m", 3 "Demanda Real
// m", 4 "Demanda de Cálculo m", 5 "Cota Piezométrica m" (empty at 0), 6
// "Presión en el Nodo m" (coloured at the lowest and highest pressure),
// 7 "Ramales Conectados", 8 "Descripción".

#include "base/Grid.h"

#include <QString>
#include <QStringList>

struct ProyectoAcueducto;
struct Sesion;
class Dialogos;

// Backgrounds of column 6 of Spread2 at NodoMinimo and NodoMaximo.
constexpr int ColorPresionMinima = 14085092;
constexpr int ColorPresionMaxima = 14211322;

class AnalisisACU {
public:
    AnalisisACU(ProyectoAcueducto& p, Sesion& s, Dialogos& d);

    Grid Spread1;
    Grid Spread2;
    QStringList Combo1;   // the three cases
    int FilaCombo = 0;    // the row shown
    int Pestana = 0;      // 0 sections, 1 nodes
    QString LRamal;       // "Ramal " and the section number
    QString LNodo;        // the node name
    // The status line: a pass of the case shown that reached the iteration
    // limit, in red; empty when every pass converged.
    QString AvisoConvergencia;
    bool cerrar = false;  // the screen must close now

    // "Redes de Acueductos   Proyecto: [ NAME ]".
    QString Titulo() const;
    void ConfigurarSpread();
    // The three cases, row 0 selected, CasoDemanda 1.
    void LLeneCombo();
    // Some node has a tank or pump level other than 0.
    bool VerificaTanque();

    // On load: headers, case list, tank check, the solve and the grids.  The
    // solve starts from ErrorAnalisis cleared.
    void Cargar();
    // On the first activation: the message of a missing tank or of a failed
    // solve, the grids emptied and `cerrar` set.  True when the screen closes.
    bool PrimeraActivacion();

    // Fills both grids and the status line from the last solve.
    void ColoquePantalla();

    // A new row of Combo1: CasoDemanda, a new solve from ErrorAnalisis
    // cleared, the grids refilled unless it failed (the previous contents then
    // stay, without a message).
    void CambiarCaso(int fila);

    // "Corregir Dirección": the sections tab, the correction, the grids.
    void CorregirDireccion();

    // "Editar los Ramales": before the data screen is shown modally, and
    // after it returns with whether it saved.
    void AntesDeEditarRamales();
    void DespuesDeEditarRamales(bool proyectoSalvado);

    // "Abrir Proyecto": the open dialog, the load, and on as on load with its
    // messages.  A cancelled dialog changes nothing.
    void AbrirProyecto();

    // LRamal's search, with the answer of the number dialog: nothing unless
    // accepted or when it is the active row; 0 is row 1, beyond the last the
    // last row.
    void BuscarRamal(int numero, bool aceptado);
    // A row made active by a click.
    void MoverRamal(int fila);
    void MoverNodo(int fila);

    // Whether the print and export commands have rows to work on.
    bool TieneFilas() const { return Spread1.Filas() > 0; }

private:
    void Analizar();
    void EstadoInicial();
    void Vaciar();
    bool MostrarFalla();
    void LlenarRamales();
    void LlenarNodos();

    ProyectoAcueducto& p_;
    Sesion& s_;
    Dialogos& d_;
    bool llenando_ = false;
    bool tanque_ = false;
    bool primeraActivacion_ = true;
};

// One line per pass of the last solve that reached the iteration limit:
// which pass when the case has two, its iterations and its remaining mean
// imbalance in m³/s, with the session's marks.
QStringList LineasSinConvergencia(const ProyectoAcueducto& p);

// "Proyecto: NAME" and the line of the missing tank.
QString MensajeSinTanque(const QString& nombreProyecto);
// "Proyecto: NAME" and the lines of a failed solve, then the fault itself
// (its number and the section where it arose) when given.
QString MensajeErrorAnalisis(const QString& nombreProyecto, const QString& falla = QString());
