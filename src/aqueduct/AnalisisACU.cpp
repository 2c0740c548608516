#include "aqueduct/AnalisisACU.h"

#include "aqueduct/ArchivoAcueducto.h"
#include "aqueduct/CasosDemanda.h"
#include "aqueduct/FormatoGrid.h"
#include "aqueduct/ProyectoAcueducto.h"
#include "aqueduct/SolverMalla.h"
#include "base/Dialogos.h"
#include "base/Nivo.h"
#include "entry/BuscarPartida.h"
#include "shell/Sesion.h"

#include <algorithm>
#include <cmath>


namespace {

enum ColRamal { RNo, RI, RJ, RLongitud, RLongitudCalculo, RDiametro, RC, RCaudal, RVelocidad, RPerdidas, RHF };
enum ColNodo { NNo, NNodo, NTerreno, NReal, NCalculo, NPiezometrica, NPresion, NConectados, NDescripcion };

// Three significant figures, however small the imbalance: a fixed number of
// decimals would show most of them as 0.
QString TresCifras(double v) {
    const double a = std::fabs(v);
    const int decimales = a > 0 ? std::clamp(2 - int(std::floor(std::log10(a))), 0, 15) : 0;
    return Formato(v, decimales > 0 ? QStringLiteral("#,##0.") + QString(decimales, QLatin1Char('0'))
                                    : QStringLiteral("#,##0"));
}

}  // namespace

QStringList LineasSinConvergencia(const ProyectoAcueducto& p) {
    QStringList lineas;
    const size_t pasos = p.Convergio.size();
    for (size_t i = 0; i < pasos; ++i) {
        if (p.Convergio[i]) continue;
        const QString paso = pasos < 2 ? QString()
                             : i == 0  ? QStringLiteral(" sin el caudal de incendio")
                                       : QStringLiteral(" con el caudal de incendio");
        const int iteraciones = i < p.Iteraciones.size() ? p.Iteraciones[i] : 0;
        const double desbalance = i < p.Desbalance.size() ? p.Desbalance[i] : 0.0;
        lineas << QStringLiteral("El cálculo%1 no convergió: %2 iteraciones, desbalance medio %3 m³/s")
                      .arg(paso, Formato(iteraciones, QStringLiteral("#,##0")), TresCifras(desbalance));
    }
    return lineas;
}

QString MensajeSinTanque(const QString& nombreProyecto) {
    return QStringLiteral("Proyecto: ") + nombreProyecto +
           QStringLiteral("\n¡No se Puede Calcular la Malla sin la Existencia\nde al menos una Bomba ó un Estanque!");
}

QString MensajeErrorAnalisis(const QString& nombreProyecto, const QString& falla) {
    return QStringLiteral("Proyecto: ") + nombreProyecto +
           QStringLiteral("\n¡Existe un Error al Realizar el Análisis de la Red!\nRevise los Datos del Proyecto...") +
           (falla.isEmpty() ? QString() : QStringLiteral("\n") + falla);
}

AnalisisACU::AnalisisACU(ProyectoAcueducto& p, Sesion& s, Dialogos& d) : p_(p), s_(s), d_(d) {}

QString AnalisisACU::Titulo() const { return TituloAcueducto(s_.NombreProyectoACU); }

void AnalisisACU::ConfigurarSpread() {
    Spread1 = Grid(RHF);
    Spread1.PonerEncabezado(1, RNo, QStringLiteral("Ramal"));
    Spread1.PonerEncabezado(2, RNo, QStringLiteral("No"));
    Spread1.PonerEncabezado(2, RI, QStringLiteral("( I )"));
    Spread1.PonerEncabezado(2, RJ, QStringLiteral("( J )"));
    Spread1.PonerEncabezado(1, RLongitud, QStringLiteral("Longitud"));
    Spread1.PonerEncabezado(2, RLongitud, QStringLiteral("Real m"));
    Spread1.PonerEncabezado(1, RLongitudCalculo, QStringLiteral("Longitud"));
    Spread1.PonerEncabezado(2, RLongitudCalculo, QStringLiteral("Cálculo m"));
    Spread1.UnirEncabezado(1, RLongitud, 1, 2);
    Spread1.PonerEncabezado(1, RDiametro, QStringLiteral("Diámetro"));
    Spread1.PonerEncabezado(2, RDiametro, p_.OpcionDiametro == 2   ? QStringLiteral("mm")
                                          : p_.OpcionDiametro == 3 ? QStringLiteral("plg")
                                                                   : QString());
    Spread1.PonerEncabezados(RC, QStringLiteral("Hansen-W"));
    Spread1.PonerEncabezado(1, RCaudal, QStringLiteral("Caudal "));
    Spread1.PonerEncabezado(2, RCaudal, QStringLiteral("lps"));
    Spread1.PonerEncabezado(1, RVelocidad, QStringLiteral("Velocidad"));
    Spread1.PonerEncabezado(2, RVelocidad, QStringLiteral("m/s"));
    Spread1.PonerEncabezados(RPerdidas, QStringLiteral("Pérdidas"));
    Spread1.PonerEncabezados(RHF, QStringLiteral("HF / 1000"));
    FormatoColumna(Spread1, RI, TipoCelda::Texto, 0, 12);
    FormatoColumna(Spread1, RJ, TipoCelda::Texto, 0, 12);
    FormatoColumna(Spread1, RLongitud, TipoCelda::Numero, 2, 9);
    FormatoColumna(Spread1, RLongitudCalculo, TipoCelda::Numero, 2, 9);
    FormatoColumna(Spread1, RDiametro, TipoCelda::Numero, 3, 9);
    FormatoColumna(Spread1, RC, TipoCelda::Entero, 0, 8);
    FormatoColumna(Spread1, RCaudal, TipoCelda::Numero, 3, 9);
    FormatoColumna(Spread1, RVelocidad, TipoCelda::Numero, 3, 9);
    FormatoColumna(Spread1, RPerdidas, TipoCelda::Numero, 3, 9);
    FormatoColumna(Spread1, RHF, TipoCelda::Numero, 3, 9);

    Spread2 = Grid(NDescripcion);
    Spread2.PonerEncabezados(NNo, QStringLiteral("No"));
    Spread2.PonerEncabezados(NNodo, QStringLiteral("Nodo"));
    Spread2.PonerEncabezados(NTerreno, QStringLiteral("Cota del\nTerreno m"));
    Spread2.PonerEncabezados(NReal, QStringLiteral("Demanda\nReal m"));
    Spread2.PonerEncabezados(NCalculo, QStringLiteral("Demanda de\nCálculo m"));
    Spread2.PonerEncabezados(NPiezometrica, QStringLiteral("Cota\nPiezométrica m"));
    Spread2.PonerEncabezados(NPresion, QStringLiteral("Presión en\nel Nodo m"));
    Spread2.PonerEncabezados(NConectados, QStringLiteral("Ramales Conectados"));
    Spread2.PonerEncabezados(NDescripcion, QStringLiteral("Descripción"));
    FormatoColumna(Spread2, NNodo, TipoCelda::Texto, 0, 12);
    FormatoColumna(Spread2, NTerreno, TipoCelda::Numero, 2, 9);
    FormatoColumna(Spread2, NReal, TipoCelda::Numero, 3, 10);
    FormatoColumna(Spread2, NCalculo, TipoCelda::Numero, 3, 12);
    FormatoColumna(Spread2, NPiezometrica, TipoCelda::Numero, 2, 14);
    FormatoColumna(Spread2, NPresion, TipoCelda::Numero, 2, 10);
    FormatoColumna(Spread2, NConectados, TipoCelda::Entero, 0, 12);
    FormatoColumna(Spread2, NDescripcion, TipoCelda::Texto, 0, 40);
}

void AnalisisACU::LLeneCombo() {
    llenando_ = true;
    Combo1 = FilasCasos(p_);
    FilaCombo = 0;
    p_.CasoDemanda = 1;
    llenando_ = false;
}

bool AnalisisACU::VerificaTanque() {
    tanque_ = false;
    for (int n = 1; n <= p_.NumeroNodosACU; ++n)
        if (p_.CotaBombaEstanque.Leer(n) != 0) tanque_ = true;
    return tanque_;
}

void AnalisisACU::Analizar() {
    d_.CursorOcupado(true);
    AnalizarMalla(p_, s_);
    d_.CursorOcupado(false);
}

// The run on load and after another project is opened: a fresh answer.
void AnalisisACU::EstadoInicial() {
    ConfigurarSpread();
    LLeneCombo();
    p_.ErrorAnalisis = 0;
    VerificaTanque();
    if (tanque_) {
        Analizar();
        if (p_.ErrorAnalisis != 1) {
            ColoquePantalla();
            LRamal = QStringLiteral("Ramal 1");
            if (Spread2.Filas() > 0) MoverNodo(1);
        }
    }
    Spread1.PonerActiva(1, Spread1.ColumnaActiva());
    Spread2.PonerActiva(1, Spread2.ColumnaActiva());
}

void AnalisisACU::Cargar() {
    primeraActivacion_ = true;
    cerrar = false;
    EstadoInicial();
}

void AnalisisACU::Vaciar() {
    Spread1.PonerFilas(0);
    Spread2.PonerFilas(0);
    AvisoConvergencia.clear();
}

bool AnalisisACU::MostrarFalla() {
    if (!tanque_) {
        Vaciar();
        d_.MostrarMensaje(MensajeSinTanque(s_.NombreProyectoACU), QStringLiteral("Error en Datos del Proyecto..."),
                          TituloDatosAcueducto());
        cerrar = true;
    } else if (p_.ErrorAnalisis == 1) {
        Vaciar();
        d_.MostrarMensaje(MensajeErrorAnalisis(s_.NombreProyectoACU, p_.DetalleError),
                          QStringLiteral("Error al Realizar el Cálculo..."), TituloDatosAcueducto());
        cerrar = true;
    }
    return cerrar;
}

bool AnalisisACU::PrimeraActivacion() {
    if (!primeraActivacion_) return cerrar;
    primeraActivacion_ = false;
    return MostrarFalla();
}

void AnalisisACU::LlenarRamales() {
    Grid& g = Spread1;
    g.PonerFilas(p_.NumeroTramos);
    for (int t = 1; t <= p_.NumeroTramos; ++t) {
        g.PonerEntero(t, RNo, t);
        g.PonerTexto(t, RI, p_.Inicio[t]);
        g.PonerTexto(t, RJ, p_.Final[t]);
        g.PonerNumero(t, RLongitud, p_.Longitud[t], 2);
        g.PonerNumero(t, RLongitudCalculo, p_.LongitudCalculo.Leer(t), 2);
        g.PonerNumero(t, RDiametro, p_.Diametro[t], 3);
        g.PonerEntero(t, RC, p_.CoeficienteC[t]);
        const double q = p_.Caudal.Leer(t);
        if (RoundNivo(q, 3) == 0)
            g.PonerVacio(t, RCaudal);
        else
            g.PonerNumero(t, RCaudal, q, 3);
        g.PonerNumero(t, RVelocidad, p_.Velocidad.Leer(t), 3);
        g.PonerNumero(t, RPerdidas, p_.Perdidas.Leer(t), 3);
        g.PonerNumero(t, RHF, PerdidaUnitaria(p_, t), 3);
    }
}

void AnalisisACU::LlenarNodos() {
    Grid& g = Spread2;
    g.PonerFilas(p_.NumeroNodosACU);
    for (int n = 1; n <= p_.NumeroNodosACU; ++n) {
        g.PonerEntero(n, NNo, n);
        g.PonerTexto(n, NNodo, p_.Nodos.Leer(n));
        g.PonerNumero(n, NTerreno, p_.CotaTerreno.Leer(n), 2);
        g.PonerNumero(n, NReal, p_.DemandaReal.Leer(n) * 1000.0, 3);
        g.PonerNumero(n, NCalculo, p_.DemandaCalculo.Leer(n), 3);
        const double cota = p_.CotaPiezometrica.Leer(n);
        if (cota == 0)
            g.PonerVacio(n, NPiezometrica);
        else
            g.PonerNumero(n, NPiezometrica, cota, 2);
        g.PonerNumero(n, NPresion, PresionNodo(p_, n), 2);
        g.PonerEntero(n, NConectados, p_.TramosConectados.Leer(n));
        g.PonerTexto(n, NDescripcion, p_.NombreTramos.Leer(n));
        // The lowest pressure is marked with red figures on its background.
        const bool minimo = n == p_.NodoMinimo, maximo = n == p_.NodoMaximo;
        g.PonerColorFondo(n, NPresion, minimo ? ColorPresionMinima : maximo ? ColorPresionMaxima : ColorBlanco);
        g.PonerColorTexto(n, NPresion, minimo ? ColorRojo : SinColor);
    }
}

void AnalisisACU::ColoquePantalla() {
    LlenarRamales();
    LlenarNodos();
    AvisoConvergencia = LineasSinConvergencia(p_).join(QLatin1Char('\n'));
}

void AnalisisACU::CambiarCaso(int fila) {
    if (llenando_ || fila < 0 || fila >= Combo1.size()) return;
    FilaCombo = fila;
    p_.CasoDemanda = uint8_t(fila + 1);
    // Each case is a fresh answer; a failed one leaves the grids as they were.
    p_.ErrorAnalisis = 0;
    Analizar();
    if (p_.ErrorAnalisis != 1) ColoquePantalla();
}

void AnalisisACU::CorregirDireccion() {
    Pestana = 0;
    if (::CorregirDireccion(p_, s_, d_) == Correccion::Hecha && p_.ErrorAnalisis != 1) ColoquePantalla();
}

void AnalisisACU::AntesDeEditarRamales() { s_.EdicionDesdeAnalisis = 1; }

void AnalisisACU::DespuesDeEditarRamales(bool proyectoSalvado) {
    if (proyectoSalvado) {
        p_.ErrorAnalisis = 0;
        VerificaTanque();
        if (tanque_) {
            Analizar();
            if (p_.ErrorAnalisis != 1) {
                ColoquePantalla();
                LRamal = QStringLiteral("Ramal 1");
            }
        }
    }
    s_.EdicionDesdeAnalisis = 0;
    MostrarFalla();
}

void AnalisisACU::AbrirProyecto() {
    if (!AbrirOtroProyectoACU(p_, s_, d_)) return;
    EstadoInicial();
    MostrarFalla();
}

void AnalisisACU::BuscarRamal(int numero, bool aceptado) {
    BuscarPartida b(numero);
    b.Aceptado = aceptado;
    if (const auto fila = FilaBuscada(b, Spread1.FilaActiva(), Spread1.Filas())) MoverRamal(*fila);
}

void AnalisisACU::MoverRamal(int fila) {
    Spread1.PonerActiva(fila, Spread1.ColumnaActiva());
    LRamal = QStringLiteral("Ramal ") + QString::number(fila);
}

void AnalisisACU::MoverNodo(int fila) {
    Spread2.PonerActiva(fila, Spread2.ColumnaActiva());
    if (fila >= 1 && fila <= Spread2.Filas()) LNodo = Trim(Spread2.Texto(fila, NNodo));
}
