#include "reports/screens/VentanaImpreAcueducto.h"

#include "aqueduct/screens/ComunACU.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

VentanaImpreAcueducto::VentanaImpreAcueducto(const ProyectoAcueducto& p, Sesion& s, Dialogos& d, QWidget* padre)
    : QDialog(padre), salida_(s, d, this), logica_(p, s, d, salida_) {
    setObjectName(QStringLiteral("ImpreAcueducto"));
    setWindowTitle(QStringLiteral("Redes de Acueductos"));
    auto* capa = new QVBoxLayout(this);
    auto* marco = new QGroupBox(QStringLiteral("Opciones de Impresión"), this);
    auto* opciones = new QVBoxLayout(marco);
    const QStringList textos = ImpreAcueducto::Opciones();
    for (int i = 0; i < textos.size(); ++i) {
        auto* o = new QRadioButton(textos[i], marco);
        o->setObjectName(QStringLiteral("Option%1").arg(i + 1));
        o->setChecked(i + 1 == logica_.Opcion);
        connect(o, &QRadioButton::toggled, this, [this, i](bool si) {
            if (si) logica_.Opcion = i + 1;
        });
        opciones->addWidget(o);
    }
    opciones->addSpacing(6);
    auto* color = new QCheckBox(QStringLiteral("Formato a Color"), marco);
    color->setObjectName(QStringLiteral("Check1"));
    color->setChecked(logica_.FormatoColor);
    connect(color, &QCheckBox::toggled, this, [this](bool si) { logica_.FormatoColor = si; });
    opciones->addWidget(color);
    capa->addWidget(marco);

    auto* pie = new QHBoxLayout;
    const auto boton = [&](const char* nombre, const char* texto, const char* ayuda) {
        auto* b = BotonACU(QString::fromLatin1(nombre), QString::fromUtf8(texto), this);
        b->setToolTip(QString::fromUtf8(ayuda));
        pie->addWidget(b);
        return b;
    };
    QPushButton* exportar = boton("Command2", "Exportar", "Imprimir o Exportar los Reportes. ");
    exportar->setDefault(true);
    connect(exportar, &QPushButton::clicked, this, [this] {
        if (logica_.Exportar()) accept();
    });
    connect(boton("LSButton4", "Directorio", "Directorio de los reportes exportados. "), &QPushButton::clicked, this,
            [this] { logica_.Directorio(); });
    // Esc closes the dialog as this button does.
    connect(boton("Button2", "Cancelar", " Cancelar "), &QPushButton::clicked, this, &QDialog::reject);
    capa->addLayout(pie);
    setFixedSize(sizeHint().expandedTo(QSize(360, 0)));
}

QPushButton* VentanaImpreAcueducto::Boton(const QString& nombre) const { return findChild<QPushButton*>(nombre); }
