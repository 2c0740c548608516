#include "reports/TablasDatos.h"

#include "base/Nivo.h"
#include "model/ProyectoEdificio.h"
#include "reports/BaseTrabajo.h"
#include "reports/TablasResultados.h"
#include "shell/Sesion.h"
#include "shell/Titulos.h"
#include "store/Conexion.h"
#include "takeoff/Computos.h"
#include "tank/Hidroneumatico.h"

#include <QFileInfo>
#include <QLocale>
#include <cmath>

namespace {

// The project's tables copied for its reports, in the order they are emptied.
const char* const TablasProyecto[] = {"DatosGenerales", "DatosRamales", "DatosPiezas", "DatosConexiones",
                                      "DatosNodos",     "ImgPiezas",    "ImgConexiones"};

// The row of DatosGenerales of the take-off and the tank reports.
bool LleneGeneralesProyecto(Conexion& c, const ProyectoEdificio& p, const Sesion& s, const OpcionesDatos& o) {
    return c.Ejecutar(QStringLiteral("DELETE FROM DatosGenerales")) &&
           c.Ejecutar(QStringLiteral("INSERT INTO DatosGenerales (Proyecto, Ubicacion, Calculista, Fecha, Comentario, "
                                     "Empresa, FormatoColor, Titulo1, Version) VALUES (?,?,?,?,?,?,?,?,?)"),
                      {p.Proyecto, p.Ubicacion, p.Calculista, FechaTexto(p.Fecha), p.Comentario, s.NombreUsuario,
                       Logico(o.FormatoColor), Trim(o.Titulo), EtiquetaVersion()});
}

// One ImpreComputos* table from its grid; false with `error` set when a
// quantity is not a number.
bool LleneComputo(Conexion& c, const char* tabla, const Grid& g, int pagina, bool entero, QString& error) {
    const QString t = QString::fromLatin1(tabla);
    if (!c.Ejecutar(QStringLiteral("DELETE FROM %1").arg(t))) return FalloTrabajo(c, error);
    Consulta q(c, QStringLiteral("INSERT INTO %1 (Descripcion, Cantidad) VALUES (?, ?)").arg(t));
    if (!q.Valida()) return FalloTrabajo(c, error);
    for (int f = 1; f <= g.Filas(); ++f) {
        double v = 0.0;
        if (!NumeroMostrado(g, f, 2, true, v)) {
            error = QStringLiteral("La cantidad de la fila %1 de «%2» no es un número: «%3».")
                        .arg(f)
                        .arg(PaginasComputos::TituloPagina(pagina), g.Texto(f, 2));
            return false;
        }
        if (!q.Ejecutar({Trim(g.Texto(f, 1)), entero ? Valor(int(std::lround(v))) : Valor(v)})) return FalloTrabajo(c, error);
    }
    return true;
}

// The column names of a table of the main or the attached database.
QStringList Columnas(Conexion& c, const QString& esquema, const QString& tabla) {
    QStringList r;
    Consulta q(c, QStringLiteral("PRAGMA %1.table_info(%2)").arg(esquema, tabla));
    while (q.Siguiente()) r << q.Texto(1);
    return r;
}

// The columns copied are those of the report copy's own tables that the
// project's file also has: a file of an older form leaves the others blank,
// and no name read from the file reaches the SQL text.
bool CopieTablas(Conexion& c, QString& error) {
    std::vector<QStringList> comunes;
    for (const char* n : TablasProyecto) {
        const QString t = QString::fromLatin1(n);
        const QStringList delArchivo = Columnas(c, QStringLiteral("p"), t);
        QStringList lista;
        for (const QString& col : Columnas(c, QStringLiteral("main"), t))
            if (delArchivo.contains(col, Qt::CaseInsensitive)) lista << QLatin1Char('"') + col + QLatin1Char('"');
        if (lista.isEmpty()) {
            error = QStringLiteral("El archivo del proyecto no es un proyecto de Fontaria: le falta la tabla «%1».").arg(t);
            return false;
        }
        comunes.push_back(lista);
    }
    for (const char* n : TablasProyecto)
        if (!c.Ejecutar(QStringLiteral("DELETE FROM %1").arg(QString::fromLatin1(n)))) return FalloTrabajo(c, error);
    for (size_t i = 0; i < comunes.size(); ++i) {
        const QString lista = comunes[i].join(QStringLiteral(", "));
        if (!c.Ejecutar(QStringLiteral("INSERT INTO %1 (%2) SELECT %2 FROM p.%1").arg(QString::fromLatin1(TablasProyecto[i]), lista)))
            return FalloTrabajo(c, error);
    }
    return true;
}

struct DatosOrigen {
    const char* titulo;
    const char* plantilla;
    const char* plantillaFotos;  // nullptr: none
};

const DatosOrigen Origenes[7] = {
    {"COMPUTOS DE MATERIALES", "Computos", nullptr},
    {"TANQUE HIDRONEUMÁTICO", "Hidroneumatico", nullptr},
    {"BASE DE DATOS DE PIEZAS SANITARIAS", "BDPiezas", "BDPiezasFoto"},
    {"BASE DE DATOS DE CONEXIONES", "BDConexiones", "BDConexionesFoto"},
    {"DATOS GENERALES DEL PROYECTO", "DatosProyecto", nullptr},
    {"PIEZAS SANITARIAS EN LOS RAMALES", "PiezasRamales", "PiezasRamalesFoto"},
    {"CONEXIONES EN LOS RAMALES", "ConexionesRamales", "ConexionesRamalesFoto"},
};

const DatosOrigen* De(int origen) { return origen >= 1 && origen <= 7 ? &Origenes[origen - 1] : nullptr; }

}  // namespace

QString TituloOrigen(int origen) {
    const DatosOrigen* o = De(origen);
    return o ? QString::fromUtf8(o->titulo) : QString();
}

bool OrigenConFotos(int origen) {
    const DatosOrigen* o = De(origen);
    return o && o->plantillaFotos;
}

QString PlantillaOrigen(int origen, bool fotos) {
    const DatosOrigen* o = De(origen);
    if (!o) return QString();
    return QString::fromLatin1(fotos && o->plantillaFotos ? o->plantillaFotos : o->plantilla);
}

bool LleneTablasOrigen(int origen, const Sesion& s, const FuenteDatos& f, const OpcionesDatos& o, QString& error) {
    switch (origen) {
    case 1:
        if (!f.Computos || !f.Proyecto) break;
        return LleneTablasComputos(RutaTrabajoReportes(s), *f.Computos, *f.Proyecto, s, o, error);
    case 2:
        if (!f.Tanque || !f.Proyecto) break;
        return LleneTablaTanque(RutaTrabajoReportes(s), *f.Tanque, f.ValoresTanque, *f.Proyecto, s, o, error);
    case 3:
    case 4: return LleneGeneralesCatalogo(RutaTrabajoReportes(s), o, error);
    case 5:
    case 6:
    case 7: return CopieProyectoReporte(RutaProyectoReportes(s), s.ArchivoProyecto, s, o, error);
    default: break;
    }
    error = QStringLiteral("No hay datos que imprimir para este reporte.");
    return false;
}

QString BaseOrigen(int origen, const Sesion& s) {
    if (origen <= 2) return RutaTrabajoReportes(s);
    return origen <= 4 ? RutaCatalogoReportes(s) : RutaProyectoReportes(s);
}

QString BaseGeneralesOrigen(int origen, const Sesion& s) {
    return origen == 3 || origen == 4 ? RutaTrabajoReportes(s) : QString();
}

QString RutaTrabajoReportes(const Sesion& s) { return s.RutaDatos(QStringLiteral("Trabajo/Trabajo.mdb")); }
QString RutaProyectoReportes(const Sesion& s) { return s.RutaDatos(QStringLiteral("Trabajo/Proyecto.mdb")); }
QString RutaCatalogoReportes(const Sesion& s) { return s.RutaDatos(QStringLiteral("BDatos/BD_Piezas_Conexiones.mdb")); }

bool NumeroConMiles(const QString& texto, double& valor) {
    const Separadores& m = SeparadoresActuales();
    QString t = Trim(texto);
    t.remove(m.miles);
    if (m.decimal != QLatin1Char('.')) {
        if (t.contains(QLatin1Char('.'))) return false;
        t.replace(m.decimal, QLatin1Char('.'));
    }
    bool ok = false;
    const double v = QLocale::c().toDouble(t, &ok);
    if (ok) valor = v;
    return ok;
}

bool LleneTablasComputos(const QString& rutaTrabajo, const PaginasComputos& c, const ProyectoEdificio& p,
                         const Sesion& s, const OpcionesDatos& o, QString& error) {
    Conexion b;
    if (!AbrirTrabajo(b, rutaTrabajo, error)) return false;
    Transaccion t(b);
    if (!LleneGeneralesProyecto(b, p, s, o)) return FalloTrabajo(b, error);
    if (!LleneComputo(b, "ImpreComputosPiezas", c.Piezas, 1, true, error) ||
        !LleneComputo(b, "ImpreComputosConexiones", c.Conexiones, 2, true, error) ||
        !LleneComputo(b, "ImpreComputosReducciones", c.Reducciones, 3, true, error) ||
        !LleneComputo(b, "ImpreComputosTuberias", c.Tuberias, 4, false, error))
        return false;
    return t.Confirmar() || FalloTrabajo(b, error);
}

bool LleneTablaTanque(const QString& rutaTrabajo, const DatosTanque& t, const QStringList& valores,
                      const ProyectoEdificio& p, const Sesion& s, const OpcionesDatos& o, QString& error) {
    std::vector<Valor> resultados;
    for (int i = 0; i < 7; ++i) {
        double v = 0.0;
        if (i >= valores.size() || !NumeroConMiles(valores[i], v)) {
            error = QStringLiteral("El resultado «%1» del tanque no es un número.").arg(valores.value(i));
            return false;
        }
        resultados.push_back(v);
    }
    Conexion b;
    if (!AbrirTrabajo(b, rutaTrabajo, error)) return false;
    Transaccion tr(b);
    const int m = t.NumeroMetodo;
    std::vector<Valor> fila{TextoMetodoReporte(m),
                            m,
                            m == 3 ? Valor(int(t.NumeroPiezas)) : Valor(),
                            m == 3 ? Valor(t.FactorPeerlees) : Valor(),
                            m == 2 ? Valor(t.Dotacion) : Valor(),
                            m == 1 ? Valor(t.Caudal) : Valor(),
                            m == 1 ? Valor(t.Porcentaje) : Valor(),
                            t.PresionMinima,
                            t.PresionMaxima,
                            t.Arranques,
                            t.Succion,
                            FactorK(t.OpcionK)};
    fila.insert(fila.end(), resultados.begin(), resultados.end());
    if (!LleneGeneralesProyecto(b, p, s, o) || !b.Ejecutar(QStringLiteral("DELETE FROM TanqueHidroneumatico")) ||
        !b.Ejecutar(QStringLiteral("INSERT INTO TanqueHidroneumatico (Metodo, NumeroMetodo, NumeroPiezas, "
                                   "FactorPeerlees, Dotacion, Caudal, Porcentaje, PresionMinima, PresionMaxima, "
                                   "Arranques, Succion, OpcionK, QB, VolumenTotal, VolumenMinimo, VolumenUtil, "
                                   "VolumenMaximo, PotenciaBomba, PotenciaMotor) "
                                   "VALUES (?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?)"),
                    fila) ||
        !tr.Confirmar())
        return FalloTrabajo(b, error);
    return true;
}

bool LleneGeneralesCatalogo(const QString& rutaTrabajo, const OpcionesDatos& o, QString& error) {
    Conexion b;
    if (!AbrirTrabajo(b, rutaTrabajo, error)) return false;
    Transaccion t(b);
    if (!b.Ejecutar(QStringLiteral("DELETE FROM DatosGenerales")) ||
        !b.Ejecutar(QStringLiteral("INSERT INTO DatosGenerales (FormatoColor, Titulo1, Version) VALUES (?, ?, ?)"),
                    {Logico(o.FormatoColor), Trim(o.Titulo), EtiquetaVersion()}) ||
        !t.Confirmar())
        return FalloTrabajo(b, error);
    return true;
}

bool CopieProyectoReporte(const QString& rutaProyectoReporte, const QString& archivoProyecto, const Sesion& s,
                          const OpcionesDatos& o, QString& error) {
    if (Trim(archivoProyecto).isEmpty() || !QFileInfo(archivoProyecto).isFile()) {
        error = QStringLiteral("El proyecto no tiene un archivo salvado del cual imprimir sus datos.\n"
                               "Salve el proyecto y vuelva a pedir el reporte.");
        return false;
    }
    Conexion b;
    if (!AbrirTrabajo(b, rutaProyectoReporte, error)) return false;
    // An attached file cannot join a transaction already begun.
    if (!b.Ejecutar(QStringLiteral("ATTACH ?1 AS p"), {archivoProyecto})) {
        error = QStringLiteral("No se pudo leer el archivo del proyecto «%1»: %2").arg(archivoProyecto, b.UltimoError());
        return false;
    }
    bool bien = false;
    {
        Transaccion t(b);
        bien = CopieTablas(b, error) &&
               ((b.Ejecutar(QStringLiteral("UPDATE DatosGenerales SET FormatoColor = ?, Empresa = ?, Titulo = ?"),
                            {Logico(o.FormatoColor), s.NombreUsuario, Trim(o.Titulo)}) &&
                 t.Confirmar()) ||
                FalloTrabajo(b, error));
    }
    b.Ejecutar(QStringLiteral("DETACH p"));
    return bien;
}
