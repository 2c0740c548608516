// Builds the data installed under the program folder from the text sources
// in data/: blank databases from schemas, the factory catalogue with its
// drawings, and the default wallpaper.  Each output is written under a
// temporary name and renamed, so a failed build leaves no half file.
//
//   fontaria_datos plantilla ESQUEMA.sql SALIDA
//   fontaria_datos catalogo ESQUEMA.sql PIEZAS.tsv CONEXIONES.tsv SALIDA
//   fontaria_datos tapiz SALIDA.jpg
//   fontaria_datos manual TEXTO.md SALIDA.pdf
//   fontaria_datos ayuda TEXTO.md SALIDA.html

#include "app/datos/Dibujos.h"
#include "base/Nivo.h"
#include "images/Imagen.h"
#include "store/Conexion.h"

#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QPageSize>
#include <QPdfWriter>
#include <QTextDocument>
#include <QTextStream>
#include <cstdio>

namespace {

int Falla(const QString& texto) {
    fprintf(stderr, "%s\n", texto.toUtf8().constData());
    return 1;
}

bool LeerTexto(const QString& ruta, QString& texto) {
    QFile f(ruta);
    if (!f.open(QIODevice::ReadOnly)) return false;
    texto = QString::fromUtf8(f.readAll());
    return true;
}

bool Terminar(Conexion& c, const QString& temporal, const QString& salida) {
    c.Cerrar();
    QFile::remove(salida);
    return QFile::rename(temporal, salida);
}

int Plantilla(const QString& esquema, const QString& salida) {
    QString sql;
    if (!LeerTexto(esquema, sql)) return Falla(QStringLiteral("No se puede leer ") + esquema);
    const QString temporal = salida + QStringLiteral(".tmp");
    Conexion c;
    if (!c.Crear(temporal) || !c.EjecutarGuion(sql)) return Falla(esquema + QStringLiteral(": ") + c.UltimoError());
    if (!Terminar(c, temporal, salida)) return Falla(QStringLiteral("No se puede escribir ") + salida);
    return 0;
}

// Rows of a tab-separated file, comments (#) and blank lines left out.
QList<QStringList> Filas(const QString& ruta, bool& ok) {
    QList<QStringList> filas;
    QString texto;
    ok = LeerTexto(ruta, texto);
    for (const QString& l : texto.split(QLatin1Char('\n'))) {
        if (Trim(l).isEmpty() || l.startsWith(QLatin1Char('#'))) continue;
        filas << l.split(QLatin1Char('\t'));
    }
    return filas;
}

int Catalogo(const QString& esquema, const QString& piezas, const QString& conexiones, const QString& salida) {
    QString sql;
    if (!LeerTexto(esquema, sql)) return Falla(QStringLiteral("No se puede leer ") + esquema);
    bool ok1 = false, ok2 = false;
    const auto filasPiezas = Filas(piezas, ok1);
    const auto filasConexiones = Filas(conexiones, ok2);
    if (!ok1 || !ok2) return Falla(QStringLiteral("No se pueden leer las filas del catálogo"));
    const QString temporal = salida + QStringLiteral(".tmp");
    Conexion c;
    if (!c.Crear(temporal) || !c.EjecutarGuion(sql)) return Falla(c.UltimoError());
    for (const QStringList& f : filasPiezas) {
        if (f.size() < 6) return Falla(QStringLiteral("Fila de pieza incompleta: ") + f.join(QLatin1Char(' ')));
        const int clave = f[0].toInt();
        const QString nombre = Trim(f[1]);
        if (!c.Ejecutar(QStringLiteral("INSERT INTO Piezas VALUES (?,?,?,?,?,?,?,?)"),
                        {clave, nombre, f[2].toDouble(), f[3].toDouble(), f[4].toDouble(), f[5].toDouble(),
                         Logico(true), ImagenComoBmp(DibujoPieza(clave, nombre))}))
            return Falla(c.UltimoError());
    }
    for (const QStringList& f : filasConexiones) {
        if (f.size() < 4) return Falla(QStringLiteral("Fila de conexión incompleta: ") + f.join(QLatin1Char(' ')));
        const int clave = f[0].toInt();
        const QString nombre = Trim(f[1]);
        if (!c.Ejecutar(QStringLiteral("INSERT INTO Conexiones VALUES (?,?,?,?,?,?)"),
                        {clave, nombre, f[2].toDouble(), Logico(Trim(f[3]) == QLatin1String("true")), Logico(true),
                         ImagenComoBmp(DibujoConexion(clave, nombre))}))
            return Falla(c.UltimoError());
    }
    if (!Terminar(c, temporal, salida)) return Falla(QStringLiteral("No se puede escribir ") + salida);
    return 0;
}

int Tapiz(const QString& salida) {
    const QString temporal = salida + QStringLiteral(".tmp.jpg");
    if (!DibujoTapiz(1600, 1000).save(temporal, "JPG", 90)) return Falla(QStringLiteral("No se puede escribir ") + salida);
    QFile::remove(salida);
    return QFile::rename(temporal, salida) ? 0 : 1;
}

// A manual written in Markdown, with the program's look: the body in a
// sans-serif face, the headings in the program's blue.
bool LeerManual(const QString& fuente, QTextDocument& doc) {
    QString texto;
    if (!LeerTexto(fuente, texto)) return false;
    doc.setDefaultStyleSheet(QStringLiteral("h1 { color: #1d4f91; } h2 { color: #1d4f91; } h3 { color: #2b6cb0; } "
                                            "table { border-collapse: collapse; } th { background: #dbe7f5; }"));
    QFont f(QStringLiteral("DejaVu Sans"));
    f.setPointSizeF(10.5);
    doc.setDefaultFont(f);
    doc.setMarkdown(texto, QTextDocument::MarkdownDialectGitHub);
    doc.setMetaInformation(QTextDocument::DocumentTitle, QFileInfo(fuente).completeBaseName());
    return true;
}

int Manual(const QString& fuente, const QString& salida) {
    QTextDocument doc;
    if (!LeerManual(fuente, doc)) return Falla(QStringLiteral("No se puede leer ") + fuente);
    const QString temporal = salida + QStringLiteral(".tmp");
    {
        QPdfWriter pdf(temporal);
        pdf.setPageSize(QPageSize(QPageSize::A4));
        pdf.setPageMargins(QMarginsF(18, 18, 18, 18), QPageLayout::Millimeter);
        pdf.setTitle(QFileInfo(fuente).completeBaseName());
        pdf.setCreator(QStringLiteral("Nivo-Fontaria 2024"));
        pdf.setResolution(300);
        doc.print(&pdf);
    }
    if (QFileInfo(temporal).size() == 0) return Falla(QStringLiteral("No se puede escribir ") + salida);
    QFile::remove(salida);
    return QFile::rename(temporal, salida) ? 0 : Falla(QStringLiteral("No se puede escribir ") + salida);
}

int Ayuda(const QString& fuente, const QString& salida) {
    QTextDocument doc;
    if (!LeerManual(fuente, doc)) return Falla(QStringLiteral("No se puede leer ") + fuente);
    const QString temporal = salida + QStringLiteral(".tmp");
    QFile f(temporal);
    if (!f.open(QIODevice::WriteOnly) || f.write(doc.toHtml().toUtf8()) < 0) return Falla(QStringLiteral("No se puede escribir ") + salida);
    f.close();
    QFile::remove(salida);
    return QFile::rename(temporal, salida) ? 0 : Falla(QStringLiteral("No se puede escribir ") + salida);
}

}  // namespace

int main(int argc, char** argv) {
    // Drawing text needs a font database, not a display.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    const QStringList a = app.arguments();
    if (a.size() == 4 && a[1] == QLatin1String("plantilla")) return Plantilla(a[2], a[3]);
    if (a.size() == 6 && a[1] == QLatin1String("catalogo")) return Catalogo(a[2], a[3], a[4], a[5]);
    if (a.size() == 3 && a[1] == QLatin1String("tapiz")) return Tapiz(a[2]);
    if (a.size() == 4 && a[1] == QLatin1String("manual")) return Manual(a[2], a[3]);
    if (a.size() == 4 && a[1] == QLatin1String("ayuda")) return Ayuda(a[2], a[3]);
    return Falla(QStringLiteral("Uso: fontaria_datos plantilla|catalogo|tapiz|manual|ayuda ..."));
}
