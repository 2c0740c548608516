#include "widgets/NivoToolTip.h"

#include "base/Nivo.h"
#include "widgets/Colores.h"

#include <QEvent>
#include <QGuiApplication>
#include <QHelpEvent>
#include <QLabel>
#include <QPainter>
#include <QPainterPath>
#include <QScreen>
#include <QVBoxLayout>

NivoToolTip::NivoToolTip(QWidget* padre)
    : QWidget(padre, Qt::ToolTip | Qt::FramelessWindowHint), titulo_(new QLabel(this)), cuerpo_(new QLabel(this)) {
    setAttribute(Qt::WA_TranslucentBackground);
    setAttribute(Qt::WA_ShowWithoutActivating);
    auto* l = new QVBoxLayout(this);
    l->setContentsMargins(8, 5, 8, 6);
    l->setSpacing(2);
    l->addWidget(titulo_);
    l->addWidget(cuerpo_);
    ocultar_.setSingleShot(true);
    ocultar_.setInterval(6000);
    connect(&ocultar_, &QTimer::timeout, this, &QWidget::hide);
    Aplicar(ConfiguracionTapiz());
}

void NivoToolTip::Aplicar(const ConfiguracionTapiz& c) {
    tamano_ = TamanoLetraTip(c);
    fondo_ = ColorNivo(c.ColorFondoTip == 0 ? ColorFondoTipCero : c.ColorFondoTip);
    texto_ = ColorNivo(c.ColorTextoTip);
    globo_ = c.Check3 != 0;
    siempre_ = c.Check4 != 0;
    QFont f = font();
    f.setPointSize(tamano_);
    cuerpo_->setFont(f);
    f.setBold(true);
    titulo_->setFont(f);
    const QString estilo = QStringLiteral("color: %1; background: transparent;").arg(texto_.name());
    titulo_->setStyleSheet(estilo);
    cuerpo_->setStyleSheet(estilo);
}

void NivoToolTip::Registrar(QWidget* control, const QString& texto, const QString& titulo) {
    if (!control) return;
    if (Trim(texto).isEmpty()) {
        tips_.remove(control);
        return;
    }
    if (!tips_.contains(control)) {
        control->installEventFilter(this);
        connect(control, &QObject::destroyed, this, [this, control] { tips_.remove(control); });
    }
    tips_.insert(control, {texto, titulo});
}

void NivoToolTip::MostrarEn(const QPoint& global, const QString& texto, const QString& titulo) {
    titulo_->setText(titulo);
    titulo_->setVisible(!titulo.isEmpty());
    cuerpo_->setText(texto);
    adjustSize();
    QPoint p = global + QPoint(12, 18);
    if (const QScreen* pantalla = QGuiApplication::screenAt(global)) {
        const QRect r = pantalla->availableGeometry();
        p.setX(std::min(p.x(), r.right() - width()));
        p.setY(p.y() + height() > r.bottom() ? global.y() - height() - 4 : p.y());
    }
    move(p);
    show();
    raise();
    if (siempre_)
        ocultar_.stop();
    else
        ocultar_.start();
}

bool NivoToolTip::eventFilter(QObject* o, QEvent* e) {
    auto* w = qobject_cast<QWidget*>(o);
    if (w && tips_.contains(w)) {
        switch (e->type()) {
        case QEvent::ToolTip: {
            const Tip& t = tips_[w];
            MostrarEn(static_cast<QHelpEvent*>(e)->globalPos(), t.texto, t.titulo);
            return true;
        }
        case QEvent::Leave:
        case QEvent::MouseButtonPress:
        case QEvent::Hide:
        case QEvent::KeyPress:
            hide();
            break;
        default:
            break;
        }
    }
    return QWidget::eventFilter(o, e);
}

void NivoToolTip::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing, globo_);
    const QRectF r = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    QPainterPath camino;
    if (globo_)
        camino.addRoundedRect(r, 9, 9);
    else
        camino.addRect(r);
    p.fillPath(camino, fondo_);
    p.setPen(QPen(texto_, 1));
    p.drawPath(camino);
}

void ConfigurarToolTips(QWidget* pantalla, NivoToolTip* tip, const ConfiguracionTapiz& c) {
    if (!pantalla || !tip) return;
    tip->Aplicar(c);
    QList<QWidget*> controles = pantalla->findChildren<QWidget*>();
    controles.prepend(pantalla);
    for (QWidget* w : controles) {
        if (w == tip || w->parent() == tip) continue;
        const QString texto = w->toolTip();
        if (Trim(texto).isEmpty() || w->objectName().startsWith(QLatin1String("Tab0"))) continue;
        tip->Registrar(w, texto);
        w->setToolTip(QString());
    }
}
