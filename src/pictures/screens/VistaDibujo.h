#pragma once
// A picture on screen: the wheel zooms about the pointer, a drag pans (the
// frame is kept as an image while the mouse moves, so a large network pans
// at the cost of one copy), a double click fits the whole picture again and
// resting the pointer on a node or pipe shows its row as a tool-tip.
// PanelDibujo adds the buttons: fit, and export to PNG, SVG and PDF.

#include "pictures/Dibujo.h"

#include <QPixmap>
#include <QWidget>
#include <functional>

class Dialogos;
class Grid;
class QHBoxLayout;
class QPushButton;

class VistaDibujo : public QWidget {
    Q_OBJECT
public:
    explicit VistaDibujo(QWidget* padre = nullptr);

    // Shows `d` (kept by the caller; null for none).  With `encuadrar` the
    // whole picture is fitted; otherwise zoom and position stay, as after an
    // edit that changed the picture but not where the engineer looks.
    void MostrarDibujo(const Dibujo* d, bool encuadrar);
    void Encuadrar();
    // Zoom by `factor` about a point of the widget.
    void Acercar(double factor, const QPointF& centro);
    void Desplazar(const QPointF& delta);
    const QTransform& Transformacion() const { return t_; }

    // The tool-tip of an element; empty for none.
    std::function<QString(const ElementoDibujo&)> textoElemento;

protected:
    void paintEvent(QPaintEvent* e) override;
    void resizeEvent(QResizeEvent* e) override;
    void wheelEvent(QWheelEvent* e) override;
    void mousePressEvent(QMouseEvent* e) override;
    void mouseMoveEvent(QMouseEvent* e) override;
    void mouseReleaseEvent(QMouseEvent* e) override;
    void mouseDoubleClickEvent(QMouseEvent* e) override;

private:
    const Dibujo* d_ = nullptr;
    QTransform t_;
    bool encuadrada_ = true;  // follows the size of the widget until zoomed or panned
    bool arrastrando_ = false;
    QPoint inicio_, ultimo_;
    QPixmap cuadro_;
};

class PanelDibujo : public QWidget {
    Q_OBJECT
public:
    // `titulo` is the title of the save dialogs; `carpeta` where they start.
    PanelDibujo(Dialogos& d, const QString& titulo, std::function<QString()> carpeta, QWidget* padre = nullptr);

    VistaDibujo* Vista() const { return vista_; }
    // The row of buttons, for a window to add its own controls.
    QHBoxLayout* Barra() const { return barra_; }
    QPushButton* Boton(const QString& formato) const;  // "png", "svg", "pdf", "ajustar"
    void MostrarDibujo(const Dibujo* d, bool encuadrar);

private:
    void Exportar(const QString& formato);

    Dialogos& d_;
    QString titulo_;
    std::function<QString()> carpeta_;
    const Dibujo* dibujo_ = nullptr;
    VistaDibujo* vista_;
    QHBoxLayout* barra_;
};

// A row of a results grid as a tool-tip: one line per column, its headers
// and its text.
QString FilaComoTexto(const Grid& g, int fila);
