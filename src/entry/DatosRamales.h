#pragma once
// The branch editor of a building project: the general data on page 1, the
// table of branches in Spread1 on page 2 and the review panel in Spread2.
// The Qt screen lays out the widgets and forwards every user event to one
// function here; after each call it draws the screen from EstadoActual()
// and the grids, and takes `foco`.  Every question goes through Dialogos.
//
// Spread1 columns: 0 "Ramal" (row number), 1 "Nodo ( I )", 2 "Nodo ( J )",
// 3 "Longitud Real" "(m)", 4 "Opción Diseño" (list), 5 "Válvula"
// "Reductora (m)", 6 "Número" "de Piezas", 7 "Número de" "Conexiones",
// 8 "Comentario".  Spread2 columns: 1 key, 2 photograph, 3 name, 4 quantity.

#include "base/Grid.h"
#include "entry/EditorRamales.h"

#include <QDate>
#include <QString>

struct ProyectoEdificio;
struct Sesion;
struct BuscarPartida;
class Dialogos;

class DatosRamales : public EditorRamales {
public:
    DatosRamales(ProyectoEdificio& p, Sesion& s, Dialogos& d);

    enum ColumnaRamal { CRamal, CNodoI, CNodoJ, CLongitud, COpcion, CValvula, CPiezas, CConexiones, CComentario };
    enum class Foco { Ninguno, Grid, NumeroRamales, PrimerControl };
    Foco foco = Foco::Ninguno;

    // Boxes whose enabling follows the options of page 1.
    struct Habilitados {
        bool Valor[3] = {true, false, false};  // Valor1..Valor3 and their labels
        bool CoeficienteC = false;
        bool PresionM = false;
        bool Abrir = true;  // hidden when called from the analysis
    };
    // Everything the screen shows besides the grids.
    struct Estado {
        QString titulo, etiquetaRamal, etiquetaValor;
        QString textos[4];  // Proyecto, Calculista, Cliente, Comentario
        QDate fecha;
        int opcionUsoPiezas = 0, opcionPresionInicial = 0, opcionDiametro = 0, opcionPerdidas = 0;
        double valor[3] = {};
        double velocidad = 0, presionM = 0;
        int coeficienteC = 0;
        bool diametroMinimo = false, opcionPresionM = false, graficos = false;
        int numeroRamales = 0;  // the count box, as typed
        Habilitados habilitados;
    };
    Estado EstadoActual() const;

    Grid Spread1;  // branches
    Grid Spread2;  // review panel

    // On load: ConfigurarSpread, ColoquePantalla, ProyectoModificado and
    // ProyectoSalvado cleared, cursor on column 3 of row 1.
    void Cargar();
    // "NIVO-FONTARIA <version>    PROYECTO: [ FILE ]".
    QString Titulo() const;
    void ConfigurarSpread();
    void ColoquePantalla();
    void ColoqueRamales() override;
    // Bounds of every branch, slot and node array for NumeroRamales,
    // keeping contents; NumeroNodos = NumeroRamales + 1.
    void RedimensioneVariables();

    // Page 1: each writes its variable at once and sets ProyectoModificado.
    enum class Texto { Proyecto, Calculista, Cliente, Comentario };
    void CambiarTexto(Texto caja, const QString& valor);
    void CambiarFecha(const QDate& fecha);
    void CambiarOpcionUsoPiezas(int opcion);
    void CambiarOpcionPresionInicial(int opcion);
    void CambiarValor(int cual, double v);
    void CambiarVelocidad(double v);
    void CambiarOpcionDiametro(int opcion);
    void CambiarDiametroMinimo(bool si);
    void CambiarOpcionPerdidas(int opcion);
    void CambiarCoeficienteC(int c);
    void CambiarOpcionPresionM(bool si);
    void CambiarPresionM(double v);

    // "Número de Ramales:": what is typed is held until Enter or leaving the
    // box applies it.  A count the 16-bit counters cannot hold (with the
    // node count one more) raises the overflow, the model untouched.
    void CambiarNumeroRamales(int n);
    void AplicarNumeroRamales();

    // A cell committed by the grid: the model by column, the I, J, I, J
    // cursor run.  A number column refuses a text that is not a number with
    // the reader's reason, the cell keeping its value.  False when nothing
    // was stored.
    bool EditarCelda(int fila, int columna, const QString& texto);
    // A text the grid's number cell refused: its reason.
    void NumeroRechazado(int columna, const QString& texto);
    // The cursor moved in Spread1: the label and the review panel follow.
    void MoverCursor(int fila, int columna);
    int RamalActivo() const;
    QString EtiquetaRamal() const;  // "Ramal ( n )"

    // Checks of the node labels.  VerificaNodos stops on the first empty
    // label with the cursor on it and no message; NumeracionNodos reports
    // equal ends or a branch that hangs from no earlier Nodoj.
    void VerificaNodos();
    bool NodoVacio() const { return nodoVacio_; }
    void NumeracionNodos();

    void InsertarRamal(int posicion);
    void EliminarRamal(int fila);

    // Buttons.  Salvar true when the file was written.
    bool Salvar();
    bool ProyectoSalvado() const { return proyectoSalvado_; }
    void Abrir();
    bool PuedeCerrar();
    void Crear();
    void Eliminar();
    void Compatibilidad();
    // True when the screen of the button may open; RamalActual then holds
    // the active row.
    bool PiezasSanitarias();
    bool Conexiones();
    bool CotasPiso();
    bool Diseno();
    bool Longitudes();
    // "Reportes": true when the data report may open.  It prints the file as
    // last saved; the edits in memory stay as they are, unsaved.
    bool Reportes() const { return HayRamales(); }
    void BuscarRamal(const BuscarPartida& b);
    // Columns 6 and 7 from NPiezas and NConexiones, after a branch screen.
    void ColoqueNPiezas();
    void ColoqueNConexiones();

    // The review panel ("Gráficos").  CambiarGraficos refuses to turn on
    // without branches; the result is the check's new state.
    bool CambiarGraficos(bool si);
    bool Graficos() const { return graficos_; }
    void ColoquePiezasTemp(int ramal);
    void ColoqueConexionesTemp(int ramal);
    // The panel of a branch (the floating preview while the mouse is held).
    void ColoqueRevision(int ramal);
    // The right-click menu's entries: no command hangs on them.
    void MenuInsertarRamal() {}
    void MenuEliminarRamal() {}

    // EditorRamales.
    void IrARamal(int ramal, int columna) override;
    QString TextoRamal(int ramal, int columna) const override;
    void FijarLongitud(int ramal, double longitud) override;

private:
    void LlenarRamal(int fila);
    void ColorOpcion(int fila);
    void PonerTanque();
    void NumerarDesde(int fila);
    void MarcarModificado();
    template <typename T>
    void Poner(T& variable, const T& valor) {
        variable = valor;
        MarcarModificado();
    }
    bool NumeroDeCelda(int fila, int columna, const QString& texto, double& v);
    bool HayRamales() const;
    bool PuedeAbrirRamal(bool verificar);
    bool PreguntarSalvar();
    bool SalvarArchivo();
    void CopiarRamal(int desde, int hacia);
    void LimpiarRamal(int ramal);
    int ColoqueFilas(bool piezas, int ramal, int fila);
    void SeguirRevision();

    ProyectoEdificio& p_;
    Sesion& s_;
    Dialogos& d_;
    int numeroRamales_ = 0;
    bool numeroCambiado_ = false;
    bool nodoVacio_ = false;
    bool graficos_ = false;
    bool proyectoSalvado_ = false;
    int filaRevision_ = 0;
    int ramalRevision_ = 0;  // the branch the panel shows
};

// Colours of the editor's grids (0x00BBGGRR).
constexpr int ColorNodos = 0xE0FFFF;    // frozen node columns
constexpr int ColorValvula = 0xC0FFC0;  // a branch designed with valve fixtures
constexpr int ColorTanque = 0xB0D8FF;   // "H. Tanque"
constexpr int ColorConexiones = 0xFFE8C8;  // heading of the fittings in the panel
