// The workbook form of a report: one sheet per table band, the sheet's
// first rows holding the project's data, numbers written as numbers with
// the template's mask as their number format (the spreadsheet shows them
// with the reader's own marks), and the rows of a label and value bands as
// rows of a sheet of their own.

#include "reports/motor/ComposicionReporte.h"
#include "reports/motor/Reporte.h"

#include <QBuffer>
#include <QDir>
#include <QFileInfo>
#include <QHash>
#include <QImage>
#include <QSet>
#include <QTemporaryFile>
#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <deque>
#include <xlsxwriter.h>

namespace {

constexpr int LargoNombreHoja = 31;

// A sheet name the spreadsheet accepts: at most 31 characters, none of
// []:*?/\, no apostrophe at either end, and unlike the others of the book
// (letter case aside).
QString NombreHoja(const QString& deseado, QSet<QString>& usados) {
    QString base;
    for (const QChar c : deseado.simplified())
        base += QStringLiteral("[]:*?/\\").contains(c) ? QLatin1Char(' ') : c;
    base = base.simplified();
    while (base.startsWith(QLatin1Char('\''))) base.remove(0, 1);
    while (base.endsWith(QLatin1Char('\''))) base.chop(1);
    if (base.isEmpty()) base = QStringLiteral("Hoja");
    // Cut at a word's end when the name is too long.
    QString nombre = base.size() <= LargoNombreHoja ? base : base.left(LargoNombreHoja + 1);
    if (nombre.size() > LargoNombreHoja) {
        const int blanco = nombre.lastIndexOf(QLatin1Char(' '));
        nombre = blanco > LargoNombreHoja / 2 ? nombre.left(blanco) : nombre.left(LargoNombreHoja);
    }
    nombre = nombre.trimmed();
    for (int n = 2; usados.contains(nombre.toLower()); ++n) {
        const QString sufijo = QStringLiteral(" (%1)").arg(n);
        nombre = base.left(LargoNombreHoja - sufijo.size()).trimmed() + sufijo;
    }
    usados.insert(nombre.toLower());
    return nombre;
}

QByteArray U(const QString& t) { return t.toUtf8(); }

// A picture's bytes as PNG, whatever the format it was stored in; empty
// when they are not a picture.
QByteArray Png(const Valor& v, QSize& tamano) {
    QImage img;
    if (!img.loadFromData(v.toByteArray())) return QByteArray();
    tamano = img.size();
    QByteArray png;
    QBuffer b(&png);
    b.open(QIODevice::WriteOnly);
    img.save(&b, "PNG");
    return png;
}

class LibroXlsx {
public:
    LibroXlsx(const Plantilla& p, const DatosReporte& datos, lxw_workbook* libro)
        : p_(p), datos_(datos), libro_(libro), color_(datos.FormatoColor()) {
        const uint32_t tinta = color_ ? 0x1F4E79 : 0x000000;
        negrita_ = Negrita(11, 0x000000);
        empresa_ = Negrita(12, tinta);
        titulo_ = Negrita(11, tinta);
        portada_ = Negrita(16, tinta);
        caja_ = Negrita(11, tinta);
        format_set_align(caja_, LXW_ALIGN_CENTER);
        format_set_border(caja_, LXW_BORDER_THIN);
        format_set_border_color(caja_, tinta);
        format_set_bg_color(caja_, color_ ? 0xDCE6F1 : 0xF0F0F0);
        encabezado_ = Negrita(11, color_ ? 0xFFFFFF : 0x000000);
        format_set_text_wrap(encabezado_);
        format_set_align(encabezado_, LXW_ALIGN_CENTER);
        format_set_align(encabezado_, LXW_ALIGN_VERTICAL_CENTER);
        format_set_border(encabezado_, LXW_BORDER_THIN);
        format_set_bg_color(encabezado_, color_ ? 0x1F4E79 : 0xD9D9D9);
        etiquetaTotales_ = Negrita(11, 0x000000);
        format_set_align(etiquetaTotales_, LXW_ALIGN_RIGHT);
        format_set_top(etiquetaTotales_, LXW_BORDER_THIN);
    }

    void Escribir() {
        // Bands without rows of their own (label and value, cover) share a
        // sheet until the next table band.
        lxw_worksheet* hoja = nullptr;
        int fila = 0;
        int anchoEtiqueta = 10, anchoValor = 12;
        for (const SeccionPlantilla& s : p_.secciones) {
            if (s.tipo == SeccionPlantilla::Tipo::Detalle || s.tipo == SeccionPlantilla::Tipo::Dibujo) {
                if (s.tipo == SeccionPlantilla::Tipo::Detalle) Detalle(s);
                else Dibujo(s);
                hoja = nullptr;
                continue;
            }
            if (!hoja) {
                hoja = NuevaHoja(s.titulo.isEmpty() ? (p_.titulo.isEmpty() ? p_.nombre : p_.titulo) : s.titulo);
                fila = Cabecera(hoja, 3);
                anchoEtiqueta = 10;
                anchoValor = 12;
            }
            fila = s.tipo == SeccionPlantilla::Tipo::Portada ? Portada(hoja, s, fila)
                                                             : Campos(hoja, s, fila, anchoEtiqueta, anchoValor);
            worksheet_set_column(hoja, 0, 0, std::min(anchoEtiqueta, 60), nullptr);
            worksheet_set_column(hoja, 1, 1, std::min(anchoValor, 60), nullptr);
            worksheet_set_column(hoja, 2, 2, 10, nullptr);
        }
    }

private:
    lxw_format* Nuevo() { return workbook_add_format(libro_); }
    lxw_format* Negrita(double puntos, uint32_t color) {
        lxw_format* f = Nuevo();
        format_set_bold(f);
        format_set_font_size(f, puntos);
        format_set_font_color(f, color);
        return f;
    }

    static uint8_t Alinear(Alineacion a) {
        switch (a) {
        case Alineacion::Derecha: return LXW_ALIGN_RIGHT;
        case Alineacion::Centro: return LXW_ALIGN_CENTER;
        default: return LXW_ALIGN_LEFT;
        }
    }

    // The format of a cell: the number format of a mask (the same text in
    // the spreadsheet's own notation; none for a text), bold over a rule for
    // the totals, ruled on every side in a form to fill by hand.
    lxw_format* Celda(const QString& mascara, Alineacion a, bool total = false, bool rejilla = false) {
        const QString clave = QStringLiteral("%1|%2%3%4").arg(mascara).arg(int(a)).arg(int(total)).arg(int(rejilla));
        if (lxw_format* f = formatos_.value(clave)) return f;
        lxw_format* f = Nuevo();
        if (!mascara.isEmpty()) format_set_num_format(f, U(mascara).constData());
        format_set_align(f, Alinear(a));
        if (total) {
            format_set_bold(f);
            format_set_top(f, LXW_BORDER_THIN);
        }
        if (rejilla) format_set_border(f, LXW_BORDER_THIN);
        formatos_.insert(clave, f);
        return f;
    }

    lxw_worksheet* NuevaHoja(const QString& deseado) {
        lxw_worksheet* h = workbook_add_worksheet(libro_, U(NombreHoja(deseado, usados_)).constData());
        worksheet_set_paper(h, 1);  // letter
        if (p_.horizontal) worksheet_set_landscape(h);
        worksheet_set_margins(h, 0.5, 0.5, 0.5, 0.5);
        worksheet_fit_to_pages(h, 1, 0);  // printed as wide as one page, as long as needed
        if (p_.pie) {
            // The printed foot of the other forms; '&' is the footer's own mark.
            const QString pie = QStringLiteral("&LNivo-Fontaria %1 · %2&RPágina &P de &N")
                                    .arg(datos_.General(QStringLiteral("Version")).replace(QLatin1Char('&'), QStringLiteral("&&")),
                                         datos_.General(QStringLiteral("Proyecto")).replace(QLatin1Char('&'), QStringLiteral("&&")));
            worksheet_set_footer(h, U(pie).constData());
        }
        return h;
    }

    // The general data over `columnas` columns; the next free row.
    int Cabecera(lxw_worksheet* h, int columnas) {
        int fila = 0;
        if (p_.encabezado) {
            worksheet_write_string(h, fila++, 0, U(datos_.General(QStringLiteral("Empresa"))).constData(), empresa_);
            for (const char* campo : {"Titulo1", "Titulo2"}) {
                const QString t = datos_.General(QString::fromLatin1(campo));
                if (t.isEmpty()) continue;
                if (columnas > 1) worksheet_merge_range(h, fila, 0, fila, lxw_col_t(columnas - 1), U(t).constData(), caja_);
                else worksheet_write_string(h, fila, 0, U(t).constData(), caja_);
                ++fila;
            }
            const std::pair<const char*, const char*> datos[] = {
                {"Proyecto: ", "Proyecto"}, {"Ubicación: ", "Ubicacion"}, {"Calculista: ", "Calculista"}, {"Fecha: ", "Fecha"}};
            for (const auto& [etiqueta, campo] : datos)
                worksheet_write_string(h, fila++, 0,
                                       U(QString::fromUtf8(etiqueta) + datos_.General(QString::fromLatin1(campo))).constData(),
                                       nullptr);
            if (!p_.titulo.isEmpty()) worksheet_write_string(h, fila++, 0, U(p_.titulo).constData(), titulo_);
            ++fila;
        }
        return fila;
    }

    void Detalle(const SeccionPlantilla& s) {
        const TablaReporte& t = datos_.Tabla(s.tabla);
        const int ncol = int(s.columnas.size());
        lxw_worksheet* h = NuevaHoja(s.titulo.isEmpty() ? (p_.titulo.isEmpty() ? s.tabla : p_.titulo) : s.titulo);
        int fila = Cabecera(h, ncol);
        if (!s.titulo.isEmpty()) worksheet_write_string(h, fila++, 0, U(s.titulo).constData(), titulo_);

        // The headers: bold, wrapped, frozen above the rows and repeated on
        // every printed page.
        std::vector<int> anchos(size_t(ncol), 6);
        int lineas = 1;
        for (int i = 0; i < ncol; ++i) {
            const ColumnaPlantilla& c = s.columnas[size_t(i)];
            for (const QString& palabra : QString(c.titulo).replace(QLatin1Char('\n'), QLatin1Char(' ')).split(QLatin1Char(' ')))
                anchos[size_t(i)] = std::max(anchos[size_t(i)], int(palabra.size()) + 2);
            worksheet_write_string(h, fila, lxw_col_t(i), U(c.titulo).constData(), encabezado_);
        }
        const int filaEncabezado = fila++;
        worksheet_freeze_panes(h, lxw_row_t(fila), 0);
        worksheet_repeat_rows(h, lxw_row_t(filaEncabezado), lxw_row_t(filaEncabezado));

        std::vector<double> sumas(size_t(ncol), 0.0);
        for (int f = 0; f < int(t.filas.size()); ++f, ++fila) {
            for (int i = 0; i < ncol; ++i) {
                const ColumnaPlantilla& c = s.columnas[size_t(i)];
                const Valor v = t.Celda(f, c);
                lxw_format* formato = Celda(c.formato, c.alineacion, false, s.rejilla);
                if (c.imagen) {
                    Imagen(h, fila, i, v, s.altoImagen, anchos[size_t(i)]);
                } else if (!c.formato.isEmpty()) {
                    worksheet_write_number(h, lxw_row_t(fila), lxw_col_t(i), ComoDoble(v), formato);
                    anchos[size_t(i)] = std::max(anchos[size_t(i)], int(TextoDato(v, c.formato).size()) + 2);
                } else if (const QString texto = TextoDato(v, QString()); !texto.isEmpty()) {
                    worksheet_write_string(h, lxw_row_t(fila), lxw_col_t(i), U(texto).constData(), formato);
                    anchos[size_t(i)] = std::max(anchos[size_t(i)], int(texto.size()) + 2);
                } else if (s.rejilla) {
                    worksheet_write_blank(h, lxw_row_t(fila), lxw_col_t(i), formato);
                }
                if (s.totales.contains(c.campo)) sumas[size_t(i)] += ComoDoble(v);
            }
            if (const double alto = std::max(s.altoImagen > 0.0 ? s.altoImagen + 4.0 : 0.0, s.altoFila); alto > 0.0)
                worksheet_set_row(h, lxw_row_t(fila), alto, nullptr);
        }
        if (!s.totales.isEmpty()) Totales(h, s, fila, sumas);

        for (int i = 0; i < ncol; ++i) {
            anchos[size_t(i)] = std::min(anchos[size_t(i)], 50);
            worksheet_set_column(h, lxw_col_t(i), lxw_col_t(i), anchos[size_t(i)], nullptr);
            // The header's wrapped lines at this width.
            const QString& titulo = s.columnas[size_t(i)].titulo;
            lineas = std::max(lineas, int(titulo.count(QLatin1Char('\n'))) + 1 +
                                          int(titulo.size()) / std::max(1, anchos[size_t(i)] - 1));
        }
        worksheet_set_row(h, lxw_row_t(filaEncabezado), 15.0 * std::min(lineas, 5), nullptr);
    }

    void Totales(lxw_worksheet* h, const SeccionPlantilla& s, int fila, const std::vector<double>& sumas) {
        int primera = 0;
        while (primera < int(s.columnas.size()) && !s.totales.contains(s.columnas[size_t(primera)].campo)) ++primera;
        if (primera > 0)
            worksheet_write_string(h, lxw_row_t(fila), lxw_col_t(primera - 1), U(s.etiquetaTotales).constData(),
                                   etiquetaTotales_);
        for (int i = primera; i < int(s.columnas.size()); ++i) {
            const ColumnaPlantilla& c = s.columnas[size_t(i)];
            if (s.totales.contains(c.campo))
                worksheet_write_number(h, lxw_row_t(fila), lxw_col_t(i), sumas[size_t(i)],
                                       Celda(c.formato, c.alineacion, true));
        }
    }

    // The picture scaled into the cell: the row's height and the column's
    // width in pixels at the spreadsheet's 96 per inch.
    void Imagen(lxw_worksheet* h, int fila, int columna, const Valor& v, double altoPuntos, int anchoCaracteres) {
        QSize tamano;
        const QByteArray png = Png(v, tamano);
        if (png.isEmpty() || tamano.isEmpty()) return;
        const double alto = std::max(altoPuntos, 12.0) * 96.0 / 72.0, ancho = anchoCaracteres * 7.0 + 5.0;
        const double escala = std::min(alto / tamano.height(), ancho / tamano.width());
        imagenes_.push_back(png);  // the library reads the bytes when the book is closed
        lxw_image_options o{};
        o.x_offset = 2;
        o.y_offset = 2;
        o.x_scale = escala;
        o.y_scale = escala;
        worksheet_insert_image_buffer_opt(h, lxw_row_t(fila), lxw_col_t(columna),
                                          reinterpret_cast<const unsigned char*>(imagenes_.back().constData()),
                                          size_t(imagenes_.back().size()), &o);
    }

    // A sheet holding the picture of the network, about a screen wide.
    void Dibujo(const SeccionPlantilla& s) {
        lxw_worksheet* h = NuevaHoja(s.titulo.isEmpty() ? s.dibujo : s.titulo);
        int fila = Cabecera(h, 8);
        if (!s.titulo.isEmpty()) worksheet_write_string(h, fila++, 0, U(s.titulo).constData(), titulo_);
        Imagen(h, fila, 0, datos_.PngDibujo(s.dibujo), 560.0, 130);
    }

    // A value as the cell takes it: a number with its mask, or a text.
    void EscribirValor(lxw_worksheet* h, int fila, int columna, const Valor& v, const QString& formato, lxw_format* texto) {
        if (!formato.isEmpty())
            worksheet_write_number(h, lxw_row_t(fila), lxw_col_t(columna), ComoDoble(v),
                                   Celda(formato, Alineacion::Izquierda));
        else
            worksheet_write_string(h, lxw_row_t(fila), lxw_col_t(columna), U(TextoDato(v, QString())).constData(), texto);
    }

    int Campos(lxw_worksheet* h, const SeccionPlantilla& s, int fila, int& anchoEtiqueta, int& anchoValor) {
        const TablaReporte& t = datos_.Tabla(s.tabla);
        if (!s.titulo.isEmpty()) worksheet_write_string(h, fila++, 0, U(s.titulo).constData(), titulo_);
        for (const CampoPlantilla& c : s.campos) {
            worksheet_write_string(h, lxw_row_t(fila), 0, U(c.etiqueta).constData(), negrita_);
            EscribirValor(h, fila, 1, t.Dato(0, c.campo), c.formato, nullptr);
            if (!c.unidad.isEmpty()) worksheet_write_string(h, lxw_row_t(fila), 2, U(c.unidad).constData(), nullptr);
            anchoEtiqueta = std::max(anchoEtiqueta, int(c.etiqueta.size()) + 2);
            anchoValor = std::max(anchoValor, int(TextoDato(t.Dato(0, c.campo), c.formato).size()) + 2);
            ++fila;
        }
        return fila + 1;
    }

    // The cover: its two titles large, then its data as label and value,
    // the blank ones left out as on the page.
    int Portada(lxw_worksheet* h, const SeccionPlantilla& s, int fila) {
        const TablaReporte& t = datos_.Tabla(s.tabla);
        for (const char* campo : {"Titulo1", "Titulo2"}) {
            const QString titulo = TituloPortada(datos_, s, QString::fromLatin1(campo));
            if (titulo.isEmpty()) continue;
            worksheet_write_string(h, lxw_row_t(fila), 0, U(titulo).constData(), portada_);
            worksheet_set_row(h, lxw_row_t(fila++), 24.0, nullptr);
        }
        ++fila;
        for (const CampoPlantilla& c : s.campos) {
            if (TextoDato(t.Dato(0, c.campo), c.formato).isEmpty()) continue;
            worksheet_write_string(h, lxw_row_t(fila), 0, U(c.etiqueta).constData(), negrita_);
            EscribirValor(h, fila++, 1, t.Dato(0, c.campo), c.formato, nullptr);
        }
        return fila + 1;
    }

    const Plantilla& p_;
    const DatosReporte& datos_;
    lxw_workbook* libro_;
    bool color_;
    lxw_format *negrita_, *empresa_, *titulo_, *caja_, *portada_, *encabezado_, *etiquetaTotales_;
    QHash<QString, lxw_format*> formatos_;
    QSet<QString> usados_;
    std::deque<QByteArray> imagenes_;
};

QString MotivoXlsx(lxw_error e) {
    switch (e) {
    case LXW_ERROR_CREATING_XLSX_FILE: return QStringLiteral("no se pudo crear el archivo.");
    case LXW_ERROR_CREATING_TMPFILE: return QStringLiteral("no se pudo crear un archivo temporal.");
    case LXW_ERROR_MEMORY_MALLOC_FAILED: return QStringLiteral("no hay memoria suficiente.");
    default: return QStringLiteral("falla del escritor de hojas de cálculo (%1).").arg(QString::fromUtf8(lxw_strerror(e)));
    }
}

}  // namespace

bool EscribirXlsx(const Plantilla& p, const DatosReporte& datos, const QString& archivo, QString& error) {
    // Written under a passing name in the target's folder, then renamed: a
    // failure leaves neither a half book nor a changed older file.
    const QFileInfo destino(archivo);
    QTemporaryFile temporal(destino.absolutePath() + QStringLiteral("/.") + destino.fileName() + QStringLiteral(".XXXXXX"));
    if (!destino.absoluteDir().exists() || !temporal.open()) {
        error = NoSeEscribeReporte(archivo, destino.absoluteDir().exists()
                                                ? temporal.errorString()
                                                : QStringLiteral("la carpeta no existe."));
        return false;
    }
    temporal.close();
    // A passing file is private to its owner; the book gets the older file's
    // permissions, or those of an ordinary document.
    temporal.setPermissions(destino.exists() ? destino.permissions()
                                             : QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::ReadOther);
    const QByteArray nombre = QFile::encodeName(temporal.fileName());
    lxw_workbook_options opciones{};
    lxw_workbook* libro = workbook_new_opt(nombre.constData(), &opciones);
    if (!libro) {
        error = NoSeEscribeReporte(archivo, QStringLiteral("no hay memoria suficiente."));
        return false;
    }
    LibroXlsx(p, datos, libro).Escribir();
    const lxw_error e = workbook_close(libro);
    if (e != LXW_NO_ERROR) {
        error = NoSeEscribeReporte(archivo, MotivoXlsx(e));
        return false;
    }
    if (std::rename(nombre.constData(), QFile::encodeName(destino.absoluteFilePath()).constData()) != 0) {
        error = NoSeEscribeReporte(archivo, QString::fromLocal8Bit(strerror(errno)));
        return false;
    }
    temporal.setAutoRemove(false);
    return true;
}
