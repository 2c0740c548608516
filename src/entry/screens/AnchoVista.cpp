#include "entry/screens/AnchoVista.h"

#include "widgets/VistaGrid.h"

#include <QEvent>
#include <algorithm>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QScrollBar>
#include <QTimer>

namespace {

void Ajustar(VistaGrid* v) {
    QHeaderView* filas = v->verticalHeader();
    const int cabecera = filas->isVisible() ? std::max(filas->sizeHint().width(), filas->width()) : 0;
    v->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    v->setFixedWidth(cabecera + v->horizontalHeader()->length() + 2 * v->frameWidth() +
                     v->verticalScrollBar()->sizeHint().width());
    v->horizontalScrollBar()->setValue(0);
}

// The view widens its text columns to their texts as it is shown: the width
// is taken again once it has.
class AlMostrar : public QObject {
public:
    explicit AlMostrar(VistaGrid* v) : QObject(v), v_(v) { v->installEventFilter(this); }
    bool eventFilter(QObject*, QEvent* e) override {
        if (e->type() == QEvent::Show) QTimer::singleShot(0, v_, [v = v_] { Ajustar(v); });
        return false;
    }

private:
    VistaGrid* v_;
};

}  // namespace

void FijarAnchoAlContenido(VistaGrid* v) {
    Ajustar(v);
    new AlMostrar(v);
}

void CentrarEnAncho(QWidget* ventana, QLayout* contenido) {
    auto* fila = new QHBoxLayout(ventana);
    fila->addStretch(1);
    fila->addLayout(contenido);
    fila->addStretch(1);
}
