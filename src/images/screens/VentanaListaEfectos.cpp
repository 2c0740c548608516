#include "images/screens/VentanaListaEfectos.h"

#include "entry/screens/AnchoVista.h"
#include "widgets/NivoToolTip.h"
#include "widgets/Ventanas.h"
#include "widgets/VistaGrid.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

VentanaListaEfectos::VentanaListaEfectos(ListaEfectos& logica, const QString& nombre,
                                         const ConfiguracionTapiz& tapiz, QWidget* padre)
    : QDialog(padre), logica_(logica) {
    setObjectName(nombre);
    setWindowTitle(logica.Titulo());
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    tip_ = new NivoToolTip(this);
    auto* capa = new QVBoxLayout(this);
    auto* centro = new QHBoxLayout;
    spread1_ = new VistaGrid(this);
    spread1_->setObjectName(QStringLiteral("Spread1"));
    spread1_->MostrarGrid(&logica_.Spread1);
    FijarAnchoAlContenido(spread1_);
    centro->addWidget(spread1_);
    picture1_ = new QLabel(this);
    picture1_->setObjectName(QStringLiteral("Picture1"));
    picture1_->setAlignment(Qt::AlignCenter);
    picture1_->setMinimumSize(260, 260);
    picture1_->setFrameShape(QFrame::StyledPanel);
    picture1_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    centro->addWidget(picture1_, 1);
    capa->addLayout(centro, 1);

    auto* pie = new QHBoxLayout;
    if (logica_.TieneCheck1()) {
        auto* check1 = new QCheckBox(QStringLiteral("Vista reducida"), this);
        check1->setObjectName(QStringLiteral("Check1"));
        check1->setChecked(logica_.Check1());
        pie->addWidget(check1);
        connect(check1, &QCheckBox::toggled, this, [this](bool si) {
            CursorEspera espera;
            logica_.PonerCheck1(si);
            MostrarVista();
        });
    }
    pie->addStretch();
    auto* aceptar = BotonNivo(QStringLiteral("Button2"), QStringLiteral(" Aceptar "), this,
                              QStyle::SP_DialogApplyButton);
    auto* cancelar = BotonNivo(QStringLiteral("Button1"), QStringLiteral(" Cancelar "), this,
                               QStyle::SP_DialogCancelButton);
    pie->addWidget(aceptar);
    pie->addWidget(cancelar);
    capa->addLayout(pie);
    connect(aceptar, &QPushButton::clicked, this, &QDialog::accept);
    connect(cancelar, &QPushButton::clicked, this, &QDialog::reject);
    connect(spread1_->selectionModel(), &QItemSelectionModel::currentChanged, this, [this](const QModelIndex& i) {
        if (!i.isValid()) return;
        CursorEspera espera;
        logica_.ElegirFila(i.row() + 1);
        MostrarVista();
    });
    ConfigurarToolTips(this, tip_, tapiz);
    MostrarVista();
    DimensionarVentana(this, 50, 60);
}

VentanaListaEfectos::~VentanaListaEfectos() { spread1_->MostrarGrid(nullptr); }

void VentanaListaEfectos::MostrarVista() {
    const QImage& v = logica_.Vista();
    if (v.isNull()) {
        picture1_->clear();
        return;
    }
    const QSize caja = picture1_->contentsRect().size();
    picture1_->setPixmap(QPixmap::fromImage(v.scaled(caja, Qt::KeepAspectRatio, Qt::SmoothTransformation)));
}

void VentanaListaEfectos::resizeEvent(QResizeEvent* e) {
    QDialog::resizeEvent(e);
    MostrarVista();
}

std::optional<int> VentanaListaEfectos::ElegirEfectoRGB(const QImage& imagen, const ConfiguracionTapiz& tapiz,
                                                        QWidget* padre) {
    ListaEfectos logica = RGBColors();
    logica.Cargar(imagen);
    VentanaListaEfectos v(logica, QStringLiteral("RGBColors"), tapiz, padre);
    if (v.exec() != QDialog::Accepted) return std::nullopt;
    return logica.Aceptar();
}

std::optional<int> VentanaListaEfectos::ElegirDithering(const QImage& imagen, const ConfiguracionTapiz& tapiz,
                                                        QWidget* padre) {
    ListaEfectos logica = Dithering();
    logica.Cargar(imagen, logica.Check1());
    VentanaListaEfectos v(logica, QStringLiteral("Dithering"), tapiz, padre);
    if (v.exec() != QDialog::Accepted) return std::nullopt;
    return logica.Aceptar();
}
