// The lists of plain names, driven through their controls as a clerk would.
#include "tests/support/Prueba.h"

#include "core/Alfarje.h"

#include <nomencla/clsNomencla.h>

#include <QLineEdit>

using namespace Qt::StringLiterals;
using namespace prueba;
using nomencla::Alfarje;

namespace {

// A member with a row "C..." used by a record of this company and a row
// "A..." used only by another company's record.
struct Miembro {
    const char* nombre;
    QString forma;
    bool (clsNomencla::*metodo)(const QString&, QSqlDatabase&);
    QString preparar;
    QString msgReferencia;
    bool escCierra;
    QString consulta; // this company's rows
};

const QList<Miembro> miembros{
    {"ciudades", u"frmLsCiudad"_s, &clsNomencla::Ciudades,
     u"INSERT INTO lsCiudades (id,ciu) VALUES ('1','Cuenca'),('1','Ambato');\n"
     "INSERT INTO mCliente (id,ciu) VALUES ('1','Cuenca'),('2','Ambato')"_s,
     u"No se puede quitar la ciudad ''Cuenca'' debido a que se encuentra asignada a uno o mas clientes!"_s, true,
     u"SELECT ciu FROM lsCiudades WHERE id='1'"_s},
    {"departamentos", u"frmLsDepartam"_s, &clsNomencla::Departamentos,
     u"INSERT INTO lsDepartam (id,depa) VALUES ('1','Cuentas'),('1','Ambos');\n"
     "INSERT INTO mvendedor (id,depa) VALUES ('1','Cuentas'),('2','Ambos')"_s,
     u"No se puede quitar el departamento ''Cuentas'' debido a que se encuentra asignado a uno o más empleados!"_s, false,
     u"SELECT depa FROM lsDepartam WHERE id='1'"_s},
    {"contenidos", u"frmLsContenido"_s, &clsNomencla::Contenidos,
     u"INSERT INTO lsContenidos (id,nom) VALUES ('1','Caja'),('1','Ataúd');\n"
     "INSERT INTO sOrdenObjetos (id,obj) SELECT '1', cod FROM lsContenidos WHERE nom='Caja';\n"
     "INSERT INTO sOrdenObjetos (id,obj) SELECT '2', cod FROM lsContenidos WHERE nom='Ataúd'"_s,
     u"No se puede quitar el objeto ''Caja'' debido a que se encuentra en uso en una orden!"_s, false,
     u"SELECT nom FROM lsContenidos WHERE id='1'"_s},
};

} // namespace

class PruebaListasSimples : public QObject {
    Q_OBJECT
    QSqlDatabase db;
    clsNomencla nomencla;

private Q_SLOTS:
    void init()
    {
        db = baseNueva(u"t_listas_simples"_s);
    }

    // Only looking returns False and the list comes back reloaded;
    // a duplicate of any case is refused, its text kept; with nothing found,
    // no removal and no question; the search selects a row; No keeps it.
    void ciudades()
    {
        ejecutarSql(db, u"INSERT INTO lsCiudades (id,ciu) VALUES ('1','Quito')"_s);
        alAbrir(u"frmLsCiudad"_s, [](QWidget*) {});
        QVERIFY(!nomencla.Ciudades(u"1"_s, db));
        ejecutarSql(db, u"INSERT INTO lsCiudades (id,ciu) VALUES ('1','Tena')"_s);
        Cajas cajas;
        alAbrir(u"frmLsCiudad"_s, [&](QWidget* d) {
            auto* gr = control<Alfarje>(d, u"GR"_s);
            auto* tx = control<QLineEdit>(d, u"Text1"_s);
            QCOMPARE(gr->RowCount(), 2);
            teclear(tx, u"quito"_s);
            pulsar(d, u"Bt(0)"_s);
            QCOMPARE(cajas.ultima(), u"La ciudad que intenta guardar ya está registrada en la base de datos!"_s);
            QCOMPARE(tx->text(), u"quito"_s);

            tx->clear();
            pulsar(d, u"Bt(2)"_s);
            QCOMPARE(cajas.vistas.size(), 1);

            teclear(tx, u"te"_s);
            QCOMPARE(gr->Row(), 1);
            cajas.responder(QMessageBox::No);
            pulsar(d, u"Bt(2)"_s);
            QCOMPARE(cajas.ultima(), u"Está seguro que desea quitar la ciudad ''Tena'' de la base de datos?"_s);
        });
        QVERIFY(!nomencla.Ciudades(u"1"_s, db));
        QCOMPARE(filas(db, u"SELECT ciu FROM lsCiudades ORDER BY ciu"_s), (QStringList{u"Quito"_s, u"Tena"_s}));
    }

    // The row found by "C" is used by this company and stays, the one found
    // by "A" is used only by another company's record and goes; Esc as the
    // member's key preview says.
    void quitar_segun_referencias_data()
    {
        QTest::addColumn<int>("i");
        for (int i = 0; i < miembros.size(); ++i)
            QTest::newRow(miembros[i].nombre) << i;
    }

    void quitar_segun_referencias()
    {
        QFETCH(int, i);
        const Miembro& m = miembros.at(i);
        ejecutarSql(db, m.preparar);
        Cajas cajas;
        alAbrir(m.forma, [&](QWidget* d) {
            auto* tx = control<QLineEdit>(d, u"Text1"_s);
            teclear(tx, u"C"_s);
            pulsar(d, u"Bt(2)"_s);
            QCOMPARE(cajas.ultima(), m.msgReferencia);
            tx->clear();
            teclear(tx, u"A"_s);
            cajas.responder(QMessageBox::Yes);
            pulsar(d, u"Bt(2)"_s);
            QCOMPARE(cajas.ultima(), u"La operación se realizó correctamente!"_s);
            tecla(tx, Qt::Key_Escape);
            QCOMPARE(d->isVisible(), !m.escCierra);
        });
        QVERIFY((nomencla.*m.metodo)(u"1"_s, db));
        QVERIFY(!cajas.sinRespuesta);
        // Only the row the refusal names stays.
        QCOMPARE(filas(db, m.consulta), QStringList{m.msgReferencia.section(u"''"_s, 1, 1)});
    }
};

QTEST_MAIN(PruebaListasSimples)
#include "prueba_listas_simples.moc"
