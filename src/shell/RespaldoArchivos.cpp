#include "shell/RespaldoArchivos.h"

#include "base/Dialogos.h"
#include "shell/RespaldoZip.h"
#include "shell/Sesion.h"
#include "store/Conexion.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>

QString CarpetaRespaldo(const Sesion& s, int opcion) {
    if (opcion == 7) return s.RutaDatos(QStringLiteral("ReportesExportados"));
    return s.RutaDatos(s.TipoRed == 1 ? QStringLiteral("Redes") : QStringLiteral("Proyectos"));
}

bool AbrirCarpetaRespaldo(const Sesion& s, Dialogos& d, int opcion) {
    const QString carpeta = CarpetaRespaldo(s, opcion);
    if (QDir().mkpath(carpeta) && d.AbrirConSistema(carpeta)) return true;
    d.MostrarMensaje(QStringLiteral("No se Pudo Abrir el Directorio:\n") + carpeta, QStringLiteral("Respaldar Archivos..."),
                     QStringLiteral("Proyecto de Fontaria"));
    return false;
}

namespace {

const QString EncabezadoZip = QStringLiteral("Respaldo Comprimido (ZIP)...");

// The first names of a list, one a line, and how many more.
QString Lista(const QStringList& nombres) {
    QString t = nombres.mid(0, 10).join(QLatin1Char('\n'));
    if (nombres.size() > 10) t += QStringLiteral("\n... y %1 más").arg(nombres.size() - 10);
    return t;
}

}  // namespace

bool CrearRespaldoZip(const Sesion& s, Dialogos& d, const std::function<void(double)>& avance) {
    const QString destino = ArchivoRespaldoZip(s, QDateTime::currentDateTime());
    QString error;
    d.CursorOcupado(true);
    const int archivos = EscribirRespaldoZip(s, destino, avance, error);
    d.CursorOcupado(false);
    if (archivos < 0) {
        d.MostrarMensaje(error, EncabezadoZip, QStringLiteral("Proyecto de Fontaria"), Botones::Aceptar, 0, 3);
        return false;
    }
    d.MostrarMensaje(QStringLiteral("¡Se Respaldaron ( %1 ) Archivos en:\n%2").arg(archivos).arg(destino), EncabezadoZip,
                     QStringLiteral("Proyecto de Fontaria"));
    return true;
}

bool RestaurarRespaldo(Sesion& s, Dialogos& d, const std::function<void(double)>& avance) {
    const QString carpeta = s.RutaDatos(QStringLiteral("RespaldoZIP"));
    QDir().mkpath(carpeta);
    const std::optional<QString> zip =
        d.AbrirArchivo(QStringLiteral("Restaurar un Respaldo"), QStringLiteral("Respaldos ZIP (*.zip)|*.zip"), carpeta);
    if (!zip) return false;
    if (d.MostrarMensaje(QStringLiteral("¿Desea Restaurar los Archivos del Respaldo %1?\n"
                                        "(Los archivos modificados después del respaldo se conservan)")
                             .arg(QFileInfo(*zip).fileName()),
                         EncabezadoZip, QStringLiteral("Proyecto de Fontaria"), Botones::SiNo, Respuesta::No,
                         2) != Respuesta::Si)
        return false;
    QStringList enUso;
    for (const QString& f : {s.ArchivoProyecto, s.ArchivoProyectoACU})
        if (!f.isEmpty()) enUso << QFileInfo(f).absoluteFilePath();
    ResultadoRestauracion r;
    QString error;
    d.CursorOcupado(true);
    s.ConexionCatalogo.Cerrar();
    const bool hecho = RestaurarRespaldoZip(s, *zip, enUso, avance, r, error);
    AbrirConexion(s.ConexionCatalogo, s.RutaDatos(QStringLiteral("BDatos/BD_Piezas_Conexiones.mdb")));
    d.CursorOcupado(false);
    QString texto = hecho ? QStringLiteral("¡Se Restauraron ( %1 ) Archivos!").arg(r.restaurados) : error;
    if (!r.conservados.isEmpty())
        texto += QStringLiteral("\n\nSe conservaron, por ser más recientes que el respaldo:\n") + Lista(r.conservados);
    if (!r.enUso.isEmpty())
        texto += QStringLiteral("\n\nNo se reemplazó el proyecto abierto:\n") + Lista(r.enUso);
    d.MostrarMensaje(texto, EncabezadoZip, QStringLiteral("Proyecto de Fontaria"), Botones::Aceptar, 0, hecho ? 0 : 3);
    return hecho;
}
