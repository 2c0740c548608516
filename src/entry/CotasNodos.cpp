#include "entry/CotasNodos.h"

#include "base/Dialogos.h"
#include "base/Nivo.h"
#include "model/ProyectoEdificio.h"
#include "shell/Sesion.h"
#include "shell/Titulos.h"

#include <algorithm>

namespace {
constexpr int ColumnaCota = 2;
constexpr double CotaMaxima = 9999999999.99;
constexpr int ColorNodo = 0xE0FFFF;   // the node names, pale yellow
constexpr int ColorTanque = 0xC0C0C0; // the tank's level, fixed by the analysis
const char* const TextoBloque =
    "Entre la Cota de Piso de los Nodos Seleccionados:     \n\n\n\n\n(Cota con 2 Decimales)";
}  // namespace

CotasNodos::CotasNodos(ProyectoEdificio& p, Sesion& s, Dialogos& d) : Spread1(2), p_(p), s_(s), d_(d) {
    Spread1.PonerEncabezados(1, QStringLiteral("Nodo"));
    Spread1.PonerEncabezados(2, QStringLiteral("Cotas de"), QStringLiteral("Piso (m)"));
    Spread1.Col(1).tipo = TipoCelda::Texto;
    Spread1.Col(1).ancho = 14;
    Columna& cota = Spread1.Col(ColumnaCota);
    cota.tipo = TipoCelda::Numero;
    cota.decimales = 2;
    cota.ancho = 14;
    cota.bloqueada = false;
    cota.minimo = -CotaMaxima;
    cota.maximo = CotaMaxima;
}

QString CotasNodos::Titulo() { return QStringLiteral("Cotas de Piso de los Nodos"); }
QString CotasNodos::TipFijar() { return QStringLiteral("Fijar las cotas de piso de los nodos. "); }

bool CotasNodos::TanqueElevado() const { return p_.OpcionPresionInicial >= 2; }

void CotasNodos::Cargar() {
    const int ramales = p_.NumeroRamales;
    p_.NumeroNodos = ramales + 1;
    const int nodos = p_.NumeroNodos;
    p_.NodoNombre.RedimPreserve(nodos);
    p_.CotaPiso.RedimPreserve(nodos);
    // One slot per branch end, in branch order, whatever the tree's shape.
    p_.NodoNombre[1] = p_.NodoI.Leer(1);
    for (int k = 1; k <= ramales; ++k) p_.NodoNombre[k + 1] = p_.Nodoj.Leer(k);

    Spread1.Vaciar();
    Spread1.PonerFilas(nodos);
    // The tank's cell is laid out first; the fill then shows its level.
    if (TanqueElevado() && nodos >= 1) {
        Spread1.PonerTexto(1, ColumnaCota, QStringLiteral("H. Tanque"));
        Spread1.Bloquear(1, ColumnaCota, true);
        Spread1.PonerColorFondo(1, ColumnaCota, ColorTanque);
    }
    for (int f = 1; f <= nodos; ++f) {
        Spread1.PonerTexto(f, 1, p_.NodoNombre[f]);
        Spread1.PonerColorFondo(f, 1, ColorNodo);
        Spread1.PonerNumero(f, ColumnaCota, p_.CotaPiso[f], 2);
    }
    Spread1.PonerActiva(TanqueElevado() && nodos >= 2 ? 2 : 1, ColumnaCota);
    modificado_ = false;
}

int CotasNodos::FilaPermitida(int fila) const {
    return fila == 1 && p_.OpcionPresionInicial == 2 && Spread1.Filas() >= 2 ? 2 : fila;
}

bool CotasNodos::EditarCelda(int fila, int columna, const QString& texto) {
    if (columna != ColumnaCota || fila < 1 || fila > Spread1.Filas() || Spread1.EstaBloqueada(fila, columna))
        return false;
    // An emptied cell is a level of 0, as the grid shows it.
    double v = 0.0;
    if (!Trim(texto).isEmpty() && !LeerNumeroOAvisar(d_, texto, v)) return false;
    if (v < -CotaMaxima || v > CotaMaxima) {
        NumeroRechazado(texto);
        return false;
    }
    Spread1.PonerNumero(fila, columna, v, 2);
    modificado_ = true;
    return true;
}

void CotasNodos::NumeroRechazado(const QString& texto) {
    double v = 0.0;
    if (!LeerNumeroOAvisar(d_, texto, v)) return;
    MostrarNumeroRechazado(d_, QStringLiteral("¡Debe Entrar un Número entre %1 y %2!")
                                   .arg(Formato(-CotaMaxima, QStringLiteral("#,##0.00")),
                                        Formato(CotaMaxima, QStringLiteral("#,##0.00"))));
}

bool CotasNodos::LlenarBloque(int fila1, int fila2, int columna1, int columna2) {
    if (columna1 != ColumnaCota || columna2 != ColumnaCota || Spread1.Filas() == 0) return false;
    const int desde = std::clamp(std::min(fila1, fila2), 1, Spread1.Filas());
    const int hasta = std::clamp(std::max(fila1, fila2), 1, Spread1.Filas());
    for (;;) {
        const auto respuesta = d_.PedirTexto(QString::fromUtf8(TextoBloque),
                                             QStringLiteral("Cota de Piso de losa Nodos"));
        if (!respuesta || Trim(*respuesta).isEmpty()) return true;
        const NumeroLeido n = LeerNumeroTecleado(*respuesta);
        if (!n.valido || n.valor < -CotaMaxima || n.valor > CotaMaxima) {
            d_.MostrarMensaje(QStringLiteral("Debe entrar un Número..."), QStringLiteral("Error en Cotas de Piso..."),
                              TituloProyectoFontaria());
            continue;
        }
        // The tank's row too, when the block takes it: only the cursor avoids it.
        for (int f = desde; f <= hasta; ++f) Spread1.PonerNumero(f, ColumnaCota, n.valor, 2);
        modificado_ = true;
        return true;
    }
}

void CotasNodos::SalvarCotas() {
    bool cambio = false;
    for (int f = 1; f <= Spread1.Filas() && f <= p_.CotaPiso.Ubound(); ++f) {
        const double v = Spread1.Valor(f, ColumnaCota);
        if (p_.CotaPiso[f] != v) cambio = true;
        p_.CotaPiso[f] = v;
    }
    // The levels reach the file with the project's next save; the editor's
    // closing must know there is one to make.
    if (cambio) s_.ProyectoModificado = true;
    modificado_ = false;
}

void CotasNodos::Fijar() { SalvarCotas(); }

bool CotasNodos::Cancelar() {
    if (!modificado_) return true;
    const int r = d_.MostrarMensaje(
        QStringLiteral("Las Cotas de Piso han Sido Modificadas...\n¿Desea Salvar los Cambios Realizados?"),
        QStringLiteral("Salvar las Cotas de Piso..."), TituloProyectoFontaria(), Botones::SiNoCancelar, 1);
    if (r == Respuesta::Cancelar) return false;
    if (r == Respuesta::Si) SalvarCotas();
    return true;
}
