#include "images/screens/VentanaEfectoImagenNivo.h"

#include "aqueduct/screens/ComunACU.h"
#include "widgets/NivoToolTip.h"
#include "widgets/Ventanas.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSlider>
#include <QVBoxLayout>

VentanaEfectoImagenNivo::VentanaEfectoImagenNivo(EfectoImagenNivo& logica, Dialogos& d,
                                                 const ConfiguracionTapiz& tapiz, QWidget* padre)
    : QDialog(padre), logica_(logica), d_(d) {
    setObjectName(QStringLiteral("frmEfectoImagenNivo"));
    setWindowTitle(EfectoImagenNivo::Titulo());
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    tip_ = new NivoToolTip(this);
    auto* capa = new QVBoxLayout(this);
    auto* centro = new QHBoxLayout;
    auto* botones = new QVBoxLayout;
    struct Boton {
        const char* nombre;
        const char* texto;
        void (EfectoImagenNivo::*evento)();
    };
    const Boton efectos[] = {
        {"NivoButton1", "Bilateral Filtro", &EfectoImagenNivo::BilateralFiltro},
        {"NivoButton7", "Escala de Grises", &EfectoImagenNivo::EscalaGrises},
        {"NivoButton5", "Efectos RGB", &EfectoImagenNivo::EfectosRGB},
        {"NivoButton3", "Cartonize", &EfectoImagenNivo::Cartonize},
        {"NivoButton4", "Pencil Drawing", &EfectoImagenNivo::PencilDrawing},
        {"NivoButton9", "Film Noir", &EfectoImagenNivo::FilmNoir},
        {"NivoButton11", "Dithering", &EfectoImagenNivo::Dithering},
        {"NivoButton10", "Imagen en 3D", &EfectoImagenNivo::Imagen3D},
        {"NivoButton2", "Reestablece Imagen", &EfectoImagenNivo::ReestablecerImagen},
        {"NivoButton8", "Exportar la Imagen", &EfectoImagenNivo::ExportarImagen},
    };
    for (const Boton& b : efectos) {
        if (QLatin1String(b.nombre) == QLatin1String("NivoButton2")) botones->addSpacing(12);
        auto* w = BotonNivo(QString::fromLatin1(b.nombre), QString::fromUtf8(b.texto), this);
        botones->addWidget(w);
        connect(w, &QPushButton::clicked, this, [this, e = b.evento] { Accion(e); });
    }
    botones->addStretch();
    centro->addLayout(botones);
    picture1_ = new QLabel(this);
    picture1_->setObjectName(QStringLiteral("Picture1"));
    picture1_->setAlignment(Qt::AlignCenter);
    picture1_->setMinimumSize(360, 270);
    picture1_->setFrameShape(QFrame::StyledPanel);
    picture1_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    centro->addWidget(picture1_, 1);
    capa->addLayout(centro, 1);

    // The sliders, each with its reset button.
    struct Control {
        Deslizador s;
        const char* nombre;
        const char* boton;
        const char* texto;
    };
    const Control controles[] = {
        {Deslizador::Brillo, "HScrollBG", "ButtonRBG", "Brillo"},
        {Deslizador::Contraste, "HScrollCT", "ButtonRCT", "Contraste"},
        {Deslizador::Saturacion, "HScrollST", "ButtonRST", "Saturación"},
        {Deslizador::Afilado, "HScrollSH", "ButtonRSH", "Afilado"},
    };
    auto* rejilla = new QGridLayout;
    int fila = 0;
    for (const Control& c : controles) {
        auto* s = new QSlider(Qt::Horizontal, this);
        s->setObjectName(QString::fromLatin1(c.nombre));
        s->setRange(EfectoImagenNivo::Minimo(c.s), EfectoImagenNivo::Maximo(c.s));
        s->setValue(logica_.Valor(c.s));
        auto* valor = new QLabel(QString::number(logica_.Valor(c.s)), this);
        valor->setMinimumWidth(fontMetrics().horizontalAdvance(QStringLiteral("-100")) + 4);
        valor->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        auto* r = BotonNivo(QString::fromLatin1(c.boton), QString(), this, QStyle::SP_BrowserReload);
        rejilla->addWidget(new QLabel(QString::fromUtf8(c.texto), this), fila, 0);
        rejilla->addWidget(s, fila, 1);
        rejilla->addWidget(valor, fila, 2);
        rejilla->addWidget(r, fila, 3);
        sliders_[int(c.s)] = s;
        etiquetas_[int(c.s)] = valor;
        const Deslizador cual = c.s;
        // The picture follows the slider when it is let go (or moved by key).
        s->setTracking(false);
        connect(s, &QSlider::sliderMoved, valor, [valor](int v) { valor->setNum(v); });
        connect(s, &QSlider::valueChanged, this, [this, cual, valor](int v) {
            valor->setNum(v);
            Proteger(d_, [&] { logica_.MoverDeslizador(cual, v); });
            MostrarVista();
        });
        connect(r, &QPushButton::clicked, this, [this, cual] {
            Proteger(d_, [&] { logica_.ReestablecerDeslizador(cual); });
            MostrarDeslizadores();
            MostrarVista();
        });
        ++fila;
    }
    rejilla->setColumnStretch(1, 1);
    capa->addLayout(rejilla);

    auto* pie = new QHBoxLayout;
    pie->addStretch();
    auto* fijar = BotonNivo(QStringLiteral("Command2"), QStringLiteral("Fijar el Efecto"), this,
                            QStyle::SP_DialogApplyButton);
    auto* cancelar = BotonNivo(QStringLiteral("Button2"), QStringLiteral(" Cancelar "), this,
                               QStyle::SP_DialogCancelButton);
    pie->addWidget(fijar);
    pie->addWidget(cancelar);
    capa->addLayout(pie);
    connect(fijar, &QPushButton::clicked, this, &QDialog::accept);
    connect(cancelar, &QPushButton::clicked, this, &QDialog::reject);
    InstalarAyudas(this, tip_, tapiz, EfectoImagenNivo::Ayudas());
    DimensionarVentana(this, 70, 80);
    MostrarVista();
}

void VentanaEfectoImagenNivo::Accion(void (EfectoImagenNivo::*evento)()) {
    // The window is not repainted half-way: updates wait for the result.
    setUpdatesEnabled(false);
    Proteger(d_, [&] { (logica_.*evento)(); });
    MostrarDeslizadores();
    setUpdatesEnabled(true);
    MostrarVista();
}

void VentanaEfectoImagenNivo::MostrarDeslizadores() {
    for (int i = 0; i < 4; ++i) {
        const QSignalBlocker quieto(sliders_[i]);
        sliders_[i]->setValue(logica_.Valor(Deslizador(i)));
        etiquetas_[i]->setNum(logica_.Valor(Deslizador(i)));
    }
}

void VentanaEfectoImagenNivo::MostrarVista() {
    const QImage& v = logica_.Vista();
    if (v.isNull()) return;
    const QSize caja = picture1_->contentsRect().size();
    picture1_->setPixmap(QPixmap::fromImage(v.scaled(caja, Qt::KeepAspectRatio, Qt::SmoothTransformation)));
}

void VentanaEfectoImagenNivo::resizeEvent(QResizeEvent* e) {
    QDialog::resizeEvent(e);
    MostrarVista();
}
