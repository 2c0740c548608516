#include "takeoff/Computos.h"

#include "analysis/AnalisisRed.h"
#include "analysis/CargaProyecto.h"
#include "analysis/Numeracion.h"
#include "base/Dialogos.h"
#include "base/Entero16.h"
#include "base/Nivo.h"
#include "model/ProyectoEdificio.h"
#include "shell/Sesion.h"
#include "store/Colacion.h"
#include "store/Conexion.h"

namespace {

const char* const TiposConexion[10] = {
    "LLAVE DE PASO ABIERTA",   "LLAVE DE ANGULO ABIERTA", "LLAVE DE COMPUERTA ABIERTA", "CODO DE 45 GRADOS",
    "CODO DE 90 GRADOS",       "CODO DE 90 GRADOS MEDIO", "CODO DE 90 GRADOS LARGO",    "CODO DE 90 GRADOS RECTO",
    "CODO DE 180 GRADOS",      "TEE NORMAL",
};

void Configurar(Grid& g, const QString& descripcion, const QString& cantidad, int decimales) {
    g.PonerColumnas(2);
    g.PonerEncabezados(1, descripcion);
    g.PonerEncabezados(2, QStringLiteral("Cantidad"), cantidad);
    g.Col(1).tipo = TipoCelda::Texto;
    g.Col(1).ancho = 45;
    g.Col(2).tipo = decimales == 0 ? TipoCelda::Entero : TipoCelda::Numero;
    g.Col(2).decimales = decimales;
    g.Col(2).ancho = 14;
}

// Appends a row (text, number) to a grid.
void Fila(Grid& g, const QString& texto, double valor, int decimales) {
    const int f = g.Filas() + 1;
    g.PonerFilas(f);
    g.PonerEntero(f, 0, f);
    g.PonerTexto(f, 1, texto);
    if (decimales == 0) g.PonerEntero(f, 2, static_cast<long long>(valor));
    else g.PonerNumero(f, 2, valor, decimales);
}

// Rows (text, total) of a grouping query, into the grid.  Texts that differ
// only in case or accents make one row, as they did in the older database;
// the query's MIN(rowid) makes SQLite show the spelling written first.
void Agrupado(Grid& g, Conexion& c, const QString& sql, int decimales, QString (*texto)(const QString&)) {
    Consulta q(c, sql);
    while (q.Siguiente()) Fila(g, texto(ComoTexto(q.Columna(0))), ComoDoble(q.Columna(1)), decimales);
}

}  // namespace

QString NombreTipoConexion(int tipo) {
    return tipo >= 1 && tipo <= 10 ? QString::fromLatin1(TiposConexion[tipo - 1]) : QString();
}

PaginasComputos::PaginasComputos() { ConfigurarSpread(*this); }

QString PaginasComputos::TituloPagina(int pagina) {
    switch (pagina) {
    case 1: return QStringLiteral("Piezas Sanitarias");
    case 2: return QStringLiteral("Conexiones");
    case 3: return QStringLiteral("Reducciones");
    case 4: return QStringLiteral("Tuberías");
    default: return QString();
    }
}

void ConfigurarSpread(PaginasComputos& c) {
    Configurar(c.Piezas, QStringLiteral("Piezas Sanitarias"), QStringLiteral("Piezas"), 0);
    Configurar(c.Conexiones, QStringLiteral("Conexiones en Tuberías"), QStringLiteral("Conexiones"), 0);
    Configurar(c.Reducciones, QStringLiteral("Reducciones (Piezas)"), QStringLiteral("Reduciones"), 0);
    Configurar(c.Tuberias, QStringLiteral("Tuberías en el Proyecto"), QStringLiteral("Long. (m)"), 2);
}

void CalculeComputosPiezas(Grid& g, Conexion& c) {
    g.Vaciar();
    // The sub-branch (key 21) stands for what hangs there, not a fixture.
    Agrupado(g, c,
             QStringLiteral("SELECT Pieza, SUM(Cantidad) AS Total, MIN(rowid) FROM DatosPiezas WHERE (Clave >0 AND "
                            "Clave<>21) GROUP BY Pieza COLLATE ESPANOL ORDER BY Pieza COLLATE ESPANOL"),
             0, [](const QString& t) { return t; });
}

void CalculeComputosConexiones(Grid& g, Conexion& c) {
    g.Vaciar();
    for (int tipo = 1; tipo <= 10; ++tipo) {
        const QString claves = tipo < 10 ? QStringLiteral("Clave=%1").arg(tipo) : QStringLiteral("(Clave=10 OR Clave=11)");
        for (int k = 0; k < NumeroDiametros; ++k) {
            const QString tamano = QString::fromLatin1(TablaDiametros()[k].nombre);
            // The fittings of the type on branches of this size, in branch order.
            Consulta q(c, QStringLiteral("SELECT Cantidad FROM DatosConexiones d WHERE %1 AND EXISTS (SELECT 1 FROM "
                                         "DatosRamales r WHERE r.Predimensionado=? AND r.Numero=d.Ramal) "
                                         "ORDER BY Ramal, rowid")
                              .arg(claves));
            q.Enlazar({tamano});
            bool alguno = false;
            Entero16 total;
            while (q.Siguiente()) {
                alguno = true;
                total += int(ComoEntero(q.Columna(0)));
            }
            if (alguno)
                Fila(g, NombreTipoConexion(tipo) + QStringLiteral(" DE  ") + tamano + MarcaPulgada(), int(total), 0);
        }
    }
    // The fixed-length fittings (key 12 up), by the name typed on the branch, without size.
    Agrupado(g, c,
             QStringLiteral("SELECT Conexion, SUM(Cantidad) AS Total, MIN(rowid) FROM DatosConexiones WHERE Clave >11 "
                            "GROUP BY Conexion COLLATE ESPANOL ORDER BY Conexion COLLATE ESPANOL"),
             0, [](const QString& t) { return t; });
    g.OrdenarPorTexto(1, MenorTexto);
    for (int f = 1; f <= g.Filas(); ++f) g.PonerEntero(f, 0, f);
}

void CalculeComputosReducciones(Grid& g, Conexion& c) {
    g.Vaciar();
    Agrupado(g, c,
             QStringLiteral("SELECT Reduccion, COUNT(Reduccion) AS Total, MIN(rowid) FROM DatosRamales WHERE Reduccion IS "
                            "NOT NULL AND TRIM (Reduccion)<> '' GROUP BY Reduccion COLLATE ESPANOL ORDER BY "
                            "Reduccion COLLATE ESPANOL"),
             0, [](const QString& t) { return UCase(t); });
}

void CalculeComputosTuberias(Grid& g, Conexion& c) {
    g.Vaciar();
    Agrupado(g, c,
             QStringLiteral("SELECT Predimensionado, SUM(LongitudReal) AS Total FROM DatosRamales WHERE "
                            "Predimensionado <>'' AND Predimensionado IS NOT NULL GROUP BY Predimensionado "
                            "COLLATE ESPANOL ORDER BY Predimensionado COLLATE ESPANOL"),
             2, [](const QString& t) { return QStringLiteral("TUBERIA DE DIAMETRO = ") + t + MarcaPulgada(); });
}

void CalcularComputos(PaginasComputos& computos, Conexion& c) {
    CalculeComputosPiezas(computos.Piezas, c);
    CalculeComputosConexiones(computos.Conexiones, c);
    CalculeComputosReducciones(computos.Reducciones, c);
    CalculeComputosTuberias(computos.Tuberias, c);
}

void Computos::Cargar() {
    ConfigurarSpread(Paginas);
    CalcularComputos(Paginas, s_.ConexionProyecto);
    Pagina = 1;
}

bool Computos::Abrir() {
    if (!AbrirOtroProyecto(p_, s_, d_)) return false;
    Caption = UCase(QStringLiteral("Cómputos   Proyecto: [ ") + s_.NombreProyecto + QStringLiteral(" ] "));
    if (p_.NumeroRamales > 0) {
        VerificarNumeracion(p_, d_);
        if (p_.ErrorNumeracion == 0) {
            AnalisisRed analisis(p_, s_, d_);
            analisis.Cargar();
        }
    }
    CalcularComputos(Paginas, s_.ConexionProyecto);
    return true;
}
