#pragma once
// "Registro Fotográfico": the photograph fitted to the window or zoomed, an
// overview whose frame moves the view, a selection kept in picture
// coordinates, and the area captured, pasted from the clipboard or cleared.

#include <QColor>
#include <QImage>
#include <QPoint>
#include <QRect>
#include <QSize>
#include <QString>

class Dialogos;
class QMimeData;

class VisualizarImagen {
public:
    VisualizarImagen(Dialogos& d, const QImage& imagen);

    static QString Titulo();  // "Registro Fotográfico"
    static QString TipZoomReestablece();
    static QString TipZoomAumenta();
    static QString TipZoomDisminuye();
    static QString TipPegar();
    static QString TipEliminar();
    static QString TipCapturar();
    static QString TipCancelar();

    // The zoom moves in steps of 0.02 between 0.1 and 2.0; it is held in
    // hundredths so that the limits are reached exactly.
    static constexpr int ZoomMinimo = 10, ZoomMaximo = 200, PasoZoom = 2, ZoomInicial = 100;
    // What a cleared area is painted with: white, the ground of the
    // catalogue's photographs.
    static QColor ColorBorrado() { return Qt::white; }

    // PicBack: the picture at full size.
    const QImage& Imagen() const { return imagen_; }

    // ChkFit: the picture fitted into the container, scroll bars hidden.
    bool Ajustar() const { return ajustar_; }
    void PonerAjustar(bool ajustar) { ajustar_ = ajustar; }
    // The container's size, for the fitted scale.
    void PonerContenedor(const QSize& contenedor) { contenedor_ = contenedor; }
    // The scale the picture is drawn at: the fitted one with ChkFit, else
    // the zoom factor.
    double Escala() const;
    double FactorZoom() const { return zoom_ / 100.0; }
    // The drawn picture's size (PicMain).
    QSize TamanoEscalado() const;
    // The zoom buttons leave the fitted view, starting from its scale.
    void AumentarZoom();
    void DisminuirZoom();
    // Back to the picture at its own size.
    void RestablecerZoom();

    // The overview (PicView) of size `vista`: the frame of the part shown,
    // for the container's scroll position `desplazamiento`; and the scroll
    // position that centres the view on the overview's point `centro`.
    QRect MarcoVista(const QSize& vista, const QPoint& desplazamiento) const;
    QPoint DesplazamientoPorVista(const QSize& vista, const QPoint& centro) const;

    // Selection with the mouse, in the drawn picture's points; kept in the
    // picture's, divided by the scale and clipped to the picture.
    void EmpezarSeleccion(const QPoint& enVista);
    void MoverSeleccion(const QPoint& enVista);
    void Seleccionar(const QRect& enImagen);
    void QuitarSeleccion() { seleccion_ = QRect(); }
    bool HaySeleccion() const { return !seleccion_.isEmpty(); }
    QRect Seleccion() const { return seleccion_; }
    // The selection on the drawn picture.
    QRect SeleccionEnVista() const;

    // Command2: the selected area becomes the picture handed back; false
    // with the message when none is selected.
    bool Capturar();
    // NivoButton1: the clipboard's bitmap in place of the picture.
    bool Pegar(const QMimeData* portapapeles);
    bool Pegar();
    // NivoButton2: the selected area cleared to ColorBorrado().
    bool Eliminar();

private:
    QPointF EnImagen(const QPoint& enVista) const;
    void AjustarSeleccion(const QPointF& a, const QPointF& b);
    bool ExigirSeleccion(const QString& encabezado);
    void CambiarZoom(int paso);
    Dialogos& d_;
    QImage imagen_;
    bool ajustar_ = true;
    QSize contenedor_;
    int zoom_ = ZoomInicial;
    QPointF inicio_;
    QRect seleccion_;
};
