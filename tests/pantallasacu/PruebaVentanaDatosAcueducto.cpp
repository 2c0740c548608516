// The aqueduct data screen as the engineer works it: the sample on its
// three pages, typing into both grids (every value reaches the arrays and
// the file, even with the editor still open), insert and delete with their
// questions, the checks, the block fill, the right-click menu, the closing,
// and its two small dialogs.

#include "ApoyoACU.h"
#include "aqueduct/screens/VentanaCoficientesACU.h"
#include "aqueduct/screens/VentanaDatosAcueducto.h"
#include "aqueduct/screens/VentanaLongitudTramosAcu.h"
#include "widgets/NivoNumero.h"

#include <QAction>
#include <QClipboard>
#include <QDateEdit>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QStackedWidget>
#include <QValidator>

namespace {

struct DatosACU : PantallaACU {
    std::unique_ptr<VentanaDatosAcueducto> v;

    void Abrir(const char* ejemplo, Dialogos& d) {
        Cargar(ejemplo);
        v = std::make_unique<VentanaDatosAcueducto>(p, s, d);
        v->show();
    }
    QPushButton* Boton(const char* nombre) const { return v->Boton(QString::fromUtf8(nombre)); }
    int Pagina() const { return v->findChild<QStackedWidget*>()->currentIndex() + 1; }
    QString Celda(VistaGrid* g, int f, int c) const {
        return g->model()->index(f - 1, c - 1).data().toString();
    }
    NivoNumero* Caja(const char* nombre) const { return v->findChild<NivoNumero*>(QString::fromLatin1(nombre)); }
};

}  // namespace

TEST_F(DatosACU, ElEjemploLlenaLasTresPaginas) {
    Abrir("EjemploRedA", falsos);
    EXPECT_EQ(v->windowTitle(), QStringLiteral("Redes de Acueductos   Proyecto: [ EJEMPLOREDA.ACU ]"));
    EXPECT_EQ(Pagina(), 1);
    EXPECT_EQ(v->findChild<QLineEdit*>(QStringLiteral("Text1"))->text(),
              QStringLiteral("Acueducto de San Rafael - red mallada con un estanque"));
    EXPECT_EQ(v->findChild<QLineEdit*>(QStringLiteral("Text1"))->maxLength(), 140);
    EXPECT_EQ(v->findChild<QLineEdit*>(QStringLiteral("Text2"))->maxLength(), 70);
    EXPECT_EQ(v->findChild<QLineEdit*>(QStringLiteral("Text4"))->maxLength(), 100);
    EXPECT_EQ(v->findChild<QDateEdit*>(QStringLiteral("Date1"))->text(), QStringLiteral("15/04/2024"));
    EXPECT_TRUE(v->findChild<QRadioButton*>(QStringLiteral("Diámetro en Milímetros"))->isChecked());
    EXPECT_TRUE(v->findChild<QRadioButton*>(QStringLiteral("Consumo por Tramo"))->isChecked());
    EXPECT_EQ(Caja("Long1")->text(), QStringLiteral("140"));
    EXPECT_EQ(Caja("Double1")->text(), QStringLiteral("5.00"));
    EXPECT_EQ(Caja("Double4")->text(), QStringLiteral("16.00"));
    // Page 1: the section buttons wait for page 2; the sample has rows to report.
    EXPECT_FALSE(Boton("Insertar")->isEnabled());
    EXPECT_FALSE(Boton("Anterior")->isEnabled());
    EXPECT_TRUE(Boton("Abrir")->isEnabled());
    EXPECT_TRUE(Boton("Reportes")->isVisibleTo(v.get()));
    EXPECT_TRUE(Boton("Reportes")->isEnabled());

    Boton("Siguiente")->click();
    EXPECT_EQ(Pagina(), 2);
    for (const char* b : {"Insertar", "Eliminar", "Compatibilidad", "Longitudes", "Anterior"})
        EXPECT_TRUE(Boton(b)->isEnabled()) << b;
    EXPECT_EQ(Caja("Long2")->text(), QStringLiteral("26"));
    ASSERT_EQ(v->Vista1()->model()->rowCount(), 26);
    EXPECT_EQ(Celda(v->Vista1(), 1, 1), QStringLiteral("Tanque"));
    EXPECT_EQ(Celda(v->Vista1(), 1, 3), QStringLiteral("420.00"));
    EXPECT_EQ(Celda(v->Vista1(), 1, 4), QStringLiteral("150.000"));
    EXPECT_EQ(Celda(v->Vista1(), 1, 5), QStringLiteral("140"));
    EXPECT_EQ(Celda(v->Vista1(), 2, 6), QStringLiteral("0.400"));
    // A node name fits the 20 characters of its record; a number cell takes
    // the keys of a number only.
    Escribir(v->Vista1(), 1, 1, QStringLiteral("Tanque"));
    ASSERT_NE(EditorAbierto(v->Vista1()), nullptr);
    EXPECT_EQ(EditorAbierto(v->Vista1())->maxLength(), 20);
    v->TerminarEdicion();
    Escribir(v->Vista1(), 1, 3, QStringLiteral("420"));
    QLineEdit* numero = EditorAbierto(v->Vista1());
    ASSERT_NE(numero, nullptr);
    ASSERT_NE(numero->validator(), nullptr);
    QString texto = QStringLiteral("12a");
    int pos = 0;
    EXPECT_EQ(numero->validator()->validate(texto, pos), QValidator::Invalid);
    v->TerminarEdicion();
    EXPECT_EQ(s.DatosModificados, -1);  // the same values, written again

    Boton("Siguiente")->click();
    EXPECT_EQ(Pagina(), 3);
    EXPECT_FALSE(Boton("Siguiente")->isEnabled());
    EXPECT_FALSE(Boton("Insertar")->isEnabled());
    ASSERT_EQ(v->Vista2()->model()->rowCount(), 18);
    EXPECT_EQ(Celda(v->Vista2(), 1, 1), QStringLiteral("Tanque"));
    EXPECT_EQ(Celda(v->Vista2(), 1, 4), QStringLiteral("127.00"));
    EXPECT_EQ(Celda(v->Vista2(), 2, 4), QString());  // no tank at Entrada
    // By section: Entrada takes half of Tanque-Entrada (0) and of Entrada-Boli-4 (0.4).
    EXPECT_EQ(Celda(v->Vista2(), 2, 2), QStringLiteral("0.200"));
    EXPECT_FALSE(v->Vista2()->model()->flags(v->Vista2()->model()->index(1, 1)) & Qt::ItemIsEditable);
    EXPECT_TRUE(v->Vista2()->model()->flags(v->Vista2()->model()->index(1, 2)) & Qt::ItemIsEditable);
    EXPECT_EQ(Celda(v->Vista2(), 2, 6), QStringLiteral("Entrada-Tanque,  Entrada-Boli-4"));
    Boton("Anterior")->click();
    EXPECT_EQ(Pagina(), 2);
}

TEST_F(DatosACU, CadaValorEscritoLlegaALosArreglosYAlArchivo) {
    Abrir("EjemploRedA", falsos);
    Boton("Siguiente")->click();
    VistaGrid* g = v->Vista1();
    // Values typed and left: each cell's report reaches the arrays.
    EscribirYSalir(g, 2, 1, QStringLiteral("  Acceso "));
    EscribirYSalir(g, 3, 3, QStringLiteral("181.256"));
    EscribirYSalir(g, 3, 4, QStringLiteral("125"));
    EscribirYSalir(g, 3, 5, QStringLiteral("120"));
    EscribirYSalir(g, 3, 6, QStringLiteral("0.755"));
    Procesar();
    EXPECT_EQ(p.Inicio[2], QStringLiteral("Acceso"));  // trimmed
    EXPECT_EQ(p.Final[1], QStringLiteral("Entrada"));
    EXPECT_DOUBLE_EQ(p.Longitud[3], 181.256);  // the number as typed, not its picture
    EXPECT_EQ(Celda(g, 3, 3), QStringLiteral("181.26"));
    EXPECT_DOUBLE_EQ(p.Diametro[3], 125.0);
    EXPECT_EQ(p.CoeficienteC[3], 120);
    EXPECT_DOUBLE_EQ(p.Demanda[3], 0.755);
    EXPECT_EQ(s.DatosModificados, -1);
    // The node page followed: "Acceso" is a new node, after Tanque and Entrada.
    EXPECT_EQ(p.Nodos[3], QStringLiteral("Acceso"));

    // The last value is still in its editor when "Salvar" is pressed.
    Escribir(g, 4, 3, QStringLiteral("99.5"));
    Boton("Salvar")->click();
    EXPECT_DOUBLE_EQ(p.Longitud[4], 99.5);
    EXPECT_EQ(s.DatosModificados, 0);
    const ProyectoAcueducto f = Releer();
    EXPECT_EQ(f.Inicio[2], QStringLiteral("Acceso"));
    EXPECT_DOUBLE_EQ(f.Longitud[3], 181.26);  // two decimals in the file
    EXPECT_DOUBLE_EQ(f.Diametro[3], 125.0);
    EXPECT_EQ(f.CoeficienteC[3], 120);
    EXPECT_DOUBLE_EQ(f.Demanda[3], 0.755);
    EXPECT_DOUBLE_EQ(f.Longitud[4], 99.5);
}

TEST_F(DatosACU, LosNodosEscritosLleganAlArchivoAlCerrarConSi) {
    Abrir("EjemploRedB", falsos);  // demand by node: column 2 is open
    Boton("Siguiente")->click();
    Boton("Siguiente")->click();
    ASSERT_EQ(Pagina(), 3);
    VistaGrid* g = v->Vista2();
    EscribirYSalir(g, 2, 2, QStringLiteral("0.35"));
    EscribirYSalir(g, 2, 3, QStringLiteral("81.75"));
    EscribirYSalir(g, 3, 4, QStringLiteral("90"));
    Procesar();
    EXPECT_DOUBLE_EQ(p.ConsumoMedio[2], 0.35);
    EXPECT_DOUBLE_EQ(p.CotaTerreno[2], 81.75);
    EXPECT_DOUBLE_EQ(p.CotaBombaEstanque[3], 90.0);
    // A level of 0 is an ordinary node and its cell is empty.
    EscribirYSalir(g, 3, 4, QStringLiteral("0"));
    Procesar();
    EXPECT_EQ(Celda(g, 3, 4), QString());
    EXPECT_DOUBLE_EQ(p.CotaBombaEstanque[3], 0.0);
    // Still in the editor when the screen is closed: the question, then the save.
    Escribir(g, 4, 3, QStringLiteral("66.4"));
    falsos.respuestas = {Respuesta::Si};
    v->reject();
    EXPECT_FALSE(v->isVisible());
    ASSERT_EQ(falsos.mensajes.size(), 1u);
    const ProyectoAcueducto f = Releer();
    EXPECT_DOUBLE_EQ(f.ConsumoMedio[2], 0.35);
    EXPECT_DOUBLE_EQ(f.CotaTerreno[2], 81.75);
    EXPECT_DOUBLE_EQ(f.CotaBombaEstanque[3], 0.0);
    EXPECT_DOUBLE_EQ(f.CotaTerreno[4], 66.4);
}

TEST_F(DatosACU, ElCierreConCambiosPreguntaEnLaCajaDelPrograma) {
    Abrir("EjemploRedA", qt);
    auto* text3 = v->findChild<QLineEdit*>(QStringLiteral("Text3"));
    QKeyEvent tecla(QEvent::KeyPress, Qt::Key_X, Qt::NoModifier, QStringLiteral("X"));
    QApplication::sendEvent(text3, &tecla);
    EXPECT_EQ(p.Cliente, QStringLiteral("X"));
    EXPECT_EQ(s.DatosModificados, -1);
    // The question's texts are checked with the screen's logic.
    MensajeVisto caja;
    Contestar(caja, 0);  // "Cancelar": the screen stays
    v->reject();
    EXPECT_TRUE(v->isVisible());
    EXPECT_EQ(caja.encabezado, QStringLiteral("Salvar las Modificaciones..."));
    Contestar(caja, 1);  // "No": closes without a save
    v->reject();
    EXPECT_FALSE(v->isVisible());
    EXPECT_EQ(s.DatosModificados, -1);
}

TEST_F(DatosACU, InsertarYEliminarConSusPreguntasYElCoeficiente) {
    Abrir("EjemploRedA", qt);
    Boton("Siguiente")->click();
    VistaGrid* g = v->Vista1();
    g->setCurrentIndex(g->model()->index(1, 2));
    MensajeVisto caja;
    Contestar(caja, 1);  // "Sí"
    Boton("Insertar")->click();
    MensajeEs(caja, QStringLiteral("Insertar un Nuevo Ramal en la Posición: ( 2 )"),
              QStringLiteral("Insertar Ramal en la Red..."));
    EXPECT_EQ(p.NumeroTramos, 27);
    EXPECT_EQ(Caja("Long2")->text(), QStringLiteral("27"));
    EXPECT_EQ(Celda(g, 2, 1), QString());
    EXPECT_EQ(Celda(g, 2, 5), QStringLiteral("140"));  // the coefficient of the box
    EXPECT_EQ(Celda(g, 3, 1), QStringLiteral("Entrada"));
    EXPECT_EQ(g->currentIndex().row(), 1);
    EXPECT_EQ(g->currentIndex().column(), 0);

    Contestar(caja, 1);
    Boton("Eliminar")->click();
    MensajeEs(caja, QStringLiteral("El Ramal ( 2 ) Sera Eliminado...\nEsta Ustad Seguro de Eliminar el Ramal?"),
              QStringLiteral("Eliminar el Ramal..."));
    EXPECT_EQ(p.NumeroTramos, 26);
    EXPECT_EQ(Celda(g, 2, 1), QStringLiteral("Entrada"));
    // The new count goes to the coefficient box, and so to C; the box of
    // sections keeps the count it showed.
    EXPECT_EQ(p.C, 26);
    EXPECT_EQ(Caja("Long1")->text(), QStringLiteral("26"));
    EXPECT_EQ(Caja("Long2")->text(), QStringLiteral("27"));

    Contestar(caja, 0);  // "No": nothing is deleted
    Boton("Eliminar")->click();
    EXPECT_EQ(p.NumeroTramos, 26);
}

TEST_F(DatosACU, ElMenuDelBotonDerechoInsertaEnLaFilaPulsada) {
    Abrir("EjemploRedA", falsos);
    Boton("Siguiente")->click();
    VistaGrid* g = v->Vista1();
    falsos.respuestas = {Respuesta::Si};
    QStringList acciones;
    QTimer::singleShot(0, [&] {
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_NE(menu, nullptr);
        for (QAction* a : menu->actions()) acciones << a->objectName() + QLatin1Char('=') + a->text();
        menu->actions().first()->trigger();
        menu->close();
    });
    Q_EMIT g->customContextMenuRequested(g->visualRect(g->model()->index(4, 1)).center());
    EXPECT_EQ(acciones, QStringList({QStringLiteral("ID_Insertar=Insertar un Ramal"),
                                     QStringLiteral("ID_Eliminar=Eliminar un Ramal")}));
    ASSERT_EQ(falsos.mensajes.size(), 1u);
    EXPECT_EQ(falsos.Ultimo().texto, QStringLiteral("Insertar un Nuevo Ramal en la Posición: ( 5 )"));
    EXPECT_EQ(p.NumeroTramos, 27);
}

TEST_F(DatosACU, CompatibilidadYSiguienteSenalanElDatoMalo) {
    // The messages' texts are checked with the screen's logic.
    Abrir("EjemploRedA", qt);
    Boton("Siguiente")->click();
    MensajeVisto caja;
    Contestar(caja, 0);
    Boton("Compatibilidad")->click();
    EXPECT_EQ(caja.texto, QStringLiteral("No Existen Errores en los Tramos..."));

    // A diameter of 0 on section 7 stops both, at its cell.
    EscribirYSalir(v->Vista1(), 7, 4, QStringLiteral("0"));
    Procesar();
    Contestar(caja, 0);
    Boton("Siguiente")->click();
    EXPECT_EQ(Pagina(), 2);
    EXPECT_EQ(caja.texto, QStringLiteral("¡Corrija el Dato Seleccionado!"));
    EXPECT_EQ(v->Vista1()->currentIndex().row(), 6);
    EXPECT_EQ(v->Vista1()->currentIndex().column(), 3);

    // Two sections apart from the rest are reported by name.
    EscribirYSalir(v->Vista1(), 7, 4, QStringLiteral("100"));
    EscribirYSalir(v->Vista1(), 25, 1, QStringLiteral("Isla-1"));
    EscribirYSalir(v->Vista1(), 25, 2, QStringLiteral("Isla-2"));
    Procesar();
    MensajeVisto primera, segunda;
    Contestar(primera, 0);
    Contestar(segunda, 0);
    Boton("Compatibilidad")->click();
    EXPECT_TRUE(primera.texto.endsWith(QStringLiteral("( Isla-1 - Isla-2 )")));
    EXPECT_EQ(segunda.texto, QStringLiteral("¡Corrija el Dato Seleccionado!"));
    EXPECT_EQ(v->Vista1()->currentIndex().row(), 24);
}

TEST_F(DatosACU, UnBloqueDeUnaColumnaPideUnSoloValor) {
    // Blocks over two columns, refused texts and the node page: see the screen's logic.
    Abrir("EjemploRedA", falsos);
    Boton("Siguiente")->click();
    VistaGrid* g = v->Vista1();
    auto* m = g->model();
    auto soltar = [&](const QModelIndex& desde, const QModelIndex& hasta) {
        g->selectionModel()->select(QItemSelection(desde, hasta), QItemSelectionModel::ClearAndSelect);
        QMouseEvent suelta(QEvent::MouseButtonRelease, QPointF(g->visualRect(hasta).center()),
                           QPointF(g->viewport()->mapToGlobal(g->visualRect(hasta).center())), Qt::LeftButton,
                           Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(g->viewport(), &suelta);
        Procesar();
    };
    // Rows 2 to 4 of "Diámetro".
    falsos.textos = {QStringLiteral("200.4567")};
    soltar(m->index(1, 3), m->index(3, 3));
    ASSERT_EQ(falsos.preguntas.size(), 1);
    EXPECT_EQ(falsos.preguntas[0], QStringLiteral("Entre el Nuevo Diámetro:|Diametro de los Tramos|"));
    for (int t = 2; t <= 4; ++t) EXPECT_DOUBLE_EQ(p.Diametro[t], 200.457) << t;  // rounded to 3 decimals
    EXPECT_DOUBLE_EQ(p.Diametro[5], 150.0);
    EXPECT_EQ(Celda(g, 3, 4), QStringLiteral("200.457"));
    // The header of a column selects it whole: every row takes the value.
    falsos.textos = {QStringLiteral("0.5")};
    g->selectColumn(5);
    Q_EMIT g->horizontalHeader()->sectionClicked(5);
    Procesar();
    EXPECT_EQ(falsos.preguntas.last(),
              QStringLiteral("Entre el Consumo Medio de los Tramos:|Consumo Medio de los Tramos|"));
    for (int t = 1; t <= 26; ++t) EXPECT_DOUBLE_EQ(p.Demanda[t], 0.5) << t;
    EXPECT_EQ(s.DatosModificados, -1);
    // A block over three columns asks nothing and stays selected, to be copied.
    const int preguntas = int(falsos.preguntas.size());
    soltar(m->index(1, 0), m->index(2, 2));
    EXPECT_EQ(falsos.preguntas.size(), preguntas);
    QTest::keyClick(g, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("Entrada\tBoli-4\t180.00\nBoli-4\tBoli-3\t110.00"));
}

TEST_F(DatosACU, UnCoeficienteFueraDeLosLimitesSeAvisa) {
    Abrir("EjemploRedA", qt);
    Boton("Siguiente")->click();
    MensajeVisto caja;
    Contestar(caja, 0);
    EscribirYSalir(v->Vista1(), 2, 5, QStringLiteral("40000"));
    Procesar();
    MensajeEs(caja, QStringLiteral("¡Debe Entrar un Número entre 0 y 32767!"),
              QStringLiteral("Error en el Número..."));
    EXPECT_EQ(p.CoeficienteC[2], 140);
    EXPECT_EQ(Celda(v->Vista1(), 2, 5), QStringLiteral("140"));
}

TEST_F(DatosACU, DesdeLosResultadosAbrirEstaDesactivado) {
    s.EdicionDesdeAnalisis = 1;
    Abrir("EjemploRedA", falsos);
    EXPECT_FALSE(Boton("Abrir")->isEnabled());
    EXPECT_TRUE(Boton("Salvar")->isEnabled());
    Boton("Salvar")->click();
    EXPECT_TRUE(v->Logica().ProyectoSalvado());
}

TEST_F(DatosACU, AbrirOtraRedDesdeLaPantalla) {
    Abrir("EjemploRedA", falsos);
    const QString otra = sp.CopiaDeEjemplo(QStringLiteral("EjemploRedB.nivo"), QStringLiteral("Redes/otra.acu"));
    falsos.archivos.push_back(otra);
    Boton("Abrir")->click();
    EXPECT_EQ(falsos.dialogosArchivo.value(0),
              QStringLiteral("Abrir un Proyecto Existente|*.ACU|*.acu|") + sp.Datos(QStringLiteral("Redes")));
    EXPECT_EQ(v->windowTitle(), QStringLiteral("Redes de Acueductos   Proyecto: [ OTRA.ACU ]"));
    EXPECT_TRUE(v->findChild<QRadioButton*>(QStringLiteral("Diámetro en Pulgadas"))->isChecked());
    EXPECT_EQ(Caja("Double2")->text(), QStringLiteral("2.40"));
    EXPECT_EQ(v->Vista1()->model()->rowCount(), 17);
}

TEST_F(DatosACU, LosCoeficientesPonenElDeLaTuberiaElegida) {
    Abrir("EjemploRedA", falsos);
    VentanaCoficientesACU c(v->Logica(), v.get());
    EXPECT_EQ(c.windowTitle(), QStringLiteral("Coeficientes para las Pérdidas"));
    auto* m = c.Vista()->model();
    ASSERT_EQ(m->rowCount(), 6);
    EXPECT_EQ(m->index(3, 0).data().toString(), QStringLiteral("ACERO"));
    EXPECT_EQ(m->index(3, 1).data().toString(), QStringLiteral("120"));
    EXPECT_FALSE(m->flags(m->index(3, 1)) & Qt::ItemIsEditable);
    c.Vista()->setCurrentIndex(m->index(2, 0));  // HIERRO FUNDIDO
    c.findChild<QPushButton*>(QStringLiteral("Aceptar"))->click();
    EXPECT_EQ(c.result(), QDialog::Accepted);
    EXPECT_EQ(p.C, 100);
    EXPECT_EQ(s.DatosModificados, -1);
    v->Refrescar();
    EXPECT_EQ(Caja("Long1")->text(), QStringLiteral("100"));
}

TEST_F(DatosACU, LaLongitudDeLasCoordenadasSeFijaEnLaFilaDelRamal) {
    Abrir("EjemploRedA", falsos);
    Boton("Siguiente")->click();
    v->Vista1()->setCurrentIndex(v->Vista1()->model()->index(1, 0));
    v->Logica().Longitudes();
    int movidas = 0;
    VentanaLongitudTramosAcu l(v->Logica(), [&] { ++movidas; }, v.get());
    EXPECT_EQ(l.windowTitle(), QStringLiteral("Longitud de los Ramales"));
    auto celda = [&](int c) { return l.Vista()->model()->index(0, c - 1).data().toString(); };
    EXPECT_EQ(celda(1), QStringLiteral("2"));
    EXPECT_EQ(celda(2), QStringLiteral("Entrada"));
    EXPECT_EQ(celda(4), QStringLiteral("180.00"));
    EXPECT_EQ(l.Scroll()->minimum(), 1);
    EXPECT_EQ(l.Scroll()->maximum(), 26);
    // A 3-4-5 triangle in plan, 120 m high: sqrt(30² + 40² + 120²) = 130.
    const double xyz[6] = {1000, 2000, 10, 1030, 2040, 130};
    for (int i = 1; i <= 6; ++i) {
        l.Caja(i)->PonerValor(0);
        l.Caja(i)->setText(QString::number(xyz[i - 1]));
        Q_EMIT l.Caja(i)->textEdited(l.Caja(i)->text());
    }
    EXPECT_EQ(l.Longitud()->text(), QStringLiteral("130.00"));
    falsos.respuestas = {Respuesta::Si};
    l.findChild<QPushButton*>(QStringLiteral("Fijar la Longitud"))->click();
    EXPECT_EQ(falsos.Ultimo().encabezado, QStringLiteral("Longitud de los Tramos..."));
    EXPECT_DOUBLE_EQ(p.Longitud[2], 130.0);
    EXPECT_EQ(Celda(v->Vista1(), 2, 3), QStringLiteral("130.00"));
    EXPECT_EQ(celda(4), QStringLiteral("130.00"));
    EXPECT_EQ(s.DatosModificados, -1);
    EXPECT_GE(movidas, 1);

    // The scroll bar walks the data screen's rows.
    l.Scroll()->setValue(5);
    EXPECT_EQ(celda(2), QStringLiteral("Boli-2"));
    EXPECT_EQ(celda(3), QStringLiteral("Boli-1"));
    EXPECT_EQ(v->Logica().Spread1.FilaActiva(), 5);
    EXPECT_EQ(v->Logica().Spread1.ColumnaActiva(), 3);

    // "Limpiar" asks, then every box is 0.
    falsos.respuestas = {Respuesta::Si};
    l.findChild<QPushButton*>(QStringLiteral("Limpiar"))->click();
    EXPECT_EQ(falsos.Ultimo().texto, QStringLiteral("¡Limpiar los Valores de las Coordenadas!"));
    for (int i = 1; i <= 6; ++i) EXPECT_EQ(l.Caja(i)->text(), QStringLiteral("0.000")) << i;
    EXPECT_EQ(l.Longitud()->text(), QStringLiteral("0.00"));
}

TEST_F(DatosACU, LosNodosSeEscribenConEnterYSePeganDeUnaPlanilla) {
    Abrir("EjemploRedA", falsos);
    Boton("Siguiente")->click();
    Boton("Siguiente")->click();
    ASSERT_EQ(Pagina(), 3);
    VistaGrid* g = v->Vista2();
    const double cota5 = p.CotaTerreno[5];
    // Four levels typed down column 3 from the first node, each with Enter.
    g->setCurrentIndex(g->model()->index(0, 2));
    TeclearEnVista(g, QStringLiteral("120\n100\n95\n92\n"));
    const double tecleadas[] = {120, 100, 95, 92};
    for (int n = 1; n <= 4; ++n) EXPECT_DOUBLE_EQ(p.CotaTerreno[n], tecleadas[n - 1]) << n;
    EXPECT_DOUBLE_EQ(p.CotaTerreno[5], cota5);
    EXPECT_EQ(g->currentIndex().row(), 4);
    EXPECT_EQ(s.DatosModificados, -1);

    // Four rows of level and tank copied from a spreadsheet, which ends
    // with a line feed: each cell lands as if typed, a level of 0 shows empty.
    s.DatosModificados = 0;
    QGuiApplication::clipboard()->setText(QStringLiteral("81.5\t0\n80\t90\n79.25\t\n78\t95.5\n"));
    QTest::keyClick(g, Qt::Key_V, Qt::ControlModifier);
    Procesar();
    const double cotas[] = {81.5, 80, 79.25, 78}, tanques[] = {0, 90, 0, 95.5};
    const char* celdas[] = {"", "90.00", "", "95.50"};
    for (int k = 0; k < 4; ++k) {
        EXPECT_DOUBLE_EQ(p.CotaTerreno[5 + k], cotas[k]) << k;
        EXPECT_DOUBLE_EQ(p.CotaBombaEstanque[5 + k], tanques[k]) << k;
        EXPECT_EQ(Celda(g, 5 + k, 4), QString::fromLatin1(celdas[k])) << k;
    }
    EXPECT_EQ(Celda(g, 6, 3), QStringLiteral("80.00"));
    EXPECT_EQ(s.DatosModificados, -1);
    EXPECT_EQ(g->model()->rowCount(), 18);  // no row from the last line feed
}
