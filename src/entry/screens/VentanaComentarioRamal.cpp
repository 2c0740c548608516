#include "entry/screens/VentanaComentarioRamal.h"

#include "shell/Sesion.h"
#include "widgets/NivoToolTip.h"
#include "widgets/Ventanas.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QVBoxLayout>

VentanaComentarioRamal::VentanaComentarioRamal(ProyectoEdificio& p, Sesion& s, Dialogos& d, AnalisisRed& analisis,
                                               std::function<void()> refrescarAnalisis, QWidget* padre)
    : QDialog(padre), d_(d), logica_(p, s, d, analisis), refrescarAnalisis_(std::move(refrescarAnalisis)) {
    setObjectName(QStringLiteral("ComentarioRamal"));
    setWindowTitle(ComentarioRamal::Titulo());
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    tip_ = new NivoToolTip(this);
    auto* capa = new QVBoxLayout;
    auto* fila = new QHBoxLayout;
    panel_ = new QLabel(this);
    panel_->setObjectName(QStringLiteral("SSPanel1"));
    panel_->setFrameStyle(QFrame::Panel | QFrame::Sunken);
    panel_->setAlignment(Qt::AlignCenter);
    panel_->setMinimumWidth(fontMetrics().horizontalAdvance(QStringLiteral("000000")) + 12);
    texto_ = new QLineEdit(this);
    texto_->setObjectName(QStringLiteral("Text1"));
    texto_->setMinimumWidth(fontMetrics().horizontalAdvance(QLatin1Char('M')) * 36);
    vscroll1_ = new QScrollBar(Qt::Vertical, this);
    vscroll1_->setObjectName(QStringLiteral("VScroll1"));
    panel_->setFixedHeight(texto_->sizeHint().height());
    vscroll1_->setMinimumHeight(texto_->sizeHint().height() + 12);
    fila->addWidget(new QLabel(QStringLiteral("Ramal:"), this));
    fila->addWidget(panel_);
    fila->addWidget(texto_, 1);
    fila->addWidget(vscroll1_);
    capa->addLayout(fila);
    auto* pie = new QHBoxLayout;
    auto* fijar = BotonNivo(QStringLiteral("Fijar"), QStringLiteral("Fijar"), this, QStyle::SP_DialogApplyButton,
                            QStringLiteral("Fijar el comentario seleccionado. "));
    auto* quitar = BotonNivo(QStringLiteral("Quitar"), QStringLiteral("Quitar"), this, QStyle::SP_TrashIcon,
                             QStringLiteral("Quitar el comentario seleccionado. "));
    auto* retorno = BotonRetorno(this);
    retorno->setToolTip(QStringLiteral(" Retorno "));
    pie->addWidget(fijar);
    pie->addWidget(quitar);
    pie->addStretch();
    pie->addWidget(retorno);
    capa->addLayout(pie);
    PonerCentrado(this, capa);

    Accion([this] { logica_.Cargar(); });
    vscroll1_->setRange(logica_.MinimoScroll(), logica_.MaximoScroll());
    vscroll1_->setValue(logica_.Ramal());
    Mostrar();
    connect(texto_, &QLineEdit::textEdited, this, [this](const QString& t) { logica_.CambiarTexto(t); });
    connect(texto_, &QLineEdit::returnPressed, this, [this] { Accion([this] { logica_.Enter(); }); });
    connect(vscroll1_, &QScrollBar::valueChanged, this,
            [this](int ramal) { Accion([this, ramal] { logica_.CambiarRamal(ramal); }); });
    connect(fijar, &QPushButton::clicked, this, [this] { Accion([this] { logica_.Fijar(); }); });
    connect(quitar, &QPushButton::clicked, this, [this] { Accion([this] { logica_.Quitar(); }); });
    connect(retorno, &QPushButton::clicked, this, &QDialog::reject);
    ConfigurarToolTips(this, tip_, s.Tapiz);
}

void VentanaComentarioRamal::reject() {
    Accion([this] { logica_.Cerrar(); });
    QDialog::reject();
}

void VentanaComentarioRamal::Accion(const std::function<void()>& f) {
    SinFallaDeCalculo(d_, f);
    Mostrar();
    if (refrescarAnalisis_) refrescarAnalisis_();
}

void VentanaComentarioRamal::Mostrar() {
    panel_->setText(logica_.Panel());
    if (texto_->text() != logica_.Texto()) texto_->setText(logica_.Texto());
}
