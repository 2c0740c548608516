// The aqueduct report windows: their controls, texts and tips, the options
// reaching the logic, the sheet's rows.

#include "ApoyoACU.h"
#include "reports/screens/VentanaImpreAcueducto.h"
#include "reports/screens/VentanaImpreHojas.h"
#include "model/ProyectoEdificio.h"
#include "widgets/NivoNumero.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QKeyEvent>
#include <QPushButton>
#include <QRadioButton>

TEST_F(PantallaACU, ImpreAcueductoMuestraSusOpcionesYSusAyudas) {
    Cargar("EjemploRedA");
    VentanaImpreAcueducto v(p, s, falsos);
    EXPECT_EQ(v.windowTitle(), QStringLiteral("Redes de Acueductos"));
    ASSERT_NE(v.findChild<QGroupBox*>(), nullptr);
    EXPECT_EQ(v.findChild<QGroupBox*>()->title(), QStringLiteral("Opciones de Impresión"));
    const QStringList textos = {"Imprimir Todas las Tablas", "Resultados de los Ramales", "Resultados de los Nodos",
                                "Portada Inicial", "Ramales con Dirección del Flujo", "Todas las Tablas con Dirección"};
    for (int i = 1; i <= 6; ++i) {
        auto* o = v.findChild<QRadioButton*>(QStringLiteral("Option%1").arg(i));
        ASSERT_NE(o, nullptr) << i;
        EXPECT_EQ(o->text(), textos[i - 1]);
    }
    EXPECT_TRUE(v.findChild<QRadioButton*>(QStringLiteral("Option1"))->isChecked());
    v.findChild<QRadioButton*>(QStringLiteral("Option6"))->click();
    EXPECT_EQ(v.Logica().Opcion, 6);
    EXPECT_EQ(ImpreAcueducto::PlantillaDeOpcion(6), QStringLiteral("ResultadosTodoD"));
    auto* color = v.findChild<QCheckBox*>(QStringLiteral("Check1"));
    EXPECT_EQ(color->text(), QStringLiteral("Formato a Color"));
    color->click();
    EXPECT_EQ(v.Logica().FormatoColor, color->isChecked());
    const struct { const char* nombre; const char* texto; const char* ayuda; } botones[] = {
        {"Command2", "Exportar", "Imprimir o Exportar los Reportes. "},
        {"LSButton4", "Directorio", "Directorio de los reportes exportados. "},
        {"Button2", "Cancelar", " Cancelar "}};
    for (const auto& b : botones) {
        ASSERT_NE(v.Boton(QString::fromLatin1(b.nombre)), nullptr) << b.nombre;
        EXPECT_EQ(v.Boton(QString::fromLatin1(b.nombre))->text(), QString::fromUtf8(b.texto));
        EXPECT_EQ(v.Boton(QString::fromLatin1(b.nombre))->toolTip(), QString::fromUtf8(b.ayuda));
    }
    v.show();
    QKeyEvent esc(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QApplication::sendEvent(&v, &esc);
    EXPECT_FALSE(v.isVisible());
}

TEST_F(PantallaACU, LasHojasDeTrabajoDelAcueductoTomanLosRamalesDelProyecto) {
    Cargar("EjemploRedA");
    s.TipoRed = 1;
    ProyectoEdificio edificio;
    VentanaImpreHojas v(edificio, p, s, falsos);
    EXPECT_EQ(v.windowTitle(), QStringLiteral("Imprimir Hojas de Trabajo"));
    EXPECT_EQ(v.findChild<QRadioButton*>(QStringLiteral("Option1"))->text(), QStringLiteral("Imprimir Tabla de los Ramales..."));
    EXPECT_EQ(v.findChild<QRadioButton*>(QStringLiteral("Option2"))->text(), QStringLiteral("Imprimir Tabla de los Nodos..."));
    auto* grid = v.findChild<VistaGrid*>(QStringLiteral("Spread1"));
    ASSERT_EQ(grid->model()->rowCount(), 26);
    EXPECT_EQ(grid->model()->index(0, 1).data().toString(), QStringLiteral("Tanque"));
    EXPECT_EQ(v.findChild<NivoLong*>(QStringLiteral("Long1"))->ValorEntero(), 26);
    EXPECT_EQ(v.Boton(QStringLiteral("LSButton1"))->text(), QStringLiteral(" Borrar el ( I )-( J ) de los Ramales "));
    v.Boton(QStringLiteral("LSButton1"))->click();
    EXPECT_EQ(grid->model()->index(0, 1).data().toString(), QString());
    EXPECT_EQ(grid->model()->index(0, 0).data().toString(), QStringLiteral("1"));
    v.findChild<QRadioButton*>(QStringLiteral("Option2"))->click();
    EXPECT_EQ(v.Logica().Plantilla(), QStringLiteral("TablaNodos"));
}

TEST_F(PantallaACU, LasHojasDelEdificioOfrecenSusDosTablasYElColor) {
    s.TipoRed = 0;
    ProyectoEdificio edificio;
    VentanaImpreHojas v(edificio, p, s, falsos);
    EXPECT_EQ(v.findChild<QRadioButton*>(QStringLiteral("Option1"))->text(),
              QStringLiteral("Piezas Sanitarias y Conexiones de los Ramales"));
    EXPECT_TRUE(v.findChild<QCheckBox*>(QStringLiteral("Check1"))->isVisibleTo(&v));
    auto* filas = v.findChild<NivoLong*>(QStringLiteral("Long1"));
    filas->setText(QStringLiteral("12"));
    Q_EMIT filas->textEdited(filas->text());
    Q_EMIT filas->Enter();
    EXPECT_EQ(v.Logica().Long1(), 12);
    EXPECT_EQ(v.Logica().Plantilla(), QStringLiteral("TablaDatos1"));
}
