// The branches dialog driven as a clerk would, the rows checked afterwards.
#include "tests/prueba_estructura.h"

#include <nomencla/clsNomencla.h>

#include <QComboBox>

using namespace Qt::StringLiterals;
using namespace prueba;
using nomencla::Alfarje;

class PruebaSucursales : public QObject {
    Q_OBJECT
    QSqlDatabase db;
    clsNomencla nomencla;

private Q_SLOTS:
    void init()
    {
        db = baseNueva(u"t_sucursales"_s);
        ejecutarSql(db, u"INSERT INTO empresas (cod,id,emp,est) VALUES "
                        "(1,'1','Andina',1),(2,'1','Bodega Sur',1),(3,'1','Cerrada',0),(4,'2','Otra Empresa',1);\n"
                        "INSERT INTO Sucursales (cod,id,emp,ciu,nom,dir,tel,est) VALUES "
                        "(1,'1','Andina','Quito','Matriz','Av. Amazonas','022',1),"
                        "(2,'1','Andina','Loja','Centro','Machala y Bolívar','07111',2),"
                        "(3,'1','Bodega Sur','Machala','Puerto','Av. 25 de Junio','07999',1),"
                        "(4,'1','Cerrada','Ambato','Vieja','Calle 4','03',1),"
                        "(5,'2','Otra Empresa','Manta','X','Calle 5','05',1),"
                        "(6,'1','Andina','Zamora','Quitada','Calle 6','06',0)"_s);
    }

    // The combo offers this tenant's active companies; the address typed is
    // looked for among the cities, yet a pick shows the picked row; key 1 and
    // status 2 can't be removed; a company no longer offered leaves the combo
    // as it was; the other tenant's branch is untouched.
    void alta_modificacion_y_baja()
    {
        Cajas cajas;
        alAbrir(u"frmSucursales"_s, [&](QWidget* d) {
            auto* gr = control<Alfarje>(d, u"GR"_s);
            auto* cmb = control<QComboBox>(d, u"Cmb"_s);
            auto* quitar = control<QWidget>(d, u"Bt(1)"_s);
            QCOMPARE(cmb->count(), 2);
            QCOMPARE(gr->RowCount(), 4);
            teclear(tx(d, 2), u"mach"_s);
            QCOMPARE(gr->Row(), filaCon(gr, u"Machala"_s, 2));
            teclear(tx(d, 2), u"zz"_s);
            QCOMPARE(gr->Row(), -1);

            const int centro = filaCon(gr, u"Centro"_s, 1);
            dobleClic(gr, centro);
            QCOMPARE(gr->Row(), centro);
            QVERIFY(!quitar->isEnabled());
            tx(d, 1)->setText(u"Centro Loja"_s);
            pulsar(d, u"Bt(0)"_s);
            dobleClic(gr, filaCon(gr, u"Matriz"_s, 1));
            QVERIFY(!quitar->isEnabled());

            dobleClic(gr, filaCon(gr, u"Puerto"_s, 1));
            QCOMPARE(cmb->currentText(), u"Bodega Sur"_s);
            cajas.responder(QMessageBox::No);
            pulsar(d, u"Bt(1)"_s);
            QCOMPARE(cajas.ultima(), u"Está seguro que desea quitar la sucursal ''Puerto'' de la base de datos?"_s);
            cajas.responder(QMessageBox::Yes);
            pulsar(d, u"Bt(1)"_s);

            cmb->setCurrentIndex(0);
            dobleClic(gr, filaCon(gr, u"Vieja"_s, 1));
            pulsar(d, u"Bt(0)"_s);

            pulsar(d, u"Bt(0)"_s);
            QCOMPARE(cajas.ultima(), u"Debe ingresar toda la información antes de guardar!"_s);
            QCOMPARE(cajas.vistas[cajas.vistas.size() - 2].texto, u"Debe especificar la ciudad"_s);
            cmb->setCurrentIndex(1);
            tx(d, 0)->setText(u" Cuenca "_s);
            tx(d, 1)->setText(u"O'Higgins"_s);
            tx(d, 2)->setText(u"Av. Solano"_s);
            pulsar(d, u"Bt(0)"_s);
            QCOMPARE(cajas.ultima(), u"La información se ha guardado con éxito!"_s);
        });
        QVERIFY(nomencla.Sucursales(u"1"_s, db));
        QCOMPARE(filas(db, u"SELECT cod,id,emp,ciu,nom,dir,tel,est FROM Sucursales WHERE cod<>6 ORDER BY cod"_s),
                 (QStringList{u"1|1|Andina|Quito|Matriz|Av. Amazonas|022|1"_s,
                              u"2|1|Andina|Loja|Centro Loja|Machala y Bolívar|07111|2"_s,
                              u"3|1|Bodega Sur|Machala|Puerto|Av. 25 de Junio|07999|0"_s,
                              u"4|1|Andina|Ambato|Vieja|Calle 4|03|1"_s, u"5|2|Otra Empresa|Manta|X|Calle 5|05|1"_s,
                              u"7|1|Bodega Sur|Cuenca|O'Higgins|Av. Solano||1"_s}));
    }

    // A tenant without an active company can't store a branch.
    void sin_empresas_activas()
    {
        Cajas cajas;
        alAbrir(u"frmSucursales"_s, [&](QWidget* d) {
            for (int i = 0; i < 4; ++i)
                tx(d, i)->setText(u"x"_s);
            pulsar(d, u"Bt(0)"_s);
            QCOMPARE(cajas.vistas[0].texto, u"Debe especificar el nombre de la empresa"_s);
        });
        QVERIFY(!nomencla.Sucursales(u"3"_s, db));
        QCOMPARE(valor(db, u"SELECT COUNT(*) FROM Sucursales WHERE id='3'"_s).toInt(), 0);
    }
};

QTEST_MAIN(PruebaSucursales)
#include "prueba_sucursales.moc"
