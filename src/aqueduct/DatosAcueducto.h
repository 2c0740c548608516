#pragma once
// The logic of the data screen of an aqueduct project ("Datos Generales del
// Acueducto"): the general data on page 1, the sections in Spread1 on page 2,
// the nodes in Spread2 on page 3.  The Qt screen lays out the widgets, shows
// the two grids and the values below, and forwards every user event to one
// function here; after each call it draws the whole screen from Estado()
// and the two grids, and takes `foco`.  Every question goes through Dialogos.
//
// Spread1 columns: 0 position, 1 "( I )", 2 "( J )", 3 "Longitud",
// 4 "Diámetro", 5 "Hansen - William" (integer), 6 "Consumo" "lps".
// Spread2 columns: 0 number, 1 "Nodo", 2 "Consumo" "Medio lps" (locked with
// "Consumo por Tramo"), 3 "Cota Terreno", 4 "Cota Tanque/" "Bomba m" (empty
// when not above 0), 5 "Ramales Conectados", 6 "Dirección Asumido del
// Flujo en los Ramales", 7 and 8 "Coordenada" "X m" / "Y m" (a blank cell
// is a node without coordinates; typed as text and read with the locale's
// marks).

#include "base/Grid.h"

#include <QDate>
#include <QString>

struct ProyectoAcueducto;
struct Sesion;
class Dialogos;

class DatosAcueducto {
public:
    DatosAcueducto(ProyectoAcueducto& p, Sesion& s, Dialogos& d);

    // Where the screen should put the focus after the last call.
    enum class Foco { Ninguno, Long2, Spread1, Spread2, PrimerControl };

    // The buttons and boxes whose enabling changes.
    // MenuRamales is the right-click menu of Spread1.
    struct Habilitados {
        bool Abrir = true, Salvar = true, Reportes = false, Insertar = false, Eliminar = false,
             Compatibilidad = false, Longitudes = false, Anterior = false, Siguiente = true, Double1 = true,
             MenuRamales = false;
    };

    // Everything the screen shows besides the grids, as it should show it now.
    struct Estado {
        QString titulo;
        int pagina = 1;
        Habilitados botones;
        QString textos[4];  // Text1..Text4
        QDate fecha;        // today when the project holds none
        int opcionConsumo = 1, opcionDiametro = 1, casoPorcentaje = 1;
        double numeros[4] = {};  // Double1..Double4
        int long1 = 0, long2 = 0;
    };
    Estado EstadoActual() const;

    Grid Spread1;
    Grid Spread2;

    // On load: headers and formats, ColoquePantalla, page 1, DatosModificados
    // and ProyectoSalvado cleared, "Abrir" disabled when opened from the
    // results screen.
    void Cargar();
    // "Redes de Acueductos   Proyecto: [ NAME ]".
    QString Titulo() const;
    void ConfigurarSpread();
    // Fills every value and both grids from the model.  A file whose node
    // list does not answer to its sections can raise ErrorEjecucion here, as
    // in RecalculeNodos; the screen shows it.
    void ColoquePantalla();

    int Pagina() const { return pagina_; }
    // "Reportes" follows the rows of Spread1.
    Habilitados Botones() const;
    Foco foco = Foco::Ninguno;

    // Page 1.  Each writes its variable at once and sets DatosModificados;
    // texts are cut to the box's limit (140, 70, 70, 100 characters).
    enum class Texto { Proyecto, Calculista, Cliente, Comentario };
    void CambiarTexto(Texto caja, const QString& valor);
    void CambiarFecha(const QDate& fecha);
    void CambiarOpcionConsumo(int opcion);
    void CambiarOpcionDiametro(int opcion);
    void CambiarCasoPorcentaje(int opcion);
    void CambiarDeltaPorcentaje(double v);
    void CambiarFactorQMax(double v);
    void CambiarFactorIncendio(double v);
    void CambiarLitrosIncendio(double v);
    // The box Long1, "Coeficiente  C =": its value becomes C.
    void CambiarLong1(int valor);
    int Long1() const { return long1_; }

    // Page 2.  Long2 "Número Total de Ramales:" holds what was typed; Enter
    // runs ColoqueDatosRamales with it.
    void CambiarLong2(int valor) { long2_ = valor; }
    int Long2() const { return long2_; }
    void ColoqueDatosRamales();

    // Navigation between the pages.  "Siguiente" on page 2 verifies the
    // sections and stays with "¡Corrija el Dato Seleccionado!" on a fault.
    void Siguiente();
    void Anterior();

    // The checks of the sections: blank ends, zero length or diameter (the
    // cell is selected and a beep sounds), then connectivity by bounded
    // sweeps of marks, with its message.  True when a fault was found.
    bool VerifiqueRamales();
    bool ErrorVerificacion() const { return errorVerificacion_; }
    // "Compatibilidad": VerifiqueRamales and its closing message.
    void Compatibilidad();

    // "Insertar" and "Eliminar" at the active row of Spread1, with their
    // questions.  The deletion writes the new count into Long1 and so into C.
    void Insertar();
    void Eliminar();

    // The node page follows the sections: numbering, connections, lumped
    // demands, node data kept by position, Spread2 refilled.  More distinct
    // names than sections + 10 is a run-time fault (ErrorEjecucion 9) that
    // reaches the screen; the typed data stay.
    void RecalculeNodos();
    // The six section arrays reread from every row of Spread1.
    void ActualizeTramos();

    // A value typed into a cell.  Spread1 columns 1-6 write their array (1
    // and 2 trimmed) and run RecalculeNodos; Spread2 columns 2-4 write the
    // node's data, 7-8 its coordinates (a blank text clears one).  False,
    // with nothing changed, for a locked or read-only cell or a text that is
    // not a number in a numeric column (its reason shown).
    bool EditarRamal(int fila, int columna, const QString& texto);
    // The same with a number, for the numeric columns 3 to 6.
    bool EditarRamal(int fila, int columna, double valor);
    bool EditarNodo(int fila, int columna, const QString& texto);
    bool EditarNodo(int fila, int columna, double valor);
    // The report of a cell of grid 1 (Spread1) or 2 (Spread2): a number
    // cell hands over the number it holds, as typed, not its rounded picture.
    bool EditarCelda(int grid, int fila, int columna, const QString& texto);
    // A text a number cell refused: the reader's reason when it is not a
    // number or reads two ways, else the column's limits (the coefficient C
    // is a 16-bit whole number from 0); nothing changed.
    void NumeroRechazado(int grid, int columna, const QString& texto);

    // A block selected in one column of a grid (1 Spread1, 2 Spread2), rows
    // fila1..fila2: asks one value and writes it into every row of the block.
    // A block over two columns, or over a column without a prompt, asks
    // nothing and stays selected, for copying.  True when a value was asked.
    bool LlenarBloque(int grid, int fila1, int fila2, int columna1, int columna2);

    // "Salvar": RecalculeNodos and SalvarProyectoACU; sets ProyectoSalvado
    // when the screen was opened from the results screen.  A save that fails
    // shows its message and keeps DatosModificados.
    bool Salvar();
    bool ProyectoSalvado() const { return proyectoSalvado_; }
    // "Abrir": offers to save, then the open dialog and the load.
    void Abrir();
    // Closing: with unsaved changes asks to save (yes, no, cancel).  True
    // when the screen may close.  A save made here also counts as
    // ProyectoSalvado for the results screen.
    bool PuedeCerrar();

    // "Longitudes": moves to the length cell of the active row.  True when
    // the screen should then open the length dialog (the grid has rows).
    bool Longitudes();

    ProyectoAcueducto& Proyecto() { return p_; }
    Sesion& Sesion_() { return s_; }
    Dialogos& Dialogos_() { return d_; }

private:
    bool EscribirTextoRamal(int fila, int columna, const QString& texto);
    bool EscribirNumeroRamal(int fila, int columna, double valor);
    bool EscribirNumeroNodo(int fila, int columna, double valor);
    void NumerarPosiciones(int desde);
    void LlenarRamal(int fila);
    void LlenarNodos();
    void PonerCoordenada(int fila, int columna);
    void MarcarModificado();
    // A value of page 1 written at once, the data marked as changed.
    template <typename T>
    void Poner(T& variable, const T& valor) {
        variable = valor;
        MarcarModificado();
    }
    void HabilitarPagina();
    void SeleccionarCelda(Grid& g, int fila, int columna);
    bool PreguntarSalvar();
    bool SalvarArchivo();

    ProyectoAcueducto& p_;
    Sesion& s_;
    Dialogos& d_;
    int pagina_ = 1;
    Habilitados botones_;
    int long1_ = 100;
    int long2_ = 0;
    bool cargando_ = false;
    bool errorVerificacion_ = false;
    bool proyectoSalvado_ = false;
};

// Message texts of the data screen shared with other screens.
QString MensajeCorrijaDato();  // "¡Corrija el Dato Seleccionado!"
