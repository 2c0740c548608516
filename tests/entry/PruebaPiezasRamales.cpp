// "Piezas Sanitarias en los Ramales" over a blank project and the installed
// catalogue; units from the factory catalogue's table.

#include "ApoyoRamalesFilas.h"
#include "entry/PiezasRamales.h"
#include "images/Imagen.h"

namespace {

struct PiezasPrueba : RamalesFilasPrueba {
    PiezasRamales pr{p, s, d, editor};
    void SetUp() override {
        RamalesFilasPrueba::SetUp();
        pr.Cargar();
    }
    // Reserves n rows on the current branch and puts the cursor on row 1.
    void Reservar(int n) {
        ASSERT_TRUE(pr.EditarRamales(s.RamalActual, 3, QString::number(n)));
        pr.Spread2.PonerActiva(1, 1);
    }
    const QString Titulo = QStringLiteral("Proyecto de Fontaria");
};

}  // namespace

TEST_F(PiezasPrueba, CargaSinCambiarElProyecto) {
    EXPECT_EQ(pr.Filas().Caption(), QStringLiteral("NIVO-FONTARIA 2024   PROYECTO: [CASA.PLM ]"));
    EXPECT_TRUE(s.CatalogoDesdeProyecto);
    EXPECT_FALSE(s.ProyectoModificado);  // the image mirror is no edit
    EXPECT_EQ(Escalar(s.ConexionProyecto, QStringLiteral("SELECT count(*) FROM ImgPiezas")), 21);
    EXPECT_EQ(pr.Spread1.Filas(), 3);
    EXPECT_EQ(pr.Spread1.Texto(2, 1), QStringLiteral("N2"));
    EXPECT_EQ(pr.Spread1.Encabezado(1, 3) + pr.Spread1.Encabezado(2, 3), QStringLiteral("No dePiezas"));
    EXPECT_EQ(pr.Filas().EtiquetaRamal(), QStringLiteral("Ramal 1"));
    pr.Cerrar();
    EXPECT_FALSE(s.CatalogoDesdeProyecto);
    EXPECT_FALSE(s.RsPiezas.Abierto());
}

TEST_F(PiezasPrueba, CuentaDePosiciones) {
    ASSERT_TRUE(pr.EditarRamales(1, 3, QStringLiteral("25")));  // capped at 20
    EXPECT_EQ(pr.Spread1.Texto(1, 3), QStringLiteral("20"));
    EXPECT_EQ(pr.Spread2.Filas(), 20);
    EXPECT_EQ(p.NPiezas[1], 20);
    EXPECT_TRUE(s.ProyectoModificado);
    ASSERT_TRUE(pr.EditarRamales(1, 3, QStringLiteral("0")));
    EXPECT_EQ(pr.Spread1.Texto(1, 3), QString());
    EXPECT_EQ(p.NPiezas[1], 0);
    // Another branch's cell takes the branch there.
    ASSERT_TRUE(pr.EditarRamales(2, 3, QStringLiteral("2")));
    EXPECT_EQ(s.RamalActual, 2);
    EXPECT_EQ(editor.llamadas.back(), QStringLiteral("IrARamal 2 3"));
    EXPECT_FALSE(pr.EditarRamales(2, 3, QStringLiteral("dos")));
    EXPECT_EQ(d.Ultimo().encabezado, QStringLiteral("Error en el Número..."));
    EXPECT_EQ(p.NPiezas[2], 2);
}

TEST_F(PiezasPrueba, BajarLaCuentaOlvidaLasFilasYSubirlaDaPosicionesVacias) {
    Reservar(5);
    for (int k : {1, 2, 3, 4, 5}) pr.BotonRapido(k);
    EXPECT_EQ(p.PiezaClave(1, 5), 5);
    ASSERT_TRUE(pr.EditarRamales(1, 3, QStringLiteral("3")));
    EXPECT_EQ(p.PiezaClave(1, 4), 0);
    EXPECT_EQ(p.PiezaNombre(1, 5), QString());
    ASSERT_TRUE(pr.EditarRamales(1, 3, QStringLiteral("5")));
    EXPECT_EQ(pr.Spread2.Texto(4, 1), QString());
    EXPECT_EQ(p.NPiezas[1], 5);
    EXPECT_EQ(p.PiezaClave(1, 3), 3);
}

TEST_F(PiezasPrueba, BotonesRapidosLlenanLasFilasEnOrden) {
    pr.BotonRapido(1);  // no row reserved
    MensajeEs(d.Ultimo(), QStringLiteral("¡Debe Insertar el Espacio de la Pieza Sanitaria!"),
              QStringLiteral("Fijar la Pieza Sanitaria..."));
    EXPECT_EQ(p.NPiezas[1], 0);
    Reservar(2);
    pr.BotonRapido(1);
    pr.BotonRapido(10);
    pr.BotonRapido(4);  // last row: the cursor stays, so this asks to replace
    EXPECT_EQ(d.Ultimo().texto, QStringLiteral("Reemplazar la Pieza Sanitaria: LAVAMANOS\nPor la Pieza: DUCHA?"));
    EXPECT_EQ(p.PiezaClave(1, 1), 1);
    EXPECT_EQ(p.PiezaNombre(1, 1), QStringLiteral("BAÑERA"));
    EXPECT_DOUBLE_EQ(p.PiezaUnidades(1, 1), 2.0);  // PrivadoTotal of BAÑERA
    EXPECT_EQ(p.PiezaCantidad(1, 1), 1);
    EXPECT_EQ(p.PiezaClave(1, 2), 10);
    EXPECT_TRUE(pr.Spread2.TieneImagen(1, 2));
    // The same key still asks; "No" keeps the row.
    pr.Spread2.PonerActiva(1, 1);
    d.respuestas = {0};
    pr.BotonRapido(1);
    MensajeEs(d.Ultimo(), QStringLiteral("Reemplazar la Pieza Sanitaria: BAÑERA\nPor la Pieza: BAÑERA?"),
              QStringLiteral("Piezas Sanitarias..."));
    EXPECT_EQ(pr.Spread2.FilaActiva(), 1);
}

TEST_F(PiezasPrueba, UnidadesSegunOpcionUsoPiezas) {
    // BIDET in the factory catalogue: 1, 0.75, 2, 1.5.
    const double esperadas[4] = {1.0, 0.75, 2.0, 1.5};
    Reservar(4);
    for (int opcion = 0; opcion < 4; ++opcion) {
        p.OpcionUsoPiezas = uint8_t(opcion);
        ASSERT_TRUE(pr.EditarFilas(opcion + 1, 1, QStringLiteral("3")));
    }
    for (int f = 1; f <= 4; ++f) EXPECT_DOUBLE_EQ(p.PiezaUnidades(1, f), esperadas[f - 1]) << f;
    EXPECT_EQ(pr.Spread2.Texto(2, 4), QStringLiteral("0.75"));
}

TEST_F(PiezasPrueba, UnidadesTecleadasDuranHastaQueSeTecleaLaClave) {
    Reservar(1);
    ASSERT_TRUE(pr.EditarFilas(1, 1, QStringLiteral("6")));
    ASSERT_TRUE(pr.EditarFilas(1, 4, QStringLiteral("7.5")));
    ASSERT_TRUE(pr.EditarFilas(1, 5, QStringLiteral("4")));
    p.OpcionUsoPiezas = 2;
    pr.Filas().CambiarRamal(2);
    pr.Filas().CambiarRamal(1);
    EXPECT_EQ(pr.Spread2.Texto(1, 4), QStringLiteral("7.50"));
    EXPECT_EQ(p.PiezaCantidad(1, 1), 4);
    ASSERT_TRUE(pr.EditarFilas(1, 1, QStringLiteral("6")));
    EXPECT_DOUBLE_EQ(p.PiezaUnidades(1, 1), 10.0);  // PublicoTotal of EXCUSADO DE VÁLVULA
    EXPECT_EQ(p.PiezaCantidad(1, 1), 1);
    // A quantity beyond 16 bits is refused, not wrapped.
    EXPECT_FALSE(pr.EditarFilas(1, 5, QStringLiteral("40000")));
    EXPECT_EQ(d.Ultimo().texto, QStringLiteral("La cantidad es un número entero de 0 a 32,767: \"40000\" pasa de ese límite."));
    EXPECT_EQ(p.PiezaCantidad(1, 1), 1);
    EXPECT_FALSE(pr.EditarFilas(1, 4, QStringLiteral("-2")));
    MensajeEs(d.Ultimo(), QStringLiteral("El número no puede ser negativo: \"-2\"."), QStringLiteral("Error en el Número..."));
    EXPECT_FALSE(pr.EditarRamales(1, 3, QStringLiteral("-1")));
    EXPECT_EQ(p.NPiezas[1], 1);
    EXPECT_EQ(pr.Spread1.Texto(1, 3), QStringLiteral("1"));
}

// Units typed with each country's marks; what the cell shows reads back as
// the same number.
TEST_F(PiezasPrueba, UnidadesConLasMarcasDelPais) {
    Reservar(1);
    ASSERT_TRUE(pr.EditarFilas(1, 1, QStringLiteral("6")));
    const std::tuple<const char*, const char*, double> casos[] = {
        {"es_ES", "2,5", 2.5}, {"es_MX", "2.5", 2.5}, {"es_VE", "1.002,25", 1002.25}, {"es_AR", "0,75", 0.75},
        {"es_CO", "3,5", 3.5}, {"C", "1,250.5", 1250.5}};
    for (const auto& [locale, texto, valor] : casos) {
        const MarcasPrueba marcas(locale);
        ASSERT_TRUE(pr.EditarFilas(1, 4, QString::fromUtf8(texto))) << locale;
        EXPECT_DOUBLE_EQ(p.PiezaUnidades(1, 1), valor) << locale;
        ASSERT_TRUE(pr.EditarFilas(1, 4, pr.Spread2.Texto(1, 4))) << locale;
        EXPECT_DOUBLE_EQ(p.PiezaUnidades(1, 1), valor) << locale;
    }
}

TEST_F(PiezasPrueba, ClavesTecleadas) {
    Reservar(3);
    ASSERT_FALSE(pr.EditarFilas(1, 1, QStringLiteral("99")));
    MensajeEs(d.Ultimo(), QStringLiteral("Esta Clave no Existe en la Base de Datos...\nClave de la Pieza : ( 99 )\n"),
              QStringLiteral("Base de Datos de Piezas..."));
    EXPECT_EQ(pr.Spread2.Texto(1, 1), QString());
    // A name on an empty position is dropped.
    ASSERT_TRUE(pr.EditarFilas(2, 3, QStringLiteral("algo")));
    EXPECT_EQ(pr.Spread2.Texto(2, 3), QString());
    // Sub-Ramal: the name asked is stored in capitals, with no check.
    d.textos = {QStringLiteral("  apto 3-b ")};
    ASSERT_TRUE(pr.EditarFilas(2, 1, QStringLiteral("21")));
    EXPECT_EQ(d.preguntas.back(), QStringLiteral("Entre el Nombre del Sub-Ramal:|Sub-Ramales Conectados|SUB-RAMAL"));
    EXPECT_EQ(p.PiezaNombre(1, 2), QStringLiteral("APTO 3-B"));
    // A key that is no number reads as 0 and clears the row; one too big is refused.
    EXPECT_FALSE(pr.EditarFilas(2, 1, QStringLiteral("70000")));
    EXPECT_EQ(p.PiezaClave(1, 2), 21);
    ASSERT_TRUE(pr.EditarFilas(2, 1, QStringLiteral("x")));
    EXPECT_EQ(p.PiezaClave(1, 2), 0);
    EXPECT_EQ(p.NPiezas[1], 3);
    // The quick Sub-Ramal asks with nothing offered.
    pr.Spread2.PonerActiva(3, 1);
    d.textos = {QStringLiteral("torre b")};
    pr.BotonRapido(21);
    EXPECT_EQ(d.preguntas.back(),
              QStringLiteral("Clave 21\n\n\n\n\nEntre el Nombre del Sub-Ramal o Pieza Sanitaria:|Nueva Pieza o Sub-Ramal|"));
    EXPECT_EQ(p.PiezaNombre(1, 3), QStringLiteral("TORRE B"));
}

TEST_F(PiezasPrueba, MoverEliminarYActualizar) {
    Reservar(3);
    for (int k : {1, 2, 3}) pr.BotonRapido(k);
    auto claves = [&] { return QString::number(p.PiezaClave(1, 1)) + QString::number(p.PiezaClave(1, 2)) + QString::number(p.PiezaClave(1, 3)); };
    pr.Spread2.PonerActiva(1, 1);
    pr.Filas().MoverUltima();
    EXPECT_EQ(claves(), QStringLiteral("231"));
    EXPECT_EQ(pr.Spread2.FilaActiva(), 3);
    pr.Filas().MoverArriba();
    EXPECT_EQ(claves(), QStringLiteral("213"));
    pr.Filas().MoverPrimera();
    EXPECT_EQ(claves(), QStringLiteral("123"));
    pr.Filas().MoverAbajo();
    EXPECT_EQ(claves(), QStringLiteral("213"));
    EXPECT_TRUE(pr.Spread2.TieneImagen(2, 2));  // the picture travels with its row

    d.respuestas = {1};
    pr.Eliminar();
    MensajeEs(d.Ultimo(), QStringLiteral("Clave de la Pieza = ( 1 )\nBAÑERA\n¿Eliminar la Pieza Seleccionada?"),
              QStringLiteral("Eliminar Piezas del Ramal..."));
    EXPECT_EQ(p.NPiezas[1], 2);
    EXPECT_EQ(pr.Spread1.Texto(1, 3), QStringLiteral("2"));
    d.respuestas = {1};
    pr.EliminarTodas();
    MensajeEs(d.Ultimo(), QStringLiteral("Ramal-> ( 1 )\nEliminar las Piezas del Ramal Seleccionado?"),
              QStringLiteral("Eliminar Todas las Piezas Sanitarias..."));
    EXPECT_EQ(p.NPiezas[1], 0);
    EXPECT_EQ(pr.Spread1.Texto(1, 3), QString());

    s.ConexionCatalogo.Ejecutar(QStringLiteral("UPDATE Piezas SET Foto=NULL, ExisteFoto=NULL WHERE ClavePieza=2"));
    d.respuestas = {1};
    pr.ActualizarImagenes();
    MensajeEs(d.Ultimo(),
              QStringLiteral("¿Actualizar las Imagenes de las Piezas Sanitarias del \nProyecto con los de la Base de Datos?"),
              QStringLiteral("Actualizar las Imágenes..."));
    EXPECT_TRUE(pr.Filas().ImagenClave(2).isNull());
    EXPECT_FALSE(pr.Filas().ImagenClave(3).isNull());
}

TEST_F(PiezasPrueba, CambiarDeRamal) {
    pr.Filas().Baja();
    pr.Filas().Baja();
    pr.Filas().Baja();  // stops at the last
    EXPECT_EQ(s.RamalActual, 3);
    EXPECT_EQ(editor.llamadas.back(), QStringLiteral("IrARamal 3 3"));
    EXPECT_EQ(pr.Filas().NodoI() + pr.Filas().NodoJ() + pr.Filas().EtiquetaRamal(), QStringLiteral("N3N4Ramal 3"));
    pr.Filas().Sube();
    EXPECT_EQ(s.RamalActual, 2);
    EXPECT_EQ(pr.Spread1.FilaActiva(), 2);
}

TEST_F(PiezasPrueba, CapturaDelCatalogo) {
    Reservar(2);
    QImage foto(20, 20, QImage::Format_RGB32);
    foto.fill(Qt::red);
    PiezaCapturada pieza{15, QStringLiteral("BEBEDERO"), {1, 1, 2, 2}, foto};
    p.OpcionUsoPiezas = 2;
    ASSERT_TRUE(pr.Capturar(pieza));
    EXPECT_EQ(p.PiezaCantidad(1, 1), 3);  // the catalogue's capture puts 3
    EXPECT_DOUBLE_EQ(p.PiezaUnidades(1, 1), 2.0);
    EXPECT_EQ(pr.Spread2.FilaActiva(), 2);
    // The captured picture reaches the project's image table.
    Registros rs;
    ASSERT_EQ(AbrirTabla(s.ConexionProyecto, rs, QStringLiteral("SELECT * FROM ImgPiezas WHERE Clave=15")), 0);
    QImage guardada;
    ASSERT_TRUE(LeerImagen(rs, guardada));
    EXPECT_EQ(guardada.pixelColor(5, 5), QColor(Qt::red));
    pr.Spread2.PonerActiva(1, 1);
    d.respuestas = {0};
    EXPECT_FALSE(pr.Capturar(pieza));
    MensajeEs(d.Ultimo(), QStringLiteral("¿Reemplazar: BEBEDERO\nPor la Pieza: BEBEDERO?"),
              QStringLiteral("Reemplazar Pieza Sanitaria..."));
}

TEST(PiezasAspecto, BotonesRapidosYTips) {
    const auto& a = PiezasRamales::Aspecto();
    ASSERT_EQ(a.rapidos.size(), 16u);
    QString claves;
    for (const auto& r : a.rapidos) claves += QString::number(r.clave) + QLatin1Char(' ');
    EXPECT_EQ(claves, QStringLiteral("1 2 3 4 5 6 7 8 10 11 12 13 14 20 21 9 "));
    EXPECT_EQ(a.rapidos[5].tip, QStringLiteral("Anexar Excusado de Válvula. "));
    EXPECT_EQ(a.rapidos[14].tip, QStringLiteral("Anexar las Unidades de Gasto de un Sub-Ramal. "));
    EXPECT_EQ(a.rapidos[15].tip, QStringLiteral("Anexar Lavaplatos Automático. "));
    EXPECT_EQ(a.titulo, QStringLiteral("Piezas Sanitarias en los Ramales"));
}
