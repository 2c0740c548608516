#include "entry/screens/PanelFilasRamal.h"

#include "entry/BuscarPartida.h"
#include "entry/screens/VentanaBuscarPartida.h"
#include "reports/screens/VentanaImpreGeneral.h"
#include "shell/Sesion.h"
#include "widgets/NivoToolTip.h"
#include "widgets/Ventanas.h"
#include "widgets/VistaGrid.h"
#include "widgets/VistaPreviaFoto.h"

#include <QDialog>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QPainter>
#include <QPushButton>
#include <QScrollBar>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

constexpr int AltoFilaImagen = 72;
constexpr int LadoIconoRapido = 48;

// An arrow up or down, doubled with a bar for "to the first/last position".
QIcon IconoFlecha(bool arriba, bool tope) {
    QPixmap px(22, 22);
    px.fill(Qt::transparent);
    QPainter p(&px);
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(30, 60, 140));
    auto triangulo = [&](int y) {
        const int punta = arriba ? y : y + 7, base = arriba ? y + 7 : y;
        const QPointF t[3] = {QPointF(11, punta), QPointF(3, base), QPointF(19, base)};
        p.drawPolygon(t, 3);
    };
    triangulo(tope ? 7 : 7);
    if (tope) {
        triangulo(arriba ? 13 : 1);
        p.drawRect(QRect(3, arriba ? 2 : 18, 16, 2));
    }
    return QIcon(px);
}

QLabel* Recuadro(QWidget* padre, const QString& nombre) {
    auto* l = new QLabel(padre);
    l->setObjectName(nombre);
    l->setFrameShape(QFrame::Panel);
    l->setFrameShadow(QFrame::Sunken);
    l->setMinimumWidth(90);
    l->setAlignment(Qt::AlignCenter);
    return l;
}

}  // namespace

PanelFilasRamal::PanelFilasRamal(const AspectoFilas& aspecto, LogicaFilas logica, Sesion& s, Dialogos& d,
                                 std::function<void()> refrescarEditor, QWidget* padre)
    : QWidget(padre), logica_(std::move(logica)), s_(s), d_(d), refrescarEditor_(std::move(refrescarEditor)) {
    menuBaseDatos_ = aspecto.menuBaseDatos;
    menuEliminar_ = aspecto.menuEliminar;
    tip_ = new NivoToolTip(this);
    auto* capa = new QVBoxLayout(this);
    capa->addWidget(TituloPantalla(aspecto.titulo, this));
    auto* centro = new QHBoxLayout;
    centro->addWidget(CrearRamales());
    centro->addWidget(CrearFilas(aspecto), 1);
    capa->addLayout(centro, 1);
    capa->addWidget(CrearRapidos(aspecto));
    capa->addWidget(CrearBotones(aspecto));

    vistaPrevia_ = new VistaPreviaFoto(spread2_, padre ? padre : this,
                                       [this](int fila) { return logica_.filas->ImagenFila(fila); });

    Mostrar();
    ConfigurarToolTips(this, tip_, s_.Tapiz);
}

PanelFilasRamal::~PanelFilasRamal() {
    spread1_->MostrarGrid(nullptr);
    spread2_->MostrarGrid(nullptr);
}

QWidget* PanelFilasRamal::CrearRamales() {
    spread1_ = new VistaGrid(this);
    spread1_->setObjectName(QStringLiteral("Spread1"));
    spread1_->MostrarGrid(logica_.spread1);
    // The count typed, Enter stays on its branch, whose rows are filled next.
    spread1_->QuedarseConEnter();
    spread1_->horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    spread1_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    AjustarRamales();
    const auto editar = [this](int fila, int columna, const QString& texto) {
        Accion([&] { logica_.editarRamales(fila, columna, texto); });
    };
    spread1_->AlEditar(editar);
    // A text the cell refused goes to the logic too, which says why.
    spread1_->Modelo().alRechazar = editar;
    connect(spread1_->selectionModel(), &QItemSelectionModel::currentChanged, this, [this](const QModelIndex& i) {
        if (mostrando_ || !i.isValid() || i.row() + 1 == s_.RamalActual) return;
        Accion([&] { logica_.filas->CambiarRamal(i.row() + 1); });
    });
    return spread1_;
}

// The branch grid as narrow as its columns, its rows' numbers and a scroll
// bar; known once the view has measured its header.
void PanelFilasRamal::AjustarRamales() {
    const int ancho = spread1_->horizontalHeader()->length() + spread1_->verticalHeader()->width() +
                      spread1_->verticalScrollBar()->sizeHint().width() + 2 * spread1_->frameWidth() + 2;
    spread1_->setFixedWidth(ancho);
}

void PanelFilasRamal::showEvent(QShowEvent* e) {
    QWidget::showEvent(e);
    AjustarRamales();
}

QWidget* PanelFilasRamal::CrearFilas(const AspectoFilas&) {
    auto* caja = new QWidget(this);
    auto* capa = new QGridLayout(caja);
    capa->setContentsMargins(0, 0, 0, 0);
    auto* cabeza = new QHBoxLayout;
    ramal_ = new QLabel(caja);
    ramal_->setObjectName(QStringLiteral("LabelRamal"));
    QFont f = ramal_->font();
    f.setBold(true);
    ramal_->setFont(f);
    nodoI_ = Recuadro(caja, QStringLiteral("NodoI"));
    nodoJ_ = Recuadro(caja, QStringLiteral("NodoJ"));
    cabeza->addWidget(ramal_);
    cabeza->addSpacing(16);
    cabeza->addWidget(new QLabel(QStringLiteral("( I )"), caja));
    cabeza->addWidget(nodoI_);
    cabeza->addWidget(new QLabel(QStringLiteral("( J )"), caja));
    cabeza->addWidget(nodoJ_);
    cabeza->addStretch();
    capa->addLayout(cabeza, 0, 0);

    spread2_ = new VistaGrid(caja);
    spread2_->setObjectName(QStringLiteral("Spread2"));
    spread2_->MostrarGrid(logica_.spread2);
    spread2_->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    spread2_->verticalHeader()->setDefaultSectionSize(AltoFilaImagen);
    spread2_->horizontalHeader()->setSectionResizeMode(FDescripcion - 1, QHeaderView::Stretch);
    spread2_->setContextMenuPolicy(Qt::CustomContextMenu);
    const auto editar = [this](int fila, int columna, const QString& texto) {
        Accion([&] { logica_.editarFilas(fila, columna, texto); });
    };
    spread2_->AlEditar(editar);
    spread2_->Modelo().alRechazar = editar;
    connect(spread2_, &QWidget::customContextMenuRequested, this, &PanelFilasRamal::MenuFilas);
    capa->addWidget(spread2_, 1, 0);

    // The four moves of the active row beside the grid.
    auto* flechas = new QVBoxLayout;
    const struct {
        const char* nombre;
        QString tip;
        bool arriba, tope;
        void (FilasRamal::*mover)();
    } movimientos[] = {{"MoverPrimera", TipsFlechas::Primera(), true, true, &FilasRamal::MoverPrimera},
                       {"MoverArriba", TipsFlechas::Arriba(), true, false, &FilasRamal::MoverArriba},
                       {"MoverAbajo", TipsFlechas::Abajo(), false, false, &FilasRamal::MoverAbajo},
                       {"MoverUltima", TipsFlechas::Ultima(), false, true, &FilasRamal::MoverUltima}};
    flechas->addStretch();
    for (const auto& m : movimientos) {
        auto* b = new QToolButton(caja);
        b->setObjectName(QString::fromLatin1(m.nombre));
        b->setIcon(IconoFlecha(m.arriba, m.tope));
        b->setIconSize(QSize(22, 22));
        b->setToolTip(m.tip);
        const auto mover = m.mover;
        connect(b, &QToolButton::clicked, this, [this, mover] { Pulsar([&] { (logica_.filas->*mover)(); }); });
        flechas->addWidget(b);
    }
    flechas->addStretch();
    capa->addLayout(flechas, 1, 1);
    return caja;
}

QWidget* PanelFilasRamal::CrearRapidos(const AspectoFilas& a) {
    auto* caja = new QWidget(this);
    auto* capa = new QGridLayout(caja);
    capa->setContentsMargins(0, 0, 0, 0);
    capa->setSpacing(3);
    const int porFila = a.rapidos.size() > 8 ? 8 : int(a.rapidos.size());
    int i = 0;
    for (const auto& r : a.rapidos) {
        auto* b = new QToolButton(caja);
        b->setObjectName(QStringLiteral("Rapido%1").arg(r.clave));
        b->setText(r.nombre);
        b->setToolTip(r.tip);
        const QImage foto = logica_.filas->ImagenClave(r.clave);
        if (!foto.isNull()) {
            b->setIcon(QPixmap::fromImage(
                foto.scaled(LadoIconoRapido, LadoIconoRapido, Qt::KeepAspectRatio, Qt::SmoothTransformation)));
            b->setIconSize(QSize(LadoIconoRapido, LadoIconoRapido));
            b->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
        }
        b->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
        const int clave = r.clave;
        connect(b, &QToolButton::clicked, this, [this, clave] { Pulsar([&] { logica_.botonRapido(clave); }); });
        capa->addWidget(b, i / porFila, i % porFila);
        rapidos_.push_back({clave, b});
        ++i;
    }
    return caja;
}

QWidget* PanelFilasRamal::CrearBotones(const AspectoFilas& a) {
    auto* caja = new QWidget(this);
    auto* capa = new QHBoxLayout(caja);
    capa->setContentsMargins(0, 0, 0, 0);
    auto boton = [&](const char* nombre, const AspectoFilas::Boton& b) {
        auto* w = BotonNivo(QString::fromLatin1(nombre), b.texto, caja, std::nullopt, b.tip);
        capa->addWidget(w);
        return w;
    };
    connect(boton("Eliminar", a.eliminar), &QPushButton::clicked, this, [this] { Pulsar(logica_.eliminar); });
    connect(boton("EliminarT", a.eliminarTodas), &QPushButton::clicked, this,
            [this] { Pulsar(logica_.eliminarTodas); });
    auto* base = boton("BaseDatos", a.baseDatos);
    base->setEnabled(FilasRamal::BaseDeDatosDisponible && logica_.baseDatos);
    connect(base, &QPushButton::clicked, this, [this] { Pulsar(logica_.baseDatos); });
    connect(boton("Imagen", a.imagen), &QPushButton::clicked, this, [this] { Pulsar(logica_.actualizarImagenes); });
    // The report prints the project's file as last saved.
    connect(boton("Reporte", a.reporte), &QPushButton::clicked, this, [this] {
        TerminarEdicion();
        VentanaImpreGeneral impre(logica_.origenReporte, s_, d_, this);
        impre.exec();
    });
    connect(boton("BuscarRamal", a.buscar), &QPushButton::clicked, this, &PanelFilasRamal::BuscarRamal);
    capa->addStretch();
    // "Baja" and "Sube" repeat while held: the first move at once, the next
    // after 250 ms, the rest every 50 ms.
    for (const auto& [nombre, b, abajo] : {std::tuple{"Baja", a.baja, true}, std::tuple{"Sube", a.sube, false}}) {
        auto* w = boton(nombre, b);
        w->setAutoRepeat(true);
        w->setAutoRepeatDelay(250);
        w->setAutoRepeatInterval(50);
        const bool baja = abajo;
        connect(w, &QPushButton::clicked, this, [this, baja] {
            Pulsar([&] { baja ? logica_.filas->Baja() : logica_.filas->Sube(); });
        });
    }
    capa->addStretch();
    retorno_ = BotonRetorno(caja);
    retorno_->setToolTip(TipsFlechas::Retorno());
    capa->addWidget(retorno_);
    return caja;
}

QWidget* PanelFilasRamal::BotonRapido(int clave) const {
    for (const auto& [k, w] : rapidos_)
        if (k == clave) return w;
    return nullptr;
}

void PanelFilasRamal::TerminarEdicion() {
    spread1_->TerminarEdicion();
    spread2_->TerminarEdicion();
}

void PanelFilasRamal::Accion(const std::function<void()>& f) {
    vistaPrevia_->Ocultar();
    SinFallaDeCalculo(d_, f);
    Mostrar();
    if (refrescarEditor_) refrescarEditor_();
}

void PanelFilasRamal::Pulsar(const std::function<void()>& f) {
    TerminarEdicion();
    Accion(f);
}

void PanelFilasRamal::Mostrar() {
    mostrando_ = true;
    spread1_->Refrescar();
    spread1_->MostrarActiva();
    spread2_->Refrescar();
    spread2_->MostrarActiva();
    ramal_->setText(logica_.filas->EtiquetaRamal());
    nodoI_->setText(logica_.filas->NodoI());
    nodoJ_->setText(logica_.filas->NodoJ());
    mostrando_ = false;
}

void PanelFilasRamal::BuscarRamal() {
    TerminarEdicion();
    const BuscarPartida b = VentanaBuscarPartida::Preguntar(s_.RamalActual, this);
    if (const auto fila = FilaBuscada(b, s_.RamalActual, logica_.spread1->Filas()))
        Accion([&] { logica_.filas->CambiarRamal(*fila); });
}

void PanelFilasRamal::MenuFilas(const QPoint& donde) {
    QMenu menu(this);
    QAction* base = menu.addAction(menuBaseDatos_);
    base->setEnabled(FilasRamal::BaseDeDatosDisponible && logica_.baseDatos);
    connect(base, &QAction::triggered, this, [this] { Pulsar(logica_.baseDatos); });
    // The second entry deletes the active row, whatever it says.
    connect(menu.addAction(menuEliminar_), &QAction::triggered, this, [this] { Pulsar(logica_.eliminar); });
    menu.exec(spread2_->viewport()->mapToGlobal(donde));
}

void MontarVentanaFilas(QDialog* ventana, PanelFilasRamal* panel, const QString& caption) {
    ventana->setWindowTitle(caption);
    ventana->setWindowFlag(Qt::WindowMaximizeButtonHint, true);
    auto* capa = new QVBoxLayout(ventana);
    capa->addWidget(panel);
    QObject::connect(panel->Retorno(), &QPushButton::clicked, ventana, &QDialog::reject);
    DimensionarVentana(ventana, 70, 80);
}
