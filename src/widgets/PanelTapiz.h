#pragma once
// The panel that shows the wallpaper, placed by ColoqueImagen with the
// settings of Tapiz.nivo.  `escala` shrinks the picture for a preview that
// stands for a larger panel.

#include "shell/Tapiz.h"

#include <QDateTime>
#include <QImage>
#include <QWidget>

class PanelTapiz : public QWidget {
    Q_OBJECT
public:
    explicit PanelTapiz(QWidget* padre = nullptr);

    // Loads the picture of record 1 (again only when the file changed),
    // gives it the effect of record 5 and keeps the placement settings.
    // False when the picture can't be read; the panel then shows its colour
    // alone.
    bool Aplicar(const ConfiguracionTapiz& c);
    void PonerEscala(double escala);
    const QImage& Imagen() const { return imagen_; }  // with its effect
    // Where the picture is drawn now, in the panel's coordinates.
    QRect RectImagen() const;

protected:
    void paintEvent(QPaintEvent* e) override;

private:
    ConfiguracionTapiz c_;
    QImage original_, imagen_;  // as read, and with its effect
    int efecto_ = 0;
    QString ruta_;
    QDateTime fecha_;
    double escala_ = 1.0;
};
