#include "reports/screens/VentanaVerResultados.h"

#include "reports/motor/Reporte.h"
#include "reports/salida/SalidaReporte.h"
#include "shell/Sesion.h"
#include "widgets/NivoToolTip.h"
#include "widgets/Ventanas.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPrintDialog>
#include <QPrintPreviewWidget>
#include <QProgressDialog>
#include <QPushButton>
#include <QVBoxLayout>

VentanaVerResultados::VentanaVerResultados(Reporte& r, Sesion& s, Dialogos& d, QWidget* padre)
    : QDialog(padre), r_(r), s_(s), d_(d), pantallas_(s, d, this), impresora_(QPrinter::HighResolution) {
    setObjectName(QStringLiteral("VerResultados"));
    setWindowTitle(Titulo());
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    setSizeGripEnabled(true);
    tip_ = new NivoToolTip(this);
    PrepararDispositivo(impresora_, r_.PlantillaActual());

    vista_ = new QPrintPreviewWidget(&impresora_, this);
    vista_->setObjectName(QStringLiteral("CRViewer1"));
    vista_->setZoomMode(QPrintPreviewWidget::FitToWidth);
    // Each page is drawn from the composed marks; nothing is measured again.
    connect(vista_, &QPrintPreviewWidget::paintRequested, this, [this](QPrinter* impresora) {
        CursorEspera espera;
        DibujarReporte(paginas_, *impresora);
    });
    connect(vista_, &QPrintPreviewWidget::previewChanged, this, &VentanaVerResultados::MostrarPagina);

    auto* capa = new QVBoxLayout(this);
    capa->setContentsMargins(4, 4, 4, 4);
    capa->addWidget(Botonera());
    capa->addWidget(vista_, 1);
    ConfigurarToolTips(this, tip_, s_.Tapiz);
    DimensionarVentana(this, 80, 90);
}

QString VentanaVerResultados::Titulo() { return QStringLiteral("VISTA PREVIA DE LOS REPORTES DEL PROGRAMA"); }

QWidget* VentanaVerResultados::Botonera() {
    auto* tira = new QWidget(this);
    auto* capa = new QHBoxLayout(tira);
    capa->setContentsMargins(0, 0, 0, 0);
    const auto boton = [&](const char* nombre, const QString& texto, std::optional<QStyle::StandardPixmap> icono,
                           const QString& tip) {
        QPushButton* b = BotonNivo(QString::fromLatin1(nombre), texto, tira, icono, tip);
        capa->addWidget(b);
        return b;
    };
    auto* b1 = boton("Button1", QStringLiteral("Imprimir"), QStyle::SP_FileIcon,
                     QStringLiteral("Imprimir el informe en la impresora seleccionada "));
    auto* b2 = boton("Button2", QStringLiteral("Exportar"), QStyle::SP_DialogSaveButton,
                     QStringLiteral("Exportar el Informe a varios formatos "));
    auto* b3 = boton("Button3", QStringLiteral("Reportes Exportados"), QStyle::SP_DirOpenIcon,
                     QStringLiteral(" Explorador de Windows "));
    capa->addSpacing(16);
    auto* primera = boton("Primera", QString(), QStyle::SP_MediaSkipBackward, QStringLiteral("Primera página "));
    auto* anterior = boton("Anterior", QString(), QStyle::SP_MediaSeekBackward, QStringLiteral("Página anterior "));
    pagina_ = new QLabel(tira);
    pagina_->setObjectName(QStringLiteral("Pagina"));
    pagina_->setMinimumWidth(fontMetrics().horizontalAdvance(QStringLiteral("Página 0000 de 0000")) + 8);
    pagina_->setAlignment(Qt::AlignCenter);
    capa->addWidget(pagina_);
    auto* siguiente = boton("Siguiente", QString(), QStyle::SP_MediaSeekForward, QStringLiteral("Página siguiente "));
    auto* ultima = boton("Ultima", QString(), QStyle::SP_MediaSkipForward, QStringLiteral("Última página "));
    capa->addSpacing(16);
    auto* menos = boton("Alejar", QStringLiteral("Alejar"), std::nullopt, QStringLiteral("Alejar la página "));
    auto* mas = boton("Acercar", QStringLiteral("Acercar"), std::nullopt, QStringLiteral("Acercar la página "));
    auto* ancho = boton("AjustarAncho", QStringLiteral("Ancho"), std::nullopt,
                        QStringLiteral("La página al ancho de la ventana "));
    auto* entera = boton("PaginaEntera", QStringLiteral("Página"), std::nullopt,
                         QStringLiteral("La página entera en la ventana "));
    capa->addStretch(1);
    auto* b5 = boton("LSButton5", QStringLiteral("Cerrar Vista"), QStyle::SP_DialogCloseButton,
                     QStringLiteral(" Cerrar la Vista Actual "));
    auto* retorno = boton("btoRetorno", QStringLiteral("Retorno"), QStyle::SP_ArrowBack, QStringLiteral(" Retorno "));

    connect(b1, &QPushButton::clicked, this, &VentanaVerResultados::Imprimir);
    connect(b2, &QPushButton::clicked, this, [this] { ExportarDesdeVista(r_, d_, pantallas_); });
    connect(b3, &QPushButton::clicked, this, [this] { AbrirReportesExportados(s_, d_); });
    connect(primera, &QPushButton::clicked, this, [this] { vista_->setCurrentPage(1); });
    connect(anterior, &QPushButton::clicked, this, [this] { vista_->setCurrentPage(vista_->currentPage() - 1); });
    connect(siguiente, &QPushButton::clicked, this, [this] { vista_->setCurrentPage(vista_->currentPage() + 1); });
    connect(ultima, &QPushButton::clicked, this, [this] { vista_->setCurrentPage(vista_->pageCount()); });
    connect(menos, &QPushButton::clicked, vista_, [this] { vista_->zoomOut(); });
    connect(mas, &QPushButton::clicked, vista_, [this] { vista_->zoomIn(); });
    connect(ancho, &QPushButton::clicked, vista_, &QPrintPreviewWidget::fitToWidth);
    connect(entera, &QPushButton::clicked, vista_, &QPrintPreviewWidget::fitInView);
    // The preview holds one view: closing it closes the screen.
    connect(b5, &QPushButton::clicked, this, &QDialog::accept);
    connect(retorno, &QPushButton::clicked, this, &QDialog::accept);
    return tira;
}

bool VentanaVerResultados::Componer() {
    QProgressDialog avance(QStringLiteral("Preparando las páginas del reporte..."), QStringLiteral("Cancelar"), 0, 1,
                           parentWidget());
    avance.setWindowTitle(Titulo());
    avance.setWindowModality(Qt::WindowModal);
    avance.setMinimumDuration(500);
    {
        CursorEspera espera;
        paginas_ = ComponerReporte(r_.PlantillaActual(), r_.Datos(), impresora_, [&avance](int hechas, int total) {
            avance.setMaximum(std::max(total, 1));
            avance.setValue(hechas);
            return !avance.wasCanceled();
        });
    }
    return !paginas_.empty();
}

QPushButton* VentanaVerResultados::Boton(const QString& nombre) const { return findChild<QPushButton*>(nombre); }

void VentanaVerResultados::MostrarPagina() {
    pagina_->setText(QStringLiteral("Página %1 de %2").arg(vista_->currentPage()).arg(vista_->pageCount()));
}

// The printer lays the report out on its own metrics.
void VentanaVerResultados::Imprimir() {
    QPrinter impresora(QPrinter::HighResolution);
    PrepararDispositivo(impresora, r_.PlantillaActual());
    QPrintDialog dialogo(&impresora, this);
    dialogo.setWindowTitle(QStringLiteral("Imprimir el Reporte"));
    if (dialogo.exec() != QDialog::Accepted) return;
    CursorEspera espera;
    r_.Imprimir(impresora);
}
