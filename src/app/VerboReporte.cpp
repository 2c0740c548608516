// fontaria reporte X.plm|X.acu --plantilla NOMBRE --salida ARCHIVO [--color] [--caso 1|2|3]
//
// Fills the template's work tables as its screen would, in a scratch data
// folder, then has fontaria-reporte, beside this program, lay the report out
// and write it: the painting libraries stay out of the command line.  The
// format follows the output's extension.

#include "app/LineaComandos.h"
#include "app/LlenadoresReporte.h"
#include "shell/Inicio.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

namespace {

const char* UsoReporte() {
    return "Uso: fontaria reporte X.plm|X.acu --plantilla NOMBRE --salida ARCHIVO.pdf|.html|.xlsx|.rtf [--color]\n"
           "     [--caso 1|2|3]  (acueducto: el caso de demanda; 1 por omisión)";
}

// The format word of fontaria-reporte for an output's extension; empty when
// the extension names none.
QString FormatoDeExtension(const QString& archivo) {
    const QString e = QFileInfo(archivo).suffix().toLower();
    if (e == QLatin1String("pdf") || e == QLatin1String("xlsx") || e == QLatin1String("rtf")) return e;
    if (e == QLatin1String("html") || e == QLatin1String("htm")) return QStringLiteral("html");
    return QString();
}

// Refused before the analysis, which may take long on a large project.
QString FallaDestino(const QString& archivo) {
    const QFileInfo f(archivo);
    const QFileInfo carpeta(f.absolutePath());
    QString motivo;
    if (!carpeta.isDir()) motivo = QStringLiteral("la carpeta no existe.");
    else if (!carpeta.isWritable()) motivo = QStringLiteral("no hay permiso de escritura en la carpeta.");
    else if (f.isDir()) motivo = QStringLiteral("es una carpeta.");
    else if (f.exists() && !f.isWritable()) motivo = QStringLiteral("el archivo es de sólo lectura.");
    return motivo.isEmpty() ? QString() : QStringLiteral("No se puede escribir el reporte en «%1»: %2").arg(archivo, motivo);
}

// The scratch data folder: fresh work databases, and the user's catalogue
// folder linked when there is one.
void PrepararBorrador(Sesion& s, const QString& borrador) {
    const QString usuario = s.DirectorioDatos;
    s.DirectorioDatos = borrador;
    QDir().mkpath(s.RutaDatos(QStringLiteral("Trabajo")));
    CopiarBasesTrabajo(s);
    const QString catalogo = usuario + QStringLiteral("/BDatos");
    if (QFileInfo(catalogo).isDir()) QFile::link(catalogo, s.RutaDatos(QStringLiteral("BDatos")));
}

}  // namespace

int VerboReporte(const QStringList& args) {
    const ArgumentosVerbo a =
        LeerArgumentos(args, {QStringLiteral("plantilla"), QStringLiteral("salida"), QStringLiteral("caso")},
                       {QStringLiteral("color")});
    const QString nombre = a.Valor(QStringLiteral("plantilla")), salida = a.Valor(QStringLiteral("salida"));
    if (!a.error.isEmpty() || a.archivo.isEmpty() || nombre.isEmpty() || salida.isEmpty()) return FallaDeUso(a, UsoReporte());
    const QString textoCaso = a.Valor(QStringLiteral("caso"));
    const int caso = textoCaso.isNull() ? 1 : textoCaso.toInt();
    if (caso < 1 || caso > 3) return Fallar(QStringLiteral("El caso de demanda debe ser 1, 2 ó 3."));
    const QString formato = FormatoDeExtension(salida);
    if (formato.isEmpty())
        return Fallar(QStringLiteral("Extensión desconocida del archivo de salida: «%1».\n"
                                     "Use .pdf, .html, .htm, .xlsx o .rtf.")
                          .arg(salida));
    const bool acueducto = QFileInfo(a.archivo).suffix().compare(QLatin1String("acu"), Qt::CaseInsensitive) == 0;
    const EntradaReporte* e = BuscarReporte(acueducto, nombre);
    if (!e) {
        const QStringList conocidas = PlantillasConocidas(acueducto);
        return Fallar(QStringLiteral("Plantilla desconocida: «%1».\nPlantillas %2: %3.")
                          .arg(nombre, acueducto ? QStringLiteral("del acueducto") : QStringLiteral("de los edificios"),
                               conocidas.isEmpty() ? QStringLiteral("ninguna todavía") : conocidas.join(QStringLiteral(", "))));
    }
    if (const QString falla = FallaDestino(salida); !falla.isEmpty()) return Fallar(falla);

    QTemporaryDir borrador;
    if (!borrador.isValid())
        return Fallar(QStringLiteral("No se puede crear la carpeta temporal del reporte: ") + borrador.errorString());
    TrabajoReporte t(a.archivo, a.Tiene(QStringLiteral("color")), caso);
    PrepararBorrador(t.c.s, borrador.path());
    t.base = t.c.s.RutaDatos(QStringLiteral("Trabajo/Trabajo.mdb"));
    if (const int estado = e->llenar(t); estado != Salida::Bien) return estado;
    // Its connections closed, so that the other process reads what was written.
    t.c.s.ConexionProyecto.Cerrar();
    QStringList argumentos{formato, t.base, QString::fromLatin1(e->plantilla),
                           acueducto ? QStringLiteral("1") : QStringLiteral("0"), QFileInfo(salida).absoluteFilePath()};
    if (!t.generales.isEmpty()) argumentos << t.generales;
    return EjecutarVecino("fontaria-reporte", argumentos);
}
