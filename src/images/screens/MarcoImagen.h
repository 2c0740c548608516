#pragma once
// A picture drawn whole into the widget, keeping its proportions and
// centred: the capture screen's preview, the viewer's overview with the
// frame of the part shown, the export's preview.

#include <QImage>
#include <QRect>
#include <QWidget>
#include <functional>

class MarcoImagen : public QWidget {
    Q_OBJECT
public:
    explicit MarcoImagen(QWidget* padre = nullptr);

    void PonerImagen(const QImage& imagen);
    const QImage& Imagen() const { return imagen_; }
    // A rectangle over the picture, in the drawn picture's points (the
    // overview's frame); none when it gives an empty one.
    std::function<QRect()> marco;

Q_SIGNALS:
    // A press or a drag, in the drawn picture's points.
    void Arrastrado(const QPoint& enImagen);

protected:
    void paintEvent(QPaintEvent* e) override;
    void mousePressEvent(QMouseEvent* e) override;
    void mouseMoveEvent(QMouseEvent* e) override;

private:
    QRect Destino() const;
    QImage imagen_;
};
