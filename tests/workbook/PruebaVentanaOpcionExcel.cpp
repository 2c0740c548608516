// The option screen of the workbooks: its controls for each mode, and the
// choices that reach the logic.

#include "support/Apoyo.h"
#include "workbook/screens/VentanaOpcionExcel.h"

#include <QCheckBox>
#include <QDateEdit>
#include <QElapsedTimer>
#include <QPushButton>
#include <QTest>

namespace {

// With FONTARIA_CAPTURA set, the window stays on screen a while to be
// photographed.
void Mirar(QWidget& w) {
    if (qEnvironmentVariableIsEmpty("FONTARIA_CAPTURA")) return;
    w.show();
    QElapsedTimer t;
    t.start();
    while (t.elapsed() < 4000) QTest::qWait(50);
}

}  // namespace

TEST(VentanaOpcionExcel, LasCasillasLleganALaLogicaEnCadaModo) {
    SesionPrueba sp;
    for (bool acueducto : {false, true}) {
        DialogosFalsos d;
        VentanaOpcionExcel v(sp.s, d, acueducto);
        Mirar(v);
        EXPECT_EQ(v.windowTitle(), QStringLiteral("Exportar a Excel"));
        const int reportes = acueducto ? 2 : 4;
        for (int k = 0; k < 4; ++k)
            EXPECT_EQ(v.Control(QStringLiteral("Check%1").arg(k + 2)) != nullptr, k < reportes) << k;
        EXPECT_EQ(static_cast<QCheckBox*>(v.Control(QStringLiteral("CheckP")))->text(),
                  QStringLiteral("Opción de Inmovilizar  Paneles"));
        EXPECT_EQ(static_cast<QDateEdit*>(v.Control(QStringLiteral("Date1")))->date(), Hoy());
        EXPECT_EQ(v.Control(QStringLiteral("Command3"))->toolTip(), QStringLiteral("Cerrar los procesos de Excel en memoria. "));

        static_cast<QCheckBox*>(v.Control(QStringLiteral("Check2")))->setChecked(false);
        static_cast<QCheckBox*>(v.Control(QStringLiteral("Check1")))->setChecked(false);
        static_cast<QPushButton*>(v.Control(QStringLiteral("Command2")))->click();
        EXPECT_EQ(v.result(), QDialog::Accepted);
        const OpcionesLibro& o = v.Logica().opciones;
        EXPECT_TRUE(v.Logica().ExcelAceptado);
        EXPECT_FALSE(o.hojas[0]);
        EXPECT_TRUE(o.hojas[1]);
        EXPECT_FALSE(o.color);
        EXPECT_TRUE(o.indice);
        EXPECT_EQ(o.fecha, FechaTexto(Hoy()));
    }
}
