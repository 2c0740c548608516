#pragma once
// Support of the screen tests: the desktop's dialogs with the file dialogs
// scripted, a sample project loaded as the commands load it, and a project
// file's column read back.

#include "analysis/Numeracion.h"
#include "aqueduct/ProyectoAcueducto.h"
#include "model/ArchivoEdificio.h"
#include "model/ProyectoEdificio.h"
#include "reports/screens/VentanaImpreGeneral.h"
#include "shell/screens/DialogosQt.h"
#include "shell/screens/PantallasEscritorio.h"
#include "shell/screens/VentanaPrincipal.h"
#include "store/Conexion.h"
#include "support/Apoyo.h"
#include "support/Modales.h"

#include <QAbstractButton>
#include <QAction>
#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QDir>
#include <memory>
#include <deque>

// The real message box (VentanaMsgBox) and busy pointer; the file dialogs
// answer from a script and record their title, filter and folder.
class DialogosPantalla : public DialogosQt {
public:
    std::deque<std::optional<QString>> archivos;
    QStringList dialogosArchivo;
    std::optional<QString> AbrirArchivo(const QString& titulo, const QString& filtro, const QString& carpeta) override {
        dialogosArchivo << titulo + QLatin1Char('|') + filtro + QLatin1Char('|') + carpeta;
        if (archivos.empty()) return std::nullopt;
        auto r = archivos.front();
        archivos.pop_front();
        return r;
    }
    // The save dialog's answer (a new project's file).
    std::optional<QString> guardar;
    std::optional<QString> GuardarArchivo(const QString&, const QString&, const QString&) override { return guardar; }
};

// The data-report screen ("Imprimir") a click opens, closed with "Cancelar":
// its origin, its title box and whether it offers the photographs.
struct ImpreVista {
    int origen = 0;
    QString titulo;
    bool fotos = false;
};
inline ImpreVista ImpreAbierta(QAbstractButton* b) {
    ImpreVista r;
    CuandoAbra<VentanaImpreGeneral>([&r](VentanaImpreGeneral* w) {
        r.origen = w->Logica().Origen();
        r.titulo = w->Text1()->text();
        r.fotos = !w->Check3()->isHidden();
        w->Boton(QStringLiteral("Cancelar"))->click();
    });
    b->click();
    return r;
}

// The main window as the desktop program wires it, on a fresh data folder
// holding the samples.
struct EscritorioPrueba : ::testing::Test {
    SesionPrueba sp;
    ProyectoEdificio p;
    ProyectoAcueducto acu;
    DialogosPantalla d;
    std::unique_ptr<PantallasEscritorio> pantallas;
    std::unique_ptr<VentanaPrincipal> v;

    void SetUp() override {
        qputenv("FONTARIA_DATOS", sp.s.DirectorioDatos.toUtf8());
        pantallas = std::make_unique<PantallasEscritorio>(sp.s, p, acu, d);
        v = std::make_unique<VentanaPrincipal>(sp.s, p, acu, d, *pantallas);
        v->Logica().VerificarNumeracion = [this] { VerificarNumeracion(p, d); };
        pantallas->PonerVentana(v.get());
        v->Arrancar(RutaProgramaPruebas());
        v->show();
    }
    void TearDown() override { qunsetenv("FONTARIA_DATOS"); }
    QString Muestra(const char* nombre) const {
        return sp.Datos(QStringLiteral("Proyectos/") + QString::fromUtf8(nombre) + QStringLiteral(".plm"));
    }
    bool Activa(const char* id) const { return v->Accion(QString::fromLatin1(id))->isEnabled(); }
};

// A sample (Imagen/NAME.nivo) copied to Proyectos/NAME.plm, chosen, loaded
// and verified as the result commands do.
inline QString CargarEjemplo(SesionPrueba& sp, ProyectoEdificio& p, Dialogos& d, const QString& nombre) {
    QDir().mkpath(sp.Datos(QStringLiteral("Proyectos")));
    const QString ruta = sp.CopiaDeEjemplo(nombre + QStringLiteral(".nivo"), QStringLiteral("Proyectos/") + nombre +
                                                                               QStringLiteral(".plm"));
    QString error;
    EXPECT_TRUE(CargarProyectoEdificio(p, sp.s, ruta, error)) << error.toStdString();
    VerificarNumeracion(p, d);
    EXPECT_EQ(p.ErrorNumeracion, 0);
    return ruta;
}

// A column of DatosRamales of a project file, by branch number, read
// through a connection of its own.
inline Valor CampoDelArchivo(const QString& ruta, const char* columna, int ramal) {
    Conexion c;
    EXPECT_TRUE(c.Abrir(ruta));
    Consulta q(c, QStringLiteral("SELECT %1 FROM DatosRamales WHERE Numero=%2").arg(QLatin1String(columna)).arg(ramal));
    if (!q.Siguiente()) {
        ADD_FAILURE() << "sin la fila del ramal " << ramal;
        return Valor();
    }
    return q.Columna(0);
}
