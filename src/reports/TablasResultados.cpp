#include "reports/TablasResultados.h"

#include "analysis/AnalisisRed.h"
#include "analysis/DatosEsquema.h"
#include "base/Nivo.h"
#include "model/ProyectoEdificio.h"
#include "reports/BaseTrabajo.h"
#include "shell/Sesion.h"
#include "shell/Titulos.h"
#include "store/Conexion.h"

#include <QLocale>
#include <cmath>
#include <vector>

namespace {

// A refusal that names the grid, row and column the engineer can find.
struct CeldaInvalida {
    QString mensaje;
};

class LectorGrid {
public:
    LectorGrid(const Grid& g, const char* nombre) : g_(g), nombre_(QString::fromUtf8(nombre)) {}

    QString Texto(int fila, int columna) const { return Trim(g_.Texto(fila, columna)); }
    double Numero(int fila, int columna, bool blancoEsCero = true) const {
        double v = 0.0;
        if (!NumeroMostrado(g_, fila, columna, blancoEsCero, v))
            throw CeldaInvalida{QStringLiteral("La celda de la fila %1, columna %2 de %3 no tiene un número: «%4».")
                                    .arg(fila)
                                    .arg(columna)
                                    .arg(nombre_, g_.Texto(fila, columna))};
        return v;
    }
    // A 16-bit integer column, rounded as the older conversion did.
    int Entero(int fila, int columna) const { return int(std::lround(Numero(fila, columna))); }
    // True when the cell holds an integer of 2 or more.
    bool Final(int fila, int columna) const {
        double v = 0.0;
        return NumeroMostrado(g_, fila, columna, true, v) && v >= 2.0 && v == std::floor(v);
    }

private:
    const Grid& g_;
    QString nombre_;
};

bool LleneDatosGenerales(Conexion& c, const AnalisisRed& a, const ProyectoEdificio& p, const Sesion& s,
                         const OpcionesResultados& o) {
    return c.Ejecutar(QStringLiteral("DELETE FROM DatosGenerales")) &&
           c.Ejecutar(QStringLiteral("INSERT INTO DatosGenerales (Proyecto, Ubicacion, Calculista, Comentario, Fecha, "
                                     "Empresa, FormatoColor, Titulo1, Titulo2, Version, AlturaTanque, "
                                     "OpcionPresionInicial, Valor1, Valor2, Valor3, PresionMinima, Caudal, "
                                     "NodoDesfaborable, Monto1) VALUES (?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?)"),
                      {p.Proyecto, p.Ubicacion, p.Calculista, p.Comentario, FechaTexto(p.Fecha), s.NombreUsuario,
                       Logico(o.FormatoColor), Trim(o.Titulo1), Trim(o.Titulo2), EtiquetaVersion(),
                       RoundNivo(a.Double1, 2), int(p.OpcionPresionInicial), p.Valor1, p.Valor2, p.Valor3,
                       p.PresionNodo.Leer(p.NodoNumI.Leer(1)), p.Gasto.Leer(1), p.NodoDesfaborableNombre,
                       p.PresionNodo.Leer(p.NodoDesfaborable)});
}

// Writes one row per row of a grid of a grid into an emptied table.
template <class F>
bool LleneTabla(Conexion& c, const char* tabla, const QString& columnas, int n, const Grid& g, F fila) {
    if (!c.Ejecutar(QStringLiteral("DELETE FROM %1").arg(QString::fromLatin1(tabla)))) return false;
    const QString marcas = QStringList(n, QStringLiteral("?")).join(QLatin1Char(','));
    Consulta q(c, QStringLiteral("INSERT INTO %1 (%2) VALUES (%3)").arg(QString::fromLatin1(tabla), columnas, marcas));
    if (!q.Valida()) return false;
    for (int f = 1; f <= g.Filas(); ++f)
        if (!q.Ejecutar(fila(f))) return false;
    return true;
}

// The two tables of several rows per branch: three texts, the fourth column
// (an integer count, or the size's text), four numbers and the Final flag.
bool LleneFilasRamal(Conexion& c, const Grid& g, const char* nombre, const char* tabla, const QString& columnas,
                     bool cuartaEsTexto) {
    const LectorGrid l(g, nombre);
    return LleneTabla(c, tabla, columnas, 10, g, [&](int f) -> std::vector<Valor> {
        return {f, l.Texto(f, 1), l.Texto(f, 2), l.Texto(f, 3), cuartaEsTexto ? Valor(l.Texto(f, 4)) : Valor(l.Entero(f, 4)),
                l.Numero(f, 5), l.Numero(f, 6), l.Numero(f, 7), l.Numero(f, 8), Logico(l.Final(f, 9))};
    });
}

bool LleneUnidadesGasto(Conexion& c, const Grid& g) {
    // The first column is the J node here, the reverse of the other tables.
    return LleneFilasRamal(c, g, "Unidades de Gasto", "ImpreUnidadesGasto",
                           QStringLiteral("Numero, Nodoj, NodoI, Descripcion, Cantidad, PorPieza, SubTotal, Total, Gasto, Final"),
                           false);
}

bool LleneLongitudesEquivalentes(Conexion& c, const Grid& g) {
    return LleneFilasRamal(c, g, "Longitudes Equivalentes", "ImpreLongitudesEquivalentes",
                           QStringLiteral("Numero, NodoI, Nodoj, Descripcion, Diametro, Cantidad, PorPieza, SubTotal, Total, Final"),
                           true);
}

bool LlenePresiones(Conexion& c, const Grid& g) {
    const LectorGrid l(g, "Pérdidas y Presiones");
    return LleneTabla(c, "ImprePresiones",
                      QStringLiteral("Numero, NodoI, Nodoj, Caudal, Diametro, longitudReal, LongitudEquivalente, "
                                     "LongitudTotal, Velocidad, PerdidaUnitaria, PerdidaTotal, CotaP_Atras, "
                                     "CotaP_Adelante, RestaCotas, ValvulaR, CargaDisponible"),
                      16, g, [&](int f) -> std::vector<Valor> {
                          std::vector<Valor> v{f, l.Texto(f, 1), l.Texto(f, 2), l.Numero(f, 3, false), l.Texto(f, 4)};
                          for (int k = 5; k <= 15; ++k) v.push_back(l.Numero(f, k, k == 13 || k == 14));
                          return v;
                      });
}

}  // namespace

bool NumeroMostrado(const Grid& g, int fila, int columna, bool blancoEsCero, double& valor) {
    QString t = Trim(g.Texto(fila, columna));
    valor = 0.0;
    if (t.isEmpty()) return blancoEsCero;
    // The grids show numbers without thousands marks: only the decimal mark
    // is changed, so that a mark of the wrong kind is refused, not skipped.
    const QChar decimal = SeparadoresActuales().decimal;
    if (decimal != QLatin1Char('.')) {
        if (t.contains(QLatin1Char('.'))) return false;
        t.replace(decimal, QLatin1Char('.'));
    }
    bool ok = false;
    const double v = QLocale::c().toDouble(t, &ok);
    if (ok) valor = v;
    return ok;
}

bool LleneTablasResultados(const QString& ruta, const AnalisisRed& a, const ProyectoEdificio& p, const Sesion& s,
                           const OpcionesResultados& o, QString& error) {
    Conexion c;
    if (!AbrirTrabajo(c, ruta, error)) return false;
    Transaccion t(c);
    try {
        if (!LleneDatosGenerales(c, a, p, s, o) || !LleneUnidadesGasto(c, a.Spread1) ||
            !LleneLongitudesEquivalentes(c, a.Spread2) || !LlenePresiones(c, a.Spread3) ||
            !GuardeDibujo(c, QStringLiteral("esquema"), EsquemaComoJson(EsquemaDeProyecto(p, &a.Spread3))) || !t.Confirmar())
            return FalloTrabajo(c, error);
    } catch (const CeldaInvalida& e) {
        error = e.mensaje;
        return false;
    }
    return true;
}

bool LleneTablasResultados(const AnalisisRed& a, const ProyectoEdificio& p, const Sesion& s,
                           const OpcionesResultados& o, QString& error) {
    return LleneTablasResultados(s.RutaDatos(QStringLiteral("Trabajo/Trabajo.mdb")), a, p, s, o, error);
}
