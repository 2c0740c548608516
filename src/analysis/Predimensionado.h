#pragma once
// Pipe pre-sizing: the theoretical nominal size of every branch from its
// flow and the design velocity, and the assumed size kept in the project
// file, on which everything downstream works.

#include <QString>

struct ProyectoEdificio;
struct Sesion;

constexpr double Pi = 3.14159265358979;

// The theoretical side for all branches: DiametroCalculo,
// DiametroCalculoTexto, VelocidadCalculo.  A Velocidad of 0 is error 11.
void CalcularPredimensionado(ProyectoEdificio& p);

// One bracket [inferior, superior) of two neighbouring sizes: when `diametro`
// (m) lies in it, DiametroCalculo of the branch takes the size chosen by
// OpcionDiametro and `encontrado` is set.  In every case a size of 0.5 under
// DiametroMinimo becomes 0.75.
void UbicarDiametro(ProyectoEdificio& p, int ramal, double diametro, double menor, double mayor, double inferior,
                    double superior, bool& encontrado);

// From the size number (DiametroCalculo, or DiametroAsumido when `asumido`):
// the name into DiametroCalculoTexto (or Predimensionado) and the velocity
// into VelocidadCalculo (or VelocidadAsumida).
void FijarDiametro(ProyectoEdificio& p, int ramal, bool asumido);
// The same velocity, the name left as it stands.
void ActualizarVelocidad(ProyectoEdificio& p, int ramal, bool asumido);
// From the name (DiametroCalculoTexto, or Predimensionado) to its number; an
// assumed name outside the table takes the theoretical size instead.
void ConvertirDiametro(ProyectoEdificio& p, int ramal, bool asumido);

// The velocity (m/s, two decimals) of `gasto` l/s in the size `numero`; a
// size outside the table is a division by zero.
double VelocidadEn(double gasto, double numero);

// The assumed sizes from the column Predimensionado of the project file; a
// blank one takes the theoretical size and is written to the file, all in one
// transaction.  Branches beyond the file's rows take the theoretical size in
// memory only.
void Predimensionado_Asumido(ProyectoEdificio& p, Sesion& s);
