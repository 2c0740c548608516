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

    // Loads the picture of record 1 (again only when the file changed) and
    // keeps the placement settings.  False when the picture can't be read;
    // the panel then shows its colour alone.
    bool Aplicar(const ConfiguracionTapiz& c);
    void PonerEscala(double escala);
    const QImage& Imagen() const { return imagen_; }
    // Where the picture is drawn now, in the panel's coordinates.
    QRect RectImagen() const;

protected:
    void paintEvent(QPaintEvent* e) override;

private:
    ConfiguracionTapiz c_;
    QImage imagen_;
    QString ruta_;
    QDateTime fecha_;
    double escala_ = 1.0;
};
