// The aqueduct commands of the main window: new network, edit, results,
// driven through the scripted dialogs with the screens recorded.

#include "PantallasFalsas.h"
#include "aqueduct/ArchivoAcueducto.h"

#include <QDir>
#include <gtest/gtest.h>

namespace {

struct ComandosACU : MenuPrueba {
    void SetUp() override {
        QDir().mkpath(sp.Datos(QStringLiteral("Redes")));
        s.NombreUsuario = QStringLiteral("Ing. Pérez");
    }
    QString Redes(const QString& n) const { return sp.Datos(QStringLiteral("Redes/") + n); }
    QString Dialogo(const char* titulo) const {
        return QString::fromUtf8(titulo) + QStringLiteral("|*.ACU|*.acu|") + sp.Datos(QStringLiteral("Redes"));
    }
    QString Ejemplo(const char* nombre) {
        return sp.CopiaDeEjemplo(QString::fromLatin1(nombre) + QStringLiteral(".nivo"),
                                 QStringLiteral("Redes/") + QString::fromLatin1(nombre) + QStringLiteral(".acu"));
    }
};

}  // namespace

TEST_F(ComandosACU, LasHerramientasDeAcueductosCorrenSusOrdenes) {
    for (const char* id : {"ID_A_Nuevo", "ID_A_Modificar", "ID_A_Analisis"}) {
        EXPECT_TRUE(menu.Habilitada(QString::fromLatin1(id))) << id;
        EXPECT_TRUE(menu.Ejecutar(QString::fromLatin1(id)));
    }
    // Each asked for its file and stopped at the cancel.
    EXPECT_EQ(d.dialogosArchivo,
              QStringList({Dialogo("Crear un Nuevo Proyecto"), Dialogo("Abrir un Proyecto Existente"),
                           Dialogo("Abrir un Proyecto Existente")}));
    EXPECT_TRUE(pantallas.mostradas.empty());
    EXPECT_TRUE(s.NombreProyectoACU.isEmpty());
    EXPECT_FALSE(menu.Habilitada(QStringLiteral("ID_A_Salvar")));
}

TEST_F(ComandosACU, NuevoProyectoEmpiezaDeLaPlantillaConSusValores) {
    const QString ruta = EscribirArchivo(Redes(QStringLiteral("pueblo.acu")), "un archivo anterior");
    // What the previous network left in memory goes.
    acu.Proyecto = QStringLiteral("Otra red");
    acu.C = 90;
    acu.NumeroTramos = 3;
    acu.DimensionarTramos(3);
    s.DatosModificados = -1;
    s.EdicionDesdeAnalisis = 1;
    d.archivos.push_back(ruta);
    pantallas.alMostrar = [&](Pantalla) {
        EXPECT_EQ(s.DatosModificados, 0);
        EXPECT_EQ(s.EdicionDesdeAnalisis, 0);
        EXPECT_EQ(acu.NumeroTramos, 0);
        EXPECT_TRUE(acu.Inicio.Vacio() || acu.Inicio.Ubound() == 0);
        EXPECT_EQ(acu.Proyecto, QString());
        EXPECT_EQ(acu.Calculista, QStringLiteral("Ing. Pérez"));
        EXPECT_EQ(acu.Fecha, Hoy());
        EXPECT_EQ(acu.C, 100);
        EXPECT_EQ(acu.OpcionConsumo, 1);
        EXPECT_EQ(acu.OpcionDiametro, 1);
        EXPECT_EQ(acu.CasoPorcentaje, 1);
        EXPECT_DOUBLE_EQ(acu.DeltaPorcentaje, 5.0);
        EXPECT_DOUBLE_EQ(acu.FactorQMax, 2.5);
        EXPECT_DOUBLE_EQ(acu.FactorIncendio, 1.8);
        EXPECT_DOUBLE_EQ(acu.LitrosIncendio, 16.0);
    };
    menu.ACUNuevoProyecto();
    EXPECT_EQ(d.dialogosArchivo.value(0), Dialogo("Crear un Nuevo Proyecto"));
    ASSERT_EQ(pantallas.mostradas, std::vector<Pantalla>{Pantalla::DatosAcueducto});
    Conexion c;
    ASSERT_TRUE(c.Abrir(ruta));  // the old text file gave way to the blank network
    EXPECT_TRUE(EsArchivoAcueducto(c));
    EXPECT_EQ(s.NombreProyectoACU, QStringLiteral("pueblo.acu"));
    EXPECT_EQ(s.ArchivoProyectoACU, ruta);
    EXPECT_EQ(menu.Titulo(), QStringLiteral("NIVO-FONTARIA 2024 (REDES)    PROYECTO: [ PUEBLO.ACU ]"));
    EXPECT_TRUE(menu.Habilitada(QStringLiteral("ID_A_Salvar")));
    EXPECT_EQ(d.ocupado, 0);
}

TEST_F(ComandosACU, ModificarPideLaRedUnaVezYLaCargaDelArchivo) {
    const QString ruta = Ejemplo("EjemploRedA");
    d.archivos.push_back(ruta);
    s.DatosModificados = -1;
    s.EdicionDesdeAnalisis = 1;
    pantallas.alMostrar = [&](Pantalla) {
        EXPECT_EQ(s.DatosModificados, 0);
        EXPECT_EQ(s.EdicionDesdeAnalisis, 0);
        EXPECT_EQ(acu.NumeroTramos, 26);
        EXPECT_EQ(acu.NumeroNodosACU, 18);
        EXPECT_EQ(acu.Inicio[1], QStringLiteral("Tanque"));
    };
    menu.ACUModificarProyecto();
    EXPECT_EQ(d.dialogosArchivo, QStringList{Dialogo("Abrir un Proyecto Existente")});
    EXPECT_EQ(pantallas.mostradas, std::vector<Pantalla>{Pantalla::DatosAcueducto});
    EXPECT_TRUE(menu.Habilitada(QStringLiteral("ID_A_Salvar")));

    // A second entry reads the file again: what the screen left unsaved goes.
    acu.Inicio[1] = QStringLiteral("cambiado sin salvar");
    menu.ACUModificarProyecto();
    EXPECT_EQ(d.dialogosArchivo.size(), 1);
    EXPECT_EQ(acu.Inicio[1], QStringLiteral("Tanque"));
}

TEST_F(ComandosACU, ResultadosMuestraElAnalisisYCambiaElTitulo) {
    d.archivos.push_back(Ejemplo("EjemploRedB"));
    int ocupadoAlMostrar = 0;
    pantallas.alMostrar = [&](Pantalla) { ocupadoAlMostrar = d.ocupado; };
    menu.ACUResultados();
    EXPECT_EQ(pantallas.mostradas, std::vector<Pantalla>{Pantalla::AnalisisACU});
    EXPECT_EQ(ocupadoAlMostrar, 1);  // the hourglass while the screen solves
    EXPECT_EQ(d.ocupado, 0);
    // One blank fewer than the window's own form, as this command writes it.
    EXPECT_EQ(menu.Titulo(), QStringLiteral("NIVO-REDES    PROYECTO:[ EJEMPLOREDB.ACU ]"));
}

TEST_F(ComandosACU, ResultadosSinRamalesAvisaYNoMuestraPantalla) {
    const QString ruta = sp.AcueductoEnBlanco(QStringLiteral("Redes/vacia.acu"));
    d.archivos.push_back(ruta);
    menu.ACUAbrirProyecto();
    menu.ACUResultados();
    EXPECT_TRUE(pantallas.mostradas.empty());
    ASSERT_EQ(d.mensajes.size(), 1u);
    MensajeEs(d.Ultimo(), QStringLiteral("vacia.acu\nNúmero de Ramales = 0\nRevise el Archivo de Datos..."),
              QStringLiteral("Error en Lectura de Datos..."));
    EXPECT_EQ(d.ocupado, 0);
    EXPECT_EQ(menu.Titulo(), QStringLiteral("NIVO-FONTARIA 2024 (REDES)    PROYECTO: [ VACIA.ACU ]"));
}

TEST_F(ComandosACU, UnArchivoAjenoSeAvisaYNoAbreNingunaPantalla) {
    const QString ruta = EscribirArchivo(Redes(QStringLiteral("ajena.acu")), "no es una base de datos");
    d.archivos.push_back(ruta);
    menu.ACUAbrirProyecto();
    menu.ACUModificarProyecto();
    menu.ACUResultados();
    EXPECT_TRUE(pantallas.mostradas.empty());
    ASSERT_EQ(d.mensajes.size(), 2u);
    for (const auto& m : d.mensajes) {
        EXPECT_TRUE(m.texto.endsWith(QStringLiteral("\nRevise el Archivo de Datos..."))) << m.texto.toStdString();
        EXPECT_EQ(m.encabezado, QStringLiteral("Error en Lectura de Datos..."));
    }
    EXPECT_EQ(d.ocupado, 0);
}

TEST_F(ComandosACU, NuevoProyectoQueNoPuedeCopiarseDejaLaRedElegida) {
    d.archivos.push_back(Ejemplo("EjemploRedA"));
    menu.ACUAbrirProyecto();
    // A folder that does not exist cannot take the blank network.
    d.archivos.push_back(sp.Datos(QStringLiteral("no/existe/nueva.acu")));
    menu.ACUNuevoProyecto();
    EXPECT_TRUE(pantallas.mostradas.empty());
    ASSERT_EQ(d.mensajes.size(), 1u);
    EXPECT_EQ(d.Ultimo().encabezado, QStringLiteral("Crear un Nuevo Proyecto..."));
    EXPECT_EQ(s.NombreProyectoACU, QStringLiteral("EjemploRedA.acu"));
}
