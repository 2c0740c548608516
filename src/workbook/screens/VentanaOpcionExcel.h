#pragma once
// The option screen of the result workbooks, "Exportar a Excel", for both
// modes (OpcionExcel and OpcionExcelAcu), over the logic OpcionExcel; and the
// whole Excel button of a results screen: options, file, writing with the
// progress panel, and the offer to open the file.

#include "workbook/OpcionExcel.h"

#include <QDialog>
#include <functional>

class QCheckBox;
class QDateEdit;
class QPushButton;

class VentanaOpcionExcel : public QDialog {
    Q_OBJECT
public:
    VentanaOpcionExcel(const Sesion& s, Dialogos& d, bool acueducto, QWidget* padre = nullptr);

    OpcionExcel& Logica() { return logica_; }
    // A control by its name ("Check2", "CheckIE", "Command2", "Date1"...).
    QWidget* Control(const QString& nombre) const;

private:
    // The controls into the logic's options, and back.
    void Leer();
    void Mostrar();

    OpcionExcel logica_;
    std::vector<QCheckBox*> reportes_;
    QCheckBox *indice_, *inmovilizar_, *color_, *conFecha_;
    QDateEdit* fecha_;
};

// The Excel button of a results screen: the options, then the file and the
// writing by `escribir`, whose progress shows on a panel over `padre`.  True
// when a file was written.
using EscrituraLibro =
    std::function<bool(const OpcionesLibro& o, const QString& archivo, QString& error, const ProgresoLibro& progreso)>;
bool ExportarLibroExcel(QWidget* padre, const Sesion& s, Dialogos& d, bool acueducto, const EscrituraLibro& escribir);
