// The tank screens: Hidroneumatico on the sample "Vivienda con Tanque
// Hidroneumatico", its enabling rules, the Peerless table handing back a
// factor, the results worked by hand, and a fault through the real box.

#include "ApoyoPantallas.h"
#include "tank/screens/VentanaHidroneumatico.h"
#include "tank/screens/VentanaPeerlees.h"
#include "tank/screens/VentanaResultadosHidro.h"
#include "widgets/NivoNumero.h"
#include "widgets/NivoToolTip.h"
#include "widgets/VistaGrid.h"

#include <QGroupBox>
#include <QPushButton>
#include <QRadioButton>

namespace {

struct PantallaTanque : ::testing::Test {
    SesionPrueba sp;
    ProyectoEdificio p;
    DialogosPantalla d;
    // The main window behind the screen, when a test gives it one.
    std::unique_ptr<QWidget> principal;
    std::unique_ptr<VentanaHidroneumatico> v;

    void Abrir(bool conEjemplo) {
        if (conEjemplo) {
            CargarEjemplo(sp, p, d, QStringLiteral("Vivienda con Tanque Hidroneumatico"));
            sp.s.NombreProyecto = QStringLiteral("Vivienda con Tanque Hidroneumatico.plm");
        }
        v = std::make_unique<VentanaHidroneumatico>(p, sp.s, d);
        ASSERT_TRUE(v->Cargar());
        v->show();
    }
    NivoNumero* Caja(const char* n) { return v->Caja(QString::fromLatin1(n)); }
    void Teclear(const char* caja, const char* texto) { Escribir(Caja(caja), QString::fromLatin1(texto)); }
};

}  // namespace

TEST_F(PantallaTanque, AbreConElProyectoYSusValoresPorDefecto) {
    Abrir(true);
    EXPECT_EQ(v->windowTitle(), QStringLiteral("CÁLCULO DE TANQUE HIDRONUEMÁTICO"));
    EXPECT_TRUE(v->Metodo(1)->isChecked());
    EXPECT_TRUE(v->TipoTanque(1)->isChecked());
    EXPECT_EQ(v->Metodo(2)->text(), QStringLiteral("Método 2: Dotación Diaria (litros/día):"));
    EXPECT_EQ(v->TipoTanque(2)->text(), QStringLiteral("Tanque Horizontal  (K = 0.054)"));
    // The fixtures of the sample, counted from its data: 2 + 2 + 3 + 5 + 3 + 2.
    EXPECT_EQ(Caja("NumeroPiezas")->text(), QStringLiteral("17"));
    EXPECT_EQ(Caja("Porcentaje")->text(), QStringLiteral("50.00"));
    EXPECT_EQ(Caja("Arranques")->text(), QStringLiteral("6.00"));
    EXPECT_EQ(Caja("Succion")->text(), QStringLiteral("3.00"));
    // The minimum pressure is the head the origin needs; the maximum stands 14 m above it.
    EXPECT_NEAR(Caja("PresionMinima")->Valor(), p.CargaOrigen, 0.005);
    EXPECT_NEAR(Caja("PresionMaxima")->Valor() - Caja("PresionMinima")->Valor(), 14.0, 1e-9);
    EXPECT_GT(Caja("Caudal")->Valor(), 0.0);
    EXPECT_DOUBLE_EQ(Caja("Caudal")->Valor(), p.Gasto[1]);
}

TEST_F(PantallaTanque, SoloLasCajasDelMetodoElegido) {
    Abrir(false);
    auto activas = [&] {
        QString s;
        for (const char* c : {"Caudal", "Porcentaje", "Dotacion", "NumeroPiezas", "FactorPeerlees"})
            s += Caja(c)->isEnabled() ? QLatin1Char('1') : QLatin1Char('0');
        return s + (v->Boton(QStringLiteral("Peerless"))->isEnabled() ? QLatin1Char('1') : QLatin1Char('0'));
    };
    EXPECT_EQ(activas(), QStringLiteral("110000"));
    v->Metodo(2)->click();
    EXPECT_EQ(v->Logica().Datos.NumeroMetodo, 2);
    EXPECT_EQ(activas(), QStringLiteral("001000"));
    v->Metodo(3)->click();
    EXPECT_EQ(activas(), QStringLiteral("000111"));
    EXPECT_EQ(v->Tip()->Texto(v->Boton(QStringLiteral("Peerless"))),
              QStringLiteral("Tabla de factores de consumo \nrecomendado por Peerless)"));
    EXPECT_EQ(v->Tip()->Texto(v->Boton(QStringLiteral("Calcular"))), QStringLiteral("Calcular el tanque hidroneumático. "));
    EXPECT_EQ(v->Tip()->Texto(v->Boton(QStringLiteral("Abrir"))), QStringLiteral("Abrir un proyecto existente. "));
}

TEST_F(PantallaTanque, LosResultadosDelMetodoUnoCalculadosAMano) {
    Abrir(false);
    // Q = 50 % of 10 l/s = 5; useful volume 5 x 0.25 x 3600 / 6 = 750 l;
    // R = 30/44, total = 750 / ((14/44) x 0.9) = 2619.05 l; minimum 10 % of
    // it, 261.90; maximum 1011.90; pump (3 + 34) x 5 / 45 = 4.11 hp, motor
    // x 1.44 = 5.92 hp; useful 28.64 % and maximum 38.64 % of the total.
    Teclear("Caudal", "10");
    Teclear("PresionMinima", "20");
    Teclear("PresionMaxima", "34");
    EXPECT_EQ(v->Logica().Datos.Caudal, 10.0);
    QStringList valores;
    QString marco, util, maximo, minimo;
    CuandoAbra<VentanaResultadosHidro>([&](VentanaResultadosHidro* r) {
        for (int i = 0; i < 7; ++i) valores << r->Valor(i)->text();
        marco = r->Marco()->title();
        minimo = r->PorcentajeMinimo()->text();
        util = r->PorcentajeUtil()->text();
        maximo = r->PorcentajeMaximo()->text();
        EXPECT_EQ(r->windowTitle(), QStringLiteral("RESULTADOS DE CÁLCULO DEL TANQUE HIDRONEUMÁTICO"));
        const ImpreVista impre = ImpreAbierta(r->findChild<QPushButton*>(QStringLiteral("Imprimir")));
        EXPECT_EQ(impre.origen, 2);
        EXPECT_EQ(impre.titulo, QStringLiteral("TANQUE HIDRONEUMÁTICO"));
        EXPECT_FALSE(impre.fotos);
        Tecla(r, Qt::Key_Escape);
    });
    v->Boton(QStringLiteral("Calcular"))->click();
    EXPECT_EQ(marco, QStringLiteral("Cálculo por el Método ( 1 )"));
    EXPECT_EQ(valores, (QStringList{QStringLiteral("5.00"), QStringLiteral("2,619.05"), QStringLiteral("261.90"),
                                    QStringLiteral("750.00"), QStringLiteral("1,011.90"), QStringLiteral("4.11"),
                                    QStringLiteral("5.92")}));
    EXPECT_EQ(minimo, QStringLiteral("10%"));
    EXPECT_EQ(util, QStringLiteral("28.64%"));
    EXPECT_EQ(maximo, QStringLiteral("38.64%"));
    EXPECT_TRUE(v->isVisible());
}

TEST_F(PantallaTanque, UnaFallaDelCalculoSeMuestraYLasEntradasQuedan) {
    Abrir(false);
    // A maximum pressure of -10 m divides by zero in the pressure ratio.
    Teclear("PresionMinima", "-20");
    Teclear("PresionMaxima", "-10");
    MensajeVisto visto;
    Contestar(visto, 0);
    v->Boton(QStringLiteral("Calcular"))->click();
    MensajeEs(visto, QStringLiteral("Error 11: División por cero"), QStringLiteral("Error en el Cálculo..."));
    EXPECT_TRUE(v->isVisible());
    EXPECT_EQ(Caja("PresionMaxima")->Valor(), -10.0);
}

TEST_F(PantallaTanque, UnaPresionMaximaIgualALaMinimaSeRechazaSinResultados) {
    Abrir(false);
    Teclear("Caudal", "10");
    Teclear("PresionMinima", "20");
    Teclear("PresionMaxima", "20");
    // Whatever opens, the box or the results, is read and closed.
    QString visto;
    bool resultados = false;
    QTimer cierre;
    QObject::connect(&cierre, &QTimer::timeout, [&] {
        auto* w = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (auto* caja = qobject_cast<VentanaMsgBox*>(w))
            visto = caja->findChild<QLabel*>(QStringLiteral("Label2"))->text();
        else if (w)
            resultados = true;
        if (w) w->reject();
    });
    cierre.start(10);
    v->Boton(QStringLiteral("Calcular"))->click();
    EXPECT_EQ(visto, QStringLiteral("La presión máxima debe ser mayor que la mínima."));
    EXPECT_FALSE(resultados);
    EXPECT_EQ(Caja("PresionMaxima")->text(), QStringLiteral("20.00"));
}

TEST_F(PantallaTanque, LaTablaDePeerlessDevuelveElFactor) {
    Abrir(false);
    v->Metodo(3)->click();
    CuandoAbra<VentanaPeerlees>([](VentanaPeerlees* t) {
        EXPECT_EQ(t->windowTitle(), QStringLiteral("Tabla de Peerlees"));
        EXPECT_EQ(t->Vista()->TextoEsquina(), QStringLiteral("Clase de Edificio"));
        // Commercial buildings, 151 to 300 fixtures: 2.50.
        ModeloGrid& m = t->Vista()->Modelo();
        EXPECT_FALSE(m.flags(m.index(5, 3)) & Qt::ItemIsEditable);
        t->Vista()->setCurrentIndex(m.index(5, 3));
        t->findChild<QPushButton*>(QStringLiteral("Capturar"))->click();
        EXPECT_EQ(t->Capturado(), QStringLiteral("2.5"));
    });
    v->Boton(QStringLiteral("Peerless"))->click();
    EXPECT_EQ(v->Logica().Datos.FactorPeerlees, 2.5);
    EXPECT_EQ(Caja("FactorPeerlees")->text(), QStringLiteral("2.50"));

    // "Retorno" changes nothing.
    CuandoAbra<VentanaPeerlees>([](VentanaPeerlees* t) {
        t->Vista()->setCurrentIndex(t->Vista()->Modelo().index(0, 0));
        t->findChild<QPushButton*>(QStringLiteral("Retorno"))->click();
    });
    v->Boton(QStringLiteral("Peerless"))->click();
    EXPECT_EQ(v->Logica().Datos.FactorPeerlees, 2.5);
}

TEST_F(PantallaTanque, AbrirCambiaLosTitulosYVuelveAPrellenar) {
    principal = std::make_unique<QWidget>();
    principal->setWindowTitle(QStringLiteral("antes"));
    v = std::make_unique<VentanaHidroneumatico>(p, sp.s, d, principal.get());
    v->Cargar();
    QDir().mkpath(sp.Datos(QStringLiteral("Proyectos")));
    d.archivos = {sp.CopiaDeEjemplo(QStringLiteral("Vivienda con Tanque Hidroneumatico.nivo"),
                                    QStringLiteral("Proyectos/casa.plm"))};
    v->Boton(QStringLiteral("Abrir"))->click();
    EXPECT_EQ(v->windowTitle(), QStringLiteral("RESULTADO DEL ANÁLISIS     PROYECTO: [ CASA.PLM ]"));
    EXPECT_EQ(principal->windowTitle(), QStringLiteral("NIVO-FONTARIA 2024    PROYECTO: [ CASA.PLM ]"));
    EXPECT_EQ(Caja("NumeroPiezas")->text(), QStringLiteral("17"));
    // A cancelled dialog leaves everything.
    Teclear("Caudal", "3");
    v->Boton(QStringLiteral("Abrir"))->click();
    EXPECT_EQ(v->Logica().Datos.Caudal, 3.0);
}
