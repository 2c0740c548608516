#pragma once
// The desktop program: the start of the session and the main window.
int EjecutarEscritorio(int argc, char** argv);
