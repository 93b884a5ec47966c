// The sub-suppliers dialog: its search, its picks and the supplier it stores.
#include "tests/prueba_estructura.h"

#include <nomencla/clsNomencla.h>

using namespace Qt::StringLiterals;
using namespace prueba;
using nomencla::Alfarje;

class PruebaSubProveedores : public QObject {
    Q_OBJECT
    clsNomencla nomencla;

private Q_SLOTS:
    // The tenant's list searched by tax number; a pick shows the picked row
    // although its tax number begins an earlier row's; key 1 is never
    // removed; an edit keeps its supplier, a new one gets the dialog's, and
    // a supplier that isn't there opens nothing.
    void busqueda_eleccion_y_proveedor()
    {
        QSqlDatabase db = baseNueva(u"t_subproveedores"_s);
        ejecutarSql(db, u"INSERT INTO mProveedor (cod,nom,ced) VALUES (1,'Proveedor Uno','0990000000001');\n"
                        "INSERT INTO SubProveedor (cod,id,prov,cin,ruc,raz,est) VALUES "
                        "(1,'1',2,'A-01','1790012345001','Raz Uno',1),(2,'1',2,'B-02','1790012345','Raz Dos',1),"
                        "(3,'1',2,'C-03','0991','Raz Tres',2),(4,'2',1,'D-04','0992','Otro',1),"
                        "(5,'1',1,'E-05','0993','Borrado',0)"_s);
        Cajas cajas;
        alAbrir(u"frmSubProveedor"_s, [&](QWidget* d) {
            auto* gr = control<Alfarje>(d, u"GR"_s);
            QCOMPARE(gr->RowCount(), 3);
            teclear(tx(d, 1), u"0991"_s);
            QCOMPARE(gr->Row(), filaCon(gr, u"C-03"_s));
            dobleClic(gr, filaCon(gr, u"A-01"_s));
            pulsar(d, u"Bt(1)"_s);
            QVERIFY(cajas.vistas.isEmpty());

            const int dos = filaCon(gr, u"B-02"_s);
            dobleClic(gr, dos);
            QCOMPARE(gr->Row(), dos);
            tx(d, 2)->setText(u"Raz Dos Cambiada"_s);
            pulsar(d, u"Bt(0)"_s);
            tx(d, 0)->setText(u"F-06"_s);
            tx(d, 1)->setText(u"0991"_s);
            tx(d, 2)->setText(u"Nueva"_s);
            pulsar(d, u"Bt(0)"_s);
        });
        QVERIFY(nomencla.SubProveedores(u"1"_s, 1, db));
        QCOMPARE(filas(db, u"SELECT cod,prov,cin,ruc,raz,est FROM SubProveedor WHERE cod IN (1,2) OR cod>5 ORDER BY cod"_s),
                 (QStringList{u"1|2|A-01|1790012345001|Raz Uno|1"_s, u"2|2|B-02|1790012345|Raz Dos Cambiada|1"_s,
                              u"6|1|F-06|0991|Nueva|1"_s}));

        // A supplier that isn't there is told, and nothing opens.
        cajas.limpiar();
        QVERIFY(!nomencla.SubProveedores(u"1"_s, 99, db));
        QCOMPARE(cajas.vistas.size(), 1);
        QVERIFY(cajas.ultima().contains(u"99"_s));
    }
};

QTEST_MAIN(PruebaSubProveedores)
#include "prueba_subproveedores.moc"
