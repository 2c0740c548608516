#include "reports/motor/ComposicionReporte.h"

#include "base/Nivo.h"
#include "pictures/Dibujo.h"

#include <QFont>
#include <QFontMetricsF>
#include <QPageLayout>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QRegularExpression>
#include <algorithm>

namespace {

constexpr double Margen = 36.0;  // half an inch
constexpr double AltoPie = 18.0;
constexpr double Relleno = 2.5;  // inside a cell

// Colours of the two print styles.
struct Estilo {
    QColor titulo, fondoTitulo, fondoEncabezado, textoEncabezado, fondoAlterno, linea;
};

Estilo EstiloDe(bool color) {
    if (color)
        return {QColor(0x1F, 0x4E, 0x79), QColor(0xDC, 0xE6, 0xF1), QColor(0x1F, 0x4E, 0x79), Qt::white,
                QColor(0xF2, 0xF6, 0xFA), QColor(0x1F, 0x4E, 0x79)};
    return {Qt::black, QColor(0xF0, 0xF0, 0xF0), QColor(0xD9, 0xD9, 0xD9), Qt::black, QColor(), Qt::black};
}

int Banderas(Alineacion a) {
    switch (a) {
    case Alineacion::Derecha: return Qt::AlignRight | Qt::AlignVCenter;
    case Alineacion::Centro: return Qt::AlignHCenter | Qt::AlignVCenter;
    default: return Qt::AlignLeft | Qt::AlignVCenter;
    }
}

QFont Letra(double puntos, bool negrita) {
    QFont f(QStringLiteral("DejaVu Sans"));
    f.setPointSizeF(puntos);
    f.setBold(negrita);
    // No ligatures: "fi" stays two letters, so the PDF's text can be searched and copied.
    f.setStyleStrategy(QFont::PreferNoShaping);
    return f;
}

class Compositor {
public:
    Compositor(const Plantilla& p, const DatosReporte& datos, QPagedPaintDevice& d, const AvanceComposicion& avance)
        : p_(p), datos_(datos), d_(d), avance_(avance), estilo_(EstiloDe(datos.FormatoColor())), pagina_(TamanoCarta(p.horizontal)),
          k_(d.logicalDpiX() / 72.0) {}

    std::vector<PaginaReporte> Componer() {
        for (const SeccionPlantilla& s : p_.secciones)
            if (s.tipo == SeccionPlantilla::Tipo::Detalle) total_ += int(datos_.Tabla(s.tabla).filas.size());
        NuevaPagina();
        bool primera = true;
        for (const SeccionPlantilla& s : p_.secciones) {
            if (detenido_) break;
            if (!primera) y_ += 8.0;
            primera = false;
            switch (s.tipo) {
            case SeccionPlantilla::Tipo::Detalle: Detalle(s); break;
            case SeccionPlantilla::Tipo::Campos: Campos(s); break;
            case SeccionPlantilla::Tipo::Portada: Portada(s); break;
            case SeccionPlantilla::Tipo::Dibujo: Dibujo(s); break;
            }
        }
        if (detenido_) return {};
        return std::move(paginas_);
    }

private:
    double Ancho() const { return pagina_.width() - 2 * Margen; }
    double Fondo() const { return pagina_.height() - Margen - (p_.pie ? AltoPie : 0.0); }

    // Height of a text wrapped in `ancho` points.
    double Alto(const QString& texto, double ancho, double puntos, bool negrita) const {
        const QFontMetricsF m(Letra(puntos, negrita), &d_);
        if (texto.isEmpty()) return m.height() / k_;
        const QRectF r = m.boundingRect(QRectF(0, 0, std::max(ancho, 1.0) * k_, 1e6), Qt::TextWordWrap, texto);
        return r.height() / k_;
    }

    void Texto(const QRectF& r, const QString& t, double puntos, bool negrita, int banderas, QColor color = Qt::black) {
        Trazo z;
        z.r = r;
        z.texto = t;
        z.puntos = puntos;
        z.negrita = negrita;
        z.banderas = banderas | Qt::TextWordWrap;
        z.color = color;
        Actual().trazos.push_back(z);
    }
    void Rellenar(const QRectF& r, const QColor& c) {
        if (!c.isValid()) return;
        Trazo z;
        z.tipo = Trazo::Tipo::Relleno;
        z.r = r;
        z.color = c;
        Actual().trazos.push_back(z);
    }
    void Linea(double x1, double y1, double x2, double y2, const QColor& c) {
        Trazo z;
        z.tipo = Trazo::Tipo::Linea;
        z.r = QRectF(QPointF(x1, y1), QPointF(x2, y2));
        z.color = c;
        Actual().trazos.push_back(z);
    }
    // A framed box with a centred text, as the title boxes.
    void Caja(const QRectF& r, const QString& t, double puntos) {
        Rellenar(r, estilo_.fondoTitulo);
        Texto(r, t, puntos, true, Qt::AlignCenter, estilo_.titulo);
        Marco(r);
    }
    void Marco(const QRectF& r) {
        Linea(r.left(), r.top(), r.right(), r.top(), estilo_.linea);
        Linea(r.left(), r.bottom(), r.right(), r.bottom(), estilo_.linea);
        Linea(r.left(), r.top(), r.left(), r.bottom(), estilo_.linea);
        Linea(r.right(), r.top(), r.right(), r.bottom(), estilo_.linea);
    }

    PaginaReporte& Actual() { return paginas_.back(); }

    // One more row laid out; the caller is told every so many rows.
    bool Avanzar() {
        if (avance_ && hechas_ % 64 == 0 && !avance_(hechas_, total_)) detenido_ = true;
        ++hechas_;
        return !detenido_;
    }

    void NuevaPagina() {
        paginas_.emplace_back();
        y_ = Margen;
        if (p_.encabezado) Encabezado();
        if (p_.pie) Pie();
    }

    // The general data at the head of every page.
    void Encabezado() {
        const double x = Margen, w = Ancho();
        Texto(QRectF(x, y_, w * 0.7, 14), datos_.General(QStringLiteral("Empresa")), 10, true, Qt::AlignLeft | Qt::AlignVCenter,
              estilo_.titulo);
        const QString fecha = datos_.General(QStringLiteral("Fecha"));
        if (!fecha.isEmpty())
            Texto(QRectF(x + w * 0.7, y_, w * 0.3, 14), QStringLiteral("Fecha: ") + fecha, 8, false,
                  Qt::AlignRight | Qt::AlignVCenter);
        y_ += 17;
        for (const auto& [campo, puntos] : {std::pair{"Titulo1", 11.0}, std::pair{"Titulo2", 9.0}}) {
            const QString t = datos_.General(QString::fromLatin1(campo));
            if (t.isEmpty()) continue;
            const double alto = Alto(t, w - 8, puntos, true) + 6;
            Caja(QRectF(x, y_, w, alto), t, puntos);
            y_ += alto + 3;
        }
        const auto dato = [&](double xx, double ancho, const QString& etiqueta, const QString& campo) {
            Texto(QRectF(xx, y_, 58, 11), etiqueta, 8, true, Qt::AlignLeft | Qt::AlignVCenter);
            Texto(QRectF(xx + 58, y_, ancho - 58, 11), datos_.General(campo), 8, false, Qt::AlignLeft | Qt::AlignVCenter);
        };
        // A report of no project (the catalogue's) has no project lines.
        if (!(datos_.General(QStringLiteral("Proyecto")) + datos_.General(QStringLiteral("Ubicacion")) +
              datos_.General(QStringLiteral("Calculista")))
                 .isEmpty()) {
            y_ += 2;
            dato(x, w, QStringLiteral("Proyecto:"), QStringLiteral("Proyecto"));
            y_ += 11;
            dato(x, w / 2, QStringLiteral("Ubicación:"), QStringLiteral("Ubicacion"));
            dato(x + w / 2, w / 2, QStringLiteral("Calculista:"), QStringLiteral("Calculista"));
            y_ += 13;
        }
        if (!p_.titulo.isEmpty()) {
            const double alto = Alto(p_.titulo, w, 10, true) + 4;
            Texto(QRectF(x, y_, w, alto), p_.titulo, 10, true, Qt::AlignCenter, estilo_.titulo);
            y_ += alto;
        }
        Linea(x, y_, x + w, y_, estilo_.linea);
        y_ += 6;
    }

    void Pie() {
        const double x = Margen, w = Ancho(), y = pagina_.height() - Margen - AltoPie + 4;
        Linea(x, y, x + w, y, estilo_.linea);
        QString pie = QStringLiteral("Nivo-Fontaria ") + datos_.General(QStringLiteral("Version"));
        const QString proyecto = datos_.General(QStringLiteral("Proyecto"));
        if (!proyecto.isEmpty()) pie += QStringLiteral("  ·  ") + proyecto;
        Texto(QRectF(x, y + 2, w * 0.6, 12), pie, 7, false, Qt::AlignLeft | Qt::AlignVCenter);
        Trazo z;
        z.tipo = Trazo::Tipo::NumeroPagina;
        z.r = QRectF(x + w * 0.6, y + 2, w * 0.4, 12);
        z.puntos = 7;
        z.banderas = Qt::AlignRight | Qt::AlignVCenter;
        z.color = Qt::black;
        Actual().trazos.push_back(z);
    }

    // The x and width of each column: the weights share the page's width.
    std::vector<std::pair<double, double>> Reparto(const SeccionPlantilla& s) const {
        double suma = 0;
        for (const ColumnaPlantilla& c : s.columnas) suma += c.ancho;
        std::vector<std::pair<double, double>> r;
        double x = Margen;
        for (const ColumnaPlantilla& c : s.columnas) {
            const double w = Ancho() * c.ancho / suma;
            r.emplace_back(x, w);
            x += w;
        }
        return r;
    }

    // The size of the column headers: 7 points, less when a word of a
    // header would not fit its column, so that no header is cut.
    double PuntosEncabezado(const SeccionPlantilla& s, const std::vector<std::pair<double, double>>& cols) const {
        double puntos = 7.0;
        const auto cabe = [&](double pt) {
            const QFontMetricsF m(Letra(pt, true), &d_);
            for (size_t i = 0; i < cols.size(); ++i)
                for (const QString& palabra : s.columnas[i].titulo.split(QRegularExpression(QStringLiteral("\\s+"))))
                    if (m.horizontalAdvance(palabra) / k_ > cols[i].second - 2 * Relleno) return false;
            return true;
        };
        while (puntos > 5.0 && !cabe(puntos)) puntos -= 0.5;
        return puntos;
    }

    double AltoEncabezadoColumnas(const SeccionPlantilla& s, const std::vector<std::pair<double, double>>& cols) const {
        double alto = 0;
        for (size_t i = 0; i < cols.size(); ++i)
            alto = std::max(alto, Alto(s.columnas[i].titulo, cols[i].second - 2 * Relleno, puntosEncabezado_, true));
        return alto + 2 * Relleno;
    }

    void EncabezadoColumnas(const SeccionPlantilla& s, const std::vector<std::pair<double, double>>& cols, double alto) {
        Rellenar(QRectF(Margen, y_, Ancho(), alto), estilo_.fondoEncabezado);
        for (size_t i = 0; i < cols.size(); ++i)
            Texto(QRectF(cols[i].first + Relleno, y_, cols[i].second - 2 * Relleno, alto), s.columnas[i].titulo,
                  puntosEncabezado_, true,
                  Qt::AlignCenter, estilo_.textoEncabezado);
        y_ += alto;
    }

    double AltoFila(const SeccionPlantilla& s, const std::vector<std::pair<double, double>>& cols,
                    const QStringList& textos) const {
        double alto = 0;
        for (size_t i = 0; i < cols.size(); ++i)
            alto = std::max(alto, s.columnas[i].imagen ? s.altoImagen
                                                       : Alto(textos[int(i)], cols[i].second - 2 * Relleno, 7, false));
        return std::max(alto + 2 * Relleno, s.altoFila);
    }

    void SeccionTitulo(const SeccionPlantilla& s) {
        if (s.titulo.isEmpty()) return;
        Texto(QRectF(Margen, y_, Ancho(), 14), s.titulo, 9, true, Qt::AlignLeft | Qt::AlignVCenter, estilo_.titulo);
        y_ += 15;
    }

    void Detalle(const SeccionPlantilla& s) {
        const TablaReporte& t = datos_.Tabla(s.tabla);
        const auto cols = Reparto(s);
        puntosEncabezado_ = PuntosEncabezado(s, cols);
        const double altoEncabezado = AltoEncabezadoColumnas(s, cols);
        std::vector<double> sumas(s.columnas.size(), 0.0);
        const int n = int(t.filas.size());
        std::vector<QStringList> textos;
        textos.resize(size_t(n));
        for (int f = 0; f < n; ++f)
            for (const ColumnaPlantilla& c : s.columnas)
                textos[size_t(f)] << (c.imagen ? QString() : TextoDato(t.Celda(f, c), c.formato, c.textos));
        const double altoTotales = s.totales.isEmpty() ? 0.0 : 14.0;
        const double altoTitulo = s.titulo.isEmpty() ? 0.0 : 15.0;

        // The title and the column headers never end a page alone: they go
        // with the first row (and with the totals when that is the last).
        const double primera = n > 0 ? AltoFila(s, cols, textos[0]) : 0.0;
        if (y_ + altoTitulo + altoEncabezado + primera + (n == 1 ? altoTotales : 0.0) > Fondo()) NuevaPagina();
        SeccionTitulo(s);
        EncabezadoColumnas(s, cols, altoEncabezado);
        for (int f = 0; f < n; ++f) {
            if (!Avanzar()) return;
            const double alto = AltoFila(s, cols, textos[size_t(f)]);
            const double despues = f == n - 1 ? altoTotales : 0.0;
            bool arribaDePagina = false;
            if (y_ + alto + despues > Fondo()) {
                NuevaPagina();
                EncabezadoColumnas(s, cols, altoEncabezado);
                arribaDePagina = true;
            }
            if (f % 2 == 1 && !s.rejilla) Rellenar(QRectF(Margen, y_, Ancho(), alto), estilo_.fondoAlterno);
            if (AbreGrupo(s, t, f)) Linea(Margen, y_, Margen + Ancho(), y_, estilo_.linea);
            for (size_t i = 0; i < cols.size(); ++i) {
                const ColumnaPlantilla& c = s.columnas[i];
                const QRectF r(cols[i].first + Relleno, y_ + Relleno, cols[i].second - 2 * Relleno, alto - 2 * Relleno);
                if (c.imagen) Imagen(r, t.Dato(f, c.campo));
                else if (arribaDePagina || !RepiteGrupo(s, t, f, c))
                    Texto(r, textos[size_t(f)][int(i)], 7, false, Banderas(c.alineacion));
                if (s.totales.contains(c.campo)) sumas[i] += ComoDoble(t.Celda(f, c));
            }
            if (s.rejilla) Rejilla(cols, alto);
            y_ += alto;
        }
        Linea(Margen, y_, Margen + Ancho(), y_, estilo_.linea);
        if (!s.totales.isEmpty()) Totales(s, cols, sumas);
    }

    // The rules of a form around the row at y_.
    void Rejilla(const std::vector<std::pair<double, double>>& cols, double alto) {
        Linea(Margen, y_, Margen + Ancho(), y_, estilo_.linea);
        Linea(Margen, y_ + alto, Margen + Ancho(), y_ + alto, estilo_.linea);
        Linea(Margen, y_, Margen, y_ + alto, estilo_.linea);
        for (const auto& [x, w] : cols) Linea(x + w, y_, x + w, y_ + alto, estilo_.linea);
    }

    void Totales(const SeccionPlantilla& s, const std::vector<std::pair<double, double>>& cols,
                 const std::vector<double>& sumas) {
        if (y_ + 14 > Fondo()) NuevaPagina();
        Rellenar(QRectF(Margen, y_, Ancho(), 14), estilo_.fondoTitulo);
        size_t primera = 0;
        while (primera < cols.size() && !s.totales.contains(s.columnas[primera].campo)) ++primera;
        if (primera > 0)
            Texto(QRectF(Margen + Relleno, y_, cols[primera - 1].first + cols[primera - 1].second - Margen - 2 * Relleno, 14),
                  s.etiquetaTotales, 7, true, Qt::AlignRight | Qt::AlignVCenter);
        for (size_t i = primera; i < cols.size(); ++i)
            if (s.totales.contains(s.columnas[i].campo))
                Texto(QRectF(cols[i].first + Relleno, y_, cols[i].second - 2 * Relleno, 14),
                      TextoDato(sumas[i], s.columnas[i].formato), 7, true, Banderas(s.columnas[i].alineacion));
        y_ += 14;
        Linea(Margen, y_, Margen + Ancho(), y_, estilo_.linea);
    }

    void Imagen(const QRectF& r, const Valor& v) {
        QImage img;
        if (!img.loadFromData(v.toByteArray())) return;
        QSizeF s = img.size();
        s.scale(r.size(), Qt::KeepAspectRatio);
        Trazo z;
        z.tipo = Trazo::Tipo::Imagen;
        z.r = QRectF(r.left() + (r.width() - s.width()) / 2, r.top() + (r.height() - s.height()) / 2, s.width(), s.height());
        z.imagen = img;
        Actual().trazos.push_back(z);
    }

    // Label, value and unit per line, from the first row of the table.
    void Campos(const SeccionPlantilla& s) {
        const TablaReporte& t = datos_.Tabla(s.tabla);
        const double alto = 15.0, etiqueta = Ancho() * 0.55;
        if (y_ + (s.titulo.isEmpty() ? 0 : 15) + alto * double(std::min<size_t>(s.campos.size(), 3)) > Fondo()) NuevaPagina();
        SeccionTitulo(s);
        int k = 0;
        for (const CampoPlantilla& c : s.campos) {
            if (t.Dato(0, c.campo).isNull()) continue;  // a value that does not apply
            QString valor = TextoDato(t.Dato(0, c.campo), c.formato, c.textos);
            if (!c.unidad.isEmpty()) valor += QLatin1Char(' ') + c.unidad;
            // A long label or value wraps and the line grows with it.
            const double linea = std::max({alto, Alto(c.etiqueta, etiqueta - 8, 9, true) + 4,
                                           Alto(valor, Ancho() - etiqueta - 4, 9, false) + 4});
            if (y_ + linea > Fondo()) NuevaPagina();
            if (k++ % 2 == 0) Rellenar(QRectF(Margen, y_, Ancho(), linea), estilo_.fondoAlterno);
            Texto(QRectF(Margen + 4, y_, etiqueta - 8, linea), c.etiqueta, 9, true, Qt::AlignLeft | Qt::AlignVCenter);
            Texto(QRectF(Margen + etiqueta, y_, Ancho() - etiqueta - 4, linea), valor, 9, false,
                  Qt::AlignLeft | Qt::AlignVCenter);
            y_ += linea;
        }
        Linea(Margen, y_, Margen + Ancho(), y_, estilo_.linea);
    }

    // The picture fills the rest of the page (or its `alto`), starting a
    // page of its own when less than half a page (or its `alto`) is left;
    // framed, under its title.
    void Dibujo(const SeccionPlantilla& s) {
        const double altoTitulo = s.titulo.isEmpty() ? 0.0 : 15.0;
        const auto cuerpo = [&] { return Fondo() - y_ - altoTitulo; };
        const double pagina = Fondo() - Margen - altoTitulo;
        if (cuerpo() < (s.alto > 0.0 ? std::min(s.alto, pagina) : pagina / 2)) NuevaPagina();
        SeccionTitulo(s);
        const double alto = s.alto > 0.0 ? std::min(s.alto, cuerpo()) : cuerpo();
        const QRectF r(Margen, y_, Ancho(), alto);
        Trazo z;
        z.tipo = Trazo::Tipo::Dibujo;
        z.r = r.adjusted(2, 2, -2, -2);
        z.dibujo = datos_.dibujos.value(s.dibujo);
        if (z.dibujo) Actual().trazos.push_back(z);
        Marco(r);
        y_ += alto;
    }

    // The cover: the title boxes large in the middle of the page, and the
    // project's data below.
    void Portada(const SeccionPlantilla& s) {
        const TablaReporte& t = datos_.Tabla(s.tabla);
        const double x = Margen + 24, w = Ancho() - 48;
        const QRectF marco(Margen, Margen, Ancho(), Fondo() - Margen);
        for (double d : {0.0, 4.0}) {
            Marco(marco.adjusted(d, d, -d, -d));
        }
        y_ = marco.top() + marco.height() * 0.22;
        const auto centrado = [&](const QString& texto, double puntos, bool negrita, QColor color, double despues) {
            if (texto.isEmpty()) return;
            const double alto = Alto(texto, w, puntos, negrita) + 4;
            Texto(QRectF(x, y_, w, alto), texto, puntos, negrita, Qt::AlignCenter, color);
            y_ += alto + despues;
        };
        centrado(TituloPortada(datos_, s, QStringLiteral("Titulo1")), 22, true, estilo_.titulo, 10);
        centrado(TituloPortada(datos_, s, QStringLiteral("Titulo2")), 15, true, estilo_.titulo, 24);
        Linea(x + w * 0.2, y_, x + w * 0.8, y_, estilo_.linea);
        y_ += 24;
        for (const CampoPlantilla& c : s.campos) {
            const QString valor = TextoDato(t.Dato(0, c.campo), c.formato);
            if (valor.isEmpty()) continue;
            centrado(c.etiqueta, 10, false, Qt::black, 0);
            centrado(valor, 14, true, Qt::black, 14);
        }
    }

    const Plantilla& p_;
    const DatosReporte& datos_;
    QPagedPaintDevice& d_;
    const AvanceComposicion& avance_;
    int hechas_ = 0, total_ = 0;
    bool detenido_ = false;
    Estilo estilo_;
    QSizeF pagina_;
    double k_;  // device units per point
    double y_ = 0.0;
    double puntosEncabezado_ = 7.0;
    std::vector<PaginaReporte> paginas_;
};

}  // namespace

QString TextoDato(const Valor& v, const QString& formato) {
    if (formato.isEmpty()) return Trim(ComoTexto(v));
    return Formato(ComoDoble(v), formato, SeparadoresActuales());
}

QString TextoDato(const Valor& v, const QString& formato, const QMap<int, QString>& textos) {
    bool entero = false;
    const int i = Trim(ComoTexto(v)).toInt(&entero);
    if (entero && textos.contains(i)) return textos.value(i);
    return TextoDato(v, formato);
}

QString TituloPortada(const DatosReporte& datos, const SeccionPlantilla& s, const QString& campo) {
    if (s.tabla.compare(datos.tablaGenerales, Qt::CaseInsensitive) == 0) return datos.General(campo);
    return ComoTexto(datos.Tabla(s.tabla).Dato(0, campo));
}

QSizeF TamanoCarta(bool horizontal) { return horizontal ? QSizeF(792, 612) : QSizeF(612, 792); }

void PrepararDispositivo(QPagedPaintDevice& d, const Plantilla& p) {
    d.setPageLayout(QPageLayout(QPageSize(QPageSize::Letter),
                                p.horizontal ? QPageLayout::Landscape : QPageLayout::Portrait, QMarginsF(0, 0, 0, 0)));
}

std::vector<PaginaReporte> ComponerReporte(const Plantilla& p, const DatosReporte& datos, QPagedPaintDevice& d,
                                           const AvanceComposicion& avance) {
    return Compositor(p, datos, d, avance).Componer();
}

void DibujarReporte(const std::vector<PaginaReporte>& paginas, QPagedPaintDevice& d) {
    QPainter pintor(&d);
    const double k = d.logicalDpiX() / 72.0;
    const auto escala = [k](const QRectF& r) { return QRectF(r.x() * k, r.y() * k, r.width() * k, r.height() * k); };
    const int total = int(paginas.size());
    for (int n = 0; n < total; ++n) {
        if (n > 0) d.newPage();
        for (const Trazo& z : paginas[size_t(n)].trazos) {
            switch (z.tipo) {
            case Trazo::Tipo::Relleno: pintor.fillRect(escala(z.r), z.color); break;
            case Trazo::Tipo::Linea:
                pintor.setPen(QPen(z.color, 0.6 * k));
                pintor.drawLine(escala(z.r).topLeft(), escala(z.r).bottomRight());
                break;
            case Trazo::Tipo::Imagen: pintor.drawImage(escala(z.r), z.imagen); break;
            case Trazo::Tipo::Dibujo: {
                // The picture's texts and markers are sized in screen pixels
                // (1/96 inch): it is painted in those units.
                const double pixel = d.logicalDpiX() / 96.0;
                const QRectF r = escala(z.r);
                pintor.save();
                pintor.scale(pixel, pixel);
                PintarEnRectangulo(pintor, QRectF(r.topLeft() / pixel, r.size() / pixel), *z.dibujo);
                pintor.restore();
                break;
            }
            case Trazo::Tipo::Texto:
            case Trazo::Tipo::NumeroPagina: {
                pintor.setFont(Letra(z.puntos, z.negrita));
                pintor.setPen(z.color);
                const QString t = z.tipo == Trazo::Tipo::Texto
                                      ? z.texto
                                      : QStringLiteral("Página %1 de %2").arg(n + 1).arg(total);
                pintor.drawText(escala(z.r), z.banderas, t);
                break;
            }
            }
        }
    }
}
