#include "shell/screens/VentanaSobre.h"

#include "shell/MenuPrincipal.h"
#include "shell/screens/VentanaMsgBox.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

VentanaSobre::VentanaSobre(QWidget* padre) : QDialog(padre) {
    setObjectName(QStringLiteral("Sobre"));
    setWindowTitle(QStringLiteral("Sobre Nivo-Fontaria"));
    auto* capa = new QHBoxLayout(this);
    auto* icono = new QLabel(this);
    icono->setPixmap(IconoPrograma().pixmap(64, 64));
    icono->setAlignment(Qt::AlignTop);
    capa->addWidget(icono);
    auto* texto = new QVBoxLayout;
    auto* nombre = new QLabel(QStringLiteral("Nivo-Fontaria 2024"), this);
    QFont f = nombre->font();
    f.setPointSize(16);
    f.setBold(true);
    nombre->setFont(f);
    texto->addWidget(nombre);
    texto->addWidget(new QLabel(MenuPrincipal::TextoRevision(), this));
    auto* cuerpo = new QLabel(
        QStringLiteral("Diseño de redes de agua potable:\n"
                       "viviendas y edificios (unidades de gasto, caudal probable, diámetros,\n"
                       "pérdidas, presiones, tanque elevado o hidroneumático, cómputos)\n"
                       "y redes malladas de acueductos (consumo medio, máximo e incendio)."),
        this);
    texto->addWidget(cuerpo);
    auto* aceptar = new QPushButton(QStringLiteral("Aceptar"), this);
    aceptar->setDefault(true);
    connect(aceptar, &QPushButton::clicked, this, &QDialog::accept);
    auto* pie = new QHBoxLayout;
    pie->addStretch();
    pie->addWidget(aceptar);
    texto->addLayout(pie);
    capa->addLayout(texto);
}
