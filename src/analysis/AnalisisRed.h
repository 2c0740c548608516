#pragma once
// The analysis screen of a building network, without its widgets.
//
// AnalisisRed runs the analysis chain and keeps what the screen shows: four
// grids (one per tab), the tank-height box, the panel, the caption and which
// buttons are available.  A Qt screen only lays these out, draws the grids
// and forwards each user event to the function named after it below; the
// reports and the workbook read the same grids, cell by cell.
//
//   Tab 1  Spread4  pre-sizing                  ColoquePredimensionado
//   Tab 2  Spread1  fixture units and flow      ColoqueUnidadesGasto
//   Tab 3  Spread2  equivalent lengths          ColoqueLongitudEquivalente
//   Tab 4  Spread3  head losses and pressures   ColoquePerdidasPresiones
//
// Every grid has two header rows; column 0 is the row header.  Spread4 and
// Spread3 have one row per branch (row i is branch i, cell 0 its number);
// Spread1 and Spread2 give each branch several rows, joined in the node
// columns.  Numbers are kept as doubles in the cells (Celda::valor) and shown
// with the column's decimals; a blank cell is an empty text.
//
// The chain writes straight into the open project file (Sesion::
// ConexionProyecto): the assumed diameters (Predimensionado) on the first
// analysis and on every edit of them, the reduction texts (Reduccion), and
// the reducing valves (ValvulaR).  Each of those writes is one transaction.
//
// The class lives in four files: AnalisisRed.cpp (load, chain, open),
// RejillasAnalisis.cpp (the grids), EdicionesAnalisis.cpp (the edits that
// reach the file) and AlturaTanque.cpp (the tank-height box).
//
// A run-time fault of the chain (a zero velocity, a size outside the table
// in a hand-edited file, a project at the 16-bit limit) leaves the function
// as ErrorEjecucion, naming the branch where it arose when the routine knew
// it; the caller shows it and keeps the project.

#include "base/Arreglo.h"
#include "base/Grid.h"

#include <QString>
#include <vector>

struct ProyectoEdificio;
struct Sesion;
class Dialogos;
class EscrituraConjunta;

// Colours of the grids (0x00BBGGRR).
namespace ColoresAnalisis {
constexpr int DiametroCambiado = 14803451;   // Spread4 col 7: assumed differs from theoretical
constexpr int DiferenciaCota = 14085092;     // Spread3 col 13
constexpr int Valvula = 15915489;            // Spread3 col 14
constexpr int PresionMaxima = 13492732;      // Spread3 col 15 above PresionM
constexpr int NodoDesfavorable = 14211322;   // Spread3 col 15 of the unfavourable node
}  // namespace ColoresAnalisis

// A tool-tip of the screen: control, title (may be empty) and text.
struct AyudaControl {
    QString control, titulo, texto;
};

class AnalisisRed {
public:
    AnalisisRed(ProyectoEdificio& p, Sesion& s, Dialogos& d);

    // ---- What the screen shows -------------------------------------------
    Grid Spread4;  // tab 1
    Grid Spread1;  // tab 2
    Grid Spread2;  // tab 3
    Grid Spread3;  // tab 4

    // The row edited in Spread3, 0 when none; the fill of Spread3 makes it the
    // active row (the view scrolls to it) and clears it.
    int RamalEditado = 0;
    // Rows of each branch in Spread2, 1..NumeroRamales.
    Arreglo<int> FilasRamal;
    // First row of each branch in Spread1 and Spread2 (for the views that jump
    // to a branch), 1..NumeroRamales.
    Arreglo<int> PrimeraFilaUnidades, PrimeraFilaLongitudes;

    double Double1 = 0.0;        // the tank-height box
    bool Frame3Visible = false;  // the box's frame, only with OpcionPresionInicial 2
    QString SSPanel1;            // the number of branches
    // The rest of the status panel, seen on every tab: the nodes Spread3
    // shows with a pressure below zero (red when any), and a red line while
    // the network has a numbering error, so that no figure of the grids
    // passes for a good one.
    int NodosPresionNegativa() const;
    // "Nodos con presión negativa: 3"; empty while no pressures were computed.
    QString TextoPresionNegativa() const;
    QString AvisoErrorRed() const;         // empty when the network is sound
    QString Caption;
    // Tab 5 draws the network's schematic from the same results.
    static constexpr int PestanaEsquema = 5;
    int Tab = 1;                 // 1..5
    bool LSButton2Disponible() const { return Tab == 1; }
    bool LSButton9Disponible() const { return Tab == 1; }

    // The fixed texts of the screen.
    static QString TituloPestana(int tab);  // "PREDIMENSIONADO", ...
    static std::vector<AyudaControl> AyudasControles();
    // The fourteen names of the drop-down list of Spread4 column 7, each with the inch mark.
    static QStringList ListaDiametros();

    // ---- Events ----------------------------------------------------------
    // Form load: caption, grids configured, and the chain when the project
    // has branches (else four empty grids).  The caller has loaded and
    // verified the project.
    void Cargar();
    void CambiarTab(int tab);

    // Spread4 column 7 of row `fila` took the text `texto` (a name with its
    // inch mark): the assumed size changes, the file is written, lengths and
    // pressures are rerun.  A row outside the grid or an empty text does nothing.
    void EditarDiametroAsumido(int fila, const QString& texto);

    // Spread3 column 14 of row `fila`: the reducing valve (m).  Pressures are
    // rerun and the value written to the file.  A text that is not a number,
    // or reads two ways, is refused (false) with the reader's reason and the
    // cell shows the valve as it was.
    //
    // The valve and the two tank buttons need the pressures of a whole chain:
    // when the last run stopped (a fault of the network or of the
    // calculation) they say so and change nothing.
    bool EditarValvulaReductora(int fila, const QString& texto);
    bool EditarValvulaReductora(int fila, double valor);
    // A text the valve cell refused before any edit: the reader's reason.
    void NumeroRechazado(const QString& texto);

    // LSButton2: asks, then makes every assumed size the theoretical one,
    // writes them, and reruns from the pre-sizing grid on.  True when done.
    bool LSButton2_Click();

    // LSButton6: the tank height fixed by hand, the number in Double1 (or
    // Enter in the box).  Pressures only; nothing is written to the file.
    void LSButton6_Click();
    // LSButton7: the tank height computed again (two runs of the pressures);
    // Double1 shows it.
    void LSButton7_Click();

    // LSButton5: asks for another project and, on a file, loads, verifies and
    // analyses it.  A cancel changes nothing; a file that is not a project is
    // refused with a message and the current project stays.  True when loaded.
    bool LSButton5_Click();

    // The return from the branch editor (LSButton11).  When the editor saved:
    // the file is read again, the grids emptied and, with branches, the
    // network verified and the chain run; a numbering fault is shown and the
    // chain runs all the same on the node numbers as they stand.
    void RetornoEditorRamales(bool salvado);

    // ---- The chain -------------------------------------------------------
    // ColoqueGastos .. ColoquePerdidasPresiones and the tank box.  Returns false
    // when it stopped at a fault shown to the engineer (a branch 2 leaving the
    // origin with a size of its own); the later grids are then empty.
    bool EjecutarCadena();
    void ConfigurarSpread();
    void ColoquePredimensionado();
    void ColoqueUnidadesGasto();
    // Runs CalcularLongitudes first; false when that stopped.
    bool ColoqueLongitudEquivalente();
    // Also computes ValvulaAcumulada and the final unfavourable node.
    void ColoquePerdidasPresiones();

private:
    // Spread4 columns 7 and 8 of a row, with their colours; Spread3 column 14.
    void ColoqueDiametroAsumido(int fila);
    void ColoqueValvula(int fila);
    void EscribirCampoRamal(const char* columna, int ramal, const QString& texto);
    void EscribirCampoRamal(const char* columna, int ramal, double valor);
    void VaciarGrids();
    // The chain from the lengths on (tabs 3 and 4), after a change of size;
    // false when the lengths stopped at a fault shown to the engineer.  The
    // sizes already written in `escritura` reach the file together with the
    // reductions that follow from them.
    bool RehacerPerdidas(EscrituraConjunta& escritura);
    // Verification and chain after a new load (open, return from the editor).
    void Reconstruir();
    void PonerCaption(bool desdeEstaPantalla);
    // True when the last run of the chain reached the pressures; else says
    // that they cannot be computed.
    bool PresionesCalculadas();

    ProyectoEdificio& p_;
    Sesion& s_;
    Dialogos& d_;
    bool cadenaCompleta_ = false;  // the last run reached the pressures
};
