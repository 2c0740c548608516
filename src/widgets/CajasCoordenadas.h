#pragma once
// The six coordinate boxes of the length screens, "X ( I ):" to "Z ( J ):",
// with the length beside "L (m):", and the one-row grid of the section they
// fix.  The building and the aqueduct screens share them.

#include <QGroupBox>

class Coordenadas;
class Grid;
class NivoDouble;
class QLabel;
class VistaGrid;

class CajasCoordenadas : public QGroupBox {
    Q_OBJECT
public:
    // Each value typed goes into `puntos`, and the length shown follows.
    CajasCoordenadas(const QString& titulo, Coordenadas& puntos, QWidget* padre);

    NivoDouble* Caja(int i) const { return cajas_[i - 1]; }  // 1..6
    QLabel* Longitud() const { return longitud_; }
    // The boxes and the length as the points hold them.
    void Mostrar();

private:
    Coordenadas& puntos_;
    NivoDouble* cajas_[6];
    QLabel* longitud_;
    bool mostrando_ = false;
};

// A view of a grid of one row that takes no focus nor selection, as tall as
// its headers and its row.
VistaGrid* VistaDeUnaFila(Grid* grid, QWidget* padre);
