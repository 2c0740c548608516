#include "entry/screens/VentanaCambiarOpcionDiseno.h"

#include "entry/screens/AnchoVista.h"
#include "shell/Sesion.h"
#include "widgets/NivoToolTip.h"
#include "widgets/Ventanas.h"
#include "widgets/VistaGrid.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

VentanaCambiarOpcionDiseno::VentanaCambiarOpcionDiseno(ProyectoEdificio& p, Sesion& s, Dialogos& d,
                                                       EditorRamales& editor, std::function<void()> refrescarEditor,
                                                       QWidget* padre)
    : QDialog(padre), d_(d), logica_(p, s, d, editor), refrescarEditor_(std::move(refrescarEditor)) {
    setObjectName(QStringLiteral("CambiarOpcionDiseno"));
    setWindowTitle(CambiarOpcionDiseño::Titulo());
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    tip_ = new NivoToolTip(this);
    auto* capa = new QVBoxLayout;
    auto* marco = new QGroupBox(this);
    auto* cm = new QVBoxLayout(marco);
    for (int o = 0; o < 2; ++o) {
        opciones_[o] = new QRadioButton(CambiarOpcionDiseño::TextoOpcion(o), marco);
        opciones_[o]->setObjectName(QStringLiteral("Option%1").arg(o + 1));
        cm->addWidget(opciones_[o]);
        connect(opciones_[o], &QRadioButton::toggled, this, [this, o](bool si) {
            if (si) logica_.CambiarOpcion(o);
        });
    }
    capa->addWidget(marco);
    spread1_ = new VistaGrid(this);
    spread1_->setObjectName(QStringLiteral("Spread1"));
    spread1_->PermitirBloques();
    capa->addWidget(spread1_, 1);
    auto* pie = new QHBoxLayout;
    auto* marcar = BotonNivo(QStringLiteral("MarcarTodo"), QStringLiteral("Marcar Todo"), this, std::nullopt,
                             QStringLiteral("Marcar todos los ramales. "));
    auto* quitar = BotonNivo(QStringLiteral("QuitarMarca"), QStringLiteral("Quitar Marca"), this, std::nullopt,
                             QStringLiteral("Desmarcar todos los ramales. "));
    auto* fijar = BotonNivo(QStringLiteral("Fijar"), QStringLiteral("Fijar"), this, QStyle::SP_DialogApplyButton,
                            QStringLiteral("Fijar la opción de diseño seleccionada. "));
    auto* retorno = BotonRetorno(this);
    pie->addWidget(marcar);
    pie->addWidget(quitar);
    pie->addStretch();
    pie->addWidget(fijar);
    pie->addWidget(retorno);
    capa->addLayout(pie);

    Accion([this] { logica_.Cargar(); });
    opciones_[logica_.Opcion]->setChecked(true);
    spread1_->MostrarGrid(&logica_.Spread1);
    spread1_->MostrarActiva();
    FijarAnchoAlContenido(spread1_);
    CentrarEnAncho(this, capa);
    connect(spread1_, &QAbstractItemView::clicked, this, [this](const QModelIndex& i) {
        if (i.column() == 0) Accion([&] { logica_.ClickMarca(i.row() + 1); });
    });
    connect(
        spread1_, &VistaGrid::BloqueSeleccionado, this,
        [this](int f1, int f2, int c1, int c2) { Accion([&] { logica_.MarcarBloque(f1, f2, c1, c2); }); },
        Qt::QueuedConnection);
    connect(marcar, &QPushButton::clicked, this, [this] { Accion([this] { logica_.MarcarTodo(); }); });
    connect(quitar, &QPushButton::clicked, this, [this] { Accion([this] { logica_.QuitarMarca(); }); });
    connect(fijar, &QPushButton::clicked, this, [this] {
        bool hecho = false;
        Accion([&] { hecho = logica_.Fijar(); });
        if (hecho && refrescarEditor_) refrescarEditor_();
    });
    connect(retorno, &QPushButton::clicked, this, &QDialog::reject);
    ConfigurarToolTips(this, tip_, s.Tapiz);
    resize(sizeHint().width(), fontMetrics().height() * 34);
}

VentanaCambiarOpcionDiseno::~VentanaCambiarOpcionDiseno() { spread1_->MostrarGrid(nullptr); }

void VentanaCambiarOpcionDiseno::Accion(const std::function<void()>& f) {
    SinFallaDeCalculo(d_, f);
    spread1_->Refrescar();
}
