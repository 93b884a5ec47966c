#pragma once
// What the dialog tests share: the boxes Tx(i), typing into a control,
// finding a row by a cell's text and picking it by a double click, as the
// user does.
#include "tests/support/Prueba.h"

#include "core/Alfarje.h"

#include <nomencla/clsNomencla.h>

#include <QLineEdit>

namespace prueba {

// A maintenance method of the public class.
using Metodo = bool (clsNomencla::*)(const QString&, QSqlDatabase&);

// The box of a save in the coded and named lists and the company dialogs.
inline const QString guardada = QStringLiteral("La información se ha guardado con éxito!");

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

// A click on a row of the grid `nombre` of the active dialog `d`, as the
// clerk's own (a message box may have taken the activation).
inline void clic(QWidget* d, const QString& nombre, int fila)
{
    d->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(d));
    auto* gr = control<nomencla::Alfarje>(d, nombre);
    QTest::mouseClick(gr->viewport(), Qt::LeftButton, {}, gr->visualRect(gr->model()->index(fila, 0)).center());
}

} // namespace prueba
