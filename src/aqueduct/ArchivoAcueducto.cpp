#include "aqueduct/ArchivoAcueducto.h"

#include "aqueduct/NumeracionNodos.h"
#include "aqueduct/ProyectoAcueducto.h"
#include "base/Dialogos.h"
#include "base/Nivo.h"
#include "shell/Sesion.h"
#include "store/Conexion.h"

#include <QFileInfo>

namespace {

// A whole number of a field, faulting as the older runtime did when it does
// not fit the variable.
long long Entero(long long e, long long minimo, long long maximo, const char* campo) {
    if (e < minimo || e > maximo) throw ErrorEjecucion(Error::Desbordamiento, QString::fromLatin1(campo));
    return e;
}

long long Entero(const Valor& v, long long minimo, long long maximo, const char* campo) {
    return Entero(ComoEntero(v), minimo, maximo, campo);
}

uint8_t Byte(const Valor& v, const char* campo) { return uint8_t(Entero(v, 0, 255, campo)); }

void LeerGenerales(ProyectoAcueducto& p, Conexion& c) {
    Consulta q(c, QStringLiteral("SELECT * FROM Generales ORDER BY rowid"));
    if (!q.Siguiente()) return;
    auto campo = [&](const char* n) { return q.Columna(QString::fromLatin1(n)); };
    const Valor proyecto = campo("Proyecto");
    if (!proyecto.isValid() || proyecto.isNull())
        throw ErrorEjecucion(94, QStringLiteral("el campo Proyecto de Generales es nulo"));
    p.Proyecto = ComoTexto(proyecto);
    p.Ubicacion = ComoTexto(campo("Ubicacion"));
    p.Calculista = ComoTexto(campo("Calculista"));
    if (const QDate d = LeerFecha(ComoTexto(campo("Fecha"))); d.isValid()) p.Fecha = d;
    p.Comentario = ComoTexto(campo("Comentario"));
    p.OpcionConsumo = Byte(campo("OpcionConsumo"), "OpcionConsumo");
    p.OpcionDiametro = Byte(campo("OpcionDiametro"), "OpcionDiametro");
    p.C = int(Entero(campo("C"), -32768, 32767, "C"));
    p.CasoPorcentaje = Byte(campo("CasoPorcentaje"), "CasoPorcentaje");
    p.DeltaPorcentaje = ComoDoble(campo("DeltaPorcentaje"));
    p.FactorQMax = ComoDoble(campo("FactorQMax"));
    p.FactorIncendio = ComoDoble(campo("FactorIncendio"));
    p.LitrosIncendio = ComoDoble(campo("LitrosIncendio"));
    p.NumeroTramos = int(Entero(campo("NumeroTramos"), -32768, 32767, "NumeroTramos"));
}

// Sections in the order of Numero, into positions 1, 2... whatever Numero
// says; more rows than NumeroTramos is a subscript error.
void LeerTramos(ProyectoAcueducto& p, Conexion& c) {
    p.DimensionarTramos(p.NumeroTramos);
    Consulta q(c, QStringLiteral("SELECT * FROM Tramos ORDER BY Numero, rowid"));
    const int ci = q.IndiceColumna(QStringLiteral("Inicio")), cf = q.IndiceColumna(QStringLiteral("Final")),
              cl = q.IndiceColumna(QStringLiteral("Longitud")), cd = q.IndiceColumna(QStringLiteral("Diametro")),
              cc = q.IndiceColumna(QStringLiteral("CoeficienteC")), cq = q.IndiceColumna(QStringLiteral("Demanda"));
    for (int i = 1; q.Siguiente(); ++i) {
        p.Inicio[i] = q.Texto(ci);
        p.Final[i] = q.Texto(cf);
        p.Longitud[i] = q.Doble(cl);
        p.Diametro[i] = q.Doble(cd);
        p.CoeficienteC[i] = int(Entero(q.Entero(cc), -32768, 32767, "CoeficienteC"));
        p.Demanda[i] = q.Doble(cq);
    }
}

// A stored coordinate: null (or a column the file lacks) is none.
std::optional<double> Coordenada(const Valor& v) {
    if (!v.isValid() || v.isNull()) return std::nullopt;
    return ComoDoble(v);
}

// Node data in file order.  The arrays have the size the numbering gave; a
// table with more rows (a project without sections, a node list written by
// hand) makes them grow to it rather than stop.
void LeerNodos(ProyectoAcueducto& p, Conexion& c) {
    p.DimensionarNodos(p.NumeroNodosACU);
    const long long filas = ComoEntero(c.Escalar(QStringLiteral("SELECT count(*) FROM Nodos")));
    if (filas == 0) return;
    p.NumeroNodosACU = int(Entero(filas, 0, 32767, "Nodos"));
    if (p.Nodos.Ubound() < p.NumeroNodosACU) p.DimensionarNodos(p.NumeroNodosACU);
    Consulta q(c, QStringLiteral("SELECT * FROM Nodos ORDER BY Numero, rowid"));
    const int cn = q.IndiceColumna(QStringLiteral("Nodos")), cm = q.IndiceColumna(QStringLiteral("ConsumoMedio")),
              ct = q.IndiceColumna(QStringLiteral("CotaTerreno")),
              cb = q.IndiceColumna(QStringLiteral("CotaBombaEstanque"));
    // Files of earlier versions have no X, Y: the index is then -1 and the
    // value null.
    const int cx = q.IndiceColumna(QStringLiteral("X")), cy = q.IndiceColumna(QStringLiteral("Y"));
    for (int i = 1; i <= p.NumeroNodosACU && q.Siguiente(); ++i) {
        p.Nodos[i] = Trim(q.Texto(cn));
        p.ConsumoMedio[i] = q.Doble(cm);
        p.CotaTerreno[i] = q.Doble(ct);
        p.CotaBombaEstanque[i] = q.Doble(cb);
        p.X[i] = Coordenada(q.Columna(cx));
        p.Y[i] = Coordenada(q.Columna(cy));
    }
}

Valor ValorCoordenada(const std::optional<double>& c) { return c ? Valor(RoundNivo(*c, 3)) : Nulo(); }

bool HayCoordenadas(const ProyectoAcueducto& p) {
    for (int i = 1; i <= p.NumeroNodosACU; ++i)
        if (p.X.Leer(i) || p.Y.Leer(i)) return true;
    return false;
}

// The columns X, Y: a file of an earlier version gets them, inside the
// save's transaction, only when some node has coordinates, so that a
// network without them leaves the file as older programs wrote it.
bool ColumnasCoordenadas(const ProyectoAcueducto& p, Conexion& c, bool& existen) {
    const QStringList columnas = c.ColumnasDe(QStringLiteral("Nodos"));
    existen = columnas.contains(QStringLiteral("X"), Qt::CaseInsensitive) &&
              columnas.contains(QStringLiteral("Y"), Qt::CaseInsensitive);
    if (existen || !HayCoordenadas(p)) return true;
    for (const char* col : {"X", "Y"})
        if (!columnas.contains(QString::fromLatin1(col), Qt::CaseInsensitive) &&
            !c.Ejecutar(QStringLiteral("ALTER TABLE Nodos ADD COLUMN %1 REAL").arg(QLatin1String(col))))
            return false;
    existen = true;
    return true;
}

QString TextoFalla(const ErrorEjecucion& e) {
    return QStringLiteral("Error %1: %2").arg(e.numero()).arg(e.numero() == 94 ? QStringLiteral("Uso no válido de Null")
                                                                               : e.descripcion()) +
           (e.detalle().isEmpty() ? QString() : QStringLiteral(" (") + e.detalle() + QLatin1Char(')'));
}

// Texts are written as texts even when empty, so that a load reads them back.
Valor TextoNoNulo(const QString& t) { return Valor(t.isNull() ? QString(QLatin1String("")) : t); }

bool EscribirTodo(ProyectoAcueducto& p, Sesion& s, Conexion& c, QString& error) {
    auto falla = [&](const QString& que) {
        error = QStringLiteral("No se Pudo Salvar el Proyecto (") + que + QStringLiteral(")\n") + c.UltimoError();
        return false;
    };
    for (const char* t : {"Generales", "Tramos", "Nodos"})
        if (!c.Ejecutar(QStringLiteral("DELETE FROM ") + QString::fromLatin1(t))) return falla(QString::fromLatin1(t));
    if (!c.Ejecutar(QStringLiteral("INSERT INTO Generales (Proyecto, Ubicacion, Calculista, Fecha, Comentario, "
                                   "OpcionConsumo, OpcionDiametro, C, CasoPorcentaje, DeltaPorcentaje, FactorQMax, "
                                   "FactorIncendio, LitrosIncendio, NumeroTramos) VALUES (?,?,?,?,?,?,?,?,?,?,?,?,?,?)"),
                    {TextoNoNulo(p.Proyecto), TextoNoNulo(p.Ubicacion), TextoNoNulo(p.Calculista),
                     FechaTexto(p.Fecha), TextoNoNulo(p.Comentario), int(p.OpcionConsumo), int(p.OpcionDiametro),
                     int(p.C), int(p.CasoPorcentaje), p.CasoPorcentaje == 1 ? p.DeltaPorcentaje : 0.0,
                     p.FactorQMax, p.FactorIncendio, p.LitrosIncendio, int(p.NumeroTramos)}))
        return falla(QStringLiteral("Generales"));

    p.RedimensionarTramos(p.NumeroTramos);
    {
        Consulta q(c, QStringLiteral("INSERT INTO Tramos (Numero, Inicio, Final, Longitud, Diametro, CoeficienteC, "
                                     "Demanda) VALUES (?,?,?,?,?,?,?)"));
        for (int i = 1; i <= p.NumeroTramos; ++i)
            if (!q.Ejecutar({i, TextoNoNulo(Trim(p.Inicio[i])), TextoNoNulo(Trim(p.Final[i])),
                             RoundNivo(p.Longitud[i], 2), RoundNivo(p.Diametro[i], 3), int(p.CoeficienteC[i]),
                             RoundNivo(p.Demanda[i], 3)}))
                return falla(QStringLiteral("Tramos"));
    }

    NumerarNodos(p, s);
    p.RedimensionarNodos(p.NumeroNodosACU);
    bool coordenadas = false;
    if (!ColumnasCoordenadas(p, c, coordenadas)) return falla(QStringLiteral("Nodos"));
    {
        Consulta q(c, coordenadas ? QStringLiteral("INSERT INTO Nodos (Numero, Nodos, ConsumoMedio, CotaTerreno, "
                                                   "CotaBombaEstanque, X, Y) VALUES (?,?,?,?,?,?,?)")
                                  : QStringLiteral("INSERT INTO Nodos (Numero, Nodos, ConsumoMedio, CotaTerreno, "
                                                   "CotaBombaEstanque) VALUES (?,?,?,?,?)"));
        for (int i = 1; i <= p.NumeroNodosACU; ++i) {
            std::vector<Valor> fila{i, TextoNoNulo(Trim(p.Nodos[i])), RoundNivo(p.ConsumoMedio[i], 3),
                                    RoundNivo(p.CotaTerreno[i], 2), RoundNivo(p.CotaBombaEstanque[i], 2)};
            if (coordenadas) {
                fila.push_back(ValorCoordenada(p.X[i]));
                fila.push_back(ValorCoordenada(p.Y[i]));
            }
            if (!q.Ejecutar(fila)) return falla(QStringLiteral("Nodos"));
        }
    }
    return true;
}

}  // namespace

bool EsArchivoAcueducto(Conexion& c) {
    for (const char* t : {"Generales", "Nodos", "Tramos"})
        if (!c.ExisteTabla(QString::fromLatin1(t))) return false;
    return true;
}

bool AbrirTablasACU(Conexion& c, const QString& archivo, QString& error) {
    if (AbrirConexion(c, archivo) != 0) {
        error = c.UltimoError();
        return false;
    }
    if (!EsArchivoAcueducto(c)) {
        error = QStringLiteral("El archivo no es un proyecto de acueductos: ") + archivo;
        c.Cerrar();
        return false;
    }
    return true;
}

bool LeerProyectoACU(ProyectoAcueducto& p, Sesion& s, QString& error) {
    error.clear();
    Conexion c;
    if (!AbrirTablasACU(c, s.ArchivoProyectoACU, error)) return false;
    // Read into a copy, so that a file that stops half way leaves the model
    // as it was.
    ProyectoAcueducto nuevo = p;
    try {
        LeerGenerales(nuevo, c);
        LeerTramos(nuevo, c);
        NumerarNodos(nuevo, s);
        LeerNodos(nuevo, c);
    } catch (const ErrorEjecucion& e) {
        error = QStringLiteral("No se puede leer el proyecto ") + QFileInfo(s.ArchivoProyectoACU).fileName() +
                QStringLiteral(":\n") + TextoFalla(e);
        return false;
    }
    p = std::move(nuevo);
    return true;
}

bool SalvarProyectoACU(ProyectoAcueducto& p, Sesion& s, QString& error) {
    error.clear();
    Conexion c;
    if (!AbrirTablasACU(c, s.ArchivoProyectoACU, error)) return false;
    Transaccion t(c);
    try {
        if (!EscribirTodo(p, s, c, error)) return false;
    } catch (const ErrorEjecucion& e) {
        error = QStringLiteral("No se Pudo Salvar el Proyecto\n") + TextoFalla(e);
        return false;
    }
    if (!t.Confirmar()) {
        error = QStringLiteral("No se Pudo Salvar el Proyecto\n") + c.UltimoError();
        return false;
    }
    s.DatosModificados = 0;
    return true;
}

bool CargarProyectoACU(ProyectoAcueducto& p, Sesion& s, const QString& archivo, QString& error) {
    s.ArchivoProyectoACU = archivo;
    s.NombreProyectoACU = QFileInfo(archivo).fileName();
    s.DatosModificados = 0;
    BorrarArreglosACU(p);
    return LeerProyectoACU(p, s, error);
}

bool AbrirOtroProyectoACU(ProyectoAcueducto& p, Sesion& s, Dialogos& d) {
    const auto ruta = d.AbrirArchivo(QStringLiteral("Abrir un Proyecto Existente"), QStringLiteral("*.ACU|*.acu"),
                                     s.RutaDatos(QStringLiteral("Redes")));
    if (!ruta) return false;
    const QString archivo = s.ArchivoProyectoACU, nombre = s.NombreProyectoACU;
    const int16_t modificados = s.DatosModificados;
    ProyectoAcueducto nuevo;
    nuevo.Cliente = p.Cliente;
    nuevo.Orden = p.Orden;
    QString error;
    if (!CargarProyectoACU(nuevo, s, *ruta, error)) {
        s.ArchivoProyectoACU = archivo;
        s.NombreProyectoACU = nombre;
        s.DatosModificados = modificados;
        d.MostrarMensaje(error, QStringLiteral("Error en Lectura de Datos..."), QStringLiteral("Proyecto de Fontaria"));
        return false;
    }
    p = std::move(nuevo);
    return true;
}
