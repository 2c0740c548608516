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
    LeerCatalogoConexiones(s_);
    filas_.Cargar({QStringLiteral("No. de"), QStringLiteral("Conex.")},
                  {QStringLiteral("Longitud"), QStringLiteral("Equiv.(m)")});
}

void ConexionesRamales::ColoquePantalla(int ramal) {
    filas_.ColoqueFilas(ramal, p_.ConexionClave, [&](int f, int clave) {
        filas_.PonerFila(f, clave, p_.ConexionNombre(ramal, f), filas_.ImagenClave(clave),
                         p_.ConexionCantidad(ramal, f));
        // Rows of older projects below key 12 stored as fixed show, and are
        // stored, as automatic.
        PonerLongitud(f, p_.ConexionAutomatica(ramal, f) || clave < ClaveLongitudEspecial,
                      p_.ConexionLongitud(ramal, f));
    });
}

void ConexionesRamales::SalvarRamal() {
    filas_.SalvarFilas([this](int b, int f, int clave) {
        const bool automatica = clave > 0 && Trim(Spread2.Texto(f, FValor)) == TextoAutomatico;
        p_.ConexionAutomatica(b, f) = automatica;
        p_.ConexionClave(b, f) = clave;
        p_.ConexionNombre(b, f) = clave > 0 ? Trim(Spread2.Texto(f, FDescripcion)) : QString();
        p_.ConexionLongitud(b, f) = clave > 0 && !automatica ? filas_.NumeroCelda(f, FValor) : 0.0;
        p_.ConexionCantidad(b, f) = clave > 0 ? int(filas_.NumeroCelda(f, FCantidad)) : 0;
    });
}

bool ConexionesRamales::EditarFilas(int fila, int columna, const QString& texto) {
    return filas_.EditarFilas(fila, columna, texto, [this](int f, const QString& t) { return TeclearClave(f, t); });
}

void ConexionesRamales::ClaveNoExiste(int clave, const QString& encabezado) {
    d_.MostrarMensaje(QStringLiteral("Esta Clave no Existe en la Base de Datos...\nClave: ( ") + QString::number(clave) +
                          QStringLiteral(" )\n"),
                      encabezado, TituloProyectoFontaria());
}

bool ConexionesRamales::TeclearClave(int fila, const QString& texto) {
    bool tomado = true;
    const int k = filas_.ClaveTecleada(
        fila, texto, s_.RsConexiones, CampoClave,
        [this](int c) { ClaveNoExiste(c, QStringLiteral("Base de Datos Conexiones...")); }, tomado);
    if (k == 0) return tomado;
    QString nombre = NombreCatalogo(s_);
    // The prompt speaks of a sub-branch, as it always has.
    if (k == ClaveLongitudEspecial && !filas_.PedirNombre(QStringLiteral("Entre el Nombre del Sub-Ramal:"),
                                                          QStringLiteral("Nombre de la Conexión"), nombre, nombre)) {
        ColoquePantalla(s_.RamalActual);
        return false;
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
        if (!filas_.PedirNombre(QStringLiteral("Clave (12)\n\n\n\n\nEntre el Nombre de la Conexión:"),
                                QStringLiteral("Longitud Equivalente"), QString(), nombre)) {
            filas_.Guardar();
            return;
        }
    }
    PonerDelCatalogo(f, nombre);
    filas_.BajarYGuardar();
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
    filas_.BajarYGuardar();
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
