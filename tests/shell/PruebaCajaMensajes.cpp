// The program's message box as a real dialog: button forms and results, the
// default button, Esc and the close command, the empty title, the sizing.
// DialogosQt of the desktop asks through it: the screen tests read their
// message texts from it.

#include "shell/CajaMensajes.h"
#include "support/Modales.h"

namespace {

QStringList Visibles(const VentanaMsgBox& c) {
    QStringList r;
    for (int i = 0; i < 3; ++i)
        if (!c.Boton(i)->isHidden()) r << c.Boton(i)->text();
    return r;
}

}  // namespace

TEST(CajaMensajes, LasTresFormasDeBotones) {
    VentanaMsgBox a(QStringLiteral("t"), QStringLiteral("e"), QStringLiteral("x"), 0, 5, 0, QImage());
    VentanaMsgBox b(QStringLiteral("t"), QStringLiteral("e"), QStringLiteral("x"), 1, 0, 0, QImage());
    VentanaMsgBox c(QStringLiteral("t"), QStringLiteral("e"), QStringLiteral("x"), 2, 1, 0, QImage());
    EXPECT_EQ(Visibles(a), QStringList({QStringLiteral("Aceptar")}));
    EXPECT_EQ(Visibles(b), QStringList({QStringLiteral("No"), QStringLiteral("Sí")}));
    EXPECT_EQ(Visibles(c), QStringList({QStringLiteral("Cancelar"), QStringLiteral("No"), QStringLiteral("Sí")}));
    EXPECT_EQ(a.BotonPorDefecto(), a.Boton(0));  // form 0: always Button1
    EXPECT_EQ(b.BotonPorDefecto(), b.Boton(0));  // "No"
    EXPECT_TRUE(c.Boton(1)->isDefault());  // "No"
    // Yes/No boxes carry no close command.
    EXPECT_FALSE(b.windowFlags() & Qt::WindowCloseButtonHint);
    EXPECT_TRUE(a.windowFlags() & Qt::WindowCloseButtonHint);
}

TEST(CajaMensajes, ReglasDelBotonPorDefecto) {
    EXPECT_EQ(BotonPorDefecto(1, 0), 0);
    EXPECT_EQ(BotonPorDefecto(1, 7), 1);
    EXPECT_EQ(BotonPorDefecto(2, 0), 0);
    EXPECT_EQ(BotonPorDefecto(2, 1), 1);
    EXPECT_EQ(BotonPorDefecto(2, 2), 2);
    EXPECT_EQ(BotonPorDefecto(2, -3), 2);
}

TEST(CajaMensajes, CadaBotonDevuelveSuResultado) {
    const int esperado[3][3] = {{0, -1, -1}, {0, 1, -1}, {2, 0, 1}};
    for (int forma = 0; forma < 3; ++forma)
        for (int i = 0; i < 3; ++i) {
            if (esperado[forma][i] < 0) continue;
            CuandoAbra<VentanaMsgBox>([i](VentanaMsgBox* c) { c->Boton(i)->click(); });
            EXPECT_EQ(VentanaMsgBox::MostrarMensaje(QStringLiteral("t"), QString(), QString(), forma, 0, 0, QImage()),
                      esperado[forma][i])
                << forma << " " << i;
        }
}

TEST(CajaMensajes, EscCierraAvisosYCancelaPeroNoContestaSiNo) {
    CuandoAbra<VentanaMsgBox>([](VentanaMsgBox* c) { Tecla(c, Qt::Key_Escape); });
    EXPECT_EQ(VentanaMsgBox::MostrarMensaje(QStringLiteral("t"), QString(), QString(), 0, 0, 0, QImage()), 0);
    CuandoAbra<VentanaMsgBox>([](VentanaMsgBox* c) { Tecla(c, Qt::Key_Escape); });
    EXPECT_EQ(VentanaMsgBox::MostrarMensaje(QStringLiteral("t"), QString(), QString(), 2, 2, 0, QImage()), 2);
    bool siguioAbierta = false;
    CuandoAbra<VentanaMsgBox>([&](VentanaMsgBox* c) {
        Tecla(c, Qt::Key_Escape);
        c->close();  // the close command is refused too
        siguioAbierta = c->isVisible();
        c->Boton(1)->click();
    });
    EXPECT_EQ(VentanaMsgBox::MostrarMensaje(QStringLiteral("¿Salir?"), QString(), QString(), 1, 0, 0, QImage()), 1);
    EXPECT_TRUE(siguioAbierta);
}

TEST(CajaMensajes, ElBotonPorDefectoTomaElFocoYEnterLoPulsa) {
    QString enfocado;
    CuandoAbra<VentanaMsgBox>([&](VentanaMsgBox* c) {
        enfocado = c->focusWidget() ? c->focusWidget()->objectName() : QString();
        Tecla(c->focusWidget() ? c->focusWidget() : c, Qt::Key_Return);
    });
    EXPECT_EQ(VentanaMsgBox::MostrarMensaje(QStringLiteral("t"), QString(), QString(), 2, 5, 0, QImage()), 1);
    EXPECT_EQ(enfocado, QStringLiteral("Button3"));
}

TEST(CajaMensajes, TituloVacioYTextos) {
    VentanaMsgBox c(QStringLiteral("uno\ndos"), QStringLiteral("Encabezado..."), QStringLiteral("   "), 0, 0, 2,
                    QImage());
    EXPECT_EQ(c.windowTitle(), QStringLiteral("Nivo-Caja de Mensajes"));
    EXPECT_EQ(c.findChild<QLabel*>(QStringLiteral("Label1"))->text(), QStringLiteral("Encabezado..."));
    EXPECT_EQ(c.findChild<QLabel*>(QStringLiteral("Label2"))->text(), QStringLiteral("uno\ndos"));
    VentanaMsgBox t(QStringLiteral("x"), QString(), QStringLiteral("Proyecto de Fontaria"), 0, 0, 0, QImage());
    EXPECT_EQ(t.windowTitle(), QStringLiteral("Proyecto de Fontaria"));
}

TEST(CajaMensajes, ElTextoLargoSeAjustaYLaCajaCreceEnAlto) {
    const QString corto = QStringLiteral("Corto");
    QString largo;
    for (int i = 0; i < 60; ++i) largo += QStringLiteral("palabra ");
    VentanaMsgBox a(corto, QString(), QString(), 0, 0, 0, QImage());
    VentanaMsgBox b(largo, QString(), QString(), 0, 0, 0, QImage());
    auto* etiqueta = b.findChild<QLabel*>(QStringLiteral("Label2"));
    EXPECT_TRUE(etiqueta->wordWrap());
    EXPECT_FALSE(a.findChild<QLabel*>(QStringLiteral("Label2"))->wordWrap());
    EXPECT_GT(b.height(), a.height());
    // Never narrower than 3900 twips with one button, 4300 with two or three.
    EXPECT_GE(a.width(), 3900 / TwipsPorPixel);
    VentanaMsgBox dos(corto, QString(), QString(), 1, 0, 0, QImage());
    EXPECT_GE(dos.width(), 4300 / TwipsPorPixel);
    // The width stops at the label's limit.
    EXPECT_LE(b.width(), (AnchoMaximoEtiqueta + 1200 + 400) / TwipsPorPixel + 1);
}

TEST(CajaMensajes, MedidasEnTwips) {
    // 3000 + 200 + 1200 + 400 < 10500: the label takes the text's width.
    auto fijo = [](int) { return std::make_pair(3000, 600); };
    MedidasMensaje m = MedirMensaje(fijo, 1200, 900, 0);
    EXPECT_EQ(m.anchoEtiqueta, 3200);
    EXPECT_EQ(m.altoEtiqueta, 950);
    EXPECT_EQ(m.altoVentana, 950 + 900 + 1400);
    EXPECT_EQ(m.anchoVentana, 4800);
    EXPECT_FALSE(m.ajustado);
    // Wider than the limit: held at 10500 and measured again, wrapped.
    auto ancho = [](int maximo) { return maximo ? std::make_pair(maximo, 1800) : std::make_pair(20000, 300); };
    m = MedirMensaje(ancho, 1200, 900, 2);
    EXPECT_TRUE(m.ajustado);
    EXPECT_EQ(m.anchoEtiqueta, 10500);
    EXPECT_EQ(m.altoEtiqueta, 2150);
    // A tiny text keeps the least width of its form.
    auto poco = [](int) { return std::make_pair(100, 200); };
    EXPECT_EQ(MedirMensaje(poco, 1200, 900, 0).anchoVentana, 3900);
    EXPECT_EQ(MedirMensaje(poco, 1200, 900, 1).anchoVentana, 4300);
}
