#include "tank/screens/VentanaPeerlees.h"

#include "shell/Sesion.h"
#include "tank/Peerlees.h"
#include "widgets/NivoToolTip.h"
#include "widgets/Ventanas.h"
#include "widgets/VistaGrid.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

VentanaPeerlees::VentanaPeerlees(Sesion& s, Dialogos& d, QWidget* padre)
    : QDialog(padre), d_(d), tabla_(TablaPeerlees()) {
    setObjectName(QStringLiteral("Peerlees"));
    setWindowTitle(QStringLiteral("Tabla de Peerlees"));
    tip_ = new NivoToolTip(this);
    auto* capa = new QVBoxLayout;
    auto* marco = new QGroupBox(QStringLiteral("Factores de Consumo ( litros/minuto)"), this);
    auto* capaMarco = new QVBoxLayout(marco);
    vista_ = new VistaGrid(marco);
    vista_->setObjectName(QStringLiteral("Spread1"));
    vista_->MostrarGrid(&tabla_);
    vista_->verticalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    capaMarco->addWidget(vista_);
    capa->addWidget(marco, 1);

    auto* pie = new QHBoxLayout;
    auto* capturar = BotonNivo(QStringLiteral("Capturar"), QStringLiteral("Capturar Factor Consumo"), this,
                               QStyle::SP_DialogApplyButton, QStringLiteral(" Captura el Factor de Peerlees Seleccionado "));
    auto* retorno = BotonRetorno(this);
    pie->addStretch(1);
    pie->addWidget(capturar);
    pie->addWidget(retorno);
    capa->addLayout(pie);
    connect(capturar, &QPushButton::clicked, this, &VentanaPeerlees::Capturar);
    connect(retorno, &QPushButton::clicked, this, &QDialog::reject);
    PonerCentrado(this, capa);
    ConfigurarToolTips(this, tip_, s.Tapiz);

    // The whole table in sight and no more: the row header, seven columns
    // and six rows.
    const QHeaderView* filas = vista_->verticalHeader();
    const QHeaderView* columnas = vista_->horizontalHeader();
    const int marcoVista = 2 * vista_->frameWidth();
    vista_->setFixedSize(filas->sizeHint().width() + columnas->length() + marcoVista,
                         columnas->sizeHint().height() + filas->length() + marcoVista);
}

VentanaPeerlees::~VentanaPeerlees() { vista_->MostrarGrid(nullptr); }

void VentanaPeerlees::Capturar() {
    if (SinFallaDeCalculo(d_, [this] {
            capturado_ = CapturarFactorPeerlees(tabla_, tabla_.FilaActiva(), tabla_.ColumnaActiva());
        }))
        accept();
}
