#pragma once
// The fixture and fitting screens over a blank project of three branches,
// the installed catalogue and the branch editor of the tests.

#include "Apoyo.h"
#include "entry/RamalesDePrueba.h"
#include "model/ProyectoEdificio.h"

struct RamalesFilasPrueba : ::testing::Test {
    SesionPrueba sp;
    Sesion& s = sp.s;
    DialogosFalsos d;
    ProyectoEdificio p;
    EditorDePrueba editor{p};

    void SetUp() override {
        const QString cat = sp.CopiaDeEjemplo(QStringLiteral("BDPiezasConexiones.nivo"), QStringLiteral("cat.mdb"));
        ASSERT_EQ(AbrirConexion(s.ConexionCatalogo, cat), 0);
        s.ArchivoProyecto = sp.ProyectoEnBlanco();
        s.NombreProyecto = QStringLiteral("casa.plm");
        ASSERT_EQ(AbrirConexionProyecto(s), 0);
        p.DimensionarRamales(3);
        p.NumeroRamales = 3;
        for (int r = 1; r <= 3; ++r) {
            p.NodoI[r] = QStringLiteral("N%1").arg(r);
            p.Nodoj[r] = QStringLiteral("N%1").arg(r + 1);
        }
        s.RamalActual = 1;
    }
    long long Escalar(Conexion& c, const QString& sql) { return ComoEntero(c.Escalar(sql)); }
};
