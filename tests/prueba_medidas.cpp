// Units of measure, driven through their controls as a clerk would.
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
        ejecutarSql(db, u"INSERT INTO aMedidas (id,med,abr) VALUES ('1','Unidad','u'),('1','Caja','cja'),('1','Litro','l'),"
                        "('2','Caja','cja'),('2','Funda','fda');\n"
                        "INSERT INTO mArticulo (id,nom,med) VALUES ('1','Jabón','u'),('2','Arroz','l'),('2','Azúcar','Caja')"_s);
    }

    // Both fields are required, Enter saves nothing, the name alone decides
    // a duplicate.
    void agregar()
    {
        Cajas cajas;
        alAbrir(u"frmMedidas"_s, [&](QWidget* d) {
            auto* t1 = control<QLineEdit>(d, u"Text1"_s);
            auto* t2 = control<QLineEdit>(d, u"Text2"_s);
            t1->insert(u"Galón"_s);
            tecla(t1, Qt::Key_Return);
            QVERIFY(cajas.vistas.isEmpty());
            pulsar(d, u"Bt(0)"_s);
            QCOMPARE(cajas.ultima(), u"Debe especificar el nombre y la abreviación de la medida/presentacion!"_s);
            teclear(t2, u" gal "_s);
            pulsar(d, u"Bt(0)"_s);
            QCOMPARE(cajas.ultima(), u"La información se ha guardado correctamente!"_s);

            teclear(t1, u"LITRO"_s);
            teclear(t2, u"lt"_s);
            pulsar(d, u"Bt(0)"_s);
            QCOMPARE(cajas.ultima(), u"La medida/presentación que intenta guardar ya está registrada en la base de datos!"_s);
            pulsar(d, u"Bt(1)"_s);
            teclear(t1, u"Unidades"_s);
            teclear(t2, u"u"_s);
            pulsar(d, u"Bt(0)"_s);
        });
        QVERIFY(nomencla.Medidas(u"1"_s, db));
        QCOMPARE(filas(db, u"SELECT med, abr FROM aMedidas WHERE id='1' ORDER BY med"_s),
                 (QStringList{u"Caja|cja"_s, u"Galón|gal"_s, u"Litro|l"_s, u"Unidad|u"_s, u"Unidades|u"_s}));
    }

    // Articles point at a unit by its abbreviation, and only this company's
    // articles count. While two units share an abbreviation, either may go;
    // the last one that articles use stays.
    void referencias_por_abreviacion()
    {
        ejecutarSql(db, u"INSERT INTO aMedidas (id,med,abr) VALUES ('1','Unidades','u')"_s);
        Cajas cajas;
        alAbrir(u"frmMedidas"_s, [&](QWidget* d) {
            auto* t1 = control<QLineEdit>(d, u"Text1"_s);
            // Litro's abbreviation is used by another company's article only.
            teclear(t1, u"Lit"_s);
            cajas.responder(QMessageBox::Yes);
            pulsar(d, u"Bt(2)"_s);
            QCOMPARE(cajas.vistas[0].texto, u"Está seguro que desea quitar la medida/presentación ''Litro'' de la base de datos?"_s);
            QCOMPARE(cajas.ultima(), u"La operación se realizó correctamente!"_s);

            teclear(t1, u"Unidad"_s);
            cajas.responder(QMessageBox::Yes);
            pulsar(d, u"Bt(2)"_s);
            QCOMPARE(cajas.ultima(), u"La operación se realizó correctamente!"_s);
            teclear(t1, u"Unidades"_s);
            pulsar(d, u"Bt(2)"_s);
            QCOMPARE(cajas.ultima(), u"No se puede quitar la medida/presentación ''Unidades'' debido a que se encuentra asignada a uno o más artículos!"_s);
        });
        QVERIFY(nomencla.Medidas(u"1"_s, db));
        QVERIFY(!cajas.sinRespuesta);
        QCOMPARE(filas(db, u"SELECT id, med FROM aMedidas ORDER BY id, med"_s),
                 (QStringList{u"1|Caja"_s, u"1|Unidades"_s, u"2|Caja"_s, u"2|Funda"_s}));
    }
};

QTEST_MAIN(PruebaMedidas)
#include "prueba_medidas.moc"
