#include "entry/ConexionesRamales.h"

#include "base/Dialogos.h"
#include "base/Nivo.h"
#include "catalogue/Catalogo.h"
#include "model/ProyectoEdificio.h"
#include "shell/Sesion.h"
#include "shell/Titulos.h"

#include <algorithm>

namespace {

const QString CampoClave = QStringLiteral("ClaveConexion");
const QString TextoAutomatico = QStringLiteral("Automático");

QString NombreCatalogo(const Sesion& s) {
    return Trim(ComoTexto(s.RsConexiones.Campo(QStringLiteral("NombreConexion"))));
}

}  // namespace

ConexionesRamales::ConexionesRamales(ProyectoEdificio& p, Sesion& s, Dialogos& d, EditorRamales& editor)
    : p_(p), s_(s), d_(d), filas_(Spread1, Spread2, p, s, d, editor, p.NConexiones, TablaImagenes::Conexiones) {
    filas_.salvarRamal = [this] { SalvarRamal(); };
    filas_.coloquePantalla = [this](int ramal) { ColoquePantalla(ramal); };
}

const AspectoFilas& ConexionesRamales::Aspecto() {
    static const AspectoFilas a = [] {
        AspectoFilas a;
        a.titulo = QStringLiteral("Conexiones en los Ramales del Proyecto");
        a.rapidos = {
            {3, QStringLiteral("Llave de Compuerta"), QStringLiteral("Anexar LLave de Compuerta Abierta. ")},
            {5, QStringLiteral("Codo de 90°"), QStringLiteral("Anexar Codo de 90 Grados Normal. ")},
            {10, QStringLiteral("Tee Normal"), QStringLiteral("Anexar Tee Normal (Flujo Normal). ")},
            {11, QStringLiteral("Tee Invertida"), QStringLiteral("Anexar Tee Normal (Flujo Invertido). ")},
            {12, QStringLiteral("Conexión Especial"),
             QStringLiteral("Anexar longitud equivalente de \nuna conexión especial. ")},
        };
        a.eliminar = {QStringLiteral("Eliminar"), QStringLiteral("Elimina la pieza de Coneción seleccionada. ")};
        a.eliminarTodas = {QStringLiteral("Elimina T."),
                           QStringLiteral("Elimina todas las Conexiones del \nramal seleccionado. ")};
        a.baseDatos = {QStringLiteral("Conexiones"), QStringLiteral("Base de datos de piezas de conexión")};
        a.imagen = {QStringLiteral("Imágenes"), QStringLiteral("Actualiza las imagenes de las conexiones. ")};
        a.reporte = {QStringLiteral("Reporte"), QStringLiteral("Imprimir las conexiones en los ramales.  ")};
        a.buscar = {QStringLiteral("Buscar Ramal"), QStringLiteral(" Buscar un Ramal ")};
        a.baja = {QStringLiteral("Baja"), QStringLiteral("Ir la siguiente ramal. ")};
        a.sube = {QStringLiteral("Sube"), QStringLiteral("Ir la ramal anterior. ")};
        a.menuBaseDatos = QStringLiteral("Base de Datos de Conexiones");
        a.menuEliminar = QStringLiteral("Eliminar la Conexión Seleccionada");
        return a;
    }();
    return a;
}

void ConexionesRamales::Cargar() {
    filas_.Cargar(QStringLiteral("No. de"), QStringLiteral("Conex."));
    Spread2.PonerEncabezado(1, FValor, QStringLiteral("Longitud"));
    Spread2.PonerEncabezado(2, FValor, QStringLiteral("Equiv.(m)"));
    LeerCatalogoConexiones(s_);
    ColoquePantalla(s_.RamalActual);
    Spread2.PonerActiva(1, FClave);
}

void ConexionesRamales::ColoquePantalla(int ramal) {
    Spread2.PonerFilas(0);
    if (ramal < 1 || ramal > p_.NumeroRamales) return;
    Spread2.PonerFilas(p_.NConexiones[ramal]);
    for (int f = 1; f <= Spread2.Filas(); ++f) {
        const int clave = p_.ConexionClave(ramal, f);
        if (clave < 1) {
            filas_.LimpiarFila(f);
            continue;
        }
        filas_.PonerFila(f, clave, p_.ConexionNombre(ramal, f), filas_.ImagenClave(clave),
                         p_.ConexionCantidad(ramal, f));
        // Rows of older projects below key 12 stored as fixed show, and are
        // stored, as automatic.
        PonerLongitud(f, p_.ConexionAutomatica(ramal, f) || clave < ClaveLongitudEspecial,
                      p_.ConexionLongitud(ramal, f));
    }
}

void ConexionesRamales::SalvarRamal() {
    if (!filas_.HayRamal()) return;
    const int b = s_.RamalActual;
    filas_.ReabrirImagenes();
    p_.NConexiones[b] = Spread2.Filas();
    const int posiciones = std::min(FilasPorRamal, p_.ConexionClave.UboundColumnas());
    for (int f = 1; f <= posiciones; ++f) {
        if (p_.ConexionClave(b, f) < ClaveLongitudEspecial && !p_.ConexionAutomatica(b, f))
            p_.ConexionAutomatica(b, f) = true;
        const int clave = f <= Spread2.Filas() ? filas_.ClaveFila(f) : 0;
        if (clave < 1) {
            p_.ConexionClave(b, f) = 0;
            p_.ConexionNombre(b, f).clear();
            p_.ConexionLongitud(b, f) = 0;
            p_.ConexionCantidad(b, f) = 0;
            p_.ConexionAutomatica(b, f) = false;
            continue;
        }
        const bool automatica = Trim(Spread2.Texto(f, FValor)) == TextoAutomatico;
        p_.ConexionAutomatica(b, f) = automatica;
        p_.ConexionClave(b, f) = clave;
        p_.ConexionNombre(b, f) = Trim(Spread2.Texto(f, FDescripcion));
        p_.ConexionLongitud(b, f) = automatica ? 0.0 : filas_.NumeroCelda(f, FValor);
        p_.ConexionCantidad(b, f) = int(filas_.NumeroCelda(f, FCantidad));
        filas_.GuardarImagenFila(f);
    }
}

bool ConexionesRamales::EditarRamales(int fila, int columna, const QString& texto) {
    return columna == 3 && filas_.ReservarFilas(fila, texto);
}

bool ConexionesRamales::EditarFilas(int fila, int columna, const QString& texto) {
    if (fila < 1 || fila > Spread2.Filas()) return false;
    if (columna == FClave) return TeclearClave(fila, texto);
    return filas_.EditarOtraColumna(fila, columna, texto);
}

void ConexionesRamales::ClaveNoExiste(int clave, const QString& encabezado) {
    d_.MostrarMensaje(QStringLiteral("Esta Clave no Existe en la Base de Datos...\nClave: ( ") + QString::number(clave) +
                          QStringLiteral(" )\n"),
                      encabezado, TituloProyectoFontaria());
}

bool ConexionesRamales::TeclearClave(int fila, const QString& texto) {
    int k = 0;
    if (!filas_.LeerEntero16(texto, QStringLiteral("La clave"), true, k)) {
        ColoquePantalla(s_.RamalActual);
        return false;
    }
    if (k == 0) {
        filas_.LimpiarFila(fila);
        filas_.Guardar();
        return true;
    }
    if (!FilasRamal::BuscarEnCatalogo(s_.RsConexiones, CampoClave, k)) {
        ClaveNoExiste(k, QStringLiteral("Base de Datos Conexiones..."));
        Spread2.PonerVacio(fila, FClave);
        return false;
    }
    QString nombre = NombreCatalogo(s_);
    if (k == ClaveLongitudEspecial) {
        // The prompt speaks of a sub-branch, as it always has.
        const auto r = d_.PedirTexto(QStringLiteral("Entre el Nombre del Sub-Ramal:"),
                                     QStringLiteral("Nombre de la Conexión"), nombre);
        if (!r || Trim(*r).isEmpty()) {
            ColoquePantalla(s_.RamalActual);
            return false;
        }
        nombre = UCase(Trim(*r));
    }
    PonerDelCatalogo(fila, nombre);
    filas_.Guardar();
    return true;
}

void ConexionesRamales::PonerDelCatalogo(int fila, const QString& nombre) {
    const int clave = int(ComoEntero(s_.RsConexiones.Campo(CampoClave)));
    filas_.PonerFila(fila, clave, nombre, filas_.ImagenClave(clave), 1);
    PonerLongitud(fila, clave < ClaveLongitudEspecial,
                  ComoDoble(s_.RsConexiones.Campo(QStringLiteral("LongitudEquivalente"))));
}

void ConexionesRamales::PonerLongitud(int fila, bool automatica, double longitud) {
    Celda& c = Spread2.Cel(fila, FValor);
    if (automatica) {
        Spread2.PonerTexto(fila, FValor, TextoAutomatico);
        c.tipo = TipoCelda::Texto;
    } else {
        Spread2.PonerNumero(fila, FValor, longitud, 2);
        c.tipo = TipoCelda::Heredado;
    }
    Spread2.Bloquear(fila, FValor, automatica);
}

void ConexionesRamales::BotonRapido(int clave) {
    // No row reserved: nothing to write and nothing said.
    if (Spread2.Filas() == 0) return;
    if (!FilasRamal::BuscarEnCatalogo(s_.RsConexiones, CampoClave, clave)) {
        ClaveNoExiste(clave, QStringLiteral("Base de Datos de Conexiones..."));
        return;
    }
    const int f = filas_.FilaActiva();
    QString nombre = NombreCatalogo(s_);
    if (!filas_.PuedeReemplazar(f,
                                QStringLiteral("Reemplazar: ") + Trim(Spread2.Texto(f, FDescripcion)) +
                                    QStringLiteral("\nPor la Conexión: ") + nombre + QStringLiteral("?"),
                                QStringLiteral("Reemplazar Conexiones...")))
        return;
    if (clave == ClaveLongitudEspecial) {
        Spread2.PonerTexto(f, FClave, QString::number(clave));
        const auto r = d_.PedirTexto(QStringLiteral("Clave (12)\n\n\n\n\nEntre el Nombre de la Conexión:"),
                                     QStringLiteral("Longitud Equivalente"), QString());
        if (!r || Trim(*r).isEmpty()) {
            filas_.Guardar();
            return;
        }
        nombre = UCase(Trim(*r));
    }
    PonerDelCatalogo(f, nombre);
    filas_.Bajar();
    filas_.Guardar();
}

bool ConexionesRamales::Capturar(const ConexionCapturada& conexion) {
    if (Spread2.Filas() == 0) return false;
    const int f = filas_.FilaActiva();
    if (!filas_.PuedeReemplazar(f,
                                QStringLiteral("¿Reemplazar: ") + Trim(Spread2.Texto(f, FDescripcion)) +
                                    QStringLiteral("\nPor la Conexión: ") + conexion.nombre + QStringLiteral("?"),
                                QStringLiteral("Capturar Conexiones...")))
        return false;
    filas_.PonerFila(f, conexion.clave, conexion.nombre, conexion.foto, 1);
    PonerLongitud(f, conexion.clave < ClaveLongitudEspecial, conexion.longitudEquivalente);
    filas_.Bajar();
    filas_.Guardar();
    return true;
}

void ConexionesRamales::Eliminar() {
    filas_.Eliminar(
        [this](int f) {
            return QStringLiteral("Clave de la Conexion = ") + Trim(Spread2.Texto(f, FClave)) + QStringLiteral("\n") +
                   Spread2.Texto(f, FDescripcion) + QStringLiteral("\n¿Eliminar la Conexión Seleccionada?");
        },
        QStringLiteral("Eliminar Conexión en Ramales..."));
}

void ConexionesRamales::EliminarTodas() {
    filas_.EliminarTodas(QStringLiteral("Ramal Seleccionado-> ( ") + QString::number(s_.RamalActual) +
                             QStringLiteral(" )\n¿Eliminar Todas las Conexiones del Ramal Seleccionado?"),
                         QStringLiteral("Eliminar Conexiones del Ramal..."));
}

void ConexionesRamales::ActualizarImagenes() {
    filas_.ActualizarImagenes(
        QStringLiteral("¿Actualizar las Imagenes de las Conexiones con las de la Base de Datos?"),
        QStringLiteral("Actualizar las Imagenes..."));
}

void ConexionesRamales::Cerrar() { filas_.Cerrar(s_.RsConexiones); }
