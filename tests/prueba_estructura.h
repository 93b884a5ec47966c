#pragma once
// What the dialog tests share: the boxes Tx(i), typing into a control,
// finding a row by a cell's text and picking it by a double click, as the
// user does.
#include "tests/support/Prueba.h"

#include "core/Alfarje.h"

#include <QLineEdit>

namespace prueba {

// The dialog's one-line box Tx(i).
inline QLineEdit* tx(QWidget* d, int i)
{
    return control<QLineEdit>(d, QStringLiteral("Tx(%1)").arg(i));
}

// The text of a box of one line or several.
inline QString textoDe(QWidget* d, const QString& nombre)
{
    return control<QWidget>(d, nombre)->property("text").toString();
}

inline void escribir(QWidget* d, const QString& nombre, const QString& texto)
{
    QWidget* w = control<QWidget>(d, nombre);
    w->setFocus();
    teclear(w, texto);
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
