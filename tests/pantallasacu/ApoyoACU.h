#pragma once
// Support of the aqueduct screen tests: a session with its Redes folder, the
// samples loaded as the commands load them, and typing into a grid through
// its editor.

#include "aqueduct/ArchivoAcueducto.h"
#include "aqueduct/ProyectoAcueducto.h"
#include "shell/screens/DialogosQt.h"
#include "support/Apoyo.h"
#include "support/Modales.h"
#include "widgets/VistaGrid.h"

#include <QDir>

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
