#pragma once
// The window of ConexionesRamales: the shared branch-rows panel over its logic.

#include "catalogue/screens/VentanaBDConexiones.h"
#include "entry/ConexionesRamales.h"
#include "entry/screens/PanelFilasRamal.h"

class VentanaConexionesRamales : public VentanaFilasRamal<ConexionesRamales> {
    Q_OBJECT
public:
    VentanaConexionesRamales(ProyectoEdificio& p, Sesion& s, Dialogos& d, EditorRamales& editor,
              std::function<void()> refrescarEditor, QWidget* padre = nullptr)
        : VentanaFilasRamal(QStringLiteral("ConexionesRamales"), p, s, d, editor, std::move(refrescarEditor),
                            [&s, &d](ConexionesRamales& logica, QWidget* sobre) {
                                VentanaBDConexiones catalogo(s, d, &logica, sobre);
                                catalogo.exec();
                            },
                            padre) {}
};
