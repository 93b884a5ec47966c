// Zones and places: the life of a place, driven through the dialog, with the
// rows checked afterwards.
#include "tests/codificadas_comun.h"

#include <nomencla/clsNomencla.h>

#include <QApplication>

using namespace Qt::StringLiterals;
using namespace prueba;
using nomencla::Alfarje;

namespace {

// The dialog as the user has it: the active window, so the focus is real.
void activa(QWidget* d)
{
    d->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(d));
}

// A place added with the ordinal already in its box.
void lugar(QWidget* d, const QString& nombre)
{
    caja(d, 2)->insert(nombre); // keys carry Latin letters only
    tecla(caja(d, 3), Qt::Key_Return);
}

// A click on a row of the places: the grid takes the focus and picks it.
void elegirLugar(QWidget* d, int fila)
{
    activa(d); // a message box may have taken the activation
    auto* gr2 = control<Alfarje>(d, u"GR2"_s);
    QTest::mouseClick(gr2->viewport(), Qt::LeftButton, {}, gr2->visualRect(gr2->model()->index(fila, 0)).center());
}

} // namespace

class PruebaZonas : public QObject {
    Q_OBJECT
    QSqlDatabase db;
    clsNomencla nomencla;

private Q_SLOTS:
    void init()
    {
        db = baseNueva(u"t_zonas"_s);
        // Tenant 1: Este (places, no customers), Norte and Sur (customers), a
        // removed zone holding the highest key. Tenant 2 has the same keys and names.
        ejecutarSql(db, u"INSERT INTO mZonaClie (id,cod,zon,des,est) VALUES ('1',1,'Norte','',1),"
                        "('1',2,'Sur','',1),('1',5,'Vieja','',0),('1',4,'Este','',1),('2',1,'Norte','otra',1);\n"
                        "INSERT INTO mZonaLugar (id,zon,lug,ord,est) VALUES ('1',1,'Carcelén',1,1),"
                        "('1',1,'Cotocollao',2,1),('1',1,'El Inca',3,1),('1',2,'Solanda',1,1),"
                        "('1',4,'Puembo',1,1),('2',1,'Carcelén',1,1);\n"
                        "INSERT INTO mCliente (id,nom,zon,lug) VALUES ('1','A',1,'Carcelén'),"
                        "('1','B',2,'Carcelén'),('2','C',1,'Carcelén'),('1','D',2,'Solanda')"_s);
    }

    // Opened and closed: no change. Pending places go with Nuevo and with a
    // pick of a zone. A new zone: the keyboard road (name, Enter, ordinal,
    // Enter); short and repeated names refused; places wait in the grid (one
    // dropped without a question) and are written with the zone under its new
    // key, without ordinal.
    void zona_nueva_con_lugares()
    {
        alAbrir(u"frmLsZona"_s, [](QWidget*) {});
        QVERIFY(!nomencla.ZonaClientes(u"1"_s, db));
        Cajas cajas;
        alAbrir(u"frmLsZona"_s, [&](QWidget* d) {
            activa(d);
            auto* gr2 = control<Alfarje>(d, u"GR2"_s);
            lugar(d, u"Tababela"_s);
            pulsar(d, u"Bt(2)"_s);
            QCOMPARE(gr2->RowCount(), 0);
            lugar(d, u"Tababela"_s);
            dobleClic(control<Alfarje>(d, u"GR"_s), 0);
            QCOMPARE(gr2->RowCount(), 1); // Este's Puembo
            pulsar(d, u"Bt(2)"_s);

            teclear(caja(d, 0), u"Valles"_s);
            caja(d, 2)->setFocus();
            teclear(caja(d, 2), u"X"_s);
            tecla(caja(d, 2), Qt::Key_Return);
            QCOMPARE(QApplication::focusWidget(), caja(d, 3));
            teclear(caja(d, 3), u"a2,-"_s); // digits only, after the 1 it starts with
            QCOMPARE(caja(d, 3)->text(), u"12"_s);
            tecla(caja(d, 3), Qt::Key_Return);
            QCOMPARE(cajas.ultima(), u"Debe especificar el nombre del lugar!"_s);
            teclear(caja(d, 2), u"umbaco"_s);
            tecla(caja(d, 2), Qt::Key_Return);
            tecla(caja(d, 3), Qt::Key_Return);
            activa(d);
            QCOMPARE(QApplication::focusWidget(), caja(d, 2));

            lugar(d, u"Cumbayá"_s);
            lugar(d, u"Pifo"_s);
            lugar(d, u" xumbaco "_s);
            QCOMPARE(cajas.ultima(), u"El lugar ya se encuentra registrado en la lista!"_s);
            const auto vistas = cajas.vistas.size();
            elegirLugar(d, 2);
            pulsar(d, u"Bt(4)"_s);
            QCOMPARE(cajas.vistas.size(), vistas);
            QCOMPARE(valor(db, u"SELECT COUNT(*) FROM mZonaLugar"_s).toInt(), 6);
            pulsar(d, u"Bt(0)"_s);
            QCOMPARE(cajas.ultima(), u"La información se ha guardado con éxito!"_s);
            modoNuevo(d, u"CREANDO NUEVA ZONA"_s);
            QCOMPARE(gr2->RowCount(), 0);
        });
        QVERIFY(nomencla.ZonaClientes(u"1"_s, db));
        // The removed zone's key is not given again.
        QCOMPARE(filas(db, u"SELECT id,cod,zon,est FROM mZonaClie WHERE cod>5"_s), (QStringList{u"1|6|Valles|1"_s}));
        QCOMPARE(filas(db, u"SELECT id,zon,lug,ord,est FROM mZonaLugar WHERE cod>6 ORDER BY lug"_s),
                 (QStringList{u"1|6|Cumbayá|0|1"_s, u"1|6|Xumbaco|0|1"_s}));
    }

    // In a stored zone: a place is written at once with its ordinal and the
    // key the insert gave, though the search moved the selection while its
    // name was typed; a rename reaches this tenant's customers of this zone
    // only; a place with customers stays; the removal takes the place the
    // question names; a place picked in one zone is not saved under the next.
    void lugares_de_zona_guardada()
    {
        Cajas cajas;
        alAbrir(u"frmLsZona"_s, [&](QWidget* d) {
            auto* gr = control<Alfarje>(d, u"GR"_s);
            auto* gr2 = control<Alfarje>(d, u"GR2"_s);
            dobleClic(gr, 1);
            caja(d, 3)->setText(u"7"_s);
            caja(d, 2)->setFocus();
            teclear(caja(d, 2), u"Cotocollao Bajo"_s);
            tecla(caja(d, 3), Qt::Key_Return);
            QCOMPARE(cajas.ultima(), u"El lugar asociado a la zona se ha registrado en la base de datos!"_s);
            QCOMPARE(gr2->CellText(3, 1), valor(db, u"SELECT cod FROM mZonaLugar WHERE lug='Cotocollao Bajo'"_s).toString());

            elegirLugar(d, 0);
            caja(d, 2)->setText(u"Carcelén Alto"_s);
            caja(d, 3)->setText(u"4"_s);
            pulsar(d, u"Bt(5)"_s);
            elegirLugar(d, 0);
            pulsar(d, u"Bt(4)"_s);
            QCOMPARE(cajas.ultima(),
                     u"No se puede quitar el lugar ''Carcelén Alto'' debido a que se encuentra asignado a uno o más clientes!"_s);

            // Picked El Inca, then the search moved the selection.
            elegirLugar(d, 3);
            caja(d, 2)->setFocus();
            caja(d, 2)->setText(u"Cotocollao B"_s);
            cajas.responder(QMessageBox::Yes);
            pulsar(d, u"Bt(4)"_s);
            QCOMPARE(cajas.vistas[cajas.vistas.size() - 2].texto,
                     u"Está seguro que desea quitar el lugar ''Cotocollao Bajo'' de la base de datos?"_s);
            QCOMPARE(cajas.ultima(), u"La operación se realizó correctamente!"_s);

            elegirLugar(d, 1);
            dobleClic(gr, 2);
            lugar(d, u"Cotocollao Sur"_s); // the ordinal stays in its box
        });
        QVERIFY(nomencla.ZonaClientes(u"1"_s, db));
        QCOMPARE(filas(db, u"SELECT id,zon,lug,ord,est FROM mZonaLugar ORDER BY id,zon,lug"_s),
                 (QStringList{u"1|1|Carcelén Alto|4|1"_s, u"1|1|Cotocollao|2|1"_s, u"1|1|Cotocollao Bajo|7|0"_s,
                              u"1|1|El Inca|3|1"_s, u"1|2|Cotocollao Sur|4|1"_s, u"1|2|Solanda|1|1"_s,
                              u"1|4|Puembo|1|1"_s, u"2|1|Carcelén|1|1"_s}));
        QCOMPARE(filas(db, u"SELECT nom,lug FROM mCliente ORDER BY nom"_s),
                 (QStringList{u"A|Carcelén Alto"_s, u"B|Carcelén"_s, u"C|Carcelén"_s, u"D|Solanda"_s}));
    }

    // A zone with customers stays; one with places and no customers goes
    // (its places stay); an update reaches this tenant's zone only.
    void quitar_y_modificar_zona()
    {
        Cajas cajas;
        alAbrir(u"frmLsZona"_s, [&](QWidget* d) {
            auto* gr = control<Alfarje>(d, u"GR"_s);
            dobleClic(gr, 2);
            pulsar(d, u"Bt(1)"_s);
            QCOMPARE(cajas.ultima(),
                     u"No se puede quitar la zona ''Sur'' debido a que se encuentra asignada a uno o mas clientes!"_s);
            dobleClic(gr, 1);
            control<QWidget>(d, u"Tx(1)"_s)->setProperty("text", u"Carcelén y Cotocollao"_s);
            pulsar(d, u"Bt(0)"_s);
            dobleClic(gr, 0);
            cajas.responder(QMessageBox::Yes);
            pulsar(d, u"Bt(1)"_s);
        });
        QVERIFY(nomencla.ZonaClientes(u"1"_s, db));
        QCOMPARE(filas(db, u"SELECT id,cod,zon,des,est FROM mZonaClie ORDER BY id,cod"_s),
                 (QStringList{u"1|1|Norte|Carcelén y Cotocollao|1"_s, u"1|2|Sur||1"_s, u"1|4|Este||0"_s,
                              u"1|5|Vieja||0"_s, u"2|1|Norte|otra|1"_s}));
        QCOMPARE(valor(db, u"SELECT est FROM mZonaLugar WHERE lug='Puembo'"_s).toInt(), 1);
    }

    // A new zone with its places is written whole or not at all: a place
    // insert that fails leaves neither the zone nor any place (else the next
    // key would not be 6), and the pending places wait for another try.
    void todo_o_nada()
    {
        QSqlDatabase otra = otraConexion(db, u"otro_usuario"_s);
        Cajas cajas;
        alAbrir(u"frmLsZona"_s, [&](QWidget* d) {
            teclear(caja(d, 0), u"Oriente"_s);
            lugar(d, u"Puyo"_s);
            lugar(d, u"Tena"_s);
            ejecutarSql(otra, u"RENAME TABLE mZonaLugar TO mZonaLugarAparte"_s);
            pulsar(d, u"Bt(0)"_s);
            ejecutarSql(otra, u"RENAME TABLE mZonaLugarAparte TO mZonaLugar"_s);
            QCOMPARE(cajas.vistas.last().titulo, u"Error de base de datos"_s);
            QCOMPARE(valor(db, u"SELECT COUNT(*) FROM mZonaClie WHERE zon='Oriente'"_s).toInt(), 0);
            pulsar(d, u"Bt(0)"_s);
        });
        QVERIFY(nomencla.ZonaClientes(u"1"_s, db));
        QCOMPARE(filas(db, u"SELECT c.cod,l.lug FROM mZonaClie c JOIN mZonaLugar l ON l.id=c.id AND l.zon=c.cod "
                           "WHERE c.zon='Oriente' ORDER BY l.lug"_s),
                 (QStringList{u"6|Puyo"_s, u"6|Tena"_s}));
    }
};

QTEST_MAIN(PruebaZonas)
#include "prueba_zonas.moc"
