// Zones and places: the life of a place, driven through the dialog, with the
// rows checked afterwards.
#include "tests/codificadas_comun.h"

#include "catalogues/frmLsZona.h"

#include <nomencla/clsNomencla.h>

#include <QApplication>
#include <QLineEdit>

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

nomencla::frmLsZona* zona(QWidget* d)
{
    return qobject_cast<nomencla::frmLsZona*>(d);
}

// A place typed as the user would: name, Enter, ordinal, Enter.
void lugar(QWidget* d, const QString& nombre, const QString& ordinal = {})
{
    caja(d, 2)->setFocus();
    caja(d, 2)->insert(nombre); // keys carry Latin letters only
    tecla(caja(d, 2), Qt::Key_Return);
    if (!ordinal.isNull()) {
        caja(d, 3)->clear();
        teclear(caja(d, 3), ordinal);
    }
    tecla(caja(d, 3), Qt::Key_Return);
}

// A click on a row of the places: the grid takes the focus and picks it.
void elegirLugar(QWidget* d, int fila)
{
    activa(d); // a message box may have taken the activation
    auto* gr2 = control<Alfarje>(d, u"GR2"_s);
    QTest::mouseClick(gr2->viewport(), Qt::LeftButton, {}, gr2->visualRect(gr2->model()->index(fila, 0)).center());
}

QStringList celdas(Alfarje* gr, int columna)
{
    QStringList r;
    for (int f = 0; f < gr->RowCount(); ++f)
        r << gr->CellText(f, columna);
    return r;
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

    // A new zone: places wait with key 0 (one dropped on the way) and are
    // written with the zone under its new key, without ordinal; the keyboard
    // road Enter - ordinal - Enter; short and repeated names refused.
    void zona_nueva_con_lugares()
    {
        Cajas cajas;
        alAbrir(u"frmLsZona"_s, [&](QWidget* d) {
            activa(d);
            auto* gr2 = control<Alfarje>(d, u"GR2"_s);
            QCOMPARE(d->windowTitle(), u"Administración de zónas de clientes"_s);
            modoNuevo(d, u"CREANDO NUEVA ZONA"_s);
            QCOMPARE(caja(d, 3)->text(), u"1"_s);
            QCOMPARE(control<Alfarje>(d, u"GR"_s)->RowCount(), 3);

            teclear(caja(d, 0), u"Valles"_s);
            caja(d, 2)->setFocus();
            teclear(caja(d, 2), u"X"_s);
            tecla(caja(d, 2), Qt::Key_Return);
            QCOMPARE(QApplication::focusWidget(), caja(d, 3));
            teclear(caja(d, 3), u"a2,-"_s); // digits only
            QCOMPARE(caja(d, 3)->text(), u"12"_s);
            tecla(caja(d, 3), Qt::Key_Return);
            QCOMPARE(cajas.vistas.last().titulo, u"Error"_s);
            QCOMPARE(cajas.ultima(), u"Debe especificar el nombre del lugar!"_s);
            QCOMPARE(caja(d, 3)->text(), u"12"_s); // Enter typed nothing
            QCOMPARE(gr2->RowCount(), 0);

            teclear(caja(d, 2), u"umbaco"_s);
            tecla(caja(d, 2), Qt::Key_Return);
            tecla(caja(d, 3), Qt::Key_Return);
            QCOMPARE(caja(d, 2)->text(), QString());
            activa(d);
            QCOMPARE(QApplication::focusWidget(), caja(d, 2));
            lugar(d, u"Cumbayá"_s, u"3"_s);
            lugar(d, u"Pifo"_s);
            lugar(d, u" xumbaco "_s);
            QCOMPARE(cajas.vistas.last().titulo, u"Aviso"_s);
            QCOMPARE(cajas.ultima(), u"El lugar ya se encuentra registrado en la lista!"_s);
            QCOMPARE(celdas(gr2, 0), (QStringList{u"Xumbaco"_s, u"Cumbayá"_s, u"Pifo"_s}));
            QCOMPARE(celdas(gr2, 1), (QStringList{u"0"_s, u"0"_s, u"0"_s}));
            QCOMPARE(valor(db, u"SELECT COUNT(*) FROM mZonaLugar WHERE zon>4"_s).toInt(), 0);

            // A pending row goes without a question.
            const int antes = int(cajas.vistas.size());
            elegirLugar(d, 2);
            QCOMPARE(caja(d, 2)->text(), u"Pifo"_s);
            QCOMPARE(zona(d)->codigoLugar(), 0);
            pulsar(d, u"Bt(4)"_s);
            QCOMPARE(int(cajas.vistas.size()), antes);
            QCOMPARE(celdas(gr2, 0), (QStringList{u"Xumbaco"_s, u"Cumbayá"_s}));

            pulsar(d, u"Bt(0)"_s);
            QCOMPARE(cajas.ultima(), u"La información se ha guardado con éxito!"_s);
            modoNuevo(d, u"CREANDO NUEVA ZONA"_s);
            QCOMPARE(gr2->RowCount(), 0);
            QCOMPARE(caja(d, 3)->text(), u"1"_s);
        });
        QVERIFY(nomencla.ZonaClientes(u"1"_s, db));
        // The removed zone's key is not given again.
        QCOMPARE(filas(db, u"SELECT id,cod,zon,est FROM mZonaClie WHERE cod=6"_s), (QStringList{u"1|6|Valles|1"_s}));
        QCOMPARE(filas(db, u"SELECT id,zon,lug,ord,est FROM mZonaLugar WHERE zon=6 ORDER BY lug"_s),
                 (QStringList{u"1|6|Cumbayá|0|1"_s, u"1|6|Xumbaco|0|1"_s}));

        // The next opening shows them sorted by name.
        QStringList vistos;
        alAbrir(u"frmLsZona"_s, [&](QWidget* d) {
            activa(d);
            auto* gr = control<Alfarje>(d, u"GR"_s);
            dobleClic(gr, gr->FindRow(u"Valles"_s, 0, 0));
            modoExistente(d, u"MODIFICANDO ZONA EXISTENTE"_s);
            vistos = celdas(control<Alfarje>(d, u"GR2"_s), 0);
        });
        QVERIFY(!nomencla.ZonaClientes(u"1"_s, db));
        QCOMPARE(vistos, (QStringList{u"Cumbayá"_s, u"Xumbaco"_s}));
    }

    // Nuevo and a pick of a zone drop the pending rows; nothing is written.
    void pendientes_descartados()
    {
        const QStringList antes = filas(db, u"SELECT * FROM mZonaLugar ORDER BY cod"_s);
        Cajas cajas;
        alAbrir(u"frmLsZona"_s, [&](QWidget* d) {
            activa(d);
            auto* gr = control<Alfarje>(d, u"GR"_s);
            auto* gr2 = control<Alfarje>(d, u"GR2"_s);
            lugar(d, u"Tababela"_s);
            QCOMPARE(gr2->RowCount(), 1);
            pulsar(d, u"Bt(2)"_s);
            QCOMPARE(gr2->RowCount(), 0);
            lugar(d, u"Tababela"_s);
            dobleClic(gr, 0);
            QCOMPARE(celdas(gr2, 0), (QStringList{u"Puembo"_s}));
        });
        QVERIFY(nomencla.ZonaClientes(u"1"_s, db)); // a pending place counts as a change
        QCOMPARE(filas(db, u"SELECT * FROM mZonaLugar ORDER BY cod"_s), antes);
        QCOMPARE(valor(db, u"SELECT COUNT(*) FROM mZonaClie"_s).toInt(), 5);
    }

    // In a stored zone: a place is written at once with its ordinal and the
    // key the insert gave; the search of Tx(2) picks nothing; a rename reaches
    // this tenant's customers of this zone only; a place with customers stays;
    // the removal takes the place the question names.
    void lugares_de_zona_guardada()
    {
        Cajas cajas;
        alAbrir(u"frmLsZona"_s, [&](QWidget* d) {
            activa(d);
            auto* gr = control<Alfarje>(d, u"GR"_s);
            auto* gr2 = control<Alfarje>(d, u"GR2"_s);
            dobleClic(gr, 1);
            QCOMPARE(caja(d, 0)->text(), u"Norte"_s);
            QCOMPARE(celdas(gr2, 0), (QStringList{u"Carcelén"_s, u"Cotocollao"_s, u"El Inca"_s}));

            lugar(d, u"Pomasqui"_s, u"7"_s);
            QCOMPARE(cajas.vistas.last().titulo, u"Lugar agregado"_s);
            QCOMPARE(cajas.ultima(), u"El lugar asociado a la zona se ha registrado en la base de datos!"_s);
            QCOMPARE(gr2->CellText(3, 0), u"Pomasqui"_s);
            QCOMPARE(gr2->CellText(3, 1),
                     valor(db, u"SELECT cod FROM mZonaLugar WHERE lug='Pomasqui'"_s).toString());
            QCOMPARE(caja(d, 3)->text(), u"7"_s); // the ordinal stays for the next place

            // Typing moves the selection but picks nothing.
            caja(d, 2)->setFocus();
            teclear(caja(d, 2), u"Coto"_s);
            QCOMPARE(gr2->Row(), 1);
            QCOMPARE(zona(d)->codigoLugar(), 0);
            caja(d, 2)->clear();

            elegirLugar(d, 0);
            QCOMPARE(caja(d, 2)->text(), u"Carcelén"_s);
            QVERIFY(zona(d)->codigoLugar() > 0);
            caja(d, 2)->clear();
            QCOMPARE(zona(d)->codigoLugar(), 0); // emptied by hand: a new place next
            elegirLugar(d, 1);
            elegirLugar(d, 0);
            caja(d, 2)->setText(u"Carcelén Alto"_s);
            caja(d, 3)->setText(u"4"_s);
            pulsar(d, u"Bt(5)"_s);
            QCOMPARE(cajas.ultima(), u"La información se ha guardado con éxito en la base de datos!"_s);
            QCOMPARE(celdas(gr2, 0), (QStringList{u"Carcelén Alto"_s, u"Cotocollao"_s, u"El Inca"_s, u"Pomasqui"_s}));

            // A place with customers stays.
            elegirLugar(d, 0);
            pulsar(d, u"Bt(4)"_s);
            QCOMPARE(cajas.vistas.last().titulo, u"AVISO"_s);
            QCOMPARE(cajas.ultima(),
                     u"No se puede quitar el lugar ''Carcelén Alto'' debido a que se encuentra asignado a uno o más clientes!"_s);

            // Picked El Inca, then the search moved the selection to Pomasqui:
            // the question names Pomasqui, and Pomasqui goes.
            elegirLugar(d, 2);
            caja(d, 2)->setFocus();
            caja(d, 2)->setText(u"Pom"_s);
            QCOMPARE(gr2->Row(), 3);
            cajas.responder(QMessageBox::Yes);
            pulsar(d, u"Bt(4)"_s);
            QCOMPARE(cajas.vistas[cajas.vistas.size() - 2].texto,
                     u"Está seguro que desea quitar el lugar ''Pomasqui'' de la base de datos?"_s);
            QCOMPARE(cajas.ultima(), u"La operación se realizó correctamente!"_s);
            QCOMPARE(celdas(gr2, 0), (QStringList{u"Carcelén Alto"_s, u"Cotocollao"_s, u"El Inca"_s}));
        });
        QVERIFY(nomencla.ZonaClientes(u"1"_s, db));
        QCOMPARE(filas(db, u"SELECT id,zon,lug,ord,est FROM mZonaLugar ORDER BY id,zon,lug"_s),
                 (QStringList{u"1|1|Carcelén Alto|4|1"_s, u"1|1|Cotocollao|2|1"_s, u"1|1|El Inca|3|1"_s,
                              u"1|1|Pomasqui|7|0"_s, u"1|2|Solanda|1|1"_s, u"1|4|Puembo|1|1"_s,
                              u"2|1|Carcelén|1|1"_s}));
        QCOMPARE(filas(db, u"SELECT nom,lug FROM mCliente ORDER BY nom"_s),
                 (QStringList{u"A|Carcelén Alto"_s, u"B|Carcelén"_s, u"C|Carcelén"_s, u"D|Solanda"_s}));
    }

    // A place picked in one zone is not written under the zone picked next.
    void lugar_de_otra_zona()
    {
        Cajas cajas;
        alAbrir(u"frmLsZona"_s, [&](QWidget* d) {
            activa(d);
            auto* gr = control<Alfarje>(d, u"GR"_s);
            dobleClic(gr, 1);
            elegirLugar(d, 1);
            QCOMPARE(caja(d, 2)->text(), u"Cotocollao"_s);
            dobleClic(gr, 2);
            QCOMPARE(caja(d, 0)->text(), u"Sur"_s);
            QCOMPARE(caja(d, 2)->text(), QString());
            QCOMPARE(zona(d)->codigoLugar(), 0);
            lugar(d, u"Cotocollao Sur"_s);
            QCOMPARE(cajas.vistas.last().titulo, u"Lugar agregado"_s);
        });
        QVERIFY(nomencla.ZonaClientes(u"1"_s, db));
        QCOMPARE(filas(db, u"SELECT zon,lug FROM mZonaLugar WHERE lug LIKE 'Cotocollao%' ORDER BY zon"_s),
                 (QStringList{u"1|Cotocollao"_s, u"2|Cotocollao Sur"_s}));
    }

    // A zone with customers stays; one with places and no customers goes
    // (its places stay); an update reaches this tenant's zone only.
    void quitar_y_modificar_zona()
    {
        Cajas cajas;
        alAbrir(u"frmLsZona"_s, [&](QWidget* d) {
            activa(d);
            auto* gr = control<Alfarje>(d, u"GR"_s);
            dobleClic(gr, 2);
            pulsar(d, u"Bt(1)"_s);
            QCOMPARE(cajas.vistas.last().titulo, u"AVISO"_s);
            QCOMPARE(cajas.ultima(),
                     u"No se puede quitar la zona ''Sur'' debido a que se encuentra asignada a uno o mas clientes!"_s);
            modoExistente(d, u"MODIFICANDO ZONA EXISTENTE"_s);

            dobleClic(gr, 1);
            control<QWidget>(d, u"Tx(1)"_s)->setProperty("text", u"Carcelén y Cotocollao"_s);
            pulsar(d, u"Bt(0)"_s);
            QCOMPARE(cajas.ultima(), u"La información se ha guardado con éxito!"_s);

            dobleClic(gr, 0);
            QCOMPARE(caja(d, 0)->text(), u"Este"_s);
            cajas.responder(QMessageBox::Yes);
            pulsar(d, u"Bt(1)"_s);
            QCOMPARE(cajas.vistas[cajas.vistas.size() - 2].texto,
                     u"Está seguro que desea quitar la zona ''Este'' de la base de datos?"_s);
            QCOMPARE(cajas.ultima(), u"La operación se realizó correctamente!"_s);
            QCOMPARE(gr->RowCount(), 2);
            QCOMPARE(control<Alfarje>(d, u"GR2"_s)->RowCount(), 0);
        });
        QVERIFY(nomencla.ZonaClientes(u"1"_s, db));
        QCOMPARE(filas(db, u"SELECT id,cod,zon,des,est FROM mZonaClie WHERE cod IN (1,4) ORDER BY id,cod"_s),
                 (QStringList{u"1|1|Norte|Carcelén y Cotocollao|1"_s, u"1|4|Este||0"_s, u"2|1|Norte|otra|1"_s}));
        QCOMPARE(valor(db, u"SELECT est FROM mZonaLugar WHERE lug='Puembo'"_s).toInt(), 1);
    }

    // A new zone with its places is written whole or not at all: a place
    // insert that fails leaves neither the zone nor any place, and the
    // pending rows wait for another try.
    void todo_o_nada()
    {
        QSqlDatabase otra = otraConexion(db, u"otro_usuario"_s);
        Cajas cajas;
        alAbrir(u"frmLsZona"_s, [&](QWidget* d) {
            activa(d);
            auto* gr2 = control<Alfarje>(d, u"GR2"_s);
            teclear(caja(d, 0), u"Oriente"_s);
            lugar(d, u"Puyo"_s);
            lugar(d, u"Tena"_s);
            ejecutarSql(otra, u"RENAME TABLE mZonaLugar TO mZonaLugarAparte"_s);
            pulsar(d, u"Bt(0)"_s);
            ejecutarSql(otra, u"RENAME TABLE mZonaLugarAparte TO mZonaLugar"_s);
            QCOMPARE(cajas.vistas.last().titulo, u"Error de base de datos"_s);
            QCOMPARE(zona(d)->codigoActual(), 0);
            modoNuevo(d, u"CREANDO NUEVA ZONA"_s);
            QCOMPARE(caja(d, 0)->text(), u"Oriente"_s);
            QCOMPARE(celdas(gr2, 0), (QStringList{u"Puyo"_s, u"Tena"_s}));
            QCOMPARE(valor(db, u"SELECT COUNT(*) FROM mZonaClie WHERE zon='Oriente'"_s).toInt(), 0);
            QCOMPARE(valor(db, u"SELECT COUNT(*) FROM mZonaLugar WHERE lug IN ('Puyo','Tena')"_s).toInt(), 0);

            pulsar(d, u"Bt(0)"_s);
            QCOMPARE(cajas.ultima(), u"La información se ha guardado con éxito!"_s);
        });
        QVERIFY(nomencla.ZonaClientes(u"1"_s, db));
        QCOMPARE(filas(db, u"SELECT c.cod,l.lug FROM mZonaClie c JOIN mZonaLugar l ON l.id=c.id AND l.zon=c.cod "
                           "WHERE c.zon='Oriente' ORDER BY l.lug"_s),
                 (QStringList{u"6|Puyo"_s, u"6|Tena"_s}));
    }
};

QTEST_MAIN(PruebaZonas)
#include "prueba_zonas.moc"
