#include "images/screens/VentanaVisualizarImagen.h"

#include "base/Nivo.h"
#include "images/screens/MarcoImagen.h"
#include "shell/Sesion.h"
#include "widgets/NivoToolTip.h"
#include "widgets/Ventanas.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>
#include <cmath>

// PicMain with LM over it: the picture at the viewer's scale and the
// selection's marching outline; the mouse draws the selection.
class LienzoFoto : public QWidget {
public:
    LienzoFoto(VisualizarImagen& v, QWidget* padre) : QWidget(padre), v_(v) {
        setObjectName(QStringLiteral("PicMain"));
        setCursor(Qt::CrossCursor);
    }
    void Avanzar() {
        fase_ = (fase_ + 1) % 8;
        if (v_.HaySeleccion()) update(v_.SeleccionEnVista().adjusted(-2, -2, 2, 2));
    }
    std::function<void()> alSeleccionar;

protected:
    void paintEvent(QPaintEvent* e) override {
        QPainter p(this);
        const double escala = v_.Escala();
        const QRect r = e->rect() & rect();
        // Only the exposed part is scaled from the picture.
        const QRectF fuente(QPointF(r.topLeft()) / escala, QSizeF(r.size()) / escala);
        p.setRenderHint(QPainter::SmoothPixmapTransform, escala < 1.0);
        p.drawImage(QRectF(r), v_.Imagen(), fuente);
        if (!v_.HaySeleccion()) return;
        const QRect s = v_.SeleccionEnVista().adjusted(0, 0, -1, -1);
        p.setPen(QPen(Qt::white, 1));
        p.drawRect(s);
        QPen trazo(Qt::black, 1, Qt::DashLine);
        trazo.setDashOffset(fase_);
        p.setPen(trazo);
        p.drawRect(s);
    }
    void mousePressEvent(QMouseEvent* e) override {
        if (e->button() != Qt::LeftButton) return;
        v_.EmpezarSeleccion(e->position().toPoint());
        update();
    }
    void mouseMoveEvent(QMouseEvent* e) override {
        if (!(e->buttons() & Qt::LeftButton)) return;
        v_.MoverSeleccion(e->position().toPoint());
        update();
    }
    void mouseReleaseEvent(QMouseEvent* e) override {
        if (e->button() == Qt::LeftButton && alSeleccionar) alSeleccionar();
    }

private:
    VisualizarImagen& v_;
    int fase_ = 0;
};

VentanaVisualizarImagen::VentanaVisualizarImagen(Sesion& s, Dialogos& d, const QImage& imagen, QWidget* padre)
    : QDialog(padre), logica_(d, imagen) {
    setObjectName(QStringLiteral("frmVisualizarImagen"));
    setWindowTitle(VisualizarImagen::Titulo());
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    tip_ = new NivoToolTip(this);

    container_ = new QScrollArea(this);
    container_->setObjectName(QStringLiteral("Container"));
    container_->setAlignment(Qt::AlignCenter);
    container_->setBackgroundRole(QPalette::Dark);
    container_->horizontalScrollBar()->setObjectName(QStringLiteral("HScroll1"));
    container_->verticalScrollBar()->setObjectName(QStringLiteral("VScroll1"));
    picMain_ = new LienzoFoto(logica_, container_);
    container_->setWidget(picMain_);
    container_->setWidgetResizable(false);

    picView_ = new MarcoImagen(this);
    picView_->setObjectName(QStringLiteral("PicView"));
    picView_->setFixedSize(200, 150);
    picView_->marco = [this] {
        if (logica_.Ajustar()) return QRect();
        return logica_.MarcoVista(picView_->size(), QPoint(container_->horizontalScrollBar()->value(),
                                                           container_->verticalScrollBar()->value()));
    };

    chkFit_ = new QCheckBox(QStringLiteral("Ajustar a la Ventana"), this);
    chkFit_->setObjectName(QStringLiteral("ChkFit"));
    const auto zoom = [this](const char* nombre, const QString& texto, const QString& tip) {
        auto* b = BotonNivo(QString::fromLatin1(nombre), texto, this, std::nullopt, tip);
        // Held down, the button repeats: the zoom's timer.
        b->setAutoRepeat(true);
        b->setAutoRepeatDelay(300);
        b->setAutoRepeatInterval(60);
        return b;
    };
    auto* zoomInicio = zoom("ButtonZ1", QStringLiteral("1:1"), VisualizarImagen::TipZoomReestablece());
    zoomInicio->setAutoRepeat(false);
    auto* zoomMas = zoom("ButtonZ2", QStringLiteral("+"), VisualizarImagen::TipZoomAumenta());
    auto* zoomMenos = zoom("ButtonZ3", QStringLiteral("−"), VisualizarImagen::TipZoomDisminuye());
    lblZoom_ = new QLabel(this);
    lblZoom_->setObjectName(QStringLiteral("lblZoom"));
    lblWidth_ = new QLabel(this);
    lblWidth_->setObjectName(QStringLiteral("lblWidth"));
    lblHeight_ = new QLabel(this);
    lblHeight_->setObjectName(QStringLiteral("lblHeight"));

    auto* pegar = BotonNivo(QStringLiteral("NivoButton1"), QStringLiteral("Pegar"), this, QStyle::SP_DialogOpenButton,
                            VisualizarImagen::TipPegar());
    auto* eliminar = BotonNivo(QStringLiteral("NivoButton2"), QStringLiteral("Eliminar Área"), this,
                               QStyle::SP_DialogDiscardButton, VisualizarImagen::TipEliminar());
    auto* capturar = BotonNivo(QStringLiteral("Command2"), QStringLiteral("Capturar"), this,
                               QStyle::SP_DialogApplyButton, VisualizarImagen::TipCapturar());
    auto* cancelar = BotonNivo(QStringLiteral("Command1"), QStringLiteral("Cancelar"), this,
                               QStyle::SP_DialogCancelButton, VisualizarImagen::TipCancelar());

    auto* lado = new QVBoxLayout;
    lado->addWidget(picView_);
    lado->addWidget(chkFit_);
    auto* zooms = new QHBoxLayout;
    for (QPushButton* b : {zoomInicio, zoomMas, zoomMenos}) zooms->addWidget(b);
    lado->addLayout(zooms);
    lado->addWidget(lblZoom_);
    lado->addWidget(lblWidth_);
    lado->addWidget(lblHeight_);
    lado->addSpacing(12);
    lado->addWidget(pegar);
    lado->addWidget(eliminar);
    lado->addStretch();
    lado->addWidget(capturar);
    lado->addWidget(cancelar);
    auto* capa = new QHBoxLayout(this);
    capa->addWidget(container_, 1);
    capa->addLayout(lado);

    const auto cambiarZoom = [this](QPushButton* b, void (VisualizarImagen::*f)()) {
        connect(b, &QPushButton::clicked, this, [this, f] {
            (logica_.*f)();
            Redibujar();
        });
    };
    cambiarZoom(zoomInicio, &VisualizarImagen::RestablecerZoom);
    cambiarZoom(zoomMas, &VisualizarImagen::AumentarZoom);
    cambiarZoom(zoomMenos, &VisualizarImagen::DisminuirZoom);
    chkFit_->setChecked(logica_.Ajustar());
    connect(chkFit_, &QCheckBox::toggled, this, [this](bool si) {
        logica_.PonerAjustar(si);
        Redibujar();
    });
    for (QScrollBar* barra : {container_->horizontalScrollBar(), container_->verticalScrollBar()})
        connect(barra, &QScrollBar::valueChanged, picView_, qOverload<>(&QWidget::update));
    connect(picView_, &MarcoImagen::Arrastrado, this, [this](const QPoint& p) {
        if (logica_.Ajustar()) return;
        const QPoint desde = logica_.DesplazamientoPorVista(picView_->size(), p);
        container_->horizontalScrollBar()->setValue(desde.x());
        container_->verticalScrollBar()->setValue(desde.y());
    });
    connect(pegar, &QPushButton::clicked, this, [this] {
        if (logica_.Pegar()) Redibujar();
    });
    connect(eliminar, &QPushButton::clicked, this, [this] {
        if (logica_.Eliminar()) Redibujar();
    });
    connect(capturar, &QPushButton::clicked, this, [this] {
        if (logica_.Capturar()) accept();
    });
    connect(cancelar, &QPushButton::clicked, this, &QDialog::reject);
    timer1_.setInterval(120);
    connect(&timer1_, &QTimer::timeout, picMain_, &LienzoFoto::Avanzar);
    timer1_.start();

    ConfigurarToolTips(this, tip_, s.Tapiz);
    DimensionarVentana(this, 70, 75);
}

void VentanaVisualizarImagen::showEvent(QShowEvent* e) {
    QDialog::showEvent(e);
    Redibujar();
}

void VentanaVisualizarImagen::resizeEvent(QResizeEvent* e) {
    QDialog::resizeEvent(e);
    Redibujar();
}

void VentanaVisualizarImagen::Redibujar() {
    const bool ajustar = logica_.Ajustar();
    chkFit_->blockSignals(true);
    chkFit_->setChecked(ajustar);
    chkFit_->blockSignals(false);
    const Qt::ScrollBarPolicy barras = ajustar ? Qt::ScrollBarAlwaysOff : Qt::ScrollBarAsNeeded;
    container_->setHorizontalScrollBarPolicy(barras);
    container_->setVerticalScrollBarPolicy(barras);
    // The fitted scale is the container's without its scroll bars.
    logica_.PonerContenedor(container_->maximumViewportSize());
    picMain_->resize(logica_.TamanoEscalado());
    logica_.PonerContenedor(container_->viewport()->size());
    picMain_->update();
    const QString mascara = QStringLiteral("#,##0");
    lblZoom_->setText(QStringLiteral("Zoom: %1 %").arg(Formato(logica_.Escala() * 100.0, mascara)));
    lblWidth_->setText(QStringLiteral("Ancho: %1 px").arg(Formato(logica_.Imagen().width(), mascara)));
    lblHeight_->setText(QStringLiteral("Alto: %1 px").arg(Formato(logica_.Imagen().height(), mascara)));
    picView_->PonerImagen(logica_.Imagen());
}
