// The grid view shows any Grid: texts, headers, spans, colours, locks, and
// reports an edit to the screen logic.

#include "base/Nivo.h"
#include "support/Apoyo.h"
#include "support/Modales.h"
#include "widgets/VistaGrid.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QHeaderView>
#include <gtest/gtest.h>

namespace {

// A grid shaped like the pre-sizing grid: a group header over columns 1-2,
// a single header over both rows at column 3, a list column 4, a number
// column 5, and one branch joined over two rows.
Grid Ejemplo() {
    Grid g(5);
    g.PonerEncabezado(1, 1, QStringLiteral("Ramal"));
    g.UnirEncabezado(1, 1, 1, 2);
    g.PonerEncabezado(2, 1, QStringLiteral("Nodo I"));
    g.PonerEncabezado(2, 2, QStringLiteral("Nodo J"));
    g.PonerEncabezados(3, QStringLiteral("Caudal (l/s)"));
    g.PonerEncabezados(4, QStringLiteral("Predimensionado Asumido"), QStringLiteral("Diámetro (plg)"));
    g.PonerEncabezados(5, QStringLiteral("Velocidad\n(m/s)"));
    g.Col(4).tipo = TipoCelda::Lista;
    g.Col(4).lista = {QStringLiteral("1/2\""), QStringLiteral("3/4\""), QStringLiteral("1\"")};
    g.Col(4).bloqueada = false;
    g.Col(5).tipo = TipoCelda::Numero;
    g.Col(5).bloqueada = false;
    g.Col(5).minimo = 0.0;
    g.PonerFilas(3);
    for (int f = 1; f <= 3; ++f) {
        g.PonerEntero(f, 0, f);
        g.PonerTexto(f, 1, QStringLiteral("N%1").arg(f));
        g.PonerNumero(f, 3, 0.25 * f, 2);
        g.PonerTexto(f, 4, QStringLiteral("3/4\""));
        g.PonerNumero(f, 5, 1.0, 2);
    }
    g.Unir(1, 1, 2, 1);
    g.PonerColorFondo(2, 4, 14803451);
    g.PonerColorTexto(3, 5, ColorRojo);
    return g;
}

}  // namespace

TEST(VistaGrid, MuestraTextosEncabezadosYUniones) {
    Grid g = Ejemplo();
    VistaGrid v;
    v.MostrarGrid(&g);
    ModeloGrid& m = v.Modelo();
    EXPECT_EQ(m.rowCount(), 3);
    EXPECT_EQ(m.columnCount(), 5);
    EXPECT_EQ(m.data(m.index(0, 0)).toString(), QStringLiteral("N1"));
    EXPECT_EQ(m.data(m.index(1, 2)).toString(), QStringLiteral("0.50"));
    EXPECT_EQ(m.headerData(2, Qt::Vertical, Qt::DisplayRole).toString(), QStringLiteral("3"));
    EXPECT_EQ(m.headerData(3, Qt::Horizontal, Qt::DisplayRole).toString(),
              QStringLiteral("Predimensionado Asumido\nDiámetro (plg)"));
    EXPECT_EQ(v.rowSpan(0, 0), 2);
    EXPECT_EQ(v.columnSpan(0, 0), 1);
    // Numbers to the right, texts to the left.
    EXPECT_EQ(m.data(m.index(0, 2), Qt::TextAlignmentRole).toInt() & Qt::AlignRight, int(Qt::AlignRight));
    EXPECT_EQ(m.data(m.index(0, 0), Qt::TextAlignmentRole).toInt() & Qt::AlignLeft, int(Qt::AlignLeft));
    EXPECT_TRUE(v.TextoEsquina().isEmpty());
    g.PonerEncabezado(1, 0, QStringLiteral("Clase de Edificio"));
    EXPECT_EQ(v.TextoEsquina(), QStringLiteral("Clase de Edificio"));
    // The header stands two rows high.
    EXPECT_GE(v.horizontalHeader()->sizeHint().height(), 2 * v.fontMetrics().height());
}

TEST(VistaGrid, ColoresEnAzulVerdeRojo) {
    Grid g = Ejemplo();
    VistaGrid v;
    v.MostrarGrid(&g);
    ModeloGrid& m = v.Modelo();
    // 14803451 = 0xE1E1FB: red FB, green E1, blue E1.
    EXPECT_EQ(m.data(m.index(1, 3), Qt::BackgroundRole).value<QColor>(), QColor(0xFB, 0xE1, 0xE1));
    EXPECT_EQ(m.data(m.index(2, 4), Qt::ForegroundRole).value<QColor>(), QColor(255, 0, 0));
    EXPECT_FALSE(m.data(m.index(0, 0), Qt::BackgroundRole).isValid());
}

TEST(VistaGrid, LasCeldasBloqueadasNoSeEditan) {
    Grid g = Ejemplo();
    g.Bloquear(3, 4, true);
    VistaGrid v;
    v.MostrarGrid(&g);
    ModeloGrid& m = v.Modelo();
    EXPECT_FALSE(m.flags(m.index(0, 0)) & Qt::ItemIsEditable);
    EXPECT_TRUE(m.flags(m.index(0, 3)) & Qt::ItemIsEditable);
    EXPECT_FALSE(m.flags(m.index(2, 3)) & Qt::ItemIsEditable);
    EXPECT_FALSE(m.setData(m.index(0, 0), QStringLiteral("X"), Qt::EditRole));
    EXPECT_EQ(g.Texto(1, 1), QStringLiteral("N1"));
}

TEST(VistaGrid, UnaEdicionLlegaALaLogicaConFilaColumnaYTexto) {
    Grid g = Ejemplo();
    VistaGrid v;
    v.MostrarGrid(&g);
    std::vector<std::tuple<int, int, QString>> ediciones;
    v.AlEditar([&](int f, int c, const QString& t) { ediciones.emplace_back(f, c, t); });
    ModeloGrid& m = v.Modelo();
    EXPECT_TRUE(m.setData(m.index(1, 3), QStringLiteral("1\""), Qt::EditRole));
    // A number cell takes the session's separators and shows its decimals.
    EXPECT_TRUE(m.setData(m.index(2, 4), QStringLiteral("2.5"), Qt::EditRole));
    // It refuses text that is not a number, and a value under its limit.
    EXPECT_FALSE(m.setData(m.index(2, 4), QStringLiteral("dos"), Qt::EditRole));
    EXPECT_FALSE(m.setData(m.index(2, 4), QStringLiteral("-1"), Qt::EditRole));
    QApplication::processEvents();
    ASSERT_EQ(ediciones.size(), 2u);
    EXPECT_EQ(ediciones[0], std::make_tuple(2, 4, QStringLiteral("1\"")));
    EXPECT_EQ(ediciones[1], std::make_tuple(3, 5, QStringLiteral("2.50")));
    EXPECT_DOUBLE_EQ(g.Valor(3, 5), 2.5);
    EXPECT_TRUE(g.EsNumero(3, 5));
}

TEST(VistaGrid, LaCeldaDeListaEditaConSuLista) {
    Grid g = Ejemplo();
    VistaGrid v;
    v.MostrarGrid(&g);
    QStyleOptionViewItem o;
    const QModelIndex i = v.Modelo().index(0, 3);
    std::unique_ptr<QWidget> editor(v.itemDelegate()->createEditor(v.viewport(), o, i));
    auto* combo = qobject_cast<QComboBox*>(editor.get());
    ASSERT_NE(combo, nullptr);
    EXPECT_EQ(combo->count(), 3);
    v.itemDelegate()->setEditorData(combo, i);
    EXPECT_EQ(combo->currentText(), QStringLiteral("3/4\""));
    combo->setCurrentIndex(0);
    v.itemDelegate()->setModelData(combo, &v.Modelo(), i);
    EXPECT_EQ(g.Texto(1, 4), QStringLiteral("1/2\""));
}

TEST(VistaGrid, LaCeldaActivaVaYViene) {
    Grid g = Ejemplo();
    g.PonerActiva(3, 2);
    VistaGrid v;
    v.MostrarGrid(&g);
    EXPECT_EQ(v.currentIndex(), v.Modelo().index(2, 1));
    v.setCurrentIndex(v.Modelo().index(1, 4));
    EXPECT_EQ(g.FilaActiva(), 2);
    EXPECT_EQ(g.ColumnaActiva(), 5);
}

TEST(VistaGrid, RefrescarRehaceLasUnionesSoloCuandoCambian) {
    Grid g = Ejemplo();
    VistaGrid v;
    v.MostrarGrid(&g);
    g.PonerTexto(1, 1, QStringLiteral("cambiado"));
    v.Refrescar();
    EXPECT_EQ(v.Modelo().data(v.Modelo().index(0, 0)).toString(), QStringLiteral("cambiado"));
    EXPECT_EQ(v.rowSpan(0, 0), 2);
    // A reduction row inserted: one row more, the join moves down.
    g.InsertarFila(1);
    g.Unir(2, 1, 3, 1);
    v.Refrescar();
    EXPECT_EQ(v.Modelo().rowCount(), 4);
    EXPECT_EQ(v.rowSpan(1, 0), 3);
    g.Vaciar();
    v.Refrescar();
    EXPECT_EQ(v.Modelo().rowCount(), 0);
}

namespace {

using Ediciones = std::vector<std::tuple<int, int, QString>>;

// The sample grid in a view with the cell (fila, columna), from 1, current;
// every edit the view reports is kept in order.
struct VistaEjemplo {
    Grid g = Ejemplo();
    VistaGrid v;
    Ediciones ediciones;
    VistaEjemplo(int fila, int columna) {
        v.MostrarGrid(&g);
        v.AlEditar([this](int f, int c, const QString& t) { ediciones.emplace_back(f, c, t); });
        v.setCurrentIndex(v.Modelo().index(fila - 1, columna - 1));
    }
};

}  // namespace

TEST(VistaGrid, EnterConfirmaYBajaUnaFila) {
    struct Caso {
        int fila;              // where the typing starts, in the velocities (1.00 each)
        const char* teclas;    // '\n' is Enter
        double valores[3];     // the velocities afterwards
        int ediciones, filaFinal;
    };
    const Caso casos[] = {
        {1, "2.5\n", {2.5, 1, 1}, 1, 2},
        {1, "7\n8\n9\n", {7, 8, 9}, 3, 3},  // the last row keeps the cell
        {1, "\n\n", {1, 1, 1}, 0, 3},       // Enter alone walks down
        {2, "-4\n", {1, 1, 1}, 0, 2},        // refused below 0: the cell stays current
    };
    for (const Caso& caso : casos) {
        VistaEjemplo e(caso.fila, 5);
        e.v.show();
        TeclearEnVista(&e.v, QString::fromLatin1(caso.teclas));
        for (int f = 1; f <= 3; ++f) EXPECT_DOUBLE_EQ(e.g.Valor(f, 5), caso.valores[f - 1]) << caso.teclas << f;
        EXPECT_EQ(int(e.ediciones.size()), caso.ediciones) << caso.teclas;
        EXPECT_EQ(e.v.currentIndex().row() + 1, caso.filaFinal) << caso.teclas;
        EXPECT_EQ(e.v.currentIndex().column(), 4) << caso.teclas;
    }
}

TEST(VistaGrid, LoTecleadoTrasUnClicEnLaCeldaActualNoSePierde) {
    VistaEjemplo e(2, 5);
    e.v.show();
    const QRect celda = e.v.visualRect(e.v.currentIndex());
    QTest::mouseClick(e.v.viewport(), Qt::LeftButton, Qt::NoModifier, celda.center());
    TeclearEnVista(&e.v, QStringLiteral("4\n"));
    EXPECT_DOUBLE_EQ(e.g.Valor(2, 5), 4.0);
}

TEST(VistaGrid, CopiarDaLosTextosVistosPorTabuladoresYLineas) {
    // Ejemplo(): N1 joined over rows 1-2 of column 1, column 2 empty,
    // flows 0.25 0.50 0.75, diameters 3/4", velocities 1.00.
    struct Caso {
        int f1, f2, c1, c2;
        bool ocultarColumna2;
        const char* esperado;
    };
    const Caso casos[] = {
        {2, 2, 3, 3, false, "0.50"},
        {1, 3, 1, 3, false, "N1\t\t0.25\n\t\t0.50\nN3\t\t0.75"},  // N2 lies under the join
        {1, 1, 1, 5, true, "N1\t0.25\t3/4\"\t1.00"},
        {2, 3, 4, 5, false, "3/4\"\t1.00\n3/4\"\t1.00"},
    };
    for (const Caso& caso : casos) {
        VistaEjemplo e(caso.f1, caso.c1);
        e.v.setColumnHidden(1, caso.ocultarColumna2);
        e.v.selectionModel()->select(QItemSelection(e.v.currentIndex(), e.v.Modelo().index(caso.f2 - 1, caso.c2 - 1)),
                                     QItemSelectionModel::ClearAndSelect);
        QTest::keyClick(&e.v, Qt::Key_C, Qt::ControlModifier);
        EXPECT_EQ(QGuiApplication::clipboard()->text(), QString::fromUtf8(caso.esperado)) << caso.esperado;
    }
}

TEST(VistaGrid, PegarPasaCadaCeldaPorLaMismaEntrada) {
    struct Caso {
        const char* nombre;
        int fila, columna;  // the current cell
        const char* texto;
        Ediciones ediciones;
        int filaFinal, columnaFinal;
    };
    // Into the diameters (a list) and the velocities (numbers from 0); each
    // edit is also a value in the grid, so the list says what was written.
    const Caso casos[] = {
        {"bloque con salto final", 1, 4, "1/2\"\t1.5\n1\"\t2\n",
         {{1, 4, "1/2\""}, {1, 5, "1.50"}, {2, 4, "1\""}, {2, 5, "2.00"}}, 1, 4},
        {"fines de línea de Windows", 2, 4, "1\"\t1.5\r\n1\"\t2\r\n",
         {{2, 4, "1\""}, {2, 5, "1.50"}, {3, 4, "1\""}, {3, 5, "2.00"}}, 2, 4},
        // The locked flow and the column past the edge drop their values.
        {"bloqueadas y fuera", 1, 3, "7\t1\"\t5\t9", {{1, 4, "1\""}, {1, 5, "5.00"}}, 1, 3},
        {"filas de más", 2, 5, "7\n8\n9\n", {{2, 5, "7.00"}, {3, 5, "8.00"}}, 2, 5},
        // Below the column's limit, or not a number: the paste stops on that cell.
        {"rechazo", 1, 5, "1\n-4\n6", {{1, 5, "1.00"}}, 2, 5},
        {"texto en un número", 2, 5, "uno\n6", {}, 2, 5},
        // A list cell takes its own names (the inch mark may be left out) and
        // stops on one the drop-down does not offer, as choosing cannot give it.
        {"nombres de la lista", 1, 4, "1/2\n7/8\"\n1\"", {{1, 4, "1/2"}}, 2, 4},
    };
    for (const Caso& caso : casos) {
        VistaEjemplo e(caso.fila, caso.columna);
        QGuiApplication::clipboard()->setText(QString::fromUtf8(caso.texto));
        QTest::keyClick(&e.v, Qt::Key_V, Qt::ControlModifier);
        QApplication::processEvents();
        EXPECT_EQ(e.ediciones, caso.ediciones) << caso.nombre;
        EXPECT_EQ(e.g.Texto(1, 3), QStringLiteral("0.25")) << caso.nombre;
        EXPECT_EQ(e.v.currentIndex().row() + 1, caso.filaFinal) << caso.nombre;
        EXPECT_EQ(e.v.currentIndex().column() + 1, caso.columnaFinal) << caso.nombre;
    }
}

TEST(VistaGrid, UnTextoUnidoSeMideSobreSusColumnas) {
    // 15 characters: cut in one column of 10, whole over two (a cut text
    // in one column is checked with the widths below).
    Grid g(3);
    g.PonerFilas(1);
    g.PonerTexto(1, 1, QString(15, QLatin1Char('x')));
    g.PonerTexto(1, 3, QString(15, QLatin1Char('x')));
    g.Unir(1, 1, 1, 2);
    VistaGrid v;
    v.resize(100, 100);  // no room for the columns to grow
    v.MostrarGrid(&g);
    EXPECT_FALSE(v.Modelo().data(v.Modelo().index(0, 0), Qt::ToolTipRole).isValid());
    EXPECT_EQ(v.Modelo().data(v.Modelo().index(0, 2), Qt::ToolTipRole).toString(), QString(15, QLatin1Char('x')));
}

TEST(VistaGrid, LasColumnasDeTextoCrecenConElEspacioLibre) {
    // A name of 30 characters in a text column of 8 and a number column of 8.
    Grid g(2);
    g.Col(1).ancho = g.Col(2).ancho = 8;
    g.Col(2).tipo = TipoCelda::Numero;
    g.PonerFilas(2);
    const QString nombre(30, QLatin1Char('n'));
    g.PonerTexto(2, 1, nombre);
    g.PonerNumero(1, 2, 12345678.5, 2);
    VistaGrid v;
    v.MostrarGrid(&g);
    v.show();
    const int fijo = v.columnWidth(1);  // both were set to 8 characters
    const int caracter = v.fontMetrics().averageCharWidth();
    // Narrow, the column keeps its width and the name its tool-tip; wide,
    // the name fits and the number column stays as set.
    v.resize(2 * fijo, 200);
    QApplication::processEvents();
    EXPECT_EQ(v.columnWidth(0), fijo);
    EXPECT_TRUE(v.Modelo().data(v.Modelo().index(1, 0), Qt::ToolTipRole).isValid());
    v.resize(100 * caracter, 200);
    QApplication::processEvents();
    EXPECT_GE(v.columnWidth(0), v.fontMetrics().horizontalAdvance(nombre));
    EXPECT_FALSE(v.Modelo().data(v.Modelo().index(1, 0), Qt::ToolTipRole).isValid());
    EXPECT_EQ(v.columnWidth(1), fijo);
    // A text beyond the limit of 60 characters is cut there.
    g.PonerTexto(1, 1, QString(200, QLatin1Char('n')));
    v.Refrescar();
    EXPECT_LE(v.columnWidth(0), 60 * caracter);
}
