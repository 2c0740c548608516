#include "reports/salida/SalidaReporte.h"

#include "base/Dialogos.h"
#include "reports/motor/Reporte.h"
#include "shell/Sesion.h"

#include <QDir>
#include <QFileInfo>

QString TituloExportar(FormatoSalida f) {
    switch (f) {
    case FormatoSalida::Pdf: return QStringLiteral("Exportar el Reporte a formato: Adobe Acrobat(PDF)");
    case FormatoSalida::Html: return QStringLiteral("Exportar el Reporte a formato: HTLM 4.0");
    case FormatoSalida::Excel: return QStringLiteral("Exportar el Reporte a formato: Microsoft Excel 97-2000 (XLS)");
    case FormatoSalida::Word: return QStringLiteral("Exportar el Reporte a formato: Microsoft Word (RTF)");
    default: return QString();
    }
}

// The workbook is written as .xlsx: the older .xls filter would name a
// format the file is not.
QString FiltroExportar(FormatoSalida f) {
    const QString e = ExtensionExportar(f);
    return e.isEmpty() ? QString() : QStringLiteral("*%1|*%1").arg(e);
}

QString ExtensionExportar(FormatoSalida f) {
    switch (f) {
    case FormatoSalida::Pdf: return QStringLiteral(".pdf");
    case FormatoSalida::Html: return QStringLiteral(".htm");
    case FormatoSalida::Excel: return QStringLiteral(".xlsx");
    case FormatoSalida::Word: return QStringLiteral(".rtf");
    default: return QString();
    }
}

QString CarpetaReportesExportados(const Sesion& s) { return s.RutaDatos(QStringLiteral("ReportesExportados")); }

bool ExportarReporte(Reporte& r, FormatoSalida f, const QString& archivo) {
    switch (f) {
    case FormatoSalida::Pdf: return r.ExportarPdf(archivo);
    case FormatoSalida::Html: return r.ExportarHtml(archivo);
    case FormatoSalida::Excel: return r.ExportarXlsx(archivo);
    case FormatoSalida::Word: return r.ExportarRtf(archivo);
    default: return false;
    }
}

bool EntregarArchivo(Reporte& r, Dialogos& d, const EleccionSalida& e, const QString& encabezadoAbrir) {
    d.CursorOcupado(true);
    const bool escrito = ExportarReporte(r, e.formato, e.archivo);
    d.CursorOcupado(false);
    if (!escrito) {
        d.MostrarMensaje(r.Error(), QStringLiteral("Exportar el Reporte..."), QStringLiteral("Proyecto de Fontaria"),
                         Botones::Aceptar, 0, 3);
        return false;
    }
    const QString nombre = QFileInfo(e.archivo).fileName();
    if (d.MostrarMensaje(QStringLiteral("¿Desea Abrir el Archivo %1?").arg(nombre), encabezadoAbrir,
                         QStringLiteral("Proyecto de Fontaria"), Botones::SiNo, Respuesta::Si, 2) == Respuesta::Si)
        d.AbrirConSistema(e.archivo);
    return true;
}

bool SalidaReporte(Reporte& r, Dialogos& d, PantallasSalida& p, const QString& encabezadoAbrir) {
    const std::optional<EleccionSalida> e = p.OpcionExportar();
    if (!e) return false;
    if (e->formato == FormatoSalida::Vista) {
        p.VerResultados(r);
        return true;
    }
    return EntregarArchivo(r, d, *e, encabezadoAbrir);
}

// The preview chosen again from the preview is the view already shown.
bool ExportarDesdeVista(Reporte& r, Dialogos& d, PantallasSalida& p) {
    const std::optional<EleccionSalida> e = p.OpcionExportar();
    if (!e || e->formato == FormatoSalida::Vista) return false;
    return EntregarArchivo(r, d, *e, QStringLiteral("Abrir el Reporte Exportado..."));
}

void AbrirReportesExportados(const Sesion& s, Dialogos& d) {
    const QString carpeta = CarpetaReportesExportados(s);
    QDir().mkpath(carpeta);
    d.AbrirConSistema(carpeta);
}
