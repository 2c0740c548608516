#include "catalogue/screens/PanelBDCatalogo.h"

#include "reports/screens/VentanaImpreGeneral.h"
#include "shell/Sesion.h"
#include "widgets/NivoToolTip.h"
#include "widgets/Ventanas.h"
#include "widgets/VistaGrid.h"
#include "widgets/VistaPreviaFoto.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr int AltoFilaImagen = 64;

}  // namespace

PanelBDCatalogo::PanelBDCatalogo(BDCatalogo& logica, Sesion& s, Dialogos& d, std::function<bool()> capturar,
                                 std::function<void(int fila)> editar, QWidget* padre)
    : QWidget(padre), logica_(logica), d_(d), capturar_(std::move(capturar)), editar_(std::move(editar)) {
    const TipoCatalogo& t = logica.Tipo();
    tip_ = new NivoToolTip(this);
    auto* capa = new QVBoxLayout(this);
    capa->addWidget(TituloPantalla(t.titulo, this));

    spread1_ = new VistaGrid(this);
    spread1_->setObjectName(QStringLiteral("Spread1"));
    spread1_->MostrarGrid(&logica_.Spread1);
    spread1_->setSelectionBehavior(QAbstractItemView::SelectRows);
    spread1_->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    spread1_->verticalHeader()->setDefaultSectionSize(AltoFilaImagen);
    spread1_->horizontalHeader()->setSectionResizeMode(2, QHeaderView::Stretch);
    spread1_->horizontalHeader()->setSectionsClickable(true);
    capa->addWidget(spread1_, 1);
    connect(spread1_->horizontalHeader(), &QHeaderView::sectionClicked, this,
            [this](int seccion) { Accion([&] { logica_.Ordenar(seccion + 1); }); });
    connect(spread1_, &QAbstractItemView::doubleClicked, this, [this] { Editar(); });
    vistaPrevia_ = new VistaPreviaFoto(spread1_, padre ? padre : this,
                                       [this](int fila) { return logica_.ImagenFila(fila); });

    auto* pie = new QHBoxLayout;
    pie->addWidget(new QLabel(QStringLiteral("Registros:"), this));
    cuenta_ = new QLabel(this);
    cuenta_->setObjectName(QStringLiteral("Cuenta"));
    cuenta_->setFrameShape(QFrame::Panel);
    cuenta_->setFrameShadow(QFrame::Sunken);
    cuenta_->setMinimumWidth(60);
    cuenta_->setAlignment(Qt::AlignCenter);
    pie->addWidget(cuenta_);
    pie->addSpacing(16);
    pie->addWidget(new QLabel(QStringLiteral("Buscar:"), this));
    buscar_ = new QLineEdit(this);
    buscar_->setObjectName(QStringLiteral("Buscar"));
    buscar_->setToolTip(QStringLiteral("Buscar la descripción en la base de datos. "));
    buscar_->setMaximumWidth(240);
    pie->addWidget(buscar_);
    connect(buscar_, &QLineEdit::returnPressed, this, [this] { Accion([this] { logica_.Buscar(buscar_->text()); }); });
    pie->addStretch();

    auto boton = [&](const char* nombre, const QString& texto, const QString& tipTexto) {
        auto* b = BotonNivo(QString::fromLatin1(nombre), texto, this, std::nullopt, tipTexto);
        pie->addWidget(b);
        return b;
    };
    auto* capturarBoton = boton("Capturar", QStringLiteral("Capturar"), t.tipCapturar);
    capturarBoton->setVisible(logica_.CapturarVisible());
    connect(capturarBoton, &QPushButton::clicked, this, [this] {
        bool cerrar = false;
        Accion([&] { cerrar = capturar_(); });
        if (cerrar) Q_EMIT Capturado();
    });
    connect(boton("Editar", QStringLiteral("Editar"), t.tipEditar), &QPushButton::clicked, this, [this] { Editar(); });
    connect(boton("Eliminar", QStringLiteral("Eliminar"), QStringLiteral("Elimina la pieza sanitaria seleccionada. ")),
            &QPushButton::clicked, this, [this] { Accion([this] { logica_.Eliminar(); }); });
    connect(boton("Reporte", QStringLiteral("Reporte"), t.tipReporte), &QPushButton::clicked, this, [this, &s] {
        VentanaImpreGeneral impre(&logica_.Tipo() == &TipoCatalogo::Piezas() ? 3 : 4, s, d_, this);
        impre.exec();
    });
    auto* retorno = BotonRetorno(this);
    retorno->setToolTip(QStringLiteral(" Retorno "));
    pie->addWidget(retorno);
    connect(retorno, &QPushButton::clicked, this, &PanelBDCatalogo::Retorno);
    capa->addLayout(pie);

    Mostrar();
    ConfigurarToolTips(this, tip_, s.Tapiz);
}

PanelBDCatalogo::~PanelBDCatalogo() { spread1_->MostrarGrid(nullptr); }

QPushButton* PanelBDCatalogo::Boton(const QString& nombre) const { return findChild<QPushButton*>(nombre); }

void PanelBDCatalogo::Mostrar() {
    spread1_->Refrescar();
    spread1_->MostrarActiva();
    cuenta_->setText(logica_.Cuenta());
}

void PanelBDCatalogo::Accion(const std::function<void()>& f) {
    vistaPrevia_->Ocultar();
    SinFallaDeCalculo(d_, f);
    Mostrar();
}

void PanelBDCatalogo::Editar() {
    vistaPrevia_->Ocultar();
    const QModelIndex i = spread1_->currentIndex();
    if (i.isValid()) logica_.PonerActiva(i.row() + 1);
    editar_(logica_.FilaActiva());
    Mostrar();
}
