#pragma once
// The tab strip: tabs counted from 1, a click reported with its number.

#include <QTabBar>

class NivoTab : public QTabBar {
    Q_OBJECT
public:
    explicit NivoTab(QWidget* padre = nullptr);
    // Tab number 1.. of the selected tab.
    int Tab() const { return currentIndex() + 1; }
    void PonerTab(int tab) { setCurrentIndex(tab - 1); }

Q_SIGNALS:
    void Click(int tab);
};
