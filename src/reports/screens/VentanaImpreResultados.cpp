#include "reports/screens/VentanaImpreResultados.h"

#include "shell/Sesion.h"
#include "widgets/NivoToolTip.h"
#include "widgets/Ventanas.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

VentanaImpreResultados::VentanaImpreResultados(const AnalisisRed& a, const ProyectoEdificio& p, Sesion& s,
                                               Dialogos& d, QWidget* padre)
    : QDialog(padre), pantallas_(s, d, this), logica_(a, p, s, d, pantallas_) {
    setObjectName(QStringLiteral("ImpreResultados"));
    setWindowTitle(ImpreResultados::Titulo());
    tip_ = new NivoToolTip(this);

    auto* marco = new QGroupBox(QStringLiteral("Reporte"), this);
    marco->setObjectName(QStringLiteral("Frame1"));
    auto* lista = new QVBoxLayout(marco);
    auto* grupo = new QButtonGroup(this);
    int n = 0;
    for (const ImpreResultados::OpcionReporte& o : ImpreResultados::Opciones()) {
        auto* b = new QRadioButton(o.texto, marco);
        b->setObjectName(o.control);
        grupo->addButton(b, ++n);
        lista->addWidget(b);
    }
    connect(grupo, &QButtonGroup::idClicked, this, &VentanaImpreResultados::ElegirOpcion);

    auto* portada = new QGroupBox(QStringLiteral("Títulos de la Portada"), this);
    portada->setObjectName(QStringLiteral("Frame2"));
    auto* campos = new QFormLayout(portada);
    text1_ = new QLineEdit(logica_.Valores.Titulo1, portada);
    text1_->setObjectName(QStringLiteral("Text1"));
    text2_ = new QLineEdit(logica_.Valores.Titulo2, portada);
    text2_->setObjectName(QStringLiteral("Text2"));
    text1_->setMinimumWidth(fontMetrics().horizontalAdvance(logica_.Valores.Titulo1) + 40);
    campos->addRow(QStringLiteral("Título:"), text1_);
    campos->addRow(QStringLiteral("Subtítulo:"), text2_);
    connect(text1_, &QLineEdit::textChanged, this, [this](const QString& t) { logica_.Valores.Titulo1 = t; });
    connect(text2_, &QLineEdit::textChanged, this, [this](const QString& t) { logica_.Valores.Titulo2 = t; });

    check1_ = new QCheckBox(QStringLiteral("Formato a Color"), this);
    check1_->setObjectName(QStringLiteral("Check1"));
    check1_->setChecked(logica_.Valores.FormatoColor);
    connect(check1_, &QCheckBox::toggled, this, [this](bool si) { logica_.Valores.FormatoColor = si; });

    auto* directorio = BotonNivo(QStringLiteral("LSButton4"), QStringLiteral("Directorio"), this,
                                 QStyle::SP_DirOpenIcon, ImpreResultados::TipDirectorio());
    auto* aceptar = BotonNivo(QStringLiteral("Command2"), QStringLiteral("Aceptar"), this, QStyle::SP_DialogOkButton,
                              QStringLiteral("Exportar el reporte seleccionado. "));
    auto* cancelar = BotonNivo(QStringLiteral("Command1"), QStringLiteral("Cancelar"), this,
                               QStyle::SP_DialogCancelButton, QStringLiteral("Cerrar sin exportar. "));
    aceptar->setDefault(true);
    connect(directorio, &QPushButton::clicked, this, [this] { logica_.AbrirDirectorio(); });
    connect(aceptar, &QPushButton::clicked, this, &VentanaImpreResultados::Aceptar);
    connect(cancelar, &QPushButton::clicked, this, &QDialog::reject);

    auto* pie = new QHBoxLayout;
    pie->addWidget(directorio);
    pie->addStretch(1);
    pie->addWidget(aceptar);
    pie->addWidget(cancelar);
    auto* capa = new QVBoxLayout(this);
    capa->addWidget(TituloPantalla(ImpreResultados::Titulo(), this));
    capa->addWidget(marco);
    capa->addWidget(portada);
    capa->addWidget(check1_);
    capa->addLayout(pie);
    capa->setSizeConstraint(QLayout::SetFixedSize);
    ConfigurarToolTips(this, tip_, s.Tapiz);

    Opcion(logica_.Opcion())->setChecked(true);
    ElegirOpcion(logica_.Opcion());
}

QRadioButton* VentanaImpreResultados::Opcion(int n) const {
    return findChild<QRadioButton*>(QStringLiteral("Option%1").arg(n));
}

void VentanaImpreResultados::ElegirOpcion(int n) {
    logica_.ElegirOpcion(n);
    text1_->setEnabled(logica_.TitulosEditables());
    text2_->setEnabled(logica_.TitulosEditables());
}

void VentanaImpreResultados::Aceptar() {
    if (logica_.Aceptar()) accept();
}
