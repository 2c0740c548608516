#include "widgets/NivoTab.h"

NivoTab::NivoTab(QWidget* padre) : QTabBar(padre) {
    setExpanding(false);
    setDrawBase(true);
    connect(this, &QTabBar::tabBarClicked, this, [this](int i) {
        if (i >= 0) Q_EMIT Click(i + 1);
    });
}
