#pragma once
// The building project: one record of general data and parallel arrays
// indexed by branch (Ramal) and node (Nodo) number, slot 0 holding zeros.
// Input arrays are filled by LeerProyecto or the editors; result arrays by
// the analysis chain.

#include "base/Arreglo.h"
#include "base/Entero16.h"

#include <QDate>
#include <QString>
#include <cstdint>

struct Sesion;

// Rows of fixtures and of fittings a branch holds.
constexpr int FilasPorRamal = 30;

struct ProyectoEdificio {
    // General data (DatosGenerales).
    QString Proyecto;
    QString Ubicacion;
    QString Calculista;
    QString Cliente;  // kept by ValoresIniciales; written, never read
    QString Comentario;
    QDate Fecha;
    uint8_t OpcionUsoPiezas = 0;       // 0..3: fixture-unit column of the catalogue
    uint8_t OpcionPresionInicial = 0;  // 0 worst node, 1 given origin, 2 elevated tank
    double Valor1 = 7.0;
    double Valor2 = 0.0;
    double Valor3 = 3.0;
    double Velocidad = 1.2;
    uint8_t OpcionDiametro = 0;  // 0 nearer, 1 larger, 2 smaller
    bool DiametroMinimo = false;
    uint8_t OpcionPerdidas = 0;  // 0, 1 or 2 (Hazen-Williams)
    double CoeficienteC = 140.0;
    bool OpcionPresionM = false;
    double PresionM = 0.0;

    Entero16 NumeroRamales;
    Entero16 NumeroNodos;

    // Branch arrays, 1..NumeroRamales (NodoI and Nodoj one more).
    Arreglo<QString> NodoI, Nodoj;
    Arreglo<double> longitudReal;
    Arreglo<uint8_t> OpcionDiseño;  // 0 "Piezas de Tanque", 1 "Piezas de Válvula"
    Arreglo<double> ValvulaR;
    Arreglo<QString> RamalComentario;
    Arreglo<QString> Predimensionado;
    Arreglo<QString> Reduccion;
    Arreglo<int> NPiezas, NConexiones;

    // Fixtures and fittings, branch by position 1..30.
    Arreglo2<int> PiezaClave;
    Arreglo2<QString> PiezaNombre;
    Arreglo2<double> PiezaUnidades;
    Arreglo2<int> PiezaCantidad;
    Arreglo2<int> ConexionClave;
    Arreglo2<QString> ConexionNombre;
    Arreglo2<double> ConexionLongitud;
    Arreglo2<int> ConexionCantidad;
    Arreglo2<bool> ConexionAutomatica;

    // Nodes, 1..NumeroNodos.
    Arreglo<QString> NodoNombre;
    Arreglo<double> CotaPiso;
    Arreglo<double> CotaRelativa;

    // Results of the analysis chain.
    Arreglo<int> NumeroNodoI, NumeroNodoJ;
    uint8_t ErrorNumeracion = 0;
    Arreglo<double> UnidadesRamal;
    Arreglo<double> UnidadesAcumuladas;
    Arreglo<int> TipoCurva;
    Arreglo<double> Gasto;
    Arreglo<double> DiametroCalculo;
    Arreglo<QString> DiametroCalculoTexto;
    Arreglo<double> VelocidadCalculo;
    Arreglo<double> DiametroAsumido;
    Arreglo<double> VelocidadAsumida;
    Arreglo2<double> LongitudConexion;
    Arreglo<double> LongitudReduccion;
    Arreglo<int> RamalAnterior;
    Arreglo<double> LongitudEquivalenteRamal;
    Arreglo<int> NodoNumI, NodoNumJ;
    Arreglo<double> PerdidaUnitaria;
    Arreglo<double> PerdidaRamal;
    Arreglo<double> PresionNodo;
    Arreglo<double> PresionRamal;
    Arreglo<double> ValvulaAcumulada;
    double CargaOrigen = 0.0;
    double SumaPerdidas = 0.0;
    int NodoDesfaborable = 0;
    QString NodoDesfaborableNombre;
    double PresionDesfaborable = 0.0;

    // Sizes the input arrays for `ramales` branches (cleared).
    void DimensionarRamales(int ramales);
    // Sizes the node arrays for `nodos` nodes (cleared).
    void DimensionarNodos(int nodos);
};

// Brings the state back to a new project: defaults, no branches, every array
// erased, the project connection closed.  `Cliente` keeps its value and
// `Calculista` takes the session's engineer name.
void ValoresIniciales(ProyectoEdificio& p, Sesion& s);

// The fourteen commercial sizes: name, number in inches, inside diameter in cm.
struct DiametroComercial {
    const char* nombre;
    double numero;
    double interior;
};
constexpr int NumeroDiametros = 14;
const DiametroComercial* TablaDiametros();

// Look-ups of the table; false (and the output untouched) when not found.
bool DiametroNombre(double numero, QString& nombre);
bool DiametroNumero(const QString& nombre, double& numero);
bool DiametroInterior(double numero, double& interiorCm);
