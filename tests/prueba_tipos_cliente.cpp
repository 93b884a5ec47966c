// Customer types: the coded list with three filtered numeric boxes.
#include "tests/prueba_estructura.h"

#include "core/Controles.h"

#include <nomencla/clsNomencla.h>

#include <QLocale>

using namespace Qt::StringLiterals;
using namespace prueba;
using nomencla::Alfarje;

class PruebaTiposCliente : public QObject {
    Q_OBJECT
    QSqlDatabase db;
    clsNomencla nomencla;

private Q_SLOTS:
    void init()
    {
        db = baseNueva(u"t_tipos_cliente"_s);
        ejecutarSql(db, u"INSERT INTO mTipClie (id,cod,tip,des,cre,pla,descu,inte,est) VALUES "
                        "('2',1,'Corporativo','otra empresa',9000,90,5,3,1)"_s);
    }

    // Each box takes only its kind of figure as typed; the figures are stored
    // as numbers whatever the locale, empty ones as zeros; a pick shows them
    // as one would type them; the company's first key is 1; only this
    // company's customers block a removal.
    void de_principio_a_fin()
    {
        ejecutarSql(db, u"INSERT INTO mCliente (id,tip) VALUES ('1',2),('2',1)"_s);
        const QLocale antes;
        QLocale::setDefault(nomencla::localeEcuador()); // a decimal comma around
        Cajas cajas;
        QStringList elegida;
        alAbrir(u"frmLsTipoCli"_s, [&](QWidget* d) {
            auto* gr = control<Alfarje>(d, u"GR"_s);
            teclear(tx(d, 2), u"15a.00,"_s);
            teclear(tx(d, 3), u"1234567"_s);
            teclear(tx(d, 4), u"12,5"_s);
            teclear(tx(d, 0), u"Mayorista"_s);
            pulsar(d, u"Bt(0)"_s);
            teclear(tx(d, 0), u"Contado"_s);
            pulsar(d, u"Bt(0)"_s);

            dobleClic(gr, 0);
            pulsar(d, u"Bt(1)"_s);
            QCOMPARE(cajas.ultima(), u"No se puede quitar el tipo ''Contado'' debido a que se encuentra asignado a uno o mas clientes!"_s);

            dobleClic(gr, 1);
            elegida << tx(d, 0)->text() << tx(d, 2)->text() << tx(d, 3)->text() << tx(d, 4)->text();
            cajas.responder(QMessageBox::Yes);
            pulsar(d, u"Bt(1)"_s);
        });
        QVERIFY(nomencla.TipoClientes(u"1"_s, db));
        QVERIFY(!cajas.sinRespuesta);
        QLocale::setDefault(antes);
        QCOMPARE(elegida, (QStringList{u"Mayorista"_s, u"1500"_s, u"123456"_s, u"12.5"_s}));
        QCOMPARE(filas(db, u"SELECT cod,tip,cre,pla,descu,inte,est FROM mTipClie WHERE id='1' ORDER BY cod"_s),
                 (QStringList{u"1|Mayorista|1500|123456|12.5|0|0"_s, u"2|Contado|0|0|0|0|1"_s}));
    }
};

QTEST_MAIN(PruebaTiposCliente)
#include "prueba_tipos_cliente.moc"
