#pragma once
// A network of the public hydraulic exchange format (.inp) read into an
// aqueduct project.  The model holds pipes with a Hazen-Williams C between
// named nodes, node demands and levels, and fixed heads; what it cannot hold
// (pumps, valves, patterns, curves, controls, other friction formulas, minor
// losses, closed pipes...) is listed in a Spanish report, never dropped
// silently.  A file that does not follow the format is refused whole with
// "Línea N: ..." and nothing is written.
//
// Units: every flow unit of the format is taken (CFS, GPM, MGD, IMGD, AFD
// with feet and inches; LPS, LPM, MLD, CMH, CMD with metres and
// millimetres) and converted to l/s and metres.  Diameters stay in the
// file's own unit when the model has it: inches for US units ("Diámetro en
// Pulgadas"), millimetres otherwise.  Reservoirs and tanks (at their initial
// level) become fixed heads; a reservoir's terrain level is its head.
// Sections take no added length, so that both programs solve the same pipes.
//
// Lines ";Fontaria Campo=valor" written by the export carry what the format
// has no place for (general data, section demands, real lengths, names that
// are not valid identifiers); another program ignores them as comments.

#include <QString>
#include <QStringList>
#include <optional>
#include <vector>

struct ProyectoAcueducto;
struct Sesion;

// What the engineer agreed to when the file asked for it.
struct OpcionesInp {
    // A pump drawing from a reservoir becomes a fixed head at its discharge
    // node: the reservoir's head plus the pump's design head.
    bool bombaComoCarga = false;
    // Darcy-Weisbach or Chezy-Manning roughness replaced by the project's
    // default Hazen-Williams C (100); without it such a file is refused.
    bool cPorDefecto = false;
};

// The file as read: elements with their values already in l/s, metres and
// millimetres, and the lines of what the model will not hold.
struct RedInp {
    enum class TipoNodo { Union, Embalse, Tanque };
    struct Nodo {
        QString id;
        TipoNodo tipo = TipoNodo::Union;
        int linea = 0;
        double cota = 0.0;     // m: elevation, or the head of a reservoir
        double nivel = 0.0;    // m: a tank's initial level
        double demanda = 0.0;  // l/s
        std::optional<double> x, y;
        QStringList extras;  // ";Fontaria" fields of its line
    };
    struct Tuberia {
        QString id, i, j;
        int linea = 0;
        double longitud = 0.0;  // m
        double diametro = 0.0;  // mm
        double rugosidad = 0.0;
        double perdidaMenor = 0.0;
        QString estado;  // OPEN, CLOSED or CV, upper case
        QStringList extras;
    };
    struct Bomba {
        QString id, i, j;
        int linea = 0;
        std::optional<double> alturaDiseno;  // m, from its head curve and speed
        QString motivo;                      // why there is no design head
    };
    QString titulo;
    bool us = false;
    QString unidades = QStringLiteral("GPM");
    QString formula = QStringLiteral("H-W");
    std::vector<Nodo> nodos;
    std::vector<Tuberia> tuberias;
    std::vector<Bomba> bombas;
    QStringList generales;  // ";Fontaria Campo=valor" of the title
    QStringList omitidos;   // what the model cannot hold, one line each
    QStringList avisos;     // conversions the engineer should know of

    // Whether the file needs an answer before it can be converted.
    bool HayBombasDesdeEmbalse() const;
    bool RugosidadNoHazenWilliams() const { return formula != QLatin1String("H-W"); }
};

// Reads and checks the file.  False with "Línea N: ..." when it is not a
// network of the format (a missing [JUNCTIONS] or [PIPES], an unknown node,
// a non-number, a duplicate identifier...).
bool LeerInp(const QString& archivo, RedInp& red, QString& error);
// The same from the text, for the tests.
bool LeerTextoInp(const QString& texto, RedInp& red, QString& error);

// Fills the model (already at its defaults) from the network; `informe`
// receives the report shown to the engineer.  False with a message when the
// friction formula is not Hazen-Williams and no default C was agreed, or
// when the pipes name more separate nodes than the model admits.
bool ConvertirInp(const RedInp& red, const OpcionesInp& o, ProyectoAcueducto& p, const Sesion& s,
                  QStringList& informe, QString& error);

// LeerInp, ConvertirInp and the .acu written under a temporary name, renamed
// at the end: a refusal leaves no file and an existing target untouched.
bool ImportarInp(const QString& inp, const QString& destino, const OpcionesInp& o, Sesion& s,
                 QStringList& informe, QString& error);
bool GuardarRedImportada(ProyectoAcueducto& p, const QString& destino, Sesion& s, QString& error);

// The report as one text: a heading and the lines, or a line saying the
// network came whole.
QString TextoInforme(const QStringList& informe);
