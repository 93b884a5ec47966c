#include "core/AlfarjeAccesible.h"

#include "core/Alfarje.h"

#include <QAccessibleWidget>
#include <QHash>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QLabel>
#include <QPointer>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace nomencla {

QString tituloHablado(const QString& titulo)
{
    static const QRegularExpression entrePalabras(u"\\s{2,}"_s);
    QStringList palabras = titulo.trimmed().split(entrePalabras, Qt::SkipEmptyParts);
    for (QString& palabra : palabras) {
        const QStringList letras = palabra.split(u' ', Qt::SkipEmptyParts);
        if (letras.size() > 1 && std::all_of(letras.begin(), letras.end(), [](const QString& l) { return l.size() == 1; }))
            palabra = letras.join(QString());
    }
    return palabras.join(u' ');
}

QString sinAcelerador(QString texto)
{
    static const QRegularExpression acelerador(u"&(.)"_s);
    return texto.replace(acelerador, u"\\1"_s).trimmed();
}

namespace {

// The caption whose buddy the widget is, among its siblings.
QString textoDeCompanera(const QWidget* w)
{
    if (!w->parentWidget())
        return QString();
    const auto etiquetas = w->parentWidget()->findChildren<QLabel*>(Qt::FindDirectChildrenOnly);
    for (const QLabel* l : etiquetas)
        if (l->buddy() == w)
            return sinAcelerador(l->text());
    return QString();
}

// The logical columns on screen, in their order on screen.
QList<int> columnasVisibles(const Alfarje* g)
{
    QList<int> r;
    const QHeaderView* h = g->horizontalHeader();
    const int n = g->model()->columnCount();
    for (int v = 0; v < h->count(); ++v) {
        const int c = h->logicalIndex(v);
        if (c >= 0 && c < n && !h->isSectionHidden(c))
            r.append(c);
    }
    return r;
}

QWidget* lineaTotales(const Alfarje* g)
{
    return g->findChild<QWidget*>(g->objectName() + u".totales"_s, Qt::FindDirectChildrenOnly);
}

QRect enPantalla(const QWidget* w, QRect r)
{
    return r.translated(w->mapToGlobal(QPoint(0, 0)));
}

// What the title, a cell and a total share: no object of their own, no
// children, a text nobody sets.
class HojaAccesible : public QAccessibleInterface {
public:
    QObject* object() const override { return nullptr; }
    QAccessibleInterface* child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    void setText(QAccessible::Text, const QString&) override {}
};

class TablaAccesible;

// A column title: read as words.
class TituloAccesible : public HojaAccesible {
public:
    TituloAccesible(Alfarje* g, int columna) : g_(g), columna_(columna) {}
    bool isValid() const override { return g_ && columna_ < g_->model()->columnCount(); }
    QAccessibleInterface* parent() const override { return QAccessible::queryAccessibleInterface(g_.data()); }
    QString text(QAccessible::Text t) const override
    {
        if (t != QAccessible::Name || !isValid())
            return QString();
        return tituloHablado(g_->model()->headerData(columna_, Qt::Horizontal).toString());
    }
    QRect rect() const override
    {
        if (!isValid())
            return {};
        const QHeaderView* h = g_->horizontalHeader();
        return enPantalla(h, QRect(h->sectionViewportPosition(columna_), 0, h->sectionSize(columna_), h->height()));
    }
    QAccessible::Role role() const override { return QAccessible::ColumnHeader; }
    QAccessible::State state() const override
    {
        QAccessible::State s;
        s.invisible = !isValid() || g_->horizontalHeader()->isHidden();
        return s;
    }

private:
    QPointer<Alfarje> g_;
    int columna_;
};

// A cell: its text as shown, or for a flag column a check box with its state.
class CeldaAccesible : public HojaAccesible,
                       public QAccessibleTableCellInterface,
                       public QAccessibleActionInterface {
public:
    CeldaAccesible(Alfarje* g, int fila, int columna) : g_(g), fila_(fila), columna_(columna) {}

    bool isValid() const override
    {
        return g_ && fila_ < g_->model()->rowCount() && columna_ < g_->model()->columnCount();
    }
    QAccessibleInterface* parent() const override { return QAccessible::queryAccessibleInterface(g_.data()); }
    void* interface_cast(QAccessible::InterfaceType t) override
    {
        if (t == QAccessible::TableCellInterface)
            return static_cast<QAccessibleTableCellInterface*>(this);
        if (t == QAccessible::ActionInterface)
            return static_cast<QAccessibleActionInterface*>(this);
        return nullptr;
    }

    QModelIndex indice() const { return isValid() ? g_->model()->index(fila_, columna_) : QModelIndex(); }
    bool marca() const { return indice().data(Qt::CheckStateRole).isValid(); }

    QString text(QAccessible::Text t) const override
    {
        if (t != QAccessible::Name || !isValid() || marca())
            return QString();
        return indice().data(Qt::DisplayRole).toString();
    }
    QRect rect() const override
    {
        if (!isValid())
            return {};
        return enPantalla(g_->viewport(), g_->visualRect(indice()));
    }
    QAccessible::Role role() const override { return QAccessible::Cell; }
    QAccessible::State state() const override
    {
        QAccessible::State s;
        if (!isValid()) {
            s.invalid = true;
            return s;
        }
        s.selectable = true;
        s.focusable = true;
        s.selected = g_->selectionModel()->isRowSelected(fila_, QModelIndex());
        s.focused = g_->hasFocus() && g_->currentIndex().row() == fila_ && columnIndex() == columnaActual();
        s.readOnly = true;
        const QRect r = g_->visualRect(indice());
        s.invisible = !g_->viewport()->rect().intersects(r);
        s.offscreen = s.invisible;
        if (marca()) {
            s.checkable = true;
            s.checked = indice().data(Qt::CheckStateRole).toInt() == Qt::Checked;
        }
        return s;
    }

    // Table cell.
    bool isSelected() const override { return state().selected; }
    QList<QAccessibleInterface*> columnHeaderCells() const override;
    QList<QAccessibleInterface*> rowHeaderCells() const override { return {}; }
    int columnIndex() const override { return isValid() ? int(columnasVisibles(g_).indexOf(columna_)) : -1; }
    int rowIndex() const override { return fila_; }
    int columnExtent() const override { return 1; }
    int rowExtent() const override { return 1; }
    QAccessibleInterface* table() const override { return parent(); }

    // Actions: press picks the row where the dialog picks rows; a flag
    // cell tells that it is a check box (the grid is read-only: toggling
    // does nothing).
    QStringList actionNames() const override
    {
        QStringList r;
        if (g_ && g_->eligeFilas())
            r << pressAction();
        // Spelled as screen readers look for it to say "checked" or "not
        // checked" (Qt's own name is capitalised).
        if (marca())
            r << u"toggle"_s;
        return r;
    }
    void doAction(const QString& accion) override
    {
        if (accion == pressAction() && isValid()) {
            g_->setRow(fila_);
            g_->Elegir();
        }
    }
    QStringList keyBindingsForAction(const QString& accion) const override
    {
        return accion == pressAction() ? QStringList{u"Return"_s} : QStringList();
    }

private:
    QPointer<Alfarje> g_;
    int fila_;
    int columna_;
    int columnaActual() const
    {
        // The current cell of a grid of whole rows: its own column when on
        // screen, else the row's first column on screen.
        const QList<int> visibles = columnasVisibles(g_);
        const int i = int(visibles.indexOf(g_->currentIndex().column()));
        return i >= 0 ? i : 0;
    }
};

// The grid: its title, its visible cells, then the totals line.
class TablaAccesible : public QAccessibleWidget, public QAccessibleTableInterface {
public:
    explicit TablaAccesible(Alfarje* g) : QAccessibleWidget(g, QAccessible::Table) {}
    ~TablaAccesible() override { olvidar(); }

    Alfarje* grilla() const { return static_cast<Alfarje*>(widget()); }

    void* interface_cast(QAccessible::InterfaceType t) override
    {
        if (t == QAccessible::TableInterface)
            return static_cast<QAccessibleTableInterface*>(this);
        return QAccessibleWidget::interface_cast(t);
    }

    QString text(QAccessible::Text t) const override
    {
        if (t == QAccessible::Name) {
            const QString propio = grilla()->accessibleName();
            return propio.isEmpty() ? textoDeCompanera(grilla()) : propio;
        }
        if (t == QAccessible::Description)
            return grilla()->accessibleDescription();
        return QString();
    }

    bool conTitulos() const { return !grilla()->horizontalHeader()->isHidden(); }
    int titulos() const { return conTitulos() ? columnCount() : 0; }
    QWidget* totales() const
    {
        QWidget* t = lineaTotales(grilla());
        return t && !t->isHidden() ? t : nullptr;
    }

    int childCount() const override
    {
        return titulos() + rowCount() * columnCount() + (totales() ? 1 : 0);
    }
    QAccessibleInterface* child(int i) const override
    {
        const int c = columnCount();
        if (i < 0 || c == 0)
            return nullptr;
        if (i < titulos())
            return titulo(columnasVisibles(grilla())[i]);
        i -= titulos();
        if (i < rowCount() * c)
            return cellAt(i / c, i % c);
        if (i == rowCount() * c && totales())
            return QAccessible::queryAccessibleInterface(totales());
        return nullptr;
    }
    int indexOfChild(const QAccessibleInterface* hijo) const override
    {
        if (!hijo)
            return -1;
        if (hijo->role() == QAccessible::ColumnHeader) {
            for (int i = 0; i < titulos(); ++i)
                if (child(i) == hijo)
                    return i;
            return -1;
        }
        if (auto* celda = const_cast<QAccessibleInterface*>(hijo)->tableCellInterface()) {
            if (celda->table() != this || celda->columnIndex() < 0)
                return -1;
            return titulos() + celda->rowIndex() * columnCount() + celda->columnIndex();
        }
        if (hijo->object() && hijo->object() == totales())
            return titulos() + rowCount() * columnCount();
        return -1;
    }
    QAccessibleInterface* childAt(int x, int y) const override
    {
        const QPoint p = grilla()->viewport()->mapFromGlobal(QPoint(x, y));
        const QModelIndex i = grilla()->indexAt(p);
        if (i.isValid()) {
            const int c = int(columnasVisibles(grilla()).indexOf(i.column()));
            return c >= 0 ? cellAt(i.row(), c) : nullptr;
        }
        return QAccessibleWidget::childAt(x, y);
    }

    // Table.
    QAccessibleInterface* cellAt(int fila, int columna) const override
    {
        const QList<int> visibles = columnasVisibles(grilla());
        if (fila < 0 || fila >= rowCount() || columna < 0 || columna >= visibles.size())
            return nullptr;
        const quint64 clave = (quint64(quint32(fila)) << 32) | quint32(visibles[columna]);
        return registrada(celdas_, clave, [&] { return new CeldaAccesible(grilla(), fila, visibles[columna]); });
    }
    QAccessibleInterface* titulo(int logica) const
    {
        return registrada(titulos_, quint64(logica), [&] { return new TituloAccesible(grilla(), logica); });
    }
    QAccessibleInterface* caption() const override { return nullptr; }
    QAccessibleInterface* summary() const override { return nullptr; }
    QString columnDescription(int columna) const override
    {
        const QList<int> visibles = columnasVisibles(grilla());
        if (columna < 0 || columna >= visibles.size())
            return QString();
        return tituloHablado(grilla()->model()->headerData(visibles[columna], Qt::Horizontal).toString());
    }
    QString rowDescription(int fila) const override { return QString::number(fila + 1); }
    int columnCount() const override { return int(columnasVisibles(grilla()).size()); }
    int rowCount() const override { return grilla()->model()->rowCount(); }
    int selectedCellCount() const override { return selectedRowCount() * columnCount(); }
    int selectedColumnCount() const override { return 0; }
    int selectedRowCount() const override { return grilla()->Row() >= 0 ? 1 : 0; }
    QList<QAccessibleInterface*> selectedCells() const override
    {
        QList<QAccessibleInterface*> r;
        const int f = grilla()->Row();
        for (int c = 0; f >= 0 && c < columnCount(); ++c)
            r.append(cellAt(f, c));
        return r;
    }
    QList<int> selectedColumns() const override { return {}; }
    QList<int> selectedRows() const override
    {
        const int f = grilla()->Row();
        return f >= 0 ? QList<int>{f} : QList<int>();
    }
    bool isColumnSelected(int) const override { return false; }
    bool isRowSelected(int fila) const override { return fila >= 0 && fila == grilla()->Row(); }
    bool selectRow(int fila) override
    {
        if (fila < 0 || fila >= rowCount())
            return false;
        grilla()->setRow(fila);
        return true;
    }
    bool selectColumn(int) override { return false; }
    bool unselectRow(int fila) override
    {
        if (fila != grilla()->Row())
            return false;
        grilla()->ClearSelection();
        return true;
    }
    bool unselectColumn(int) override { return false; }
    void modelChange(QAccessibleTableModelChangeEvent*) override { olvidar(); }

private:
    mutable QHash<quint64, QAccessible::Id> celdas_;
    mutable QHash<quint64, QAccessible::Id> titulos_;

    template <class Crear>
    static QAccessibleInterface* registrada(QHash<quint64, QAccessible::Id>& cache, quint64 clave, Crear crear)
    {
        const auto it = cache.constFind(clave);
        if (it != cache.constEnd())
            if (QAccessibleInterface* i = QAccessible::accessibleInterface(it.value()))
                return i;
        QAccessibleInterface* i = crear();
        cache.insert(clave, QAccessible::registerAccessibleInterface(i));
        return i;
    }
    void olvidar()
    {
        for (auto* cache : {&celdas_, &titulos_}) {
            for (QAccessible::Id id : std::as_const(*cache))
                QAccessible::deleteAccessibleInterface(id);
            cache->clear();
        }
    }
};

QList<QAccessibleInterface*> CeldaAccesible::columnHeaderCells() const
{
    auto* t = static_cast<TablaAccesible*>(table());
    if (!t || !isValid() || !t->conTitulos())
        return {};
    return {t->titulo(columna_)};
}

// The totals line: one text per column on screen that has a total; its
// description is the column's title.
class TotalAccesible : public HojaAccesible {
public:
    TotalAccesible(QWidget* linea, int columna) : linea_(linea), columna_(columna) {}
    Alfarje* grilla() const { return linea_ ? qobject_cast<Alfarje*>(linea_->parentWidget()) : nullptr; }
    bool isValid() const override { return grilla() != nullptr; }
    QAccessibleInterface* parent() const override { return QAccessible::queryAccessibleInterface(linea_.data()); }
    QString text(QAccessible::Text t) const override
    {
        if (!isValid())
            return QString();
        if (t == QAccessible::Name)
            return grilla()->ColumnTotalText(columna_);
        if (t == QAccessible::Description)
            return tituloHablado(grilla()->model()->headerData(columna_, Qt::Horizontal).toString());
        return QString();
    }
    QRect rect() const override
    {
        if (!isValid())
            return {};
        const QHeaderView* h = grilla()->horizontalHeader();
        const int x = h->sectionViewportPosition(columna_) + grilla()->viewport()->x() - linea_->x();
        return enPantalla(linea_, QRect(x, 0, h->sectionSize(columna_), linea_->height()));
    }
    QAccessible::Role role() const override { return QAccessible::StaticText; }
    QAccessible::State state() const override
    {
        QAccessible::State s;
        s.readOnly = true;
        return s;
    }

private:
    QPointer<QWidget> linea_;
    int columna_;
};

class TotalesAccesible : public QAccessibleWidget {
public:
    explicit TotalesAccesible(QWidget* linea) : QAccessibleWidget(linea, QAccessible::Grouping) {}
    ~TotalesAccesible() override
    {
        for (QAccessible::Id id : std::as_const(hijos_))
            QAccessible::deleteAccessibleInterface(id);
    }
    Alfarje* grilla() const { return qobject_cast<Alfarje*>(widget()->parentWidget()); }
    QString text(QAccessible::Text t) const override
    {
        return t == QAccessible::Name ? u"Totales"_s : QAccessibleWidget::text(t);
    }
    QAccessibleInterface* parent() const override { return QAccessible::queryAccessibleInterface(grilla()); }
    QList<int> columnas() const
    {
        QList<int> r;
        for (int c : columnasVisibles(grilla()))
            if (!grilla()->ColumnTotalText(c).isEmpty())
                r.append(c);
        return r;
    }
    int childCount() const override { return int(columnas().size()); }
    QAccessibleInterface* child(int i) const override
    {
        const QList<int> cs = columnas();
        if (i < 0 || i >= cs.size())
            return nullptr;
        const auto it = hijos_.constFind(cs[i]);
        if (it != hijos_.constEnd())
            if (QAccessibleInterface* h = QAccessible::accessibleInterface(it.value()))
                return h;
        QAccessibleInterface* h = new TotalAccesible(widget(), cs[i]);
        hijos_.insert(cs[i], QAccessible::registerAccessibleInterface(h));
        return h;
    }
    int indexOfChild(const QAccessibleInterface* hijo) const override
    {
        for (int i = 0; i < childCount(); ++i)
            if (child(i) == hijo)
                return i;
        return -1;
    }

private:
    mutable QHash<int, QAccessible::Id> hijos_;
};

QAccessibleInterface* fabrica(const QString& clase, QObject* objeto)
{
    if (!objeto || !objeto->isWidgetType())
        return nullptr;
    if (clase == QLatin1StringView(Alfarje::staticMetaObject.className()))
        if (auto* g = qobject_cast<Alfarje*>(objeto))
            return new TablaAccesible(g);
    if (clase == "QWidget"_L1)
        if (auto* g = qobject_cast<Alfarje*>(objeto->parent());
            g && objeto->objectName() == g->objectName() + u".totales"_s)
            return new TotalesAccesible(static_cast<QWidget*>(objeto));
    return nullptr;
}

} // namespace

void instalarAccesibilidadAlfarje()
{
    static const bool instalada = [] {
        QAccessible::installFactory(fabrica);
        return true;
    }();
    Q_UNUSED(instalada);
}

void avisarFocoAlfarje(Alfarje* g, const QModelIndex& actual)
{
    if (!QAccessible::isActive() || !actual.isValid() || !g->hasFocus())
        return;
    auto* t = dynamic_cast<TablaAccesible*>(QAccessible::queryAccessibleInterface(g));
    if (!t)
        return;
    const QList<int> visibles = columnasVisibles(g);
    const int c = std::max(0, int(visibles.indexOf(actual.column())));
    QAccessibleInterface* celda = t->cellAt(actual.row(), c);
    if (!celda)
        return;
    QAccessibleEvent evento(g, QAccessible::Focus);
    evento.setChild(t->indexOfChild(celda));
    QAccessible::updateAccessibility(&evento);
}

void avisarSeleccionAlfarje(Alfarje* g, const QItemSelection& elegidas, const QItemSelection& dejadas)
{
    if (!QAccessible::isActive())
        return;
    auto* t = dynamic_cast<TablaAccesible*>(QAccessible::queryAccessibleInterface(g));
    if (!t)
        return;
    const QList<int> visibles = columnasVisibles(g);
    // As the table view does: the first cell of each change.
    auto avisar = [&](const QItemSelection& s, QAccessible::Event tipo) {
        for (const QModelIndex& i : s.indexes()) {
            const int c = int(visibles.indexOf(i.column()));
            if (c < 0)
                continue;
            QAccessibleEvent evento(g, tipo);
            evento.setChild(t->indexOfChild(t->cellAt(i.row(), c)));
            QAccessible::updateAccessibility(&evento);
            return;
        }
    };
    avisar(elegidas, QAccessible::SelectionAdd);
    avisar(dejadas, QAccessible::SelectionRemove);
}

} // namespace nomencla
