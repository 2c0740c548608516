#include "widgets/VistaGrid.h"

#include "base/Nivo.h"
#include "widgets/Colores.h"
#include "widgets/NivoNumero.h"

#include <QAbstractButton>
#include <QClipboard>
#include <QComboBox>
#include <QEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QLineEdit>
#include <QPainter>
#include <QRegularExpressionValidator>
#include <QSet>
#include <QTimer>

#include <algorithm>

namespace {

bool EsCeldaNumerica(const Grid& g, int f, int c) {
    const TipoCelda t = g.Tipo(f, c);
    return t == TipoCelda::Numero || t == TipoCelda::Entero;
}

// A name of a list cell, also without the inch mark that ends the
// diameters' names.
bool EnLaLista(const QStringList& lista, const QString& texto) {
    const QString t = Trim(texto);
    for (const QString& opcion : lista)
        if (opcion == t || (opcion.endsWith(MarcaPulgada()) && opcion.chopped(1) == t)) return true;
    return false;
}

bool MismasUniones(const std::vector<Union>& a, const std::vector<Union>& b) {
    if (a.size() != b.size()) return false;
    for (size_t i = 0; i < a.size(); ++i)
        if (a[i].fila != b[i].fila || a[i].columna != b[i].columna || a[i].filas != b[i].filas ||
            a[i].columnas != b[i].columnas)
            return false;
    return true;
}

// Under a joined cell but not its top-left: the cell is not shown.
bool Tapada(const Grid& g, int f, int c) {
    for (const Union& u : g.Uniones())
        if (f >= u.fila && f < u.fila + u.filas && c >= u.columna && c < u.columna + u.columnas &&
            (f != u.fila || c != u.columna))
            return true;
    return false;
}

// Enter or Shift+Enter (of either keyboard block), with no other modifier.
bool EsEnter(const QKeyEvent* k) {
    return (k->key() == Qt::Key_Return || k->key() == Qt::Key_Enter) &&
           !(k->modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier));
}

// The space a view leaves around a cell's text, on both sides.
int MargenTexto(const QWidget* w) {
    return 2 * (w->style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, w) + 1);
}

// Text columns grow to their texts up to this many average characters.
constexpr int LimiteTexto = 60;
// How many of a column's longest texts are measured for its width.
constexpr size_t TextosMedidos = 64;

}  // namespace

// ---------------------------------------------------------------- model

void ModeloGrid::PonerGrid(Grid* g) {
    beginResetModel();
    grid_ = g;
    endResetModel();
}

int ModeloGrid::rowCount(const QModelIndex& padre) const {
    return padre.isValid() || !grid_ ? 0 : grid_->Filas();
}

int ModeloGrid::columnCount(const QModelIndex& padre) const {
    return padre.isValid() || !grid_ ? 0 : grid_->Columnas();
}

QVariant ModeloGrid::data(const QModelIndex& i, int rol) const {
    if (!grid_ || !i.isValid()) return {};
    const int f = FilaGrid(i), c = ColumnaGrid(i);
    const Celda& celda = grid_->Cel(f, c);
    switch (rol) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return celda.texto;
    case Qt::BackgroundRole:
        if (celda.colorFondo != SinColor) return ColorNivo(celda.colorFondo);
        return {};
    case Qt::ForegroundRole:
        if (celda.colorTexto != SinColor) return ColorNivo(celda.colorTexto);
        return {};
    case Qt::TextAlignmentRole:
        if (celda.esNumero || EsCeldaNumerica(*grid_, f, c)) return int(Qt::AlignRight | Qt::AlignVCenter);
        return int(Qt::AlignLeft | Qt::AlignVCenter);
    case Qt::ToolTipRole:
        if (TextoCortado(i, celda.texto)) return celda.texto;
        return {};
    case Qt::FontRole:
        if (celda.negrita && vista_) {
            QFont f = vista_->font();
            f.setBold(true);
            return f;
        }
        return {};
    default:
        return {};
    }
}

bool ModeloGrid::TextoCortado(const QModelIndex& i, const QString& texto) const {
    if (!vista_ || texto.isEmpty()) return false;
    int ancho = 0;
    const int columnas = std::max(1, vista_->columnSpan(i.row(), i.column()));
    for (int c = i.column(); c < i.column() + columnas && c < columnCount(); ++c)
        if (!vista_->isColumnHidden(c)) ancho += vista_->columnWidth(c);
    return vista_->fontMetrics().horizontalAdvance(texto) > ancho - MargenTexto(vista_);
}

QVariant ModeloGrid::headerData(int seccion, Qt::Orientation o, int rol) const {
    if (!grid_ || rol != Qt::DisplayRole) return QAbstractTableModel::headerData(seccion, o, rol);
    if (o == Qt::Vertical) return seccion + 1 <= grid_->Filas() ? grid_->Texto(seccion + 1, 0) : QString();
    const QString a = grid_->Encabezado(1, seccion + 1), b = grid_->Encabezado(2, seccion + 1);
    return b.isEmpty() ? a : a + QLatin1Char('\n') + b;
}

Qt::ItemFlags ModeloGrid::flags(const QModelIndex& i) const {
    if (!grid_ || !i.isValid()) return Qt::NoItemFlags;
    Qt::ItemFlags f = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    if (!grid_->EstaBloqueada(FilaGrid(i), ColumnaGrid(i))) f |= Qt::ItemIsEditable;
    return f;
}

bool ModeloGrid::setData(const QModelIndex& i, const QVariant& v, int rol) {
    if (!grid_ || !i.isValid() || rol != Qt::EditRole) return false;
    const int f = FilaGrid(i), c = ColumnaGrid(i);
    if (grid_->EstaBloqueada(f, c)) return false;
    const QString texto = v.toString();
    const TipoCelda t = grid_->Tipo(f, c);
    if (t == TipoCelda::Numero || t == TipoCelda::Entero) {
        // The cell keeps its value; the screen's logic says why, once the
        // editor has closed.
        auto rechazar = [&] {
            if (alRechazar) QTimer::singleShot(0, this, [this, f, c, texto] { if (alRechazar) alRechazar(f, c, texto); });
            return false;
        };
        double numero = 0.0;
        if (!Trim(texto).isEmpty()) {
            const NumeroLeido leido = LeerNumeroTecleado(texto);
            if (!leido.valido) return rechazar();
            numero = leido.valor;
        }
        const Columna& col = grid_->Col(c);
        if (numero < col.minimo || numero > col.maximo) return rechazar();
        if (t == TipoCelda::Entero)
            grid_->PonerEntero(f, c, qRound64(numero));
        else
            grid_->PonerNumero(f, c, numero, col.decimales);
    } else if (t == TipoCelda::Lista && !EnLaLista(grid_->Col(c).lista, texto)) {
        return false;  // a pasted name the drop-down does not offer
    } else {
        grid_->PonerTexto(f, c, texto);
    }
    Q_EMIT dataChanged(i, i);
    // The handler may refill the grid: it runs once the editor is closed.
    if (alEditar) {
        pendientes_.push_back({f, c, grid_->Texto(f, c)});
        if (pendientes_.size() == 1) QTimer::singleShot(0, this, [this] { EntregarPendientes(); });
    }
    return true;
}

void ModeloGrid::EntregarPendientes() {
    std::vector<Edicion> listas;
    listas.swap(pendientes_);
    for (const Edicion& e : listas)
        if (alEditar) alEditar(e.fila, e.columna, e.texto);
}

void ModeloGrid::Reiniciar() {
    beginResetModel();
    endResetModel();
}

void ModeloGrid::Repintar() {
    if (!grid_ || grid_->Filas() == 0 || grid_->Columnas() == 0) return;
    Q_EMIT dataChanged(index(0, 0), index(grid_->Filas() - 1, grid_->Columnas() - 1));
    Q_EMIT headerDataChanged(Qt::Vertical, 0, grid_->Filas() - 1);
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, grid_->Columnas() - 1);
}

// ---------------------------------------------------------------- header

EncabezadoDoble::EncabezadoDoble(QWidget* padre) : QHeaderView(Qt::Horizontal, padre) {
    setSectionsClickable(false);
    setHighlightSections(false);
}

int EncabezadoDoble::AltoFila(int fila) const {
    int lineas = 1;
    auto medir = [&](int ancho, const QString& texto) {
        const QRect r = fontMetrics().boundingRect(QRect(0, 0, std::max(10, ancho - 6), 10000),
                                                   Qt::AlignCenter | Qt::TextWordWrap, texto);
        lineas = std::max(lineas, (r.height() + fontMetrics().height() - 1) / fontMetrics().height());
    };
    auto* m = qobject_cast<ModeloGrid*>(model());
    if (m && m->grid()) {
        const Grid& g = *m->grid();
        for (int c = 1; c <= g.Columnas(); ++c) {
            if (isSectionHidden(c - 1)) continue;
            // A joined cell is measured once, over its columns, below.
            bool unida = false;
            for (const Union& u : g.UnionesEncabezado())
                unida = unida || (u.columna <= c && c < u.columna + u.columnas && u.fila <= fila && fila < u.fila + u.filas);
            if (!unida) medir(sectionSize(c - 1), g.Encabezado(fila, c));
        }
        // A group over the columns of one row; a cell over both rows has
        // the height of the two.
        for (const Union& u : g.UnionesEncabezado()) {
            if (u.fila != fila || u.filas != 1) continue;
            int ancho = 0;
            for (int c = u.columna; c < u.columna + u.columnas && c <= g.Columnas(); ++c)
                if (c >= 1 && !isSectionHidden(c - 1)) ancho += sectionSize(c - 1);
            if (ancho > 0) medir(ancho, g.Encabezado(fila, u.columna));
        }
    }
    return std::min(lineas, 3) * fontMetrics().height() + 6;
}

QSize EncabezadoDoble::sizeHint() const {
    QSize s = QHeaderView::sizeHint();
    s.setHeight(AltoFila(1) + AltoFila(2));
    return s;
}

void EncabezadoDoble::PintarCelda(QPainter& p, const QRect& r, const QString& texto) const {
    QStyleOptionHeader o;
    initStyleOption(&o);
    o.rect = r;
    o.section = 0;
    style()->drawControl(QStyle::CE_HeaderSection, &o, &p, this);
    p.setPen(palette().color(QPalette::ButtonText));
    p.drawText(r.adjusted(3, 1, -3, -1), Qt::AlignCenter | Qt::TextWordWrap, texto);
}

void EncabezadoDoble::paintEvent(QPaintEvent*) {
    auto* m = qobject_cast<ModeloGrid*>(model());
    if (!m || !m->grid()) return;
    const Grid& g = *m->grid();
    QPainter p(viewport());
    const int alto = viewport()->height();
    const int fila = alto * AltoFila(1) / std::max(1, AltoFila(1) + AltoFila(2));
    const int n = g.Columnas();
    // Section x and width of grid columns c..c+k-1, skipping hidden ones.
    auto tramo = [&](int c, int k) {
        int x = -1, ancho = 0;
        for (int j = c; j < c + k && j <= n; ++j) {
            if (isSectionHidden(j - 1)) continue;
            if (x < 0) x = sectionViewportPosition(j - 1);
            ancho += sectionSize(j - 1);
        }
        return std::make_pair(x, ancho);
    };
    std::vector<char> cubierta(size_t(2 * (n + 1)), 0);
    for (const Union& u : g.UnionesEncabezado()) {
        if (u.columna < 1 || u.columna > n || u.fila < 1 || u.fila > 2) continue;
        for (int r = u.fila; r < u.fila + u.filas && r <= 2; ++r)
            for (int c = u.columna; c < u.columna + u.columnas && c <= n; ++c) cubierta[size_t((r - 1) * (n + 1) + c)] = 1;
        const auto [x, ancho] = tramo(u.columna, u.columnas);
        if (x < 0 || ancho <= 0) continue;
        const int y = u.fila == 1 ? 0 : fila;
        const int h = u.fila == 2 ? alto - fila : u.filas >= 2 ? alto : fila;
        PintarCelda(p, QRect(x, y, ancho, h), g.Encabezado(u.fila, u.columna));
    }
    for (int c = 1; c <= n; ++c) {
        if (isSectionHidden(c - 1)) continue;
        const int x = sectionViewportPosition(c - 1), ancho = sectionSize(c - 1);
        if (x + ancho < 0 || x > viewport()->width()) continue;
        if (!cubierta[size_t(c)]) PintarCelda(p, QRect(x, 0, ancho, fila), g.Encabezado(1, c));
        if (!cubierta[size_t(n + 1 + c)]) PintarCelda(p, QRect(x, fila, ancho, alto - fila), g.Encabezado(2, c));
    }
}

// ---------------------------------------------------------------- delegate

QWidget* DelegadoGrid::createEditor(QWidget* padre, const QStyleOptionViewItem& o, const QModelIndex& i) const {
    auto* m = qobject_cast<const ModeloGrid*>(i.model());
    if (!m || !m->grid()) return QStyledItemDelegate::createEditor(padre, o, i);
    const Grid& g = *m->grid();
    const int f = ModeloGrid::FilaGrid(i), c = ModeloGrid::ColumnaGrid(i);
    if (g.Tipo(f, c) == TipoCelda::Lista) {
        auto* combo = new QComboBox(padre);
        combo->addItems(g.Col(c).lista);
        // A choice in the list is the edit, as in the grid's combo cells.
        connect(combo, &QComboBox::activated, this, [this, combo] {
            auto* yo = const_cast<DelegadoGrid*>(this);
            Q_EMIT yo->commitData(combo);
            Q_EMIT yo->closeEditor(combo);
        });
        return combo;
    }
    auto* linea = new QLineEdit(padre);
    linea->setFrame(false);
    if (g.Col(c).largo > 0) linea->setMaxLength(g.Col(c).largo);
    if (g.Tipo(f, c) == TipoCelda::Numero || g.Tipo(f, c) == TipoCelda::Entero) {
        linea->setAlignment(Qt::AlignRight);
        // A number cell takes the keys of a number only.
        linea->setValidator(new QRegularExpressionValidator(ExpresionNumero(), linea));
    }
    return linea;
}

void DelegadoGrid::setEditorData(QWidget* editor, const QModelIndex& i) const {
    const QString texto = i.data(Qt::EditRole).toString();
    if (auto* combo = qobject_cast<QComboBox*>(editor)) {
        combo->setCurrentIndex(std::max(0, combo->findText(texto)));
        return;
    }
    if (auto* linea = qobject_cast<QLineEdit*>(editor)) {
        linea->setText(texto);
        linea->selectAll();
        return;
    }
    QStyledItemDelegate::setEditorData(editor, i);
}

void DelegadoGrid::setModelData(QWidget* editor, QAbstractItemModel* m, const QModelIndex& i) const {
    if (auto* combo = qobject_cast<QComboBox*>(editor)) {
        m->setData(i, combo->currentText(), Qt::EditRole);
        return;
    }
    if (auto* linea = qobject_cast<QLineEdit*>(editor)) {
        m->setData(i, linea->text(), Qt::EditRole);
        return;
    }
    QStyledItemDelegate::setModelData(editor, m, i);
}

void DelegadoGrid::paint(QPainter* p, const QStyleOptionViewItem& o, const QModelIndex& i) const {
    QStyledItemDelegate::paint(p, o, i);
    const auto* modelo = qobject_cast<const ModeloGrid*>(i.model());
    if (!modelo || !modelo->grid()) return;
    const QImage imagen = modelo->grid()->Imagen(ModeloGrid::FilaGrid(i), ModeloGrid::ColumnaGrid(i));
    if (imagen.isNull()) return;
    const QRect caja = o.rect.adjusted(2, 2, -2, -2);
    if (caja.width() <= 0 || caja.height() <= 0) return;
    QSize tam = imagen.size();
    tam.scale(caja.size(), Qt::KeepAspectRatio);
    QRect destino(QPoint(0, 0), tam);
    destino.moveCenter(caja.center());
    p->save();
    p->setRenderHint(QPainter::SmoothPixmapTransform);
    p->drawImage(destino, imagen);
    p->restore();
}

bool DelegadoGrid::eventFilter(QObject* o, QEvent* e) {
    auto* editor = qobject_cast<QWidget*>(o);
    if (editor && e->type() == QEvent::KeyPress && EsEnter(static_cast<QKeyEvent*>(e))) {
        const bool arriba = static_cast<QKeyEvent*>(e)->modifiers() & Qt::ShiftModifier;
        Q_EMIT Enter(editor, arriba ? -1 : 1);
        return true;
    }
    return QStyledItemDelegate::eventFilter(o, e);
}

// ---------------------------------------------------------------- view

VistaGrid::VistaGrid(QWidget* padre) : QTableView(padre) {
    setHorizontalHeader(new EncabezadoDoble(this));
    auto* delegado = new DelegadoGrid(this);
    setItemDelegate(delegado);
    connect(delegado, &DelegadoGrid::Enter, this,
            [this](QWidget* editor, int paso) { ConfirmarYAvanzar(editor, paso); });
    setModel(&modelo_);
    modelo_.PonerVista(this);
    // A block may be selected everywhere, for copying.
    setSelectionMode(QAbstractItemView::ContiguousSelection);
    setSelectionBehavior(QAbstractItemView::SelectItems);
    // No editing on a click of the current cell: the view would wait a
    // double-click interval to open the editor and swallow what is typed
    // meanwhile, as a spreadsheet never does.
    setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed |
                    QAbstractItemView::AnyKeyPressed);
    setWordWrap(false);
    // Fixed row heights keep the view's layout independent of the row count.
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
    verticalHeader()->setDefaultAlignment(Qt::AlignCenter);
    horizontalHeader()->setSectionResizeMode(QHeaderView::Interactive);
    // The corner cell shows the header of column 0 over the row header.
    esquina_ = findChild<QAbstractButton*>();
    if (esquina_) esquina_->installEventFilter(this);
    // A column made narrower may need more header lines.
    connect(horizontalHeader(), &QHeaderView::sectionResized, this, [this] {
        QMetaObject::invokeMethod(this, [this] { updateGeometries(); }, Qt::QueuedConnection);
    });
}

QString VistaGrid::TextoEsquina() const {
    const Grid* g = modelo_.grid();
    if (!g) return QString();
    const QString a = g->Encabezado(1, 0), b = g->Encabezado(2, 0);
    return b.isEmpty() ? a : a + QLatin1Char('\n') + b;
}

bool VistaGrid::eventFilter(QObject* o, QEvent* e) {
    if (o == esquina_ && e->type() == QEvent::Paint && !TextoEsquina().isEmpty()) {
        QPainter p(esquina_);
        QStyleOptionHeader op;
        op.initFrom(esquina_);
        op.rect = esquina_->rect();
        style()->drawControl(QStyle::CE_HeaderSection, &op, &p, esquina_);
        p.drawText(esquina_->rect().adjusted(3, 1, -3, -1), Qt::AlignCenter | Qt::TextWordWrap, TextoEsquina());
        return true;
    }
    return QTableView::eventFilter(o, e);
}

void VistaGrid::MostrarGrid(Grid* g) {
    modelo_.PonerGrid(g);
    AplicarForma();
    MostrarActiva();
}

void VistaGrid::AplicarForma() {
    Grid* g = modelo_.grid();
    clearSpans();
    filas_ = g ? g->Filas() : 0;
    columnas_ = g ? g->Columnas() : 0;
    uniones_ = g ? g->Uniones() : std::vector<Union>();
    if (!g) return;
    for (int c = 1; c <= columnas_; ++c) {
        setColumnHidden(c - 1, g->Col(c).oculta);
        setColumnWidth(c - 1, AnchoFijado(c));
    }
    for (const Union& u : uniones_)
        if (u.columna >= 1 && u.fila >= 1 && u.fila <= filas_) setSpan(u.fila - 1, u.columna - 1, u.filas, u.columnas);
    verticalHeader()->setMinimumWidth(TextoEsquina().isEmpty() ? 0
                                                               : fontMetrics().horizontalAdvance(TextoEsquina()) + 12);
    gridMedido_ = nullptr;
    AjustarAnchos();
    horizontalHeader()->updateGeometry();
    updateGeometries();  // the header's height follows the new widths
    horizontalHeader()->viewport()->update();
}

void VistaGrid::Refrescar() {
    Grid* g = modelo_.grid();
    if (!g) return;
    if (g->Filas() != filas_ || g->Columnas() != columnas_ || !MismasUniones(g->Uniones(), uniones_)) {
        modelo_.Reiniciar();
        AplicarForma();
    } else {
        modelo_.Repintar();
        AjustarAnchos();
    }
    horizontalHeader()->viewport()->update();
}

int VistaGrid::AnchoFijado(int columna) const {
    return grid()->Col(columna).ancho * fontMetrics().averageCharWidth() + 12;
}

void VistaGrid::AjustarAnchos() {
    const Grid* g = grid();
    // A hidden view (a tab not shown) is measured when it shows.
    if (!g || !isVisible()) return;
    const int n = g->Columnas();
    // Columns the header sizes itself (stretched ones) keep their mode.
    int ultima = 0;
    for (int c = 1; c <= n; ++c)
        if (!isColumnHidden(c - 1)) ultima = c;
    auto ajustable = [&](int c) {
        return !isColumnHidden(c - 1) && g->Col(c).tipo == TipoCelda::Texto &&
               horizontalHeader()->sectionResizeMode(c - 1) == QHeaderView::Interactive &&
               !(horizontalHeader()->stretchLastSection() && c == ultima);
    };
    int libre = viewport()->width();
    for (int c = 1; c <= n; ++c)
        if (!isColumnHidden(c - 1)) libre -= AnchoFijado(c);
    if (libre > 0 && (gridMedido_ != g || versionMedida_ != g->Version())) {
        // Measured only when there is room to give, and again only once the
        // grid has changed.
        QSet<qint64> anchas;  // a text joined over columns is not one column's
        for (const Union& u : g->Uniones())
            if (u.columnas > 1) anchas.insert(qint64(u.fila) << 32 | u.columna);
        necesarios_.assign(size_t(n) + 1, 0);
        const int tope = LimiteTexto * fontMetrics().averageCharWidth();
        std::vector<std::pair<int, int>> largos;  // (characters, row)
        for (int c = 1; c <= n; ++c) {
            if (!ajustable(c)) continue;
            // The widest text is among the longest ones: only those are
            // measured, so a grid of thousands of rows costs a few dozen
            // measures a column.
            largos.clear();
            for (int f = 1; f <= g->Filas(); ++f)
                if (!anchas.contains(qint64(f) << 32 | c)) largos.push_back({int(g->Cel(f, c).texto.size()), f});
            if (largos.size() > TextosMedidos) {
                std::nth_element(largos.begin(), largos.begin() + TextosMedidos, largos.end(), std::greater<>());
                largos.resize(TextosMedidos);
            }
            int ancho = 0;
            for (const auto& [largo, f] : largos)
                ancho = std::max(ancho, fontMetrics().horizontalAdvance(g->Cel(f, c).texto));
            necesarios_[size_t(c)] = std::min(ancho + MargenTexto(this) + 2, tope);
        }
        gridMedido_ = g;
        versionMedida_ = g->Version();
    }
    std::vector<int> extra(size_t(n) + 1, 0);
    long long pedido = 0;
    if (libre > 0 && necesarios_.size() == size_t(n) + 1)
        for (int c = 1; c <= n; ++c)
            if (ajustable(c)) pedido += extra[size_t(c)] = std::max(0, necesarios_[size_t(c)] - AnchoFijado(c));
    for (int c = 1; c <= n; ++c) {
        if (!ajustable(c)) continue;
        // Each column its share of the room when all cannot have their fill.
        const long long e = extra[size_t(c)];
        const int dar = int(pedido <= libre ? e : e * libre / std::max(1LL, pedido));
        if (columnWidth(c - 1) != AnchoFijado(c) + dar) setColumnWidth(c - 1, AnchoFijado(c) + dar);
    }
}

void VistaGrid::resizeEvent(QResizeEvent* e) {
    QTableView::resizeEvent(e);
    AjustarAnchos();
}

void VistaGrid::showEvent(QShowEvent* e) {
    QTableView::showEvent(e);
    AjustarAnchos();
}

void VistaGrid::MostrarActiva() {
    Grid* g = modelo_.grid();
    if (!g || g->Filas() == 0 || g->Columnas() == 0) return;
    const QModelIndex i = modelo_.index(std::clamp(g->FilaActiva(), 1, g->Filas()) - 1,
                                        std::clamp(g->ColumnaActiva(), 1, g->Columnas()) - 1);
    // Set again, the same cell would drop a selected block.
    if (currentIndex() != i) setCurrentIndex(i);
    scrollTo(i);
}

void VistaGrid::TerminarEdicion() {
    if (state() == QAbstractItemView::EditingState) {
        // The open editor is the view's child on the viewport.
        for (QWidget* w : viewport()->findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
            if (!qobject_cast<QLineEdit*>(w) && !qobject_cast<QComboBox*>(w)) continue;
            commitData(w);
            closeEditor(w, QAbstractItemDelegate::NoHint);
        }
    }
    modelo_.EntregarPendientes();
}

void VistaGrid::PermitirBloques() {
    bloques_ = true;
    setSelectionMode(QAbstractItemView::ContiguousSelection);
    // A click on a column's header selects the whole column.
    horizontalHeader()->setSectionsClickable(true);
    connect(horizontalHeader(), &QHeaderView::sectionClicked, this, [this] { AvisarBloque(); });
}

void VistaGrid::QuitarBloque() {
    const QModelIndex actual = currentIndex();
    clearSelection();
    if (actual.isValid()) selectionModel()->select(actual, QItemSelectionModel::Select);
}

void VistaGrid::AvisarBloque() {
    if (!bloques_ || !selectionModel()) return;
    const QItemSelection seleccion = selectionModel()->selection();
    if (seleccion.size() != 1) return;
    const QItemSelectionRange& r = seleccion.first();
    if (r.height() * r.width() <= 1) return;
    Q_EMIT BloqueSeleccionado(r.top() + 1, r.bottom() + 1, r.left() + 1, r.right() + 1);
}

void VistaGrid::ConfirmarYAvanzar(QWidget* editor, int paso) {
    // The value goes through the same commit as leaving the cell; a cell
    // that takes it reports the change.
    bool aceptada = false;
    const auto aviso = connect(&modelo_, &QAbstractItemModel::dataChanged, this, [&aceptada] { aceptada = true; });
    commitData(editor);
    disconnect(aviso);
    closeEditor(editor, QAbstractItemDelegate::NoHint);
    // The logic acts before the move, so that a refill that puts the active
    // cell back on the edited row does not undo it.
    modelo_.EntregarPendientes();
    if (aceptada) Avanzar(paso);
}

void VistaGrid::Avanzar(int paso) {
    const QModelIndex actual = currentIndex();
    if (!actual.isValid() || !avanzarConEnter_) return;
    // The table's own move steps over joined cells and hidden rows.
    const QModelIndex destino = moveCursor(paso > 0 ? MoveDown : MoveUp, Qt::NoModifier);
    if (destino.isValid() && destino != actual) setCurrentIndex(destino);
}

QString VistaGrid::TextoSeleccion() const {
    const Grid* g = grid();
    if (!g || g->Filas() == 0) return QString();
    int f1 = 0, f2 = 0, c1 = 0, c2 = 0;
    const QItemSelection seleccion = selectionModel() ? selectionModel()->selection() : QItemSelection();
    if (seleccion.size() == 1) {
        const QItemSelectionRange& r = seleccion.first();
        f1 = r.top() + 1, f2 = r.bottom() + 1, c1 = r.left() + 1, c2 = r.right() + 1;
    } else if (currentIndex().isValid()) {
        f1 = f2 = currentIndex().row() + 1;
        c1 = c2 = currentIndex().column() + 1;
    } else {
        return QString();
    }
    const int ancho = c2 - c1 + 1;
    std::vector<char> tapada(size_t((f2 - f1 + 1) * ancho), 0);
    for (const Union& u : g->Uniones())
        for (int f = std::max(u.fila, f1); f < u.fila + u.filas && f <= f2; ++f)
            for (int c = std::max(u.columna, c1); c < u.columna + u.columnas && c <= c2; ++c)
                if (f != u.fila || c != u.columna) tapada[size_t((f - f1) * ancho + c - c1)] = 1;
    QStringList lineas;
    for (int f = f1; f <= f2; ++f) {
        if (isRowHidden(f - 1)) continue;
        QStringList celdas;
        for (int c = c1; c <= c2; ++c)
            if (!isColumnHidden(c - 1))
                celdas << (tapada[size_t((f - f1) * ancho + c - c1)] ? QString() : g->Texto(f, c));
        lineas << celdas.join(QLatin1Char('\t'));
    }
    return lineas.join(QLatin1Char('\n'));
}

void VistaGrid::Copiar() { QGuiApplication::clipboard()->setText(TextoSeleccion()); }

void VistaGrid::Pegar() { Pegar(QGuiApplication::clipboard()->text()); }

void VistaGrid::Pegar(const QString& texto) {
    const QModelIndex inicio = currentIndex();
    if (!grid() || !inicio.isValid() || texto.isEmpty()) return;
    QString limpio = texto;
    limpio.remove(QLatin1Char('\r'));
    QStringList lineas = limpio.split(QLatin1Char('\n'));
    // A spreadsheet ends its last row with a line feed too.
    if (lineas.size() > 1 && lineas.last().isEmpty()) lineas.removeLast();
    int f = inicio.row() + 1;
    for (const QString& linea : lineas) {
        while (grid() && f <= grid()->Filas() && isRowHidden(f - 1)) ++f;
        if (!grid() || f > grid()->Filas()) return;
        int c = inicio.column() + 1;
        for (const QString& valor : linea.split(QLatin1Char('\t'))) {
            while (c <= grid()->Columnas() && isColumnHidden(c - 1)) ++c;
            if (c > grid()->Columnas()) break;
            const QModelIndex i = modelo_.index(f - 1, c - 1);
            if ((modelo_.flags(i) & Qt::ItemIsEditable) && !Tapada(*grid(), f, c)) {
                if (!modelo_.setData(i, valor, Qt::EditRole)) {
                    setCurrentIndex(i);
                    return;
                }
                // The logic acts on each cell before the next, as after typing it.
                modelo_.EntregarPendientes();
                if (!grid()) return;
            }
            ++c;
        }
        ++f;
    }
}

void VistaGrid::keyPressEvent(QKeyEvent* e) {
    if (e->matches(QKeySequence::Copy)) {
        Copiar();
    } else if (e->matches(QKeySequence::Paste)) {
        Pegar();
    } else if (EsEnter(e) && state() != EditingState) {
        Avanzar(e->modifiers() & Qt::ShiftModifier ? -1 : 1);
    } else {
        QTableView::keyPressEvent(e);
        return;
    }
    e->accept();
}

void VistaGrid::mouseReleaseEvent(QMouseEvent* e) {
    QTableView::mouseReleaseEvent(e);
    AvisarBloque();
}

void VistaGrid::keyReleaseEvent(QKeyEvent* e) {
    QTableView::keyReleaseEvent(e);
    if (e->key() == Qt::Key_Shift) AvisarBloque();
}

void VistaGrid::currentChanged(const QModelIndex& actual, const QModelIndex& anterior) {
    QTableView::currentChanged(actual, anterior);
    if (Grid* g = modelo_.grid(); g && actual.isValid())
        g->PonerActiva(ModeloGrid::FilaGrid(actual), ModeloGrid::ColumnaGrid(actual));
}
