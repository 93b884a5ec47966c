// Banks: the two layouts, the commissions, picks, renames and removals,
// driven through the controls as a clerk would.
#include "tests/codificadas_comun.h"

#include <nomencla/clsNomencla.h>

using namespace Qt::StringLiterals;
using namespace prueba;
using nomencla::Alfarje;
using nomencla::Casilla;

namespace {

// The tall layout shows the commission boxes; the short one hides them.
bool conComisiones(QWidget* d)
{
    return control<QWidget>(d, u"Nm(0)"_s)->isVisible();
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

    // The box switches layouts; the commissions take digits and one mark (a
    // comma comes as a point), five digits and two decimals, and are stored
    // whatever the flag, an empty box as 0; every Agregar puts the box back;
    // a name of five characters saves nothing.
    void disposiciones_y_comisiones()
    {
        Cajas cajas;
        alAbrir(u"frmLsBancos"_s, [&](QWidget* d) {
            auto* tx = control<QLineEdit>(d, u"Text1"_s);
            auto* check = control<Casilla>(d, u"Check1"_s);
            auto* nm0 = control<QLineEdit>(d, u"Nm(0)"_s);
            QVERIFY(!conComisiones(d));
            QTest::mouseClick(check, Qt::LeftButton, {}, QPoint(8, check->height() / 2));
            QVERIFY(conComisiones(d));
            teclear(nm0, u"12a,5x"_s);
            teclear(control<QLineEdit>(d, u"Nm(1)"_s), u"123456.789"_s);
            teclear(tx, u"Banco Amazonas"_s);
            pulsar(d, u"Bt(0)"_s);
            QCOMPARE(cajas.ultima(), u"La información se ha guardado con éxito!"_s);
            QVERIFY(!conComisiones(d));

            nm0->clear();
            tx->insert(u"Banco Rumiñahui"_s);
            pulsar(d, u"Bt(0)"_s);

            check->click();
            teclear(tx, u" BanCo "_s);
            const auto vistas = cajas.vistas.size();
            pulsar(d, u"Bt(0)"_s);
            QCOMPARE(cajas.vistas.size(), vistas);
            QVERIFY(!conComisiones(d));
            // Esc closes from anywhere.
            tecla(control<Alfarje>(d, u"GR"_s), Qt::Key_Escape);
            QVERIFY(!d->isVisible());
        });
        QVERIFY(nomencla.Bancos(u"1"_s, db));
        QCOMPARE(filas(db, u"SELECT nom, tar, CAST(cor AS CHAR), CAST(dife AS CHAR), est FROM lsBancos WHERE id='1' AND cod>5 ORDER BY cod"_s),
                 (QStringList{u"Banco Amazonas|1|12.50|12345.78|1"_s, u"Banco Rumiñahui|0|0.00|12345.78|1"_s}));
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
            dobleClic(gr, 0);
            QCOMPARE(tx->text(), u"Banco Pichincha"_s);
            QVERIFY(conComisiones(d));
            QCOMPARE(control<QLineEdit>(d, u"Nm(0)"_s)->text().toDouble(), 4.02);
            QCOMPARE(control<QLineEdit>(d, u"Nm(1)"_s)->text().toDouble(), 7.5);
            dobleClic(gr, 1);
            QVERIFY(!conComisiones(d));
            tx->setText(u"Banco Pichincha"_s);
            pulsar(d, u"Bt(0)"_s);

            // A new bank with a listed name is a duplicate.
            teclear(tx, u"produbanco"_s);
            pulsar(d, u"Bt(0)"_s);
            QCOMPARE(cajas.ultima(), u"El banco ya se encuentra registrado en la lista!"_s);

            // Pick Produbanco, type towards another row: the question names Produbanco.
            dobleClic(gr, 2);
            tx->setText(u"Banco"_s);
            QCOMPARE(gr->Row(), 0);
            cajas.responder(QMessageBox::Yes);
            pulsar(d, u"Bt(1)"_s);
            QCOMPARE(cajas.ultima(), u"Está seguro que desea eliminar ''Produbanco'' de la lista de bancos registrados en el sistema?"_s);
            tx->setText(u"Produbanco"_s);
            pulsar(d, u"Bt(0)"_s);
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
