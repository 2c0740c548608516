#include "reports/salida/ImpreGeneral.h"

#include "base/Dialogos.h"
#include "reports/TablasDatos.h"
#include "reports/motor/Reporte.h"
#include "reports/salida/SalidaReporte.h"
#include "shell/Sesion.h"

namespace {

struct DatosOrigen {
    const char* titulo;
    const char* plantilla;
    const char* plantillaFotos;  // nullptr: none
};

const DatosOrigen Origenes[7] = {
    {"COMPUTOS DE MATERIALES", "Computos", nullptr},
    {"TANQUE HIDRONEUMÁTICO", "Hidroneumatico", nullptr},
    {"BASE DE DATOS DE PIEZAS SANITARIAS", "BDPiezas", "BDPiezasFoto"},
    {"BASE DE DATOS DE CONEXIONES", "BDConexiones", "BDConexionesFoto"},
    {"DATOS GENERALES DEL PROYECTO", "DatosProyecto", nullptr},
    {"PIEZAS SANITARIAS EN LOS RAMALES", "PiezasRamales", "PiezasRamalesFoto"},
    {"CONEXIONES EN LOS RAMALES", "ConexionesRamales", "ConexionesRamalesFoto"},
};

const DatosOrigen* De(int origen) { return origen >= 1 && origen <= 7 ? &Origenes[origen - 1] : nullptr; }

}  // namespace

ImpreGeneral::ImpreGeneral(int origen, Sesion& s, Dialogos& d, PantallasSalida& salida, FuenteImpreGeneral fuente)
    : Text1(Titulo(origen)), origen_(origen), s_(s), d_(d), salida_(salida), fuente_(std::move(fuente)) {}

QString ImpreGeneral::Titulo(int origen) {
    const DatosOrigen* o = De(origen);
    return o ? QString::fromUtf8(o->titulo) : QString();
}

bool ImpreGeneral::TieneFotos(int origen) {
    const DatosOrigen* o = De(origen);
    return o && o->plantillaFotos;
}

QString ImpreGeneral::NombrePlantilla(int origen, bool fotos) {
    const DatosOrigen* o = De(origen);
    if (!o) return QString();
    return QString::fromLatin1(fotos && o->plantillaFotos ? o->plantillaFotos : o->plantilla);
}

bool ImpreGeneral::LleneTablas(QString& error) {
    const OpcionesDatos o{Check1, Text1};
    switch (origen_) {
    case 1:
        if (!fuente_.Computos || !fuente_.Proyecto) break;
        return LleneTablasComputos(RutaTrabajoReportes(s_), *fuente_.Computos, *fuente_.Proyecto, s_, o, error);
    case 2:
        if (!fuente_.Tanque || !fuente_.Proyecto) break;
        return LleneTablaTanque(RutaTrabajoReportes(s_), *fuente_.Tanque, fuente_.ValoresTanque, *fuente_.Proyecto,
                                s_, o, error);
    case 3:
    case 4: return LleneGeneralesCatalogo(RutaTrabajoReportes(s_), o, error);
    case 5:
    case 6:
    case 7: return CopieProyectoReporte(RutaProyectoReportes(s_), s_.ArchivoProyecto, s_, o, error);
    default: break;
    }
    error = QStringLiteral("No hay datos que imprimir para este reporte.");
    return false;
}

void ImpreGeneral::MostrarError(const QString& descripcion) {
    d_.MostrarMensaje(QStringLiteral("Error Número: %1\n%2").arg(ErrorMotorReporte).arg(descripcion), QString(),
                      QStringLiteral("Proyecto de Fontaria"), Botones::Aceptar, 0, 3);
}

bool ImpreGeneral::Aceptar() {
    QString error;
    d_.CursorOcupado(true);
    const bool llenas = LleneTablas(error);
    d_.CursorOcupado(false);
    if (!llenas) {
        d_.MostrarMensaje(error, Caption + QStringLiteral("..."), QStringLiteral("Proyecto de Fontaria"),
                          Botones::Aceptar, 0, 3);
        return false;
    }
    // The catalogue reports read their rows from the catalogue and their
    // general data from the work database.
    const bool catalogo = origen_ == 3 || origen_ == 4;
    const QString base = origen_ <= 2 ? RutaTrabajoReportes(s_)
                         : catalogo   ? RutaCatalogoReportes(s_)
                                      : RutaProyectoReportes(s_);
    Reporte r;
    d_.CursorOcupado(true);
    const bool abierto = r.Abrir(s_.RutaPrograma, NombrePlantilla(origen_, Check3)) &&
                         r.Vincular(base, catalogo ? RutaTrabajoReportes(s_) : QString());
    d_.CursorOcupado(false);
    if (!abierto) {
        MostrarError(r.Error());
        return false;
    }
    return SalidaReporte(r, d_, salida_, QStringLiteral("Abrir el Archivo Exportado..."));
}

void ImpreGeneral::LSButton4() { AbrirReportesExportados(s_, d_); }
