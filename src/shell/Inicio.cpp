#include "shell/Inicio.h"

#include "shell/Sesion.h"
#include "store/Archivos.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <pwd.h>
#include <unistd.h>

namespace {

void CrearCarpeta(const QString& ruta) {
    if (!QFileInfo::exists(ruta)) QDir().mkpath(ruta);
}

}  // namespace

const QList<CopiaInicial>& CopiasCadaInicio() {
    static const QList<CopiaInicial> lista = {
        {QStringLiteral("Trabajo.nivo"), QStringLiteral("Trabajo/Trabajo.mdb")},
        {QStringLiteral("Proyecto.nivo"), QStringLiteral("Trabajo/Proyecto.mdb")},
        {QStringLiteral("Resultados.nivo"), QStringLiteral("Trabajo/Resultados.mdb")},
        {QStringLiteral("Malla.nivo"), QStringLiteral("Trabajo/Datos.mdb")},
    };
    return lista;
}

const QList<CopiaInicial>& CopiasSiFaltan() {
    static const QList<CopiaInicial> lista = {
        {QStringLiteral("Vivienda con Tanque Hidroneumatico.nivo"),
         QStringLiteral("Proyectos/Vivienda con Tanque Hidroneumatico.plm")},
        {QStringLiteral("Vivienda con Tanque Elevado.nivo"), QStringLiteral("Proyectos/Vivienda con Tanque Elevado.plm")},
        {QStringLiteral("Edificio_MontantePH.nivo"), QStringLiteral("Proyectos/Edificio_MontantePH.plm")},
        {QStringLiteral("Edificio_GeneralesConserjeria.nivo"),
         QStringLiteral("Proyectos/Edificio_GeneralesConserjeria.plm")},
        {QStringLiteral("Edificio_ApartamentoTipo.nivo"), QStringLiteral("Proyectos/Edificio_ApartamentoTipo.plm")},
        {QStringLiteral("BDPiezasConexiones.nivo"), QStringLiteral("BDatos/BD_Piezas_Conexiones.mdb")},
        {QStringLiteral("BDColores.nivo"), QStringLiteral("BDatos/BDColores.mdb")},
        {QStringLiteral("TapizNivo.jpg"), QStringLiteral("Tapices/TapizNivo.jpg")},
        {QStringLiteral("EjemploRedA.nivo"), QStringLiteral("Redes/EjemploRedA.acu")},
        {QStringLiteral("EjemploRedB.nivo"), QStringLiteral("Redes/EjemploRedB.acu")},
    };
    return lista;
}

QString DirectorioDatosPorDefecto() {
    const QString env = qEnvironmentVariable("FONTARIA_DATOS");
    if (!env.isEmpty()) return QDir::cleanPath(env);
    QString docs = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    if (docs.isEmpty()) docs = QDir::homePath();
    return docs + QStringLiteral("/Nivo Software/Nivo-Fontaria 2024");
}

void VerificaTapizNivo(const Sesion& s) {
    const QFileInfo usuario(s.RutaDatos(QStringLiteral("Tapices/TapizNivo.jpg")));
    const QFileInfo instalado(s.RutaImagen(QStringLiteral("TapizNivo.jpg")));
    if (!usuario.exists() || !instalado.exists()) return;
    // Kept while its length lies within the installed one's plus or minus 10.
    if (qAbs(usuario.size() - instalado.size()) > 10) QFile::remove(usuario.filePath());
}

void VerifiqueDirectorios(Sesion& s) {
    for (const char* c : {"", "BDatos", "Proyectos", "ReportesExportados", "RespaldoZIP", "Temporales"})
        CrearCarpeta(s.RutaDatos(QString::fromLatin1(c)));
    s.DirectorioTemporal = s.RutaDatos(QStringLiteral("Temporales"));
    CrearCarpeta(s.RutaDatos(QStringLiteral("Tapices")));
    VerificaTapizNivo(s);
    for (const char* c : {"Trabajo", "Fotos", "Redes"}) CrearCarpeta(s.RutaDatos(QString::fromLatin1(c)));
    for (const CopiaInicial& c : CopiasSiFaltan()) {
        const QString origen = s.RutaImagen(c.origen);
        const QString destino = s.RutaDatos(c.destino);
        if (!QFileInfo::exists(destino) && QFileInfo::exists(origen)) CopiarArchivo(origen, destino);
    }
}

void CopiarBasesTrabajo(const Sesion& s) {
    // Leftovers of older names; only the third is the file about to be replaced.
    const char* restos[] = {"Trabajo/Trabajo.mbd", "Trabajo/Proyecto.mbd", "Trabajo/Resultados.mdb",
                            "Trabajo/Redes.mbd"};
    int i = 0;
    for (const CopiaInicial& c : CopiasCadaInicio()) {
        QFile::remove(s.RutaDatos(QString::fromLatin1(restos[i++])));
        CopiarArchivo(s.RutaImagen(c.origen), s.RutaDatos(c.destino));
    }
}

void LeerConfiguracion(Sesion& s) {
    const QString ruta = s.RutaDatos(QStringLiteral("Tapiz.nivo"));
    s.Tapiz = LeerTapiz(ruta);
    if (s.Tapiz.RutaTapiz.isEmpty() || !QFileInfo::exists(s.Tapiz.RutaTapiz)) {
        s.Tapiz = TapizPorDefecto(s.DirectorioDatos);
        EscribirTapizPorDefecto(ruta, s.Tapiz);
    }
    if (s.Tapiz.TamanoLetraTip > 4) s.Tapiz.TamanoLetraTip = 0;
    if (s.Tapiz.ColorFondoTip == 0) s.Tapiz.ColorFondoTip = ColorFondoTipCero;
}

QString NombreUsuarioSistema() {
    const passwd* pw = getpwuid(getuid());
    if (!pw || !pw->pw_gecos) return QString();
    // The GECOS field: full name, then office and phones after commas.
    return Trim(QString::fromLocal8Bit(pw->pw_gecos).section(QLatin1Char(','), 0, 0));
}

QString CarpetaPrograma() {
    const QString imagen = QFile::symLinkTarget(QStringLiteral("/proc/self/exe"));
    if (!imagen.isEmpty()) return QFileInfo(imagen).absolutePath();
    return QCoreApplication::instance() ? QCoreApplication::applicationDirPath() : QDir::currentPath();
}

void SeparadorPrograma(Sesion& s) {
    const Separadores sep = SeparadoresDelSistema();
    SeparadoresActuales() = sep;
    s.SeparadorDecimal = sep.decimal;
    s.SeparadorMiles = sep.miles;
}

void Iniciar(Sesion& s, const QString& rutaPrograma) {
    QString ruta = rutaPrograma.isEmpty() ? CarpetaPrograma() : rutaPrograma;
    if (ruta.endsWith(QLatin1Char('/'))) ruta.chop(1);
    s.RutaPrograma = ruta;

    SeparadorPrograma(s);

    s.TipoRed = 0;
    s.NombreUsuario = NombreUsuarioSistema();

    s.DirectorioDatos = DirectorioDatosPorDefecto();
    VerifiqueDirectorios(s);
    CopiarBasesTrabajo(s);

    s.ConexionFallida = AbrirConexion(s.ConexionCatalogo, s.RutaDatos(QStringLiteral("BDatos/BD_Piezas_Conexiones.mdb")));
    LeerConfiguracion(s);
    s.ArchivoAyuda = s.RutaPrograma + QStringLiteral("/Manual/Ayuda/index.html");
}
