// The lists of plain names, driven through their controls as a clerk would.
#include "tests/prueba_estructura.h"

#include <nomencla/clsNomencla.h>

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
    QString msgDuplicado;
    QString msgReferencia;
    QString consulta; // this company's rows
};

const QList<Miembro> miembros{
    {"ciudades", u"frmLsCiudad"_s, &clsNomencla::Ciudades,
     u"INSERT INTO lsCiudades (id,ciu) VALUES ('1','Cuenca'),('1','Ambato');\n"
     "INSERT INTO mCliente (id,ciu) VALUES ('1','Cuenca'),('2','Ambato')"_s,
     u"La ciudad que intenta guardar ya está registrada en la base de datos!"_s,
     u"No se puede quitar la ciudad ''Cuenca'' debido a que se encuentra asignada a uno o mas clientes!"_s,
     u"SELECT ciu FROM lsCiudades WHERE id='1'"_s},
    {"departamentos", u"frmLsDepartam"_s, &clsNomencla::Departamentos,
     u"INSERT INTO lsDepartam (id,depa) VALUES ('1','Cuentas'),('1','Ambos');\n"
     "INSERT INTO mvendedor (id,depa) VALUES ('1','Cuentas'),('2','Ambos')"_s,
     u"El departamento que intenta guardar ya está registrado en la base de datos!"_s,
     u"No se puede quitar el departamento ''Cuentas'' debido a que se encuentra asignado a uno o más empleados!"_s,
     u"SELECT depa FROM lsDepartam WHERE id='1'"_s},
    {"contenidos", u"frmLsContenido"_s, &clsNomencla::Contenidos,
     u"INSERT INTO lsContenidos (id,nom) VALUES ('1','Caja'),('1','Ataúd');\n"
     "INSERT INTO sOrdenObjetos (id,obj) SELECT '1', cod FROM lsContenidos WHERE nom='Caja';\n"
     "INSERT INTO sOrdenObjetos (id,obj) SELECT '2', cod FROM lsContenidos WHERE nom='Ataúd'"_s,
     u"El objeto que intenta guardar ya está registrado en la base de datos!"_s,
     u"No se puede quitar el objeto ''Caja'' debido a que se encuentra en uso en una orden!"_s,
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

    // For each member: with nothing found, nothing is asked; a duplicate of
    // any case is refused, its text kept; the row it finds is used by this
    // company and stays, the one found by "A" is used only by another
    // company's record and goes.
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
        const QString enUso = m.msgReferencia.section(u"''"_s, 1, 1);
        ejecutarSql(db, m.preparar);
        Cajas cajas;
        alAbrir(m.forma, [&](QWidget* d) {
            auto* tx = control<QLineEdit>(d, u"Text1"_s);
            pulsar(d, u"Bt(2)"_s);
            QVERIFY(cajas.vistas.isEmpty());
            teclear(tx, enUso.toLower());
            pulsar(d, u"Bt(0)"_s);
            QCOMPARE(cajas.ultima(), m.msgDuplicado);
            QCOMPARE(tx->text(), enUso.toLower());
            pulsar(d, u"Bt(2)"_s);
            QCOMPARE(cajas.ultima(), m.msgReferencia);
            tx->clear();
            teclear(tx, u"A"_s);
            cajas.responder(QMessageBox::Yes);
            pulsar(d, u"Bt(2)"_s);
        });
        QVERIFY((nomencla.*m.metodo)(u"1"_s, db));
        QVERIFY(!cajas.sinRespuesta);
        QCOMPARE(filas(db, m.consulta), QStringList{enUso});
    }
};

QTEST_MAIN(PruebaListasSimples)
#include "prueba_listas_simples.moc"
