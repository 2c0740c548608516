// The data-report screen: its controls and tip, the choices reaching the
// logic, and a refusal shown in the real message box with the screen open.

#include "ApoyoPantallas.h"
#include "widgets/NivoToolTip.h"

TEST(PantallaImpreGeneral, ControlesYUnProyectoSinArchivo) {
    SesionPrueba sp;
    DialogosPantalla d;
    sp.s.ArchivoProyecto = sp.Datos(QStringLiteral("nunca_salvado.plm"));
    VentanaImpreGeneral v(7, sp.s, d);
    v.show();
    EXPECT_EQ(v.windowTitle(), QStringLiteral("Imprimir"));
    EXPECT_EQ(v.Text1()->text(), QStringLiteral("CONEXIONES EN LOS RAMALES"));
    EXPECT_TRUE(v.Check1()->isChecked());
    EXPECT_TRUE(v.Check3()->isVisible());
    EXPECT_EQ(v.findChild<NivoToolTip*>()->Texto(v.Boton(QStringLiteral("LSButton4"))),
              QStringLiteral("Directorio de los reportes exportados. "));
    v.Text1()->setText(QStringLiteral("CONEXIONES DEL EDIFICIO"));
    v.Check1()->setChecked(false);
    v.Check3()->setChecked(true);
    EXPECT_EQ(v.Logica().Text1, QStringLiteral("CONEXIONES DEL EDIFICIO"));
    EXPECT_FALSE(v.Logica().Check1);
    EXPECT_TRUE(v.Logica().Check3);

    MensajeVisto visto;
    Contestar(visto, 0);
    v.Boton(QStringLiteral("Command2"))->click();
    EXPECT_TRUE(visto.texto.startsWith(QStringLiteral("El proyecto no tiene un archivo salvado")));
    EXPECT_TRUE(v.isVisible());
}
