#pragma once
// The logic of the screen ResultadosHidro: it sizes the tank at its load and
// shows the seven values in "#,##0.00" and the percentages.

#include "tank/Hidroneumatico.h"

#include <QStringList>

struct ResultadosHidro {
    explicit ResultadosHidro(const DatosTanque& datos);
    ResultadoTanque Resultado;
    QString Marco;            // the frame's caption: the method title
    QStringList Valores;      // QB, VolumenTotal, VolumenMinimo, VolumenUtil, VolumenMaximo, PotenciaBomba, PotenciaMotor
    QString PorcentajeMinimo = QStringLiteral("10%");
    QString PorcentajeUtil, PorcentajeMaximo;
    static QStringList Etiquetas();
};
