#pragma once
// Sizing of a hydropneumatic tank and its pump on top of the building
// chain: the inputs and their defaults, the pre-filling from an open project,
// the three methods of the pump flow and the sizing formulas; and the logic
// of the screen Hidroneumatico (inputs), for its Qt screen to show.

#include <QString>
#include <QStringList>
#include <cstdint>

struct ProyectoEdificio;
struct Sesion;
class Dialogos;

struct DatosTanque {
    int16_t NumeroMetodo = 1;   // 1 flow, 2 daily allotment, 3 fixtures (Peerless)
    double Caudal = 0.0;        // l/s, method 1
    double Porcentaje = 50.0;   // %, method 1
    double Dotacion = 0.0;      // litres per day, method 2
    int16_t NumeroPiezas = 0;   // method 3
    double FactorPeerlees = 0.0;  // litres per minute per fixture, method 3
    double PresionMinima = 0.0;   // m
    double PresionMaxima = 0.0;   // m
    double Arranques = 6.0;       // starts per hour
    double Succion = 3.0;         // m
    int16_t OpcionK = 1;          // 1 vertical (K = 0.10), 2 horizontal (K = 0.054)
};

struct ResultadoTanque {
    QString Titulo;  // "Cálculo por el Método ( n )"
    double QB = 0.0, VolumenTotal = 0.0, VolumenMinimo = 0.0, VolumenUtil = 0.0, VolumenMaximo = 0.0,
           PotenciaBomba = 0.0, PotenciaMotor = 0.0;
};

// The defaults set in every case: Porcentaje 50, Arranques 6, Succion 3,
// method 1, OpcionK 1.
void ValoresPorDefectoTanque(DatosTanque& t);

// The pre-filling from the project in memory when its pressure at the origin
// is derived from the worst node (OpcionPresionInicial 0): verification, the
// chain (writing Predimensionado and Reduccion to the file as the analysis
// does), Caudal = Gasto of branch 1, NumeroPiezas, PresionMinima = pressure at
// the origin and PresionMaxima 14 m above it.  False, leaving the boxes as
// they were, when the option is another, the project has no branch, or the
// numbering or the chain stopped at a fault shown through `d`.
bool PrellenarDesdeProyecto(DatosTanque& t, ProyectoEdificio& p, Sesion& s, Dialogos& d);

// The K of the tank: 0.1 with OpcionK 1, 0.054 otherwise.
double FactorK(int opcionK);
// The method title of the results and its longer text of the report.
QString TituloMetodo(int metodo);
QString TextoMetodoReporte(int metodo);

// The sizing.  PresionMaxima of -10 divides by zero (error 11).
ResultadoTanque CalcularTanque(const DatosTanque& t);

// A maximum pressure not above the minimum would size no tank or a negative
// one: the text of its refusal, empty when the pressures can be sized.
QString RechazoPresiones(const DatosTanque& t);

// Which boxes of the screen are enabled for a method.
struct HabilitacionTanque {
    bool Caudal, Porcentaje, Dotacion, NumeroPiezas, FactorPeerlees, BotonPeerless;
};
HabilitacionTanque HabilitacionMetodo(int metodo);

// The screen Hidroneumatico: its inputs and the pre-filling at the load.
class Hidroneumatico {
public:
    Hidroneumatico(ProyectoEdificio& p, Sesion& s, Dialogos& d) : p_(p), s_(s), d_(d) {}
    DatosTanque Datos;
    QString Caption = QStringLiteral("CÁLCULO DE TANQUE HIDRONUEMÁTICO");

    // Load: the pre-filling when a project is chosen, then the defaults.
    void Cargar();
    // "Abrir": another project; a cancel or a refused file changes nothing.
    // A fault of the pre-filling leaves the new project loaded with the
    // defaults in the boxes, and passes on as ErrorEjecucion.
    bool Abrir();
    HabilitacionTanque Habilitacion() const { return HabilitacionMetodo(Datos.NumeroMetodo); }
    // "Calcular": true when the results screen is to open; a refusal of the
    // pressures is shown instead.
    bool Calcular();
    // The factor captured from the Peerless table goes into its box.
    void PonerFactorPeerlees(const QString& texto);

private:
    ProyectoEdificio& p_;
    Sesion& s_;
    Dialogos& d_;
};
