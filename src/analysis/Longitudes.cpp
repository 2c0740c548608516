#include "analysis/Longitudes.h"

#include "analysis/EscrituraRamales.h"
#include "analysis/IndiceNombres.h"
#include "analysis/Numeracion.h"
#include "base/Nivo.h"
#include "model/ProyectoEdificio.h"
#include "shell/Sesion.h"

#include <cmath>

namespace {

// Sizes of the columns of the table; "7" is a column no diameter reaches.
const double TamanosTabla[15] = {0.5, 0.75, 1.0, 1.25, 1.5, 2.0, 2.5, 3.0, 4.0, 5.0, 6.0, 7.0, 8.0, 10.0, 12.0};

// One row per kind of built-in fitting (keys 7 and 10 share a row, as do 8 and 11).
const double TablaLongitudes[9][15] = {
    {4.9, 6.7, 8.8, 11.6, 13.7, 17.7, 21.4, 24.7, 36.6, 42.7, 51.9, 58.0, 70.0, 88.0, 100.0},
    {2.6, 3.66, 4.5, 5.8, 6.7, 8.85, 10.1, 12.8, 17.7, 21.4, 25.0, 30.5, 36.6, 45.8, 54.9},
    {0.11, 0.15, 0.16, 0.24, 0.27, 0.37, 0.43, 0.52, 0.74, 0.89, 1.07, 1.22, 1.4, 1.75, 2.1},
    {0.25, 0.31, 0.38, 0.52, 0.61, 0.79, 0.92, 1.15, 1.53, 1.89, 2.28, 2.68, 3.05, 3.81, 4.58},
    {0.46, 0.64, 0.85, 1.16, 1.34, 1.68, 2.14, 2.47, 3.46, 4.26, 4.88, 5.5, 6.7, 8.38, 10.05},
    {0.43, 0.55, 0.73, 0.92, 1.16, 1.37, 1.62, 2.14, 2.74, 3.66, 4.26, 4.9, 5.5, 6.88, 8.25},
    {0.34, 0.4, 0.52, 0.73, 0.85, 1.07, 1.31, 1.56, 2.14, 2.74, 3.36, 3.96, 4.3, 5.38, 6.45},
    {1.01, 1.37, 1.77, 2.44, 2.75, 3.66, 4.28, 4.88, 6.74, 8.55, 10.1, 11.9, 13.1, 16.38, 19.65},
    {1.19, 1.53, 1.89, 2.47, 3.05, 3.96, 4.58, 5.49, 7.3, 9.45, 11.3, 13.1, 15.2, 19.0, 22.8},
};

// Rows of the table by key 1..11.
const int FilaPorClave[12] = {-1, 0, 1, 2, 3, 4, 5, 6, 7, 8, 6, 7};

// Coefficients c0..c5 of the reduction, each a quadratic in r.
const double CoeficientesReduccion[6][3] = {
    {0.172907881085, -0.633983576791, 0.580668102042},
    {0.586197900747, -0.12732723395, -0.571485635639},
    {0.242118385204, -1.27250199236, 1.24006065024},
    {-0.0949825638004, 0.454171129018, -0.420660415301},
    {0.0173943183546, -0.0753113326054, 0.0666100551386},
    {-0.00108454200173, 0.00440203623193, -0.00377943828668},
};

}  // namespace

bool LongitudTabla(int clave, double numero, double& longitud) {
    if (clave < 1 || clave > 11) return false;
    for (int c = 0; c < 15; ++c)
        if (TamanosTabla[c] == numero) {
            longitud = TablaLongitudes[FilaPorClave[clave]][c];
            return true;
        }
    return false;
}

QString TextoReduccion(const QString& anterior, const QString& actual) {
    return QStringLiteral("REDUCCIÓN DE  ") + anterior + MarcaPulgada() + QStringLiteral("  a  ") + actual +
           MarcaPulgada();
}

void LongitudPorReduccion(ProyectoEdificio& p, double r, int ramal) {
    const double d = p.DiametroAsumido[ramal];
    double suma = 0.0;
    for (int k = 0; k < 6; ++k) {
        const double* a = CoeficientesReduccion[k];
        const double ck = a[0] + a[1] * r + a[2] * std::pow(r, 2.0);
        suma += k == 0 ? ck : ck * std::pow(d, double(k));
    }
    p.LongitudReduccion[ramal] = RoundNivo(suma, 2);
    p.LongitudEquivalenteRamal[ramal] += p.LongitudReduccion[ramal];
}

bool CalcularLongitudes(ProyectoEdificio& p, Sesion& s, Dialogos& d) {
    const int n = p.NumeroRamales;
    p.LongitudEquivalenteRamal.Redim(n);
    p.LongitudConexion.Redim(n, FilasPorRamal);
    for (int i = 1; i <= n; ++i) {
        const double diametro = p.DiametroAsumido[i];
        double suma = 0.0;
        for (int k = 1; k <= p.NConexiones[i]; ++k) {
            const int clave = p.ConexionClave(i, k);
            if (clave < 1) continue;
            if (clave <= 11) LongitudTabla(clave, diametro, p.LongitudConexion(i, k));  // no entry: slot kept
            else p.LongitudConexion(i, k) = p.ConexionLongitud(i, k);
            suma += p.ConexionCantidad(i, k) * p.LongitudConexion(i, k);
        }
        p.LongitudEquivalenteRamal[i] = suma;
    }

    p.LongitudReduccion.Redim(n);
    p.RamalAnterior.Redim(n);
    // The branch that ends where each one starts (first in list order).
    IndiceNombres finales(n);
    for (int i = 2; i <= n; ++i) {
        finales.Agregar(p.Nodoj[i - 1], i - 1);
        p.RamalAnterior[i] = finales.Primero(p.NodoI[i]);
        // Only a branch 2 leaving the origin passes the numbering without a
        // branch before it; a reduction from nothing cannot be measured.
        if (p.RamalAnterior[i] == 0 && p.DiametroAsumido[i] != 0.0) {
            ReportarNodoDesconectado(p, d, i);
            return false;
        }
    }

    const auto filas = LeerColumnaRamales(s.ConexionProyecto, "Reduccion");
    EscrituraRamales escritura(s.ConexionProyecto, "Reduccion");
    for (int i = 2; i <= n; ++i) {
        const int anterior = p.RamalAnterior[i];
        Valor texto;  // null: no change of size
        if (p.DiametroAsumido[i] != p.DiametroAsumido[anterior]) {
            const double r = Dividir(p.DiametroAsumido[i], p.DiametroAsumido[anterior]);
            LongitudPorReduccion(p, r, i);
            texto = TextoReduccion(p.Predimensionado[anterior], p.Predimensionado[i]);
        }
        if (size_t(i) > filas.size()) continue;
        const auto& [rowid, actual] = filas[size_t(i) - 1];
        if (actual.isNull() == texto.isNull() && ComoTexto(actual) == ComoTexto(texto)) continue;
        escritura.Escribir(rowid, texto);
    }
    escritura.Confirmar();
    return true;
}
