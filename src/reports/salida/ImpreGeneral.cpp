#include "reports/salida/ImpreGeneral.h"

#include "base/Dialogos.h"
#include "reports/motor/Reporte.h"
#include "reports/salida/SalidaReporte.h"
#include "shell/Sesion.h"

ImpreGeneral::ImpreGeneral(int origen, Sesion& s, Dialogos& d, PantallasSalida& salida, FuenteDatos fuente)
    : Text1(TituloOrigen(origen)), origen_(origen), s_(s), d_(d), salida_(salida), fuente_(std::move(fuente)) {}

void ImpreGeneral::MostrarError(const QString& descripcion) {
    d_.MostrarMensaje(QStringLiteral("Error Número: %1\n%2").arg(ErrorMotorReporte).arg(descripcion), QString(),
                      QStringLiteral("Proyecto de Fontaria"), Botones::Aceptar, 0, 3);
}

bool ImpreGeneral::Aceptar() {
    QString error;
    d_.CursorOcupado(true);
    const bool llenas = LleneTablasOrigen(origen_, s_, fuente_, OpcionesDatos{Check1, Text1}, error);
    d_.CursorOcupado(false);
    if (!llenas) {
        d_.MostrarMensaje(error, Caption + QStringLiteral("..."), QStringLiteral("Proyecto de Fontaria"),
                          Botones::Aceptar, 0, 3);
        return false;
    }
    Reporte r;
    d_.CursorOcupado(true);
    const bool abierto = r.Abrir(s_.RutaPrograma, PlantillaOrigen(origen_, Check3)) &&
                         r.Vincular(BaseOrigen(origen_, s_), BaseGeneralesOrigen(origen_, s_));
    d_.CursorOcupado(false);
    if (!abierto) {
        MostrarError(r.Error());
        return false;
    }
    return SalidaReporte(r, d_, salida_, QStringLiteral("Abrir el Archivo Exportado..."));
}

void ImpreGeneral::LSButton4() { AbrirReportesExportados(s_, d_); }
