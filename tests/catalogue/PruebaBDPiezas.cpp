// The catalogue screens and their record editors over a copy of the factory
// catalogue (21 fixtures, 14 fittings), with a project of three branches.

#include "Modales.h"
#include "PantallasFotoFalsas.h"
#include "catalogue/BDConexiones.h"
#include "catalogue/BDPiezas.h"
#include "catalogue/NewConexion.h"
#include "catalogue/NewPieza.h"
#include "entry/ApoyoRamalesFilas.h"
#include "entry/ConexionesRamales.h"
#include "entry/PiezasRamales.h"
#include "images/Imagen.h"

#include <QFile>

namespace {

// Four blocks of colour, so a picture read back is told from another.
QImage Foto(QColor c) {
    QImage img(24, 16, QImage::Format_RGB32);
    img.fill(Qt::white);
    for (int y = 0; y < 8; ++y)
        for (int x = 0; x < 12; ++x) img.setPixelColor(x, y, c);
    return img;
}

struct BDPrueba : RamalesFilasPrueba {
    PantallasFotoFalsas fotos;
    std::unique_ptr<BDPiezas> bd;
    std::unique_ptr<NewPieza> np;
    // The fixture catalogue from the menu, its record editor on a grid row.
    EditorCatalogo& AbrirEditor(int fila) {
        bd = std::make_unique<BDPiezas>(s, d);
        bd->Cargar();
        np = std::make_unique<NewPieza>(*bd, s, d, fotos);
        np->Logica().Cargar(fila);
        return np->Logica();
    }
    QString Catalogo() const { return s.ConexionCatalogo.Ruta(); }
    // A new fixture through the editor: "Crear", the name, the picture, "Salvar".
    bool NuevaPieza(EditorCatalogo& e, const QString& nombre, const QString& clave = QString()) {
        e.Crear();
        if (!clave.isEmpty()) e.CambiarClave(clave);
        e.CambiarNombre(nombre);
        return e.Salvar();
    }
};

int Clave(BDCatalogo& bd, int fila) { return int(bd.Spread1.Valor(fila, 1)); }

}  // namespace

TEST_F(BDPrueba, DesdeElMenuSinCapturarYConLosEncabezadosDeUso) {
    s.CatalogoDesdeProyecto = false;
    BDPiezas bd(s, d);
    bd.Cargar();
    BDCatalogo& l = bd.Logica();
    EXPECT_FALSE(l.CapturarVisible());
    EXPECT_FALSE(bd.Capturar());
    EXPECT_EQ(l.Cuenta(), QStringLiteral("21"));
    EXPECT_EQ(l.Spread1.FilaActiva(), 1);
    EXPECT_EQ(l.Spread1.ColumnaActiva(), 3);
    EXPECT_EQ(l.Spread1.Encabezado(1, 4), QStringLiteral("Uso Privado"));
    EXPECT_EQ(l.Spread1.Encabezado(2, 5), QStringLiteral("Fria/Caliente"));
    EXPECT_EQ(l.Spread1.Encabezado(1, 6), QStringLiteral("Uso Público"));
    QStringList pares;
    for (const Union& u : l.Spread1.UnionesEncabezado())
        if (u.fila == 1 && u.columna >= 4) pares << QStringLiteral("%1x%2").arg(u.columna).arg(u.columnas);
    EXPECT_EQ(pares, (QStringList{QStringLiteral("4x2"), QStringLiteral("6x2")}));
    // The screen opened the record set, and closes it.
    EXPECT_TRUE(s.RsPiezas.Abierto());
    bd.Cerrar();
    EXPECT_FALSE(s.RsPiezas.Abierto());
}

// Bidet (key 3) with PublicoTotal 0: blank in the grid, a zero in the editor;
// the figures typed and shown with each locale's marks.
TEST_F(BDPrueba, CeroEnBlancoEnElGridYCeroEnElEditorEnCadaLocale) {
    EjecutarSql(Catalogo(), QStringLiteral("UPDATE Piezas SET PublicoTotal=0 WHERE ClavePieza=3"));
    for (const char* locale : {"es_ES", "es_MX", "es_VE", "es_AR", "C"}) {
        SCOPED_TRACE(locale);
        const MarcasPrueba marcas(locale);
        const QChar dec = SeparadoresActuales().decimal;
        BDPiezas bd(s, d);
        bd.Cargar();
        EXPECT_EQ(bd.Spread1().Texto(3, 6), QString());
        EXPECT_EQ(bd.Spread1().Texto(3, 5), QStringLiteral("0") + dec + QStringLiteral("75"));
        NewPieza np(bd, s, d, fotos);
        EditorCatalogo& e = np.Logica();
        e.Cargar(3);
        EXPECT_EQ(e.TextoFigura(2), QStringLiteral("0") + dec + QStringLiteral("00"));
        // 2.5 typed with the locale's mark is 2.5, never 2,500.
        e.CambiarFigura(2, QStringLiteral("2") + dec + QStringLiteral("5"));
        ASSERT_TRUE(e.Salvar());
        EXPECT_EQ(bd.Spread1().Texto(3, 6), QStringLiteral("2") + dec + QStringLiteral("50"));
        EXPECT_DOUBLE_EQ(ComoDoble(s.ConexionCatalogo.Escalar(
                             QStringLiteral("SELECT PublicoTotal FROM Piezas WHERE ClavePieza=3"))),
                         2.5);
        EjecutarSql(Catalogo(), QStringLiteral("UPDATE Piezas SET PublicoTotal=0 WHERE ClavePieza=3"));
        bd.Cerrar();
    }
}

// A figure of three decimals shows whole in the editor, so saving the row
// for its name alone does not round it to 0.13.
TEST_F(BDPrueba, UnaFiguraDeTresDecimalesSeGuardaIgualAlSalvarOtroCampo) {
    EjecutarSql(Catalogo(), QStringLiteral("INSERT INTO Piezas (ClavePieza, NombrePieza, PrivadoTotal) "
                                           "VALUES (22, 'LAVADERO', 0.125)"));
    const MarcasPrueba marcas("es_VE");
    EditorCatalogo& e = AbrirEditor(22);
    EXPECT_EQ(e.TextoFigura(0), QStringLiteral("0,125"));
    EXPECT_EQ(e.TextoFigura(1), QStringLiteral("0,00"));
    e.CambiarNombre(QStringLiteral("LAVADERO DOBLE"));
    ASSERT_TRUE(e.Salvar());
    EXPECT_DOUBLE_EQ(ComoDoble(s.ConexionCatalogo.Escalar(
                         QStringLiteral("SELECT PrivadoTotal FROM Piezas WHERE ClavePieza=22"))),
                     0.125);
}

TEST_F(BDPrueba, EliminarClavesReservadasRehusadoConSusTextos) {
    BDPiezas bp(s, d);
    bp.Cargar();
    bp.Logica().PonerActiva(5);
    bp.Eliminar();
    MensajeEs(d.Ultimo(),
              QStringLiteral("Clave de la Pieza = ( 5 )EXCUSADO DE TANQUE¡Las Claves del (1) al (21) No se Pueden "
                             "Eliminar!"),
              QStringLiteral("Eliminar Piezas Sanitarias..."));
    EXPECT_EQ(d.Ultimo().botones, Botones::Aceptar);
    bp.Logica().PonerActiva(21);
    bp.Eliminar();
    EXPECT_EQ(bp.Logica().Filas(), 21);

    BDConexiones bc(s, d);
    bc.Cargar();
    bc.Logica().PonerActiva(12);
    bc.Eliminar();
    MensajeEs(d.Ultimo(),
              QStringLiteral("Clave de la Conexión = ( 12 )LONGITUD EQUIVALENTE ESPECIAL     Las Claves del ( 1 ) al "
                             "( 12 ) NO SE PUEDE ELIMINAR! "),
              QStringLiteral("Eliminar Conexiones..."));
    // Key 13 is asked for: No keeps it, Yes deletes it.
    bc.Logica().PonerActiva(13);
    d.respuestas = {Respuesta::No, Respuesta::Si};
    bc.Eliminar();
    MensajeEs(d.Ultimo(), QStringLiteral("Clave de la Conexión: ( 13 )MEDIDOR DE AGUA¿Esta Seguro de Eliminar Conexión?"),
              QStringLiteral("Eliminar Conexiones..."));
    EXPECT_EQ(bc.Logica().Cuenta(), QStringLiteral("14"));
    bc.Eliminar();
    EXPECT_EQ(bc.Logica().Cuenta(), QStringLiteral("13"));
    EXPECT_EQ(Clave(bc.Logica(), 13), 14);
    EXPECT_EQ(Escalar(s.ConexionCatalogo, QStringLiteral("SELECT count(*) FROM Conexiones WHERE ClaveConexion=13")), 0);
}

// "Crear" offers the count plus 1: after 22 and 23 are made and 22 deleted,
// it offers 23 again, which the save refuses.
TEST_F(BDPrueba, CrearOfreceUnaClaveQueChocaTrasEliminar) {
    EditorCatalogo& e = AbrirEditor(1);
    ASSERT_TRUE(NuevaPieza(e, QStringLiteral(" TINA DE HIDROMASAJE ")));
    ASSERT_TRUE(NuevaPieza(e, QStringLiteral("LAVADERO")));
    EXPECT_EQ(Clave(bd->Logica(), 23), 23);
    EXPECT_EQ(bd->Spread1().Texto(22, 3), QStringLiteral("TINA DE HIDROMASAJE"));
    EXPECT_EQ(bd->Logica().FilaActiva(), 23);
    bd->Logica().PonerActiva(22);
    d.respuestas = {Respuesta::Si};
    bd->Eliminar();
    MensajeEs(d.Ultimo(), QStringLiteral("Clave de la Pieza: ( 22 )TINA DE HIDROMASAJE¿Esta Seguro de Eliminar la Pieza?"),
              QStringLiteral("Eliminar Piezas Sanitarias..."));
    ASSERT_EQ(bd->Logica().Filas(), 22);

    e.Crear();
    EXPECT_EQ(e.TextoClave(), QStringLiteral("23"));
    EXPECT_EQ(e.FocoPedido(), EditorCatalogo::Clave);
    e.CambiarNombre(QStringLiteral("DUCHA TELÉFONO"));
    EXPECT_FALSE(e.Salvar());
    MensajeEs(d.Ultimo(), QStringLiteral("Clave de la Pieza = 23\nLAVADERO\nEsta Clave ya Existe en la Base de Datos!"),
              QStringLiteral("Crear Nueva Pieza..."));
    EXPECT_TRUE(e.Modificado());
    EXPECT_EQ(e.TextoNombre(), QStringLiteral("DUCHA TELÉFONO"));
    e.CambiarClave(QStringLiteral("22"));
    ASSERT_TRUE(e.Salvar());
    EXPECT_EQ(bd->Logica().Cuenta(), QStringLiteral("23"));
    EXPECT_EQ(Clave(bd->Logica(), 22), 22);
    EXPECT_EQ(e.Registro(), 22);
}

// No key or no name: the focus goes there and nothing else happens; a key
// that is no whole number gets the number message, in every locale.
TEST_F(BDPrueba, SalvarSinClaveONombreOConClaveNoEntera) {
    EditorCatalogo& e = AbrirEditor(1);
    e.Crear();
    EXPECT_FALSE(e.Salvar());
    EXPECT_EQ(e.FocoPedido(), EditorCatalogo::Nombre);
    e.CambiarNombre(QStringLiteral("X"));
    e.CambiarClave(QStringLiteral("0"));
    EXPECT_FALSE(e.Salvar());
    EXPECT_EQ(e.FocoPedido(), EditorCatalogo::Clave);
    EXPECT_TRUE(d.mensajes.empty());
    for (const char* locale : {"es_ES", "es_MX", "es_VE", "es_AR", "C"}) {
        SCOPED_TRACE(locale);
        const MarcasPrueba marcas(locale);
        const QString media = QStringLiteral("22") + SeparadoresActuales().decimal + QStringLiteral("5");
        e.CambiarClave(media);
        EXPECT_FALSE(e.Salvar());
        EXPECT_EQ(d.Ultimo().encabezado, QStringLiteral("Error en el Número..."));
        EXPECT_TRUE(d.Ultimo().texto.contains(QLatin1Char('"') + media + QLatin1Char('"')));
        e.CambiarClave(QStringLiteral("veinte"));
        EXPECT_FALSE(e.Salvar());
        EXPECT_TRUE(d.Ultimo().texto.startsWith(QStringLiteral("\"veinte\" no es un número")));
    }
    // A negative key would rank among the reserved ones, never to be deleted.
    const size_t antes = d.mensajes.size();
    e.CambiarClave(QStringLiteral("-5"));
    EXPECT_FALSE(e.Salvar());
    EXPECT_EQ(d.mensajes.size(), antes + 1);
    EXPECT_EQ(d.Ultimo().encabezado, QStringLiteral("Error en el Número..."));
    EXPECT_EQ(bd->Logica().Filas(), 21);
}

TEST_F(BDPrueba, PiezaNuevaConFotoGuardadaYLeidaDelArchivo) {
    const MarcasPrueba marcas("es_ES");
    EditorCatalogo& e = AbrirEditor(1);
    e.Crear();
    e.CambiarNombre(QStringLiteral("LAVADERO"));
    e.CambiarFigura(0, QStringLiteral("1,5"));
    fotos.capturas = {Foto(Qt::red)};
    e.AnexarImagen();
    EXPECT_EQ(fotos.llamadas, QStringList{QStringLiteral("Capturar")});
    // "1.250" reads two ways: refused, and the box keeps it.
    e.CambiarFigura(3, QStringLiteral("1.250"));
    EXPECT_FALSE(e.Salvar());
    EXPECT_EQ(d.Ultimo().encabezado, QStringLiteral("Error en el Número..."));
    EXPECT_EQ(e.FocoPedido(), EditorCatalogo::Foco(3));
    EXPECT_EQ(e.TextoFigura(3), QStringLiteral("1.250"));
    e.CambiarFigura(3, QStringLiteral("1250"));
    ASSERT_TRUE(e.Salvar());
    EXPECT_FALSE(e.Modificado());
    EXPECT_EQ(bd->Spread1().Imagen(22, 2).pixelColor(2, 2), QColor(Qt::red));

    Conexion c;
    ASSERT_EQ(AbrirConexion(c, Catalogo()), 0);
    Registros rs;
    ASSERT_EQ(AbrirTabla(c, rs, QStringLiteral("SELECT * FROM Piezas WHERE ClavePieza=22")), 0);
    ASSERT_EQ(rs.RecordCount(), 1);
    EXPECT_EQ(ComoTexto(rs.Campo(QStringLiteral("NombrePieza"))), QStringLiteral("LAVADERO"));
    EXPECT_DOUBLE_EQ(ComoDoble(rs.Campo(QStringLiteral("PrivadoTotal"))), 1.5);
    EXPECT_DOUBLE_EQ(ComoDoble(rs.Campo(QStringLiteral("PublicoFriaCaliente"))), 1250.0);
    EXPECT_TRUE(ComoLogico(rs.Campo(QStringLiteral("ExisteFoto"))));
    EXPECT_TRUE(rs.Campo(QStringLiteral("Foto")).toByteArray().startsWith("BM"));
    QImage leida;
    ASSERT_TRUE(LeerImagen(rs, leida));
    EXPECT_EQ(leida.pixelColor(2, 2), QColor(Qt::red));
    EXPECT_EQ(leida.pixelColor(20, 12), QColor(Qt::white));

    // Anexar again asks the capture screen with a row that has a picture;
    // Quitar asks, then the save leaves Foto null.
    e.AnexarImagen();
    EXPECT_EQ(fotos.llamadas.last(), QStringLiteral("Capturar con imagen"));
    d.respuestas = {Respuesta::Si};
    e.QuitarImagen();
    MensajeEs(d.Ultimo(), QStringLiteral("¿Quitar la Imagen de la Pieza Seleccionada?"),
              QStringLiteral("Quitar la Imagen..."));
    EXPECT_TRUE(e.Foto().isNull());
    e.QuitarImagen();
    e.ExportarImagen();
    EXPECT_EQ(d.pitidos, 2);
    EXPECT_TRUE(fotos.exportadas.empty());
    ASSERT_TRUE(e.Salvar());
    EXPECT_EQ(Escalar(c, QStringLiteral("SELECT count(*) FROM Piezas WHERE ClavePieza=22 AND Foto IS NULL AND "
                                        "ExisteFoto=0")),
              1);
}

// A reserved fixture changes its figures (and picture) only; the next
// fixture placed takes the new figure, the rows already placed keep theirs.
TEST_F(BDPrueba, FigurasDeUnaClaveReservadaLasTomaLaSiguientePieza) {
    PiezasRamales pr(p, s, d, editor);
    pr.Cargar();
    pr.EditarRamales(1, 3, QStringLiteral("2"));
    pr.Spread2.PonerActiva(1, 1);
    pr.BotonRapido(5);
    ASSERT_DOUBLE_EQ(p.PiezaUnidades(1, 1), 3.0);

    BDPiezas bd(s, d, &pr);
    bd.Cargar();
    EXPECT_TRUE(bd.Logica().CapturarVisible());
    NewPieza np(bd, s, d, fotos);
    EditorCatalogo& e = np.Logica();
    e.Cargar(5);
    EXPECT_FALSE(e.ClaveHabilitada());
    e.CambiarNombre(QStringLiteral("OTRO NOMBRE"));
    e.CambiarFigura(0, QStringLiteral("4"));
    ASSERT_TRUE(e.Salvar());
    EXPECT_EQ(bd.Spread1().Texto(5, 3), QStringLiteral("EXCUSADO DE TANQUE"));
    EXPECT_EQ(bd.Spread1().Valor(5, 4), 4.0);
    bd.Cerrar();
    // The branch screen's record set is still open.
    EXPECT_TRUE(s.RsPiezas.Abierto());
    pr.BotonRapido(5);
    EXPECT_DOUBLE_EQ(p.PiezaUnidades(1, 2), 4.0);
    EXPECT_DOUBLE_EQ(p.PiezaUnidades(1, 1), 3.0);
}

TEST_F(BDPrueba, DesplazarConCambiosPreguntaSiNoCancelar) {
    EditorCatalogo& e = AbrirEditor(2);
    EXPECT_EQ(e.Registros(), 21);
    e.CambiarFigura(1, QStringLiteral("9"));
    d.respuestas = {Respuesta::Cancelar};
    EXPECT_FALSE(e.Desplazar(3));
    MensajeEs(d.Ultimo(),
              QStringLiteral("Los Datos de la Pieza Sanitaria han sido Modificados...\n¿Desea Salvar los Cambios "
                             "Realizados?"),
              QStringLiteral("Salvar las Modificaciones..."));
    EXPECT_EQ(d.Ultimo().botones, Botones::SiNoCancelar);
    EXPECT_EQ(e.Registro(), 2);
    EXPECT_EQ(e.TextoFigura(1), QStringLiteral("9"));
    d.respuestas = {Respuesta::No};
    EXPECT_TRUE(e.Desplazar(3));
    EXPECT_EQ(e.TextoNombre(), QStringLiteral("BIDET"));
    EXPECT_EQ(Escalar(s.ConexionCatalogo, QStringLiteral("SELECT PrivadoFriaCaliente FROM Piezas WHERE ClavePieza=2")), 2);
    e.CambiarFigura(1, QStringLiteral("7"));
    d.respuestas = {Respuesta::Si};
    EXPECT_TRUE(e.Cerrar());
    EXPECT_EQ(Escalar(s.ConexionCatalogo, QStringLiteral("SELECT PrivadoFriaCaliente FROM Piezas WHERE ClavePieza=3")), 7);
    const size_t preguntas = d.mensajes.size();
    EXPECT_TRUE(e.Cerrar());
    EXPECT_EQ(d.mensajes.size(), preguntas);
}

// The grid shows "Automático" by the column Automatico; the capture decides
// by the key: below 12 automatic, 12 or more the catalogue's length.
TEST_F(BDPrueba, ConexionesAutomaticoPorColumnaEnElGridYPorClaveAlCapturar) {
    EjecutarSql(Catalogo(), QStringLiteral("UPDATE Conexiones SET Automatico=-1 WHERE ClaveConexion=13"));
    EjecutarSql(Catalogo(), QStringLiteral("UPDATE Conexiones SET Automatico=0, LongitudEquivalente=2.5 "
                                           "WHERE ClaveConexion=5"));
    ConexionesRamales cr(p, s, d, editor);
    cr.Cargar();
    cr.EditarRamales(1, 3, QStringLiteral("2"));
    cr.Spread2.PonerActiva(1, 1);
    BDConexiones bd(s, d, &cr);
    bd.Cargar();
    BDCatalogo& l = bd.Logica();
    EXPECT_EQ(l.Spread1.Encabezado(1, 4), QStringLiteral("Longitud"));
    EXPECT_EQ(l.Spread1.Encabezado(2, 4), QStringLiteral(" Equivalente (m)"));
    EXPECT_EQ(l.Spread1.Texto(13, 4), QStringLiteral("Automático"));
    EXPECT_NE(l.Spread1.Cel(13, 4).colorFondo, SinColor);
    EXPECT_EQ(l.Spread1.Texto(5, 4), QStringLiteral("2.50"));
    EXPECT_EQ(l.Spread1.Texto(1, 4), QStringLiteral("Automático"));

    l.PonerActiva(13);
    ASSERT_TRUE(bd.Capturar());
    EXPECT_EQ(cr.Spread2.Texto(1, 4), QStringLiteral("5.00"));
    EXPECT_FALSE(p.ConexionAutomatica(1, 1));
    EXPECT_EQ(p.ConexionCantidad(1, 1), 1);
    EXPECT_EQ(cr.Spread2.FilaActiva(), 2);
    l.PonerActiva(5);
    ASSERT_TRUE(bd.Capturar());
    EXPECT_EQ(cr.Spread2.Texto(2, 4), QStringLiteral("Automático"));
    EXPECT_TRUE(p.ConexionAutomatica(1, 2));
    // The last row: the cursor stays; a row that holds a key is asked for.
    EXPECT_EQ(cr.Spread2.FilaActiva(), 2);
    d.respuestas = {Respuesta::No};
    EXPECT_FALSE(bd.Capturar());
    MensajeEs(d.Ultimo(), QStringLiteral("¿Reemplazar: CODO DE 90 GRADOS\nPor la Conexión: CODO DE 90 GRADOS?"),
              QStringLiteral("Capturar Conexiones..."));
}

// Fitting 13 (length 5) marked automatic: its length box is hidden, and the
// save, which writes Automatico false from key 12 on, keeps the length 5.
TEST_F(BDPrueba, ConexionAutomaticaSalvadaConservaSuLongitud) {
    EjecutarSql(Catalogo(), QStringLiteral("UPDATE Conexiones SET Automatico=-1 WHERE ClaveConexion=13"));
    BDConexiones bd(s, d);
    bd.Cargar();
    NewConexion nc(bd, s, d, fotos);
    EditorCatalogo& e = nc.Logica();
    e.Cargar(13);
    ASSERT_TRUE(e.Automatico());
    e.CambiarNombre(QStringLiteral("MEDIDOR DE AGUA DE 1/2"));
    ASSERT_TRUE(e.Salvar());
    EXPECT_EQ(Escalar(s.ConexionCatalogo, QStringLiteral("SELECT LongitudEquivalente FROM Conexiones "
                                                         "WHERE ClaveConexion=13 AND Automatico=0")),
              5);
}

TEST_F(BDPrueba, CapturaDePiezaEnElRamalConCantidad3) {
    p.OpcionUsoPiezas = 2;  // PublicoTotal
    PiezasRamales pr(p, s, d, editor);
    pr.Cargar();
    pr.EditarRamales(1, 3, QStringLiteral("2"));
    pr.Spread2.PonerActiva(1, 1);
    BDPiezas bd(s, d, &pr);
    bd.Cargar();
    bd.Logica().PonerActiva(7);
    ASSERT_TRUE(bd.Capturar());
    EXPECT_EQ(p.PiezaClave(1, 1), 7);
    EXPECT_EQ(p.PiezaNombre(1, 1), QStringLiteral("FREGADERO"));
    EXPECT_DOUBLE_EQ(p.PiezaUnidades(1, 1), 4.0);
    EXPECT_EQ(p.PiezaCantidad(1, 1), 3);
    EXPECT_FALSE(pr.Spread2.Imagen(1, 2).isNull());
    EXPECT_EQ(pr.Spread2.FilaActiva(), 2);
    EXPECT_TRUE(s.ProyectoModificado);
    pr.Spread2.PonerActiva(1, 1);
    bd.Logica().PonerActiva(10);
    d.respuestas = {Respuesta::Si};
    ASSERT_TRUE(bd.Capturar());
    MensajeEs(d.Ultimo(), QStringLiteral("¿Reemplazar: FREGADERO\nPor la Pieza: LAVAMANOS?"),
              QStringLiteral("Reemplazar Pieza Sanitaria..."));
    EXPECT_EQ(p.PiezaClave(1, 1), 10);
}

// The project's ImgPiezas mirrors the catalogue only when asked.
TEST_F(BDPrueba, EliminarDejaImgPiezasHastaQueSeActualice) {
    EditorCatalogo& e = AbrirEditor(1);
    ASSERT_TRUE(NuevaPieza(e, QStringLiteral("LAVADERO")));
    ASSERT_TRUE(ActualizarImagenesProyecto(s, TablaImagenes::Piezas));
    ASSERT_EQ(Escalar(s.ConexionProyecto, QStringLiteral("SELECT count(*) FROM ImgPiezas")), 22);
    bd->Logica().PonerActiva(22);
    d.respuestas = {Respuesta::Si};
    bd->Eliminar();
    EXPECT_EQ(Escalar(s.ConexionCatalogo, QStringLiteral("SELECT count(*) FROM Piezas")), 21);
    EXPECT_EQ(Escalar(s.ConexionProyecto, QStringLiteral("SELECT count(*) FROM ImgPiezas WHERE Clave=22")), 1);
    ASSERT_TRUE(ActualizarImagenesProyecto(s, TablaImagenes::Piezas));
    EXPECT_EQ(Escalar(s.ConexionProyecto, QStringLiteral("SELECT count(*) FROM ImgPiezas WHERE Clave=22")), 0);
}

// A catalogue that cannot be written: the reason said, the file and the
// typed boxes as they were.
TEST_F(BDPrueba, CatalogoDeSoloLecturaNoPierdeNada) {
    EjecutarSql(Catalogo(), QStringLiteral("INSERT INTO Piezas (ClavePieza, NombrePieza) VALUES (22, 'LAVADERO')"));
    const QString ruta = Catalogo();
    s.ConexionCatalogo.Cerrar();
    QFile::setPermissions(ruta, QFileDevice::ReadOwner | QFileDevice::ReadGroup | QFileDevice::ReadOther);
    ASSERT_EQ(AbrirConexion(s.ConexionCatalogo, ruta), 0);
    const QByteArray antes = LeerArchivo(ruta);

    EditorCatalogo& e = AbrirEditor(22);
    e.CambiarNombre(QStringLiteral("LAVADERO DOBLE"));
    EXPECT_FALSE(e.Salvar());
    MensajeEs(d.Ultimo(),
              QStringLiteral("No se pudo guardar la pieza en la base de datos:\n") + ruta +
                  QStringLiteral("\nEl archivo es de sólo lectura: no se puede escribir en él."),
              QStringLiteral("Base de Datos de Piezas Sanitarias..."));
    EXPECT_EQ(e.TextoNombre(), QStringLiteral("LAVADERO DOBLE"));
    EXPECT_TRUE(e.Modificado());
    ASSERT_EQ(bd->Logica().Registro(22), 22);
    EXPECT_EQ(ComoTexto(s.RsPiezas.Campo(QStringLiteral("NombrePieza"))), QStringLiteral("LAVADERO"));
    d.respuestas = {Respuesta::Cancelar};
    e.Crear();  // asks to save the changes first: Cancel stays
    EXPECT_EQ(e.TextoNombre(), QStringLiteral("LAVADERO DOBLE"));

    bd->Logica().PonerActiva(22);
    d.respuestas = {Respuesta::Si};
    bd->Eliminar();
    EXPECT_TRUE(d.Ultimo().texto.startsWith(QStringLiteral("No se pudo eliminar la pieza de la base de datos:")));
    EXPECT_EQ(bd->Logica().Filas(), 22);
    EXPECT_EQ(bd->Spread1().Texto(22, 3), QStringLiteral("LAVADERO"));
    EXPECT_EQ(LeerArchivo(ruta), antes);
}

// A catalogue file of another kind: said on opening, and a new fixture
// typed into the empty screen is refused without touching the file.
TEST_F(BDPrueba, CatalogoQueNoEsBaseDeDatosSeAvisa) {
    const QString ruta = Catalogo();
    s.ConexionCatalogo.Cerrar();
    EscribirArchivo(ruta, "no es una base de datos");
    ASSERT_NE(AbrirConexion(s.ConexionCatalogo, ruta), 0);
    EditorCatalogo& e = AbrirEditor(1);
    MensajeEs(d.mensajes.at(0),
              QStringLiteral("No se pudo leer la base de datos:\nEl archivo no es una base de datos del programa: ") +
                  ruta,
              QStringLiteral("Base de Datos de Piezas Sanitarias..."));
    EXPECT_EQ(bd->Logica().Filas(), 0);
    EXPECT_FALSE(NuevaPieza(e, QStringLiteral("LAVADERO")));
    EXPECT_EQ(LeerArchivo(ruta), QByteArray("no es una base de datos"));
}

TEST_F(BDPrueba, OrdenarYBuscarActuanSobreLaFilaVista) {
    BDPiezas bd(s, d);
    bd.Cargar();
    BDCatalogo& l = bd.Logica();
    l.Ordenar(3);
    // Spanish order: BAÑERA, BATEA, BEBEDERO, BIDET...
    EXPECT_EQ(l.Spread1.Texto(1, 3), QStringLiteral("BAÑERA"));
    EXPECT_EQ(l.Spread1.Texto(3, 3), QStringLiteral("BEBEDERO"));
    l.PonerActiva(3);
    NewPieza np(bd, s, d, fotos);
    np.Logica().Cargar(3);
    EXPECT_EQ(np.Logica().TextoClave(), QStringLiteral("15"));
    l.Ordenar(1);
    l.Ordenar(1);  // again: descending
    EXPECT_EQ(Clave(l, 1), 21);
    ASSERT_TRUE(l.Buscar(QStringLiteral("urinario")));
    EXPECT_EQ(Clave(l, l.FilaActiva()), 14);
    ASSERT_TRUE(l.Buscar(QStringLiteral("urinario")));
    EXPECT_EQ(Clave(l, l.FilaActiva()), 13);
    EXPECT_FALSE(l.Buscar(QStringLiteral("piscina")));
    EXPECT_EQ(d.pitidos, 1);
}
