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

QStringList ResultadosHidro::Etiquetas() {
    return {QStringLiteral("Caudal de Bombeo (l/s):"),      QStringLiteral("Voumen Total del Tanque (lts):"),
            QStringLiteral("Volumen Mínimo de Agua (lts):"), QStringLiteral("Volumen Util de Agua (lts):"),
            QStringLiteral("Voumen Máximo de Agua (lts):"),  QStringLiteral("Potencia de la Bomba (hp):"),
            QStringLiteral("Potencia del Motor (hp):")};
}

ResultadosHidro::ResultadosHidro(const DatosTanque& datos) : Resultado(CalcularTanque(datos)) {
    const ResultadoTanque& r = Resultado;
    Marco = r.Titulo;
    for (double v : {r.QB, r.VolumenTotal, r.VolumenMinimo, r.VolumenUtil, r.VolumenMaximo, r.PotenciaBomba,
                     r.PotenciaMotor})
        Valores << Formato(v, QStringLiteral("#,##0.00"));
    auto porcentaje = [&](double volumen) {
        const double v = r.VolumenTotal > 0.0 ? volumen * 100.0 / r.VolumenTotal : 0.0;
        return Formato(v, QStringLiteral("0.00")) + QLatin1Char('%');
    };
    PorcentajeUtil = porcentaje(r.VolumenUtil);
    PorcentajeMaximo = porcentaje(r.VolumenMaximo);
}

Grid TablaPeerlees() {
    static const char* clases[6] = {
        "Edificios de Apartamentos, Hoteles Residenciales y Viviendas",
        "Hoteles Comerciales, Clubs",
        "Hospitales",
        "Edificios de Oficinas",
        "Escuelas",
        "Edificios Comerciales, Tiendas",
    };
    static const char* rangos[7] = {"Hasta 30 Piezas",     "De 31 a 75 Piezas",    "De 76 a 150 Piezas",
                                    "De 151 a 300 Piezas", "De 301 a 600 Piezas",  "De 601 a 1000 Piezas",
                                    "Más de 1000 Piezas"};
    static const double factores[6][7] = {
        {2.08, 1.55, 1.25, 1.06, 0.95, 0.91, 0.87}, {3.03, 2.27, 1.82, 1.59, 1.36, 1.32, 1.29},
        {3.41, 2.88, 2.38, 2.04, 1.70, 1.51, 1.44}, {3.79, 3.03, 2.46, 2.08, 1.70, 1.32, 1.02},
        {4.54, 3.41, 2.84, 2.38, 1.97, 1.57, 1.38}, {4.54, 3.63, 2.95, 2.50, 2.04, 1.82, 1.74},
    };
    Grid g(7);
    g.PonerEncabezados(0, QStringLiteral("Clase de Edificio"));
    for (int c = 1; c <= 7; ++c) {
        g.PonerEncabezados(c, QString::fromUtf8(rangos[c - 1]));
        g.Col(c).tipo = TipoCelda::Numero;
        g.Col(c).decimales = 2;
        g.Col(c).ancho = 11;
    }
    g.Col(0).ancho = 40;
    g.PonerFilas(6);
    for (int f = 1; f <= 6; ++f) {
        g.PonerTexto(f, 0, QString::fromUtf8(clases[f - 1]));
        for (int c = 1; c <= 7; ++c) g.PonerNumero(f, c, factores[f - 1][c - 1], 2);
    }
    return g;
}

QString CapturarFactorPeerlees(const Grid& tabla, int fila, int columna) {
    double v = 0.0;
    if (fila < 1 || fila > tabla.Filas() || columna < 1 || columna > tabla.Columnas() ||
        !LeerNumero(tabla.Texto(fila, columna), v))
        throw ErrorEjecucion(Error::TiposNoCoinciden);
    QString texto = QString::number(v);
    return texto.replace(QLatin1Char('.'), SeparadoresActuales().decimal);
}
