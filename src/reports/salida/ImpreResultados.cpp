#include "reports/salida/ImpreResultados.h"

#include "base/Dialogos.h"
#include "reports/motor/Reporte.h"
#include "reports/salida/SalidaReporte.h"
#include "shell/Sesion.h"

ImpreResultados::ImpreResultados(const AnalisisRed& a, const ProyectoEdificio& p, Sesion& s, Dialogos& d,
                                 PantallasSalida& ps)
    : a_(a), p_(p), s_(s), d_(d), ps_(ps) {}

QString ImpreResultados::Titulo() { return QStringLiteral("EXPORTAR RESULTADOS"); }
QString ImpreResultados::TipDirectorio() { return QStringLiteral("Directorio de los reportes exportados. "); }

const std::vector<ImpreResultados::OpcionReporte>& ImpreResultados::Opciones() {
    static const std::vector<OpcionReporte> opciones = {
        {QStringLiteral("Option1"), QStringLiteral("Unidades de Gasto"), QStringLiteral("UnidadesGasto")},
        {QStringLiteral("Option2"), QStringLiteral("Longitudes Equivalentes"), QStringLiteral("LongitudesEquivalentes")},
        {QStringLiteral("Option3"), QStringLiteral("Pérdidas y Presiones"), QStringLiteral("PerdidasPresiones")},
        {QStringLiteral("Option4"), QStringLiteral("Portada"), QStringLiteral("Portada")},
        {QStringLiteral("Option5"), QStringLiteral("Predimensionado"), QStringLiteral("Predimensionado")},
        {QStringLiteral("Option6"), QStringLiteral("Resumen de Resultados"), QStringLiteral("Resultado")},
    };
    return opciones;
}

void ImpreResultados::ElegirOpcion(int n) {
    if (n >= 1 && n <= int(Opciones().size())) opcion_ = n;
}

bool ImpreResultados::Falla(const QString& texto) {
    d_.CursorOcupado(false);
    d_.MostrarMensaje(texto, Titulo(), QStringLiteral("Proyecto de Fontaria"), Botones::Aceptar, 0, 3);
    return false;
}

// Every table is filled at each pass, whichever report was chosen: a report
// printed next reads the same run.
bool ImpreResultados::Aceptar() {
    d_.CursorOcupado(true);
    QString error;
    if (!LleneTablasResultados(a_, p_, s_, Valores, error)) return Falla(error);
    Reporte r;
    if (!r.Abrir(s_.RutaPrograma, Opciones()[size_t(opcion_ - 1)].plantilla) ||
        !r.Vincular(s_.RutaDatos(QStringLiteral("Trabajo/Trabajo.mdb"))))
        return Falla(r.Error());
    d_.CursorOcupado(false);
    return SalidaReporte(r, d_, ps_);
}

void ImpreResultados::AbrirDirectorio() { AbrirReportesExportados(s_, d_); }
