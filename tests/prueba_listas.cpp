// The lists (plain names, named, coded, customer types, banks, units of
// measure, zones and their places), driven through their controls as a
// clerk would: each family's messages, refusals and the rows it keeps. Plain
// saves, renames and unchanged saves of every dialog are proved by the round
// trip and the tenant walk.
#include "tests/prueba_estructura.h"

#include "core/Controles.h"

#include <QApplication>
#include <QLocale>

using namespace Qt::StringLiterals;
using namespace prueba;
using nomencla::Alfarje;

namespace {

// A list of names: its rows, its refusal of a duplicate and the rows it keeps.
struct Lista {
    const char* nombre;
    QString forma;
    Metodo metodo;
    QString preparar;
    QString msgDuplicado;
    QString msgReferencia; // plain names: the record used by this tenant
    QString consulta;      // this tenant's rows
    QStringList quedan = {};
    bool escCierra = false;
};

// Plain names: a row "C..." used by a record of this tenant and a row "A..."
// used only by another tenant's record.
const QList<Lista> simples{
    {"ciudades", u"frmLsCiudad"_s, &clsNomencla::Ciudades,
     u"INSERT INTO lsCiudades (id,ciu) VALUES ('1','Cuenca'),('1','Ambato');\n"
     "INSERT INTO mCliente (id,ciu) VALUES ('1','Cuenca'),('2','Ambato')"_s,
     u"La ciudad que intenta guardar ya está registrada en la base de datos!"_s,
     u"No se puede quitar la ciudad ''Cuenca'' debido a que se encuentra asignada a uno o mas clientes!"_s,
     u"SELECT ciu FROM lsCiudades WHERE id='1'"_s},
    {"departamentos", u"frmLsDepartam"_s, &clsNomencla::Departamentos,
     u"INSERT INTO lsDepartam (id,depa) VALUES ('1','Cuentas'),('1','Ambos');\n"
     "INSERT INTO mvendedor (id,depa) VALUES ('1','Cuentas'),('2','Ambos')"_s,
     u"El departamento que intenta guardar ya está registrado en la base de datos!"_s,
     u"No se puede quitar el departamento ''Cuentas'' debido a que se encuentra asignado a uno o más empleados!"_s,
     u"SELECT depa FROM lsDepartam WHERE id='1'"_s},
    {"contenidos", u"frmLsContenido"_s, &clsNomencla::Contenidos,
     u"INSERT INTO lsContenidos (id,nom) VALUES ('1','Caja'),('1','Ataúd');\n"
     "INSERT INTO sOrdenObjetos (id,obj) SELECT '1', cod FROM lsContenidos WHERE nom='Caja';\n"
     "INSERT INTO sOrdenObjetos (id,obj) SELECT '2', cod FROM lsContenidos WHERE nom='Ataúd'"_s,
     u"El objeto que intenta guardar ya está registrado en la base de datos!"_s,
     u"No se puede quitar el objeto ''Caja'' debido a que se encuentra en uso en una orden!"_s,
     u"SELECT nom FROM lsContenidos WHERE id='1'"_s},
};

// Named lists: rows Alfa 1 and Beta 2 (and a removed Gama 3 where removal
// is a mark), another tenant's Alfa 1.
const QList<Lista> nombradas{
    {"paises", u"frmLsPaises"_s, &clsNomencla::Paises,
     u"INSERT INTO lsPaises (id,nom) VALUES ('1','Alfa 1'),('1','Beta 2'),('2','Alfa 1')"_s,
     u"El país ya se encuentra registrado en la lista!"_s, {},
     u"SELECT nom FROM lsPaises WHERE id='1' ORDER BY nom"_s, {u"Beta 2"_s, u"Gama 3"_s}},
    {"cuentas", u"frmLsCuentas"_s, &clsNomencla::Cuentas,
     u"INSERT INTO lsCuentas (id,cta,est) VALUES ('1','Alfa 1',1),('1','Beta 2',1),('1','Gama 3',0),('2','Alfa 1',1)"_s,
     u"El cuenta ya se encuentra registrada en la lista!"_s, {},
     u"SELECT cta, est FROM lsCuentas WHERE id='1' ORDER BY cta, est"_s,
     {u"Alfa 1|0"_s, u"Beta 2|1"_s, u"Gama 3|0"_s, u"Gama 3|1"_s}, true},
};

// Coded lists whose key the database gives, the code in column `consulta`.
const QList<Lista> codificadas{
    {"cargos", u"frmLsCargos"_s, &clsNomencla::Cargos, u"Cargos"_s,
     u"El cargo ya se encuentra registrado en la lista!"_s, {}, u"car"_s},
    {"documentos", u"frmLsDocAutSRI"_s, &clsNomencla::DocumentAutorizSRI, u"SRI_Documentos"_s,
     u"El tipo de documento ya encuentra registrado en la lista!"_s, {}, u"cin"_s},
};

QString nombreDe(const Lista& l)
{
    return QString::fromUtf8(l.nombre);
}

// A place added with the ordinal already in its box.
void lugar(QWidget* d, const QString& nombre)
{
    tx(d, 2)->insert(nombre); // keys carry Latin letters only
    tecla(tx(d, 3), Qt::Key_Return);
}

} // namespace

class PruebaListas : public QObject {
    Q_OBJECT
    QSqlDatabase db;
    clsNomencla nomencla;
    Cajas cajas;

    // Opens the list, runs `pasos` in it and checks the method's answer and
    // that every question was answered.
    void en(const QString& forma, Metodo metodo, const std::function<void(QWidget*)>& pasos, bool cambios = true)
    {
        alAbrir(forma, pasos);
        QCOMPARE((nomencla.*metodo)(u"1"_s, db), cambios);
        QVERIFY(!cajas.sinRespuesta);
    }

    void zonas()
    {
        // Norte and Sur have customers; a removed zone holds the highest key.
        ejecutarSql(db, u"INSERT INTO mZonaClie (id,cod,zon,des,est) VALUES ('1',1,'Norte','',1),"
                        "('1',2,'Sur','',1),('1',5,'Vieja','',0);\n"
                        "INSERT INTO mZonaLugar (id,zon,lug,ord,est) VALUES ('1',1,'Carcelén',1,1),"
                        "('1',1,'Cotocollao',2,1),('1',2,'Solanda',1,1);\n"
                        "INSERT INTO mCliente (id,nom,zon,lug) VALUES ('1','A',1,'Carcelén'),('1','D',2,'Solanda')"_s);
    }

private Q_SLOTS:
    void init()
    {
        db = baseNueva(u"t_listas"_s);
        cajas.limpiar();
    }

    // With nothing found, nothing is asked; a duplicate of any case is
    // refused, its text kept; the row found is used by this tenant and stays,
    // the one found by "A" is used only by another tenant's record and goes.
    void simples_data() { porCaso(::simples, nombreDe); }

    void simples()
    {
        QFETCH(int, i);
        const Lista& m = ::simples.at(i);
        const QString enUso = m.msgReferencia.section(u"''"_s, 1, 1);
        ejecutarSql(db, m.preparar);
        en(m.forma, m.metodo, [&](QWidget* d) {
            auto* tx = control<QLineEdit>(d, u"Text1"_s);
            pulsar(d, u"Bt(2)"_s);
            QVERIFY(cajas.vistas.isEmpty());
            teclear(tx, enUso.toLower());
            pulsar(d, u"Bt(0)"_s);
            QCOMPARE(cajas.ultima(), m.msgDuplicado);
            QCOMPARE(tx->text(), enUso.toLower());
            pulsar(d, u"Bt(2)"_s);
            QCOMPARE(cajas.ultima(), m.msgReferencia);
            tx->clear();
            teclear(tx, u"A"_s);
            cajas.responder(QMessageBox::Yes);
            pulsar(d, u"Bt(2)"_s);
        });
        QCOMPARE(filas(db, m.consulta), QStringList{enUso});
    }

    // A record removed earlier is no duplicate, a duplicate of any case is
    // refused, a pick fills the box, and the removal goes to the picked
    // record even when typing has moved the selection; Esc as the list's key
    // preview says.
    void nombradas_data() { porCaso(::nombradas, nombreDe); }

    void nombradas()
    {
        QFETCH(int, i);
        const Lista& m = ::nombradas.at(i);
        ejecutarSql(db, m.preparar);
        en(m.forma, m.metodo, [&](QWidget* d) {
            auto* gr = control<Alfarje>(d, u"GR"_s);
            auto* tx = control<QLineEdit>(d, u"Text1"_s);
            teclear(tx, u"Gama 3"_s);
            pulsar(d, u"Bt(0)"_s);
            teclear(tx, u"ALFA 1"_s);
            pulsar(d, u"Bt(0)"_s);
            QCOMPARE(cajas.ultima(), m.msgDuplicado);
            dobleClic(gr, 0);
            QCOMPARE(tx->text(), u"Alfa 1"_s);
            tx->clear();
            teclear(tx, u"Bet"_s);
            QCOMPARE(gr->Row(), 1);
            cajas.responder(QMessageBox::Yes);
            pulsar(d, u"Bt(1)"_s);
            tecla(tx, Qt::Key_Escape);
            QCOMPARE(d->isVisible(), !m.escCierra);
        });
        QCOMPARE(filas(db, m.consulta), m.quedan);
    }

    // A tenant's keys follow its own MAX(cod), removed records included; a
    // duplicate of any case is refused; only this tenant's customers block a
    // removal, which keeps the row with est 0; Esc closes wherever the focus is.
    void categorias()
    {
        ejecutarSql(db, u"INSERT INTO mCatClie (id,cod,cat,des,est) VALUES ('1',1,'AB','desc',1),"
                        "('2',2,'Minorista','otra empresa',1);\n"
                        "INSERT INTO mCliente (id,cat) VALUES ('1',1),('2',2)"_s);
        en(u"frmLsCategorias"_s, &clsNomencla::CategoriaClientes, [this](QWidget* d) {
            auto* gr = control<Alfarje>(d, u"GR"_s);
            escribir(d, u"Tx(0)"_s, u"Contado"_s);
            pulsar(d, u"Bt(0)"_s);
            escribir(d, u"Tx(0)"_s, u"ab"_s);
            pulsar(d, u"Bt(0)"_s);
            QCOMPARE(cajas.ultima(), u"La categoría ya se encuentra registrada en la lista!"_s);
            dobleClic(gr, 0);
            pulsar(d, u"Bt(1)"_s);
            QCOMPARE(cajas.ultima(), u"No se puede quitar la categoría ''AB'' debido a que se encuentra asignada a uno o mas clientes!"_s);
            dobleClic(gr, 1); // used only by another tenant's customer
            cajas.responder(QMessageBox::Yes);
            pulsar(d, u"Bt(1)"_s);
            escribir(d, u"Tx(0)"_s, u"Contado"_s);
            pulsar(d, u"Bt(0)"_s);
            tecla(gr, Qt::Key_Escape);
            QVERIFY(!d->isVisible());
        });
        QCOMPARE(filas(db, u"SELECT cod,cat,des,est FROM mCatClie WHERE id='1' ORDER BY cod"_s),
                 (QStringList{u"1|AB|desc|1"_s, u"2|Contado||0"_s, u"3|Contado||1"_s}));
    }

    // Keys the database gives: a duplicate refused though another tenant's
    // code is free to take; a record found by typing removed by a mark.
    void codificadas_data() { porCaso(::codificadas, nombreDe); }

    void codificadas()
    {
        QFETCH(int, i);
        const Lista& m = ::codificadas.at(i);
        ejecutarSql(db, u"INSERT INTO %1 (id,%2,des,est) VALUES ('2','02','Dos',1),('1','11','Uno',1)"_s
                            .arg(m.preparar, m.consulta));
        en(m.forma, m.metodo, [&](QWidget* d) {
            auto* gr = control<Alfarje>(d, u"GR"_s);
            escribir(d, u"Tx(0)"_s, u"02"_s);
            escribir(d, u"Tx(1)"_s, u"Dos"_s);
            pulsar(d, u"Bt(0)"_s);
            escribir(d, u"Tx(0)"_s, u"11"_s);
            pulsar(d, u"Bt(0)"_s);
            QCOMPARE(cajas.ultima(), m.msgDuplicado);
            escribir(d, u"Tx(0)"_s, u"02"_s);
            dobleClic(gr, gr->Row());
            cajas.responder(QMessageBox::Yes);
            pulsar(d, u"Bt(1)"_s);
        });
        QCOMPARE(filas(db, u"SELECT id,%2,des,est FROM %1 ORDER BY cod"_s.arg(m.preparar, m.consulta)),
                 (QStringList{u"2|02|Dos|1"_s, u"1|11|Uno|1"_s, u"1|02|Dos|0"_s}));

        // A position used by an employee of this tenant stays.
        ejecutarSql(db, u"INSERT INTO Cargos (id,car,des,est) VALUES ('1','Vendedor','',1);\n"
                        "INSERT INTO mvendedor (id,car) SELECT '1', cod FROM Cargos WHERE car='Vendedor'"_s);
        en(u"frmLsCargos"_s, &clsNomencla::Cargos, [](QWidget* d) {
            auto* gr = control<Alfarje>(d, u"GR"_s);
            dobleClic(gr, filaCon(gr, u"Vendedor"_s));
            pulsar(d, u"Bt(1)"_s);
        }, false);
        QCOMPARE(cajas.ultima(), u"No se puede quitar el cargo ''Vendedor'' debido a que se encuentra asignado a uno o mas empleados!"_s);
    }

    // Each box takes only its kind of figure as typed; the figures are stored
    // as numbers whatever the locale, empty ones as zeros; a pick shows them
    // as one would type them; the tenant's first key is 1; only this
    // tenant's customers block a removal.
    void tipos_de_cliente()
    {
        ejecutarSql(db, u"INSERT INTO mTipClie (id,cod,tip,des,cre,pla,descu,inte,est) VALUES "
                        "('2',1,'Corporativo','otra empresa',9000,90,5,3,1);\n"
                        "INSERT INTO mCliente (id,tip) VALUES ('1',2),('2',1)"_s);
        const QLocale antes;
        QLocale::setDefault(nomencla::localeEcuador()); // a decimal comma around
        QStringList elegida;
        en(u"frmLsTipoCli"_s, &clsNomencla::TipoClientes, [&](QWidget* d) {
            auto* gr = control<Alfarje>(d, u"GR"_s);
            teclear(tx(d, 2), u"15a.00,"_s);
            teclear(tx(d, 3), u"1234567"_s);
            teclear(tx(d, 4), u"12,5"_s);
            teclear(tx(d, 0), u"Mayorista"_s);
            pulsar(d, u"Bt(0)"_s);
            teclear(tx(d, 0), u"Contado"_s);
            pulsar(d, u"Bt(0)"_s);
            dobleClic(gr, 0);
            pulsar(d, u"Bt(1)"_s);
            QCOMPARE(cajas.ultima(), u"No se puede quitar el tipo ''Contado'' debido a que se encuentra asignado a uno o mas clientes!"_s);
            dobleClic(gr, 1);
            elegida << tx(d, 0)->text() << tx(d, 2)->text() << tx(d, 3)->text() << tx(d, 4)->text();
            cajas.responder(QMessageBox::Yes);
            pulsar(d, u"Bt(1)"_s);
        });
        QLocale::setDefault(antes);
        QCOMPARE(elegida, (QStringList{u"Mayorista"_s, u"1500"_s, u"123456"_s, u"12.5"_s}));
        QCOMPARE(filas(db, u"SELECT cod,tip,cre,pla,descu,inte,est FROM mTipClie WHERE id='1' ORDER BY cod"_s),
                 (QStringList{u"1|Mayorista|1500|123456|12.5|0|0"_s, u"2|Contado|0|0|0|0|1"_s}));
    }

    // Banks: the box switches layouts (the tall one shows the commissions);
    // the commissions take digits and one mark (a comma comes as a point),
    // five digits and two decimals, and are stored whatever the flag, an
    // empty box as 0; every Agregar puts the box back. A pick shows the
    // record in the layout of its flag; the removal asks by name.
    void bancos()
    {
        const QLocale antes;
        QLocale::setDefault(nomencla::localeEcuador());
        ejecutarSql(db, u"INSERT INTO lsBancos (id,nom,tar,cor,dife,est) VALUES ('1','Banco Pichincha',1,4.02,7.50,1),"
                        "('1','Cooperativa JEP',0,0,0,1),('1','Produbanco',1,3.80,6.90,1)"_s);
        en(u"frmLsBancos"_s, &clsNomencla::Bancos, [this](QWidget* d) {
            auto* gr = control<Alfarje>(d, u"GR"_s);
            auto* tx = control<QLineEdit>(d, u"Text1"_s);
            auto* check = control<nomencla::Casilla>(d, u"Check1"_s);
            auto* nm0 = control<QLineEdit>(d, u"Nm(0)"_s);
            QVERIFY(!nm0->isVisible());
            QTest::mouseClick(check, Qt::LeftButton, {}, QPoint(8, check->height() / 2));
            QVERIFY(nm0->isVisible());
            teclear(nm0, u"12a,5x"_s);
            teclear(control<QLineEdit>(d, u"Nm(1)"_s), u"123456.789"_s);
            teclear(tx, u"Banco Amazonas"_s);
            pulsar(d, u"Bt(0)"_s);
            QVERIFY(!nm0->isVisible());
            nm0->clear();
            tx->insert(u"Banco Rumiñahui"_s);
            pulsar(d, u"Bt(0)"_s);
            teclear(tx, u"produbanco"_s);
            pulsar(d, u"Bt(0)"_s);
            QCOMPARE(cajas.ultima(), u"El banco ya se encuentra registrado en la lista!"_s);
            dobleClic(gr, filaCon(gr, u"Banco Pichincha"_s));
            QVERIFY(nm0->isVisible());
            QCOMPARE(nm0->text().toDouble(), 4.02);
            dobleClic(gr, filaCon(gr, u"Cooperativa JEP"_s));
            QVERIFY(!nm0->isVisible());
            dobleClic(gr, filaCon(gr, u"Produbanco"_s));
            cajas.responder(QMessageBox::Yes);
            pulsar(d, u"Bt(1)"_s);
            QCOMPARE(cajas.ultima(), u"Está seguro que desea eliminar ''Produbanco'' de la lista de bancos registrados en el sistema?"_s);
        });
        QLocale::setDefault(antes);
        QCOMPARE(filas(db, u"SELECT nom, tar, CAST(cor AS CHAR), CAST(dife AS CHAR), est FROM lsBancos WHERE cod>2"_s),
                 (QStringList{u"Produbanco|1|3.80|6.90|0"_s, u"Banco Amazonas|1|12.50|12345.78|1"_s,
                              u"Banco Rumiñahui|0|0.00|12345.78|1"_s}));
    }

    // Units: both fields are required; the name alone decides a duplicate.
    // Articles point at a unit by its abbreviation: while two units share
    // one, either may go; the last one that articles use stays.
    void medidas()
    {
        ejecutarSql(db, u"INSERT INTO aMedidas (id,med,abr) VALUES ('1','Unidad','u'),('1','Litro','l');\n"
                        "INSERT INTO mArticulo (id,nom,med) VALUES ('1','Jabón','u')"_s);
        en(u"frmMedidas"_s, &clsNomencla::Medidas, [this](QWidget* d) {
            auto* t1 = control<QLineEdit>(d, u"Text1"_s);
            auto* t2 = control<QLineEdit>(d, u"Text2"_s);
            t1->insert(u"Galón"_s);
            pulsar(d, u"Bt(0)"_s);
            QCOMPARE(cajas.ultima(), u"Debe especificar el nombre y la abreviación de la medida/presentacion!"_s);
            t1->setText(u"LITRO"_s);
            teclear(t2, u"lt"_s);
            pulsar(d, u"Bt(0)"_s);
            QCOMPARE(cajas.ultima(), u"La medida/presentación que intenta guardar ya está registrada en la base de datos!"_s);
            pulsar(d, u"Bt(1)"_s);
            teclear(t1, u"Unidades"_s);
            teclear(t2, u"u"_s);
            pulsar(d, u"Bt(0)"_s);
            teclear(t1, u"Unidad"_s);
            cajas.responder(QMessageBox::Yes);
            pulsar(d, u"Bt(2)"_s);
            QCOMPARE(cajas.vistas[cajas.vistas.size() - 2].texto,
                     u"Está seguro que desea quitar la medida/presentación ''Unidad'' de la base de datos?"_s);
            teclear(t1, u"Unidades"_s);
            pulsar(d, u"Bt(2)"_s);
            QCOMPARE(cajas.ultima(), u"No se puede quitar la medida/presentación ''Unidades'' debido a que se encuentra asignada a uno o más artículos!"_s);
        });
        QCOMPARE(filas(db, u"SELECT med, abr FROM aMedidas ORDER BY med"_s), (QStringList{u"Litro|l"_s, u"Unidades|u"_s}));
    }

    // Pending places go with a pick of a zone. A new zone: name, Enter,
    // ordinal, Enter; repeated names refused; places wait in the grid (one
    // dropped without a question) and are written with the zone under its new
    // key, without ordinal.
    void zona_nueva_con_lugares()
    {
        zonas();
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
        zonas();
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

QTEST_MAIN(PruebaListas)
#include "prueba_listas.moc"
