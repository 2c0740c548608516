// "Conexiones en los Ramales del Proyecto": automatic and fixed fittings,
// over a blank project and the installed catalogue.

#include "ApoyoRamalesFilas.h"
#include "entry/ConexionesRamales.h"

namespace {

struct ConexionesPrueba : RamalesFilasPrueba {
    ConexionesRamales cr{p, s, d, editor};
    void SetUp() override {
        RamalesFilasPrueba::SetUp();
        cr.Cargar();
    }
    void Reservar(int n) {
        ASSERT_TRUE(cr.EditarRamales(s.RamalActual, 3, QString::number(n)));
        cr.Spread2.PonerActiva(1, 1);
    }
    bool Automatica(int f) const { return cr.Spread2.EstaBloqueada(f, 4) && cr.Spread2.Texto(f, 4) == QStringLiteral("Automático"); }
};

}  // namespace

TEST_F(ConexionesPrueba, BotonSinFilasNoDiceNiGuardaNada) {
    EXPECT_EQ(cr.Spread1.Encabezado(1, 3) + cr.Spread1.Encabezado(2, 3), QStringLiteral("No. deConex."));
    EXPECT_EQ(Escalar(s.ConexionProyecto, QStringLiteral("SELECT count(*) FROM ImgConexiones")), 14);
    cr.BotonRapido(5);
    EXPECT_TRUE(d.mensajes.empty());
    EXPECT_EQ(p.NConexiones[1], 0);
    EXPECT_FALSE(s.ProyectoModificado);
    EXPECT_FALSE(cr.Capturar({5, QStringLiteral("CODO DE 90 GRADOS"), 0, QImage()}));
}

TEST_F(ConexionesPrueba, ClaveDoceEsFijaAunConLongitudCero) {
    Reservar(2);
    d.textos = {QStringLiteral(" filtro ")};
    ASSERT_TRUE(cr.EditarFilas(1, 1, QStringLiteral("12")));
    EXPECT_EQ(d.preguntas.back(),
              QStringLiteral("Entre el Nombre del Sub-Ramal:|Nombre de la Conexión|LONGITUD EQUIVALENTE ESPECIAL"));
    EXPECT_FALSE(Automatica(1));
    EXPECT_EQ(p.ConexionNombre(1, 1), QStringLiteral("FILTRO"));
    EXPECT_FALSE(p.ConexionAutomatica(1, 1));
    EXPECT_DOUBLE_EQ(p.ConexionLongitud(1, 1), 0.0);
    // The same key twice, each with its own length; the catalogue keeps 0.
    cr.Spread2.PonerActiva(2, 1);
    d.textos = {QStringLiteral("valvula")};
    cr.BotonRapido(12);
    EXPECT_EQ(d.preguntas.back(),
              QStringLiteral("Clave (12)\n\n\n\n\nEntre el Nombre de la Conexión:|Longitud Equivalente|"));
    ASSERT_TRUE(cr.EditarFilas(2, 4, QStringLiteral("3.25")));
    EXPECT_DOUBLE_EQ(p.ConexionLongitud(1, 2), 3.25);
    EXPECT_DOUBLE_EQ(p.ConexionLongitud(1, 1), 0.0);
    EXPECT_EQ(Escalar(s.ConexionCatalogo, QStringLiteral("SELECT count(*) FROM Conexiones WHERE ClaveConexion=12 AND "
                                                         "LongitudEquivalente=0")),
              1);
    // Key 11 typed over the fixed row: "Automático", length 0.
    ASSERT_TRUE(cr.EditarFilas(2, 1, QStringLiteral("11")));
    EXPECT_TRUE(Automatica(2));
    EXPECT_TRUE(p.ConexionAutomatica(1, 2));
    EXPECT_DOUBLE_EQ(p.ConexionLongitud(1, 2), 0.0);
    EXPECT_EQ(p.ConexionNombre(1, 2), QStringLiteral("TEE NORMAL (FLUJO INVERTIDO)"));
    EXPECT_FALSE(cr.EditarFilas(2, 4, QStringLiteral("1")));  // locked
}

TEST_F(ConexionesPrueba, FilasAntiguasMenoresDeDoceSalenAutomaticas) {
    p.NConexiones[2] = 2;
    p.ConexionClave(2, 1) = 5;
    p.ConexionNombre(2, 1) = QStringLiteral("CODO DE 90 GRADOS");
    p.ConexionLongitud(2, 1) = 1.5;
    p.ConexionCantidad(2, 1) = 2;
    p.ConexionClave(2, 2) = 13;
    p.ConexionLongitud(2, 2) = 5;
    p.ConexionCantidad(2, 2) = 1;
    cr.Filas().CambiarRamal(2);
    EXPECT_TRUE(Automatica(1));
    EXPECT_EQ(cr.Spread2.Texto(2, 4), QStringLiteral("5.00"));
    cr.SalvarRamal();
    EXPECT_TRUE(p.ConexionAutomatica(2, 1));
    EXPECT_DOUBLE_EQ(p.ConexionLongitud(2, 1), 0.0);
    EXPECT_EQ(p.ConexionCantidad(2, 1), 2);
    EXPECT_FALSE(p.ConexionAutomatica(2, 2));
    EXPECT_DOUBLE_EQ(p.ConexionLongitud(2, 2), 5.0);
}

TEST_F(ConexionesPrueba, MensajesDeLasConexiones) {
    Reservar(2);
    ASSERT_FALSE(cr.EditarFilas(1, 1, QStringLiteral("40")));
    MensajeEs(d.Ultimo(), QStringLiteral("Esta Clave no Existe en la Base de Datos...\nClave: ( 40 )\n"),
              QStringLiteral("Base de Datos Conexiones..."));
    s.ConexionCatalogo.Ejecutar(QStringLiteral("DELETE FROM Conexiones WHERE ClaveConexion=10"));
    LeerCatalogoConexiones(s);
    cr.BotonRapido(10);
    MensajeEs(d.Ultimo(), QStringLiteral("Esta Clave no Existe en la Base de Datos...\nClave: ( 10 )\n"),
              QStringLiteral("Base de Datos de Conexiones..."));
    cr.BotonRapido(3);
    EXPECT_EQ(cr.Spread2.FilaActiva(), 2);
    cr.Spread2.PonerActiva(1, 1);
    d.respuestas = {0};
    cr.BotonRapido(5);
    MensajeEs(d.Ultimo(), QStringLiteral("Reemplazar: LLAVE DE COMPUERTA ABIERTA\nPor la Conexión: CODO DE 90 GRADOS?"),
              QStringLiteral("Reemplazar Conexiones..."));
    d.respuestas = {1};
    EXPECT_TRUE(cr.Capturar({13, QStringLiteral("MEDIDOR DE AGUA"), 5.0, QImage()}));
    MensajeEs(d.Ultimo(), QStringLiteral("¿Reemplazar: LLAVE DE COMPUERTA ABIERTA\nPor la Conexión: MEDIDOR DE AGUA?"),
              QStringLiteral("Capturar Conexiones..."));
    EXPECT_EQ(p.ConexionCantidad(1, 1), 1);
    EXPECT_DOUBLE_EQ(p.ConexionLongitud(1, 1), 5.0);

    cr.Spread2.PonerActiva(1, 1);
    d.respuestas = {0};
    cr.Eliminar();
    MensajeEs(d.Ultimo(), QStringLiteral("Clave de la Conexion = 13\nMEDIDOR DE AGUA\n¿Eliminar la Conexión Seleccionada?"),
              QStringLiteral("Eliminar Conexión en Ramales..."));
    EXPECT_EQ(p.NConexiones[1], 2);
    cr.Spread2.PonerActiva(2, 1);
    d.mensajes.clear();
    cr.Eliminar();  // an empty position goes without a question
    EXPECT_TRUE(d.mensajes.empty());
    EXPECT_EQ(p.NConexiones[1], 1);
    d.respuestas = {0};
    cr.EliminarTodas();
    MensajeEs(d.Ultimo(), QStringLiteral("Ramal Seleccionado-> ( 1 )\n¿Eliminar Todas las Conexiones del Ramal Seleccionado?"),
              QStringLiteral("Eliminar Conexiones del Ramal..."));
    d.respuestas = {0};
    cr.ActualizarImagenes();
    MensajeEs(d.Ultimo(), QStringLiteral("¿Actualizar las Imagenes de las Conexiones con las de la Base de Datos?"),
              QStringLiteral("Actualizar las Imagenes..."));
}

TEST(ConexionesAspecto, BotonesRapidosYTips) {
    const auto& a = ConexionesRamales::Aspecto();
    ASSERT_EQ(a.rapidos.size(), 5u);
    EXPECT_EQ(a.rapidos[4].clave, 12);
    EXPECT_EQ(a.rapidos[4].tip, QStringLiteral("Anexar longitud equivalente de \nuna conexión especial. "));
    EXPECT_EQ(a.eliminar.tip, QStringLiteral("Elimina la pieza de Coneción seleccionada. "));
    EXPECT_EQ(a.baja.tip, QStringLiteral("Ir la siguiente ramal. "));
    EXPECT_EQ(a.titulo, QStringLiteral("Conexiones en los Ramales del Proyecto"));
}
