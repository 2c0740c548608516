#include "app/LlenadoresReporte.h"

#include "analysis/AnalisisRed.h"
#include "analysis/Numeracion.h"
#include "aqueduct/AnalisisACU.h"
#include "aqueduct/ArchivoAcueducto.h"
#include "aqueduct/ProyectoAcueducto.h"
#include "aqueduct/SolverMalla.h"
#include "base/ErrorEjecucion.h"
#include "reports/TablasAcueducto.h"
#include "reports/TablasDatos.h"
#include "reports/TablasResultados.h"
#include "takeoff/Computos.h"
#include "tank/Hidroneumatico.h"
#include "tank/ResultadosHidro.h"

#include <QFileInfo>
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

// The aqueduct's result reports: Generales, Tramos and Nodos of
// Trabajo/Resultados.mdb from a solve of the asked case, as the results
// screen leaves them.
int LleneResultadosAcueducto(TrabajoReporte& t) {
    Sesion& s = t.c.s;
    ProyectoAcueducto p;
    QString error;
    if (int estado = 0; !CargarRedVerbo(p, s, t.archivo, error, estado)) return Fallar(error, estado);
    AnalisisACU pantalla(p, s, t.c.d);
    if (!pantalla.VerificaTanque()) return Fallar(MensajeSinTanque(s.NombreProyectoACU), Salida::DatosInvalidos);
    p.CasoDemanda = uint8_t(t.caso);
    p.ErrorAnalisis = 0;
    AnalizarMalla(p, s);
    if (p.ErrorAnalisis == 1)
        return Fallar(MensajeErrorAnalisis(s.NombreProyectoACU, p.DetalleError), Salida::ErrorCalculo);
    // Printed all the same, as the screen prints them, with the warning.
    for (const QString& linea : LineasSinConvergencia(p)) Fallar(QStringLiteral("Aviso: ") + linea);
    t.base = s.RutaDatos(QStringLiteral("Trabajo/Resultados.mdb"));
    return LleneTablasAcueducto(t.base, p, s, t.color, error) ? Salida::Bien : Fallar(error);
}

// The aqueduct's data report: the file as saved, copied into Trabajo/Datos.mdb.
int LleneDatosAcueducto(TrabajoReporte& t) {
    t.base = t.c.s.RutaDatos(QStringLiteral("Trabajo/Datos.mdb"));
    QString error;
    if (!QFileInfo(t.archivo).isFile()) return Fallar(QStringLiteral("No se encuentra el archivo: ") + t.archivo);
    return CopieDatosProyectoACU(t.base, t.archivo, t.c.s.NombreUsuario, error) ? Salida::Bien : Fallar(error);
}

// The data reports of the printing screen, by origin: the take-off and the
// tank as their screens show them on opening, the catalogue, and the
// project's file as last saved.
int LleneDatosEdificio(TrabajoReporte& t, int origen) {
    Sesion& s = t.c.s;
    ProyectoEdificio& p = t.c.p;
    OpcionesDatos o;
    o.FormatoColor = t.color;
    o.Titulo = TituloOrigen(origen);
    FuenteDatos f;
    f.Proyecto = &p;
    Computos computos(p, s, t.c.d);
    DatosTanque tanque;
    try {
        if (origen == 1 || origen == 2) {
            if (const int e = t.CargarEdificio(); e != Salida::Bien) return e;
        } else if (origen >= 5 && !t.c.Cargar(t.archivo)) {
            return Salida::Falla;
        }
        if (origen == 1) {
            computos.Cargar();
            f.Computos = &computos.Paginas;
        } else if (origen == 2) {
            ValoresPorDefectoTanque(tanque);
            PrellenarDesdeProyecto(tanque, p, s, t.c.d);
            if (const QString rechazo = RechazoPresiones(tanque); !rechazo.isEmpty()) return Fallar(rechazo);
            f.Tanque = &tanque;
            f.ValoresTanque = ResultadosHidro(tanque).Valores;
        }
    } catch (const ErrorEjecucion& e) {
        return FallaDeCalculo(e, false);
    }
    if ((origen == 3 || origen == 4) && !QFileInfo::exists(RutaCatalogoReportes(s))) {
        // The scratch folder reaches the user's catalogue through a link: name the user's folder.
        const QString carpeta = QFileInfo(s.RutaDatos(QStringLiteral("BDatos"))).symLinkTarget();
        return Fallar(QStringLiteral("No se encuentra el catálogo: ") + carpeta + QStringLiteral("/BD_Piezas_Conexiones.mdb"));
    }
    QString error;
    if (!LleneTablasOrigen(origen, s, f, o, error)) return Fallar(error);
    t.base = BaseOrigen(origen, s);
    t.generales = BaseGeneralesOrigen(origen, s);
    return Salida::Bien;
}

template <int Origen>
int LleneOrigen(TrabajoReporte& t) {
    return LleneDatosEdificio(t, Origen);
}

// One line per template.
const EntradaReporte Reportes[] = {
    {false, "Computos", LleneOrigen<1>},
    {false, "Hidroneumatico", LleneOrigen<2>},
    {false, "BDPiezas", LleneOrigen<3>},
    {false, "BDPiezasFoto", LleneOrigen<3>},
    {false, "BDConexiones", LleneOrigen<4>},
    {false, "BDConexionesFoto", LleneOrigen<4>},
    {false, "DatosProyecto", LleneOrigen<5>},
    {false, "PiezasRamales", LleneOrigen<6>},
    {false, "PiezasRamalesFoto", LleneOrigen<6>},
    {false, "ConexionesRamales", LleneOrigen<7>},
    {false, "ConexionesRamalesFoto", LleneOrigen<7>},
    {false, "UnidadesGasto", LleneResultadosEdificio},
    {false, "LongitudesEquivalentes", LleneResultadosEdificio},
    {false, "PerdidasPresiones", LleneResultadosEdificio},
    {false, "Predimensionado", LleneResultadosEdificio},
    {false, "Resultado", LleneResultadosEdificio},
    {false, "Esquema", LleneResultadosEdificio},
    {false, "Portada", LleneResultadosEdificio},
    {true, "ResultadosTodo", LleneResultadosAcueducto},
    {true, "ResultadosTramos", LleneResultadosAcueducto},
    {true, "ResultadosNodos", LleneResultadosAcueducto},
    {true, "Portada", LleneResultadosAcueducto},
    {true, "ResultadosTramosD", LleneResultadosAcueducto},
    {true, "ResultadosTodoD", LleneResultadosAcueducto},
    {true, "Plano", LleneResultadosAcueducto},
    {true, "ArchivoDatos", LleneDatosAcueducto},
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
