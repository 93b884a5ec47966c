// Units of measure: what is refused, and what keeps a unit from going.
#include "tests/support/Prueba.h"

#include <nomencla/clsNomencla.h>

#include <QLineEdit>

using namespace Qt::StringLiterals;
using namespace prueba;

class PruebaMedidas : public QObject {
    Q_OBJECT
    QSqlDatabase db;
    clsNomencla nomencla;

private Q_SLOTS:
    void init()
    {
        db = baseNueva(u"t_medidas"_s);
        ejecutarSql(db, u"INSERT INTO aMedidas (id,med,abr) VALUES ('1','Unidad','u'),('1','Litro','l');\n"
                        "INSERT INTO mArticulo (id,nom,med) VALUES ('1','Jabón','u')"_s);
    }

    // Both fields are required; the name alone decides a duplicate. Articles
    // point at a unit by its abbreviation: while two units share one, either
    // may go; the last one that articles use stays.
    void agregar_y_quitar()
    {
        Cajas cajas;
        alAbrir(u"frmMedidas"_s, [&](QWidget* d) {
            auto* t1 = control<QLineEdit>(d, u"Text1"_s);
            auto* t2 = control<QLineEdit>(d, u"Text2"_s);
            t1->insert(u"Galón"_s);
            pulsar(d, u"Bt(0)"_s);
            QCOMPARE(cajas.ultima(), u"Debe especificar el nombre y la abreviación de la medida/presentacion!"_s);
            t1->setText(u"LITRO"_s);
            teclear(t2, u"lt"_s);
            pulsar(d, u"Bt(0)"_s);
            QCOMPARE(cajas.ultima(), u"La medida/presentación que intenta guardar ya está registrada en la base de datos!"_s);
            pulsar(d, u"Bt(1)"_s);
            teclear(t1, u"Unidades"_s);
            teclear(t2, u"u"_s);
            pulsar(d, u"Bt(0)"_s);

            teclear(t1, u"Unidad"_s);
            cajas.responder(QMessageBox::Yes);
            pulsar(d, u"Bt(2)"_s);
            QCOMPARE(cajas.vistas[cajas.vistas.size() - 2].texto,
                     u"Está seguro que desea quitar la medida/presentación ''Unidad'' de la base de datos?"_s);
            teclear(t1, u"Unidades"_s);
            pulsar(d, u"Bt(2)"_s);
            QCOMPARE(cajas.ultima(), u"No se puede quitar la medida/presentación ''Unidades'' debido a que se encuentra asignada a uno o más artículos!"_s);
        });
        QVERIFY(nomencla.Medidas(u"1"_s, db));
        QVERIFY(!cajas.sinRespuesta);
        QCOMPARE(filas(db, u"SELECT med, abr FROM aMedidas ORDER BY med"_s), (QStringList{u"Litro|l"_s, u"Unidades|u"_s}));
    }
};

QTEST_MAIN(PruebaMedidas)
#include "prueba_medidas.moc"
