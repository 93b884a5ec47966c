// Contracts, accounts and countries, driven through their controls as a clerk would.
#include "tests/codificadas_comun.h"

#include "catalogues/frmLsPaises.h"
#include "core/Module1.h"

#include <nomencla/clsNomencla.h>

#include <QLineEdit>

using namespace Qt::StringLiterals;
using namespace prueba;
using nomencla::Alfarje;

using Metodo = bool (clsNomencla::*)(const QString&, QSqlDatabase&);
Q_DECLARE_METATYPE(Metodo)

class PruebaListasNombradas : public QObject {
    Q_OBJECT
    QSqlDatabase db;
    clsNomencla nomencla;

private Q_SLOTS:
    void init()
    {
        db = baseNueva(u"t_listas_nombradas"_s);
    }

    // Each member's shortest text, messages, removal (a delete or a mark) and
    // Esc; for all: a duplicate refused only for a new record, a rename to
    // another's text, the removal going to the picked record even when typing
    // has moved the selection, and the removed text saved again as new.
    void de_principio_a_fin_data()
    {
        QTest::addColumn<QString>("forma");
        QTest::addColumn<Metodo>("metodo");
        QTest::addColumn<QString>("preparar");
        QTest::addColumn<QString>("corto");
        QTest::addColumn<QString>("msgDuplicado");
        QTest::addColumn<QString>("confirmar");
        QTest::addColumn<bool>("escCierra");
        QTest::addColumn<QString>("consulta");
        QTest::addColumn<QStringList>("quedan");
        const QString marcadas = u"INSERT INTO %1 (id,%2,est) VALUES ('1','Alfa 1',1),('1','Beta 2',1),('1','Gama 3',0),"
                                 "('2','Alfa 1',1)"_s;
        const QStringList quedanMarcadas{u"1|Alfa 1|0"_s, u"1|Alfa 1|1"_s, u"1|Beta 2|1"_s, u"1|Beta 2|1"_s,
                                         u"1|Gama 3|0"_s, u"2|Alfa 1|1"_s};
        QTest::newRow("paises") << u"frmLsPaises"_s << &clsNomencla::Paises
                                << u"INSERT INTO lsPaises (id,nom) VALUES ('1','Alfa 1'),('1','Beta 2'),('2','Alfa 1')"_s
                                << u"  Delta  "_s << u"El país ya se encuentra registrado en la lista!"_s
                                << u"Está seguro que desea eliminar ''Alfa 1'' de la lista de países registrados en el sistema?"_s
                                << false << u"SELECT id, nom FROM lsPaises ORDER BY id, nom"_s
                                << QStringList{u"1|Alfa 1"_s, u"1|Beta 2"_s, u"1|Beta 2"_s, u"2|Alfa 1"_s};
        QTest::newRow("contratos") << u"frmLsContratos"_s << &clsNomencla::Contratos << marcadas.arg(u"lscontratos"_s, u"con"_s)
                                   << u" A "_s << u"El contrato ya se encuentra registrado en la lista!"_s
                                   << u"Está seguro que desea eliminar ''Alfa 1'' de la lista de contratos registrados en el sistema?"_s
                                   << false << u"SELECT id, con, est FROM lscontratos ORDER BY id, con, est"_s << quedanMarcadas;
        QTest::newRow("cuentas") << u"frmLsCuentas"_s << &clsNomencla::Cuentas << marcadas.arg(u"lsCuentas"_s, u"cta"_s)
                                 << u" A "_s << u"El cuenta ya se encuentra registrada en la lista!"_s
                                 << u"Está seguro que desea eliminar ''Alfa 1'' de la lista de cuentas registradas en el sistema?"_s
                                 << true << u"SELECT id, cta, est FROM lsCuentas ORDER BY id, cta, est"_s << quedanMarcadas;
    }

    void de_principio_a_fin()
    {
        QFETCH(QString, forma);
        QFETCH(Metodo, metodo);
        QFETCH(QString, preparar);
        QFETCH(QString, corto);
        QFETCH(QString, msgDuplicado);
        QFETCH(QString, confirmar);
        QFETCH(bool, escCierra);
        QFETCH(QString, consulta);
        QFETCH(QStringList, quedan);
        ejecutarSql(db, preparar);
        Cajas cajas;
        alAbrir(forma, [&](QWidget* d) {
            auto* gr = control<Alfarje>(d, u"GR"_s);
            auto* tx = control<QLineEdit>(d, u"Text1"_s);
            // Too short, blanks around not counted: nothing at all happens.
            teclear(tx, corto);
            pulsar(d, u"Bt(0)"_s);
            QVERIFY(cajas.vistas.isEmpty());
            QCOMPARE(tx->text(), corto);
            tx->clear();
            teclear(tx, u"Gama 3"_s);
            pulsar(d, u"Bt(0)"_s);
            QCOMPARE(cajas.ultima(), u"La información se ha guardado con éxito!"_s);
            QCOMPARE(tx->text(), QString());

            teclear(tx, u"ALFA 1"_s);
            pulsar(d, u"Bt(0)"_s);
            QCOMPARE(cajas.ultima(), msgDuplicado);
            QCOMPARE(tx->text(), QString());

            dobleClic(gr, 2);
            QCOMPARE(tx->text(), u"Gama 3"_s);
            tx->clear();
            teclear(tx, u"Beta 2"_s);
            pulsar(d, u"Bt(0)"_s);
            QCOMPARE(cajas.ultima(), u"La información se ha guardado con éxito!"_s);

            dobleClic(gr, 0);
            tx->clear();
            teclear(tx, u"Bet"_s);
            QCOMPARE(gr->Row(), 1);
            cajas.responder(QMessageBox::No);
            pulsar(d, u"Bt(1)"_s);
            QCOMPARE(cajas.ultima(), confirmar);
            QCOMPARE(gr->RowCount(), 3);
            // Yes: no message after it.
            cajas.responder(QMessageBox::Yes);
            const auto antes = cajas.vistas.size();
            pulsar(d, u"Bt(1)"_s);
            QCOMPARE(cajas.vistas.size(), antes + 1);
            tx->clear();
            teclear(tx, u"Alfa 1"_s);
            pulsar(d, u"Bt(0)"_s);
            QCOMPARE(cajas.ultima(), u"La información se ha guardado con éxito!"_s);
            tecla(tx, Qt::Key_Escape);
            QCOMPARE(d->isVisible(), !escCierra);
        });
        QVERIFY((nomencla.*metodo)(u"1"_s, db));
        QVERIFY(!cajas.sinRespuesta);
        QCOMPARE(filas(db, consulta), quedan);
    }

    // Shown over another dialog, as the lot capture does: it goes back to its
    // owner, and HuboCambios tells the owner of a change in this opening only.
    void sobre_otro_dialogo()
    {
        Cajas cajas;
        bool primera = false;
        bool segunda = true;
        alAbrir(u"frmLsCiudad"_s, [&](QWidget* d) {
            auto& paises = nomencla::M().instancia<nomencla::frmLsPaises>();
            alAbrir(u"frmLsPaises"_s, [&](QWidget* p) {
                teclear(control<QLineEdit>(p, u"Text1"_s), u"Bolivia"_s);
                pulsar(p, u"Bt(0)"_s);
            });
            paises.Show(d);
            primera = nomencla::M().HuboCambios;
            alAbrir(u"frmLsPaises"_s, [](QWidget*) {});
            paises.Show(d);
            segunda = nomencla::M().HuboCambios;
            QVERIFY(d->isVisible());
        });
        nomencla.Ciudades(u"1"_s, db);
        QVERIFY(primera);
        QVERIFY(!segunda);
        QCOMPARE(valor(db, u"SELECT COUNT(*) FROM lsPaises WHERE id='1' AND nom='Bolivia'"_s).toInt(), 1);
    }

    // A failing save is shown and keeps the text; closed then, nothing changed.
    void fallo_de_base_de_datos()
    {
        QSqlDatabase otra = otraConexion(db, u"otra"_s);
        Cajas cajas;
        alAbrir(u"frmLsPaises"_s, [&](QWidget* d) {
            auto* tx = control<QLineEdit>(d, u"Text1"_s);
            ejecutarSql(otra, u"RENAME TABLE lsPaises TO lsPaisesFuera"_s);
            teclear(tx, u"Venezuela"_s);
            pulsar(d, u"Bt(0)"_s);
            ejecutarSql(otra, u"RENAME TABLE lsPaisesFuera TO lsPaises"_s);
            QCOMPARE(cajas.vistas.last().titulo, u"Error de base de datos"_s);
            QCOMPARE(tx->text(), u"Venezuela"_s);
        });
        QVERIFY(!nomencla.Paises(u"1"_s, db));
        QCOMPARE(valor(db, u"SELECT COUNT(*) FROM lsPaises"_s).toInt(), 0);
    }
};

QTEST_MAIN(PruebaListasNombradas)
#include "prueba_listas_nombradas.moc"
