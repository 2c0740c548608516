#pragma once
// The data reports' work tables (ImpreGeneral): the take-off and the tank
// copied from their screens into Trabajo/Trabajo.mdb, the general data of
// the catalogue reports, and the project as last saved copied into
// Trabajo/Proyecto.mdb.  Each filler runs in one transaction: on a failure
// the tables stay as they were and `error` holds a Spanish message.

#include <QString>
#include <QStringList>

struct DatosTanque;
struct PaginasComputos;
struct ProyectoEdificio;
struct Sesion;

// The choices of the printing screen that reach the tables.
struct OpcionesDatos {
    bool FormatoColor = true;  // Check1
    QString Titulo;            // Text1, stored trimmed
};

// Take-off: DatosGenerales and the four ImpreComputos* tables from the four
// grids, column 1 the description and column 2 the quantity as shown.
bool LleneTablasComputos(const QString& rutaTrabajo, const PaginasComputos& c, const ProyectoEdificio& p,
                         const Sesion& s, const OpcionesDatos& o, QString& error);

// Tank: DatosGenerales and one row of TanqueHidroneumatico from the inputs
// and the seven results as the results screen shows them ("#,##0.00", in
// the order of ResultadosHidro::Valores).
bool LleneTablaTanque(const QString& rutaTrabajo, const DatosTanque& t, const QStringList& valores,
                      const ProyectoEdificio& p, const Sesion& s, const OpcionesDatos& o, QString& error);

// Catalogue reports: the one row of DatosGenerales (colour, title, version);
// the rows are the catalogue's own.
bool LleneGeneralesCatalogo(const QString& rutaTrabajo, const OpcionesDatos& o, QString& error);

// Project reports: the seven tables of the report copy (Proyecto.mdb)
// emptied and filled from the project's file as last saved, column by
// column name, then the colour, Empresa and the title set.  A project with
// no file, or a file that lacks one of the tables, is refused.
bool CopieProyectoReporte(const QString& rutaProyectoReporte, const QString& archivoProyecto, const Sesion& s,
                          const OpcionesDatos& o, QString& error);

// The data reports by origin: 1 the take-off, 2 the tank, 3 the fixture
// catalogue, 4 the fitting catalogue, 5 the project's data, 6 the fixtures
// and 7 the fittings on the branches.
// The title the printing screen starts with ("" for no such origin).
QString TituloOrigen(int origen);
// Origins 3, 4, 6 and 7 have a photograph template.
bool OrigenConFotos(int origen);
// The template's base name; `fotos` counts only where there is one.
QString PlantillaOrigen(int origen, bool fotos);

// What the first two origins print: the project's general data and the
// screen they are called from.
struct FuenteDatos {
    const ProyectoEdificio* Proyecto = nullptr;
    const PaginasComputos* Computos = nullptr;  // origin 1
    const DatosTanque* Tanque = nullptr;        // origin 2, with the results as shown
    QStringList ValoresTanque;
};
// Fills the origin's tables in the session's work databases, with the
// filler of that origin.
bool LleneTablasOrigen(int origen, const Sesion& s, const FuenteDatos& f, const OpcionesDatos& o, QString& error);
// Where the origin's template reads its rows, and its general data when
// those come from elsewhere (the catalogue's, from Trabajo.mdb); "" otherwise.
QString BaseOrigen(int origen, const Sesion& s);
QString BaseGeneralesOrigen(int origen, const Sesion& s);

// The work databases of the session.
QString RutaTrabajoReportes(const Sesion& s);   // Trabajo/Trabajo.mdb
QString RutaProyectoReportes(const Sesion& s);  // Trabajo/Proyecto.mdb
QString RutaCatalogoReportes(const Sesion& s);  // BDatos/BD_Piezas_Conexiones.mdb

// A number shown with the thousands marks of "#,##0.00" read back with the
// session's marks; false when the text is not one.
bool NumeroConMiles(const QString& texto, double& valor);
