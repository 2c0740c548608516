#pragma once
// A small building project written to a file through the project save:
// a main branch and two branches off its end node.

#include "model/ArchivoEdificio.h"
#include "model/ProyectoEdificio.h"
#include "support/Apoyo.h"

#include <gtest/gtest.h>

inline QString ProyectoMuestra(SesionPrueba& sp, const QString& relativa) {
    const QString ruta = sp.ProyectoEnBlanco(relativa);
    ProyectoEdificio p;
    ValoresIniciales(p, sp.s);
    p.Proyecto = QStringLiteral("Casa de prueba");
    p.NumeroRamales = 3;
    p.DimensionarRamales(3);
    const char* nodos[3][2] = {{"A", "B"}, {"B", "C"}, {"B", "D"}};
    for (int i = 1; i <= 3; ++i) {
        p.NodoI[i] = QString::fromLatin1(nodos[i - 1][0]);
        p.Nodoj[i] = QString::fromLatin1(nodos[i - 1][1]);
        p.longitudReal[i] = 2.5 * i;
    }
    p.DimensionarNodos(4);
    const QString anterior = sp.s.ArchivoProyecto;
    sp.s.ArchivoProyecto = ruta;
    QString error;
    EXPECT_TRUE(SalvarProyecto(p, sp.s, error)) << error.toStdString();
    sp.s.ConexionProyecto.Cerrar();
    sp.s.ArchivoProyecto = anterior;
    return ruta;
}
