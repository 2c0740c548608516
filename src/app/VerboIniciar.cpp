#include "app/LineaComandos.h"
#include "shell/Inicio.h"
#include "shell/Sesion.h"

// fontaria iniciar: the start of a session, then DirectorioDatos.
int VerboIniciar(const QStringList& args) {
    if (args.size() != 2) return Fallar(QStringLiteral("Uso: fontaria iniciar"));
    Sesion s;
    Iniciar(s);
    Imprimir(s.DirectorioDatos);
    if (s.ConexionFallida != 0)
        return Fallar(QStringLiteral("No se puede abrir el catálogo: ") + s.ConexionCatalogo.UltimoError());
    return Salida::Bien;
}
