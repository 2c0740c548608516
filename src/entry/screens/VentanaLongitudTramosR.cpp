#include "entry/screens/VentanaLongitudTramosR.h"

#include "shell/Sesion.h"
#include "widgets/CajasCoordenadas.h"
#include "widgets/NivoNumero.h"
#include "widgets/NivoToolTip.h"
#include "widgets/Ventanas.h"
#include "widgets/VistaGrid.h"

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
    cajas_ = new CajasCoordenadas(QStringLiteral("Coordenadas de los Nodos"), logica_.Puntos(), this);
    capa->addWidget(cajas_);

    auto* tramo = new QHBoxLayout;
    spread1_ = VistaDeUnaFila(&logica_.Spread1, this);
    spread1_->horizontalHeader()->setStretchLastSection(true);
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
        if (limpio) cajas_->Caja(1)->setFocus();
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
    cajas_->Mostrar();
    spread1_->Refrescar();
}
