// The sample "Edificio_ApartamentoTipo" typed from a blank project through
// the logic of the entry screens only, as an engineer would type it, then
// saved and analysed: every figure of the analysis equals the shipped
// sample's, branch by branch.

#include "analysis/AnalisisRed.h"
#include "analysis/Numeracion.h"
#include "entry/CambiarOpcionDiseno.h"
#include "entry/ComentarioRamal.h"
#include "entry/ConexionesRamales.h"
#include "entry/CotasNodos.h"
#include "entry/DatosRamales.h"
#include "entry/PiezasRamales.h"
#include "model/ArchivoEdificio.h"
#include "model/ProyectoEdificio.h"
#include "support/Apoyo.h"

#include <QDir>
#include <gtest/gtest.h>

namespace {

// A fixture or fitting row as the engineer enters it: by a quick button or
// by typing its key, then the quantity when it is not 1.
struct Fila {
    int clave;
    bool rapido;
    int cantidad = 1;
};

struct Ramal {
    const char *i, *j, *longitud;
    std::vector<Fila> piezas, conexiones;
    const char* comentario;
};

// The sample's branches, read from its data sheet.
const std::vector<Ramal>& Apartamento() {
    static const std::vector<Ramal> r = {
        {"MONTANTE", "ENTRADA", "3", {}, {{13, false}, {3, true}, {5, true, 2}}, "Derivación desde el montante"},
        {"ENTRADA", "PASILLO", "5", {}, {{5, true, 2}, {10, true}}, "Distribución interior"},
        {"PASILLO", "COCINA", "4", {{7, true}, {9, true}}, {{5, true, 3}, {1, false}}, "Cocina"},
        {"COCINA", "LAVANDERIA", "3", {{2, true}, {12, false}}, {{5, true, 2}, {10, true}}, "Lavandería"},
        {"PASILLO", "BAÑO 1", "6", {{1, true}, {5, false}, {10, true, 2}}, {{5, true, 4}, {11, true}, {1, false}},
         "Baño principal"},
        {"BAÑO 1", "BAÑO 2", "4.5", {{4, true}, {5, true}, {10, false}}, {{5, true, 3}, {1, false}},
         "Baño secundario"},
    };
    return r;
}

// Fills the rows of the screen's current branch: the count first, then each
// row by its button or its key, the quantity overtyped.
template <class Pantalla>
void Llenar(Pantalla& pantalla, int ramal, const std::vector<Fila>& filas) {
    ASSERT_TRUE(pantalla.EditarRamales(ramal, 3, QString::number(filas.size())));
    for (size_t k = 0; k < filas.size(); ++k) {
        const int fila = int(k) + 1;
        pantalla.Spread2.PonerActiva(fila, 1);
        if (filas[k].rapido)
            pantalla.BotonRapido(filas[k].clave);
        else
            ASSERT_TRUE(pantalla.EditarFilas(fila, 1, QString::number(filas[k].clave)));
        if (filas[k].cantidad != 1) ASSERT_TRUE(pantalla.EditarFilas(fila, 5, QString::number(filas[k].cantidad)));
    }
}

// The analysis of a project file as the analysis screen shows it.
struct Analisis {
    ProyectoEdificio p;
    DialogosFalsos d;
    std::unique_ptr<AnalisisRed> a;
    Analisis(SesionPrueba& sp, const QString& ruta) {
        QString error;
        EXPECT_TRUE(CargarProyectoEdificio(p, sp.s, ruta, error)) << error.toStdString();
        VerificarNumeracion(p, d);
        a = std::make_unique<AnalisisRed>(p, sp.s, d);
        a->Cargar();
    }
};

}  // namespace

TEST(TecleoEdificio, ElApartamentoTipoTecleadoAnalizaComoElDeMuestra) {
    SesionPrueba sp;
    QDir().mkpath(sp.Datos(QStringLiteral("Proyectos")));
    const QString cat = sp.CopiaDeEjemplo(QStringLiteral("BDPiezasConexiones.nivo"), QStringLiteral("cat.mdb"));
    ASSERT_EQ(AbrirConexion(sp.s.ConexionCatalogo, cat), 0);

    // What NuevoProyecto leaves: a blank file, the defaults, the project marked as changed.
    ProyectoEdificio p;
    DialogosFalsos d;
    sp.s.ArchivoProyecto = sp.ProyectoEnBlanco(QStringLiteral("Proyectos/Tecleado.plm"));
    sp.s.NombreProyecto = QStringLiteral("Tecleado.plm");
    ValoresIniciales(p, sp.s);
    sp.s.ProyectoModificado = true;
    ASSERT_EQ(AbrirConexionProyecto(sp.s), 0);

    DatosRamales editor(p, sp.s, d);
    editor.Cargar();
    editor.CambiarTexto(DatosRamales::Texto::Proyecto, QStringLiteral("Apartamento tipo"));
    editor.CambiarTexto(DatosRamales::Texto::Calculista, QStringLiteral("Nivo Software"));
    editor.CambiarTexto(DatosRamales::Texto::Comentario,
                        QStringLiteral("Presión disponible de 20 m a la salida del medidor del apartamento."));
    editor.CambiarFecha(QDate(2024, 1, 15));
    editor.CambiarOpcionUsoPiezas(0);
    editor.CambiarOpcionPresionInicial(1);
    editor.CambiarValor(2, 20.0);
    editor.CambiarVelocidad(1.2);
    editor.CambiarOpcionDiametro(0);
    editor.CambiarDiametroMinimo(false);
    editor.CambiarOpcionPerdidas(0);

    const auto& ramales = Apartamento();
    editor.CambiarNumeroRamales(int(ramales.size()));
    editor.AplicarNumeroRamales();
    for (size_t k = 0; k < ramales.size(); ++k) {
        const int i = int(k) + 1;
        ASSERT_TRUE(editor.EditarCelda(i, 1, QString::fromUtf8(ramales[k].i)));
        ASSERT_TRUE(editor.EditarCelda(i, 2, QString::fromUtf8(ramales[k].j)));
        ASSERT_TRUE(editor.EditarCelda(i, 3, QString::fromUtf8(ramales[k].longitud)));
    }
    editor.Compatibilidad();
    MensajeEs(d.Ultimo(), QStringLiteral("¡No se Encontraron Errores en la Numeración de los Ramales!"),
              d.Ultimo().encabezado);

    // Fixtures and fittings, branch by branch, each screen opened on its branch.
    for (size_t k = 0; k < ramales.size(); ++k) {
        const int i = int(k) + 1;
        editor.MoverCursor(i, 3);
        if (!ramales[k].piezas.empty()) {
            ASSERT_TRUE(editor.PiezasSanitarias());
            PiezasRamales piezas(p, sp.s, d, editor);
            piezas.Cargar();
            Llenar(piezas, i, ramales[k].piezas);
            piezas.Cerrar();
            editor.ColoqueNPiezas();
        }
        ASSERT_TRUE(editor.Conexiones());
        ConexionesRamales conexiones(p, sp.s, d, editor);
        conexiones.Cargar();
        Llenar(conexiones, i, ramales[k].conexiones);
        conexiones.Cerrar();
        editor.ColoqueNConexiones();
    }
    EXPECT_EQ(editor.Spread1.Texto(5, 6), QStringLiteral("3"));
    EXPECT_EQ(editor.Spread1.Texto(1, 7), QStringLiteral("3"));

    // Floor levels: all on one floor, set at once as a block.
    ASSERT_TRUE(editor.CotasPiso());
    {
        CotasNodos cotas(p, sp.s, d);
        cotas.Cargar();
        d.textos.push_back(QStringLiteral("0"));
        cotas.LlenarBloque(1, cotas.Spread1.Filas(), 2, 2);
        cotas.Fijar();
    }
    // Every branch fed with tank fixtures, set globally.
    ASSERT_TRUE(editor.Diseno());
    {
        CambiarOpcionDiseño diseno(p, sp.s, d, editor);
        diseno.Cargar();
        diseno.CambiarOpcion(0);
        diseno.MarcarTodo();
        d.respuestas.push_back(Respuesta::Si);
        diseno.Fijar();
    }
    d.respuestas.clear();
    ASSERT_TRUE(editor.Salvar());
    EXPECT_FALSE(sp.s.ProyectoModificado);
    sp.s.ConexionProyecto.Cerrar();

    // The typed project analysed; the sample's own assumed diameter and the
    // comments are typed in the analysis screen, as the engineer does.
    const QString muestra = sp.CopiaDeEjemplo(QStringLiteral("Edificio_ApartamentoTipo.nivo"),
                                              QStringLiteral("Proyectos/Muestra.plm"));
    Analisis tecleado(sp, sp.s.ArchivoProyecto);
    tecleado.a->EditarDiametroAsumido(2, QStringLiteral("1\""));
    for (size_t k = 0; k < ramales.size(); ++k) {
        const int i = int(k) + 1;
        ComentarioRamal comentario(tecleado.p, sp.s, tecleado.d, *tecleado.a);
        sp.s.RamalActual = i;
        comentario.Cargar();
        comentario.CambiarTexto(QString::fromUtf8(ramales[k].comentario));
        tecleado.d.respuestas.push_back(Respuesta::Si);
        comentario.Fijar();
    }
    Analisis ejemplo(sp, muestra);

    const Grid* grids[2][4] = {
        {&tecleado.a->Spread4, &tecleado.a->Spread1, &tecleado.a->Spread2, &tecleado.a->Spread3},
        {&ejemplo.a->Spread4, &ejemplo.a->Spread1, &ejemplo.a->Spread2, &ejemplo.a->Spread3}};
    for (int t = 0; t < 4; ++t) {
        const Grid& a = *grids[0][t];
        const Grid& b = *grids[1][t];
        ASSERT_EQ(a.Filas(), b.Filas()) << "pestaña " << t + 1;
        for (int f = 1; f <= a.Filas(); ++f)
            for (int c = 0; c <= a.Columnas(); ++c)
                EXPECT_EQ(a.Texto(f, c), b.Texto(f, c)) << "pestaña " << t + 1 << ", fila " << f << ", columna " << c;
    }
    EXPECT_EQ(tecleado.p.NodoDesfaborableNombre, ejemplo.p.NodoDesfaborableNombre);
    EXPECT_DOUBLE_EQ(tecleado.p.PresionDesfaborable, ejemplo.p.PresionDesfaborable);
}
