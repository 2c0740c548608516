// The settings screen: its logic, the record widths it writes to
// Tapiz.nivo, and the Qt screen driven by its controls.

#include "shell/ConfigurarPrograma.h"
#include "shell/screens/VentanaConfigurarPrograma.h"
#include "support/Apoyo.h"

#include <QCheckBox>
#include <QPushButton>
#include <QRadioButton>
#include <QtEndian>
#include <gtest/gtest.h>

namespace {

// The bytes of record n (1-based) of 128.
QByteArray Registro(const QByteArray& datos, int n) { return datos.mid((n - 1) * 128, 128); }

struct Configuracion : ::testing::Test {
    SesionPrueba sp;
    DialogosFalsos d;
    QString Archivo() const { return sp.Datos(QStringLiteral("Tapiz.nivo")); }
    void SetUp() override {
        sp.s.Tapiz = TapizPorDefecto(sp.s.DirectorioDatos);
        ASSERT_TRUE(EscribirTapizPorDefecto(Archivo(), sp.s.Tapiz));
    }
};

}  // namespace

TEST_F(Configuracion, Check2SoloConCheck1) {
    ConfigurarPrograma c(sp.s);
    EXPECT_FALSE(c.Check2Habilitado());
    c.PonerProporcion(true);
    EXPECT_FALSE(c.Valores().ProporcionTapiz);
    c.PonerAjustar(true);
    EXPECT_TRUE(c.Check2Habilitado());
    c.PonerProporcion(true);
    EXPECT_TRUE(c.Valores().ProporcionTapiz);
}

TEST_F(Configuracion, UnTapizNuevoVuelveLaPosicionYElEfectoACero) {
    sp.s.Tapiz.PosicionVertical = 2;
    sp.s.Tapiz.PosicionHorizontal = 1;
    sp.s.Tapiz.EfectoTapiz = 7;
    ConfigurarPrograma c(sp.s);
    c.Abrir(d);  // cancelled: all stays
    EXPECT_EQ(c.Valores().PosicionVertical, 2);
    EXPECT_EQ(c.Valores().EfectoTapiz, 7);
    ASSERT_EQ(d.dialogosArchivo.size(), 1);
    EXPECT_EQ(d.dialogosArchivo[0], QStringLiteral("Cambiar el Tapiz del Menú Principal|"
                                                   "Archivos de Dibujo|*.bmp; *.jpg; *.gif; *.dib; *.wmf, *.emf|") +
                                        sp.Datos(QStringLiteral("Tapices")));
    d.archivos.push_back(QStringLiteral("/fotos/lago.jpg"));
    c.Abrir(d);
    EXPECT_EQ(c.Valores().RutaTapiz, QStringLiteral("/fotos/lago.jpg"));
    EXPECT_EQ(c.Valores().PosicionVertical, 0);
    EXPECT_EQ(c.Valores().PosicionHorizontal, 0);
    EXPECT_EQ(c.Valores().EfectoTapiz, 0);
}

TEST_F(Configuracion, LosColoresCanceladosSeConservan) {
    ConfigurarPrograma c(sp.s);
    c.ElegirColorFondo(d);
    EXPECT_EQ(c.Valores().ColorFondoTip, ColorFondoTipDefecto);
    d.colores = {0x112233, 0x445566};
    c.ElegirColorFondo(d);
    c.ElegirColorTexto(d);
    EXPECT_EQ(c.Valores().ColorFondoTip, 0x112233);
    EXPECT_EQ(c.Valores().ColorTextoTip, 0x445566);
    // A preset sets both colours; an index beyond the five changes nothing.
    c.PonerColoresPredefinidos(3);
    const std::pair<int, int> par{c.Valores().ColorFondoTip, c.Valores().ColorTextoTip};
    EXPECT_TRUE(par.first != 0x112233 && par.second != 0x445566);
    c.PonerColoresPredefinidos(5);
    EXPECT_EQ(std::make_pair(int(c.Valores().ColorFondoTip), int(c.Valores().ColorTextoTip)), par);
    c.Restaurar();
    EXPECT_EQ(c.Valores().ColorFondoTip, ColorFondoTipDefecto);
    EXPECT_EQ(c.Valores().RutaTapiz, sp.Datos(QStringLiteral("Tapices/TapizNivo.jpg")));
}

TEST_F(Configuracion, AceptarEscribeLosAnchosDeLaPantalla) {
    // Fill records 2, 3, 5 and 7 with a 16-bit pattern: a byte write keeps
    // the record's second byte.
    QByteArray antes = LeerArchivo(Archivo());
    for (int n : {2, 3, 5, 7}) antes[(n - 1) * 128 + 1] = char(0x5A);
    EscribirArchivo(Archivo(), antes);
    ConfigurarPrograma c(sp.s);
    c.PonerVertical(2);
    c.PonerHorizontal(1);
    c.PonerAjustar(true);
    c.PonerProporcion(true);
    c.PonerTamanoLetra(4);
    c.PonerCheck3(true);
    d.colores = {0x0A0B0C, 0x7F102030};
    c.ElegirColorFondo(d);
    c.ElegirColorTexto(d);
    ASSERT_TRUE(c.Aceptar(sp.s, d));
    const QByteArray b = LeerArchivo(Archivo());
    ASSERT_EQ(b.size(), 11 * 128);
    const QByteArray ruta = sp.Datos(QStringLiteral("Tapices/TapizNivo.jpg")).toUtf8();
    EXPECT_EQ(qFromLittleEndian<quint16>(Registro(b, 1).constData()), ruta.size());
    EXPECT_EQ(Registro(b, 1).mid(2, ruta.size()), ruta);
    EXPECT_EQ(Registro(b, 2).left(2), QByteArray("\x02\x5A", 2));
    EXPECT_EQ(Registro(b, 3).left(2), QByteArray("\x01\x5A", 2));
    EXPECT_EQ(Registro(b, 4).left(2), QByteArray("\xFF\xFF", 2));  // -1 in 16 bits
    EXPECT_EQ(Registro(b, 5).left(2), QByteArray("\x00\x5A", 2));
    EXPECT_EQ(Registro(b, 6).left(2), QByteArray("\xFF\xFF", 2));
    EXPECT_EQ(Registro(b, 7).left(2), QByteArray("\x04\x5A", 2));
    EXPECT_EQ(Registro(b, 8).left(4), QByteArray("\x0C\x0B\x0A\x00", 4));
    EXPECT_EQ(Registro(b, 9).left(4), QByteArray("\x30\x20\x10\x7F", 4));
    EXPECT_EQ(Registro(b, 10).left(2), QByteArray("\xFF\xFF", 2));
    EXPECT_EQ(Registro(b, 11).left(2), QByteArray("\x00\x00", 2));
    EXPECT_EQ(sp.s.Tapiz.TamanoLetraTip, 4);
    // The records of the same width read back as written; record 2, read as
    // 16 bits, carries the byte after it.
    const ConfiguracionTapiz r = LeerTapiz(Archivo());
    EXPECT_TRUE(r.ProporcionTapiz);
    EXPECT_EQ(r.ColorTextoTip, 0x7F102030);
    EXPECT_EQ(r.PosicionVertical, 0x5A02);
}

TEST_F(Configuracion, LaPantallaCanceladaDejaElArchivo) {
    const QByteArray antes = LeerArchivo(Archivo());
    VentanaConfigurarPrograma pantalla(sp.s, d);
    pantalla.findChild<QRadioButton*>(QStringLiteral("Option3"))->setChecked(true);
    EXPECT_EQ(pantalla.Logica().Valores().PosicionVertical, 2);
    pantalla.findChild<QPushButton*>(QStringLiteral("Command5"))->click();
    EXPECT_EQ(LeerArchivo(Archivo()), antes);
    EXPECT_EQ(sp.s.Tapiz.PosicionVertical, 0);
}

TEST_F(Configuracion, LaPantallaAceptadaEscribeLoQueMuestran) {
    VentanaConfigurarPrograma pantalla(sp.s, d);
    auto* check1 = pantalla.findChild<QCheckBox*>(QStringLiteral("Check1"));
    auto* check2 = pantalla.findChild<QCheckBox*>(QStringLiteral("Check2"));
    EXPECT_FALSE(check2->isEnabled());
    check1->setChecked(true);
    EXPECT_TRUE(check2->isEnabled());
    check2->setChecked(true);
    // Option4 is the centre of the horizontal placement.
    pantalla.findChild<QRadioButton*>(QStringLiteral("Option4"))->setChecked(true);
    pantalla.findChild<QPushButton*>(QStringLiteral("Command6"))->click();
    EXPECT_EQ(pantalla.result(), QDialog::Accepted);
    const ConfiguracionTapiz r = LeerTapiz(Archivo());
    EXPECT_TRUE(r.AjustarTapiz);
    EXPECT_TRUE(r.ProporcionTapiz);
    EXPECT_EQ(r.PosicionHorizontal, 1);
    EXPECT_TRUE(sp.s.Tapiz.AjustarTapiz);
    EXPECT_EQ(d.ocupado, 0);
}
