#pragma once
// The large floating picture of a grid row: pressing the mouse on a row
// starts a short wait, then the row's photograph shows near the pointer,
// kept inside the window.  It hides on moving with no button down, on
// release and when the grid loses the mouse.

#include <QImage>
#include <QObject>
#include <QPoint>
#include <QTimer>
#include <functional>

class QAbstractItemView;
class QLabel;
class QWidget;

class VistaPreviaFoto : public QObject {
    Q_OBJECT
public:
    // `imagen` gives the photograph of a grid row (from 1), or a null one.
    VistaPreviaFoto(QAbstractItemView* vista, QWidget* ventana, std::function<QImage(int fila)> imagen);
    void Ocultar();

protected:
    bool eventFilter(QObject* o, QEvent* e) override;

private:
    void Mostrar();
    QAbstractItemView* vista_;
    QLabel* etiqueta_;
    std::function<QImage(int)> imagen_;
    QTimer temporizador_;
    int fila_ = 0;
    QPoint punto_;
};
