#pragma once
// The about box.

#include <QDialog>

class VentanaSobre : public QDialog {
    Q_OBJECT
public:
    explicit VentanaSobre(QWidget* padre = nullptr);
};
