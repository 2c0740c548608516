#include "widgets/Ventanas.h"

#include <QApplication>
#include <QCalendarWidget>
#include <QDialog>
#include <QGridLayout>
#include <QGuiApplication>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

QPushButton* BotonNivo(const QString& nombre, const QString& texto, QWidget* padre,
                       std::optional<QStyle::StandardPixmap> icono, const QString& tip) {
    auto* b = new QPushButton(texto, padre);
    if (icono) b->setIcon(b->style()->standardIcon(*icono));
    b->setObjectName(nombre);
    b->setToolTip(tip);
    b->setAutoDefault(false);
    b->setDefault(false);
    return b;
}

QPushButton* BotonRetorno(QWidget* padre) {
    return BotonNivo(QStringLiteral("Retorno"), QStringLiteral("Retorno"), padre, QStyle::SP_DialogCloseButton);
}

QLabel* TituloPantalla(const QString& texto, QWidget* padre) {
    auto* titulo = new QLabel(texto, padre);
    titulo->setObjectName(QStringLiteral("Titulo"));
    QFont f = titulo->font();
    f.setBold(true);
    f.setPointSizeF(f.pointSizeF() * 1.3);
    titulo->setFont(f);
    return titulo;
}

std::optional<QDate> PedirFecha(QWidget* padre, const QDate& inicial) {
    QDialog calendario(padre);
    calendario.setObjectName(QStringLiteral("Calendario"));
    calendario.setWindowTitle(QStringLiteral("Fecha"));
    auto* capa = new QVBoxLayout(&calendario);
    auto* mes = new QCalendarWidget(&calendario);
    mes->setLocale(QLocale(QLocale::Spanish));
    mes->setSelectedDate(inicial);
    capa->addWidget(mes);
    QObject::connect(mes, &QCalendarWidget::activated, &calendario, &QDialog::accept);
    QObject::connect(mes, &QCalendarWidget::clicked, &calendario, &QDialog::accept);
    if (calendario.exec() != QDialog::Accepted) return std::nullopt;
    return mes->selectedDate();
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
