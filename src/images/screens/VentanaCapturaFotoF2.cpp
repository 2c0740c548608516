#include "images/screens/VentanaCapturaFotoF2.h"

#include "base/Nivo.h"
#include "images/screens/MarcoImagen.h"
#include "shell/Sesion.h"
#include "widgets/NivoToolTip.h"
#include "widgets/Ventanas.h"

#include <QFileSystemModel>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QListView>
#include <QPushButton>
#include <QSplitter>
#include <QTreeView>
#include <QVBoxLayout>

VentanaCapturaFotoF2::VentanaCapturaFotoF2(Sesion& s, Dialogos& d, PantallasFoto& fotos, bool registroConImagen,
                                           QWidget* padre)
    : QDialog(padre), logica_(s, d, fotos, registroConImagen) {
    setObjectName(QStringLiteral("CapturaFotoF2"));
    setWindowTitle(CapturaFotoF2::Titulo());
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    tip_ = new NivoToolTip(this);

    carpetas_ = new QFileSystemModel(this);
    carpetas_->setFilter(QDir::AllDirs | QDir::NoDotAndDotDot | QDir::Drives);
    carpetas_->setRootPath(QDir::rootPath());
    folderView1_ = new QTreeView(this);
    folderView1_->setObjectName(QStringLiteral("FolderView1"));
    folderView1_->setModel(carpetas_);
    for (int c = 1; c < carpetas_->columnCount(); ++c) folderView1_->hideColumn(c);
    folderView1_->header()->hide();

    archivos_ = new QFileSystemModel(this);
    archivos_->setFilter(QDir::Files);
    archivos_->setNameFilters(CapturaFotoF2::FiltrosImagen());
    archivos_->setNameFilterDisables(false);
    fileView1_ = new QListView(this);
    fileView1_->setObjectName(QStringLiteral("FileView1"));
    fileView1_->setModel(archivos_);

    picture1_ = new MarcoImagen(this);
    picture1_->setObjectName(QStringLiteral("Picture1"));
    picture1_->setMinimumSize(320, 240);
    lblArchivo_ = new QLabel(this);
    lblArchivo_->setObjectName(QStringLiteral("lblArchivo"));

    const auto boton = [this](const char* nombre, const QString& texto, QStyle::StandardPixmap icono,
                              const QString& tip) {
        return BotonNivo(QString::fromLatin1(nombre), texto, this, icono, tip);
    };
    auto* d2 = boton("ButtonD2", QStringLiteral("Escritorio"), QStyle::SP_DesktopIcon, CapturaFotoF2::TipEscritorio());
    auto* d3 = boton("ButtonD3", QStringLiteral("Documentos"), QStyle::SP_DirHomeIcon, CapturaFotoF2::TipDocumentos());
    auto* d4 = boton("ButtonD4", QStringLiteral("Mi PC"), QStyle::SP_ComputerIcon, CapturaFotoF2::TipMiPC());
    auto* d5 = boton("ButtonD5", QStringLiteral("Explorador"), QStyle::SP_DirOpenIcon, CapturaFotoF2::TipExplorador());
    auto* d6 = boton("ButtonD6", QStringLiteral("Último"), QStyle::SP_FileDialogBack, CapturaFotoF2::TipUltimo());
    auto* b1 = boton("Button1", QStringLiteral("Restablecer"), QStyle::SP_BrowserReload,
                     CapturaFotoF2::TipRestablecer());
    auto* b2 = boton("Button2", QStringLiteral("Efectos"), QStyle::SP_FileDialogContentsView,
                     CapturaFotoF2::TipEfectos());
    auto* b3 = boton("Button3", QStringLiteral("Copiar Área"), QStyle::SP_FileDialogDetailedView,
                     CapturaFotoF2::TipCopiar());
    auto* c2 = boton("Command2", QStringLiteral("Capturar"), QStyle::SP_DialogApplyButton,
                     CapturaFotoF2::TipCapturar());
    auto* c1 = boton("Command1", QStringLiteral("Cancelar"), QStyle::SP_DialogCancelButton,
                     CapturaFotoF2::TipCancelar());

    auto* carpetasBotones = new QHBoxLayout;
    for (QPushButton* b : {d2, d3, d4, d5, d6}) carpetasBotones->addWidget(b);
    carpetasBotones->addStretch();
    auto* izquierda = new QWidget(this);
    auto* capaIzq = new QVBoxLayout(izquierda);
    capaIzq->setContentsMargins(0, 0, 0, 0);
    capaIzq->addLayout(carpetasBotones);
    auto* listas = new QSplitter(Qt::Vertical, izquierda);
    listas->addWidget(folderView1_);
    listas->addWidget(fileView1_);
    capaIzq->addWidget(listas, 1);

    auto* division = new QSplitter(Qt::Horizontal, this);
    division->addWidget(izquierda);
    auto* derecha = new QWidget(this);
    auto* capaDer = new QVBoxLayout(derecha);
    capaDer->setContentsMargins(0, 0, 0, 0);
    capaDer->addWidget(picture1_, 1);
    capaDer->addWidget(lblArchivo_);
    division->addWidget(derecha);
    division->setStretchFactor(0, 2);
    division->setStretchFactor(1, 3);

    auto* pie = new QHBoxLayout;
    for (QPushButton* b : {b1, b2, b3}) pie->addWidget(b);
    pie->addStretch();
    pie->addWidget(c2);
    pie->addWidget(c1);
    auto* capa = new QVBoxLayout(this);
    capa->addWidget(division, 1);
    capa->addLayout(pie);

    const auto ir = [this](QPushButton* b, void (CapturaFotoF2::*f)()) {
        connect(b, &QPushButton::clicked, this, [this, f] {
            (logica_.*f)();
            MostrarCarpeta();
        });
    };
    ir(d2, &CapturaFotoF2::IrAEscritorio);
    ir(d3, &CapturaFotoF2::IrADocumentos);
    ir(d4, &CapturaFotoF2::IrAMiPC);
    connect(d5, &QPushButton::clicked, this, [this] { logica_.AbrirExplorador(); });
    connect(d6, &QPushButton::clicked, this, [this] {
        if (logica_.IrAUltimaCarpeta()) MostrarCarpeta();
    });
    connect(folderView1_->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex& i) {
                logica_.IrACarpeta(carpetas_->filePath(i));
                fileView1_->setRootIndex(archivos_->setRootPath(logica_.Carpeta()));
            });
    // The tree fills in as folders are read: the chosen one is brought into
    // sight once its parents are there.
    connect(carpetas_, &QFileSystemModel::directoryLoaded, this,
            [this] { folderView1_->scrollTo(folderView1_->currentIndex(), QAbstractItemView::PositionAtCenter); });
    connect(fileView1_->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &VentanaCapturaFotoF2::ArchivoElegido);
    connect(b1, &QPushButton::clicked, this, [this] {
        logica_.Restablecer();
        MostrarImagen();
    });
    connect(b2, &QPushButton::clicked, this, [this] {
        logica_.Efectos();
        MostrarImagen();
    });
    connect(b3, &QPushButton::clicked, this, [this] {
        logica_.Visualizar();
        MostrarImagen();
    });
    connect(c2, &QPushButton::clicked, this, [this] {
        if (logica_.Aceptar()) accept();
    });
    connect(c1, &QPushButton::clicked, this, &QDialog::reject);

    ConfigurarToolTips(this, tip_, s.Tapiz);
    DimensionarVentana(this, 70, 75);
    MostrarCarpeta();
}

void VentanaCapturaFotoF2::MostrarCarpeta() {
    const QModelIndex i = carpetas_->index(logica_.Carpeta());
    for (QModelIndex p = i.parent(); p.isValid(); p = p.parent()) folderView1_->expand(p);
    folderView1_->setCurrentIndex(i);
    folderView1_->expand(i);
    folderView1_->scrollTo(i, QAbstractItemView::PositionAtCenter);
    fileView1_->setRootIndex(archivos_->setRootPath(logica_.Carpeta()));
}

void VentanaCapturaFotoF2::ArchivoElegido(const QModelIndex& i) {
    if (!i.isValid() || archivos_->isDir(i)) return;
    logica_.SeleccionarArchivo(archivos_->filePath(i));
    MostrarImagen();
}

void VentanaCapturaFotoF2::MostrarImagen() {
    const QImage& imagen = logica_.Imagen();
    picture1_->PonerImagen(imagen);
    const QString mascara = QStringLiteral("#,##0");
    lblArchivo_->setText(imagen.isNull() ? QString()
                                         : QStringLiteral("%1   %2 × %3 px")
                                               .arg(QFileInfo(logica_.Archivo()).fileName(),
                                                    Formato(imagen.width(), mascara), Formato(imagen.height(), mascara)));
}
