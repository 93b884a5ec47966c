#pragma once
// Services shared by the dialogs: the key filter of numeric boxes, dates for
// statements, single values, combo filling and value-to-label expressions.
// The class holds no state; every call carries what it needs.
#include <QDate>
#include <QSqlDatabase>
#include <QString>
#include <QVariant>
#include <QVariantList>

class QWidget;
class QComboBox;

namespace nomencla {

// An SQL expression with its own placeholders and the values they take, in order.
struct ExpresionSql {
    QString texto;
    QVariantList valores;
};

class clsServicios {
public:
    // Key filter of a numeric text box, called from its KeyPress handler; the
    // result replaces the key (0 cancels it). Control keys pass. `Digitos`
    // bounds the digits before the decimal mark, `Decimales` those after it
    // (0 refuses the mark). Both '.' and ',' are taken as the mark and come
    // back as '.', the mark that the saved number is read with. `A` non-zero
    // would allow a leading minus sign; `B` is not used.
    int FiltrarTecla(QWidget* Caja, int KeyAscii, int Decimales, int A, int Digitos, int B) const;

    // The leading number of a text, with a point as the decimal mark; 0 when
    // the text does not begin with one ("12abc" is 12).
    static double Val(const QString& texto);

    // The date of a text as the database writes it ("yyyy-MM-dd"); "" when the
    // text is no date. Takes the texts a grid or a picker shows.
    QString FechaSql(const QString& Fecha) const;
    // The same date as a value to bind.
    static QDate fechaDeTexto(const QString& texto);

    // First field of the first row; Null when none (MAX over no rows).
    QVariant ConsultarValor(QSqlDatabase& Conexion, const QString& Sql, const QVariantList& valores = {}) const;

    // Empties the combo and fills it from the statement, an entry per row:
    // the text from `CampoTexto`, the item data from `CampoClave` (none when
    // empty). The first entry is left selected when there is one.
    void LlenarCombo(QSqlDatabase& Conexion, const QString& Sql, const QVariantList& valores, QComboBox* Combo,
                     const QString& CampoTexto, const QString& CampoClave, bool A = true, bool B = true,
                     const QString& Texto = {}) const;

    // CASE expression giving, for the n-th value of the comma list `Valores`
    // in column `Campo`, the n-th label of `Etiquetas` (values and labels are
    // bound). Other values give the value itself as text.
    ExpresionSql ExpresionCaso(const QString& Campo, const QString& Valores, const QString& Etiquetas,
                               int A = 0) const;
};

} // namespace nomencla
