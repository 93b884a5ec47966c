#pragma once
// The grid's model. Rows are kept by column in typed storage (no object per
// cell): a text column keeps all its characters in one buffer with offsets,
// numbers and dates keep their value. Null or missing cells are empty.
#include <QAbstractTableModel>
#include <QDate>
#include <QList>
#include <QString>
#include <QStringView>
#include <QVector>
#include <memory>
#include <vector>

class QSqlQuery;

namespace nomencla {

class ModeloAlfarje : public QAbstractTableModel {
    Q_OBJECT
public:
    // Kinds of storage of a column; a value that does not fit a typed column
    // turns that column into text.
    enum class Tipo { Texto, Entero, Decimal, Fecha };

    explicit ModeloAlfarje(QObject* parent = nullptr);
    ~ModeloAlfarje() override;

    // Declared columns (from the column format); the model has at least these.
    void setColumnasDeclaradas(int n);

    // Bulk fill from an executed forward-only query: campos[i] is the record's
    // field index feeding column i, or -1 for an empty cell. Returns false
    // (and leaves what was read) when the query reports an error while reading.
    bool cargar(QSqlQuery& consulta, const QVector<int>& campos);

    void agregarFila(const QStringList& celdas); // AddItem
    void quitarFila(int fila);                  // RemoveItem
    void vaciar();                               // ClearRows

    int filas() const noexcept;
    int columnas() const noexcept; // stored columns (declared or filled, whichever is more)
    QString texto(int fila, int columna) const;  // "" past the end or for Null
    double valor(int fila, int columna) const;   // 0 past the end, for Null or for text that is not a number
    bool esNulo(int fila, int columna) const;

    // First row in grid order whose cell matches: modo 5 a prefix in collation
    // order (case and accents ignored), any other mode the whole text ignoring
    // case. -1 when nothing matches or the text is empty.
    int buscar(QStringView texto, int columna, int modo) const;

    void setFormato(int columna, const QString& formato);  // ColumnFormat
    void setClase(int columna, int clase);                  // ColumnKind (3: 0/1 flag)
    double total(int columna) const;                        // ColumnTotal
    QString textoMostrado(int fila, int columna) const;     // as shown, through the format

    // QAbstractTableModel
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    void setTitulos(const QStringList& titulos, const QList<Qt::Alignment>& alineaciones);

    // While suspended (Redraw off) rows come and go without telling the views
    // one by one; resuming tells them once, as a reset.
    void suspenderAvisos();
    void reanudarAvisos();
    bool suspendido() const noexcept { return suspendido_; }

private:
    struct Columna;
    std::vector<std::unique_ptr<Columna>> columnas_;
    int filas_ = 0;
    int declaradas_ = 0;
    QStringList titulos_;
    QList<Qt::Alignment> alineaciones_;
    bool suspendido_ = false;
    Columna& columna(int c);
    void asegurarColumnas(int n);
    void inicioReinicio();
    void finReinicio();
};

} // namespace nomencla
