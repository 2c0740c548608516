#include "workbook/OpcionExcel.h"

#include "base/Dialogos.h"
#include "base/Nivo.h"
#include "shell/Sesion.h"

#include <QDir>
#include <QStringList>

namespace {

QString CarpetaExportados(const Sesion& s) { return s.RutaDatos(QStringLiteral("ReportesExportados")); }

}  // namespace

QString TituloMensajesLibro(bool acueducto) {
    return acueducto ? QStringLiteral("Datos del Proyecto de Acueductos") : QStringLiteral("Proyecto de Fontaria");
}

OpcionExcel::OpcionExcel(const Sesion& s, Dialogos& d, bool acu) : acueducto(acu), Date1(Hoy()), s_(s), d_(d) {
    opciones.fecha = FechaTexto(Date1);
}

QString OpcionExcel::TituloMensajes() const { return TituloMensajesLibro(acueducto); }

QStringList OpcionExcel::Reportes() const {
    if (acueducto) return {QStringLiteral("Resultados de los Ramales"), QStringLiteral("Resultados de los Nodos")};
    return {QStringLiteral("Predimensionado de los Ramales"), QStringLiteral("Unidades de Gasto y Gasto Probable"),
            QStringLiteral("Longitudes Equivalentes"), QStringLiteral("Pérdidas y Presiones Disponibles")};
}

QString OpcionExcel::Ayuda(const QString& control) {
    if (control == QLatin1String("Command2")) return QStringLiteral("Exportar los reportes a Excel. ");
    if (control == QLatin1String("Command1")) return QStringLiteral(" Cancelar ");
    if (control == QLatin1String("Command3")) return QStringLiteral("Cerrar los procesos de Excel en memoria. ");
    if (control == QLatin1String("LSButton2")) return QStringLiteral("Directorio de los reportes exportados. ");
    return QString();
}

void OpcionExcel::Command2_Click() {
    const int reportes = acueducto ? 2 : 4;
    bool alguno = false;
    for (int k = 0; k < reportes; ++k) alguno = alguno || opciones.hojas[k];
    // The building's index alone is a workbook of its own; nothing at all is not.
    if (!alguno && (acueducto || !opciones.indice)) {
        d_.MostrarMensaje(QStringLiteral("¡Debe Seleccionar los Reportes!"), QStringLiteral("Exportar a Excel..."),
                          TituloMensajes());
        return;
    }
    for (int k = reportes; k < 4; ++k) opciones.hojas[k] = false;
    opciones.fecha = FechaTexto(Date1);
    ExcelAceptado = true;
    cerrar = true;
}

void OpcionExcel::Command1_Click() {
    ExcelAceptado = false;
    cerrar = true;
}

void OpcionExcel::Command3_Click() {
    d_.MostrarMensaje(QStringLiteral("No Existen Procesos Abiertos de Excel en Memoria...").toUpper(),
                      acueducto ? QStringLiteral("Liberar Memoria (Excel) en el Computador...")
                                : QStringLiteral("Liberar Mamoria (Excel) en el Computador..."),
                      QStringLiteral("Liberar Espacio en Memoria"));
}

void OpcionExcel::LSButton2_Click() {
    const QString carpeta = CarpetaExportados(s_);
    QDir().mkpath(carpeta);
    d_.AbrirConSistema(carpeta);
}

void OpcionExcel::Fecha_Click(const QDate& dia) {
    if (!dia.isValid()) return;
    Date1 = dia;
    opciones.conFecha = true;
}

bool GuardarLibroExcel(const Sesion& s, Dialogos& d, bool acueducto,
                       const std::function<bool(const QString& archivo, QString& error)>& escribir) {
    const QString carpeta = CarpetaExportados(s);
    QDir().mkpath(carpeta);
    std::optional<QString> elegido = d.GuardarArchivo(QStringLiteral("Exportar Pantalla Actual a EXCEL"),
                                                      QStringLiteral("Archivos Excel (*.xlsx)|*.xlsx;"), carpeta);
    if (!elegido || elegido->isEmpty()) return false;
    QString archivo = *elegido;
    if (!archivo.endsWith(QLatin1String(".xlsx"), Qt::CaseInsensitive)) archivo += QStringLiteral(".xlsx");

    QString error;
    d.CursorOcupado(true);
    const bool escrito = escribir(archivo, error);
    d.CursorOcupado(false);
    const QString titulo = TituloMensajesLibro(acueducto);
    if (!escrito) {
        d.MostrarMensaje(error, QStringLiteral("Exportar a Excel..."), titulo, Botones::Aceptar, 0, 2);
        return false;
    }
    if (d.MostrarMensaje(QStringLiteral("¿Desea Abrir el Archivo Creado de Excel?"),
                         acueducto ? QStringLiteral("Abrir el Archivo con Excel...")
                                   : QStringLiteral("Abrir el Archivo con Excel"),
                         titulo, Botones::SiNo, Respuesta::Si, 1) == Respuesta::Si)
        d.AbrirConSistema(archivo);
    return true;
}
