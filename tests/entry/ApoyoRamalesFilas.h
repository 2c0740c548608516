#pragma once
// The fixture and fitting screens over a blank project of three branches,
// the installed catalogue and a branch editor that only records where its
// cursor was sent.

#include "Apoyo.h"
#include "entry/EditorRamales.h"
#include "model/ProyectoEdificio.h"

#include <utility>
#include <vector>

struct EditorFalso : EditorRamales {
    std::vector<std::pair<int, int>> idas;
    void IrARamal(int ramal, int columna) override { idas.push_back({ramal, columna}); }
    QString TextoRamal(int, int) const override { return {}; }
    void FijarLongitud(int, double) override {}
    void ColoqueRamales() override {}
};

struct RamalesFilasPrueba : ::testing::Test {
    SesionPrueba sp;
    Sesion& s = sp.s;
    DialogosFalsos d;
    EditorFalso editor;
    ProyectoEdificio p;

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
