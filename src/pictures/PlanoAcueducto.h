#pragma once
// The plan of an aqueduct network for one demand case: sections coloured by
// velocity or by unit loss, nodes by pressure, arrows in the direction of the
// flow, tanks and pumps as squares, the lowest and highest pressure ringed
// with the colours of the node grid; a legend and a scale bar.  Nodes
// without coordinates are laid out from the section lengths.  World units
// are metres, y to the south (the north is up on the page); lines are
// mapped, while markers, arrows and texts keep their size in pixels.
//
// In black and white the classes of the sections go from light, thin and
// dotted to black and wide, those of the nodes from black to white, and the
// lowest and highest pressure take a double ring and a diamond.

#include "aqueduct/DatosPlano.h"
#include "pictures/Dibujo.h"

#include <QColor>
#include <QFont>
#include <QLineF>
#include <QPen>
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

// A node's label as one paint places it: its name and pressure in `caja`,
// device units.
struct EtiquetaPlano {
    int nodo = -1;
    QRectF caja;
};

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

    // The labels a paint through `mundo` into `destino` draws: each beside
    // its node, where it meets no other label, nor the legend or the scale,
    // and where it can, no marker and then no pipe.  One that finds no room
    // is left out, or with `todasLasEtiquetas` takes the place that
    // overlaps least.  Labels keep their size in pixels, so where they go
    // depends on the scale.
    std::vector<EtiquetaPlano> Etiquetas(const QTransform& mundo, const QRectF& destino, bool todasLasEtiquetas) const;

private:
    // What a paint shows: the nodes inside the device, and whether all
    // their markers and their labels are drawn at this scale.
    struct Detalle {
        std::vector<int> nodos;
        bool marcas = false, etiquetas = false;
    };
    Detalle DetalleDe(const QTransform& mundo, const QRectF& destino, bool todasLasEtiquetas) const;
    std::vector<EtiquetaPlano> EtiquetasDe(const Detalle& d, const QTransform& mundo, const QRectF& destino,
                                           bool todasLasEtiquetas) const;
    // Half the size of node k's marker on the page, its ring included.
    double RadioMarca(int k) const;
    QPen PlumaClase(int clase) const;
    QColor RellenoPresion(int clase) const;
    void PintarMarcaNodo(QPainter& p, int k, const QPointF& c, bool todos) const;
    void PintarLeyenda(QPainter& p, const QRectF& destino) const;
    QRectF CajaLeyenda(const QRectF& destino) const;
    QStringList TituloLeyenda() const;
    // The scale bar: a round length, its pixels and its text.
    struct Escala {
        double pixeles = 0.0;
        QString texto;
        QPointF origen;
    };
    Escala EscalaDe(const QTransform& mundo, const QRectF& destino) const;
    QRectF CajaEscala(const Escala& e) const;
    void PintarEscala(QPainter& p, const Escala& e) const;
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
