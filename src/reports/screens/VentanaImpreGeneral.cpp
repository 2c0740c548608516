#include "reports/screens/VentanaImpreGeneral.h"

#include "shell/Sesion.h"
#include "widgets/NivoToolTip.h"
#include "widgets/Ventanas.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

VentanaImpreGeneral::VentanaImpreGeneral(int origen, Sesion& s, Dialogos& d, QWidget* padre, FuenteDatos fuente)
    : QDialog(padre), salida_(s, d, this), logica_(origen, s, d, salida_, std::move(fuente)) {
    setObjectName(QStringLiteral("ImpreGeneral"));
    setWindowTitle(logica_.Caption);
    tip_ = new NivoToolTip(this);
    auto* capa = new QVBoxLayout;

    auto* marco = new QGroupBox(QStringLiteral("Título del Reporte"), this);
    auto* capaMarco = new QVBoxLayout(marco);
    text1_ = new QLineEdit(logica_.Text1, marco);
    text1_->setObjectName(QStringLiteral("Text1"));
    text1_->setMinimumWidth(fontMetrics().horizontalAdvance(QLatin1Char('M')) * 34);
    capaMarco->addWidget(text1_);
    capa->addWidget(marco);

    auto* opciones = new QGroupBox(QStringLiteral("Opciones del Reporte"), this);
    auto* capaOpciones = new QVBoxLayout(opciones);
    check1_ = new QCheckBox(QStringLiteral("Reporte en Colores"), opciones);
    check1_->setObjectName(QStringLiteral("Check1"));
    check1_->setChecked(logica_.Check1);
    check3_ = new QCheckBox(QStringLiteral("Reporte con Fotografías"), opciones);
    check3_->setObjectName(QStringLiteral("Check3"));
    check3_->setChecked(logica_.Check3);
    check3_->setVisible(logica_.Check3Visible());
    capaOpciones->addWidget(check1_);
    capaOpciones->addWidget(check3_);
    capa->addWidget(opciones);

    connect(text1_, &QLineEdit::textChanged, this, [this](const QString& t) { logica_.Text1 = t; });
    connect(check1_, &QCheckBox::toggled, this, [this](bool b) { logica_.Check1 = b; });
    connect(check3_, &QCheckBox::toggled, this, [this](bool b) { logica_.Check3 = b; });

    auto* pie = new QHBoxLayout;
    auto* carpeta = BotonNivo(QStringLiteral("LSButton4"), QString(), this, QStyle::SP_DirOpenIcon,
                              QStringLiteral("Directorio de los reportes exportados. "));
    auto* aceptar = BotonNivo(QStringLiteral("Command2"), QStringLiteral("Aceptar"), this, QStyle::SP_DialogOkButton);
    auto* cancelar =
        BotonNivo(QStringLiteral("Cancelar"), QStringLiteral("Cancelar"), this, QStyle::SP_DialogCancelButton);
    pie->addWidget(carpeta);
    pie->addStretch(1);
    pie->addWidget(aceptar);
    pie->addWidget(cancelar);
    capa->addLayout(pie);
    connect(carpeta, &QPushButton::clicked, this, [this] { logica_.LSButton4(); });
    connect(aceptar, &QPushButton::clicked, this, &VentanaImpreGeneral::Aceptar);
    connect(cancelar, &QPushButton::clicked, this, &QDialog::reject);

    PonerCentrado(this, capa);
    ConfigurarToolTips(this, tip_, s.Tapiz);
}

QPushButton* VentanaImpreGeneral::Boton(const QString& nombre) const { return findChild<QPushButton*>(nombre); }

void VentanaImpreGeneral::Aceptar() {
    if (logica_.Aceptar()) accept();
}
