// The sub-suppliers dialog driven as a clerk would, the rows checked afterwards.
#include "tests/prueba_estructura.h"

#include <nomencla/clsNomencla.h>

using namespace Qt::StringLiterals;
using namespace prueba;
using nomencla::Alfarje;

class PruebaSubProveedores : public QObject {
    Q_OBJECT
    QSqlDatabase db;
    clsNomencla nomencla;

private Q_SLOTS:
    void init()
    {
        db = baseNueva(u"t_subproveedores"_s);
        ejecutarSql(db, u"INSERT INTO mProveedor (cod,nom,ced) VALUES (1,'Proveedor Uno','0990000000001'),"
                        "(2,'Proveedor Dos','1790000000001');\n"
                        "INSERT INTO SubProveedor (cod,id,prov,cin,ruc,raz,dir,est) VALUES "
                        "(1,'1',2,'A-01','1790012345001','Raz Uno','Dir Uno',1),"
                        "(2,'1',2,'B-02','1790012345','Raz Dos','Dir Dos',1),"
                        "(3,'1',2,'C-03','0991','Raz Tres','Dir Tres',2),"
                        "(4,'2',1,'D-04','0992','Otro','Otro',1),"
                        "(5,'1',1,'E-05','0993','Borrado','x',0)"_s);
    }

    // The tenant's list searched by tax number; a pick shows the picked row
    // although its tax number begins an earlier row's; key 1 is never
    // removed; the edit, the removal and a new one under the supplier.
    void alta_modificacion_y_baja()
    {
        Cajas cajas;
        alAbrir(u"frmSubProveedor"_s, [&](QWidget* d) {
            auto* gr = control<Alfarje>(d, u"GR"_s);
            QCOMPARE(gr->RowCount(), 3);
            teclear(tx(d, 1), u"0991"_s);
            QCOMPARE(gr->Row(), filaCon(gr, u"C-03"_s));

            const int dos = filaCon(gr, u"B-02"_s);
            dobleClic(gr, dos);
            QCOMPARE(gr->Row(), dos);
            tx(d, 2)->setText(u"Raz Dos Cambiada"_s);
            pulsar(d, u"Bt(0)"_s);

            dobleClic(gr, filaCon(gr, u"A-01"_s));
            pulsar(d, u"Bt(1)"_s);
            QCOMPARE(cajas.vistas.size(), 1);
            dobleClic(gr, filaCon(gr, u"C-03"_s));
            cajas.responder(QMessageBox::Yes);
            pulsar(d, u"Bt(1)"_s);
            QCOMPARE(cajas.vistas[1].texto, u"Está seguro que desea quitar al subproveedor ''Dir Tres'' de la base de datos?"_s);

            pulsar(d, u"Bt(0)"_s);
            QCOMPARE(cajas.ultima(), u"Debe ingresar toda la información antes de guardar!"_s);
            tx(d, 0)->setText(u" F-06 "_s);
            tx(d, 1)->setText(u"0991"_s);
            tx(d, 2)->setText(u"Hermanos O'Neil"_s);
            pulsar(d, u"Bt(0)"_s);
            QCOMPARE(cajas.ultima(), u"La información se ha guardado con éxito!"_s);
        });
        QVERIFY(nomencla.SubProveedores(u"1"_s, 1, db));
        QCOMPARE(filas(db, u"SELECT cod,id,prov,cin,ruc,raz,dir,est FROM SubProveedor ORDER BY cod"_s),
                 (QStringList{u"1|1|2|A-01|1790012345001|Raz Uno|Dir Uno|1"_s,
                              u"2|1|2|B-02|1790012345|Raz Dos Cambiada|Dir Dos|1"_s,
                              u"3|1|2|C-03|0991|Raz Tres|Dir Tres|0"_s, u"4|2|1|D-04|0992|Otro|Otro|1"_s,
                              u"5|1|1|E-05|0993|Borrado|x|0"_s, u"6|1|1|F-06|0991|Hermanos O'Neil||1"_s}));
    }

    // A supplier that isn't there is told, and nothing opens.
    void proveedor_inexistente()
    {
        Cajas cajas;
        QVERIFY(!nomencla.SubProveedores(u"1"_s, 99, db));
        QCOMPARE(cajas.vistas.size(), 1);
        QVERIFY(cajas.ultima().contains(u"99"_s));
    }
};

QTEST_MAIN(PruebaSubProveedores)
#include "prueba_subproveedores.moc"
