#pragma once
// The reports the command line can make: for each template, by mode, the
// routine that fills its work tables as its screen would.  A report screen
// that gains a filler adds one line to the table in LlenadoresReporte.cpp.

#include "app/SalidaEdificio.h"

#include <QString>
#include <QStringList>

// What a filler works with.  The verb's session has a scratch data folder
// holding fresh work databases (Trabajo/*.mdb) and a link to the user's
// catalogue folder (BDatos/), so that reports made side by side never share
// a table.
struct TrabajoReporte {
    TrabajoReporte(const QString& archivo, bool color, int caso) : c(false), archivo(archivo), color(color), caso(caso) {}
    ContextoVerbo c;     // session, console dialogs and the building project
    QString archivo;     // the project named on the command line (.plm or .acu)
    bool color;          // --color: FormatoColor of DatosGenerales
    int caso;            // --caso: the aqueduct's demand case, 1 to 3
    // The database the template reads; a filler whose tables live in
    // another file than Trabajo/Trabajo.mdb sets it.
    QString base;
    // The database of the general data when it is another (the catalogue's
    // reports take theirs from Trabajo/Trabajo.mdb); empty otherwise.
    QString generales;
    // The building project loaded and its numbering verified, as `analizar`
    // does before the analysis; messages on stderr.  A Salida status.
    int CargarEdificio();
};

// A filler returns a Salida status; on failure it has printed the message.
using LlenadorReporte = int (*)(TrabajoReporte&);

struct EntradaReporte {
    bool acueducto;
    const char* plantilla;  // the template's base name
    LlenadorReporte llenar;
};

// The entry of a template in a mode, or null.
const EntradaReporte* BuscarReporte(bool acueducto, const QString& plantilla);
// The templates known in a mode, for the message of an unknown one.
QStringList PlantillasConocidas(bool acueducto);
