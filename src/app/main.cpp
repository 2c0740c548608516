// fontaria: with a verb the command line; with no argument it becomes the
// desktop program, a separate executable beside it, so that a verb pays for
// no widget, platform plugin or translation.

#include "app/LineaComandos.h"

#include "store/Archivos.h"

#include <cerrno>
#include <clocale>
#include <cstdio>
#include <cstring>
#include <string>
#include <unistd.h>

int main(int argc, char** argv) {
    if (argc < 2) {
        const std::string escritorio = ProgramaVecino("fontaria-escritorio");
        execv(escritorio.c_str(), argv);
        fprintf(stderr, "No se puede abrir el programa de escritorio %s: %s\n", escritorio.c_str(), strerror(errno));
        return Salida::Falla;
    }
    // No application object: a verb uses no event loop, and the object's
    // start (event dispatcher, plugins paths) is a third of a small run.
    // The C library still takes the user's locale, as the object would give it.
    setlocale(LC_ALL, "");
    // From the bytes themselves: the toolkit's own list loses a file name
    // that is not UTF-8.
    QStringList args;
    for (int i = 0; i < argc; ++i) args << RutaDesdeNativa(QByteArray(argv[i]));
    return EjecutarLineaComandos(args);
}
