#pragma once
// The rows a template reads, taken from a work database once, before the
// layout: a report never holds a connection while it is drawn or written.

#include "reports/motor/Plantilla.h"
#include "store/Valor.h"

#include <QHash>
#include <QString>
#include <memory>
#include <vector>

class Dibujo;

struct TablaReporte {
    QStringList columnas;
    std::vector<std::vector<Valor>> filas;
    int Indice(const QString& campo) const;  // -1 when absent
    Valor Dato(int fila, const QString& campo) const;
    // What a column of a detail band shows in a row: its field, or the
    // contrary one against the flow, without sign when asked.
    Valor Celda(int fila, const ColumnaPlantilla& c) const;
};

struct DatosReporte {
    QHash<QString, TablaReporte> tablas;
    // The general data (the first row of the template's general table,
    // DatosGenerales unless it names another), for every page, and the
    // template's renaming and fixed texts of its fields.
    TablaReporte generales;
    QString tablaGenerales = QStringLiteral("DatosGenerales");
    QHash<QString, QString> camposGenerales, textosGenerales;
    // The pictures of the picture bands, by name, made once at loading and
    // in black and white when the report is.
    QHash<QString, std::shared_ptr<const Dibujo>> dibujos;
    // A picture as a PNG for the outputs that are not pages; empty when
    // there is none of that name.
    QByteArray PngDibujo(const QString& nombre) const;
    QString General(const QString& campo) const;
    bool FormatoColor() const;
    const TablaReporte& Tabla(const QString& nombre) const;
};

// Reads every table of the template, in each section's order, and the
// general data, from `rutaGenerales` when the rows' database has none of
// its own (the catalogue).  False with a Spanish message when a database
// cannot be opened or lacks a table or a field the template names.
bool CargarDatosReporte(const QString& rutaBase, const Plantilla& p, DatosReporte& datos, QString& error,
                        const QString& rutaGenerales = QString());

// Row `fila` (from 0) of a detail band opens a group: a rule goes above it
// (separarCuando, agruparPor).
bool AbreGrupo(const SeccionPlantilla& s, const TablaReporte& t, int fila);
// The cell repeats its group's value (agruparPor) and is printed blank.
bool RepiteGrupo(const SeccionPlantilla& s, const TablaReporte& t, int fila, const ColumnaPlantilla& c);
