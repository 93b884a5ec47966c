// The lot selection: the host's class and warehouse filters, the user's lot
// and date filters, and what each way of leaving the dialog returns.
#include "tests/support/Prueba.h"

#include "core/Alfarje.h"
#include "core/Module1.h"

#include <nomencla/clsNomencla.h>

#include <QAbstractItemModel>
#include <QCheckBox>
#include <QDateEdit>
#include <QLineEdit>

using namespace Qt::StringLiterals;
using namespace prueba;
using nomencla::Alfarje;

namespace {
QStringList lotes(const Alfarje* gr)
{
    QStringList r;
    for (int i = 0; i < gr->RowCount(); ++i)
        r << gr->CellText(i, 0);
    return r;
}

void dobleClic(Alfarje* gr, int fila)
{
    QTest::mouseDClick(gr->viewport(), Qt::LeftButton, {}, gr->visualRect(gr->model()->index(fila, 0)).center());
}
} // namespace

class PruebaCaducidades : public QObject {
    Q_OBJECT
    QSqlDatabase db;
    clsNomencla nomencla;

    qint32 cod(const QString& lote, int bod = 1)
    {
        return valor(db, u"SELECT cod FROM martexpira WHERE lot=? AND bod=?"_s, {lote, bod}).toInt();
    }

    // The lots listed when the dialog opens with these arguments.
    QStringList listados(qint32 articulo, qint32 bodega, tipoLoteLS tipo)
    {
        QStringList r;
        alAbrir(u"frmCaducidades"_s, [&](QWidget* d) { r = lotes(control<Alfarje>(d, u"GR"_s)); });
        const qint32 elegido = nomencla.SeleccionarLote(u"1"_s, db, articulo, bodega, tipo);
        if (elegido != 0)
            qWarning("nothing was chosen, yet %d came back", elegido);
        return r;
    }

private Q_SLOTS:
    void initTestCase()
    {
        db = baseNueva(u"t_caducidades"_s);
        // est: 0 expired, 1 active, 2 quarantine, 3 under review. The form's
        // date is 17 Feb 2019: ANT-1 expires before it.
        ejecutarSql(db, u"INSERT INTO mProveedor (cod,nom) VALUES (1,'Droguería O''Brien'),(2,'Labs Andinos');\n"
                        "INSERT INTO martexpira (art,bod,lot,can,fec,pro,est) VALUES "
                        "(1,1,'B-20',10,'2026-05-01',1,1),"
                        "(1,2,'A%1',5,'2026-01-10',2,1),"
                        "(1,1,'AB1',7,'2026-01-10',NULL,3),"
                        "(1,2,'A_2',3,'2019-02-17',9,2),"
                        "(1,1,'AX2',4,'2027-07-07',1,0),"
                        "(1,1,'CERO',0,'2026-05-01',1,1),"
                        "(1,2,'NEG',-2,'2026-05-01',1,1),"
                        "(1,1,'ANT-1',8,'2019-02-16',1,1),"
                        "(2,1,'OTRO',50,'2026-05-01',1,1)"_s);
    }

    // Opening with neither a class nor a warehouse: every lot of the article
    // on hand from the form's date on; a double click chooses a row.
    void sin_filtros_y_doble_clic()
    {
        alAbrir(u"frmCaducidades"_s, [&](QWidget* d) {
            auto* gr = control<Alfarje>(d, u"GR"_s);
            QCOMPARE(d->windowTitle(), u"Lista de caducidades"_s);
            QCOMPARE(control<QDateEdit>(d, u"DT"_s)->date(), QDate(2019, 2, 17));
            QCOMPARE(control<QCheckBox>(d, u"Chk(0)"_s)->isChecked(), false);
            QCOMPARE(control<QCheckBox>(d, u"Chk(1)"_s)->isChecked(), false);
            QCOMPARE(lotes(gr), (QStringList{u"A_2"_s, u"A%1"_s, u"AB1"_s, u"AX2"_s, u"B-20"_s}));
            QCOMPARE(gr->CellText(1, 3), u"Labs Andinos"_s);
            QCOMPARE(gr->CellText(0, 3), QString()); // supplier 9 doesn't exist
            QCOMPARE(gr->CellText(2, 3), QString()); // no supplier
            QCOMPARE(gr->CellText(3, 3), u"Droguería O'Brien"_s);
            QCOMPARE(gr->CellText(4, 2), u"2026-05-01"_s);
            QCOMPARE(qint32(gr->CellValue(4, 4)), cod(u"B-20"_s));
            QCOMPARE(gr->Row(), -1);
            dobleClic(gr, 4);
            QVERIFY(!d->isVisible());
        });
        QCOMPARE(nomencla.SeleccionarLote(u"1"_s, db, 1), cod(u"B-20"_s));
        // The slot carried the article in and the choice out.
        QCOMPARE(nomencla::M().ValorDocumento, cod(u"B-20"_s));
    }

    // The class and warehouse filters of the host.
    void filtros_del_anfitrion()
    {
        QCOMPARE(listados(1, -1, lsLotesValidos), (QStringList{u"A%1"_s, u"AB1"_s, u"B-20"_s}));
        QCOMPARE(listados(1, -1, lsLotesCuarentena), (QStringList{u"A_2"_s}));
        QCOMPARE(listados(1, -1, lsLotesCaducados), (QStringList{u"AX2"_s}));
        QCOMPARE(listados(1, 2, lsLotesTodos), (QStringList{u"A_2"_s, u"A%1"_s}));
        QCOMPARE(listados(1, 0, lsLotesTodos), (QStringList{u"A_2"_s, u"A%1"_s, u"AB1"_s, u"AX2"_s, u"B-20"_s}));
        QCOMPARE(listados(1, 1, lsLotesActivos), (QStringList{u"B-20"_s}));
        // A value between the classes and "all" selects nothing; one above selects all.
        QCOMPARE(listados(1, -1, tipoLoteLS(7)), QStringList());
        QCOMPARE(listados(1, -1, tipoLoteLS(12)).size(), 5);
        QCOMPARE(listados(3, -1, lsLotesTodos), QStringList());
    }

    // The user's filters: start of the lot taken literally, exact date or
    // from it on, lots with nothing on hand.
    void filtros_del_usuario()
    {
        alAbrir(u"frmCaducidades"_s, [&](QWidget* d) {
            auto* gr = control<Alfarje>(d, u"GR"_s);
            auto* tx = control<QLineEdit>(d, u"Text1"_s);
            auto* exacta = control<QCheckBox>(d, u"Chk(0)"_s);
            auto* ceros = control<QCheckBox>(d, u"Chk(1)"_s);
            auto* dt = control<QDateEdit>(d, u"DT"_s);
            QCOMPARE(tx->maxLength(), 25);

            teclear(tx, u"a"_s);
            QCOMPARE(lotes(gr), (QStringList{u"A_2"_s, u"A%1"_s, u"AB1"_s, u"AX2"_s}));
            teclear(tx, u"%"_s);
            QCOMPARE(lotes(gr), (QStringList{u"A%1"_s}));
            tx->setText(u"A_"_s);
            QCOMPARE(lotes(gr), (QStringList{u"A_2"_s}));
            tx->setText(u"A\\"_s);
            QCOMPARE(lotes(gr), QStringList());
            tx->setText(u"'; DROP TABLE martexpira; --"_s);
            QCOMPARE(gr->RowCount(), 0);
            tx->clear();
            QCOMPARE(gr->RowCount(), 5);

            // A new date counts from the next reload, here the check box.
            dt->setDate(QDate(2026, 1, 10));
            exacta->click();
            QCOMPARE(lotes(gr), (QStringList{u"A%1"_s, u"AB1"_s}));
            exacta->click();
            QCOMPARE(lotes(gr), (QStringList{u"A%1"_s, u"AB1"_s, u"AX2"_s, u"B-20"_s}));
            ceros->click();
            QCOMPARE(lotes(gr), (QStringList{u"A%1"_s, u"AB1"_s, u"AX2"_s, u"B-20"_s, u"CERO"_s, u"NEG"_s}));
            dt->setDate(QDate(2019, 2, 16));
            ceros->click();
            ceros->click();
            QCOMPARE(lotes(gr).size(), 8); // every lot of the article
            QVERIFY(lotes(gr).contains(u"ANT-1"_s));
        });
        QCOMPARE(nomencla.SeleccionarLote(u"1"_s, db, 1), 0);
        QCOMPARE(valor(db, u"SELECT COUNT(*) FROM martexpira"_s).toInt(), 9);
    }

    // The keyboard: arrow down into the grid only when it has rows, Enter
    // chooses; Esc anywhere, the close box and an empty list give 0.
    void teclado_y_salidas()
    {
        alAbrir(u"frmCaducidades"_s, [&](QWidget* d) {
            auto* gr = control<Alfarje>(d, u"GR"_s);
            auto* tx = control<QLineEdit>(d, u"Text1"_s);
            QTRY_VERIFY(tx->hasFocus());
            teclear(tx, u"zz"_s);
            tecla(tx, Qt::Key_Down);
            QVERIFY(tx->hasFocus());
            tecla(tx, Qt::Key_Return); // not trapped in the box
            QVERIFY(d->isVisible());
            tx->setText(u"ab"_s);
            tecla(tx, Qt::Key_Down);
            QVERIFY(gr->hasFocus());
            QCOMPARE(gr->Row(), 0);
            tecla(gr, Qt::Key_Return);
            QVERIFY(!d->isVisible());
        });
        QCOMPARE(nomencla.SeleccionarLote(u"1"_s, db, 1), cod(u"AB1"_s));

        // A highlighted row is no choice.
        alAbrir(u"frmCaducidades"_s, [&](QWidget* d) {
            auto* gr = control<Alfarje>(d, u"GR"_s);
            gr->setFocus();
            gr->setRow(2);
            tecla(gr, Qt::Key_Escape);
            QVERIFY(!d->isVisible());
        });
        QCOMPARE(nomencla.SeleccionarLote(u"1"_s, db, 1), 0);

        alAbrir(u"frmCaducidades"_s, [&](QWidget* d) {
            control<Alfarje>(d, u"GR"_s)->setRow(1);
            tecla(control<QCheckBox>(d, u"Chk(1)"_s), Qt::Key_Escape);
            QVERIFY(!d->isVisible());
        });
        QCOMPARE(nomencla.SeleccionarLote(u"1"_s, db, 1), 0);

        alAbrir(u"frmCaducidades"_s, [&](QWidget* d) {
            control<Alfarje>(d, u"GR"_s)->setRow(0);
            d->close();
            QVERIFY(!d->isVisible());
        });
        QCOMPARE(nomencla.SeleccionarLote(u"1"_s, db, 1), 0);

        // Rows but none current, or no rows at all: Enter chooses nothing and
        // the dialog waits; Esc then gives 0.
        alAbrir(u"frmCaducidades"_s, [&](QWidget* d) {
            auto* gr = control<Alfarje>(d, u"GR"_s);
            QCOMPARE(gr->RowCount(), 0);
            gr->setFocus();
            tecla(gr, Qt::Key_Return);
            QVERIFY(d->isVisible());
            tecla(gr, Qt::Key_Escape);
            QVERIFY(!d->isVisible());
        });
        QCOMPARE(nomencla.SeleccionarLote(u"1"_s, db, 3), 0);
        alAbrir(u"frmCaducidades"_s, [&](QWidget* d) {
            auto* gr = control<Alfarje>(d, u"GR"_s);
            gr->setFocus();
            gr->setRow(-1);
            tecla(gr, Qt::Key_Return);
            QVERIFY(d->isVisible());
        });
        QCOMPARE(nomencla.SeleccionarLote(u"1"_s, db, 1), 0);
    }
};

QTEST_MAIN(PruebaCaducidades)
#include "prueba_caducidades.moc"
