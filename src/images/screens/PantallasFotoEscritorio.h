#pragma once
// The desktop's photograph screens, shown modally over `padre`.

#include "images/PantallasFoto.h"

class QWidget;
class Dialogos;
struct Sesion;

class PantallasFotoEscritorio : public PantallasFoto {
public:
    PantallasFotoEscritorio(Sesion& s, Dialogos& d, QWidget* padre) : s_(s), d_(d), padre_(padre) {}
    bool CapturarImagen(QImage& imagen, bool registroConImagen) override;
    bool VisualizarImagen(QImage& imagen) override;
    bool EfectosImagen(QImage& imagen) override;
    void ExportarImagen(const QImage& imagen) override;

private:
    Sesion& s_;
    Dialogos& d_;
    QWidget* padre_;
};
