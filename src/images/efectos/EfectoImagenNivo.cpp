#include "images/efectos/EfectoImagenNivo.h"

#include "base/Dialogos.h"
#include "base/ErrorEjecucion.h"
#include "images/PantallasFoto.h"
#include "images/efectos/Efectos.h"
#include "images/efectos/EfectosRGB.h"
#include "images/efectos/Tramados.h"
#include "shell/ErrorCalculo.h"

#include <algorithm>

EfectoImagenNivo::EfectoImagenNivo(Dialogos& d, PantallasFoto& fotos, ListasEfectos& listas)
    : d_(d), fotos_(fotos), listas_(listas) {}

QString EfectoImagenNivo::Titulo() { return QStringLiteral("Efectos de la Imagen"); }

QList<Ayuda> EfectoImagenNivo::Ayudas() {
    return {
        {"NivoButton1", "Este efecto mejora la calidad de \nla imagen. ", "Bilateral Filtro"},
        {"NivoButton7", "Cambia la imagen en escala de grises, ", "Escala de Grises"},
        {"NivoButton5", "Aplica múltiples efectos RGB en la Imagen. ", "Efectos RGB"},
        {"NivoButton3", "Aplica el efecto de caricaturizado \nen la imagen. ", "Cartonize"},
        {"NivoButton4", "Aplica el efecto de dibujo a lápiz en ", "Pencil Drawing"},
        {"NivoButton9", "Aplica el efecto de cine negro en ", "Film Noir"},
        {"NivoButton11", "Aplica el efecto de imagen vacilante. ", "Dithering"},
        {"NivoButton10", "Aplica el efecto de imagen en 3D. ", "Imagen en 3D"},
        {"NivoButton2", "Reestablece la imagen original. ", "Reestablece Imagen"},
        {"NivoButton8", "Exportar la imagen en formato BMP o JPG. ", "Exportar la Imagen"},
        {"Command2", "Fija el efecto seleccionado a ", "Fijar el Efecto"},
        {"Button2", " Cancelar ", ""},
        {"ButtonRBG", " Reestablece el Brillo ", ""},
        {"ButtonRCT", " Reestablece el Constraste ", ""},
        {"ButtonRST", " Reestablece la Saturación ", ""},
        {"ButtonRSH", " Reestablece el Afililamiento ", ""},
    };
}

int EfectoImagenNivo::Minimo(Deslizador s) { return s == Deslizador::Afilado ? 0 : -100; }
int EfectoImagenNivo::Maximo(Deslizador) { return 100; }

bool EfectoImagenNivo::Cargar(const QImage& imagen) {
    try {
        origen_ = LeerPixeles(imagen);
    } catch (const ErrorEjecucion& e) {
        MostrarErrorCalculo(d_, e);
        return false;
    }
    original_ = imagen;
    efecto_ = origen_;
    std::fill(std::begin(valores_), std::end(valores_), Inicio);
    vista_ = original_;
    return true;
}

template <class F>
void EfectoImagenNivo::Efecto(F&& f) {
    if (origen_.W == 0) return;
    d_.CursorOcupado(true);
    // Each press reads the original again: effects do not stack.
    f(efecto_, origen_, origen_.W, origen_.H);
    Redibujar();
    d_.CursorOcupado(false);
}

void EfectoImagenNivo::Redibujar() {
    const bool sinAjustes = std::all_of(std::begin(valores_), std::end(valores_), [](int v) { return v == Inicio; });
    if (sinAjustes && efecto_ == origen_) {
        vista_ = original_;
        return;
    }
    if (sinAjustes) {
        vista_ = PintarPixeles(efecto_);
        return;
    }
    Pixeles ajustada;
    AjustarColor(ajustada, efecto_, efecto_.W, efecto_.H, valores_[0], valores_[1], valores_[2], valores_[3]);
    vista_ = PintarPixeles(ajustada);
}

void EfectoImagenNivo::BilateralFiltro() { Efecto(FiltroBilateral); }

void EfectoImagenNivo::EscalaGrises() {
    Efecto([](Pixeles& d, const Pixeles& o, int W, int H) { GrayscaleCAL(d, o, W, H, 1, 0.5, 0xFFFFFF); });
}

void EfectoImagenNivo::EfectosRGB() {
    if (origen_.W == 0) return;
    if (const std::optional<int> fila = listas_.ElegirEfectoRGB(original_))
        Efecto([f = *fila](Pixeles& d, const Pixeles& o, int W, int H) { RGBEffectsCALC(d, o, W, H, f); });
}

void EfectoImagenNivo::Cartonize() {
    Efecto([](Pixeles& d, const Pixeles& o, int W, int H) { DrawCartoonizerP(d, o, W, H); });
}

void EfectoImagenNivo::PencilDrawing() {
    Efecto([](Pixeles& d, const Pixeles& o, int W, int H) { PencilPlusCALC(d, o, W, H); });
}

void EfectoImagenNivo::FilmNoir() {
    Efecto([](Pixeles& d, const Pixeles& o, int W, int H) { FilmNoirCALC(d, o, W, H); });
}

void EfectoImagenNivo::Dithering() {
    if (origen_.W == 0) return;
    if (const std::optional<int> fila = listas_.ElegirDithering(original_))
        Efecto([f = *fila](Pixeles& d, const Pixeles& o, int W, int H) { AplicarDithering(d, o, W, H, f); });
}

void EfectoImagenNivo::Imagen3D() {
    Efecto([](Pixeles& d, const Pixeles& o, int W, int H) { ModernArtSculture(d, o, W, H); });
}

void EfectoImagenNivo::ReestablecerImagen() {
    efecto_ = origen_;
    std::fill(std::begin(valores_), std::end(valores_), Inicio);
    Redibujar();
}

void EfectoImagenNivo::ExportarImagen() {
    if (!vista_.isNull()) fotos_.ExportarImagen(vista_);
}

void EfectoImagenNivo::MoverDeslizador(Deslizador s, int valor) {
    const int v = std::clamp(valor, Minimo(s), Maximo(s));
    if (v == valores_[int(s)] || origen_.W == 0) return;
    valores_[int(s)] = v;
    d_.CursorOcupado(true);
    Redibujar();
    d_.CursorOcupado(false);
}

void EfectoImagenNivo::ReestablecerDeslizador(Deslizador s) { MoverDeslizador(s, Inicio); }

QImage ImagenReducida(const QImage& imagen, int lado) {
    if (imagen.isNull() || std::max(imagen.width(), imagen.height()) <= lado) return imagen;
    return imagen.scaled(lado, lado, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}
