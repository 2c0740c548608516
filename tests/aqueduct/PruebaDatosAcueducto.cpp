// The logic of the aqueduct data screen, its coefficient dialog and its
// length dialog, with the questions answered by a script.

#include "RedPrueba.h"

#include "aqueduct/ArchivoAcueducto.h"
#include "aqueduct/DatosAcueducto.h"
#include "aqueduct/LongitudTramosAcu.h"
#include "base/Nivo.h"

#include <gtest/gtest.h>
#include <cmath>

namespace {

struct Pantalla {
    SesionPrueba sp;
    DialogosFalsos d;
    ProyectoAcueducto p;
    DatosAcueducto datos{p, sp.s, d};

    // T -> A -> B -> C, by section, in metres.
    explicit Pantalla(uint8_t consumo = 1) {
        ProyectoAcueducto red = Red({{"T", "A", 100, 0.2, 120, 1.0}, {"A", "B", 80, 0.15, 120, 0.5},
                                     {"B", "C", 60, 0.1, 120, 0.25}},
                                    {{"T", 0, 50, 90}, {"A", 0, 40}, {"B", 0, 38}, {"C", 0, 35}}, sp.s);
        red.OpcionConsumo = consumo;
        red.C = 0;
        p = EnArchivo(red, sp);
        datos.Cargar();
    }
};

}  // namespace

TEST(DatosAcueducto, ColoquePantallaLlenaLasTresPaginas) {
    // The sample's pages, with their lumped and locked demands, are checked on the screen.
    Pantalla t;
    EXPECT_EQ(t.datos.Titulo(), "Redes de Acueductos   Proyecto: [ RED.ACU ]");
    EXPECT_EQ(t.datos.Pagina(), 1);
    EXPECT_EQ(t.p.C, 100);  // 0 is shown, and taken, as 100
    EXPECT_EQ(t.datos.Long1(), 100);
    EXPECT_EQ(t.datos.Long2(), 3);
    ASSERT_EQ(t.datos.Spread1.Filas(), 3);
    EXPECT_EQ(t.datos.Spread1.Texto(2, 4), "0.150");
    EXPECT_EQ(t.datos.Spread1.Encabezado(1, 5), "Hansen - William");
    // By section: A = 1/2 + 0.5/2.
    EXPECT_EQ(t.datos.Spread2.Texto(2, 2), "0.750");
    EXPECT_EQ(t.sp.s.DatosModificados, 0);
}

TEST(DatosAcueducto, EdicionDeUnaCeldaRenumeraLosNodos) {
    Pantalla t;
    EXPECT_TRUE(t.datos.EditarRamal(3, 2, "  D  "));
    EXPECT_EQ(t.p.Final[3], "D");
    EXPECT_EQ(t.datos.Spread2.Texto(4, 1), "D");
    EXPECT_EQ(t.sp.s.DatosModificados, -1);
    EXPECT_FALSE(t.datos.EditarRamal(1, 3, "no es número"));
    EXPECT_TRUE(t.datos.EditarRamal(1, 6, "2"));
    EXPECT_EQ(t.datos.Spread2.Texto(1, 2), "1.000");  // T: half of 2
    EXPECT_FALSE(t.datos.EditarNodo(2, 2, "4"));      // locked by section demand
}

TEST(DatosAcueducto, VerificacionDeCeldasVacias) {
    Pantalla t;
    t.p.Inicio[2] = " ";
    EXPECT_TRUE(t.datos.VerifiqueRamales());
    EXPECT_TRUE(t.d.mensajes.empty());  // a beep and the cell, no message
    EXPECT_EQ(t.datos.Spread1.FilaActiva(), 2);
    EXPECT_EQ(t.datos.Spread1.ColumnaActiva(), 1);
    t.p.Inicio[2] = "A";
    t.p.Diametro[3] = 0;
    EXPECT_TRUE(t.datos.VerifiqueRamales());
    EXPECT_EQ(t.datos.Spread1.FilaActiva(), 3);
    EXPECT_EQ(t.datos.Spread1.ColumnaActiva(), 4);

    // "Compatibilidad" then asks to correct; "Siguiente" stays on page 2.
    t.datos.Compatibilidad();
    MensajeEs(t.d.Ultimo(), "¡Corrija el Dato Seleccionado!", "Datos de los Ramales...");
    t.datos.Siguiente();
    t.datos.Siguiente();
    EXPECT_EQ(t.datos.Pagina(), 2);
    t.p.Diametro[3] = 0.1;
    t.datos.Compatibilidad();
    MensajeEs(t.d.Ultimo(), "No Existen Errores en los Tramos...", "Verificando los Ramales...");
    t.datos.Siguiente();
    EXPECT_EQ(t.datos.Pagina(), 3);
    EXPECT_FALSE(t.datos.Botones().Siguiente);
    EXPECT_FALSE(t.datos.Botones().Insertar);
    EXPECT_TRUE(t.datos.Botones().Anterior);
}

TEST(DatosAcueducto, ElEstadoDiceQueMostrarEnCadaPagina) {
    Pantalla t;
    t.p.Fecha = QDate();
    EXPECT_EQ(t.datos.EstadoActual().fecha, Hoy());  // a project without a date shows today's
    // "Reportes" follows the rows of the sections' grid.
    EXPECT_TRUE(t.datos.EstadoActual().botones.Reportes);
    t.datos.Spread1.PonerFilas(0);
    EXPECT_FALSE(t.datos.EstadoActual().botones.Reportes);
    t.datos.Spread1.PonerFilas(3);
    // The right-click menu belongs to page 2; the length dialog wants rows.
    for (int pagina : {1, 2, 3}) {
        EXPECT_EQ(t.datos.EstadoActual().botones.MenuRamales, pagina == 2) << pagina;
        t.datos.Siguiente();
    }
    EXPECT_TRUE(t.datos.Longitudes());
    t.datos.Spread1.PonerFilas(0);
    EXPECT_FALSE(t.datos.Longitudes());
}

TEST(DatosAcueducto, IslasYBarridosAcotados) {
    // Two sections apart from the rest: the first of them is named.
    Pantalla t;
    t.p.NumeroTramos = 5;
    t.p.RedimensionarTramos(5);
    for (int k : {4, 5}) {
        t.p.Longitud[k] = 10;
        t.p.Diametro[k] = 0.1;
    }
    t.p.Inicio[4] = "X";
    t.p.Final[4] = "Y";
    t.p.Inicio[5] = "Y";
    t.p.Final[5] = "Z";
    EXPECT_TRUE(t.datos.VerifiqueRamales());
    MensajeEs(t.d.Ultimo(), "Existen Ramales Desconectados en la Red!\nVerifique el Tramo->( X - Y )",
              "Verificando la Red...");
    EXPECT_EQ(t.datos.Spread1.FilaActiva(), 4);

    // A connected chain typed backwards: N0-N1 first, then N9-N10 down to
    // N1-N2.  Each later sweep reaches one node further; after the one sweep
    // of pairs and three of nodes, N9-N10 is still unmarked.
    Pantalla c;
    c.p.NumeroTramos = 10;
    c.p.DimensionarTramos(10);
    c.p.Inicio[1] = "N0";
    c.p.Final[1] = "N1";
    for (int k = 2; k <= 10; ++k) {
        c.p.Inicio[k] = QStringLiteral("N%1").arg(11 - k);
        c.p.Final[k] = QStringLiteral("N%1").arg(12 - k);
    }
    for (int k = 1; k <= 10; ++k) {
        c.p.Longitud[k] = 10;
        c.p.Diametro[k] = 0.1;
    }
    EXPECT_TRUE(c.datos.VerifiqueRamales());
    EXPECT_EQ(c.d.Ultimo().texto, "Existen Ramales Desconectados en la Red!\nVerifique el Tramo->( N9 - N10 )");
    // Typed in order the same chain passes.
    for (int k = 2; k <= 10; ++k) {
        c.p.Inicio[k] = QStringLiteral("N%1").arg(k - 1);
        c.p.Final[k] = QStringLiteral("N%1").arg(k);
    }
    EXPECT_FALSE(c.datos.VerifiqueRamales());
}

TEST(DatosAcueducto, InsertarConNoYEliminarSinFilas) {
    // The questions and the counts of a yes are checked on the screen.
    Pantalla t;
    t.datos.Spread1.PonerActiva(2, 3);
    t.d.respuestas = {Respuesta::No};
    t.datos.Insertar();
    EXPECT_EQ(t.d.Ultimo().texto, "Insertar un Nuevo Ramal en la Posición: ( 2 )");
    EXPECT_EQ(t.p.NumeroTramos, 3);
    t.datos.Insertar();  // the default answer is yes
    ASSERT_EQ(t.p.NumeroTramos, 4);
    EXPECT_EQ(t.datos.Spread1.Texto(4, 0), "4");
    EXPECT_EQ(t.sp.s.DatosModificados, -1);
    // After a deletion the box of sections shows the old count until the pages are filled again.
    t.d.respuestas = {Respuesta::Si};
    t.datos.Eliminar();
    EXPECT_EQ(t.p.NumeroTramos, 3);
    EXPECT_EQ(t.datos.Long2(), 4);
    t.datos.ColoquePantalla();
    EXPECT_EQ(t.datos.Long2(), 3);

    Pantalla vacia;
    vacia.datos.Spread1.PonerFilas(0);
    vacia.datos.Eliminar();
    EXPECT_TRUE(vacia.d.mensajes.empty());
    EXPECT_EQ(vacia.datos.foco, DatosAcueducto::Foco::Long2);
}

TEST(DatosAcueducto, LlenadoDeBloques) {
    Pantalla t;
    EXPECT_FALSE(t.datos.LlenarBloque(1, 1, 3, 3, 4));  // two columns: nothing asked, the block stays
    EXPECT_TRUE(t.d.preguntas.isEmpty());

    t.d.textos = {QStringLiteral("0.2504")};
    EXPECT_TRUE(t.datos.LlenarBloque(1, 1, 2, 4, 4));
    EXPECT_EQ(t.d.preguntas.last(), "Entre el Nuevo Diámetro:|Diametro de los Tramos|");
    EXPECT_EQ(t.p.Diametro[1], 0.25);
    EXPECT_EQ(t.p.Diametro[2], 0.25);
    EXPECT_EQ(t.p.Diametro[3], 0.1);

    t.d.textos = {QStringLiteral("cien")};
    t.datos.LlenarBloque(1, 1, 3, 5, 5);
    MensajeEs(t.d.Ultimo(), "¡Debe Entrar un Número!", "Error en el Número...");
    t.d.textos = {QStringLiteral("0.0004"), QString(), std::nullopt};  // rounds to 0; empty; cancel
    for (int k = 0; k < 3; ++k) t.datos.LlenarBloque(1, 1, 3, 5, 5);
    EXPECT_EQ(t.p.CoeficienteC[1], 120);

    t.d.textos = {QStringLiteral("1.5")};
    t.datos.LlenarBloque(1, 3, 1, 6, 6);
    EXPECT_EQ(t.d.preguntas.last(), "Entre el Consumo Medio de los Tramos:|Consumo Medio de los Tramos|");
    EXPECT_EQ(t.datos.Spread2.Texto(4, 2), "0.750");  // C: half of 1.5, lumped at once

    t.d.textos = {QStringLiteral("99.999")};
    t.datos.LlenarBloque(2, 1, 4, 3, 3);
    EXPECT_EQ(t.d.preguntas.last(), "Entre la Cota del Nodo (m):|Cota de los Nodos|");
    EXPECT_EQ(t.p.CotaTerreno[4], 99.999);
    const int preguntas = int(t.d.preguntas.size());
    t.datos.LlenarBloque(2, 1, 4, 2, 2);  // locked by section demand
    EXPECT_EQ(t.d.preguntas.size(), preguntas);
}

TEST(DatosAcueducto, LosNumerosSeLeenConCualquierMarcaYLoAmbiguoSeRechaza) {
    Pantalla t;
    const QString ambiguo = LeerNumeroTecleado(QStringLiteral("1,234")).motivo;
    // Under '.' decimals "0,125" is an eighth, never 125.
    t.d.textos = {QStringLiteral("0,125"), QStringLiteral("1,234")};
    t.datos.LlenarBloque(1, 1, 3, 4, 4);
    for (int i = 1; i <= 3; ++i) EXPECT_DOUBLE_EQ(t.p.Diametro[i], 0.125) << i;
    t.datos.LlenarBloque(2, 1, 4, 3, 3);
    ASSERT_EQ(t.d.mensajes.size(), 1u);
    MensajeEs(t.d.Ultimo(), ambiguo, "Error en el Número...");
    EXPECT_EQ(t.p.CotaTerreno[4], 35.0);

    const size_t vistos = t.d.mensajes.size();
    EXPECT_FALSE(t.datos.EditarRamal(1, 3, QStringLiteral("1,234")));
    EXPECT_EQ(t.p.Longitud[1], 100.0);
    ASSERT_EQ(t.d.mensajes.size(), vistos + 1);
    // A cell's refusal: the reader's reason, or the column's limits for a number.
    t.datos.NumeroRechazado(2, 3, QStringLiteral("1,234"));
    MensajeEs(t.d.Ultimo(), ambiguo, "Error en el Número...");
    t.datos.NumeroRechazado(1, 5, QStringLiteral("40000"));
    MensajeEs(t.d.Ultimo(), "¡Debe Entrar un Número entre 0 y 32767!", "Error en el Número...");

    const MarcasPrueba venezuela("es_VE");
    EXPECT_TRUE(t.datos.EditarNodo(3, 3, QStringLiteral("1.5")));
    EXPECT_EQ(t.p.CotaTerreno[3], 1.5);  // not 15
}

TEST(DatosAcueducto, CerrarSalvarYAbrir) {
    Pantalla t;
    EXPECT_TRUE(t.datos.PuedeCerrar());  // nothing changed, nothing asked
    EXPECT_TRUE(t.d.mensajes.empty());
    t.datos.CambiarTexto(DatosAcueducto::Texto::Proyecto, QString(200, QLatin1Char('x')));
    EXPECT_EQ(t.p.Proyecto.size(), 140);
    t.d.respuestas = {Respuesta::Cancelar};
    EXPECT_FALSE(t.datos.PuedeCerrar());
    MensajeEs(t.d.Ultimo(), "Los Datos del Proyecto han sido Modificados...\n¿Desea Salvar los Cambios Realizados?",
              "Salvar las Modificaciones...");
    EXPECT_EQ(t.d.Ultimo().botones, Botones::SiNoCancelar);
    t.d.respuestas = {Respuesta::Si};
    EXPECT_TRUE(t.datos.PuedeCerrar());
    EXPECT_EQ(t.sp.s.DatosModificados, 0);
    ProyectoAcueducto leido;
    QString error;
    ASSERT_TRUE(LeerProyectoACU(leido, t.sp.s, error));
    EXPECT_EQ(leido.Proyecto, QString(140, QLatin1Char('x')));

    // "Abrir" with a file that is not a project keeps the one open.
    t.d.archivos = {t.sp.ProyectoEnBlanco("casa.plm")};
    t.datos.Abrir();
    EXPECT_EQ(t.d.dialogosArchivo.last(), "Abrir un Proyecto Existente|*.ACU|*.acu|" + t.sp.Datos("Redes"));
    EXPECT_EQ(t.d.Ultimo().encabezado, "Error en Lectura de Datos...");
    EXPECT_EQ(t.sp.s.NombreProyectoACU, "red.acu");
    EXPECT_EQ(t.p.NumeroTramos, 3);
}

TEST(LongitudTramosAcu, LongitudDesdeLasCoordenadas) {
    // The dialog's boxes, questions and scroll bar are checked on the screen.
    Pantalla t;
    t.datos.Spread1.PonerActiva(2, 1);
    LongitudTramosAcu l(t.datos);
    EXPECT_EQ(t.datos.Spread1.ColumnaActiva(), 3);
    EXPECT_EQ(l.TextoLongitud(), "0.00");
    // Z alone: a vertical length; fixed unrounded, as typed in the grid.
    l.CambiarCoordenada(6, std::sqrt(2.0));
    EXPECT_EQ(l.TextoLongitud(), "1.41");
    l.FijarLongitud();
    EXPECT_EQ(t.d.Ultimo().texto, "Longitud = 1.41 m.\nFijar la Longitud del Tramo Seleccionado?");
    EXPECT_EQ(t.p.Longitud[2], std::sqrt(2.0));
    EXPECT_EQ(t.datos.Spread1.Texto(2, 3), "1.41");

    l.Limpiar();
    EXPECT_EQ(t.d.Ultimo().encabezado, "Coordenadas de los Nodos...");
    // A zero length fixed leaves a section the verification refuses.
    l.FijarLongitud();
    EXPECT_EQ(t.p.Longitud[2], 0.0);
    EXPECT_TRUE(t.datos.VerifiqueRamales());
    EXPECT_EQ(t.datos.Spread1.ColumnaActiva(), 3);

    l.ColoquePantalla(99);  // the scroll bar stops at the last row
    EXPECT_EQ(l.Scroll(), 3);
    EXPECT_EQ(l.Spread1.Texto(1, 3), "C");
}

TEST(DatosAcueducto, CoordenadasEnLaPaginaDeNodosYLongitudDesdeEllas) {
    Pantalla t;
    constexpr int X = 7, Y = 8;
    EXPECT_EQ(t.datos.Spread2.Encabezado(2, X), "X m");
    EXPECT_EQ(t.datos.Spread2.Texto(1, X), "");  // none yet
    {
        MarcasPrueba m("es_ES");
        EXPECT_TRUE(t.datos.EditarCelda(2, 1, X, "1.000,5"));
        EXPECT_EQ(t.p.X[1], 1000.5);
        EXPECT_EQ(t.datos.Spread2.Texto(1, X), "1000,500");
        EXPECT_FALSE(t.datos.EditarCelda(2, 1, Y, "abc"));  // refused with its reason, none kept
        EXPECT_FALSE(t.p.Y[1].has_value());
        EXPECT_EQ(t.datos.Spread2.Texto(1, Y), "");
    }
    EXPECT_TRUE(t.datos.EditarCelda(2, 1, Y, "0"));  // 0 is a coordinate
    EXPECT_EQ(t.p.Y[1], 0.0);
    t.sp.s.DatosModificados = 0;
    EXPECT_TRUE(t.datos.EditarCelda(2, 1, X, "  "));  // blank: none
    EXPECT_FALSE(t.p.X[1].has_value());
    EXPECT_NE(t.sp.s.DatosModificados, 0);

    // Section 1, T -> A: 3-4-5 in plan and the terrain from 50 down to 40.
    t.datos.Spread1.PonerActiva(1, 1);
    LongitudTramosAcu l(t.datos);
    EXPECT_FALSE(l.NodosConCoordenadas());
    EXPECT_FALSE(l.TomarDeLosNodos());
    EXPECT_EQ(t.d.Ultimo().texto, "¡El Nodo ( T ) no tiene Coordenadas!\nEntre X e Y en la página de los Nodos.");
    t.datos.EditarCelda(2, 1, X, "0");
    t.datos.EditarCelda(2, 2, X, "3");
    t.datos.EditarCelda(2, 2, Y, "4");
    ASSERT_TRUE(l.NodosConCoordenadas());
    ASSERT_TRUE(l.TomarDeLosNodos());
    EXPECT_EQ(l.Coordenada(3), 50.0);
    EXPECT_DOUBLE_EQ(l.Longitud(), std::sqrt(9.0 + 16.0 + 100.0));

    // The coordinates are saved with the project.
    ASSERT_TRUE(t.datos.Salvar());
    ProyectoAcueducto q;
    QString error;
    ASSERT_TRUE(LeerProyectoACU(q, t.sp.s, error));
    EXPECT_EQ(q.X[2], 3.0);
    EXPECT_EQ(q.Y[2], 4.0);
}
