#include "analysis/AnalisisRed.h"

#include "analysis/CargaProyecto.h"
#include "analysis/EscrituraRamales.h"
#include "analysis/Gastos.h"
#include "analysis/Longitudes.h"
#include "analysis/Numeracion.h"
#include "analysis/Predimensionado.h"
#include "analysis/Presiones.h"
#include "base/Dialogos.h"
#include "base/Nivo.h"
#include "model/ArchivoEdificio.h"
#include "model/ProyectoEdificio.h"
#include "shell/Sesion.h"

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

const auto T = TipoCelda::Texto;
const auto N = TipoCelda::Numero;
const auto E = TipoCelda::Entero;

}  // namespace

AnalisisRed::AnalisisRed(ProyectoEdificio& p, Sesion& s, Dialogos& d) : p_(p), s_(s), d_(d) { ConfigurarSpread(); }

QString AnalisisRed::TituloPestana(int tab) {
    switch (tab) {
    case 1: return QStringLiteral("PREDIMENSIONADO");
    case 2: return QStringLiteral("UNIDADES DE GASTO");
    case 3: return QStringLiteral("LONGITUDES EQUIVALENTES");
    case 4: return QStringLiteral("PERDIDAS Y PRESIONES");
    default: return QString();
    }
}

std::vector<AyudaControl> AnalisisRed::AyudasControles() {
    auto t = [](const char* c, const char* titulo, const char* texto) {
        return AyudaControl{QString::fromUtf8(c), QString::fromUtf8(titulo), QString::fromUtf8(texto)};
    };
    return {
        t("LSButton6", "Actualizar las Pérdidas y Presiones",
          "Actualizar las Pérdidas y Presiones Disponibles \nFijando una Altura del Tanque Elevado. "),
        t("LSButton7", "Altura del Tanque Elevado", "Calcular la Altura del Inicial del Tanque Elevado. "),
        t("LSButton2", "Diámetro de los Ramales", "Iguala los diámetros asumidos con \nlos diámetros de cálculo. "),
        t("LSButton4", "", "Exportar el análisis de la red a Excel. "),
        t("LSButton1", "", " Retorno "),
        t("LSButton3", "", "Imprimir los resultados del análisis de la red. "),
        t("LSButton5", "", "Abre un proyecto existente. "),
        t("LSButton8", "", "Listado de piezas y conexiones de la red. "),
        t("LSButton9", "", "Editar el comentario de los ramales. "),
        t("LSButton11", "", "Edita los datos del Red. "),
    };
}

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

// ---------------------------------------------------------------- grids

void AnalisisRed::ColoresPredimensionado(int i) {
    Spread4.PonerColorFondo(i, 7, p_.Predimensionado[i] != p_.DiametroCalculoTexto[i]
                                      ? ColoresAnalisis::DiametroCambiado
                                      : ColorBlanco);
    const double v = p_.VelocidadAsumida[i];
    Spread4.PonerColorTexto(i, 8, v >= 0.6 && v <= 3.5 ? ColorNegro : ColorRojo);
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
        Spread4.PonerTexto(i, 7, ConPulgada(p_.Predimensionado[i]));
        Spread4.PonerNumero(i, 8, p_.VelocidadAsumida[i], 2);
        Spread4.PonerTexto(i, 9, p_.RamalComentario[i]);
        ColoresPredimensionado(i);
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
        NumeroOBlanco(Spread3, i, 14, p_.ValvulaR[i], 2);
        Spread3.PonerColorFondo(i, 14, p_.ValvulaR[i] == 0.0 ? ColorBlanco : ColoresAnalisis::Valvula);
        Spread3.PonerNumero(i, 15, presion, 2);
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

// ---------------------------------------------------------------- chain

bool AnalisisRed::EjecutarCadena() {
    cadenaCompleta_ = false;
    ColoqueGastos(p_);
    CalcularPredimensionado(p_);
    Predimensionado_Asumido(p_, s_);
    ColoquePredimensionado();
    ColoqueUnidadesGasto();
    if (!ColoqueLongitudEquivalente()) {
        Spread3.Vaciar();
        return false;
    }
    CalcularPresiones(p_);
    ColoquePerdidasPresiones();
    if (p_.OpcionPresionInicial == 2) {
        Double1 = p_.longitudReal[1];
        Frame3Visible = true;
    }
    cadenaCompleta_ = true;
    return true;
}

void AnalisisRed::VaciarGrids() {
    for (Grid* g : {&Spread4, &Spread1, &Spread2, &Spread3}) g->Vaciar();
    cadenaCompleta_ = false;
}

void AnalisisRed::PonerCaption(bool desdeEstaPantalla) {
    Caption = QStringLiteral("Resultado del Análisis  ") + QString(desdeEstaPantalla ? 3 : 0, QLatin1Char(' ')) +
              QStringLiteral("Proyecto: [ ") + s_.NombreProyecto + QStringLiteral(" ]");
}

void AnalisisRed::Cargar() {
    PonerCaption(false);
    VaciarGrids();  // first, so the configuration has no old rows to carry
    ConfigurarSpread();
    Frame3Visible = false;
    if (p_.NumeroRamales > 0) EjecutarCadena();
    SSPanel1 = QString::number(int(p_.NumeroRamales));
    Tab = 1;
}

void AnalisisRed::CambiarTab(int tab) {
    if (tab >= 1 && tab <= 4) Tab = tab;
}

void AnalisisRed::Reconstruir() {
    VaciarGrids();
    Frame3Visible = false;
    if (p_.NumeroRamales > 0) {
        // A numbering fault shows its message and the rebuild goes on with
        // the node numbers as they stand, so the engineer sees what the list
        // gives; only the command refuses a broken list before the screen.
        VerificarNumeracion(p_, d_);
        EjecutarCadena();
    }
    SSPanel1 = QString::number(int(p_.NumeroRamales));
}

// ---------------------------------------------------------------- edits

void AnalisisRed::EscribirCampoRamal(const char* columna, int ramal, const QString& texto) {
    const long long fila = FilaDeRamal(s_.ConexionProyecto, ramal);
    if (fila < 0) return;
    EscrituraRamales escritura(s_.ConexionProyecto, columna);
    escritura.Escribir(fila, texto);
    escritura.Confirmar();
}

void AnalisisRed::EscribirCampoRamal(const char* columna, int ramal, double valor) {
    const long long fila = FilaDeRamal(s_.ConexionProyecto, ramal);
    if (fila < 0) return;
    EscrituraRamales escritura(s_.ConexionProyecto, columna);
    escritura.Escribir(fila, valor);
    escritura.Confirmar();
}

void AnalisisRed::EditarDiametroAsumido(int fila, const QString& texto) {
    if (fila < 1 || fila > Spread4.Filas() || fila > p_.NumeroRamales) return;
    QString nombre = Trim(texto);
    if (nombre.isEmpty()) return;
    if (nombre.endsWith(MarcaPulgada())) nombre.chop(1);
    p_.Predimensionado[fila] = nombre;
    ConvertirDiametro(p_, fila, true);
    ActualizarVelocidad(p_, fila, true);
    Spread4.PonerTexto(fila, 7, ConPulgada(p_.Predimensionado[fila]));
    Spread4.PonerNumero(fila, 8, p_.VelocidadAsumida[fila], 2);
    ColoresPredimensionado(fila);
    EscribirCampoRamal("Predimensionado", fila, p_.Predimensionado[fila]);
    // Flows and the first two tabs stay as they are.
    cadenaCompleta_ = false;
    if (!ColoqueLongitudEquivalente()) {
        Spread3.Vaciar();
        return;
    }
    CalcularPresiones(p_);
    ColoquePerdidasPresiones();
    cadenaCompleta_ = true;
}

bool AnalisisRed::EditarValvulaReductora(int fila, const QString& texto) {
    if (fila < 1 || fila > Spread3.Filas()) return false;
    double valor = 0.0;
    if (!Trim(texto).isEmpty() && !LeerNumeroOAvisar(d_, texto, valor)) {
        NumeroOBlanco(Spread3, fila, 14, p_.ValvulaR[fila], 2);
        return false;
    }
    EditarValvulaReductora(fila, valor);
    return true;
}

void AnalisisRed::NumeroRechazado(const QString& texto) {
    // A number out of the column's bounds stays silent, as the cell always was.
    double valor = 0.0;
    LeerNumeroOAvisar(d_, texto, valor);
}

void AnalisisRed::EditarValvulaReductora(int fila, double valor) {
    if (!cadenaCompleta_ || fila < 1 || fila > p_.NumeroRamales) return;
    p_.ValvulaR[fila] = valor;
    RamalEditado = fila;
    CalcularPresiones(p_);
    ColoquePerdidasPresiones();
    EscribirCampoRamal("ValvulaR", fila, valor);
}

bool AnalisisRed::LSButton2_Click() {
    if (p_.NumeroRamales < 1 || Spread4.Filas() < p_.NumeroRamales) return false;
    const int r = d_.MostrarMensaje(QStringLiteral("Igualar el Diámetro Asumido en los Ramales al Diámetro de Cálculo?"),
                                    QStringLiteral("Diámetros de los Ramales..."), TituloProyectoFontaria(),
                                    Botones::SiNo, 0);
    if (r != Respuesta::Si) return false;
    const auto filas = LeerColumnaRamales(s_.ConexionProyecto, "Predimensionado");
    EscrituraRamales escritura(s_.ConexionProyecto, "Predimensionado");
    for (int i = 1; i <= p_.NumeroRamales; ++i) {
        p_.Predimensionado[i] = p_.DiametroCalculoTexto[i];
        p_.DiametroAsumido[i] = p_.DiametroCalculo[i];
        p_.VelocidadAsumida[i] = p_.VelocidadCalculo[i];
        if (size_t(i) <= filas.size() && ComoTexto(filas[size_t(i) - 1].second) != p_.Predimensionado[i])
            escritura.Escribir(filas[size_t(i) - 1].first, p_.Predimensionado[i]);
    }
    escritura.Confirmar();
    ColoquePredimensionado();
    cadenaCompleta_ = false;
    if (!ColoqueLongitudEquivalente()) {
        Spread3.Vaciar();
        return true;
    }
    CalcularPresiones(p_);
    ColoquePerdidasPresiones();
    cadenaCompleta_ = true;
    return true;
}

void AnalisisRed::LSButton6_Click() {
    if (!cadenaCompleta_) return;
    const double h = Double1;
    const int n = p_.NumeroRamales;
    p_.NodoNumI[n + 1] = 0;
    p_.PresionNodo[p_.NodoNumI[1]] = 0.0;
    p_.PerdidaRamal[1] = RoundNivo((h + p_.LongitudEquivalenteRamal[1]) * p_.PerdidaUnitaria[1], 2);
    p_.longitudReal[1] = h;
    p_.CotaRelativa[p_.NodoNumI[1]] = h;
    p_.CargaOrigen = 0.0;
    BarridoPresiones(p_, 0.0, 2);
    SumaTrayecto(p_, RamalDesfavorable(p_));
    ColoquePerdidasPresiones();
}

void AnalisisRed::LSButton7_Click() {
    if (!cadenaCompleta_) return;
    // The second run starts from the height of the first.
    for (int vez = 0; vez < 2; ++vez) {
        CalcularPresiones(p_);
        ColoquePerdidasPresiones();
    }
    Double1 = p_.longitudReal[1];
}

bool AnalisisRed::LSButton5_Click() {
    if (!AbrirOtroProyecto(p_, s_, d_)) return false;
    Reconstruir();
    PonerCaption(true);
    return true;
}

void AnalisisRed::RetornoEditorRamales(bool salvado) {
    if (!salvado) return;
    LeerProyecto(p_, s_);
    Reconstruir();
}
