// Banks: the two layouts, the commissions, picks, duplicates and removals,
// driven through the controls as a clerk would.
#include "tests/prueba_estructura.h"

#include "core/Controles.h"

#include <nomencla/clsNomencla.h>

using namespace Qt::StringLiterals;
using namespace prueba;
using nomencla::Alfarje;
using nomencla::Casilla;

class PruebaBancos : public QObject {
    Q_OBJECT
    QSqlDatabase db;
    clsNomencla nomencla;

private Q_SLOTS:
    void init()
    {
        // A decimal comma in the user's locale must not change what is stored.
        QLocale::setDefault(QLocale(QLocale::Spanish, QLocale::Ecuador));
        db = baseNueva(u"t_bancos"_s);
        ejecutarSql(db, u"INSERT INTO lsBancos (id,nom,tar,cor,dife,est) VALUES ('1','Banco Pichincha',1,4.02,7.50,1),"
                        "('1','Cooperativa JEP',0,0,0,1),('1','Produbanco',1,3.80,6.90,1)"_s);
    }

    // The box switches layouts; the commissions take digits and one mark (a
    // comma comes as a point), five digits and two decimals, and are stored
    // whatever the flag, an empty box as 0; every Agregar puts the box back.
    // A pick shows the record in the layout of its flag; a rename may take the
    // name of another bank, a new bank may not; the removal goes to the picked
    // bank, and its name can be saved again as a new bank. Esc closes.
    void comisiones_duplicados_y_quitar()
    {
        Cajas cajas;
        alAbrir(u"frmLsBancos"_s, [&](QWidget* d) {
            auto* gr = control<Alfarje>(d, u"GR"_s);
            auto* tx = control<QLineEdit>(d, u"Text1"_s);
            auto* check = control<Casilla>(d, u"Check1"_s);
            auto* nm0 = control<QLineEdit>(d, u"Nm(0)"_s);
            // The tall layout shows the commission boxes; the short one hides them.
            const auto conComisiones = [nm0] { return nm0->isVisible(); };
            QVERIFY(!conComisiones());
            QTest::mouseClick(check, Qt::LeftButton, {}, QPoint(8, check->height() / 2));
            QVERIFY(conComisiones());
            teclear(nm0, u"12a,5x"_s);
            teclear(control<QLineEdit>(d, u"Nm(1)"_s), u"123456.789"_s);
            teclear(tx, u"Banco Amazonas"_s);
            pulsar(d, u"Bt(0)"_s);
            QVERIFY(!conComisiones());
            nm0->clear();
            tx->insert(u"Banco Rumiñahui"_s);
            pulsar(d, u"Bt(0)"_s);

            dobleClic(gr, 1); // by name: Banco Pichincha
            QVERIFY(conComisiones());
            QCOMPARE(nm0->text().toDouble(), 4.02);
            QCOMPARE(control<QLineEdit>(d, u"Nm(1)"_s)->text().toDouble(), 7.5);
            dobleClic(gr, 3);
            QVERIFY(!conComisiones());
            tx->setText(u"Banco Pichincha"_s);
            pulsar(d, u"Bt(0)"_s);
            teclear(tx, u"produbanco"_s);
            pulsar(d, u"Bt(0)"_s);
            QCOMPARE(cajas.ultima(), u"El banco ya se encuentra registrado en la lista!"_s);

            // Pick Produbanco, type towards another row: the question names Produbanco.
            dobleClic(gr, 4);
            tx->setText(u"Banco"_s);
            QCOMPARE(gr->Row(), 0);
            cajas.responder(QMessageBox::Yes);
            pulsar(d, u"Bt(1)"_s);
            QCOMPARE(cajas.ultima(), u"Está seguro que desea eliminar ''Produbanco'' de la lista de bancos registrados en el sistema?"_s);
            tx->setText(u"Produbanco"_s);
            pulsar(d, u"Bt(0)"_s);
            tecla(gr, Qt::Key_Escape);
            QVERIFY(!d->isVisible());
        });
        QVERIFY(nomencla.Bancos(u"1"_s, db));
        QCOMPARE(filas(db, u"SELECT nom, tar, CAST(cor AS CHAR), CAST(dife AS CHAR) FROM lsBancos WHERE cod IN (4,5)"_s),
                 (QStringList{u"Banco Amazonas|1|12.50|12345.78"_s, u"Banco Rumiñahui|0|0.00|12345.78"_s}));
        QCOMPARE(filas(db, u"SELECT nom, est FROM lsBancos ORDER BY cod"_s),
                 (QStringList{u"Banco Pichincha|1"_s, u"Banco Pichincha|1"_s, u"Produbanco|0"_s, u"Banco Amazonas|1"_s,
                              u"Banco Rumiñahui|1"_s, u"Produbanco|1"_s}));
    }
};

QTEST_MAIN(PruebaBancos)
#include "prueba_bancos.moc"
