#include "widgets/VistaPreviaFoto.h"

#include <QAbstractItemView>
#include <QLabel>
#include <QMouseEvent>
#include <algorithm>

namespace {

constexpr int LadoVistaPrevia = 260;
constexpr int EsperaVistaPrevia = 350;  // ms the button is held before the preview shows

}  // namespace

VistaPreviaFoto::VistaPreviaFoto(QAbstractItemView* vista, QWidget* ventana, std::function<QImage(int fila)> imagen)
    : QObject(vista), vista_(vista), imagen_(std::move(imagen)) {
    etiqueta_ = new QLabel(ventana);
    etiqueta_->setObjectName(QStringLiteral("VistaPrevia"));
    etiqueta_->setFrameShape(QFrame::Box);
    etiqueta_->setStyleSheet(QStringLiteral("background: white;"));
    etiqueta_->setAlignment(Qt::AlignCenter);
    etiqueta_->hide();
    temporizador_.setSingleShot(true);
    temporizador_.setInterval(EsperaVistaPrevia);
    connect(&temporizador_, &QTimer::timeout, this, &VistaPreviaFoto::Mostrar);
    vista_->viewport()->installEventFilter(this);
    vista_->viewport()->setMouseTracking(true);
}

bool VistaPreviaFoto::eventFilter(QObject* o, QEvent* e) {
    if (o != vista_->viewport()) return false;
    switch (e->type()) {
    case QEvent::MouseButtonPress: {
        auto* m = static_cast<QMouseEvent*>(e);
        const QModelIndex i = vista_->indexAt(m->position().toPoint());
        if (m->button() == Qt::LeftButton && i.isValid()) {
            fila_ = i.row() + 1;
            punto_ = m->globalPosition().toPoint();
            temporizador_.start();
        }
        break;
    }
    case QEvent::MouseMove:
        if (static_cast<QMouseEvent*>(e)->buttons() == Qt::NoButton) Ocultar();
        break;
    case QEvent::MouseButtonRelease:
    case QEvent::Leave:
        Ocultar();
        break;
    default:
        break;
    }
    return false;
}

void VistaPreviaFoto::Mostrar() {
    const QImage foto = imagen_(fila_);
    if (foto.isNull()) return;
    etiqueta_->setPixmap(QPixmap::fromImage(
        foto.scaled(LadoVistaPrevia, LadoVistaPrevia, Qt::KeepAspectRatio, Qt::SmoothTransformation)));
    etiqueta_->adjustSize();
    QWidget* ventana = etiqueta_->parentWidget();
    QPoint p = ventana->mapFromGlobal(punto_) + QPoint(16, 16);
    p.setX(std::clamp(p.x(), 0, std::max(0, ventana->width() - etiqueta_->width())));
    p.setY(std::clamp(p.y(), 0, std::max(0, ventana->height() - etiqueta_->height())));
    etiqueta_->move(p);
    etiqueta_->raise();
    etiqueta_->show();
}

void VistaPreviaFoto::Ocultar() {
    temporizador_.stop();
    etiqueta_->hide();
}
