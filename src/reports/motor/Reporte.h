#pragma once
// A report: a template opened by its base name, bound to a work database,
// and written to a file or drawn on a printer.

#include "reports/motor/DatosReporte.h"
#include "reports/motor/Plantilla.h"

#include <QString>

class QPagedPaintDevice;

class Reporte {
public:
    // Opens Reportes/NOMBRE.json (ReportesACU/ for the aqueduct) under the
    // program folder.
    bool Abrir(const QString& rutaPrograma, const QString& nombre, bool acueducto = false);
    // Reads the template's tables from a work database; the general data
    // from `rutaGenerales` when given.
    bool Vincular(const QString& rutaBase, const QString& rutaGenerales = QString());

    // Each writes the whole file or nothing: a target that cannot be
    // written leaves no file and a Spanish message in Error().
    bool ExportarPdf(const QString& archivo);
    bool ExportarHtml(const QString& archivo);
    // A workbook: one sheet per table section, numbers as numbers.
    bool ExportarXlsx(const QString& archivo);
    // A document whose tables a word processor opens as tables.
    bool ExportarRtf(const QString& archivo);
    // Lays the report out on a printer or any paged device; the number of pages.
    int Imprimir(QPagedPaintDevice& d);

    const Plantilla& PlantillaActual() const { return plantilla_; }
    const DatosReporte& Datos() const { return datos_; }
    const QString& Error() const { return error_; }

private:
    // A text form written whole through a passing file, or not at all.
    bool EscribirEntero(const QString& archivo, const QByteArray& bytes);

    Plantilla plantilla_;
    DatosReporte datos_;
    QString error_;
};

// The self-contained HTML of a report (styles inline, pictures embedded).
QString HtmlReporte(const Plantilla& p, const DatosReporte& datos);
// The RTF document of a report: its bands as tables of the word processor.
QByteArray RtfReporte(const Plantilla& p, const DatosReporte& datos);
// Writes the workbook of a report whole or not at all; false with a Spanish
// message in `error`.
bool EscribirXlsx(const Plantilla& p, const DatosReporte& datos, const QString& archivo, QString& error);

// "No se pudo escribir el reporte en «archivo»:" and the reason.
QString NoSeEscribeReporte(const QString& archivo, const QString& motivo);
