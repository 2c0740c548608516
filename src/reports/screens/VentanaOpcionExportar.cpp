#include "reports/screens/VentanaOpcionExportar.h"

#include "shell/Sesion.h"
#include "widgets/NivoToolTip.h"
#include "widgets/Ventanas.h"

#include <QButtonGroup>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

VentanaOpcionExportar::VentanaOpcionExportar(const Sesion& s, Dialogos& d, QWidget* padre)
    : QDialog(padre), logica_(s, d) {
    setObjectName(QStringLiteral("OpcionExportar"));
    setWindowTitle(OpcionExportar::Titulo());
    tip_ = new NivoToolTip(this);

    auto* marco = new QGroupBox(QStringLiteral("Destino del Reporte"), this);
    marco->setObjectName(QStringLiteral("Frame1"));
    // Wide enough for the window's title to be read whole.
    marco->setMinimumWidth(fontMetrics().horizontalAdvance(OpcionExportar::Titulo()) + 120);
    auto* opciones = new QVBoxLayout(marco);
    auto* grupo = new QButtonGroup(this);
    for (const OpcionExportar::Opcion& o : OpcionExportar::Opciones()) {
        auto* b = new QRadioButton(o.texto, marco);
        b->setObjectName(o.control);
        b->setToolTip(o.tip);
        b->setChecked(o.formato == logica_.Seleccion());
        grupo->addButton(b);
        opciones->addWidget(b);
        // The first option (the preview) stands apart from the file formats.
        if (o.formato == FormatoSalida::Vista) opciones->addSpacing(8);
        const FormatoSalida f = o.formato;
        connect(b, &QRadioButton::clicked, this, [this, f] { Elegir(f); });
    }

    auto* aceptar = BotonNivo(QStringLiteral("LSButton8"), QStringLiteral("Aceptar"), this, QStyle::SP_DialogOkButton,
                              QStringLiteral("Aceptar la opción seleccionada. "));
    auto* cancelar = BotonNivo(QStringLiteral("Command1"), QStringLiteral("Cancelar"), this,
                               QStyle::SP_DialogCancelButton, QStringLiteral("Cerrar sin exportar. "));
    connect(aceptar, &QPushButton::clicked, this, [this] { Elegir(logica_.Seleccion()); });
    connect(cancelar, &QPushButton::clicked, this, &QDialog::reject);

    auto* pie = new QHBoxLayout;
    pie->addStretch(1);
    pie->addWidget(aceptar);
    pie->addWidget(cancelar);
    auto* capa = new QVBoxLayout(this);
    capa->addWidget(marco);
    capa->addLayout(pie);
    capa->setSizeConstraint(QLayout::SetFixedSize);
    ConfigurarToolTips(this, tip_, s.Tapiz);
}

QRadioButton* VentanaOpcionExportar::Opcion(const QString& nombre) const { return findChild<QRadioButton*>(nombre); }

void VentanaOpcionExportar::Elegir(FormatoSalida f) {
    if (logica_.Elegir(f)) accept();
}
