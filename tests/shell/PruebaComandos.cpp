// The project commands of the main window, driven through the scripted
// dialogs: titles, filters, folders, cancel rules, refusals and questions.

#include "PantallasFalsas.h"
#include "ProyectoMuestra.h"

#include <QDir>
#include <QFileInfo>
#include <gtest/gtest.h>

namespace {

struct Comandos : MenuPrueba {
    void SetUp() override {
        QDir().mkpath(sp.Datos(QStringLiteral("Proyectos")));
        QDir().mkpath(sp.Datos(QStringLiteral("Redes")));
    }
    QString Proyectos(const QString& n) const { return sp.Datos(QStringLiteral("Proyectos/") + n); }
    QString Dialogo(const char* titulo, const char* filtro, const char* carpeta) const {
        return QString::fromUtf8(titulo) + QLatin1Char('|') + QString::fromUtf8(filtro) + QLatin1Char('|') +
               sp.Datos(QString::fromUtf8(carpeta));
    }
    // A sample copied as a chosen project.
    QString ElegirEjemplo(const QString& nombre = QStringLiteral("casa.plm")) {
        const QString ruta = ProyectoMuestra(sp, QStringLiteral("Proyectos/") + nombre);
        d.archivos.push_back(ruta);
        menu.AbrirProyecto();
        return ruta;
    }
};

bool EsBaseDeProyecto(const QString& ruta) {
    Conexion c;
    return c.Abrir(ruta) && c.ExisteTabla(QStringLiteral("DatosRamales"));
}

}  // namespace

TEST_F(Comandos, NuevoProyectoCopiaLaPlantillaSobreElArchivoYMuestraElEditor) {
    const QString ruta = Proyectos(QStringLiteral("casa.plm"));
    EscribirArchivo(ruta, "un archivo anterior");
    d.archivos.push_back(ruta);
    menu.NuevoProyecto();
    EXPECT_EQ(d.dialogosArchivo.value(0), Dialogo("Crear un Nuevo Proyecto", "Fontaria (*.plm)|*.plm", "Proyectos"));
    EXPECT_TRUE(EsBaseDeProyecto(ruta));  // the old file gave way to the empty template
    EXPECT_EQ(s.NombreProyecto, QStringLiteral("casa.plm"));
    EXPECT_EQ(s.ArchivoProyecto, ruta);
    EXPECT_EQ(menu.Titulo(), QStringLiteral("NIVO-FONTARIA 2024    PROYECTO: [ CASA.PLM ]"));
    EXPECT_TRUE(s.ProyectoModificado);
    EXPECT_TRUE(s.ConexionProyecto.Abierta());
    ASSERT_EQ(pantallas.mostradas.size(), 1u);
    EXPECT_EQ(pantallas.mostradas[0], Pantalla::DatosRamales);
    EXPECT_TRUE(menu.Habilitada(QStringLiteral("ID_M1_SalvarComo")));
}

TEST_F(Comandos, UnDialogoCanceladoNoCambiaNada) {
    menu.NuevoProyecto();
    menu.AbrirProyecto();
    menu.EliminarProyectos();
    menu.ACUAbrirProyecto();
    menu.ModificarProyecto();  // asks once for the project, and the cancel ends it
    EXPECT_EQ(d.dialogosArchivo.size(), 5);
    EXPECT_TRUE(s.NombreProyecto.isEmpty());
    EXPECT_TRUE(s.NombreProyectoACU.isEmpty());
    EXPECT_TRUE(pantallas.mostradas.empty());
    EXPECT_TRUE(d.mensajes.empty());
    EXPECT_FALSE(menu.Habilitada(QStringLiteral("ID_M1_SalvarComo")));
    EXPECT_FALSE(menu.Habilitada(QStringLiteral("ID_A_Salvar")));
    EXPECT_EQ(int(p.NumeroRamales), 0);
    EXPECT_EQ(d.ocupado, 0);
    // A cancelled save-as leaves the chosen project.
    ElegirEjemplo();
    menu.SalvarComo();
    EXPECT_EQ(s.NombreProyecto, QStringLiteral("casa.plm"));
    EXPECT_TRUE(d.mensajes.empty());
}

TEST_F(Comandos, AbrirProyectoSoloEligeElArchivo) {
    p.Proyecto = QStringLiteral("sin tocar");
    const QString ruta = ElegirEjemplo();
    EXPECT_EQ(d.dialogosArchivo.value(0), Dialogo("Abrir un Proyecto Existente", "*.plm|*.plm", "Proyectos"));
    EXPECT_EQ(s.ArchivoProyecto, ruta);
    EXPECT_EQ(s.NombreProyecto, QStringLiteral("casa.plm"));
    EXPECT_EQ(p.Proyecto, QStringLiteral("sin tocar"));  // nothing loaded
    EXPECT_FALSE(s.ConexionProyecto.Abierta());
    EXPECT_TRUE(menu.Habilitada(QStringLiteral("ID_M1_SalvarComo")));
}

TEST_F(Comandos, ModificarCargaElProyectoYMuestraElEditor) {
    ElegirEjemplo();
    menu.ModificarProyecto();
    EXPECT_EQ(d.dialogosArchivo.size(), 1);  // the chosen project is not asked again
    EXPECT_GT(int(p.NumeroRamales), 0);
    ASSERT_EQ(pantallas.mostradas.size(), 1u);
    EXPECT_EQ(pantallas.mostradas[0], Pantalla::DatosRamales);
}

TEST_F(Comandos, SalvarComoRechazaSuPropioNombreEnCualquierCasoYVuelveAlDialogo) {
    const QString original = ElegirEjemplo(QStringLiteral("Casa.plm"));
    d.archivos = {sp.Datos(QStringLiteral("otra/CASA.PLM")), Proyectos(QStringLiteral("copia.plm"))};
    menu.SalvarComo();
    ASSERT_EQ(d.mensajes.size(), 1u);
    MensajeEs(d.mensajes[0],
              QStringLiteral("Proyecto Existente: Casa.plm\nSalvarlo Como: CASA.PLM\n"
                             "No se Puede Salvar el Proyecto con el Mismo Nombre..."),
              QStringLiteral("Salvar Proyecto Como..."));
    EXPECT_EQ(d.dialogosArchivo.value(1), Dialogo("Casa.plm  Salvarlo como...", "*.plm|*.plm", "Proyectos"));
    EXPECT_EQ(d.dialogosArchivo.size(), 3);
    EXPECT_TRUE(EsBaseDeProyecto(Proyectos(QStringLiteral("copia.plm"))));
    EXPECT_TRUE(QFileInfo::exists(original));
    EXPECT_EQ(s.NombreProyecto, QStringLiteral("copia.plm"));
    EXPECT_EQ(s.ArchivoProyecto, Proyectos(QStringLiteral("copia.plm")));
    EXPECT_EQ(menu.Titulo(), QStringLiteral("NIVO-FONTARIA 2024    PROYECTO: [ COPIA.PLM ]"));
    EXPECT_FALSE(s.ConexionProyecto.Abierta());
}

TEST_F(Comandos, EliminarHaceDosPreguntasConSusDefectos) {
    const QString ruta = ElegirEjemplo();
    d.archivos.push_back(ruta);
    d.respuestas = {Respuesta::Si, Respuesta::Si};
    menu.EliminarProyectos();
    EXPECT_EQ(d.dialogosArchivo.value(1), Dialogo("Eliminar Proyectos Existentes...", "*.plm|*.plm", "Proyectos"));
    ASSERT_EQ(d.mensajes.size(), 2u);
    EXPECT_EQ(d.mensajes[0].texto,
              QStringLiteral("Proyecto: casa.plm\n¿Esta Seguro de Querer Eliminarlo?\n(Recuerde Sacar Respaldos!)"));
    EXPECT_EQ(d.mensajes[1].texto, QStringLiteral("Proyecto: casa.plm\n¿Esta Seguro de Eliminar el Proyecto Seleccionado?"));
    for (const auto& m : d.mensajes) {
        EXPECT_EQ(m.encabezado, QStringLiteral("Eliminar Proyecto Existente..."));
        EXPECT_EQ(m.titulo, QStringLiteral("Proyecto de Fontaria"));
        EXPECT_EQ(m.botones, Botones::SiNo);
    }
    EXPECT_EQ(d.mensajes[0].defecto, 0);  // "No"
    EXPECT_NE(d.mensajes[1].defecto, 0);  // "Sí"
    EXPECT_FALSE(QFileInfo::exists(ruta));
    // The chosen project is gone: the next command asks for one again.
    EXPECT_TRUE(s.NombreProyecto.isEmpty());
    EXPECT_FALSE(menu.Habilitada(QStringLiteral("ID_M1_SalvarComo")));
    EXPECT_EQ(menu.Titulo(), QStringLiteral("NIVO-FONTARIA 2024    PROYECTO: [  ]"));
    menu.ResultadosAnalisis();
    EXPECT_EQ(d.dialogosArchivo.size(), 3);
}

TEST_F(Comandos, EliminarSeDetieneConUnNoEnCualquieraDeLasPreguntas) {
    const QString ruta = ProyectoMuestra(sp, QStringLiteral("Proyectos/x.plm"));
    d.archivos = {ruta, ruta};
    d.respuestas = {Respuesta::No, Respuesta::Si, Respuesta::No};
    menu.EliminarProyectos();
    menu.EliminarProyectos();
    EXPECT_EQ(d.mensajes.size(), 3u);
    EXPECT_TRUE(QFileInfo::exists(ruta));
}

TEST_F(Comandos, EliminarEnAcueductosComparaConElNombreDelEdificio) {
    ElegirEjemplo(QStringLiteral("red.plm"));
    const QString acu = sp.AcueductoEnBlanco(QStringLiteral("Redes/red.acu"));
    d.archivos.push_back(acu);
    menu.ACUAbrirProyecto();
    EXPECT_EQ(s.NombreProyectoACU, QStringLiteral("red.acu"));
    EXPECT_TRUE(menu.Habilitada(QStringLiteral("ID_A_Salvar")));
    const QString otra = sp.AcueductoEnBlanco(QStringLiteral("Redes/RED.PLM"));
    d.archivos.push_back(otra);
    menu.ClickTab(2);
    d.respuestas = {Respuesta::Si, Respuesta::Si};
    menu.EliminarProyectos();
    EXPECT_EQ(d.dialogosArchivo.last(), Dialogo("Eliminar Proyectos Existentes...", "*.ACU|*.acu", "Redes"));
    EXPECT_FALSE(QFileInfo::exists(otra));
    EXPECT_TRUE(s.NombreProyectoACU.isEmpty());
    EXPECT_EQ(s.NombreProyecto, QStringLiteral("red.plm"));
    EXPECT_FALSE(menu.Habilitada(QStringLiteral("ID_M1_SalvarComo")));
    EXPECT_TRUE(menu.Habilitada(QStringLiteral("ID_A_Salvar")));
    EXPECT_EQ(menu.Titulo(), QStringLiteral("NIVO-FONTARIA 2024 (REDES)    PROYECTO: [  ]"));
}

TEST_F(Comandos, SalvarComoACUNombraYComparaElProyectoDeEdificio) {
    ElegirEjemplo(QStringLiteral("casa.plm"));
    const QString acu = sp.AcueductoEnBlanco(QStringLiteral("Redes/red.acu"));
    d.archivos = {acu, sp.Datos(QStringLiteral("Redes/Casa.plm")), sp.Datos(QStringLiteral("Redes/red2.acu"))};
    menu.ACUAbrirProyecto();
    EXPECT_EQ(d.dialogosArchivo.last(), Dialogo("Abrir un Proyecto Existente", "*.ACU|*.acu", "Redes"));
    menu.SalvarComoACU();
    EXPECT_EQ(d.dialogosArchivo.value(2), Dialogo("casa.plm  Salvarlo como...", "*.ACU|*.acu", "Redes"));
    ASSERT_EQ(d.mensajes.size(), 1u);
    EXPECT_EQ(s.NombreProyectoACU, QStringLiteral("red2.acu"));
    EXPECT_TRUE(QFileInfo::exists(sp.Datos(QStringLiteral("Redes/red2.acu"))));
    EXPECT_EQ(menu.Titulo(), QStringLiteral("NIVO-FONTARIA 2024 (REDES)    PROYECTO: [ RED2.ACU ]"));
}

TEST_F(Comandos, ResultadosAnalisisRechazaUnaRedRotaYDejaElPunteroOcupado) {
    ElegirEjemplo();
    menu.VerificarNumeracion = [this] { p.ErrorNumeracion = 1; };
    menu.ResultadosAnalisis();
    EXPECT_TRUE(pantallas.mostradas.empty());
    EXPECT_EQ(p.ErrorNumeracion, 0);
    EXPECT_EQ(d.ocupado, 1);
    menu.Activacion();
    EXPECT_EQ(d.ocupado, 0);
}

TEST_F(Comandos, ResultadosAnalisisMuestraLaPantallaConElProyectoCargado) {
    ElegirEjemplo();
    int verificaciones = 0;
    menu.VerificarNumeracion = [&] { ++verificaciones; };
    int ramales = 0;
    pantallas.alMostrar = [&](Pantalla) {
        ramales = p.NumeroRamales;
        EXPECT_TRUE(s.ConexionProyecto.Abierta());
    };
    menu.ResultadosAnalisis();
    EXPECT_EQ(verificaciones, 1);
    ASSERT_EQ(pantallas.mostradas.size(), 1u);
    EXPECT_EQ(pantallas.mostradas[0], Pantalla::AnalisisRed);
    EXPECT_GT(ramales, 0);
    EXPECT_FALSE(s.ConexionProyecto.Abierta());
    EXPECT_EQ(d.ocupado, 0);
}

TEST_F(Comandos, SinRamalesElAnalisisNoVerificaYLosComputosSi) {
    d.archivos.push_back(sp.ProyectoEnBlanco(QStringLiteral("Proyectos/vacio.plm")));
    menu.AbrirProyecto();
    int verificaciones = 0;
    menu.VerificarNumeracion = [&] {
        ++verificaciones;
        p.ErrorNumeracion = 1;  // not looked at by the take-off
    };
    menu.ResultadosAnalisis();
    EXPECT_EQ(verificaciones, 0);
    menu.ComputosRed();
    EXPECT_EQ(verificaciones, 1);
    ASSERT_EQ(pantallas.mostradas.size(), 2u);
    EXPECT_EQ(pantallas.mostradas[1], Pantalla::Computos);
    EXPECT_EQ(d.ocupado, 0);
}

TEST_F(Comandos, ElTanqueNoPideProyecto) {
    p.Proyecto = QStringLiteral("lo que haya");
    menu.TanqueHidroneumatico();
    EXPECT_TRUE(d.dialogosArchivo.isEmpty());
    ASSERT_EQ(pantallas.mostradas.size(), 1u);
    EXPECT_EQ(pantallas.mostradas[0], Pantalla::Hidroneumatico);
    EXPECT_EQ(p.Proyecto, QStringLiteral("lo que haya"));
}

TEST_F(Comandos, ElTanqueSeMuestraSinDatosCuandoElProyectoElegidoNoCarga) {
    const QString ajena = sp.AcueductoEnBlanco(QStringLiteral("Proyectos/ajena.plm"));
    d.archivos.push_back(ajena);
    menu.AbrirProyecto();
    p.Proyecto = QStringLiteral("de un proyecto anterior");
    int ramalesAlMostrar = -1;
    pantallas.alMostrar = [&](Pantalla) { ramalesAlMostrar = p.NumeroRamales; };
    menu.TanqueHidroneumatico();
    ASSERT_EQ(d.mensajes.size(), 1u);
    MensajeEs(d.Ultimo(),
              QStringLiteral("El archivo no es un proyecto de Fontaria: ") + ajena +
                  QStringLiteral("\nRevise el Archivo de Datos..."),
              QStringLiteral("Error en Lectura de Datos..."));
    ASSERT_EQ(pantallas.mostradas.size(), 1u);
    EXPECT_EQ(pantallas.mostradas[0], Pantalla::Hidroneumatico);
    EXPECT_EQ(ramalesAlMostrar, 0);
    EXPECT_EQ(p.Proyecto, QString());  // nothing of the earlier project is offered as this one's
    EXPECT_EQ(d.ocupado, 0);
}

TEST_F(Comandos, UnArchivoAjenoDaUnMensajeYNoMuestraPantalla) {
    const QString texto = Proyectos(QStringLiteral("notas.plm"));
    EscribirArchivo(texto, "esto no es una base de datos, sino un texto cualquiera con bastante longitud");
    d.archivos.push_back(texto);
    menu.ResultadosAnalisis();
    ASSERT_EQ(d.mensajes.size(), 1u);
    MensajeEs(d.Ultimo(),
              QStringLiteral("El archivo no es una base de datos del programa: ") + texto +
                  QStringLiteral("\nRevise el Archivo de Datos..."),
              QStringLiteral("Error en Lectura de Datos..."));
    // A database of another kind: it lacks the project's tables.
    const QString ajena = sp.AcueductoEnBlanco(QStringLiteral("Proyectos/ajena.plm"));
    d.archivos.push_back(ajena);
    menu.AbrirProyecto();
    menu.ModificarProyecto();
    EXPECT_EQ(d.Ultimo().texto, QStringLiteral("El archivo no es un proyecto de Fontaria: ") + ajena +
                                    QStringLiteral("\nRevise el Archivo de Datos..."));
    EXPECT_TRUE(pantallas.mostradas.empty());
    EXPECT_EQ(d.ocupado, 0);
}

TEST_F(Comandos, ManualYEjemplosAbrenSuDocumentoOAvisan) {
    menu.ManualPrograma();
    menu.VerEjemplos();
    menu.ClickTab(2);
    menu.VerEjemplos();
    const QString manual = s.RutaPrograma + QStringLiteral("/Manual/");
    EXPECT_EQ(d.abiertos, QStringList({manual + QStringLiteral("ManualFontaria24.pdf"),
                                       manual + QStringLiteral("Ejemplo Viviendas y Edificios.pdf"),
                                       manual + QStringLiteral("Ejemplo Acueductos.pdf")}));
    // The build renders the three documents.
    for (const QString& a : d.abiertos) EXPECT_GT(QFileInfo(a).size(), 1000) << a.toStdString();
    EXPECT_TRUE(d.mensajes.empty());

    d.abrirConSistemaResulta = false;
    menu.ManualPrograma();
    MensajeEs(d.Ultimo(), manual + QStringLiteral("ManualFontaria24.pdf\nNo se Puede Abrir el Archivo:"),
              QStringLiteral("Manual del Programa..."));
    menu.VerEjemplos();
    MensajeEs(d.Ultimo(), manual + QStringLiteral("Ejemplo Acueductos.pdf\nNo se Puede Abrir el Archivo: "),
              QStringLiteral("Manual del Usuario..."));
    EXPECT_EQ(d.ocupado, 0);
}

TEST_F(Comandos, UnErrorDeCalculoSeMuestraYLaVentanaSigue) {
    ElegirEjemplo();
    pantallas.alMostrar = [](Pantalla) { throw ErrorEjecucion(Error::DivisionPorCero); };
    EXPECT_TRUE(menu.Ejecutar(QStringLiteral("ID_M2_AnalisisRed")));
    ASSERT_EQ(d.mensajes.size(), 1u);
    MensajeEs(d.Ultimo(), QStringLiteral("Error 11: División por cero"), QStringLiteral("Error en el Cálculo..."));
    EXPECT_EQ(d.ocupado, 0);
    EXPECT_EQ(s.NombreProyecto, QStringLiteral("casa.plm"));
    EXPECT_FALSE(menu.Ejecutar(QStringLiteral("ID_M1_Salida")));
}
