#include "model/ArchivoEdificio.h"

#include "base/Nivo.h"
#include "model/ProyectoEdificio.h"
#include "shell/Sesion.h"

#include <QFileInfo>
#include <functional>

namespace {

// A field read as the older program read it under a trap: the value is kept
// only when it converts; a null number or a number out of range leaves the
// target as it was.
bool Numero(const Valor& v, double& destino) {
    if (!v.isValid() || v.isNull()) return false;
    if (v.typeId() == QMetaType::QString) {
        double d = 0.0;
        if (!LeerNumeroGuardado(v.toString(), d)) return false;
        destino = d;
        return true;
    }
    if (v.typeId() == QMetaType::QByteArray) return false;
    destino = v.toDouble();
    return true;
}

void LeerDoble(const Valor& v, double& destino) { Numero(v, destino); }

template <typename T>
void LeerEnteroEn(const Valor& v, T& destino, long long minimo, long long maximo) {
    double d = 0.0;
    if (!Numero(v, d)) return;
    const long long e = static_cast<long long>(RoundNivo(d, 0));
    if (e < minimo || e > maximo) return;
    destino = static_cast<T>(e);
}

void LeerByte(const Valor& v, uint8_t& destino) { LeerEnteroEn(v, destino, 0, 255); }
void LeerEntero(const Valor& v, int& destino) { LeerEnteroEn(v, destino, -32768, 32767); }

void LeerLogico(const Valor& v, bool& destino) {
    if (!v.isValid() || v.isNull()) return;
    destino = ComoLogico(v);
}

// Runs one step of the read; a run-time fault skips it.
void Paso(const std::function<void()>& f) {
    try {
        f();
    } catch (const ErrorEjecucion&) {
    }
}

struct Columnas {
    explicit Columnas(const Consulta& q, std::initializer_list<const char*> nombres) {
        for (const char* n : nombres) indices.push_back(q.IndiceColumna(QString::fromUtf8(n)));
    }
    std::vector<int> indices;
    int operator[](size_t i) const { return indices[i]; }
};

void LeerGenerales(ProyectoEdificio& p, Conexion& c) {
    Consulta q(c, QStringLiteral("SELECT * FROM DatosGenerales"));
    if (!q.Siguiente()) return;
    auto campo = [&](const char* n) { return q.Columna(QString::fromUtf8(n)); };
    auto texto = [&](const char* n, QString& destino) {
        if (q.IndiceColumna(QString::fromUtf8(n)) >= 0) destino = ComoTexto(campo(n));
    };
    texto("Proyecto", p.Proyecto);
    texto("Ubicacion", p.Ubicacion);
    texto("Calculista", p.Calculista);
    texto("Comentario", p.Comentario);
    if (const QDate d = LeerFecha(ComoTexto(campo("Fecha"))); d.isValid()) p.Fecha = d;
    LeerByte(campo("OpcionUsoPiezas"), p.OpcionUsoPiezas);
    LeerByte(campo("OpcionPresionInicial"), p.OpcionPresionInicial);
    LeerDoble(campo("Valor1"), p.Valor1);
    LeerDoble(campo("Valor2"), p.Valor2);
    LeerDoble(campo("Valor3"), p.Valor3);
    LeerDoble(campo("Velocidad"), p.Velocidad);
    LeerByte(campo("OpcionDiametro"), p.OpcionDiametro);
    LeerLogico(campo("DiametroMinimo"), p.DiametroMinimo);
    LeerByte(campo("OpcionPerdidas"), p.OpcionPerdidas);
    LeerDoble(campo("CoeficienteC"), p.CoeficienteC);
    LeerLogico(campo("OpcionPresionM"), p.OpcionPresionM);
    LeerDoble(campo("PresionM"), p.PresionM);
}

void LeerRamales(ProyectoEdificio& p, Conexion& c) {
    if (!c.ExisteTabla(QStringLiteral("DatosRamales"))) return;
    const long long n = ComoEntero(c.Escalar(QStringLiteral("SELECT count(*) FROM DatosRamales")));
    p.NumeroRamales = int(n);  // the size was checked before the read
    p.DimensionarRamales(p.NumeroRamales);
    Consulta q(c, QStringLiteral("SELECT * FROM DatosRamales ORDER BY Numero, rowid"));
    const Columnas k(q, {"NodoI", "Nodoj", "longitudReal", "OpcionDiseño", "ValvulaR", "Comentario",
                         "Predimensionado", "Reduccion", "NPiezas", "NConexiones"});
    for (int i = 1; i <= p.NumeroRamales && q.Siguiente(); ++i) {
        p.NodoI[i] = ComoTexto(q.Columna(k[0]));
        p.Nodoj[i] = ComoTexto(q.Columna(k[1]));
        LeerDoble(q.Columna(k[2]), p.longitudReal[i]);
        LeerByte(q.Columna(k[3]), p.OpcionDiseño[i]);
        LeerDoble(q.Columna(k[4]), p.ValvulaR[i]);
        p.RamalComentario[i] = ComoTexto(q.Columna(k[5]));
        p.Predimensionado[i] = ComoTexto(q.Columna(k[6]));
        p.Reduccion[i] = ComoTexto(q.Columna(k[7]));
        LeerEntero(q.Columna(k[8]), p.NPiezas[i]);
        LeerEntero(q.Columna(k[9]), p.NConexiones[i]);
    }
}

void LeerNodos(ProyectoEdificio& p, Conexion& c) {
    if (!c.ExisteTabla(QStringLiteral("DatosNodos"))) return;
    p.NumeroNodos = int(ComoEntero(c.Escalar(QStringLiteral("SELECT count(*) FROM DatosNodos"))));
    p.DimensionarNodos(p.NumeroNodos);
    // Names follow the branches; the column Nodo is not read.
    Paso([&] { p.NodoNombre[1] = p.NodoI[1]; });
    for (int k = 1; k <= p.NumeroRamales; ++k) Paso([&] { p.NodoNombre[k + 1] = p.Nodoj[k]; });
    Consulta q(c, QStringLiteral("SELECT * FROM DatosNodos ORDER BY Numero, rowid"));
    const int cota = q.IndiceColumna(QStringLiteral("CotaPiso"));
    double referencia = 0.0;
    for (int i = 1; i <= p.NumeroNodos && q.Siguiente(); ++i) {
        LeerDoble(q.Columna(cota), p.CotaPiso[i]);
        // Node 1 is the reference of levels, or node 2 under an elevated
        // tank, whose own level is derived.
        if ((i == 1 && p.OpcionPresionInicial < 2) || (i == 2 && p.OpcionPresionInicial >= 2))
            referencia = p.CotaPiso[i];
        p.CotaRelativa[i] = p.CotaPiso[i] - referencia;
    }
}

// Fixtures or fittings: the rows of each branch in position order, into
// positions 1 up; rows after the thirtieth are lost.
void LeerFilasRamal(ProyectoEdificio& p, Conexion& c, const QString& tabla,
                    const std::function<void(const Consulta&, int, int)>& leerFila) {
    if (!c.ExisteTabla(tabla)) return;
    Consulta q(c, QStringLiteral("SELECT * FROM ") + tabla + QStringLiteral(" ORDER BY Ramal, Posicion, rowid"));
    const int colRamal = q.IndiceColumna(QStringLiteral("Ramal"));
    int ramalActual = -1, posicion = 0;
    while (q.Siguiente()) {
        double r = 0.0;
        if (!Numero(q.Columna(colRamal), r)) continue;
        const long long ramal = static_cast<long long>(RoundNivo(r, 0));
        if (ramal < 1 || ramal > p.NumeroRamales) continue;
        if (ramal != ramalActual) {
            ramalActual = int(ramal);
            posicion = 0;
        }
        ++posicion;
        if (posicion > FilasPorRamal) continue;
        leerFila(q, int(ramal), posicion);
    }
}

void LeerPiezas(ProyectoEdificio& p, Conexion& c) {
    LeerFilasRamal(p, c, QStringLiteral("DatosPiezas"), [&](const Consulta& q, int i, int pos) {
        LeerEntero(q.Columna(QStringLiteral("Clave")), p.PiezaClave(i, pos));
        p.PiezaNombre(i, pos) = ComoTexto(q.Columna(QStringLiteral("Pieza")));
        LeerDoble(q.Columna(QStringLiteral("UnidadesGasto")), p.PiezaUnidades(i, pos));
        LeerEntero(q.Columna(QStringLiteral("Cantidad")), p.PiezaCantidad(i, pos));
    });
}

void LeerConexiones(ProyectoEdificio& p, Conexion& c) {
    LeerFilasRamal(p, c, QStringLiteral("DatosConexiones"), [&](const Consulta& q, int i, int pos) {
        LeerEntero(q.Columna(QStringLiteral("Clave")), p.ConexionClave(i, pos));
        p.ConexionNombre(i, pos) = ComoTexto(q.Columna(QStringLiteral("Conexion")));
        LeerDoble(q.Columna(QStringLiteral("LongitudEquivalente")), p.ConexionLongitud(i, pos));
        LeerEntero(q.Columna(QStringLiteral("Cantidad")), p.ConexionCantidad(i, pos));
        LeerLogico(q.Columna(QStringLiteral("OpcionAutomatico")), p.ConexionAutomatica(i, pos));
    });
}

// A database file that holds the tables of a building project.
bool EsArchivoProyecto(Conexion& c) {
    for (const char* t : {"DatosGenerales", "DatosRamales", "DatosNodos", "DatosPiezas", "DatosConexiones"})
        if (!c.ExisteTabla(QString::fromLatin1(t))) return false;
    return true;
}

// The rows of a file against the 16-bit counters, nodes being one more than
// branches; empty when they fit.  A file beyond them would read as an empty
// project, which a save would then write over the data.
QString FallaDeTamano(Conexion& c) {
    const auto filas = [&](const QString& tabla) {
        return c.ExisteTabla(tabla) ? ComoEntero(c.Escalar(QStringLiteral("SELECT count(*) FROM ") + tabla)) : 0;
    };
    if (const long long n = filas(QStringLiteral("DatosRamales")); n > 32766)
        return QStringLiteral("El proyecto tiene %1 ramales; el máximo es 32766.").arg(n);
    if (const long long n = filas(QStringLiteral("DatosNodos")); n > 32767)
        return QStringLiteral("El proyecto tiene %1 nodos; el máximo es 32767.").arg(n);
    return QString();
}

}  // namespace

bool LeerProyecto(ProyectoEdificio& p, Sesion& s, QString* error) {
    Conexion& c = s.ConexionProyecto;
    QString falla = c.Abierta() ? FallaDeTamano(c) : c.UltimoError();
    if (!c.Abierta() || !falla.isEmpty()) {
        if (error) *error = falla;
        return false;
    }
    Paso([&] { LeerGenerales(p, c); });
    Paso([&] { LeerRamales(p, c); });
    Paso([&] { LeerNodos(p, c); });
    Paso([&] { LeerPiezas(p, c); });
    Paso([&] { LeerConexiones(p, c); });
    return true;
}

bool CargarProyectoEdificio(ProyectoEdificio& p, Sesion& s, const QString& archivo, QString& error) {
    {
        Conexion prueba;
        if (!prueba.Abrir(archivo)) {
            error = prueba.UltimoError();
            return false;
        }
        if (!EsArchivoProyecto(prueba)) {
            error = QStringLiteral("El archivo no es un proyecto de Fontaria: ") + archivo;
            return false;
        }
        error = FallaDeTamano(prueba);
        if (!error.isEmpty()) return false;
    }
    s.ArchivoProyecto = archivo;
    s.NombreProyecto = QFileInfo(archivo).fileName();
    ValoresIniciales(p, s);
    if (AbrirConexionProyecto(s) != 0) {
        error = s.ConexionProyecto.UltimoError();
        return false;
    }
    return LeerProyecto(p, s, &error);
}

QString MensajeProyectoSinRamales() {
    return QStringLiteral("El Proyecto no Tiene Ramales...\n"
                          "¡No se Puede Salvar un Proyecto sin Ramales!");
}

bool SalvarProyecto(ProyectoEdificio& p, Sesion& s, QString& error) {
    error.clear();
    if (p.NumeroRamales < 1) {
        error = MensajeProyectoSinRamales();
        return false;
    }
    if (AbrirConexionProyecto(s) != 0) {
        error = s.ConexionProyecto.UltimoError();
        return false;
    }
    Conexion& c = s.ConexionProyecto;
    Transaccion t(c);
    auto falla = [&](const QString& que) {
        error = QStringLiteral("No se Pudo Salvar el Proyecto (") + que + QStringLiteral(")\n") + c.UltimoError();
        return false;
    };

    if (!c.Ejecutar(QStringLiteral("DELETE FROM DatosGenerales"))) return falla(QStringLiteral("DatosGenerales"));
    // Ubicacion is never written and Cliente never read: the row is new, so
    // Ubicacion reads back empty.
    if (!c.Ejecutar(QStringLiteral(
                        "INSERT INTO DatosGenerales (Proyecto, Calculista, Cliente, Fecha, Comentario, "
                        "OpcionUsoPiezas, OpcionPresionInicial, Valor1, Valor2, Valor3, Velocidad, "
                        "OpcionDiametro, DiametroMinimo, OpcionPerdidas, CoeficienteC, OpcionPresionM, "
                        "PresionM) VALUES (?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?)"),
                    {p.Proyecto, p.Calculista, p.Cliente, FechaTexto(p.Fecha), p.Comentario,
                     int(p.OpcionUsoPiezas), int(p.OpcionPresionInicial), p.Valor1, p.Valor2, p.Valor3,
                     p.Velocidad, int(p.OpcionDiametro), Logico(p.DiametroMinimo), int(p.OpcionPerdidas),
                     p.CoeficienteC, Logico(p.OpcionPresionM), p.PresionM}))
        return falla(QStringLiteral("DatosGenerales"));
    for (const char* tabla : {"DatosRamales", "DatosNodos", "DatosPiezas", "DatosConexiones"})
        if (!c.Ejecutar(QStringLiteral("DELETE FROM ") + QString::fromLatin1(tabla)))
            return falla(QString::fromLatin1(tabla));

    {
        Consulta q(c, QStringLiteral(
                          "INSERT INTO DatosRamales (Numero, NodoI, Nodoj, longitudReal, OpcionDiseño, "
                          "ValvulaR, Comentario, Predimensionado, Reduccion, NPiezas, NConexiones) "
                          "VALUES (?,?,?,?,?,?,?,?,?,?,?)"));
        for (int i = 1; i <= p.NumeroRamales; ++i) {
            const QString& red = p.Reduccion[i];
            if (!q.Ejecutar({i, p.NodoI[i], p.Nodoj[i], p.longitudReal[i], int(p.OpcionDiseño[i]), p.ValvulaR[i],
                             p.RamalComentario[i], p.Predimensionado[i], red.isEmpty() ? Nulo() : Valor(red),
                             p.NPiezas[i], p.NConexiones[i]}))
                return falla(QStringLiteral("DatosRamales"));
        }
    }

    // Node names in the file always follow the branch order; levels are
    // kept by position.
    p.NumeroNodos = p.NumeroRamales + 1;
    p.NodoNombre.RedimPreserve(p.NumeroNodos);
    p.CotaPiso.RedimPreserve(p.NumeroNodos);
    p.CotaRelativa.RedimPreserve(p.NumeroNodos);
    p.NodoNombre[1] = p.NodoI[1];
    for (int k = 1; k <= p.NumeroRamales; ++k) p.NodoNombre[k + 1] = p.Nodoj[k];
    {
        Consulta q(c, QStringLiteral("INSERT INTO DatosNodos (Numero, Nodo, CotaPiso) VALUES (?,?,?)"));
        for (int i = 1; i <= p.NumeroNodos; ++i)
            if (!q.Ejecutar({i, p.NodoNombre[i], p.CotaPiso[i]})) return falla(QStringLiteral("DatosNodos"));
    }
    {
        Consulta q(c, QStringLiteral("INSERT INTO DatosPiezas (Ramal, Clave, Pieza, UnidadesGasto, Cantidad, "
                                     "Posicion) VALUES (?,?,?,?,?,?)"));
        for (int i = 1; i <= p.NumeroRamales; ++i)
            for (int k = 1; k <= p.NPiezas[i]; ++k)
                if (!q.Ejecutar({i, p.PiezaClave(i, k), p.PiezaNombre(i, k), p.PiezaUnidades(i, k),
                                 p.PiezaCantidad(i, k), k}))
                    return falla(QStringLiteral("DatosPiezas"));
    }
    {
        Consulta q(c, QStringLiteral("INSERT INTO DatosConexiones (Ramal, Clave, Conexion, LongitudEquivalente, "
                                     "Cantidad, OpcionAutomatico, Posicion) VALUES (?,?,?,?,?,?,?)"));
        for (int i = 1; i <= p.NumeroRamales; ++i)
            for (int k = 1; k <= p.NConexiones[i]; ++k)
                if (!q.Ejecutar({i, p.ConexionClave(i, k), p.ConexionNombre(i, k), p.ConexionLongitud(i, k),
                                 p.ConexionCantidad(i, k), Logico(p.ConexionAutomatica(i, k)), k}))
                    return falla(QStringLiteral("DatosConexiones"));
    }
    if (!t.Confirmar()) return falla(QStringLiteral("confirmación"));
    return true;
}
