#include "entry/screens/VentanaBuscarPartida.h"

#include "widgets/NivoNumero.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

VentanaBuscarPartida::VentanaBuscarPartida(int activo, QWidget* padre) : QDialog(padre), logica_(activo) {
    setObjectName(QStringLiteral("BuscarPartida"));
    setWindowTitle(TituloBuscarPartida());
    auto* capa = new QVBoxLayout(this);
    auto* fila = new QHBoxLayout;
    numero_ = new NivoLong(this);
    numero_->setObjectName(QStringLiteral("Long1"));
    // A 16-bit whole number is all the box holds.
    numero_->PonerLimites(-32768, 32767);
    numero_->PonerValor(activo);
    numero_->selectAll();
    fila->addWidget(new QLabel(EtiquetaBuscarPartida(), this));
    fila->addWidget(numero_);
    capa->addLayout(fila);
    auto* pie = new QHBoxLayout;
    auto* aceptar = new QPushButton(QStringLiteral(" Aceptar "), this);
    auto* cancelar = new QPushButton(QStringLiteral(" Cancelar "), this);
    aceptar->setObjectName(QStringLiteral("Aceptar"));
    cancelar->setObjectName(QStringLiteral("Cancelar"));
    aceptar->setAutoDefault(false);
    cancelar->setAutoDefault(false);
    pie->addStretch();
    pie->addWidget(aceptar);
    pie->addWidget(cancelar);
    capa->addLayout(pie);
    connect(aceptar, &QPushButton::clicked, this, &VentanaBuscarPartida::Aceptar);
    connect(numero_, &NivoNumero::Enter, this, &VentanaBuscarPartida::Aceptar);
    connect(cancelar, &QPushButton::clicked, this, &QDialog::reject);
}

void VentanaBuscarPartida::Aceptar() {
    logica_.Aceptar(int(numero_->ValorEntero()));
    accept();
}

BuscarPartida VentanaBuscarPartida::Preguntar(int activo, QWidget* padre) {
    VentanaBuscarPartida dialogo(activo, padre);
    dialogo.exec();
    return dialogo.Logica();
}
