#include "images/screens/VentanaExportarFoto1.h"

#include "images/screens/MarcoImagen.h"
#include "shell/Sesion.h"
#include "widgets/NivoToolTip.h"
#include "widgets/Ventanas.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

VentanaExportarFoto1::VentanaExportarFoto1(Sesion& s, Dialogos& d, const QImage& imagen, QWidget* padre)
    : QDialog(padre), logica_(s, d, imagen) {
    setObjectName(QStringLiteral("ExportarFoto1"));
    setWindowTitle(ExportarFoto1::Titulo());
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    tip_ = new NivoToolTip(this);

    auto* vista = new MarcoImagen(this);
    vista->setObjectName(QStringLiteral("Picture1"));
    vista->setMinimumSize(360, 270);
    vista->PonerImagen(imagen);
    auto* lsCheck1 = new QCheckBox(QStringLiteral("Formato JPG (sin marcar: BMP)"), this);
    lsCheck1->setObjectName(QStringLiteral("LSCheck1"));
    lsCheck1->setChecked(logica_.Jpg());
    auto* lsButton1 = BotonNivo(QStringLiteral("LSButton1"), QStringLiteral("Abrir el Directorio"), this,
                                QStyle::SP_DirOpenIcon, ExportarFoto1::TipAbrirCarpeta());
    auto* exportar = BotonNivo(QStringLiteral("Command2"), QStringLiteral("Exportar"), this,
                               QStyle::SP_DialogSaveButton);
    auto* cancelar = BotonNivo(QStringLiteral("Command1"), QStringLiteral("Cancelar"), this,
                               QStyle::SP_DialogCancelButton);

    auto* pie = new QHBoxLayout;
    pie->addWidget(lsCheck1);
    pie->addWidget(lsButton1);
    pie->addStretch();
    pie->addWidget(exportar);
    pie->addWidget(cancelar);
    auto* capa = new QVBoxLayout(this);
    capa->addWidget(vista, 1);
    capa->addLayout(pie);

    connect(lsCheck1, &QCheckBox::toggled, this, [this](bool si) { logica_.PonerJpg(si); });
    connect(lsButton1, &QPushButton::clicked, this, [this] { logica_.AbrirCarpeta(); });
    // The screen stays after an export, for the folder to be opened.
    connect(exportar, &QPushButton::clicked, this, [this] { logica_.Exportar(); });
    connect(cancelar, &QPushButton::clicked, this, &QDialog::reject);
    ConfigurarToolTips(this, tip_, s.Tapiz);
}
