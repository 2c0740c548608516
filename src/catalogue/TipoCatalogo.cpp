#include "catalogue/TipoCatalogo.h"

#include "catalogue/Catalogo.h"
#include "shell/Sesion.h"

QString TextoAutomaticoCatalogo() { return QStringLiteral("Automático"); }

const TipoCatalogo& TipoCatalogo::Piezas() {
    static const TipoCatalogo t = [] {
        TipoCatalogo t;
        t.tabla = QStringLiteral("Piezas");
        t.campoClave = QStringLiteral("ClavePieza");
        t.campoNombre = QStringLiteral("NombrePieza");
        t.figuras = {QStringLiteral("PrivadoTotal"), QStringLiteral("PrivadoFriaCaliente"),
                     QStringLiteral("PublicoTotal"), QStringLiteral("PublicoFriaCaliente")};
        t.registros = &Sesion::RsPiezas;
        t.leer = &LeerCatalogoPiezas;
        t.ultimaReservada = ClaveSubRamal;
        t.primeraLibre = ClaveSubRamal + 1;
        t.figurasSiempre = true;
        t.bloquearReservadas = true;
        t.automatico = false;
        t.titulo = QStringLiteral("Base de Datos de Piezas Sanitarias");
        t.tituloEditor = QStringLiteral("Crear o Modificar Piezas Sanitarias");
        t.cosa = QStringLiteral("la pieza");
        t.encabezados1 = {QStringLiteral("Uso Privado"), QStringLiteral("Uso Privado"), QStringLiteral("Uso Público"),
                          QStringLiteral("Uso Público")};
        t.encabezados2 = {QStringLiteral("Total"), QStringLiteral("Fria/Caliente"), QStringLiteral("Total"),
                          QStringLiteral("Fria/Caliente")};
        t.tipReporte = QStringLiteral("Imprimir la base de datos de piezas sanitarias. ");
        t.tipEditar = QStringLiteral("Editar o crear piezas sanitarias. ");
        t.tipCapturar = QStringLiteral("Captura la pieza sanitaria seleccionada. ");
        t.reservada1 = QStringLiteral("Clave de la Pieza = ( ");
        t.reservada2 = QStringLiteral("¡Las Claves del (1) al (21) No se Pueden Eliminar!");
        t.pregunta1 = QStringLiteral("Clave de la Pieza: ( ");
        t.pregunta2 = QStringLiteral("¿Esta Seguro de Eliminar la Pieza?");
        t.encabezadoEliminar = QStringLiteral("Eliminar Piezas Sanitarias...");
        t.existe = QStringLiteral("Clave de la Pieza = ");
        t.encabezadoExiste = QStringLiteral("Crear Nueva Pieza...");
        t.modificados = QStringLiteral("Los Datos de la Pieza Sanitaria han sido Modificados...");
        t.quitarImagen = QStringLiteral("¿Quitar la Imagen de la Pieza Seleccionada?");
        return t;
    }();
    return t;
}

const TipoCatalogo& TipoCatalogo::Conexiones() {
    static const TipoCatalogo t = [] {
        TipoCatalogo t;
        t.tabla = QStringLiteral("Conexiones");
        t.campoClave = QStringLiteral("ClaveConexion");
        t.campoNombre = QStringLiteral("NombreConexion");
        t.figuras = {QStringLiteral("LongitudEquivalente")};
        t.registros = &Sesion::RsConexiones;
        t.leer = &LeerCatalogoConexiones;
        t.ultimaReservada = ClaveLongitudEspecial;
        t.primeraLibre = ClaveLongitudEspecial;
        t.figurasSiempre = false;
        t.bloquearReservadas = false;
        t.automatico = true;
        t.titulo = QStringLiteral("Base de Datos de Conexiones");
        t.tituloEditor = QStringLiteral("Crear o Modificar Conexiones");
        t.cosa = QStringLiteral("la conexión");
        t.encabezados1 = {QStringLiteral("Longitud")};
        t.encabezados2 = {QStringLiteral(" Equivalente (m)")};
        t.tipReporte = QStringLiteral("Imprimir la base de datos de conexiones. ");
        t.tipEditar = QStringLiteral("Editar o crear pieza de conexión. ");
        t.tipCapturar = QStringLiteral("Captura la conexión seleccionada. ");
        t.reservada1 = QStringLiteral("Clave de la Conexión = ( ");
        // The blanks stand between the name and the refusal.
        t.reservada2 = QStringLiteral("     Las Claves del ( 1 ) al ( 12 ) NO SE PUEDE ELIMINAR! ");
        t.pregunta1 = QStringLiteral("Clave de la Conexión: ( ");
        t.pregunta2 = QStringLiteral("¿Esta Seguro de Eliminar Conexión?");
        t.encabezadoEliminar = QStringLiteral("Eliminar Conexiones...");
        t.existe = QStringLiteral("Clave de la Conexión = ");
        t.encabezadoExiste = QStringLiteral("Crear Nueva Conexión...");
        t.modificados = QStringLiteral("Los Datos de la Conexión han sido Modificados...");
        t.quitarImagen = QStringLiteral("¿Quitar la Imagen de la Conexión Seleccionada?");
        return t;
    }();
    return t;
}
