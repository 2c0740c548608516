#pragma once
// The option screen of the result workbooks ("Exportar a Excel"), for both
// modes, and the export that follows it: the file dialog, the writing with
// its progress, and the offer to open the file.  The Qt window only lays the
// controls out and forwards each event here; it closes when `cerrar` is set.
//
// The workbook is written directly as an .xlsx file: no spreadsheet program
// is started, so there is no version to check (always .xlsx) and no process
// left in memory.  The button of those processes (Command3) stays and says
// so.

#include "workbook/MarcoLibro.h"

#include <QDate>
#include <QString>
#include <functional>

struct Sesion;
class Dialogos;

class OpcionExcel {
public:
    // `acueducto`: the aqueduct's screen (OpcionExcelAcu), two reports.
    OpcionExcel(const Sesion& s, Dialogos& d, bool acueducto);

    const bool acueducto;
    // Check2..Check5 (the aqueduct uses the first two), CheckIE, CheckP,
    // Check1 and LSCheck6: all on at opening.
    OpcionesLibro opciones;
    QDate Date1;  // today at opening
    bool ExcelAceptado = false;
    bool cerrar = false;

    static QString Titulo() { return QStringLiteral("Exportar a Excel"); }
    static QString Marco() { return QStringLiteral("Seleccione las Opciones"); }
    // The captions of the report check boxes, in order.
    QStringList Reportes() const;
    // The tool-tip of a control by name ("Command2"...).
    static QString Ayuda(const QString& control);

    // "Exportar": refuses a choice without any report; else stores the
    // options (the date as "dd/MM/yyyy") and closes accepted.
    void Command2_Click();
    // "Cancelar".
    void Command1_Click();
    // "Procesos": no spreadsheet process is ever started, so there is none
    // to close; it says so.
    void Command3_Click();
    // "Directorio": the folder of the exported reports, made when missing.
    void LSButton2_Click();
    // " Insertar una Fecha ": the day chosen on the calendar goes on the
    // sheets.
    void Fecha_Click(const QDate& dia);

private:
    QString TituloMensajes() const;
    const Sesion& s_;
    Dialogos& d_;
};

// The title of the workbook screens' message boxes.
QString TituloMensajesLibro(bool acueducto);

// The Excel button after the option screen accepted: asks for the file,
// runs `escribir` on it with the busy pointer, shows a failure, and offers to
// open the written file.  True when the file was written.
bool GuardarLibroExcel(const Sesion& s, Dialogos& d, bool acueducto,
                       const std::function<bool(const QString& archivo, QString& error)>& escribir);
