// The lot capture and the lot selection, driven as a clerk would: every way
// of leaving them and what the caller gets back; the country list opened
// over the capture; the host's and the user's filters of the selection.
#include "tests/prueba_estructura.h"

#include "catalogues/frmLsPaises.h"
#include "core/Module1.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QLineEdit>

using namespace Qt::StringLiterals;
using namespace prueba;
using nomencla::Alfarje;

namespace {

// A record the caller filled before the call: the method overwrites all of it.
InfoLotes ajeno()
{
    return InfoLotes{u"VIEJO"_s, QDate(2000, 1, 1), 99, u"X"_s, QDate(2000, 1, 1), u"Y"_s};
}

QStringList lotes(const Alfarje* gr)
{
    QStringList r;
    for (int i = 0; i < gr->RowCount(); ++i)
        r << gr->CellText(i, 0);
    return r;
}

} // namespace

class PruebaLotes : public QObject {
    Q_OBJECT
    QSqlDatabase db;
    clsNomencla nomencla;

private Q_SLOTS:
    void init()
    {
        db = baseNueva(u"t_lotes"_s);
        ejecutarSql(db, u"INSERT INTO lsPaises (id,nom) VALUES ('1','Perú'),('1','Colombia'),('1','Ecuador'),('2','Alemania')"_s);
        // est: 0 expired, 1 active, 2 quarantine, 3 under review. The
        // selection's date is 17 Feb 2019: ANT-1 expires before it.
        ejecutarSql(db, u"INSERT INTO mProveedor (cod,nom) VALUES (1,'Droguería O''Brien'),(2,'Labs Andinos');\n"
                        "INSERT INTO martexpira (art,bod,lot,can,fec,pro,est) VALUES "
                        "(1,1,'B-20',10,'2026-05-01',1,1),(1,2,'A%1',5,'2026-01-10',2,1),(1,1,'AB1',7,'2026-01-10',NULL,3),"
                        "(1,2,'A_2',3,'2019-02-17',9,2),(1,1,'AX2',4,'2027-07-07',1,0),(1,1,'CERO',0,'2026-05-01',1,1),"
                        "(1,2,'NEG',-2,'2026-05-01',1,1),(1,1,'ANT-1',8,'2019-02-16',1,1),(2,1,'OTRO',50,'2026-05-01',1,1)"_s);
    }

    // An accepted lot gives all six fields, the quantity taking digits only.
    // The country list opens over the dialog, a country added there is in the
    // combo at once, by name, and once closed the list belongs to no dialog.
    void aceptar_entrega_los_seis_campos()
    {
        QWidget* encima = nullptr;
        alAbrir(u"frmLotes"_s, [&](QWidget* d) {
            alAbrir(u"frmLsPaises"_s, [&](QWidget* paises) {
                encima = paises->parentWidget();
                ejecutarSql(db, u"INSERT INTO lsPaises (id,nom) VALUES ('1','Bolivia')"_s);
                nomencla::M().HuboCambios = true;
            });
            pulsar(d, u"Bt(2)"_s);
            QCOMPARE(encima, d);
            teclear(control<QLineEdit>(d, u"Text1(0)"_s), u"L'01"_s);
            control<QDateEdit>(d, u"DT(0)"_s)->setDate(QDate(2027, 3, 31));
            teclear(control<QLineEdit>(d, u"Text1(1)"_s), u"RS-123"_s);
            control<QDateEdit>(d, u"DT(1)"_s)->setDate(QDate(2025, 1, 15));
            control<QComboBox>(d, u"Cmb"_s)->setCurrentIndex(3); // Bolivia, Colombia, Ecuador, Perú
            teclear(control<QLineEdit>(d, u"Text1(2)"_s), u"-1,2.5x3"_s);
            pulsar(d, u"Bt(1)"_s);
        });
        InfoLotes r = ajeno();
        QVERIFY(nomencla.AgregarLoteCaducidad(u"1"_s, db, r));
        QCOMPARE((QVariantList{r.Lote, r.FechaCaducidad, r.Cantidad, r.RegistroSanitario, r.FechaFabricacion, r.PaisOrigen}),
                 (QVariantList{u"L'01"_s, QDate(2027, 3, 31), 1253, u"RS-123"_s, QDate(2025, 1, 15), u"Perú"_s}));
        QCOMPARE(nomencla::M().instancia<nomencla::frmLsPaises>().parentWidget(), nullptr);
    }

    // Aceptar gives the lot "--" with the first country; an empty quantity is
    // 0. Blanks for a lot and a quantity beyond a Long are refused with a
    // message and the dialog stays open, as is any lot when the company has
    // no country. Cancelar gives an empty record; Esc doesn't close this form.
    void finales()
    {
        enum { Aceptar, Cancelar, Esc };
        const struct { QString lote, cantidad; int final; bool abierto; QString aviso;
                       QString empresa = u"1"_s; } casos[] = {
            {u"--"_s, QString(), Aceptar, false, QString()},
            {u"--"_s, u"2147483648"_s, Aceptar, true, u"2147483647"_s},
            {u"   "_s, u"5"_s, Aceptar, true, u"Debe especificar el lote, si el producto no tiene lote"_s},
            {u"L-9"_s, u"5"_s, Aceptar, true, u"Debe especificar el país de origen!"_s, u"3"_s},
            {u"L-1"_s, u"5"_s, Cancelar, false, QString()},
            {u"L-1"_s, u"5"_s, Esc, true, QString()}};
        for (const auto& c : casos) {
            Cajas cajas;
            bool abierto = false;
            alAbrir(u"frmLotes"_s, [&](QWidget* d) {
                auto* lote = control<QLineEdit>(d, u"Text1(0)"_s);
                teclear(lote, c.lote);
                teclear(control<QLineEdit>(d, u"Text1(2)"_s), c.cantidad);
                if (c.final == Esc)
                    tecla(lote, Qt::Key_Escape);
                else
                    pulsar(d, c.final == Aceptar ? u"Bt(1)"_s : u"Bt(0)"_s);
                abierto = d->isVisible();
            });
            InfoLotes r = ajeno();
            const bool aceptado = c.final == Aceptar && !c.abierto;
            QCOMPARE(nomencla.AgregarLoteCaducidad(c.empresa, db, r), aceptado);
            QCOMPARE(abierto, c.abierto);
            QCOMPARE(r.Lote, aceptado ? c.lote : QString());
            QCOMPARE(r.PaisOrigen, aceptado ? u"Colombia"_s : QString());
            QCOMPARE(r.Cantidad, 0);
            QCOMPARE(cajas.vistas.size(), c.aviso.isEmpty() ? 0 : 1);
            QVERIFY(cajas.ultima().contains(c.aviso));
        }
    }

    // The host's class and warehouse: lots of the article on hand from the
    // form's date on; warehouse 0 is every one.
    void filtros_del_anfitrion()
    {
        const QStringList todos{u"A_2"_s, u"A%1"_s, u"AB1"_s, u"AX2"_s, u"B-20"_s};
        const struct { qint32 bodega; tipoLoteLS tipo; QStringList lotes; } casos[] = {
            {-1, lsLotesTodos, todos},
            {-1, lsLotesValidos, {u"A%1"_s, u"AB1"_s, u"B-20"_s}},
            {-1, lsLotesCuarentena, {u"A_2"_s}},
            {-1, lsLotesCaducados, {u"AX2"_s}},
            {0, lsLotesTodos, todos},
            {1, lsLotesActivos, {u"B-20"_s}}};
        for (const auto& c : casos) {
            QStringList vistos;
            alAbrir(u"frmCaducidades"_s, [&](QWidget* d) { vistos = lotes(control<Alfarje>(d, u"GR"_s)); });
            QCOMPARE(nomencla.SeleccionarLote(u"1"_s, db, 1, c.bodega, c.tipo), 0);
            QCOMPARE(vistos, c.lotes);
        }
    }

    // The user's filters: start of the lot taken literally, exact date or
    // from it on, lots with nothing on hand. The supplier's name is shown.
    void filtros_del_usuario()
    {
        alAbrir(u"frmCaducidades"_s, [&](QWidget* d) {
            auto* gr = control<Alfarje>(d, u"GR"_s);
            auto* tx = control<QLineEdit>(d, u"Text1"_s);
            QCOMPARE(gr->CellText(1, 3), u"Labs Andinos"_s);
            teclear(tx, u"a"_s);
            QCOMPARE(lotes(gr), (QStringList{u"A_2"_s, u"A%1"_s, u"AB1"_s, u"AX2"_s}));
            teclear(tx, u"%"_s);
            QCOMPARE(lotes(gr), (QStringList{u"A%1"_s}));
            tx->setText(u"A\\"_s);
            QCOMPARE(lotes(gr), QStringList());
            tx->clear();

            // A new date counts from the next reload, here the check box.
            auto* exacta = control<QCheckBox>(d, u"Chk(0)"_s);
            control<QDateEdit>(d, u"DT"_s)->setDate(QDate(2026, 1, 10));
            exacta->click();
            QCOMPARE(lotes(gr), (QStringList{u"A%1"_s, u"AB1"_s}));
            exacta->click();
            control<QCheckBox>(d, u"Chk(1)"_s)->click();
            QCOMPARE(lotes(gr), (QStringList{u"A%1"_s, u"AB1"_s, u"AX2"_s, u"B-20"_s, u"CERO"_s, u"NEG"_s}));
        });
        QCOMPARE(nomencla.SeleccionarLote(u"1"_s, db, 1), 0);
    }

    // The selection: a double click or Enter on a current row chooses it; arrow down goes
    // from the box into the grid only when it has rows, else Enter waits. Esc,
    // in a check box too, and the close box give 0 even with a row marked.
    void seleccion_finales()
    {
        enum { DobleClic, FlechaYEnter, Esc, Cierre };
        const struct { QString filtro; int final; bool abierto; QString lote; } casos[] = {
            {QString(), DobleClic, false, u"B-20"_s},
            {u"ab"_s, FlechaYEnter, false, u"AB1"_s},
            {u"zz"_s, FlechaYEnter, true, QString()},
            {QString(), Esc, false, QString()},
            {QString(), Cierre, false, QString()}};
        for (const auto& c : casos) {
            bool abierto = false;
            alAbrir(u"frmCaducidades"_s, [&](QWidget* d) {
                auto* gr = control<Alfarje>(d, u"GR"_s);
                auto* tx = control<QLineEdit>(d, u"Text1"_s);
                QTRY_VERIFY(tx->hasFocus());
                teclear(tx, c.filtro);
                if (c.final == FlechaYEnter) {
                    tecla(tx, Qt::Key_Down);
                    tecla(QApplication::focusWidget(), Qt::Key_Return);
                } else {
                    gr->setRow(4);
                }
                if (c.final == DobleClic)
                    dobleClic(gr, 4);
                else if (c.final == Esc)
                    tecla(control<QCheckBox>(d, u"Chk(1)"_s), Qt::Key_Escape);
                else if (c.final == Cierre)
                    d->close();
                abierto = d->isVisible();
            });
            const qint32 r = nomencla.SeleccionarLote(u"1"_s, db, 1);
            QCOMPARE(abierto, c.abierto);
            QCOMPARE(r, c.lote.isEmpty() ? 0 : valor(db, u"SELECT cod FROM martexpira WHERE lot=?"_s, {c.lote}).toInt());
        }
    }
};

QTEST_MAIN(PruebaLotes)
#include "prueba_lotes.moc"
