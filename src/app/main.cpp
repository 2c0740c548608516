// fontaria: with no argument the desktop program, with a verb the command line.

#include "app/Escritorio.h"
#include "app/LineaComandos.h"

#include "store/Archivos.h"

#include <QCoreApplication>

int main(int argc, char** argv) {
    if (argc < 2) return EjecutarEscritorio(argc, argv);
    QCoreApplication app(argc, argv);
    // From the bytes themselves: the toolkit's own list loses a file name
    // that is not UTF-8.
    QStringList args;
    for (int i = 0; i < argc; ++i) args << RutaDesdeNativa(QByteArray(argv[i]));
    return EjecutarLineaComandos(args);
}
