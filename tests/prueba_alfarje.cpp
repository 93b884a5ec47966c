// The list grid and its model, without a server: fills come from an
// in-memory SQLite database.
#include "core/Alfarje.h"
#include "core/ModeloAlfarje.h"
#include "core/Plegado.h"

#include <QHeaderView>
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

    // Runs `sql` forward-only and loads its columns into the grid.
    void llenar(Alfarje& g, const QString& sql, int campos)
    {
        QSqlQuery q(bd_);
        q.setForwardOnly(true);
        QVERIFY2(q.exec(sql), qPrintable(sql));
        QVector<int> c;
        for (int i = 0; i < campos; ++i)
            c.append(i);
        g.modelo()->vaciar();
        QVERIFY(g.modelo()->cargar(q, c));
    }

    void ciudades(Alfarje& g)
    {
        g.setFormatocolumnas(u"<CIUDAD                  |."_s);
        llenar(g, u"SELECT ciu, id FROM ciu ORDER BY orden"_s, 2);
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

    void plegadoOrdenaComoLaBase()
    {
        QVERIFY(plegado::comparar(u"Cáceres", u"caceres") == 0);
        QVERIFY(plegado::comparar(u"Cáceres", u"Cabo") > 0);
        QVERIFY(plegado::comparar(u"Cáceres", u"Cad") < 0);
        QVERIFY(plegado::comparar(u"Ñandú", u"nandu") == 0);
        QVERIFY(plegado::comparar(u"Ébano", u"Esmeraldas") < 0);
        QVERIFY(plegado::comparar(u"Quito  ", u"Quito") == 0); // trailing blanks
        QVERIFY(plegado::comparar(u"Quito", u"Quito Sur") < 0);
        QVERIFY(plegado::comparar(u"Quito Sur", u"Quito-Sur") < 0); // blank < punctuation
        QVERIFY(plegado::comparar(u"A-1", u"A1") < 0);              // punctuation < digit
        QVERIFY(plegado::comparar(u"A9", u"AA") < 0);               // digit < letter
        QVERIFY(plegado::comparar(u"Straße", u"strasse") == 0);
        QVERIFY(plegado::empiezaCon(u"Cáceres", u"CAC"));
        QVERIFY(plegado::empiezaCon(u"Cáceres", u"cacé"));
        QVERIFY(!plegado::empiezaCon(u"Ca", u"Cac"));
        QVERIFY(!plegado::empiezaCon(u"Santos", u"san "));
        QVERIFY(plegado::igualSinMayusculas(u"QUITO  ", u"quito"));
        QVERIFY(!plegado::igualSinMayusculas(u"Cáceres", u"Caceres")); // accents count
    }

    void formatoDeColumnas()
    {
        Alfarje g;
        g.setFormatocolumnas(u"<FACTURA         |>CAPITAL |^ESTADO |INTERES |.|xxxx.|^SERV. ELEC."_s);
        auto* m = g.modelo();
        QCOMPARE(m->columnCount(), 7);
        QCOMPARE(m->headerData(0, Qt::Horizontal).toString(), u"FACTURA"_s);
        QCOMPARE(m->headerData(3, Qt::Horizontal).toString(), u"INTERES"_s);
        auto alin = [&](int c) {
            return Qt::Alignment(m->headerData(c, Qt::Horizontal, Qt::TextAlignmentRole).toInt())
                & Qt::AlignHorizontal_Mask;
        };
        QCOMPARE(alin(0), Qt::AlignLeft);
        QCOMPARE(alin(1), Qt::AlignRight);
        QCOMPARE(alin(2), Qt::AlignHCenter);
        QCOMPARE(alin(3), Qt::AlignLeft); // no mark
        // Widths follow the length of the entry, blanks included.
        const int w = g.fontMetrics().averageCharWidth();
        QCOMPARE(g.columnWidth(0), 16 * w);
        QVERIFY(g.columnWidth(1) >= 8 * w); // never narrower than its title
        QVERIFY(g.columnWidth(3) >= 8 * w);
        QVERIFY(!g.isColumnHidden(0));
        QVERIFY(g.isColumnHidden(4));
        QVERIFY(g.isColumnHidden(5)); // "xxxx." holds a key
        QVERIFY(!g.isColumnHidden(6)); // a title that ends in a point is shown
        QCOMPARE(g.verticalHeader()->sectionResizeMode(0), QHeaderView::Fixed);
        QCOMPARE(g.selectionBehavior(), QAbstractItemView::SelectRows);
        QCOMPARE(g.editTriggers(), QAbstractItemView::NoEditTriggers);
    }

    void camposMasAllaDeLasColumnas()
    {
        Alfarje g;
        g.setFormatocolumnas(u"<CIUDAD      "_s);
        llenar(g, u"SELECT ciu, id, orden FROM ciu ORDER BY orden"_s, 3);
        QCOMPARE(g.RowCount(), 11);
        QCOMPARE(g.modelo()->columnCount(), 3);
        QCOMPARE(g.CellText(0, 1), u"C0"_s);
        QCOMPARE(g.CellText(4, 2), u"4"_s);
        QVERIFY(!g.isColumnHidden(0));
        QVERIFY(g.isColumnHidden(1));
        QVERIFY(g.isColumnHidden(2));
        // A longer AddItem grows the model; the new column is hidden too.
        g.AddItem(u"Zamora\tC99\t99\textra"_s);
        QCOMPARE(g.modelo()->columnCount(), 4);
        QVERIFY(g.isColumnHidden(3));
        QCOMPARE(g.CellText(11, 3), u"extra"_s);
        QCOMPARE(g.CellText(0, 3), QString());
    }

    void cargaTipada()
    {
        Alfarje g;
        g.setFormatocolumnas(u">COD |<LOTE   |>CANTIDAD |<FECHA      |^E"_s);
        llenar(g, u"SELECT cod, lot, can, date(fec), est FROM lot ORDER BY cod"_s, 5);
        QCOMPARE(g.RowCount(), 3);
        QCOMPARE(g.CellText(0, 0), u"1"_s);
        QCOMPARE(g.CellText(0, 2), u"12.5"_s);
        QCOMPARE(g.CellText(1, 2), u"500"_s);
        QCOMPARE(g.CellText(2, 2), u"0.25"_s);
        QCOMPARE(g.CellText(1, 1), QString()); // NULL
        QCOMPARE(g.CellText(1, 3), QString());
        QCOMPARE(g.CellText(2, 4), QString());
        QVERIFY(g.modelo()->esNulo(2, 4));
        QCOMPARE(g.CellText(0, 3), u"2024-01-05"_s);
        QCOMPARE(g.CellValue(0, 2), 12.5);
        QCOMPARE(g.CellValue(0, 1), 0.0); // not a number
        QCOMPARE(g.ColumnTotal(2), 512.75);
        QCOMPARE(g.ColumnTotal(0), 6.0);
        // A text that does not fit the integers turns the column into text.
        g.AddItem(u"4A\tL-04\t1"_s);
        QCOMPARE(g.CellText(0, 0), u"1"_s);
        QCOMPARE(g.CellText(3, 0), u"4A"_s);
        QCOMPARE(g.CellValue(2, 0), 3.0);
        QCOMPARE(g.CellText(3, 2), u"1"_s);
        QCOMPARE(g.CellText(3, 4), QString()); // short row
        QCOMPARE(g.ColumnTotal(2), 513.75);
    }

    void formatosYMarcas()
    {
        Alfarje g;
        g.setFormatocolumnas(u">COD |<LOTE   |>CANTIDAD |<FECHA      |^E"_s);
        llenar(g, u"SELECT cod, lot, can, date(fec), est FROM lot ORDER BY cod"_s, 5);
        g.setColumnFormat(2, u"##0.00"_s);
        g.setColumnFormat(3, u"ddd. dd-MMM-yyyy"_s);
        g.setColumnKind(4, 3);
        auto* m = g.modelo();
        QCOMPARE(m->data(m->index(0, 2)).toString(), u"12.50"_s);
        QCOMPARE(m->data(m->index(1, 2)).toString(), u"500.00"_s);
        QCOMPARE(g.CellText(0, 2), u"12.5"_s); // the stored value
        const QLocale ec(QLocale::Spanish, QLocale::Ecuador);
        QCOMPARE(m->data(m->index(0, 3)).toString(),
                 ec.toString(QDate(2024, 1, 5), u"ddd. dd-MMM-yyyy"_s));
        QCOMPARE(g.CellText(0, 3), u"2024-01-05"_s);
        QCOMPARE(m->data(m->index(1, 3)).toString(), QString());
        QCOMPARE(m->data(m->index(0, 4), Qt::CheckStateRole).toInt(), int(Qt::Checked));
        QCOMPARE(m->data(m->index(1, 4), Qt::CheckStateRole).toInt(), int(Qt::Unchecked));
        QVERIFY(!m->data(m->index(0, 4)).isValid());
        QCOMPARE(g.CellText(0, 4), u"1"_s);
        QVERIFY(!(m->flags(m->index(0, 4)) & (Qt::ItemIsUserCheckable | Qt::ItemIsEditable)));
    }

    void busquedaMientrasSeEscribe()
    {
        Alfarje g;
        ciudades(g);
        QCOMPARE(g.FindRow(u"cac"_s, 0, 5), 3);    // "cacha" comes first in the grid
        QCOMPARE(g.FindRow(u"CACE"_s, 0, 5), 4);   // Cáceres, accent and case ignored
        QCOMPARE(g.FindRow(u"cañ"_s, 0, 5), 5);    // ñ weighs as n
        QCOMPARE(g.FindRow(u"can"_s, 0, 5), 5);
        QCOMPARE(g.FindRow(u"eb"_s, 0, 5), 7);
        QCOMPARE(g.FindRow(u"quito s"_s, 0, 5), 10);
        QCOMPARE(g.FindRow(u"quito"_s, 0, 5), 9);
        QCOMPARE(g.FindRow(u"x"_s, 0, 5), -1);
        QCOMPARE(g.FindRow(u"Zz"_s, 0, 5), -1);
        QCOMPARE(g.FindRow(QString(), 0, 5), -1);
        QCOMPARE(g.FindRow(u"a"_s, 7, 5), -1); // no such column
        // The hidden column is searchable too.
        QCOMPARE(g.FindRow(u"c1"_s, 1, 5), 1);
        QCOMPARE(g.FindRow(u"C10"_s, 1, 5), 10);
    }

    void busquedaTrasAgregarYQuitar()
    {
        Alfarje g;
        ciudades(g);
        g.AddItem(u"Aguarico\tC20"_s); // out of order: a run of its own
        g.AddItem(u"Cayambe\tC21"_s);
        QCOMPARE(g.FindRow(u"agu"_s, 0, 5), 11);
        QCOMPARE(g.FindRow(u"cay"_s, 0, 5), 12);
        QCOMPARE(g.FindRow(u"a"_s, 0, 5), 0); // the first in grid order
        g.setRow(0);
        g.RemoveItem(); // Ambato
        QCOMPARE(g.RowCount(), 12);
        QCOMPARE(g.FindRow(u"am"_s, 0, 5), -1);
        QCOMPARE(g.FindRow(u"a"_s, 0, 5), 0); // Azogues
        QCOMPARE(g.FindRow(u"agu"_s, 0, 5), 10);
        QCOMPARE(g.FindRow(u"cay"_s, 0, 5), 11);
        g.setRow(10);
        g.RemoveItem(); // Aguarico
        QCOMPARE(g.FindRow(u"agu"_s, 0, 5), -1);
        QCOMPARE(g.FindRow(u"cay"_s, 0, 5), 10);
        QCOMPARE(g.FindRow(u"qui"_s, 0, 5), 8);
        // After emptying, AddItem alone builds the list.
        g.ClearRows();
        QCOMPARE(g.FindRow(u"a"_s, 0, 5), -1);
        g.AddItem(u"Tena"_s);
        g.AddItem(u"Loja"_s);
        g.AddItem(u"Tulcán"_s);
        QCOMPARE(g.FindRow(u"t"_s, 0, 5), 0);
        QCOMPARE(g.FindRow(u"l"_s, 0, 5), 1);
        QCOMPARE(g.FindRow(u"tulca"_s, 0, 5), 2);
    }

    void pruebaDeDuplicado()
    {
        Alfarje g;
        ciudades(g);
        QCOMPARE(g.FindRow(u"quito"_s, 0, 0), 9);
        QCOMPARE(g.FindRow(u"QUITO SUR"_s, 0, 0), 10);
        QCOMPARE(g.FindRow(u"caceres"_s, 0, 0), -1); // accents count
        QCOMPARE(g.FindRow(u"cáceres"_s, 0, 0), 4);
        QCOMPARE(g.FindRow(u"qui"_s, 0, 0), -1);
        QCOMPARE(g.FindRow(QString(), 0, 0), -1);
        g.AddItem(u"Puyo   "_s); // trailing blanks of the cell
        QCOMPARE(g.FindRow(u"puyo"_s, 0, 0), 11);
    }

    void filasYLecturasFueraDeLaGrilla()
    {
        Alfarje g;
        g.setFormatocolumnas(u"<A   |>B   "_s);
        QCOMPARE(g.Row(), -1);
        QCOMPARE(g.CellText(), QString());
        g.RemoveItem(); // nothing selected: nothing happens
        g.AddItem(u"uno\t1"_s);
        g.AddItem(u"dos\t2"_s);
        g.AddItem(u"tres"_s);
        QCOMPARE(g.RowCount(), 3);
        QCOMPARE(g.CellText(2, 1), QString());
        QCOMPARE(g.CellText(3, 0), QString());
        QCOMPARE(g.CellText(-1, 0), QString());
        QCOMPARE(g.CellText(0, 9), QString());
        QCOMPARE(g.CellValue(5, 1), 0.0);
        QCOMPARE(g.CellValue(1, 1), 2.0);
        g.setRow(1);
        QCOMPARE(g.Row(), 1);
        QCOMPARE(g.CellText(), u"dos"_s);
        g.setRow(3);
        QCOMPARE(g.Row(), -1);
        g.setRow(2);
        g.setRow(-4);
        QCOMPARE(g.Row(), -1);
        g.setRow(0);
        g.RemoveItem();
        QCOMPARE(g.RowCount(), 2);
        QCOMPARE(g.CellText(0, 0), u"dos"_s);
        QCOMPARE(g.Row(), -1);
        // Bulk AddItem with redraw off.
        g.setRedraw(false);
        for (int i = 0; i < 100; ++i)
            g.AddItem(u"n%1\t%1"_s.arg(i));
        g.setRow(50); // a row chosen while repainting is stopped is selected when it resumes
        QCOMPARE(g.Row(), 50);
        g.setRedraw(true);
        QCOMPARE(g.Row(), 50);
        QCOMPARE(g.RowCount(), 102);
        QCOMPARE(g.modelo()->rowCount(), 102);
        QCOMPARE(g.CellText(101, 1), u"99"_s);
        QVERIFY(g.isColumnHidden(0) == false);
        g.ClearRows();
        QCOMPARE(g.RowCount(), 0);
    }

    void totales()
    {
        Alfarje g;
        g.setFormatocolumnas(u"<FACTURA   |>CAPITAL   |>INTERES  "_s);
        g.AddItem(u"F1\t100.50\t3"_s);
        g.AddItem(u"F2\t20\t"_s);
        g.AddItem(u"F3\tabc\t1.25"_s);
        QCOMPARE(g.ColumnTotal(1), 120.5);
        QCOMPARE(g.ColumnTotal(2), 4.25);
        QCOMPARE(g.ColumnTotal(0), 0.0);
        QCOMPARE(g.ColumnTotal(9), 0.0);
        g.setTotalslineshow(true);
        g.setColumnTotalText(1, u"120.50"_s);
        QCOMPARE(g.ColumnTotalText(1), u"120.50"_s);
        QCOMPARE(g.ColumnTotalText(2), QString());
        g.resize(400, 200);
        g.show();
        QVERIFY(QTest::qWaitForWindowExposed(&g));
        // The line sits under the rows, the rows' viewport ends above it.
        QVERIFY(g.viewport()->geometry().bottom() < g.height() - 10);
        g.setTotalslineshow(false);
        QVERIFY(g.viewport()->geometry().bottom() > g.height() - 10);
    }

    void numerosDeFila()
    {
        Alfarje g;
        g.setFormatocolumnas(u"<A   "_s);
        g.AddItem(u"x"_s);
        QCOMPARE(g.modelo()->headerData(0, Qt::Vertical).toString(), u"1"_s);
        g.setShowrownumbers(false);
        QVERIFY(g.verticalHeader()->isHidden());
        g.setShowrownumbers(true);
        QVERIFY(!g.verticalHeader()->isHidden());
    }

    void senales()
    {
        Alfarje g;
        ciudades(g);
        QSignalSpy cambio(&g, &Alfarje::RowChange);
        QSignalSpy click(&g, &Alfarje::Click);
        g.setRow(2);
        QCOMPARE(cambio.count(), 1);
        g.setRow(2);
        QCOMPARE(cambio.count(), 1);
        g.ClearSelection();
        QCOMPARE(cambio.count(), 2);
        g.setRow(4);
        g.ClearRows(); // the selection goes with the rows
        QCOMPARE(cambio.count(), 4);
        QCOMPARE(g.Row(), -1);

        ciudades(g);
        g.resize(300, 400);
        g.show();
        QVERIFY(QTest::qWaitForWindowExposed(&g));
        const QRect fila = g.visualRect(g.modelo()->index(1, 0));
        QTest::mouseClick(g.viewport(), Qt::LeftButton, {}, fila.center());
        QCOMPARE(g.Row(), 1);
        QTest::mouseDClick(g.viewport(), Qt::LeftButton, {}, fila.center());
        QCOMPARE(click.count(), 1);
        QTest::mouseDClick(g.viewport(), Qt::LeftButton, {}, QPoint(5, g.viewport()->height() - 3));
        QCOMPARE(click.count(), 1); // empty area under the rows
        QTest::keyClick(&g, Qt::Key_Down);
        QCOMPARE(g.Row(), 2);
        QTest::keyClick(&g, Qt::Key_End);
        QCOMPARE(g.Row(), 10);

        QList<int> teclas;
        connect(&g, &Alfarje::KeyPress, this, [&](int& k) {
            teclas.append(k);
            if (k == u'x')
                k = 0;
        });
        QTest::keyClick(&g, Qt::Key_Return);
        QTest::keyClick(&g, Qt::Key_Escape);
        QTest::keyClick(&g, Qt::Key_Backspace);
        QTest::keyClick(&g, Qt::Key_A);
        QCOMPARE(teclas, (QList<int>{13, 27, 8, u'a'}));
        QKeyEvent x(QEvent::KeyPress, Qt::Key_X, Qt::NoModifier, u"x"_s);
        QApplication::sendEvent(&g, &x);
        QVERIFY(x.isAccepted()); // swallowed by the slot
        QCOMPARE(g.Row(), 10);   // letters do not move the selection
    }
};

QTEST_MAIN(PruebaAlfarje)
#include "prueba_alfarje.moc"
