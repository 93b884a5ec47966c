// The list grid and its model, without a server: fills come from an
// in-memory SQLite database.
#include "core/Alfarje.h"
#include "core/ModeloAlfarje.h"
#include "core/Plegado.h"

#include <QSignalSpy>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QtTest>

using namespace Qt::StringLiterals;
using nomencla::Alfarje;
namespace plegado = nomencla::plegado;

class PruebaAlfarje : public QObject {
    Q_OBJECT

    QSqlDatabase bd_;

    // Runs `sql` forward-only and loads the given fields into the grid.
    void llenar(Alfarje& g, const QString& sql, const QVector<int>& campos)
    {
        QSqlQuery q(bd_);
        q.setForwardOnly(true);
        QVERIFY2(q.exec(sql), qPrintable(sql));
        g.modelo()->vaciar();
        QVERIFY(g.modelo()->cargar(q, campos));
    }

    void ciudades(Alfarje& g)
    {
        g.setFormatocolumnas(u"<CIUDAD                  |."_s);
        llenar(g, u"SELECT ciu, id FROM ciu ORDER BY orden"_s, {0, 1});
    }

private Q_SLOTS:
    void initTestCase()
    {
        bd_ = QSqlDatabase::addDatabase(u"QSQLITE"_s);
        bd_.setDatabaseName(u":memory:"_s);
        QVERIFY(bd_.open());
        QSqlQuery q(bd_);
        QVERIFY(q.exec(u"CREATE TABLE ciu (orden INTEGER, ciu TEXT, id TEXT)"_s));
        // In the collation's order, as the server returns them.
        const QStringList nombres = {u"Ambato"_s, u"Azogues"_s, u"Babahoyo"_s, u"cacha"_s,
                                     u"Cáceres"_s, u"Cañar"_s, u"Cuenca"_s, u"Ébano"_s,
                                     u"Esmeraldas"_s, u"Quito"_s, u"Quito Sur"_s};
        for (int i = 0; i < nombres.size(); ++i)
            QVERIFY(q.exec(u"INSERT INTO ciu VALUES (%1, '%2', 'C%1')"_s.arg(i).arg(nombres[i])));
        QVERIFY(q.exec(u"CREATE TABLE lot (cod INTEGER, lot TEXT, can REAL, fec TEXT, est INTEGER)"_s));
        QVERIFY(q.exec(u"INSERT INTO lot VALUES (1, 'L-01', 12.5, '2024-01-05', 1),"
                       " (2, NULL, 500, NULL, 0), (3, 'L-03', 0.25, '2024-12-31', NULL)"_s));
    }

    // Hidden columns, whether from the format or from fields past it, keep their cells.
    void columnasOcultas()
    {
        Alfarje g;
        g.setFormatocolumnas(u"<FACTURA   |.|xxxx.|^SERV. ELEC."_s);
        QVERIFY(g.isColumnHidden(1));
        QVERIFY(g.isColumnHidden(2));  // "xxxx." holds a key
        QVERIFY(!g.isColumnHidden(3)); // a title that ends in a point is shown

        g.setFormatocolumnas(u"<CIUDAD      "_s);
        llenar(g, u"SELECT ciu, id, orden FROM ciu ORDER BY orden"_s, {0, 1, 2});
        QCOMPARE(g.CellText(4, 1), u"C4"_s);
        QVERIFY(g.isColumnHidden(1));
        // A longer AddItem grows the model; the new column is hidden too.
        g.AddItem(u"Zamora\tC99\t99\textra"_s);
        QVERIFY(g.isColumnHidden(3));
        QCOMPARE(g.CellText(11, 3), u"extra"_s);
    }

    // Numbers and dates keep their type; column formats change what is shown,
    // never the stored value.
    void cargaTipadaYFormatos()
    {
        Alfarje g;
        g.setFormatocolumnas(u">COD |<LOTE   |>CANTIDAD |<FECHA      |^E"_s);
        llenar(g, u"SELECT cod, lot, can, date(fec), est FROM lot ORDER BY cod"_s, {0, 1, 2, 3, 4});
        QCOMPARE(g.CellText(1, 2), u"500"_s);
        QCOMPARE(g.CellText(1, 1), QString()); // NULL
        QVERIFY(g.modelo()->esNulo(2, 4));
        QCOMPARE(g.CellValue(0, 1), 0.0); // not a number
        g.setColumnFormat(2, u"##0.00"_s);
        g.setColumnFormat(3, u"ddd. dd-MMM-yyyy"_s);
        g.setColumnKind(4, 3);
        auto* m = g.modelo();
        QCOMPARE(m->data(m->index(0, 2)).toString(), u"12.50"_s);
        QCOMPARE(g.CellText(0, 2), u"12.5"_s);
        const QLocale ec(QLocale::Spanish, QLocale::Ecuador);
        QCOMPARE(m->data(m->index(0, 3)).toString(), ec.toString(QDate(2024, 1, 5), u"ddd. dd-MMM-yyyy"_s));
        QCOMPARE(g.CellText(0, 3), u"2024-01-05"_s);
        QCOMPARE(m->data(m->index(1, 3)).toString(), QString());
        QCOMPARE(m->data(m->index(1, 4), Qt::CheckStateRole).toInt(), int(Qt::Unchecked));
        // A text that does not fit the integers turns the column into text.
        g.AddItem(u"4A\tL-04\t1"_s);
        QCOMPARE(g.CellText(3, 0), u"4A"_s);
        QCOMPARE(g.CellValue(2, 0), 3.0);
        QCOMPARE(g.CellText(3, 4), QString()); // short row
        QCOMPARE(g.ColumnTotal(2), 513.75);
    }

    // The search relies on the rows being in the server's collation order.
    void busquedaMientrasSeEscribe()
    {
        QVERIFY(plegado::comparar(u"Quito Sur", u"Quito-Sur") < 0); // blank < punctuation
        QVERIFY(plegado::comparar(u"A-1", u"A1") < 0);              // punctuation < digit
        QVERIFY(plegado::comparar(u"A9", u"AA") < 0);               // digit < letter
        Alfarje g;
        ciudades(g);
        QCOMPARE(g.FindRow(u"cac"_s, 0, 5), 3);  // "cacha" comes first in the grid
        QCOMPARE(g.FindRow(u"CACE"_s, 0, 5), 4); // Cáceres, accent and case ignored
        QCOMPARE(g.FindRow(u"can"_s, 0, 5), 5);  // ñ weighs as n
        QCOMPARE(g.FindRow(u"quito"_s, 0, 5), 9);
        QCOMPARE(g.FindRow(u"quito s"_s, 0, 5), 10);
        QCOMPARE(g.FindRow(u"Zz"_s, 0, 5), -1);
        QCOMPARE(g.FindRow(QString(), 0, 5), -1);
        QCOMPARE(g.FindRow(u"C10"_s, 1, 5), 10); // the hidden column too
        // Mode 0: the whole text; case and trailing blanks ignored, accents not.
        QCOMPARE(g.FindRow(u"QUITO SUR"_s, 0, 0), 10);
        QCOMPARE(g.FindRow(u"caceres"_s, 0, 0), -1);
        QCOMPARE(g.FindRow(u"qui"_s, 0, 0), -1);
        g.AddItem(u"Puyo   "_s);
        QCOMPARE(g.FindRow(u"puyo"_s, 0, 0), 11);
    }

    // Rows added out of order and rows removed are still found in grid order.
    void busquedaTrasAgregarYQuitar()
    {
        Alfarje g;
        ciudades(g);
        g.AddItem(u"Aguarico\tC20"_s);
        g.AddItem(u"Cayambe\tC21"_s);
        QCOMPARE(g.FindRow(u"agu"_s, 0, 5), 11);
        g.setRow(0);
        g.RemoveItem(); // Ambato
        QCOMPARE(g.FindRow(u"am"_s, 0, 5), -1);
        QCOMPARE(g.FindRow(u"agu"_s, 0, 5), 10);
        g.setRow(10);
        g.RemoveItem(); // Aguarico
        QCOMPARE(g.FindRow(u"agu"_s, 0, 5), -1);
        QCOMPARE(g.FindRow(u"cay"_s, 0, 5), 10);
        // After emptying, AddItem alone builds the list.
        g.ClearRows();
        g.AddItem(u"Tena"_s);
        g.AddItem(u"Loja"_s);
        QCOMPARE(g.FindRow(u"t"_s, 0, 5), 0);
        QCOMPARE(g.FindRow(u"l"_s, 0, 5), 1);
    }

    // Reads outside the grid give "" and 0; a removal leaves no row selected.
    void filasYLecturasFueraDeLaGrilla()
    {
        Alfarje g;
        g.setFormatocolumnas(u"<A   |>B   "_s);
        g.RemoveItem(); // nothing selected: nothing happens
        g.AddItem(u"uno\t1"_s);
        g.AddItem(u"dos\t2"_s);
        QCOMPARE(g.CellText(0, 9), QString());
        QCOMPARE(g.CellValue(-1, 1), 0.0);
        g.setRow(2); // past the last row: none
        QCOMPARE(g.Row(), -1);
        g.setRow(0);
        g.RemoveItem();
        QCOMPARE(g.CellText(0, 0), u"dos"_s);
        QCOMPARE(g.Row(), -1);
        // A row chosen while repainting is stopped is selected when it resumes.
        g.setRedraw(false);
        for (int i = 0; i < 100; ++i)
            g.AddItem(u"n%1\t%1"_s.arg(i));
        g.setRow(50);
        g.setRedraw(true);
        QCOMPARE(g.Row(), 50);
    }

    // RowChange once per change; no Click off the rows; End goes to the last
    // row; letters never move the selection and a KeyPress slot may cancel them.
    void senales()
    {
        Alfarje g;
        ciudades(g);
        QSignalSpy cambio(&g, &Alfarje::RowChange);
        QSignalSpy click(&g, &Alfarje::Click);
        g.setRow(2);
        g.setRow(2);
        QCOMPARE(cambio.count(), 1);
        g.ClearRows(); // the selection goes with the rows
        QCOMPARE(cambio.count(), 2);

        ciudades(g);
        g.resize(300, 400);
        g.show();
        QVERIFY(QTest::qWaitForWindowExposed(&g));
        QTest::mouseDClick(g.viewport(), Qt::LeftButton, {}, QPoint(5, g.viewport()->height() - 3));
        QCOMPARE(click.count(), 0);
        QTest::keyClick(&g, Qt::Key_End);
        QCOMPARE(g.Row(), 10);
        QTest::keyClick(&g, Qt::Key_A);
        QCOMPARE(g.Row(), 10);
        connect(&g, &Alfarje::KeyPress, this, [](int& k) {
            if (k == u'x')
                k = 0;
        });
        QKeyEvent x(QEvent::KeyPress, Qt::Key_X, Qt::NoModifier, u"x"_s);
        QApplication::sendEvent(&g, &x);
        QVERIFY(x.isAccepted());
    }
};

QTEST_MAIN(PruebaAlfarje)
#include "prueba_alfarje.moc"
