#pragma once
// Screen tests: act on the next modal window from inside its loop, read and
// answer the program's message box, press keys and type into boxes.

#include "shell/screens/VentanaMsgBox.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

// Runs `f` on the next modal window of type T, from inside its loop.
template <class T, class F>
void CuandoAbra(F f) {
    QTimer::singleShot(0, [f] {
        auto* w = qobject_cast<T*>(QApplication::activeModalWidget());
        ASSERT_NE(w, nullptr);
        f(w);
    });
}

// What a message box showed.
struct MensajeVisto {
    QString texto, encabezado, titulo;
};

// The next message box not yet answered: its texts are kept and its button
// `boton` (0..2: Button1..Button3) is pressed.  Several answers may wait at
// once: each takes a box in turn.
inline void Contestar(MensajeVisto& visto, int boton, int intentos = 100) {
    QTimer::singleShot(intentos == 100 ? 0 : 10, [&visto, boton, intentos] {
        auto* caja = qobject_cast<VentanaMsgBox*>(QApplication::activeModalWidget());
        if ((!caja || caja->property("contestada").toBool()) && intentos > 0) {
            Contestar(visto, boton, intentos - 1);
            return;
        }
        ASSERT_NE(caja, nullptr);
        caja->setProperty("contestada", true);
        visto.texto = caja->findChild<QLabel*>(QStringLiteral("Label2"))->text();
        visto.encabezado = caja->findChild<QLabel*>(QStringLiteral("Label1"))->text();
        visto.titulo = caja->windowTitle();
        caja->Boton(boton)->click();
    });
}

inline void Tecla(QWidget* w, int tecla) {
    QKeyEvent e(QEvent::KeyPress, tecla, Qt::NoModifier);
    QApplication::sendEvent(w, &e);
}

// Types a text into a box as the keyboard would, replacing what it held.
inline void Escribir(QLineEdit* caja, const QString& texto) {
    caja->setFocus();
    caja->selectAll();
    caja->del();
    for (const QChar c : texto) {
        QKeyEvent e(QEvent::KeyPress, 0, Qt::NoModifier, QString(c));
        QApplication::sendEvent(caja, &e);
    }
}

// Types into a grid view as a person does, key by key: each key goes to the
// cell editor when one is open, else to the view, which opens one; '\n' is
// Enter.  What the keys set going runs between them.
inline void TeclearEnVista(QAbstractItemView* v, const QString& texto) {
    for (const QChar c : texto) {
        QWidget* destino = v;
        for (QLineEdit* e : v->viewport()->findChildren<QLineEdit*>())
            if (e->isVisible()) destino = e;
        if (c == QLatin1Char('\n'))
            QTest::keyClick(destino, Qt::Key_Return);
        else
            QTest::keyClick(destino, c.toLatin1());
        for (int i = 0; i < 3; ++i) QApplication::processEvents();
    }
}
