#include "shell/screens/VentanaPrincipal.h"

#include "shell/Herramientas.h"
#include "shell/Inicio.h"
#include "shell/Sesion.h"
#include "shell/screens/VentanaMsgBox.h"
#include "widgets/NivoTab.h"
#include "widgets/NivoToolTip.h"
#include "widgets/PanelTapiz.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QFrame>
#include <QLabel>
#include <QMenuBar>
#include <QScreen>
#include <QStatusBar>
#include <QStyle>
#include <QTimer>
#include <QToolBar>
#include <QVBoxLayout>

namespace {

QIcon IconoHerramienta(const QString& id) {
    QStyle* st = QApplication::style();
    static const QHash<QString, QStyle::StandardPixmap> iconos = {
        {QStringLiteral("ID_M1_Abrir"), QStyle::SP_DialogOpenButton},
        {QStringLiteral("ID_M1_Nuevo"), QStyle::SP_FileIcon},
        {QStringLiteral("ID_M1_Modificar"), QStyle::SP_FileDialogDetailedView},
        {QStringLiteral("ID_M1_SalvarComo"), QStyle::SP_DialogSaveButton},
        {QStringLiteral("ID_M1_Eliminar"), QStyle::SP_TrashIcon},
        {QStringLiteral("ID_M4_Configurar"), QStyle::SP_FileDialogListView},
        {QStringLiteral("ID_M1_Salida"), QStyle::SP_DialogCloseButton},
        {QStringLiteral("ID_M2_AnalisisRed"), QStyle::SP_FileDialogContentsView},
        {QStringLiteral("ID_M2_TanqueH"), QStyle::SP_DriveHDIcon},
        {QStringLiteral("ID_M2_Computos"), QStyle::SP_FileDialogInfoView},
        {QStringLiteral("ID_M3_Piezas"), QStyle::SP_DirIcon},
        {QStringLiteral("ID_M3_Conexiones"), QStyle::SP_DirLinkIcon},
        {QStringLiteral("ID_M4_ImprimirHojas"), QStyle::SP_FileLinkIcon},
        {QStringLiteral("ID_A_Abrir"), QStyle::SP_DialogOpenButton},
        {QStringLiteral("ID_A_Nuevo"), QStyle::SP_FileIcon},
        {QStringLiteral("ID_A_Modificar"), QStyle::SP_FileDialogDetailedView},
        {QStringLiteral("ID_A_Salvar"), QStyle::SP_DialogSaveButton},
        {QStringLiteral("ID_A_Eliminar"), QStyle::SP_TrashIcon},
        {QStringLiteral("ID_A_Analisis"), QStyle::SP_FileDialogContentsView},
        {QStringLiteral("ID_M5_Reparar"), QStyle::SP_BrowserReload},
        {QStringLiteral("ID_M5_Respaldar"), QStyle::SP_DriveFDIcon},
        {QStringLiteral("ID_TemasAyuda"), QStyle::SP_DialogHelpButton},
        {QStringLiteral("ID_Manual"), QStyle::SP_FileDialogStart},
        {QStringLiteral("ID_Ejemplos"), QStyle::SP_FileDialogToParent},
        {QStringLiteral("ID_Explorador"), QStyle::SP_DirHomeIcon},
        {QStringLiteral("ID_Sobre"), QStyle::SP_MessageBoxInformation},
    };
    const QIcon base = id == QLatin1String("ID_Sobre") ? IconoPrograma()
                       : iconos.contains(id)          ? st->standardIcon(iconos.value(id))
                                                      : QIcon();
    if (base.isNull()) return base;
    // A disabled tool must read as such, whatever the icon theme draws.
    const QPixmap normal = base.pixmap(32, 32);
    QImage gris = normal.toImage().convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < gris.height(); ++y) {
        auto* fila = reinterpret_cast<QRgb*>(gris.scanLine(y));
        for (int x = 0; x < gris.width(); ++x) {
            const int g = 150 + qGray(fila[x]) / 3;
            fila[x] = qRgba(g, g, g, qAlpha(fila[x]) / 2);
        }
    }
    QIcon icono;
    icono.addPixmap(normal, QIcon::Normal);
    icono.addPixmap(QPixmap::fromImage(gris), QIcon::Disabled);
    return icono;
}

}  // namespace

VentanaPrincipal::VentanaPrincipal(Sesion& s, ProyectoEdificio& p, Dialogos& d, Pantallas& pantallas, QWidget* padre)
    : QMainWindow(padre), s_(s), logica_(s, p, d, pantallas) {
    setObjectName(QStringLiteral("MenuPrincipal"));
    setWindowIcon(IconoPrograma());
    tip_ = new NivoToolTip(this);
    CrearAcciones();
    CrearMenus();
    CrearBarra();

    auto* centro = new QWidget(this);
    auto* capa = new QVBoxLayout(centro);
    capa->setContentsMargins(0, 4, 0, 0);
    capa->setSpacing(0);
    tab_ = new NivoTab(centro);
    tab_->setObjectName(QStringLiteral("Tab1"));
    tab_->addTab(QStringLiteral("  FONTARIA: VIVIENDAS Y EDIFICIOS  "));
    tab_->addTab(QStringLiteral("  ACUEDUCTOS: REDES MALLADAS  "));
    connect(tab_, &NivoTab::Click, this, [this](int t) {
        setUpdatesEnabled(false);
        logica_.ClickTab(t);
        Refrescar();
        setUpdatesEnabled(true);
    });
    capa->addWidget(tab_);
    tapiz_ = new PanelTapiz(centro);
    tapiz_->setObjectName(QStringLiteral("Picture1"));
    capa->addWidget(tapiz_, 1);
    auto* linea = new QFrame(centro);
    linea->setFrameShape(QFrame::HLine);
    linea->setFrameShadow(QFrame::Sunken);
    capa->addWidget(linea);
    setCentralWidget(centro);

    banner_ = new QLabel(this);
    banner_->setObjectName(QStringLiteral("Banner"));
    QFont f(QStringLiteral("Verdana"));
    f.setPointSize(9);
    banner_->setFont(f);
    statusBar()->addPermanentWidget(banner_);
    statusBar()->setSizeGripEnabled(true);
    logica_.AlCambiar = [this] { RefrescarEstado(); };
}

void VentanaPrincipal::CrearAcciones() {
    for (const Herramienta& h : TablaHerramientas()) {
        auto* a = new QAction(IconoHerramienta(h.id), TextoMenu(h), this);
        a->setObjectName(h.id);
        a->setToolTip(Trim(h.tip).isEmpty() ? TextoMenu(h) : h.tip);
        a->setIconText(TextoMenu(h));
        const QString id = h.id;
        connect(a, &QAction::triggered, this, [this, id] { EjecutarHerramienta(id); });
        acciones_.insert(h.id, a);
    }
}

void VentanaPrincipal::CrearMenus() {
    for (const MenuBarra& m : MenusPrincipales()) {
        QMenu* menu = menuBar()->addMenu(m.titulo);
        menu->setObjectName(m.id);
        menu->menuAction()->setObjectName(m.id);
        for (const QString& id : m.herramientas) {
            if (id == QLatin1String("-"))
                menu->addSeparator();
            else if (QAction* a = acciones_.value(id))
                menu->addAction(a);
        }
        menus_.insert(m.id, menu);
    }
}

void VentanaPrincipal::CrearBarra() {
    barra_ = addToolBar(QStringLiteral("General"));
    barra_->setObjectName(QStringLiteral("ToolBar1"));
    barra_->setMovable(false);
    barra_->setIconSize(QSize(32, 32));
    barra_->setToolButtonStyle(Qt::ToolButtonIconOnly);
    for (const QString& id : BarraHerramientas()) barra_->addAction(acciones_.value(id));
}

QString VentanaPrincipal::TextoBanner() const { return banner_->text(); }

void VentanaPrincipal::Arrancar(const QString& rutaPrograma) {
    // The tips and the caption come first, while no project is open.
    ConfigurarToolTips(this, tip_, s_.Tapiz);
    Refrescar();
    // The session's start, the first mode's menus, the banner.
    Iniciar(s_, rutaPrograma);
    logica_.InicioMenu();
    banner_->setText(MenuPrincipal::TextoRevision());
    // The settings read at the start take effect on the wallpaper and tips.
    tip_->Aplicar(s_.Tapiz);
    Refrescar();

    if (const QScreen* pantalla = QGuiApplication::primaryScreen()) {
        const QRect r = pantalla->availableGeometry();
        resize(r.width() * 95 / 100, r.height() * 90 / 100);
        move(-20000, -20000);
        move(r.x() + (r.width() - width()) / 2, r.y() + (r.height() - height()) / 2);
    }
    // Nothing is painted until the first activation, so the engineer sees no
    // intermediate layout; a desktop without activation unlocks it shortly.
    setUpdatesEnabled(false);
    QTimer::singleShot(800, this, &VentanaPrincipal::Desbloquear);
}

void VentanaPrincipal::Desbloquear() {
    if (!updatesEnabled()) {
        setUpdatesEnabled(true);
        update();
    }
}

void VentanaPrincipal::EjecutarHerramienta(const QString& id) {
    if (!logica_.Ejecutar(id)) {
        close();
        return;
    }
    Refrescar();
}

void VentanaPrincipal::Refrescar() {
    RefrescarEstado();
    tapiz_->Aplicar(s_.Tapiz);
    tip_->Aplicar(s_.Tapiz);
}

void VentanaPrincipal::RefrescarEstado() {
    for (auto it = acciones_.begin(); it != acciones_.end(); ++it) {
        it.value()->setVisible(logica_.Visible(it.key()));
        it.value()->setEnabled(logica_.Habilitada(it.key()));
    }
    for (auto it = menus_.begin(); it != menus_.end(); ++it) it.value()->menuAction()->setVisible(logica_.Visible(it.key()));
    tab_->PonerTab(logica_.TabActual());
    setWindowTitle(logica_.Titulo());
}

void VentanaPrincipal::keyPressEvent(QKeyEvent* e) {
    if (logica_.TeclaPulsada(e->key() == Qt::Key_Escape)) {
        close();
        return;
    }
    QMainWindow::keyPressEvent(e);
}

void VentanaPrincipal::closeEvent(QCloseEvent* e) {
    if (!logica_.PuedeCerrar()) {
        e->ignore();
        return;
    }
    tip_->hide();
    QMainWindow::closeEvent(e);
}

bool VentanaPrincipal::event(QEvent* e) {
    if (e->type() == QEvent::WindowActivate) {
        if (!activada_) {
            activada_ = true;
            Desbloquear();
        }
        logica_.Activacion();
    }
    return QMainWindow::event(e);
}
