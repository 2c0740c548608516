#include "catalogue/screens/VentanaEditorCatalogo.h"

#include "shell/Sesion.h"
#include "widgets/NivoToolTip.h"
#include "widgets/Ventanas.h"

#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace {

constexpr int AnchoFoto = 260, AltoFoto = 200;

QLineEdit* Caja(QWidget* padre, const QString& nombre, int caracteres) {
    auto* c = new QLineEdit(padre);
    c->setObjectName(nombre);
    c->setMinimumWidth(c->fontMetrics().horizontalAdvance(QLatin1Char('0')) * caracteres + 12);
    return c;
}

}  // namespace

VentanaEditorCatalogo::VentanaEditorCatalogo(EditorCatalogo& logica, const TipoCatalogo& t, Sesion& s, Dialogos& d,
                                             int fila, QWidget* padre)
    : QDialog(padre), logica_(logica), d_(d) {
    setObjectName(t.automatico ? QStringLiteral("NewConexion") : QStringLiteral("NewPieza"));
    setWindowTitle(t.tituloEditor);
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    tip_ = new NivoToolTip(this);
    auto* contenido = new QVBoxLayout;
    auto* cuerpo = new QHBoxLayout;
    auto* datos = new QVBoxLayout;
    auto* forma = new QFormLayout;
    clave_ = Caja(this, QStringLiteral("Clave"), 8);
    clave_->setMaximumWidth(clave_->minimumWidth() + 20);
    nombre_ = Caja(this, QStringLiteral("Nombre"), 36);
    forma->addRow(QStringLiteral("Clave:"), clave_);
    forma->addRow(QStringLiteral("Nombre:"), nombre_);
    datos->addLayout(forma);
    datos->addWidget(CrearFiguras(t));
    datos->addStretch();
    cuerpo->addLayout(datos, 1);
    cuerpo->addWidget(CrearImagen());
    contenido->addLayout(cuerpo);

    barra_ = new QScrollBar(Qt::Horizontal, this);
    barra_->setObjectName(QStringLiteral("Registros"));
    barra_->setPageStep(1);
    posicion_ = new QLabel(this);
    posicion_->setObjectName(QStringLiteral("Posicion"));
    posicion_->setMinimumWidth(posicion_->fontMetrics().horizontalAdvance(QStringLiteral("Registro 00.000 de 00.000")));
    auto* desplazar = new QHBoxLayout;
    desplazar->addWidget(barra_, 1);
    desplazar->addWidget(posicion_);
    contenido->addLayout(desplazar);
    auto* pie = new QHBoxLayout;
    auto* crear = BotonNivo(QStringLiteral("Crear"), QStringLiteral("Crear"), this, QStyle::SP_FileIcon,
                            QStringLiteral("Crear nueva pieza sanitaria. "));
    auto* salvar = BotonNivo(QStringLiteral("Salvar"), QStringLiteral("Salvar"), this, QStyle::SP_DialogSaveButton,
                             QStringLiteral("Salvar las modificaciones realizadas. "));
    auto* retorno = BotonRetorno(this);
    retorno->setToolTip(QStringLiteral(" Retorno "));
    pie->addWidget(crear);
    pie->addWidget(salvar);
    pie->addStretch();
    pie->addWidget(retorno);
    contenido->addLayout(pie);
    PonerCentrado(this, contenido);

    connect(clave_, &QLineEdit::textEdited, this, [this](const QString& x) { logica_.CambiarClave(x); });
    connect(nombre_, &QLineEdit::textEdited, this, [this](const QString& x) { logica_.CambiarNombre(x); });
    for (int i = 0; i < int(figuras_.size()); ++i)
        connect(figuras_[size_t(i)], &QLineEdit::textEdited, this,
                [this, i](const QString& x) { logica_.CambiarFigura(i, x); });
    connect(barra_, &QScrollBar::valueChanged, this, [this](int v) { Accion([&] { logica_.Desplazar(v); }); });
    connect(crear, &QPushButton::clicked, this, [this] {
        Accion([this] { logica_.Crear(); });
        Enfocar();
    });
    connect(salvar, &QPushButton::clicked, this, [this] {
        Accion([this] { logica_.Salvar(); });
        Enfocar();
    });
    connect(retorno, &QPushButton::clicked, this, &VentanaEditorCatalogo::reject);

    Accion([&] { logica_.Cargar(fila); });
    ConfigurarToolTips(this, tip_, s.Tapiz);
}

QWidget* VentanaEditorCatalogo::CrearFiguras(const TipoCatalogo& t) {
    auto* caja = new QWidget(this);
    auto* capa = new QHBoxLayout(caja);
    capa->setContentsMargins(0, 0, 0, 0);
    auto figura = [&](QGridLayout* g, int fila, const QString& etiqueta) {
        auto* c = Caja(caja, QStringLiteral("Figura%1").arg(figuras_.size()), 8);
        c->setAlignment(Qt::AlignRight);
        g->addWidget(new QLabel(etiqueta, caja), fila, 0);
        g->addWidget(c, fila, 1);
        figuras_.push_back(c);
    };
    if (!t.automatico) {
        for (const QString& uso : {QStringLiteral("Piezas de Uso Privado"), QStringLiteral("Piezas de Uso Público")}) {
            auto* grupo = new QGroupBox(uso, caja);
            auto* g = new QGridLayout(grupo);
            figura(g, 0, QStringLiteral("Total"));
            figura(g, 1, QStringLiteral("Fria/Caliente"));
            capa->addWidget(grupo);
        }
    } else {
        auto* grupo = new QGroupBox(QStringLiteral("Longitud Equivalemte"), caja);
        auto* g = new QGridLayout(grupo);
        figura(g, 0, QStringLiteral("Longitud:"));
        automatico_ = new QLabel(TextoAutomaticoCatalogo(), grupo);
        automatico_->setObjectName(QStringLiteral("Automatico"));
        g->addWidget(automatico_, 0, 2);
        capa->addWidget(grupo);
    }
    capa->addStretch();
    return caja;
}

QWidget* VentanaEditorCatalogo::CrearImagen() {
    auto* caja = new QWidget(this);
    auto* capa = new QVBoxLayout(caja);
    capa->setContentsMargins(0, 0, 0, 0);
    foto_ = new QLabel(caja);
    foto_->setObjectName(QStringLiteral("Imagen"));
    foto_->setFixedSize(AnchoFoto, AltoFoto);
    foto_->setFrameShape(QFrame::Panel);
    foto_->setFrameShadow(QFrame::Sunken);
    foto_->setAlignment(Qt::AlignCenter);
    foto_->setStyleSheet(QStringLiteral("background: white;"));
    foto_->setCursor(Qt::PointingHandCursor);
    foto_->installEventFilter(this);
    capa->addWidget(foto_);
    const struct {
        const char* nombre;
        const char* texto;
        const char* tip;
        void (EditorCatalogo::*accion)();
    } botones[] = {
        {"AnexarImagen", "Anexar Imagen", "Anexar imagen a la pieza seleccionada. ", &EditorCatalogo::AnexarImagen},
        {"QuitarImagen", "Quitar Imagen", "Quitar la imagen de la pieza seleccionada. ", &EditorCatalogo::QuitarImagen},
        {"ExportarImagen", "Exportar la Imagen", "Exporta la imagen seleccionada. ", &EditorCatalogo::ExportarImagen},
    };
    for (const auto& b : botones) {
        auto* w = BotonNivo(QString::fromLatin1(b.nombre), QString::fromUtf8(b.texto), caja, std::nullopt,
                            QString::fromUtf8(b.tip));
        const auto accion = b.accion;
        connect(w, &QPushButton::clicked, this, [this, accion] { Accion([&] { (logica_.*accion)(); }); });
        capa->addWidget(w);
    }
    return caja;
}

bool VentanaEditorCatalogo::eventFilter(QObject* o, QEvent* e) {
    if (o == foto_ && e->type() == QEvent::MouseButtonRelease &&
        static_cast<QMouseEvent*>(e)->button() == Qt::LeftButton) {
        Accion([this] { logica_.AnexarImagen(); });
        return true;
    }
    return QDialog::eventFilter(o, e);
}

void VentanaEditorCatalogo::Accion(const std::function<void()>& f) {
    SinFallaDeCalculo(d_, f);
    Mostrar();
}

void VentanaEditorCatalogo::Mostrar() {
    const QSignalBlocker b(barra_);
    clave_->setText(logica_.TextoClave());
    nombre_->setText(logica_.TextoNombre());
    const bool habilitada = logica_.ClaveHabilitada();
    clave_->setEnabled(habilitada);
    nombre_->setEnabled(habilitada);
    for (int i = 0; i < int(figuras_.size()); ++i) {
        figuras_[size_t(i)]->setText(logica_.TextoFigura(i));
        figuras_[size_t(i)]->setVisible(!logica_.Automatico());
    }
    if (automatico_) automatico_->setVisible(logica_.Automatico());
    const QImage& img = logica_.Foto();
    if (img.isNull()) foto_->clear();
    else
        foto_->setPixmap(QPixmap::fromImage(
            img.scaled(foto_->size() - QSize(4, 4), Qt::KeepAspectRatio, Qt::SmoothTransformation)));
    barra_->setRange(std::min(1, logica_.Registros()), logica_.Registros());
    barra_->setValue(logica_.Registro());
    barra_->setEnabled(logica_.BarraHabilitada());
    posicion_->setText(logica_.Posicion());
}

void VentanaEditorCatalogo::Enfocar() {
    switch (const int f = logica_.FocoPedido()) {
    case EditorCatalogo::Ninguno: break;
    case EditorCatalogo::Clave: clave_->setFocus(); clave_->selectAll(); break;
    case EditorCatalogo::Nombre: nombre_->setFocus(); break;
    default:
        if (f >= 0 && f < int(figuras_.size())) figuras_[size_t(f)]->setFocus();
    }
}

void VentanaEditorCatalogo::reject() {
    bool cierra = true;
    SinFallaDeCalculo(d_, [this, &cierra] { cierra = logica_.Cerrar(); });
    if (cierra) QDialog::reject();
    else Mostrar();
}
