#include "workbook/EscrituraLibro.h"

#include "store/Archivos.h"

#include <QDir>
#include <QFileInfo>
#include <cstdio>
#include <map>
#include <unistd.h>
#include <xlsxwriter.h>

namespace {

// The spreadsheet's formats made from the styles of one sheet.
std::vector<lxw_format*> Formatos(lxw_workbook* libro, const HojaLibro& h) {
    std::vector<lxw_format*> formatos;
    for (int i = 0; i < h.Estilos(); ++i) {
        const EstiloLibro& e = h.EstiloNumero(i);
        lxw_format* f = workbook_add_format(libro);
        format_set_font_name(f, "Arial");
        format_set_font_size(f, e.tamano);
        if (e.negrita) format_set_bold(f);
        if (e.subrayado) format_set_underline(f, LXW_UNDERLINE_SINGLE);
        if (e.ajustar) format_set_text_wrap(f);
        if (e.horizontal == 'I') format_set_align(f, LXW_ALIGN_LEFT);
        if (e.horizontal == 'C') format_set_align(f, LXW_ALIGN_CENTER);
        if (e.horizontal == 'D') format_set_align(f, LXW_ALIGN_RIGHT);
        format_set_align(f, e.vertical == 'C' ? LXW_ALIGN_VERTICAL_CENTER : LXW_ALIGN_VERTICAL_BOTTOM);
        if (e.fondo) {
            format_set_pattern(f, LXW_PATTERN_SOLID);
            format_set_bg_color(f, ColorPaleta(e.fondo));
        }
        if (e.letra) format_set_font_color(f, ColorPaleta(e.letra));
        if (!e.formato.isEmpty()) format_set_num_format(f, e.formato.toUtf8().constData());
        if (e.bordes & Borde::Izquierdo) format_set_left(f, LXW_BORDER_THIN);
        if (e.bordes & Borde::Superior) format_set_top(f, LXW_BORDER_THIN);
        if (e.bordes & Borde::Derecho) format_set_right(f, LXW_BORDER_THIN);
        if (e.bordes & Borde::Inferior) format_set_bottom(f, LXW_BORDER_THIN);
        // Every cell may be typed over, as the sheets were left.
        format_set_unlocked(f);
        formatos.push_back(f);
    }
    return formatos;
}

lxw_error EscribirHoja(lxw_workbook* libro, const HojaLibro& h) {
    lxw_worksheet* w = workbook_add_worksheet(libro, h.Nombre().toUtf8().constData());
    if (!w) return LXW_ERROR_SHEETNAME_ALREADY_USED;
    const std::vector<lxw_format*> formatos = Formatos(libro, h);
    worksheet_gridlines(w, LXW_HIDE_ALL_GRIDLINES);
    // Printed across, one page wide, the sheet reads as on the screen.
    worksheet_set_landscape(w);
    worksheet_fit_to_pages(w, 1, 0);
    worksheet_set_default_row(w, h.altoPorDefecto, LXW_FALSE);
    for (int c = 1; c <= h.UltimaColumna() || h.AnchoColumna(c) > 0; ++c)
        if (h.AnchoColumna(c) > 0) worksheet_set_column(w, lxw_col_t(c - 1), lxw_col_t(c - 1), h.AnchoColumna(c), nullptr);
    // The sheet goes out row by row, each row once (the writer keeps one
    // row in memory): a joined range is declared as its last row starts,
    // so that the cells written after it keep their own styles and the
    // first cell, written earlier, its value.
    std::vector<std::vector<const Rango*>> unionesQueAcaban(size_t(h.UltimaFila()) + 1);
    for (const Rango& r : h.Uniones()) unionesQueAcaban[size_t(r.fila2)].push_back(&r);
    std::map<std::pair<int, int>, const VinculoLibro*> vinculos;
    for (const VinculoLibro& v : h.Vinculos()) vinculos[{v.fila, v.columna}] = &v;
    for (int f = 1; f <= h.UltimaFila(); ++f) {
        const lxw_row_t fila = lxw_row_t(f - 1);
        const double alto = h.AltoFilaFijado(f);
        // Setting the row sends the previous one out, which the joined
        // ranges' first cells must then leave alone.
        if (alto > 0 || !unionesQueAcaban[size_t(f)].empty())
            worksheet_set_row(w, fila, alto > 0 ? alto : h.altoPorDefecto, nullptr);
        for (const Rango* r : unionesQueAcaban[size_t(f)]) {
            const lxw_error e = worksheet_merge_range(w, lxw_row_t(r->fila1 - 1), lxw_col_t(r->columna1 - 1), fila,
                                                      lxw_col_t(r->columna2 - 1), "",
                                                      formatos[size_t(h.Celda(r->fila1, r->columna1).estilo)]);
            if (e != LXW_NO_ERROR) return e;
        }
        for (int c = 1; c <= h.UltimaColumna(); ++c) {
            const CeldaLibro& celda = h.Celda(f, c);
            lxw_format* formato = formatos[size_t(celda.estilo)];
            const lxw_col_t col = lxw_col_t(c - 1);
            lxw_error e = LXW_NO_ERROR;
            const auto vinculo = vinculos.find({f, c});
            if (vinculo != vinculos.end())
                e = worksheet_write_url_opt(w, fila, col,
                                            (QStringLiteral("internal:") + vinculo->second->destino).toUtf8().constData(),
                                            formato, vinculo->second->texto.toUtf8().constData(), nullptr);
            else if (celda.tipo == CeldaLibro::Numero)
                e = worksheet_write_number(w, fila, col, celda.numero, formato);
            else if (celda.tipo == CeldaLibro::Texto)
                e = worksheet_write_string(w, fila, col, celda.texto.toUtf8().constData(), formato);
            else if (celda.estilo != 0)
                e = worksheet_write_blank(w, fila, col, formato);
            if (e != LXW_NO_ERROR) return e;
        }
    }
    if (h.inmovilizarFila > 0 || h.inmovilizarColumna > 0)
        worksheet_freeze_panes(w, lxw_row_t(std::max(h.inmovilizarFila - 1, 0)),
                               lxw_col_t(std::max(h.inmovilizarColumna - 1, 0)));
    worksheet_set_selection(w, lxw_row_t(h.seleccionFila - 1), lxw_col_t(h.seleccionColumna - 1),
                            lxw_row_t(h.seleccionFila - 1), lxw_col_t(h.seleccionColumna - 1));
    return LXW_NO_ERROR;
}

// Why the writer stopped, for the engineer.
QString Motivo(lxw_error e) {
    switch (e) {
    case LXW_NO_ERROR: return QString();  // the rename failed
    case LXW_ERROR_CREATING_XLSX_FILE: return QStringLiteral(" (la carpeta no admite archivos nuevos)");
    case LXW_ERROR_CREATING_TMPFILE: return QStringLiteral(" (no se pudo crear un archivo temporal)");
    case LXW_ERROR_ZIP_FILE_OPERATION: return QStringLiteral(" (el disco está lleno o no se puede escribir)");
    case LXW_ERROR_MEMORY_MALLOC_FAILED: return QStringLiteral(" (falta memoria)");
    default: return QStringLiteral(" (error del escritor de libros: %1)").arg(QString::fromUtf8(lxw_strerror(e)));
    }
}

}  // namespace

bool EscribirLibro(const std::vector<HojaLibro>& hojas, const QString& archivo, QString& error) {
    const QFileInfo info(archivo);
    const QString carpeta = info.absolutePath();
    if (!QFileInfo(carpeta).isDir()) {
        error = QStringLiteral("No existe la carpeta del archivo: ") + carpeta;
        return false;
    }
    if (!DestinoReemplazable(archivo, QString(), error)) return false;
    const QString temporal = carpeta + QStringLiteral("/.") + info.fileName() +
                             QStringLiteral(".%1.tmp").arg(qint64(getpid()));
    lxw_workbook_options opciones{};
    const QByteArray tmp = QDir::tempPath().toUtf8();
    opciones.tmpdir = const_cast<char*>(tmp.constData());
    opciones.use_zip64 = LXW_TRUE;
    opciones.constant_memory = LXW_TRUE;
    lxw_workbook* libro = workbook_new_opt(RutaNativa(temporal).constData(), &opciones);
    if (!libro) {
        error = QStringLiteral("No se puede escribir el archivo: ") + archivo;
        return false;
    }
    lxw_error e = LXW_NO_ERROR;
    for (const HojaLibro& h : hojas)
        if (e == LXW_NO_ERROR) e = EscribirHoja(libro, h);
    const lxw_error cierre = workbook_close(libro);
    if (e == LXW_NO_ERROR) e = cierre;
    if (e == LXW_NO_ERROR && ReemplazarArchivo(temporal, archivo)) return true;
    std::remove(RutaNativa(temporal).constData());
    error = QStringLiteral("No se puede escribir el archivo: ") + archivo + Motivo(e);
    return false;
}
