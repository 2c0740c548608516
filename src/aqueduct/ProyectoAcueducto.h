#pragma once
// The aqueduct project: one record of general data, parallel arrays per
// section (Tramo) and per node, the arrays the numbering derives from the
// sections, and the results of the last solve.  Every array keeps slot 0
// holding the zero of its type; sections run 1..NumeroTramos, nodes
// 1..NumeroNodosACU.  One project is open at a time; the screens, the solver
// and the file routines all read and write this one record.

#include "base/Arreglo.h"
#include "base/Entero16.h"

#include <QDate>
#include <QString>
#include <cstdint>
#include <algorithm>
#include <optional>
#include <vector>

struct Sesion;

// Which numbering the linear solve of AnalizarMalla works in.  The numbers
// shown and stored are always those of NumerarNodos; only the order of the
// equations changes.
enum class OrdenSolucion : uint8_t {
    Automatico,  // the entered numbering unless an internal one gives a clearly narrower band
    Entrada,     // always the entered numbering (the band as the sections were typed)
    Interno,     // always the internal (reverse Cuthill-McKee) numbering
};

struct ProyectoAcueducto {
    // General data (table Generales).
    QString Proyecto;
    QString Ubicacion;   // loaded and saved, shown nowhere
    QString Calculista;
    QString Comentario;
    QDate Fecha;
    uint8_t OpcionConsumo = 1;   // 1 "Consumo por Tramo", 2 "Consumo por Nodo"
    uint8_t OpcionDiametro = 1;  // 1 metres, 2 millimetres, 3 inches
    Entero16 C = 100;            // default Hazen-Williams coefficient of new sections
    uint8_t CasoPorcentaje = 1;  // 1 percentage of the length added, 2 none
    double DeltaPorcentaje = 5.0;
    double FactorQMax = 2.5;
    double FactorIncendio = 1.8;
    double LitrosIncendio = 16.0;  // l/s
    Entero16 NumeroTramos;

    // The "Cliente:" box of the data screen: lives for the run only, no file
    // holds it and a new project keeps it.
    QString Cliente;

    Entero16 NumeroNodosACU;

    // Sections 1..NumeroTramos.
    Arreglo<QString> Inicio, Final;  // node names of the ends (I) and (J)
    Arreglo<double> Longitud;        // m
    Arreglo<double> Diametro;        // unit by OpcionDiametro
    Arreglo<Entero16> CoeficienteC;
    Arreglo<double> Demanda;         // l/s along the section (OpcionConsumo 1)

    // Nodes 1..NumeroNodosACU.
    Arreglo<QString> Nodos;
    Arreglo<double> ConsumoMedio;       // l/s
    Arreglo<double> CotaTerreno;        // m
    Arreglo<double> CotaBombaEstanque;  // m; 0 an ordinary node
    // Plan position in metres, for the drawing of the network and the
    // lengths of the sections; empty when the node has none.
    Arreglo<std::optional<double>> X, Y;

    // Rebuilt by NumerarNodos from the sections, never stored.
    Arreglo2<QString> ExtremosTramo;  // (1, s) Inicio, (2, s) Final
    Arreglo2<Entero16> NodosTramo;    // (1, s) node number of (I), (2, s) of (J)
    Arreglo<Entero16> TramosConectados;
    Arreglo<QString> NombreTramos;

    // Demand case and solver state (AnalizarMalla).
    uint8_t CasoDemanda = 1;  // 1 mean, 2 maximum, 3 fire
    double CotaReferencia = 0.0;
    Entero16 NumeroFijos;
    Arreglo<int> NodoFijo;
    Arreglo<double> CotaFija;
    Arreglo<double> CoeficienteK;
    Entero16 AnchoBanda;      // of the entered numbering, the diagonal included
    Arreglo<double> Alturas;  // heads above CotaReferencia
    int NodoMinimo = 0;
    int NodoMaximo = 0;
    uint8_t ErrorAnalisis = 0;  // 1 when a run was stopped by a run-time fault

    // Results of the last solve, never stored.
    Arreglo<double> DemandaReal;       // m³/s per node
    Arreglo<double> DemandaCalculo;    // l/s per node
    Arreglo<double> CotaPiezometrica;  // m per node
    Arreglo<double> Caudal;            // l/s per section, positive from (I) to (J)
    Arreglo<double> Velocidad;         // m/s per section, signed
    Arreglo<double> Perdidas;          // m per section, head at (I) minus head at (J)
    Arreglo<double> LongitudCalculo;   // m per section

    // How the last solve went, beyond what the screens show.
    OrdenSolucion Orden = OrdenSolucion::Automatico;
    int AnchoBandaSolucion = 0;     // band of the numbering the equations were solved in
    bool NumeracionInterna = false;  // the last solve used the internal numbering
    std::vector<int> Iteraciones;   // iterations of each pass of the last run
    // The mean flow imbalance (m³/s) each pass of the last run ended with,
    // and whether it reached the tolerance: a pass that used up the
    // iteration limit is reported, its results still shown.
    std::vector<double> Desbalance;
    std::vector<bool> Convergio;
    bool SinConvergencia() const {
        return std::find(Convergio.begin(), Convergio.end(), false) != Convergio.end();
    }
    // The iteration limit of a pass; lowered only by tests and by the
    // command line's --limite-iteraciones, to show a pass that does not end.
    int LimiteIteraciones = 100;
    QString DetalleError;           // the fault behind ErrorAnalisis, for the console

    // Sizes the six section arrays for `tramos` sections, cleared.
    void DimensionarTramos(int tramos);
    // The same keeping the values of the sections that stay.
    void RedimensionarTramos(int tramos);
    // Sizes the node arrays for `nodos` nodes, cleared / keeping values.
    void DimensionarNodos(int nodos);
    void RedimensionarNodos(int nodos);
};

// Empties every data, derived and result array and the two counts; the
// general data stay.
void BorrarArreglosACU(ProyectoAcueducto& p);

// A new project: the general data take their defaults (`Calculista` the
// session's engineer, `Fecha` today), every array is emptied.  `Cliente`,
// `CasoDemanda` and `Orden` keep their values.
void ValoresInicialesACU(ProyectoAcueducto& p, const Sesion& s);

// The diameter of section `tramo` in metres, by OpcionDiametro.
double DiametroMetros(const ProyectoAcueducto& p, int tramo);

// "HF / 1000": Perdidas x 1000 / LongitudCalculo rounded to 3 decimals, 0
// when the design length is not above 0.
double PerdidaUnitaria(const ProyectoAcueducto& p, int tramo);

// Pressure at a node: CotaPiezometrica - CotaTerreno.
double PresionNodo(const ProyectoAcueducto& p, int nodo);

// The run-time title of the aqueduct screens: "Redes de Acueductos
// Proyecto: [ NAME ]" with the file name in capitals.
QString TituloAcueducto(const QString& nombreProyecto);
