#include "images/VisualizarImagen.h"

#include "base/Dialogos.h"
#include "images/ArchivoImagen.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <QPainter>
#include <algorithm>
#include <cmath>

namespace {
QString TituloRegistros() { return QStringLiteral("Registros Fotográficos"); }
}  // namespace

VisualizarImagen::VisualizarImagen(Dialogos& d, const QImage& imagen) : d_(d), imagen_(imagen) {}

QString VisualizarImagen::Titulo() { return QStringLiteral("Registro Fotográfico"); }
QString VisualizarImagen::TipZoomReestablece() { return QStringLiteral("Zoom Reestablece. "); }
QString VisualizarImagen::TipZoomAumenta() { return QStringLiteral("Zoom Aumenta. "); }
QString VisualizarImagen::TipZoomDisminuye() { return QStringLiteral("Zoom Disminuye. "); }
QString VisualizarImagen::TipPegar() { return QStringLiteral("Pegar una imagen desde el clipboard. "); }
QString VisualizarImagen::TipEliminar() { return QStringLiteral("Eliminar el área seleccionada. "); }
QString VisualizarImagen::TipCapturar() { return QStringLiteral("Captura el área de la imagen seleccionada. "); }
QString VisualizarImagen::TipCancelar() { return QStringLiteral(" Cancelar "); }

double VisualizarImagen::Escala() const {
    if (ajustar_) {
        const double e = EscalaAjuste(imagen_.size(), contenedor_);
        if (e > 0) return e;
    }
    return FactorZoom();
}

QSize VisualizarImagen::TamanoEscalado() const {
    const double e = Escala();
    return QSize(std::max(1, int(std::lround(imagen_.width() * e))), std::max(1, int(std::lround(imagen_.height() * e))));
}

void VisualizarImagen::CambiarZoom(int paso) {
    if (ajustar_) {
        // From the fitted scale, on the zoom's own steps.
        zoom_ = int(std::lround(Escala() * 100.0 / PasoZoom)) * PasoZoom;
        ajustar_ = false;
    }
    zoom_ = std::clamp(zoom_ + paso, ZoomMinimo, ZoomMaximo);
}

void VisualizarImagen::AumentarZoom() { CambiarZoom(PasoZoom); }
void VisualizarImagen::DisminuirZoom() { CambiarZoom(-PasoZoom); }

void VisualizarImagen::RestablecerZoom() {
    ajustar_ = false;
    zoom_ = ZoomInicial;
}

QRect VisualizarImagen::MarcoVista(const QSize& vista, const QPoint& desplazamiento) const {
    const double ev = EscalaAjuste(imagen_.size(), vista);
    const double e = Escala();
    if (ev <= 0 || e <= 0) return QRect();
    const QRectF visible(QPointF(desplazamiento) / e, QSizeF(contenedor_) / e);
    const QRectF enImagen = visible & QRectF(QPointF(0, 0), QSizeF(imagen_.size()));
    return QRectF(enImagen.topLeft() * ev, enImagen.size() * ev).toRect();
}

QPoint VisualizarImagen::DesplazamientoPorVista(const QSize& vista, const QPoint& centro) const {
    const double ev = EscalaAjuste(imagen_.size(), vista);
    if (ev <= 0) return QPoint();
    const double e = Escala();
    const QSize escalado = TamanoEscalado();
    const int x = int(std::lround(centro.x() / ev * e - contenedor_.width() / 2.0));
    const int y = int(std::lround(centro.y() / ev * e - contenedor_.height() / 2.0));
    return QPoint(std::clamp(x, 0, std::max(0, escalado.width() - contenedor_.width())),
                  std::clamp(y, 0, std::max(0, escalado.height() - contenedor_.height())));
}

QPointF VisualizarImagen::EnImagen(const QPoint& enVista) const { return QPointF(enVista) / Escala(); }

void VisualizarImagen::EmpezarSeleccion(const QPoint& enVista) {
    inicio_ = EnImagen(enVista);
    seleccion_ = QRect();
}

void VisualizarImagen::MoverSeleccion(const QPoint& enVista) { AjustarSeleccion(inicio_, EnImagen(enVista)); }

void VisualizarImagen::Seleccionar(const QRect& enImagen) {
    AjustarSeleccion(enImagen.topLeft(), QPointF(enImagen.topLeft()) + QPointF(enImagen.width(), enImagen.height()));
}

void VisualizarImagen::AjustarSeleccion(const QPointF& a, const QPointF& b) {
    // Corners on whole picture points, the far one rounded outwards so a
    // drag over part of a point takes it.
    const int x1 = int(std::floor(std::min(a.x(), b.x()))), y1 = int(std::floor(std::min(a.y(), b.y())));
    const int x2 = int(std::ceil(std::max(a.x(), b.x()))), y2 = int(std::ceil(std::max(a.y(), b.y())));
    seleccion_ = QRect(QPoint(x1, y1), QPoint(x2 - 1, y2 - 1)) & imagen_.rect();
}

QRect VisualizarImagen::SeleccionEnVista() const {
    const double e = Escala();
    return QRectF(QPointF(seleccion_.topLeft()) * e, QSizeF(seleccion_.size()) * e).toRect();
}

bool VisualizarImagen::ExigirSeleccion(const QString& encabezado) {
    if (HaySeleccion()) return true;
    d_.MostrarMensaje(QStringLiteral("No ha Selecionado Ninguna Área en la Imagen!"), encabezado, TituloRegistros());
    return false;
}

bool VisualizarImagen::Capturar() {
    if (!ExigirSeleccion(QStringLiteral("Copiar un Área de la Imagen..."))) return false;
    imagen_ = imagen_.copy(seleccion_);
    seleccion_ = QRect();
    return true;
}

bool VisualizarImagen::Pegar(const QMimeData* portapapeles) {
    const QImage pegada =
        portapapeles && portapapeles->hasImage() ? qvariant_cast<QImage>(portapapeles->imageData()) : QImage();
    const QString encabezado = QStringLiteral("Pegar Imágenes del Clipboard...");
    const QString titulo = QStringLiteral("Copiar un Área de la Imagen");
    if (pegada.isNull()) {
        d_.MostrarMensaje(QStringLiteral("¡No Existe una Imagen en el Clipboard!"), encabezado, titulo);
        return false;
    }
    const QString motivo = MotivoTamanoImagen(pegada.size());
    if (!motivo.isEmpty()) {
        d_.MostrarMensaje(motivo, encabezado, titulo);
        return false;
    }
    imagen_ = pegada;
    seleccion_ = QRect();
    return true;
}

bool VisualizarImagen::Pegar() { return Pegar(QGuiApplication::clipboard()->mimeData()); }

bool VisualizarImagen::Eliminar() {
    if (!ExigirSeleccion(QStringLiteral("Eliminar un Área de la Imagen..."))) return false;
    // Painted on a 32-bit copy whatever the file's format was.
    imagen_ = imagen_.convertToFormat(imagen_.hasAlphaChannel() ? QImage::Format_ARGB32 : QImage::Format_RGB32);
    QPainter p(&imagen_);
    p.setCompositionMode(QPainter::CompositionMode_Source);
    p.fillRect(seleccion_, ColorBorrado());
    return true;
}
