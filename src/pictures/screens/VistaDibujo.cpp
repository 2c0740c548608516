#include "pictures/screens/VistaDibujo.h"

#include "base/Grid.h"
#include "pictures/ExportarConDialogo.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QToolTip>
#include <QVBoxLayout>
#include <QWheelEvent>
#include <cmath>

VistaDibujo::VistaDibujo(QWidget* padre) : QWidget(padre) {
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMinimumSize(200, 150);
    setCursor(Qt::OpenHandCursor);
}

void VistaDibujo::MostrarDibujo(const Dibujo* d, bool encuadrar) {
    d_ = d;
    if (encuadrar || encuadrada_) Encuadrar();
    update();
}

void VistaDibujo::Encuadrar() {
    encuadrada_ = true;
    if (d_) t_ = EncuadreDibujo(*d_, QRectF(rect()).adjusted(8, 8, -8, -8));
    update();
}

void VistaDibujo::Acercar(double factor, const QPointF& centro) {
    // Not beyond a hundredth of the fitted size nor five hundred times it.
    const double escala = std::sqrt(std::abs(t_.determinant())) * factor;
    if (d_) {
        const double base = std::sqrt(std::abs(EncuadreDibujo(*d_, QRectF(rect())).determinant()));
        if (escala < base * 0.5 || escala > base * 500.0) return;
    }
    encuadrada_ = false;
    t_ = t_ * QTransform::fromTranslate(-centro.x(), -centro.y()) * QTransform::fromScale(factor, factor) *
         QTransform::fromTranslate(centro.x(), centro.y());
    update();
}

void VistaDibujo::Desplazar(const QPointF& delta) {
    encuadrada_ = false;
    t_ = t_ * QTransform::fromTranslate(delta.x(), delta.y());
    update();
}

void VistaDibujo::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.fillRect(rect(), Qt::white);
    if (arrastrando_ && !cuadro_.isNull()) {
        p.drawPixmap(ultimo_ - inicio_, cuadro_);
        return;
    }
    if (d_) d_->Pintar(p, t_, QRectF(rect()), false);
}

void VistaDibujo::resizeEvent(QResizeEvent* e) {
    QWidget::resizeEvent(e);
    if (encuadrada_) Encuadrar();
}

void VistaDibujo::wheelEvent(QWheelEvent* e) {
    const double pasos = e->angleDelta().y() / 120.0;
    if (pasos != 0) Acercar(std::pow(1.25, pasos), e->position());
    e->accept();
}

void VistaDibujo::mousePressEvent(QMouseEvent* e) {
    if (e->button() != Qt::LeftButton) return;
    QToolTip::hideText();
    cuadro_ = grab();
    arrastrando_ = true;
    inicio_ = ultimo_ = e->position().toPoint();
    setCursor(Qt::ClosedHandCursor);
}

void VistaDibujo::mouseMoveEvent(QMouseEvent* e) {
    if (arrastrando_) {
        ultimo_ = e->position().toPoint();
        update();
        return;
    }
    if (!d_ || !textoElemento) return;
    const double escala = std::sqrt(std::abs(t_.determinant()));
    if (escala <= 0) return;
    const ElementoDibujo el = d_->ElementoEn(t_.inverted().map(e->position()), 6.0 / escala);
    const QString texto = el.tipo == ElementoDibujo::Ninguno ? QString() : textoElemento(el);
    if (texto.isEmpty()) QToolTip::hideText();
    else QToolTip::showText(e->globalPosition().toPoint(), texto, this);
}

void VistaDibujo::mouseReleaseEvent(QMouseEvent* e) {
    if (!arrastrando_ || e->button() != Qt::LeftButton) return;
    arrastrando_ = false;
    cuadro_ = QPixmap();
    setCursor(Qt::OpenHandCursor);
    const QPoint delta = e->position().toPoint() - inicio_;
    if (!delta.isNull()) Desplazar(delta);
    update();
}

void VistaDibujo::mouseDoubleClickEvent(QMouseEvent*) { Encuadrar(); }

PanelDibujo::PanelDibujo(Dialogos& d, const QString& titulo, std::function<QString()> carpeta, QWidget* padre)
    : QWidget(padre), d_(d), titulo_(titulo), carpeta_(std::move(carpeta)) {
    auto* capa = new QVBoxLayout(this);
    capa->setContentsMargins(0, 0, 0, 0);
    barra_ = new QHBoxLayout;
    vista_ = new VistaDibujo(this);
    auto boton = [&](const char* nombre, const char* texto, const char* ayuda) {
        auto* b = new QPushButton(QString::fromUtf8(texto), this);
        b->setObjectName(QString::fromLatin1(nombre));
        b->setToolTip(QString::fromUtf8(ayuda));
        b->setAutoDefault(false);
        barra_->addWidget(b);
        return b;
    };
    barra_->addStretch(1);
    connect(boton("ajustar", "Ajustar", "Ver el dibujo completo (también con doble clic). "), &QPushButton::clicked,
            vista_, &VistaDibujo::Encuadrar);
    for (const char* f : {"png", "svg", "pdf"}) {
        const QString formato = QString::fromLatin1(f);
        auto* b = boton(f, QString(QStringLiteral("Exportar ") + formato.toUpper()).toUtf8().constData(),
                        QString(QStringLiteral("Guardar el dibujo como ") + formato.toUpper() + QStringLiteral(". "))
                            .toUtf8()
                            .constData());
        connect(b, &QPushButton::clicked, this, [this, formato] { Exportar(formato); });
    }
    capa->addLayout(barra_);
    capa->addWidget(vista_, 1);
    auto* ayuda = new QLabel(QStringLiteral("Rueda: acercar o alejar · Arrastrar: mover · Doble clic: ver todo"), this);
    ayuda->setObjectName(QStringLiteral("AyudaDibujo"));
    capa->addWidget(ayuda);
}

QPushButton* PanelDibujo::Boton(const QString& formato) const { return findChild<QPushButton*>(formato); }

void PanelDibujo::MostrarDibujo(const Dibujo* d, bool encuadrar) {
    dibujo_ = d;
    for (const char* f : {"png", "svg", "pdf"}) Boton(QString::fromLatin1(f))->setEnabled(d != nullptr);
    vista_->MostrarDibujo(d, encuadrar);
}

void PanelDibujo::Exportar(const QString& formato) {
    if (dibujo_) ExportarConDialogo(*dibujo_, d_, titulo_, formato, carpeta_());
}

QString FilaComoTexto(const Grid& g, int fila) {
    if (fila < 1 || fila > g.Filas()) return QString();
    QStringList lineas;
    for (int c = 0; c <= g.Columnas(); ++c) {
        if (g.Col(c).oculta) continue;
        QStringList titulo;
        for (int h = 1; h <= 2; ++h) {
            const QString t = g.Encabezado(h, c).simplified();
            if (!t.isEmpty() && !titulo.contains(t)) titulo << t;
        }
        const QString texto = g.Texto(fila, c).trimmed();
        if (titulo.isEmpty() || texto.isEmpty()) continue;
        lineas << titulo.join(QLatin1Char(' ')) + QStringLiteral(": ") + texto;
    }
    return lineas.join(QLatin1Char('\n'));
}
