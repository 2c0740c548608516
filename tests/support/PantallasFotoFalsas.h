#pragma once
// The photograph screens answered from a script: each call is recorded, and
// the next scripted picture (or a cancel, when none is left) is the answer.

#include "images/PantallasFoto.h"

#include <QImage>
#include <QStringList>
#include <deque>
#include <vector>

class PantallasFotoFalsas : public PantallasFoto {
public:
    std::deque<QImage> capturas, vistas, efectos;  // answers; a null image is a cancel
    QStringList llamadas;                          // "Capturar", "Visualizar"...
    std::vector<QImage> exportadas;

    bool CapturarImagen(QImage& imagen, bool registroConImagen) override {
        llamadas << (registroConImagen ? QStringLiteral("Capturar con imagen") : QStringLiteral("Capturar"));
        return Tomar(capturas, imagen);
    }
    bool VisualizarImagen(QImage& imagen) override {
        llamadas << QStringLiteral("Visualizar");
        return Tomar(vistas, imagen);
    }
    bool EfectosImagen(QImage& imagen) override {
        llamadas << QStringLiteral("Efectos");
        return Tomar(efectos, imagen);
    }
    void ExportarImagen(const QImage& imagen) override {
        llamadas << QStringLiteral("Exportar");
        exportadas.push_back(imagen);
    }

private:
    static bool Tomar(std::deque<QImage>& cola, QImage& imagen) {
        if (cola.empty()) return false;
        QImage siguiente = cola.front();
        cola.pop_front();
        if (siguiente.isNull()) return false;
        imagen = siguiente;
        return true;
    }
};
