// fontaria: with no argument the desktop program, with a verb the command line.

#include "app/Escritorio.h"
#include "app/LineaComandos.h"

#include <QCoreApplication>

int main(int argc, char** argv) {
    if (argc < 2) return EjecutarEscritorio(argc, argv);
    QCoreApplication app(argc, argv);
    return EjecutarLineaComandos(app.arguments());
}
