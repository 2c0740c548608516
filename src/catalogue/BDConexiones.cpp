#include "catalogue/BDConexiones.h"

#include "entry/ConexionesRamales.h"
#include "shell/Sesion.h"

BDConexiones::BDConexiones(Sesion& s, Dialogos& d, ConexionesRamales* destino)
    : s_(s), destino_(destino), logica_(TipoCatalogo::Conexiones(), s, d, destino && s.CatalogoDesdeProyecto) {}

bool BDConexiones::Capturar() {
    const int fila = logica_.FilaActiva();
    if (!logica_.CapturarVisible() || logica_.Registro(fila) == 0) return false;
    const Registros& rs = s_.RsConexiones;
    ConexionCapturada conexion;
    conexion.clave = int(ComoEntero(rs.Campo(QStringLiteral("ClaveConexion"))));
    conexion.nombre = ComoTexto(rs.Campo(QStringLiteral("NombreConexion")));
    conexion.longitudEquivalente = ComoDoble(rs.Campo(QStringLiteral("LongitudEquivalente")));
    conexion.foto = logica_.Spread1.Imagen(fila, 2);
    return destino_->Capturar(conexion);
}
