#pragma once
// Helpers for screen tests: act on a modal box from inside its loop, and
// send a key to a widget.

#include "shell/screens/frmMsgBox.h"

#include <QApplication>
#include <QKeyEvent>
#include <QTimer>
#include <functional>
#include <gtest/gtest.h>

inline void CuandoAparezca(std::function<void(frmMsgBox*)> f) {
    QTimer::singleShot(0, [f] {
        auto* caja = qobject_cast<frmMsgBox*>(QApplication::activeModalWidget());
        ASSERT_NE(caja, nullptr);
        f(caja);
    });
}

inline void Tecla(QWidget* w, int tecla) {
    QKeyEvent e(QEvent::KeyPress, tecla, Qt::NoModifier);
    QApplication::sendEvent(w, &e);
}
