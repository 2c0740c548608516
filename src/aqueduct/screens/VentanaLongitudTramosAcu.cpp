#include "aqueduct/screens/VentanaLongitudTramosAcu.h"

#include "aqueduct/DatosAcueducto.h"
#include "aqueduct/screens/ComunACU.h"
#include "shell/Sesion.h"
#include "widgets/CajasCoordenadas.h"
#include "widgets/NivoNumero.h"
#include "widgets/NivoToolTip.h"
#include "widgets/VistaGrid.h"

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
    cajas_ = new CajasCoordenadas(QStringLiteral("Calcular la Longitud de los Ramales"), logica_.Puntos(), this);
    capa->addWidget(cajas_);

    auto* tramo = new QHBoxLayout;
    spread1_ = VistaDeUnaFila(&logica_.Spread1, this);
    vscroll1_ = new QScrollBar(Qt::Vertical, this);
    vscroll1_->setObjectName(QStringLiteral("VScroll1"));
    vscroll1_->setRange(logica_.MinimoScroll(), logica_.MaximoScroll());
    vscroll1_->setValue(logica_.Scroll());
    tramo->addWidget(spread1_, 1);
    tramo->addWidget(vscroll1_);
    capa->addLayout(tramo);
    connect(vscroll1_, &QScrollBar::valueChanged, this, [this](int fila) {
        logica_.ColoquePantalla(fila);
        Mostrar();
        if (alMover_) alMover_();
    });

    auto* pie = new QHBoxLayout;
    auto* fijar = BotonACU(QStringLiteral("Fijar la Longitud"), QStringLiteral("Fijar la Longitud"), this);
    auto* limpiar = BotonACU(QStringLiteral("Limpiar"), QStringLiteral("Limpiar"), this);
    nodos_ = BotonACU(QStringLiteral("TomarDeLosNodos"), QStringLiteral("Tomar de los Nodos"), this);
    auto* retorno = BotonACU(QStringLiteral("Retorno"), QStringLiteral("Retorno"), this);
    pie->addWidget(fijar);
    pie->addWidget(limpiar);
    pie->addWidget(nodos_);
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
    connect(nodos_, &QPushButton::clicked, this, [this] {
        logica_.TomarDeLosNodos();
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
    cajas_->Mostrar();
    spread1_->Refrescar();
    nodos_->setEnabled(logica_.NodosConCoordenadas());
}
