#pragma once
// The window of PiezasRamales: the shared branch-rows panel over its logic.

#include "catalogue/screens/VentanaBDPiezas.h"
#include "entry/PiezasRamales.h"
#include "entry/screens/PanelFilasRamal.h"

class VentanaPiezasRamales : public VentanaFilasRamal<PiezasRamales> {
    Q_OBJECT
public:
    VentanaPiezasRamales(ProyectoEdificio& p, Sesion& s, Dialogos& d, EditorRamales& editor,
              std::function<void()> refrescarEditor, QWidget* padre = nullptr)
        : VentanaFilasRamal(QStringLiteral("PiezasRamales"), p, s, d, editor, std::move(refrescarEditor),
                            [&s, &d](PiezasRamales& logica, QWidget* sobre) {
                                VentanaBDPiezas catalogo(s, d, &logica, sobre);
                                catalogo.exec();
                            },
                            padre) {}
};
