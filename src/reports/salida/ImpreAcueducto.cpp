#include "reports/salida/ImpreAcueducto.h"

#include "base/Dialogos.h"
#include "reports/TablasAcueducto.h"
#include "reports/motor/Reporte.h"
#include "reports/salida/SalidaReporte.h"
#include "shell/Sesion.h"

namespace {

const char* const Plantillas[] = {"ResultadosTodo",    "ResultadosTramos", "ResultadosNodos",
                                  "Portada",           "ResultadosTramosD", "ResultadosTodoD"};

}  // namespace

void MostrarErrorReporte(Dialogos& d, const QString& error) {
    d.MostrarMensaje(error, QStringLiteral("Imprimir el Reporte..."), QStringLiteral("Proyecto de Fontaria"),
                     Botones::Aceptar, 0, 3);
}

bool SalidaPlantilla(Sesion& s, Dialogos& d, PantallasSalida& salida, const QString& nombre, bool acueducto,
                     const QString& base) {
    Reporte r;
    if (!r.Abrir(s.RutaPrograma, nombre, acueducto) || !r.Vincular(base)) {
        MostrarErrorReporte(d, r.Error());
        return false;
    }
    return SalidaReporte(r, d, salida, QStringLiteral("Abrir el Archivo Exportado..."));
}

ImpreAcueducto::ImpreAcueducto(const ProyectoAcueducto& p, Sesion& s, Dialogos& d, PantallasSalida& salida)
    : p_(p), s_(s), d_(d), salida_(salida) {}

QStringList ImpreAcueducto::Opciones() {
    return {QStringLiteral("Imprimir Todas las Tablas"), QStringLiteral("Resultados de los Ramales"),
            QStringLiteral("Resultados de los Nodos"),   QStringLiteral("Portada Inicial"),
            QStringLiteral("Ramales con Dirección del Flujo"), QStringLiteral("Todas las Tablas con Dirección")};
}

QString ImpreAcueducto::PlantillaDeOpcion(int opcion) {
    return QString::fromLatin1(Plantillas[opcion >= 1 && opcion <= 6 ? opcion - 1 : 0]);
}

bool ImpreAcueducto::Exportar() {
    QString error;
    d_.CursorOcupado(true);
    const bool lleno = LleneTablasAcueducto(p_, s_, FormatoColor, error);
    d_.CursorOcupado(false);
    if (!lleno) {
        MostrarErrorReporte(d_, error);
        return false;
    }
    return SalidaPlantilla(s_, d_, salida_, PlantillaDeOpcion(Opcion), true,
                           s_.RutaDatos(QStringLiteral("Trabajo/Resultados.mdb")));
}

void ImpreAcueducto::Directorio() { AbrirReportesExportados(s_, d_); }

bool ImprimirDatosProyecto(Sesion& s, Dialogos& d, PantallasSalida& salida) {
    QString error;
    if (!CopieDatosProyectoACU(s, error)) {
        MostrarErrorReporte(d, error);
        return false;
    }
    return SalidaPlantilla(s, d, salida, QStringLiteral("ArchivoDatos"), true,
                           s.RutaDatos(QStringLiteral("Trabajo/Datos.mdb")));
}
