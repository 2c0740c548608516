#pragma once
// Support of the screen tests: the desktop's dialogs with the file dialogs
// scripted, a sample project loaded as the commands load it, and a project
// file's column read back.

#include "analysis/CargaProyecto.h"
#include "analysis/Numeracion.h"
#include "model/ProyectoEdificio.h"
#include "shell/screens/DialogosQt.h"
#include "store/Conexion.h"
#include "support/Apoyo.h"
#include "support/Modales.h"

#include <QDir>
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
