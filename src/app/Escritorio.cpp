#include "app/Escritorio.h"

#include "shell/Inicio.h"
#include "shell/Sesion.h"
#include "shell/Titulos.h"

#include <QApplication>
#include <QLabel>
#include <QMainWindow>

int EjecutarEscritorio(int argc, char** argv) {
    QApplication app(argc, argv);
    Sesion s;
    Iniciar(s);
    QMainWindow ventana;
    ventana.setWindowTitle(TituloPrincipal(s));
    auto* rotulo = new QLabel(QStringLiteral("Nivo-Fontaria 2024"), &ventana);
    rotulo->setAlignment(Qt::AlignCenter);
    ventana.setCentralWidget(rotulo);
    ventana.resize(1024, 700);
    ventana.show();
    return app.exec();
}
