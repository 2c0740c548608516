#include "entry/ComentarioRamal.h"

#include "analysis/AnalisisRed.h"
#include "base/Dialogos.h"
#include "base/Nivo.h"
#include "model/ProyectoEdificio.h"
#include "shell/Sesion.h"
#include "store/Registros.h"

#include <algorithm>

namespace {
constexpr int ColumnaComentario = 9;  // of the analysis grid of tab 1
// These questions carry the aqueduct title, unlike the building screens.
const QString TituloPreguntas = QStringLiteral("Datos del Proyecto de Acueductos");
}  // namespace

ComentarioRamal::ComentarioRamal(ProyectoEdificio& p, Sesion& s, Dialogos& d, AnalisisRed& analisis)
    : p_(p), s_(s), d_(d), analisis_(analisis) {}

QString ComentarioRamal::Titulo() { return QStringLiteral("Comentario del Ramal"); }

int ComentarioRamal::MaximoScroll() const { return std::max<int>(p_.NumeroRamales, 1); }

void ComentarioRamal::Cargar() {
    ramal_ = std::clamp(s_.RamalActual, 1, MaximoScroll());
    Mostrar();
}

void ComentarioRamal::Mostrar() {
    texto_ = p_.RamalComentario.Leer(ramal_);
    cambiado_ = false;
}

void ComentarioRamal::CambiarTexto(const QString& texto) {
    texto_ = texto;
    cambiado_ = true;
}

void ComentarioRamal::CambiarRamal(int ramal) {
    ramal = std::clamp(ramal, 1, MaximoScroll());
    if (ramal == ramal_) return;
    SalvarSiCambio();
    ramal_ = ramal;
    s_.RamalActual = ramal;
    if (ramal <= analisis_.Spread4.Filas()) analisis_.Spread4.PonerActiva(ramal, ColumnaComentario);
    Mostrar();
}

void ComentarioRamal::SalvarSiCambio() {
    // A change of case alone is no change of the comment.
    if (UCase(Trim(texto_)) != UCase(Trim(p_.RamalComentario.Leer(ramal_)))) SalvarComentario();
}

void ComentarioRamal::Cerrar() { SalvarSiCambio(); }

void ComentarioRamal::Enter() {
    if (cambiado_) SalvarComentario();
}

void ComentarioRamal::Fijar() {
    if (d_.MostrarMensaje(QStringLiteral("¿Fijar el Comentario Seleccionado del Ramal?"),
                          QStringLiteral("Fijar Comentario al Ramal..."), TituloPreguntas, Botones::SiNo,
                          1) == Respuesta::Si)
        SalvarComentario();
}

void ComentarioRamal::Quitar() {
    if (d_.MostrarMensaje(QStringLiteral("¿Quitar el Comentario Seleccionado del Ramal?"),
                          QStringLiteral("Quitar Comentario del Ramal..."), TituloPreguntas, Botones::SiNo,
                          1) != Respuesta::Si)
        return;
    texto_.clear();
    SalvarComentario();
}

void ComentarioRamal::SalvarComentario() {
    if (ramal_ < 1 || ramal_ > p_.RamalComentario.Ubound()) return;
    const QString texto = Trim(texto_);
    p_.RamalComentario[ramal_] = texto;
    texto_ = texto;
    cambiado_ = false;
    if (ramal_ <= analisis_.Spread4.Filas()) analisis_.Spread4.PonerTexto(ramal_, ColumnaComentario, texto);
    // The file's row of the branch, so that the comment lasts without a save.
    Registros rs;
    bool escrito = rs.Abrir(s_.ConexionProyecto, QStringLiteral("SELECT * FROM DatosRamales Where Numero=?"),
                            {Valor(ramal_)});
    if (escrito && rs.RecordCount() > 0) {
        rs.Poner(QStringLiteral("Comentario"), texto);
        escrito = rs.Update();
    }
    if (!escrito)
        d_.MostrarMensaje(QStringLiteral("El comentario no se pudo escribir en el archivo del proyecto:\n") + rs.Error(),
                          QStringLiteral("Comentario del Ramal..."), TituloPreguntas);
}
