// The coded lists (categories, positions, SRI documents),
// driven through their controls as a clerk would, the rows checked after.
#include "tests/prueba_estructura.h"

#include <nomencla/clsNomencla.h>

using namespace Qt::StringLiterals;
using namespace prueba;
using nomencla::Alfarje;

namespace {

// A member whose key the database gives, its code in column `columna`.
struct Miembro {
    const char* nombre;
    QString forma;
    bool (clsNomencla::*metodo)(const QString&, QSqlDatabase&);
    QString tabla;
    QString columna;
    QString msgDuplicado;
};

const QList<Miembro> miembros{
    {"cargos", u"frmLsCargos"_s, &clsNomencla::Cargos, u"Cargos"_s, u"car"_s,
     u"El cargo ya se encuentra registrado en la lista!"_s},
    {"documentos", u"frmLsDocAutSRI"_s, &clsNomencla::DocumentAutorizSRI, u"SRI_Documentos"_s, u"cin"_s,
     u"El tipo de documento ya encuentra registrado en la lista!"_s},
};

} // namespace

class PruebaListasCodificadas : public QObject {
    Q_OBJECT
    QSqlDatabase db;
    clsNomencla nomencla;

private Q_SLOTS:
    void init()
    {
        db = baseNueva(u"t_listas_codificadas"_s);
    }

    // A company's keys follow its own MAX(cod), removed records included; a
    // duplicate of any case is refused; only this company's customers block a
    // removal, which keeps the row with est 0; Esc closes wherever the focus is.
    void categorias()
    {
        ejecutarSql(db, u"INSERT INTO mCatClie (id,cod,cat,des,est) VALUES ('1',1,'AB','desc',1),"
                        "('2',2,'Minorista','otra empresa',1);\n"
                        "INSERT INTO mCliente (id,cat) VALUES ('1',1),('2',2)"_s);
        Cajas cajas;
        alAbrir(u"frmLsCategorias"_s, [&](QWidget* d) {
            auto* gr = control<Alfarje>(d, u"GR"_s);
            escribir(d, u"Tx(0)"_s, u"Contado"_s);
            pulsar(d, u"Bt(0)"_s);
            escribir(d, u"Tx(0)"_s, u"ab"_s);
            pulsar(d, u"Bt(0)"_s);
            QCOMPARE(cajas.ultima(), u"La categoría ya se encuentra registrada en la lista!"_s);

            dobleClic(gr, 0);
            pulsar(d, u"Bt(1)"_s);
            QCOMPARE(cajas.ultima(), u"No se puede quitar la categoría ''AB'' debido a que se encuentra asignada a uno o mas clientes!"_s);

            // Used only by another company's customer.
            dobleClic(gr, 1);
            cajas.responder(QMessageBox::Yes);
            pulsar(d, u"Bt(1)"_s);
            escribir(d, u"Tx(0)"_s, u"Contado"_s);
            pulsar(d, u"Bt(0)"_s);
            tecla(gr, Qt::Key_Escape);
            QVERIFY(!d->isVisible());
        });
        QVERIFY(nomencla.CategoriaClientes(u"1"_s, db));
        QVERIFY(!cajas.sinRespuesta);
        QCOMPARE(filas(db, u"SELECT cod,cat,des,est FROM mCatClie WHERE id='1' ORDER BY cod"_s),
                 (QStringList{u"1|AB|desc|1"_s, u"2|Contado||0"_s, u"3|Contado||1"_s}));
    }

    // The members whose key the database gives: a duplicate refused though
    // another company's code is free to take; a record found by typing
    // removed by a mark.
    void familia_data()
    {
        QTest::addColumn<int>("i");
        for (int i = 0; i < miembros.size(); ++i)
            QTest::newRow(miembros[i].nombre) << i;
    }

    void familia()
    {
        QFETCH(int, i);
        const Miembro& m = miembros.at(i);
        ejecutarSql(db, u"INSERT INTO %1 (id,%2,des,est) VALUES ('2','02','Dos',1),('1','11','Uno',1)"_s
                            .arg(m.tabla, m.columna));
        Cajas cajas;
        alAbrir(m.forma, [&](QWidget* d) {
            auto* gr = control<Alfarje>(d, u"GR"_s);
            escribir(d, u"Tx(0)"_s, u"02"_s);
            escribir(d, u"Tx(1)"_s, u"Dos"_s);
            pulsar(d, u"Bt(0)"_s);
            escribir(d, u"Tx(0)"_s, u"11"_s);
            pulsar(d, u"Bt(0)"_s);
            QCOMPARE(cajas.ultima(), m.msgDuplicado);
            escribir(d, u"Tx(0)"_s, u"02"_s);
            dobleClic(gr, gr->Row());
            cajas.responder(QMessageBox::Yes);
            pulsar(d, u"Bt(1)"_s);
        });
        QVERIFY((nomencla.*m.metodo)(u"1"_s, db));
        QVERIFY(!cajas.sinRespuesta);
        QCOMPARE(filas(db, u"SELECT id,%2,des,est FROM %1 ORDER BY cod"_s.arg(m.tabla, m.columna)),
                 (QStringList{u"2|02|Dos|1"_s, u"1|11|Uno|1"_s, u"1|02|Dos|0"_s}));
    }

    // A position used by an employee of this company stays; nothing changed.
    void cargos_en_uso()
    {
        ejecutarSql(db, u"INSERT INTO Cargos (id,car,des,est) VALUES ('1','Vendedor','',1);\n"
                        "INSERT INTO mvendedor (id,car) SELECT '1', cod FROM Cargos"_s);
        Cajas cajas;
        alAbrir(u"frmLsCargos"_s, [&](QWidget* d) {
            dobleClic(control<Alfarje>(d, u"GR"_s), 0);
            pulsar(d, u"Bt(1)"_s);
        });
        QVERIFY(!nomencla.Cargos(u"1"_s, db));
        QCOMPARE(cajas.ultima(), u"No se puede quitar el cargo ''Vendedor'' debido a que se encuentra asignado a uno o mas empleados!"_s);
    }
};

QTEST_MAIN(PruebaListasCodificadas)
#include "prueba_listas_codificadas.moc"
