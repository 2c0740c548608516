#pragma once
// The plan of an aqueduct network for one demand case: sections coloured by
// velocity or by unit loss, nodes by pressure, arrows in the direction of the
// flow, tanks and pumps as squares, the lowest and highest pressure ringed
// with the colours of the node grid; a legend and a scale bar.  Nodes
// without coordinates are laid out from the section lengths.  World units
// are metres, y to the south (the north is up on the page); lines are
// mapped, while markers, arrows and texts keep their size in pixels.

#include "aqueduct/DatosPlano.h"
#include "pictures/Dibujo.h"

#include <QColor>
#include <QFont>
#include <QLineF>
#include <QStringList>
#include <vector>

enum class ColorPlano { Velocidad, PerdidaUnitaria };

// The classes of the legend: upper limits of the first ones (the last has
// none) and a colour per class.
struct ClasesPlano {
    std::vector<double> limites;
    std::vector<QColor> colores;
    QString titulo;
    int Clase(double valor) const;
};
ClasesPlano ClasesVelocidad();  // m/s: 0.3 0.6 1.0 1.5 2.0
ClasesPlano ClasesPerdida();    // m/km: 1 3 5 10 20
ClasesPlano ClasesPresion();    // m: 0 10 20 40 60

class PlanoAcueducto : public Dibujo {
public:
    // `previas`, when it holds a position per node, is the layout of an
    // earlier plan of the same network (another demand case): it is kept
    // rather than worked out again.
    explicit PlanoAcueducto(DatosPlano datos, ColorPlano modo = ColorPlano::Velocidad,
                            const std::vector<QPointF>* previas = nullptr);

    void PonerModo(ColorPlano modo);
    ColorPlano Modo() const { return modo_; }

    QRectF Limites() const override { return limites_; }
    QSizeF TamanoNatural() const override;
    void Pintar(QPainter& p, const QTransform& mundo, const QRectF& destino, bool todasLasEtiquetas) const override;
    ElementoDibujo ElementoEn(const QPointF& punto, double radio) const override;
    QRectF AreaRed(const QRectF& destino) const override;

    const DatosPlano& Datos() const { return datos_; }
    // World position of node k (metres east, metres south).
    QPointF PosicionNodo(int k) const { return posiciones_[size_t(k)]; }
    const std::vector<QPointF>& Posiciones() const { return posiciones_; }
    // The colour section t (index) is drawn in.
    QColor ColorTramo(int t) const;
    // Some node was placed by the layout rather than by its coordinates.
    bool Dispuesto() const { return dispuesto_; }

private:
    void PintarLeyenda(QPainter& p, const QRectF& destino) const;
    void PintarEscala(QPainter& p, const QTransform& mundo, const QRectF& destino) const;
    QString Numero(double v, const char* mascara) const;

    DatosPlano datos_;
    ColorPlano modo_;
    ClasesPlano clases_, presiones_;
    std::vector<QPointF> posiciones_;
    std::vector<QLineF> lineas_;   // per section; empty when an end is unknown
    std::vector<int> claseTramo_;
    std::vector<int> claseNodo_;
    QRectF limites_;
    double longitudTipica_ = 1.0;  // the median section, world units
    bool dispuesto_ = false;
    QFont fuente_, fuenteNegrita_;
};
