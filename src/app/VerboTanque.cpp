#include "app/LineaComandos.h"
#include "app/SalidaEdificio.h"
#include "base/ErrorEjecucion.h"
#include "base/Nivo.h"
#include "tank/ResultadosHidro.h"

#include <cmath>

namespace {

const char* Uso() {
    return "Uso: fontaria tanque [X.plm] --metodo 1|2|3 [--caudal Q --porcentaje P --dotacion D --piezas N "
           "--factor F --pmin P --pmax P --arranques N --succion H --k 1|2] [--json]";
}

// Reads a number option, typed with the session's marks, into `destino`;
// false with the reader's reason when it is refused.
bool Opcion(const ArgumentosVerbo& a, const char* nombre, double& destino, QString& error) {
    const QString texto = a.Valor(QString::fromLatin1(nombre));
    if (texto.isNull()) return true;
    const NumeroLeido leido = LeerNumeroTecleado(texto);
    if (!leido.valido) {
        error = QStringLiteral("--%1: ").arg(QString::fromLatin1(nombre)) + leido.motivo;
        return false;
    }
    destino = leido.valor;
    return true;
}

bool OpcionEntera(const ArgumentosVerbo& a, const char* nombre, int16_t& destino, int minimo, int maximo,
                  QString& error) {
    double v = destino;
    if (!Opcion(a, nombre, v, error)) return false;
    if (v != std::floor(v) || v < minimo || v > maximo) {
        error = QStringLiteral("El valor de --%1 debe ser un número entero de %2 a %3.")
                    .arg(QString::fromLatin1(nombre)).arg(minimo).arg(maximo);
        return false;
    }
    destino = static_cast<int16_t>(v);
    return true;
}

QJsonObject EntradasComoJson(const DatosTanque& t) {
    QJsonObject o;
    o[QStringLiteral("NumeroMetodo")] = t.NumeroMetodo;
    o[QStringLiteral("Caudal")] = t.Caudal;
    o[QStringLiteral("Porcentaje")] = t.Porcentaje;
    o[QStringLiteral("Dotacion")] = t.Dotacion;
    o[QStringLiteral("NumeroPiezas")] = t.NumeroPiezas;
    o[QStringLiteral("FactorPeerlees")] = t.FactorPeerlees;
    o[QStringLiteral("PresionMinima")] = t.PresionMinima;
    o[QStringLiteral("PresionMaxima")] = t.PresionMaxima;
    o[QStringLiteral("Arranques")] = t.Arranques;
    o[QStringLiteral("Succion")] = t.Succion;
    o[QStringLiteral("OpcionK")] = t.OpcionK;
    return o;
}

// A refusal of the data, for a reader of the JSON output.
void ImprimirMensajeJson(const QString& texto) {
    QJsonObject o;
    o[QStringLiteral("mensaje")] = texto;
    ImprimirJson(o);
}

const char* const NombresResultados[7] = {"QB", "VolumenTotal", "VolumenMinimo", "VolumenUtil",
                                          "VolumenMaximo", "PotenciaBomba", "PotenciaMotor"};

void ImprimirTanque(const DatosTanque& t, const ResultadosHidro& r, bool json) {
    const ResultadoTanque& v = r.Resultado;
    const double numeros[7] = {v.QB, v.VolumenTotal, v.VolumenMinimo, v.VolumenUtil,
                               v.VolumenMaximo, v.PotenciaBomba, v.PotenciaMotor};
    if (json) {
        QJsonObject o, resultados, textos, porcentajes;
        o[QStringLiteral("entradas")] = EntradasComoJson(t);
        o[QStringLiteral("Titulo")] = r.Marco;
        o[QStringLiteral("Metodo")] = TextoMetodoReporte(t.NumeroMetodo);
        o[QStringLiteral("K")] = FactorK(t.OpcionK);
        for (int k = 0; k < 7; ++k) {
            resultados[QString::fromLatin1(NombresResultados[k])] = numeros[k];
            textos[QString::fromLatin1(NombresResultados[k])] = r.Valores[k];
        }
        porcentajes[QStringLiteral("VolumenMinimo")] = r.PorcentajeMinimo;
        porcentajes[QStringLiteral("VolumenUtil")] = r.PorcentajeUtil;
        porcentajes[QStringLiteral("VolumenMaximo")] = r.PorcentajeMaximo;
        o[QStringLiteral("resultados")] = resultados;
        o[QStringLiteral("textos")] = textos;
        o[QStringLiteral("porcentajes")] = porcentajes;
        ImprimirJson(o);
        return;
    }
    QString s = QStringLiteral("RESULTADOS DE CÁLCULO DEL TANQUE HIDRONEUMÁTICO\n") + r.Marco + QLatin1Char('\n');
    const QStringList etiquetas = ResultadosHidro::Etiquetas();
    for (int k = 0; k < 7; ++k) s += etiquetas[k] + QLatin1Char(' ') + r.Valores[k] + QLatin1Char('\n');
    s += QStringLiteral("Volumenes de Agua en Porcentaje\n");
    s += QStringLiteral("Volumen Mínimo: ") + r.PorcentajeMinimo + QLatin1Char('\n');
    s += QStringLiteral("Volumen Util: ") + r.PorcentajeUtil + QLatin1Char('\n');
    s += QStringLiteral("Volumen Máximo: ") + r.PorcentajeMaximo + QLatin1Char('\n');
    Imprimir(s);
}

}  // namespace

// fontaria tanque [X.plm] --metodo N [...] [--json]
int VerboTanque(const QStringList& args) {
    const ArgumentosVerbo a =
        LeerArgumentos(args,
                       {QStringLiteral("metodo"), QStringLiteral("caudal"), QStringLiteral("porcentaje"),
                        QStringLiteral("dotacion"), QStringLiteral("piezas"), QStringLiteral("factor"),
                        QStringLiteral("pmin"), QStringLiteral("pmax"), QStringLiteral("arranques"),
                        QStringLiteral("succion"), QStringLiteral("k")},
                       {QStringLiteral("json")});
    if (!a.error.isEmpty() || a.Valor(QStringLiteral("metodo")).isNull()) return FallaDeUso(a, Uso());
    const bool json = a.Tiene(QStringLiteral("json"));
    ContextoVerbo c(json);
    ProyectoEdificio& p = c.p;
    DatosTanque t;
    try {
        if (!a.archivo.isEmpty()) {
            if (!c.Cargar(a.archivo)) return Salida::Falla;
            if (p.OpcionPresionInicial == 0 && p.NumeroRamales >= 1 && !PrellenarDesdeProyecto(t, p, c.s, c.d)) {
                if (json) ImprimirMensajeJson(c.d.ultimoTexto);
                return Salida::DatosInvalidos;
            }
        }
        ValoresPorDefectoTanque(t);
    } catch (const ErrorEjecucion& e) {
        return FallaDeCalculo(e, json);
    }

    QString error;
    const bool bien = OpcionEntera(a, "metodo", t.NumeroMetodo, 1, 3, error) && Opcion(a, "caudal", t.Caudal, error) &&
                      Opcion(a, "porcentaje", t.Porcentaje, error) && Opcion(a, "dotacion", t.Dotacion, error) &&
                      OpcionEntera(a, "piezas", t.NumeroPiezas, 0, 32767, error) &&
                      Opcion(a, "factor", t.FactorPeerlees, error) && Opcion(a, "pmin", t.PresionMinima, error) &&
                      Opcion(a, "pmax", t.PresionMaxima, error) && Opcion(a, "arranques", t.Arranques, error) &&
                      Opcion(a, "succion", t.Succion, error) && OpcionEntera(a, "k", t.OpcionK, 1, 2, error);
    if (!bien) return Fallar(error);
    // A minimum typed without a maximum takes the range of the pre-filling.
    if (a.Valor(QStringLiteral("pmax")).isNull() && !a.Valor(QStringLiteral("pmin")).isNull())
        t.PresionMaxima = t.PresionMinima + 14.0;
    const QString rechazo = RechazoPresiones(t);
    if (!rechazo.isEmpty()) {
        if (json) ImprimirMensajeJson(rechazo);
        return Fallar(rechazo, Salida::DatosInvalidos);
    }

    try {
        const ResultadosHidro r(t);
        ImprimirTanque(t, r, json);
    } catch (const ErrorEjecucion& e) {
        return FallaDeCalculo(e, json);
    }
    return Salida::Bien;
}
