#pragma once
// "Efectos de la Imagen": the photograph retouched by named effects and four
// sliders before it is stored.  Every effect starts again from the picture
// the screen was given, so effects stack only across "Fijar el Efecto"; the
// sliders act on the last effect's result.

#include "aqueduct/AyudasACU.h"
#include "images/Pixeles.h"

#include <QImage>
#include <optional>

class Dialogos;
class PantallasFoto;

// The two lists the screen opens: frmRGBColors and frmDithering, each on
// the picture, answering the row accepted (none on cancel).
class ListasEfectos {
public:
    virtual ~ListasEfectos() = default;
    virtual std::optional<int> ElegirEfectoRGB(const QImage& imagen) = 0;
    virtual std::optional<int> ElegirDithering(const QImage& imagen) = 0;
};

// The sliders HScrollBG, HScrollCT, HScrollST, HScrollSH.
enum class Deslizador { Brillo, Contraste, Saturacion, Afilado };

class EfectoImagenNivo {
public:
    EfectoImagenNivo(Dialogos& d, PantallasFoto& fotos, ListasEfectos& listas);

    static QString Titulo();
    // Head lines and texts of the buttons, by control name.
    static QList<Ayuda> Ayudas();
    static int Minimo(Deslizador s);
    static int Maximo(Deslizador s);
    static constexpr int Inicio = 0;

    // The picture to retouch.  A picture without width or height (or too
    // large) is refused with the overflow message: false, and the screen
    // does not open.
    bool Cargar(const QImage& imagen);
    // The preview: the last effect with the sliders on it.
    const QImage& Vista() const { return vista_; }
    const QImage& Original() const { return original_; }

    void BilateralFiltro();  // NivoButton1
    void EscalaGrises();     // NivoButton7
    void EfectosRGB();       // NivoButton5, through frmRGBColors
    void Cartonize();        // NivoButton3
    void PencilDrawing();    // NivoButton4
    void FilmNoir();         // NivoButton9
    void Dithering();        // NivoButton11, through frmDithering
    void Imagen3D();         // NivoButton10
    void ReestablecerImagen();  // NivoButton2: the original, sliders at their start
    void ExportarImagen();      // NivoButton8: the preview through the export dialog

    int Valor(Deslizador s) const { return valores_[int(s)]; }
    void MoverDeslizador(Deslizador s, int valor);
    // ButtonR of a slider: back to its start, redrawn from the original pixels.
    void ReestablecerDeslizador(Deslizador s);

    // Command2 "Fijar el Efecto": the picture the caller keeps.
    QImage FijarEfecto() const { return vista_; }

private:
    template <class F>
    void Efecto(F&& f);
    void Redibujar();
    Dialogos& d_;
    PantallasFoto& fotos_;
    ListasEfectos& listas_;
    QImage original_, vista_;
    Pixeles origen_, efecto_;
    int valores_[4] = {0, 0, 0, 0};
};

// A copy of the picture at most `lado` pixels on its longer side, for the
// quick previews of the lists.
QImage ImagenReducida(const QImage& imagen, int lado = 240);
