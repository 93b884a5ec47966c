// Banks: the two layouts, the commissions, picks, renames and removals,
// driven through the controls as a clerk would.
#include "tests/support/Prueba.h"

#include "core/Alfarje.h"
#include "core/Controles.h"
#include "core/Module1.h"

#include <nomencla/clsNomencla.h>

#include <QAbstractButton>
#include <QApplication>
#include <QLineEdit>

using namespace Qt::StringLiterals;
using namespace prueba;
using nomencla::Alfarje;
using nomencla::Casilla;

namespace {

void dobleClic(Alfarje* gr, int fila)
{
    QTest::mouseDClick(gr->viewport(), Qt::LeftButton, {}, gr->visualRect(gr->model()->index(fila, 0)).center());
}

struct Disposicion {
    int alto;
    int arribaLista;
    bool comisiones;
};

Disposicion disposicion(QWidget* d)
{
    QApplication::processEvents();
    return {d->height(), control<QWidget>(d, u"P1"_s)->mapTo(d, QPoint(0, 0)).y(),
            control<QWidget>(d, u"Nm(0)"_s)->isVisible() && control<QWidget>(d, u"Nm(1)"_s)->isVisible()
                && control<QWidget>(d, u"Label1(2)"_s)->isVisible() && control<QWidget>(d, u"Label1(3)"_s)->isVisible()};
}

} // namespace

class PruebaBancos : public QObject {
    Q_OBJECT
    QSqlDatabase db;
    clsNomencla nomencla;

private Q_SLOTS:
    void initTestCase()
    {
        // A decimal comma in the user's locale must not change what is stored.
        QLocale::setDefault(QLocale(QLocale::Spanish, QLocale::Ecuador));
    }

    void init()
    {
        db = baseNueva(u"t_bancos"_s);
        ejecutarSql(db, u"INSERT INTO lsBancos (id,nom,tar,cor,dife,est) VALUES ('1','Banco Pichincha',1,4.02,7.50,1),"
                        "('1','Cooperativa JEP',0,0,0,1),('1','Produbanco',1,3.80,6.90,1),('1','Banco Territorial',0,0,0,0),"
                        "('2','Banco Pichincha',1,1.00,2.00,1)"_s);
    }

    // The short layout at opening; the box switches layouts, the commissions
    // take numbers only, and every Agregar puts the box back.
    void disposiciones_y_comisiones()
    {
        Cajas cajas;
        alAbrir(u"frmLsBancos"_s, [&](QWidget* d) {
            auto* gr = control<Alfarje>(d, u"GR"_s);
            auto* tx = control<QLineEdit>(d, u"Text1"_s);
            auto* check = control<Casilla>(d, u"Check1"_s);
            auto* nm0 = control<QLineEdit>(d, u"Nm(0)"_s);
            auto* nm1 = control<QLineEdit>(d, u"Nm(1)"_s);
            QCOMPARE(d->focusWidget(), tx);
            QCOMPARE(gr->CellText(0, 1), u"1"_s);
            QCOMPARE(gr->model()->index(0, 1).data(Qt::CheckStateRole).toInt(), int(Qt::Checked));
            QCOMPARE(gr->model()->index(1, 1).data(Qt::CheckStateRole).toInt(), int(Qt::Unchecked));

            QCOMPARE(check->Value(), 0);
            const Disposicion corta = disposicion(d);
            QVERIFY(!corta.comisiones);
            QTest::mouseClick(check, Qt::LeftButton, {}, QPoint(8, check->height() / 2));
            QCOMPARE(check->Value(), 1);
            const Disposicion alta = disposicion(d);
            QVERIFY(alta.comisiones);
            QVERIFY(alta.alto > corta.alto);
            QVERIFY(alta.arribaLista > corta.arribaLista);

            // Digits and one mark (a comma comes as a point), two decimals, five digits.
            teclear(nm0, u"12a,5x"_s);
            QCOMPARE(nm0->text(), u"12.5"_s);
            teclear(nm1, u"1234567"_s);
            QCOMPARE(nm1->text(), u"12345"_s);
            nm1->clear();
            teclear(nm1, u"7.255"_s);
            QCOMPARE(nm1->text(), u"7.25"_s);

            teclear(tx, u"Banco Amazonas"_s);
            pulsar(d, u"Bt(0)"_s);
            QCOMPARE(cajas.ultima(), u"La información se ha guardado con éxito!"_s);
            QCOMPARE(check->Value(), 0);
            QVERIFY(!disposicion(d).comisiones);
            QCOMPARE(disposicion(d).alto, corta.alto);
            QCOMPARE(nm0->text(), u"12.5"_s); // the boxes keep their texts

            // Saved with the box unticked: the flag 0, the boxes as they are.
            tx->insert(u"Banco Rumiñahui"_s);
            pulsar(d, u"Bt(0)"_s);
            // An empty box writes 0.
            check->click();
            nm0->clear();
            check->click();
            teclear(tx, u"Banco Solidario"_s);
            pulsar(d, u"Bt(0)"_s);

            // Five characters: nothing but the box falling back.
            check->click();
            teclear(tx, u" BanCo "_s);
            const auto vistas = cajas.vistas.size();
            pulsar(d, u"Bt(0)"_s);
            QCOMPARE(cajas.vistas.size(), vistas);
            QCOMPARE(check->Value(), 0);
            QCOMPARE(tx->text(), u" BanCo "_s);
            // Esc closes from anywhere.
            tecla(gr, Qt::Key_Escape);
            QVERIFY(!d->isVisible());
        });
        QVERIFY(nomencla.Bancos(u"1"_s, db));
        QCOMPARE(filas(db, u"SELECT nom, tar, CAST(cor AS CHAR), CAST(dife AS CHAR), est FROM lsBancos WHERE id='1' AND cod>5 ORDER BY cod"_s),
                 (QStringList{u"Banco Amazonas|1|12.50|7.25|1"_s, u"Banco Rumiñahui|0|12.50|7.25|1"_s,
                              u"Banco Solidario|0|0.00|7.25|1"_s}));
    }

    // A pick shows the record in the layout of its flag; a rename may take the
    // name of another bank; the removal goes to the picked bank, only marks it,
    // and its name can be saved again as a new bank.
    void seleccion_renombre_y_quitar()
    {
        Cajas cajas;
        const qint64 codJep = valor(db, u"SELECT cod FROM lsBancos WHERE nom='Cooperativa JEP'"_s).toLongLong();
        alAbrir(u"frmLsBancos"_s, [&](QWidget* d) {
            auto* gr = control<Alfarje>(d, u"GR"_s);
            auto* tx = control<QLineEdit>(d, u"Text1"_s);
            auto* check = control<Casilla>(d, u"Check1"_s);
            auto* quitar = control<QAbstractButton>(d, u"Bt(1)"_s);
            QVERIFY(!quitar->isEnabled());

            dobleClic(gr, 0);
            QCOMPARE(tx->text(), u"Banco Pichincha"_s);
            QCOMPARE(check->Value(), 1);
            QVERIFY(disposicion(d).comisiones);
            QCOMPARE(control<QLineEdit>(d, u"Nm(0)"_s)->text().toDouble(), 4.02);
            QCOMPARE(control<QLineEdit>(d, u"Nm(1)"_s)->text().toDouble(), 7.5);
            QVERIFY(quitar->isEnabled());

            dobleClic(gr, 1);
            QCOMPARE(tx->text(), u"Cooperativa JEP"_s);
            QCOMPARE(check->Value(), 0);
            QVERIFY(!disposicion(d).comisiones);

            // Rename to another bank's name: no duplicate box.
            tx->setText(u"Banco Pichincha"_s);
            pulsar(d, u"Bt(0)"_s);
            QCOMPARE(cajas.ultima(), u"La información se ha guardado con éxito!"_s);
            QVERIFY(!quitar->isEnabled());
            QCOMPARE(gr->CellText(1, 0), u"Banco Pichincha"_s);

            // A new bank with a listed name is a duplicate; the box falls back.
            check->click();
            teclear(tx, u"produbanco"_s);
            pulsar(d, u"Bt(0)"_s);
            QCOMPARE(cajas.vistas.last().icono, QMessageBox::Critical);
            QCOMPARE(cajas.ultima(), u"El banco ya se encuentra registrado en la lista!"_s);
            QCOMPARE(check->Value(), 0);

            // Pick Produbanco, type towards another row: the question names Produbanco.
            dobleClic(gr, 2);
            tx->setText(u"Banco"_s);
            QCOMPARE(gr->Row(), 0);
            cajas.responder(QMessageBox::Yes);
            pulsar(d, u"Bt(1)"_s);
            QCOMPARE(cajas.vistas.last().icono, QMessageBox::Question);
            QCOMPARE(cajas.ultima(), u"Está seguro que desea eliminar ''Produbanco'' de la lista de bancos registrados en el sistema?"_s);
            QCOMPARE(gr->RowCount(), 2);
            QCOMPARE(gr->Row(), -1);
            QVERIFY(!quitar->isEnabled());

            // The removed name, typed again, is a new bank.
            tx->setText(u"Produbanco"_s);
            pulsar(d, u"Bt(0)"_s);
            QCOMPARE(gr->RowCount(), 3);
        });
        QVERIFY(nomencla.Bancos(u"1"_s, db));
        QCOMPARE(filas(db, u"SELECT nom, est FROM lsBancos WHERE id='1' ORDER BY nom, est"_s),
                 (QStringList{u"Banco Pichincha|1"_s, u"Banco Pichincha|1"_s, u"Banco Territorial|0"_s,
                              u"Produbanco|0"_s, u"Produbanco|1"_s}));
        QCOMPARE(valor(db, u"SELECT nom FROM lsBancos WHERE cod=?"_s, {codJep}).toString(), u"Banco Pichincha"_s);
        QCOMPARE(filas(db, u"SELECT nom, tar, CAST(cor AS CHAR), CAST(dife AS CHAR), est FROM lsBancos WHERE id='2'"_s),
                 (QStringList{u"Banco Pichincha|1|1.00|2.00|1"_s}));
    }
};

QTEST_MAIN(PruebaBancos)
#include "prueba_bancos.moc"
