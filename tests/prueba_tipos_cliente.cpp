// Customer types: the coded list with three filtered numeric boxes.
#include "tests/codificadas_comun.h"

#include "catalogues/frmLsTipoCli.h"

#include <nomencla/clsNomencla.h>

#include <QLineEdit>
#include <QLocale>

using namespace Qt::StringLiterals;
using namespace prueba;
using nomencla::Alfarje;

namespace {

QLineEdit* caja(QWidget* d, int i)
{
    return control<QLineEdit>(d, u"Tx(%1)"_s.arg(i));
}

} // namespace

class PruebaTiposCliente : public QObject {
    Q_OBJECT
    QSqlDatabase db;
    clsNomencla nomencla;

private Q_SLOTS:
    void init()
    {
        db = baseNueva(u"t_tipos_cliente"_s);
        ejecutarSql(db, u"INSERT INTO mTipClie (id,cod,tip,des,cre,pla,descu,inte,est) VALUES "
                        "('2',1,'Corporativo','otra empresa',9000,90,5,3,1)"_s);
    }

    void val()
    {
        using nomencla::frmLsTipoCli;
        QCOMPARE(frmLsTipoCli::Val(u""_s), 0.0);
        QCOMPARE(frmLsTipoCli::Val(u"12.5"_s), 12.5);
        QCOMPARE(frmLsTipoCli::Val(u" 30 días"_s), 30.0);
        QCOMPARE(frmLsTipoCli::Val(u"1500.00"_s), 1500.0);
        QCOMPARE(frmLsTipoCli::Val(u"abc"_s), 0.0);
        QCOMPARE(frmLsTipoCli::Val(u".5"_s), 0.5);
    }

    // Typing is filtered per box; the figures are stored as numbers whatever
    // the locale; each figure stands under its heading; the first key is 1.
    void de_principio_a_fin()
    {
        const QLocale antes;
        QLocale::setDefault(nomencla::localeEcuador()); // a decimal comma around
        Cajas cajas;
        QStringList titulos;
        QStringList fila;
        alAbrir(u"frmLsTipoCli"_s, [&](QWidget* d) {
            auto* gr = control<Alfarje>(d, u"GR"_s);
            QCOMPARE(d->windowTitle(), u"Tipos de clientes"_s);
            modoNuevo(d, u"CREANDO NUEVO TIPO"_s);

            // Credit and term take whole numbers of up to six digits.
            teclear(caja(d, 2), u"15a.00,"_s);
            QCOMPARE(caja(d, 2)->text(), u"1500"_s);
            teclear(caja(d, 3), u"1234567"_s);
            QCOMPARE(caja(d, 3)->text(), u"123456"_s);
            caja(d, 3)->clear();
            teclear(caja(d, 3), u"30"_s);
            // The discount takes two decimals, with a comma or a point.
            teclear(caja(d, 4), u"12,555"_s);
            QCOMPARE(caja(d, 4)->text(), u"12.55"_s);
            caja(d, 4)->clear();
            teclear(caja(d, 4), u"12.5"_s);

            teclear(caja(d, 0), u"M"_s);
            pulsar(d, u"Bt(0)"_s);
            QCOMPARE(cajas.vistas.last().titulo, u"Error"_s);
            QCOMPARE(cajas.ultima(), u"Debe especificar el nombre del tipo de cliente!"_s);
            QCOMPARE(caja(d, 2)->text(), u"1500"_s);
            teclear(caja(d, 0), u"ayorista"_s);
            pulsar(d, u"Bt(0)"_s);
            QCOMPARE(cajas.ultima(), u"La información se ha guardado con éxito!"_s);
            for (int i : {0, 2, 3, 4})
                QCOMPARE(caja(d, i)->text(), QString());

            // Empty figures are zeros.
            teclear(caja(d, 0), u"Contado"_s);
            pulsar(d, u"Bt(0)"_s);
            QCOMPARE(gr->RowCount(), 2);

            teclear(caja(d, 0), u"contado"_s);
            pulsar(d, u"Bt(0)"_s);
            QCOMPARE(cajas.vistas.last().titulo, u"Aviso"_s);
            QCOMPARE(cajas.ultima(), u"El tipo ingresado ya se encuentra registrado en la lista!"_s);

            for (int c = 0; c < 5; ++c)
                titulos << gr->model()->headerData(c, Qt::Horizontal).toString().trimmed();
            // The pick shows the figures as one would type them.
            dobleClic(gr, 1);
            QCOMPARE(caja(d, 0)->text(), u"Mayorista"_s);
            fila << caja(d, 0)->text() << textoDe(d, u"Tx(1)"_s)
                 << caja(d, 2)->text() << caja(d, 3)->text() << caja(d, 4)->text();
            modoExistente(d, u"MODIFICANDO TIPO EXISTENTE"_s);
            caja(d, 4)->clear();
            teclear(caja(d, 4), u"7,25"_s);
            pulsar(d, u"Bt(0)"_s);
            QCOMPARE(cajas.ultima(), u"La información se ha guardado con éxito!"_s);
        });
        QVERIFY(nomencla.TipoClientes(u"1"_s, db));
        QLocale::setDefault(antes);
        QCOMPARE(titulos, (QStringList{u"TIPO DE CLIENTE"_s, u"DESCRIPCION"_s, u"CUPO CRED."_s,
                                       u"PLAZO DÍAS"_s, u"DESC.%"_s}));
        QCOMPARE(fila, (QStringList{u"Mayorista"_s, QString(), u"1500"_s, u"30"_s, u"12.5"_s}));
        QCOMPARE(filas(db, u"SELECT id,cod,tip,cre,pla,descu,inte,est FROM mTipClie ORDER BY id,cod"_s),
                 (QStringList{u"1|1|Mayorista|1500|30|7.25|0|1"_s, u"1|2|Contado|0|0|0|0|1"_s,
                              u"2|1|Corporativo|9000|90|5|3|1"_s}));
    }

    // Only this company's customers block a removal; the update keeps inte;
    // another company's row with the same key is never reached.
    void quitar_y_otras_empresas()
    {
        ejecutarSql(db, u"INSERT INTO mTipClie (id,cod,tip,des,cre,pla,descu,inte,est) VALUES "
                        "('1',1,'Corporativo','',100,10,1,4,1),('1',2,'Especial','',0,0,0,0,1);\n"
                        "INSERT INTO mCliente (id,tip) VALUES ('1',2),('2',1)"_s);
        Cajas cajas;
        alAbrir(u"frmLsTipoCli"_s, [&](QWidget* d) {
            auto* gr = control<Alfarje>(d, u"GR"_s);
            dobleClic(gr, 1);
            QCOMPARE(caja(d, 0)->text(), u"Especial"_s);
            pulsar(d, u"Bt(1)"_s);
            QCOMPARE(cajas.vistas.last().titulo, u"AVISO"_s);
            QCOMPARE(cajas.ultima(), u"No se puede quitar el tipo ''Especial'' debido a que se encuentra asignado a uno o mas clientes!"_s);
            modoExistente(d, u"MODIFICANDO TIPO EXISTENTE"_s);

            dobleClic(gr, 0);
            caja(d, 2)->clear();
            teclear(caja(d, 2), u"250"_s);
            pulsar(d, u"Bt(0)"_s);
            dobleClic(gr, 0);
            cajas.responder(QMessageBox::Yes);
            pulsar(d, u"Bt(1)"_s);
            QCOMPARE(cajas.vistas[cajas.vistas.size() - 2].texto,
                     u"Está seguro que desea quitar el tipo ''Corporativo'' de la base de datos?"_s);
            QCOMPARE(cajas.ultima(), u"La operación se realizó correctamente!"_s);
            QCOMPARE(gr->RowCount(), 1);
            modoNuevo(d, u"CREANDO NUEVO TIPO"_s);
            QCOMPARE(caja(d, 2)->text(), QString());
        });
        QVERIFY(nomencla.TipoClientes(u"1"_s, db));
        QCOMPARE(filas(db, u"SELECT id,cod,tip,cre,inte,est FROM mTipClie ORDER BY id,cod"_s),
                 (QStringList{u"1|1|Corporativo|250|4|0"_s, u"1|2|Especial|0|0|1"_s,
                              u"2|1|Corporativo|9000|3|1"_s}));
    }
};

QTEST_MAIN(PruebaTiposCliente)
#include "prueba_tipos_cliente.moc"
