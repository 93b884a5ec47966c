// The lot selection: the host's class and warehouse filters, the user's lot
// and date filters, and what each way of leaving the dialog returns.
#include "tests/prueba_estructura.h"

#include <nomencla/clsNomencla.h>

#include <QAbstractItemModel>
#include <QApplication>
#include <QCheckBox>
#include <QDateEdit>

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

} // namespace

class PruebaCaducidades : public QObject {
    Q_OBJECT
    QSqlDatabase db;
    clsNomencla nomencla;

private Q_SLOTS:
    void initTestCase()
    {
        db = baseNueva(u"t_caducidades"_s);
        // est: 0 expired, 1 active, 2 quarantine, 3 under review. The form's
        // date is 17 Feb 2019: ANT-1 expires before it.
        ejecutarSql(db, u"INSERT INTO mProveedor (cod,nom) VALUES (1,'Droguería O''Brien'),(2,'Labs Andinos');\n"
                        "INSERT INTO martexpira (art,bod,lot,can,fec,pro,est) VALUES "
                        "(1,1,'B-20',10,'2026-05-01',1,1),(1,2,'A%1',5,'2026-01-10',2,1),(1,1,'AB1',7,'2026-01-10',NULL,3),"
                        "(1,2,'A_2',3,'2019-02-17',9,2),(1,1,'AX2',4,'2027-07-07',1,0),(1,1,'CERO',0,'2026-05-01',1,1),"
                        "(1,2,'NEG',-2,'2026-05-01',1,1),(1,1,'ANT-1',8,'2019-02-16',1,1),(2,1,'OTRO',50,'2026-05-01',1,1)"_s);
    }

    // The host's class and warehouse: lots of the article on hand from the
    // form's date on; warehouse 0 is every one.
    void filtros_del_anfitrion()
    {
        const QStringList todos{u"A_2"_s, u"A%1"_s, u"AB1"_s, u"AX2"_s, u"B-20"_s};
        const struct { qint32 bodega; tipoLoteLS tipo; QStringList lotes; } casos[] = {
            {-1, lsLotesTodos, todos},
            {-1, lsLotesValidos, {u"A%1"_s, u"AB1"_s, u"B-20"_s}},
            {-1, lsLotesCuarentena, {u"A_2"_s}},
            {-1, lsLotesCaducados, {u"AX2"_s}},
            {0, lsLotesTodos, todos},
            {1, lsLotesActivos, {u"B-20"_s}}};
        for (const auto& c : casos) {
            QStringList vistos;
            alAbrir(u"frmCaducidades"_s, [&](QWidget* d) { vistos = lotes(control<Alfarje>(d, u"GR"_s)); });
            QCOMPARE(nomencla.SeleccionarLote(u"1"_s, db, 1, c.bodega, c.tipo), 0);
            QCOMPARE(vistos, c.lotes);
        }
    }

    // The user's filters: start of the lot taken literally, exact date or
    // from it on, lots with nothing on hand. The supplier's name is shown.
    void filtros_del_usuario()
    {
        alAbrir(u"frmCaducidades"_s, [&](QWidget* d) {
            auto* gr = control<Alfarje>(d, u"GR"_s);
            auto* tx = control<QLineEdit>(d, u"Text1"_s);
            QCOMPARE(gr->CellText(1, 3), u"Labs Andinos"_s);
            teclear(tx, u"a"_s);
            QCOMPARE(lotes(gr), (QStringList{u"A_2"_s, u"A%1"_s, u"AB1"_s, u"AX2"_s}));
            teclear(tx, u"%"_s);
            QCOMPARE(lotes(gr), (QStringList{u"A%1"_s}));
            tx->setText(u"A\\"_s);
            QCOMPARE(lotes(gr), QStringList());
            tx->clear();

            // A new date counts from the next reload, here the check box.
            auto* exacta = control<QCheckBox>(d, u"Chk(0)"_s);
            control<QDateEdit>(d, u"DT"_s)->setDate(QDate(2026, 1, 10));
            exacta->click();
            QCOMPARE(lotes(gr), (QStringList{u"A%1"_s, u"AB1"_s}));
            exacta->click();
            control<QCheckBox>(d, u"Chk(1)"_s)->click();
            QCOMPARE(lotes(gr), (QStringList{u"A%1"_s, u"AB1"_s, u"AX2"_s, u"B-20"_s, u"CERO"_s, u"NEG"_s}));
        });
        QCOMPARE(nomencla.SeleccionarLote(u"1"_s, db, 1), 0);
    }

    // A double click or Enter on a current row chooses it; arrow down goes
    // from the box into the grid only when it has rows, else Enter waits. Esc,
    // in a check box too, and the close box give 0 even with a row marked.
    void finales()
    {
        enum { DobleClic, FlechaYEnter, Esc, Cierre };
        const struct { QString filtro; int final; bool abierto; QString lote; } casos[] = {
            {QString(), DobleClic, false, u"B-20"_s},
            {u"ab"_s, FlechaYEnter, false, u"AB1"_s},
            {u"zz"_s, FlechaYEnter, true, QString()},
            {QString(), Esc, false, QString()},
            {QString(), Cierre, false, QString()}};
        for (const auto& c : casos) {
            bool abierto = false;
            alAbrir(u"frmCaducidades"_s, [&](QWidget* d) {
                auto* gr = control<Alfarje>(d, u"GR"_s);
                auto* tx = control<QLineEdit>(d, u"Text1"_s);
                QTRY_VERIFY(tx->hasFocus());
                teclear(tx, c.filtro);
                if (c.final == FlechaYEnter) {
                    tecla(tx, Qt::Key_Down);
                    tecla(QApplication::focusWidget(), Qt::Key_Return);
                } else {
                    gr->setRow(4);
                }
                if (c.final == DobleClic)
                    dobleClic(gr, 4);
                else if (c.final == Esc)
                    tecla(control<QCheckBox>(d, u"Chk(1)"_s), Qt::Key_Escape);
                else if (c.final == Cierre)
                    d->close();
                abierto = d->isVisible();
            });
            const qint32 r = nomencla.SeleccionarLote(u"1"_s, db, 1);
            QCOMPARE(abierto, c.abierto);
            QCOMPARE(r, c.lote.isEmpty() ? 0 : valor(db, u"SELECT cod FROM martexpira WHERE lot=?"_s, {c.lote}).toInt());
        }
    }
};

QTEST_MAIN(PruebaCaducidades)
#include "prueba_caducidades.moc"
