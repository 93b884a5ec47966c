// The lot capture, driven as a clerk would: every way of leaving it, what the
// caller's record holds afterwards, and the country list opened over it.
#include "tests/support/Prueba.h"

#include "catalogues/frmLsPaises.h"
#include "core/Module1.h"

#include <nomencla/clsNomencla.h>

#include <QComboBox>
#include <QDateEdit>
#include <QLineEdit>

using namespace Qt::StringLiterals;
using namespace prueba;

namespace {
const QString msgLote =
    u"Debe especificar el lote, si el producto no tiene lote pude colacar un par de guiones '--' en su lugar!"_s;

QStringList entradas(QComboBox* cmb)
{
    QStringList r;
    for (int i = 0; i < cmb->count(); ++i)
        r << cmb->itemText(i);
    return r;
}
} // namespace

class PruebaLotes : public QObject {
    Q_OBJECT
    QSqlDatabase db;
    clsNomencla nomencla;

    // A record the caller filled before the call: the method overwrites all of it.
    static InfoLotes ajeno()
    {
        InfoLotes r;
        r.Lote = u"VIEJO"_s;
        r.FechaCaducidad = QDate(2000, 1, 1);
        r.Cantidad = 99;
        r.RegistroSanitario = u"X"_s;
        r.FechaFabricacion = QDate(2000, 1, 1);
        r.PaisOrigen = u"Y"_s;
        return r;
    }

private Q_SLOTS:
    void init()
    {
        db = baseNueva(u"t_lotes"_s);
        ejecutarSql(db, u"INSERT INTO lsPaises (id,nom) VALUES ('1','Perú'),('1','Colombia'),('1','Ecuador'),('2','Alemania')"_s);
    }

    // Validation in its order, then an accepted lot with all six fields.
    void aceptar_entrega_los_seis_campos()
    {
        Cajas cajas;
        alAbrir(u"frmLotes"_s, [&](QWidget* d) {
            QCOMPARE(d->windowTitle(), u"Información de lotes"_s);
            auto* lote = control<QLineEdit>(d, u"Text1(0)"_s);
            auto* registro = control<QLineEdit>(d, u"Text1(1)"_s);
            auto* cantidad = control<QLineEdit>(d, u"Text1(2)"_s);
            auto* cmb = control<QComboBox>(d, u"Cmb"_s);
            auto* caducidad = control<QDateEdit>(d, u"DT(0)"_s);
            auto* fabricacion = control<QDateEdit>(d, u"DT(1)"_s);
            QCOMPARE(caducidad->date(), QDate::currentDate());
            QCOMPARE(fabricacion->date(), QDate::currentDate());
            QCOMPARE(caducidad->displayFormat(), u"dd-MMM-yyyy"_s);
            // Only this company's countries, by name, the first one chosen.
            QCOMPARE(entradas(cmb), (QStringList{u"Colombia"_s, u"Ecuador"_s, u"Perú"_s}));
            QCOMPARE(cmb->currentIndex(), 0);
            QCOMPARE(lote->maxLength(), 15);
            QCOMPARE(registro->maxLength(), 20);
            QCOMPARE(cantidad->maxLength(), 15);

            // Blanks are no lot.
            teclear(lote, u"   "_s);
            pulsar(d, u"Bt(1)"_s);
            QCOMPARE(cajas.vistas.size(), 1);
            QCOMPARE(cajas.vistas[0].texto, msgLote);
            QCOMPARE(cajas.vistas[0].titulo, u"Error"_s);
            QCOMPARE(cajas.vistas[0].icono, QMessageBox::Critical);
            QVERIFY(d->isVisible());
            QVERIFY(nomencla::M().LoteCapturado.Lote.isEmpty());

            lote->clear();
            teclear(lote, u"  L'01 "_s);
            caducidad->setDate(QDate(2027, 3, 31));
            teclear(registro, u" RS-123 "_s);
            fabricacion->setDate(QDate(2025, 1, 15));
            cmb->setCurrentIndex(2);
            // The quantity takes digits only: no decimal mark, no letters, no sign.
            teclear(cantidad, u"-1,2.5x3"_s);
            QCOMPARE(cantidad->text(), u"1253"_s);
            pulsar(d, u"Bt(1)"_s);
            QCOMPARE(cajas.vistas.size(), 1);
            QVERIFY(!d->isVisible());
        });
        InfoLotes r = ajeno();
        QVERIFY(nomencla.AgregarLoteCaducidad(u"1"_s, db, r));
        QCOMPARE(r.Lote, u"L'01"_s);
        QCOMPARE(r.FechaCaducidad, QDate(2027, 3, 31));
        QCOMPARE(r.Cantidad, 1253);
        QCOMPARE(r.RegistroSanitario, u"RS-123"_s);
        QCOMPARE(r.FechaFabricacion, QDate(2025, 1, 15));
        QCOMPARE(r.PaisOrigen, u"Perú"_s);

        // A second opening starts afresh; Cancelar hands back an empty lot
        // with the dates of the last accepted one.
        alAbrir(u"frmLotes"_s, [&](QWidget* d) {
            QCOMPARE(control<QLineEdit>(d, u"Text1(0)"_s)->text(), QString());
            QCOMPARE(control<QLineEdit>(d, u"Text1(2)"_s)->text(), QString());
            QCOMPARE(control<QDateEdit>(d, u"DT(0)"_s)->date(), QDate::currentDate());
            QVERIFY(nomencla::M().LoteCapturado.Lote.isEmpty());
            teclear(control<QLineEdit>(d, u"Text1(0)"_s), u"L-02"_s);
            pulsar(d, u"Bt(0)"_s);
            QVERIFY(!d->isVisible());
        });
        r = ajeno();
        QVERIFY(!nomencla.AgregarLoteCaducidad(u"1"_s, db, r));
        QCOMPARE(r.Lote, QString());
        QCOMPARE(r.RegistroSanitario, QString());
        QCOMPARE(r.PaisOrigen, QString());
        QCOMPARE(r.Cantidad, 0);
        QCOMPARE(r.FechaCaducidad, QDate(2027, 3, 31));
        QCOMPARE(r.FechaFabricacion, QDate(2025, 1, 15));

        // The close box is a cancel too; Esc in a box doesn't close this form.
        alAbrir(u"frmLotes"_s, [&](QWidget* d) {
            auto* lote = control<QLineEdit>(d, u"Text1(0)"_s);
            teclear(lote, u"L-03"_s);
            tecla(lote, Qt::Key_Escape);
            QVERIFY(d->isVisible());
            d->close();
            QVERIFY(!d->isVisible());
        });
        r = ajeno();
        QVERIFY(!nomencla.AgregarLoteCaducidad(u"1"_s, db, r));
        QCOMPARE(r.Lote, QString());
        QCOMPARE(r.Cantidad, 0);
        QVERIFY(cajas.vistas.size() == 1);
    }

    // "--" is a lot like any other; an empty quantity is 0; a pasted number
    // is read by its leading digits and rounded; beyond a Long it is refused
    // and nothing is stored until it is corrected.
    void cantidad_y_lote_sin_numero()
    {
        Cajas cajas;
        alAbrir(u"frmLotes"_s, [&](QWidget* d) {
            auto* cantidad = control<QLineEdit>(d, u"Text1(2)"_s);
            teclear(control<QLineEdit>(d, u"Text1(0)"_s), u"--"_s);
            teclear(cantidad, u"2147483648"_s);
            pulsar(d, u"Bt(1)"_s);
            QCOMPARE(cajas.vistas.size(), 1);
            QCOMPARE(cajas.vistas[0].titulo, u"Error"_s);
            QCOMPARE(cajas.vistas[0].icono, QMessageBox::Critical);
            QVERIFY(cajas.vistas[0].texto.contains(u"2147483647"_s));
            QVERIFY(d->isVisible());
            const InfoLotes& guardado = nomencla::M().LoteCapturado;
            QVERIFY(guardado.Lote.isEmpty());
            QVERIFY(guardado.PaisOrigen.isEmpty());
            QCOMPARE(guardado.Cantidad, 0);

            cantidad->setText(u"999999999999999"_s);
            pulsar(d, u"Bt(1)"_s);
            QCOMPARE(cajas.vistas.size(), 2);
            QVERIFY(guardado.Lote.isEmpty());

            cantidad->setText(u"2147483647"_s);
            pulsar(d, u"Bt(1)"_s);
            QVERIFY(!d->isVisible());
        });
        InfoLotes r;
        QVERIFY(nomencla.AgregarLoteCaducidad(u"1"_s, db, r));
        QCOMPARE(r.Lote, u"--"_s);
        QCOMPARE(r.Cantidad, 2147483647);
        QCOMPARE(r.PaisOrigen, u"Colombia"_s);
        QCOMPARE(r.RegistroSanitario, QString());

        const QList<QPair<QString, qint32>> casos = {
            {QString(), 0}, {u"abc"_s, 0}, {u"12abc"_s, 12}, {u"7.5"_s, 8}, {u" 2.4kg"_s, 2}};
        for (const auto& [texto, esperado] : casos) {
            alAbrir(u"frmLotes"_s, [&](QWidget* d) {
                teclear(control<QLineEdit>(d, u"Text1(0)"_s), u"L"_s);
                control<QLineEdit>(d, u"Text1(2)"_s)->setText(texto); // as pasted
                pulsar(d, u"Bt(1)"_s);
            });
            QVERIFY(nomencla.AgregarLoteCaducidad(u"1"_s, db, r));
            QCOMPARE(r.Cantidad, esperado);
        }
        QCOMPARE(cajas.vistas.size(), 2);
    }

    // With no country for the company the lot can't be accepted; a failed
    // read of the countries is shown and the dialog can still be left.
    void sin_paises()
    {
        Cajas cajas;
        alAbrir(u"frmLotes"_s, [&](QWidget* d) {
            QCOMPARE(control<QComboBox>(d, u"Cmb"_s)->count(), 0);
            teclear(control<QLineEdit>(d, u"Text1(0)"_s), u"L-9"_s);
            pulsar(d, u"Bt(1)"_s);
            QCOMPARE(cajas.ultima(), u"Debe especificar el país de origen!"_s);
            QCOMPARE(cajas.vistas.last().titulo, u"Error"_s);
            QCOMPARE(cajas.vistas.last().icono, QMessageBox::Critical);
            QVERIFY(d->isVisible());
        });
        InfoLotes r = ajeno();
        QVERIFY(!nomencla.AgregarLoteCaducidad(u"3"_s, db, r));
        QCOMPARE(r.Lote, QString());

        ejecutarSql(db, u"RENAME TABLE lsPaises TO lsPaisesAparte"_s);
        cajas.limpiar();
        alAbrir(u"frmLotes"_s, [&](QWidget* d) {
            QCOMPARE(cajas.vistas.size(), 1);
            QCOMPARE(cajas.vistas[0].titulo, u"Error de base de datos"_s);
            QVERIFY(d->isVisible());
            pulsar(d, u"Bt(0)"_s);
        });
        QVERIFY(!nomencla.AgregarLoteCaducidad(u"1"_s, db, r));
        ejecutarSql(db, u"RENAME TABLE lsPaisesAparte TO lsPaises"_s);
    }

    // The country list opens over the dialog; the combo is read again only
    // when the list changed something.
    void lista_de_paises_encima()
    {
        Cajas cajas;
        alAbrir(u"frmLotes"_s, [&](QWidget* d) {
            auto* cmb = control<QComboBox>(d, u"Cmb"_s);
            cmb->setCurrentIndex(2);
            // A look without a change leaves the combo and its choice alone,
            // even when an earlier dialog had left HuboCambios set.
            nomencla::M().HuboCambios = true;
            ejecutarSql(db, u"INSERT INTO lsPaises (id,nom) VALUES ('1','Argentina')"_s);
            bool vista = false;
            alAbrir(u"frmLsPaises"_s, [&](QWidget* paises) {
                vista = true;
                QCOMPARE(paises->parentWidget(), d);
                QVERIFY(paises->isModal());
            });
            pulsar(d, u"Bt(2)"_s);
            QVERIFY(vista);
            QVERIFY(d->isVisible());
            QCOMPARE(entradas(cmb), (QStringList{u"Colombia"_s, u"Ecuador"_s, u"Perú"_s}));
            QCOMPARE(cmb->currentIndex(), 2);

            // A change there brings the new country here at once.
            alAbrir(u"frmLsPaises"_s, [&](QWidget*) {
                ejecutarSql(db, u"INSERT INTO lsPaises (id,nom) VALUES ('1','Bolivia')"_s);
                nomencla::M().HuboCambios = true;
            });
            pulsar(d, u"Bt(2)"_s);
            QCOMPARE(entradas(cmb),
                     (QStringList{u"Argentina"_s, u"Bolivia"_s, u"Colombia"_s, u"Ecuador"_s, u"Perú"_s}));
            QCOMPARE(cmb->currentIndex(), 0);
            cmb->setCurrentIndex(1);
            teclear(control<QLineEdit>(d, u"Text1(0)"_s), u"L-7"_s);
            pulsar(d, u"Bt(1)"_s);
        });
        InfoLotes r;
        QVERIFY(nomencla.AgregarLoteCaducidad(u"1"_s, db, r));
        QCOMPARE(r.PaisOrigen, u"Bolivia"_s);
        QVERIFY(cajas.vistas.isEmpty());
        // Once closed the country list belongs to no dialog again.
        QVERIFY(nomencla::M().instancia<nomencla::frmLsPaises>().parentWidget() == nullptr);
    }
};

QTEST_MAIN(PruebaLotes)
#include "prueba_lotes.moc"
