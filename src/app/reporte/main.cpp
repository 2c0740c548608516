// fontaria-reporte FORMATO BASE PLANTILLA ACUEDUCTO SALIDA [GENERALES]: writes one report
// without a window.  Started by `fontaria reporte` once it has filled the
// work tables, so that the command line itself never loads the painting
// libraries; FORMATO is pdf, html, xlsx or rtf and ACUEDUCTO 0 or 1; GENERALES
// is the database of the general data when BASE lacks them.

#include "base/Nivo.h"
#include "reports/motor/Reporte.h"
#include "reports/salida/SalidaReporte.h"
#include "shell/Inicio.h"

#include <QGuiApplication>
#include <cstdio>

namespace {

int Fallar(const QString& mensaje) {
    fprintf(stderr, "%s\n", mensaje.toUtf8().constData());
    return 1;
}

}  // namespace

// A batch run has no desktop session: Qt's note about the missing runtime
// folder says nothing to the engineer and is left out of the messages.
static void Mensajes(QtMsgType tipo, const QMessageLogContext&, const QString& texto) {
    if (tipo == QtWarningMsg && texto.startsWith(QLatin1String("QStandardPaths:"))) return;
    fprintf(stderr, "%s\n", texto.toUtf8().constData());
}

int main(int argc, char** argv) {
    // No display is needed, nor wanted in a batch run.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler(Mensajes);
    QGuiApplication app(argc, argv);
    const QStringList a = app.arguments();
    if (a.size() != 6 && a.size() != 7)
        return Fallar(QStringLiteral("Uso: fontaria-reporte pdf|html|xlsx|rtf BASE PLANTILLA 0|1 SALIDA [GENERALES]"));
    const QHash<QString, FormatoSalida> formatos{{QStringLiteral("pdf"), FormatoSalida::Pdf},
                                                 {QStringLiteral("html"), FormatoSalida::Html},
                                                 {QStringLiteral("xlsx"), FormatoSalida::Excel},
                                                 {QStringLiteral("rtf"), FormatoSalida::Word}};
    if (!formatos.contains(a[1])) return Fallar(QStringLiteral("Formato de salida desconocido: ") + a[1]);
    // The numbers are printed with the user's marks, as on the desktop.
    SeparadoresActuales() = SeparadoresDelSistema();
    Reporte r;
    if (!r.Abrir(CarpetaPrograma(), a[3], a[4] == QLatin1String("1")) || !r.Vincular(a[2], a.value(6)) ||
        !ExportarReporte(r, formatos.value(a[1]), a[5]))
        return Fallar(r.Error());
    return 0;
}
