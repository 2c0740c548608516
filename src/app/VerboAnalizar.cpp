#include "analysis/AnalisisRed.h"
#include "analysis/DatosEsquema.h"
#include "analysis/Numeracion.h"
#include "app/Dibujar.h"
#include "app/LineaComandos.h"
#include "app/SalidaEdificio.h"
#include "base/ErrorEjecucion.h"
#include "base/Nivo.h"
#include "model/ProyectoEdificio.h"
#include "shell/Sesion.h"

namespace {

template <typename T>
QJsonArray PorNodo(const Arreglo<T>& a) {
    QJsonArray r;
    for (int i = 0; i <= a.Ubound(); ++i) r.append(QJsonValue(a[i]));
    return r;
}

QJsonObject RamalComoJson(const ProyectoEdificio& p, int i) {
    QJsonObject r;
    r[QStringLiteral("Numero")] = i;
    r[QStringLiteral("NodoI")] = p.NodoI[i];
    r[QStringLiteral("Nodoj")] = p.Nodoj[i];
    r[QStringLiteral("NumeroNodoI")] = p.NumeroNodoI[i];
    r[QStringLiteral("NumeroNodoJ")] = p.NumeroNodoJ[i];
    r[QStringLiteral("UnidadesAcumuladas")] = p.UnidadesAcumuladas[i];
    r[QStringLiteral("TipoCurva")] = p.TipoCurva[i];
    r[QStringLiteral("Gasto")] = p.Gasto[i];
    r[QStringLiteral("DiametroCalculo")] = p.DiametroCalculo[i];
    r[QStringLiteral("DiametroCalculoTexto")] = p.DiametroCalculoTexto[i];
    r[QStringLiteral("VelocidadCalculo")] = p.VelocidadCalculo[i];
    r[QStringLiteral("Predimensionado")] = p.Predimensionado[i];
    r[QStringLiteral("DiametroAsumido")] = p.DiametroAsumido[i];
    r[QStringLiteral("VelocidadAsumida")] = p.VelocidadAsumida[i];
    r[QStringLiteral("LongitudEquivalenteRamal")] = p.LongitudEquivalenteRamal[i];
    r[QStringLiteral("LongitudReduccion")] = p.LongitudReduccion[i];
    r[QStringLiteral("RamalAnterior")] = p.RamalAnterior[i];
    r[QStringLiteral("PerdidaUnitaria")] = p.PerdidaUnitaria[i];
    r[QStringLiteral("PerdidaRamal")] = p.PerdidaRamal[i];
    r[QStringLiteral("PresionRamal")] = p.PresionRamal[i];
    r[QStringLiteral("longitudReal")] = p.longitudReal[i];
    r[QStringLiteral("NodoNumI")] = p.NodoNumI[i];
    r[QStringLiteral("NodoNumJ")] = p.NodoNumJ[i];
    r[QStringLiteral("ValvulaR")] = p.ValvulaR[i];
    return r;
}

QJsonObject ResultadosComoJson(const ProyectoEdificio& p, const QString& mensaje, const AnalisisRed* a = nullptr) {
    QJsonObject o;
    o[QStringLiteral("NumeroRamales")] = int(p.NumeroRamales);
    o[QStringLiteral("ErrorNumeracion")] = int(p.ErrorNumeracion);
    o[QStringLiteral("mensaje")] = mensaje.isEmpty() ? QJsonValue() : QJsonValue(mensaje);
    if (!a) return o;
    QJsonArray ramales;
    for (int i = 1; i <= p.NumeroRamales; ++i) ramales.append(RamalComoJson(p, i));
    o[QStringLiteral("ramales")] = ramales;
    o[QStringLiteral("PresionNodo")] = PorNodo(p.PresionNodo);
    o[QStringLiteral("ValvulaAcumulada")] = PorNodo(p.ValvulaAcumulada);
    o[QStringLiteral("CotaRelativa")] = PorNodo(p.CotaRelativa);
    o[QStringLiteral("CargaOrigen")] = p.CargaOrigen;
    o[QStringLiteral("SumaPerdidas")] = p.SumaPerdidas;
    o[QStringLiteral("NodoDesfaborable")] = p.NodoDesfaborable;
    o[QStringLiteral("NodoDesfaborableNombre")] = p.NodoDesfaborableNombre;
    o[QStringLiteral("PresionDesfaborable")] = p.PresionDesfaborable;
    o[QStringLiteral("NodosPresionNegativa")] = a->NodosPresionNegativa();
    return o;
}

QString Numero(double v) { return Formato(v, QStringLiteral("0.00")); }

void ImprimirResultados(const ProyectoEdificio& p, const AnalisisRed& a) {
    QString t = a.Caption + QLatin1Char('\n');
    t += QStringLiteral("Ramales: %1\n\n").arg(int(p.NumeroRamales));
    t += QStringLiteral("Ramal | Nodo I | Nodo J | U.G. | Q (l/s) | Diám. | V (m/s) | L. real | L. equiv. | "
                        "Pérdida (m) | Presión J (m)\n");
    for (int i = 1; i <= p.NumeroRamales; ++i) {
        t += QStringList{QString::number(i), p.NodoI[i], p.Nodoj[i], Numero(p.UnidadesAcumuladas[i]),
                         Numero(p.Gasto[i]), p.Predimensionado[i] + MarcaPulgada(), Numero(p.VelocidadAsumida[i]),
                         Numero(p.longitudReal[i]), Numero(p.LongitudEquivalenteRamal[i]),
                         Numero(p.PerdidaRamal[i]), a.Spread3.Texto(i, 15)}
                 .join(QStringLiteral(" | ")) +
             QLatin1Char('\n');
    }
    t += QLatin1Char('\n');
    switch (p.OpcionPresionInicial) {
    case 0: t += QStringLiteral("Presión necesaria en el origen (m): %1\n").arg(Numero(p.CargaOrigen)); break;
    case 1: t += QStringLiteral("Carga que requiere el nodo más desfavorable (m): %1\n").arg(Numero(p.CargaOrigen)); break;
    case 2: t += QStringLiteral("Altura del tanque elevado (m): %1\n").arg(Numero(p.longitudReal[1])); break;
    default: break;
    }
    t += QStringLiteral("Nodo desfavorable: %1, presión (m): %2\n")
             .arg(p.NodoDesfaborableNombre, Numero(p.PresionDesfaborable));
    if (!a.TextoPresionNegativa().isEmpty()) t += a.TextoPresionNegativa() + QLatin1Char('\n');
    Imprimir(t);
}

void ImprimirGrids(const AnalisisRed& a) {
    const Grid* grids[4] = {&a.Spread4, &a.Spread1, &a.Spread2, &a.Spread3};
    QString t;
    for (int tab = 1; tab <= 4; ++tab)
        t += QStringLiteral("== ") + AnalisisRed::TituloPestana(tab) + QStringLiteral(" ==\n") +
             GridComoTexto(*grids[tab - 1]) + QLatin1Char('\n');
    // The status lines under the grids, as the screen shows them.
    if (!a.TextoPresionNegativa().isEmpty()) t += a.TextoPresionNegativa() + QLatin1Char('\n');
    Imprimir(t);
}

}  // namespace

// fontaria analizar X.plm [--json|--grids] [--esquema dibujo.svg|.png|.pdf [--blanco-y-negro]]
int VerboAnalizar(const QStringList& args) {
    const ArgumentosVerbo a =
        LeerArgumentos(args, {QStringLiteral("esquema")},
                       {QStringLiteral("json"), QStringLiteral("grids"), QStringLiteral("blanco-y-negro")});
    if (!a.error.isEmpty() || a.archivo.isEmpty())
        return FallaDeUso(
            a, "Uso: fontaria analizar X.plm [--json|--grids] [--esquema dibujo.svg|.png|.pdf [--blanco-y-negro]]");
    const QString esquema = a.Valor(QStringLiteral("esquema"));
    QString error;
    if (!esquema.isNull() && !ExtensionDibujoValida(esquema, error)) return Fallar(error);
    const bool json = a.Tiene(QStringLiteral("json"));
    ContextoVerbo c(json);
    if (!c.Cargar(a.archivo)) return Salida::Falla;
    ProyectoEdificio& p = c.p;
    DialogosConsola& d = c.d;

    try {
        if (p.NumeroRamales >= 1) {
            p.ErrorNumeracion = 0;
            VerificarNumeracion(p, d);
            if (p.ErrorNumeracion != 0) {
                if (json) ImprimirJson(ResultadosComoJson(p, d.ultimoTexto));
                return Salida::DatosInvalidos;
            }
        }
        AnalisisRed analisis(p, c.s, d);
        analisis.Cargar();
        if (p.ErrorNumeracion != 0) {
            if (json) ImprimirJson(ResultadosComoJson(p, d.ultimoTexto));
            return Salida::DatosInvalidos;
        }
        if (!esquema.isNull()) {
            QJsonObject dibujo = EsquemaComoJson(EsquemaDeProyecto(p, &analisis.Spread3));
            dibujo[QStringLiteral("blancoNegro")] = a.Tiene(QStringLiteral("blanco-y-negro"));
            const int estado = Dibujar(dibujo, esquema);
            if (estado != Salida::Bien) return estado;
        }
        if (json) ImprimirJson(ResultadosComoJson(p, QString(), &analisis));
        else if (!esquema.isNull() && !a.Tiene(QStringLiteral("grids"))) return Salida::Bien;
        else if (a.Tiene(QStringLiteral("grids"))) ImprimirGrids(analisis);
        else ImprimirResultados(p, analisis);
    } catch (const ErrorEjecucion& e) {
        return FallaDeCalculo(e, json);
    }
    return Salida::Bien;
}
