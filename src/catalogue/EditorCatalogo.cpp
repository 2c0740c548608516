#include "catalogue/EditorCatalogo.h"

#include "base/Dialogos.h"
#include "base/Nivo.h"
#include "images/Imagen.h"
#include "images/PantallasFoto.h"
#include "shell/Sesion.h"
#include "shell/Titulos.h"

#include <algorithm>
#include <cmath>

namespace {

// Two decimals, or as many as the stored figure has (up to six): a save
// that did not touch a figure stores it as it was.
QString FiguraComoTexto(double v) {
    int d = 2;
    while (d < 6 && std::fabs(RoundNivo(v, d) - v) > 1e-9 * std::max(1.0, std::fabs(v))) ++d;
    return Formato(v, QStringLiteral("0.") + QString(d, QLatin1Char('0')));
}

}  // namespace

EditorCatalogo::EditorCatalogo(BDCatalogo& bd, Sesion& s, Dialogos& d, PantallasFoto& fotos)
    : bd_(bd), s_(s), d_(d), fotos_(fotos), t_(bd.Tipo()) {
    for (int i = 0; i < t_.figuras.size(); ++i) figuras_ << QString();
}

int EditorCatalogo::Registros() const { return bd_.Rs().Abierto() ? bd_.Rs().RecordCount() : 0; }

QString EditorCatalogo::Posicion() const {
    if (nuevo_) return QStringLiteral("Registro Nuevo");
    return QStringLiteral("Registro ") + Formato(registro_, QStringLiteral("#,##0")) + QStringLiteral(" de ") +
           Formato(Registros(), QStringLiteral("#,##0"));
}

void EditorCatalogo::Cargar(int filaGrid) {
    const int r = bd_.Registro(filaGrid);
    Mostrar(r > 0 ? r : std::min(1, Registros()));
}

void EditorCatalogo::Mostrar(int registro) {
    registro_ = registro;
    nuevo_ = modificado_ = false;
    foto_ = QImage();
    if (registro < 1 || registro > Registros()) {
        clave_.clear();
        nombre_.clear();
        for (QString& f : figuras_) f.clear();
        automatico_ = false;
        claveRegistro_ = 0;
        return;
    }
    ::Registros& rs = bd_.Rs();
    rs.Mover(registro - 1);
    claveRegistro_ = int(ComoEntero(rs.Campo(t_.campoClave)));
    clave_ = QString::number(claveRegistro_);
    nombre_ = ComoTexto(rs.Campo(t_.campoNombre));
    for (int i = 0; i < Figuras(); ++i) figuras_[i] = FiguraComoTexto(ComoDoble(rs.Campo(t_.figuras[i])));
    automatico_ = t_.automatico && ComoLogico(rs.Campo(QStringLiteral("Automatico")));
    if (!rs.Campo(QStringLiteral("ExisteFoto")).isNull()) LeerImagen(rs, foto_);
}

bool EditorCatalogo::ClaveHabilitada() const {
    return nuevo_ || !t_.bloquearReservadas || registro_ < 1 || claveRegistro_ > t_.ultimaReservada;
}

void EditorCatalogo::CambiarClave(const QString& texto) {
    clave_ = texto;
    modificado_ = true;
}

void EditorCatalogo::CambiarNombre(const QString& texto) {
    nombre_ = texto;
    modificado_ = true;
}

void EditorCatalogo::CambiarFigura(int i, const QString& texto) {
    if (i < 0 || i >= Figuras()) return;
    figuras_[i] = texto;
    modificado_ = true;
}

bool EditorCatalogo::DejarRegistro() {
    if (!modificado_) return true;
    const int r = d_.MostrarMensaje(t_.modificados + QStringLiteral("\n¿Desea Salvar los Cambios Realizados?"),
                                    QStringLiteral("Salvar las Modificaciones..."), TituloProyectoFontaria(),
                                    Botones::SiNoCancelar);
    if (r == Respuesta::Si) return Salvar();
    return r == Respuesta::No;
}

bool EditorCatalogo::Desplazar(int registro) {
    if (registro == registro_ && !nuevo_) return true;
    if (!DejarRegistro()) return false;
    Mostrar(std::clamp(registro, std::min(1, Registros()), Registros()));
    return true;
}

void EditorCatalogo::Crear() {
    // What was typed on the record left is asked for, as a scroll does.
    if (!DejarRegistro()) return;
    nuevo_ = modificado_ = true;
    automatico_ = false;
    clave_ = QString::number(Registros() + 1);
    nombre_.clear();
    for (QString& f : figuras_) f = FiguraComoTexto(0);
    foto_ = QImage();
    Enfocar(Clave);
}

bool EditorCatalogo::LeerCampos(int& clave, std::vector<double>& figuras) {
    if (Trim(clave_).isEmpty()) {
        Enfocar(Clave);
        return false;
    }
    const NumeroLeido k = LeerNumeroTecleado(clave_);
    if (!k.valido) {
        MostrarNumeroRechazado(d_, k.motivo);
        Enfocar(Clave);
        return false;
    }
    // A key below 1 would stand among the reserved ones: never deleted,
    // its name locked.  0 is the empty key, answered by the focus alone.
    if (k.valor != std::floor(k.valor) || (k.valor < 1 && k.valor != 0) || k.valor > 32767) {
        MostrarNumeroRechazado(d_, QStringLiteral("La clave es un número entero de 1 a 32") +
                                       SeparadoresActuales().miles + QStringLiteral("767: \"") + Trim(clave_) +
                                       QStringLiteral("\" no lo es."));
        Enfocar(Clave);
        return false;
    }
    clave = int(k.valor);
    if (clave == 0) {
        Enfocar(Clave);
        return false;
    }
    if (Trim(nombre_).isEmpty()) {
        Enfocar(Nombre);
        return false;
    }
    figuras.assign(size_t(Figuras()), 0.0);
    for (int i = 0; i < Figuras(); ++i) {
        // An automatic row's hidden length box still holds the stored length.
        if (Trim(figuras_[i]).isEmpty()) continue;
        const NumeroLeido v = LeerNumeroTecleado(figuras_[i]);
        QString motivo = v.motivo;
        if (v.valido && v.valor < 0)
            motivo = QStringLiteral("El número no puede ser negativo: \"") + Trim(figuras_[i]) + QStringLiteral("\".");
        if (!motivo.isEmpty()) {
            MostrarNumeroRechazado(d_, motivo);
            Enfocar(Foco(i));
            return false;
        }
        figuras[size_t(i)] = v.valor;
    }
    return true;
}

bool EditorCatalogo::ClaveExiste(int clave, bool nuevo) {
    // A key changed on a stored row is checked as a new one, for the
    // catalogue holds each key once.
    if (!nuevo && claveRegistro_ == clave) return false;
    ::Registros tabla;
    if (AbrirTabla(s_.ConexionCatalogo, tabla, t_.tabla) != 0 || tabla.RecordCount() == 0) return false;
    if (BuscarClave(tabla, t_.campoClave + QLatin1Char('=') + QString::number(clave)) != 1) return false;
    d_.MostrarMensaje(t_.existe + QString::number(clave) + QLatin1Char('\n') + ComoTexto(tabla.Campo(t_.campoNombre)) +
                          QStringLiteral("\nEsta Clave ya Existe en la Base de Datos!"),
                      t_.encabezadoExiste, TituloProyectoFontaria());
    Enfocar(Clave);
    return true;
}

bool EditorCatalogo::Salvar() {
    foco_ = Ninguno;
    int clave = 0;
    std::vector<double> figuras;
    if (!LeerCampos(clave, figuras)) return false;
    ::Registros& rs = bd_.Rs();
    const bool libre = nuevo_ || claveRegistro_ >= t_.primeraLibre;
    if (libre && ClaveExiste(clave, nuevo_)) return false;
    if (nuevo_) rs.AddNew();
    else rs.Mover(registro_ - 1);
    if (libre) {
        rs.Poner(t_.campoClave, clave);
        rs.Poner(t_.campoNombre, Trim(nombre_));
        if (t_.automatico) rs.Poner(QStringLiteral("Automatico"), Logico(false));
    }
    if (libre || t_.figurasSiempre)
        for (int i = 0; i < Figuras(); ++i) rs.Poner(t_.figuras[i], figuras[size_t(i)]);
    if (!foto_.isNull() && GuardarImagen(rs, foto_)) {
        rs.Poner(QStringLiteral("ExisteFoto"), Logico(true));
    } else {
        rs.Poner(QStringLiteral("Foto"), Nulo());
        rs.Poner(QStringLiteral("ExisteFoto"), Logico(false));
    }
    if (!rs.Update()) {
        bd_.AvisarFalla(QStringLiteral("guardar"), rs.Error());
        // The record set read again drops what did not reach the file; the
        // boxes keep what was typed.
        t_.leer(s_);
        return false;
    }
    if (nuevo_) {
        // Read again in key order: the new record stands at its key.
        t_.leer(s_);
        int r = 1;
        for (; r <= rs.RecordCount(); ++r) {
            rs.Mover(r - 1);
            if (ComoEntero(rs.Campo(t_.campoClave)) == clave) break;
        }
        bd_.ColoquePantalla(r);
        Mostrar(r);
        return true;
    }
    const int fila = bd_.FilaDeRegistro(registro_);
    if (fila > 0) bd_.ColoqueLinea(fila);
    Mostrar(registro_);
    return true;
}

bool EditorCatalogo::Cerrar() { return DejarRegistro(); }

void EditorCatalogo::AnexarImagen() {
    QImage imagen = foto_;
    if (!fotos_.CapturarImagen(imagen, !foto_.isNull())) return;
    foto_ = imagen;
    modificado_ = true;
}

void EditorCatalogo::QuitarImagen() {
    if (foto_.isNull()) {
        d_.Pitido();
        return;
    }
    if (d_.MostrarMensaje(t_.quitarImagen, QStringLiteral("Quitar la Imagen..."), TituloProyectoFontaria(),
                          Botones::SiNo) != Respuesta::Si)
        return;
    foto_ = QImage();
    modificado_ = true;
}

void EditorCatalogo::ExportarImagen() {
    if (foto_.isNull()) d_.Pitido();
    else fotos_.ExportarImagen(foto_);
}
