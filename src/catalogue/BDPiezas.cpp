#include "catalogue/BDPiezas.h"

#include "catalogue/Catalogo.h"
#include "entry/PiezasRamales.h"
#include "shell/Sesion.h"

BDPiezas::BDPiezas(Sesion& s, Dialogos& d, PiezasRamales* destino)
    : s_(s), destino_(destino), logica_(TipoCatalogo::Piezas(), s, d, destino && s.CatalogoDesdeProyecto) {}

bool BDPiezas::Capturar() {
    const int fila = logica_.FilaActiva();
    if (!logica_.CapturarVisible() || logica_.Registro(fila) == 0) return false;
    const Registros& rs = s_.RsPiezas;
    PiezaCapturada pieza;
    pieza.clave = int(ComoEntero(rs.Campo(QStringLiteral("ClavePieza"))));
    pieza.nombre = ComoTexto(rs.Campo(QStringLiteral("NombrePieza")));
    for (int i = 0; i < 4; ++i) pieza.unidades[i] = ComoDoble(rs.Campo(ColumnaUnidades(i)));
    pieza.foto = logica_.Spread1.Imagen(fila, 2);
    return destino_->Capturar(pieza);
}
