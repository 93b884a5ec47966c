// The branches dialog driven as a clerk would, the rows checked afterwards.
#include "tests/prueba_estructura.h"

#include <nomencla/clsNomencla.h>

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>

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

    // The combo of active companies, the search over the cities, the inserts.
    void alta_combo_y_busqueda()
    {
        Cajas cajas;
        alAbrir(u"frmSucursales"_s, [&](QWidget* d) {
            auto* gr = control<Alfarje>(d, u"GR"_s);
            auto* cmb = control<QComboBox>(d, u"Cmb"_s);
            QCOMPARE(d->windowTitle(), u"Administración de sucursales"_s);
            QCOMPARE(cmb->count(), 2);
            QCOMPARE(cmb->itemText(1), u"Bodega Sur"_s);
            QCOMPARE(cmb->currentText(), u"Andina"_s);
            QCOMPARE(gr->RowCount(), 4);
            QCOMPARE(gr->CellText(0, 2), u"Ambato"_s);
            QVERIFY(!control<QWidget>(d, u"Bt(1)"_s)->isEnabled());

            pulsar(d, u"Bt(0)"_s);
            QCOMPARE(cajas.vistas.size(), 2);
            QCOMPARE(cajas.vistas[0].texto, u"Debe especificar la ciudad"_s);
            QCOMPARE(cajas.vistas[0].titulo, u"Aviso"_s);
            QCOMPARE(cajas.vistas[1].texto, u"Debe ingresar toda la información antes de guardar!"_s);

            // What is typed in the address is looked for among the cities.
            teclear(tx(d, 2), u"mach"_s);
            QCOMPARE(gr->Row(), filaCon(gr, u"Machala"_s, 2));
            teclear(tx(d, 2), u"zz"_s);
            QCOMPARE(gr->Row(), -1);

            cmb->setCurrentIndex(1);
            tx(d, 0)->setText(u" Cuenca "_s);
            tx(d, 1)->setText(u"O'Higgins"_s);
            tx(d, 2)->setText(u"Av. Solano"_s);
            pulsar(d, u"Bt(0)"_s);
            QCOMPARE(cajas.ultima(), u"La información se ha guardado con éxito!"_s);
            QCOMPARE(cmb->currentText(), u"Bodega Sur"_s);
            QCOMPARE(tx(d, 1)->text(), QString());
            // The same branch again is a second row.
            tx(d, 0)->setText(u"Cuenca"_s);
            tx(d, 1)->setText(u"O'Higgins"_s);
            tx(d, 2)->setText(u"Av. Solano"_s);
            pulsar(d, u"Bt(0)"_s);
            QCOMPARE(gr->RowCount(), 6);
        });
        QVERIFY(nomencla.Sucursales(u"1"_s, db));
        QCOMPARE(filas(db, u"SELECT id,emp,ciu,nom,dir,tel,est FROM Sucursales WHERE cod>6 ORDER BY cod"_s),
                 (QStringList{u"1|Bodega Sur|Cuenca|O'Higgins|Av. Solano||1"_s,
                              u"1|Bodega Sur|Cuenca|O'Higgins|Av. Solano||1"_s}));
    }

    // A pick shows the picked row, whatever the address's search finds; the
    // status decides the removal; a company no longer offered leaves the combo.
    void elegir_modificar_y_quitar()
    {
        Cajas cajas;
        alAbrir(u"frmSucursales"_s, [&](QWidget* d) {
            auto* gr = control<Alfarje>(d, u"GR"_s);
            auto* cmb = control<QComboBox>(d, u"Cmb"_s);
            auto* quitar = control<QWidget>(d, u"Bt(1)"_s);

            const int centro = filaCon(gr, u"Centro"_s, 1);
            dobleClic(gr, centro);
            QCOMPARE(gr->Row(), centro);
            QCOMPARE(tx(d, 0)->text(), u"Loja"_s);
            QCOMPARE(tx(d, 2)->text(), u"Machala y Bolívar"_s);
            QCOMPARE(tx(d, 3)->text(), u"07111"_s);
            QVERIFY(!quitar->isEnabled()); // status 2
            QCOMPARE(control<QLabel>(d, u"Label2"_s)->text(), u"MODIFICANDO SUCURSAL EXISTENTE"_s);
            tx(d, 1)->setText(u"Centro Loja"_s);
            pulsar(d, u"Bt(0)"_s);
            QCOMPARE(cajas.ultima(), u"La información se ha guardado con éxito!"_s);
            QCOMPARE(control<QLabel>(d, u"Label2"_s)->text(), u"CREANDO NUEVA SUCURSAL"_s);

            dobleClic(gr, filaCon(gr, u"Matriz"_s, 1));
            QVERIFY(!quitar->isEnabled()); // key 1

            dobleClic(gr, filaCon(gr, u"Puerto"_s, 1));
            QVERIFY(quitar->isEnabled());
            QCOMPARE(cmb->currentText(), u"Bodega Sur"_s);
            cajas.responder(QMessageBox::No);
            pulsar(d, u"Bt(1)"_s);
            QCOMPARE(cajas.ultima(), u"Está seguro que desea quitar la sucursal ''Puerto'' de la base de datos?"_s);
            QCOMPARE(gr->RowCount(), 4);
            cajas.responder(QMessageBox::Yes);
            pulsar(d, u"Bt(1)"_s);
            QCOMPARE(cajas.ultima(), u"La operación se realizó correctamente!"_s);
            QCOMPARE(gr->RowCount(), 3);
            QVERIFY(!quitar->isEnabled());

            // The branch of a removed company: the rest of the row comes, the combo stays.
            cmb->setCurrentIndex(0);
            dobleClic(gr, filaCon(gr, u"Vieja"_s, 1));
            QCOMPARE(cmb->currentText(), u"Andina"_s);
            QCOMPARE(tx(d, 1)->text(), u"Vieja"_s);
            QCOMPARE(tx(d, 3)->text(), u"03"_s);
            pulsar(d, u"Bt(0)"_s);
        });
        QVERIFY(nomencla.Sucursales(u"1"_s, db));
        QCOMPARE(filas(db, u"SELECT cod,emp,ciu,nom,dir,tel,est FROM Sucursales WHERE cod IN (2,3,4) ORDER BY cod"_s),
                 (QStringList{u"2|Andina|Loja|Centro Loja|Machala y Bolívar|07111|2"_s,
                              u"3|Bodega Sur|Machala|Puerto|Av. 25 de Junio|07999|0"_s,
                              u"4|Andina|Ambato|Vieja|Calle 4|03|1"_s}));
        QCOMPARE(valor(db, u"SELECT emp FROM Sucursales WHERE cod=5"_s).toString(), u"Otra Empresa"_s);
    }

    // A tenant without an active company can't store a branch.
    void sin_empresas_activas()
    {
        Cajas cajas;
        alAbrir(u"frmSucursales"_s, [&](QWidget* d) {
            QCOMPARE(control<QComboBox>(d, u"Cmb"_s)->count(), 0);
            for (int i = 0; i < 4; ++i)
                tx(d, i)->setText(u"x"_s);
            pulsar(d, u"Bt(0)"_s);
            QCOMPARE(cajas.vistas.size(), 2);
            QCOMPARE(cajas.vistas[0].texto, u"Debe especificar el nombre de la empresa"_s);
            QCOMPARE(cajas.vistas[1].titulo, u"Error"_s);
        });
        QVERIFY(!nomencla.Sucursales(u"3"_s, db));
        QCOMPARE(valor(db, u"SELECT COUNT(*) FROM Sucursales WHERE id='3'"_s).toInt(), 0);
    }
};

QTEST_MAIN(PruebaSucursales)
#include "prueba_sucursales.moc"
