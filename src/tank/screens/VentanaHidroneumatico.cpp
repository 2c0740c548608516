#include "tank/screens/VentanaHidroneumatico.h"

#include "shell/Sesion.h"
#include "shell/Titulos.h"
#include "tank/screens/VentanaPeerlees.h"
#include "tank/screens/VentanaResultadosHidro.h"
#include "widgets/NivoNumero.h"
#include "widgets/NivoToolTip.h"
#include "widgets/Ventanas.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QStyle>
#include <QVBoxLayout>

namespace {

QLabel* Nota(const char* texto, QWidget* padre) {
    auto* l = new QLabel(QString::fromUtf8(texto), padre);
    l->setWordWrap(true);
    QFont f = l->font();
    f.setItalic(true);
    l->setFont(f);
    return l;
}

}  // namespace

VentanaHidroneumatico::VentanaHidroneumatico(ProyectoEdificio& p, Sesion& s, Dialogos& d, QWidget* padre)
    : QDialog(padre), p_(p), s_(s), d_(d), logica_(p, s, d) {
    setObjectName(QStringLiteral("Hidroneumatico"));
    tip_ = new NivoToolTip(this);
    auto* capa = new QVBoxLayout;
    capa->addWidget(Metodos());
    capa->addWidget(Sistema());

    auto* pie = new QHBoxLayout;
    auto* abrir = BotonNivo(QStringLiteral("Abrir"), QStringLiteral("Abrir"), this, QStyle::SP_DialogOpenButton,
                            QStringLiteral("Abrir un proyecto existente. "));
    auto* calcular = BotonNivo(QStringLiteral("Calcular"), QStringLiteral("Calcular"), this, QStyle::SP_DialogApplyButton,
                               QStringLiteral("Calcular el tanque hidroneumático. "));
    auto* retorno = BotonRetorno(this);
    pie->addWidget(abrir);
    pie->addStretch(1);
    pie->addWidget(calcular);
    pie->addWidget(retorno);
    capa->addLayout(pie);
    connect(abrir, &QPushButton::clicked, this, &VentanaHidroneumatico::Abrir);
    connect(calcular, &QPushButton::clicked, this, &VentanaHidroneumatico::Calcular);
    connect(retorno, &QPushButton::clicked, this, &QDialog::accept);
    PonerCentrado(this, capa);

    ConfigurarToolTips(this, tip_, s_.Tapiz);
    AvisarNumerosRechazados(this, d_);
    setWindowTitle(logica_.Caption);
    Mostrar();
}

NivoNumero* VentanaHidroneumatico::NuevaCaja(const QString& nombre, int decimales, double* variable, QWidget* padre) {
    auto* caja = new NivoNumero(decimales, padre);
    caja->setObjectName(nombre);
    caja->setFixedWidth(fontMetrics().horizontalAdvance(QStringLiteral("000,000.00")) + 16);
    connect(caja, &NivoNumero::ValorCambiado, this, [this, variable](double v) {
        if (!mostrando_) *variable = v;
    });
    return caja;
}

QWidget* VentanaHidroneumatico::Metodos() {
    auto* marco = new QGroupBox(QStringLiteral("Seleccione el Método del Cálculo"), this);
    auto* capa = new QGridLayout(marco);
    DatosTanque& t = logica_.Datos;
    const char* textos[3] = {"Método 1: Caudal Máximo Probable (l/s):", "Método 2: Dotación Diaria (litros/día):",
                             "Método 3: Número de Piezas Sanitarias:"};
    auto* grupo = new QButtonGroup(this);
    for (int i = 0; i < 3; ++i) {
        metodo_[i] = new QRadioButton(QString::fromUtf8(textos[i]), marco);
        metodo_[i]->setObjectName(QStringLiteral("Metodo%1").arg(i + 1));
        grupo->addButton(metodo_[i], i + 1);
        capa->addWidget(metodo_[i], i, 0);
    }
    connect(grupo, &QButtonGroup::idToggled, this, [this](int id, bool si) {
        if (!si || mostrando_) return;
        logica_.Datos.NumeroMetodo = int16_t(id);
        Mostrar();
    });

    capa->addWidget(NuevaCaja(QStringLiteral("Caudal"), 2, &t.Caudal, marco), 0, 1);
    capa->addWidget(new QLabel(QStringLiteral("%Porcentaje:"), marco), 0, 2, Qt::AlignRight);
    capa->addWidget(NuevaCaja(QStringLiteral("Porcentaje"), 2, &t.Porcentaje, marco), 0, 3);
    capa->addWidget(NuevaCaja(QStringLiteral("Dotacion"), 2, &t.Dotacion, marco), 1, 1);

    piezas_ = new NivoLong(marco);
    piezas_->setObjectName(QStringLiteral("NumeroPiezas"));
    piezas_->PonerLimites(0, 32767);
    piezas_->setFixedWidth(fontMetrics().horizontalAdvance(QStringLiteral("000,000.00")) + 16);
    connect(piezas_, &NivoNumero::ValorCambiado, this, [this](double v) {
        if (!mostrando_) logica_.Datos.NumeroPiezas = int16_t(v);
    });
    capa->addWidget(piezas_, 2, 1);
    capa->addWidget(new QLabel(QStringLiteral("Factor Peerlees:"), marco), 2, 2, Qt::AlignRight);
    capa->addWidget(NuevaCaja(QStringLiteral("FactorPeerlees"), 2, &t.FactorPeerlees, marco), 2, 3);
    auto* tabla = BotonNivo(QStringLiteral("Peerless"), QStringLiteral("Tabla de Peerles"), marco, std::nullopt,
                            QStringLiteral("Tabla de factores de consumo \nrecomendado por Peerless)"));
    capa->addWidget(tabla, 2, 4);
    connect(tabla, &QPushButton::clicked, this, &VentanaHidroneumatico::TablaPeerless);

    auto* notas = new QVBoxLayout;
    notas->addWidget(Nota("Método 1: El Caudal de Bombeo se asume como un porcentaje del caudal máximo probable. "
                          "(Se toma entre el 25% y el 50%  de este caudal).",
                          marco));
    notas->addWidget(
        Nota("Método 2: El Caudal de Bombeo se calcula en función de la dotación diaria (Normas sanitarias).", marco));
    notas->addWidget(Nota("Método 3: El Caudal de Bombeo se calcula en función del número de piezas sanitarias y un "
                          "factor de Consumo en litros/minuto (Método de Peerless).",
                          marco));
    // The notes wrap at the width of the boxes above them.
    auto* ancho = new QWidget(marco);
    ancho->setFixedSize(fontMetrics().averageCharWidth() * 110, 0);
    notas->addWidget(ancho);
    capa->addLayout(notas, 3, 0, 1, 6);
    capa->setColumnStretch(5, 1);
    return marco;
}

QWidget* VentanaHidroneumatico::Sistema() {
    auto* fila = new QWidget(this);
    auto* capa = new QHBoxLayout(fila);
    capa->setContentsMargins(0, 0, 0, 0);

    auto* datos = new QGroupBox(QStringLiteral("Datos del Sistema y de la Bomba"), fila);
    auto* rejilla = new QGridLayout(datos);
    DatosTanque& t = logica_.Datos;
    const struct {
        const char* etiqueta;
        const char* nombre;
        double* variable;
    } cajas[] = {
        {"Presión Mínima del Sistema (m):", "PresionMinima", &t.PresionMinima},
        {"Presión Máxima del Sistema (m):", "PresionMaxima", &t.PresionMaxima},
        {"Número de Arranques/Hora de la Bomba:", "Arranques", &t.Arranques},
        {"Altura de Succión de la Bomba (m):", "Succion", &t.Succion},
    };
    int f = 0;
    for (const auto& c : cajas) {
        rejilla->addWidget(new QLabel(QString::fromUtf8(c.etiqueta), datos), f, 0);
        rejilla->addWidget(NuevaCaja(QString::fromLatin1(c.nombre), 2, c.variable, datos), f, 1);
        ++f;
    }
    rejilla->setColumnStretch(2, 1);
    capa->addWidget(datos, 1);

    auto* tipo = new QGroupBox(QStringLiteral("El Tanque hidroneumático es"), fila);
    auto* opciones = new QVBoxLayout(tipo);
    auto* grupo = new QButtonGroup(this);
    const char* textos[2] = {"Tanque Vertical  (K = 0.10)", "Tanque Horizontal  (K = 0.054)"};
    for (int i = 0; i < 2; ++i) {
        tanque_[i] = new QRadioButton(QString::fromUtf8(textos[i]), tipo);
        tanque_[i]->setObjectName(QStringLiteral("OpcionK%1").arg(i + 1));
        grupo->addButton(tanque_[i], i + 1);
        opciones->addWidget(tanque_[i]);
    }
    opciones->addStretch(1);
    connect(grupo, &QButtonGroup::idToggled, this, [this](int id, bool si) {
        if (si && !mostrando_) logica_.Datos.OpcionK = int16_t(id);
    });
    capa->addWidget(tipo);
    return fila;
}

NivoNumero* VentanaHidroneumatico::Caja(const QString& nombre) const { return findChild<NivoNumero*>(nombre); }

QPushButton* VentanaHidroneumatico::Boton(const QString& nombre) const { return findChild<QPushButton*>(nombre); }

void VentanaHidroneumatico::Mostrar() {
    mostrando_ = true;
    const DatosTanque& t = logica_.Datos;
    const std::pair<const char*, double> valores[] = {
        {"Caudal", t.Caudal},           {"Porcentaje", t.Porcentaje},       {"Dotacion", t.Dotacion},
        {"FactorPeerlees", t.FactorPeerlees}, {"PresionMinima", t.PresionMinima}, {"PresionMaxima", t.PresionMaxima},
        {"Arranques", t.Arranques},     {"Succion", t.Succion},
    };
    for (const auto& [nombre, valor] : valores) Caja(QString::fromLatin1(nombre))->PonerValor(valor);
    piezas_->PonerValor(t.NumeroPiezas);
    if (t.NumeroMetodo >= 1 && t.NumeroMetodo <= 3) metodo_[t.NumeroMetodo - 1]->setChecked(true);
    tanque_[t.OpcionK == 1 ? 0 : 1]->setChecked(true);

    const HabilitacionTanque h = logica_.Habilitacion();
    Caja(QStringLiteral("Caudal"))->setEnabled(h.Caudal);
    Caja(QStringLiteral("Porcentaje"))->setEnabled(h.Porcentaje);
    Caja(QStringLiteral("Dotacion"))->setEnabled(h.Dotacion);
    piezas_->setEnabled(h.NumeroPiezas);
    Caja(QStringLiteral("FactorPeerlees"))->setEnabled(h.FactorPeerlees);
    Boton(QStringLiteral("Peerless"))->setEnabled(h.BotonPeerless);
    mostrando_ = false;
}

bool VentanaHidroneumatico::Cargar() {
    const bool bien = SinFallaDeCalculo(d_, [this] {
        CursorEspera espera;
        logica_.Cargar();
    });
    Mostrar();
    return bien;
}

void VentanaHidroneumatico::Calcular() {
    if (!logica_.Calcular()) return;
    VentanaResultadosHidro resultados(logica_.Datos, p_, s_, d_, this);
    // A fault of the sizing ends the calculation; the inputs stay.
    if (SinFallaDeCalculo(d_, [&] { resultados.Cargar(); })) resultados.exec();
}

void VentanaHidroneumatico::TablaPeerless() {
    VentanaPeerlees tabla(s_, d_, this);
    if (tabla.exec() != QDialog::Accepted) return;
    logica_.PonerFactorPeerlees(tabla.Capturado());
    Mostrar();
}

void VentanaHidroneumatico::Abrir() {
    bool abierto = false;
    // A fault in the pre-filling comes after the load: the new project stands.
    if (SinFallaDeCalculo(d_, [&] { abierto = logica_.Abrir(); }) && !abierto) return;
    setWindowTitle(logica_.Caption);
    if (parentWidget()) parentWidget()->window()->setWindowTitle(TituloEdificio(s_));
    Mostrar();
}
