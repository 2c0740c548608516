#include "shell/Sesion.h"

int AbrirConexionProyecto(Sesion& s) {
    s.ConexionFallida = AbrirConexion(s.ConexionProyecto, s.ArchivoProyecto);
    return s.ConexionFallida;
}
