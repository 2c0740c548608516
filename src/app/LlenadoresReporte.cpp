#include "app/LlenadoresReporte.h"

#include "analysis/AnalisisRed.h"
#include "analysis/Numeracion.h"
#include "base/ErrorEjecucion.h"
#include "reports/TablasResultados.h"

#include <memory>

namespace {

// The result reports: DatosGenerales and the three Impre* tables from the
// analysis screen's grids, cell by cell as shown.
int LleneResultadosEdificio(TrabajoReporte& t) {
    ProyectoEdificio& p = t.c.p;
    if (const int e = t.CargarEdificio(); e != Salida::Bien) return e;
    try {
        AnalisisRed a(p, t.c.s, t.c.d);
        a.Cargar();
        if (p.ErrorNumeracion != 0) return Salida::DatosInvalidos;
        OpcionesResultados o;
        o.FormatoColor = t.color;
        QString error;
        if (!LleneTablasResultados(a, p, t.c.s, o, error)) return Fallar(error);
    } catch (const ErrorEjecucion& e) {
        return FallaDeCalculo(e, false);
    }
    return Salida::Bien;
}

// One line per template.  Fillers of other reports plug in here, e.g.
//   {false, "DatosProyecto", LleneDatosProyectoLinea},
//   {true, "ResultadosTodo", LleneResultadosAcueductoLinea},
const EntradaReporte Reportes[] = {
    {false, "UnidadesGasto", LleneResultadosEdificio},
    {false, "LongitudesEquivalentes", LleneResultadosEdificio},
    {false, "PerdidasPresiones", LleneResultadosEdificio},
    {false, "Predimensionado", LleneResultadosEdificio},
    {false, "Resultado", LleneResultadosEdificio},
    {false, "Portada", LleneResultadosEdificio},
};

}  // namespace

int TrabajoReporte::CargarEdificio() {
    if (!c.Cargar(archivo)) return Salida::Falla;
    try {
        if (c.p.NumeroRamales >= 1) {
            c.p.ErrorNumeracion = 0;
            VerificarNumeracion(c.p, c.d);
            if (c.p.ErrorNumeracion != 0) return Salida::DatosInvalidos;
        }
    } catch (const ErrorEjecucion& e) {
        return FallaDeCalculo(e, false);
    }
    return Salida::Bien;
}

const EntradaReporte* BuscarReporte(bool acueducto, const QString& plantilla) {
    for (const EntradaReporte& e : Reportes)
        if (e.acueducto == acueducto && plantilla.compare(QLatin1String(e.plantilla), Qt::CaseInsensitive) == 0)
            return &e;
    return nullptr;
}

QStringList PlantillasConocidas(bool acueducto) {
    QStringList r;
    for (const EntradaReporte& e : Reportes)
        if (e.acueducto == acueducto) r << QString::fromLatin1(e.plantilla);
    return r;
}
