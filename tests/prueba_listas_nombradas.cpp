// Contracts, accounts and countries, driven through their controls as a clerk would.
#include "tests/support/Prueba.h"

#include "catalogues/frmLsPaises.h"
#include "core/Alfarje.h"
#include "core/Module1.h"

#include <nomencla/clsNomencla.h>

#include <QAbstractButton>
#include <QLineEdit>

using namespace Qt::StringLiterals;
using namespace prueba;
using nomencla::Alfarje;

namespace {

void dobleClic(Alfarje* gr, int fila)
{
    QTest::mouseDClick(gr->viewport(), Qt::LeftButton, {}, gr->visualRect(gr->model()->index(fila, 0)).center());
}

QStringList columna(Alfarje* gr)
{
    QStringList r;
    for (int i = 0; i < gr->RowCount(); ++i)
        r << gr->CellText(i, 0);
    return r;
}

} // namespace

class PruebaListasNombradas : public QObject {
    Q_OBJECT
    QSqlDatabase db;
    clsNomencla nomencla;

private Q_SLOTS:
    void init()
    {
        db = baseNueva(u"t_listas_nombradas"_s);
        ejecutarSql(db, u"INSERT INTO lsPaises (id,nom) VALUES ('1','Ecuador'),('1','Colombia'),('1','Brasil'),('1','Argentina'),"
                        "('2','Ecuador'),('2','Panamá');\n"
                        "INSERT INTO lscontratos (id,con,est) VALUES ('1','CT-01 Limpieza',1),('1','CT-02 Guardianía',1),"
                        "('1','CT-00 Antiguo',0),('2','CT-01 Limpieza',1);\n"
                        "INSERT INTO lsCuentas (id,cta,est) VALUES ('1','1.1.01 Caja',1),('1','1.1.02 Bancos',1),('2','1.1.01 Caja',1)"_s);
    }

    // Length rule, duplicate, rename to another's text, removal by the picked
    // record, the removed text saved again; the other company keeps its rows.
    void paises_de_principio_a_fin()
    {
        Cajas cajas;
        qint64 codBrasil = valor(db, u"SELECT cod FROM lsPaises WHERE id='1' AND nom='Brasil'"_s).toLongLong();
        alAbrir(u"frmLsPaises"_s, [&](QWidget* d) {
            auto* gr = control<Alfarje>(d, u"GR"_s);
            auto* tx = control<QLineEdit>(d, u"Text1"_s);
            auto* quitar = control<QAbstractButton>(d, u"Bt(1)"_s);
            QCOMPARE(d->windowTitle(), u"Lista de países"_s);
            QCOMPARE(d->focusWidget(), tx);
            QCOMPARE(columna(gr), (QStringList{u"Argentina"_s, u"Brasil"_s, u"Colombia"_s, u"Ecuador"_s}));
            QVERIFY(!quitar->isEnabled());

            // Five characters, blanks around not counted: nothing at all happens.
            teclear(tx, u"  Congo  "_s);
            pulsar(d, u"Bt(0)"_s);
            QVERIFY(cajas.vistas.isEmpty());
            QCOMPARE(tx->text(), u"  Congo  "_s);
            QCOMPARE(gr->RowCount(), 4);
            // Six pass.
            tx->clear();
            teclear(tx, u" Uganda "_s);
            pulsar(d, u"Bt(0)"_s);
            QCOMPARE(cajas.vistas.size(), 1);
            QCOMPARE(cajas.vistas[0].titulo, u"Listo"_s);
            QCOMPARE(cajas.vistas[0].texto, u"La información se ha guardado con éxito!"_s);
            QCOMPARE(tx->text(), QString());

            // A duplicate, whatever its case: critical box, the text goes.
            teclear(tx, u"ECUADOR"_s);
            pulsar(d, u"Bt(0)"_s);
            QCOMPARE(cajas.vistas.last().titulo, u"Aviso"_s);
            QCOMPARE(cajas.vistas.last().icono, QMessageBox::Critical);
            QCOMPARE(cajas.ultima(), u"El país ya se encuentra registrado en la lista!"_s);
            QCOMPARE(tx->text(), QString());

            // Without key preview Esc in the text box doesn't close the dialog.
            tecla(tx, Qt::Key_Escape);
            QVERIFY(d->isVisible());

            // A pick, then a rename to the text of another record.
            dobleClic(gr, 2);
            QCOMPARE(tx->text(), u"Colombia"_s);
            QVERIFY(quitar->isEnabled());
            tx->clear();
            teclear(tx, u"Ecuador"_s);
            pulsar(d, u"Bt(0)"_s);
            QCOMPARE(cajas.ultima(), u"La información se ha guardado con éxito!"_s);
            QVERIFY(!quitar->isEnabled());
            QCOMPARE(columna(gr), (QStringList{u"Argentina"_s, u"Brasil"_s, u"Ecuador"_s, u"Ecuador"_s, u"Uganda"_s}));

            // Typing after a pick moves the selection; the question still names
            // the picked record, which is what No leaves in place.
            dobleClic(gr, 0);
            tx->clear();
            teclear(tx, u"Uga"_s);
            QCOMPARE(gr->Row(), 4);
            cajas.responder(QMessageBox::No);
            pulsar(d, u"Bt(1)"_s);
            QCOMPARE(cajas.vistas.last().titulo, u"CONFIRME"_s);
            QCOMPARE(cajas.vistas.last().icono, QMessageBox::Question);
            QCOMPARE(cajas.ultima(), u"Está seguro que desea eliminar ''Argentina'' de la lista de países registrados en el sistema?"_s);
            QCOMPARE(gr->RowCount(), 5);

            // Yes removes the picked one, with no message after it; the text stays.
            dobleClic(gr, 1);
            cajas.responder(QMessageBox::Yes);
            const auto antes = cajas.vistas.size();
            pulsar(d, u"Bt(1)"_s);
            QCOMPARE(cajas.vistas.size(), antes + 1);
            QCOMPARE(cajas.ultima(), u"Está seguro que desea eliminar ''Brasil'' de la lista de países registrados en el sistema?"_s);
            QCOMPARE(columna(gr), (QStringList{u"Argentina"_s, u"Ecuador"_s, u"Ecuador"_s, u"Uganda"_s}));
            QCOMPARE(tx->text(), u"Brasil"_s);
            QCOMPARE(gr->Row(), -1);
            QVERIFY(!quitar->isEnabled());
            // ...and saving it again makes a new record.
            pulsar(d, u"Bt(0)"_s);
            QCOMPARE(cajas.ultima(), u"La información se ha guardado con éxito!"_s);
            QCOMPARE(gr->RowCount(), 5);
        });
        QVERIFY(nomencla.Paises(u"1"_s, db));
        QVERIFY(!cajas.sinRespuesta);
        QCOMPARE(filas(db, u"SELECT nom FROM lsPaises WHERE id='1' ORDER BY nom"_s),
                 (QStringList{u"Argentina"_s, u"Brasil"_s, u"Ecuador"_s, u"Ecuador"_s, u"Uganda"_s}));
        QVERIFY(valor(db, u"SELECT cod FROM lsPaises WHERE id='1' AND nom='Brasil'"_s).toLongLong() != codBrasil);
        QCOMPARE(filas(db, u"SELECT nom FROM lsPaises WHERE id='2' ORDER BY nom"_s), (QStringList{u"Ecuador"_s, u"Panamá"_s}));
    }

    // Contracts: two characters are enough, a removal only marks the row, and
    // a removed text (of this or an earlier opening) can be added again.
    void contratos_se_marcan_al_quitar()
    {
        Cajas cajas;
        alAbrir(u"frmLsContratos"_s, [&](QWidget* d) {
            auto* gr = control<Alfarje>(d, u"GR"_s);
            auto* tx = control<QLineEdit>(d, u"Text1"_s);
            QCOMPARE(d->windowTitle(), u"Administración de contratos"_s);
            QCOMPARE(columna(gr), (QStringList{u"CT-01 Limpieza"_s, u"CT-02 Guardianía"_s}));
            teclear(tx, u" A "_s);
            pulsar(d, u"Bt(0)"_s);
            QVERIFY(cajas.vistas.isEmpty());
            tx->clear();
            teclear(tx, u"CT-00 Antiguo"_s);
            pulsar(d, u"Bt(0)"_s);
            QCOMPARE(cajas.ultima(), u"La información se ha guardado con éxito!"_s);
            teclear(tx, u"ct-01 limpieza"_s);
            pulsar(d, u"Bt(0)"_s);
            QCOMPARE(cajas.ultima(), u"El contrato ya se encuentra registrado en la lista!"_s);

            dobleClic(gr, 1); // CT-01 Limpieza
            QCOMPARE(tx->text(), u"CT-01 Limpieza"_s);
            cajas.responder(QMessageBox::Yes);
            pulsar(d, u"Bt(1)"_s);
            QCOMPARE(cajas.ultima(), u"Está seguro que desea eliminar ''CT-01 Limpieza'' de la lista de contratos registrados en el sistema?"_s);
            QCOMPARE(columna(gr), (QStringList{u"CT-00 Antiguo"_s, u"CT-02 Guardianía"_s}));
            pulsar(d, u"Bt(0)"_s);
            QCOMPARE(columna(gr), (QStringList{u"CT-00 Antiguo"_s, u"CT-01 Limpieza"_s, u"CT-02 Guardianía"_s}));
            tecla(tx, Qt::Key_Escape);
            QVERIFY(d->isVisible());
        });
        QVERIFY(nomencla.Contratos(u"1"_s, db));
        QCOMPARE(filas(db, u"SELECT con, est FROM lscontratos WHERE id='1' ORDER BY con, est"_s),
                 (QStringList{u"CT-00 Antiguo|0"_s, u"CT-00 Antiguo|1"_s, u"CT-01 Limpieza|0"_s, u"CT-01 Limpieza|1"_s,
                              u"CT-02 Guardianía|1"_s}));
        QCOMPARE(filas(db, u"SELECT con, est FROM lscontratos WHERE id='2'"_s), (QStringList{u"CT-01 Limpieza|1"_s}));
    }

    // Accounts: the contracts' twin, but Esc closes from any control.
    void cuentas()
    {
        Cajas cajas;
        alAbrir(u"frmLsCuentas"_s, [&](QWidget* d) {
            auto* gr = control<Alfarje>(d, u"GR"_s);
            auto* tx = control<QLineEdit>(d, u"Text1"_s);
            QCOMPARE(d->windowTitle(), u"Administración de cuentas"_s);
            teclear(tx, u"1.1.01 caja"_s);
            pulsar(d, u"Bt(0)"_s);
            QCOMPARE(cajas.ultima(), u"El cuenta ya se encuentra registrada en la lista!"_s);
            dobleClic(gr, 0);
            teclear(tx, u" general"_s);
            pulsar(d, u"Bt(0)"_s);
            dobleClic(gr, 0);
            cajas.responder(QMessageBox::Yes);
            pulsar(d, u"Bt(1)"_s);
            QCOMPARE(cajas.ultima(), u"Está seguro que desea eliminar ''1.1.01 Caja general'' de la lista de cuentas registradas en el sistema?"_s);
            QCOMPARE(columna(gr), (QStringList{u"1.1.02 Bancos"_s}));
            tecla(tx, Qt::Key_Escape);
            QVERIFY(!d->isVisible());
        });
        QVERIFY(nomencla.Cuentas(u"1"_s, db));
        QCOMPARE(filas(db, u"SELECT cta, est FROM lsCuentas ORDER BY id, cta"_s),
                 (QStringList{u"1.1.01 Caja general|0"_s, u"1.1.02 Bancos|1"_s, u"1.1.01 Caja|1"_s}));
    }

    // Opened over another dialog, as the lot capture does: it returns to its
    // owner, which stays open, and leaves HuboCambios for it.
    void paises_sobre_otro_dialogo()
    {
        Cajas cajas;
        bool primera = false;
        bool segunda = true;
        bool duenoAbierto = false;
        alAbrir(u"frmLsCiudad"_s, [&](QWidget* d) {
            alAbrir(u"frmLsPaises"_s, [&](QWidget* p) {
                QCOMPARE(p->parentWidget(), d);
                teclear(control<QLineEdit>(p, u"Text1"_s), u"Bolivia"_s);
                pulsar(p, u"Bt(0)"_s);
            });
            auto& paises = nomencla::M().instancia<nomencla::frmLsPaises>();
            paises.Show(d);
            primera = nomencla::M().HuboCambios;
            alAbrir(u"frmLsPaises"_s, [&](QWidget* p) { QCOMPARE(control<Alfarje>(p, u"GR"_s)->RowCount(), 5); });
            paises.Show(d);
            segunda = nomencla::M().HuboCambios;
            duenoAbierto = d->isVisible();
            QVERIFY(paises.parentWidget() == nullptr);
        });
        nomencla.Ciudades(u"1"_s, db);
        QVERIFY(primera);
        QVERIFY(!segunda);
        QVERIFY(duenoAbierto);
        QCOMPARE(cajas.ultima(), u"La información se ha guardado con éxito!"_s);
        QCOMPARE(valor(db, u"SELECT COUNT(*) FROM lsPaises WHERE id='1' AND nom='Bolivia'"_s).toInt(), 1);
    }

    // A failing statement is shown; nothing is half done and the dialog goes on.
    void fallo_de_base_de_datos()
    {
        QSqlDatabase otra = otraConexion(db, u"otra"_s);
        Cajas cajas;
        bool cambiosTrasFallo = true;
        alAbrir(u"frmLsPaises"_s, [&](QWidget* d) {
            auto* gr = control<Alfarje>(d, u"GR"_s);
            auto* tx = control<QLineEdit>(d, u"Text1"_s);
            ejecutarSql(otra, u"RENAME TABLE lsPaises TO lsPaisesFuera"_s);
            teclear(tx, u"Venezuela"_s);
            pulsar(d, u"Bt(0)"_s);
            QCOMPARE(cajas.vistas.last().titulo, u"Error de base de datos"_s);
            cambiosTrasFallo = nomencla::M().HuboCambios;
            QCOMPARE(tx->text(), u"Venezuela"_s);
            QCOMPARE(gr->RowCount(), 4);
            ejecutarSql(otra, u"RENAME TABLE lsPaisesFuera TO lsPaises"_s);
            pulsar(d, u"Bt(0)"_s);
            QCOMPARE(cajas.ultima(), u"La información se ha guardado con éxito!"_s);
        });
        QVERIFY(nomencla.Paises(u"1"_s, db));
        QVERIFY(!cambiosTrasFallo);
        QCOMPARE(valor(db, u"SELECT COUNT(*) FROM lsPaises WHERE nom='Venezuela'"_s).toInt(), 1);
    }
};

QTEST_MAIN(PruebaListasNombradas)
#include "prueba_listas_nombradas.moc"
