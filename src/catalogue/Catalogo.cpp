#include "catalogue/Catalogo.h"

#include "shell/Sesion.h"

bool LeerCatalogoPiezas(Sesion& s) {
    return AbrirTabla(s.ConexionCatalogo, s.RsPiezas, QStringLiteral("SELECT * FROM Piezas ORDER BY ClavePieza")) == 0;
}

bool LeerCatalogoConexiones(Sesion& s) {
    return AbrirTabla(s.ConexionCatalogo, s.RsConexiones,
                      QStringLiteral("SELECT * FROM Conexiones ORDER BY ClaveConexion")) == 0;
}

QString ColumnaUnidades(int opcionUsoPiezas) {
    switch (opcionUsoPiezas) {
    case 1: return QStringLiteral("PrivadoFriaCaliente");
    case 2: return QStringLiteral("PublicoTotal");
    case 3: return QStringLiteral("PublicoFriaCaliente");
    default: return QStringLiteral("PrivadoTotal");
    }
}

namespace {

struct Espejo {
    QString imagenes, catalogo, clave;
};

Espejo EspejoDe(TablaImagenes t) {
    if (t == TablaImagenes::Piezas)
        return {QStringLiteral("ImgPiezas"), QStringLiteral("Piezas"), QStringLiteral("ClavePieza")};
    return {QStringLiteral("ImgConexiones"), QStringLiteral("Conexiones"), QStringLiteral("ClaveConexion")};
}

bool Copiar(Sesion& s, const Espejo& e) {
    Conexion& proyecto = s.ConexionProyecto;
    Consulta cat(s.ConexionCatalogo, QStringLiteral("SELECT ") + e.clave + QStringLiteral(", ExisteFoto, Foto FROM ") +
                                         e.catalogo + QStringLiteral(" ORDER BY ") + e.clave);
    if (!cat.Valida() || !cat.Siguiente()) return false;  // empty catalogue: nothing changes
    Transaccion t(proyecto);
    if (!proyecto.Ejecutar(QStringLiteral("DELETE FROM ") + e.imagenes)) return false;
    Consulta ins(proyecto, QStringLiteral("INSERT INTO ") + e.imagenes +
                               QStringLiteral(" (Clave, ExisteFoto, Foto) VALUES (?,?,?)"));
    do {
        if (!ins.Ejecutar({cat.Columna(0), cat.Columna(1), cat.Columna(2)})) return false;
    } while (cat.Siguiente());
    return t.Confirmar();
}

}  // namespace

bool VerifiqueImagenesProyecto(Sesion& s, TablaImagenes tabla) {
    const Espejo e = EspejoDe(tabla);
    if (!s.ConexionProyecto.Abierta()) return false;
    const Valor n = s.ConexionProyecto.Escalar(QStringLiteral("SELECT count(*) FROM ") + e.imagenes);
    if (!n.isValid() || ComoEntero(n) > 0) return false;
    return Copiar(s, e);
}

bool ActualizarImagenesProyecto(Sesion& s, TablaImagenes tabla) {
    if (!s.ConexionProyecto.Abierta()) return false;
    return Copiar(s, EspejoDe(tabla));
}
