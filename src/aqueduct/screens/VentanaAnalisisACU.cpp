#include "aqueduct/screens/VentanaAnalisisACU.h"

#include "aqueduct/DatosPlano.h"
#include "aqueduct/ProyectoAcueducto.h"
#include "aqueduct/screens/ComunACU.h"
#include "aqueduct/screens/VentanaDatosAcueducto.h"
#include "entry/screens/VentanaBuscarPartida.h"
#include "pictures/PlanoAcueducto.h"
#include "pictures/screens/VistaDibujo.h"
#include "reports/screens/VentanaImpreAcueducto.h"
#include "shell/Sesion.h"
#include "widgets/NivoToolTip.h"
#include "widgets/VistaGrid.h"
#include "workbook/LibroAcueducto.h"
#include "workbook/screens/VentanaOpcionExcel.h"

#include <QComboBox>
#include <QHeaderView>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTabWidget>
#include <QTimer>
#include <QVBoxLayout>

VentanaAnalisisACU::VentanaAnalisisACU(ProyectoAcueducto& p, Sesion& s, Dialogos& d, QWidget* padre)
    : QDialog(padre), logica_(p, s, d), p_(p), s_(s), d_(d) {
    setObjectName(QStringLiteral("AnalisisACU"));
    setWindowTitle(QStringLiteral("Análisis de la Malla de Acueductos"));
    tip_ = new NivoToolTip(this);
    auto* capa = new QVBoxLayout(this);

    auto* arriba = new QHBoxLayout;
    combo1_ = new QComboBox(this);
    combo1_->setObjectName(QStringLiteral("Combo1"));
    combo1_->setMinimumWidth(320);
    lramal_ = new QPushButton(this);
    lramal_->setObjectName(QStringLiteral("LRamal"));
    lramal_->setAutoDefault(false);
    lramal_->setMinimumWidth(120);
    lnodo_ = new QLabel(this);
    lnodo_->setObjectName(QStringLiteral("LNodo"));
    lnodo_->setFrameShape(QFrame::Panel);
    lnodo_->setFrameShadow(QFrame::Sunken);
    lnodo_->setMinimumWidth(160);
    arriba->addWidget(combo1_);
    arriba->addSpacing(20);
    arriba->addWidget(lramal_);
    arriba->addWidget(lnodo_);
    arriba->addStretch();
    capa->addLayout(arriba);

    tab1_ = new QTabWidget(this);
    tab1_->setObjectName(QStringLiteral("Tab1"));
    spread1_ = new VistaGrid(tab1_);
    spread1_->setObjectName(QStringLiteral("Spread1"));
    spread2_ = new VistaGrid(tab1_);
    spread2_->setObjectName(QStringLiteral("Spread2"));
    // The list of sections at each node takes the width that is left.
    spread2_->horizontalHeader()->setStretchLastSection(true);
    tab1_->addTab(spread1_, QStringLiteral("Resultados del Análisis de los Ramales"));
    tab1_->addTab(spread2_, QStringLiteral("Resultados del Análisis de los Nodos"));
    plano_ = new PanelDibujo(d_, QStringLiteral("Exportar el Plano de la Red"),
                             [this] { return s_.RutaDatos(QStringLiteral("ReportesExportados")); }, tab1_);
    plano_->setObjectName(QStringLiteral("Plano"));
    colorPlano_ = new QComboBox(plano_);
    colorPlano_->setObjectName(QStringLiteral("ColorPlano"));
    colorPlano_->addItems({QStringLiteral("Color de los ramales: velocidad"),
                           QStringLiteral("Color de los ramales: pérdida unitaria")});
    colorPlano_->setToolTip(QStringLiteral("Colorear los ramales por su velocidad o por su pérdida unitaria. "));
    plano_->Barra()->insertWidget(0, colorPlano_);
    plano_->Vista()->textoElemento = [this](const ElementoDibujo& e) { return AyudaPlano(e.tipo, e.indice); };
    connect(colorPlano_, &QComboBox::currentIndexChanged, this, [this](int i) {
        if (!dibujo_) return;
        dibujo_->PonerModo(i == 1 ? ::ColorPlano::PerdidaUnitaria : ::ColorPlano::Velocidad);
        plano_->MostrarDibujo(dibujo_.get(), false);
    });
    tab1_->addTab(plano_, QStringLiteral("PLANO"));
    capa->addWidget(tab1_, 1);

    // A pass that did not converge: its results stay, the line says so in red.
    aviso_ = new QLabel(this);
    aviso_->setObjectName(QStringLiteral("AvisoConvergencia"));
    QPalette rojo = aviso_->palette();
    rojo.setColor(QPalette::WindowText, Qt::red);
    aviso_->setPalette(rojo);
    aviso_->setVisible(false);
    capa->addWidget(aviso_);

    auto* pie = new QHBoxLayout;
    auto boton = [&](const char* nombre, const char* texto, const std::function<void()>& accion) {
        auto* b = BotonACU(QString::fromLatin1(nombre), QString::fromUtf8(texto), this);
        pie->addWidget(b);
        connect(b, &QPushButton::clicked, this, accion);
        return b;
    };
    boton("LSButton1", "Corregir Dirección", [this] {
        // The sections tab is shown before the question.
        logica_.Pestana = 0;
        Refrescar();
        Accion([this] { logica_.CorregirDireccion(); });
    });
    boton("LSButton2", "Editar los Ramales", [this] { EditarRamales(); });
    boton("LSButton5", "Abrir Proyecto", [this] {
        Accion([this] { logica_.AbrirProyecto(); });
        CerrarSiHaceFalta();
    });
    boton("LSButton4", "Exportar a Excel", [this] {
        // Only a screen with results has anything to export.
        if (!logica_.TieneFilas()) return;
        ExportarLibroExcel(this, s_, d_, true,
                           [this](const OpcionesLibro& o, const QString& archivo, QString& error,
                                  const ProgresoLibro& progreso) {
                               return ExportarPantallaExcel(logica_, p_, s_, o, archivo, error, progreso);
                           });
        EnfocarGrid();
    });
    boton("LSButton8", "Imprimir el Análisis", [this] {
        VentanaImpreAcueducto impre(p_, s_, d_, this);
        impre.exec();
        EnfocarGrid();
    });
    pie->addStretch();
    boton("LSButton3", "Retorno", [this] { reject(); });
    capa->addLayout(pie);

    connect(combo1_, &QComboBox::currentIndexChanged, this, [this](int fila) {
        if (mostrando_ || fila < 0) return;
        Accion([this, fila] { logica_.CambiarCaso(fila); });
        EnfocarGrid();
    });
    connect(tab1_, &QTabWidget::currentChanged, this, [this](int pestana) {
        if (mostrando_) return;
        logica_.Pestana = pestana;
        Refrescar();
    });
    connect(lramal_, &QPushButton::clicked, this, &VentanaAnalisisACU::BuscarRamal);
    connect(spread1_->selectionModel(), &QItemSelectionModel::currentChanged, this, [this](const QModelIndex& i) {
        if (mostrando_ || !i.isValid()) return;
        logica_.MoverRamal(i.row() + 1);
        lramal_->setText(logica_.LRamal);
    });
    connect(spread2_->selectionModel(), &QItemSelectionModel::currentChanged, this, [this](const QModelIndex& i) {
        if (mostrando_ || !i.isValid()) return;
        logica_.MoverNodo(i.row() + 1);
        lnodo_->setText(logica_.LNodo);
    });
    editarRamales = [this] {
        VentanaDatosAcueducto datos(p_, s_, d_, this);
        datos.exec();
        return datos.Logica().ProyectoSalvado();
    };
    resize(1180, 640);

    Proteger(d_, [this] { logica_.Cargar(); });
    spread1_->MostrarGrid(&logica_.Spread1);
    spread2_->MostrarGrid(&logica_.Spread2);
    Refrescar();
    InstalarAyudas(this, tip_, s_.Tapiz, AyudasAnalisisACU());
}

VentanaAnalisisACU::~VentanaAnalisisACU() {
    spread1_->MostrarGrid(nullptr);
    spread2_->MostrarGrid(nullptr);
    plano_->MostrarDibujo(nullptr, false);
}

void VentanaAnalisisACU::DibujarPlano() {
    if (planoVigente_) return;
    planoVigente_ = true;
    if (logica_.Spread1.Filas() == 0) {
        plano_->MostrarDibujo(nullptr, false);
        dibujo_.reset();
        return;
    }
    // The same network in another case keeps its layout and the view.
    QStringList red;
    for (int t = 1; t <= p_.NumeroTramos; ++t) red << p_.Inicio.Leer(t) + QLatin1Char('\t') + p_.Final.Leer(t);
    const bool misma = dibujo_ && red == redDibujada_;
    const std::vector<QPointF> previas = misma ? dibujo_->Posiciones() : std::vector<QPointF>();
    auto nuevo = std::make_unique<PlanoAcueducto>(
        PlanoDeProyecto(p_, CoordenadasNodos(p_)),
        colorPlano_->currentIndex() == 1 ? ::ColorPlano::PerdidaUnitaria : ::ColorPlano::Velocidad,
        misma ? &previas : nullptr);
    plano_->MostrarDibujo(nuevo.get(), !misma);
    dibujo_ = std::move(nuevo);
    redDibujada_ = red;
}

QString VentanaAnalisisACU::AyudaPlano(int tipo, int indice) const {
    return FilaComoTexto(tipo == ElementoDibujo::Tubo ? logica_.Spread1 : logica_.Spread2, indice + 1);
}

QPushButton* VentanaAnalisisACU::Boton(const QString& nombre) const { return findChild<QPushButton*>(nombre); }

void VentanaAnalisisACU::Refrescar() {
    mostrando_ = true;
    setWindowTitle(logica_.Titulo());
    QStringList casos;
    for (int i = 0; i < combo1_->count(); ++i) casos << combo1_->itemText(i);
    if (casos != logica_.Combo1) {
        combo1_->clear();
        combo1_->addItems(logica_.Combo1);
    }
    combo1_->setCurrentIndex(logica_.FilaCombo);
    tab1_->setCurrentIndex(logica_.Pestana);
    lramal_->setText(logica_.LRamal);
    lramal_->setEnabled(logica_.Pestana == 0);
    lnodo_->setText(logica_.LNodo);
    lnodo_->setEnabled(logica_.Pestana == 1);
    aviso_->setText(logica_.AvisoConvergencia);
    aviso_->setVisible(!logica_.AvisoConvergencia.isEmpty());
    for (VistaGrid* v : {spread1_, spread2_}) {
        v->Refrescar();
        v->MostrarActiva();
    }
    if (logica_.Pestana == 2) DibujarPlano();
    mostrando_ = false;
}

void VentanaAnalisisACU::Accion(const std::function<void()>& accion) {
    Proteger(d_, accion);
    // Every event may have solved again: the plan follows.
    planoVigente_ = false;
    Refrescar();
}

void VentanaAnalisisACU::EnfocarGrid() { (logica_.Pestana == 0 ? spread1_ : spread2_)->setFocus(); }

void VentanaAnalisisACU::CerrarSiHaceFalta() {
    if (logica_.cerrar) QDialog::reject();
}

void VentanaAnalisisACU::showEvent(QShowEvent* e) {
    QDialog::showEvent(e);
    if (activada_) return;
    activada_ = true;
    // The messages of a network that cannot be solved come once the screen
    // is up, and close it.
    QTimer::singleShot(0, this, [this] {
        Accion([this] { logica_.PrimeraActivacion(); });
        CerrarSiHaceFalta();
    });
}

void VentanaAnalisisACU::BuscarRamal() {
    const BuscarPartida b = VentanaBuscarPartida::Preguntar(logica_.Spread1.FilaActiva(), this);
    Accion([&] { logica_.BuscarRamal(b.Numero, b.Aceptado); });
    spread1_->setFocus();
}

void VentanaAnalisisACU::EditarRamales() {
    logica_.AntesDeEditarRamales();
    bool salvado = false;
    Proteger(d_, [this, &salvado] { salvado = editarRamales(); });
    Accion([this, salvado] { logica_.DespuesDeEditarRamales(salvado); });
    EnfocarGrid();
    CerrarSiHaceFalta();
}
