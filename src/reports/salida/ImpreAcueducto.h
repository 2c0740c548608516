#pragma once
// The aqueduct reports.  ImpreAcueducto ("Redes de Acueductos") prints the
// results of the last solve: it writes Trabajo/Resultados.mdb, opens the
// template of the chosen option under ReportesACU/ and hands it to the
// output stage.  ImprimirDatosProyecto prints the project's data as last
// saved through Trabajo/Datos.mdb and ArchivoDatos.

#include <QString>
#include <QStringList>

class Dialogos;
class PantallasSalida;
class Reporte;
struct ProyectoAcueducto;
struct Sesion;

class ImpreAcueducto {
public:
    ImpreAcueducto(const ProyectoAcueducto& p, Sesion& s, Dialogos& d, PantallasSalida& salida);

    // The captions of Option1..Option6 and their templates.
    static QStringList Opciones();
    static QString PlantillaDeOpcion(int opcion);

    int Opcion = 1;             // 1..6
    bool FormatoColor = true;   // Check1 "Formato a Color"

    // Command2 "Exportar": the tables, the template and the output stage.
    // True when the report reached the preview or a file.
    bool Exportar();
    // LSButton4 "Directorio".
    void Directorio();

private:
    const ProyectoAcueducto& p_;
    Sesion& s_;
    Dialogos& d_;
    PantallasSalida& salida_;
};

// The data screen's "Reportes": the saved file copied into
// Trabajo/Datos.mdb, ArchivoDatos opened and passed to the output stage.
// The model is not saved first: unsaved edits are not printed.
bool ImprimirDatosProyecto(Sesion& s, Dialogos& d, PantallasSalida& salida);

// Opens ReportesACU/NOMBRE (or Reportes/) on the work database `base` and
// runs the output stage with "Abrir el Archivo Exportado..."; a template or
// database fault is shown.  Shared by the aqueduct reports and the sheets.
bool SalidaPlantilla(Sesion& s, Dialogos& d, PantallasSalida& salida, const QString& nombre, bool acueducto,
                     const QString& base);

// A fault of the tables or the engine as the report screens show it.
void MostrarErrorReporte(Dialogos& d, const QString& error);
