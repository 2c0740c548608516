#include "entry/screens/VentanaLongitudTramosR.h"

#include "shell/Sesion.h"
#include "widgets/NivoNumero.h"
#include "widgets/NivoToolTip.h"
#include "widgets/Ventanas.h"
#include "widgets/VistaGrid.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QVBoxLayout>

VentanaLongitudTramosR::VentanaLongitudTramosR(ProyectoEdificio& p, Sesion& s, Dialogos& d, EditorRamales& editor,
                                               std::function<void()> refrescarEditor, QWidget* padre)
    : QDialog(padre), d_(d), logica_(p, s, d, editor), refrescarEditor_(std::move(refrescarEditor)) {
    setObjectName(QStringLiteral("LongitudTramosR"));
    setWindowTitle(LongitudTramosR::Titulo());
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    tip_ = new NivoToolTip(this);
    auto* capa = new QVBoxLayout;
    auto* marco = new QGroupBox(QStringLiteral("Coordenadas de los Nodos"), this);
    auto* cm = new QGridLayout(marco);
    const char* etiquetas[6] = {"X ( I ):", "Y ( I ):", "Z ( I ):", "X ( J ):", "Y ( J ):", "Z ( J ):"};
    for (int i = 0; i < 6; ++i) {
        double_[i] = new NivoDouble(marco, 2);
        double_[i]->setObjectName(QStringLiteral("Double%1").arg(i + 1));
        double_[i]->setMinimumWidth(fontMetrics().horizontalAdvance(QStringLiteral("-000,000.00")) + 16);
        cm->addWidget(new QLabel(QString::fromUtf8(etiquetas[i]), marco), i % 3, (i / 3) * 2);
        cm->addWidget(double_[i], i % 3, (i / 3) * 2 + 1);
        connect(double_[i], &NivoNumero::ValorCambiado, this, [this, i](double v) {
            if (mostrando_) return;
            logica_.CambiarCoordenada(i + 1, v);
            longitud_->setText(logica_.TextoLongitud());
        });
    }
    longitud_ = new QLabel(marco);
    longitud_->setObjectName(QStringLiteral("Label1"));
    longitud_->setFrameStyle(QFrame::Panel | QFrame::Sunken);
    longitud_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    cm->addWidget(new QLabel(QStringLiteral("L (m):"), marco), 3, 2);
    cm->addWidget(longitud_, 3, 3);
    capa->addWidget(marco);

    auto* tramo = new QHBoxLayout;
    spread1_ = new VistaGrid(this);
    spread1_->setObjectName(QStringLiteral("Spread1"));
    spread1_->setFocusPolicy(Qt::NoFocus);
    spread1_->setSelectionMode(QAbstractItemView::NoSelection);
    spread1_->MostrarGrid(&logica_.Spread1);
    spread1_->horizontalHeader()->setStretchLastSection(true);
    spread1_->setFixedHeight(spread1_->horizontalHeader()->sizeHint().height() +
                             spread1_->verticalHeader()->defaultSectionSize() + 6);
    vscroll1_ = new QScrollBar(Qt::Vertical, this);
    vscroll1_->setObjectName(QStringLiteral("VScroll1"));
    vscroll1_->setRange(logica_.MinimoScroll(), logica_.MaximoScroll());
    vscroll1_->setValue(logica_.Ramal());
    vscroll1_->setEnabled(logica_.ScrollDisponible());
    tramo->addWidget(spread1_, 1);
    tramo->addWidget(vscroll1_);
    capa->addLayout(tramo);
    connect(vscroll1_, &QScrollBar::valueChanged, this,
            [this](int ramal) { Accion([this, ramal] { logica_.CambiarRamal(ramal); }); });

    auto* pie = new QHBoxLayout;
    auto* fijar = BotonNivo(QStringLiteral("Fijar"), QStringLiteral("Fijar la Longitud"), this,
                            QStyle::SP_DialogApplyButton, QStringLiteral("Fijar la longitud del tramo seleccionado. "));
    auto* limpiar = BotonNivo(QStringLiteral("Limpiar"), QStringLiteral("Limpiar"), this, QStyle::SP_DialogResetButton,
                              QStringLiteral("Limpiar los Valores de las coordendas."));
    auto* retorno = BotonRetorno(this);
    pie->addWidget(fijar);
    pie->addWidget(limpiar);
    pie->addStretch();
    pie->addWidget(retorno);
    capa->addLayout(pie);
    PonerCentrado(this, capa);
    connect(fijar, &QPushButton::clicked, this, [this] { Accion([this] { logica_.FijarLongitud(); }); });
    connect(limpiar, &QPushButton::clicked, this, [this] {
        bool limpio = false;
        Accion([&] { limpio = logica_.Limpiar(); });
        if (limpio) double_[0]->setFocus();
    });
    connect(retorno, &QPushButton::clicked, this, &QDialog::reject);
    Mostrar();
    AvisarNumerosRechazados(this, d_);
    ConfigurarToolTips(this, tip_, s.Tapiz);
}

VentanaLongitudTramosR::~VentanaLongitudTramosR() { spread1_->MostrarGrid(nullptr); }

void VentanaLongitudTramosR::Accion(const std::function<void()>& f) {
    SinFallaDeCalculo(d_, f);
    Mostrar();
    if (refrescarEditor_) refrescarEditor_();
}

void VentanaLongitudTramosR::Mostrar() {
    mostrando_ = true;
    for (int i = 0; i < 6; ++i) double_[i]->PonerValor(logica_.Coordenada(i + 1));
    longitud_->setText(logica_.TextoLongitud());
    spread1_->Refrescar();
    mostrando_ = false;
}
