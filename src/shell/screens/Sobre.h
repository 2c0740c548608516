#pragma once
// The about box.

#include <QDialog>

class Sobre : public QDialog {
    Q_OBJECT
public:
    explicit Sobre(QWidget* padre = nullptr);
};
