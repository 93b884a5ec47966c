#pragma once
// The list grid of every dialog: one row selected at a time, row numbers, an
// optional totals line, columns described by a format string:
//   entries separated by '|'; an entry may begin with '<' (left), '^' (centre)
//   or '>' (right); the rest is the title, whose length in characters (blanks
//   included) sets the width; an entry of one '.' is a hidden column whose
//   cells the model keeps.
#include <QString>
#include <QTableView>
#include <nomencla/nomencla_export.h>

namespace nomencla {

class ModeloAlfarje;
class LineaTotales;

class Alfarje : public QTableView {
    Q_OBJECT
    Q_PROPERTY(QString formatocolumnas READ formatocolumnas WRITE setFormatocolumnas)
    Q_PROPERTY(bool showrownumbers READ showrownumbers WRITE setShowrownumbers)
    Q_PROPERTY(bool totalslineshow READ totalslineshow WRITE setTotalslineshow)
    Q_PROPERTY(int searchcolumn READ searchcolumn WRITE setSearchcolumn)
    Q_PROPERTY(int Row READ Row WRITE setRow)
    Q_PROPERTY(int RowCount READ RowCount)
public:
    explicit Alfarje(QWidget* parent = nullptr);
    ~Alfarje() override;

    QString formatocolumnas() const;
    void setFormatocolumnas(const QString& formato);
    bool showrownumbers() const;
    void setShowrownumbers(bool mostrar);
    bool totalslineshow() const;
    void setTotalslineshow(bool mostrar);
    int searchcolumn() const;
    void setSearchcolumn(int columna);

    // Selected row, -1 for none. Setting a negative value or one past the last
    // row selects nothing.
    qint32 Row() const;
    void setRow(qint32 fila);
    qint32 RowCount() const;

    // Cells as stored (not through ColumnFormat); "" and 0 outside the grid.
    QString CellText() const; // first cell of the selected row
    QString CellText(qint32 fila, qint32 columna = 0) const;
    double CellValue(qint32 fila, qint32 columna) const;

    // Mode 0: whole text, case ignored. Mode 5: prefix in collation order.
    qint32 FindRow(const QString& texto, qint32 columna, qint32 modo, bool marca = false) const;

    void AddItem(const QString& texto); // cells separated by a Tab
    void AddItem(const QStringList& celdas); // cells as they are, Tabs and all
    void RemoveItem();                  // the selected row
    void ClearRows();
    void ClearSelection();
    void setRedraw(bool repintar);

    void setColumnFormat(qint32 columna, const QString& formato); // "##0.00", "ddd. dd-MMM-yyyy"
    void setColumnKind(qint32 columna, qint32 clase);             // 3: 0/1 flag column
    double ColumnTotal(qint32 columna) const;
    void setColumnTotalText(qint32 columna, const QString& texto);
    QString ColumnTotalText(qint32 columna) const;

    ModeloAlfarje* modelo() const;

    // Picks the selected row (or, with the focus, the row the keyboard is
    // on) as a double click does: Enter, or a screen reader's press on a
    // cell. False, and nothing done, without such a row or where the dialog
    // picks no rows (nothing handles Click).
    bool Elegir();
    bool eligeFilas() const;

Q_SIGNALS:
    void Click();               // double click on a row
    void KeyPress(int& KeyAscii); // keys while the grid has the focus; 0 cancels
    void GotFocus();
    void RowChange();           // the selected row changed, by the user or by code

protected:
    void focusInEvent(QFocusEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;
    void mouseDoubleClickEvent(QMouseEvent* evento) override;
    void resizeEvent(QResizeEvent* evento) override;
    void updateGeometries() override;
    QModelIndex moveCursor(CursorAction accion, Qt::KeyboardModifiers modificadores) override;
    void currentChanged(const QModelIndex& actual, const QModelIndex& anterior) override;
    void selectionChanged(const QItemSelection& elegidas, const QItemSelection& dejadas) override;

private:
    ModeloAlfarje* modelo_;
    LineaTotales* totales_ = nullptr;
    QString formato_;
    bool numerosFila_ = true;
    bool mostrarTotales_ = false;
    int columnaBusqueda_ = -1;
    int filaAnterior_ = -1;
    int filaPendiente_ = -1; // Row set while repainting is stopped
    bool enGeometria_ = false;
    void emitirCambioFila();
    LineaTotales* lineaTotales(); // created on first use, hidden
};

} // namespace nomencla
