#include "widgets/CajasCoordenadas.h"

#include "base/Coordenadas.h"
#include "widgets/NivoNumero.h"
#include "widgets/VistaGrid.h"

#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>

CajasCoordenadas::CajasCoordenadas(const QString& titulo, Coordenadas& puntos, QWidget* padre)
    : QGroupBox(titulo, padre), puntos_(puntos) {
    setObjectName(QStringLiteral("Coordenadas"));
    auto* cm = new QGridLayout(this);
    const char* etiquetas[6] = {"X ( I ):", "Y ( I ):", "Z ( I ):", "X ( J ):", "Y ( J ):", "Z ( J ):"};
    for (int i = 0; i < 6; ++i) {
        cajas_[i] = new NivoDouble(this, 3);
        cajas_[i]->setObjectName(QStringLiteral("Double%1").arg(i + 1));
        cajas_[i]->PonerLimites(-1e9, 1e9);
        cm->addWidget(new QLabel(QString::fromUtf8(etiquetas[i]), this), i % 3, (i / 3) * 2);
        cm->addWidget(cajas_[i], i % 3, (i / 3) * 2 + 1);
        connect(cajas_[i], &NivoNumero::ValorCambiado, this, [this, i](double v) {
            if (mostrando_) return;
            puntos_.Cambiar(i + 1, v);
            longitud_->setText(puntos_.TextoLongitud());
        });
    }
    longitud_ = new QLabel(this);
    longitud_->setObjectName(QStringLiteral("Longitud"));
    longitud_->setFrameStyle(QFrame::Panel | QFrame::Sunken);
    longitud_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    cm->addWidget(new QLabel(QStringLiteral("L (m):"), this), 3, 2);
    cm->addWidget(longitud_, 3, 3);
    Mostrar();
}

void CajasCoordenadas::Mostrar() {
    mostrando_ = true;
    for (int i = 0; i < 6; ++i) cajas_[i]->PonerValor(puntos_.Valor(i + 1));
    longitud_->setText(puntos_.TextoLongitud());
    mostrando_ = false;
}

VistaGrid* VistaDeUnaFila(Grid* grid, QWidget* padre) {
    auto* v = new VistaGrid(padre);
    v->setObjectName(QStringLiteral("Spread1"));
    v->setFocusPolicy(Qt::NoFocus);
    v->setSelectionMode(QAbstractItemView::NoSelection);
    v->MostrarGrid(grid);
    v->setFixedHeight(v->horizontalHeader()->sizeHint().height() + v->verticalHeader()->defaultSectionSize() + 6);
    return v;
}
