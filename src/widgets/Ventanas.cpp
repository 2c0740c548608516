#include "widgets/Ventanas.h"

#include <QApplication>
#include <QGridLayout>
#include <QGuiApplication>
#include <QPushButton>
#include <QScreen>

QPushButton* BotonNivo(const QString& nombre, const QString& texto, QWidget* padre, const QIcon& icono) {
    auto* b = new QPushButton(icono, texto, padre);
    b->setObjectName(nombre);
    b->setAutoDefault(false);
    b->setDefault(false);
    return b;
}

void DimensionarVentana(QWidget* w, int porcientoAncho, int porcientoAlto) {
    const QScreen* pantalla = w->screen() ? w->screen() : QGuiApplication::primaryScreen();
    if (!pantalla) return;
    const QRect r = pantalla->availableGeometry();
    w->resize(r.width() * porcientoAncho / 100, r.height() * porcientoAlto / 100);
    w->move(r.x() + (r.width() - w->width()) / 2, r.y() + (r.height() - w->height()) / 2);
}

void PonerCentrado(QWidget* ventana, QLayout* contenido) {
    auto* caja = new QWidget(ventana);
    caja->setLayout(contenido);
    auto* rejilla = new QGridLayout(ventana);
    rejilla->addWidget(caja, 1, 1);
    rejilla->setRowStretch(0, 1);
    rejilla->setRowStretch(2, 1);
    rejilla->setColumnStretch(0, 1);
    rejilla->setColumnStretch(2, 1);
}

CursorEspera::CursorEspera() { QApplication::setOverrideCursor(Qt::WaitCursor); }
CursorEspera::~CursorEspera() { QApplication::restoreOverrideCursor(); }
