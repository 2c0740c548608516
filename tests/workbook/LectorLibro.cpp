#include "LectorLibro.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QProcess>
#include <gtest/gtest.h>

namespace {

// The system's interpreter, where the distribution's openpyxl is.
const char* kPython = "/usr/bin/python3";

const char* kLector = R"(
import json, sys, openpyxl
wb = openpyxl.load_workbook(sys.argv[1])
out = {"hojas": wb.sheetnames, "datos": {}}
def color(c):
    return c.rgb if c is not None and c.type == "rgb" and isinstance(c.rgb, str) else ""
for ws in wb:
    celdas = {}
    for fila in ws.iter_rows():
        for c in fila:
            fondo = color(c.fill.fgColor) if c.fill is not None and c.fill.fill_type == "solid" else ""
            if c.value is None and not c.hyperlink and not fondo:
                continue
            v = c.value
            if isinstance(v, (int, float)) and not isinstance(v, bool):
                v = float(v)
            celdas[c.coordinate] = {"v": v, "f": c.number_format,
                                    "l": c.hyperlink.location if c.hyperlink else "",
                                    "b": fondo, "c": color(c.font.color) if c.font else ""}
    out["datos"][ws.title] = {"celdas": celdas, "inmovilizar": ws.freeze_panes or "",
                              "uniones": [str(r) for r in ws.merged_cells.ranges], "filas": ws.max_row}
json.dump(out, sys.stdout)
)";

}  // namespace

bool LibroLeido::Leer(const QString& archivo) {
    QProcess p;
    p.start(QString::fromLatin1(kPython), {QStringLiteral("-c"), QString::fromUtf8(kLector), archivo});
    if (!p.waitForFinished(60000) || p.exitCode() != 0) {
        ADD_FAILURE() << "openpyxl no pudo leer " << archivo.toStdString() << ": "
                      << p.readAllStandardError().toStdString();
        return false;
    }
    const QJsonObject o = QJsonDocument::fromJson(p.readAllStandardOutput()).object();
    hojas.clear();
    for (const auto& h : o.value(QStringLiteral("hojas")).toArray()) hojas << h.toString();
    datos_ = o.value(QStringLiteral("datos")).toObject();
    return true;
}

QString LibroLeido::Inmovilizado(const QString& hoja) const {
    return datos_.value(hoja).toObject().value(QStringLiteral("inmovilizar")).toString();
}

QStringList LibroLeido::Uniones(const QString& hoja) const {
    QStringList r;
    for (const auto& u : datos_.value(hoja).toObject().value(QStringLiteral("uniones")).toArray()) r << u.toString();
    return r;
}

CeldaLeida LibroLeido::Celda(const QString& hoja, const QString& ref) const {
    const QJsonObject c =
        datos_.value(hoja).toObject().value(QStringLiteral("celdas")).toObject().value(ref).toObject();
    CeldaLeida r;
    const QJsonValue v = c.value(QStringLiteral("v"));
    if (v.isDouble()) r.valor = v.toDouble();
    else if (v.isString()) r.valor = v.toString();
    r.formato = c.value(QStringLiteral("f")).toString();
    r.vinculo = c.value(QStringLiteral("l")).toString();
    r.fondo = c.value(QStringLiteral("b")).toString();
    r.letra = c.value(QStringLiteral("c")).toString();
    return r;
}

int LibroLeido::UltimaFila(const QString& hoja) const {
    return datos_.value(hoja).toObject().value(QStringLiteral("filas")).toInt();
}

QStringList LibroLeido::Buscar(const QString& hoja, const QString& texto) const {
    QStringList r;
    const QJsonObject celdas = datos_.value(hoja).toObject().value(QStringLiteral("celdas")).toObject();
    for (auto it = celdas.begin(); it != celdas.end(); ++it)
        if (it.value().toObject().value(QStringLiteral("v")).toString() == texto) r << it.key();
    return r;
}
