#include "entry/screens/VentanaCotasNodos.h"

#include "entry/screens/AnchoVista.h"
#include "shell/Sesion.h"
#include "widgets/NivoToolTip.h"
#include "widgets/Ventanas.h"
#include "widgets/VistaGrid.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

VentanaCotasNodos::VentanaCotasNodos(ProyectoEdificio& p, Sesion& s, Dialogos& d, QWidget* padre)
    : QDialog(padre), d_(d), logica_(p, s, d) {
    setObjectName(QStringLiteral("CotasNodos"));
    setWindowTitle(CotasNodos::Titulo());
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    tip_ = new NivoToolTip(this);
    auto* capa = new QVBoxLayout;
    spread1_ = new VistaGrid(this);
    spread1_->setObjectName(QStringLiteral("Spread1"));
    spread1_->PermitirBloques();
    capa->addWidget(spread1_, 1);
    auto* pie = new QHBoxLayout;
    auto* fijar = BotonNivo(QStringLiteral("Fijar"), QStringLiteral("Fijar"), this, QStyle::SP_DialogApplyButton,
                            CotasNodos::TipFijar());
    auto* cancelar =
        BotonNivo(QStringLiteral("Cancelar"), QStringLiteral("Cancelar"), this, QStyle::SP_DialogCancelButton);
    pie->addStretch();
    pie->addWidget(fijar);
    pie->addWidget(cancelar);
    capa->addLayout(pie);

    Accion([this] { logica_.Cargar(); });
    spread1_->MostrarGrid(&logica_.Spread1);
    spread1_->MostrarActiva();
    FijarAnchoAlContenido(spread1_);
    CentrarEnAncho(this, capa);
    spread1_->AlEditar([this](int f, int c, const QString& t) {
        Accion([&] { logica_.EditarCelda(f, c, t); });
        spread1_->Refrescar();
    });
    spread1_->Modelo().alRechazar = [this](int, int, const QString& t) {
        Accion([&] { logica_.NumeroRechazado(t); });
    };
    connect(
        spread1_, &VistaGrid::BloqueSeleccionado, this,
        [this](int f1, int f2, int c1, int c2) {
            Accion([&] { logica_.LlenarBloque(f1, f2, c1, c2); });
            spread1_->QuitarBloque();
            spread1_->Refrescar();
            spread1_->setFocus();
        },
        Qt::QueuedConnection);
    connect(spread1_->selectionModel(), &QItemSelectionModel::currentChanged, this, &VentanaCotasNodos::CursorMovido);
    connect(fijar, &QPushButton::clicked, this, [this] {
        spread1_->TerminarEdicion();
        if (Accion([this] { logica_.Fijar(); })) accept();
    });
    connect(cancelar, &QPushButton::clicked, this, &VentanaCotasNodos::reject);
    ConfigurarToolTips(this, tip_, s.Tapiz);
    // Wide enough for its title as well as for its two columns.
    resize(std::max(sizeHint().width(), fontMetrics().horizontalAdvance(windowTitle()) + 120),
           fontMetrics().height() * 30);
}

VentanaCotasNodos::~VentanaCotasNodos() { spread1_->MostrarGrid(nullptr); }

bool VentanaCotasNodos::Accion(const std::function<void()>& f) { return SinFallaDeCalculo(d_, f); }

void VentanaCotasNodos::CursorMovido() {
    const QModelIndex i = spread1_->currentIndex();
    if (!i.isValid()) return;
    const int fila = logica_.FilaPermitida(i.row() + 1);
    if (fila != i.row() + 1) spread1_->setCurrentIndex(spread1_->model()->index(fila - 1, i.column()));
}

void VentanaCotasNodos::reject() {
    spread1_->TerminarEdicion();
    bool cierra = true;
    Accion([this, &cierra] { cierra = logica_.Cancelar(); });
    if (cierra) QDialog::reject();
}
