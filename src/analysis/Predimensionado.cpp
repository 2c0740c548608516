#include "analysis/Predimensionado.h"

#include "analysis/EscrituraRamales.h"
#include "analysis/Numeracion.h"
#include "base/Nivo.h"
#include "model/ProyectoEdificio.h"
#include "shell/Sesion.h"


namespace {

struct Tramo {
    double inferior, superior, menor, mayor;
};

// Brackets of the theoretical diameter (m) between two neighbouring sizes.
const Tramo Tramos[] = {
    {0.0158, 0.02093, 0.5, 0.75},   {0.02093, 0.02664, 0.75, 1.0},  {0.02664, 0.03505, 1.0, 1.25},
    {0.03505, 0.04089, 1.25, 1.5},  {0.04089, 0.0525, 1.5, 2.0},    {0.0525, 0.06271, 2.0, 2.5},
    {0.06271, 0.07793, 2.5, 3.0},   {0.07793, 0.10226, 3.0, 4.0},   {0.10226, 0.128, 4.0, 5.0},
    {0.128, 0.15405, 5.0, 6.0},     {0.15405, 0.20272, 6.0, 8.0},   {0.20272, 0.25451, 8.0, 10.0},
    {0.25451, 0.3058, 10.0, 12.0},
};

}  // namespace

double VelocidadEn(double gasto, double numero) {
    double interior = 0.0;
    DiametroInterior(numero, interior);
    const double d = interior / 100.0;
    return RoundNivo(Dividir(gasto / 1000.0 * 4.0, d * d * Pi), 2);
}

void UbicarDiametro(ProyectoEdificio& p, int ramal, double diametro, double menor, double mayor, double inferior,
                    double superior, bool& encontrado) {
    if (inferior <= diametro && diametro < superior) {
        switch (p.OpcionDiametro) {
        case 0: p.DiametroCalculo[ramal] = diametro >= (inferior + superior) / 2.0 ? mayor : menor; break;
        case 1: p.DiametroCalculo[ramal] = mayor; break;
        case 2: p.DiametroCalculo[ramal] = menor; break;
        default: break;
        }
        encontrado = true;
    }
    if (p.DiametroCalculo[ramal] == 0.5 && p.DiametroMinimo) p.DiametroCalculo[ramal] = 0.75;
}

namespace {

void PredimensionarRamal(ProyectoEdificio& p, int i) {
    const double area = Dividir(p.Gasto[i] / 1000.0, p.Velocidad);
    const double d = 2.0 * RaizCuadrada(area / Pi);
    if (d < 0.0184) p.DiametroCalculo[i] = p.DiametroMinimo ? 0.75 : 0.5;
    bool encontrado = false;
    for (const Tramo& t : Tramos) {
        UbicarDiametro(p, i, d, t.menor, t.mayor, t.inferior, t.superior, encontrado);
        if (encontrado) break;
    }
    if (!encontrado && d >= 0.3058) p.DiametroCalculo[i] = 12.0;  // nothing larger exists
    FijarDiametro(p, i, false);
}

}  // namespace

void CalcularPredimensionado(ProyectoEdificio& p) {
    const int n = p.NumeroRamales;
    p.DiametroCalculo.Redim(n);
    p.DiametroCalculoTexto.Redim(n);
    p.VelocidadCalculo.Redim(n);
    for (int i = 1; i <= n; ++i) EnLugar([&] { PredimensionarRamal(p, i); }, [&] { return LugarDeRamal(p, i); });
}

void FijarDiametro(ProyectoEdificio& p, int ramal, bool asumido) {
    const double numero = asumido ? p.DiametroAsumido[ramal] : p.DiametroCalculo[ramal];
    QString& nombre = asumido ? p.Predimensionado[ramal] : p.DiametroCalculoTexto[ramal];
    DiametroNombre(numero, nombre);
    ActualizarVelocidad(p, ramal, asumido);
}

void ActualizarVelocidad(ProyectoEdificio& p, int ramal, bool asumido) {
    const double numero = asumido ? p.DiametroAsumido[ramal] : p.DiametroCalculo[ramal];
    (asumido ? p.VelocidadAsumida[ramal] : p.VelocidadCalculo[ramal]) = VelocidadEn(p.Gasto[ramal], numero);
}

void ConvertirDiametro(ProyectoEdificio& p, int ramal, bool asumido) {
    double numero = 0.0;
    DiametroNumero(asumido ? p.Predimensionado[ramal] : p.DiametroCalculoTexto[ramal], numero);
    if (!asumido) {
        p.DiametroCalculo[ramal] = numero;
    } else if (numero == 0.0) {
        // A name outside the table: the theoretical size, in memory only.
        p.Predimensionado[ramal] = p.DiametroCalculoTexto[ramal];
        p.DiametroAsumido[ramal] = p.DiametroCalculo[ramal];
    } else {
        p.DiametroAsumido[ramal] = numero;
    }
}

void Predimensionado_Asumido(ProyectoEdificio& p, Sesion& s) {
    const int n = p.NumeroRamales;
    p.DiametroAsumido.Redim(n);
    p.VelocidadAsumida.Redim(n);
    p.Predimensionado.Redim(n);
    // The rows in branch order, as the record set of the older program.
    const auto filas = LeerColumnaRamales(s.ConexionProyecto, "Predimensionado");
    if (filas.empty()) return;
    EscrituraRamales escritura(s.ConexionProyecto, "Predimensionado");
    for (int i = 1; i <= n; ++i) {
        const bool hayFila = size_t(i) <= filas.size();
        const Valor campo = hayFila ? filas[size_t(i) - 1].second : Nulo();
        const QString texto = Trim(ComoTexto(campo));
        if (!campo.isNull() && !texto.isEmpty()) {
            if (texto.at(0).unicode() >= 1) {
                p.Predimensionado[i] = texto;
                ConvertirDiametro(p, i, true);
                ActualizarVelocidad(p, i, true);
            }
            continue;
        }
        // A first analysis stores the theoretical size as the assumed one.
        if (hayFila) escritura.Escribir(filas[size_t(i) - 1].first, p.DiametroCalculoTexto[i]);
        p.Predimensionado[i] = p.DiametroCalculoTexto[i];
        ConvertirDiametro(p, i, true);
        p.VelocidadAsumida[i] = p.VelocidadCalculo[i];
    }
    escritura.Confirmar();
}
