// Number boxes with the session's separators and limits, and the program's
// tool-tip with the settings of Tapiz.nivo.  The tab strip counts from 1 in
// every screen's test.

#include "base/Nivo.h"
#include "shell/Tapiz.h"
#include "support/Apoyo.h"
#include "support/Modales.h"
#include "widgets/NivoNumero.h"
#include "widgets/NivoToolTip.h"

#include <QPushButton>
#include <QVBoxLayout>
#include <gtest/gtest.h>

TEST(NivoNumero, MuestraYLeeConLosSeparadoresDeLaSesion) {
    MarcasPrueba coma("es_AR");
    NivoDouble caja(nullptr, 2);
    caja.PonerValor(1234.5);
    EXPECT_EQ(caja.text(), QStringLiteral("1234,50"));
    double recibido = -1;
    int enter = 0;
    QObject::connect(&caja, &NivoNumero::ValorCambiado, [&](double v) { recibido = v; });
    QObject::connect(&caja, &NivoNumero::Enter, [&] { ++enter; });
    Escribir(&caja, QStringLiteral("7,25"));
    EXPECT_DOUBLE_EQ(recibido, 7.25);
    Tecla(&caja, Qt::Key_Return);
    EXPECT_EQ(enter, 1);
    EXPECT_EQ(caja.text(), QStringLiteral("7,25"));
    // Letters never get in.
    Escribir(&caja, QStringLiteral("a"));
    EXPECT_TRUE(caja.text().isEmpty());
}

TEST(NivoNumero, LeeAmbasMarcasYRechazaLoAmbiguoConSuMensaje) {
    // The readings are the reader's table; here, that the box reads through
    // it, says why it refuses and keeps its value.  Starts per hour:
    QWidget pantalla;
    auto* caja = new NivoDouble(&pantalla, 2);
    DialogosFalsos d;
    AvisarNumerosRechazados(&pantalla, d);
    const auto Teclear = [&](const char* texto) {
        caja->PonerValor(6.0);
        caja->setText(QString::fromLatin1(texto));  // as typed, the validator aside
        Tecla(caja, Qt::Key_Return);
        QApplication::processEvents();
    };
    {
        const MarcasPrueba punto("C");
        Teclear("4,5");
        EXPECT_EQ(caja->text(), QStringLiteral("4.50"));
        EXPECT_TRUE(d.mensajes.empty());
        Teclear("1,234");
        EXPECT_EQ(caja->text(), QStringLiteral("6.00"));
        ASSERT_EQ(d.mensajes.size(), 1u);
        MensajeEs(d.Ultimo(), LeerNumeroTecleado(QStringLiteral("1,234")).motivo, QStringLiteral("Error en el Número..."));
    }
    const MarcasPrueba coma("es_AR");
    Teclear("1.5");
    EXPECT_DOUBLE_EQ(caja->Valor(), 1.5);
    EXPECT_EQ(caja->text(), QStringLiteral("1,50"));
    // Both marks get in through the keyboard.
    Escribir(caja, QStringLiteral("1.234,5"));
    EXPECT_EQ(caja->text(), QStringLiteral("1.234,5"));
}

TEST(NivoNumero, FueraDeLimitesVuelveAlUltimoValor) {
    NivoDouble caja(nullptr, 1);
    caja.PonerLimites(0.0, 100.0);
    caja.PonerValor(12.0);
    Escribir(&caja, QStringLiteral("150"));
    Tecla(&caja, Qt::Key_Return);
    EXPECT_DOUBLE_EQ(caja.Valor(), 12.0);
    EXPECT_EQ(caja.text(), QStringLiteral("12.0"));
    caja.PonerValor(-5);  // held at the limit
    EXPECT_DOUBLE_EQ(caja.Valor(), 0.0);
    NivoLong entero;
    Escribir(&entero, QStringLiteral("41.6"));
    Tecla(&entero, Qt::Key_Return);
    EXPECT_EQ(entero.ValorEntero(), 42);
    EXPECT_EQ(entero.text(), QStringLiteral("42"));
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
