// The four grids of the analysis screen: their headers and column types,
// and their fill from the arrays of the chain.

#include "analysis/AnalisisRed.h"

#include "analysis/Longitudes.h"
#include "analysis/Predimensionado.h"
#include "base/Nivo.h"
#include "model/ProyectoEdificio.h"

#include <cmath>

namespace {

QString ConPulgada(const QString& nombre) { return nombre + MarcaPulgada(); }

// A group header over `columnas` columns in row 1, their names in row 2.
void Grupo(Grid& g, int columna, const QString& grupo, const QStringList& nombres) {
    for (int k = 0; k < nombres.size(); ++k) {
        g.PonerEncabezado(1, columna + k, grupo);
        g.PonerEncabezado(2, columna + k, nombres[k]);
    }
    g.UnirEncabezado(1, columna, 1, int(nombres.size()));
}

void Columnas(Grid& g, const std::vector<std::pair<TipoCelda, int>>& tipos) {
    g.PonerColumnas(int(tipos.size()));
    for (int c = 1; c <= int(tipos.size()); ++c) {
        g.Col(c).tipo = tipos[size_t(c) - 1].first;
        g.Col(c).decimales = tipos[size_t(c) - 1].second;
        g.Col(c).bloqueada = true;
    }
}

// Empties a grid for a new fill of `filas` rows, keeping its active cell.
void Reiniciar(Grid& g, int filas) {
    const int fila = g.FilaActiva(), columna = g.ColumnaActiva();
    g.Vaciar();
    g.PonerFilas(filas);
    g.PonerActiva(std::min(std::max(fila, 1), std::max(filas, 1)), columna);
}

// A number, or a blank when it is 0.
void NumeroOBlanco(Grid& g, int fila, int columna, double valor, int decimales) {
    if (valor == 0.0) g.PonerVacio(fila, columna);
    else g.PonerNumero(fila, columna, valor, decimales);
}

// Below zero as shown, to the centimetre.
bool PresionNegativa(double presion) { return RoundNivo(presion, 2) < 0.0; }

const auto T = TipoCelda::Texto;
const auto N = TipoCelda::Numero;
const auto E = TipoCelda::Entero;

}  // namespace

QStringList AnalisisRed::ListaDiametros() {
    QStringList l;
    for (int i = 0; i < NumeroDiametros; ++i) l << ConPulgada(QString::fromLatin1(TablaDiametros()[i].nombre));
    return l;
}

void AnalisisRed::ConfigurarSpread() {
    const QString ramal = QStringLiteral("Ramal");
    const QString nodoI = QStringLiteral("Nodo I"), nodoJ = QStringLiteral("Nodo J");

    Columnas(Spread4, {{T, 0}, {T, 0}, {N, 2}, {N, 2}, {T, 0}, {N, 2}, {TipoCelda::Lista, 0}, {N, 2}, {T, 0}});
    Grupo(Spread4, 1, ramal, {nodoI, nodoJ});
    Spread4.PonerEncabezados(3, QStringLiteral("Unidades de Gasto"));
    Spread4.PonerEncabezados(4, QStringLiteral("Caudal (l/s)"));
    Grupo(Spread4, 5, QStringLiteral("Predimensionado Teórico"),
          {QStringLiteral("Diámetro (plg)"), QStringLiteral("Velocidad (m/s)")});
    Grupo(Spread4, 7, QStringLiteral("Predimensionado Asumido"),
          {QStringLiteral("Diámetro (plg)"), QStringLiteral("Velocidad (m/s)")});
    Spread4.PonerEncabezados(9, QStringLiteral("Comentario"));
    // Widths that keep each header within its lines.
    Spread4.Col(4).ancho = 12;
    for (int c = 5; c <= 8; ++c) Spread4.Col(c).ancho = 12;
    Spread4.Col(7).lista = ListaDiametros();
    Spread4.Col(7).bloqueada = false;
    Spread4.Col(9).ancho = 30;

    Columnas(Spread1, {{T, 0}, {T, 0}, {T, 0}, {E, 0}, {N, 2}, {N, 2}, {N, 2}, {N, 2}, {E, 0}});
    Grupo(Spread1, 1, ramal, {nodoJ, nodoI});
    Spread1.PonerEncabezados(3, QStringLiteral("Piezas Sanitarias"));
    Grupo(Spread1, 4, QStringLiteral("Unidades de Gasto"),
          {QStringLiteral("Cantidad"), QStringLiteral("por Pieza"), QStringLiteral("Sub-Total"),
           QStringLiteral("Totales")});
    Spread1.PonerEncabezados(8, QStringLiteral("Gasto\nProbable (l/s)"));
    Spread1.PonerEncabezados(9, ramal);
    Spread1.Col(3).ancho = 30;
    Spread1.Col(8).ancho = 12;

    Columnas(Spread2, {{T, 0}, {T, 0}, {T, 0}, {T, 0}, {E, 0}, {N, 2}, {N, 2}, {N, 2}, {E, 0}});
    Grupo(Spread2, 1, ramal, {nodoI, nodoJ});
    Spread2.PonerEncabezados(3, QStringLiteral("Descripción"));
    Spread2.PonerEncabezados(4, QStringLiteral("Diámetro del Ramal (plg)"));
    Spread2.PonerEncabezados(5, QStringLiteral("Cantidad"));
    Grupo(Spread2, 6, QStringLiteral("Longitud Equivalente"),
          {QStringLiteral("por Pieza (m)"), QStringLiteral("Sub-Total (m)"), QStringLiteral("Totales (m)")});
    Spread2.PonerEncabezados(9, ramal);
    Spread2.Col(3).ancho = 34;

    Columnas(Spread3, {{T, 0}, {T, 0}, {N, 2}, {T, 0}, {N, 2}, {N, 2}, {N, 2}, {N, 2}, {N, 4}, {N, 2}, {N, 2},
                       {N, 2}, {N, 2}, {N, 2}, {N, 2}});
    Grupo(Spread3, 1, ramal, {nodoI, nodoJ});
    Spread3.PonerEncabezados(3, QStringLiteral("Caudal (l/s)"));
    Spread3.PonerEncabezados(4, QStringLiteral("Diámetro del Ramal (plg)"));
    Grupo(Spread3, 5, QStringLiteral("Longitudes"),
          {QStringLiteral("Real (m)"), QStringLiteral("Equivalente (m)"), QStringLiteral("Total (m)")});
    Spread3.PonerEncabezados(8, QStringLiteral("Velocidad\n(m/s)"));
    Grupo(Spread3, 9, QStringLiteral("Pérdidas"), {QStringLiteral("Unitaria (m)"), QStringLiteral("Total (m)")});
    Grupo(Spread3, 11, QStringLiteral("Cota Piezométrica"), {QStringLiteral("Atrás (m)"), QStringLiteral("Adelante (m)")});
    Spread3.PonerEncabezados(13, QStringLiteral("Diferencia de\nCota (J - I)"));
    Spread3.PonerEncabezados(14, QStringLiteral("Válvula\nReductora (m)"));
    Spread3.PonerEncabezados(15, QStringLiteral("Presion (m)\nen el Nodo J"));
    for (int c : {3, 6, 13, 14, 15}) Spread3.Col(c).ancho = 12;
    Spread3.Col(14).bloqueada = false;
    Spread3.Col(14).minimo = 0.0;
}


void AnalisisRed::ColoqueDiametroAsumido(int i) {
    Spread4.PonerTexto(i, 7, ConPulgada(p_.Predimensionado[i]));
    Spread4.PonerNumero(i, 8, p_.VelocidadAsumida[i], 2);
    Spread4.PonerColorFondo(i, 7, p_.Predimensionado[i] != p_.DiametroCalculoTexto[i]
                                      ? ColoresAnalisis::DiametroCambiado
                                      : ColorBlanco);
    const double v = p_.VelocidadAsumida[i];
    Spread4.PonerColorTexto(i, 8, v >= 0.6 && v <= 3.5 ? ColorNegro : ColorRojo);
}

void AnalisisRed::ColoqueValvula(int i) {
    NumeroOBlanco(Spread3, i, 14, p_.ValvulaR[i], 2);
    Spread3.PonerColorFondo(i, 14, p_.ValvulaR[i] == 0.0 ? ColorBlanco : ColoresAnalisis::Valvula);
}

void AnalisisRed::ColoquePredimensionado() {
    const int n = p_.NumeroRamales;
    Reiniciar(Spread4, n);
    for (int i = 1; i <= n; ++i) {
        Spread4.PonerEntero(i, 0, i);
        Spread4.PonerTexto(i, 1, p_.NodoI[i]);
        Spread4.PonerTexto(i, 2, p_.Nodoj[i]);
        Spread4.PonerNumero(i, 3, p_.UnidadesAcumuladas[i], 2);
        Spread4.PonerNumero(i, 4, p_.Gasto[i], 2);
        Spread4.PonerTexto(i, 5, ConPulgada(p_.DiametroCalculoTexto[i]));
        Spread4.PonerNumero(i, 6, p_.VelocidadCalculo[i], 2);
        ColoqueDiametroAsumido(i);
        Spread4.PonerTexto(i, 9, p_.RamalComentario[i]);
    }
}

void AnalisisRed::ColoqueUnidadesGasto() {
    const int n = p_.NumeroRamales;
    auto piezas = [&](int i) {
        int k = 0;
        for (int pos = 1; pos <= p_.NPiezas[i]; ++pos)
            if (p_.PiezaClave(i, pos) > 0) ++k;
        return k;
    };
    int filas = 0;
    for (int i = 1; i <= n; ++i) filas += std::max(piezas(i), 1);
    Reiniciar(Spread1, filas);
    PrimeraFilaUnidades.Redim(n);

    int fila = 1;
    for (int i = 1; i <= n; ++i) {
        const int primera = fila;
        PrimeraFilaUnidades[i] = primera;
        const int cuantas = std::max(piezas(i), 1);
        Spread1.PonerTexto(primera, 1, p_.Nodoj[i]);
        Spread1.PonerTexto(primera, 2, p_.NodoI[i]);
        Spread1.AgregarUnion(primera, 1, cuantas, 1);
        Spread1.AgregarUnion(primera, 2, cuantas, 1);
        for (int pos = 1; pos <= p_.NPiezas[i]; ++pos) {
            if (p_.PiezaClave(i, pos) <= 0) continue;
            const int cantidad = p_.PiezaCantidad(i, pos);
            const double unidades = p_.PiezaUnidades(i, pos);
            Spread1.PonerEntero(fila, 0, fila);
            Spread1.PonerTexto(fila, 3, p_.PiezaNombre(i, pos));
            if (cantidad != 0) Spread1.PonerEntero(fila, 4, cantidad);
            NumeroOBlanco(Spread1, fila, 5, unidades, 2);
            NumeroOBlanco(Spread1, fila, 6, RoundNivo(cantidad * unidades, 2), 2);
            ++fila;
        }
        if (fila == primera) Spread1.PonerEntero(fila++, 0, primera);
        NumeroOBlanco(Spread1, primera, 7, p_.UnidadesAcumuladas[i], 2);
        Spread1.PonerNumero(primera, 8, p_.Gasto[i], 2);
        Spread1.PonerEntero(primera, 9, i);
    }
}

bool AnalisisRed::ColoqueLongitudEquivalente() {
    if (!CalcularLongitudes(p_, s_, d_)) {
        Spread2.Vaciar();
        return false;
    }
    const int n = p_.NumeroRamales;
    FilasRamal.Redim(n);
    PrimeraFilaLongitudes.Redim(n);
    auto conexiones = [&](int i) {
        int k = 0;
        for (int pos = 1; pos <= p_.NConexiones[i]; ++pos)
            if (p_.ConexionClave(i, pos) > 0) ++k;
        return k;
    };
    int filas = 0;
    for (int i = 1; i <= n; ++i) {
        // A negative reduction is in the total but shows no row.
        FilasRamal[i] = std::max(conexiones(i), 1) + (p_.LongitudReduccion[i] > 0.0 ? 1 : 0);
        filas += FilasRamal[i];
    }
    Reiniciar(Spread2, filas);

    int fila = 1;
    for (int i = 1; i <= n; ++i) {
        const int primera = fila;
        PrimeraFilaLongitudes[i] = primera;
        Spread2.PonerTexto(primera, 1, p_.NodoI[i]);
        Spread2.PonerTexto(primera, 2, p_.Nodoj[i]);
        Spread2.PonerTexto(primera, 4, ConPulgada(p_.Predimensionado[i]));
        for (int c : {1, 2, 4}) Spread2.AgregarUnion(primera, c, FilasRamal[i], 1);
        double total = 0.0;
        for (int pos = 1; pos <= p_.NConexiones[i]; ++pos) {
            if (p_.ConexionClave(i, pos) <= 0) continue;
            const int cantidad = p_.ConexionCantidad(i, pos);
            const double longitud = p_.LongitudConexion(i, pos);
            const double subtotal = RoundNivo(cantidad * longitud, 2);
            Spread2.PonerTexto(fila, 3, p_.ConexionNombre(i, pos));
            if (cantidad != 0) Spread2.PonerEntero(fila, 5, cantidad);
            NumeroOBlanco(Spread2, fila, 6, longitud, 2);
            NumeroOBlanco(Spread2, fila, 7, subtotal, 2);
            total += subtotal;
            ++fila;
        }
        if (fila == primera) ++fila;
        if (p_.LongitudReduccion[i] > 0.0) {
            const int anterior = p_.RamalAnterior[i];
            Spread2.PonerTexto(fila, 3, QStringLiteral("REDUCCIÓN DE ") + ConPulgada(p_.Predimensionado[anterior]) +
                                            QStringLiteral("  a  ") + ConPulgada(p_.Predimensionado[i]));
            Spread2.PonerNumero(fila, 7, p_.LongitudReduccion[i], 2);
            total += p_.LongitudReduccion[i];
            ++fila;
        }
        const int ultima = fila - 1;
        for (int f = primera; f <= ultima; ++f) Spread2.PonerEntero(f, 0, f);
        Spread2.PonerNumero(ultima, 8, total, 2);
        Spread2.PonerEntero(ultima, 9, i);
    }
    return true;
}

void AnalisisRed::ColoquePerdidasPresiones() {
    const int n = p_.NumeroRamales;
    p_.ValvulaAcumulada.Redim(p_.NumeroRamales + 1);
    for (int i = 1; i <= n; ++i)
        p_.ValvulaAcumulada[p_.NodoNumJ[i]] = p_.ValvulaR[i] + p_.ValvulaAcumulada[p_.NodoNumI[i]];

    // The valves upstream of the branch's start only, on purpose.
    double minimo = p_.PresionNodo[2];
    p_.NodoDesfaborable = p_.NodoNumJ[1];
    for (int i = 1; i <= n; ++i) {
        const double v = p_.PresionNodo[p_.NodoNumJ[i]] - p_.ValvulaAcumulada[p_.NodoNumI[i]];
        if (v < minimo) {
            minimo = v;
            p_.NodoDesfaborable = p_.NodoNumJ[i];
        }
    }

    Reiniciar(Spread3, n);
    for (int i = 1; i <= n; ++i) {
        const int ni = p_.NodoNumI[i], nj = p_.NodoNumJ[i];
        const double ai = p_.ValvulaAcumulada[ni], aj = p_.ValvulaAcumulada[nj];
        const double real = p_.longitudReal[i], equivalente = p_.LongitudEquivalenteRamal[i];
        const double cota = std::fabs(p_.CotaRelativa[p_.NumeroNodoJ[i]] - p_.CotaRelativa[p_.NumeroNodoI[i]]);
        const double presion = p_.PresionNodo[nj] - aj;
        Spread3.PonerEntero(i, 0, i);
        Spread3.PonerTexto(i, 1, p_.NodoI[i]);
        Spread3.PonerTexto(i, 2, p_.Nodoj[i]);
        Spread3.PonerNumero(i, 3, p_.Gasto[i], 2);
        Spread3.PonerTexto(i, 4, ConPulgada(p_.Predimensionado[i]));
        Spread3.PonerNumero(i, 5, real, 2);
        Spread3.PonerNumero(i, 6, equivalente, 2);
        Spread3.PonerNumero(i, 7, real + equivalente, 2);
        Spread3.PonerNumero(i, 8, p_.VelocidadAsumida[i], 2);
        Spread3.PonerNumero(i, 9, p_.PerdidaUnitaria[i], 4);
        Spread3.PonerNumero(i, 10, RoundNivo((equivalente + real) * p_.PerdidaUnitaria[i], 2), 2);
        Spread3.PonerNumero(i, 11, RoundNivo(p_.PresionNodo[ni] - ai, 2), 2);
        Spread3.PonerNumero(i, 12, RoundNivo(cota + p_.PresionNodo[ni] - ai, 2), 2);
        NumeroOBlanco(Spread3, i, 13, cota, 2);
        Spread3.PonerColorFondo(i, 13, cota == 0.0 ? ColorBlanco : ColoresAnalisis::DiferenciaCota);
        ColoqueValvula(i);
        Spread3.PonerNumero(i, 15, presion, 2);
        if (PresionNegativa(presion)) Spread3.PonerColorTexto(i, 15, ColorRojo);
        if (p_.OpcionPresionM && presion > p_.PresionM)
            Spread3.PonerColorFondo(i, 15, ColoresAnalisis::PresionMaxima);
        if (nj == p_.NodoDesfaborable) {
            Spread3.PonerColorFondo(i, 15, ColoresAnalisis::NodoDesfavorable);
            p_.NodoDesfaborableNombre = p_.Nodoj[i];
            p_.PresionDesfaborable = RoundNivo(presion, 2);
        }
    }
    if (RamalEditado != 0) {
        Spread3.PonerActiva(RamalEditado, 14);
        RamalEditado = 0;
    }
}

int AnalisisRed::NodosPresionNegativa() const {
    // One row per branch, and each branch ends at a node of its own.
    int n = 0;
    for (int f = 1; f <= Spread3.Filas(); ++f)
        if (PresionNegativa(Spread3.Valor(f, 15))) ++n;
    return n;
}

QString AnalisisRed::TextoPresionNegativa() const {
    if (!cadenaCompleta_) return QString();
    return QStringLiteral("Nodos con presión negativa: %1").arg(NodosPresionNegativa());
}
