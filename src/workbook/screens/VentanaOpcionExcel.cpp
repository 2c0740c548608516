#include "workbook/screens/VentanaOpcionExcel.h"

#include "widgets/Ventanas.h"

#include <QApplication>
#include <QCheckBox>
#include <QDateEdit>
#include <QFrame>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

QCheckBox* Casilla(const QString& nombre, const QString& texto, QWidget* padre) {
    auto* c = new QCheckBox(texto, padre);
    c->setObjectName(nombre);
    return c;
}

// The progress panel of a results screen (Panel21, with LabelP and
// ProgressBar1), over the middle of the screen while a workbook is written.
class PanelProgreso : public QFrame {
public:
    explicit PanelProgreso(QWidget* padre) : QFrame(padre) {
        setObjectName(QStringLiteral("Panel21"));
        setFrameStyle(QFrame::Panel | QFrame::Raised);
        setLineWidth(2);
        setAutoFillBackground(true);
        auto* capa = new QVBoxLayout(this);
        etiqueta_ = new QLabel(this);
        etiqueta_->setObjectName(QStringLiteral("LabelP"));
        etiqueta_->setAlignment(Qt::AlignCenter);
        QFont f = etiqueta_->font();
        f.setBold(true);
        etiqueta_->setFont(f);
        barra_ = new QProgressBar(this);
        barra_->setObjectName(QStringLiteral("ProgressBar1"));
        barra_->setRange(0, 100);
        capa->addWidget(etiqueta_);
        capa->addWidget(barra_);
        const int ancho = std::min(padre->width() - 40, fontMetrics().horizontalAdvance(QLatin1Char('M')) * 48);
        resize(std::max(ancho, 200), sizeHint().height());
        move((padre->width() - width()) / 2, (padre->height() - height()) / 2);
        show();
        raise();
    }
    void Avanzar(int valor, const QString& texto) {
        etiqueta_->setText(texto);
        barra_->setValue(valor);
        QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    }

private:
    QLabel* etiqueta_;
    QProgressBar* barra_;
};

}  // namespace

VentanaOpcionExcel::VentanaOpcionExcel(const Sesion& s, Dialogos& d, bool acueducto, QWidget* padre)
    : QDialog(padre), logica_(s, d, acueducto) {
    setObjectName(acueducto ? QStringLiteral("OpcionExcelAcu") : QStringLiteral("OpcionExcel"));
    setWindowTitle(OpcionExcel::Titulo());
    auto* capa = new QVBoxLayout(this);
    capa->addWidget(TituloPantalla(OpcionExcel::Titulo(), this));

    auto* marco = new QGroupBox(OpcionExcel::Marco(), this);
    marco->setObjectName(QStringLiteral("Frame1"));
    auto* opciones = new QVBoxLayout(marco);
    const QStringList reportes = logica_.Reportes();
    for (int k = 0; k < reportes.size(); ++k) {
        reportes_.push_back(Casilla(QStringLiteral("Check%1").arg(k + 2), reportes[k], marco));
        opciones->addWidget(reportes_.back());
    }
    auto* linea = new QFrame(marco);
    linea->setFrameShape(QFrame::HLine);
    linea->setFrameShadow(QFrame::Sunken);
    opciones->addWidget(linea);
    indice_ = Casilla(QStringLiteral("CheckIE"), QStringLiteral("Crear el Índice en Excel"), marco);
    inmovilizar_ = Casilla(QStringLiteral("CheckP"), QStringLiteral("Opción de Inmovilizar  Paneles"), marco);
    color_ = Casilla(QStringLiteral("Check1"), QStringLiteral("Exportar Celdas en  Colores"), marco);
    for (QCheckBox* c : {indice_, inmovilizar_, color_}) opciones->addWidget(c);

    auto* filaFecha = new QHBoxLayout;
    conFecha_ = Casilla(QStringLiteral("LSCheck6"), QStringLiteral("Imprimir la Fecha:"), marco);
    fecha_ = new QDateEdit(marco);
    fecha_->setObjectName(QStringLiteral("Date1"));
    fecha_->setDisplayFormat(QStringLiteral("dd/MM/yyyy"));
    auto* insertar = BotonNivo(QStringLiteral("Fecha"), QStringLiteral(" Insertar una Fecha "), marco);
    filaFecha->addWidget(conFecha_);
    filaFecha->addWidget(fecha_);
    filaFecha->addWidget(insertar);
    opciones->addLayout(filaFecha);
    capa->addWidget(marco);

    auto* botones = new QHBoxLayout;
    const struct {
        const char* nombre;
        const char* texto;
        QStyle::StandardPixmap icono;
    } lista[] = {
        {"Command2", "Exportar", QStyle::SP_DialogSaveButton},
        {"Command1", "Cancelar", QStyle::SP_DialogCancelButton},
        {"Command3", "Procesos", QStyle::SP_TrashIcon},
        {"LSButton2", "Directorio", QStyle::SP_DirOpenIcon},
    };
    for (const auto& b : lista) {
        const QString nombre = QString::fromLatin1(b.nombre);
        botones->addWidget(BotonNivo(nombre, QString::fromUtf8(b.texto), this, b.icono, OpcionExcel::Ayuda(nombre)));
    }
    capa->addLayout(botones);

    auto boton = [this](const char* n) { return findChild<QPushButton*>(QString::fromLatin1(n)); };
    connect(boton("Command2"), &QPushButton::clicked, this, [this] {
        Leer();
        logica_.Command2_Click();
        if (logica_.cerrar) accept();
    });
    connect(boton("Command1"), &QPushButton::clicked, this, [this] {
        logica_.Command1_Click();
        reject();
    });
    connect(boton("Command3"), &QPushButton::clicked, this, [this] { logica_.Command3_Click(); });
    connect(boton("LSButton2"), &QPushButton::clicked, this, [this] { logica_.LSButton2_Click(); });
    connect(insertar, &QPushButton::clicked, this, [this] {
        Leer();
        if (const auto dia = PedirFecha(this, logica_.Date1)) logica_.Fecha_Click(*dia);
        Mostrar();
    });
    connect(conFecha_, &QCheckBox::toggled, fecha_, &QWidget::setEnabled);
    Mostrar();
}

QWidget* VentanaOpcionExcel::Control(const QString& nombre) const { return findChild<QWidget*>(nombre); }

void VentanaOpcionExcel::Leer() {
    OpcionesLibro& o = logica_.opciones;
    for (size_t k = 0; k < reportes_.size(); ++k) o.hojas[k] = reportes_[k]->isChecked();
    o.indice = indice_->isChecked();
    o.inmovilizar = inmovilizar_->isChecked();
    o.color = color_->isChecked();
    o.conFecha = conFecha_->isChecked();
    logica_.Date1 = fecha_->date();
}

void VentanaOpcionExcel::Mostrar() {
    const OpcionesLibro& o = logica_.opciones;
    for (size_t k = 0; k < reportes_.size(); ++k) reportes_[k]->setChecked(o.hojas[k]);
    indice_->setChecked(o.indice);
    inmovilizar_->setChecked(o.inmovilizar);
    color_->setChecked(o.color);
    conFecha_->setChecked(o.conFecha);
    fecha_->setDate(logica_.Date1);
    fecha_->setEnabled(o.conFecha);
}

bool ExportarLibroExcel(QWidget* padre, const Sesion& s, Dialogos& d, bool acueducto, const EscrituraLibro& escribir) {
    OpcionesLibro opciones;
    {
        VentanaOpcionExcel ventana(s, d, acueducto, padre);
        if (ventana.exec() != QDialog::Accepted || !ventana.Logica().ExcelAceptado) return false;
        opciones = ventana.Logica().opciones;
    }
    return GuardarLibroExcel(s, d, acueducto, [&](const QString& archivo, QString& error) {
        PanelProgreso panel(padre);
        return escribir(opciones, archivo, error, [&panel](int v, const QString& t) { panel.Avanzar(v, t); });
    });
}
