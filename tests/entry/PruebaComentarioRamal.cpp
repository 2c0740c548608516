// "Comentario del Ramal" on the sample "Vivienda con Tanque Elevado": the
// comment reaches the model, the file's row and the analysis grid at once.

#include "analysis/AnalisisRed.h"
#include "analysis/Numeracion.h"
#include "entry/ComentarioRamal.h"
#include "model/ArchivoEdificio.h"
#include "model/ProyectoEdificio.h"
#include "store/Conexion.h"
#include "support/Apoyo.h"

#include <QDir>

namespace {

const QString TituloAcueductos = QStringLiteral("Datos del Proyecto de Acueductos");

struct Comentario : ::testing::Test {
    SesionPrueba sp;
    ProyectoEdificio p;
    DialogosFalsos d;
    QString ruta;
    std::unique_ptr<AnalisisRed> analisis;
    void SetUp() override {
        QDir().mkpath(sp.Datos(QStringLiteral("Proyectos")));
        ruta = sp.CopiaDeEjemplo(QStringLiteral("Vivienda con Tanque Elevado.nivo"),
                                 QStringLiteral("Proyectos/vivienda.plm"));
        QString error;
        ASSERT_TRUE(CargarProyectoEdificio(p, sp.s, ruta, error)) << error.toStdString();
        VerificarNumeracion(p, d);
        analisis = std::make_unique<AnalisisRed>(p, sp.s, d);
        analisis->Cargar();
        sp.s.RamalActual = 8;
    }
    QString EnArchivo(int ramal) {
        Conexion c;
        EXPECT_TRUE(c.Abrir(ruta));
        Consulta q(c, QStringLiteral("SELECT Comentario FROM DatosRamales WHERE Numero=?"));
        q.Enlazar({Valor(ramal)});
        return q.Siguiente() ? ComoTexto(q.Columna(0)) : QStringLiteral("<sin fila>");
    }
};

}  // namespace

TEST_F(Comentario, AbreEnElRamalDeLaSesion) {
    ComentarioRamal c(p, sp.s, d, *analisis);
    c.Cargar();
    EXPECT_EQ(c.Panel(), QStringLiteral("8"));
    EXPECT_EQ(c.Texto(), QStringLiteral("Manguera del patio"));
    EXPECT_EQ(c.MaximoScroll(), 8);
}

TEST_F(Comentario, FijarEscribeEnLosTresSitiosSinSalvarElProyecto) {
    ComentarioRamal c(p, sp.s, d, *analisis);
    c.Cargar();
    c.CambiarTexto(QStringLiteral("  Llave de jardín  "));
    d.respuestas = {Respuesta::No, Respuesta::Si};
    c.Fijar();
    MensajeEs(d.Ultimo(), QStringLiteral("¿Fijar el Comentario Seleccionado del Ramal?"),
              QStringLiteral("Fijar Comentario al Ramal..."), TituloAcueductos);
    EXPECT_EQ(p.RamalComentario[8], QStringLiteral("Manguera del patio"));
    c.Fijar();
    const QString esperado = QStringLiteral("Llave de jardín");
    EXPECT_EQ(p.RamalComentario[8], esperado);
    EXPECT_EQ(analisis->Spread4.Texto(8, 9), esperado);
    EXPECT_EQ(EnArchivo(8), esperado);
    EXPECT_FALSE(sp.s.ProyectoModificado);

    d.respuestas = {Respuesta::Si};
    c.Quitar();
    MensajeEs(d.Ultimo(), QStringLiteral("¿Quitar el Comentario Seleccionado del Ramal?"),
              QStringLiteral("Quitar Comentario del Ramal..."), TituloAcueductos);
    EXPECT_EQ(c.Texto(), QString());
    EXPECT_EQ(EnArchivo(8), QString());
    EXPECT_EQ(analisis->Spread4.Texto(8, 9), QString());
}

TEST_F(Comentario, LaBarraGuardaLoCambiadoSalvoSoloMayusculas) {
    ComentarioRamal c(p, sp.s, d, *analisis);
    c.Cargar();
    c.CambiarTexto(QStringLiteral("MANGUERA DEL PATIO "));
    c.CambiarRamal(3);
    EXPECT_EQ(p.RamalComentario[8], QStringLiteral("Manguera del patio"));  // only the case differed
    EXPECT_EQ(EnArchivo(8), QStringLiteral("Manguera del patio"));
    EXPECT_EQ(sp.s.RamalActual, 3);
    EXPECT_EQ(analisis->Spread4.FilaActiva(), 3);
    EXPECT_EQ(analisis->Spread4.ColumnaActiva(), 9);
    EXPECT_EQ(c.Texto(), p.RamalComentario[3]);

    c.CambiarTexto(QStringLiteral("Fregadero"));
    c.CambiarRamal(4);
    EXPECT_EQ(EnArchivo(3), QStringLiteral("Fregadero"));
    // Enter saves only a changed box.
    c.Enter();
    EXPECT_EQ(EnArchivo(4), ComoTexto(Valor(p.RamalComentario[4])));
    c.CambiarTexto(QStringLiteral("Lavadora"));
    c.Enter();
    EXPECT_EQ(EnArchivo(4), QStringLiteral("Lavadora"));
    EXPECT_TRUE(d.mensajes.empty());
}
