#pragma once
// The pages of a report: a template and its rows laid out on letter paper,
// as a list of drawing marks per page, then drawn on any paged device (a
// PDF writer, a printer).  Layout and drawing share the device's metrics,
// so what is measured is what is drawn.

#include "reports/motor/DatosReporte.h"
#include "reports/motor/Plantilla.h"

#include <QColor>
#include <QImage>
#include <QRectF>
#include <QString>
#include <functional>
#include <memory>
#include <vector>

class Dibujo;
class QPagedPaintDevice;

struct Trazo {
    enum class Tipo { Texto, Relleno, Linea, Imagen, NumeroPagina, Dibujo };
    Tipo tipo = Tipo::Texto;
    QRectF r;  // points from the page's top left corner
    QString texto;
    double puntos = 8.0;
    bool negrita = false;
    int banderas = 0;  // Qt::Alignment and text flags
    QColor color;      // ink, fill or line colour
    QImage imagen;
    std::shared_ptr<const Dibujo> dibujo;  // a picture of the network, fitted into r
};

struct PaginaReporte {
    std::vector<Trazo> trazos;
};

// Letter paper in points, turned when the template is landscape.
QSizeF TamanoCarta(bool horizontal);
// Prepares the device (letter, orientation, no margins of its own).
void PrepararDispositivo(QPagedPaintDevice& d, const Plantilla& p);
// Told now and then of the table rows laid out and of all of them; false
// stops the layout, which then gives no pages.
using AvanceComposicion = std::function<bool(int hechas, int total)>;
std::vector<PaginaReporte> ComponerReporte(const Plantilla& p, const DatosReporte& datos, QPagedPaintDevice& d,
                                           const AvanceComposicion& avance = {});
// Draws the pages; "Página N de M" is written here, when M is known.
void DibujarReporte(const std::vector<PaginaReporte>& paginas, QPagedPaintDevice& d);

// A field as a report prints it: with the template's number format and the
// session's marks, or as text.
QString TextoDato(const Valor& v, const QString& formato);
// The same for an option printed as the text `textos` gives its number; a
// number not in the list prints as a number.
QString TextoDato(const Valor& v, const QString& formato, const QMap<int, QString>& textos);
// A title of a cover: read through the header's renaming when the cover's
// table is the general one.
QString TituloPortada(const DatosReporte& datos, const SeccionPlantilla& s, const QString& campo);
