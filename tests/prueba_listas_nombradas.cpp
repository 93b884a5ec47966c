// Accounts and countries, driven through their controls as a clerk would.
#include "tests/prueba_estructura.h"

#include <nomencla/clsNomencla.h>

using namespace Qt::StringLiterals;
using namespace prueba;
using nomencla::Alfarje;

namespace {

// A member: its rows Alfa 1 and Beta 2 (and a removed Gama 3 where removal
// is a mark), another company's Alfa 1, and what it says and keeps.
struct Miembro {
    const char* nombre;
    QString forma;
    bool (clsNomencla::*metodo)(const QString&, QSqlDatabase&);
    QString preparar;
    QString msgDuplicado;
    bool escCierra;
    QString consulta; // this company's rows
    QStringList quedan;
};

const QList<Miembro> miembros{
    {"paises", u"frmLsPaises"_s, &clsNomencla::Paises,
     u"INSERT INTO lsPaises (id,nom) VALUES ('1','Alfa 1'),('1','Beta 2'),('2','Alfa 1')"_s,
     u"El país ya se encuentra registrado en la lista!"_s, false,
     u"SELECT nom FROM lsPaises WHERE id='1' ORDER BY nom"_s, {u"Beta 2"_s, u"Gama 3"_s}},
    {"cuentas", u"frmLsCuentas"_s, &clsNomencla::Cuentas,
     u"INSERT INTO lsCuentas (id,cta,est) VALUES ('1','Alfa 1',1),('1','Beta 2',1),('1','Gama 3',0),('2','Alfa 1',1)"_s,
     u"El cuenta ya se encuentra registrada en la lista!"_s, true,
     u"SELECT cta, est FROM lsCuentas WHERE id='1' ORDER BY cta, est"_s,
     {u"Alfa 1|0"_s, u"Beta 2|1"_s, u"Gama 3|0"_s, u"Gama 3|1"_s}},
};

} // namespace

class PruebaListasNombradas : public QObject {
    Q_OBJECT
    QSqlDatabase db;
    clsNomencla nomencla;

private Q_SLOTS:
    void init()
    {
        db = baseNueva(u"t_listas_nombradas"_s);
    }

    // For each member: a record removed earlier is no duplicate, a duplicate
    // of any case is refused, a pick fills the box, and the removal goes to
    // the picked record even when typing has moved the selection; Esc as the
    // member's key preview says.
    void de_principio_a_fin_data()
    {
        QTest::addColumn<int>("i");
        for (int i = 0; i < miembros.size(); ++i)
            QTest::newRow(miembros[i].nombre) << i;
    }

    void de_principio_a_fin()
    {
        QFETCH(int, i);
        const Miembro& m = miembros.at(i);
        ejecutarSql(db, m.preparar);
        Cajas cajas;
        alAbrir(m.forma, [&](QWidget* d) {
            auto* gr = control<Alfarje>(d, u"GR"_s);
            auto* tx = control<QLineEdit>(d, u"Text1"_s);
            teclear(tx, u"Gama 3"_s);
            pulsar(d, u"Bt(0)"_s);

            teclear(tx, u"ALFA 1"_s);
            pulsar(d, u"Bt(0)"_s);
            QCOMPARE(cajas.ultima(), m.msgDuplicado);

            dobleClic(gr, 0);
            QCOMPARE(tx->text(), u"Alfa 1"_s);
            tx->clear();
            teclear(tx, u"Bet"_s);
            QCOMPARE(gr->Row(), 1);
            cajas.responder(QMessageBox::Yes);
            pulsar(d, u"Bt(1)"_s);
            tecla(tx, Qt::Key_Escape);
            QCOMPARE(d->isVisible(), !m.escCierra);
        });
        QVERIFY((nomencla.*m.metodo)(u"1"_s, db));
        QVERIFY(!cajas.sinRespuesta);
        QCOMPARE(filas(db, m.consulta), m.quedan);
    }
};

QTEST_MAIN(PruebaListasNombradas)
#include "prueba_listas_nombradas.moc"
