#include "reports/motor/Reporte.h"

#include "pictures/Dibujo.h"
#include "reports/motor/ComposicionReporte.h"

#include <QPdfWriter>
#include <QSaveFile>

QString NoSeEscribeReporte(const QString& archivo, const QString& motivo) {
    return QStringLiteral("No se pudo escribir el reporte en «%1»:\n%2").arg(archivo, motivo);
}

bool Reporte::Abrir(const QString& rutaPrograma, const QString& nombre, bool acueducto) {
    return LeerPlantilla(RutaPlantilla(rutaPrograma, nombre, acueducto), plantilla_, error_);
}

bool Reporte::Vincular(const QString& rutaBase, const QString& rutaGenerales) {
    if (!CargarDatosReporte(rutaBase, plantilla_, datos_, error_, rutaGenerales)) return false;
    // A page turned to the shape of its picture: a tall building stands, a
    // wide town lies.
    if (plantilla_.orientacionDelDibujo)
        for (const SeccionPlantilla& s : plantilla_.secciones)
            if (const auto d = datos_.dibujos.value(s.dibujo)) {
                plantilla_.horizontal = d->TamanoNatural().width() > d->TamanoNatural().height();
                break;
            }
    return true;
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
        error_ = NoSeEscribeReporte(archivo, f.errorString());
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
        error_ = NoSeEscribeReporte(archivo, f.errorString());
        return false;
    }
    return true;
}

bool Reporte::ExportarHtml(const QString& archivo) { return EscribirEntero(archivo, HtmlReporte(plantilla_, datos_).toUtf8()); }

bool Reporte::ExportarXlsx(const QString& archivo) { return EscribirXlsx(plantilla_, datos_, archivo, error_); }

bool Reporte::ExportarRtf(const QString& archivo) { return EscribirEntero(archivo, RtfReporte(plantilla_, datos_)); }

bool Reporte::EscribirEntero(const QString& archivo, const QByteArray& bytes) {
    QSaveFile f(archivo);
    if (!f.open(QIODevice::WriteOnly) || f.write(bytes) < 0 || !f.commit()) {
        error_ = NoSeEscribeReporte(archivo, f.errorString());
        return false;
    }
    return true;
}
