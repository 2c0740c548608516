#include "analysis/screens/VentanaAnalisisRed.h"

#include "analysis/DatosEsquema.h"
#include "entry/screens/VentanaComentarioRamal.h"
#include "entry/screens/VentanaDatosRamales.h"
#include "model/ProyectoEdificio.h"
#include "pictures/EsquemaEdificio.h"
#include "pictures/screens/VistaDibujo.h"
#include "reports/screens/VentanaImpreResultados.h"
#include "takeoff/screens/VentanaComputos.h"
#include "shell/Sesion.h"
#include "widgets/NivoNumero.h"
#include "widgets/NivoTab.h"
#include "widgets/NivoToolTip.h"
#include "widgets/Ventanas.h"
#include "widgets/VistaGrid.h"
#include "workbook/LibroEdificio.h"
#include "workbook/screens/VentanaOpcionExcel.h"

#include <QGroupBox>
#include <QHeaderView>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStackedWidget>
#include <QStyle>
#include <QVBoxLayout>

namespace {

// Red for a figure that cannot be right, the palette's own colour otherwise.
void ColorTexto(QLabel* l, bool rojo) {
    QPalette paleta = l->parentWidget()->palette();
    if (rojo) paleta.setColor(QPalette::WindowText, Qt::red);
    l->setPalette(paleta);
}

}  // namespace

VentanaAnalisisRed::VentanaAnalisisRed(ProyectoEdificio& p, Sesion& s, Dialogos& d, QWidget* padre)
    : QDialog(padre), p_(p), s_(s), d_(d), logica_(p, s, d) {
    setObjectName(QStringLiteral("AnalisisRed"));
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    setSizeGripEnabled(true);
    tip_ = new NivoToolTip(this);

    auto* capa = new QVBoxLayout(this);
    tab_ = new NivoTab(this);
    tab_->setObjectName(QStringLiteral("Tab1"));
    for (int t = 1; t <= AnalisisRed::PestanaEsquema; ++t) tab_->addTab(QStringLiteral("  ") + AnalisisRed::TituloPestana(t) + QStringLiteral("  "));
    capa->addWidget(tab_);

    pila_ = new QStackedWidget(this);
    Grid* grids[4] = {&logica_.Spread4, &logica_.Spread1, &logica_.Spread2, &logica_.Spread3};
    const char* nombres[4] = {"Spread4", "Spread1", "Spread2", "Spread3"};
    for (int t = 0; t < 4; ++t) {
        vistas_[t] = new VistaGrid(pila_);
        vistas_[t]->setObjectName(QString::fromLatin1(nombres[t]));
        vistas_[t]->MostrarGrid(grids[t]);
        pila_->addWidget(vistas_[t]);
    }
    esquema_ = new PanelDibujo(d_, QStringLiteral("Exportar el Esquema de la Red"),
                               [this] { return s_.RutaDatos(QStringLiteral("ReportesExportados")); }, pila_);
    esquema_->setObjectName(QStringLiteral("Esquema"));
    esquema_->Vista()->textoElemento = [this](const ElementoDibujo& e) { return AyudaEsquema(e.tipo, e.indice); };
    pila_->addWidget(esquema_);
    // The comment column takes the width left over.
    vistas_[0]->horizontalHeader()->setStretchLastSection(true);
    capa->addWidget(pila_, 1);
    capa->addWidget(LineaEstado());
    capa->addWidget(Botonera());

    connect(tab_, &QTabBar::currentChanged, this, [this](int i) { CambiarTab(i + 1); });
    vistas_[0]->AlEditar([this](int f, int c, const QString& t) { EditarSpread4(f, c, t); });
    vistas_[3]->AlEditar([this](int f, int c, const QString& t) { EditarSpread3(f, c, t); });
    vistas_[3]->Modelo().alRechazar = [this](int, int, const QString& t) { logica_.NumeroRechazado(t); };

    for (const AyudaControl& a : AnalisisRed::AyudasControles())
        if (QPushButton* b = Boton(a.control)) b->setToolTip(a.texto);
    ConfigurarToolTips(this, tip_, s_.Tapiz);
    AvisarNumerosRechazados(this, d_);
    // The tips with a title of their own.
    for (const AyudaControl& a : AnalisisRed::AyudasControles())
        if (!a.titulo.isEmpty()) tip_->Registrar(Boton(a.control), a.texto, a.titulo);

    DimensionarVentana(this, 92, 86);
}

VentanaAnalisisRed::~VentanaAnalisisRed() {
    for (VistaGrid* v : vistas_) v->MostrarGrid(nullptr);
    esquema_->MostrarDibujo(nullptr, false);
}

void VentanaAnalisisRed::EsquemaCambiado() {
    esquemaVigente_ = false;
    if (logica_.Tab == AnalisisRed::PestanaEsquema) DibujarEsquema();
}

void VentanaAnalisisRed::DibujarEsquema() {
    if (esquemaVigente_) return;
    auto nuevo = std::make_unique<EsquemaEdificio>(EsquemaDeProyecto(p_, &logica_.Spread3));
    // Another project, or other nodes or floors, is shown whole; an
    // edit of sizes or valves keeps the view where the engineer looks.
    auto forma = [](const DatosEsquema& e) {
        QStringList nodos{e.titulo};
        for (const NodoEsquema& n : e.nodos) nodos << n.nombre + QLatin1Char('@') + n.textoCota;
        return nodos;
    };
    const bool otro = !dibujo_ || forma(dibujo_->Datos()) != forma(nuevo->Datos());
    esquema_->MostrarDibujo(nuevo.get(), otro);
    dibujo_ = std::move(nuevo);
    esquemaVigente_ = true;
}

QString VentanaAnalisisRed::AyudaEsquema(int tipo, int indice) const {
    if (!dibujo_) return QString();
    const DatosEsquema& e = dibujo_->Datos();
    if (tipo == ElementoDibujo::Tubo) return FilaComoTexto(logica_.Spread3, e.ramales[size_t(indice)].numero);
    const NodoEsquema& n = e.nodos[size_t(indice)];
    QString t = QStringLiteral("Nodo: ") + n.nombre + QStringLiteral("\nCota de piso: ") + n.textoCota;
    if (!n.textoPresion.isEmpty()) t += QStringLiteral("\nPresión: ") + n.textoPresion;
    if (n.desfavorable) t += QStringLiteral("\nNodo desfavorable");
    if (n.sobreMaxima) t += QStringLiteral("\nPresión mayor que la máxima");
    return t;
}

QWidget* VentanaAnalisisRed::LineaEstado() {
    auto* linea = new QWidget(this);
    auto* capa = new QHBoxLayout(linea);
    capa->setContentsMargins(0, 0, 0, 0);
    presionNegativa_ = new QLabel(linea);
    presionNegativa_->setObjectName(QStringLiteral("PresionNegativa"));
    avisoRed_ = new QLabel(linea);
    avisoRed_->setObjectName(QStringLiteral("AvisoErrorRed"));
    ColorTexto(avisoRed_, true);
    capa->addWidget(presionNegativa_);
    capa->addSpacing(24);
    capa->addWidget(avisoRed_);
    capa->addStretch(1);
    return linea;
}

QWidget* VentanaAnalisisRed::Botonera() {
    auto* pie = new QWidget(this);
    auto* capa = new QHBoxLayout(pie);
    capa->setContentsMargins(0, 0, 0, 0);

    auto* etiqueta = new QLabel(QStringLiteral("Número de Ramales:"), pie);
    panel_ = new QLabel(pie);
    panel_->setObjectName(QStringLiteral("SSPanel1"));
    panel_->setFrameStyle(QFrame::Panel | QFrame::Sunken);
    panel_->setAlignment(Qt::AlignCenter);
    panel_->setMinimumWidth(fontMetrics().horizontalAdvance(QStringLiteral("000000")) + 12);
    capa->addWidget(etiqueta);
    capa->addWidget(panel_, 0, Qt::AlignVCenter);

    frame3_ = new QGroupBox(QStringLiteral("Altura del Tanque Elevado (m)"), pie);
    frame3_->setObjectName(QStringLiteral("Frame3"));
    auto* marco = new QHBoxLayout(frame3_);
    marco->setContentsMargins(6, 2, 6, 4);
    double1_ = new NivoDouble(frame3_);
    double1_->setObjectName(QStringLiteral("Double1"));
    double1_->setFixedWidth(fontMetrics().horizontalAdvance(QStringLiteral("00000.00")) + 16);
    auto* b6 = BotonNivo(QStringLiteral("LSButton6"), QStringLiteral("Actualizar"), frame3_);
    auto* b7 = BotonNivo(QStringLiteral("LSButton7"), QStringLiteral("Altura Inicial"), frame3_);
    marco->addWidget(double1_);
    marco->addWidget(b6);
    marco->addWidget(b7);
    capa->addSpacing(12);
    capa->addWidget(frame3_);
    capa->addStretch(1);

    const struct {
        const char* nombre;
        const char* texto;
        QStyle::StandardPixmap icono;
    } botones[] = {
        {"LSButton5", "Abrir", QStyle::SP_DialogOpenButton},
        {"LSButton11", "Editar Red", QStyle::SP_FileDialogDetailedView},
        {"LSButton2", "Igualar Diámetros", QStyle::SP_BrowserReload},
        {"LSButton9", "Comentario", QStyle::SP_FileDialogInfoView},
        {"LSButton8", "Listado", QStyle::SP_FileDialogListView},
        {"LSButton3", "Imprimir", QStyle::SP_FileIcon},
        {"LSButton4", "Excel", QStyle::SP_DialogSaveButton},
        {"LSButton1", "Retorno", QStyle::SP_DialogCloseButton},
    };
    for (const auto& b : botones)
        capa->addWidget(BotonNivo(QString::fromLatin1(b.nombre), QString::fromUtf8(b.texto), pie, b.icono));

    // The listing: the take-off of the network, without its own "Abrir".
    connect(Boton(QStringLiteral("LSButton8")), &QPushButton::clicked, this, [this] {
        VentanaComputos listado(p_, s_, d_, true, this);
        if (listado.Cargar()) listado.exec();
    });
    connect(Boton(QStringLiteral("LSButton3")), &QPushButton::clicked, this, &VentanaAnalisisRed::ImprimirResultados);

    connect(double1_, &NivoNumero::ValorCambiado, this, [this](double v) { logica_.Double1 = v; });
    connect(double1_, &NivoNumero::Enter, b6, &QPushButton::click);
    connect(b6, &QPushButton::clicked, this, [this] {
        logica_.Double1 = double1_->Valor();
        Evento([this] { logica_.LSButton6_Click(); }, {4, tab_->Tab()});
    });
    connect(b7, &QPushButton::clicked, this, [this] { Evento([this] { logica_.LSButton7_Click(); }, {4}); });
    connect(Boton(QStringLiteral("LSButton2")), &QPushButton::clicked, this, [this] {
        Evento([this] { logica_.LSButton2_Click(); }, {1, 3, 4});
    });
    connect(Boton(QStringLiteral("LSButton5")), &QPushButton::clicked, this, [this] {
        Evento(
            [this] {
                CursorEspera espera;
                logica_.LSButton5_Click();
            },
            {1, 2, 3, 4});
    });
    connect(Boton(QStringLiteral("LSButton9")), &QPushButton::clicked, this, &VentanaAnalisisRed::AbrirComentario);
    connect(Boton(QStringLiteral("LSButton4")), &QPushButton::clicked, this, &VentanaAnalisisRed::ExportarExcel);
    connect(Boton(QStringLiteral("LSButton11")), &QPushButton::clicked, this, &VentanaAnalisisRed::EditarRed);
    connect(Boton(QStringLiteral("LSButton1")), &QPushButton::clicked, this, &QDialog::accept);
    return pie;
}

void VentanaAnalisisRed::EditarRed() {
    s_.EdicionDesdeAnalisis = 1;
    bool salvado = false;
    {
        VentanaDatosRamales editor(p_, s_, d_, this);
        editor.exec();
        salvado = editor.ProyectoSalvado();
    }
    s_.EdicionDesdeAnalisis = 0;
    Evento(
        [this, salvado] {
            CursorEspera espera;
            logica_.RetornoEditorRamales(salvado);
        },
        {1, 2, 3, 4});
}

QPushButton* VentanaAnalisisRed::Boton(const QString& nombre) const { return findChild<QPushButton*>(nombre); }

bool VentanaAnalisisRed::Cargar() {
    const bool bien = SinFallaDeCalculo(d_, [this] {
        CursorEspera espera;
        logica_.Cargar();
    });
    if (!bien) return false;
    for (VistaGrid* v : vistas_) v->Refrescar();
    tab_->PonerTab(logica_.Tab);
    pila_->setCurrentIndex(logica_.Tab - 1);
    EsquemaCambiado();
    MostrarEstado();
    return true;
}

void VentanaAnalisisRed::MostrarEstado() {
    setWindowTitle(logica_.Caption);
    panel_->setText(logica_.SSPanel1);
    presionNegativa_->setText(logica_.TextoPresionNegativa());
    presionNegativa_->setVisible(!logica_.TextoPresionNegativa().isEmpty());
    ColorTexto(presionNegativa_, logica_.NodosPresionNegativa() > 0);
    avisoRed_->setText(logica_.AvisoErrorRed());
    avisoRed_->setVisible(!logica_.AvisoErrorRed().isEmpty());
    frame3_->setVisible(logica_.Frame3Visible);
    double1_->PonerValor(logica_.Double1);
    Boton(QStringLiteral("LSButton2"))->setEnabled(logica_.LSButton2Disponible());
    Boton(QStringLiteral("LSButton9"))->setEnabled(logica_.LSButton9Disponible());
}

void VentanaAnalisisRed::ExportarExcel() {
    VistaGrid* vista = vistas_[tab_->Tab() - 1];
    vista->TerminarEdicion();
    ExportarLibroExcel(this, s_, d_, false,
                       [this, vista](const OpcionesLibro& o, const QString& archivo, QString& error,
                                     const ProgresoLibro& progreso) {
                           // The grid hides while the workbook reads it.
                           vista->hide();
                           const bool escrito = ExportarPantallaExcel(logica_, p_, s_, o, archivo, error, progreso);
                           vista->show();
                           vista->setFocus();
                           return escrito;
                       });
}

void VentanaAnalisisRed::AbrirComentario() {
    if (!logica_.LSButton9Disponible() || logica_.Spread4.Filas() == 0) return;
    vistas_[0]->TerminarEdicion();
    s_.RamalActual = logica_.Spread4.FilaActiva();
    VentanaComentarioRamal comentario(
        p_, s_, d_, logica_,
        [this] {
            vistas_[0]->Refrescar();
            vistas_[0]->MostrarActiva();
            EsquemaCambiado();
        },
        this);
    comentario.exec();
}

void VentanaAnalisisRed::ImprimirResultados() {
    vistas_[logica_.Tab - 1]->TerminarEdicion();
    VentanaImpreResultados impre(logica_, p_, s_, d_, this);
    impre.exec();
}

void VentanaAnalisisRed::CambiarTab(int tab) {
    logica_.CambiarTab(tab);
    pila_->setCurrentIndex(logica_.Tab - 1);
    if (logica_.Tab == AnalisisRed::PestanaEsquema) DibujarEsquema();
    MostrarEstado();
}

void VentanaAnalisisRed::Evento(const std::function<void()>& f, std::initializer_list<int> tabs) {
    if (!SinFallaDeCalculo(d_, f)) {
        reject();
        return;
    }
    for (int t : tabs)
        if (t >= 1 && t <= 4) vistas_[t - 1]->Refrescar();
    EsquemaCambiado();
    MostrarEstado();
}

void VentanaAnalisisRed::EditarSpread4(int fila, int columna, const QString& texto) {
    if (columna != 7) return;
    // Flows and the units of tab 2 stay: tabs 1, 3 and 4 change.
    Evento([&] { logica_.EditarDiametroAsumido(fila, texto); }, {1, 3, 4});
}

void VentanaAnalisisRed::EditarSpread3(int fila, int columna, const QString& texto) {
    if (columna != 14) return;
    Evento([&] { logica_.EditarValvulaReductora(fila, texto); }, {4});
    // The edited row stays in sight.
    vistas_[3]->MostrarActiva();
}
