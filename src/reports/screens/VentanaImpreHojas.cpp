#include "reports/screens/VentanaImpreHojas.h"

#include "aqueduct/screens/ComunACU.h"
#include "widgets/NivoNumero.h"
#include "widgets/VistaGrid.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

VentanaImpreHojas::VentanaImpreHojas(const ProyectoEdificio& edificio, const ProyectoAcueducto& acueducto, Sesion& s,
                                     Dialogos& d, QWidget* padre)
    : QDialog(padre), salida_(s, d, this), logica_(edificio, acueducto, s, d, salida_) {
    setObjectName(QStringLiteral("ImpreHojas"));
    setWindowTitle(QStringLiteral("Imprimir Hojas de Trabajo"));
    logica_.Cargar();
    auto* capa = new QHBoxLayout(this);

    auto* izquierda = new QVBoxLayout;
    spread1_ = new VistaGrid(this);
    spread1_->setObjectName(QStringLiteral("Spread1"));
    spread1_->MostrarGrid(&logica_.Spread1);
    spread1_->setMinimumWidth(300);
    spread1_->horizontalHeader()->setStretchLastSection(true);
    izquierda->addWidget(spread1_, 1);
    auto* borrar = new QPushButton(QStringLiteral(" Borrar el ( I )-( J ) de los Ramales "), this);
    borrar->setObjectName(QStringLiteral("LSButton1"));
    borrar->setToolTip(QStringLiteral("Deja en blanco los nodos de la tabla. "));
    borrar->setAutoDefault(false);
    connect(borrar, &QPushButton::clicked, this, [this] {
        spread1_->TerminarEdicion();
        logica_.BorrarNodos();
        spread1_->Refrescar();
    });
    izquierda->addWidget(borrar);
    capa->addLayout(izquierda, 1);

    auto* derecha = new QVBoxLayout;
    auto* marco = new QGroupBox(QStringLiteral("Hoja de Trabajo"), this);
    auto* opciones = new QVBoxLayout(marco);
    for (int i = 1; i <= 2; ++i) {
        auto* o = new QRadioButton(i == 1 ? logica_.TextoOpcion1() : logica_.TextoOpcion2(), marco);
        o->setObjectName(QStringLiteral("Option%1").arg(i));
        o->setChecked(i == logica_.Opcion);
        connect(o, &QRadioButton::toggled, this, [this, i](bool si) {
            if (si) logica_.Opcion = i;
        });
        opciones->addWidget(o);
    }
    auto* color = new QCheckBox(QStringLiteral("Formato a Color"), marco);
    color->setObjectName(QStringLiteral("Check1"));
    color->setChecked(logica_.Check1);
    // The aqueduct's sheets are printed in black and white.
    color->setVisible(!logica_.Acueducto());
    connect(color, &QCheckBox::toggled, this, [this](bool si) { logica_.Check1 = si; });
    opciones->addWidget(color);
    auto* filas = new QHBoxLayout;
    filas->addWidget(new QLabel(QStringLiteral("Número de Filas:"), marco));
    long1_ = new NivoLong(marco);
    long1_->setObjectName(QStringLiteral("Long1"));
    long1_->setToolTip(QStringLiteral("Número de filas de la hoja. "));
    long1_->PonerLimites(0, 32767);
    long1_->setMaximumWidth(80);
    long1_->PonerValor(logica_.Long1());
    // The rows change once the number is confirmed, not at each key: typing
    // "30" over 26 rows never passes through 3.
    const auto filasConfirmadas = [this] {
        if (long1_->ValorEntero() == logica_.Long1()) return;
        spread1_->TerminarEdicion();
        logica_.CambiarLong1(int(long1_->ValorEntero()));
        spread1_->Refrescar();
    };
    connect(long1_, &NivoNumero::Enter, this, filasConfirmadas);
    connect(long1_, &QLineEdit::editingFinished, this, filasConfirmadas);
    filas->addWidget(long1_);
    filas->addStretch();
    opciones->addLayout(filas);
    derecha->addWidget(marco);
    derecha->addStretch();

    const auto boton = [&](const char* nombre, const char* texto, const char* ayuda) {
        auto* b = BotonACU(QString::fromLatin1(nombre), QString::fromUtf8(texto), this);
        b->setToolTip(QString::fromUtf8(ayuda));
        derecha->addWidget(b);
        return b;
    };
    connect(boton("Command2", "Aceptar", "Imprimir o Exportar la Hoja de Trabajo. "), &QPushButton::clicked, this,
            [this] {
                spread1_->TerminarEdicion();
                if (logica_.Aceptar()) accept();
            });
    connect(boton("LSButton4", "Directorio", "Directorio de los reportes exportados. "), &QPushButton::clicked, this,
            [this, &s, &d] { AbrirReportesExportados(s, d); });
    connect(boton("Button2", "Cancelar", " Cancelar "), &QPushButton::clicked, this, &QDialog::reject);
    capa->addLayout(derecha);
    resize(640, 520);
}

VentanaImpreHojas::~VentanaImpreHojas() { spread1_->MostrarGrid(nullptr); }

QPushButton* VentanaImpreHojas::Boton(const QString& nombre) const { return findChild<QPushButton*>(nombre); }
