#include "entry/PiezasRamales.h"

#include "base/Dialogos.h"
#include "base/Nivo.h"
#include "catalogue/Catalogo.h"
#include "model/ProyectoEdificio.h"
#include "shell/Sesion.h"
#include "shell/Titulos.h"

#include <algorithm>

namespace {

const QString CampoClave = QStringLiteral("ClavePieza");

QString NombreCatalogo(const Sesion& s) { return Trim(ComoTexto(s.RsPiezas.Campo(QStringLiteral("NombrePieza")))); }

}  // namespace

PiezasRamales::PiezasRamales(ProyectoEdificio& p, Sesion& s, Dialogos& d, EditorRamales& editor)
    : p_(p), s_(s), d_(d), filas_(Spread1, Spread2, p, s, d, editor, p.NPiezas, TablaImagenes::Piezas) {
    filas_.salvarRamal = [this] { SalvarRamal(); };
    filas_.coloquePantalla = [this](int ramal) { ColoquePantalla(ramal); };
}

const AspectoFilas& PiezasRamales::Aspecto() {
    static const AspectoFilas a = [] {
        AspectoFilas a;
        a.titulo = QStringLiteral("Piezas Sanitarias en los Ramales");
        const struct {
            int clave;
            const char* nombre;
        } botones[] = {{1, "Bañera"},
                       {2, "Batea"},
                       {3, "Bidet"},
                       {4, "Ducha"},
                       {5, "Excusado de Tanque"},
                       {6, "Excusado de Válvula"},
                       {7, "Fregadero"},
                       {8, "Fregadero Pantry"},
                       {10, "Lavamanos"},
                       {11, "Lavamopas"},
                       {12, "Lavadora Automática"},
                       {13, "Urinario de Tanque"},
                       {14, "Urinario de Válvula"},
                       {20, "Conexión Manguera"},
                       {21, "Sub-Ramal"},
                       {9, "Lavaplatos Automático"}};
        for (const auto& b : botones) {
            const QString nombre = QString::fromUtf8(b.nombre);
            const QString tip = b.clave == ClaveSubRamal ? QStringLiteral("Anexar las Unidades de Gasto de un Sub-Ramal. ")
                                                         : QStringLiteral("Anexar ") + nombre + QStringLiteral(". ");
            a.rapidos.push_back({b.clave, nombre, tip});
        }
        a.eliminar = {QStringLiteral("Eliminar"), QStringLiteral("Elimina la pieza sanitaria seleccionada. ")};
        a.eliminarTodas = {QStringLiteral("Eliminar T."), QStringLiteral("Elimina todas las piezas del ramal seleccionado. ")};
        a.baseDatos = {QStringLiteral("Piezas"), QStringLiteral("Base de datos de piezas sanitarias. ")};
        a.imagen = {QStringLiteral("Imagen"), QStringLiteral("Actualiza las imagenes de la piezas sanitarias. ")};
        a.reporte = {QStringLiteral("Reporte"), QStringLiteral("Imprimir las piezas en los ramales. ")};
        a.buscar = {QStringLiteral("Buscar Ramal"), QStringLiteral("Buscar un ramal en la red. ")};
        a.baja = {QStringLiteral("Baja"), QStringLiteral("Ir al siguiente ramal. ")};
        a.sube = {QStringLiteral("Sube"), QStringLiteral("Ir al ramal anterior. ")};
        a.menuBaseDatos = QStringLiteral("Base de Datos de Piezas Sanitarias...");
        a.menuEliminar = QStringLiteral("Eliminar el Ramal Seleccionado");
        return a;
    }();
    return a;
}

void PiezasRamales::Cargar() {
    LeerCatalogoPiezas(s_);
    filas_.Cargar({QStringLiteral("No de"), QStringLiteral("Piezas")},
                  {QStringLiteral("Unidades"), QStringLiteral("de Gasto")});
}

void PiezasRamales::ColoquePantalla(int ramal) {
    filas_.ColoqueFilas(ramal, p_.PiezaClave, [&](int f, int clave) {
        filas_.PonerFila(f, clave, p_.PiezaNombre(ramal, f), filas_.ImagenClave(clave), p_.PiezaCantidad(ramal, f));
        PonerUnidades(f, p_.PiezaUnidades(ramal, f));
    });
}

void PiezasRamales::SalvarRamal() {
    filas_.SalvarFilas([this](int b, int f, int clave) {
        p_.PiezaClave(b, f) = clave;
        p_.PiezaNombre(b, f) = clave > 0 ? Trim(Spread2.Texto(f, FDescripcion)) : QString();
        p_.PiezaUnidades(b, f) = clave > 0 ? filas_.NumeroCelda(f, FValor) : 0.0;
        p_.PiezaCantidad(b, f) = clave > 0 ? int(filas_.NumeroCelda(f, FCantidad)) : 0;
    });
}

bool PiezasRamales::EditarFilas(int fila, int columna, const QString& texto) {
    return filas_.EditarFilas(fila, columna, texto, [this](int f, const QString& t) { return TeclearClave(f, t); });
}

void PiezasRamales::ClaveNoExiste(int clave) {
    d_.MostrarMensaje(QStringLiteral("Esta Clave no Existe en la Base de Datos...\nClave de la Pieza : ( ") +
                          QString::number(clave) + QStringLiteral(" )\n"),
                      QStringLiteral("Base de Datos de Piezas..."), TituloProyectoFontaria());
}

bool PiezasRamales::TeclearClave(int fila, const QString& texto) {
    bool tomado = true;
    const int k = filas_.ClaveTecleada(fila, texto, s_.RsPiezas, CampoClave, [this](int c) { ClaveNoExiste(c); }, tomado);
    if (k == 0) return tomado;
    QString nombre = NombreCatalogo(s_);
    if (k == ClaveSubRamal && !filas_.PedirNombre(QStringLiteral("Entre el Nombre del Sub-Ramal:"),
                                                  QStringLiteral("Sub-Ramales Conectados"), nombre, nombre)) {
        ColoquePantalla(s_.RamalActual);
        return false;
    }
    PonerDelCatalogo(fila, nombre, 1);
    filas_.Guardar();
    return true;
}

void PiezasRamales::PonerDelCatalogo(int fila, const QString& nombre, int cantidad) {
    const int clave = int(ComoEntero(s_.RsPiezas.Campo(CampoClave)));
    filas_.PonerFila(fila, clave, nombre, filas_.ImagenClave(clave), cantidad);
    PonerUnidades(fila, ComoDoble(s_.RsPiezas.Campo(ColumnaUnidades(p_.OpcionUsoPiezas))));
}

void PiezasRamales::PonerUnidades(int fila, double unidades) { Spread2.PonerNumero(fila, FValor, unidades, 2); }

void PiezasRamales::BotonRapido(int clave) {
    if (Spread2.Filas() == 0) {
        d_.MostrarMensaje(QStringLiteral("¡Debe Insertar el Espacio de la Pieza Sanitaria!"),
                          QStringLiteral("Fijar la Pieza Sanitaria..."), TituloProyectoFontaria());
        return;
    }
    if (!FilasRamal::BuscarEnCatalogo(s_.RsPiezas, CampoClave, clave)) {
        ClaveNoExiste(clave);
        return;
    }
    const int f = filas_.FilaActiva();
    QString nombre = NombreCatalogo(s_);
    if (!filas_.PuedeReemplazar(f,
                                QStringLiteral("Reemplazar la Pieza Sanitaria: ") + Trim(Spread2.Texto(f, FDescripcion)) +
                                    QStringLiteral("\nPor la Pieza: ") + nombre + QStringLiteral("?"),
                                QStringLiteral("Piezas Sanitarias...")))
        return;
    if (clave == ClaveSubRamal) {
        Spread2.PonerTexto(f, FClave, QString::number(clave));
        if (!filas_.PedirNombre(QStringLiteral("Clave 21\n\n\n\n\nEntre el Nombre del Sub-Ramal o Pieza Sanitaria:"),
                                QStringLiteral("Nueva Pieza o Sub-Ramal"), QString(), nombre)) {
            // The key stays written; the model follows what the grid shows.
            filas_.Guardar();
            return;
        }
    }
    PonerDelCatalogo(f, nombre, 1);
    filas_.BajarYGuardar();
}

bool PiezasRamales::Capturar(const PiezaCapturada& pieza) {
    if (Spread2.Filas() == 0) {
        d_.MostrarMensaje(QStringLiteral("¡Debe Insertar el Espacio de la Pieza Sanitaria!"),
                          QStringLiteral("Fijar la Pieza Sanitaria..."), TituloProyectoFontaria());
        return false;
    }
    const int f = filas_.FilaActiva();
    if (!filas_.PuedeReemplazar(f,
                                QStringLiteral("¿Reemplazar: ") + Trim(Spread2.Texto(f, FDescripcion)) +
                                    QStringLiteral("\nPor la Pieza: ") + pieza.nombre + QStringLiteral("?"),
                                QStringLiteral("Reemplazar Pieza Sanitaria...")))
        return false;
    filas_.PonerFila(f, pieza.clave, pieza.nombre, pieza.foto, 3);
    PonerUnidades(f, pieza.unidades[std::clamp(int(p_.OpcionUsoPiezas), 0, 3)]);
    filas_.BajarYGuardar();
    return true;
}

void PiezasRamales::Eliminar() {
    filas_.Eliminar(
        [this](int f) {
            return QStringLiteral("Clave de la Pieza = ( ") + Trim(Spread2.Texto(f, FClave)) + QStringLiteral(" )\n") +
                   Spread2.Texto(f, FDescripcion) + QStringLiteral("\n¿Eliminar la Pieza Seleccionada?");
        },
        QStringLiteral("Eliminar Piezas del Ramal..."));
}

void PiezasRamales::EliminarTodas() {
    filas_.EliminarTodas(QStringLiteral("Ramal-> ( ") + QString::number(s_.RamalActual) +
                             QStringLiteral(" )\nEliminar las Piezas del Ramal Seleccionado?"),
                         QStringLiteral("Eliminar Todas las Piezas Sanitarias..."));
}

void PiezasRamales::ActualizarImagenes() {
    filas_.ActualizarImagenes(QStringLiteral("¿Actualizar las Imagenes de las Piezas Sanitarias del \n"
                                             "Proyecto con los de la Base de Datos?"),
                              QStringLiteral("Actualizar las Imágenes..."));
}

void PiezasRamales::Cerrar() { filas_.Cerrar(s_.RsPiezas); }
