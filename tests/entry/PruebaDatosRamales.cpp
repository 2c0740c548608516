// The branch editor's logic: page 1, the cell commits, the counts, the
// checks of the labels, insert and delete with their moves, save and open.

#include "base/ErrorEjecucion.h"
#include "entry/BuscarPartida.h"
#include "entry/DatosRamales.h"
#include "images/Imagen.h"
#include "model/ArchivoEdificio.h"
#include "model/ProyectoEdificio.h"
#include "store/Conexion.h"
#include "support/Apoyo.h"

namespace {

const QString Numeracion = QStringLiteral("Numeración de los Ramales...");

struct Editor : ::testing::Test {
    SesionPrueba sp;
    ProyectoEdificio p;
    DialogosFalsos d;
    DatosRamales e{p, sp.s, d};

    void SetUp() override {
        ValoresIniciales(p, sp.s);
        sp.s.ArchivoProyecto = sp.ProyectoEnBlanco();
        sp.s.NombreProyecto = QStringLiteral("prueba.plm");
        AbrirConexionProyecto(sp.s);
        e.Cargar();
    }
    // A network typed through the count box and the I, J cells.
    void Teclear(const QStringList& nodos) {
        e.CambiarNumeroRamales(int(nodos.size() / 2));
        e.AplicarNumeroRamales();
        for (int i = 0; i + 1 < nodos.size(); i += 2) {
            e.EditarCelda(i / 2 + 1, 1, nodos[i]);
            e.EditarCelda(i / 2 + 1, 2, nodos[i + 1]);
        }
    }
    // Branch r with `piezas` fixtures keyed r*10+j and `conexiones` fittings.
    void Ramal(int r, int piezas, int conexiones) {
        p.NPiezas[r] = piezas;
        p.NConexiones[r] = conexiones;
        for (int j = 1; j <= 30; ++j) {
            p.PiezaClave(r, j) = r * 10 + j;
            p.ConexionClave(r, j) = r * 100 + j;
        }
    }
};

}  // namespace

TEST_F(Editor, CargaConTituloEtiquetaYSinCambios) {
    EXPECT_EQ(e.Titulo(), QStringLiteral("NIVO-FONTARIA 2024    PROYECTO: [ PRUEBA.PLM ]"));
    EXPECT_EQ(e.EtiquetaRamal(), QStringLiteral("Ramal ( 0 )"));
    EXPECT_FALSE(sp.s.ProyectoModificado);
    EXPECT_EQ(e.Spread1.Encabezado(1, 3), QStringLiteral("Longitud Real"));
    EXPECT_EQ(e.Spread1.Encabezado(2, 7), QStringLiteral("Conexiones"));
}

TEST_F(Editor, PaginaUnoHabilitaSoloLaCajaDeSuOpcion) {
    struct Caso {
        int presion;
        bool v1, v2, v3;
        const char* etiqueta;
    };
    const Caso casos[] = {{0, true, false, false, "Presión Mínima en el Punto más Desfavorable de la Red"},
                          {1, false, true, false, "Entrar la Presión Inicial en la Entrada de la Red"},
                          {2, false, false, true, "Presión Mínima en el Punto más Desfavorable de la Red"}};
    for (const Caso& c : casos) {
        e.CambiarOpcionPresionInicial(c.presion);
        const auto h = e.EstadoActual().habilitados;
        EXPECT_EQ(h.Valor[0], c.v1);
        EXPECT_EQ(h.Valor[1], c.v2);
        EXPECT_EQ(h.Valor[2], c.v3);
        EXPECT_EQ(e.EstadoActual().etiquetaValor, QString::fromUtf8(c.etiqueta));
    }
    for (int o : {0, 1, 2}) {
        e.CambiarOpcionPerdidas(o);
        EXPECT_EQ(e.EstadoActual().habilitados.CoeficienteC, o == 2);
    }
    e.CambiarOpcionPresionM(true);
    EXPECT_TRUE(e.EstadoActual().habilitados.PresionM);
    sp.s.ProyectoModificado = false;
    e.CambiarTexto(DatosRamales::Texto::Cliente, QStringLiteral("  Hotel Sol  "));
    EXPECT_EQ(p.Cliente, QStringLiteral("Hotel Sol"));
    EXPECT_TRUE(sp.s.ProyectoModificado);
}

TEST_F(Editor, LasCeldasGuardanYElCursorCorreIJIJ) {
    e.CambiarNumeroRamales(2);
    e.AplicarNumeroRamales();
    EXPECT_EQ(int(p.NumeroNodos), 3);
    struct Paso {
        int fila, columna;
        const char* texto;
        int filaCursor, columnaCursor;
    };
    const Paso pasos[] = {{1, 1, " A ", 1, 2}, {1, 2, "B", 2, 1}, {2, 1, "B", 2, 2}, {2, 2, "C", 2, 2}};
    for (const Paso& s : pasos) {
        ASSERT_TRUE(e.EditarCelda(s.fila, s.columna, QString::fromUtf8(s.texto)));
        EXPECT_EQ(e.Spread1.FilaActiva(), s.filaCursor);
        EXPECT_EQ(e.Spread1.ColumnaActiva(), s.columnaCursor);
    }
    EXPECT_EQ(p.NodoI[1], QStringLiteral("A"));
    ASSERT_TRUE(e.EditarCelda(1, 3, QStringLiteral("12.5")));
    EXPECT_DOUBLE_EQ(p.longitudReal[1], 12.5);
    // Letters: the reader's reason, the value kept.
    EXPECT_FALSE(e.EditarCelda(1, 3, QStringLiteral("doce")));
    EXPECT_DOUBLE_EQ(p.longitudReal[1], 12.5);
    EXPECT_EQ(d.Ultimo().encabezado, QStringLiteral("Error en el Número..."));
    // A number outside the column's range: its limits, the value kept.
    EXPECT_FALSE(e.EditarCelda(1, 3, QStringLiteral("-5")));
    MensajeEs(d.Ultimo(), QStringLiteral("¡Debe Entrar un Número entre 0 y 9,999,999,999.99!"),
              QStringLiteral("Error en el Número..."));
    EXPECT_DOUBLE_EQ(p.longitudReal[1], 12.5);
    ASSERT_TRUE(e.EditarCelda(2, 4, QStringLiteral("Piezas de Válvula")));
    EXPECT_EQ(p.OpcionDiseño[2], 1);
    EXPECT_EQ(e.Spread1.Cel(2, 4).colorFondo, ColorValvula);
    ASSERT_TRUE(e.EditarCelda(2, 5, QStringLiteral("0")));
    EXPECT_EQ(e.Spread1.Texto(2, 5), QString());
    EXPECT_FALSE(e.EditarCelda(2, 6, QStringLiteral("4")));  // no handler
}

TEST_F(Editor, ElNumeroDeRamalesConservaLosDatosYDesbordaSinTocarNada) {
    Teclear({"A", "B", "B", "C"});
    e.CambiarNumeroRamales(3);
    e.AplicarNumeroRamales();
    EXPECT_EQ(p.Nodoj[2], QStringLiteral("C"));
    EXPECT_EQ(int(p.NumeroNodos), 4);
    EXPECT_EQ(p.CotaPiso.Ubound(), 4);
    // 32,767 branches leave no room for their node count: the overflow.
    for (int n : {32767, 40000}) {
        e.CambiarNumeroRamales(n);
        EXPECT_EQ(NumeroDeError([&] { e.AplicarNumeroRamales(); }), Error::Desbordamiento);
        EXPECT_EQ(int(p.NumeroRamales), 3);
        EXPECT_EQ(e.Spread1.Filas(), 3);
    }
}

TEST_F(Editor, SinRamalesLosBotonesCallanYGraficosSeApaga) {
    EXPECT_FALSE(e.PiezasSanitarias());
    EXPECT_FALSE(e.Conexiones());
    EXPECT_FALSE(e.CotasPiso());
    EXPECT_FALSE(e.Diseno());
    EXPECT_FALSE(e.Longitudes());
    e.Crear();
    e.Eliminar();
    e.Compatibilidad();
    EXPECT_FALSE(e.CambiarGraficos(true));
    EXPECT_TRUE(d.mensajes.empty());
    EXPECT_EQ(int(p.NumeroRamales), 0);
}

TEST_F(Editor, UnNodoVacioDetieneLasPantallasEnSuCelda) {
    Teclear({"A", "B", "B", ""});
    EXPECT_FALSE(e.PiezasSanitarias());
    EXPECT_EQ(e.Spread1.FilaActiva(), 2);
    EXPECT_EQ(e.Spread1.ColumnaActiva(), 2);
    EXPECT_FALSE(e.NodoVacio());
    EXPECT_TRUE(d.mensajes.empty());
    e.EditarCelda(2, 2, QStringLiteral("C"));
    e.MoverCursor(2, 3);
    EXPECT_TRUE(e.CotasPiso());
    EXPECT_EQ(sp.s.RamalActual, 2);
}

TEST_F(Editor, LaNumeracionDiceElPrimerError) {
    struct Caso {
        QStringList nodos;
        QString texto;
        int fila;
    };
    const Caso casos[] = {
        {{"A", "B", "C", "C"}, QStringLiteral("Error en la Numeración de los Ramales...\nRamal-> ( 2 )  (I) = C  ó   (J) = C"), 2},
        // Labels keep their case: "b" hangs from nothing.
        {{"A", "B", "b", "C"}, QStringLiteral("El Nodo-> ( b )  del Ramal: 2\nEste Nodo Está Desconectado..."), 2},
        // A branch hangs from any earlier end, not only the one before.
        {{"A", "B", "B", "C", "B", "D", "X", "E"},
         QStringLiteral("El Nodo-> ( X )  del Ramal: 4\nEste Nodo Está Desconectado..."), 4},
        {{"A", "B", "B", "C", "C", "B"}, QStringLiteral("¡No se Encontraron Errores en la Numeración de los Ramales!"), 0},
    };
    for (const Caso& c : casos) {
        Teclear(c.nodos);
        e.MoverCursor(1, 3);
        e.Compatibilidad();
        MensajeEs(d.Ultimo(), c.texto, Numeracion);
        if (c.fila) EXPECT_EQ(e.Spread1.FilaActiva(), c.fila);
        EXPECT_EQ(p.ErrorNumeracion, 0);
    }
}

TEST_F(Editor, EliminarPreguntaYCorreLosDatosConLasCuentasEnSuIndice) {
    Teclear({"A", "B", "B", "C", "C", "D"});
    Ramal(1, 1, 0);
    Ramal(2, 3, 2);
    Ramal(3, 2, 1);
    for (int k = 1; k <= 4; ++k) p.CotaPiso[k] = k * 10;
    e.ColoqueNPiezas();
    e.MoverCursor(2, 3);
    d.respuestas = {Respuesta::No};
    e.Eliminar();
    MensajeEs(d.Ultimo(), QStringLiteral("Eliminar el Ramal-> ( 2 )\nI = ( B )  J = ( C )\n¿Esta Usted Seguro de Elimar el Ramal?"),
              QStringLiteral("Eliminar Ramales..."));
    EXPECT_EQ(int(p.NumeroRamales), 3);
    d.respuestas = {Respuesta::Si};
    e.Eliminar();
    ASSERT_EQ(int(p.NumeroRamales), 2);
    EXPECT_EQ(p.NodoI[2], QStringLiteral("C"));
    // Counts stay: branch 2 keeps 3 fixtures and 2 fittings; it copied as
    // many slots from old branch 3, which leaves its old slot 3 behind.
    EXPECT_EQ(p.NPiezas[2], 3);
    EXPECT_EQ(p.PiezaClave(2, 1), 31);
    EXPECT_EQ(p.PiezaClave(2, 3), 33);
    EXPECT_EQ(p.ConexionClave(2, 2), 302);
    EXPECT_EQ(e.Spread1.Texto(2, 6), QStringLiteral("2"));  // the grid moved
    EXPECT_EQ(p.CotaPiso[3], 40);
    EXPECT_EQ(int(p.NumeroNodos), 3);
    // A row whose NodoI was never typed goes without asking; the last and
    // only branches move nothing.
    const size_t preguntas = d.mensajes.size();
    p.NodoI[2].clear();
    e.ColoqueRamales();
    e.EliminarRamal(2);
    d.respuestas = {Respuesta::Si};
    e.EliminarRamal(1);
    EXPECT_EQ(d.mensajes.size(), preguntas + 1);
    EXPECT_EQ(int(p.NumeroRamales), 0);
    EXPECT_EQ(e.EtiquetaRamal(), QStringLiteral("Ramal ( 0 )"));
}

TEST_F(Editor, InsertarCorreLosRamalesYLasCotasDesdeLaPosicion) {
    Teclear({"A", "B", "B", "C"});
    Ramal(1, 2, 1);
    Ramal(2, 0, 0);
    for (int k = 1; k <= 3; ++k) p.CotaPiso[k] = k * 10;
    e.InsertarRamal(1);
    MensajeEs(d.Ultimo(), QStringLiteral("¿Insertar un Nuevo Ramal en la Posición: ( 1 )?"),
              QStringLiteral("Insertar Ramales en la Red..."));
    ASSERT_EQ(int(p.NumeroRamales), 3);
    EXPECT_EQ(p.NodoI[2], QStringLiteral("A"));
    EXPECT_EQ(p.Nodoj[3], QStringLiteral("C"));
    EXPECT_EQ(p.NodoI[1], QString());
    // Branch 2 received no slot: its count (0) bounds the copy.
    EXPECT_EQ(p.NPiezas[2], 0);
    EXPECT_EQ(p.PiezaClave(2, 1), 21);
    // Branch 1 keeps its count of 2, its slots cleared.
    EXPECT_EQ(p.NPiezas[1], 2);
    EXPECT_EQ(p.PiezaClave(1, 1), 0);
    const double cotas[] = {10, 0, 20, 30};
    for (int k = 1; k <= 4; ++k) EXPECT_EQ(p.CotaPiso[k], cotas[k - 1]) << k;
    EXPECT_TRUE(e.Spread1.EsNumero(1, 3));
    EXPECT_EQ(e.Spread1.Texto(3, 2), QStringLiteral("C"));
}

TEST_F(Editor, HTanqueSoloTrasLlenarDeNuevoLaTabla) {
    Teclear({"A", "B"});
    e.CambiarOpcionPresionInicial(2);
    EXPECT_FALSE(e.Spread1.EstaBloqueada(1, 3));
    e.ColoqueRamales();
    EXPECT_EQ(e.Spread1.Texto(1, 3), QStringLiteral("H. Tanque"));
    EXPECT_TRUE(e.Spread1.EstaBloqueada(1, 3));
    EXPECT_EQ(e.Spread1.Cel(1, 3).colorFondo, ColorTanque);
    EXPECT_FALSE(e.EditarCelda(1, 3, QStringLiteral("4")));
}

TEST_F(Editor, SalvarReleerYCerrarConLaPreguntaCompartida) {
    const QString pregunta =
        QStringLiteral("Los Datos del Proyecto han sido Modificados...\n¿Desea Salvar los Cambios Realizados?");
    e.CambiarTexto(DatosRamales::Texto::Proyecto, QStringLiteral("Casa"));
    EXPECT_FALSE(e.Salvar());
    MensajeEs(d.Ultimo(), MensajeProyectoSinRamales(), QStringLiteral("Salvar el Proyecto..."));
    Teclear({"A", "B", "B", "C"});
    e.EditarCelda(2, 3, QStringLiteral("3.25"));
    d.respuestas = {Respuesta::Cancelar, Respuesta::No};
    EXPECT_FALSE(e.PuedeCerrar());
    MensajeEs(d.Ultimo(), pregunta, QStringLiteral("Salvar las Modificaciones..."));
    EXPECT_TRUE(e.PuedeCerrar());
    EXPECT_TRUE(sp.s.ProyectoModificado);
    EXPECT_EQ(p.Proyecto, QStringLiteral("Casa"));
    sp.s.EdicionDesdeAnalisis = 1;
    d.respuestas = {Respuesta::Si};
    EXPECT_TRUE(e.PuedeCerrar());
    EXPECT_TRUE(e.ProyectoSalvado());
    EXPECT_FALSE(sp.s.ProyectoModificado);

    ProyectoEdificio q;
    QString error;
    ASSERT_TRUE(CargarProyectoEdificio(q, sp.s, sp.s.ArchivoProyecto, error)) << error.toStdString();
    EXPECT_EQ(q.Proyecto, QStringLiteral("Casa"));
    EXPECT_EQ(q.Nodoj[2], QStringLiteral("C"));
    EXPECT_DOUBLE_EQ(q.longitudReal[2], 3.25);
}

TEST_F(Editor, AbrirPreguntaPideElArchivoYCargaConLaFechaDeHoy) {
    Teclear({"A", "B", "B", "C"});
    e.Salvar();
    const QString guardado = sp.s.ArchivoProyecto;
    d.archivos = {std::nullopt, guardado};
    e.Abrir();
    EXPECT_EQ(d.dialogosArchivo.last(),
              QStringLiteral("Abrir un Proyecto Existente|*.plm|*.plm|") + sp.Datos(QStringLiteral("Proyectos")));
    EXPECT_EQ(int(p.NumeroRamales), 2);
    p.Fecha = QDate(2001, 1, 1);
    sp.s.ProyectoModificado = true;
    d.respuestas = {Respuesta::No};
    e.Abrir();
    EXPECT_EQ(p.Fecha, QDate::currentDate());
    EXPECT_FALSE(sp.s.ProyectoModificado);
    EXPECT_EQ(e.Spread1.Texto(2, 2), QStringLiteral("C"));
    // A file that is not a project: the one in memory stays.
    d.archivos = {EscribirArchivo(sp.Datos(QStringLiteral("roto.plm")), "no es un proyecto")};
    e.Abrir();
    EXPECT_EQ(d.Ultimo().encabezado, QStringLiteral("Error en Lectura de Datos..."));
    EXPECT_EQ(int(p.NumeroRamales), 2);
    EXPECT_EQ(sp.s.ArchivoProyecto, guardado);
    sp.s.EdicionDesdeAnalisis = 1;
    EXPECT_FALSE(e.EstadoActual().habilitados.Abrir);
}

TEST_F(Editor, ElPanelMuestraLasPartidasConSusFotos) {
    Teclear({"A", "B", "B", "C"});
    Ramal(2, 1, 1);
    p.PiezaNombre(2, 1) = QStringLiteral("Lavamanos");
    p.PiezaCantidad(2, 1) = 3;
    QImage foto(4, 4, QImage::Format_RGB32);
    foto.fill(Qt::red);
    Consulta ins(sp.s.ConexionProyecto, QStringLiteral("INSERT INTO ImgPiezas (Clave, ExisteFoto, Foto) VALUES (?,?,?)"));
    ASSERT_TRUE(ins.Ejecutar({21, 1, ImagenComoBmp(foto)}));
    EXPECT_TRUE(e.CambiarGraficos(true));
    e.MoverCursor(2, 1);
    const Grid& g = e.Spread2;
    EXPECT_EQ(g.Texto(1, 1), QStringLiteral("PIEZAS SANITARIAS EN EL RAMAL ( 2 )"));
    EXPECT_TRUE(g.Cel(1, 1).negrita);
    EXPECT_EQ(g.Texto(2, 3), QStringLiteral("Lavamanos"));
    EXPECT_EQ(g.Imagen(2, 2).pixelColor(1, 1), QColor(Qt::red));
    EXPECT_EQ(g.Texto(3, 1), QStringLiteral("PIEZAS DE CONEXIÓN EN EL RAMAL ( 2 )"));
    EXPECT_EQ(g.Cel(3, 1).colorFondo, ColorConexiones);
    EXPECT_EQ(g.Filas(), 4);
    // A branch with nothing: a blank row under each heading.
    e.MoverCursor(1, 1);
    EXPECT_EQ(g.Texto(3, 1), QStringLiteral("PIEZAS DE CONEXIÓN EN EL RAMAL ( 1 )"));
    EXPECT_EQ(g.Filas(), 4);
}

TEST_F(Editor, BuscarRamalConservaLaColumna) {
    Teclear({"A", "B", "B", "C", "C", "D"});
    e.MoverCursor(1, 5);
    BuscarPartida b(1);
    b.Aceptar(3);
    e.BuscarRamal(b);
    EXPECT_EQ(e.Spread1.FilaActiva(), 3);
    EXPECT_EQ(e.Spread1.ColumnaActiva(), 5);
    EXPECT_EQ(e.EtiquetaRamal(), QStringLiteral("Ramal ( 3 )"));
}

TEST_F(Editor, LasLongitudesSeLeenConLasMarcasDelPais) {
    Teclear({"A", "B"});
    struct Caso {
        const char* locale;
        const char* texto;
        double valor;
    };
    // Each country's decimal mark, and its thousands mark read as such.
    const Caso casos[] = {{"es_ES", "12,5", 12.5},       {"es_ES", "1.234,5", 1234.5}, {"es_MX", "12.5", 12.5},
                          {"es_MX", "1,234.5", 1234.5}, {"es_VE", "7,25", 7.25},       {"es_AR", "7,25", 7.25},
                          {"es_CO", "7,25", 7.25},       {"C", "3.75", 3.75}};
    for (const Caso& c : casos) {
        const MarcasPrueba marcas(c.locale);
        ASSERT_TRUE(e.EditarCelda(1, 3, QString::fromUtf8(c.texto))) << c.locale << " " << c.texto;
        EXPECT_DOUBLE_EQ(p.longitudReal[1], c.valor) << c.locale << " " << c.texto;
        // What the grid shows, handed back by the view, is the same number.
        ASSERT_TRUE(e.EditarCelda(1, 5, e.Spread1.Texto(1, 3)));
        EXPECT_DOUBLE_EQ(p.ValvulaR[1], c.valor) << c.locale;
    }
}
