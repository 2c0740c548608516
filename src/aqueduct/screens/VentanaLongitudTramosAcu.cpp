#include "aqueduct/screens/VentanaLongitudTramosAcu.h"

#include "aqueduct/DatosAcueducto.h"
#include "aqueduct/screens/ComunACU.h"
#include "shell/Sesion.h"
#include "widgets/NivoNumero.h"
#include "widgets/NivoToolTip.h"
#include "widgets/VistaGrid.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QVBoxLayout>

VentanaLongitudTramosAcu::VentanaLongitudTramosAcu(DatosAcueducto& datos, std::function<void()> alMover,
                                                   QWidget* padre)
    : QDialog(padre), datos_(datos), logica_(datos), alMover_(std::move(alMover)) {
    setObjectName(QStringLiteral("LongitudTramosAcu"));
    setWindowTitle(QStringLiteral("Longitud de los Ramales"));
    tip_ = new NivoToolTip(this);
    auto* capa = new QVBoxLayout(this);
    auto* marco = new QGroupBox(QStringLiteral("Calcular la Longitud de los Ramales"), this);
    auto* cm = new QGridLayout(marco);
    const char* etiquetas[6] = {"X ( I ):", "Y ( I ):", "Z ( I ):", "X ( J ):", "Y ( J ):", "Z ( J ):"};
    for (int i = 0; i < 6; ++i) {
        double_[i] = new NivoDouble(marco, 3);
        double_[i]->setObjectName(QStringLiteral("Double%1").arg(i + 1));
        double_[i]->PonerLimites(-1e9, 1e9);
        cm->addWidget(new QLabel(QString::fromUtf8(etiquetas[i]), marco), i % 3, (i / 3) * 2);
        cm->addWidget(double_[i], i % 3, (i / 3) * 2 + 1);
        connect(double_[i], &NivoNumero::ValorCambiado, this, [this, i](double v) {
            if (mostrando_) return;
            logica_.CambiarCoordenada(i + 1, v);
            longitud_->setText(logica_.TextoLongitud());
        });
    }
    longitud_ = new QLabel(marco);
    longitud_->setObjectName(QStringLiteral("Longitud"));
    longitud_->setFrameShape(QFrame::Panel);
    longitud_->setFrameShadow(QFrame::Sunken);
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
    spread1_->setFixedHeight(spread1_->horizontalHeader()->sizeHint().height() +
                             spread1_->verticalHeader()->defaultSectionSize() + 6);
    vscroll1_ = new QScrollBar(Qt::Vertical, this);
    vscroll1_->setObjectName(QStringLiteral("VScroll1"));
    vscroll1_->setRange(logica_.MinimoScroll(), logica_.MaximoScroll());
    vscroll1_->setValue(logica_.Scroll());
    tramo->addWidget(spread1_, 1);
    tramo->addWidget(vscroll1_);
    capa->addLayout(tramo);
    connect(vscroll1_, &QScrollBar::valueChanged, this, [this](int fila) {
        logica_.ColoquePantalla(fila);
        spread1_->Refrescar();
        if (alMover_) alMover_();
    });

    auto* pie = new QHBoxLayout;
    auto* fijar = BotonACU(QStringLiteral("Fijar la Longitud"), QStringLiteral("Fijar la Longitud"), this);
    auto* limpiar = BotonACU(QStringLiteral("Limpiar"), QStringLiteral("Limpiar"), this);
    auto* retorno = BotonACU(QStringLiteral("Retorno"), QStringLiteral("Retorno"), this);
    pie->addWidget(fijar);
    pie->addWidget(limpiar);
    pie->addStretch();
    pie->addWidget(retorno);
    capa->addLayout(pie);
    connect(fijar, &QPushButton::clicked, this, [this] {
        Proteger(datos_.Dialogos_(), [this] { logica_.FijarLongitud(); });
        Mostrar();
        if (alMover_) alMover_();
    });
    connect(limpiar, &QPushButton::clicked, this, [this] {
        logica_.Limpiar();
        Mostrar();
    });
    connect(retorno, &QPushButton::clicked, this, &QDialog::reject);
    Mostrar();
    InstalarAyudas(this, tip_, datos_.Sesion_().Tapiz, AyudasLongitudTramosAcu());
}

VentanaLongitudTramosAcu::~VentanaLongitudTramosAcu() {
    spread1_->MostrarGrid(nullptr);
}

void VentanaLongitudTramosAcu::Mostrar() {
    mostrando_ = true;
    for (int i = 0; i < 6; ++i) double_[i]->PonerValor(logica_.Coordenada(i + 1));
    longitud_->setText(logica_.TextoLongitud());
    spread1_->Refrescar();
    mostrando_ = false;
}
