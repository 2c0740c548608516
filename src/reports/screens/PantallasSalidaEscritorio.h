#pragma once
// The desktop's output-stage screens: OpcionExportar and VerResultados as
// modal Qt windows over `padre`.

#include "reports/salida/SalidaReporte.h"

class Dialogos;
class QWidget;
struct Sesion;

class PantallasSalidaEscritorio : public PantallasSalida {
public:
    PantallasSalidaEscritorio(Sesion& s, Dialogos& d, QWidget* padre) : s_(s), d_(d), padre_(padre) {}
    std::optional<EleccionSalida> OpcionExportar() override;
    void VerResultados(Reporte& r) override;

private:
    Sesion& s_;
    Dialogos& d_;
    QWidget* padre_;
};
