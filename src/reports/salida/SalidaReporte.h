#pragma once
// Where every report ends: the engineer chooses on OpcionExportar between
// the preview and a file; a file is written whole and the program offers to
// open it.  The report screens call SalidaReporte once their tables are
// filled and their template is open.

#include <QString>
#include <optional>

class Dialogos;
class Reporte;
struct Sesion;

// FormatoSalida: the options of OpcionExportar, with the older numbers.
enum class FormatoSalida { Pdf = 1, Html = 2, Excel = 3, Word = 4, Motor = 5, Vista = 6 };

struct EleccionSalida {
    FormatoSalida formato = FormatoSalida::Vista;
    QString archivo;  // ArchivoExportado, the full path; empty for the preview
};

// The save dialog of a file format: its title, its filter and the file's
// extension (".pdf", ".htm", ".xlsx", ".rtf").
QString TituloExportar(FormatoSalida f);
QString FiltroExportar(FormatoSalida f);
QString ExtensionExportar(FormatoSalida f);
// The folder of exported reports, DirectorioDatos/ReportesExportados.
QString CarpetaReportesExportados(const Sesion& s);

// The two screens of the output stage, shown modally: Qt windows on the
// desktop, a scripted fake in the tests.
class PantallasSalida {
public:
    virtual ~PantallasSalida() = default;
    // OpcionExportar: the choice, or nothing when it was cancelled.
    virtual std::optional<EleccionSalida> OpcionExportar() = 0;
    // VerResultados on the report; it may print and export from there.
    virtual void VerResultados(Reporte& r) = 0;
};

// Writes the report in a file format (Pdf to Word), whole or not at all;
// false with the reason in r.Error().
bool ExportarReporte(Reporte& r, FormatoSalida f, const QString& archivo);

// The file half of the output stage: the report written in the format
// chosen under the busy pointer, a failure shown in Spanish, then "¿Desea
// Abrir el Archivo NAME?" with `encabezadoAbrir` and the file opened on
// "Sí".  False when not written.
bool EntregarArchivo(Reporte& r, Dialogos& d, const EleccionSalida& e, const QString& encabezadoAbrir);

// Button2 of the preview: OpcionExportar again and, on a file format, the
// file written as above; the preview stays as it is.  False when cancelled
// or not written.
bool ExportarDesdeVista(Reporte& r, Dialogos& d, PantallasSalida& p);

// The output stage.  Asks OpcionExportar; the preview shows VerResultados;
// a file is written under the busy pointer, then "¿Desea Abrir el Archivo
// NAME?" is asked with `encabezadoAbrir` and the file opened on "Sí".  A
// file that cannot be written is shown in Spanish.  False when cancelled or
// not written.
bool SalidaReporte(Reporte& r, Dialogos& d, PantallasSalida& p,
                   const QString& encabezadoAbrir = QStringLiteral("Abrir el Reporte Exportado..."));

// LSButton4 of every report screen: the folder of exported reports opened
// with the desktop's file manager (made first when missing).
void AbrirReportesExportados(const Sesion& s, Dialogos& d);
