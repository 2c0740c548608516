#include "shell/screens/VentanaRespaldoArchivos.h"

#include "shell/RespaldoArchivos.h"
#include "shell/Sesion.h"
#include "widgets/NivoToolTip.h"
#include "widgets/Ventanas.h"

#include <QApplication>
#include <QGridLayout>
#include <QGroupBox>
#include <QProgressBar>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

VentanaRespaldoArchivos::VentanaRespaldoArchivos(Sesion& s, Dialogos& d, QWidget* padre) : QDialog(padre) {
    setObjectName(QStringLiteral("RespaldoArchivos"));
    setWindowTitle(QStringLiteral("Respaldar Archivos"));
    auto* capa = new QVBoxLayout;
    capa->addWidget(TituloPantalla(QStringLiteral("RESPALDAR Y COPIAR PROYECTOS"), this));
    auto* marco = new QGroupBox(QStringLiteral("Abrir la Carpeta de..."), this);
    auto* opciones = new QVBoxLayout(marco);
    const struct {
        const char* nombre;
        int opcion;
        QString texto, tip;
    } filas[] = {
        {"Option1", 1,
         s.TipoRed == 1 ? QStringLiteral("Las Redes de Acueductos") : QStringLiteral("Los Proyectos de Viviendas y Edificios"),
         QStringLiteral(" Abrir la carpeta de los proyectos para copiarlos ")},
        {"Option7", 7, QStringLiteral("Los Reportes Exportados"),
         QStringLiteral(" Abrir la carpeta de los reportes exportados ")},
    };
    for (const auto& f : filas) {
        auto* o = new QRadioButton(f.texto, marco);
        o->setObjectName(QString::fromLatin1(f.nombre));
        o->setToolTip(f.tip);
        opciones->addWidget(o);
        // An option acts at once, as the screen's Aceptar.
        const int opcion = f.opcion;
        connect(o, &QRadioButton::clicked, this, [this, &s, &d, opcion] {
            if (AbrirCarpetaRespaldo(s, d, opcion)) accept();
        });
    }
    capa->addWidget(marco);

    auto* zip = new QGroupBox(QStringLiteral("Respaldo Comprimido (ZIP)"), this);
    auto* filaZip = new QGridLayout(zip);
    auto* crear = BotonNivo(QStringLiteral("LSButtonZip"), QStringLiteral("Crear Respaldo ZIP"), zip,
                            QStyle::SP_DialogSaveButton,
                            QStringLiteral(" Guardar los proyectos, las redes y el catálogo \n en un archivo ZIP con la fecha "));
    auto* restaurar = BotonNivo(QStringLiteral("LSButtonRestaurar"), QStringLiteral("Restaurar Respaldo ZIP"), zip,
                                QStyle::SP_DialogOpenButton,
                                QStringLiteral(" Restaurar los archivos de un respaldo ZIP \n (los más recientes se conservan) "));
    auto* barra = new QProgressBar(zip);
    barra->setObjectName(QStringLiteral("ProgressBar1"));
    barra->setRange(0, 100);
    barra->setValue(0);
    filaZip->addWidget(crear, 0, 0);
    filaZip->addWidget(restaurar, 0, 1);
    filaZip->addWidget(barra, 1, 0, 1, 2);
    capa->addWidget(zip);
    const auto avance = [barra](double f) {
        barra->setValue(int(f * 100));
        QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    };
    connect(crear, &QPushButton::clicked, this, [&s, &d, avance] { CrearRespaldoZip(s, d, avance); });
    connect(restaurar, &QPushButton::clicked, this, [&s, &d, avance] { RestaurarRespaldo(s, d, avance); });

    auto* cerrar = BotonRetorno(this);
    connect(cerrar, &QPushButton::clicked, this, &QDialog::reject);
    capa->addWidget(cerrar, 0, Qt::AlignRight);
    // Maximised, the controls keep their size in the middle of the window.
    PonerCentrado(this, capa);
    ConfigurarToolTips(this, new NivoToolTip(this), s.Tapiz);
}
