#include "aqueduct/screens/VentanaDatosAcueducto.h"

#include "aqueduct/ProyectoAcueducto.h"
#include "aqueduct/screens/ComunACU.h"
#include "aqueduct/screens/VentanaCoficientesACU.h"
#include "aqueduct/screens/VentanaLongitudTramosAcu.h"
#include "base/Dialogos.h"
#include "base/Nivo.h"
#include "reports/salida/ImpreAcueducto.h"
#include "reports/screens/PantallasSalidaEscritorio.h"
#include "shell/Sesion.h"
#include "widgets/NivoNumero.h"
#include "widgets/NivoToolTip.h"
#include "widgets/Ventanas.h"
#include "widgets/VistaGrid.h"

#include <QButtonGroup>
#include <QDateEdit>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace {

// "Dirección Asumido del Flujo en los Ramales" in the node grid.
constexpr int ColumnaDireccion = 6;

// The page-1 boxes Text1..Text4 with their labels and limits.
struct CajaTexto {
    const char* etiqueta;
    int limite;
    DatosAcueducto::Texto caja;
};
constexpr CajaTexto CajasTexto[] = {{"Proyecto:", 140, DatosAcueducto::Texto::Proyecto},
                                    {"Calculista:", 70, DatosAcueducto::Texto::Calculista},
                                    {"Cliente:", 70, DatosAcueducto::Texto::Cliente},
                                    {"Comentario:", 100, DatosAcueducto::Texto::Comentario}};

// A frame of exclusive options whose ids are the option values 1, 2, 3.
QGroupBox* Opciones(const QString& titulo, const QStringList& textos, QButtonGroup*& grupo, QWidget* padre) {
    auto* marco = new QGroupBox(titulo, padre);
    auto* capa = new QVBoxLayout(marco);
    grupo = new QButtonGroup(marco);
    for (int i = 0; i < textos.size(); ++i) {
        auto* o = new QRadioButton(textos[i], marco);
        o->setObjectName(textos[i]);
        grupo->addButton(o, i + 1);
        capa->addWidget(o);
    }
    return marco;
}

void Marcar(QButtonGroup* grupo, int id) {
    if (auto* b = grupo->button(id)) b->setChecked(true);
}

}  // namespace

VentanaDatosAcueducto::VentanaDatosAcueducto(ProyectoAcueducto& p, Sesion& s, Dialogos& d, QWidget* padre)
    : QDialog(padre), logica_(p, s, d), d_(d), s_(s) {
    setObjectName(QStringLiteral("DatosAcueducto"));
    setWindowTitle(QStringLiteral("Datos Generales del Acueducto"));
    tip_ = new NivoToolTip(this);
    auto* capa = new QVBoxLayout(this);
    paginas_ = new QStackedWidget(this);
    paginas_->addWidget(Pagina1());
    paginas_->addWidget(Pagina2());
    paginas_->addWidget(Pagina3());
    capa->addWidget(paginas_, 1);
    capa->addWidget(Botonera());
    resize(1000, 660);

    Proteger(d_, [this] { logica_.Cargar(); });
    spread1_->MostrarGrid(&logica_.Spread1);
    spread2_->MostrarGrid(&logica_.Spread2);
    spread2_->horizontalHeader()->setSectionResizeMode(ColumnaDireccion - 1, QHeaderView::Stretch);
    Refrescar();
    InstalarAyudas(this, tip_, s_.Tapiz, AyudasDatosAcueducto());
    AvisarNumerosRechazados(this, d_);
}

VentanaDatosAcueducto::~VentanaDatosAcueducto() {
    spread1_->MostrarGrid(nullptr);
    spread2_->MostrarGrid(nullptr);
}

QWidget* VentanaDatosAcueducto::Pagina1() {
    auto* pagina = new QWidget(this);
    auto* capa = new QVBoxLayout(pagina);

    auto* generales = new QGroupBox(QStringLiteral("Datos Generales del Proyecto"), pagina);
    auto* g = new QGridLayout(generales);
    for (int i = 0; i < 4; ++i) {
        const CajaTexto& c = CajasTexto[i];
        text_[i] = new QLineEdit(generales);
        text_[i]->setObjectName(QStringLiteral("Text%1").arg(i + 1));
        text_[i]->setMaxLength(c.limite);
        g->addWidget(new QLabel(QString::fromUtf8(c.etiqueta), generales), i, 0);
        g->addWidget(text_[i], i, 1, 1, i == 1 ? 1 : 4);
        connect(text_[i], &QLineEdit::textEdited, this,
                [this, caja = c.caja](const QString& t) { Proteger(d_, [&] { logica_.CambiarTexto(caja, t); }); });
    }
    date1_ = new QDateEdit(generales);
    date1_->setObjectName(QStringLiteral("Date1"));
    date1_->setDisplayFormat(QStringLiteral("dd/MM/yyyy"));
    date1_->setLocale(QLocale(QLocale::Spanish));
    auto* fecha = BotonACU(QStringLiteral("Fecha"), QStringLiteral("Fecha"), generales);
    g->addWidget(new QLabel(QStringLiteral("Fecha:"), generales), 1, 2);
    g->addWidget(date1_, 1, 3);
    g->addWidget(fecha, 1, 4);
    g->setColumnStretch(1, 1);
    connect(date1_, &QDateEdit::dateChanged, this, [this](const QDate& f) {
        if (!mostrando_) logica_.CambiarFecha(f);
    });
    connect(fecha, &QPushButton::clicked, this, &VentanaDatosAcueducto::ElegirFecha);
    capa->addWidget(generales);

    auto* fila1 = new QHBoxLayout;
    auto* consumo = Opciones(QStringLiteral("Datos del Consumo Medio"),
                             {QStringLiteral("Consumo por Tramo"), QStringLiteral("Consumo por Nodo")}, consumo_, pagina);
    auto* diametro = Opciones(QStringLiteral("Unidades del Diámetro"),
                              {QStringLiteral("Diámetro en Metros"), QStringLiteral("Diámetro en Milímetros"),
                               QStringLiteral("Diámetro en Pulgadas")},
                              diametro_, pagina);
    auto* coeficiente = new QGroupBox(QStringLiteral("Coeficiente de Hansen - William"), pagina);
    auto* cc = new QGridLayout(coeficiente);
    long1_ = new NivoLong(coeficiente);
    long1_->setObjectName(QStringLiteral("Long1"));
    long1_->PonerLimites(0, 32767);
    long1_->setMaximumWidth(110);
    auto* hazen = BotonACU(QStringLiteral("Hazen-Williams"), QStringLiteral("Hazen-Williams"), coeficiente);
    cc->addWidget(new QLabel(QStringLiteral("Coeficiente  C ="), coeficiente), 0, 0);
    cc->addWidget(long1_, 0, 1);
    cc->addWidget(hazen, 1, 0, 1, 2);
    cc->setColumnStretch(2, 1);
    connect(long1_, &NivoNumero::ValorCambiado, this, [this](double v) {
        if (!mostrando_) Proteger(d_, [&] { logica_.CambiarLong1(int(v)); });
    });
    connect(hazen, &QPushButton::clicked, this, &VentanaDatosAcueducto::AbrirCoeficientes);
    fila1->addWidget(consumo);
    fila1->addWidget(diametro);
    fila1->addWidget(coeficiente);
    capa->addLayout(fila1);

    auto* fila2 = new QHBoxLayout;
    auto* equivalente = new QGroupBox(QStringLiteral("Longitud Equivalente (Pérdidas Especiales)"), pagina);
    auto* ce = new QGridLayout(equivalente);
    porcentaje_ = new QButtonGroup(equivalente);
    auto* conPorcentaje = new QRadioButton(QStringLiteral("Como Porcentaje de la Longitud (%):"), equivalente);
    auto* sinPorcentaje = new QRadioButton(QStringLiteral("No Tomar Longitud Equivalente"), equivalente);
    conPorcentaje->setObjectName(conPorcentaje->text());
    sinPorcentaje->setObjectName(sinPorcentaje->text());
    porcentaje_->addButton(conPorcentaje, 1);
    porcentaje_->addButton(sinPorcentaje, 2);
    for (int i = 0; i < 4; ++i) {
        double_[i] = new NivoDouble(pagina, 2);
        double_[i]->setObjectName(QStringLiteral("Double%1").arg(i + 1));
        double_[i]->PonerLimites(0, i == 3 ? 1e6 : 1000);
        double_[i]->setMaximumWidth(110);
    }
    ce->addWidget(conPorcentaje, 0, 0);
    ce->addWidget(double_[0], 0, 1);
    ce->addWidget(sinPorcentaje, 1, 0, 1, 2);

    auto* casos = new QGroupBox(QStringLiteral("Casos de Demanda"), pagina);
    auto* cd = new QGridLayout(casos);
    cd->addWidget(new QLabel(QStringLiteral("Qm = Consumo Medio"), casos), 0, 0, 1, 4);
    cd->addWidget(new QLabel(QStringLiteral("Q Máximo = "), casos), 1, 0);
    cd->addWidget(double_[1], 1, 1);
    cd->addWidget(new QLabel(QStringLiteral("x Qm"), casos), 1, 2);
    cd->addWidget(new QLabel(QStringLiteral("Q Incendio = "), casos), 2, 0);
    cd->addWidget(double_[2], 2, 1);
    cd->addWidget(new QLabel(QStringLiteral("x Qm +"), casos), 2, 2);
    cd->addWidget(double_[3], 2, 3);
    cd->setColumnStretch(4, 1);
    fila2->addWidget(equivalente);
    fila2->addWidget(casos);
    capa->addLayout(fila2);
    capa->addStretch();

    auto opcion = [this](QButtonGroup* grupo, void (DatosAcueducto::*cambiar)(int)) {
        connect(grupo, &QButtonGroup::idToggled, this, [this, cambiar](int id, bool marcado) {
            if (!marcado || mostrando_) return;
            Accion([&] { (logica_.*cambiar)(id); });
        });
    };
    opcion(consumo_, &DatosAcueducto::CambiarOpcionConsumo);
    opcion(diametro_, &DatosAcueducto::CambiarOpcionDiametro);
    opcion(porcentaje_, &DatosAcueducto::CambiarCasoPorcentaje);
    void (DatosAcueducto::*numeros[4])(double) = {&DatosAcueducto::CambiarDeltaPorcentaje,
                                                  &DatosAcueducto::CambiarFactorQMax,
                                                  &DatosAcueducto::CambiarFactorIncendio,
                                                  &DatosAcueducto::CambiarLitrosIncendio};
    for (int i = 0; i < 4; ++i)
        connect(double_[i], &NivoNumero::ValorCambiado, this, [this, cambiar = numeros[i]](double v) {
            if (!mostrando_) (logica_.*cambiar)(v);
        });
    return pagina;
}

QWidget* VentanaDatosAcueducto::Pagina2() {
    auto* marco = new QGroupBox(QStringLiteral("Datos Generales de los Ramales"), this);
    auto* capa = new QVBoxLayout(marco);
    auto* cuenta = new QHBoxLayout;
    long2_ = new NivoLong(marco);
    long2_->setObjectName(QStringLiteral("Long2"));
    long2_->PonerLimites(0, 32767);
    long2_->setMaximumWidth(110);
    cuenta->addWidget(new QLabel(QStringLiteral("Número Total de Ramales:"), marco));
    cuenta->addWidget(long2_);
    cuenta->addStretch();
    capa->addLayout(cuenta);
    connect(long2_, &NivoNumero::ValorCambiado, this, [this](double v) { logica_.CambiarLong2(int(v)); });
    connect(long2_, &NivoNumero::Enter, this, [this] { Accion([this] { logica_.ColoqueDatosRamales(); }); });

    spread1_ = new VistaGrid(marco);
    spread1_->setObjectName(QStringLiteral("Spread1"));
    spread1_->PermitirBloques();
    spread1_->setContextMenuPolicy(Qt::CustomContextMenu);
    capa->addWidget(spread1_, 1);
    spread1_->AlEditar([this](int f, int c, const QString& t) { EditarCelda(1, f, c, t); });
    spread1_->Modelo().alRechazar = [this](int, int c, const QString& t) {
        Accion([&] { logica_.NumeroRechazado(1, c, t); });
    };
    connect(spread1_, &VistaGrid::BloqueSeleccionado, this,
            [this](int f1, int f2, int c1, int c2) {
                bool pregunto = false;
                Accion([&] { pregunto = logica_.LlenarBloque(1, f1, f2, c1, c2); });
                if (pregunto) spread1_->QuitarBloque();
            },
            Qt::QueuedConnection);
    connect(spread1_, &QWidget::customContextMenuRequested, this, &VentanaDatosAcueducto::MenuRamales);
    return marco;
}

QWidget* VentanaDatosAcueducto::Pagina3() {
    auto* marco = new QGroupBox(QStringLiteral("Datos Generales de los Nodos"), this);
    auto* capa = new QVBoxLayout(marco);
    spread2_ = new VistaGrid(marco);
    spread2_->setObjectName(QStringLiteral("Spread2"));
    spread2_->PermitirBloques();
    // The list of sections at each node takes the width that is left; the
    // coordinates follow it (set once the grid gives the columns).
    spread2_->horizontalHeader()->setStretchLastSection(false);
    capa->addWidget(spread2_, 1);
    spread2_->AlEditar([this](int f, int c, const QString& t) { EditarCelda(2, f, c, t); });
    spread2_->Modelo().alRechazar = [this](int, int c, const QString& t) {
        Accion([&] { logica_.NumeroRechazado(2, c, t); });
    };
    connect(spread2_, &VistaGrid::BloqueSeleccionado, this,
            [this](int f1, int f2, int c1, int c2) {
                bool pregunto = false;
                Accion([&] { pregunto = logica_.LlenarBloque(2, f1, f2, c1, c2); });
                if (pregunto) spread2_->QuitarBloque();
            },
            Qt::QueuedConnection);
    return marco;
}

QWidget* VentanaDatosAcueducto::Botonera() {
    auto* barra = new QWidget(this);
    auto* capa = new QHBoxLayout(barra);
    capa->setContentsMargins(0, 0, 0, 0);
    auto boton = [&](const char* texto, const std::function<void()>& accion) {
        auto* b = BotonACU(QString::fromUtf8(texto), QString::fromUtf8(texto), barra);
        capa->addWidget(b);
        connect(b, &QPushButton::clicked, this, accion);
        return b;
    };
    boton("Abrir", [this] { Accion([this] { logica_.Abrir(); }); });
    boton("Salvar", [this] { Accion([this] { logica_.Salvar(); }); });
    boton("Reportes", [this] {
        // The report prints the file as saved: nothing is saved first.
        TerminarEdicion();
        PantallasSalidaEscritorio salida(s_, d_, this);
        ImprimirDatosProyecto(s_, d_, salida);
        logica_.foco = DatosAcueducto::Foco::PrimerControl;
        Refrescar();
    });
    boton("Insertar", [this] { Accion([this] { logica_.Insertar(); }); });
    boton("Eliminar", [this] { Accion([this] { logica_.Eliminar(); }); });
    boton("Compatibilidad", [this] { Accion([this] { logica_.Compatibilidad(); }); });
    boton("Longitudes", [this] { AbrirLongitudes(); });
    capa->addStretch();
    boton("Anterior", [this] { Accion([this] { logica_.Anterior(); }); });
    boton("Siguiente", [this] { Accion([this] { logica_.Siguiente(); }); });
    boton("Retorno", [this] { reject(); });
    return barra;
}

QPushButton* VentanaDatosAcueducto::Boton(const QString& nombre) const { return findChild<QPushButton*>(nombre); }

void VentanaDatosAcueducto::Refrescar() {
    mostrando_ = true;
    const DatosAcueducto::Estado e = logica_.EstadoActual();
    setWindowTitle(e.titulo);
    paginas_->setCurrentIndex(e.pagina - 1);
    const DatosAcueducto::Habilitados& h = e.botones;
    const std::pair<const char*, bool> estados[] = {
        {"Abrir", h.Abrir},         {"Salvar", h.Salvar},   {"Reportes", h.Reportes},
        {"Insertar", h.Insertar},   {"Eliminar", h.Eliminar}, {"Compatibilidad", h.Compatibilidad},
        {"Longitudes", h.Longitudes}, {"Anterior", h.Anterior}, {"Siguiente", h.Siguiente}};
    for (const auto& [nombre, si] : estados) Boton(QString::fromLatin1(nombre))->setEnabled(si);
    // A box is set only when its value changed, so that what is being typed stays.
    for (int i = 0; i < 4; ++i)
        if (text_[i]->text() != e.textos[i]) text_[i]->setText(e.textos[i]);
    if (date1_->date() != e.fecha) date1_->setDate(e.fecha);
    Marcar(consumo_, e.opcionConsumo);
    Marcar(diametro_, e.opcionDiametro);
    Marcar(porcentaje_, e.casoPorcentaje);
    for (int i = 0; i < 4; ++i)
        if (double_[i]->Valor() != e.numeros[i] || double_[i]->text().isEmpty()) double_[i]->PonerValor(e.numeros[i]);
    double_[0]->setEnabled(h.Double1);
    long1_->PonerValor(e.long1);
    long2_->PonerValor(e.long2);
    for (VistaGrid* v : {spread1_, spread2_}) {
        v->Refrescar();
        v->MostrarActiva();
    }
    mostrando_ = false;

    switch (logica_.foco) {
    case DatosAcueducto::Foco::Long2: long2_->setFocus(); break;
    case DatosAcueducto::Foco::Spread1: spread1_->setFocus(); break;
    case DatosAcueducto::Foco::Spread2: spread2_->setFocus(); break;
    case DatosAcueducto::Foco::PrimerControl: {
        QWidget* primeros[3] = {text_[0], long2_, spread2_};
        primeros[e.pagina - 1]->setFocus();
        break;
    }
    case DatosAcueducto::Foco::Ninguno: break;
    }
    logica_.foco = DatosAcueducto::Foco::Ninguno;
}

void VentanaDatosAcueducto::TerminarEdicion() {
    spread1_->TerminarEdicion();
    spread2_->TerminarEdicion();
}

void VentanaDatosAcueducto::Accion(const std::function<void()>& accion) {
    TerminarEdicion();
    Proteger(d_, accion);
    Refrescar();
}

void VentanaDatosAcueducto::EditarCelda(int grid, int fila, int columna, const QString& texto) {
    // The report comes after the editor closed: no edit is left to hand over.
    Proteger(d_, [&] { logica_.EditarCelda(grid, fila, columna, texto); });
    Refrescar();
}

void VentanaDatosAcueducto::MenuRamales(const QPoint& donde) {
    if (!logica_.Botones().MenuRamales) return;
    const QModelIndex i = spread1_->indexAt(donde);
    if (i.isValid()) spread1_->setCurrentIndex(i);
    QMenu menu(this);
    const QList<Ayuda> ayudas = AyudasDatosAcueducto();
    for (const Ayuda& a : ayudas) {
        if (a.control != QLatin1String("ID_Insertar") && a.control != QLatin1String("ID_Eliminar")) continue;
        QAction* accion = menu.addAction(a.texto);
        accion->setObjectName(a.control);
        const bool insertar = a.control == QLatin1String("ID_Insertar");
        connect(accion, &QAction::triggered, this,
                [this, insertar] { Accion([this, insertar] { insertar ? logica_.Insertar() : logica_.Eliminar(); }); });
    }
    menu.exec(spread1_->viewport()->mapToGlobal(donde));
}

void VentanaDatosAcueducto::ElegirFecha() {
    if (const auto dia = PedirFecha(this, date1_->date())) date1_->setDate(*dia);
}

void VentanaDatosAcueducto::AbrirCoeficientes() {
    VentanaCoficientesACU coeficientes(logica_, this);
    coeficientes.exec();
    Refrescar();
}

void VentanaDatosAcueducto::AbrirLongitudes() {
    bool abrir = false;
    Accion([this, &abrir] { abrir = logica_.Longitudes(); });
    if (!abrir) return;
    VentanaLongitudTramosAcu longitudes(logica_, [this] { Refrescar(); }, this);
    AvisarNumerosRechazados(&longitudes, d_);
    longitudes.exec();
    Refrescar();
}

void VentanaDatosAcueducto::reject() {
    TerminarEdicion();
    bool cerrar = false;
    Proteger(d_, [this, &cerrar] { cerrar = logica_.PuedeCerrar(); });
    if (cerrar) QDialog::reject();
}
