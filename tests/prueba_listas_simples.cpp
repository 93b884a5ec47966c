// The lists of plain names, driven through their controls as a clerk would.
#include "tests/support/Prueba.h"

#include "core/Alfarje.h"

#include <nomencla/clsNomencla.h>

#include <QLineEdit>

using namespace Qt::StringLiterals;
using namespace prueba;
using nomencla::Alfarje;

using Metodo = bool (clsNomencla::*)(const QString&, QSqlDatabase&);
Q_DECLARE_METATYPE(Metodo)

class PruebaListasSimples : public QObject {
    Q_OBJECT
    QSqlDatabase db;
    clsNomencla nomencla;

private Q_SLOTS:
    void init()
    {
        db = baseNueva(u"t_listas_simples"_s);
        ejecutarSql(db, u"INSERT INTO lsCiudades (id,ciu) VALUES ('1','Quito'),('1','Ambato'),('1','Cuenca'),('2','Quito'),('2','Loja');\n"
                        "INSERT INTO mCliente (id,ciu) VALUES ('1','Cuenca'),('2','Ambato')"_s);
    }

    // Only looking returns False and the same instance comes back reloaded.
    // Blanks refused; a name trimmed and stored literally; a duplicate of any
    // case refused, its text kept; the search selects a row; No keeps it.
    void ciudades()
    {
        QWidget* primera = nullptr;
        alAbrir(u"frmLsCiudad"_s, [&](QWidget* d) { primera = d; });
        QVERIFY(!nomencla.Ciudades(u"1"_s, db));
        ejecutarSql(db, u"INSERT INTO lsCiudades (id,ciu) VALUES ('1','Tena')"_s);
        Cajas cajas;
        alAbrir(u"frmLsCiudad"_s, [&](QWidget* d) {
            auto* gr = control<Alfarje>(d, u"GR"_s);
            auto* tx = control<QLineEdit>(d, u"Text1"_s);
            QCOMPARE(d, primera);
            QCOMPARE(gr->RowCount(), 4);
            teclear(tx, u"   "_s);
            tecla(tx, Qt::Key_Return);
            QCOMPARE(cajas.ultima(), u"Debe especificar el nombre de la ciudad!"_s);

            tx->clear();
            teclear(tx, u"  O'Brien'); --  "_s);
            tecla(tx, Qt::Key_Return);
            QCOMPARE(cajas.ultima(), u"La información se ha guardado correctamente!"_s);
            QCOMPARE(tx->text(), QString());

            teclear(tx, u"quito"_s);
            pulsar(d, u"Bt(0)"_s);
            QCOMPARE(cajas.ultima(), u"La ciudad que intenta guardar ya está registrada en la base de datos!"_s);
            QCOMPARE(tx->text(), u"quito"_s);

            // Nothing selected: no removal, not even a message.
            tx->clear();
            const auto antes = cajas.vistas.size();
            pulsar(d, u"Bt(2)"_s);
            QCOMPARE(cajas.vistas.size(), antes);

            teclear(tx, u"o'b"_s);
            QCOMPARE(gr->Row(), 4);
            cajas.responder(QMessageBox::No);
            pulsar(d, u"Bt(2)"_s);
            QCOMPARE(cajas.ultima(), u"Está seguro que desea quitar la ciudad ''O'Brien'); --'' de la base de datos?"_s);
        });
        QVERIFY(nomencla.Ciudades(u"1"_s, db));
        QCOMPARE(filas(db, u"SELECT ciu FROM lsCiudades WHERE id='1' ORDER BY ciu"_s),
                 (QStringList{u"Ambato"_s, u"Cuenca"_s, u"O'Brien'); --"_s, u"Quito"_s, u"Tena"_s}));
    }

    // Each member: a new row removable at once (contents by the key it was
    // given); the row found by "C" is used by this company and stays, the one
    // found by "A" is used only by another company's record and goes; Esc as
    // its key preview says.
    void quitar_segun_referencias_data()
    {
        QTest::addColumn<QString>("forma");
        QTest::addColumn<Metodo>("metodo");
        QTest::addColumn<QString>("preparar");
        QTest::addColumn<QString>("msgReferencia");
        QTest::addColumn<bool>("escCierra");
        QTest::addColumn<QString>("consulta");
        QTest::addColumn<QStringList>("quedan");
        QTest::newRow("ciudades") << u"frmLsCiudad"_s << &clsNomencla::Ciudades << QString()
                                  << u"No se puede quitar la ciudad ''Cuenca'' debido a que se encuentra asignada a uno o mas clientes!"_s
                                  << true << u"SELECT id, ciu FROM lsCiudades ORDER BY id, ciu"_s
                                  << QStringList{u"1|Cuenca"_s, u"1|Quito"_s, u"2|Loja"_s, u"2|Quito"_s};
        QTest::newRow("departamentos")
            << u"frmLsDepartam"_s << &clsNomencla::Departamentos
            << u"INSERT INTO lsDepartam (id,depa) VALUES ('1','Cuentas'),('1','Ambos'),('2','Ambos');\n"
               "INSERT INTO mvendedor (id,depa) VALUES ('1','Cuentas'),('2','Ambos')"_s
            << u"No se puede quitar el departamento ''Cuentas'' debido a que se encuentra asignado a uno o más empleados!"_s
            << false << u"SELECT id, depa FROM lsDepartam ORDER BY id, depa"_s
            << QStringList{u"1|Cuentas"_s, u"2|Ambos"_s};
        QTest::newRow("contenidos")
            << u"frmLsContenido"_s << &clsNomencla::Contenidos
            << u"INSERT INTO lsContenidos (id,nom) VALUES ('1','Caja'),('1','Ataúd'),('2','Caja');\n"
               "INSERT INTO sOrdenObjetos (id,obj) SELECT '1', cod FROM lsContenidos WHERE id='1' AND nom='Caja';\n"
               "INSERT INTO sOrdenObjetos (id,obj) SELECT '2', cod FROM lsContenidos WHERE id='1' AND nom='Ataúd'"_s
            << u"No se puede quitar el objeto ''Caja'' debido a que se encuentra en uso en una orden!"_s
            << false << u"SELECT id, nom FROM lsContenidos ORDER BY id, nom"_s
            << QStringList{u"1|Caja"_s, u"2|Caja"_s};
    }

    void quitar_segun_referencias()
    {
        QFETCH(QString, forma);
        QFETCH(Metodo, metodo);
        QFETCH(QString, preparar);
        QFETCH(QString, msgReferencia);
        QFETCH(bool, escCierra);
        QFETCH(QString, consulta);
        QFETCH(QStringList, quedan);
        if (!preparar.isEmpty())
            ejecutarSql(db, preparar);
        Cajas cajas;
        alAbrir(forma, [&](QWidget* d) {
            auto* tx = control<QLineEdit>(d, u"Text1"_s);
            const auto quitar = [&](const QString& nombre, bool confirmar) {
                tx->clear();
                teclear(tx, nombre);
                if (confirmar)
                    cajas.responder(QMessageBox::Yes);
                pulsar(d, u"Bt(2)"_s);
            };
            teclear(tx, u"Nuevo"_s);
            pulsar(d, u"Bt(0)"_s);
            quitar(u"Nuevo"_s, true);
            QCOMPARE(cajas.ultima(), u"La operación se realizó correctamente!"_s);
            quitar(u"C"_s, false);
            QCOMPARE(cajas.ultima(), msgReferencia);
            quitar(u"A"_s, true);
            QCOMPARE(cajas.ultima(), u"La operación se realizó correctamente!"_s);
            tecla(tx, Qt::Key_Escape);
            QCOMPARE(d->isVisible(), !escCierra);
        });
        QVERIFY((nomencla.*metodo)(u"1"_s, db));
        QVERIFY(!cajas.sinRespuesta);
        QCOMPARE(filas(db, consulta), quedan);
    }
};

QTEST_MAIN(PruebaListasSimples)
#include "prueba_listas_simples.moc"
