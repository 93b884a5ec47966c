// The list grid and its model, without a server: fills come from an
// in-memory SQLite database.
#include "core/Alfarje.h"
#include "core/ModeloAlfarje.h"

#include <QSignalSpy>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QtTest>

using namespace Qt::StringLiterals;
using nomencla::Alfarje;

class PruebaAlfarje : public QObject {
    Q_OBJECT

    QSqlDatabase bd_;

    // Runs `sql` forward-only and loads the given fields into the grid.
    void llenar(Alfarje& g, const QString& sql, const QVector<int>& campos)
    {
        QSqlQuery q(bd_);
        q.setForwardOnly(true);
        QVERIFY2(q.exec(sql), qPrintable(sql));
        QVERIFY(g.modelo()->cargar(q, campos));
    }

    // One column shown; the key, past the format, is hidden.
    void ciudades(Alfarje& g)
    {
        g.setFormatocolumnas(u"<CIUDAD                  "_s);
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
        const QStringList nombres = {u"Ambato"_s, u"cacha"_s, u"Cáceres"_s, u"Cañar"_s, u"Quito"_s, u"Quito Sur"_s};
        for (int i = 0; i < nombres.size(); ++i)
            QVERIFY(q.exec(u"INSERT INTO ciu VALUES (%1, '%2', 'C%1')"_s.arg(i).arg(nombres[i])));
        QVERIFY(q.exec(u"CREATE TABLE lot (cod INTEGER, lot TEXT, can REAL, fec TEXT, est INTEGER)"_s));
        QVERIFY(q.exec(u"INSERT INTO lot VALUES (1, 'L-01', 12.5, '2024-01-05', 1), (2, NULL, 500, NULL, NULL)"_s));
    }

    // Columns hidden by the format ("." or "xxxx.", a key) or past it keep
    // their cells.
    void columnasOcultas()
    {
        Alfarje g;
        g.setFormatocolumnas(u"<FACTURA   |.|xxxx.|^SERV. ELEC."_s);
        g.AddItem(u"F-1\tC1\tk\tsi\textra"_s);
        QVERIFY(g.isColumnHidden(1) && g.isColumnHidden(2) && g.isColumnHidden(4));
        QVERIFY(!g.isColumnHidden(3)); // a title that ends in a point is shown
        QCOMPARE(g.CellText(0, 4), u"extra"_s);
    }

    // Numbers, dates and Nulls keep their type; a column format changes what
    // is shown, never the stored value.
    void cargaTipadaYFormatos()
    {
        Alfarje g;
        g.setFormatocolumnas(u">COD |<LOTE   |>CANTIDAD |<FECHA      |^E"_s);
        llenar(g, u"SELECT cod, lot, can, date(fec), est FROM lot ORDER BY cod"_s, {0, 1, 2, 3, 4});
        QVERIFY(g.modelo()->esNulo(1, 4));
        g.setColumnFormat(3, u"ddd. dd-MMM-yyyy"_s);
        auto* m = g.modelo();
        const QLocale ec(QLocale::Spanish, QLocale::Ecuador);
        QCOMPARE(m->data(m->index(0, 3)).toString(), ec.toString(QDate(2024, 1, 5), u"ddd. dd-MMM-yyyy"_s));
        QCOMPARE(g.CellText(0, 3), u"2024-01-05"_s);
        // A text that does not fit the integers turns the column into text.
        g.AddItem(u"4A\tL-04\t1"_s);
        QCOMPARE(g.CellText(2, 0), u"4A"_s);
        QCOMPARE(g.CellValue(1, 0), 2.0);
        QCOMPARE(g.ColumnTotal(2), 513.5);
    }

    // The search relies on the rows being in the server's collation order,
    // also after rows are added out of order or removed.
    void busquedaMientrasSeEscribe()
    {
        Alfarje g;
        ciudades(g);
        QCOMPARE(g.FindRow(u"cac"_s, 0, 5), 1);  // "cacha" comes first in the grid
        QCOMPARE(g.FindRow(u"CACE"_s, 0, 5), 2); // Cáceres, accent and case ignored
        QCOMPARE(g.FindRow(u"can"_s, 0, 5), 3);  // ñ weighs as n
        QCOMPARE(g.FindRow(u"C5"_s, 1, 5), 5);   // the hidden column too
        // Mode 0: the whole text; case and trailing blanks ignored, accents not.
        QCOMPARE(g.FindRow(u"caceres"_s, 0, 0), -1);
        g.AddItem(u"Aguarico   "_s);
        QCOMPARE(g.FindRow(u"AGUARICO"_s, 0, 0), 6);
        g.setRow(0);
        g.RemoveItem(); // Ambato
        QCOMPARE(g.FindRow(u"agu"_s, 0, 5), 5);
        // After emptying, AddItem alone builds the list.
        g.ClearRows();
        g.AddItem(u"Tena"_s);
        g.AddItem(u"Loja"_s);
        QCOMPARE(g.FindRow(u"l"_s, 0, 5), 1);
    }

    // A removal leaves no row selected; a row chosen while repainting is
    // stopped is selected when it resumes; no Click off the rows; letters
    // never move the selection, they belong to the dialog's search.
    void filasYSenales()
    {
        Alfarje g;
        ciudades(g);
        QSignalSpy click(&g, &Alfarje::Click);
        QCOMPARE(g.CellText(0, 9), QString());
        g.setRow(2);
        g.RemoveItem();
        QCOMPARE(g.CellText(2, 0), u"Cañar"_s);
        QCOMPARE(g.Row(), -1);
        g.setRedraw(false);
        g.setRow(4);
        g.setRedraw(true);
        QCOMPARE(g.Row(), 4);

        g.resize(300, 400);
        g.show();
        QVERIFY(QTest::qWaitForWindowExposed(&g));
        QTest::mouseDClick(g.viewport(), Qt::LeftButton, {}, QPoint(5, g.viewport()->height() - 3));
        QCOMPARE(click.count(), 0);
        QKeyEvent a(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, u"a"_s);
        QApplication::sendEvent(&g, &a);
        QVERIFY(!a.isAccepted());
        QCOMPARE(g.Row(), 4);
    }
};

QTEST_MAIN(PruebaAlfarje)
#include "prueba_alfarje.moc"
