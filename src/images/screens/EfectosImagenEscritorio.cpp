#include "images/screens/PantallasFotoEscritorio.h"

#include "images/efectos/EfectoImagenNivo.h"
#include "images/screens/VentanaEfectoImagenNivo.h"
#include "images/screens/VentanaListaEfectos.h"
#include "shell/Sesion.h"

#include <QImage>

namespace {

// The two lists, shown as the desktop's windows.
class ListasEfectosEscritorio : public ListasEfectos {
public:
    ListasEfectosEscritorio(const ConfiguracionTapiz& tapiz, QWidget* padre) : tapiz_(tapiz), padre_(padre) {}
    std::optional<int> ElegirEfectoRGB(const QImage& imagen) override {
        return VentanaListaEfectos::ElegirEfectoRGB(imagen, tapiz_, padre_);
    }
    std::optional<int> ElegirDithering(const QImage& imagen) override {
        return VentanaListaEfectos::ElegirDithering(imagen, tapiz_, padre_);
    }
    void PonerPadre(QWidget* padre) { padre_ = padre; }

private:
    const ConfiguracionTapiz& tapiz_;
    QWidget* padre_;
};

}  // namespace

bool PantallasFotoEscritorio::EfectosImagen(QImage& imagen) {
    ListasEfectosEscritorio listas(s_.Tapiz, padre_);
    EfectoImagenNivo logica(d_, *this, listas);
    if (!logica.Cargar(imagen)) return false;
    VentanaEfectoImagenNivo ventana(logica, d_, s_.Tapiz, padre_);
    listas.PonerPadre(&ventana);
    if (ventana.exec() != QDialog::Accepted) return false;
    imagen = logica.FijarEfecto();
    return true;
}
