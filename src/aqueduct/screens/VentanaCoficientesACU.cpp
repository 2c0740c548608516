#include "aqueduct/screens/VentanaCoficientesACU.h"

#include "aqueduct/screens/ComunACU.h"
#include "widgets/VistaGrid.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

VentanaCoficientesACU::VentanaCoficientesACU(DatosAcueducto& datos, QWidget* padre)
    : QDialog(padre), logica_(datos) {
    setObjectName(QStringLiteral("CoficientesACU"));
    setWindowTitle(QStringLiteral("Coeficientes para las Pérdidas"));
    auto* capa = new QVBoxLayout(this);
    auto* marco = new QGroupBox(QStringLiteral("Coeficientes Hansen - William"), this);
    auto* cm = new QVBoxLayout(marco);
    spread1_ = new VistaGrid(marco);
    spread1_->setObjectName(QStringLiteral("Spread1"));
    spread1_->setSelectionBehavior(QAbstractItemView::SelectRows);
    spread1_->MostrarGrid(&logica_.Spread1);
    cm->addWidget(spread1_);
    capa->addWidget(marco);
    auto* pie = new QHBoxLayout;
    pie->addStretch();
    auto* aceptar = BotonACU(QStringLiteral("Aceptar"), QStringLiteral("Aceptar"), this);
    auto* cancelar = BotonACU(QStringLiteral("Cancelar"), QStringLiteral("Cancelar"), this);
    pie->addWidget(aceptar);
    pie->addWidget(cancelar);
    capa->addLayout(pie);
    connect(aceptar, &QPushButton::clicked, this, &VentanaCoficientesACU::Aceptar);
    connect(cancelar, &QPushButton::clicked, this, &QDialog::reject);
    // A double click on a material takes it, as "Aceptar" would.
    connect(spread1_, &QAbstractItemView::doubleClicked, this, &VentanaCoficientesACU::Aceptar);
    resize(420, 330);
}

VentanaCoficientesACU::~VentanaCoficientesACU() {
    spread1_->MostrarGrid(nullptr);
}

void VentanaCoficientesACU::Aceptar() {
    logica_.Aceptar(logica_.Spread1.FilaActiva());
    accept();
}
