#pragma once
// A report template: a JSON description of bands kept as a data file under
// Reportes/ (building) or ReportesACU/ (aqueduct), named after the report.
// The format is described in data/reportes/FORMATO.md.

#include <QMap>
#include <QHash>
#include <QString>
#include <QStringList>
#include <vector>

enum class Alineacion { Izquierda, Centro, Derecha };

// One column of a detail band.
struct ColumnaPlantilla {
    QString campo;
    QString titulo;     // may hold "\n"; units go in it: "Caudal (l/s)"
    double ancho = 1.0; // a weight: the columns share the page's width
    Alineacion alineacion = Alineacion::Izquierda;
    QString formato;    // "0.00", "0"...; empty for a text
    bool imagen = false;  // the field holds a picture's bytes
    // An option stored as a whole number printed as the text given for it.
    QMap<int, QString> textos;
    // The direction of a flow: when the record's field `sentido` is below 0
    // the column shows `contrario` instead of `campo` (the two ends of a
    // section written in the direction of the flow).
    QString sentido, contrario;
    bool absoluto = false;  // a number shown without its sign
};

// A label and a field of a one-row table (the general data).
struct CampoPlantilla {
    QString etiqueta, campo, formato, unidad;
    QMap<int, QString> textos;  // as in a column
};

struct SeccionPlantilla {
    enum class Tipo { Detalle, Campos, Portada, Dibujo };
    Tipo tipo = Tipo::Detalle;
    QString titulo;  // printed above the band
    QString tabla;
    QString orden;   // fields of the table, ascending, separated by commas
    // A second table whose row of equal `unirPor` completes each row with
    // its fields (the picture of a fixture kept apart from the fixture).
    QString unir;
    QString unirPor;
    std::vector<ColumnaPlantilla> columnas;
    // A thin rule above each row whose field is not blank: the rows of one
    // branch stay together between two rules.
    QString separarCuando;
    // The same rule above each row whose field differs from the row
    // before; the field itself is printed once per group (and again at the
    // top of a page), so the rows of one branch read as a block.
    QString agruparPor;
    QStringList totales;  // fields summed in the band's closing row
    QString etiquetaTotales = QStringLiteral("TOTALES");
    double altoImagen = 0.0;  // points; rows with a picture column
    // A form to fill by hand: rows at least this tall (points), and ruled
    // between every row and column.
    double altoFila = 0.0;
    bool rejilla = false;
    std::vector<CampoPlantilla> campos;
    // A picture of the network: the row of `tabla` whose Nombre is
    // `dibujo`, its JSON in Datos, fitted into `alto` points (the rest of
    // the page when 0).
    QString dibujo;
    double alto = 0.0;
};

struct Plantilla {
    QString nombre;  // base name, as the older .rpt
    QString titulo;
    bool horizontal = false;
    // "orientacion": "dibujo": turned when the report is bound, landscape
    // when its first picture is wider than tall.
    bool orientacionDelDibujo = false;
    bool encabezado = true;  // the page header with the general data
    bool pie = true;         // "Página N de M"
    std::vector<SeccionPlantilla> secciones;
    // The one-row table of the page header and its field names: a header
    // field (Empresa, FormatoColor, Titulo1...) read from another field of
    // it, or given as a fixed text.
    QString tablaGenerales = QStringLiteral("DatosGenerales");
    QHash<QString, QString> camposGenerales;
    QHash<QString, QString> textosGenerales;
    // The tables the template reads, each once, in order.
    QStringList Tablas() const;
};

// The template file of a report: RutaPrograma/Reportes/NOMBRE.json, or
// ReportesACU/ for the aqueduct's.
QString RutaPlantilla(const QString& rutaPrograma, const QString& nombre, bool acueducto = false);
// Reads a template; false with a Spanish message when the file is missing or
// is not a template.
bool LeerPlantilla(const QString& ruta, Plantilla& p, QString& error);
