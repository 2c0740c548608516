#include "shell/ColoqueImagen.h"

#include <algorithm>

ColocacionImagen ColoqueImagen(const QSize& imagen, const QSize& panel, const ConfiguracionTapiz& c) {
    ColocacionImagen r;
    int ancho = imagen.width(), alto = imagen.height();
    if (!c.AjustarTapiz) {
        // Record 2: 0 centre, 1 top, 2 bottom; record 3: 0 left, 1 centre, 2 right.
        int arriba = 0, izquierda = 0;
        if (c.PosicionVertical == 0) arriba = (panel.height() - alto) / 2;
        if (c.PosicionVertical == 2) arriba = panel.height() - alto;
        if (c.PosicionHorizontal == 1) izquierda = (panel.width() - ancho) / 2;
        if (c.PosicionHorizontal == 2) izquierda = panel.width() - ancho;
        r.rect = QRect(izquierda, arriba, ancho, alto);
        return r;
    }
    r.estirar = true;
    if (!c.ProporcionTapiz) {
        r.rect = QRect(QPoint(0, 0), panel);
        return r;
    }
    if ((alto > panel.height() || ancho > panel.width()) && panel.width() > 0 && panel.height() > 0) {
        const double razon = std::max(double(alto) / panel.height(), double(ancho) / panel.width());
        alto = int(alto / razon);
        ancho = int(ancho / razon);
    }
    r.rect = QRect((panel.width() - ancho) / 2, (panel.height() - alto) / 2, ancho, alto);
    return r;
}
