#include "reports/motor/Reporte.h"

#include "reports/motor/ComposicionReporte.h"

#include <QPdfWriter>
#include <QSaveFile>

namespace {

QString NoSeEscribe(const QString& archivo, const QString& motivo) {
    return QStringLiteral("No se pudo escribir el reporte en «%1»:\n%2").arg(archivo, motivo);
}

}  // namespace

bool Reporte::Abrir(const QString& rutaPrograma, const QString& nombre, bool acueducto) {
    return LeerPlantilla(RutaPlantilla(rutaPrograma, nombre, acueducto), plantilla_, error_);
}

bool Reporte::Vincular(const QString& rutaBase, const QString& rutaGenerales) {
    return CargarDatosReporte(rutaBase, plantilla_, datos_, error_, rutaGenerales);
}

int Reporte::Imprimir(QPagedPaintDevice& d) {
    PrepararDispositivo(d, plantilla_);
    const auto paginas = ComponerReporte(plantilla_, datos_, d);
    DibujarReporte(paginas, d);
    return int(paginas.size());
}

bool Reporte::ExportarPdf(const QString& archivo) {
    QSaveFile f(archivo);
    if (!f.open(QIODevice::WriteOnly)) {
        error_ = NoSeEscribe(archivo, f.errorString());
        return false;
    }
    {
        QPdfWriter pdf(&f);
        pdf.setResolution(600);
        pdf.setCreator(QStringLiteral("Nivo-Fontaria"));
        pdf.setTitle(plantilla_.titulo.isEmpty() ? plantilla_.nombre : plantilla_.titulo);
        Imprimir(pdf);
    }
    if (!f.commit()) {
        error_ = NoSeEscribe(archivo, f.errorString());
        return false;
    }
    return true;
}

bool Reporte::ExportarHtml(const QString& archivo) {
    QSaveFile f(archivo);
    if (!f.open(QIODevice::WriteOnly) || f.write(HtmlReporte(plantilla_, datos_).toUtf8()) < 0 || !f.commit()) {
        error_ = NoSeEscribe(archivo, f.errorString());
        return false;
    }
    return true;
}

// Still to come: the workbook and word-processor writers.
bool Reporte::ExportarXlsx(const QString& archivo) {
    error_ = NoSeEscribe(archivo, QStringLiteral("el formato de hoja de cálculo aún no está disponible."));
    return false;
}

bool Reporte::ExportarRtf(const QString& archivo) {
    error_ = NoSeEscribe(archivo, QStringLiteral("el formato RTF aún no está disponible."));
    return false;
}
