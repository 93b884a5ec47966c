// Banks: the two layouts, the commissions, picks, a duplicate and a removal,
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

    // The box switches layouts (the tall one shows the commissions); the
    // commissions take digits and one mark (a comma comes as a point), five
    // digits and two decimals, and are stored whatever the flag, an empty box
    // as 0; every Agregar puts the box back. A pick shows the record in the
    // layout of its flag; a new bank may not take another's name; the removal
    // asks by name. What all named lists share is proved with the lists.
    void comisiones_duplicados_y_quitar()
    {
        Cajas cajas;
        alAbrir(u"frmLsBancos"_s, [&](QWidget* d) {
            auto* gr = control<Alfarje>(d, u"GR"_s);
            auto* tx = control<QLineEdit>(d, u"Text1"_s);
            auto* check = control<Casilla>(d, u"Check1"_s);
            auto* nm0 = control<QLineEdit>(d, u"Nm(0)"_s);
            QVERIFY(!nm0->isVisible());
            QTest::mouseClick(check, Qt::LeftButton, {}, QPoint(8, check->height() / 2));
            QVERIFY(nm0->isVisible());
            teclear(nm0, u"12a,5x"_s);
            teclear(control<QLineEdit>(d, u"Nm(1)"_s), u"123456.789"_s);
            teclear(tx, u"Banco Amazonas"_s);
            pulsar(d, u"Bt(0)"_s);
            QVERIFY(!nm0->isVisible());
            nm0->clear();
            tx->insert(u"Banco Rumiñahui"_s);
            pulsar(d, u"Bt(0)"_s);
            teclear(tx, u"produbanco"_s);
            pulsar(d, u"Bt(0)"_s);
            QCOMPARE(cajas.ultima(), u"El banco ya se encuentra registrado en la lista!"_s);

            dobleClic(gr, filaCon(gr, u"Banco Pichincha"_s));
            QVERIFY(nm0->isVisible());
            QCOMPARE(nm0->text().toDouble(), 4.02);
            dobleClic(gr, filaCon(gr, u"Cooperativa JEP"_s));
            QVERIFY(!nm0->isVisible());

            dobleClic(gr, filaCon(gr, u"Produbanco"_s));
            cajas.responder(QMessageBox::Yes);
            pulsar(d, u"Bt(1)"_s);
            QCOMPARE(cajas.ultima(), u"Está seguro que desea eliminar ''Produbanco'' de la lista de bancos registrados en el sistema?"_s);
        });
        QVERIFY(nomencla.Bancos(u"1"_s, db));
        QCOMPARE(filas(db, u"SELECT nom, tar, CAST(cor AS CHAR), CAST(dife AS CHAR), est FROM lsBancos WHERE cod>2"_s),
                 (QStringList{u"Produbanco|1|3.80|6.90|0"_s, u"Banco Amazonas|1|12.50|12345.78|1"_s,
                              u"Banco Rumiñahui|0|0.00|12345.78|1"_s}));
    }
};

QTEST_MAIN(PruebaBancos)
#include "prueba_bancos.moc"
