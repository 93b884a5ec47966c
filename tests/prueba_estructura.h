#pragma once
// What the tests of the company structure share: picking a row of the grid
// by a double click, as the user does, and finding a row by a cell's text.
#include "tests/support/Prueba.h"

#include "core/Alfarje.h"

#include <QLineEdit>

namespace prueba {

// The dialog's text box Tx(i).
inline QLineEdit* tx(QWidget* d, int i)
{
    return control<QLineEdit>(d, QStringLiteral("Tx(%1)").arg(i));
}

inline int filaCon(nomencla::Alfarje* gr, const QString& texto, int columna = 0)
{
    for (int i = 0; i < gr->RowCount(); ++i)
        if (gr->CellText(i, columna) == texto)
            return i;
    return -1;
}

inline void dobleClic(nomencla::Alfarje* gr, int fila)
{
    QVERIFY(fila >= 0);
    gr->scrollTo(gr->model()->index(fila, 0));
    const QPoint punto = gr->visualRect(gr->model()->index(fila, 0)).center();
    QTest::mouseDClick(gr->viewport(), Qt::LeftButton, {}, punto);
}

} // namespace prueba
