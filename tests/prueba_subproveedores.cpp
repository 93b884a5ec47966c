// The sub-suppliers dialog: its list, its removal and the supplier it stores.
#include "tests/prueba_estructura.h"

#include <nomencla/clsNomencla.h>

using namespace Qt::StringLiterals;
using namespace prueba;
using nomencla::Alfarje;

class PruebaSubProveedores : public QObject {
    Q_OBJECT
    clsNomencla nomencla;

private Q_SLOTS:
    // The tenant's list; key 1 is never removed; an edit keeps its supplier,
    // a new one gets the dialog's, and a supplier that isn't there is told
    // and opens nothing. The search and the picks are proved with the branches.
    void lista_y_proveedor()
    {
        QSqlDatabase db = baseNueva(u"t_subproveedores"_s);
        ejecutarSql(db, u"INSERT INTO mProveedor (cod,nom,ced) VALUES (1,'Proveedor Uno','0990000000001');\n"
                        "INSERT INTO SubProveedor (cod,id,prov,cin,ruc,raz,est) VALUES "
                        "(1,'1',2,'A-01','0990','Raz Uno',1),(2,'1',2,'B-02','0991','Raz Dos',2),"
                        "(3,'2',1,'C-03','0992','Otro',1),(4,'1',1,'D-04','0993','Borrado',0)"_s);
        Cajas cajas;
        alAbrir(u"frmSubProveedor"_s, [&](QWidget* d) {
            auto* gr = control<Alfarje>(d, u"GR"_s);
            QCOMPARE(gr->RowCount(), 2);
            dobleClic(gr, filaCon(gr, u"A-01"_s));
            pulsar(d, u"Bt(1)"_s);
            QVERIFY(cajas.vistas.isEmpty());
            dobleClic(gr, filaCon(gr, u"B-02"_s));
            tx(d, 2)->setText(u"Raz Dos Cambiada"_s);
            pulsar(d, u"Bt(0)"_s);
            tx(d, 0)->setText(u"E-05"_s);
            tx(d, 1)->setText(u"0991"_s);
            tx(d, 2)->setText(u"Nueva"_s);
            pulsar(d, u"Bt(0)"_s);
        });
        QVERIFY(nomencla.SubProveedores(u"1"_s, 1, db));
        QCOMPARE(filas(db, u"SELECT cod,prov,cin,ruc,raz,est FROM SubProveedor WHERE id='1' AND est>0 ORDER BY cod"_s),
                 (QStringList{u"1|2|A-01|0990|Raz Uno|1"_s, u"2|2|B-02|0991|Raz Dos Cambiada|2"_s,
                              u"5|1|E-05|0991|Nueva|1"_s}));

        cajas.limpiar();
        QVERIFY(!nomencla.SubProveedores(u"1"_s, 99, db));
        QCOMPARE(cajas.vistas.size(), 1);
        QVERIFY(cajas.ultima().contains(u"99"_s));
    }
};

QTEST_MAIN(PruebaSubProveedores)
#include "prueba_subproveedores.moc"
