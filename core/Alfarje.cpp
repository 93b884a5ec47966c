#include "core/Alfarje.h"

#include <algorithm>

#include "core/ExportarGrilla.h"
#include "core/AlfarjeAccesible.h"
#include "core/ModeloAlfarje.h"

#include <QFocusEvent>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QMetaMethod>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyleOptionHeader>

#include <cmath>

using namespace Qt::StringLiterals;

namespace nomencla {

// The line under the grid with one total under each column, drawn at the
// place of the column's header section.
class LineaTotales : public QWidget {
public:
    explicit LineaTotales(Alfarje* grilla) : QWidget(grilla), grilla_(grilla) {}

    QStringList textos;

    int alto() const { return fontMetrics().height() + 6; }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter p(this);
        p.fillRect(rect(), palette().window());
        p.setPen(palette().color(QPalette::Mid));
        p.drawLine(0, 0, width(), 0);
        p.setPen(palette().color(QPalette::WindowText));
        const QHeaderView* h = grilla_->horizontalHeader();
        const int dx = grilla_->viewport()->x() - x();
        for (int c = 0; c < textos.size(); ++c) {
            if (textos[c].isEmpty() || h->isSectionHidden(c))
                continue;
            const int xs = h->sectionViewportPosition(c) + dx;
            const QRect celda(xs + 3, 1, h->sectionSize(c) - 6, height() - 1);
            const auto a = grilla_->model()->headerData(c, Qt::Horizontal, Qt::TextAlignmentRole);
            const int alin = a.isValid() ? a.toInt() : int(Qt::AlignLeft | Qt::AlignVCenter);
            p.drawText(celda, alin, textos[c]);
        }
    }

private:
    Alfarje* grilla_;
};

namespace {

struct Entrada {
    QString titulo;
    Qt::Alignment alineacion = Qt::AlignLeft;
    int largo = 0;
    bool oculta = false;
};

QList<Entrada> leerFormato(const QString& formato)
{
    QList<Entrada> r;
    if (formato.isEmpty())
        return r;
    const QStringList partes = formato.split(u'|');
    for (const QString& parte : partes) {
        Entrada e;
        QStringView resto = parte;
        if (!resto.isEmpty()) {
            switch (resto.front().unicode()) {
            case u'<': e.alineacion = Qt::AlignLeft; resto = resto.sliced(1); break;
            case u'^': e.alineacion = Qt::AlignHCenter; resto = resto.sliced(1); break;
            case u'>': e.alineacion = Qt::AlignRight; resto = resto.sliced(1); break;
            default: break;
            }
        }
        e.largo = int(resto.size());
        // Hidden: "." alone, or a placeholder of x's ending in a point ("xxxx.");
        // a title that merely ends in a point ("SERV. ELEC.") is shown.
        const QStringView sinBlancos = resto.trimmed();
        e.oculta = sinBlancos.endsWith(u'.')
            && std::all_of(sinBlancos.begin(), sinBlancos.end() - 1, [](QChar c) { return c == u'x' || c == u'X'; });
        e.titulo = e.oculta ? QString() : resto.trimmed().toString();
        r.append(e);
    }
    return r;
}

} // namespace

Alfarje::Alfarje(QWidget* parent) : QTableView(parent), modelo_(new ModeloAlfarje(this))
{
    instalarAccesibilidadAlfarje();
    setModel(modelo_);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setAlternatingRowColors(true);
    setWordWrap(false);
    setTabKeyNavigation(false);
    setSortingEnabled(false);
    setCornerButtonEnabled(false);

    QFont chica = font();
    if (chica.pointSizeF() > 0)
        chica.setPointSizeF(chica.pointSizeF() * 0.85);
    horizontalHeader()->setFont(chica);
    verticalHeader()->setFont(chica);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setSectionsClickable(false);
    horizontalHeader()->setMinimumSectionSize(4);
    horizontalHeader()->setStretchLastSection(true); // the last visible column takes the room left

    // Fixed row heights: nothing is measured per row, however many there are.
    QHeaderView* v = verticalHeader();
    v->setMinimumSectionSize(4);
    v->setDefaultSectionSize(fontMetrics().height() + 4);
    v->setSectionResizeMode(QHeaderView::Fixed);
    v->setSectionsClickable(false);
    v->setHighlightSections(true);
    v->setDefaultAlignment(Qt::AlignRight | Qt::AlignVCenter);

    connect(selectionModel(), &QItemSelectionModel::selectionChanged, this,
            [this] { emitirCambioFila(); });
    connect(modelo_, &QAbstractItemModel::modelReset, this, [this] {
        setFormatocolumnas(formato_);
        emitirCambioFila();
    });
    connect(modelo_, &QAbstractItemModel::columnsInserted, this,
            [this] { setFormatocolumnas(formato_); });
    connect(modelo_, &QAbstractItemModel::rowsRemoved, this, [this] { emitirCambioFila(); });
    connect(modelo_, &QAbstractItemModel::rowsInserted, this, [this] { emitirCambioFila(); });
    exportar::instalar(this); // copy, export and, where a list takes them, imports
}

Alfarje::~Alfarje() = default;

QString Alfarje::formatocolumnas() const { return formato_; }

void Alfarje::setFormatocolumnas(const QString& formato)
{
    const bool nuevo = formato != formato_;
    formato_ = formato;
    const QList<Entrada> entradas = leerFormato(formato);
    if (nuevo) {
        QStringList titulos;
        QList<Qt::Alignment> alineaciones;
        for (const Entrada& e : entradas) {
            titulos.append(e.titulo);
            alineaciones.append(e.alineacion);
        }
        modelo_->setColumnasDeclaradas(int(entradas.size()));
        modelo_->setTitulos(titulos, alineaciones);
    }
    const int ancho = std::max(1, fontMetrics().averageCharWidth());
    QHeaderView* h = horizontalHeader();
    const int nc = modelo_->columnCount();
    for (int c = 0; c < nc; ++c) {
        if (c < entradas.size()) {
            const Entrada& e = entradas[c];
            h->setSectionHidden(c, e.oculta);
            // The entry's length sets the width, but never narrower than its title.
            if (!e.oculta)
                h->resizeSection(c, std::max(e.largo * ancho, h->fontMetrics().horizontalAdvance(e.titulo) + 2 * ancho));
        } else {
            h->setSectionHidden(c, true); // fields beyond the declared columns
        }
    }
    if (totales_)
        totales_->update();
}

bool Alfarje::showrownumbers() const { return numerosFila_; }

void Alfarje::setShowrownumbers(bool mostrar)
{
    numerosFila_ = mostrar;
    verticalHeader()->setVisible(mostrar);
}

bool Alfarje::totalslineshow() const { return mostrarTotales_; }

void Alfarje::setTotalslineshow(bool mostrar)
{
    mostrarTotales_ = mostrar;
    lineaTotales()->setVisible(mostrar);
    if (!mostrar)
        QTableView::updateGeometries(); // gives the room back to the rows
    updateGeometries();
}

LineaTotales* Alfarje::lineaTotales()
{
    if (!totales_) {
        totales_ = new LineaTotales(this);
        totales_->hide();
        // Named after its grid ("GR.totales"), for automation and screen readers.
        auto nombrar = [this] { totales_->setObjectName(objectName() + u".totales"_s); };
        nombrar();
        connect(this, &QObject::objectNameChanged, totales_, nombrar);
        auto repintar = [this] { totales_->update(); };
        connect(horizontalScrollBar(), &QScrollBar::valueChanged, totales_, repintar);
        connect(horizontalHeader(), &QHeaderView::sectionResized, totales_, repintar);
        connect(horizontalHeader(), &QHeaderView::sectionMoved, totales_, repintar);
    }
    return totales_;
}

int Alfarje::searchcolumn() const { return columnaBusqueda_; }
void Alfarje::setSearchcolumn(int columna) { columnaBusqueda_ = columna; }

qint32 Alfarje::Row() const
{
    if (modelo_->suspendido())
        return filaPendiente_;
    const QItemSelection s = selectionModel()->selection();
    if (s.isEmpty())
        return -1;
    return s.first().top();
}

void Alfarje::setRow(qint32 fila)
{
    if (modelo_->suspendido()) {
        // Applied when repainting resumes.
        filaPendiente_ = fila >= 0 && fila < modelo_->filas() ? fila : -1;
        return;
    }
    if (fila < 0 || fila >= modelo_->filas()) {
        clearSelection();
        return;
    }
    const QModelIndex i = modelo_->index(fila, 0);
    selectionModel()->setCurrentIndex(
        i, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    scrollTo(i);
}

qint32 Alfarje::RowCount() const { return modelo_->filas(); }

QString Alfarje::CellText() const { return modelo_->texto(Row(), 0); }

QString Alfarje::CellText(qint32 fila, qint32 columna) const { return modelo_->texto(fila, columna); }

double Alfarje::CellValue(qint32 fila, qint32 columna) const { return modelo_->valor(fila, columna); }

qint32 Alfarje::FindRow(const QString& texto, qint32 columna, qint32 modo, bool) const
{
    return modelo_->buscar(texto, columna, modo);
}

void Alfarje::AddItem(const QString& texto)
{
    modelo_->agregarFila(texto.split(QChar(9)));
}

void Alfarje::AddItem(const QStringList& celdas)
{
    modelo_->agregarFila(celdas);
}

void Alfarje::RemoveItem()
{
    const int f = Row();
    if (f < 0)
        return;
    modelo_->quitarFila(f);
    clearSelection(); // the view would otherwise select the next row by itself
}

void Alfarje::ClearRows() { modelo_->vaciar(); }

void Alfarje::ClearSelection() { clearSelection(); }

void Alfarje::setRedraw(bool repintar)
{
    if (repintar) {
        const bool estaba = modelo_->suspendido();
        modelo_->reanudarAvisos();
        setUpdatesEnabled(true);
        if (estaba) {
            const int fila = filaPendiente_;
            filaPendiente_ = -1;
            setRow(fila);
        }
    } else {
        if (!modelo_->suspendido())
            filaPendiente_ = Row();
        setUpdatesEnabled(false);
        modelo_->suspenderAvisos();
    }
}

void Alfarje::setColumnFormat(qint32 columna, const QString& formato)
{
    modelo_->setFormato(columna, formato);
}

void Alfarje::setColumnKind(qint32 columna, qint32 clase) { modelo_->setClase(columna, clase); }

double Alfarje::ColumnTotal(qint32 columna) const { return modelo_->total(columna); }

void Alfarje::setColumnTotalText(qint32 columna, const QString& texto)
{
    if (columna < 0)
        return;
    LineaTotales* t = lineaTotales();
    while (t->textos.size() <= columna)
        t->textos.append(QString());
    t->textos[columna] = texto;
    t->update();
}

QString Alfarje::ColumnTotalText(qint32 columna) const
{
    if (!totales_ || columna < 0 || columna >= totales_->textos.size())
        return QString();
    return totales_->textos[columna];
}

ModeloAlfarje* Alfarje::modelo() const { return modelo_; }

void Alfarje::emitirCambioFila()
{
    const int f = Row();
    if (f == filaAnterior_)
        return;
    filaAnterior_ = f;
    Q_EMIT RowChange();
}

void Alfarje::focusInEvent(QFocusEvent* evento)
{
    QTableView::focusInEvent(evento);
    Q_EMIT GotFocus();
}

void Alfarje::keyPressEvent(QKeyEvent* evento)
{
    int codigo = 0;
    switch (evento->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter: codigo = 13; break;
    case Qt::Key_Escape: codigo = 27; break;
    case Qt::Key_Backspace: codigo = 8; break;
    default:
        if (!evento->text().isEmpty())
            codigo = evento->text().at(0).unicode();
        break;
    }
    if (codigo != 0) {
        Q_EMIT KeyPress(codigo);
        if (codigo == 0 || (codigo == 13 && Elegir())) {
            evento->accept();
            return;
        }
        if (codigo >= 32 || codigo == 8) {
            // Typed characters belong to the dialog's search, not to the
            // view's own keyboard search over every row.
            evento->ignore();
            return;
        }
    }
    QTableView::keyPressEvent(evento);
}

void Alfarje::mouseDoubleClickEvent(QMouseEvent* evento)
{
    QTableView::mouseDoubleClickEvent(evento);
    if (indexAt(evento->position().toPoint()).isValid())
        Q_EMIT Click();
}

QModelIndex Alfarje::moveCursor(CursorAction accion, Qt::KeyboardModifiers modificadores)
{
    // Whole rows: Home and End go to the first and the last row.
    if (accion == MoveHome || accion == MoveEnd)
        modificadores |= Qt::ControlModifier;
    return QTableView::moveCursor(accion, modificadores);
}

bool Alfarje::eligeFilas() const { return isSignalConnected(QMetaMethod::fromSignal(&Alfarje::Click)); }

bool Alfarje::Elegir()
{
    if (!eligeFilas())
        return false;
    // Arriving by Tab puts the keyboard on a row without selecting it.
    if (Row() < 0 && hasFocus() && currentIndex().isValid())
        setRow(currentIndex().row());
    if (Row() < 0)
        return false;
    Q_EMIT Click();
    return true;
}

// The accessibility events of a table view name cells by their place among
// every column; the grid's own interface shows the visible columns only.
void Alfarje::currentChanged(const QModelIndex& actual, const QModelIndex& anterior)
{
    avisarFocoAlfarje(this, actual);
    QAbstractItemView::currentChanged(actual, anterior);
}

void Alfarje::selectionChanged(const QItemSelection& elegidas, const QItemSelection& dejadas)
{
    avisarSeleccionAlfarje(this, elegidas, dejadas);
    QAbstractItemView::selectionChanged(elegidas, dejadas);
}

void Alfarje::resizeEvent(QResizeEvent* evento)
{
    QTableView::resizeEvent(evento);
}

void Alfarje::updateGeometries()
{
    if (enGeometria_)
        return;
    enGeometria_ = true;
    QTableView::updateGeometries();
    if (totales_ && mostrarTotales_) {
        // Room for the totals line under the rows, between them and the
        // horizontal scroll bar.
        const int alto = totales_->alto();
        const QMargins m = viewportMargins();
        setViewportMargins(m.left(), m.top(), m.right(), alto);
        const QRect vg = viewport()->geometry();
        if (verticalHeader()->isVisible())
            verticalHeader()->setGeometry(vg.left() - m.left(), vg.top(), m.left(), vg.height());
        totales_->setGeometry(frameWidth(), vg.bottom() + 1, width() - 2 * frameWidth(), alto);
        totales_->raise();
        // The scroll range was worked out for the taller viewport.
        if (verticalScrollMode() == QAbstractItemView::ScrollPerItem) {
            const int paso = std::max(1, verticalHeader()->defaultSectionSize());
            QScrollBar* b = verticalScrollBar();
            if (b->maximum() > 0 || modelo_->filas() * paso > vg.height())
                b->setMaximum(b->maximum() + (alto + paso - 1) / paso);
        } else {
            verticalScrollBar()->setMaximum(verticalScrollBar()->maximum() + alto);
        }
        totales_->update();
    }
    enGeometria_ = false;
}

} // namespace nomencla
