#include "aqueduct/ProyectoAcueducto.h"

#include "base/Nivo.h"
#include "shell/Sesion.h"

void ProyectoAcueducto::DimensionarTramos(int tramos) {
    Inicio.Redim(tramos);
    Final.Redim(tramos);
    Longitud.Redim(tramos);
    Diametro.Redim(tramos);
    CoeficienteC.Redim(tramos);
    Demanda.Redim(tramos);
}

void ProyectoAcueducto::RedimensionarTramos(int tramos) {
    Inicio.RedimPreserve(tramos);
    Final.RedimPreserve(tramos);
    Longitud.RedimPreserve(tramos);
    Diametro.RedimPreserve(tramos);
    CoeficienteC.RedimPreserve(tramos);
    Demanda.RedimPreserve(tramos);
}

void ProyectoAcueducto::DimensionarNodos(int nodos) {
    Nodos.Redim(nodos);
    ConsumoMedio.Redim(nodos);
    CotaTerreno.Redim(nodos);
    CotaBombaEstanque.Redim(nodos);
    X.Redim(nodos);
    Y.Redim(nodos);
}

void ProyectoAcueducto::RedimensionarNodos(int nodos) {
    Nodos.RedimPreserve(nodos);
    ConsumoMedio.RedimPreserve(nodos);
    CotaTerreno.RedimPreserve(nodos);
    CotaBombaEstanque.RedimPreserve(nodos);
    X.RedimPreserve(nodos);
    Y.RedimPreserve(nodos);
}

void BorrarArreglosACU(ProyectoAcueducto& p) {
    p.NumeroTramos = 0;
    p.NumeroNodosACU = 0;
    p.DimensionarTramos(-1);
    p.DimensionarNodos(-1);
    p.ExtremosTramo.Erase();
    p.NodosTramo.Erase();
    p.TramosConectados.Erase();
    p.NombreTramos.Erase();
    p.NodoFijo.Erase();
    p.CotaFija.Erase();
    p.CoeficienteK.Erase();
    p.Alturas.Erase();
    p.DemandaReal.Erase();
    p.DemandaCalculo.Erase();
    p.CotaPiezometrica.Erase();
    p.Caudal.Erase();
    p.Velocidad.Erase();
    p.Perdidas.Erase();
    p.LongitudCalculo.Erase();
    p.NumeroFijos = 0;
    p.AnchoBanda = 0;
    p.NodoMinimo = p.NodoMaximo = 0;
    p.Iteraciones.clear();
}

void ValoresInicialesACU(ProyectoAcueducto& p, const Sesion& s) {
    p.Proyecto = p.Ubicacion = p.Comentario = QString();
    p.Calculista = s.NombreUsuario;
    p.Fecha = Hoy();
    p.OpcionConsumo = 1;
    p.OpcionDiametro = 1;
    p.CasoPorcentaje = 1;
    p.C = 100;
    p.DeltaPorcentaje = 5.0;
    p.FactorQMax = 2.5;
    p.FactorIncendio = 1.8;
    p.LitrosIncendio = 16.0;
    BorrarArreglosACU(p);
}

double DiametroMetros(const ProyectoAcueducto& p, int tramo) {
    const double d = p.Diametro[tramo];
    if (p.OpcionDiametro == 2) return d / 1000.0;
    if (p.OpcionDiametro == 3) return d * 0.0254;
    return d;
}

double PerdidaUnitaria(const ProyectoAcueducto& p, int tramo) {
    const double l = p.LongitudCalculo.Leer(tramo);
    if (!(l > 0.0)) return 0.0;
    return RoundNivo(p.Perdidas.Leer(tramo) * 1000.0 / l, 3);
}

double PresionNodo(const ProyectoAcueducto& p, int nodo) {
    return p.CotaPiezometrica.Leer(nodo) - p.CotaTerreno.Leer(nodo);
}

QString TituloAcueducto(const QString& nombreProyecto) {
    return QStringLiteral("Redes de Acueductos   Proyecto: [ ") + UCase(nombreProyecto) + QStringLiteral(" ]");
}
