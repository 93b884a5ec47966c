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

// A record the caller filled before the call: the method overwrites all of it.
InfoLotes ajeno()
{
    return InfoLotes{u"VIEJO"_s, QDate(2000, 1, 1), 99, u"X"_s, QDate(2000, 1, 1), u"Y"_s};
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
};

QTEST_MAIN(PruebaLotes)
#include "prueba_lotes.moc"
