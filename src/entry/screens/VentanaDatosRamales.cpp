#include "entry/screens/VentanaDatosRamales.h"

#include "reports/screens/VentanaImpreGeneral.h"

#include "entry/screens/VentanaCambiarOpcionDiseno.h"
#include "entry/screens/VentanaConexionesRamales.h"
#include "entry/screens/VentanaCotasNodos.h"
#include "entry/screens/VentanaLongitudTramosR.h"
#include "entry/screens/VentanaPiezasRamales.h"

#include "base/Dialogos.h"
#include "entry/BuscarPartida.h"
#include "entry/screens/VentanaBuscarPartida.h"
#include "model/ProyectoEdificio.h"
#include "shell/Sesion.h"
#include "widgets/NivoNumero.h"
#include "widgets/NivoToolTip.h"
#include "widgets/Ventanas.h"
#include "widgets/VistaGrid.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QDateEdit>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMouseEvent>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QStackedWidget>
#include <QTimer>
#include <QVBoxLayout>

namespace {

struct CajaTexto {
    const char* etiqueta;
    DatosRamales::Texto caja;
};
constexpr CajaTexto CajasTexto[] = {{"Proyecto:", DatosRamales::Texto::Proyecto},
                                    {"Calculista:", DatosRamales::Texto::Calculista},
                                    {"Cliente:", DatosRamales::Texto::Cliente},
                                    {"Comentario:", DatosRamales::Texto::Comentario}};

// Exclusive options whose ids are the option values from 0.
QButtonGroup* Opciones(const QStringList& textos, QWidget* padre, QGridLayout* capa, int columna = 0) {
    auto* grupo = new QButtonGroup(padre);
    for (int i = 0; i < textos.size(); ++i) {
        auto* o = new QRadioButton(textos[i], padre);
        o->setObjectName(textos[i]);
        grupo->addButton(o, i);
        capa->addWidget(o, i, columna);
    }
    return grupo;
}

void Marcar(QButtonGroup* grupo, int id) {
    if (auto* b = grupo->button(id)) b->setChecked(true);
}

void PonerNumero(NivoNumero* caja, double v) {
    if (caja->Valor() != v || caja->text().isEmpty()) caja->PonerValor(v);
}

QLabel* Nota(const QString& texto, QWidget* padre) {
    auto* l = new QLabel(texto, padre);
    l->setWordWrap(true);
    QFont f = l->font();
    f.setItalic(true);
    l->setFont(f);
    return l;
}

// Rows holding a photograph are tall enough to see it.
constexpr int AltoFoto = 56;

}  // namespace

VentanaDatosRamales::VentanaDatosRamales(ProyectoEdificio& p, Sesion& s, Dialogos& d, QWidget* padre)
    : QDialog(padre), logica_(p, s, d), d_(d), s_(s), p_(p) {
    setObjectName(QStringLiteral("DatosRamales"));
    tip_ = new NivoToolTip(this);
    auto* capa = new QVBoxLayout(this);
    paginas_ = new QStackedWidget(this);
    paginas_->addWidget(Pagina1());
    paginas_->addWidget(Pagina2());
    capa->addWidget(paginas_, 1);
    capa->addWidget(Botonera());

    flotante_ = new QWidget(this, Qt::ToolTip);
    flotante_->setObjectName(QStringLiteral("RevisionFlotante"));
    auto* capaFlotante = new QVBoxLayout(flotante_);
    capaFlotante->setContentsMargins(1, 1, 1, 1);
    vistaFlotante_ = new VistaGrid(flotante_);
    capaFlotante->addWidget(vistaFlotante_);
    flotante_->resize(520, 360);

    DimensionarVentana(this, 80, 80);
    SinFallaDeCalculo(d_, [this] { logica_.Cargar(); });
    nodos_->MostrarGrid(&logica_.Spread1);
    spread1_->MostrarGrid(&logica_.Spread1);
    spread2_->MostrarGrid(&logica_.Spread2);
    vistaFlotante_->MostrarGrid(&logica_.Spread2);
    spread1_->verticalHeader()->hide();
    for (VistaGrid* v : {nodos_, spread1_})
        connect(v->selectionModel(), &QItemSelectionModel::currentChanged, this,
                [this, v](const QModelIndex& i) {
                    if (!i.isValid()) return;
                    // One cursor for the table: the other view lets its go.
                    (v == nodos_ ? spread1_ : nodos_)->selectionModel()->clearSelection();
                    CursorMovido(i.row() + 1, i.column() + 1);
                });
    connect(nodos_->horizontalHeader(), &QHeaderView::sectionResized, this, [this] { AnchoNodos(); });
    connect(nodos_->verticalHeader(), &QHeaderView::geometriesChanged, this, [this] { AnchoNodos(); });
    connect(nodos_->verticalScrollBar(), &QScrollBar::valueChanged, spread1_->verticalScrollBar(), &QScrollBar::setValue);
    connect(spread1_->verticalScrollBar(), &QScrollBar::valueChanged, nodos_->verticalScrollBar(), &QScrollBar::setValue);
    Refrescar();
    ConfigurarToolTips(this, tip_, s_.Tapiz);
    AvisarNumerosRechazados(this, d_);
}

VentanaDatosRamales::~VentanaDatosRamales() {
    for (VistaGrid* v : {nodos_, spread1_, spread2_, vistaFlotante_}) v->MostrarGrid(nullptr);
}

QWidget* VentanaDatosRamales::Pagina1() {
    auto* pagina = new QGroupBox(QStringLiteral("Datos Generales del Proyecto"), this);
    auto* capa = new QVBoxLayout(pagina);

    auto* generales = new QWidget(pagina);
    auto* g = new QGridLayout(generales);
    g->setContentsMargins(0, 0, 0, 0);
    for (int i = 0; i < 4; ++i) {
        const CajaTexto& c = CajasTexto[i];
        text_[i] = new QLineEdit(generales);
        text_[i]->setObjectName(QStringLiteral("Text%1").arg(i + 1));
        g->addWidget(new QLabel(QString::fromUtf8(c.etiqueta), generales), i, 0);
        g->addWidget(text_[i], i, 1, 1, i == 1 ? 1 : 4);
        connect(text_[i], &QLineEdit::textEdited, this, [this, caja = c.caja](const QString& t) {
            SinFallaDeCalculo(d_, [&] { logica_.CambiarTexto(caja, t); });
        });
    }
    fecha_ = new QDateEdit(generales);
    fecha_->setObjectName(QStringLiteral("Fecha"));
    fecha_->setDisplayFormat(QStringLiteral("dd/MM/yyyy"));
    fecha_->setLocale(QLocale(QLocale::Spanish));
    auto* calendario = BotonNivo(QStringLiteral("Calendario"), QStringLiteral("..."), generales, std::nullopt,
                                 QStringLiteral("Fijar una fecha. "));
    calendario->setMaximumWidth(40);
    g->addWidget(new QLabel(QStringLiteral("Fecha:"), generales), 1, 2);
    g->addWidget(fecha_, 1, 3);
    g->addWidget(calendario, 1, 4);
    g->setColumnStretch(1, 1);
    connect(fecha_, &QDateEdit::dateChanged, this, [this](const QDate& f) {
        if (!mostrando_) logica_.CambiarFecha(f);
    });
    connect(calendario, &QPushButton::clicked, this, &VentanaDatosRamales::ElegirFecha);
    capa->addWidget(generales);

    auto* fila1 = new QHBoxLayout;
    auto* uso = new QGroupBox(QStringLiteral("Uso de la Piezas Sanitarias"), pagina);
    usoPiezas_ = Opciones({QStringLiteral("Privado Total"), QStringLiteral("Privado Fria / Caliente"),
                           QStringLiteral("Público Total"), QStringLiteral("Público Fria / Caliente")},
                          uso, new QGridLayout(uso));
    auto* presion = new QGroupBox(QStringLiteral("Opción para el Cálculo de la Presión Inicial de la Red ( metros )"), pagina);
    auto* cp = new QGridLayout(presion);
    presion_ = Opciones({QStringLiteral("Calcular la Presión Inicial:"), QStringLiteral("Introducir la Presión Inicial:"),
                         QStringLiteral("Calcular con Tanque Elevado:")},
                        presion, cp);
    const char* etiquetas[3] = {"Presión Mínima en el Punto más Desfavorable de la Red",
                                "Entrar la Presión Inicial en la Entrada de la Red",
                                "Presión Mínima en el Punto más Desfavorable de la Red"};
    for (int i = 0; i < 3; ++i) {
        etiquetaValor_[i] = new QLabel(QString::fromUtf8(etiquetas[i]), presion);
        valor_[i] = new NivoDouble(presion, 2);
        valor_[i]->setObjectName(QStringLiteral("Valor%1").arg(i + 1));
        valor_[i]->PonerLimites(0, 1e6);
        valor_[i]->setMaximumWidth(100);
        cp->addWidget(etiquetaValor_[i], i, 1);
        cp->addWidget(valor_[i], i, 2);
        connect(valor_[i], &NivoNumero::ValorCambiado, this, [this, i](double v) {
            if (!mostrando_) logica_.CambiarValor(i + 1, v);
        });
    }
    cp->setColumnStretch(3, 1);  // label and box stay beside their option
    fila1->addWidget(uso);
    fila1->addWidget(presion, 1);
    capa->addLayout(fila1);

    auto* fila2 = new QHBoxLayout;
    auto* pre = new QGroupBox(QStringLiteral("Predimensionado de los Ramales"), pagina);
    auto* cpre = new QGridLayout(pre);
    velocidad_ = new NivoDouble(pre, 2);
    velocidad_->setObjectName(QStringLiteral("Velocidad"));
    velocidad_->PonerLimites(0, 1000);
    velocidad_->setMaximumWidth(100);
    cpre->addWidget(new QLabel(QStringLiteral("Velocidad de Prediseño (m/s) ="), pre), 0, 0);
    cpre->addWidget(velocidad_, 0, 1);
    auto* opcionesDiametro = new QGridLayout;
    diametro_ = Opciones({QStringLiteral("Asumir el Diámetro más Cercano"), QStringLiteral("Asumir el Diámetro Cercano Superior"),
                          QStringLiteral("Asumir el Diámetro Cercano Inferior")},
                         pre, opcionesDiametro);
    cpre->addLayout(opcionesDiametro, 1, 0, 1, 2);
    diametroMinimo_ = new QCheckBox(QStringLiteral("Asumir 3/4\" como Diámetro Mínimo"), pre);
    diametroMinimo_->setObjectName(QStringLiteral("DiametroMinimo"));
    cpre->addWidget(diametroMinimo_, 2, 0, 1, 2);
    connect(velocidad_, &NivoNumero::ValorCambiado, this, [this](double v) {
        if (!mostrando_) logica_.CambiarVelocidad(v);
    });
    connect(diametroMinimo_, &QCheckBox::toggled, this, [this](bool si) {
        if (!mostrando_) Accion([&] { logica_.CambiarDiametroMinimo(si); });
    });

    auto* perdidas = new QGroupBox(QStringLiteral("Seleccione la Opción para el Cálculo de las Pérdidas en los Ramales"), pagina);
    auto* cper = new QGridLayout(perdidas);
    perdidas_ = Opciones({QStringLiteral("Fórmula del B.M.S.(Hunter),  de 10 a 15 Años de Uso (Tuberías Rugosas)."),
                          QStringLiteral("Fórmula del B.M.S.(Hunter), Hasta 10 Años de Uso (Tuberías Semi-Rugosas)"),
                          QStringLiteral("Coeficiente de Hansen William C:")},
                         perdidas, cper);
    coeficiente_ = new NivoLong(perdidas);
    coeficiente_->setObjectName(QStringLiteral("CoeficienteC"));
    coeficiente_->PonerLimites(0, 32767);
    coeficiente_->setMaximumWidth(100);
    cper->addWidget(coeficiente_, 2, 1);
    cper->addWidget(Nota(QStringLiteral("( Ejemplo: PVC = 140, Hierro Fundido = 100, Cobre =  140,   Termofusión = 140)"),
                         perdidas),
                    3, 0, 1, 2);
    cper->setColumnStretch(2, 1);
    connect(coeficiente_, &NivoNumero::ValorCambiado, this, [this](double v) {
        if (!mostrando_) logica_.CambiarCoeficienteC(int(v));
    });
    fila2->addWidget(pre);
    fila2->addWidget(perdidas, 1);
    capa->addLayout(fila2);

    auto* maxima = new QGroupBox(QStringLiteral("Presión Máxima Permitida en la Red ( metros )"), pagina);
    auto* cm = new QGridLayout(maxima);
    opcionPresionM_ = new QCheckBox(QStringLiteral("Presión Máxima Permitida ( m ):"), maxima);
    opcionPresionM_->setObjectName(QStringLiteral("OpcionPresionM"));
    presionM_ = new NivoDouble(maxima, 2);
    presionM_->setObjectName(QStringLiteral("PresionM"));
    presionM_->PonerLimites(0, 1e6);
    presionM_->setMaximumWidth(100);
    cm->addWidget(opcionPresionM_, 0, 0);
    cm->addWidget(presionM_, 0, 1);
    cm->addWidget(Nota(QStringLiteral("Esta Opción muestra una Alerta en los Nodos con Presiones Mayores a la Fijada "
                                      "(Fondo en Color Naranja)"),
                       maxima),
                  1, 0, 1, 3);
    cm->setColumnStretch(2, 1);
    connect(opcionPresionM_, &QCheckBox::toggled, this, [this](bool si) {
        if (!mostrando_) Accion([&] { logica_.CambiarOpcionPresionM(si); });
    });
    connect(presionM_, &NivoNumero::ValorCambiado, this, [this](double v) {
        if (!mostrando_) logica_.CambiarPresionM(v);
    });
    capa->addWidget(maxima);
    capa->addStretch();

    auto opcion = [this](QButtonGroup* grupo, void (DatosRamales::*cambiar)(int)) {
        connect(grupo, &QButtonGroup::idToggled, this, [this, cambiar](int id, bool marcado) {
            if (marcado && !mostrando_) Accion([&] { (logica_.*cambiar)(id); });
        });
    };
    opcion(usoPiezas_, &DatosRamales::CambiarOpcionUsoPiezas);
    opcion(presion_, &DatosRamales::CambiarOpcionPresionInicial);
    opcion(diametro_, &DatosRamales::CambiarOpcionDiametro);
    opcion(perdidas_, &DatosRamales::CambiarOpcionPerdidas);
    return pagina;
}

QWidget* VentanaDatosRamales::Pagina2() {
    auto* pagina = new QGroupBox(QStringLiteral("Datos de los Ramales"), this);
    auto* capa = new QVBoxLayout(pagina);
    auto* arriba = new QHBoxLayout;
    numero_ = new NivoLong(pagina);
    numero_->setObjectName(QStringLiteral("NumeroRamales"));
    numero_->PonerLimites(0, 999999);
    numero_->setMaximumWidth(100);
    numero_->installEventFilter(this);
    ramal_ = new QLabel(pagina);
    ramal_->setObjectName(QStringLiteral("EtiquetaRamal"));
    graficos_ = new QCheckBox(QStringLiteral("Gráficos"), pagina);
    graficos_->setObjectName(QStringLiteral("Graficos"));
    graficos_->setToolTip(QStringLiteral("Realizar la revisión gráfica de las partidas."));
    arriba->addWidget(new QLabel(QStringLiteral("Número de Ramales:"), pagina));
    arriba->addWidget(numero_);
    arriba->addSpacing(24);
    arriba->addWidget(ramal_);
    arriba->addStretch();
    arriba->addWidget(graficos_);
    capa->addLayout(arriba);
    connect(numero_, &NivoNumero::ValorCambiado, this, [this](double v) {
        if (!mostrando_) logica_.CambiarNumeroRamales(int(qBound(-1e9, v, 1e9)));
    });
    connect(numero_, &NivoNumero::Enter, this, [this] { Accion([this] { logica_.AplicarNumeroRamales(); }); });
    connect(graficos_, &QCheckBox::toggled, this, [this](bool si) {
        if (!mostrando_) Accion([&] { logica_.CambiarGraficos(si); });
    });

    auto* tablas = new QHBoxLayout;
    tablas->setSpacing(0);
    nodos_ = new VistaGrid(pagina);
    nodos_->setObjectName(QStringLiteral("Spread1Nodos"));
    spread1_ = new VistaGrid(pagina);
    spread1_->setObjectName(QStringLiteral("Spread1"));
    spread2_ = new VistaGrid(pagina);
    spread2_->setObjectName(QStringLiteral("Spread2"));
    spread2_->horizontalHeader()->setStretchLastSection(true);
    nodos_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    for (VistaGrid* v : {nodos_, spread1_}) {
        v->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
        v->setContextMenuPolicy(Qt::CustomContextMenu);
        v->viewport()->installEventFilter(this);
        v->installEventFilter(this);
        v->AlEditar([this](int f, int c, const QString& t) { EditarCelda(f, c, t); });
        v->Modelo().alRechazar = [this](int, int c, const QString& t) {
            Accion([&] { logica_.NumeroRechazado(c, t); });
        };
        connect(v, &QWidget::customContextMenuRequested, this, [this, v](const QPoint& p) { MenuRamales(v, p); });
        connect(v, &QAbstractItemView::doubleClicked, this, [this](const QModelIndex& i) {
            const int c = i.column() + 1;
            if (c == DatosRamales::CPiezas)
                AbrirSi(&DatosRamales::PiezasSanitarias, &VentanaDatosRamales::AbrirPiezasRamales);
            else if (c == DatosRamales::CConexiones)
                AbrirSi(&DatosRamales::Conexiones, &VentanaDatosRamales::AbrirConexionesRamales);
        });
    }
    tablas->addWidget(nodos_);
    tablas->addWidget(spread1_, 3);
    tablas->addSpacing(6);
    tablas->addWidget(spread2_, 2);
    capa->addLayout(tablas, 1);

    auto* botones = new QGridLayout;
    struct BotonPagina {
        const char* nombre;
        const char* texto;
        const char* tip;
    };
    const BotonPagina lista[] = {
        {"Salvar", "Salvar", "Salvar los datos del proyecto. "},
        {"Reportes", "Reportes", "Imprimir los datos del proyecto. "},
        {"Longitudes", "Longitudes", "Calcular la longitud de los tramos. "},
        {"Abrir", "Abrir", "Abrir un proyecto existente. "},
        {"Crear", "Crear", "Insertar un ramal en la red. "},
        {"Eliminar", "Eliminar", "Eliminar el ramal seleccionado. "},
        {"Compatiblidad", "Compatiblidad", "Verificar la compatibilidad de los nodos. "},
        {"PiezasSanitarias", "Piezas Sanitarias", "Piezas sanitarias en los ramales. "},
        {"Conexiones", "Conexiones", "Conexiones en los ramales. "},
        {"CotasPiso", "Cotas Piso", "Cota de piso de los nodos. "},
        {"Diseno", "Diseño", "Fijar globalmente la opción de diseño de los Ramales. "},
        {"BuscarRamal", "Buscar Ramal", "Buscar un ramal del proyecto. "},
    };
    int n = 0;
    for (const BotonPagina& b : lista) {
        botones->addWidget(BotonNivo(QString::fromLatin1(b.nombre), QString::fromUtf8(b.texto), pagina, std::nullopt,
                                     QString::fromUtf8(b.tip)),
                           n / 6, n % 6);
        ++n;
    }
    capa->addLayout(botones);
    auto clic = [this](const char* nombre, const std::function<void()>& f) {
        connect(Boton(QString::fromLatin1(nombre)), &QPushButton::clicked, this, f);
    };
    clic("Salvar", [this] { Accion([this] { logica_.Salvar(); }); });
    clic("Reportes", [this] { ImprimirDatos(); });
    clic("Abrir", [this] { Accion([this] { logica_.Abrir(); }); });
    clic("Crear", [this] { Accion([this] { logica_.Crear(); }); });
    clic("Eliminar", [this] { Accion([this] { logica_.Eliminar(); }); });
    clic("Compatiblidad", [this] { Accion([this] { logica_.Compatibilidad(); }); });
    clic("PiezasSanitarias", [this] { AbrirSi(&DatosRamales::PiezasSanitarias, &VentanaDatosRamales::AbrirPiezasRamales); });
    clic("Conexiones", [this] { AbrirSi(&DatosRamales::Conexiones, &VentanaDatosRamales::AbrirConexionesRamales); });
    clic("CotasPiso", [this] { AbrirSi(&DatosRamales::CotasPiso, &VentanaDatosRamales::AbrirCotasNodos); });
    clic("Diseno", [this] { AbrirSi(&DatosRamales::Diseno, &VentanaDatosRamales::AbrirCambiarOpcionDiseno); });
    clic("Longitudes", [this] { AbrirSi(&DatosRamales::Longitudes, &VentanaDatosRamales::AbrirLongitudTramosR); });
    clic("BuscarRamal", [this] { BuscarRamal(); });
    return pagina;
}

QWidget* VentanaDatosRamales::Botonera() {
    auto* barra = new QWidget(this);
    auto* capa = new QHBoxLayout(barra);
    capa->setContentsMargins(0, 0, 0, 0);
    auto* anterior = BotonNivo(QStringLiteral("Anterior"), QStringLiteral("Anterior"), barra, QStyle::SP_ArrowBack);
    auto* siguiente = BotonNivo(QStringLiteral("Siguiente"), QStringLiteral("Siguiente"), barra, QStyle::SP_ArrowForward);
    auto* retorno = BotonRetorno(barra);
    retorno->setToolTip(QStringLiteral(" Retorno "));
    capa->addStretch();
    capa->addWidget(anterior);
    capa->addWidget(siguiente);
    capa->addSpacing(24);
    capa->addWidget(retorno);
    auto pasar = [this](int pagina) {
        TerminarEdicion();
        paginas_->setCurrentIndex(pagina);
        Refrescar();
    };
    connect(anterior, &QPushButton::clicked, this, [pasar] { pasar(0); });
    connect(siguiente, &QPushButton::clicked, this, [pasar] { pasar(1); });
    connect(retorno, &QPushButton::clicked, this, &VentanaDatosRamales::reject);
    return barra;
}

QPushButton* VentanaDatosRamales::Boton(const QString& nombre) const { return findChild<QPushButton*>(nombre); }

void VentanaDatosRamales::Refrescar() {
    mostrando_ = true;
    const DatosRamales::Estado e = logica_.EstadoActual();
    setWindowTitle(e.titulo);
    for (int i = 0; i < 4; ++i)
        if (text_[i]->text() != e.textos[i] && !text_[i]->hasFocus()) text_[i]->setText(e.textos[i]);
    if (fecha_->date() != e.fecha) fecha_->setDate(e.fecha);
    Marcar(usoPiezas_, e.opcionUsoPiezas);
    Marcar(presion_, e.opcionPresionInicial);
    Marcar(diametro_, e.opcionDiametro);
    Marcar(perdidas_, e.opcionPerdidas);
    for (int i = 0; i < 3; ++i) {
        PonerNumero(valor_[i], e.valor[i]);
        valor_[i]->setEnabled(e.habilitados.Valor[i]);
        etiquetaValor_[i]->setEnabled(e.habilitados.Valor[i]);
    }
    PonerNumero(velocidad_, e.velocidad);
    diametroMinimo_->setChecked(e.diametroMinimo);
    PonerNumero(coeficiente_, e.coeficienteC);
    coeficiente_->setEnabled(e.habilitados.CoeficienteC);
    opcionPresionM_->setChecked(e.opcionPresionM);
    PonerNumero(presionM_, e.presionM);
    presionM_->setEnabled(e.habilitados.PresionM);
    PonerNumero(numero_, e.numeroRamales);
    ramal_->setText(e.etiquetaRamal);
    graficos_->setChecked(e.graficos);
    Boton(QStringLiteral("Abrir"))->setVisible(e.habilitados.Abrir);
    Boton(QStringLiteral("Anterior"))->setEnabled(paginas_->currentIndex() == 1);
    Boton(QStringLiteral("Siguiente"))->setEnabled(paginas_->currentIndex() == 0);
    spread2_->setVisible(e.graficos);

    for (VistaGrid* v : {nodos_, spread1_, spread2_}) v->Refrescar();
    // A view shown again from its grid shows every column: each keeps its share.
    for (int c = 0; c < logica_.Spread1.Columnas(); ++c) {
        nodos_->setColumnHidden(c, c > 1);
        spread1_->setColumnHidden(c, c <= 1);
    }
    AltoFilasRevision(spread2_);
    // Both parts of the table keep one header height, so that rows line up.
    const int alto = std::max(nodos_->horizontalHeader()->sizeHint().height(),
                              spread1_->horizontalHeader()->sizeHint().height());
    nodos_->horizontalHeader()->setFixedHeight(alto);
    spread1_->horizontalHeader()->setFixedHeight(alto);
    AnchoNodos();
    const int columna = logica_.Spread1.ColumnaActiva();
    VistaGrid* activa = columna <= DatosRamales::CNodoJ ? nodos_ : spread1_;
    if (logica_.Spread1.Filas() > 0) activa->MostrarActiva();
    (activa == nodos_ ? spread1_ : nodos_)->selectionModel()->clearSelection();
    mostrando_ = false;

    switch (logica_.foco) {
    case DatosRamales::Foco::Grid:
        if (paginas_->currentIndex() == 1) activa->setFocus();
        break;
    case DatosRamales::Foco::NumeroRamales: numero_->setFocus(); break;
    case DatosRamales::Foco::PrimerControl:
        (paginas_->currentIndex() == 0 ? static_cast<QWidget*>(text_[0]) : numero_)->setFocus();
        break;
    case DatosRamales::Foco::Ninguno: break;
    }
    logica_.foco = DatosRamales::Foco::Ninguno;
}

void VentanaDatosRamales::AnchoNodos() {
    // The node view is as wide as its row numbers and two columns, whatever
    // widths the texts give them.
    const int ancho = std::max(nodos_->verticalHeader()->width(), nodos_->verticalHeader()->sizeHint().width()) +
                      nodos_->columnWidth(0) + nodos_->columnWidth(1) + 2 * nodos_->frameWidth() + 2;
    if (nodos_->width() != ancho) nodos_->setFixedWidth(ancho);
}

void VentanaDatosRamales::AltoFilasRevision(VistaGrid* v) {
    const Grid& g = logica_.Spread2;
    for (int f = 1; f <= g.Filas(); ++f)
        v->setRowHeight(f - 1, g.TieneImagen(f, 2) ? AltoFoto : v->verticalHeader()->defaultSectionSize());
}

void VentanaDatosRamales::TerminarEdicion() {
    nodos_->TerminarEdicion();
    spread1_->TerminarEdicion();
    // A count typed and not confirmed is applied as leaving the box would.
    SinFallaDeCalculo(d_, [this] { logica_.AplicarNumeroRamales(); });
}

void VentanaDatosRamales::Accion(const std::function<void()>& accion) {
    TerminarEdicion();
    SinFallaDeCalculo(d_, accion);
    Refrescar();
}

void VentanaDatosRamales::EditarCelda(int fila, int columna, const QString& texto) {
    bool guardada = false;
    SinFallaDeCalculo(d_, [&] { guardada = logica_.EditarCelda(fila, columna, texto); });
    Refrescar();
    if (!guardada || (columna != DatosRamales::CNodoI && columna != DatosRamales::CNodoJ)) return;
    // A node typed moves the cursor on to the next node cell (I, J, I, J),
    // after the view's own step down on Enter.
    const int f = logica_.Spread1.FilaActiva(), c = logica_.Spread1.ColumnaActiva();
    QTimer::singleShot(0, this, [this, f, c] {
        SinFallaDeCalculo(d_, [&] { logica_.MoverCursor(f, c); });
        logica_.foco = DatosRamales::Foco::Grid;
        Refrescar();
    });
}

void VentanaDatosRamales::CursorMovido(int fila, int columna) {
    if (mostrando_) return;
    SinFallaDeCalculo(d_, [&] { logica_.MoverCursor(fila, columna); });
    ramal_->setText(logica_.EtiquetaRamal());
    if (logica_.Graficos()) {
        spread2_->Refrescar();
        AltoFilasRevision(spread2_);
    }
}

void VentanaDatosRamales::MenuRamales(VistaGrid* vista, const QPoint& donde) {
    QMenu menu(this);
    menu.setObjectName(QStringLiteral("MenuRamales"));
    // No command hangs on these two entries: the buttons insert and delete.
    connect(menu.addAction(QStringLiteral("Insertar un Ramal")), &QAction::triggered, this,
            [this] { logica_.MenuInsertarRamal(); });
    connect(menu.addAction(QStringLiteral("Eliminar un Ramal")), &QAction::triggered, this,
            [this] { logica_.MenuEliminarRamal(); });
    menu.exec(vista->viewport()->mapToGlobal(donde));
}

void VentanaDatosRamales::ElegirFecha() {
    if (const auto dia = PedirFecha(this, fecha_->date())) fecha_->setDate(*dia);
}

void VentanaDatosRamales::MostrarRevision(bool flotante, const QPoint& global) {
    if (!flotante) {
        flotante_->hide();
        return;
    }
    vistaFlotante_->Refrescar();
    AltoFilasRevision(vistaFlotante_);
    // As wide as its columns, as tall as its rows allow on the screen.
    const int ancho = vistaFlotante_->verticalHeader()->sizeHint().width() +
                      vistaFlotante_->horizontalHeader()->length() +
                      vistaFlotante_->verticalScrollBar()->sizeHint().width() + 4 * vistaFlotante_->frameWidth();
    flotante_->resize(ancho, std::min(420, vistaFlotante_->horizontalHeader()->height() +
                                               vistaFlotante_->verticalHeader()->length() + 8));
    flotante_->move(global + QPoint(16, 16));
    flotante_->show();
}

bool VentanaDatosRamales::eventFilter(QObject* o, QEvent* e) {
    if (o == numero_ && e->type() == QEvent::FocusOut && !mostrando_) {
        // Leaving the box applies a changed count, once the focus has moved.
        QTimer::singleShot(0, this, [this] { Accion([this] { logica_.AplicarNumeroRamales(); }); });
        return false;
    }
    const bool vistaNodos = o == nodos_ || o == nodos_->viewport();
    const bool vistaResto = o == spread1_ || o == spread1_->viewport();
    if (!vistaNodos && !vistaResto) return QDialog::eventFilter(o, e);
    VistaGrid* v = vistaNodos ? nodos_ : spread1_;
    if (e->type() == QEvent::MouseButtonPress && !logica_.Graficos()) {
        auto* m = static_cast<QMouseEvent*>(e);
        const QModelIndex i = v->indexAt(m->position().toPoint());
        if (m->button() == Qt::LeftButton && i.isValid()) {
            SinFallaDeCalculo(d_, [&] { logica_.ColoqueRevision(i.row() + 1); });
            MostrarRevision(true, m->globalPosition().toPoint());
        }
    } else if (e->type() == QEvent::MouseButtonRelease) {
        MostrarRevision(false);
    } else if (e->type() == QEvent::KeyPress && o == v) {
        // The arrows and Tab cross between the node columns and the others
        // (an open cell editor takes its own keys).
        auto* k = static_cast<QKeyEvent*>(e);
        const QModelIndex i = v->currentIndex();
        const bool derecha = k->key() == Qt::Key_Right || k->key() == Qt::Key_Tab;
        const bool izquierda = k->key() == Qt::Key_Left || k->key() == Qt::Key_Backtab;
        VistaGrid* otra = nullptr;
        int columna = 0;
        if (vistaNodos && derecha && i.column() == 1) otra = spread1_, columna = 2;
        if (vistaResto && izquierda && i.column() == 2) otra = nodos_, columna = 1;
        if (otra && i.isValid()) {
            otra->setCurrentIndex(otra->model()->index(i.row(), columna));
            otra->setFocus();
            return true;
        }
    }
    return QDialog::eventFilter(o, e);
}

void VentanaDatosRamales::AbrirSi(bool (DatosRamales::*puede)(), void (VentanaDatosRamales::*abrir)()) {
    bool abre = false;
    Accion([&] { abre = (logica_.*puede)(); });
    if (!abre) return;
    SinFallaDeCalculo(d_, [&] { (this->*abrir)(); });
    Refrescar();
}

// Each screen opened from here works on the model and walks this screen's
// table through EditorRamales; the table is drawn again as it does.
void VentanaDatosRamales::AbrirPiezasRamales() {
    VentanaPiezasRamales pantalla(p_, s_, d_, logica_, [this] { Refrescar(); }, this);
    pantalla.exec();
    logica_.ColoqueNPiezas();
}

void VentanaDatosRamales::AbrirConexionesRamales() {
    VentanaConexionesRamales pantalla(p_, s_, d_, logica_, [this] { Refrescar(); }, this);
    pantalla.exec();
    logica_.ColoqueNConexiones();
}

void VentanaDatosRamales::AbrirCotasNodos() {
    VentanaCotasNodos pantalla(p_, s_, d_, this);
    pantalla.exec();
}

void VentanaDatosRamales::AbrirCambiarOpcionDiseno() {
    VentanaCambiarOpcionDiseno pantalla(p_, s_, d_, logica_, [this] { Refrescar(); }, this);
    pantalla.exec();
}

void VentanaDatosRamales::AbrirLongitudTramosR() {
    VentanaLongitudTramosR pantalla(p_, s_, d_, logica_, [this] { Refrescar(); }, this);
    pantalla.exec();
}

void VentanaDatosRamales::BuscarRamal() {
    TerminarEdicion();
    if (logica_.Spread1.Filas() == 0) return;
    const BuscarPartida b = VentanaBuscarPartida::Preguntar(logica_.RamalActivo(), this);
    Accion([&] { logica_.BuscarRamal(b); });
}

void VentanaDatosRamales::reject() {
    TerminarEdicion();
    flotante_->hide();
    bool cerrar = false;
    SinFallaDeCalculo(d_, [this, &cerrar] { cerrar = logica_.PuedeCerrar(); });
    if (cerrar) QDialog::reject();
}

void VentanaDatosRamales::ImprimirDatos() {
    if (!logica_.Reportes()) return;
    VentanaImpreGeneral impre(5, s_, d_, this);
    impre.exec();
}
