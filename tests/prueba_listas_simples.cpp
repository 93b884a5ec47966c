// The lists of plain names, driven through their controls as a clerk would.
#include "tests/support/Prueba.h"

#include "core/Alfarje.h"
#include "core/Module1.h"

#include <nomencla/clsNomencla.h>

#include <QLineEdit>

using namespace Qt::StringLiterals;
using namespace prueba;
using nomencla::Alfarje;

class PruebaListasSimples : public QObject {
    Q_OBJECT
    QSqlDatabase db;
    clsNomencla nomencla;

private Q_SLOTS:
    void init()
    {
        db = baseNueva(u"t_listas_simples"_s);
        ejecutarSql(db, u"INSERT INTO lsCiudades (id,ciu) VALUES ('1','Quito'),('1','Ambato'),('1','Cuenca'),('2','Quito'),('2','Loja');\n"
                        "INSERT INTO mCliente (id,ciu) VALUES ('1','Cuenca'),('2','Ambato')"_s);
    }

    // Add, find, refuse duplicates and blanks, store hostile text literally, remove.
    void ciudades_de_principio_a_fin()
    {
        Cajas cajas;
        QStringList enGrilla;
        alAbrir(u"frmLsCiudad"_s, [&](QWidget* d) {
            auto* gr = control<Alfarje>(d, u"GR"_s);
            auto* tx = control<QLineEdit>(d, u"Text1"_s);
            QCOMPARE(d->windowTitle(), u"Lista de ciudades"_s);
            QCOMPARE(gr->RowCount(), 3);
            QCOMPARE(gr->CellText(0, 0), u"Ambato"_s); // the database's order
            QCOMPARE(gr->Row(), -1);

            // Blanks only: message 1, nothing sent.
            teclear(tx, u"   "_s);
            tecla(tx, Qt::Key_Return);
            QCOMPARE(cajas.vistas.size(), 1);
            QCOMPARE(cajas.vistas[0].titulo, u"Error"_s);
            QCOMPARE(cajas.vistas[0].icono, QMessageBox::Critical);
            QCOMPARE(cajas.vistas[0].texto, u"Debe especificar el nombre de la ciudad!"_s);

            // A name with an apostrophe, around blanks: trimmed, stored literally.
            tx->clear();
            teclear(tx, u"  O'Brien  "_s);
            tecla(tx, Qt::Key_Return);
            QCOMPARE(cajas.vistas.size(), 2);
            QCOMPARE(cajas.vistas[1].titulo, u"Listo"_s);
            QCOMPARE(cajas.vistas[1].icono, QMessageBox::Information);
            QCOMPARE(cajas.vistas[1].texto, u"La información se ha guardado correctamente!"_s);
            QCOMPARE(tx->text(), QString());
            QCOMPARE(gr->RowCount(), 4);
            QCOMPARE(gr->CellText(3, 0), u"O'Brien"_s);

            // SQL in a name is only text.
            teclear(tx, u"'); DROP TABLE x; --"_s);
            pulsar(d, u"Bt(0)"_s);
            QCOMPARE(gr->RowCount(), 5);

            // A duplicate, whatever its case, is refused and the text stays.
            teclear(tx, u"quito"_s);
            tecla(tx, Qt::Key_Return);
            QCOMPARE(cajas.vistas.last().titulo, u"AVISO"_s);
            QCOMPARE(cajas.vistas.last().icono, QMessageBox::Warning);
            QCOMPARE(cajas.vistas.last().texto, u"La ciudad que intenta guardar ya está registrada en la base de datos!"_s);
            QCOMPARE(tx->text(), u"quito"_s);

            // A row added in this opening is found at once and can't be added twice.
            tx->clear();
            teclear(tx, u"o'b"_s);
            QCOMPARE(gr->Row(), 3);
            tx->clear();
            teclear(tx, u"O'Brien"_s);
            tecla(tx, Qt::Key_Return);
            QCOMPARE(cajas.vistas.last().titulo, u"AVISO"_s);

            // ...and removed at once, after the question.
            cajas.responder(QMessageBox::Yes);
            pulsar(d, u"Bt(2)"_s);
            const int n = int(cajas.vistas.size());
            QCOMPARE(cajas.vistas[n - 2].titulo, u"CONFIRME"_s);
            QVERIFY(cajas.vistas[n - 2].siNo);
            QCOMPARE(cajas.vistas[n - 2].texto, u"Está seguro que desea quitar la ciudad ''O'Brien'' de la base de datos?"_s);
            QCOMPARE(cajas.vistas[n - 1].texto, u"La operación se realizó correctamente!"_s);
            QCOMPARE(gr->RowCount(), 4);
            QCOMPARE(tx->text(), QString());
            QCOMPARE(gr->Row(), -1);

            // Nothing selected: the removal does nothing, not even a message.
            const auto antes = cajas.vistas.size();
            pulsar(d, u"Bt(2)"_s);
            QCOMPARE(cajas.vistas.size(), antes);

            for (int i = 0; i < gr->RowCount(); ++i)
                enGrilla << gr->CellText(i, 0);
            // Esc closes it wherever the focus is.
            tecla(gr, Qt::Key_Escape);
            QVERIFY(!d->isVisible());
        });
        QVERIFY(nomencla.Ciudades(u"1"_s, db));
        QVERIFY(!cajas.sinRespuesta);
        QCOMPARE(enGrilla, (QStringList{u"Ambato"_s, u"Cuenca"_s, u"Quito"_s, u"'); DROP TABLE x; --"_s}));
        QCOMPARE(filas(db, u"SELECT ciu FROM lsCiudades WHERE id='1' ORDER BY ciu"_s),
                 (QStringList{u"'); DROP TABLE x; --"_s, u"Ambato"_s, u"Cuenca"_s, u"Quito"_s}));
        QCOMPARE(filas(db, u"SELECT ciu FROM lsCiudades WHERE id='2' ORDER BY ciu"_s),
                 (QStringList{u"Loja"_s, u"Quito"_s}));
    }

    // A city used by a customer of this company stays; one used only by
    // another company's customer goes; No changes nothing.
    void ciudades_referencias_y_respuesta_no()
    {
        Cajas cajas;
        alAbrir(u"frmLsCiudad"_s, [&](QWidget* d) {
            auto* gr = control<Alfarje>(d, u"GR"_s);
            auto* tx = control<QLineEdit>(d, u"Text1"_s);
            teclear(tx, u"cuen"_s);
            QCOMPARE(gr->Row(), 1);
            pulsar(d, u"Bt(2)"_s);
            QCOMPARE(cajas.ultima(), u"No se puede quitar la ciudad ''Cuenca'' debido a que se encuentra asignada a uno o mas clientes!"_s);
            QCOMPARE(cajas.vistas.last().icono, QMessageBox::Warning);
            QCOMPARE(gr->RowCount(), 3);

            tx->clear();
            teclear(tx, u"amb"_s);
            cajas.responder(QMessageBox::No);
            pulsar(d, u"Bt(2)"_s);
            QCOMPARE(cajas.vistas.last().titulo, u"CONFIRME"_s);
            QCOMPARE(gr->RowCount(), 3);
            QCOMPARE(tx->text(), u"amb"_s);
            QCOMPARE(gr->Row(), 0);

            cajas.responder(QMessageBox::Yes);
            pulsar(d, u"Bt(2)"_s);
            QCOMPARE(gr->RowCount(), 2);
        });
        QVERIFY(nomencla.Ciudades(u"1"_s, db));
        QCOMPARE(valor(db, u"SELECT COUNT(*) FROM lsCiudades WHERE id='1' AND ciu='Ambato'"_s).toInt(), 0);
        QCOMPARE(valor(db, u"SELECT COUNT(*) FROM lsCiudades WHERE id='1' AND ciu='Cuenca'"_s).toInt(), 1);
    }

    // Only looking returns False; the same instance is shown again, reloaded.
    void solo_mirar_y_segunda_apertura()
    {
        QWidget* primera = nullptr;
        alAbrir(u"frmLsCiudad"_s, [&](QWidget* d) { primera = d; });
        QVERIFY(!nomencla.Ciudades(u"1"_s, db));
        ejecutarSql(db, u"INSERT INTO lsCiudades (id,ciu) VALUES ('1','Tena')"_s);
        int filasVistas = 0;
        alAbrir(u"frmLsCiudad"_s, [&](QWidget* d) {
            QCOMPARE(d, primera);
            filasVistas = control<Alfarje>(d, u"GR"_s)->RowCount();
        });
        QVERIFY(!nomencla.Ciudades(u"1"_s, db));
        QCOMPARE(filasVistas, 4);
    }

    // Without key preview Esc in a box does nothing; the lists work the same.
    void departamentos()
    {
        ejecutarSql(db, u"INSERT INTO lsDepartam (id,depa) VALUES ('1','Ventas'),('1','Bodega');\n"
                        "INSERT INTO mvendedor (id,depa) VALUES ('1','Ventas')"_s);
        Cajas cajas;
        alAbrir(u"frmLsDepartam"_s, [&](QWidget* d) {
            auto* tx = control<QLineEdit>(d, u"Text1"_s);
            tecla(tx, Qt::Key_Escape);
            QVERIFY(d->isVisible());
            teclear(tx, u"Contabilidad"_s);
            pulsar(d, u"Bt(0)"_s);
            QCOMPARE(cajas.ultima(), u"La información se ha guardado correctamente!"_s);
            teclear(tx, u"ven"_s);
            pulsar(d, u"Bt(2)"_s);
            QCOMPARE(cajas.ultima(), u"No se puede quitar el departamento ''Ventas'' debido a que se encuentra asignado a uno o más empleados!"_s);
            pulsar(d, u"Bt(1)"_s);
            QCOMPARE(tx->text(), QString());
        });
        QVERIFY(nomencla.Departamentos(u"1"_s, db));
        QCOMPARE(filas(db, u"SELECT depa FROM lsDepartam WHERE id='1' ORDER BY depa"_s),
                 (QStringList{u"Bodega"_s, u"Contabilidad"_s, u"Ventas"_s}));
    }

    // Objects are known by their key: a new one can be removed at once; one
    // used in an order can't.
    void contenidos_por_clave()
    {
        ejecutarSql(db, u"INSERT INTO lsContenidos (id,nom) VALUES ('1','Caja'),('2','Caja');\n"
                        "INSERT INTO sOrdenObjetos (id,obj) SELECT '1', cod FROM lsContenidos WHERE id='1' AND nom='Caja'"_s);
        Cajas cajas;
        alAbrir(u"frmLsContenido"_s, [&](QWidget* d) {
            auto* gr = control<Alfarje>(d, u"GR"_s);
            auto* tx = control<QLineEdit>(d, u"Text1"_s);
            teclear(tx, u"Sobre"_s);
            tecla(tx, Qt::Key_Return);
            QCOMPARE(gr->RowCount(), 2);
            QVERIFY(gr->CellValue(1, 1) > 0);
            tx->clear();
            teclear(tx, u"sob"_s);
            cajas.responder(QMessageBox::Yes);
            pulsar(d, u"Bt(2)"_s);
            QCOMPARE(cajas.ultima(), u"La operación se realizó correctamente!"_s);
            QCOMPARE(gr->RowCount(), 1);
            teclear(tx, u"caj"_s);
            pulsar(d, u"Bt(2)"_s);
            QCOMPARE(cajas.ultima(), u"No se puede quitar el objeto ''Caja'' debido a que se encuentra en uso en una orden!"_s);
        });
        QVERIFY(nomencla.Contenidos(u"1"_s, db));
        QCOMPARE(filas(db, u"SELECT id, nom FROM lsContenidos ORDER BY id"_s), (QStringList{u"1|Caja"_s, u"2|Caja"_s}));
    }

    // A failing statement is shown, changes nothing, and the dialog goes on.
    void fallo_de_base_de_datos()
    {
        QSqlDatabase otra = otraConexion(db, u"otra"_s);
        Cajas cajas;
        alAbrir(u"frmLsCiudad"_s, [&](QWidget* d) {
            auto* gr = control<Alfarje>(d, u"GR"_s);
            auto* tx = control<QLineEdit>(d, u"Text1"_s);
            ejecutarSql(otra, u"RENAME TABLE lsCiudades TO lsCiudadesFuera"_s);
            teclear(tx, u"Macas"_s);
            tecla(tx, Qt::Key_Return);
            QCOMPARE(cajas.vistas.last().titulo, u"Error de base de datos"_s);
            QCOMPARE(cajas.vistas.last().icono, QMessageBox::Critical);
            QVERIFY(cajas.ultima().contains(u"lsCiudades"_s, Qt::CaseInsensitive));
            QCOMPARE(gr->RowCount(), 3);
            QCOMPARE(tx->text(), u"Macas"_s);
            ejecutarSql(otra, u"RENAME TABLE lsCiudadesFuera TO lsCiudades"_s);
            tecla(tx, Qt::Key_Return);
            QCOMPARE(cajas.ultima(), u"La información se ha guardado correctamente!"_s);
            QCOMPARE(gr->RowCount(), 4);
        });
        QVERIFY(nomencla.Ciudades(u"1"_s, db));
        QCOMPARE(valor(db, u"SELECT COUNT(*) FROM lsCiudades WHERE ciu='Macas'"_s).toInt(), 1);
    }
};

QTEST_MAIN(PruebaListasSimples)
#include "prueba_listas_simples.moc"
