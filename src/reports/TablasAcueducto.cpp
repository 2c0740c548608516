#include "reports/TablasAcueducto.h"

#include "aqueduct/CasosDemanda.h"
#include "aqueduct/DatosPlano.h"
#include "aqueduct/ProyectoAcueducto.h"
#include "base/Nivo.h"
#include "reports/BaseTrabajo.h"
#include "shell/Sesion.h"
#include "shell/Titulos.h"
#include "store/Conexion.h"

namespace {

bool Vaciar(Conexion& c, std::initializer_list<const char*> tablas) {
    for (const char* t : tablas)
        if (!c.Ejecutar(QStringLiteral("DELETE FROM %1").arg(QString::fromLatin1(t)))) return false;
    return true;
}

bool LleneGenerales(Conexion& c, const ProyectoAcueducto& p, const Sesion& s, bool formatoColor) {
    return c.Ejecutar(QStringLiteral("INSERT INTO Generales (Proyecto, Ubicacion, Calculista, Fecha, Usuario, Version, "
                                     "NumeroTramos, Color, Minimo, Maximo, Caso) VALUES (?,?,?,?,?,?,?,?,?,?,?)"),
                      {p.Proyecto, p.Ubicacion, p.Calculista, FechaTexto(p.Fecha), s.NombreUsuario, EtiquetaVersion(),
                       int(p.NumeroTramos), Logico(formatoColor), p.NodoMinimo, p.NodoMaximo, TextoCasoReporte(p)});
}

bool LleneTramos(Conexion& c, const ProyectoAcueducto& p) {
    Consulta q(c, QStringLiteral("INSERT INTO Tramos (Numero, NodoInicial, NodoFinal, longitudReal, LongitudCalculo, "
                                 "Diametro, FactorC, Caudal, Velocidad, Perdidas, HF) VALUES (?,?,?,?,?,?,?,?,?,?,?)"));
    if (!q.Valida()) return false;
    for (int t = 1; t <= p.NumeroTramos; ++t) {
        // A zero design length never passes the data checks; it prints 0
        // rather than a division by zero.
        const double l = p.LongitudCalculo.Leer(t);
        const double hf = l > 0.0 ? p.Perdidas.Leer(t) * 1000.0 / l : 0.0;
        if (!q.Ejecutar({t, p.Inicio.Leer(t), p.Final.Leer(t), p.Longitud.Leer(t), l, p.Diametro.Leer(t),
                         int(p.CoeficienteC.Leer(t)), p.Caudal.Leer(t), p.Velocidad.Leer(t), p.Perdidas.Leer(t), hf}))
            return false;
    }
    return true;
}

bool LleneNodos(Conexion& c, const ProyectoAcueducto& p) {
    Consulta q(c, QStringLiteral("INSERT INTO Nodos (Numero, Nodo, CotaTerreno, DemandaReal, DemandaCalculo, "
                                 "CotaPiezometrica, Presion, TramosConectados, NombreTramos) VALUES (?,?,?,?,?,?,?,?,?)"));
    if (!q.Valida()) return false;
    for (int n = 1; n <= p.NumeroNodosACU; ++n)
        if (!q.Ejecutar({n, p.Nodos.Leer(n), p.CotaTerreno.Leer(n), p.DemandaReal.Leer(n) * 1000.0,
                         p.DemandaCalculo.Leer(n), p.CotaPiezometrica.Leer(n), PresionNodo(p, n),
                         int(p.TramosConectados.Leer(n)), p.NombreTramos.Leer(n)}))
            return false;
    return true;
}

// The rows of a sheet under an emptied table, with their columns.
bool LleneFilas(Conexion& c, const char* tabla, const QString& columnas, const std::vector<FilaHoja>& filas,
                bool conNodos) {
    if (!Vaciar(c, {tabla})) return false;
    Consulta q(c, QStringLiteral("INSERT INTO %1 (%2) VALUES (%3)")
                      .arg(QString::fromLatin1(tabla), columnas, conNodos ? QStringLiteral("?,?,?") : QStringLiteral("?")));
    if (!q.Valida()) return false;
    for (const FilaHoja& f : filas) {
        const std::vector<Valor> v = conNodos ? std::vector<Valor>{f.Numero, Trim(f.NodoI), Trim(f.NodoJ)}
                                              : std::vector<Valor>{f.Numero};
        if (!q.Ejecutar(v)) return false;
    }
    return true;
}

}  // namespace

bool LleneTablasAcueducto(const QString& ruta, const ProyectoAcueducto& p, const Sesion& s, bool formatoColor,
                          QString& error) {
    Conexion c;
    if (!AbrirTrabajo(c, ruta, error)) return false;
    Transaccion t(c);
    if (!Vaciar(c, {"Generales", "Tramos", "Nodos"}) || !LleneGenerales(c, p, s, formatoColor) || !LleneTramos(c, p) ||
        !LleneNodos(c, p) || !GuardeDibujo(c, QStringLiteral("plano"), PlanoComoJson(PlanoDeProyecto(p, CoordenadasNodos(p)))) ||
        !t.Confirmar())
        return FalloTrabajo(c, error);
    return true;
}

bool LleneTablasAcueducto(const ProyectoAcueducto& p, const Sesion& s, bool formatoColor, QString& error) {
    return LleneTablasAcueducto(s.RutaDatos(QStringLiteral("Trabajo/Resultados.mdb")), p, s, formatoColor, error);
}

bool CopieDatosProyectoACU(const QString& ruta, const QString& archivoProyecto, const QString& usuario,
                           QString& error) {
    Conexion c;
    if (!AbrirTrabajo(c, ruta, error)) return false;
    // The columns copied are those of the report's own tables that the
    // project also has: a file of an older form leaves the others blank, and
    // no name read from the file reaches the SQL text.
    QStringList columnas[3];
    const char* const tablas[3] = {"Generales", "Nodos", "Tramos"};
    {
        Conexion proyecto;
        if (!AbrirTrabajo(proyecto, archivoProyecto, error)) return false;
        for (int i = 0; i < 3; ++i) {
            const QString tabla = QString::fromLatin1(tablas[i]);
            const QStringList delProyecto = proyecto.ColumnasDe(tabla);
            for (const QString& col : c.ColumnasDe(tabla))
                if (delProyecto.contains(col, Qt::CaseInsensitive)) columnas[i] << col;
            if (!proyecto.ExisteTabla(tabla) || columnas[i].isEmpty()) {
                error = QStringLiteral("El archivo «%1» no es un proyecto de acueductos.").arg(archivoProyecto);
                return false;
            }
        }
    }
    // A database is attached outside any transaction.
    if (!c.Ejecutar(QStringLiteral("ATTACH ?1 AS p"), {archivoProyecto})) return FalloTrabajo(c, error);
    bool ok = false;
    {
        Transaccion t(c);
        ok = Vaciar(c, {"Generales", "Nodos", "Tramos"});
        for (int i = 0; i < 3; ++i) {
            const QString lista = columnas[i].join(QStringLiteral(", "));
            ok = ok && c.Ejecutar(QStringLiteral("INSERT INTO %1 (%2) SELECT %2 FROM p.%1")
                                      .arg(QString::fromLatin1(tablas[i]), lista));
        }
        ok = ok && c.Ejecutar(QStringLiteral("UPDATE Generales SET Usuario = ?"), {usuario}) && t.Confirmar();
        if (!ok) FalloTrabajo(c, error);
    }
    c.Ejecutar(QStringLiteral("DETACH p"));
    return ok;
}

bool CopieDatosProyectoACU(const Sesion& s, QString& error) {
    return CopieDatosProyectoACU(s.RutaDatos(QStringLiteral("Trabajo/Datos.mdb")), s.ArchivoProyectoACU,
                                 s.NombreUsuario, error);
}

bool LleneHojasEdificio(const QString& ruta, const std::vector<FilaHoja>& filas, bool opcion1, QString& error) {
    Conexion c;
    if (!AbrirTrabajo(c, ruta, error)) return false;
    Transaccion t(c);
    if (!Vaciar(c, {"DatosGenerales"}) ||
        !c.Ejecutar(QStringLiteral("INSERT INTO DatosGenerales (Opcion1, FormatoColor, Version) VALUES (?,?,?)"),
                    {Logico(opcion1), Logico(opcion1), EtiquetaVersion()}) ||
        !LleneFilas(c, "ImpreUnidadesGasto", QStringLiteral("Numero, NodoI, Nodoj"), filas, true) || !t.Confirmar())
        return FalloTrabajo(c, error);
    return true;
}

bool LleneHojasAcueducto(const QString& ruta, const std::vector<FilaHoja>& filas, QString& error) {
    Conexion c;
    if (!AbrirTrabajo(c, ruta, error)) return false;
    Transaccion t(c);
    // The header of a blank sheet stays blank: no project of an earlier
    // report is printed on it, only the program's version at the foot.
    if (!Vaciar(c, {"Generales"}) ||
        !c.Ejecutar(QStringLiteral("INSERT INTO Generales (Version) VALUES (?)"), {EtiquetaVersion()}) ||
        !LleneFilas(c, "Tramos", QStringLiteral("Numero, NodoInicial, NodoFinal"), filas, true) ||
        !LleneFilas(c, "Nodos", QStringLiteral("Numero"), filas, false) || !t.Confirmar())
        return FalloTrabajo(c, error);
    return true;
}
