#include "tank/Hidroneumatico.h"

#include "analysis/CargaProyecto.h"
#include "analysis/Gastos.h"
#include "analysis/Longitudes.h"
#include "analysis/Numeracion.h"
#include "analysis/Predimensionado.h"
#include "analysis/Presiones.h"
#include "base/Dialogos.h"
#include "base/Entero16.h"
#include "base/ErrorEjecucion.h"
#include "base/Nivo.h"
#include "model/ProyectoEdificio.h"
#include "shell/Sesion.h"
#include "shell/Titulos.h"

void ValoresPorDefectoTanque(DatosTanque& t) {
    t.Porcentaje = 50.0;
    t.Arranques = 6.0;
    t.Succion = 3.0;
    t.NumeroMetodo = 1;
    t.OpcionK = 1;
}

bool PrellenarDesdeProyecto(DatosTanque& t, ProyectoEdificio& p, Sesion& s, Dialogos& d) {
    if (p.OpcionPresionInicial != 0 || p.NumeroRamales < 1) return false;
    VerificarNumeracion(p, d);
    if (p.ErrorNumeracion != 0) return false;
    ColoqueGastos(p);
    t.Caudal = p.Gasto[1];
    Entero16 piezas;
    for (int i = 1; i <= p.NumeroRamales; ++i)
        for (int k = 1; k <= p.NPiezas[i]; ++k)
            if (p.PiezaClave(i, k) > 0) piezas += p.PiezaCantidad(i, k);
    t.NumeroPiezas = piezas.valor();
    CalcularPredimensionado(p);
    Predimensionado_Asumido(p, s);
    if (!CalcularLongitudes(p, s, d)) return false;
    CalcularPresiones(p);
    t.PresionMinima = p.PresionNodo[p.NodoNumI[1]];
    t.PresionMaxima = t.PresionMinima + 14.0;
    return true;
}

double FactorK(int opcionK) { return opcionK == 1 ? 0.1 : 0.054; }

QString TituloMetodo(int metodo) { return QStringLiteral("Cálculo por el Método ( %1 )").arg(metodo); }

QString TextoMetodoReporte(int metodo) {
    switch (metodo) {
    case 1: return QStringLiteral("El Caudal de Bombeo se asume como un Porcentaje del Caudal Máximo probable.");
    case 2: return QStringLiteral("El Caudal de Bombeo se calcula en función de la Dotación Diaria.");
    case 3:
        return QStringLiteral("El Caudal de Bombeo se calcula en función del Número de Piezas  Sanitarias y un "
                              "Factor de Consumo en Litros/Minuto (Método de Peerless)");
    default: return QString();
    }
}

ResultadoTanque CalcularTanque(const DatosTanque& t) {
    ResultadoTanque r;
    double q = 0.0;
    switch (t.NumeroMetodo) {
    case 1: q = t.Porcentaje * t.Caudal / 100.0; break;
    case 2: q = t.Dotacion * 10.0 / 86400.0; break;  // the factor 10 is the rule of this method
    case 3: q = t.NumeroPiezas * t.FactorPeerlees / 60.0; break;
    default: break;
    }
    if (t.NumeroMetodo >= 1 && t.NumeroMetodo <= 3) r.Titulo = TituloMetodo(t.NumeroMetodo);
    r.QB = q;
    const double k = FactorK(t.OpcionK);
    r.VolumenUtil = t.Arranques > 0.0 ? q * 0.25 * 3600.0 / t.Arranques : 0.0;
    // Gauge metres to absolute ones.
    const double razon = Dividir(t.PresionMinima + 10.0, t.PresionMaxima + 10.0);
    r.VolumenTotal = razon != 1.0 ? Dividir(r.VolumenUtil, (1.0 - razon) * (1.0 - k)) : 0.0;
    r.VolumenMinimo = r.VolumenTotal * 0.1;
    r.VolumenMaximo = r.VolumenMinimo + r.VolumenUtil;
    r.PotenciaBomba = (t.Succion + t.PresionMaxima) * q / 45.0;
    r.PotenciaMotor = r.PotenciaBomba * 1.44;
    return r;
}

QString RechazoPresiones(const DatosTanque& t) {
    if (t.PresionMaxima > t.PresionMinima) return QString();
    return QStringLiteral("La presión máxima debe ser mayor que la mínima.");
}

HabilitacionTanque HabilitacionMetodo(int metodo) {
    switch (metodo) {
    case 1: return {true, true, false, false, false, false};
    case 2: return {false, false, true, false, false, false};
    case 3: return {false, false, false, true, true, true};
    default: return {false, false, false, false, false, false};
    }
}

void Hidroneumatico::Cargar() {
    if (!Trim(s_.NombreProyecto).isEmpty()) PrellenarDesdeProyecto(Datos, p_, s_, d_);
    ValoresPorDefectoTanque(Datos);
}

bool Hidroneumatico::Abrir() {
    if (!AbrirOtroProyecto(p_, s_, d_)) return false;
    Caption = UCase(QStringLiteral("Resultado del Análisis     Proyecto: [ ") + s_.NombreProyecto +
                    QStringLiteral(" ]"));
    d_.CursorOcupado(true);
    Datos = DatosTanque();
    Datos.Porcentaje = Datos.Arranques = Datos.Succion = 0.0;
    try {
        PrellenarDesdeProyecto(Datos, p_, s_, d_);
    } catch (const ErrorEjecucion&) {
        // The new project stands: its boxes get their defaults and the
        // pointer comes back before the fault is shown.
        ValoresPorDefectoTanque(Datos);
        d_.CursorOcupado(false);
        throw;
    }
    ValoresPorDefectoTanque(Datos);
    d_.CursorOcupado(false);
    return true;
}

bool Hidroneumatico::Calcular() {
    const QString rechazo = RechazoPresiones(Datos);
    if (!rechazo.isEmpty())
        d_.MostrarMensaje(rechazo, QStringLiteral("Error en Datos del Sistema..."), TituloProyectoFontaria());
    return rechazo.isEmpty();
}

void Hidroneumatico::PonerFactorPeerlees(const QString& texto) {
    double v = 0.0;
    if (LeerNumero(texto, v)) Datos.FactorPeerlees = v;
}
