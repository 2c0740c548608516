#include "shell/screens/VentanaConfigurarPrograma.h"

#include "base/Dialogos.h"
#include "shell/Sesion.h"
#include "widgets/Colores.h"
#include "widgets/NivoToolTip.h"
#include "widgets/PanelTapiz.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QTabWidget>
#include <QVBoxLayout>

namespace {

// A label that shows a colour pair and reports a click.
class EtiquetaColor : public QLabel {
public:
    using QLabel::QLabel;
    std::function<void()> alClic;

protected:
    void mousePressEvent(QMouseEvent*) override {
        if (alClic) alClic();
    }
};

void PintarMuestra(QLabel* l, int fondo, int texto) {
    l->setStyleSheet(QStringLiteral("background: %1; color: %2; border: 1px solid #666; padding: 3px;")
                         .arg(ColorNivo(fondo).name(), ColorNivo(texto).name()));
}

QPushButton* Boton(const QString& nombre, const QString& texto, const QString& tip, QWidget* padre) {
    auto* b = new QPushButton(texto, padre);
    b->setObjectName(nombre);
    b->setToolTip(tip);
    return b;
}

}  // namespace

VentanaConfigurarPrograma::VentanaConfigurarPrograma(Sesion& s, Dialogos& d, QWidget* padre)
    : QDialog(padre), s_(s), d_(d), logica_(s) {
    setObjectName(QStringLiteral("ConfigurarPrograma"));
    setWindowTitle(QStringLiteral("Configuración"));
    tip_ = new NivoToolTip(this);
    auto* capa = new QVBoxLayout(this);
    tabs_ = new QTabWidget(this);
    tabs_->addTab(PaginaTapiz(), QStringLiteral("Tapiz del Menú Principal"));
    tabs_->addTab(PaginaTip(), QStringLiteral("Mensajes de los Botones"));
    capa->addWidget(tabs_);
    auto* pie = new QHBoxLayout;
    pie->addStretch();
    auto* aceptar = Boton(QStringLiteral("Command6"), QStringLiteral(" Aceptar "), QString(), this);
    auto* cancelar = Boton(QStringLiteral("Command5"), QStringLiteral(" Cancelar "), QString(), this);
    aceptar->setDefault(true);
    pie->addWidget(aceptar);
    pie->addWidget(cancelar);
    capa->addLayout(pie);
    connect(aceptar, &QPushButton::clicked, this, [this] {
        d_.CursorOcupado(true);
        const bool escrito = logica_.Aceptar(s_, d_);
        d_.CursorOcupado(false);
        if (escrito) accept();
    });
    connect(cancelar, &QPushButton::clicked, this, &QDialog::reject);
    Mostrar();
    ConfigurarToolTips(this, tip_, s_.Tapiz);
}

QGroupBox* VentanaConfigurarPrograma::GrupoOpciones(const QString& titulo, std::array<const char*, 3> nombres,
                                                    std::array<const char*, 3> textos, QRadioButton* (&botones)[3],
                                                    void (ConfigurarPrograma::*poner)(int)) {
    auto* grupo = new QGroupBox(titulo);
    auto* capa = new QVBoxLayout(grupo);
    for (int i = 0; i < 3; ++i) {
        botones[i] = new QRadioButton(QString::fromUtf8(textos[size_t(i)]), grupo);
        botones[i]->setObjectName(QString::fromLatin1(nombres[size_t(i)]));
        capa->addWidget(botones[i]);
        connect(botones[i], &QRadioButton::toggled, this, [this, i, poner](bool si) {
            if (si && !mostrando_) {
                (logica_.*poner)(i);
                Mostrar();
            }
        });
    }
    return grupo;
}

QWidget* VentanaConfigurarPrograma::PaginaTapiz() {
    auto* pagina = new QWidget(this);
    auto* capa = new QGridLayout(pagina);
    image1_ = new PanelTapiz(pagina);
    image1_->setObjectName(QStringLiteral("Image1"));
    image1_->setFixedSize(384, 240);
    capa->addWidget(image1_, 0, 0, 3, 1);

    auto* abrir = Boton(QStringLiteral("Abrir"), QStringLiteral("Abrir"), QStringLiteral("Capturar una imágen personalizada. "),
                        pagina);
    ruta_ = new QLabel(pagina);
    ruta_->setObjectName(QStringLiteral("RutaTapiz"));
    ruta_->setWordWrap(true);
    ruta_->setMinimumWidth(260);
    auto* cajaArchivo = new QVBoxLayout;
    cajaArchivo->addWidget(abrir);
    cajaArchivo->addWidget(ruta_);
    cajaArchivo->addStretch();
    capa->addLayout(cajaArchivo, 0, 1);
    connect(abrir, &QPushButton::clicked, this, [this] {
        logica_.Abrir(d_);
        Mostrar();
    });

    // Option1..3 give record 2 the values 0, 1, 2; Option5, Option4, Option6
    // give record 3 the values 0, 1, 2.
    auto* v = GrupoOpciones(QStringLiteral("Posición Vertical"), {"Option1", "Option2", "Option3"},
                            {"Centro", "Arriba", "Abajo"}, vertical_, &ConfigurarPrograma::PonerVertical);
    auto* h = GrupoOpciones(QStringLiteral("Posición Horizontal"), {"Option5", "Option4", "Option6"},
                            {"Izquierda", "Centro", "Derecha"}, horizontal_, &ConfigurarPrograma::PonerHorizontal);
    auto* posiciones = new QHBoxLayout;
    posiciones->addWidget(v);
    posiciones->addWidget(h);
    capa->addLayout(posiciones, 1, 1);

    check1_ = new QCheckBox(QStringLiteral("Ajustar la imagen al Menú Principal"), pagina);
    check1_->setObjectName(QStringLiteral("Check1"));
    check2_ = new QCheckBox(QStringLiteral("Conservar la proporción de la imagen"), pagina);
    check2_->setObjectName(QStringLiteral("Check2"));
    auto* checks = new QVBoxLayout;
    checks->addWidget(check1_);
    checks->addWidget(check2_);
    capa->addLayout(checks, 2, 1);
    connect(check1_, &QCheckBox::toggled, this, [this](bool si) {
        if (!mostrando_) {
            logica_.PonerAjustar(si);
            Mostrar();
        }
    });
    connect(check2_, &QCheckBox::toggled, this, [this](bool si) {
        if (!mostrando_) {
            logica_.PonerProporcion(si);
            Mostrar();
        }
    });

    // The preview stands for the main window's panel at the screen's size.
    if (const QScreen* pantalla = QGuiApplication::primaryScreen())
        image1_->PonerEscala(double(image1_->width()) / std::max(1, pantalla->availableGeometry().width()));
    return pagina;
}

QWidget* VentanaConfigurarPrograma::PaginaTip() {
    auto* pagina = new QWidget(this);
    auto* capa = new QGridLayout(pagina);
    capa->addWidget(new QLabel(QStringLiteral("Tamaño de la Letra:"), pagina), 0, 0);
    combo1_ = new QComboBox(pagina);
    combo1_->setObjectName(QStringLiteral("Combo1"));
    combo1_->addItems(ConfigurarPrograma::TamanosLetra());
    capa->addWidget(combo1_, 0, 1);
    connect(combo1_, &QComboBox::currentIndexChanged, this, [this](int i) {
        if (!mostrando_) {
            logica_.PonerTamanoLetra(i);
            Mostrar();
        }
    });

    lsLabel1_ = new QLabel(QStringLiteral("Fondo"), pagina);
    lsLabel1_->setObjectName(QStringLiteral("LSLabel1"));
    lsLabel2_ = new QLabel(QStringLiteral("Letra"), pagina);
    lsLabel2_->setObjectName(QStringLiteral("LSLabel2"));
    auto* fondo = Boton(QStringLiteral("OwlButton3"), QStringLiteral("Color Fondo"), QString(), pagina);
    auto* letra = Boton(QStringLiteral("LColor"), QStringLiteral("Color Letra"), QString(), pagina);
    capa->addWidget(lsLabel1_, 1, 0);
    capa->addWidget(fondo, 1, 1);
    capa->addWidget(lsLabel2_, 2, 0);
    capa->addWidget(letra, 2, 1);
    connect(fondo, &QPushButton::clicked, this, [this] {
        logica_.ElegirColorFondo(d_);
        Mostrar();
    });
    connect(letra, &QPushButton::clicked, this, [this] {
        logica_.ElegirColorTexto(d_);
        Mostrar();
    });

    auto* predefinidos = new QGroupBox(QStringLiteral("Colores Predefinidos"), pagina);
    auto* cp = new QHBoxLayout(predefinidos);
    for (int i = 0; i < ConfigurarPrograma::ColoresPredefinidos().size(); ++i) {
        auto* l = new EtiquetaColor(QStringLiteral(" Abc "), predefinidos);
        l->setObjectName(QStringLiteral("LSLabel%1").arg(i + 3));
        l->setToolTip(QStringLiteral(" Haga Clic para Seleccionar el Color "));
        l->setAlignment(Qt::AlignCenter);
        l->setCursor(Qt::PointingHandCursor);
        const ParColores par = ConfigurarPrograma::ColoresPredefinidos()[i];
        PintarMuestra(l, par.fondo, par.texto);
        l->alClic = [this, i] {
            logica_.PonerColoresPredefinidos(i);
            Mostrar();
        };
        cp->addWidget(l);
    }
    capa->addWidget(predefinidos, 3, 0, 1, 2);

    check3_ = new QCheckBox(QStringLiteral("Forma de Globo"), pagina);
    check3_->setObjectName(QStringLiteral("Check3"));
    check4_ = new QCheckBox(QStringLiteral("Mantener visible sobre el botón"), pagina);
    check4_->setObjectName(QStringLiteral("Check4"));
    capa->addWidget(check3_, 4, 0, 1, 2);
    capa->addWidget(check4_, 5, 0, 1, 2);
    connect(check3_, &QCheckBox::toggled, this, [this](bool si) {
        if (!mostrando_) {
            logica_.PonerCheck3(si);
            Mostrar();
        }
    });
    connect(check4_, &QCheckBox::toggled, this, [this](bool si) {
        if (!mostrando_) {
            logica_.PonerCheck4(si);
            Mostrar();
        }
    });

    auto* ver = Boton(QStringLiteral("OwlButton1"), QStringLiteral("Mensaje del Botón"),
                      QStringLiteral("Visualizar el Mensaje personalizado. "), pagina);
    auto* restaurar = Boton(QStringLiteral("OwlButton2"), QStringLiteral("Restaurar Valores"),
                            QStringLiteral("Restaurar los Valores por defecto. "), pagina);
    capa->addWidget(ver, 6, 0);
    capa->addWidget(restaurar, 6, 1);
    connect(ver, &QPushButton::clicked, this, [this, ver] {
        // The preview wears the values on screen, not yet those written.
        NivoToolTip* muestra = new NivoToolTip(this);
        muestra->setAttribute(Qt::WA_DeleteOnClose);
        muestra->Aplicar(logica_.Valores());
        muestra->MostrarEn(ver->mapToGlobal(QPoint(ver->width() / 2, ver->height())),
                           QStringLiteral("Visualizar el Mensaje personalizado. "), QStringLiteral("Mensaje del Botón"));
        connect(this, &QDialog::finished, muestra, &QWidget::close);
    });
    connect(restaurar, &QPushButton::clicked, this, [this] {
        logica_.Restaurar();
        Mostrar();
    });
    capa->setRowStretch(7, 1);
    return pagina;
}

void VentanaConfigurarPrograma::Mostrar() {
    mostrando_ = true;
    const ConfiguracionTapiz& v = logica_.Valores();
    ruta_->setText(v.RutaTapiz);
    vertical_[std::clamp<int>(v.PosicionVertical, 0, 2)]->setChecked(true);
    horizontal_[std::clamp<int>(v.PosicionHorizontal, 0, 2)]->setChecked(true);
    check1_->setChecked(v.AjustarTapiz);
    check2_->setChecked(v.ProporcionTapiz);
    check2_->setEnabled(logica_.Check2Habilitado());
    combo1_->setCurrentIndex(v.TamanoLetraTip);
    check3_->setChecked(v.Check3 != 0);
    check4_->setChecked(v.Check4 != 0);
    PintarMuestra(lsLabel1_, v.ColorFondoTip, v.ColorTextoTip);
    PintarMuestra(lsLabel2_, v.ColorTextoTip, v.ColorFondoTip);
    image1_->Aplicar(v);
    mostrando_ = false;
}

void VentanaConfigurarPrograma::keyPressEvent(QKeyEvent* e) {
    if (e->key() == Qt::Key_Escape) {
        reject();
        return;
    }
    QDialog::keyPressEvent(e);
}
