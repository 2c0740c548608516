// Number boxes with the session's separators and limits, the tab strip, and
// the program's tool-tip with the settings of Tapiz.nivo.

#include "base/Nivo.h"
#include "shell/Tapiz.h"
#include "support/Apoyo.h"
#include "widgets/NivoNumero.h"
#include "widgets/NivoTab.h"
#include "widgets/NivoToolTip.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPushButton>
#include <QVBoxLayout>
#include <gtest/gtest.h>

namespace {

void Escribir(QLineEdit& e, const QString& texto) {
    e.selectAll();
    e.del();
    for (QChar c : texto) {
        QKeyEvent k(QEvent::KeyPress, 0, Qt::NoModifier, QString(c));
        QApplication::sendEvent(&e, &k);
    }
}

void Enter(QWidget& w) {
    QKeyEvent k(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    QApplication::sendEvent(&w, &k);
}

// Sets the session's separators for one test.
struct ConSeparadores {
    Separadores antes = SeparadoresActuales();
    ConSeparadores(char decimal, char miles) {
        SeparadoresActuales().decimal = QLatin1Char(decimal);
        SeparadoresActuales().miles = QLatin1Char(miles);
    }
    ~ConSeparadores() { SeparadoresActuales() = antes; }
};

}  // namespace

TEST(NivoNumero, MuestraYLeeConLosSeparadoresDeLaSesion) {
    ConSeparadores coma(',', '.');
    NivoDouble caja(nullptr, 2);
    caja.PonerValor(1234.5);
    EXPECT_EQ(caja.text(), QStringLiteral("1234,50"));
    double recibido = -1;
    int enter = 0;
    QObject::connect(&caja, &NivoNumero::ValorCambiado, [&](double v) { recibido = v; });
    QObject::connect(&caja, &NivoNumero::Enter, [&] { ++enter; });
    Escribir(caja, QStringLiteral("7,25"));
    EXPECT_DOUBLE_EQ(recibido, 7.25);
    Enter(caja);
    EXPECT_EQ(enter, 1);
    EXPECT_EQ(caja.text(), QStringLiteral("7,25"));
    // Letters never get in.
    Escribir(caja, QStringLiteral("a"));
    EXPECT_TRUE(caja.text().isEmpty());
}

TEST(NivoNumero, FueraDeLimitesVuelveAlUltimoValor) {
    NivoDouble caja(nullptr, 1);
    caja.PonerLimites(0.0, 100.0);
    caja.PonerValor(12.0);
    Escribir(caja, QStringLiteral("150"));
    Enter(caja);
    EXPECT_DOUBLE_EQ(caja.Valor(), 12.0);
    EXPECT_EQ(caja.text(), QStringLiteral("12.0"));
    caja.PonerValor(-5);  // held at the limit
    EXPECT_DOUBLE_EQ(caja.Valor(), 0.0);
    NivoLong entero;
    Escribir(entero, QStringLiteral("41.6"));
    Enter(entero);
    EXPECT_EQ(entero.ValorEntero(), 42);
    EXPECT_EQ(entero.text(), QStringLiteral("42"));
}

TEST(NivoTab, CuentaLasPestanasDesdeUno) {
    NivoTab t;
    t.addTab(QStringLiteral("uno"));
    t.addTab(QStringLiteral("dos"));
    int pulsada = 0;
    QObject::connect(&t, &NivoTab::Click, [&](int n) { pulsada = n; });
    Q_EMIT t.tabBarClicked(1);
    EXPECT_EQ(pulsada, 2);
    t.PonerTab(2);
    EXPECT_EQ(t.Tab(), 2);
}

TEST(NivoToolTip, TomaLosTipsDeLaPantallaSalvoLosDeTab0YLosVacios) {
    QWidget pantalla;
    auto* capa = new QVBoxLayout(&pantalla);
    auto* a = new QPushButton(QStringLiteral("A"));
    a->setObjectName(QStringLiteral("LSButton1"));
    a->setToolTip(QStringLiteral(" Retorno "));
    auto* b = new QPushButton(QStringLiteral("B"));
    b->setObjectName(QStringLiteral("Tab01"));
    b->setToolTip(QStringLiteral("de la pestaña"));
    auto* c = new QPushButton(QStringLiteral("C"));
    c->setToolTip(QStringLiteral("   "));
    capa->addWidget(a);
    capa->addWidget(b);
    capa->addWidget(c);
    NivoToolTip tip(&pantalla);
    ConfiguracionTapiz conf;
    conf.TamanoLetraTip = 3;
    conf.ColorFondoTip = 0;  // reads as 0xEAFFFF
    conf.ColorTextoTip = 0x0000FF;
    conf.Check3 = -1;
    ConfigurarToolTips(&pantalla, &tip, conf);
    EXPECT_TRUE(tip.Registrado(a));
    EXPECT_EQ(tip.Texto(a), QStringLiteral(" Retorno "));
    EXPECT_TRUE(a->toolTip().isEmpty());
    EXPECT_FALSE(tip.Registrado(b));
    EXPECT_EQ(b->toolTip(), QStringLiteral("de la pestaña"));
    EXPECT_FALSE(tip.Registrado(c));
    EXPECT_EQ(tip.TamanoLetra(), 13);
    EXPECT_EQ(tip.Fondo(), QColor(0xFF, 0xFF, 0xEA));
    EXPECT_EQ(tip.ColorTexto(), QColor(255, 0, 0));
    EXPECT_TRUE(tip.Globo());
    EXPECT_FALSE(tip.SiempreVisible());
    // A tool-tip event on the control shows the program's tip.
    pantalla.show();
    QHelpEvent e(QEvent::ToolTip, QPoint(2, 2), a->mapToGlobal(QPoint(2, 2)));
    QApplication::sendEvent(a, &e);
    EXPECT_TRUE(tip.isVisible());
}
