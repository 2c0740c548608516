// The plan of the aqueduct samples checked as a picture (every node label
// in the SVG's text, the network inside the page, no colour left in black
// and white, labels apart from each other at any scale), the colours of
// sections against the velocity classes worked by hand, given coordinates
// kept with north up, and the layout from lengths alone (a large tree
// among them).

#include "ApoyoDibujos.h"
#include "pictures/DisposicionTension.h"
#include "pictures/PlanoAcueducto.h"

#include <cmath>

namespace {

// The border of an image is blank: nothing drawn reached the page's edge.
bool BordeEnBlanco(const QImage& im, int ancho) {
    for (int y = 0; y < im.height(); ++y)
        for (int x = 0; x < im.width(); ++x) {
            if (x >= ancho && x < im.width() - ancho && y >= ancho && y < im.height() - ancho) continue;
            if (im.pixelColor(x, y) != QColor(Qt::white)) return false;
        }
    return true;
}

}  // namespace

TEST(Plano, CadaMuestraTieneSusEtiquetasYCabeEnLaPagina) {
    for (const QString& nombre : RedesDeEjemplo()) {
        SCOPED_TRACE(nombre.toStdString());
        SesionPrueba sp;
        ProyectoAcueducto p;
        ResolverRed(sp, p, nombre);
        PlanoAcueducto plano(PlanoDeProyecto(p, CoordenadasNodos(p)));
        // Sample A gives every node its place; B leaves them to the layout.
        EXPECT_EQ(plano.Dispuesto(), nombre == QLatin1String("EjemploRedB"));
        const QString svg = QString::fromUtf8(LeerArchivo(Exportar(plano, sp.Datos(QString()), QStringLiteral("p.svg"))));
        for (const NodoPlano& n : plano.Datos().nodos)
            EXPECT_TRUE(svg.contains(QLatin1Char('>') + n.nombre.toHtmlEscaped() + QLatin1Char('<'))) << n.nombre.toStdString();
        const QImage png(Exportar(plano, sp.Datos(QString()), QStringLiteral("p.png")));
        ASSERT_FALSE(png.isNull());
        EXPECT_TRUE(BordeEnBlanco(png, 4));
        // Every node lands in the part of the page left of the legend.
        const QRectF red = plano.AreaRed(QRectF(QPointF(0, 0), plano.TamanoNatural()).adjusted(12, 12, -12, -12));
        for (int k = 0; k < int(plano.Datos().nodos.size()); ++k)
            EXPECT_TRUE(red.contains(EnArchivo(plano, plano.PosicionNodo(k)))) << k;
        const QByteArray pdf = LeerArchivo(Exportar(plano, sp.Datos(QString()), QStringLiteral("p.pdf")));
        EXPECT_TRUE(pdf.startsWith("%PDF"));
        // Without colour no pixel keeps one.
        plano.PonerBlancoNegro(true);
        EXPECT_TRUE(SoloGrises(QImage(Exportar(plano, sp.Datos(QString()), QStringLiteral("bn.png")))));
    }
}

TEST(Plano, LasEtiquetasNoSeTocanYQuedanEnLaPaginaJuntoASuNodo) {
    for (const QString& nombre : RedesDeEjemplo()) {
        SesionPrueba sp;
        ProyectoAcueducto p;
        ResolverRed(sp, p, nombre);
        PlanoAcueducto plano(PlanoDeProyecto(p, CoordenadasNodos(p)));
        // The picture file's own page, and a letter page less half-inch
        // margins in points, as a report band paints it.
        const QRectF archivo = QRectF(QPointF(0, 0), plano.TamanoNatural()).adjusted(12, 12, -12, -12);
        for (const QRectF& destino : {archivo, QRectF(36, 36, 540, 720)})
            for (const bool bn : {false, true}) {
                SCOPED_TRACE(nombre.toStdString() + " " + std::to_string(destino.width()) + (bn ? " bn" : ""));
                plano.PonerBlancoNegro(bn);
                const QTransform t = EncuadreDibujo(plano, destino);
                const std::vector<EtiquetaPlano> e = plano.Etiquetas(t, destino, true);
                ASSERT_EQ(e.size(), plano.Datos().nodos.size());
                for (size_t i = 0; i < e.size(); ++i) {
                    EXPECT_TRUE(destino.contains(e[i].caja)) << e[i].nodo;
                    for (size_t j = i + 1; j < e.size(); ++j) EXPECT_FALSE(e[i].caja.intersects(e[j].caja)) << e[i].nodo << " " << e[j].nodo;
                    // Beside its node: within the largest ring (13 px) and a gap of 2.
                    const QPointF c = t.map(plano.PosicionNodo(e[i].nodo));
                    const QPointF cerca(std::clamp(c.x(), e[i].caja.left(), e[i].caja.right()),
                                        std::clamp(c.y(), e[i].caja.top(), e[i].caja.bottom()));
                    EXPECT_LE(std::hypot(cerca.x() - c.x(), cerca.y() - c.y()), 15.0 + 1e-9) << e[i].nodo;
                }
            }
    }
}

TEST(Plano, ColoresPorClaseDeVelocidadYCoordenadasConElNorteArriba) {
    // Three nodes at given positions (m) and two sections.  Section 1: 5 l/s
    // in 150 mm, V = 0.005 / (pi 0.15^2 / 4) = 0.283 m/s, below 0.3: the first
    // class.  Section 2: 12 l/s in 100 mm, V = 0.012 / (pi 0.1^2 / 4) = 1.528
    // m/s, from 1.5 to 2.0: the fifth class.
    DatosPlano d;
    for (auto [nombre, x, y] : {std::tuple{"T", 0.0, 0.0}, std::tuple{"N1", 300.0, 0.0}, std::tuple{"N2", 300.0, 400.0}}) {
        NodoPlano n;
        n.nombre = QString::fromLatin1(nombre);
        n.posicion = QPointF(x, y);
        d.nodos.push_back(n);
    }
    d.tramos.push_back({1, 0, 1, 300.0, 5.0, 0.005 / (M_PI * 0.15 * 0.15 / 4), 0.4});
    d.tramos.push_back({2, 1, 2, 400.0, 12.0, 0.012 / (M_PI * 0.1 * 0.1 / 4), 25.0});
    PlanoAcueducto plano(d);
    EXPECT_FALSE(plano.Dispuesto());
    const ClasesPlano v = ClasesVelocidad();
    EXPECT_EQ(plano.ColorTramo(0), v.colores[0]);
    EXPECT_EQ(plano.ColorTramo(1), v.colores[4]);
    // Class limits belong to the class above: 0.6 m/s is the third.
    EXPECT_EQ(v.Clase(0.6), 2);
    EXPECT_EQ(v.Clase(0.59), 1);
    // North up: N2, 400 m north of N1, is above it on the page.
    EXPECT_DOUBLE_EQ(plano.PosicionNodo(2).x(), plano.PosicionNodo(1).x());
    EXPECT_LT(plano.PosicionNodo(2).y(), plano.PosicionNodo(1).y());

    SesionPrueba sp;
    const QImage png(Exportar(plano, sp.Datos(QString()), QStringLiteral("v.png")));
    for (int t = 0; t < 2; ++t) {
        // A quarter of the way along, clear of the arrow and the markers.
        const QPointF a = EnArchivo(plano, plano.PosicionNodo(d.tramos[size_t(t)].nodoI));
        const QPointF b = EnArchivo(plano, plano.PosicionNodo(d.tramos[size_t(t)].nodoJ));
        const QColor pixel = png.pixelColor((a + (b - a) * 0.25).toPoint());
        EXPECT_TRUE(ColorCercano(pixel, plano.ColorTramo(t))) << t << " " << pixel.name().toStdString();
    }
    // By unit loss: 0.4 m/km is below 1, 25 m/km is 20 or more.
    plano.PonerModo(ColorPlano::PerdidaUnitaria);
    EXPECT_EQ(plano.ColorTramo(0), ClasesPerdida().colores[0]);
    EXPECT_EQ(plano.ColorTramo(1), ClasesPerdida().colores[5]);
}

TEST(Plano, LaDisposicionRespetaLasLongitudesYLosNodosFijos) {
    // A 3-4-5 triangle: the layout gives the three distances.
    const std::vector<AristaDisposicion> triangulo{{0, 1, 300.0}, {1, 2, 400.0}, {2, 0, 500.0}};
    const std::vector<QPointF> x = DisponerPorTension(3, triangulo, {});
    auto dist = [&](const std::vector<QPointF>& y, int a, int b) { return std::hypot(y[a].x() - y[b].x(), y[a].y() - y[b].y()); };
    EXPECT_NEAR(dist(x, 0, 1), 300.0, 3.0);
    EXPECT_NEAR(dist(x, 1, 2), 400.0, 4.0);
    EXPECT_NEAR(dist(x, 2, 0), 500.0, 5.0);
    // A square grid of 100 m sections with the two ends of its first row
    // given, 300 m apart: those stay, the row between them lies on their
    // line, and every section keeps near its length.
    std::vector<AristaDisposicion> malla;
    auto n = [](int i, int j) { return i * 4 + j; };
    for (int i = 0; i < 4; ++i)
        for (int j = 0; j < 4; ++j) {
            if (j < 3) malla.push_back({n(i, j), n(i, j + 1), 100.0});
            if (i < 3) malla.push_back({n(i, j), n(i + 1, j), 100.0});
        }
    std::vector<std::optional<QPointF>> fijos(16);
    fijos[size_t(n(0, 0))] = QPointF(1000, 2000);
    fijos[size_t(n(0, 3))] = QPointF(1300, 2000);
    const std::vector<QPointF> y = DisponerPorTension(16, malla, fijos);
    EXPECT_EQ(y[size_t(n(0, 0))], QPointF(1000, 2000));
    EXPECT_EQ(y[size_t(n(0, 3))], QPointF(1300, 2000));
    for (int j : {1, 2}) {
        EXPECT_NEAR(y[size_t(n(0, j))].x(), 1000 + 100 * j, 15.0);
        EXPECT_NEAR(y[size_t(n(0, j))].y(), 2000, 30.0);  // a tenth of the span
    }
    for (const AristaDisposicion& a : malla) EXPECT_NEAR(dist(y, a.a, a.b), 100.0, 15.0) << a.a << "-" << a.b;
    // Run twice, the same positions.
    EXPECT_EQ(DisponerPorTension(16, malla, fijos), y);
}

TEST(Plano, UnaRedRamificadaGrandeSeDisponeConPocosCruces) {
    // A rural network: a main of 60 sections, a street of 10 from each of
    // its nodes and a lane of 3 from every other node of those; 1,561 nodes
    // and no loop, more than the layout takes every pair of.  A tree can be
    // drawn without crossings: fewer than one section in ten may cross
    // another (folded from a projection, one in three did).
    std::vector<AristaDisposicion> a;
    int n = 0;
    auto cadena = [&](int desde, int tramos) {
        std::vector<int> nodos;
        for (int s = 0, u = desde; s < tramos; ++s, u = n) {
            a.push_back({u, ++n, 50.0 + 10.0 * (n * 7 % 9)});
            nodos.push_back(n);
        }
        return nodos;
    };
    for (const int principal : cadena(0, 60)) {
        const std::vector<int> calle = cadena(principal, 10);
        for (size_t k = 0; k < calle.size(); k += 2) cadena(calle[k], 3);
    }
    ASSERT_EQ(n + 1, 1561);
    const std::vector<QPointF> x = DisponerPorTension(n + 1, a, {});
    int cruces = 0;
    for (size_t i = 0; i < a.size(); ++i)
        for (size_t j = i + 1; j < a.size(); ++j) {
            if (a[i].a == a[j].a || a[i].a == a[j].b || a[i].b == a[j].a || a[i].b == a[j].b) continue;
            QPointF q;
            cruces += QLineF(x[size_t(a[i].a)], x[size_t(a[i].b)]).intersects(QLineF(x[size_t(a[j].a)], x[size_t(a[j].b)]), &q) ==
                      QLineF::BoundedIntersection;
        }
    EXPECT_LT(cruces, int(a.size()) / 10);
}

TEST(Plano, ElJsonLlevaLoMismoYRechazaOtraCosa) {
    SesionPrueba sp;
    ProyectoAcueducto p;
    ResolverRed(sp, p, QStringLiteral("EjemploRedB"), 3);
    std::vector<std::optional<QPointF>> coordenadas(size_t(int(p.NumeroNodosACU)));
    coordenadas[0] = QPointF(12.5, -3.25);
    const DatosPlano a = PlanoDeProyecto(p, coordenadas);
    DatosPlano b;
    QString error;
    ASSERT_TRUE(PlanoDeJson(PlanoComoJson(a), b, error)) << error.toStdString();
    ASSERT_EQ(b.nodos.size(), a.nodos.size());
    ASSERT_EQ(b.tramos.size(), a.tramos.size());
    EXPECT_EQ(b.caso, a.caso);
    EXPECT_EQ(b.nodos[0].posicion, QPointF(12.5, -3.25));
    EXPECT_FALSE(b.nodos[1].posicion.has_value());
    for (size_t t = 0; t < a.tramos.size(); ++t) {
        EXPECT_EQ(b.tramos[t].nodoI, a.tramos[t].nodoI);
        EXPECT_DOUBLE_EQ(b.tramos[t].velocidad, a.tramos[t].velocidad);
        // The ends are those the section names.
        EXPECT_EQ(a.nodos[size_t(a.tramos[t].nodoI)].nombre, p.Inicio[int(t) + 1].trimmed());
    }
    // The marks of the session travel with the plan, for its legend and scale.
    for (const char* lugar : {"es_ES", "es_MX", "C"}) {
        MarcasPrueba marcas(lugar);
        const DatosPlano c = PlanoDeProyecto(p);
        EXPECT_TRUE(PlanoDeJson(PlanoComoJson(c), b, error));
        EXPECT_EQ(b.decimal, SeparadoresActuales().decimal) << lugar;
        EXPECT_EQ(b.miles, SeparadoresActuales().miles) << lugar;
        EXPECT_TRUE(c.nodos[1].textoPresion.contains(SeparadoresActuales().decimal)) << lugar;
    }
    EXPECT_FALSE(PlanoDeJson(QJsonObject{{QStringLiteral("tipo"), QStringLiteral("esquema")}}, b, error));
    EXPECT_EQ(error, QStringLiteral("El archivo no contiene el plano de una red de acueductos."));
}

TEST(Plano, LasCoordenadasDelModeloLleganAlPlano) {
    SesionPrueba sp;
    ProyectoAcueducto p;
    ResolverRed(sp, p, QStringLiteral("EjemploRedB"), 1);
    p.X[1] = 100.0;
    p.Y[1] = 250.5;
    p.X[2] = 40.0;  // X without Y: not a place
    const std::vector<std::optional<QPointF>> c = CoordenadasNodos(p);
    ASSERT_EQ(c.size(), size_t(int(p.NumeroNodosACU)));
    EXPECT_EQ(c[0], QPointF(100.0, 250.5));
    EXPECT_FALSE(c[1].has_value());
    EXPECT_FALSE(c[2].has_value());
}
