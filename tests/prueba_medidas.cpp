// Units of measure, driven through their controls as a clerk would.
#include "tests/support/Prueba.h"

#include "core/Alfarje.h"

#include <nomencla/clsNomencla.h>

#include <QLineEdit>

using namespace Qt::StringLiterals;
using namespace prueba;
using nomencla::Alfarje;

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

    // Both fields are required, the name alone decides a duplicate, Enter does
    // nothing, a new unit can be removed at once.
    void agregar_y_quitar()
    {
        Cajas cajas;
        alAbrir(u"frmMedidas"_s, [&](QWidget* d) {
            auto* gr = control<Alfarje>(d, u"GR"_s);
            auto* t1 = control<QLineEdit>(d, u"Text1"_s);
            auto* t2 = control<QLineEdit>(d, u"Text2"_s);
            QCOMPARE(d->windowTitle(), u"Unidades de medida/presentación"_s);
            QCOMPARE(gr->RowCount(), 3);
            QCOMPARE(gr->CellText(0, 1), u"cja"_s);
            QVERIFY(!gr->isColumnHidden(1)); // the abbreviation is shown
            QCOMPARE(t1->maxLength(), 20);
            QCOMPARE(t2->maxLength(), 10);

            t1->insert(u"Galón"_s);
            tecla(t1, Qt::Key_Return);
            QVERIFY(cajas.vistas.isEmpty());
            pulsar(d, u"Bt(0)"_s);
            QCOMPARE(cajas.vistas.last().titulo, u"Error"_s);
            QCOMPARE(cajas.vistas.last().icono, QMessageBox::Critical);
            QCOMPARE(cajas.ultima(), u"Debe especificar el nombre y la abreviación de la medida/presentacion!"_s);
            QCOMPARE(t1->text(), u"Galón"_s);

            teclear(t2, u" gal "_s);
            pulsar(d, u"Bt(0)"_s);
            QCOMPARE(cajas.ultima(), u"La información se ha guardado correctamente!"_s);
            QCOMPARE(gr->RowCount(), 4);
            QCOMPARE(gr->CellText(3, 0), u"Galón"_s); // at the end, not reloaded
            QCOMPARE(gr->CellText(3, 1), u"gal"_s);
            QCOMPARE(t1->text(), QString());
            QCOMPARE(t2->text(), QString());

            // Same name, another abbreviation: refused, the texts stay.
            teclear(t1, u"LITRO"_s);
            teclear(t2, u"lt"_s);
            pulsar(d, u"Bt(0)"_s);
            QCOMPARE(cajas.vistas.last().titulo, u"AVISO"_s);
            QCOMPARE(cajas.ultima(), u"La medida/presentación que intenta guardar ya está registrada en la base de datos!"_s);
            QCOMPARE(t2->text(), u"lt"_s);
            // Nueva clears both boxes.
            pulsar(d, u"Bt(1)"_s);
            QCOMPARE(t1->text(), QString());
            QCOMPARE(t2->text(), QString());

            // Another name with an abbreviation in use is accepted.
            teclear(t1, u"Unidades"_s);
            teclear(t2, u"u"_s);
            pulsar(d, u"Bt(0)"_s);
            QCOMPARE(gr->RowCount(), 5);

            // The new unit goes at once.
            teclear(t1, u"gal"_s);
            cajas.responder(QMessageBox::Yes);
            pulsar(d, u"Bt(2)"_s);
            const int n = int(cajas.vistas.size());
            QCOMPARE(cajas.vistas[n - 2].texto, u"Está seguro que desea quitar la medida/presentación ''Galón'' de la base de datos?"_s);
            QCOMPARE(cajas.vistas[n - 2].icono, QMessageBox::Warning);
            QCOMPARE(cajas.vistas[n - 1].texto, u"La operación se realizó correctamente!"_s);
            QCOMPARE(gr->RowCount(), 4);
        });
        QVERIFY(nomencla.Medidas(u"1"_s, db));
        QCOMPARE(filas(db, u"SELECT med, abr FROM aMedidas WHERE id='1' ORDER BY med"_s),
                 (QStringList{u"Caja|cja"_s, u"Litro|l"_s, u"Unidad|u"_s, u"Unidades|u"_s}));
    }

    // Articles point at a unit by its abbreviation, and only this company's
    // articles count. While two units share an abbreviation, either may go;
    // the last one that articles use stays.
    void referencias_por_abreviacion()
    {
        ejecutarSql(db, u"INSERT INTO aMedidas (id,med,abr) VALUES ('1','Unidades','u')"_s);
        Cajas cajas;
        alAbrir(u"frmMedidas"_s, [&](QWidget* d) {
            auto* gr = control<Alfarje>(d, u"GR"_s);
            auto* t1 = control<QLineEdit>(d, u"Text1"_s);
            // Nothing selected: nothing happens.
            pulsar(d, u"Bt(2)"_s);
            QVERIFY(cajas.vistas.isEmpty());

            // Used only by another company's articles, under this abbreviation or this name.
            teclear(t1, u"Lit"_s);
            cajas.responder(QMessageBox::Yes);
            pulsar(d, u"Bt(2)"_s);
            QCOMPARE(cajas.ultima(), u"La operación se realizó correctamente!"_s);
            teclear(t1, u"Caja"_s);
            cajas.responder(QMessageBox::No);
            pulsar(d, u"Bt(2)"_s);
            QCOMPARE(cajas.vistas.last().titulo, u"CONFIRME"_s);
            QCOMPARE(gr->RowCount(), 3);

            t1->clear();
            teclear(t1, u"Unidad"_s);
            QCOMPARE(gr->CellText(gr->Row(), 0), u"Unidad"_s);
            cajas.responder(QMessageBox::Yes);
            pulsar(d, u"Bt(2)"_s);
            QCOMPARE(cajas.ultima(), u"La operación se realizó correctamente!"_s);
            teclear(t1, u"Unidades"_s);
            pulsar(d, u"Bt(2)"_s);
            QCOMPARE(cajas.vistas.last().titulo, u"AVISO"_s);
            QCOMPARE(cajas.ultima(), u"No se puede quitar la medida/presentación ''Unidades'' debido a que se encuentra asignada a uno o más artículos!"_s);
            QCOMPARE(gr->RowCount(), 2);
            // Without preview Esc in a box leaves the dialog open.
            tecla(t1, Qt::Key_Escape);
            QVERIFY(d->isVisible());
        });
        QVERIFY(nomencla.Medidas(u"1"_s, db));
        QVERIFY(!cajas.sinRespuesta);
        QCOMPARE(filas(db, u"SELECT id, med FROM aMedidas ORDER BY id, med"_s),
                 (QStringList{u"1|Caja"_s, u"1|Unidades"_s, u"2|Caja"_s, u"2|Funda"_s}));
    }
};

QTEST_MAIN(PruebaMedidas)
#include "prueba_medidas.moc"
