#pragma once
// Support of the aqueduct screen tests: a session with its Redes folder, the
// samples loaded as the commands load them, the real message box answered
// from inside its loop, and typing into a grid through its editor.

#include "aqueduct/ArchivoAcueducto.h"
#include "aqueduct/ProyectoAcueducto.h"
#include "shell/EsperaModal.h"
#include "shell/screens/DialogosQt.h"
#include "support/Apoyo.h"
#include "widgets/VistaGrid.h"

#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <gtest/gtest.h>

// What a message box showed.
struct CajaVista {
    QString texto, encabezado, titulo;
};

// The next message box: its texts are kept and the button `boton`
// (0..2: Button1..Button3) is pressed.  Several answers may wait at once:
// each takes a box not yet answered, in turn.
inline void Contestar(CajaVista& vista, int boton, int intentos = 100) {
    QTimer::singleShot(intentos == 100 ? 0 : 10, [&vista, boton, intentos] {
        auto* caja = qobject_cast<frmMsgBox*>(QApplication::activeModalWidget());
        if ((!caja || caja->property("contestada").toBool()) && intentos > 0) {
            Contestar(vista, boton, intentos - 1);
            return;
        }
        ASSERT_NE(caja, nullptr);
        caja->setProperty("contestada", true);
        vista.texto = caja->findChild<QLabel*>(QStringLiteral("Label2"))->text();
        vista.encabezado = caja->findChild<QLabel*>(QStringLiteral("Label1"))->text();
        vista.titulo = caja->windowTitle();
        caja->Boton(boton)->click();
    });
}

// Acts on the next modal dialog of type T from inside its loop.
template <typename T>
void CuandoAparezcaDialogo(std::function<void(T*)> f) {
    QTimer::singleShot(0, [f] {
        auto* d = qobject_cast<T*>(QApplication::activeModalWidget());
        ASSERT_NE(d, nullptr);
        f(d);
    });
}

// Lets the queued reports of the grids and the screens run.
inline void Procesar() {
    for (int i = 0; i < 3; ++i) QApplication::processEvents();
}

// The cell editor now open (a closed one waits hidden for its deletion).
inline QLineEdit* EditorAbierto(VistaGrid* v) {
    for (QLineEdit* e : v->viewport()->findChildren<QLineEdit*>())
        if (e->isVisible()) return e;
    return nullptr;
}

// Types `texto` into cell (fila, columna) of a grid view through the cell's
// own editor and leaves the editor open, as a person who has not yet left
// the cell.
inline void Escribir(VistaGrid* v, int fila, int columna, const QString& texto) {
    const QModelIndex i = v->model()->index(fila - 1, columna - 1);
    v->setCurrentIndex(i);
    v->edit(i);
    QLineEdit* editor = EditorAbierto(v);
    ASSERT_NE(editor, nullptr) << "no editor at " << fila << "," << columna;
    editor->setText(texto);
}

// Types and leaves the cell: the value is committed, its report still waits
// for the event loop.
inline void EscribirYSalir(VistaGrid* v, int fila, int columna, const QString& texto) {
    v->model()->setData(v->model()->index(fila - 1, columna - 1), texto, Qt::EditRole);
}

struct PantallaACU : ::testing::Test {
    SesionPrueba sp;
    Sesion& s = sp.s;
    DialogosFalsos falsos;
    DialogosQt qt;
    ProyectoAcueducto p;
    QString ruta;

    void SetUp() override { QDir().mkpath(sp.Datos(QStringLiteral("Redes"))); }

    // A sample copied into Redes/ and loaded as the commands load it.
    void Cargar(const char* ejemplo) {
        ruta = sp.CopiaDeEjemplo(QString::fromLatin1(ejemplo) + QStringLiteral(".nivo"),
                                 QStringLiteral("Redes/") + QString::fromLatin1(ejemplo) + QStringLiteral(".acu"));
        QString error;
        ASSERT_TRUE(CargarProyectoACU(p, s, ruta, error)) << error.toStdString();
    }
    // The file as the next command would read it.
    ProyectoAcueducto Releer() const {
        ProyectoAcueducto r;
        Sesion otra;
        otra.DirectorioDatos = s.DirectorioDatos;
        otra.RutaPrograma = s.RutaPrograma;
        QString error;
        EXPECT_TRUE(CargarProyectoACU(r, otra, ruta, error)) << error.toStdString();
        return r;
    }
    // Writes the model to the file, for samples changed by a test.
    void Guardar() {
        QString error;
        ASSERT_TRUE(SalvarProyectoACU(p, s, error)) << error.toStdString();
    }
};
