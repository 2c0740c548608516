#include "tank/screens/VentanaResultadosHidro.h"

#include "reports/screens/VentanaImpreGeneral.h"
#include "shell/Sesion.h"
#include "widgets/NivoToolTip.h"
#include "widgets/Ventanas.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPainterPath>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

namespace {

// A sketch of a pressure tank over its pump: no data, only the picture.
class DibujoTanque : public QWidget {
public:
    explicit DibujoTanque(QWidget* padre) : QWidget(padre) { setMinimumSize(150, 230); }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter p(this);
        p.setRenderHint(QPainter::Antialiasing);
        const QRectF area = QRectF(rect()).adjusted(20, 12, -20, -12);
        const double ancho = std::min(area.width(), area.height() * 0.45);
        const QRectF cuerpo(area.center().x() - ancho / 2, area.top(), ancho, area.height() * 0.78);
        QPainterPath tanque;
        tanque.addRoundedRect(cuerpo, ancho / 2, ancho / 3);
        // Water up to two thirds, air above it.
        p.fillPath(tanque, QColor(0xE8, 0xEE, 0xF4));
        p.save();
        p.setClipPath(tanque);
        const double nivel = cuerpo.top() + cuerpo.height() / 3;
        p.fillRect(QRectF(cuerpo.left(), nivel, cuerpo.width(), cuerpo.bottom() - nivel), QColor(0x7F, 0xB2, 0xE5));
        p.restore();
        p.setPen(QPen(QColor(0x40, 0x48, 0x58), 2));
        p.drawPath(tanque);
        p.setPen(QPen(QColor(0x40, 0x48, 0x58), 1, Qt::DashLine));
        p.drawLine(QPointF(cuerpo.left(), nivel), QPointF(cuerpo.right(), nivel));
        // The pipe down to the pump.
        const double base = area.bottom();
        p.setPen(QPen(QColor(0x40, 0x48, 0x58), 3));
        p.drawLine(QPointF(cuerpo.center().x(), cuerpo.bottom()), QPointF(cuerpo.center().x(), base - 14));
        p.setPen(QPen(QColor(0x40, 0x48, 0x58), 2));
        p.setBrush(QColor(0xC8, 0x5A, 0x3C));
        p.drawEllipse(QPointF(cuerpo.center().x(), base - 8), 12, 8);
    }
};

QLabel* Panel(QWidget* padre) {
    auto* l = new QLabel(padre);
    l->setFrameStyle(QFrame::Panel | QFrame::Sunken);
    l->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    l->setMinimumWidth(l->fontMetrics().horizontalAdvance(QStringLiteral("000,000,000.00")) + 12);
    return l;
}

}  // namespace

VentanaResultadosHidro::VentanaResultadosHidro(const DatosTanque& datos, const ProyectoEdificio& p, Sesion& s,
                                               Dialogos& d, QWidget* padre)
    : QDialog(padre), datos_(datos), p_(p), s_(s), d_(d) {
    setObjectName(QStringLiteral("ResultadosHidro"));
    setWindowTitle(QStringLiteral("RESULTADOS DE CÁLCULO DEL TANQUE HIDRONEUMÁTICO"));
    tip_ = new NivoToolTip(this);
    auto* capa = new QVBoxLayout;
    auto* cuerpo = new QHBoxLayout;

    marco_ = new QGroupBox(this);
    marco_->setObjectName(QStringLiteral("Frame1"));
    auto* rejilla = new QGridLayout(marco_);
    const QStringList etiquetas = ResultadosHidro::Etiquetas();
    for (int i = 0; i < 7; ++i) {
        rejilla->addWidget(new QLabel(etiquetas[i], marco_), i, 0);
        valores_[i] = Panel(marco_);
        valores_[i]->setObjectName(QStringLiteral("Valor%1").arg(i + 1));
        rejilla->addWidget(valores_[i], i, 1);
    }
    auto* izquierda = new QVBoxLayout;
    izquierda->addWidget(marco_);

    auto* marcoPorcentajes = new QGroupBox(QStringLiteral("Volumenes de Agua en Porcentaje"), this);
    auto* rejillaP = new QGridLayout(marcoPorcentajes);
    const char* nombres[3] = {"Volumen Mínimo:", "Volumen Util:", "Volumen Máximo:"};
    for (int i = 0; i < 3; ++i) {
        rejillaP->addWidget(new QLabel(QString::fromUtf8(nombres[i]), marcoPorcentajes), i, 0);
        porcentajes_[i] = Panel(marcoPorcentajes);
        porcentajes_[i]->setObjectName(QStringLiteral("Porcentaje%1").arg(i + 1));
        rejillaP->addWidget(porcentajes_[i], i, 1);
    }
    izquierda->addWidget(marcoPorcentajes);
    cuerpo->addLayout(izquierda, 1);
    cuerpo->addWidget(new DibujoTanque(this));
    capa->addLayout(cuerpo, 1);

    auto* pie = new QHBoxLayout;
    auto* imprimir = BotonNivo(QStringLiteral("Imprimir"), QStringLiteral("Imprimir"), this, QStyle::SP_FileIcon,
                               QStringLiteral("Imprimir los resultados del tanque hidroneumático. "));
    connect(imprimir, &QPushButton::clicked, this, &VentanaResultadosHidro::Imprimir);
    auto* retorno = BotonRetorno(this);
    connect(retorno, &QPushButton::clicked, this, &QDialog::accept);
    pie->addStretch(1);
    pie->addWidget(imprimir);
    pie->addWidget(retorno);
    capa->addLayout(pie);
    PonerCentrado(this, capa);
    ConfigurarToolTips(this, tip_, s.Tapiz);
    // Wide enough for the caption.
    resize(std::max(sizeHint().width(), fontMetrics().horizontalAdvance(windowTitle()) * 3 / 2 + 120),
           sizeHint().height());
}

void VentanaResultadosHidro::Cargar() {
    const ResultadosHidro r(datos_);
    marco_->setTitle(r.Marco);
    for (int i = 0; i < 7; ++i) valores_[i]->setText(r.Valores[i]);
    porcentajes_[0]->setText(r.PorcentajeMinimo);
    porcentajes_[1]->setText(r.PorcentajeUtil);
    porcentajes_[2]->setText(r.PorcentajeMaximo);
}

void VentanaResultadosHidro::Imprimir() {
    FuenteDatos fuente;
    fuente.Proyecto = &p_;
    fuente.Tanque = &datos_;
    // The results as this screen shows them, with their two decimals.
    for (QLabel* v : valores_) fuente.ValoresTanque << v->text();
    VentanaImpreGeneral impre(2, s_, d_, this, fuente);
    impre.exec();
}
