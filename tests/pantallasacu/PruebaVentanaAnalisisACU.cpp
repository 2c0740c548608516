// The aqueduct results screen as the engineer works it: the samples solved
// on opening, the cases, the two tabs with their formats, blanks and
// colours, the search of a section, "Corregir Dirección" on the sample whose
// flow runs against a section, the round trip through the data screen, the
// opening of another network, and the two failures that close the screen.

#include "ApoyoACU.h"
#include "aqueduct/AnalisisACU.h"
#include "aqueduct/screens/VentanaAnalisisACU.h"
#include "aqueduct/screens/VentanaDatosAcueducto.h"
#include "entry/screens/VentanaBuscarPartida.h"
#include "widgets/NivoNumero.h"

#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QTabWidget>

namespace {

struct AnalisisPantalla : PantallaACU {
    std::unique_ptr<VentanaAnalisisACU> v;

    void Abrir(const char* ejemplo, Dialogos& d) {
        Cargar(ejemplo);
        Mostrar(d);
    }
    void Mostrar(Dialogos& d) {
        v = std::make_unique<VentanaAnalisisACU>(p, s, d);
        v->show();
        Procesar();  // the first activation
    }
    QString Celda(VistaGrid* g, int f, int c) const { return g->model()->index(f - 1, c - 1).data().toString(); }
    QPushButton* Boton(const char* nombre) const { return v->Boton(QString::fromLatin1(nombre)); }
    // The changed network, saved and opened: the message box of the program
    // says why it cannot be solved, and the screen closes with empty grids.
    void FallaAlAbrir(const QString& linea, const QString& encabezado) {
        Guardar();
        MensajeVisto caja;
        Contestar(caja, 0);
        Mostrar(qt);
        MensajeEs(caja, QStringLiteral("Proyecto: EjemploRedA.acu\n") + linea, encabezado,
                  QStringLiteral("Datos del Proyecto de Acueductos"));
        EXPECT_FALSE(v->isVisible());
        EXPECT_EQ(v->Vista1()->model()->rowCount(), 0);
        EXPECT_EQ(v->Vista2()->model()->rowCount(), 0);
    }
    // Rows of a grid column whose cell has this background.
    QList<int> FilasConFondo(int color) const {
        QList<int> filas;
        const Grid& g = v->Logica().Spread2;
        for (int f = 1; f <= g.Filas(); ++f)
            if (g.Cel(f, 6).colorFondo == color) filas << f;
        return filas;
    }
};

}  // namespace

TEST_F(AnalisisPantalla, ElEjemploAResuelveAlAbrirYMuestraSusColumnas) {
    Abrir("EjemploRedA", falsos);
    EXPECT_TRUE(v->isVisible());
    EXPECT_TRUE(falsos.mensajes.empty());
    EXPECT_EQ(v->windowTitle(), QStringLiteral("Redes de Acueductos   Proyecto: [ EJEMPLOREDA.ACU ]"));
    ASSERT_EQ(v->Combo()->count(), 3);  // the texts of the cases: see the demand cases' test
    EXPECT_EQ(v->Tabs()->tabText(0), QStringLiteral("Resultados del Análisis de los Ramales"));
    EXPECT_EQ(v->Tabs()->tabText(1), QStringLiteral("Resultados del Análisis de los Nodos"));
    EXPECT_EQ(v->LRamal()->text(), QStringLiteral("Ramal 1"));
    EXPECT_TRUE(v->LRamal()->isEnabled());
    EXPECT_EQ(v->LNodo()->text(), QStringLiteral("Tanque"));
    EXPECT_FALSE(v->LNodo()->isEnabled());
    EXPECT_TRUE(Boton("LSButton4")->isEnabled());
    EXPECT_TRUE(Boton("LSButton8")->isEnabled());

    VistaGrid* r = v->Vista1();
    ASSERT_EQ(r->model()->rowCount(), 26);
    EXPECT_EQ(Celda(r, 1, 1), QStringLiteral("Tanque"));
    EXPECT_EQ(Celda(r, 1, 3), QStringLiteral("420.00"));
    EXPECT_EQ(Celda(r, 1, 4), QStringLiteral("441.00"));  // 420 + 5 % of 420
    EXPECT_EQ(Celda(r, 1, 5), QStringLiteral("150.000"));
    EXPECT_EQ(Celda(r, 1, 6), QStringLiteral("140"));
    // All the demand leaves the tank by section 1: half of every section's
    // demand at each end sums to the sum of the section demands, 12.55 l/s.
    EXPECT_EQ(Celda(r, 1, 7), QStringLiteral("12.550"));
    EXPECT_EQ(v->Logica().Spread1.Encabezado(2, 5), QStringLiteral("mm"));

    VistaGrid* n = v->Vista2();
    ASSERT_EQ(n->model()->rowCount(), 18);
    EXPECT_EQ(Celda(n, 1, 1), QStringLiteral("Tanque"));
    EXPECT_EQ(Celda(n, 1, 2), QStringLiteral("121.50"));
    EXPECT_EQ(Celda(n, 1, 5), QStringLiteral("127.00"));
    EXPECT_EQ(Celda(n, 1, 6), QStringLiteral("5.50"));  // 127 - 121.5 at the tank
    EXPECT_EQ(Celda(n, 2, 3), QStringLiteral("0.200"));  // Entrada: 0/2 + 0.4/2
    // One lowest and one highest pressure (which rows: see the screen logic's test).
    const QList<int> minimo = FilasConFondo(ColorPresionMinima), maximo = FilasConFondo(ColorPresionMaxima);
    ASSERT_EQ(minimo.size(), 1);
    ASSERT_EQ(maximo.size(), 1);
    EXPECT_EQ(n->model()->index(minimo[0] - 1, 5).data(Qt::BackgroundRole).value<QColor>(), QColor(0xE4, 0xEB, 0xD6));
}

TEST_F(AnalisisPantalla, CadaCasoVuelveACalcularConSusDemandas) {
    Abrir("EjemploRedA", falsos);
    VistaGrid* n = v->Vista2();
    v->Combo()->setCurrentIndex(1);
    EXPECT_EQ(p.CasoDemanda, 2);
    EXPECT_EQ(Celda(n, 2, 3), QStringLiteral("0.500"));  // 2.5 x 0.2
    EXPECT_EQ(Celda(v->Vista1(), 1, 7), QStringLiteral("31.375"));  // 2.5 x 12.55
    v->Combo()->setCurrentIndex(2);
    // Fire: 1.8 x 12.55 + 16 leaves the tank.
    EXPECT_EQ(Celda(v->Vista1(), 1, 7), QStringLiteral("38.590"));
    v->Combo()->setCurrentIndex(0);
    EXPECT_EQ(Celda(n, 2, 3), QStringLiteral("0.200"));
    EXPECT_EQ(Celda(v->Vista1(), 1, 7), QStringLiteral("12.550"));
}

TEST_F(AnalisisPantalla, LasPestanasYLosClicsMuevenRamalYNodo) {
    Abrir("EjemploRedA", falsos);
    v->Tabs()->setCurrentIndex(1);
    EXPECT_FALSE(v->LRamal()->isEnabled());
    EXPECT_TRUE(v->LNodo()->isEnabled());
    // Nodes in order of first appearance: Tanque, Entrada, Boli-4.
    v->Vista2()->setCurrentIndex(v->Vista2()->model()->index(2, 4));
    EXPECT_EQ(v->LNodo()->text(), QStringLiteral("Boli-4"));
    v->Tabs()->setCurrentIndex(0);
    v->Vista1()->setCurrentIndex(v->Vista1()->model()->index(6, 2));
    EXPECT_EQ(v->LRamal()->text(), QStringLiteral("Ramal 7"));
}

TEST_F(AnalisisPantalla, BuscarUnRamalConElDialogoDelNumero) {
    Abrir("EjemploRedA", falsos);
    auto responder = [](int numero, bool aceptar) {
        CuandoAbra<VentanaBuscarPartida>([numero, aceptar](VentanaBuscarPartida* b) {
            EXPECT_EQ(b->windowTitle(), QStringLiteral("Buscar un Ramal"));
            b->Numero()->setText(QString::number(numero));
            Q_EMIT b->Numero()->textEdited(b->Numero()->text());
            b->findChild<QPushButton*>(aceptar ? QStringLiteral("Aceptar") : QStringLiteral("Cancelar"))->click();
        });
    };
    responder(12, true);
    v->LRamal()->click();
    EXPECT_EQ(v->Vista1()->currentIndex().row(), 11);
    EXPECT_EQ(v->LRamal()->text(), QStringLiteral("Ramal 12"));
    responder(5, false);
    v->LRamal()->click();
    EXPECT_EQ(v->LRamal()->text(), QStringLiteral("Ramal 12"));
    responder(999, true);  // beyond the last: the last (the other rules: see the dialog's test)
    v->LRamal()->click();
    EXPECT_EQ(v->LRamal()->text(), QStringLiteral("Ramal 26"));
}

TEST_F(AnalisisPantalla, CorregirDireccionInvierteElRamalNegativoDelEjemploB) {
    Abrir("EjemploRedB", qt);
    EXPECT_EQ(v->Logica().Spread1.Encabezado(2, 5), QStringLiteral("plg"));
    QList<int> negativos;
    for (int t = 1; t <= p.NumeroTramos; ++t)
        if (p.Caudal[t] < 0) negativos << t;
    ASSERT_FALSE(negativos.isEmpty());
    QStringList antes;
    for (int t : negativos) antes << p.Inicio[t] + QLatin1Char('-') + p.Final[t];
    v->Tabs()->setCurrentIndex(1);

    // The question's and the messages' texts are checked with the screen's logic.
    MensajeVisto caja;
    Contestar(caja, 1);  // "Sí"
    Boton("LSButton1")->click();
    EXPECT_EQ(caja.titulo, QStringLiteral("Datos del Proyecto de Acueductos"));
    EXPECT_EQ(v->Tabs()->currentIndex(), 0);  // the sections tab is shown
    for (int t = 1; t <= p.NumeroTramos; ++t) {
        EXPECT_GE(p.Caudal[t], 0.0) << t;
        EXPECT_FALSE(Celda(v->Vista1(), t, 7).startsWith(QLatin1Char('-'))) << t;
    }
    // The file has the turned sections at once, without a save.
    const ProyectoAcueducto f = Releer();
    for (int i = 0; i < negativos.size(); ++i)
        EXPECT_EQ(f.Final[negativos[i]] + QLatin1Char('-') + f.Inicio[negativos[i]], antes[i]);

}

TEST_F(AnalisisPantalla, SinEstanqueAvisaYSeCierra) {
    Cargar("EjemploRedA");
    p.CotaBombaEstanque[1] = 0;
    FallaAlAbrir(QStringLiteral("¡No se Puede Calcular la Malla sin la Existencia\nde al menos una Bomba ó un Estanque!"),
                 QStringLiteral("Error en Datos del Proyecto..."));
}

TEST_F(AnalisisPantalla, UnaFallaDelCalculoAvisaYSeCierra) {
    Cargar("EjemploRedA");
    p.Diametro[4] = 0;  // its resistance divides by the bore: no conductance, and the fault names it
    FallaAlAbrir(QStringLiteral("¡Existe un Error al Realizar el Análisis de la Red!\nRevise los Datos del Proyecto...\n"
                                "Error 11: División por cero en el ramal 4 (Boli-3 - Boli-2)."),
                 QStringLiteral("Error al Realizar el Cálculo..."));
}

TEST_F(AnalisisPantalla, EditarLosRamalesYVolverConLosDatosSalvados) {
    Abrir("EjemploRedA", falsos);
    const QString antes = Celda(v->Vista1(), 1, 9);
    bool abrirActivo = true;
    v->editarRamales = [&] {
        VentanaDatosAcueducto datos(p, s, falsos, v.get());
        datos.show();
        abrirActivo = datos.Boton(QStringLiteral("Abrir"))->isEnabled();
        datos.Boton(QStringLiteral("Siguiente"))->click();
        // A narrower first pipe, still in its editor when "Salvar" is pressed.
        Escribir(datos.Vista1(), 1, 4, QStringLiteral("100"));
        datos.Boton(QStringLiteral("Salvar"))->click();
        datos.reject();
        return datos.Logica().ProyectoSalvado();
    };
    Boton("LSButton2")->click();
    EXPECT_FALSE(abrirActivo);
    EXPECT_EQ(s.EdicionDesdeAnalisis, 0);
    EXPECT_EQ(Celda(v->Vista1(), 1, 5), QStringLiteral("100.000"));
    EXPECT_NE(Celda(v->Vista1(), 1, 9), antes);  // solved again: a larger loss
    EXPECT_GT(p.Perdidas[1], antes.toDouble());
    EXPECT_DOUBLE_EQ(Releer().Diametro[1], 100.0);

    // Back without a save: nothing is solved again.
    const QString ahora = Celda(v->Vista1(), 1, 9);
    v->editarRamales = [] { return false; };
    Boton("LSButton2")->click();
    EXPECT_EQ(Celda(v->Vista1(), 1, 9), ahora);
    EXPECT_TRUE(v->isVisible());
}

TEST_F(AnalisisPantalla, AbrirOtroProyectoLoResuelveEnLaMismaPantalla) {
    Abrir("EjemploRedA", falsos);
    v->Combo()->setCurrentIndex(2);
    falsos.archivos.push_back(sp.CopiaDeEjemplo(QStringLiteral("EjemploRedB.nivo"), QStringLiteral("Redes/naranjos.acu")));
    Boton("LSButton5")->click();
    EXPECT_EQ(falsos.dialogosArchivo.value(0),
              QStringLiteral("Abrir un Proyecto Existente|*.ACU|*.acu|") + sp.Datos(QStringLiteral("Redes")));
    EXPECT_TRUE(v->isVisible());
    EXPECT_EQ(v->windowTitle(), QStringLiteral("Redes de Acueductos   Proyecto: [ NARANJOS.ACU ]"));
    EXPECT_EQ(s.NombreProyectoACU, QStringLiteral("naranjos.acu"));
    EXPECT_EQ(v->Combo()->currentIndex(), 0);
    EXPECT_EQ(v->Combo()->itemText(1), QStringLiteral("Q Máximo = 2.40 x Qm"));
    EXPECT_EQ(v->Vista1()->model()->rowCount(), 17);
    // A cancelled dialog changes nothing.
    Boton("LSButton5")->click();
    EXPECT_EQ(v->Vista1()->model()->rowCount(), 17);
}

// A pass at the iteration limit: the red line under the grids, which stay.
TEST_F(AnalisisPantalla, UnPasoSinConvergenciaSeAvisaEnRojo) {
    Abrir("EjemploRedA", falsos);
    QLabel* aviso = v->Aviso();
    EXPECT_FALSE(aviso->isVisible());
    p.Convergio = {false};
    p.Iteraciones = {100};
    p.Desbalance = {0.5};
    v->Logica().ColoquePantalla();
    v->Refrescar();
    EXPECT_TRUE(aviso->isVisible());
    EXPECT_EQ(aviso->text(), "El cálculo no convergió: 100 iteraciones, desbalance medio 0.500 m³/s");
    EXPECT_EQ(aviso->palette().color(QPalette::WindowText), QColor(Qt::red));
    EXPECT_GT(v->Vista1()->model()->rowCount(), 0);
    p.Convergio = {true};
    v->Logica().ColoquePantalla();
    v->Refrescar();
    EXPECT_FALSE(aviso->isVisible());
}
