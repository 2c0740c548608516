#pragma once
// The view of a Grid: a QTableView over a model that reads the Grid's cells
// directly (no copy, no widget per cell).  Two header rows with joined
// cells, the row header from column 0, colours, locks, number cells with the
// session's separators, drop-down list cells, joined body cells and the
// active cell.  Each edit lands in the Grid and is reported as
// (row, column, text) for the screen logic to act on.
//
// It behaves as a spreadsheet: Enter commits and moves down (Shift+Enter
// up), Ctrl+C copies the selected block as tab-separated lines of the texts
// shown, Ctrl+V pastes such a block cell by cell through the same commit as
// typing, a cut text shows whole in a tool-tip, and text columns grow to
// their texts when the view has room to spare.

#include "base/Grid.h"

#include <QAbstractTableModel>
#include <QHeaderView>
#include <QStyledItemDelegate>
#include <QTableView>
#include <functional>

class ModeloGrid : public QAbstractTableModel {
    Q_OBJECT
public:
    explicit ModeloGrid(QObject* padre = nullptr) : QAbstractTableModel(padre) {}
    void PonerGrid(Grid* g);
    // The view whose fonts and column widths tell whether a text is cut.
    void PonerVista(const QTableView* v) { vista_ = v; }
    Grid* grid() const { return grid_; }

    // Grid row f, column c (both from 1) against the model's index.
    static int FilaGrid(const QModelIndex& i) { return i.row() + 1; }
    static int ColumnaGrid(const QModelIndex& i) { return i.column() + 1; }

    int rowCount(const QModelIndex& padre = QModelIndex()) const override;
    int columnCount(const QModelIndex& padre = QModelIndex()) const override;
    QVariant data(const QModelIndex& i, int rol = Qt::DisplayRole) const override;
    QVariant headerData(int seccion, Qt::Orientation o, int rol) const override;
    Qt::ItemFlags flags(const QModelIndex& i) const override;
    bool setData(const QModelIndex& i, const QVariant& v, int rol) override;

    // A full reset (rows, columns or spans changed) or a repaint of the cells.
    void Reiniciar();
    void Repintar();

    std::function<void(int fila, int columna, const QString& texto)> alEditar;
    // A text a number cell refused: not a number, read two ways, or beyond
    // its column's limits.
    std::function<void(int fila, int columna, const QString& texto)> alRechazar;
    // Reports now the edits still waiting for their turn (they are reported
    // once the editor has closed), so that nothing typed is missed by an
    // action that follows at once.
    void EntregarPendientes();

private:
    struct Edicion {
        int fila, columna;
        QString texto;
    };
    // True when the cell's text is wider than its column (or its joined
    // columns) leaves for it.
    bool TextoCortado(const QModelIndex& i, const QString& texto) const;
    Grid* grid_ = nullptr;
    const QTableView* vista_ = nullptr;
    std::vector<Edicion> pendientes_;
};

// Both header rows painted over one header section each, joined cells
// spanning the sections they cover.
class EncabezadoDoble : public QHeaderView {
    Q_OBJECT
public:
    explicit EncabezadoDoble(QWidget* padre = nullptr);
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* e) override;

private:
    void PintarCelda(QPainter& p, const QRect& r, const QString& texto) const;
    // The height of header row 1 or 2: the lines its texts need at their
    // columns' widths, from one to three.
    int AltoFila(int fila) const;
};

class DelegadoGrid : public QStyledItemDelegate {
    Q_OBJECT
public:
    using QStyledItemDelegate::QStyledItemDelegate;
    QWidget* createEditor(QWidget* padre, const QStyleOptionViewItem& o, const QModelIndex& i) const override;
    void setEditorData(QWidget* editor, const QModelIndex& i) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* m, const QModelIndex& i) const override;
    // A picture cell draws its picture whole, centred and scaled to the cell.
    void paint(QPainter* p, const QStyleOptionViewItem& o, const QModelIndex& i) const override;

Q_SIGNALS:
    // Enter in an open editor: the view commits it and moves `paso` rows
    // (1 down, -1 up).
    void Enter(QWidget* editor, int paso);

protected:
    bool eventFilter(QObject* editor, QEvent* e) override;
};

class VistaGrid : public QTableView {
    Q_OBJECT
public:
    explicit VistaGrid(QWidget* padre = nullptr);

    // Shows a grid the screen logic owns; the grid must outlive the view or
    // be replaced first.
    void MostrarGrid(Grid* g);
    Grid* grid() const { return modelo_.grid(); }
    // After the logic changed the grid: a reset when its shape or its joined
    // cells changed, else a repaint of the cells only.
    void Refrescar();
    // Moves the view to the grid's active cell.
    void MostrarActiva();

    ModeloGrid& Modelo() { return modelo_; }
    // The screen logic's handler of an edit.
    void AlEditar(std::function<void(int fila, int columna, const QString& texto)> f) { modelo_.alEditar = std::move(f); }

    // The text of the corner cell (header row 1, column 0), as drawn.
    QString TextoEsquina() const;

    // Closes an open editor keeping what it holds, and reports every edit
    // at once: screens call it before any action that reads the grid or the
    // model (a save, a page change, the closing).
    void TerminarEdicion();

    // Enter commits and stays on the cell: for a grid whose rows are what
    // the rest of the screen shows, where a move would change the subject.
    void QuedarseConEnter() { avanzarConEnter_ = false; }

    // Blocks of cells may be selected (by dragging, with Shift and the
    // arrows, or a whole column by its header); each finished block of more
    // than one cell is reported with its rows and columns (from 1).
    void PermitirBloques();
    void QuitarBloque();

    // The selected block (or the current cell) as the texts shown: cells by
    // tabs, rows by line feeds, hidden columns left out, a joined cell's text
    // once in its top-left.  Copiar puts it on the clipboard (Ctrl+C).
    QString TextoSeleccion() const;
    void Copiar();
    // Ctrl+V: the clipboard's block from the current cell on, each cell
    // committed as if typed.  Locked cells, cells under a join and cells
    // past the grid's edge are skipped, their values dropped; a value the
    // cell refuses stops the paste there, on that cell.
    void Pegar(const QString& texto);
    void Pegar();

Q_SIGNALS:
    void BloqueSeleccionado(int fila1, int fila2, int columna1, int columna2);

protected:
    void currentChanged(const QModelIndex& actual, const QModelIndex& anterior) override;
    bool eventFilter(QObject* o, QEvent* e) override;
    void mouseReleaseEvent(QMouseEvent* e) override;
    void keyReleaseEvent(QKeyEvent* e) override;
    void keyPressEvent(QKeyEvent* e) override;
    void resizeEvent(QResizeEvent* e) override;
    void showEvent(QShowEvent* e) override;

private:
    void AplicarForma();
    void AvisarBloque();
    void Avanzar(int paso);
    // The editor's value committed and acted on by the logic at once; the
    // move follows unless the cell refused the value.
    void ConfirmarYAvanzar(QWidget* editor, int paso);
    // Text columns wider than their set width where the view has room
    // left: each toward its longest text, up to a limit.
    void AjustarAnchos();
    int AnchoFijado(int columna) const;
    ModeloGrid modelo_;
    bool bloques_ = false;
    bool avanzarConEnter_ = true;
    QWidget* esquina_ = nullptr;
    int filas_ = -1, columnas_ = -1;
    std::vector<Union> uniones_;
    // The widths the text columns' texts need, for the grid's version.
    std::vector<int> necesarios_;
    unsigned long versionMedida_ = 0;
    const Grid* gridMedido_ = nullptr;
};
