// The HTML form of a report: one file, its styles inline and its pictures
// as data addresses, so that it travels alone.  The column headers sit in
// the table's head, which browsers repeat on every printed page.

#include "reports/motor/ComposicionReporte.h"
#include "reports/motor/Reporte.h"

#include <QBuffer>
#include <QImage>

namespace {

QString E(const QString& t) { return t.toHtmlEscaped().replace(QLatin1Char('\n'), QStringLiteral("<br>")); }

QString Clase(Alineacion a) {
    switch (a) {
    case Alineacion::Derecha: return QStringLiteral(" class=\"d\"");
    case Alineacion::Centro: return QStringLiteral(" class=\"c\"");
    default: return QString();
    }
}

QString ImagenEmbebida(const Valor& v) {
    QImage img;
    if (!img.loadFromData(v.toByteArray())) return QString();
    QByteArray png;
    QBuffer b(&png);
    b.open(QIODevice::WriteOnly);
    img.save(&b, "PNG");
    return QStringLiteral("<img alt=\"\" src=\"data:image/png;base64,%1\">").arg(QString::fromLatin1(png.toBase64()));
}

QString Detalle(const SeccionPlantilla& s, const TablaReporte& t) {
    QString h = s.rejilla ? QStringLiteral("<table class=\"rejilla\"><thead><tr>") : QStringLiteral("<table><thead><tr>");
    for (const ColumnaPlantilla& c : s.columnas) h += QStringLiteral("<th>%1</th>").arg(E(c.titulo));
    h += QStringLiteral("</tr></thead><tbody>\n");
    std::vector<double> sumas(s.columnas.size(), 0.0);
    for (int f = 0; f < int(t.filas.size()); ++f) {
        h += AbreGrupo(s, t, f) ? QStringLiteral("<tr class=\"g\">") : QStringLiteral("<tr>");
        for (size_t i = 0; i < s.columnas.size(); ++i) {
            const ColumnaPlantilla& c = s.columnas[i];
            const Valor v = t.Celda(f, c);
            const QString texto = RepiteGrupo(s, t, f, c) ? QString()
                                  : c.imagen             ? ImagenEmbebida(v)
                                                         : E(TextoDato(v, c.formato, c.textos));
            h += QStringLiteral("<td%1>%2</td>").arg(Clase(c.alineacion), texto);
            if (s.totales.contains(c.campo)) sumas[i] += ComoDoble(v);
        }
        h += QStringLiteral("</tr>\n");
    }
    h += QStringLiteral("</tbody>");
    if (!s.totales.isEmpty()) {
        h += QStringLiteral("<tfoot><tr>");
        bool etiqueta = false;
        for (size_t i = 0; i < s.columnas.size(); ++i) {
            const ColumnaPlantilla& c = s.columnas[i];
            if (s.totales.contains(c.campo))
                h += QStringLiteral("<td%1>%2</td>").arg(Clase(c.alineacion), E(TextoDato(sumas[i], c.formato)));
            else if (!etiqueta && i + 1 < s.columnas.size() && s.totales.contains(s.columnas[i + 1].campo)) {
                h += QStringLiteral("<td class=\"d\">%1</td>").arg(E(s.etiquetaTotales));
                etiqueta = true;
            } else
                h += QStringLiteral("<td></td>");
        }
        h += QStringLiteral("</tr></tfoot>");
    }
    return h + QStringLiteral("</table>\n");
}

QString Campos(const SeccionPlantilla& s, const TablaReporte& t, bool portada) {
    QString h = portada ? QStringLiteral("<table class=\"portada\">") : QStringLiteral("<table class=\"campos\">");
    for (const CampoPlantilla& c : s.campos) {
        if (t.Dato(0, c.campo).isNull()) continue;  // a value that does not apply
        QString valor = TextoDato(t.Dato(0, c.campo), c.formato, c.textos);
        if (!c.unidad.isEmpty()) valor += QLatin1Char(' ') + c.unidad;
        h += QStringLiteral("<tr><th>%1</th><td>%2</td></tr>\n").arg(E(c.etiqueta), E(valor));
    }
    return h + QStringLiteral("</table>\n");
}

}  // namespace

QString HtmlReporte(const Plantilla& p, const DatosReporte& datos) {
    const bool color = datos.FormatoColor();
    const QString tinta = color ? QStringLiteral("#1F4E79") : QStringLiteral("#000");
    const QString fondo = color ? QStringLiteral("#1F4E79") : QStringLiteral("#D9D9D9");
    const QString letra = color ? QStringLiteral("#FFF") : QStringLiteral("#000");
    QString h = QStringLiteral(
                    "<!DOCTYPE html>\n<html lang=\"es\"><head><meta charset=\"utf-8\"><title>%1</title>\n<style>\n"
                    "@page { size: letter %2; margin: 0.5in; }\n"
                    "body { font-family: 'DejaVu Sans', Arial, sans-serif; font-size: 9pt; color: #000; }\n"
                    "h1, h2, h3, .empresa { color: %3; } h1 { font-size: 13pt; } h2 { font-size: 11pt; } h3 { font-size: 10pt; }\n"
                    ".caja { border: 1px solid %3; text-align: center; padding: 3px; margin: 3px 0; font-weight: bold; }\n"
                    "table { border-collapse: collapse; width: 100%; margin: 6px 0; }\n"
                    "th { background: %4; color: %5; font-size: 8pt; padding: 2px 4px; }\n"
                    "td { font-size: 8pt; padding: 1px 4px; border-bottom: 1px solid #DDD; }\n"
                    "td.d { text-align: right; } td.c { text-align: center; } tr.g td { border-top: 1px solid %3; }\n"
                    "tfoot td { font-weight: bold; border-top: 1px solid %3; }\n"
                    "table.rejilla td { border: 1px solid %3; height: 18pt; }\n"
                    "table.campos th, table.portada th { text-align: left; background: none; color: #000; width: 55%; }\n"
                    "td img { max-height: 72px; } img.dibujo { max-width: 100%; }\n</style></head><body>\n")
                    .arg(E(p.titulo.isEmpty() ? p.nombre : p.titulo), p.horizontal ? QStringLiteral("landscape") : QString(),
                         tinta, fondo, letra);
    if (p.encabezado) {
        h += QStringLiteral("<div class=\"empresa\"><b>%1</b> &nbsp; Fecha: %2</div>\n")
                 .arg(E(datos.General(QStringLiteral("Empresa"))), E(datos.General(QStringLiteral("Fecha"))));
        for (const char* campo : {"Titulo1", "Titulo2"})
            if (const QString t = datos.General(QString::fromLatin1(campo)); !t.isEmpty())
                h += QStringLiteral("<div class=\"caja\">%1</div>\n").arg(E(t));
        h += QStringLiteral("<p><b>Proyecto:</b> %1<br><b>Ubicación:</b> %2 &nbsp; <b>Calculista:</b> %3</p>\n")
                 .arg(E(datos.General(QStringLiteral("Proyecto"))), E(datos.General(QStringLiteral("Ubicacion"))),
                      E(datos.General(QStringLiteral("Calculista"))));
        if (!p.titulo.isEmpty()) h += QStringLiteral("<h2>%1</h2>\n").arg(E(p.titulo));
    }
    for (const SeccionPlantilla& s : p.secciones) {
        const TablaReporte& t = datos.Tabla(s.tabla);
        if (s.tipo == SeccionPlantilla::Tipo::Portada) {
            h += QStringLiteral("<h1 style=\"text-align:center\">%1</h1>\n<h2 style=\"text-align:center\">%2</h2>\n")
                     .arg(E(TituloPortada(datos, s, QStringLiteral("Titulo1"))), E(TituloPortada(datos, s, QStringLiteral("Titulo2"))));
            h += Campos(s, t, true);
            continue;
        }
        if (!s.titulo.isEmpty()) h += QStringLiteral("<h3>%1</h3>\n").arg(E(s.titulo));
        if (s.tipo == SeccionPlantilla::Tipo::Dibujo) {
            h += QStringLiteral("<p><img class=\"dibujo\" alt=\"%1\" src=\"data:image/png;base64,%2\"></p>\n")
                     .arg(E(s.titulo), QString::fromLatin1(datos.PngDibujo(s.dibujo).toBase64()));
            continue;
        }
        h += s.tipo == SeccionPlantilla::Tipo::Campos ? Campos(s, t, false) : Detalle(s, t);
    }
    return h + QStringLiteral("<p><small>Nivo-Fontaria %1</small></p>\n</body></html>\n")
                   .arg(E(datos.General(QStringLiteral("Version"))));
}
