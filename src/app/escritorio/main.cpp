// fontaria-escritorio: the desktop program, started by `fontaria` without a
// verb.  Apart so that the command line loads no widget library.

#include "app/Escritorio.h"

int main(int argc, char** argv) { return EjecutarEscritorio(argc, argv); }
