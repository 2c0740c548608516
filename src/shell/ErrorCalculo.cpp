#include "shell/ErrorCalculo.h"

#include "base/Dialogos.h"
#include "base/ErrorEjecucion.h"
#include "shell/Titulos.h"

void MostrarErrorCalculo(Dialogos& d, const ErrorEjecucion& e) {
    d.MostrarMensaje(e.Mensaje() + (e.detalle().isEmpty() ? QString() : QStringLiteral("\n") + e.detalle()),
                     QStringLiteral("Error en el Cálculo..."), TituloProyectoFontaria());
}
