#include "Apoyo.h"
#include "catalogue/Catalogo.h"
#include "images/Imagen.h"

#include <QFile>
#include <QPainter>
#include <gtest/gtest.h>

namespace {

struct CatalogoPrueba : ::testing::Test {
    SesionPrueba sp;
    void SetUp() override {
        const QString cat = sp.CopiaDeEjemplo(QStringLiteral("BDPiezasConexiones.nivo"), QStringLiteral("cat.mdb"));
        ASSERT_EQ(AbrirConexion(sp.s.ConexionCatalogo, cat), 0);
        sp.s.ArchivoProyecto = sp.ProyectoEnBlanco();
        ASSERT_EQ(AbrirConexionProyecto(sp.s), 0);
    }
    long long Filas(const QString& sql) { return ComoEntero(sp.s.ConexionProyecto.Escalar(sql)); }
};

}  // namespace

TEST_F(CatalogoPrueba, RegistrosDeSesionOrdenadosPorClave) {
    ASSERT_TRUE(LeerCatalogoPiezas(sp.s));
    EXPECT_EQ(sp.s.RsPiezas.RecordCount(), 21);
    EXPECT_EQ(ComoEntero(sp.s.RsPiezas.Campo(QStringLiteral("ClavePieza"))), 1);
    ASSERT_EQ(BuscarClave(sp.s.RsPiezas, QStringLiteral("ClavePieza=17")), 1);
    EXPECT_EQ(ComoTexto(sp.s.RsPiezas.Campo(QStringLiteral("NombrePieza"))),
              QStringLiteral("CUARTO DE BAÑO CON EXCUSADO DE VÁLVULA"));
    EXPECT_DOUBLE_EQ(ComoDoble(sp.s.RsPiezas.Campo(ColumnaUnidades(3))), 10.0);
    ASSERT_TRUE(LeerCatalogoConexiones(sp.s));
    ASSERT_EQ(BuscarClave(sp.s.RsConexiones, QStringLiteral("ClaveConexion=13")), 1);
    EXPECT_DOUBLE_EQ(ComoDoble(sp.s.RsConexiones.Campo(QStringLiteral("LongitudEquivalente"))), 5.0);
    EXPECT_FALSE(ComoLogico(sp.s.RsConexiones.Campo(QStringLiteral("Automatico"))));
    EXPECT_EQ(ColumnaUnidades(0), QStringLiteral("PrivadoTotal"));
    EXPECT_EQ(ColumnaUnidades(1), QStringLiteral("PrivadoFriaCaliente"));
    EXPECT_EQ(ColumnaUnidades(2), QStringLiteral("PublicoTotal"));
}

TEST_F(CatalogoPrueba, EspejoAutomaticoSoloConLaTablaVacia) {
    EXPECT_TRUE(VerifiqueImagenesProyecto(sp.s, TablaImagenes::Piezas));
    EXPECT_EQ(Filas(QStringLiteral("SELECT count(*) FROM ImgPiezas WHERE Foto IS NOT NULL")), 21);
    // A changed catalogue does not reach a project that has its images...
    sp.s.ConexionCatalogo.Ejecutar(QStringLiteral("UPDATE Piezas SET Foto=NULL, ExisteFoto=NULL WHERE ClavePieza=4"));
    EXPECT_FALSE(VerifiqueImagenesProyecto(sp.s, TablaImagenes::Piezas));
    EXPECT_EQ(Filas(QStringLiteral("SELECT count(*) FROM ImgPiezas WHERE Foto IS NOT NULL")), 21);
    // ...until the refresh is asked for; nulls are copied as they stand.
    EXPECT_TRUE(ActualizarImagenesProyecto(sp.s, TablaImagenes::Piezas));
    EXPECT_EQ(Filas(QStringLiteral("SELECT count(*) FROM ImgPiezas WHERE Foto IS NOT NULL")), 20);
    EXPECT_EQ(Filas(QStringLiteral("SELECT count(*) FROM ImgPiezas WHERE Clave=4 AND ExisteFoto IS NULL")), 1);
    EXPECT_TRUE(VerifiqueImagenesProyecto(sp.s, TablaImagenes::Conexiones));
    EXPECT_EQ(Filas(QStringLiteral("SELECT count(*) FROM ImgConexiones")), 14);
}

TEST_F(CatalogoPrueba, CatalogoVacioDejaLaTablaDelProyectoComoEstaba) {
    ASSERT_TRUE(VerifiqueImagenesProyecto(sp.s, TablaImagenes::Conexiones));
    sp.s.ConexionCatalogo.Ejecutar(QStringLiteral("DELETE FROM Conexiones"));
    EXPECT_FALSE(ActualizarImagenesProyecto(sp.s, TablaImagenes::Conexiones));
    EXPECT_EQ(Filas(QStringLiteral("SELECT count(*) FROM ImgConexiones")), 14);
}

TEST(Imagen, GuardarYLeerEnLaColumnaFoto) {
    SesionPrueba sp;
    Conexion c;
    ASSERT_EQ(AbrirConexion(c, sp.ProyectoEnBlanco()), 0);
    QImage img(40, 30, QImage::Format_RGB32);
    img.fill(Qt::white);
    QPainter(&img).fillRect(QRect(5, 5, 10, 10), QColor(200, 30, 40));
    Registros rs;
    ASSERT_EQ(AbrirTabla(c, rs, QStringLiteral("ImgPiezas")), 0);
    rs.AddNew();
    rs.Poner(QStringLiteral("Clave"), 1);
    ASSERT_TRUE(GuardarImagen(rs, img));
    rs.Poner(QStringLiteral("ExisteFoto"), Logico(true));
    ASSERT_TRUE(rs.Update());
    rs.Close();

    ASSERT_EQ(AbrirTabla(c, rs, QStringLiteral("ImgPiezas")), 0);
    // Stored as a Windows bitmap.
    EXPECT_TRUE(rs.Campo(QStringLiteral("Foto")).toByteArray().startsWith("BM"));
    QImage leida;
    ASSERT_TRUE(LeerImagen(rs, leida));
    EXPECT_EQ(leida.size(), img.size());
    EXPECT_EQ(QColor(leida.pixel(7, 7)), QColor(200, 30, 40));
    EXPECT_EQ(QColor(leida.pixel(30, 20)), QColor(Qt::white));

    // A row with no picture, or bytes that are no picture, leave the target as it was.
    rs.Poner(QStringLiteral("Foto"), QByteArray("no es una imagen"));
    EXPECT_FALSE(LeerImagen(rs, leida));
    rs.Poner(QStringLiteral("Foto"), Nulo());
    EXPECT_FALSE(LeerImagen(rs, leida));
    EXPECT_EQ(leida.size(), img.size());
}
