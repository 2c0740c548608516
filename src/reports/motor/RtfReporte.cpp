// The word-processor form of a report: an RTF document on letter paper
// whose table bands are real tables (the column headers a repeated header
// row), so that the engineer edits them as tables.  Letters outside ASCII
// go as Unicode escapes and pictures as PNG, so the file is plain ASCII.

#include "reports/motor/ComposicionReporte.h"
#include "reports/motor/Reporte.h"

#include <QBuffer>
#include <QImage>
#include <algorithm>

namespace {

constexpr int Margen = 720;  // half an inch, in twips
constexpr int Relleno = 57;  // inside a cell

// Indices of the colour table, written by ColoresRtf.
enum Color { Negro = 1, Tinta, FondoEncabezado, TextoEncabezado, FondoTitulo, Raya };

QByteArray ColoresRtf(bool color) {
    const QColor tabla[] = {Qt::black,
                            color ? QColor(0x1F, 0x4E, 0x79) : QColor(Qt::black),
                            color ? QColor(0x1F, 0x4E, 0x79) : QColor(0xD9, 0xD9, 0xD9),
                            color ? QColor(Qt::white) : QColor(Qt::black),
                            color ? QColor(0xDC, 0xE6, 0xF1) : QColor(0xF0, 0xF0, 0xF0),
                            QColor(0xBF, 0xBF, 0xBF)};
    QByteArray r = "{\\colortbl;";
    for (const QColor& c : tabla) r += QStringLiteral("\\red%1\\green%2\\blue%3;").arg(c.red()).arg(c.green()).arg(c.blue()).toLatin1();
    return r + "}\n";
}

// A text for RTF: its control letters escaped, line ends as line breaks,
// and every letter outside ASCII as a signed 16-bit Unicode escape with '?'
// for readers that do not know them.
QByteArray Esc(const QString& t) {
    QByteArray r;
    r.reserve(t.size());
    for (const QChar c : t) {
        const ushort u = c.unicode();
        if (u == '\\' || u == '{' || u == '}') r += '\\' + QByteArray(1, char(u));
        else if (u == '\n') r += "\\line ";
        else if (u == '\t') r += "\\tab ";
        else if (u >= 0x20 && u < 0x80) r += char(u);
        else if (u >= 0x80) r += "\\u" + QByteArray::number(int(int16_t(u))) + '?';
    }
    return r;
}

QByteArray Num(int n) { return QByteArray::number(n); }

QByteArray Alinear(Alineacion a) {
    switch (a) {
    case Alineacion::Derecha: return "\\qr";
    case Alineacion::Centro: return "\\qc";
    default: return "\\ql";
    }
}

QByteArray Borde(const char* lado, int color, int grueso = 10) {
    return QByteArray("\\clbrdr") + lado + "\\brdrs\\brdrw" + Num(grueso) + "\\brdrcf" + Num(color);
}

// A picture fitted into `ancho` by `alto` twips, as a PNG group.
QByteArray Imagen(const Valor& v, int ancho, int alto) {
    QImage img;
    if (!img.loadFromData(v.toByteArray()) || img.isNull()) return QByteArray();
    QByteArray png;
    QBuffer b(&png);
    b.open(QIODevice::WriteOnly);
    img.save(&b, "PNG");
    const double escala = std::min(double(ancho) / img.width(), double(alto) / img.height());
    return "{\\pict\\pngblip\\picw" + Num(img.width()) + "\\pich" + Num(img.height()) + "\\picwgoal" +
           Num(int(img.width() * escala)) + "\\pichgoal" + Num(int(img.height() * escala)) + "\n" + png.toHex() + "}";
}

class DocumentoRtf {
public:
    DocumentoRtf(const Plantilla& p, const DatosReporte& datos)
        : p_(p), datos_(datos), ancho_((p.horizontal ? 15840 : 12240) - 2 * Margen) {}

    QByteArray Escribir() {
        const int w = p_.horizontal ? 15840 : 12240, h = p_.horizontal ? 12240 : 15840;
        r_ = "{\\rtf1\\ansi\\ansicpg1252\\deff0\\uc1\n{\\fonttbl{\\f0\\fswiss\\fcharset0 DejaVu Sans;}}\n" +
             ColoresRtf(datos_.FormatoColor()) + "{\\info{\\title " + Esc(p_.titulo.isEmpty() ? p_.nombre : p_.titulo) +
             "}}\n\\paperw" + Num(w) + "\\paperh" + Num(h) + "\\margl" + Num(Margen) + "\\margr" + Num(Margen) +
             "\\margt" + Num(Margen) + "\\margb" + Num(Margen) + (p_.horizontal ? "\\landscape" : "") +
             "\n\\sectd\\pgwsxn" + Num(w) + "\\pghsxn" + Num(h) + (p_.horizontal ? "\\lndscpsxn" : "") + "\n";
        if (p_.pie) Pie();
        if (p_.encabezado) Encabezado();
        for (const SeccionPlantilla& s : p_.secciones) {
            switch (s.tipo) {
            case SeccionPlantilla::Tipo::Detalle: Detalle(s); break;
            case SeccionPlantilla::Tipo::Campos: Campos(s); break;
            case SeccionPlantilla::Tipo::Portada: Portada(s); break;
            case SeccionPlantilla::Tipo::Dibujo: Dibujo(s); break;
            }
        }
        return r_ + "}\n";
    }

private:
    QByteArray General(const char* campo) const { return Esc(datos_.General(QString::fromLatin1(campo))); }

    void Parrafo(const QByteArray& formato, const QByteArray& texto) {
        r_ += "\\pard\\plain\\f0" + formato + ' ' + texto + "\\par\n";
    }

    void Pie() {
        r_ += "{\\footer\\pard\\plain\\f0\\fs14\\tqr\\tx" + Num(ancho_) + " Nivo-Fontaria " + General("Version") +
              " \\u183? " + General("Proyecto") +
              "\\tab P\\u225?gina {\\field{\\*\\fldinst PAGE}{\\fldrslt 1}} de "
              "{\\field{\\*\\fldinst NUMPAGES}{\\fldrslt 1}}\\par}\n";
    }

    // The general data once at the head of the document.
    void Encabezado() {
        Parrafo("\\fs20\\b\\cf" + Num(Tinta) + "\\tqr\\tx" + Num(ancho_),
                General("Empresa") + "\\b0\\cf1\\fs16\\tab Fecha: " + General("Fecha"));
        for (const char* campo : {"Titulo1", "Titulo2"})
            if (!datos_.General(QString::fromLatin1(campo)).isEmpty())
                Parrafo("\\qc\\sb60\\sa60\\b\\cf" + Num(Tinta) + (campo[6] == '1' ? "\\fs22" : "\\fs18") +
                            "\\brdrt\\brdrs\\brdrw10\\brdrb\\brdrs\\brdrw10\\brdrl\\brdrs\\brdrw10\\brdrr\\brdrs\\brdrw10"
                            "\\brdrcf" + Num(Tinta) + "\\cbpat" + Num(FondoTitulo),
                        General(campo));
        Parrafo("\\fs16\\sb60", "\\b Proyecto:\\b0  " + General("Proyecto"));
        Parrafo("\\fs16\\tx" + Num(ancho_ / 2), "\\b Ubicaci\\u243?n:\\b0  " + General("Ubicacion") +
                                                     "\\tab\\b Calculista:\\b0  " + General("Calculista"));
        if (!p_.titulo.isEmpty()) Parrafo("\\qc\\sb120\\sa120\\fs20\\b\\cf" + Num(Tinta), Esc(p_.titulo));
    }

    void TituloSeccion(const SeccionPlantilla& s) {
        if (!s.titulo.isEmpty()) Parrafo("\\sb160\\sa60\\keepn\\fs18\\b\\cf" + Num(Tinta), Esc(s.titulo));
    }

    // The right edges of the columns, in twips, the weights sharing the width.
    std::vector<int> Bordes(const SeccionPlantilla& s) const {
        double suma = 0;
        for (const ColumnaPlantilla& c : s.columnas) suma += c.ancho;
        std::vector<int> r;
        double x = 0;
        for (const ColumnaPlantilla& c : s.columnas) {
            x += ancho_ * c.ancho / suma;
            r.push_back(int(x + 0.5));
        }
        return r;
    }

    // One table row: `definicion` holds the row's own words (\trhdr...),
    // `celda` the borders and shading of each cell.
    void Fila(const std::vector<int>& bordes, const QByteArray& definicion, const QByteArray& celda,
              const std::vector<QByteArray>& textos, const std::vector<QByteArray>& formatos) {
        r_ += "\\trowd\\trgaph" + Num(Relleno) + "\\trleft0" + definicion + '\n';
        for (int b : bordes) r_ += celda + "\\clvertalc\\cellx" + Num(b);
        r_ += '\n';
        for (size_t i = 0; i < textos.size(); ++i)
            r_ += "\\pard\\plain\\intbl\\f0" + formatos[i] + ' ' + textos[i] + "\\cell\n";
        r_ += "\\row\n";
    }

    void Detalle(const SeccionPlantilla& s) {
        const TablaReporte& t = datos_.Tabla(s.tabla);
        const std::vector<int> bordes = Bordes(s);
        TituloSeccion(s);
        const QByteArray marco = Borde("t", Negro) + Borde("l", Negro) + Borde("b", Negro) + Borde("r", Negro);
        std::vector<QByteArray> textos, formatos;
        for (const ColumnaPlantilla& c : s.columnas) {
            textos.push_back(Esc(c.titulo));
            formatos.push_back("\\qc\\fs14\\b\\cf" + Num(TextoEncabezado));
        }
        Fila(bordes, "\\trhdr", marco + "\\clcbpat" + Num(FondoEncabezado), textos, formatos);

        std::vector<double> sumas(s.columnas.size(), 0.0);
        for (int f = 0; f < int(t.filas.size()); ++f) {
            const bool separa =
                !s.separarCuando.isEmpty() && f > 0 && !ComoTexto(t.Dato(f, s.separarCuando)).trimmed().isEmpty();
            textos.clear();
            formatos.clear();
            for (size_t i = 0; i < s.columnas.size(); ++i) {
                const ColumnaPlantilla& c = s.columnas[i];
                const Valor v = t.Celda(f, c);
                const int anchoCelda = bordes[i] - (i ? bordes[i - 1] : 0) - 2 * Relleno;
                textos.push_back(c.imagen ? Imagen(v, anchoCelda, int(s.altoImagen * 20)) : Esc(TextoDato(v, c.formato)));
                formatos.push_back(Alinear(c.alineacion) + "\\fs14");
                if (s.totales.contains(c.campo)) sumas[i] += ComoDoble(v);
            }
            // A form to fill by hand is ruled in ink, its rows kept tall.
            const int raya = s.rejilla ? Negro : Raya, grueso = s.rejilla ? 10 : 5;
            const QByteArray arriba = separa ? Borde("t", Tinta, 15) : Borde("t", raya, grueso);
            Fila(bordes, s.altoFila > 0.0 ? "\\trrh" + Num(int(s.altoFila * 20)) : QByteArray(),
                 arriba + Borde("b", raya, grueso) + Borde("l", raya, grueso) + Borde("r", raya, grueso), textos, formatos);
        }
        if (!s.totales.isEmpty()) Totales(s, bordes, sumas);
        r_ += "\\pard\\plain\\f0\\fs8\\par\n";
    }

    void Totales(const SeccionPlantilla& s, const std::vector<int>& bordes, const std::vector<double>& sumas) {
        std::vector<QByteArray> textos, formatos;
        size_t primera = 0;
        while (primera < s.columnas.size() && !s.totales.contains(s.columnas[primera].campo)) ++primera;
        for (size_t i = 0; i < s.columnas.size(); ++i) {
            const ColumnaPlantilla& c = s.columnas[i];
            textos.push_back(s.totales.contains(c.campo) ? Esc(TextoDato(sumas[i], c.formato))
                             : i + 1 == primera              ? Esc(s.etiquetaTotales)
                                                             : QByteArray());
            formatos.push_back((i + 1 == primera ? QByteArray("\\qr") : Alinear(c.alineacion)) + "\\fs14\\b");
        }
        Fila(bordes, QByteArray(), Borde("t", Negro, 15) + "\\clcbpat" + Num(FondoTitulo), textos, formatos);
    }

    // Label, value and unit as a two-column table.
    void Campos(const SeccionPlantilla& s) {
        const TablaReporte& t = datos_.Tabla(s.tabla);
        TituloSeccion(s);
        const std::vector<int> bordes{ancho_ * 55 / 100, ancho_};
        for (const CampoPlantilla& c : s.campos) {
            QString valor = TextoDato(t.Dato(0, c.campo), c.formato);
            if (!c.unidad.isEmpty()) valor += QLatin1Char(' ') + c.unidad;
            Fila(bordes, "\\trkeep", Borde("b", Raya, 5), {Esc(c.etiqueta), Esc(valor)}, {"\\fs18\\b", "\\fs18"});
        }
        r_ += "\\pard\\plain\\f0\\fs8\\par\n";
    }

    // The cover: its titles large and centred a quarter down the page, its
    // data below, label small and value large; blanks left out.
    void Portada(const SeccionPlantilla& s) {
        const TablaReporte& t = datos_.Tabla(s.tabla);
        const QByteArray tinta = "\\cf" + Num(Tinta);
        Parrafo("\\qc\\sb3000\\sa200\\fs44\\b" + tinta, Esc(TituloPortada(datos_, s, QStringLiteral("Titulo1"))));
        Parrafo("\\qc\\sa600\\fs30\\b" + tinta, Esc(TituloPortada(datos_, s, QStringLiteral("Titulo2"))));
        for (const CampoPlantilla& c : s.campos) {
            const QString valor = TextoDato(t.Dato(0, c.campo), c.formato);
            if (valor.isEmpty()) continue;
            Parrafo("\\qc\\keepn\\fs20", Esc(c.etiqueta));
            Parrafo("\\qc\\sa280\\fs28\\b", Esc(valor));
        }
    }

    // The picture of the network as wide as the text, under its title.
    void Dibujo(const SeccionPlantilla& s) {
        TituloSeccion(s);
        Parrafo("\\qc", Imagen(datos_.PngDibujo(s.dibujo), ancho_, ancho_ * 5 / 4));
    }

    const Plantilla& p_;
    const DatosReporte& datos_;
    const int ancho_;  // the writing width, in twips
    QByteArray r_;
};

}  // namespace

QByteArray RtfReporte(const Plantilla& p, const DatosReporte& datos) { return DocumentoRtf(p, datos).Escribir(); }
