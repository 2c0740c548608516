#pragma once
// Support of the screen tests: the desktop's dialogs with the file dialogs
// scripted, a sample project loaded as the commands load it, a project
// file's column read back, typing into a box, and acting on the next modal
// window from inside its loop.

#include "analysis/CargaProyecto.h"
#include "analysis/Numeracion.h"
#include "model/ProyectoEdificio.h"
#include "shell/EsperaModal.h"
#include "shell/screens/DialogosQt.h"
#include "store/Conexion.h"
#include "support/Apoyo.h"

#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <deque>

// The real message box (frmMsgBox) and busy pointer; the file dialogs
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

// What a message box showed: body, head line and title.
struct MensajeVisto {
    QString texto, encabezado, titulo;
};

// Reads the next message box and answers it with its button `boton`
// (0..2: Button1..Button3).
inline void ContestarCaja(MensajeVisto& visto, int boton) {
    CuandoAparezca([&visto, boton](frmMsgBox* c) {
        visto.texto = c->findChild<QLabel*>(QStringLiteral("Label2"))->text();
        visto.encabezado = c->findChild<QLabel*>(QStringLiteral("Label1"))->text();
        visto.titulo = c->windowTitle();
        c->Boton(boton)->click();
    });
}

// Runs `f` on the next modal window of type T, from inside its loop.
template <class T, class F>
void CuandoAbra(F f) {
    QTimer::singleShot(0, [f] {
        auto* w = qobject_cast<T*>(QApplication::activeModalWidget());
        ASSERT_NE(w, nullptr);
        f(w);
    });
}

// Types a text into a box as the keyboard would, replacing what it held.
inline void Escribir(QLineEdit* caja, const QString& texto) {
    caja->setFocus();
    caja->selectAll();
    for (const QChar c : texto) {
        QKeyEvent e(QEvent::KeyPress, 0, Qt::NoModifier, QString(c));
        QApplication::sendEvent(caja, &e);
    }
}

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
