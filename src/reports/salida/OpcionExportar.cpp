#include "reports/salida/OpcionExportar.h"

#include "base/Dialogos.h"
#include "shell/Sesion.h"

#include <QDir>
#include <QFileInfo>

OpcionExportar::OpcionExportar(const Sesion& s, Dialogos& d) : s_(s), d_(d) {}

QString OpcionExportar::Titulo() { return QStringLiteral("Exportar los Reportes"); }

const std::vector<OpcionExportar::Opcion>& OpcionExportar::Opciones() {
    static const std::vector<Opcion> opciones = {
        {QStringLiteral("LSOption1"), QStringLiteral("Vista Previa en Pantalla"),
         QStringLiteral("Ver el reporte en la pantalla, desde donde se puede imprimir. "), FormatoSalida::Vista},
        {QStringLiteral("Option1"), QStringLiteral("Adobe Acrobat (PDF)"),
         QStringLiteral("Exportar el reporte a un documento PDF. "), FormatoSalida::Pdf},
        {QStringLiteral("Option2"), QStringLiteral("Página Web (HTML)"),
         QStringLiteral("Exportar el reporte a una página HTML. "), FormatoSalida::Html},
        {QStringLiteral("Option3"), QStringLiteral("Microsoft Excel (XLSX)"),
         QStringLiteral("Exportar el reporte a una hoja de cálculo. "), FormatoSalida::Excel},
        {QStringLiteral("Option4"), QStringLiteral("Microsoft Word (RTF)"),
         QStringLiteral("Exportar el reporte a un documento de texto RTF. "), FormatoSalida::Word},
    };
    return opciones;
}

bool OpcionExportar::Elegir(FormatoSalida f) {
    seleccion_ = f;
    eleccion_.reset();
    if (f == FormatoSalida::Vista) {
        eleccion_ = EleccionSalida{f, QString()};
        return true;
    }
    const QString carpeta = CarpetaReportesExportados(s_);
    QDir().mkpath(carpeta);
    const std::optional<QString> elegido = d_.GuardarArchivo(TituloExportar(f), FiltroExportar(f), carpeta);
    if (!elegido || elegido->trimmed().isEmpty()) return false;
    // A name typed without the format's extension takes it.
    QString archivo = *elegido;
    const QString extension = ExtensionExportar(f).mid(1);
    const QString sufijo = QFileInfo(archivo).suffix().toLower();
    if (sufijo != extension && !(f == FormatoSalida::Html && sufijo == QLatin1String("html")))
        archivo += ExtensionExportar(f);
    eleccion_ = EleccionSalida{f, QDir(carpeta).absoluteFilePath(archivo)};
    return true;
}
