#include "ApoyoAnalisis.h"
#include "analysis/AnalisisRed.h"
#include "analysis/Numeracion.h"
#include "base/Nivo.h"

namespace {

struct PantallaAnalisis : ::testing::Test {
    SesionPrueba sp;
    ProyectoEdificio p;
    DialogosFalsos d;

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
};

}  // namespace

TEST_F(PantallaAnalisis, EncabezadosDeLosCuatroGrids) {
    AnalisisRed a(p, sp.s, d);
    const struct {
        const Grid& grid;
        int fila, columna;
        const char* texto;
    } casos[] = {
        {a.Spread4, 1, 1, "Ramal"},
        {a.Spread4, 2, 2, "Nodo J"},
        {a.Spread4, 1, 5, "Predimensionado Teórico"},
        {a.Spread4, 2, 7, "Diámetro (plg)"},
        {a.Spread1, 2, 1, "Nodo J"},
        {a.Spread1, 2, 2, "Nodo I"},
        {a.Spread1, 1, 8, "Gasto\nProbable (l/s)"},
        {a.Spread2, 1, 4, "Diámetro del Ramal (plg)"},
        {a.Spread2, 2, 8, "Totales (m)"},
        {a.Spread3, 1, 8, "Velocidad\n(m/s)"},
        {a.Spread3, 1, 11, "Cota Piezométrica"},
        {a.Spread3, 1, 13, "Diferencia de\nCota (J - I)"},
        {a.Spread3, 1, 14, "Válvula\nReductora (m)"},
        {a.Spread3, 1, 15, "Presion (m)\nen el Nodo J"},
    };
    for (const auto& c : casos)
        EXPECT_EQ(c.grid.Encabezado(c.fila, c.columna), QString::fromUtf8(c.texto)) << c.texto;
}

TEST_F(PantallaAnalisis, ValvulaReductoraDejaLasPresionesDelCalculo) {
    // What the valve does to the grid is checked on the screen's sample.
    Pequeno();
    AnalisisRed a(p, sp.s, d);
    a.Cargar();
    std::vector<double> nodos;
    for (int k = 0; k <= 5; ++k) nodos.push_back(p.PresionNodo[k]);
    EXPECT_TRUE(a.EditarValvulaReductora(2, QStringLiteral("2.5")));
    for (int k = 0; k <= 5; ++k) EXPECT_EQ(p.PresionNodo[k], nodos[size_t(k)]);
    EXPECT_DOUBLE_EQ(p.ValvulaAcumulada[4], 2.5);
    EXPECT_EQ(a.Spread3.FilaActiva(), 2);
    EXPECT_EQ(a.RamalEditado, 0);

    // A text that is not a number, or reads two ways, is refused with the
    // reader's reason and the cell shows the valve ("1,5" read as a metre and
    // a half is the screen's test, down to the file).
    for (const char* texto : {"dos", "1,234"}) {
        EXPECT_FALSE(a.EditarValvulaReductora(2, QString::fromLatin1(texto)));
        EXPECT_EQ(a.Spread3.Texto(2, 14), QStringLiteral("2.50"));
        EXPECT_DOUBLE_EQ(p.ValvulaR[2], 2.5);
        MensajeEs(d.Ultimo(), LeerNumeroTecleado(QString::fromLatin1(texto)).motivo,
                  QStringLiteral("Error en el Número..."));
    }
    // A cell's refusal shows the same reason.
    const size_t vistos = d.mensajes.size();
    a.NumeroRechazado(QStringLiteral("1,234"));
    ASSERT_EQ(d.mensajes.size(), vistos + 1);
    EXPECT_EQ(d.Ultimo().texto, LeerNumeroTecleado(QStringLiteral("1,234")).motivo);
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

TEST_F(PantallaAnalisis, AbrirUnArchivoQueNoEsProyectoDejaElAbierto) {
    Pequeno();
    AnalisisRed a(p, sp.s, d);
    a.Cargar();
    d.archivos = {EscribirArchivo(sp.Datos(QStringLiteral("texto.plm")), "no soy una base de datos")};
    EXPECT_FALSE(a.LSButton5_Click());
    EXPECT_EQ(d.Ultimo().encabezado, QStringLiteral("Abrir un Proyecto Existente"));
    EXPECT_EQ(p.NumeroRamales, 4);
    EXPECT_EQ(a.Spread4.Filas(), 4);
    EXPECT_EQ(sp.s.NombreProyecto, QStringLiteral("prueba.plm"));
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

TEST_F(PantallaAnalisis, SinPresionesCalculadasElTanqueYLaValvulaDicenPorQue) {
    Pequeno();
    p.OpcionPresionInicial = 2;
    AnalisisRed a(p, sp.s, d);
    a.Cargar();
    ASSERT_TRUE(a.Frame3Visible);
    // Hazen-Williams with C = 0 divides by zero: the pressures of the edit stop.
    p.OpcionPerdidas = 2;
    p.CoeficienteC = 0.0;
    EXPECT_THROW(a.EditarDiametroAsumido(1, QStringLiteral("1\"")), ErrorEjecucion);
    const QString porQue = QStringLiteral("¡No se Pueden Calcular las Pérdidas y Presiones!\n"
                                          "Revise los Datos de la Red...");
    a.LSButton6_Click();
    a.LSButton7_Click();
    EXPECT_FALSE(a.EditarValvulaReductora(2, QStringLiteral("1")));
    ASSERT_EQ(d.mensajes.size(), 3u);
    for (const auto& m : d.mensajes) MensajeEs(m, porQue, QStringLiteral("Pérdidas y Presiones..."));
    EXPECT_EQ(p.ValvulaR[2], 0.0);
}

TEST_F(PantallaAnalisis, AbrirUnaRedQueLaNumeracionRechazaLoDiceUnaVezYLoSenala) {
    // Branch 3 of the apartment (PASILLO-COCINA) made to start from a node no
    // branch reaches, so the lengths stop at it too; or the last one (BAÑO 1 -
    // BAÑO 2), which feeds nothing, made to end where it starts, so the
    // chain fills every grid.
    const struct {
        const char* cambio;
        int filasPresiones;
    } casos[] = {{"NodoI='DESVAN' WHERE Numero=3", 0}, {"Nodoj=NodoI WHERE Numero=6", 6}};
    for (const auto& c : casos) {
        Pequeno();
        AnalisisRed a(p, sp.s, d);
        a.Cargar();
        EXPECT_TRUE(a.AvisoErrorRed().isEmpty());
        const QString rota = sp.CopiaDeEjemplo(QStringLiteral("Edificio_ApartamentoTipo.nivo"), QStringLiteral("rota.plm"));
        ASSERT_TRUE(EjecutarSql(rota, QStringLiteral("UPDATE DatosRamales SET %1").arg(c.cambio)));
        d.mensajes.clear();
        d.archivos = {rota};
        EXPECT_TRUE(a.LSButton5_Click());
        ASSERT_EQ(d.mensajes.size(), 1u) << c.cambio;
        EXPECT_EQ(d.Ultimo().encabezado, QStringLiteral("Error en la Numeración..."));
        EXPECT_EQ(a.Spread4.Filas(), 6);
        EXPECT_EQ(a.Spread3.Filas(), c.filasPresiones);
        EXPECT_EQ(a.AvisoErrorRed(), QStringLiteral("La red tiene errores de numeración: los resultados no son válidos."));
        // No pressures, no count of them.
        EXPECT_EQ(a.TextoPresionNegativa().isEmpty(), c.filasPresiones == 0);
    }
}
