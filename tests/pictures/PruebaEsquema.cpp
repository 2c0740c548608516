// The schematic of every building sample, checked as a picture: each node
// label is in the SVG's text, no two node labels meet, the unfavourable node
// and those above the maximum pressure carry the pressure grid's colours at
// their markers in the PNG (in black and white, shapes of their own), and
// the riser of the eight-floor sample stands vertical with its floors in the
// order of their levels.

#include "ApoyoDibujos.h"
#include "pictures/EsquemaEdificio.h"
#include "pictures/PlanoAcueducto.h"
#include "widgets/Colores.h"

#include <QFile>

TEST(Esquema, CadaMuestraTieneTodasLasEtiquetasSinSolaparYLosColoresDelAnalisis) {
    for (const QString& nombre : EdificiosDeEjemplo()) {
        SCOPED_TRACE(nombre.toStdString());
        SesionPrueba sp;
        EdificioAnalizado e(sp, nombre);
        EsquemaEdificio dibujo(e.Esquema());
        const DatosEsquema& datos = dibujo.Datos();
        ASSERT_EQ(int(datos.nodos.size()), e.p.NumeroRamales + 1);

        const QString svg = QString::fromUtf8(LeerArchivo(Exportar(dibujo, sp.Datos(QString()), QStringLiteral("e.svg"))));
        for (const NodoEsquema& n : datos.nodos) {
            EXPECT_TRUE(svg.contains(QLatin1Char('>') + n.nombre.toHtmlEscaped() + QLatin1Char('<')))
                << n.nombre.toStdString();
            EXPECT_TRUE(svg.contains(n.textoPresion.toHtmlEscaped())) << n.textoPresion.toStdString();
        }
        for (size_t i = 0; i < datos.nodos.size(); ++i)
            for (size_t j = i + 1; j < datos.nodos.size(); ++j)
                EXPECT_FALSE(dibujo.EtiquetaNodo(int(i)).intersects(dibujo.EtiquetaNodo(int(j))))
                    << datos.nodos[i].nombre.toStdString() << " / " << datos.nodos[j].nombre.toStdString();

        // The marked nodes are those the chain named and those its grid shows above PresionM.
        const QImage png(Exportar(dibujo, sp.Datos(QString()), QStringLiteral("e.png")));
        ASSERT_FALSE(png.isNull());
        int desfavorables = 0;
        for (int k = 1; k <= e.p.NumeroRamales; ++k) {
            const NodoEsquema& n = datos.nodos[size_t(k)];
            EXPECT_EQ(n.desfavorable, n.nombre == e.p.NodoDesfaborableNombre);
            EXPECT_EQ(n.sobreMaxima, e.p.OpcionPresionM && e.a->Spread3.Valor(k, 15) > e.p.PresionM);
            desfavorables += n.desfavorable;
            const QColor pixel = png.pixelColor(EnArchivo(dibujo, dibujo.PosicionNodo(k)).toPoint());
            const int esperado = n.desfavorable ? ColoresAnalisis::NodoDesfavorable
                                 : n.sobreMaxima ? ColoresAnalisis::PresionMaxima
                                                 : -1;
            EXPECT_TRUE(ColorCercano(pixel, esperado >= 0 ? ColorNivo(esperado) : QColor(Qt::white)))
                << n.nombre.toStdString() << " " << pixel.name().toStdString();
        }
        EXPECT_EQ(desfavorables, 1);

        // Without colour nothing is coloured, and the marks keep apart by
        // their shape: the unfavourable node's target has a black centre, a
        // node above PresionM is a grey square, any other a white ring.
        dibujo.PonerBlancoNegro(true);
        const QImage bn(Exportar(dibujo, sp.Datos(QString()), QStringLiteral("bn.png")));
        EXPECT_TRUE(SoloGrises(bn));
        for (int k = 1; k <= e.p.NumeroRamales; ++k) {
            const NodoEsquema& n = datos.nodos[size_t(k)];
            const int gris = bn.pixelColor(EnArchivo(dibujo, dibujo.PosicionNodo(k)).toPoint()).red();
            if (n.desfavorable) EXPECT_LT(gris, 40) << n.nombre.toStdString();
            else if (n.sobreMaxima) EXPECT_NEAR(gris, 150, 6) << n.nombre.toStdString();
            else EXPECT_GT(gris, 249) << n.nombre.toStdString();
        }
    }
}

TEST(Esquema, ElMontanteEsVerticalYLosPisosSiguenSuCota) {
    SesionPrueba sp;
    EdificioAnalizado e(sp, QStringLiteral("Edificio_MontantePH"));
    const EsquemaEdificio dibujo(e.Esquema());
    const DatosEsquema& d = dibujo.Datos();
    // M0 (-3 m) to M8 (21 m): one x, and each floor higher on the page than the one below.
    std::vector<int> montante;
    for (int k = 0; k < int(d.nodos.size()); ++k)
        if (d.nodos[size_t(k)].nombre.startsWith(QLatin1Char('M'))) montante.push_back(k);
    ASSERT_EQ(montante.size(), 9u);
    for (size_t i = 1; i < montante.size(); ++i) {
        EXPECT_DOUBLE_EQ(dibujo.PosicionNodo(montante[i]).x(), dibujo.PosicionNodo(montante[0]).x());
        EXPECT_LT(dibujo.PosicionNodo(montante[i]).y(), dibujo.PosicionNodo(montante[i - 1]).y());
    }
    // A1 and B1 hang on the floor of M1: A1 on its line, B1 on a track below.
    auto k = [&](const char* n) {
        for (int i = 0; i < int(d.nodos.size()); ++i)
            if (d.nodos[size_t(i)].nombre == QLatin1String(n)) return i;
        return -1;
    };
    EXPECT_DOUBLE_EQ(dibujo.PosicionNodo(k("A1")).y(), dibujo.PosicionNodo(k("M1")).y());
    EXPECT_GT(dibujo.PosicionNodo(k("B1")).y(), dibujo.PosicionNodo(k("M1")).y());
    EXPECT_LT(dibujo.PosicionNodo(k("B1")).y(), dibujo.PosicionNodo(k("M0")).y());
}

TEST(Esquema, ElJsonLlevaLoMismoQueElModelo) {
    SesionPrueba sp;
    EdificioAnalizado e(sp, QStringLiteral("Vivienda con Tanque Elevado"));
    const DatosEsquema a = e.Esquema();
    DatosEsquema b;
    QString error;
    ASSERT_TRUE(EsquemaDeJson(EsquemaComoJson(a), b, error)) << error.toStdString();
    ASSERT_EQ(b.nodos.size(), a.nodos.size());
    ASSERT_EQ(b.ramales.size(), a.ramales.size());
    EXPECT_EQ(b.origen, OrigenEsquema::Tanque);
    for (size_t i = 0; i < a.nodos.size(); ++i) {
        EXPECT_EQ(b.nodos[i].nombre, a.nodos[i].nombre);
        EXPECT_EQ(b.nodos[i].textoPresion, a.nodos[i].textoPresion);
        EXPECT_EQ(b.nodos[i].desfavorable, a.nodos[i].desfavorable);
    }
    for (size_t i = 0; i < a.ramales.size(); ++i) EXPECT_EQ(b.ramales[i].nodoI, a.ramales[i].nodoI);
    // The tank stands above N1 by the height the chain gave branch 1.
    EXPECT_DOUBLE_EQ(a.nodos[0].cota, a.nodos[1].cota + e.p.longitudReal[1]);
    EXPECT_FALSE(EsquemaDeJson(QJsonObject{{QStringLiteral("tipo"), QStringLiteral("plano")}}, b, error));
    EXPECT_EQ(error, QStringLiteral("El archivo no contiene el esquema de una red de edificio."));
}

TEST(Esquema, LasCifrasSiguenLasMarcasDelLugar) {
    SesionPrueba sp;
    EdificioAnalizado e(sp, QStringLiteral("Vivienda con Tanque Hidroneumatico"));
    for (const char* lugar : {"es_ES", "es_MX", "C"}) {
        MarcasPrueba marcas(lugar);
        const DatosEsquema d = EsquemaDeProyecto(e.p, &e.a->Spread3);
        const QChar decimal = SeparadoresActuales().decimal;
        // Level of F: 2.9 m; flow texts end in " l/s" with the locale's mark.
        EXPECT_EQ(d.nodos[6].textoCota, QStringLiteral("2") + decimal + QStringLiteral("90 m")) << lugar;
        EXPECT_TRUE(d.ramales[0].gasto.contains(decimal)) << lugar;
    }
}

TEST(Esquema, UnaRedVaciaOUnRamalSinOrigenSeDibujanIgual) {
    SesionPrueba sp;
    const EsquemaEdificio vacio{DatosEsquema()};
    EXPECT_FALSE(QImage(Exportar(vacio, sp.Datos(QString()), QStringLiteral("v.png"))).isNull());
    const PlanoAcueducto sinNodos{DatosPlano()};
    EXPECT_FALSE(QImage(Exportar(sinNodos, sp.Datos(QString()), QStringLiteral("p.png"))).isNull());
    // Branch 2 starts at a node no earlier branch reaches: it stands apart,
    // to the right of the tree, and nothing is drawn from the origin to it.
    DatosEsquema e;
    for (const char* n : {"A", "B", "C"}) e.nodos.push_back({QString::fromLatin1(n), 0.0, QStringLiteral("0.00 m")});
    e.ramales.push_back({1, 0, 1, QString(), QString()});
    e.ramales.push_back({2, -1, 2, QString(), QString()});
    const EsquemaEdificio dibujo(e);
    EXPECT_GT(dibujo.PosicionNodo(2).x(), dibujo.PosicionNodo(1).x());
    EXPECT_FALSE(dibujo.EtiquetaNodo(2).intersects(dibujo.EtiquetaNodo(1)));
}
