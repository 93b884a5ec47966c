#pragma once
// What the tests of the coded lists share: a pick, the fields' texts, typing
// into a field, and the mode of the fields as the user sees it.
#include "tests/support/Prueba.h"

#include "core/Alfarje.h"
#include "core/Controles.h"

#include <QAbstractButton>

namespace prueba {

// A double click on a row, as the user picks it.
inline void dobleClic(nomencla::Alfarje* gr, int fila)
{
    QTest::mouseDClick(gr->viewport(), Qt::LeftButton, {}, gr->visualRect(gr->model()->index(fila, 0)).center());
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

inline void modoNuevo(QWidget* d, const QString& banner)
{
    auto* l2 = control<nomencla::Etiqueta>(d, QStringLiteral("Label2"));
    QCOMPARE(l2->text(), banner);
    QCOMPARE(l2->BackColor(), nomencla::colorNuevo);
    QVERIFY(!control<QAbstractButton>(d, QStringLiteral("Bt(1)"))->isEnabled());
}

inline void modoExistente(QWidget* d, const QString& banner)
{
    auto* l2 = control<nomencla::Etiqueta>(d, QStringLiteral("Label2"));
    QCOMPARE(l2->text(), banner);
    QCOMPARE(l2->BackColor(), nomencla::colorCaraBoton);
    QVERIFY(control<QAbstractButton>(d, QStringLiteral("Bt(1)"))->isEnabled());
}

} // namespace prueba
