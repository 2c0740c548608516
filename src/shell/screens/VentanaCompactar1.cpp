#include "shell/screens/VentanaCompactar1.h"

#include "shell/Sesion.h"
#include "widgets/NivoToolTip.h"
#include "widgets/Ventanas.h"

#include <QApplication>
#include <QFileSystemModel>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QListView>
#include <QProgressBar>
#include <QPushButton>
#include <QTreeView>
#include <QVBoxLayout>

VentanaCompactar1::VentanaCompactar1(Sesion& s, Dialogos& d, QWidget* padre)
    : QDialog(padre), logica_(s, d) {
    setObjectName(QStringLiteral("Compactar1"));
    setWindowTitle(QStringLiteral("Reparar y Compactar Archivos de Obras o Base Datos"));
    auto* capa = new QVBoxLayout(this);
    capa->addWidget(TituloPantalla(QStringLiteral("Reparar y Compactar Archivos"), this));

    carpetas_ = new QFileSystemModel(this);
    carpetas_->setFilter(QDir::AllDirs | QDir::NoDotAndDotDot);
    carpetas_->setRootPath(s.DirectorioDatos);
    folderView1_ = new QTreeView(this);
    folderView1_->setObjectName(QStringLiteral("FolderView1"));
    folderView1_->setModel(carpetas_);
    folderView1_->setRootIndex(carpetas_->index(s.DirectorioDatos));
    for (int c = 1; c < carpetas_->columnCount(); ++c) folderView1_->hideColumn(c);
    folderView1_->header()->hide();

    archivos_ = new QFileSystemModel(this);
    archivos_->setFilter(QDir::Files);
    QStringList patrones;
    for (const QString& p : Compactar1::Patron().split(QLatin1Char(';'))) patrones << p.trimmed();
    archivos_->setNameFilters(patrones);
    archivos_->setNameFilterDisables(false);
    fileView1_ = new QListView(this);
    fileView1_->setObjectName(QStringLiteral("FileView1"));
    fileView1_->setModel(archivos_);
    fileView1_->setSelectionMode(QAbstractItemView::ExtendedSelection);

    auto* listas = new QHBoxLayout;
    listas->addWidget(folderView1_, 1);
    listas->addWidget(fileView1_, 1);
    capa->addLayout(listas, 1);

    lsLabel1_ = new QLabel(this);
    lsLabel1_->setObjectName(QStringLiteral("LSLabel1"));
    progressBar1_ = new QProgressBar(this);
    progressBar1_->setObjectName(QStringLiteral("ProgressBar1"));
    progressBar1_->setValue(0);
    capa->addWidget(lsLabel1_);
    capa->addWidget(progressBar1_);

    auto* pie = new QHBoxLayout;
    auto* todas = BotonNivo(QStringLiteral("SSCommand1"), QStringLiteral("Marcar Todas"), this,
                            QStyle::SP_DialogYesButton, QStringLiteral(" Marcar Todas las Partidas del Presupuesto "));
    auto* ninguna = BotonNivo(QStringLiteral("LSButton1"), QStringLiteral("Desmarcar Todas"), this,
                              QStyle::SP_DialogNoButton, QStringLiteral(" Desmarcar Todas las Partidas del Presupuesto "));
    auto* aceptar = BotonNivo(QStringLiteral("Command2"), QStringLiteral("Aceptar"), this, QStyle::SP_DialogApplyButton,
                              QStringLiteral(" Reparar y Compactar los Archivos Seleccionados "));
    auto* cancelar = BotonNivo(QStringLiteral("Command1"), QStringLiteral("Cancelar"), this,
                               QStyle::SP_DialogCancelButton, QStringLiteral(" Cancelar "));
    pie->addWidget(todas);
    pie->addWidget(ninguna);
    pie->addStretch(1);
    pie->addWidget(aceptar);
    pie->addWidget(cancelar);
    capa->addLayout(pie);

    connect(folderView1_->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex& i) { MostrarCarpeta(carpetas_->filePath(i)); });
    connect(todas, &QPushButton::clicked, fileView1_, &QListView::selectAll);
    connect(ninguna, &QPushButton::clicked, fileView1_, &QListView::clearSelection);
    connect(aceptar, &QPushButton::clicked, this, &VentanaCompactar1::Aceptar);
    connect(cancelar, &QPushButton::clicked, this, &QDialog::reject);
    logica_.Avance = [this](int hechos, int total, const QString& etiqueta) {
        progressBar1_->setMaximum(total);
        progressBar1_->setValue(hechos);
        lsLabel1_->setText(etiqueta);
        QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    };

    const QString inicial = s.RutaDatos(QStringLiteral("Proyectos"));
    folderView1_->setCurrentIndex(carpetas_->index(QDir(inicial).exists() ? inicial : s.DirectorioDatos));
    MostrarCarpeta(QDir(inicial).exists() ? inicial : s.DirectorioDatos);
    ConfigurarToolTips(this, new NivoToolTip(this), s.Tapiz);
    resize(760, 480);
}

void VentanaCompactar1::MostrarCarpeta(const QString& carpeta) {
    fileView1_->setRootIndex(archivos_->setRootPath(carpeta));
}

QStringList VentanaCompactar1::Seleccionados() const {
    QModelIndexList elegidos = fileView1_->selectionModel()->selectedIndexes();
    std::sort(elegidos.begin(), elegidos.end(), [](const QModelIndex& a, const QModelIndex& b) { return a.row() < b.row(); });
    QStringList rutas;
    for (const QModelIndex& i : elegidos) rutas << archivos_->filePath(i);
    return rutas;
}

void VentanaCompactar1::Aceptar() {
    const QStringList elegidos = Seleccionados();
    if (elegidos.isEmpty()) {
        logica_.Aceptar(elegidos);  // says that nothing was chosen
        return;
    }
    {
        CursorEspera espera;
        logica_.Aceptar(elegidos);
    }
    accept();
}
