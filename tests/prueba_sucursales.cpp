// The branches dialog: its company list, its search and its refusals.
#include "tests/prueba_estructura.h"

#include <nomencla/clsNomencla.h>

#include <QComboBox>

using namespace Qt::StringLiterals;
using namespace prueba;
using nomencla::Alfarje;

class PruebaSucursales : public QObject {
    Q_OBJECT
    clsNomencla nomencla;

private Q_SLOTS:
    // The combo offers this tenant's active companies and follows a pick; a
    // company no longer offered shows as none and stays the branch's; the address typed is
    // looked for among the cities, yet a pick shows the picked row; key 1 and
    // status 2 can't be removed. A save needs an active company.
    void empresas_busqueda_y_rechazos()
    {
        QSqlDatabase db = baseNueva(u"t_sucursales"_s);
        ejecutarSql(db, u"INSERT INTO empresas (cod,id,emp,est) VALUES "
                        "(1,'1','Andina',1),(2,'1','Bodega Sur',1),(3,'1','Cerrada',0),(4,'2','Otra Empresa',1);\n"
                        "INSERT INTO Sucursales (cod,id,emp,ciu,nom,dir,est) VALUES "
                        "(1,'1','Andina','Quito','Matriz','',1),(2,'1','Andina','Loja','Centro','Machala y Bolívar',2),"
                        "(3,'1','Bodega Sur','Machala','Puerto','',1),(4,'1','Cerrada','Ambato','Vieja','Calle 4',1),"
                        "(5,'2','Otra Empresa','Manta','X','',1),(6,'1','Andina','Zamora','Quitada','',0)"_s);
        Cajas cajas;
        alAbrir(u"frmSucursales"_s, [&](QWidget* d) {
            auto* gr = control<Alfarje>(d, u"GR"_s);
            auto* cmb = control<QComboBox>(d, u"Cmb"_s);
            auto* quitar = control<QWidget>(d, u"Bt(1)"_s);
            QCOMPARE(cmb->count(), 2);
            QCOMPARE(gr->RowCount(), 4);
            teclear(tx(d, 2), u"mach"_s);
            QCOMPARE(gr->Row(), filaCon(gr, u"Machala"_s, 2));

            const int centro = filaCon(gr, u"Centro"_s, 1);
            dobleClic(gr, centro);
            QCOMPARE(gr->Row(), centro);
            QVERIFY(!quitar->isEnabled());
            dobleClic(gr, filaCon(gr, u"Matriz"_s, 1));
            QVERIFY(!quitar->isEnabled());
            dobleClic(gr, filaCon(gr, u"Puerto"_s, 1));
            QVERIFY(quitar->isEnabled());
            QCOMPARE(cmb->currentText(), u"Bodega Sur"_s);

            cmb->setCurrentIndex(0);
            dobleClic(gr, filaCon(gr, u"Vieja"_s, 1));
            QCOMPARE(cmb->currentIndex(), -1);
            pulsar(d, u"Bt(0)"_s);
            dobleClic(gr, filaCon(gr, u"Centro"_s, 1));
            cmb->setCurrentIndex(1);
            pulsar(d, u"Bt(0)"_s);
        });
        QVERIFY(nomencla.Sucursales(u"1"_s, db));
        QCOMPARE(filas(db, u"SELECT emp FROM Sucursales WHERE cod IN (2,4) ORDER BY cod"_s),
                 (QStringList{u"Bodega Sur"_s, u"Cerrada"_s}));
        cajas.limpiar();
        alAbrir(u"frmSucursales"_s, [&](QWidget* d) {
            for (int i = 0; i < 4; ++i)
                tx(d, i)->setText(u"x"_s);
            pulsar(d, u"Bt(0)"_s);
        });
        QVERIFY(!nomencla.Sucursales(u"3"_s, db));
        QCOMPARE(cajas.vistas.at(0).texto, u"Debe especificar el nombre de la empresa"_s);
    }
};

QTEST_MAIN(PruebaSucursales)
#include "prueba_sucursales.moc"
