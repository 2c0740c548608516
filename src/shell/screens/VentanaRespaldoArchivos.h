#pragma once
// "Respaldar Archivos": two options, each opening a folder at once.

#include <QDialog>

class Dialogos;
struct Sesion;

class VentanaRespaldoArchivos : public QDialog {
    Q_OBJECT
public:
    VentanaRespaldoArchivos(Sesion& s, Dialogos& d, QWidget* padre = nullptr);
};
