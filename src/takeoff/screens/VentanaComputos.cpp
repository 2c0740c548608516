#include "takeoff/screens/VentanaComputos.h"

#include "reports/screens/VentanaImpreGeneral.h"
#include "shell/Sesion.h"
#include "shell/Titulos.h"
#include "widgets/NivoTab.h"
#include "widgets/NivoToolTip.h"
#include "widgets/Ventanas.h"
#include "widgets/VistaGrid.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QPushButton>
#include <QStackedWidget>
#include <QStyle>
#include <QVBoxLayout>

VentanaComputos::VentanaComputos(ProyectoEdificio& p, Sesion& s, Dialogos& d, bool desdeAnalisis, QWidget* padre)
    : QDialog(padre), p_(p), s_(s), d_(d), logica_(p, s, d) {
    setObjectName(QStringLiteral("Computos"));
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    setSizeGripEnabled(true);
    logica_.AbrirVisible = !desdeAnalisis;
    tip_ = new NivoToolTip(this);

    auto* capa = new QVBoxLayout(this);
    tab_ = new NivoTab(this);
    tab_->setObjectName(QStringLiteral("Tab1"));
    for (int t = 1; t <= 4; ++t)
        tab_->addTab(QStringLiteral("  ") + PaginasComputos::TituloPagina(t) + QStringLiteral("  "));
    capa->addWidget(tab_, 0, Qt::AlignHCenter);

    pila_ = new QStackedWidget(this);
    Grid* grids[4] = {&logica_.Paginas.Piezas, &logica_.Paginas.Conexiones, &logica_.Paginas.Reducciones,
                      &logica_.Paginas.Tuberias};
    for (int t = 0; t < 4; ++t) {
        vistas_[t] = new VistaGrid(pila_);
        vistas_[t]->setObjectName(QStringLiteral("Spread%1").arg(t + 1));
        vistas_[t]->MostrarGrid(grids[t]);
        // The description takes the width; the quantity keeps its own.
        vistas_[t]->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
        pila_->addWidget(vistas_[t]);
    }
    capa->addWidget(pila_, 1);
    connect(tab_, &QTabBar::currentChanged, this, [this](int i) {
        logica_.Pagina = i + 1;
        pila_->setCurrentIndex(i);
        vistas_[i]->setFocus();
    });

    auto* pie = new QHBoxLayout;
    auto* abrir = BotonNivo(QStringLiteral("Abrir"), QStringLiteral("Abrir"), this, QStyle::SP_DialogOpenButton,
                            QStringLiteral("Abrir un proyecto existente. "));
    auto* imprimir = BotonNivo(QStringLiteral("Imprimir"), QStringLiteral("Imprimir"), this, QStyle::SP_FileIcon);
    auto* retorno = BotonRetorno(this);
    pie->addWidget(abrir);
    pie->addStretch(1);
    pie->addWidget(imprimir);
    pie->addWidget(retorno);
    capa->addLayout(pie);
    connect(abrir, &QPushButton::clicked, this, &VentanaComputos::Abrir);
    connect(imprimir, &QPushButton::clicked, this, &VentanaComputos::Imprimir);
    connect(retorno, &QPushButton::clicked, this, &QDialog::accept);

    ConfigurarToolTips(this, tip_, s_.Tapiz);
    DimensionarVentana(this, 60, 75);
}

VentanaComputos::~VentanaComputos() {
    for (VistaGrid* v : vistas_) v->MostrarGrid(nullptr);
}

QPushButton* VentanaComputos::Boton(const QString& nombre) const { return findChild<QPushButton*>(nombre); }

bool VentanaComputos::Cargar() {
    const bool bien = SinFallaDeCalculo(d_, [this] {
        CursorEspera espera;
        logica_.Cargar();
    });
    if (bien) Mostrar();
    return bien;
}

void VentanaComputos::Mostrar() {
    setWindowTitle(logica_.Caption);
    Boton(QStringLiteral("Abrir"))->setVisible(logica_.AbrirVisible);
    for (VistaGrid* v : vistas_) v->Refrescar();
    tab_->PonerTab(logica_.Pagina);
    pila_->setCurrentIndex(logica_.Pagina - 1);
}

void VentanaComputos::Abrir() {
    bool abierto = false;
    const bool bien = SinFallaDeCalculo(d_, [&] {
        CursorEspera espera;
        abierto = logica_.Abrir();
    });
    if (!bien) {
        reject();
        return;
    }
    if (!abierto) return;
    if (parentWidget()) parentWidget()->window()->setWindowTitle(TituloEdificio(s_));
    Mostrar();
}

void VentanaComputos::Imprimir() {
    FuenteDatos fuente;
    fuente.Proyecto = &p_;
    fuente.Computos = &logica_.Paginas;
    VentanaImpreGeneral impre(1, s_, d_, this, fuente);
    impre.exec();
    vistas_[logica_.Pagina - 1]->setFocus();
}
