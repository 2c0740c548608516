#include "shell/screens/VentanaMsgBox.h"

#include "shell/CajaMensajes.h"

#include <QApplication>
#include <QCloseEvent>
#include <QFontMetrics>
#include <QFrame>
#include <QLabel>
#include <QPainter>
#include <QPainterPath>
#include <QPushButton>
#include <QStyle>

namespace {

// Layout of the box in twips.
constexpr int IzquierdaEtiqueta = 1200;
constexpr int ArribaEncabezado = 240;
constexpr int AnchoBoton = 1250, AltoBoton = 420, HuecoBoton = 180;

int Px(int twips) { return (twips + TwipsPorPixel / 2) / TwipsPorPixel; }
int Tw(int px) { return px * TwipsPorPixel; }

QFont Letra(int puntos, bool negrita = false) {
    QFont f = QApplication::font();
    f.setPointSize(puntos);
    f.setBold(negrita);
    return f;
}

}  // namespace

QPixmap IconoMensaje(int icono, int lado) {
    QStyle::StandardPixmap sp = QStyle::SP_MessageBoxInformation;
    switch (icono) {
    case 1: sp = QStyle::SP_MessageBoxQuestion; break;
    case 2: sp = QStyle::SP_MessageBoxWarning; break;
    case 3: sp = QStyle::SP_MessageBoxCritical; break;
    case 4: return IconoPrograma().pixmap(lado, lado);
    default: break;
    }
    return QApplication::style()->standardIcon(sp).pixmap(lado, lado);
}

QIcon IconoPrograma() {
    // A drop of water over a pipe: drawn, so it needs no file.
    QPixmap pm(64, 64);
    pm.fill(Qt::transparent);
    QPainter p(&pm);
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(70, 90, 110));
    p.drawRoundedRect(4, 46, 56, 12, 4, 4);
    QPainterPath gota;
    gota.moveTo(32, 4);
    gota.cubicTo(42, 18, 50, 26, 50, 34);
    gota.arcTo(14, 16, 36, 30, 0, -180);
    gota.cubicTo(14, 26, 22, 18, 32, 4);
    QLinearGradient g(14, 4, 50, 46);
    g.setColorAt(0, QColor(120, 200, 255));
    g.setColorAt(1, QColor(20, 90, 200));
    p.setBrush(g);
    p.drawPath(gota);
    return QIcon(pm);
}

VentanaMsgBox::VentanaMsgBox(const QString& texto, const QString& encabezado, const QString& titulo, int botones,
                             int defecto, int icono, const QImage& imagen, QWidget* padre)
    : QDialog(padre), botones_(botones < 0 || botones > 2 ? 0 : botones) {
    setObjectName(QStringLiteral("frmMsgBox"));
    setModal(true);
    setWindowTitle(TituloMensaje(titulo));
    Qt::WindowFlags f = Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint;
    if (!SinCerrar(botones_)) f |= Qt::WindowCloseButtonHint;
    setWindowFlags(f);

    panel_ = new QFrame(this);
    panel_->setObjectName(QStringLiteral("Panel1"));
    panel_->setFrameShape(QFrame::NoFrame);
    panel_->setAutoFillBackground(true);
    QPalette pal = panel_->palette();
    pal.setColor(QPalette::Window, pal.color(QPalette::Base));
    panel_->setPalette(pal);

    imagen_ = new QLabel(this);
    imagen_->setObjectName(QStringLiteral("Image1"));
    imagen_->setPixmap(icono == 5 && !imagen.isNull() ? QPixmap::fromImage(imagen).scaled(48, 48, Qt::KeepAspectRatio,
                                                                                           Qt::SmoothTransformation)
                                                      : IconoMensaje(icono));
    encabezado_ = new QLabel(this);
    encabezado_->setObjectName(QStringLiteral("Label1"));
    encabezado_->setFont(Letra(14, true));
    texto_ = new QLabel(this);
    texto_->setObjectName(QStringLiteral("Label2"));
    texto_->setFont(Letra(10));
    texto_->setTextFormat(Qt::PlainText);
    texto_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    texto_->setTextInteractionFlags(Qt::TextSelectableByMouse);

    const QList<BotonMensaje> lista = BotonesDeMensaje(botones_);
    for (int i = 0; i < 3; ++i) {
        boton_[i] = new QPushButton(this);
        boton_[i]->setObjectName(QStringLiteral("Button%1").arg(i + 1));
        boton_[i]->setVisible(i < lista.size());
        boton_[i]->setAutoDefault(true);
        if (i < lista.size()) {
            boton_[i]->setText(lista[i].texto);
            const int r = lista[i].resultado;
            connect(boton_[i], &QPushButton::clicked, this, [this, r] { Terminar(r); });
        }
    }
    defecto_ = ::BotonPorDefecto(botones_, defecto);
    boton_[defecto_]->setDefault(true);
    Disponer(texto, encabezado);
}

void VentanaMsgBox::Disponer(const QString& texto, const QString& encabezado) {
    encabezado_->setText(encabezado);
    texto_->setText(texto);
    const QFontMetrics mc(encabezado_->font()), mt(texto_->font());
    const int altoEncabezado = Tw(mc.height() + 4);
    const int arribaEtiqueta = ArribaEncabezado + altoEncabezado + 120;
    auto medir = [&](int anchoMaximo) {
        QRect r;
        if (anchoMaximo <= 0)
            r = mt.boundingRect(QRect(0, 0, 100000, 100000), Qt::AlignLeft | Qt::AlignTop, texto);
        else
            r = mt.boundingRect(QRect(0, 0, Px(anchoMaximo), 100000), Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap,
                                texto);
        // The head line is set over the body and must fit as well.
        const int ancho = std::max(Tw(r.width()), anchoMaximo > 0 ? 0 : Tw(mc.horizontalAdvance(encabezado)));
        return std::make_pair(ancho, Tw(r.height()));
    };
    const MedidasMensaje m = MedirMensaje(medir, IzquierdaEtiqueta, arribaEtiqueta, botones_);
    texto_->setWordWrap(m.ajustado);

    imagen_->setGeometry(Px(240), Px(ArribaEncabezado + 60), 48, 48);
    encabezado_->setGeometry(Px(IzquierdaEtiqueta), Px(ArribaEncabezado), Px(m.anchoEtiqueta), Px(altoEncabezado));
    texto_->setGeometry(Px(IzquierdaEtiqueta), Px(arribaEtiqueta), Px(m.anchoEtiqueta), Px(m.altoEtiqueta));
    panel_->setGeometry(0, 0, Px(m.anchoVentana - 60), Px(arribaEtiqueta + m.altoEtiqueta));

    // The window's height counts its title bar, as the outer size did.
    const int alto = m.altoVentana - 450;
    const int arribaBotones = alto - AltoBoton - 300;
    const int n = BotonesDeMensaje(botones_).size();
    if (n == 1) {
        boton_[0]->setGeometry(Px((m.anchoVentana - AnchoBoton) / 2), Px(arribaBotones), Px(AnchoBoton), Px(AltoBoton));
    } else {
        int x = m.anchoVentana - n * (AnchoBoton + HuecoBoton);
        for (int i = 0; i < n; ++i, x += AnchoBoton + HuecoBoton)
            boton_[i]->setGeometry(Px(x), Px(arribaBotones), Px(AnchoBoton), Px(AltoBoton));
    }
    setFixedSize(Px(m.anchoVentana), Px(alto));
}

int VentanaMsgBox::MostrarMensaje(const QString& texto, const QString& encabezado, const QString& titulo, int botones,
                                  int defecto, int icono, const QImage& imagen, QWidget* padre) {
    if (!padre) padre = QApplication::activeWindow();
    VentanaMsgBox caja(texto, encabezado, titulo, botones, defecto, icono, imagen, padre);
    caja.exec();
    return caja.Cerrado();
}

void VentanaMsgBox::Terminar(int resultado) {
    cerrado_ = resultado;
    terminado_ = true;
    done(QDialog::Accepted);
}

void VentanaMsgBox::reject() {
    if (const auto r = ResultadoEscape(botones_)) Terminar(*r);
}

void VentanaMsgBox::closeEvent(QCloseEvent* e) {
    if (terminado_) {
        QDialog::closeEvent(e);
        return;
    }
    const auto r = ResultadoEscape(botones_);
    if (!r) {
        e->ignore();  // a Yes/No question must be answered
        return;
    }
    cerrado_ = *r;
    terminado_ = true;
    QDialog::closeEvent(e);
}

void VentanaMsgBox::showEvent(QShowEvent* e) {
    QDialog::showEvent(e);
    if (!enfocado_) {
        enfocado_ = true;
        boton_[defecto_]->setFocus();
    }
}

void VentanaMsgBox::resizeEvent(QResizeEvent* e) {
    QDialog::resizeEvent(e);
    const int ancho = width() - Px(60);
    panel_->resize(ancho, panel_->height());
    texto_->resize(std::max(10, ancho - texto_->x()), texto_->height());
}
