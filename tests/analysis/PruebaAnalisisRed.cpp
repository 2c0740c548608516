#include "ApoyoAnalisis.h"
#include "analysis/AnalisisRed.h"
#include "analysis/CargaProyecto.h"
#include "analysis/Numeracion.h"

#include <QFile>

namespace {

struct PantallaAnalisis : ::testing::Test {
    SesionPrueba sp;
    ProyectoEdificio p;
    DialogosFalsos d;

    // A sample project loaded and verified as the command does.
    void Ejemplo(const char* nombre) {
        const QString ruta = sp.CopiaDeEjemplo(QString::fromUtf8(nombre) + QStringLiteral(".nivo"),
                                               QStringLiteral("ejemplo.plm"));
        QString error;
        ASSERT_TRUE(CargarProyectoEdificio(p, sp.s, ruta, error)) << error.toStdString();
        VerificarNumeracion(p, d);
        ASSERT_EQ(p.ErrorNumeracion, 0);
    }
    // O-A, A-B, B-C, A-D with fixtures on the far branches.
    void Pequeno() {
        ProyectoDeRamales(p, sp.s, {{"O", "A"}, {"A", "B"}, {"B", "C"}, {"A", "D"}});
        PonerPiezas(p, 3, {{10, 2, 1.0, "LAVAMANOS"}, {5, 1, 3.0, "EXCUSADO DE TANQUE"}});
        PonerPiezas(p, 4, {{4, 1, 2.0, "DUCHA"}});
        PonerConexiones(p, 2, {{5, 2, 0.0, "CODO DE 90 GRADOS"}});
        for (int i = 1; i <= 4; ++i) p.longitudReal[i] = 4.0;
        GuardarYAbrir(p, sp);
        LeerProyecto(p, sp.s);
        VerificarNumeracion(p, d);
    }
    static std::vector<double> Columna(const Grid& g, int c) {
        std::vector<double> v;
        for (int f = 1; f <= g.Filas(); ++f) v.push_back(g.Valor(f, c));
        return v;
    }
};

}  // namespace

TEST_F(PantallaAnalisis, ProyectoSinRamalesMuestraCuatroGridsVacios) {
    sp.s.ArchivoProyecto = sp.ProyectoEnBlanco();
    sp.s.NombreProyecto = QStringLiteral("prueba.plm");
    ASSERT_EQ(AbrirConexionProyecto(sp.s), 0);
    LeerProyecto(p, sp.s);
    p.OpcionPresionInicial = 2;
    AnalisisRed a(p, sp.s, d);
    a.Cargar();
    for (const Grid* g : {&a.Spread4, &a.Spread1, &a.Spread2, &a.Spread3}) EXPECT_EQ(g->Filas(), 0);
    EXPECT_FALSE(a.Frame3Visible);
    EXPECT_EQ(a.SSPanel1, QStringLiteral("0"));
    EXPECT_EQ(a.Caption, QStringLiteral("Resultado del Análisis  Proyecto: [ prueba.plm ]"));
}

TEST_F(PantallaAnalisis, EncabezadosDeLosCuatroGrids) {
    AnalisisRed a(p, sp.s, d);
    EXPECT_EQ(a.Spread4.Encabezado(1, 1), QStringLiteral("Ramal"));
    EXPECT_EQ(a.Spread4.Encabezado(2, 2), QStringLiteral("Nodo J"));
    EXPECT_EQ(a.Spread4.Encabezado(1, 5), QStringLiteral("Predimensionado Teórico"));
    EXPECT_EQ(a.Spread4.Encabezado(2, 7), QStringLiteral("Diámetro (plg)"));
    EXPECT_EQ(a.Spread4.Col(7).lista.size(), 14);
    EXPECT_EQ(a.Spread4.Col(7).lista[3], QStringLiteral("1 1/4\""));
    EXPECT_FALSE(a.Spread4.Col(7).bloqueada);
    EXPECT_EQ(a.Spread1.Encabezado(2, 1), QStringLiteral("Nodo J"));
    EXPECT_EQ(a.Spread1.Encabezado(2, 2), QStringLiteral("Nodo I"));
    EXPECT_EQ(a.Spread1.Encabezado(1, 8), QStringLiteral("Gasto\nProbable (l/s)"));
    EXPECT_EQ(a.Spread2.Encabezado(1, 4), QStringLiteral("Diámetro del Ramal (plg)"));
    EXPECT_EQ(a.Spread2.Encabezado(2, 8), QStringLiteral("Totales (m)"));
    EXPECT_EQ(a.Spread3.Encabezado(1, 8), QStringLiteral("Velocidad\n(m/s)"));
    EXPECT_EQ(a.Spread3.Encabezado(1, 11), QStringLiteral("Cota Piezométrica"));
    EXPECT_EQ(a.Spread3.Encabezado(1, 13), QStringLiteral("Diferencia de\nCota (J - I)"));
    EXPECT_EQ(a.Spread3.Encabezado(1, 14), QStringLiteral("Válvula\nReductora (m)"));
    EXPECT_EQ(a.Spread3.Encabezado(1, 15), QStringLiteral("Presion (m)\nen el Nodo J"));
    EXPECT_FALSE(a.Spread3.Col(14).bloqueada);
    EXPECT_EQ(AnalisisRed::TituloPestana(4), QStringLiteral("PERDIDAS Y PRESIONES"));
}

TEST_F(PantallaAnalisis, CargaDelTanqueElevado) {
    Ejemplo("Vivienda con Tanque Elevado");
    AnalisisRed a(p, sp.s, d);
    a.Cargar();
    EXPECT_TRUE(a.Frame3Visible);
    EXPECT_EQ(a.Double1, p.longitudReal[1]);
    EXPECT_EQ(a.SSPanel1, QString::number(int(p.NumeroRamales)));
    EXPECT_EQ(a.Spread4.Filas(), p.NumeroRamales);
    EXPECT_EQ(a.Spread3.Filas(), p.NumeroRamales);
    EXPECT_EQ(a.Tab, 1);
    EXPECT_TRUE(a.LSButton2Disponible());
    a.CambiarTab(3);
    EXPECT_FALSE(a.LSButton2Disponible());
    EXPECT_FALSE(a.LSButton9Disponible());

    // Every stored size now is the theoretical one, written to the file.
    for (int i = 1; i <= p.NumeroRamales; ++i)
        EXPECT_EQ(ComoTexto(CampoRamal(sp.s, "Predimensionado", i)), p.DiametroCalculoTexto[i]);
    // The unfavourable node keeps the required 3 m.
    EXPECT_NEAR(p.PresionDesfaborable, p.Valor3, 0.005);
    EXPECT_EQ(a.Spread3.Cel(p.NodoDesfaborable - 1, 15).colorFondo, ColoresAnalisis::NodoDesfavorable);
}

TEST_F(PantallaAnalisis, FilasDePiezasYDeConexionesPorRamal) {
    Pequeno();
    AnalisisRed a(p, sp.s, d);
    a.Cargar();
    // Spread1: branches 1 and 2 take one row each, branch 3 two, branch 4 one.
    ASSERT_EQ(a.Spread1.Filas(), 5);
    EXPECT_EQ(a.Spread1.Texto(3, 1), QStringLiteral("C"));
    EXPECT_EQ(a.Spread1.Texto(3, 2), QStringLiteral("B"));
    ASSERT_NE(a.Spread1.UnionEn(3, 1), nullptr);
    EXPECT_EQ(a.Spread1.UnionEn(3, 1)->filas, 2);
    EXPECT_EQ(a.Spread1.Texto(3, 3), QStringLiteral("LAVAMANOS"));
    EXPECT_EQ(a.Spread1.Texto(3, 6), QStringLiteral("2.00"));
    EXPECT_EQ(a.Spread1.Texto(3, 7), QStringLiteral("5.00"));
    EXPECT_EQ(a.Spread1.Texto(4, 7), QString());  // a sub-total row
    EXPECT_EQ(a.Spread1.Texto(1, 3), QString());  // no fixture
    EXPECT_EQ(a.Spread1.Texto(1, 4), QString());
    EXPECT_EQ(a.Spread1.Valor(3, 9), 3.0);

    // Spread2: branch 2 has its elbows; a reduction row where the size drops.
    EXPECT_EQ(a.FilasRamal[2], p.LongitudReduccion[2] > 0 ? 2 : 1);
    const int f = a.PrimeraFilaLongitudes[2];
    EXPECT_EQ(a.Spread2.Texto(f, 3), QStringLiteral("CODO DE 90 GRADOS"));
    EXPECT_EQ(a.Spread2.Texto(f, 4), p.Predimensionado[2] + QStringLiteral("\""));
    for (int i = 2; i <= 4; ++i) {
        if (p.LongitudReduccion[i] <= 0) continue;
        const int ultima = a.PrimeraFilaLongitudes[i] + a.FilasRamal[i] - 1;
        EXPECT_EQ(a.Spread2.Texto(ultima, 3), QStringLiteral("REDUCCIÓN DE ") + p.Predimensionado[p.RamalAnterior[i]] +
                                                  QStringLiteral("\"  a  ") + p.Predimensionado[i] +
                                                  QStringLiteral("\""));
        EXPECT_NEAR(a.Spread2.Valor(ultima, 8), p.LongitudEquivalenteRamal[i], 0.005);
        EXPECT_EQ(a.Spread2.Valor(ultima, 9), double(i));
    }
}

TEST_F(PantallaAnalisis, EditarElDiametroAsumidoReescribeElArchivoYLasPerdidas) {
    Pequeno();
    AnalisisRed a(p, sp.s, d);
    a.Cargar();
    const QString unidades = GridComoTexto(a.Spread1);
    const double perdidaAntes = p.PerdidaRamal[3];
    a.EditarDiametroAsumido(3, QStringLiteral("1 1/2\""));
    EXPECT_EQ(p.Predimensionado[3], QStringLiteral("1 1/2"));
    EXPECT_EQ(p.DiametroAsumido[3], 1.5);
    EXPECT_EQ(ComoTexto(CampoRamal(sp.s, "Predimensionado", 3)), QStringLiteral("1 1/2"));
    EXPECT_EQ(a.Spread4.Cel(3, 7).colorFondo, ColoresAnalisis::DiametroCambiado);
    EXPECT_EQ(a.Spread4.Cel(3, 8).colorTexto, ColorRojo);  // a slow pipe
    EXPECT_EQ(a.Spread3.Texto(3, 4), QStringLiteral("1 1/2\""));
    EXPECT_LT(p.PerdidaRamal[3], perdidaAntes);
    EXPECT_EQ(GridComoTexto(a.Spread1), unidades);
    // A reduction from the branch before, written to the file.
    EXPECT_EQ(ComoTexto(CampoRamal(sp.s, "Reduccion", 3)),
              QStringLiteral("REDUCCIÓN DE  ") + p.Predimensionado[2] + QStringLiteral("\"  a  1 1/2\""));

    // Typing the same name again leaves everything as it was.
    const QString presiones = GridComoTexto(a.Spread3);
    a.EditarDiametroAsumido(3, QStringLiteral(" 1 1/2\" "));
    EXPECT_EQ(GridComoTexto(a.Spread3), presiones);
}

TEST_F(PantallaAnalisis, ValvulaReductoraBajaLaPresionAguasAbajo) {
    Pequeno();
    AnalisisRed a(p, sp.s, d);
    a.Cargar();
    const auto col15 = Columna(a.Spread3, 15), col11 = Columna(a.Spread3, 11);
    std::vector<double> nodos;
    for (int k = 0; k <= 5; ++k) nodos.push_back(p.PresionNodo[k]);

    EXPECT_TRUE(a.EditarValvulaReductora(2, QStringLiteral("2.5")));
    EXPECT_DOUBLE_EQ(p.ValvulaR[2], 2.5);
    EXPECT_DOUBLE_EQ(ComoDoble(CampoRamal(sp.s, "ValvulaR", 2)), 2.5);
    // Column 15 of the branch and below it; column 11 only below it.
    EXPECT_NEAR(a.Spread3.Valor(2, 15), col15[1] - 2.5, 1e-9);
    EXPECT_NEAR(a.Spread3.Valor(3, 15), col15[2] - 2.5, 1e-9);
    EXPECT_NEAR(a.Spread3.Valor(4, 15), col15[3], 1e-9);
    EXPECT_NEAR(a.Spread3.Valor(2, 11), col11[1], 1e-9);
    EXPECT_NEAR(a.Spread3.Valor(3, 11), col11[2] - 2.5, 1e-9);
    EXPECT_EQ(a.Spread3.Cel(2, 14).colorFondo, ColoresAnalisis::Valvula);
    EXPECT_EQ(a.Spread3.Cel(3, 14).colorFondo, ColorBlanco);
    EXPECT_EQ(a.Spread3.Texto(3, 14), QString());
    for (int k = 0; k <= 5; ++k) EXPECT_EQ(p.PresionNodo[k], nodos[size_t(k)]);
    EXPECT_DOUBLE_EQ(p.ValvulaAcumulada[4], 2.5);
    EXPECT_EQ(a.Spread3.FilaActiva(), 2);
    EXPECT_EQ(a.RamalEditado, 0);

    // A text that is not a number is refused and the cell shows the valve.
    EXPECT_FALSE(a.EditarValvulaReductora(2, QStringLiteral("dos")));
    EXPECT_EQ(a.Spread3.Texto(2, 14), QStringLiteral("2.50"));
    EXPECT_DOUBLE_EQ(p.ValvulaR[2], 2.5);
}

TEST_F(PantallaAnalisis, IgualarDiametrosPreguntaAntes) {
    Pequeno();
    AnalisisRed a(p, sp.s, d);
    a.Cargar();
    a.EditarDiametroAsumido(1, QStringLiteral("3\""));
    d.respuestas = {Respuesta::No};
    EXPECT_FALSE(a.LSButton2_Click());
    EXPECT_EQ(d.Ultimo().texto, QStringLiteral("Igualar el Diámetro Asumido en los Ramales al Diámetro de Cálculo?"));
    EXPECT_EQ(d.Ultimo().encabezado, QStringLiteral("Diámetros de los Ramales..."));
    EXPECT_EQ(d.Ultimo().titulo, QStringLiteral("Proyecto de Fontaria"));
    EXPECT_EQ(d.Ultimo().botones, Botones::SiNo);
    EXPECT_EQ(p.Predimensionado[1], QStringLiteral("3"));

    d.respuestas = {Respuesta::Si};
    EXPECT_TRUE(a.LSButton2_Click());
    EXPECT_EQ(p.Predimensionado[1], p.DiametroCalculoTexto[1]);
    EXPECT_EQ(ComoTexto(CampoRamal(sp.s, "Predimensionado", 1)), p.DiametroCalculoTexto[1]);
    EXPECT_EQ(a.Spread4.Cel(1, 7).colorFondo, ColorBlanco);
}

TEST_F(PantallaAnalisis, ColoresDeLaVelocidadEnSusLimites) {
    Pequeno();
    AnalisisRed a(p, sp.s, d);
    a.Cargar();
    const double casos[][2] = {{3.5, ColorNegro}, {0.6, ColorNegro}, {3.51, ColorRojo}, {0.59, ColorRojo}};
    for (const auto& c : casos) {
        p.VelocidadAsumida[1] = c[0];
        a.ColoquePredimensionado();
        EXPECT_EQ(a.Spread4.Cel(1, 8).colorTexto, int(c[1])) << c[0];
    }
}

TEST_F(PantallaAnalisis, PresionMaximaMarcada) {
    Pequeno();
    p.OpcionPresionM = true;
    p.PresionM = 9.0;
    AnalisisRed a(p, sp.s, d);
    a.Cargar();
    for (int f = 1; f <= a.Spread3.Filas(); ++f) {
        const int esperado = p.NodoNumJ[f] == p.NodoDesfaborable ? ColoresAnalisis::NodoDesfavorable
                             : a.Spread3.Valor(f, 15) > 9.0   ? ColoresAnalisis::PresionMaxima
                                                              : SinColor;
        EXPECT_EQ(a.Spread3.Cel(f, 15).colorFondo, esperado) << f;
    }
}

TEST_F(PantallaAnalisis, AlturaDelTanqueAMano) {
    Ejemplo("Vivienda con Tanque Elevado");
    AnalisisRed a(p, sp.s, d);
    a.Cargar();
    const double altura = a.Double1;
    const auto antes = Columna(a.Spread3, 15);
    // The height shown leaves the pressures as they were, but for the rounding of the loop.
    a.LSButton6_Click();
    const auto despues = Columna(a.Spread3, 15);
    for (size_t k = 0; k < antes.size(); ++k) EXPECT_NEAR(despues[k], antes[k], 0.011) << k;
    // One metre more raises every pressure by about a metre, less the riser's own loss.
    a.Double1 += 1.0;
    a.LSButton6_Click();
    EXPECT_NEAR(a.Spread3.Valor(3, 15), antes[2] + 1.0, 0.1);
    EXPECT_DOUBLE_EQ(p.longitudReal[1], a.Double1);
    // LSButton7 brings the computed height back.
    a.LSButton7_Click();
    EXPECT_NEAR(a.Double1, altura, 0.02);
    EXPECT_NEAR(a.Spread3.Valor(3, 15), antes[2], 0.02);
}

TEST_F(PantallaAnalisis, AbrirOtroProyecto) {
    Pequeno();
    AnalisisRed a(p, sp.s, d);
    a.Cargar();
    // Cancel: nothing changes.
    EXPECT_FALSE(a.LSButton5_Click());
    EXPECT_EQ(d.dialogosArchivo.last(),
              QStringLiteral("Abrir un Proyecto Existente|*.plm|*.plm|") + sp.Datos(QStringLiteral("Proyectos")));
    // A file that is not a project: a message, and the project stays.
    QFile f(sp.Datos(QStringLiteral("texto.plm")));
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write("no soy una base de datos");
    f.close();
    d.archivos = {sp.Datos(QStringLiteral("texto.plm"))};
    EXPECT_FALSE(a.LSButton5_Click());
    EXPECT_EQ(d.Ultimo().encabezado, QStringLiteral("Abrir un Proyecto Existente"));
    EXPECT_EQ(p.NumeroRamales, 4);
    EXPECT_EQ(sp.s.NombreProyecto, QStringLiteral("prueba.plm"));
    // Another project.
    const QString otro = sp.CopiaDeEjemplo(QStringLiteral("Edificio_ApartamentoTipo.nivo"), QStringLiteral("otro.plm"));
    d.archivos = {otro};
    EXPECT_TRUE(a.LSButton5_Click());
    EXPECT_EQ(a.Caption, QStringLiteral("Resultado del Análisis     Proyecto: [ otro.plm ]"));
    EXPECT_EQ(a.Spread4.Filas(), p.NumeroRamales);
    EXPECT_EQ(sp.s.ArchivoProyecto, otro);
}

TEST_F(PantallaAnalisis, RetornoDelEditorSoloSiSeSalvo) {
    Pequeno();
    AnalisisRed a(p, sp.s, d);
    a.Cargar();
    // The editor saved a fifth branch.
    p.NumeroRamales = 5;
    p.DimensionarRamales(5);
    ProyectoEdificio copia;
    ProyectoDeRamales(copia, sp.s, {{"O", "A"}, {"A", "B"}, {"B", "C"}, {"A", "D"}, {"D", "E"}});
    QString error;
    ASSERT_TRUE(SalvarProyecto(copia, sp.s, error));
    a.RetornoEditorRamales(false);
    EXPECT_EQ(a.Spread4.Filas(), 4);
    a.RetornoEditorRamales(true);
    EXPECT_EQ(a.Spread4.Filas(), 5);
    EXPECT_EQ(a.SSPanel1, QStringLiteral("5"));
}

TEST_F(PantallaAnalisis, UnaNumeracionErradaAlVolverDelEditorMuestraSuMensajeYSigue) {
    Pequeno();
    AnalisisRed a(p, sp.s, d);
    a.Cargar();
    ASSERT_TRUE(d.mensajes.empty());
    // The editor saved a third branch whose two ends are the same node.
    ProyectoEdificio copia;
    ProyectoDeRamales(copia, sp.s, {{"O", "A"}, {"A", "B"}, {"B", "B"}});
    QString error;
    ASSERT_TRUE(SalvarProyecto(copia, sp.s, error));
    a.RetornoEditorRamales(true);
    ASSERT_EQ(d.mensajes.size(), 1u);
    EXPECT_EQ(d.Ultimo().texto, QStringLiteral("Existe un Error en la Numeración de los Ramales...\n"
                                               "Ramal-> 3   ( I ) = B  ó   ( J ) = B\n"
                                               "¡Debe Corregir el Error para realizar el Análisis!"));
    // The rebuild goes on with the node numbers as they stand: branch 3
    // hangs from the end of branch 2, and every tab shows the three branches.
    EXPECT_EQ(a.Spread4.Filas(), 3);
    EXPECT_EQ(a.Spread1.Filas(), 3);
    EXPECT_EQ(a.Spread2.Filas(), 3);
    EXPECT_EQ(a.Spread3.Filas(), 3);
    EXPECT_EQ(a.Spread3.Texto(3, 2), QStringLiteral("B"));
    EXPECT_EQ(a.SSPanel1, QStringLiteral("3"));
}
