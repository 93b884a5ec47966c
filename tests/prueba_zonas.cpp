// Zones and places: what the dialog does with places that the maintenance
// tests of every dialog don't see, with the rows checked afterwards.
#include "tests/prueba_estructura.h"

#include <QApplication>

using namespace Qt::StringLiterals;
using namespace prueba;
using nomencla::Alfarje;

namespace {

// A place added with the ordinal already in its box.
void lugar(QWidget* d, const QString& nombre)
{
    tx(d, 2)->insert(nombre); // keys carry Latin letters only
    tecla(tx(d, 3), Qt::Key_Return);
}

} // namespace

class PruebaZonas : public QObject {
    Q_OBJECT
    QSqlDatabase db;
    clsNomencla nomencla;

private Q_SLOTS:
    void init()
    {
        // Norte and Sur have customers; a removed zone holds the highest key.
        db = baseNueva(u"t_zonas"_s);
        ejecutarSql(db, u"INSERT INTO mZonaClie (id,cod,zon,des,est) VALUES ('1',1,'Norte','',1),"
                        "('1',2,'Sur','',1),('1',5,'Vieja','',0);\n"
                        "INSERT INTO mZonaLugar (id,zon,lug,ord,est) VALUES ('1',1,'Carcelén',1,1),"
                        "('1',1,'Cotocollao',2,1),('1',2,'Solanda',1,1);\n"
                        "INSERT INTO mCliente (id,nom,zon,lug) VALUES ('1','A',1,'Carcelén'),('1','D',2,'Solanda')"_s);
    }

    // Pending places go with a pick of a zone. A new zone: name, Enter,
    // ordinal, Enter; repeated names refused; places wait in the grid (one
    // dropped without a question) and are written with the zone under its new
    // key, without ordinal.
    void zona_nueva_con_lugares()
    {
        Cajas cajas;
        alAbrir(u"frmLsZona"_s, [&](QWidget* d) {
            d->activateWindow(); // the focus is real
            QVERIFY(QTest::qWaitForWindowActive(d));
            auto* gr2 = control<Alfarje>(d, u"GR2"_s);
            lugar(d, u"Tababela"_s);
            dobleClic(control<Alfarje>(d, u"GR"_s), 0);
            QCOMPARE(gr2->RowCount(), 2); // Norte's own
            pulsar(d, u"Bt(2)"_s);

            teclear(tx(d, 0), u"Valles"_s);
            tx(d, 2)->setFocus();
            teclear(tx(d, 2), u"Xumbaco"_s);
            tecla(tx(d, 2), Qt::Key_Return);
            QCOMPARE(QApplication::focusWidget(), tx(d, 3));
            tecla(tx(d, 3), Qt::Key_Return);

            lugar(d, u"Cumbayá"_s);
            lugar(d, u"Pifo"_s);
            lugar(d, u" xumbaco "_s);
            QCOMPARE(cajas.ultima(), u"El lugar ya se encuentra registrado en la lista!"_s);
            const auto vistas = cajas.vistas.size();
            clic(d, u"GR2"_s, 2);
            pulsar(d, u"Bt(4)"_s);
            QCOMPARE(cajas.vistas.size(), vistas);
            pulsar(d, u"Bt(0)"_s);
        });
        QVERIFY(nomencla.ZonaClientes(u"1"_s, db));
        // The removed zone's key is not given again.
        QCOMPARE(filas(db, u"SELECT id,cod,zon,est FROM mZonaClie WHERE cod>5"_s), (QStringList{u"1|6|Valles|1"_s}));
        QCOMPARE(filas(db, u"SELECT id,zon,lug,ord,est FROM mZonaLugar WHERE zon=6 ORDER BY lug"_s),
                 (QStringList{u"1|6|Cumbayá|0|1"_s, u"1|6|Xumbaco|0|1"_s}));
    }

    // In a stored zone: a place is written at once, though the search moved
    // the selection while its name was typed; a place or a zone with
    // customers stays; the removal takes the place the question names, by the
    // key its insert gave; a place picked in one zone is not saved under the
    // next.
    void lugares_de_zona_guardada()
    {
        Cajas cajas;
        alAbrir(u"frmLsZona"_s, [&](QWidget* d) {
            auto* gr = control<Alfarje>(d, u"GR"_s);
            dobleClic(gr, 0);
            tx(d, 3)->setText(u"7"_s);
            tx(d, 2)->setFocus();
            teclear(tx(d, 2), u"Cotocollao Bajo"_s);
            tecla(tx(d, 3), Qt::Key_Return);

            clic(d, u"GR2"_s, 0);
            pulsar(d, u"Bt(4)"_s);
            QCOMPARE(cajas.ultima(),
                     u"No se puede quitar el lugar ''Carcelén'' debido a que se encuentra asignado a uno o más clientes!"_s);

            // Picked Cotocollao, then the search moved the selection.
            clic(d, u"GR2"_s, 1);
            tx(d, 2)->setFocus();
            tx(d, 2)->setText(u"Cotocollao B"_s);
            cajas.responder(QMessageBox::Yes);
            pulsar(d, u"Bt(4)"_s);
            QCOMPARE(cajas.vistas[cajas.vistas.size() - 2].texto,
                     u"Está seguro que desea quitar el lugar ''Cotocollao Bajo'' de la base de datos?"_s);

            clic(d, u"GR2"_s, 1);
            dobleClic(gr, 1);
            lugar(d, u"Cotocollao Sur"_s); // the ordinal stays in its box
            pulsar(d, u"Bt(1)"_s);
            QCOMPARE(cajas.ultima(),
                     u"No se puede quitar la zona ''Sur'' debido a que se encuentra asignada a uno o mas clientes!"_s);
        });
        QVERIFY(nomencla.ZonaClientes(u"1"_s, db));
        QCOMPARE(filas(db, u"SELECT zon,lug,ord,est FROM mZonaLugar ORDER BY zon,lug"_s),
                 (QStringList{u"1|Carcelén|1|1"_s, u"1|Cotocollao|2|1"_s, u"1|Cotocollao Bajo|7|0"_s,
                              u"2|Cotocollao Sur|7|1"_s, u"2|Solanda|1|1"_s}));
        QCOMPARE(valor(db, u"SELECT est FROM mZonaClie WHERE zon='Sur'"_s).toInt(), 1);
    }
};

QTEST_MAIN(PruebaZonas)
#include "prueba_zonas.moc"
